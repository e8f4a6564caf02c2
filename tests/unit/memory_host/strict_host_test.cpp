// Checks that a strict in-memory host makes of its caller, and what a lax one does instead.
#include "memory_host/host_fixture.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz::memory {
namespace {

class StrictHost : public MemoryHostTest {};

TEST_F(StrictHost, ANullOutParameterIsNamed) {
  expectedFaults = {
      "memory host: GetNode on MeshModel: null out parameter", "memory host: CreateForce on BoundaryStore: null out parameter",
      "memory host: CreateForce on BoundaryStore: null out parameter", "memory host: GetMaterial on MaterialStore: null out parameter"};
  model->GetNode(1, nullptr);
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  EXPECT_NE(boundary->CreateForce(&force, nullptr), 0);
  EXPECT_NE(boundary->CreateForce(nullptr, &id), 0);
  Material* material = nullptr;
  host.GetMaterialStore()->GetMaterial(1, &material, nullptr);
}

TEST_F(StrictHost, AForeignObjectIsNamedAndTakenForNone) {
  MemoryHost other;
  MeshModel* otherModel = nullptr;
  other.GetProject()->GetMeshModel(&otherModel, 1);
  MeshPart* foreign = nullptr;
  otherModel->CreateBody(1, &foreign, 5, 0, 1, 1);
  expectedFaults = {"memory host: CreatePart on MeshModel: an object that this host never handed out",
                    "memory host: SetParts on Pressure#1: a part that this host never handed out"};
  TopoEntity* face = nullptr;
  model->CreatePart(2, &face, 6, foreign);
  EXPECT_EQ(face, nullptr);
  Pressure* pressure = nullptr;
  ASSERT_EQ(boundary->CreatePressure(&pressure), 0);
  MeshPart* own = MakeFace(MakeBody(5), 5);
  GivenList parts({foreign, own});
  pressure->SetParts(parts.Get());
  PooledList* kept = nullptr;
  pressure->GetParts(&kept);
  EXPECT_EQ(ValuesOf<MeshPart>(kept), std::vector<MeshPart*>{own});
}

TEST_F(StrictHost, AnObjectOfAnotherKindIsNoPart) {
  Constraint* constraint = nullptr;
  ASSERT_EQ(boundary->CreateConstraint(&constraint, 0), 0);
  expectedFaults = {"memory host: SetParts on Property#1: a part that this host never handed out"};
  Property* property = nullptr;
  ASSERT_EQ(host.GetMaterialStore()->CreateProperty(&property, 1), 0);
  GivenList parts({constraint});
  property->SetParts(parts.Get());
  EXPECT_TRUE(host.Materials().properties[0].parts.empty());
}

TEST_F(StrictHost, ForeignNodesAndElementsAreNamed) {
  MakeNodes(1);
  MeshNode foreignNode{};
  MeshElement foreignElement{};
  expectedFaults = {"memory host: SetNodes on ForceLoad#1: a node that this host never handed out",
                    "memory host: SetElements on EntitySet#1: an element that this host never handed out",
                    "memory host: SetAnchorNode on Mpc#1: a node that this host never handed out",
                    "memory host: CreateGroup on GroupStore: an element that this host never handed out"};
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  ASSERT_EQ(boundary->CreateForce(&force, &id), 0);
  GivenList nodes({&foreignNode, Node(1)});
  force->SetNodes(nodes.Get());
  EXPECT_EQ(host.Boundary().forces[0].nodes, std::vector<MeshNode*>{Node(1)});
  EntitySet* set = nullptr;
  ASSERT_EQ(boundary->CreateSet(&set), 0);
  GivenList elements({&foreignElement});
  set->SetElements(elements.Get());
  Mpc* mpc = nullptr;
  ASSERT_EQ(boundary->CreateMpc(&mpc), 0);
  mpc->SetAnchorNode(&foreignNode);
  HashTable table;
  HashInit(&table);
  HashCreate(&table, 1, HashFirstInt, nullptr, nullptr, 0);
  HashInsert(&table, &foreignElement);
  Group* group = nullptr;
  EXPECT_EQ(host.GetGroupStore()->CreateGroup(&group, &table, 0, 0, 0, 0, 0, 10), 0);
  HashRelease(&table);
}

TEST_F(StrictHost, AListWithoutEndIsNamedAndReadAsFarAsItsSize) {
  MakeNodes(2);
  expectedFaults = {"memory host: SetNodes on ForceLoad#1: a list without end", "memory host: SetNodes on ForceLoad#1: a list without end"};
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  ASSERT_EQ(boundary->CreateForce(&force, &id), 0);
  GivenList looped({Node(1), Node(2)});
  PooledList* list = looped.Get();
  list->next->next->next = list->next;  // The last cell leads back to the first instead of to the list.
  force->SetNodes(list);
  EXPECT_EQ(host.Boundary().forces[0].nodes, (std::vector<MeshNode*>{Node(1), Node(2)}));
  GivenList torn({Node(1), Node(2)});
  torn.Get()->next->next = nullptr;
  force->SetNodes(torn.Get());
}

TEST_F(StrictHost, NullListsAndNullObjectsAreNoFault) {
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  ASSERT_EQ(boundary->CreateForce(&force, &id), 0);
  force->SetNodes(nullptr);
  force->SetField(nullptr, 0);
  EXPECT_TRUE(host.Boundary().forces[0].nodes.empty());
  TopoEntity* face = nullptr;
  model->CreateTopoEntity(2, &face, 1, nullptr, 1);
  EXPECT_EQ(face, nullptr);
}

TEST_F(StrictHost, ANullEndsAList) {
  MakeNodes(3);
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  ASSERT_EQ(boundary->CreateForce(&force, &id), 0);
  GivenList nodes({Node(1), nullptr, Node(2)});
  force->SetNodes(nodes.Get());
  EXPECT_EQ(host.Boundary().forces[0].nodes, std::vector<MeshNode*>{Node(1)});
}

TEST_F(StrictHost, AListThatWasReadStandsAtItsStart) {
  MakeNodes(2);
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  ASSERT_EQ(boundary->CreateForce(&force, &id), 0);
  GivenList nodes({Node(1), Node(2)});
  EXPECT_NE(nodes.Get()->cursor, nodes.Get());
  force->SetNodes(nodes.Get());
  EXPECT_EQ(nodes.Get()->cursor, nodes.Get());
}

TEST_F(StrictHost, AfterTheHandOverOnlyTopologyRepairAndSplittingAreAllowed) {
  MakeNodes(3);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  TopoFace* face = FacesOf(body)[0];
  FaceMesh* mesh = MeshOf(face);
  host.GetProject()->AttachModel(model, 1);
  PooledList* list = nullptr;
  model->UpdateTopology(0);
  model->CountDefects(3);
  model->RepairDefects();
  model->GetParts(&list);
  body->HasMesh();
  body->GetFaceList(&list);
  face->GetMesh(&mesh);
  mesh->GetElements(&list);
  GivenList faces({face});
  body->SplitFaces(faces.Get(), 10.0, 0);
  model->MergeSplitPart(body);
  EXPECT_TRUE(faults.empty());

  expectedFaults = {"memory host: NextPartId on MeshModel: the model was handed over already",
                    "memory host: GetName on MeshPart#1: the model was handed over already",
                    "memory host: CreatePressure on BoundaryStore: the model was handed over already"};
  model->NextPartId();
  body->GetName();
  Pressure* pressure = nullptr;
  boundary->CreatePressure(&pressure);
  host.BeginRun();
  model->NextPartId();
}

TEST_F(StrictHost, ArraysMayNotBeNull) {
  expectedFaults = {"memory host: CreateNode on MeshModel: null coordinates", "memory host: CreateElement on MeshModel: null node ids"};
  EXPECT_EQ(model->CreateNode(1, nullptr, 0), -1);
  EXPECT_EQ(model->CreateElement(1, 3, nullptr, 1, 0, 0, 1, 0), -1);
}

TEST(StrictHostDeathTest, WithoutAHandlerTheProgramStops) {
  MemoryHost host;
  EXPECT_DEATH(host.GetProject()->GetMeshModel(nullptr, 1), "memory host: GetMeshModel on HostProject: null out parameter");
}

TEST(LaxHost, WrongCallsAreSurvivedInSilence) {
  HostOptions options;
  options.strict = false;
  MemoryHost host(options);
  bool told = false;
  host.SetFaultHandler([&](const std::string&) { told = true; });
  MeshModel* model = nullptr;
  host.GetProject()->GetMeshModel(nullptr, 1);
  host.GetProject()->GetMeshModel(&model, 1);
  model->GetNode(1, nullptr);
  EXPECT_EQ(model->CreateNode(1, nullptr, 0), -1);
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  ASSERT_EQ(host.GetBoundaryStore()->CreateForce(&force, &id), 0);
  MeshNode foreign{};
  GivenList nodes({&foreign});
  force->SetNodes(nodes.Get());
  EXPECT_TRUE(host.Boundary().forces[0].nodes.empty());
  host.GetProject()->AttachModel(model, 1);
  EXPECT_EQ(model->NextPartId(), 1);
  EXPECT_FALSE(told);
}

}  // namespace
}  // namespace btz::memory
