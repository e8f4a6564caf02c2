// Shell cards: element id, property and nodes, in either field width, and the plot shells.
#include "mesh/shells.h"

#include <gmock/gmock.h>

#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ShellReader = std::int32_t (*)(MeshModel* model, CardCursor* cursor, const char* logPath);

class ShellCardTest : public MeshTest {
 protected:
  ShellCardTest() {
    MakeNodes(30);
    EnsurePart(model, 7, partOfSurfaces);
    Calls();
  }

  /// Reads the card at the start of `text`; what stands at the cursor afterwards goes to `rest`.
  std::int32_t Read(ShellReader reader, std::string_view text) {
    CardText card(text);
    const std::int32_t result = reader(model, &card.cursor, logPath);
    rest = card.Rest();
    return result;
  }

  static bool IsReduced(std::int32_t partId) { return HashFind(&ReducedShellPropertyTable, &partId) != nullptr; }

  std::string rest;
};

TEST_F(ShellCardTest, Tria3) {
  EXPECT_EQ(Read(ReadTria3Card, Card8({"CTRIA3", "101", "7", "1", "2", "3"}) + "\nNEXT\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 3, [1, 2, 3], 7, 0, 0, 1, 0) -> 0"));
  EXPECT_EQ(rest, "\nNEXT\n");
}

TEST_F(ShellCardTest, Tria6) {
  EXPECT_EQ(Read(ReadTria6Card, Card8({"CTRIA6", "101", "7", "1", "2", "3", "4", "5", "6"}) + "\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 4, [1, 2, 3, 4, 5, 6], 7, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, Quad4) {
  EXPECT_EQ(Read(ReadQuad4Card, Card8({"CQUAD4", "101", "7", "1", "2", "3", "4"}) + "\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 5, [1, 2, 3, 4], 7, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, Quad8GoesOnInItsSecondLine) {
  EXPECT_EQ(Read(ReadQuad8Card, Card8({"CQUAD8", "101", "7", "1", "2", "3", "4", "5", "6", "+A"}) + "\n" + Card8({"+A", "7", "8"}) + "\n"),
            0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 6, [1, 2, 3, 4, 5, 6, 7, 8], 7, 0, 0, 1, 0) -> 0"));
  EXPECT_EQ(rest, "\n");
}

TEST_F(ShellCardTest, AContinuationLineMayBeginWithBlanks) {
  Read(ReadQuad8Card, Card8({"CQUAD8", "101", "7", "1", "2", "3", "4", "5", "6"}) + "\n" + Card8({"", "7", "8"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 6, [1, 2, 3, 4, 5, 6, 7, 8], 7, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, LinesMayEndInCarriageReturnAndLineFeed) {
  Read(ReadQuad8Card, Card8({"CQUAD8", "101", "7", "1", "2", "3", "4", "5", "6", "+A"}) + "\r\n" + Card8({"+A", "7", "8"}) + "\r\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 6, [1, 2, 3, 4, 5, 6, 7, 8], 7, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, LargeFieldsHaveSixteenColumns) {
  Read(ReadTria3Card, Card16({"CTRIA3*", "101", "7", "1", "2", "*A"}) + "\n" + Card16({"*A", "3"}) + "\n");
  Read(ReadTria6Card, Card16({"CTRIA6*", "102", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4", "5", "6"}) + "\n");
  Read(ReadQuad4Card, Card16({"CQUAD4*", "103", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4"}) + "\n");
  Read(ReadQuad4Card, Card16({"CQUADR*", "104", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4"}) + "\n");
  Read(ReadQuad8Card,
       Card16({"CQUAD8*", "105", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4", "5", "6"}) + "\n" + Card16({"*", "7", "8"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 3, [1, 2, 3], 7, 0, 0, 1, 0) -> 0",
                                   "MeshModel.CreateElement(102, 4, [1, 2, 3, 4, 5, 6], 7, 0, 0, 1, 0) -> 0",
                                   "MeshModel.CreateElement(103, 5, [1, 2, 3, 4], 7, 0, 0, 1, 0) -> 0",
                                   "MeshModel.CreateElement(104, 5, [1, 2, 3, 4], 7, 0, 0, 1, 0) -> 0",
                                   "MeshModel.CreateElement(105, 6, [1, 2, 3, 4, 5, 6, 7, 8], 7, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, APartIsMadeInFrontOfItsFirstElement) {
  Read(ReadTria3Card, Card8({"CTRIA3", "101", "9", "1", "2", "3"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 9, 0, 1, 1) -> MeshPart#2",
                                   "MeshModel.CreateTopoEntity(2, 9, MeshPart#2, 1) -> TopoFace#2", "MeshPart#2.AddFace(TopoFace#2, 1)",
                                   "MeshModel.ReservePartId(9)", "MeshModel.CreateElement(101, 3, [1, 2, 3], 9, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, ABlankPropertyTakesTheDefaultPart) {
  Read(ReadTria3Card, Card8({"CTRIA3", "101", "", "1", "2", "3"}) + "\n");
  EXPECT_EQ(DefaultPartId, 8);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.ReservePartId(8)", "MeshModel.CreateBody(1, 8, 0, 1, 1) -> MeshPart#2",
                                   "MeshModel.CreateTopoEntity(2, 8, MeshPart#2, 1) -> TopoFace#2", "MeshPart#2.AddFace(TopoFace#2, 1)",
                                   "MeshModel.CreateElement(101, 3, [1, 2, 3], 8, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, ABlankNodeFieldTakesNoPlace) {
  // The missing mid-side node makes the others move forward, and the last entry stay 0.
  EXPECT_EQ(Read(ReadTria6Card, Card8({"CTRIA6", "101", "7", "1", "2", "3", "", "5", "6"}) + "\nNEXT\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 4, [1, 2, 3, 5, 6, 0], 7, 0, 0, 1, 0) -> 0"));
  EXPECT_EQ(rest, "\nNEXT\n");
}

TEST_F(ShellCardTest, FewerNodesLeaveZeros) {
  EXPECT_EQ(Read(ReadQuad8Card, Card8({"CQUAD8", "101", "7", "1", "2", "3", "4"}) + "\nCQUAD4  102\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 6, [1, 2, 3, 4, 0, 0, 0, 0], 7, 0, 0, 1, 0) -> 0"));
  EXPECT_EQ(rest, "\nCQUAD4  102\n");
}

TEST_F(ShellCardTest, AnyTextEndsTheNodes) {
  EXPECT_EQ(Read(ReadQuad8Card, Card8({"CQUAD8", "101", "7", "1", "2", "3", "4"}) + "\nFORCE   1\n"), 0);
  EXPECT_EQ(rest, "\nFORCE   1\n");
  EXPECT_EQ(Read(ReadQuad8Card, Card8({"CQUAD8", "102", "7", "1", "2", "3", "4"}) + "\n$ comment\n"), 0);
  EXPECT_EQ(rest, "\n$ comment\n");
}

TEST_F(ShellCardTest, WhatStandsBehindTheLastNodeIsNotLookedAt) {
  EXPECT_EQ(Read(ReadQuad4Card, Card8({"CQUAD4", "101", "7", "1", "2", "3", "4", "45.0", "0.1"}) + "\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 5, [1, 2, 3, 4], 7, 0, 0, 1, 0) -> 0"));
  EXPECT_EQ(rest, "45.0    0.1\n");
}

TEST_F(ShellCardTest, TheTextsEndEndsTheNodes) {
  Read(ReadQuad8Card, Card8({"CQUAD8", "101", "7", "1", "2", "3", "4"}));
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 6, [1, 2, 3, 4, 0, 0, 0, 0], 7, 0, 0, 1, 0) -> 0"));
  EXPECT_EQ(rest, "");
}

TEST_F(ShellCardTest, ARefusedElementIsLoggedWithItsWordAndGivesOne) {
  EXPECT_EQ(Read(ReadTria3Card, Card8({"CTRIA3", "101", "7", "1", "2", "99"}) + "\n"), 1);
  EXPECT_EQ(Read(ReadTria6Card, Card8({"CTRIA6", "102", "7", "99", "2", "3"}) + "\n$\n"), 1);
  EXPECT_EQ(Read(ReadQuad4Card, Card8({"CQUAD4", "103", "7", "1", "2", "3"}) + "\n$\n"), 1);
  EXPECT_EQ(Read(ReadQuad8Card, Card8({"CQUAD8", "104", "7", "1", "2", "3"}) + "\n$\n"), 1);
  EXPECT_EQ(Log(),
            "*** Failed Tri3 Element -> 101 \n*** Failed Tri6 Element -> 102 \n*** Failed Quad4 Element -> 103 \n"
            "*** Failed Quad8 Element -> 104 \n");
}

TEST_F(ShellCardTest, PlotShellsHaveNoPropertyAndTakeTheDefaultPart) {
  Read(ReadTria3Card, Card8({"PLOTEL3", "101", "1", "2", "3"}) + "\n");
  Read(ReadQuad4Card, Card8({"PLOTEL4", "102", "1", "2", "3", "4"}) + "\n");
  EXPECT_EQ(DefaultPartId, 8);
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 6u);
  EXPECT_EQ(calls[4], "MeshModel.CreateElement(101, 3, [1, 2, 3], 8, 0, 0, 1, 0) -> 0");
  EXPECT_EQ(calls[5], "MeshModel.CreateElement(102, 5, [1, 2, 3, 4], 8, 0, 0, 1, 0) -> 0");
}

TEST_F(ShellCardTest, PlotShellsMayHaveLargeFields) {
  DefaultPartId = 7;
  Read(ReadTria3Card, Card16({"PLOTEL3*", "101", "1", "2", "3"}) + "\n");
  Read(ReadQuad4Card, Card16({"PLOTEL4*", "102", "1", "2", "3"}) + "\n" + Card16({"*", "4"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 3, [1, 2, 3], 7, 0, 0, 1, 0) -> 0",
                                   "MeshModel.CreateElement(102, 5, [1, 2, 3, 4], 7, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, AKeywordThatOnlyBeginsLikeAPlotShellIsAShell) {
  Read(ReadTria3Card, Card8({"PLOTEL3X", "101", "7", "1", "2", "3"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 3, [1, 2, 3], 7, 0, 0, 1, 0) -> 0"));
}

TEST_F(ShellCardTest, PartsOfReducedShellsAreNoted) {
  Read(ReadQuad4Card, Card8({"CQUAD4", "101", "7", "1", "2", "3", "4"}) + "\n");
  EXPECT_FALSE(IsReduced(7));
  Read(ReadQuad4Card, Card8({"CQUADR", "102", "7", "1", "2", "3", "4"}) + "\n");
  EXPECT_TRUE(IsReduced(7));
  Read(ReadQuad4Card, Card8({"CQUADR", "103", "7", "1", "2", "3", "4"}) + "\n");
  Read(ReadQuad4Card, Card8({"CQUAD4", "104", "7", "1", "2", "3", "4"}) + "\n");
  EXPECT_TRUE(IsReduced(7));
  EXPECT_EQ(HashCount(&ReducedShellPropertyTable), 1);
}

TEST_F(ShellCardTest, PartsOfLargeReducedShellsAreNotedToo) {
  Read(ReadQuad4Card, Card16({"CQUADR*", "104", "12", "1", "2"}) + "\n" + Card16({"*", "3", "4"}) + "\n");
  EXPECT_TRUE(IsReduced(12));
}

TEST_F(ShellCardTest, TheDefaultPartOfAReducedShellIsNoted) {
  Read(ReadQuad4Card, Card8({"CQUADR", "102", "", "1", "2", "3", "4"}) + "\n");
  EXPECT_TRUE(IsReduced(DefaultPartId));
}

TEST_F(ShellCardTest, PlotShellsAndKeywordsThatOnlyBeginLikeAReducedShellAreNotNoted) {
  Read(ReadQuad4Card, Card8({"PLOTEL4", "102", "1", "2", "3", "4"}) + "\n");
  Read(ReadQuad4Card, Card8({"CQUADRX", "103", "7", "1", "2", "3", "4"}) + "\n");
  EXPECT_EQ(HashCount(&ReducedShellPropertyTable), 0);
}

TEST_F(ShellCardTest, APartIsNotedEvenIfItsElementIsRefused) {
  EXPECT_EQ(Read(ReadQuad4Card, Card8({"CQUADR", "102", "7", "1", "2", "3", "99"}) + "\n"), 1);
  EXPECT_TRUE(IsReduced(7));
}

TEST_F(ShellCardTest, CommasDoNotSeparateFields) {
  // The element id is column 9 to 16, ",7,1,2,3"; the property begins at the line feed: neither has digits at its start.
  DefaultPartId = 7;
  EXPECT_EQ(Read(ReadTria3Card, "CTRIA3,1,7,1,2,3\n$\n"), 1);
  EXPECT_EQ(Log(), "*** Failed Tri3 Element -> 0 \n");
}

TEST_F(ShellCardTest, ALoneDigitIdInFrontOfTheLineFeedIsLost) {
  DefaultPartId = 7;
  EXPECT_EQ(Read(ReadTria3Card, "CTRIA3  5\n$\n"), 1);
  EXPECT_EQ(Log(), "*** Failed Tri3 Element -> 0 \n");
}

TEST_F(ShellCardTest, EveryCutOfACardStaysInItsText) {
  const std::string small = Card8({"CQUAD8", "101", "7", "1", "2", "3", "4", "5", "6", "+A"}) + "\n" + Card8({"+A", "7", "8"}) + "\n";
  const std::string large = Card16({"CQUAD8*", "102", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4", "5", "6"}) + "\n";
  for (const std::string& card : {small, large}) {
    for (std::size_t length = 6; length <= card.size(); ++length) {
      Read(ReadQuad8Card, card.substr(0, length));
      EXPECT_LE(rest.size(), 1u) << length;  // At most a line feed that was not needed any more.
    }
  }
}

}  // namespace
}  // namespace btz::test
