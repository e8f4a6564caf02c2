// Displacement systems of the nodes that no constraint took up.
#include "analysis/node_systems.h"

#include "mesh/coordinate_systems.h"
#include "mesh/nodes.h"
#include "tests/unit/analysis/case_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NodeSystems : public CaseTest {
 protected:
  void AddSystem(std::int32_t id) {
    auto* system = static_cast<CsRecord*>(AllocateZeroed(sizeof(CsRecord)));
    system->id = id;
    ListAppend(&run.lists.coordinateSystems, system);
  }
  GridCdRecord* AddNode(std::int32_t nodeId, std::int32_t systemId) {
    auto* record = static_cast<GridCdRecord*>(AllocateZeroed(sizeof(GridCdRecord)));
    record->nodeId = nodeId;
    record->cdId = systemId;
    HashInsert(&run.gridCdTable, record);
    return record;
  }
  void Assign() {
    Calls();
    CreateNodeCoordinateAssignments(model, boundary, &run.gridCdTable, &run.lists.coordinateSystems);
  }
};

TEST_F(NodeSystems, NodesAreAssignedBySystemInTheOrderOfTheirTable) {
  MakeNodes(5);
  AddSystem(20);
  AddSystem(10);
  AddNode(4, 10);
  AddNode(3, 20);
  AddNode(2, 10);
  AddNode(5, 30);
  Assign();
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateNodeSystemAssignment() -> NodeSystemAssignment#1", "NodeSystemAssignment#1.SetKind(1)",
                          "NodeSystemAssignment#1.SetCoordinateSystem(20)", "NodeSystemAssignment#1.SetNodes([n3])",
                          "BoundaryStore.CreateNodeSystemAssignment() -> NodeSystemAssignment#2", "NodeSystemAssignment#2.SetKind(1)",
                          "NodeSystemAssignment#2.SetCoordinateSystem(10)", "NodeSystemAssignment#2.SetNodes([n2, n4])"));
}

TEST_F(NodeSystems, NodesThatAConstraintTookUpAreLeftOut) {
  MakeNodes(2);
  AddSystem(10);
  AddNode(1, 10)->used = 1;
  AddNode(2, 10);
  Assign();
  EXPECT_THAT(Calls(), testing::Contains("NodeSystemAssignment#1.SetNodes([n2])"));
}

TEST_F(NodeSystems, MissingNodesAreLeftOut) {
  MakeNodes(1);
  AddSystem(10);
  AddNode(1, 10);
  AddNode(7, 10);
  AddSystem(20);
  AddNode(8, 20);
  Assign();
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateNodeSystemAssignment() -> NodeSystemAssignment#1", "NodeSystemAssignment#1.SetKind(1)",
                          "NodeSystemAssignment#1.SetCoordinateSystem(10)", "NodeSystemAssignment#1.SetNodes([n1])"));
}

TEST_F(NodeSystems, NodesFarApartShareBuckets) {
  MakeNodes(9);
  const double position[3] = {};
  model->CreateNode(50002, position, 0);
  model->CreateNode(50006, position, 0);
  AddSystem(10);
  // 50,001 buckets: 50,002 stands in that of 1, 50,006 in that of 5.
  for (const std::int32_t id : {50006, 9, 5, 50002}) {
    AddNode(id, 10);
  }
  Assign();
  EXPECT_EQ(Calls().back(), "NodeSystemAssignment#1.SetNodes([n50002, n50006, n5, n9])");
}

TEST_F(NodeSystems, ASystemWhoseNodesAreAllUsedIsPassedOver) {
  MakeNodes(2);
  AddSystem(10);
  AddSystem(20);
  AddNode(1, 10)->used = 1;
  const GridCdRecord* taken = AddNode(2, 20);
  Assign();
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateNodeSystemAssignment() -> NodeSystemAssignment#1", "NodeSystemAssignment#1.SetKind(1)",
                          "NodeSystemAssignment#1.SetCoordinateSystem(20)", "NodeSystemAssignment#1.SetNodes([n2])"));
  EXPECT_EQ(taken->used, 1);
}

TEST_F(NodeSystems, ASecondSystemOfTheSameIdFindsNoNode) {
  MakeNodes(1);
  AddSystem(10);
  AddSystem(10);
  AddNode(1, 10);
  Assign();
  EXPECT_EQ(host.Boundary().nodeSystemAssignments.size(), 1U);
}

TEST_F(NodeSystems, WithoutSystemsNothingIsAssigned) {
  MakeNodes(1);
  AddNode(1, 10);
  Assign();
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(NodeSystems, ARefusalEndsTheStage) {
  host.Refusals().RefuseCall("BoundaryStore.CreateNodeSystemAssignment", 2);
  MakeNodes(3);
  for (const std::int32_t id : {1, 2, 3}) {
    AddSystem(10 * id);
    AddNode(id, 10 * id);
  }
  Assign();
  EXPECT_EQ(host.Boundary().nodeSystemAssignments.size(), 1U);
}

}  // namespace
}  // namespace btz::test
