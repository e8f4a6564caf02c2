// The name in the plain comment above a card.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "deck/deck_buffer.h"
#include "deck/name_comments.h"

namespace btz {
namespace {

/// Puts `above` and a card into a deck's main block, in front of whose text a NUL stands, and reads the comment above the card.
class CommentAboveCard : public ::testing::Test {
 protected:
  CommentAboveCard() { EXPECT_TRUE(AllocateDeckBuffer(&deck)); }
  ~CommentAboveCard() override { FreeDeckBuffer(&deck); }

  std::string Name(const std::string& above, const std::string& card = "PSHELL,1\n") {
    const std::string text = above + card;
    std::memset(deck.block, 0, deckBlockSize);
    std::memcpy(deck.block, text.data(), text.size());
    char name[nameCapacity + 2];
    std::memset(name, '#', sizeof(name));
    result = ReadCommentAboveCard(deck.block + above.size(), name);
    EXPECT_EQ(std::string(deck.block), text) << "the text stays as it is";
    EXPECT_EQ(name[nameCapacity], '#');
    return name;
  }

  DeckBuffer deck;
  std::int32_t result = -1;
};

TEST_F(CommentAboveCard, ABareNameBehindTheDollarSign) {
  EXPECT_EQ(Name("$Left_arm\n"), "Left_arm");
  EXPECT_EQ(result, 3);
  EXPECT_EQ(Name("GRID,1\n$Left_arm\n"), "Left_arm");
  EXPECT_EQ(Name("\n$9_left\n"), "9_left");
  EXPECT_EQ(Name("$Left arm, inner\n"), "Left arm, inner");
}

TEST_F(CommentAboveCard, ABlankBehindTheDollarSignGivesNothing) {
  EXPECT_EQ(Name("$ Left arm\n"), "");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(Name("$_left\n"), "");
  EXPECT_EQ(Name("$$left\n"), "");
  EXPECT_EQ(Name("$-----\n"), "");
  EXPECT_EQ(Name("$\xE9t\xE9\n"), "") << "no letter";
}

TEST_F(CommentAboveCard, WhiteSpaceAroundTheLineIsTrimmed) {
  EXPECT_EQ(Name("  \t$Left_arm  \r\n"), "Left_arm");
  EXPECT_EQ(result, 3);
}

TEST_F(CommentAboveCard, ALineThatIsNoCommentGivesNothing) {
  EXPECT_EQ(Name("GRID,1\n"), "");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(Name("\n"), "");
  EXPECT_EQ(Name("\r\n"), "");
  EXPECT_EQ(Name("$Above\n\n"), "") << "only the line directly above counts";
}

TEST_F(CommentAboveCard, TheTextBehindTheLastColonIsANameOfItsOwnKind) {
  EXPECT_EQ(Name("$ Property: Left arm\n"), "Left arm");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(Name("$ Time: 10:22\n"), "22");
  EXPECT_EQ(Name("$x:y\n"), "y");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(Name("GRID: 5 \r\n"), "5") << "with a dollar sign or without";
  EXPECT_EQ(Name("$HMNAME: Door\n"), "Door") << "words do not matter here";
}

TEST_F(CommentAboveCard, NothingBehindTheColonGivesNothing) {
  EXPECT_EQ(Name("$ Time:\n"), "");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(Name("$Left_arm: \t\r\n"), "");
}

TEST_F(CommentAboveCard, ANameIsTwoTo63CharactersLongWithItsDollarSign) {
  EXPECT_EQ(Name("$A\n"), "A");
  EXPECT_EQ(Name("$\n"), "");
  EXPECT_EQ(Name("$" + std::string(62, 'n') + "\n"), std::string(62, 'n'));
  EXPECT_EQ(Name("$" + std::string(62, 'n') + "   \n"), std::string(62, 'n')) << "measured behind the trimming";
  EXPECT_EQ(Name("$" + std::string(63, 'n') + "\n"), "");
  EXPECT_EQ(result, 0);
}

TEST_F(CommentAboveCard, DefaultCommentsGiveNothing) {
  EXPECT_EQ(Name("$Default\n"), "");
  EXPECT_EQ(Name("$DEFAULT part\n"), "");
  EXPECT_EQ(Name("$defaults\n"), "");
  EXPECT_EQ(Name("$Defaul\n"), "Defaul");
  EXPECT_EQ(Name("$My Default\n"), "My Default") << "only at the line's start";
}

TEST_F(CommentAboveCard, LinesOfTheNamingProgramsGiveNothing) {
  for (const char* line : {"$ANSA_NAME;5;PSHELL\n", "$HMNAME COMP 7\"Door\"\n", "$HMCOLOR COMP 7 5\n", "$HWCOLOR COMP 7 5\n", "$HMSET 1\n",
                           "$HWxyz\n", "$hmname\n", "$Ansa_Name\n", "$part of hmname\n", "$x $HM y\n", "$my hwcolor\n"}) {
    EXPECT_EQ(Name(line), "") << line;
    EXPECT_EQ(result, 0) << line;
  }
  EXPECT_EQ(Name("$part HM 5\n"), "part HM 5");
}

TEST_F(CommentAboveCard, NothingStandsAboveTheBlocksStart) {
  EXPECT_EQ(Name(""), "");
  EXPECT_EQ(result, 0);
}

TEST_F(CommentAboveCard, TheFirstLineOfTheBlockIsReadFromItsStart) { EXPECT_EQ(Name("$Door\n"), "Door"); }

TEST_F(CommentAboveCard, AnIndentedCardLooksAtItsOwnLine) {
  const std::string text = "$Door\n   PSHELL  1\n";
  std::memcpy(deck.block, text.data(), text.size());
  char name[nameCapacity];
  EXPECT_EQ(ReadCommentAboveCard(deck.block + 9, name), 0);
  EXPECT_STREQ(name, "");
  const std::string colon = "$Door\n   PSHELL:7\n";
  std::memcpy(deck.block, colon.data(), colon.size());
  EXPECT_EQ(ReadCommentAboveCard(deck.block + 9, name), 0);
  EXPECT_STREQ(name, "7");
}

TEST_F(CommentAboveCard, ALongNameBehindAColonIsCut) {
  const std::string name = Name("$a:" + std::string(1000, 'n') + "\n");
  EXPECT_LE(name.size(), 255u);
  EXPECT_GT(name.size(), 200u);
  EXPECT_EQ(name, std::string(name.size(), 'n'));
}

}  // namespace
}  // namespace btz
