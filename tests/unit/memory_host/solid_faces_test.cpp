// Faces of solids in the in-memory host: which nodes bound a side, what stands for a side, and faces made on request.
#include <map>

#include "memory_host/element_shapes.h"
#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

using Ids = std::vector<std::int32_t>;

class SolidFaces : public MemoryHostTest {
 protected:
  /// Makes one solid of nodes 1 to `count` and gives the nodes of each of its sides, corners first.
  std::vector<Ids> SidesOf(std::int32_t type, std::int32_t count) {
    MakeNodes(count);
    MeshPart* body = MakeBody(1);
    Ids nodes;
    for (std::int32_t id = 1; id <= count; ++id) {
      nodes.push_back(id);
    }
    EXPECT_EQ(MakeElement(50, type, nodes, 1), 0);
    EXPECT_EQ(SolidElement(50)->faces, nullptr) << "no faces before the part is finished";
    model->FinishSolidPart(body, 0, 0, 0);
    std::vector<Ids> sides;
    for (std::size_t i = 0; i < Sides(type).size(); ++i) {
      const MeshElement* face = SolidElement(50)->faces[i];
      sides.push_back(NodeIds(*face, NodeCount(face->typeIndex)));
    }
    return sides;
  }
};

TEST_F(SolidFaces, ATetrahedronsSideIsOppositeItsNode) {
  EXPECT_EQ(SidesOf(7, 4), (std::vector<Ids>{{2, 3, 4}, {1, 4, 3}, {1, 2, 4}, {1, 3, 2}}));
}

TEST_F(SolidFaces, HexahedronSides) {
  EXPECT_EQ(SidesOf(12, 8), (std::vector<Ids>{{1, 4, 3, 2}, {1, 2, 6, 5}, {3, 4, 8, 7}, {1, 5, 8, 4}, {2, 3, 7, 6}, {5, 6, 7, 8}}));
}

TEST_F(SolidFaces, WedgeSides) {
  EXPECT_EQ(SidesOf(13, 6), (std::vector<Ids>{{1, 3, 2}, {2, 3, 6, 5}, {3, 1, 4, 6}, {1, 2, 5, 4}, {4, 5, 6}}));
}

TEST_F(SolidFaces, PyramidSides) {
  EXPECT_EQ(SidesOf(14, 5), (std::vector<Ids>{{1, 4, 3, 2}, {1, 2, 5}, {2, 3, 5}, {3, 4, 5}, {4, 1, 5}}));
}

// Mid-side nodes of the 10-node tetrahedron: 5 between 1 and 2, 6: 2-3, 7: 3-1, 8: 1-4, 9: 2-4, 10: 3-4.
TEST_F(SolidFaces, SidesOfATetrahedronWithMidSideNodes) {
  EXPECT_EQ(SidesOf(8, 10), (std::vector<Ids>{{2, 3, 4, 6, 10, 9}, {1, 4, 3, 8, 10, 7}, {1, 2, 4, 5, 9, 8}, {1, 3, 2, 7, 6, 5}}));
  EXPECT_EQ(SolidElement(50)->faces[0]->typeIndex, 4);
}

// Of the 20-node hexahedron: 9 to 12 on 1-2, 2-3, 3-4, 4-1; 13 to 16 on 1-5, 2-6, 3-7, 4-8; 17 to 20 on 5-6, 6-7, 7-8, 8-5.
TEST_F(SolidFaces, SidesOfAHexahedronWithMidSideNodes) {
  EXPECT_EQ(SidesOf(15, 20), (std::vector<Ids>{{1, 4, 3, 2, 12, 11, 10, 9},
                                               {1, 2, 6, 5, 9, 14, 17, 13},
                                               {3, 4, 8, 7, 11, 16, 19, 15},
                                               {1, 5, 8, 4, 13, 20, 16, 12},
                                               {2, 3, 7, 6, 10, 15, 18, 14},
                                               {5, 6, 7, 8, 17, 18, 19, 20}}));
  EXPECT_EQ(SolidElement(50)->faces[5]->typeIndex, 6);
}

// Of the 15-node wedge: 7 to 9 on 1-2, 2-3, 3-1; 10 to 12 on 1-4, 2-5, 3-6; 13 to 15 on 4-5, 5-6, 6-4.
TEST_F(SolidFaces, SidesOfAWedgeWithMidSideNodes) {
  EXPECT_EQ(SidesOf(16, 15), (std::vector<Ids>{{1, 3, 2, 9, 8, 7},
                                               {2, 3, 6, 5, 8, 12, 14, 11},
                                               {3, 1, 4, 6, 9, 10, 15, 12},
                                               {1, 2, 5, 4, 7, 11, 13, 10},
                                               {4, 5, 6, 13, 14, 15}}));
}

TEST_F(SolidFaces, EveryMidSideNodeLiesBetweenItsCorners) {
  // The mid-side node of an edge is the same on both sides that share the edge, and it is no other edge's.
  for (const std::int32_t type : {8, 15, 16}) {
    std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t> midOfEdge;
    std::map<std::int32_t, int> uses;
    for (const SideShape& side : Sides(type)) {
      for (std::int32_t i = 0; i < side.cornerCount; ++i) {
        const std::int32_t a = side.corners[i];
        const std::int32_t b = side.corners[(i + 1) % side.cornerCount];
        const auto edge = std::minmax(a, b);
        const auto [place, isNew] = midOfEdge.insert({{edge.first, edge.second}, side.mids[i]});
        EXPECT_EQ(place->second, side.mids[i]);
        ++uses[side.mids[i]];
      }
    }
    EXPECT_EQ(static_cast<std::int32_t>(midOfEdge.size()), NodeCount(type) - CornerCount(type));
    for (const auto& [mid, count] : uses) {
      EXPECT_EQ(count, 2) << mid;
      EXPECT_GE(mid, CornerCount(type));
    }
  }
}

TEST_F(SolidFaces, RecordsBelongToOneSkinFaceOfTheBody) {
  MakeNodes(5);
  MeshPart* body = MakeBody(9);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 9), 0);
  ASSERT_EQ(MakeElement(2, 7, {1, 3, 2, 5}, 9), 0);
  model->FinishSolidPart(body, 0, 0, 0);
  const MeshElement* first = SolidElement(1);
  const MeshElement* second = SolidElement(2);
  EXPECT_EQ(first->faces[3], nullptr) << "side 1 2 3 is shared";
  EXPECT_EQ(second->faces[3], nullptr);
  const std::vector<TopoFace*> faces = FacesOf(body);
  ASSERT_EQ(faces.size(), 1U);
  EXPECT_EQ(faces[0]->GetId(), 9);
  EXPECT_EQ(faces[0]->GetTopoKind(), 2);
  EXPECT_EQ(model->NextPartId(), 1);
  EXPECT_EQ(ValuesOf<MeshElement>(ElementsOf(faces[0])), (std::vector<MeshElement*>{first->faces[0], first->faces[1], first->faces[2],
                                                                                    second->faces[0], second->faces[1], second->faces[2]}));
  EXPECT_EQ(first->faces[0]->owner, faces[0]);
  EXPECT_EQ(first->faces[0]->typeIndex, 3);
  EXPECT_EQ(host.Model().bodies[0].ElementCount(), 2) << "face records are no elements of the part";
}

TEST_F(SolidFaces, ASideSharedAcrossBodiesIsNull) {
  MakeNodes(5);
  MeshPart* left = MakeBody(1);
  MakeBody(2);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(2, 7, {5, 1, 3, 2}, 2), 0);
  model->FinishSolidPart(left, 0, 0, 0);
  EXPECT_EQ(SolidElement(1)->faces[3], nullptr);
  EXPECT_EQ(SolidElement(2)->faces[0], nullptr);
  EXPECT_NE(SolidElement(2)->faces[1], nullptr) << "every solid element of the model gets its faces";
}

TEST_F(SolidFaces, AShellWithTheSameCornersIsTakenAsItIs) {
  MakeNodes(4);
  MakeBody(1);
  MakeBody(2);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(70, 3, {4, 2, 1}, 2), 0);
  ASSERT_EQ(MakeElement(71, 3, {1, 2, 4}, 2), 0);
  model->UpdateTopology(0);
  EXPECT_EQ(SolidElement(1)->faces[2], Element(70)) << "the first of two, whichever way round it runs";
  EXPECT_EQ(host.FaceRecords().Size(), 3U);
}

TEST_F(SolidFaces, AQuadrilateralOfTheSameThreeNodesIsNoTriangle) {
  MakeNodes(4);
  MakeBody(1);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(70, 5, {1, 2, 4, 4}, 1), 0);
  model->UpdateTopology(0);
  EXPECT_NE(SolidElement(1)->faces[2], Element(70));
}

TEST_F(SolidFaces, ASecondUpdateChangesNothingAndLaterSolidsGetTheirFaces) {
  MakeNodes(5);
  MakeBody(1);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 1), 0);
  model->UpdateTopology(0);
  const MeshElement* side = SolidElement(1)->faces[3];
  model->UpdateTopology(0);
  EXPECT_EQ(host.FaceRecords().Size(), 4U);
  ASSERT_EQ(MakeElement(2, 7, {1, 3, 2, 5}, 1), 0);
  model->UpdateTopology(0);
  EXPECT_EQ(SolidElement(1)->faces[3], side) << "faces once given stay";
  EXPECT_EQ(SolidElement(2)->faces[3], nullptr);
  EXPECT_EQ(host.FaceRecords().Size(), 7U);
}

TEST_F(SolidFaces, ADegenerateSolidIsHandledAsItStands) {
  MakeNodes(4);
  MakeBody(1);
  ASSERT_EQ(MakeElement(1, 12, {1, 2, 3, 3, 4, 4, 4, 4}, 1), 0);
  model->UpdateTopology(0);
  ASSERT_NE(SolidElement(1)->faces[5], nullptr);
  EXPECT_EQ(NodeIds(*SolidElement(1)->faces[5], 4), (Ids{4, 4, 4, 4}));
}

TEST_F(SolidFaces, CreateFacesMakesOneFaceWithARecordForEachPair) {
  MakeNodes(6);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(2, 7, {1, 3, 2, 5}, 1), 0);
  ASSERT_EQ(MakeElement(70, 3, {4, 5, 6}, 1), 0);
  model->FinishSolidPart(body, 0, 0, 0);
  model->ReservePartId(30);
  std::int32_t numbers[] = {4, 0, 1};
  GivenList elements({SolidElement(1), SolidElement(2), SolidElement(2)});
  GivenList faceNumbers({&numbers[0], &numbers[1], &numbers[2]});
  GivenList result({Element(70)});
  MeshPart* made = nullptr;
  // Asked of the owner of the solid, as the translator does.
  SolidElement(1)->owner->CreateFaces(elements.Get(), faceNumbers.Get(), result.Get(), &made);
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->GetId(), 31);
  EXPECT_EQ(model->NextPartId(), 32);
  EXPECT_EQ(made->GetTopoKind(), 2);
  MeshElement* cut = SolidElement(1)->faces[3];
  ASSERT_NE(cut, nullptr);
  EXPECT_EQ(NodeIds(*cut, 3), (Ids{1, 3, 2}));
  EXPECT_EQ(cut->owner, made);
  EXPECT_EQ(ValuesOf<MeshElement>(result.Get()), (std::vector<MeshElement*>{Element(70), cut, SolidElement(2)->faces[0]}))
      << "number 0 is no side";
  EXPECT_EQ(ValuesOf<MeshElement>(ElementsOf(static_cast<TopoFace*>(made))), (std::vector<MeshElement*>{cut, SolidElement(2)->faces[0]}));
  MeshPart* parent = nullptr;
  static_cast<TopoFace*>(made)->GetParent(&parent);
  EXPECT_EQ(parent, body);
}

}  // namespace
}  // namespace btz::memory
