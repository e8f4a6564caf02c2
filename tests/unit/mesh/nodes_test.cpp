// GRID cards in their three forms: what becomes a node, what is noted, what is logged, and where the cursor ends.
#include "mesh/nodes.h"

#include <gmock/gmock.h>

#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class GridCardTest : public MeshTest {
 protected:
  /// Reads the card at the start of `text`; returns what stands at the cursor afterwards.
  std::string Read(std::string_view text) {
    CardText card(text);
    ReadGridCard(model, &card.cursor, &run.lists.gridCp, &run.gridCdTable, logPath);
    return card.Rest();
  }

  /// Displacement system noted for a node, 0 for none.
  std::int32_t SystemOf(std::int32_t nodeId) const {
    const auto* record = static_cast<const GridCdRecord*>(HashFind(&run.gridCdTable, &nodeId));
    return record == nullptr ? 0 : record->cdId;
  }

  std::vector<GridCpRecord> LocalNodes() {
    std::vector<GridCpRecord> records;
    WalkList<GridCpRecord>(&run.lists.gridCp, [&](const GridCpRecord* record) { records.push_back(*record); });
    return records;
  }
};

// Small fields.

TEST_F(GridCardTest, SmallFieldsMakeANode) {
  EXPECT_EQ(Read(Card8({"GRID", "1", "0", "1.0", "2.0", "3.0"}) + "\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.0, 2.0, 3.0), 0) -> 0"));
  EXPECT_EQ(run.lists.gridCp.size, 0);
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(GridCardTest, RealsMayHaveAnyForm) {
  Read(Card8({"GRID", "12", "", "1.5+3", "-.5-2", "1.5E1"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(12, (1500.0, -0.005, 15.0), 0) -> 0"));
}

TEST_F(GridCardTest, FieldsMayBeRightAligned) {
  Read("GRID          17             1.0     2.0     3.0\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(17, (1.0, 2.0, 3.0), 0) -> 0"));
}

TEST_F(GridCardTest, ANodeInALocalSystemIsNotedAsWritten) {
  Read(Card8({"GRID", "1", "5", "1.0", "2.0", "3.0", "17", ""}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.0, 2.0, 3.0), 0) -> 0"));
  const std::vector<GridCpRecord> records = LocalNodes();
  ASSERT_EQ(records.size(), 1u);
  EXPECT_EQ(records[0].nodeId, 1);
  EXPECT_EQ(records[0].cpId, 5);
  EXPECT_EQ(records[0].cdId, 17);
  EXPECT_EQ(records[0].x, 1.0);
  EXPECT_EQ(records[0].y, 2.0);
  EXPECT_EQ(records[0].z, 3.0);
}

TEST_F(GridCardTest, ANegativeSystemOfThePositionCountsToo) {
  Read(Card8({"GRID", "1", "-2", "1.0", "2.0", "3.0"}) + "\n");
  ASSERT_EQ(LocalNodes().size(), 1u);
  EXPECT_EQ(LocalNodes()[0].cpId, -2);
  EXPECT_EQ(LocalNodes()[0].cdId, 0);
}

TEST_F(GridCardTest, LocalNodesAreListedInOrderOfTheCards) {
  Read(Card8({"GRID", "21", "5", "1.0", "2.0", "3.0"}) + "\n");
  Read(Card8({"GRID", "11", "6", "1.0", "2.0", "3.0"}) + "\n");
  ASSERT_EQ(LocalNodes().size(), 2u);
  EXPECT_EQ(LocalNodes()[0].nodeId, 21);
  EXPECT_EQ(LocalNodes()[1].nodeId, 11);
}

TEST_F(GridCardTest, ADisplacementSystemIsNotedUnused) {
  Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "7", ""}) + "\n");
  const std::int32_t id = 1;
  const auto* record = static_cast<const GridCdRecord*>(HashFind(&run.gridCdTable, &id));
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->cdId, 7);
  EXPECT_EQ(record->used, 0);
}

TEST_F(GridCardTest, ADisplacementSystemOfZeroOrLessIsNotNoted) {
  Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "0", ""}) + "\n");
  Read(Card8({"GRID", "2", "", "1.0", "2.0", "3.0", "-7", ""}) + "\n");
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
}

TEST_F(GridCardTest, WhatStandsFirstBehindTheThirdCoordinateIsTheDisplacementSystem) {
  // The system's field is blank; the constraints of the next one are taken for it.
  Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "", "12346", ""}) + "\n");
  EXPECT_EQ(SystemOf(1), 12346);
  // Not in any column either.
  Read(Card8({"GRID", "2", "", "1.0", "2.0", "3.0 25      "}) + "\n");
  EXPECT_EQ(SystemOf(2), 25);
}

TEST_F(GridCardTest, ALoneDigitInFrontOfTheLineFeedIsNoDisplacementSystem) {
  EXPECT_EQ(Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "7"}) + "\nNEXT\n").find("NEXT"), 1u);
  EXPECT_EQ(SystemOf(1), 0);
}

TEST_F(GridCardTest, TwoDigitsInFrontOfTheLineFeedAreADisplacementSystem) {
  EXPECT_EQ(Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "17"}) + "\nNEXT\n"), "NEXT\n");
  EXPECT_EQ(SystemOf(1), 17);
}

TEST_F(GridCardTest, ADigitInFrontOfACarriageReturnIsADisplacementSystem) {
  EXPECT_EQ(Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "7"}) + "\r\nNEXT\n"), "NEXT\n");
  EXPECT_EQ(SystemOf(1), 7);
}

TEST_F(GridCardTest, ADigitAtTheEndOfTheTextIsADisplacementSystem) {
  EXPECT_EQ(Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "7"})), "");
  EXPECT_EQ(SystemOf(1), 7);
}

TEST_F(GridCardTest, BlanksInFrontOfTheLineFeedAreNoDisplacementSystem) {
  EXPECT_EQ(Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "", ""}) + "\n123\n"), "123\n");
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
}

TEST_F(GridCardTest, ACarriageReturnBehindTheThirdCoordinateEndsTheCard) {
  EXPECT_EQ(Read(Card8({"GRID", "1", "0", "1.0", "2.0", "3.0"}) + "\r\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.0, 2.0, 3.0), 0) -> 0"));
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
}

TEST_F(GridCardTest, FullFieldsNeedNoBlanksBetweenThem) {
  Read("GRID    12345678       01.2345672.3456783.45678917      \n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(12345678, (1.234567, 2.345678, 3.456789), 0) -> 0"));
  EXPECT_EQ(SystemOf(12345678), 17);
}

TEST_F(GridCardTest, AShortCardTakesItsSecondCoordinateFromTheNextLine) {
  // The second coordinate steps over the line feed; the third meets one and is 0.
  EXPECT_EQ(Read(Card8({"GRID", "12", "0", "1.5"}) + "\n5.0\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(12, (1.5, 5.0, 0.0), 0) -> 0"));
}

TEST_F(GridCardTest, ALineThatEndsWithTheSystemFieldGoesOnInTheNextLine) {
  // The system's 8 columns are full, and the line feed stands right behind them.
  Read("GRID    12      34      \n1.5     2.5     3.5\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(12, (1.5, 2.5, 3.5), 0) -> 0"));
  EXPECT_EQ(LocalNodes()[0].cpId, 34);
}

TEST_F(GridCardTest, ALineFeedEightColumnsBehindTheSystemIsSteppedOverAsItStoodBeforeTheReading) {
  // "34\n1.250\n": reading the system puts the second line feed in the place of the first; one byte is stepped over.
  Read("GRID    12      34\n1.250\n2.5     3.5\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(12, (1.25, 2.5, 3.5), 0) -> 0"));
  EXPECT_EQ(LocalNodes()[0].cpId, 34);
}

TEST_F(GridCardTest, ALineFeedInsideTheSystemFieldIsLost) {
  // The blank eight columns behind takes its place, so the first coordinate begins with it: " 1.25   ", then " 2.5".
  Read("GRID    12      34\n1.25    2.5\nNEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(12, (1.25, 2.5, 0.0), 0) -> 0"));
}

TEST_F(GridCardTest, ALoneDigitIdInFrontOfTheLineFeedIsLost) {
  // Id and system stay 0, the first coordinate ends at the line feed, the second is the next line's first field: G, R, I and D count as the
  // digits 23, 34, 25 and 20. The third is that card's id.
  Read("GRID    7\nGRID    8       0       1.0     2.0     3.0\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(0, (0.0, 26670.0, 8.0), 0) -> -1"));
  EXPECT_EQ(Log(), "*** Failed Node -> 0 \n");
}

TEST_F(GridCardTest, ContinuationLinesOfSmallFieldsAreNotRead) {
  EXPECT_EQ(Read(Card8({"GRID", "1", "", "1.0", "2.0", "3.0", "", ""}) + "\n+       17\n"), "+       17\n");
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
}

TEST_F(GridCardTest, ARefusedNodeIsLoggedInSmallFields) {
  Read(Card8({"GRID", "4", "0", "1.0", "2.0", "3.0"}) + "\n");
  Read(Card8({"GRID", "4", "0", "7.0", "8.0", "9.0"}) + "\n");
  EXPECT_THAT(Calls(),
              ElementsAre("MeshModel.CreateNode(4, (1.0, 2.0, 3.0), 0) -> 0", "MeshModel.CreateNode(4, (7.0, 8.0, 9.0), 0) -> -1"));
  EXPECT_EQ(Log(), "*** Failed Node -> 4 \n");
}

TEST_F(GridCardTest, AnyResultButZeroIsARefusal) {
  host.Refusals().RefuseCall("MeshModel.CreateNode", 1);
  Read(Card8({"GRID", "4", "5", "1.0", "2.0", "3.0", "17", ""}) + "\n");
  EXPECT_EQ(Log(), "*** Failed Node -> 4 \n");
  // What was noted for the node stays.
  EXPECT_EQ(SystemOf(4), 17);
  EXPECT_EQ(LocalNodes().size(), 1u);
}

TEST_F(GridCardTest, WithoutALogARefusalPassesInSilence) {
  logPath = "";
  Read(Card8({"GRID", "0", "0", "1.0", "2.0", "3.0"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(0, (1.0, 2.0, 3.0), 0) -> -1"));
}

TEST_F(GridCardTest, OfTwoDisplacementSystemsOfANodeTheFirstStays) {
  Read(Card8({"GRID", "4", "", "1.0", "2.0", "3.0", "17", ""}) + "\n");
  Read(Card8({"GRID", "4", "", "1.0", "2.0", "3.0", "18", ""}) + "\n");
  EXPECT_EQ(SystemOf(4), 17);
  EXPECT_EQ(HashCount(&run.gridCdTable), 1);
}

TEST_F(GridCardTest, ANegativeIdIsNotedNowhere) {
  Read(Card8({"GRID", "-4", "", "1.0", "2.0", "3.0", "17", ""}) + "\n");
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
  EXPECT_EQ(Log(), "*** Failed Node -> -4 \n");
}

// Large fields.

TEST_F(GridCardTest, LargeFieldTakesX3FromTheNextLine) {
  EXPECT_EQ(Read(Card16({"GRID*", "1", "0", "1.5", "2.5", "*A"}) + "\n" + Card16({"*A", "3.5", ""}) + "\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 2.5, 3.5), 0) -> 0"));
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
}

TEST_F(GridCardTest, LargeFieldsNeedNoMarkerAtTheEndOfTheFirstLine) {
  Read(Card16({"GRID*", "1", "0", "1.5", "2.5"}) + "\n" + Card16({"*", "3.5"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 2.5, 3.5), 0) -> 0"));
}

TEST_F(GridCardTest, TheSecondLineIsTakenWhateverItBeginsWith) {
  EXPECT_EQ(Read(Card16({"GRID*", "1", "0", "1.5", "2.5"}) + "\n" + Card8({"GRID", "9.5"}) + "\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 2.5, 9.5), 0) -> 0"));
}

TEST_F(GridCardTest, TheMarkersEightColumnsAreJumpedEvenAcrossALineEnd) {
  // Behind the first line feed, "*\n123456" is taken for the marker.
  Read(Card16({"GRID*", "1", "0", "1.5", "2.5"}) + "\n*\n1234567.5\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 2.5, 7.5), 0) -> 0"));
}

TEST_F(GridCardTest, TheDisplacementSystemOfLargeFieldsIsReadWithEightColumns) {
  Read(Card16({"GRID*", "1", "0", "1.5", "2.5"}) + "\n" + Card16({"*", "3.5", "123456789", ""}) + "\n");
  EXPECT_EQ(SystemOf(1), 12345678);
}

TEST_F(GridCardTest, WhatStandsFirstBehindTheThirdLargeFieldIsTheDisplacementSystem) {
  Read(Card16({"GRID*", "1", "0", "1.5", "2.5"}) + "\n" + Card16({"*", "3.5", "", "456", ""}) + "\n");
  EXPECT_EQ(SystemOf(1), 456);
}

TEST_F(GridCardTest, ARefusedNodeOfTheBasicSystemIsNotLoggedInLargeFields) {
  Read(Card16({"GRID*", "0", "0", "1.5", "2.5"}) + "\n" + Card16({"*", "3.5"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(0, (1.5, 2.5, 3.5), 0) -> -1"));
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(GridCardTest, ARefusedNodeOfALocalSystemIsLoggedInLargeFields) {
  Read(Card16({"GRID*", "0", "6", "1.5", "2.5"}) + "\n" + Card16({"*", "3.5"}) + "\n");
  EXPECT_EQ(Log(), "*** Failed Node -> 0 \n");
  EXPECT_EQ(LocalNodes().size(), 1u);
}

TEST_F(GridCardTest, LargeFieldsWithoutASecondLineHaveNoThirdCoordinate) {
  EXPECT_EQ(Read(Card16({"GRID*", "1", "0", "1.5", "2.5"})), "");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 2.5, 0.0), 0) -> 0"));
}

TEST_F(GridCardTest, LargeFieldsMayEndInCarriageReturnAndLineFeed) {
  EXPECT_EQ(Read(Card16({"GRID*", "1", "0", "1.5", "2.5"}) + "\r\n" + Card16({"*", "3.5"}) + "\r\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 2.5, 3.5), 0) -> 0"));
}

// Free format.

TEST_F(GridCardTest, CommasMakeANode) {
  EXPECT_EQ(Read("GRID,1,0,1.5,2.5,3.5,\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 2.5, 3.5), 0) -> 0"));
}

TEST_F(GridCardTest, EmptyFieldsBetweenCommasKeepTheirPlace) {
  Read("GRID,1,,1.5,,3.5,\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 0.0, 3.5), 0) -> 0"));
}

TEST_F(GridCardTest, BlanksAroundCommasDoNotMatter) {
  Read("GRID, 12 , 0 , 1.5 , 2.5 , 3.5 , 7 ,\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(12, (1.5, 2.5, 3.5), 0) -> 0"));
  EXPECT_EQ(SystemOf(12), 7);
}

TEST_F(GridCardTest, TheDisplacementSystemOfFreeFormatStandsBehindTheFifthComma) {
  Read("GRID,1,5,1.5,2.5,3.5,7\n");
  EXPECT_EQ(SystemOf(1), 7);
  ASSERT_EQ(LocalNodes().size(), 1u);
  EXPECT_EQ(LocalNodes()[0].cpId, 5);
  EXPECT_EQ(LocalNodes()[0].cdId, 7);
}

TEST_F(GridCardTest, FieldsBehindTheDisplacementSystemOfFreeFormatAreNotRead) {
  EXPECT_EQ(Read("GRID,1,0,1.5,2.5,3.5,,123\nNEXT\n"), "NEXT\n");
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
}

TEST_F(GridCardTest, WithoutTheLastCommaTheNextLineIsRunInto) {
  // The third coordinate is "3.5\nGRID", the system what stands behind that comma.
  EXPECT_EQ(Read("GRID,1,0,1.5,2.5,3.5\nGRID,2,0,4.5,5.5,6.5,\nNEXT\n"), "NEXT\n");
  ASSERT_EQ(host.Nodes().Size(), 1u);
  EXPECT_DOUBLE_EQ(host.Nodes()[0].position[2], 3.7667);  // 5, 23, 34, 25, 20 as digits behind the point: 0.76670.
  EXPECT_EQ(SystemOf(1), 2);
}

TEST_F(GridCardTest, TheFirstCommaOfAStarFormMakesTheFirstFieldEmpty) {
  Read("GRID*,1,0,1.5,2.5,3.5,\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(0, (0.0, 1.5, 2.5), 0) -> -1"));
  EXPECT_EQ(LocalNodes()[0].cpId, 1);
  EXPECT_EQ(SystemOf(0), 3);
  EXPECT_EQ(Log(), "*** Failed Node -> 0 \n");
}

TEST_F(GridCardTest, ACommaAnywhereOnTheLineMakesItFreeFormat) {
  std::string line = Card8({"GRID", "1", "0", "1.0", "2.0", "3.0"});
  line.resize(80, ' ');
  Read(line + "seat, left\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (0.0, 0.0, 0.0), 0) -> 0"));
}

TEST_F(GridCardTest, ACommaOnTheNextLineDoesNot) {
  Read(Card8({"GRID", "1", "0", "1.0", "2.0", "3.0"}) + "\n$,\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.0, 2.0, 3.0), 0) -> 0"));
}

TEST_F(GridCardTest, ARefusedNodeOfTheBasicSystemIsNotLoggedInFreeFormat) {
  Read("GRID,0,0,1.5,2.5,3.5,\n");
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(GridCardTest, ARefusedNodeOfALocalSystemIsLoggedInFreeFormat) {
  Read("GRID,0,6,1.5,2.5,3.5,\n");
  EXPECT_EQ(Log(), "*** Failed Node -> 0 \n");
}

TEST_F(GridCardTest, FreeFormatMayEndWithTheText) {
  EXPECT_EQ(Read("GRID,1,0,1.5,2.5,3.5,7"), "");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(1, (1.5, 2.5, 3.5), 0) -> 0"));
  EXPECT_EQ(SystemOf(1), 7);
}

TEST_F(GridCardTest, EveryCutOfACardStaysInItsText) {
  for (const std::string& card :
       {Card8({"GRID", "1", "5", "1.0", "2.0", "3.0", "17", "123"}) + "\n", std::string("GRID,1,5,1.5,2.5,3.5,7,\n"),
        Card16({"GRID*", "1", "5", "1.5", "2.5", "*A"}) + "\n" + Card16({"*A", "3.5", "17"}) + "\n"}) {
    for (std::size_t length = 4; length <= card.size(); ++length) {
      EXPECT_EQ(Read(card.substr(0, length)), "") << card.substr(0, length);
    }
  }
}

}  // namespace
}  // namespace btz::test
