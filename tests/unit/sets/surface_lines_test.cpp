// The lines of a SURF card: where they end, their columns, the forms of the first one, line ends, chunks and broken text.
#include "sets/surfaces.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>

#include "tests/unit/sets/surface_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Where the lines end.

TEST_F(SurfaceCardTest, TextInTheFirstColumnsIsTheNextCard) {
  MakeTwoBricks();
  for (const char* next :
       {"GRID    1       5       7       \n", "$ 1     1       5       7       \n", "+A      1       5       7       \n",
        "1E +5   1       5       7       \n", "1.0D+3  1       5       7       \n", "1E5     1       5       7       \n"}) {
    EXPECT_EQ(Read("SURF    5       \n+       1       1       3       \n" + std::string(next)), next);
    EXPECT_EQ(FacesAskedFor(), "none") << next;
  }
  EXPECT_EQ(SetCount(), 6u);
}

TEST_F(SurfaceCardTest, AnyOtherTextInTheFirstColumnsIsPassedOver) {
  MakeTwoBricks();
  for (const char* head : {"+       ", "*       ", "++++++++", "1234    ", "1.0E+3  ", "e-      ", ",       ", "\x01       "}) {
    EXPECT_EQ(Read("SURF    5       \n" + std::string(head) + "1       5       7       \nENDDATA\n"), "ENDDATA\n");
    EXPECT_NE(FacesAskedFor(), "none") << head;
    DropFace(1, 5);
  }
}

TEST_F(SurfaceCardTest, LettersBehindTheFirstColumnsAreNumbers) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n+       1A      5B      7C      ELEM\nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
}

TEST_F(SurfaceCardTest, AnElementOfNumberZeroIsTheNextCard) {
  MakeTwoBricks();
  for (const char* next : {"+       0       5       7       \n", "+               5       7       \n", "+       X       5       7       \n",
                           "+\n", "+       \n", "\n", "        \n", "12345678\n"}) {
    EXPECT_EQ(Read("SURF    5       \n+       1       5       7       \n" + std::string(next) + "+       2       5       7       \n"),
              next + std::string("+       2       5       7       \n"));
    EXPECT_EQ(FacesAskedFor(), "[e1], [6]") << next;
    DropFace(1, 5);
  }
}

TEST_F(SurfaceCardTest, AnElementOfNumberZeroIsNotAskedFor) {
  MakeTwoBricks();
  std::int32_t asked = 0;
  host.SetHook([&](const char* /*type*/, const char* operation) { asked += std::string_view(operation) == "GetSolidElement" ? 1 : 0; });
  Read("SURF    5       \n+       1       5       7       \n+       0       \n");
  EXPECT_EQ(asked, 1);
  Read("SURF    5       \n+       1       5       7       \n+       -1      \n");
  EXPECT_EQ(asked, 3);
}

TEST_F(SurfaceCardTest, AnElementThatDoesNotExistIsTheNextCard) {
  MakeTwoBricks();
  EnsurePart(model, 3, partOfSurfaces);
  const std::int32_t corners[] = {1, 2, 3, 4};
  ASSERT_EQ(model->CreateElement(70, elementQuad4, corners, 3, 0, 0, 1, 0), 0);
  Calls();
  for (const char* next :
       {"+       99      5       7       \n", "+       -1      5       7       \n", "+       70      1       3       \n"}) {
    EXPECT_EQ(Read("SURF    5       \n+       1       5       7       \n" + std::string(next) + "+       2       5       7       \n"),
              next + std::string("+       2       5       7       \n"));
    EXPECT_EQ(FacesAskedFor(), "[e1], [6]") << next;
    DropFace(1, 5);
  }
}

TEST_F(SurfaceCardTest, TheNextSurfaceIsTheNextCard) {
  MakeTwoBricks();
  const std::string second = "SURF    6       \n+       2       9       11      \n";
  EXPECT_EQ(Read("SURF    5       \n+       1       1       3       \n" + second), second);
}

// Columns.

// A line is trimmed before its columns are counted: what leads it moves it.
TEST_F(SurfaceCardTest, ALineLedByBlanksLosesItsColumns) {
  MakeTwoBricks();
  for (const char* line : {"        1       5       7       \n", "\t       1       \n", "       +1       \n"}) {
    EXPECT_EQ(Read("SURF    5       \n" + std::string(line)), line);
  }
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SurfaceCardTest, BlanksInFrontOfTheMarkAreNotCounted) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n \t +       1       5       7       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
}

// Without a mark the element is passed over as the line's head, and the nodes stand for element and first node.
TEST_F(SurfaceCardTest, ALineLedByBlanksNamesItsFirstNodeAsTheElement) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n        99      2       9       11      \nENDDATA\n"), "ENDDATA\n");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 2:5"));
}

TEST_F(SurfaceCardTest, NumbersMayFillTheirColumns) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    0000000500\n+       000000010000000500000007ABCD\nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u)) << "the rest of the first line is not looked at";
}

TEST_F(SurfaceCardTest, ALineMayEndBehindAnyField) {
  MakeTwoBricks();
  for (const char* line :
       {"+       1       5       7", "+       1       5       7       9999", "+       1       5       7       9999    88"}) {
    EXPECT_EQ(Read("SURF    5\n" + std::string(line) + "\nENDDATA\n"), "ENDDATA\n");
    EXPECT_EQ(FacesAskedFor(), "[e1], [6]") << line;
    DropFace(1, 5);
  }
  EXPECT_EQ(Read("SURF    5\n+       1\n+       2       5\nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e2], [0]");
}

TEST_F(SurfaceCardTest, LargeFieldsAreSixteenColumnsWideFromTheHeadOn) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF*                  5 9\n"
                 "*                          1               5               7\n"
                 "*               2                               \n"
                 "*               0               \n"),
            "*               0               \n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u)) << "columns 9 to 24";
}

// The usual large line, with an element in columns 9 to 24: half of that field counts to the head.
TEST_F(SurfaceCardTest, ALargeLineOfAMarkOfEightColumnsIsReadHalfAFieldOff) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF*                  5\n"
                 "*                      1               5               7\n"
                 "ENDDATA\n"),
            "ENDDATA\n");
  // Columns 17 to 32 hold "       1        ", 33 to 48 "       5", 49 to 64 "       7".
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_EQ(Read("SURF*   5               \n*       1               5               7               \n"),
            "*       1               5               7               \n")
      << "left-bound numbers are out of place";
}

TEST_F(SurfaceCardTest, TextInSixteenColumnsEndsALargeCard) {
  MakeTwoBricks();
  const std::string next = "*       X       1               5               7               \n";
  EXPECT_EQ(Read("SURF*   5               \n" + next), next);
  EXPECT_EQ(Read("SURF    5       \n" + next), next) << "X is no element in small fields";
}

// Forms of the first line.

// The letters that drop a card are not those of the keyword, so only text that is no surface is dropped.
TEST_F(SurfaceCardTest, TheKeywordSurrWithACommaIsLeftAlone) {
  MakeTwoBricks();
  const std::string text = "SURR,   5       \n+       1       5       7       \n";
  EXPECT_EQ(Read(text), text);
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SurfaceCardTest, AKeywordWithACommaGoesOnInColumns) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF,9, 5       \n+       1       5       7       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u));
  EXPECT_THAT(Filed(9), IsEmpty());
}

TEST_F(SurfaceCardTest, OtherTextInTheKeywordFieldDoesNotMatter) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURFACE15       \n+       1       5       7       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_THAT(Filed(5), ElementsAre(1u));
  EXPECT_EQ(Read("SURR    6       \n+       1       5       7       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_THAT(Filed(6), ElementsAre(2u));
}

TEST_F(SurfaceCardTest, AFirstLineThatIsTooShortHasTheNumberZero) {
  MakeTwoBricks();
  for (const char* first : {"SURF\n", "SURF    \n", "SURF    X\n", "SURF    \r\n", "SURF*\n"}) {
    const std::string head(first[4] == '*' ? 16 : 8, '+');
    const std::string line = first[4] == '*' ? "1               5               7               \n" : "1       5       7       \n";
    EXPECT_EQ(Read(first + head + line + "ENDDATA\n"), "ENDDATA\n");
  }
  EXPECT_THAT(Filed(0), ElementsAre(1u, 2u, 3u, 4u, 5u));
}

TEST_F(SurfaceCardTest, ANegativeNumberMakesASetThatIsFiledNowhere) {
  MakeTwoBricks();
  Read("SURF    -5      \n+       1       5       7       \nENDDATA\n");
  EXPECT_EQ(SetCount(), 1u);
  EXPECT_EQ(LoadSetTable.size, 0);
}

// Line ends, chunks and the end of the deck.

TEST_F(SurfaceCardTest, CarriageReturnsDoNotMatter) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5\r\n+       1       5       7\r\n+       2\r\nGRID    1\r\n"), "GRID    1\r\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u));
  EXPECT_EQ(Read("SURF    5       \r\n\r\n+       1       5       7\r\n"), "\r\n+       1       5       7\r\n") << "an empty line ends";
}

TEST_F(SurfaceCardTest, TheEndOfTheDeckEndsTheCard) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n+       1       5       7       \n"), "");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u));
}

TEST_F(SurfaceCardTest, ALastLineWithoutALineEndIsNotTaken) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n+       1       5       7       \n+       2       9       11      "), "");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:5"));
  EXPECT_EQ(Read("SURF    5       \n+       1       5       7       "), "");
  EXPECT_EQ(SetCount(), 1u);
}

TEST_F(SurfaceCardTest, AFirstLineWithoutALineEndMakesNothing) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       "), "SURF    5       ");
  EXPECT_THAT(Calls(), IsEmpty());
}

// A chunk that holds nothing but one card is cut at a line's end, in the middle of the card.
TEST_F(SurfaceCardTest, ACardGoesOnInTheNextChunk) {
  MakeTwoBricks();
  std::string text = "SURF    5       \n+       1       1       3       \n";
  while (text.size() <= deckChunkLimit) {
    text += Small("+|1|0|0|") + Small("+|2||||||||");
  }
  EXPECT_EQ(Read(text + "+       2       9       11      \n" + "+       1       5       7       \n" + "GRID    1\n"), "GRID    1\n");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("9: 1:0 2:5", "8: 1:5"));
  EXPECT_EQ(SetCount(), 1u);
}

TEST_F(SurfaceCardTest, TheNextCardMayStandInTheNextChunk) {
  MakeTwoBricks();
  // Its line crosses the end of the first chunk, which is cut in front of it.
  std::string text = "SURF    5       \n+       1       5       7       \n+       2";
  text.resize(deckChunkLimit - 5, ' ');
  text += "\n";
  EXPECT_EQ(Read(text + "GRID    1\n"), "GRID    1\n");
  EXPECT_EQ(file.cursor, file.block) << "at the start of the second chunk";
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:5"));
}

TEST_F(SurfaceCardTest, LongLinesAreCutNotSpilled) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       " + std::string(5000, '9') + "\n" + "+       1       5       7       " + std::string(5000, '9') + "\n" +
                 std::string(5000, '+') + "\n"),
            std::string(5000, '+') + "\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  // Blanks count to the line's length: what stands behind the 511th byte is not seen.
  const std::string far = std::string(600, ' ') + "+       1       5       7       \n";
  EXPECT_EQ(Read("SURF    5       \n" + far), far);
}

TEST_F(SurfaceCardTest, ACardCutShortAnywhereIsSurvived) {
  MakeTwoBricks();
  const std::string card =
      "SURF    5       \n+       1       5       7       0       \n+       2       9       11      \n+       2       \nEND\n";
  for (std::size_t length = 1; length <= card.size(); ++length) {
    Read(card.substr(0, length));
    DropFace(1, 5);
  }
}

TEST_F(SurfaceCardTest, AByteChangedAnywhereIsSurvived) {
  MakeTwoBricks();
  for (const std::string& card : {std::string("SURF    5       \n+       1       5       7       \n+       2       9       11      \n"),
                                  std::string("SURF*   5\r\n*               1               5               7\r\n")}) {
    for (std::size_t at = 4; at < card.size(); ++at) {
      for (const char changed : {'\n', '\0', '*', '+', 'E', '9', ',', '-', '\t', '\xFF'}) {
        std::string text = card;
        text[at] = changed;
        Read(text);
        EXPECT_LE(file.cursor, file.block + text.size());
        DropFace(1, 5);
      }
    }
  }
}

}  // namespace
}  // namespace btz::test
