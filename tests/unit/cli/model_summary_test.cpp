#include "cli/model_summary.h"

#include <gtest/gtest.h>

#include "memory_host/memory_host.h"

namespace btz::cli {
namespace {

const ItemGroup& GroupOf(const ModelSummary& summary, const std::string& title) {
  for (const ItemGroup& group : summary.groups) {
    if (group.title == title) {
      return group;
    }
  }
  ADD_FAILURE() << "no group " << title;
  static const ItemGroup none;
  return none;
}

TEST(ModelSummary, AnEmptyHostHasAllHeadingsAndNothingUnderThem) {
  memory::MemoryHost host;

  const ModelSummary summary = SummariseModel(host);

  EXPECT_EQ(summary.nodes, 0u);
  EXPECT_EQ(Total(summary.elements), 0u);
  EXPECT_FALSE(summary.isHandedOver);
  EXPECT_TRUE(summary.properties.empty());
  EXPECT_TRUE(summary.materials.empty());
  EXPECT_TRUE(summary.systems.empty());
  EXPECT_GE(summary.groups.size(), 8u);
  for (const ItemGroup& group : summary.groups) {
    EXPECT_TRUE(group.kinds.empty()) << group.title;
  }
}

TEST(ModelSummary, PartsCountTheirElementsByType) {
  memory::MemoryHost host;
  MeshModel* model = nullptr;
  host.GetProject()->GetMeshModel(&model, 1);
  const double xyz[3] = {0.0, 0.0, 0.0};
  for (std::int32_t id = 1; id <= 4; ++id) {
    model->CreateNode(id, xyz, 0);
  }
  for (const std::int32_t partId : {7, 3}) {
    MeshPart* part = nullptr;
    model->CreateBody(1, &part, partId, 0, 1, 1);
    TopoEntity* face = nullptr;
    model->CreateTopoEntity(topoFace, &face, partId, part, 1);
    part->AddFace(static_cast<TopoFace*>(face), 1);
    part->SetName(partId == 7 ? L"Skin" : L"");
  }
  const std::int32_t nodes[4] = {1, 2, 3, 4};
  model->CreateElement(1, 3, nodes, 7, 0, 0, 1, 0);
  model->CreateElement(2, 5, nodes, 7, 0, 0, 1, 0);
  model->CreateElement(3, 5, nodes, 3, 0, 0, 1, 0);
  model->CreateRigidBody(0);

  const ModelSummary summary = SummariseModel(host);

  EXPECT_EQ(summary.nodes, 4u);
  EXPECT_EQ(summary.elements[3], 1u);
  EXPECT_EQ(summary.elements[5], 2u);
  EXPECT_EQ(Total(summary.elements), 3u);
  ASSERT_EQ(summary.parts.size(), 3u);
  EXPECT_EQ(summary.parts[0].id, 7);
  EXPECT_EQ(summary.parts[0].name, "Skin");
  EXPECT_FALSE(summary.parts[0].isRigid);
  EXPECT_EQ(summary.parts[0].faces, 1u);
  EXPECT_EQ(summary.parts[0].elements[3], 1u);
  EXPECT_EQ(summary.parts[0].elements[5], 1u);
  EXPECT_EQ(Total(summary.parts[1].elements), 1u);
  EXPECT_TRUE(summary.parts[2].isRigid);
}

TEST(ModelSummary, EntitiesStandUnderTheirHeadings) {
  memory::MemoryHost host;
  BoundaryStore* store = host.GetBoundaryStore();
  Pressure* pressure = nullptr;
  store->CreatePressure(&pressure);
  pressure->SetName(L"Pressure2");
  for (const wchar_t* name : {L"Pull", L"Push"}) {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    store->CreateForce(&force, &id);
    force->SetName(name);
  }
  Mpc* tie = nullptr;
  store->CreateMpc(&tie);

  const ModelSummary summary = SummariseModel(host);

  const ItemGroup& loads = GroupOf(summary, "loads");
  ASSERT_EQ(loads.kinds.size(), 2u);
  EXPECT_EQ(loads.kinds[0].kind, "forces and moments");
  ASSERT_EQ(loads.kinds[0].items.size(), 2u);
  EXPECT_EQ(loads.kinds[0].items[0].id, 2);  // Ids run over all entities.
  EXPECT_EQ(loads.kinds[0].items[0].name, "Pull");
  EXPECT_EQ(loads.kinds[0].items[1].name, "Push");
  EXPECT_EQ(loads.kinds[1].kind, "pressures");
  EXPECT_EQ(loads.kinds[1].items[0].name, "Pressure2");
  const ItemGroup& constraints = GroupOf(summary, "constraints");
  ASSERT_EQ(constraints.kinds.size(), 1u);
  EXPECT_EQ(constraints.kinds[0].kind, "ties between nodes");
}

TEST(ModelSummary, LoadCasesCountWhatActsInThem) {
  memory::MemoryHost host;
  BoundaryStore* store = host.GetBoundaryStore();
  LoadCase* loadCase = nullptr;
  store->CreateLoadCase(&loadCase, -1);
  loadCase->SetName(L"Landing");
  loadCase->SetSolverProfile(L"NASTRAN", L"Linear");
  for (int i = 0; i < 2; ++i) {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    store->CreateForce(&force, &id);
    loadCase->AddEntity(force, 0, 0.0);
  }
  Constraint* constraint = nullptr;
  store->CreateConstraint(&constraint, 0);
  loadCase->AddEntity(constraint, 0, 0.0);

  const ModelSummary summary = SummariseModel(host);

  ASSERT_EQ(summary.loadCases.size(), 1u);
  const LoadCaseSummary& landing = summary.loadCases[0];
  EXPECT_EQ(landing.name, "Landing");
  EXPECT_EQ(landing.solver, "NASTRAN");
  EXPECT_EQ(landing.analysis, "Linear");
  ASSERT_EQ(landing.members.size(), 2u);
  EXPECT_EQ(landing.members[0].kind, "forces and moments");
  EXPECT_EQ(landing.members[0].items.size(), 2u);
  EXPECT_EQ(landing.members[1].kind, "constraints");
}

}  // namespace
}  // namespace btz::cli
