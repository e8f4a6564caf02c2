// Lines that the driver takes itself: case control in front of the first subcase, and the names of sets and surfaces.
#include "driver/card_actions.h"

#include <gmock/gmock.h>

#include <string>

#include "analysis/case_control.h"
#include "deck/name_comments.h"
#include "driver/pass_tables.h"
#include "support/hash_table.h"
#include "tests/unit/driver/walk_fixture.h"

namespace btz::test {
namespace {

class CaseControlLineTest : public WalkTest {
 protected:
  CaseControlLineTest() {
    SolNumber = 0;
    GlobalSdampingId = 0;
    GlobalMfluidId = 0;
    GlobalMethodId = 0;
  }

  void WalkNodePass(std::string_view text) { Walk(text, nodePassDeck, &nodePassInclude); }
};

TEST_F(CaseControlLineTest, TheSolutionIsTheSecondWord) {
  WalkNodePass("SOL 103\n");
  EXPECT_EQ(SolNumber, 103);
  WalkNodePass("  SOL   111  $ modes\n");
  EXPECT_EQ(SolNumber, 111);
  WalkNodePass("SOL SEMODES\n");
  EXPECT_EQ(SolNumber, 0);
}

TEST_F(CaseControlLineTest, TheLastLineOfAKindWins) {
  WalkNodePass("METHOD = 1\nMETHOD = 2\nSOL 101\nSOL 103\n");
  EXPECT_EQ(GlobalMethodId, 2);
  EXPECT_EQ(SolNumber, 103);
}

TEST_F(CaseControlLineTest, BlanksAroundTheEqualsSignDoNotMatter) {
  for (const char* text :
       {"METHOD=12\n", "METHOD =12\n", "METHOD= 12\n", "METHOD   =   12   \n", "METHOD=12\r\n", "METHOD(STRUCTURE)=12\n"}) {
    GlobalMethodId = 0;
    WalkNodePass(text);
    EXPECT_EQ(GlobalMethodId, 12) << text;
  }
}

TEST_F(CaseControlLineTest, AMethodOrFluidWithoutAnEqualsSignSetsNothing) {
  WalkNodePass("METHOD 12\nMFLUID  12      13\n");
  EXPECT_EQ(GlobalMethodId, 0);
  EXPECT_EQ(GlobalMfluidId, 0);
}

TEST_F(CaseControlLineTest, DampingNeedsNoEqualsSign) {
  WalkNodePass("SDAMPING 12\n");
  EXPECT_EQ(GlobalSdampingId, 12);
}

TEST_F(CaseControlLineTest, BehindTheFirstSubcaseOnlyTheSolutionIsTaken) {
  run.hasSeenSubcase = true;
  WalkNodePass("SDAMPING = 1\nMFLUID = 2\nMETHOD = 3\nSOL 103\n");
  EXPECT_EQ(GlobalSdampingId, 0);
  EXPECT_EQ(GlobalMfluidId, 0);
  EXPECT_EQ(GlobalMethodId, 0);
  EXPECT_EQ(SolNumber, 103);
}

TEST_F(CaseControlLineTest, OverlongLinesAreCutNotSpilled) {
  WalkNodePass("METHOD = 5 " + std::string(5000, 'x') + "\nSDAMPING " + std::string(5000, '7') + "\nSOL " + std::string(5000, ' ') + "9\n");
  EXPECT_EQ(GlobalMethodId, 5);
  EXPECT_EQ(SolNumber, 0);
}

class SetNameTest : public WalkTest {
 protected:
  void WalkLoadPass(std::string_view text) { Walk(text, loadPassDeck, &loadPassInclude); }
};

TEST_F(SetNameTest, SetsWithoutACommentAreNumberedFromOne) {
  WalkLoadPass("x\nSET 1 = 2\n");
  EXPECT_STREQ(run.setName, "Set1");
  EXPECT_EQ(run.names.set, 2);
  WalkLoadPass("x\nSET 1 = 2\nSET 2 = 3\n");
  EXPECT_STREQ(run.setName, "Set3");
}

TEST_F(SetNameTest, SurfacesShareTheNumbersOfSets) {
  WalkLoadPass("x\nSET 1 = 2\nSURF    1\n");
  EXPECT_STREQ(run.setName, "Set2");
  EXPECT_EQ(run.names.set, 3);
}

TEST_F(SetNameTest, ACommentAboveNamesTheSetAndTakesNoNumber) {
  WalkLoadPass("$Bolts\nSET 1 = 2\n");
  EXPECT_STREQ(run.setName, "Bolts");
  EXPECT_EQ(run.names.set, 1);
  WalkLoadPass("$ Name: Left nuts \nSURF    1\n");
  EXPECT_STREQ(run.setName, "Left nuts");
  EXPECT_EQ(run.names.set, 1);
}

TEST_F(SetNameTest, TheNameOfOneSetIsNotThatOfTheNext) {
  WalkLoadPass("$Bolts\nSET 1 = 2\nSET 2 = 3\n");
  EXPECT_STREQ(run.setName, "Set1");
}

TEST_F(SetNameTest, ASetAtTheVeryStartOfTheTextHasNoLineAbove) {
  WalkLoadPass("SET 1 = 2\n");
  EXPECT_STREQ(run.setName, "Set1");
}

// Name comments are read in the third pass, from the deck only.
class NameCommentTest : public WalkTest {
 protected:
  static std::string NameOf(const HashTable& table, std::int32_t id) {
    const NameRecord* record = FindName(&table, id);
    return record == nullptr ? "" : record->name;
  }
};

TEST_F(NameCommentTest, NamesOfTheDeckAreRegistered) {
  Walk("$HMNAME COMP                  7\"Door\"\n$HMSET 3 1 \"Bolts\"\n$ANSA_NAME;5;PSHELL;\n$Roof\n", elementPassDeck,
       &elementPassInclude);
  EXPECT_EQ(NameOf(PropertyNameTable, 7), "Door");
  EXPECT_EQ(NameOf(NodeSetNameTable, 3), "Bolts");
  EXPECT_EQ(NameOf(PropertyNameTable, 5), "Roof");
}

TEST_F(NameCommentTest, NamesOfIncludeFilesAreNot) {
  folder.Write("part.bdf", "$HMNAME COMP                  7\"Door\"\n$HMSET 3 1 \"Bolts\"\n$ANSA_NAME;5;PSHELL;\n$Roof\n");
  Walk("include 'part.bdf'\n", includePassDeck, &includePassInclude);
  Walk("include 'part.bdf'\n", elementPassDeck, &elementPassInclude);
  EXPECT_EQ(HashCount(&PropertyNameTable), 0);
  EXPECT_EQ(HashCount(&NodeSetNameTable), 0);
}

TEST_F(NameCommentTest, ALineOfAnotherKindIsSkippedLikeUnknownText) {
  Walk("$HMNAME LOADCOL               7\"Loads\"\n$HMNAME COMP                  8\"Door\"\n", elementPassDeck, &elementPassInclude);
  EXPECT_EQ(NameOf(PropertyNameTable, 7), "");
  EXPECT_EQ(NameOf(PropertyNameTable, 8), "Door");
}

TEST_F(NameCommentTest, ACardBehindANamesHeadLineIsLostToTheReading) {
  RecordingTable recording(elementPassDeck);
  for (CardRow& row : recording.table.rows) {
    if (row.keyword != nullptr && std::string_view(row.keyword) == "$ANSA_NAME;") {
      row.reader = AnsaNameComment;
    }
  }
  Walk("$ANSA_NAME;5;PSHELL;\nCQUAD4  1\nCQUAD4  2\n$ANSA_NAME;5;MAT1;\nCQUAD4  3\n", recording.table);
  EXPECT_THAT(recording.taken, testing::ElementsAre(TakenCard{"CQUAD4", "CQUAD4  2"}, TakenCard{"CQUAD4", "CQUAD4  3"}));
}

}  // namespace
}  // namespace btz::test
