// Parts by property: what is made for each kind, when room and ids are reserved, and the default part.
#include "mesh/parts.h"

#include <gmock/gmock.h>

#include "driver/pre_scan.h"
#include "mesh/element_topology.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PartsTest : public MeshTest {
 protected:
  /// Counts solid elements of the property as the pre-scan does.
  static void CountSolids(std::int32_t propertyId, std::int32_t count) {
    const std::string line = Card8({"CHEXA", "1", std::to_string(propertyId), ""});
    for (std::int32_t i = 0; i < count; ++i) {
      CountElementCard(line.data(), line.size());
    }
  }

  static std::vector<MeshPart*> Parts() {
    std::vector<MeshPart*> parts;
    WalkList<MeshPart>(&PartList, [&](MeshPart* part) { parts.push_back(part); });
    return parts;
  }
};

TEST_F(PartsTest, APartOfSurfacesHasAFace) {
  EXPECT_EQ(EnsurePart(model, 7, partOfSurfaces), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1",
                                   "MeshModel.CreateTopoEntity(2, 7, MeshPart#1, 1) -> TopoFace#1", "MeshPart#1.AddFace(TopoFace#1, 1)",
                                   "MeshModel.ReservePartId(7)"));
}

TEST_F(PartsTest, APartOfLinesHasAFaceAndAnEdge) {
  EXPECT_EQ(EnsurePart(model, 7, partOfLines), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1",
                                   "MeshModel.CreateTopoEntity(2, 7, MeshPart#1, 1) -> TopoFace#1", "MeshPart#1.AddFace(TopoFace#1, 1)",
                                   "MeshModel.CreateTopoEntity(3, 7, MeshPart#1, 1) -> TopoEdge#1", "TopoFace#1.AddEdge(TopoEdge#1, 1)",
                                   "MeshPart#1.SetLinePartId(7, 1)", "MeshModel.ReservePartId(7)"));
}

TEST_F(PartsTest, APartOfSolidsHasNoTopology) {
  EXPECT_EQ(EnsurePart(model, 7, partOfSolids), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1", "MeshModel.ReservePartId(7)"));
}

TEST_F(PartsTest, APartThatExistsIsNotMadeAgainWhateverTheKind) {
  EnsurePart(model, 7, partOfSurfaces);
  Calls();
  EXPECT_EQ(EnsurePart(model, 7, partOfSurfaces), 1);
  EXPECT_EQ(EnsurePart(model, 7, partOfSolids), 1);
  EXPECT_EQ(EnsurePart(model, 7, partOfLines), 1);
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(PartsTest, PartsAreListedInOrderOfCreation) {
  EnsurePart(model, 9, partOfSurfaces);
  EnsurePart(model, 3, partOfSolids);
  EnsurePart(model, 9, partOfSurfaces);
  ASSERT_EQ(Parts().size(), 2u);
  EXPECT_EQ(Parts()[0]->GetId(), 9);
  EXPECT_EQ(Parts()[1]->GetId(), 3);
}

TEST_F(PartsTest, AnIdBelowTheNextOneIsNotReserved) {
  EnsurePart(model, 9, partOfSolids);  // The next id is 10 now.
  Calls();
  EnsurePart(model, 3, partOfSolids);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 3, 0, 1, 1) -> MeshPart#2"));
}

TEST_F(PartsTest, AnIdThatIsTheNextOneIsReserved) {
  EnsurePart(model, 9, partOfSolids);
  Calls();
  EnsurePart(model, 10, partOfSolids);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 10, 0, 1, 1) -> MeshPart#2", "MeshModel.ReservePartId(10)"));
}

TEST_F(PartsTest, RoomForCountedSolidsAndTenMoreIsReserved) {
  CountSolids(7, 3);
  EnsurePart(model, 7, partOfSolids);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1", "MeshModel.ReservePartElements(7, 13)",
                                   "MeshModel.ReservePartId(7)"));
}

TEST_F(PartsTest, NoRoomIsReservedForAPropertyThatWasNotCounted) {
  CountSolids(7, 3);
  EnsurePart(model, 8, partOfSolids);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 8, 0, 1, 1) -> MeshPart#1", "MeshModel.ReservePartId(8)"));
}

TEST_F(PartsTest, NoRoomIsReservedForAPartThatAShellOrALineMakes) {
  CountSolids(7, 3);
  CountSolids(8, 3);
  EnsurePart(model, 7, partOfSurfaces);
  EnsurePart(model, 8, partOfLines);
  EnsurePart(model, 7, partOfSolids);
  for (const std::string& call : Calls()) {
    EXPECT_EQ(call.find("ReservePartElements"), std::string::npos) << call;
  }
}

TEST_F(PartsTest, ANegativeIdMakesAPartForEveryElement) {
  EXPECT_EQ(EnsurePart(model, -4, partOfSolids), 0);
  EXPECT_EQ(EnsurePart(model, -4, partOfSolids), 0);
  EXPECT_THAT(Calls(),
              ElementsAre("MeshModel.CreateBody(1, -4, 0, 1, 1) -> MeshPart#1", "MeshModel.CreateBody(1, -4, 0, 1, 1) -> MeshPart#2"));
  EXPECT_EQ(Parts().size(), 2u);
}

TEST_F(PartsTest, ZeroIsAnIdLikeAnyOther) {
  EXPECT_EQ(EnsurePart(model, 0, partOfSolids), 0);
  EXPECT_EQ(EnsurePart(model, 0, partOfSolids), 1);
}

TEST_F(PartsTest, APartThatTheHostRefusesIsRememberedButNotListed) {
  CountSolids(7, 3);
  host.Refusals().RefuseCall("MeshModel.CreateBody", 1);
  EXPECT_EQ(EnsurePart(model, 7, partOfSurfaces), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 7, 0, 1, 1) -> null", "MeshModel.ReservePartId(7)"));
  EXPECT_THAT(Parts(), IsEmpty());
  EXPECT_EQ(EnsurePart(model, 7, partOfSurfaces), 1);
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(PartsTest, ARefusedPartOfSolidsHasItsRoomReservedAllTheSame) {
  CountSolids(7, 3);
  host.Refusals().RefuseCall("MeshModel.CreateBody", 1);
  EnsurePart(model, 7, partOfSolids);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 7, 0, 1, 1) -> null", "MeshModel.ReservePartElements(7, 13)",
                                   "MeshModel.ReservePartId(7)"));
}

TEST_F(PartsTest, ARefusedFaceIsNotAdded) {
  host.Refusals().RefuseFrom("MeshModel.CreateTopoEntity", 1);
  EnsurePart(model, 7, partOfSurfaces);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1",
                                   "MeshModel.CreateTopoEntity(2, 7, MeshPart#1, 1) -> null", "MeshModel.ReservePartId(7)"));
  EXPECT_EQ(Parts().size(), 1u);
}

TEST_F(PartsTest, ARefusedEdgeIsNotAdded) {
  host.Refusals().RefuseCall("MeshModel.CreateTopoEntity", 2);
  EnsurePart(model, 7, partOfLines);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1",
                                   "MeshModel.CreateTopoEntity(2, 7, MeshPart#1, 1) -> TopoFace#1", "MeshPart#1.AddFace(TopoFace#1, 1)",
                                   "MeshModel.CreateTopoEntity(3, 7, MeshPart#1, 1) -> null", "MeshPart#1.SetLinePartId(7, 1)",
                                   "MeshModel.ReservePartId(7)"));
}

TEST_F(PartsTest, CreateMeshPartTellsWhetherAPartCameBack) {
  MeshPart* part = nullptr;
  EXPECT_TRUE(CreateMeshPart(partOfSolids, 7, model, &part));
  EXPECT_NE(part, nullptr);
  host.Refusals().RefuseFrom("MeshModel.CreateBody", 1);
  EXPECT_FALSE(CreateMeshPart(partOfLines, 8, model, &part));
  EXPECT_EQ(part, nullptr);
}

TEST_F(PartsTest, APropertyIdOtherThanZeroIsThePart) {
  EXPECT_EQ(ResolvePartId(model, 12), 12);
  EXPECT_EQ(ResolvePartId(model, -12), -12);
  EXPECT_EQ(DefaultPartId, 0);
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(PartsTest, ABlankPropertyIdTakesANewDefaultPartAndReservesIt) {
  model->ReservePartId(20);
  Calls();
  EXPECT_EQ(ResolvePartId(model, 0), 21);
  EXPECT_EQ(DefaultPartId, 21);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.ReservePartId(21)"));
}

TEST_F(PartsTest, TheDefaultPartStaysUntilItIsReset) {
  EXPECT_EQ(ResolvePartId(model, 0), 1);
  Calls();
  EXPECT_EQ(ResolvePartId(model, 0), 1);
  EXPECT_THAT(Calls(), IsEmpty());
  DefaultPartId = 0;
  EXPECT_EQ(ResolvePartId(model, 0), 2);
}

TEST(ElementTopology, HasTheCountsOfEveryType) {
  // Type index, nodes, corners, sides, edges.
  const std::int32_t rows[][5] = {{0, 1, 1, 1, 0},    {1, 2, 2, 2, 1},   {2, 3, 2, 2, 1},     {3, 3, 3, 3, 3},     {4, 6, 3, 3, 3},
                                  {5, 4, 4, 4, 4},    {6, 8, 4, 4, 4},   {7, 4, 4, 4, 6},     {8, 10, 4, 4, 6},    {9, 1, 1, 0, 0},
                                  {10, 1, 1, 0, 0},   {11, 2, 2, 2, 0},  {12, 8, 8, 6, 12},   {13, 6, 6, 5, 9},    {14, 5, 5, 5, 8},
                                  {15, 20, 8, 6, 12}, {16, 15, 6, 5, 9}, {17, -1, -1, -1, 0}, {18, -1, -1, -1, 0}, {19, -1, -1, -1, 0}};
  for (const auto& row : rows) {
    const auto type = static_cast<std::size_t>(row[0]);
    EXPECT_EQ(ElementNodeCount[type], row[1]) << type;
    EXPECT_EQ(ElementCornerCount[type], row[2]) << type;
    EXPECT_EQ(ElementSideCount[type], row[3]) << type;
    EXPECT_EQ(ElementEdgeCount[type], row[4]) << type;
  }
}

TEST(ElementTopology, AnIndexWithoutAnElementCountsNothing) {
  EXPECT_EQ(TopologyOf(ElementNodeCount, 16), 15);
  EXPECT_EQ(TopologyOf(ElementNodeCount, 17), 0);
  EXPECT_EQ(TopologyOf(ElementNodeCount, 20), 0);
  EXPECT_EQ(TopologyOf(ElementNodeCount, -1), 0);
}

}  // namespace
}  // namespace btz::test
