// Subcases in the walk of the first pass: where they begin, what goes on behind them, include files.
#include <gmock/gmock.h>

#include "analysis/case_control.h"
#include "driver/pass_tables.h"
#include "support/pooled_list.h"
#include "tests/unit/driver/walk_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class SubcasePass : public WalkTest {
 protected:
  SubcasePass() { ClearGlobals(); }
  ~SubcasePass() override { ClearGlobals(); }

  static void ClearGlobals() {
    SolNumber = 0;
    GlobalSdampingId = 0;
    GlobalMfluidId = 0;
    GlobalMethodId = 0;
  }

  void WalkNodePass(std::string_view text) {
    RecordingTable recorder(nodePassDeck);
    // Subcases and case control are read in earnest; cards are only written down.
    PassTable table = nodePassDeck;
    for (std::size_t i = 0; i < PassTable::mostRows; ++i) {
      if (table.rows[i].keyword != nullptr && std::string(table.rows[i].keyword) == "GRID") {
        table.rows[i].reader = recorder.table.rows[i].reader;
      }
    }
    Walk(text, table, &nodePassInclude);
    taken = recorder.taken;
  }

  std::vector<std::int32_t> SpcIds() {
    std::vector<std::int32_t> ids;
    WalkList<SubcaseRecord>(&run.lists.subcases, [&](const SubcaseRecord* subcase) { ids.push_back(subcase->spcId); });
    return ids;
  }

  std::vector<TakenCard> taken;
};

TEST_F(SubcasePass, TheFirstCardBehindTheSubcasesIsRead) {
  WalkNodePass("SUBCASE 1\nSPC = 1\nGRID    1\nGRID    2\n");
  EXPECT_THAT(taken, ElementsAre(TakenCard{"GRID", "GRID    1"}, TakenCard{"GRID", "GRID    2"}));
  EXPECT_THAT(SpcIds(), ElementsAre(1));
}

TEST_F(SubcasePass, ALineThatEndsASubcaseLosesTheRestOfIt) {
  WalkNodePass("SUBCASE 1\nLOAD = 4\nSET 1 = ALL\nSPC = 1\nSUBCASE 2\nSPC = 2\nBEGIN BULK\n");
  EXPECT_THAT(SpcIds(), ElementsAre(0, 2));
}

TEST_F(SubcasePass, TheFirstSubcaseIsFoundByItsFirstSevenCapitals) {
  WalkNodePass("subcase 1\nSPC = 1\nSUBCASE2\nSPC = 2\nSUBCASE3\nSPC = 3\nBEGIN BULK\n");
  EXPECT_THAT(SpcIds(), ElementsAre(3)) << "SUBCASE3 is no SUBCASE line inside a subcase";
}

TEST_F(SubcasePass, MethodInASubcaseNeverReachesTheWholeDeck) {
  WalkNodePass("SUBCASE 1\nMETHOD = 3\nMFLUID = 4\nSDAMPING = 5\nSET 1 = ALL\nMETHOD = 6\nMFLUID = 7\nSDAMPING = 8\nBEGIN BULK\n");
  EXPECT_EQ(GlobalMethodId, 0);
  EXPECT_EQ(GlobalMfluidId, 0);
  EXPECT_EQ(GlobalSdampingId, 0);
}

TEST_F(SubcasePass, LinesInFrontOfTheFirstSubcaseBelongToTheWholeDeck) {
  WalkNodePass("METHOD = 6\nMFLUID = 7\nSDAMPING = 8\nSPC = 9\nSUBCASE 1\nLOAD = 1\nBEGIN BULK\n");
  EXPECT_EQ(GlobalMethodId, 6);
  EXPECT_EQ(GlobalMfluidId, 7);
  EXPECT_EQ(GlobalSdampingId, 8);
  EXPECT_THAT(SpcIds(), ElementsAre(0));
}

TEST_F(SubcasePass, AnIncludeFileNeedsABlankBehindSubcase) {
  folder.Write("a.inc", "SUBCASE\nSPC = 1\nSUBCASE2\nSPC = 2\n  SUBCASE 3\nSPC = 3\nSUBCASE\nSPC = 4\n");
  WalkNodePass("INCLUDE 'a.inc'\nBEGIN BULK\n");
  EXPECT_THAT(SpcIds(), ElementsAre(3, 4)) << "behind the first one SUBCASE stands alone";
  EXPECT_FALSE(run.hasSeenSubcase);
}

TEST_F(SubcasePass, SubcasesOfAnIncludeFileDoNotEndTheLinesOfTheWholeDeck) {
  folder.Write("a.inc", "SUBCASE 1\nSPC = 1\n");
  WalkNodePass("INCLUDE 'a.inc'\nMETHOD = 6\nSUBCASE 2\nSPC = 2\nBEGIN BULK\n");
  EXPECT_EQ(GlobalMethodId, 6);
  EXPECT_THAT(SpcIds(), ElementsAre(1, 2));
}

TEST_F(SubcasePass, AnIncludeLineInsideASubcaseIsNotFollowed) {
  folder.Write("a.inc", "SUBCASE 1\nSPC = 1\n");
  WalkNodePass("SUBCASE 2\nSPC = 2\nINCLUDE 'a.inc'\nBEGIN BULK\n");
  EXPECT_THAT(SpcIds(), ElementsAre(2));
}

TEST_F(SubcasePass, AnUnterminatedSubcaseLineEndsTheDeck) {
  WalkNodePass("GRID    1\nSUBCASE 1");
  EXPECT_THAT(SpcIds(), ElementsAre());
  EXPECT_EQ(taken.size(), 1U);
}

}  // namespace
}  // namespace btz::test
