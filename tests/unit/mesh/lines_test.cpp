// Line element cards: ids, nodes and part, and what a bar leaves in the records of its property.
#include "mesh/lines.h"

#include <gmock/gmock.h>

#include <cstdint>

#include "mesh/vectors.h"
#include "properties/property_records.h"
#include "support/block_pool.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class LineTest : public MeshTest {
 protected:
  LineTest() {
    MakeNodes(30);
    EnsurePart(model, 7, partOfLines);
    property = AddProperty(7);
    Calls();
  }

  /// A captured property, at the end of the list.
  BeamPropertyRecord* AddProperty(std::int32_t id) {
    auto* record = static_cast<BeamPropertyRecord*>(AllocateZeroed(sizeof(BeamPropertyRecord)));
    record->propertyId = id;
    IndexedListAppend(&run.lists.beamProperties, id, record);
    return record;
  }

  std::int32_t ReadBar(std::string_view text) {
    CardText card(text);
    const std::int32_t result = ReadBarCard(model, &card.cursor, logPath, &run.lists.beamProperties);
    rest = card.Rest();
    return result;
  }

  std::int32_t ReadBeam(std::string_view text) {
    CardText card(text);
    const std::int32_t result = ReadBeamCard(model, &card.cursor, logPath);
    rest = card.Rest();
    return result;
  }

  static Vector Orientation(const BeamPropertyRecord* record) { return VectorAt(record->orientation); }

  BeamPropertyRecord* property = nullptr;  ///< Property 7.
  std::string rest;
};

using BarCard = LineTest;
using BeamCard = LineTest;

// CBAR.

TEST_F(BarCard, MakesALineAndLeavesItsVectorInTheProperty) {
  EXPECT_EQ(ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.5", "1.0", "-2.0"}) + "    \nCBAR    102\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 2], 7, 0, 0, 0, 0) -> 0"));
  EXPECT_EQ(Orientation(property), (Vector{0.5, 1.0, -2.0}));
  EXPECT_EQ(property->pinFlagsA, 0);
  EXPECT_EQ(property->pinFlagsB, 0);
  EXPECT_EQ(rest, "\nCBAR    102\n");
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(BarCard, APartIsMadeWithItsFaceAndEdgeInFrontOfItsFirstLine) {
  ReadBar(Card8({"CBAR", "101", "9", "1", "2", "0.0", "1.0", "0.0"}) + "     \nCBAR\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 9, 0, 1, 1) -> MeshPart#2",
                                   "MeshModel.CreateTopoEntity(2, 9, MeshPart#2, 1) -> TopoFace#2", "MeshPart#2.AddFace(TopoFace#2, 1)",
                                   "MeshModel.CreateTopoEntity(3, 9, MeshPart#2, 1) -> TopoEdge#2", "TopoFace#2.AddEdge(TopoEdge#2, 1)",
                                   "MeshPart#2.SetLinePartId(9, 1)", "MeshModel.ReservePartId(9)",
                                   "MeshModel.CreateElement(101, 1, [1, 2], 9, 0, 0, 0, 0) -> 0"));
}

TEST_F(BarCard, PinFlagsStandBehindABlankOffsetFieldInTheNextLine) {
  EXPECT_EQ(ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.0", "1.0", "0.0", "", "+"}) + "\n" + Card8({"+", "123", "456"}) +
                    "     \nCBAR    102\n"),
            0);
  EXPECT_EQ(Orientation(property), (Vector{0.0, 1.0, 0.0}));
  EXPECT_EQ(property->pinFlagsA, 123);
  EXPECT_EQ(property->pinFlagsB, 456);
  EXPECT_EQ(rest, "\nCBAR    102\n");
}

TEST_F(BarCard, TextInTheOffsetFieldEndsTheCard) {
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.0", "1.0", "0.0", "GGG", "+"}) + "\n" + Card8({"+", "123", "456"}) + "     \nCBAR\n");
  EXPECT_EQ(Orientation(property), (Vector{0.0, 1.0, 0.0}));
  EXPECT_EQ(property->pinFlagsA, 0);
  EXPECT_EQ(property->pinFlagsB, 0);
  EXPECT_EQ(rest, "GGG     +\n+       123     456     \nCBAR\n");
}

TEST_F(BarCard, PinFlagsThatAreNoWholeNumbersAreCut) {
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.0", "1.0", "0.0", "", "+"}) + "\n" + Card8({"+", "12.9", "-3.9"}) + "    \nCBAR\n");
  EXPECT_EQ(property->pinFlagsA, 12);
  EXPECT_EQ(property->pinFlagsB, -3);
  ReadBar(Card8({"CBAR", "102", "7", "1", "2", "0.0", "1.0", "0.0", "", "+"}) + "\n" + Card8({"+", "1.0E+10", "5"}) + "       \nCBAR\n");
  EXPECT_EQ(property->pinFlagsA, INT32_MIN);
  EXPECT_EQ(property->pinFlagsB, 5);
}

TEST_F(BarCard, ANodeInThePlaceOfTheVectorIsReadAsANumber) {
  // The rest of the line is blank: the pin flags of the second line move into the vector.
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "25", "", "", "", "+"}) + "\n" + Card8({"+", "12", "34"}) + "      \nCBAR    102\n");
  EXPECT_EQ(Orientation(property), (Vector{25.0, 12.0, 34.0}));
  EXPECT_EQ(property->pinFlagsA, 0);
  ReadBar(Card8({"CBAR", "102", "7", "1", "2", "26"}) + "      \nCBAR    103\n");
  EXPECT_EQ(Orientation(property), (Vector{26.0, 0.0, 0.0}));
  EXPECT_EQ(rest, "\nCBAR    103\n");
}

TEST_F(BarCard, ABlankComponentTakesNoPlace) {
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "", "1.0", "2.0"}) + "     \nCBAR\n");
  EXPECT_EQ(Orientation(property), (Vector{1.0, 2.0, 0.0}));
}

TEST_F(BarCard, ACardWithoutAVectorLeavesZeros) {
  property->orientation[1] = 1.0;
  property->pinFlagsA = 4;
  ReadBar(Card8({"CBAR", "101", "7", "1", "2"}) + "       \nCBAR\n");
  EXPECT_EQ(Orientation(property), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(property->pinFlagsA, 0);
}

TEST_F(BarCard, AnyTextEndsTheCard) {
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.0", "1.0"}) + "     \nFORCE   1\n");
  EXPECT_EQ(rest, "\nFORCE   1\n");
  ReadBar(Card8({"CBAR", "102", "7", "1", "2", "0.0", "1.0"}) + "     \n$ 7\n");
  EXPECT_EQ(rest, "\n$ 7\n");
}

TEST_F(BarCard, TheNumericTestTakesWholeNumbers) {
  // As a whole number .5E1 is 0, and an E without a sign behind it is a letter.
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "1.5E1", ".5E1", "3.0"}) + "     \nCBAR\n");
  EXPECT_EQ(Orientation(property), (Vector{15.0, 0.0, 0.0}));
  EXPECT_EQ(rest, ".5E1    3.0     \nCBAR\n");
  ReadBar(Card8({"CBAR", "102", "7", "1", "2", "1.5E+1", ".5E+1", "3.0"}) + "     \nCBAR\n");
  EXPECT_EQ(Orientation(property), (Vector{15.0, 5.0, 3.0}));
}

TEST_F(BarCard, LargeFieldsHaveSixteenColumns) {
  const std::string card = Card16({"CBAR*", "101", "7", "1", "2", "*"}) + "\n" + Card16({"*", "0.5", "1.0", "-2.0", "", "*"}) + "\n" +
                           Card16({"*", "12", "34"}) + "              \nCBAR    102\n";
  EXPECT_EQ(ReadBar(card), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 2], 7, 0, 0, 0, 0) -> 0"));
  EXPECT_EQ(Orientation(property), (Vector{0.5, 1.0, -2.0}));
  EXPECT_EQ(property->pinFlagsA, 12);
  EXPECT_EQ(property->pinFlagsB, 34);
  EXPECT_EQ(rest, "\nCBAR    102\n");
}

TEST_F(BarCard, LinesMayEndInCarriageReturnAndLineFeed) {
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.0", "1.0", "0.0", "", "+"}) + "\r\n" + Card8({"+", "12", "34"}) + "\r\nCBAR    102\r\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 2], 7, 0, 0, 0, 0) -> 0"));
  EXPECT_EQ(property->pinFlagsA, 12);
  EXPECT_EQ(property->pinFlagsB, 34);
}

TEST_F(BarCard, TheTextsEndEndsTheCard) {
  EXPECT_EQ(ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.5"})), 0);
  EXPECT_EQ(Orientation(property), (Vector{0.5, 0.0, 0.0}));
  EXPECT_EQ(rest, "");
}

TEST_F(BarCard, TheNodesAreReadUpToTheLineEnd) {
  // Unlike the ids in front of them they may end their line with one digit, and the line feed stays.
  EXPECT_EQ(ReadBar(Card8({"CBAR", "101", "7", "1", "2"}) + "\nCBAR    102\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 2], 7, 0, 0, 0, 0) -> 0"));
  EXPECT_EQ(rest, "\nCBAR    102\n");
}

TEST_F(BarCard, TheLastBarOfAPropertyDecides) {
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.0", "1.0", "0.0", "", "+"}) + "\n" + Card8({"+", "12", "34"}) + "      \nCBAR\n");
  ReadBar(Card8({"CBAR", "102", "8", "2", "3", "5.0", "5.0", "5.0"}) + "     \nCBAR\n");
  ReadBar(Card8({"CBAR", "103", "7", "3", "4", "0.0", "0.0", "1.0"}) + "     \nCBAR\n");
  EXPECT_EQ(Orientation(property), (Vector{0.0, 0.0, 1.0}));
  EXPECT_EQ(property->pinFlagsA, 0);
  EXPECT_EQ(property->pinFlagsB, 0);
}

TEST_F(BarCard, AllRecordsOfThePropertyAreWritten) {
  BeamPropertyRecord* other = AddProperty(8);
  BeamPropertyRecord* second = AddProperty(7);
  ReadBar(Card8({"CBAR", "101", "7", "1", "2", "0.0", "1.0", "0.0", "", "+"}) + "\n" + Card8({"+", "12", "34"}) + "      \nCBAR\n");
  EXPECT_EQ(Orientation(property), (Vector{0.0, 1.0, 0.0}));
  EXPECT_EQ(Orientation(second), (Vector{0.0, 1.0, 0.0}));
  EXPECT_EQ(second->pinFlagsA, 12);
  EXPECT_EQ(second->pinFlagsB, 34);
  EXPECT_EQ(Orientation(other), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(other->pinFlagsA, 0);
}

TEST_F(BarCard, ABlankPropertyTakesTheDefaultPartAndThePropertyOfItsNumber) {
  BeamPropertyRecord* ofDefault = AddProperty(8);
  BeamPropertyRecord* ofZero = AddProperty(0);
  ReadBar(Card8({"CBAR", "101", "", "1", "2", "0.0", "1.0", "0.0"}) + "     \nCBAR\n");
  EXPECT_EQ(DefaultPartId, 8);
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 8u);
  EXPECT_EQ(calls.front(), "MeshModel.ReservePartId(8)");
  EXPECT_EQ(calls.back(), "MeshModel.CreateElement(101, 1, [1, 2], 8, 0, 0, 0, 0) -> 0");
  EXPECT_EQ(Orientation(ofDefault), (Vector{0.0, 1.0, 0.0}));
  EXPECT_EQ(Orientation(ofZero), (Vector{0.0, 0.0, 0.0}));
}

TEST_F(BarCard, ARefusedBarIsLoggedAndStillLeavesItsVector) {
  EXPECT_EQ(ReadBar(Card8({"CBAR", "101", "7", "1", "99", "0.0", "1.0", "0.0"}) + "     \nCBAR\n"), 1);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 99], 7, 0, 0, 0, 0) -> -1"));
  EXPECT_EQ(Log(), "*** Failed Bar Element -> 101 \n");
  EXPECT_EQ(Orientation(property), (Vector{0.0, 1.0, 0.0}));
}

TEST_F(BarCard, WithoutPropertiesTheBarIsMadeAllTheSame) {
  EXPECT_EQ(ReadBar(Card8({"CBAR", "101", "9", "1", "2", "0.0", "1.0", "0.0"}) + "     \nCBAR\n"), 0);
  EXPECT_EQ(Orientation(property), (Vector{0.0, 0.0, 0.0}));
}

// CBEAM.

TEST_F(BeamCard, MakesALineAndTouchesNoProperty) {
  EXPECT_EQ(ReadBeam(Card8({"CBEAM", "101", "7", "1", "2", "0.5", "1.0", "-2.0", "GGG", "+"}) + "\n" + Card8({"+", "12", "34"}) + "\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 2], 7, 0, 0, 0, 0) -> 0"));
  EXPECT_EQ(Orientation(property), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(property->pinFlagsA, 0);
  EXPECT_EQ(rest, "0.5     1.0     -2.0    GGG     +\n+       12      34\n");
}

TEST_F(BeamCard, APartIsMadeWithItsFaceAndEdge) {
  ReadBeam(Card8({"CBEAM", "101", "9", "1", "2", "0.0", "1.0", "0.0"}) + "\n");
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 8u);
  EXPECT_EQ(calls[3], "MeshModel.CreateTopoEntity(3, 9, MeshPart#2, 1) -> TopoEdge#2");
  EXPECT_EQ(calls[5], "MeshPart#2.SetLinePartId(9, 1)");
  EXPECT_EQ(calls[7], "MeshModel.CreateElement(101, 1, [1, 2], 9, 0, 0, 0, 0) -> 0");
}

TEST_F(BeamCard, LargeFieldsHaveSixteenColumns) {
  EXPECT_EQ(ReadBeam(Card16({"CBEAM*", "101", "7", "1", "2", "*"}) + "\n" + Card16({"*", "0.0"}) + "\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 2], 7, 0, 0, 0, 0) -> 0"));
  EXPECT_EQ(rest, "*\n*       0.0\n");
}

TEST_F(BeamCard, ABlankPropertyTakesTheDefaultPart) {
  ReadBeam(Card8({"CBEAM", "101", "", "1", "2", "0.0"}) + "\n");
  EXPECT_EQ(DefaultPartId, 8);
  EXPECT_EQ(Calls().back(), "MeshModel.CreateElement(101, 1, [1, 2], 8, 0, 0, 0, 0) -> 0");
}

TEST_F(BeamCard, OneCharacterBeforeTheLineFeedIsNoNode) {
  // The node stays 0, for which there is none, and the character becomes the column behind its field.
  EXPECT_EQ(ReadBeam(Card8({"CBEAM", "101", "7", "1", "2"}) + "\nCBEAM   102\n"), 1);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 0], 7, 0, 0, 0, 0) -> -1"));
  EXPECT_EQ(rest, " \nCBEAM   102\n");
  EXPECT_EQ(Log(), "*** Failed Beam Element -> 101 \n");
}

TEST_F(BeamCard, TwoDigitsAtTheLineEndSwallowTheLineFeed) {
  EXPECT_EQ(ReadBeam(Card8({"CBEAM", "101", "7", "1", "12"}) + "\nCBEAM   102\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 1, [1, 12], 7, 0, 0, 0, 0) -> 0"));
  EXPECT_EQ(rest, " CBEAM   102\n");
}

TEST_F(BeamCard, ARefusedBeamIsLogged) {
  EXPECT_EQ(ReadBeam(Card8({"CBEAM", "101", "7", "99", "2", "0.0"}) + "\n"), 1);
  EXPECT_EQ(ReadBeam(Card8({"CBEAM", "0", "7", "1", "2", "0.0"}) + "\n"), 1);
  EXPECT_EQ(Log(), "*** Failed Beam Element -> 101 \n*** Failed Beam Element -> 0 \n");
}

TEST_F(BeamCard, TheTextsEndEndsTheCard) {
  EXPECT_EQ(ReadBeam(Card8({"CBEAM", "101", "7", "1", "2"})), 0);
  EXPECT_EQ(rest, "");
  EXPECT_EQ(ReadBeam("CBEAM"), 1);
}

}  // namespace
}  // namespace btz::test
