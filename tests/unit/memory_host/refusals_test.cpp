// Refusals of the in-memory host: what a failed call leaves behind, and the script that makes calls fail.
#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

class Refusals : public MemoryHostTest {};

TEST_F(Refusals, AFailedLookUpLeavesTheOutParameterAlone) {
  MakeNodes(1);
  MeshNode* node = Node(1);
  MeshNode* const before = node;
  model->GetNode(99, &node);
  EXPECT_EQ(node, before);
  Entity* entity = reinterpret_cast<Entity*>(node);
  boundary->FindEntity(L"none", &entity, 0, 6);
  EXPECT_EQ(entity, reinterpret_cast<Entity*>(before));
}

TEST(RefusalsWithNull, AFailedLookUpWritesNullIfTheHostIsToldSo) {
  HostOptions options;
  options.nullOnFailure = true;
  MemoryHost host(options);
  MeshModel* model = nullptr;
  host.GetProject()->GetMeshModel(&model, 1);
  auto* node = reinterpret_cast<MeshNode*>(&host);
  model->GetNode(99, &node);
  EXPECT_EQ(node, nullptr);
  auto* element = reinterpret_cast<MeshElement*>(&host);
  model->GetSolidElement(99, &element, 1);
  EXPECT_EQ(element, nullptr);
  auto* force = reinterpret_cast<ForceLoad*>(&host);
  std::int32_t id = 0;
  host.Refusals().RefuseCall("BoundaryStore.CreateForce", 1);
  EXPECT_NE(host.GetBoundaryStore()->CreateForce(&force, &id), 0);
  EXPECT_EQ(force, nullptr);
}

TEST_F(Refusals, TheNthCallOfAnOperationIsRefused) {
  host.Refusals().RefuseCall("MeshModel.CreateNode", 2);
  const double xyz[3] = {0.0, 0.0, 0.0};
  EXPECT_EQ(model->CreateNode(1, xyz, 0), 0);
  EXPECT_EQ(model->CreateNode(2, xyz, 0), -1);
  EXPECT_EQ(model->CreateNode(2, xyz, 0), 0);
  EXPECT_EQ(host.Nodes().Size(), 2U);
}

TEST_F(Refusals, EveryCallFromTheNthOnIsRefused) {
  MakeNodes(3);
  MakeBody(1);
  host.Refusals().RefuseFrom("MeshModel.CreateElement", 2);
  EXPECT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  EXPECT_EQ(MakeElement(2, 3, {1, 2, 3}, 1), -1);
  EXPECT_EQ(MakeElement(3, 3, {1, 2, 3}, 1), -1);
  EXPECT_EQ(host.Elements().Size(), 1U);
}

TEST_F(Refusals, EveryCreateFromTheNthOnIsRefusedWhateverItMakes) {
  host.Refusals().RefuseCreatesFrom(2);
  Pressure* pressure = nullptr;
  EXPECT_EQ(boundary->CreatePressure(&pressure), 0);
  Spring* spring = nullptr;
  boundary->CreateSpring(&spring);
  EXPECT_EQ(spring, nullptr);
  Material* material = nullptr;
  EXPECT_NE(host.GetMaterialStore()->CreateMaterial(&material, 1), 0);
  EXPECT_EQ(material, nullptr);
  EXPECT_EQ(model->CreateRigidBody(1), nullptr);
  EXPECT_EQ(MakeBody(1), nullptr);
  Field* field = nullptr;
  host.GetCurveStore()->CreateField(&field);
  EXPECT_EQ(field, nullptr);
  EXPECT_EQ(model->NextPartId(), 1) << "a question is no create";
}

TEST_F(Refusals, ACreateCanReportSuccessWithoutAnObject) {
  host.Refusals().RefuseCall("BoundaryStore.CreatePressure", 1, Refusal::EmptySuccess);
  Pressure* pressure = nullptr;
  EXPECT_EQ(boundary->CreatePressure(&pressure), 0);
  EXPECT_EQ(pressure, nullptr);
  EXPECT_TRUE(host.Boundary().entities.empty());
}

TEST_F(Refusals, LookUpsCanBeRefusedToo) {
  MakeNodes(1);
  host.Refusals().RefuseCall("MeshModel.GetNode", 1);
  EXPECT_EQ(Node(1), nullptr);
  EXPECT_NE(Node(1), nullptr);
  LoadCase* loadCase = nullptr;
  ASSERT_EQ(boundary->CreateLoadCase(&loadCase, -1), 0);
  host.Refusals().RefuseFrom("LoadCase.GetParameters", 1);
  EXPECT_EQ(loadCase->GetParameters(L"NASTRAN", L"STATIC", 14), nullptr);
}

TEST_F(Refusals, RefusedEntitiesTakeNoId) {
  host.Refusals().RefuseCall("BoundaryStore.CreatePressure", 1);
  Pressure* pressure = nullptr;
  boundary->CreatePressure(&pressure);
  boundary->CreatePressure(&pressure);
  std::int32_t id = 0;
  pressure->GetId(&id);
  EXPECT_EQ(id, 1);
}

TEST_F(Refusals, AClearedScriptRefusesNothing) {
  host.Refusals().RefuseCreatesFrom(1);
  host.Refusals().Clear();
  EXPECT_FALSE(host.Refusals().IsActive());
  EXPECT_NE(MakeBody(1), nullptr);
}

TEST_F(Refusals, TheHookSeesEachCallBeforeItIsCarriedOut) {
  std::vector<std::string> seen;
  host.SetHook([&](const char* type, const char* operation) {
    seen.push_back(std::string(type) + "." + operation + " at " + std::to_string(host.Nodes().Size()) + " nodes");
  });
  MakeNodes(1);
  model->NextNodeId();
  EXPECT_EQ(seen, (std::vector<std::string>{"MeshModel.CreateNode at 0 nodes", "MeshModel.NextNodeId at 1 nodes"}));
}

}  // namespace
}  // namespace btz::memory
