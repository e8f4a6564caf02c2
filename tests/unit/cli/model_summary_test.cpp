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

TEST(ModelSummary, EntitiesWithoutATableStandUnderTheirHeadings) {
  memory::MemoryHost host;
  BoundaryStore* store = host.GetBoundaryStore();
  ForceLoad* force = nullptr;
  std::int32_t forceId = 0;
  store->CreateForce(&force, &forceId);
  for (const wchar_t* name : {L"Flux2", L"Sun"}) {
    Flux* flux = nullptr;
    store->CreateFlux(&flux);
    flux->SetName(name);
  }
  Convection* convection = nullptr;
  store->CreateConvection(&convection);
  Pressure* pressure = nullptr;
  store->CreatePressure(&pressure);
  EntitySet* set = nullptr;
  store->CreateSet(&set);
  Mpc* tie = nullptr;
  store->CreateMpc(&tie);

  const ModelSummary summary = SummariseModel(host);

  EXPECT_EQ(summary.forces.size(), 1u);
  EXPECT_EQ(summary.pressures.size(), 1u);
  EXPECT_EQ(summary.sets.size(), 1u);
  const ItemGroup& loads = GroupOf(summary, "other loads");
  ASSERT_EQ(loads.kinds.size(), 2u);
  EXPECT_EQ(loads.kinds[0].kind, "heat fluxes");
  ASSERT_EQ(loads.kinds[0].items.size(), 2u);
  EXPECT_EQ(loads.kinds[0].items[0].id, 2);  // Ids run over all entities.
  EXPECT_EQ(loads.kinds[0].items[0].name, "Flux2");
  EXPECT_EQ(loads.kinds[0].items[1].name, "Sun");
  EXPECT_EQ(loads.kinds[1].kind, "convections");
  const ItemGroup& ties = GroupOf(summary, "ties");
  ASSERT_EQ(ties.kinds.size(), 1u);
  EXPECT_EQ(ties.kinds[0].kind, "ties between nodes");
}

/// A host with a way to load cases and what acts in them.
class CaseHost {
 public:
  LoadCase* MakeCase(const wchar_t* name) {
    LoadCase* loadCase = nullptr;
    Store()->CreateLoadCase(&loadCase, -1);
    loadCase->SetName(name);
    loadCase->SetSolverProfile(L"NASTRAN", L"LINEAR");
    return loadCase;
  }

  ForceLoad* MakeForce(const wchar_t* name) {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    Store()->CreateForce(&force, &id);
    force->SetName(name);
    return force;
  }

  Constraint* MakeConstraint(const wchar_t* name) {
    Constraint* constraint = nullptr;
    Store()->CreateConstraint(&constraint, 0);
    constraint->SetName(name);
    return constraint;
  }

  BoundaryStore* Store() { return host.GetBoundaryStore(); }

  memory::MemoryHost host;
};

TEST(ModelSummary, LoadCasesNameWhatActsInThemByKind) {
  CaseHost built;
  LoadCase* loadCase = built.MakeCase(L"Landing");
  loadCase->AddEntity(built.MakeForce(L"Left"), 0, 0.0);
  loadCase->AddEntity(built.MakeConstraint(L"Ground"), 0, 0.0);
  loadCase->AddEntity(built.MakeForce(L"Right"), 0, 0.0);

  const ModelSummary summary = SummariseModel(built.host);

  ASSERT_EQ(summary.loadCases.size(), 1u);
  const LoadCaseSummary& landing = summary.loadCases[0];
  EXPECT_EQ(landing.name, "Landing");
  EXPECT_EQ(landing.solver, "NASTRAN");
  EXPECT_EQ(landing.analysis, "LINEAR");
  ASSERT_EQ(landing.members.size(), 2u);
  EXPECT_EQ(landing.members[0].kind, "forces and moments");
  ASSERT_EQ(landing.members[0].items.size(), 2u);
  EXPECT_EQ(landing.members[0].items[0].name, "Left");
  EXPECT_EQ(landing.members[0].items[1].name, "Right");
  EXPECT_EQ(landing.members[1].kind, "constraints");
  ASSERT_EQ(landing.members[1].items.size(), 1u);
  EXPECT_EQ(landing.members[1].items[0].name, "Ground");
  EXPECT_TRUE(landing.parameters.empty());
  EXPECT_TRUE(summary.inNoLoadCase.empty());
}

TEST(ModelSummary, LoadCasesHaveTheirParameters) {
  CaseHost built;
  ParameterSet* parameters = built.MakeCase(L"Modes")->GetParameters(L"NASTRAN", L"NORMALMODE", 14);
  parameters->SetInt(L"Number of Modes", 12, 1);
  parameters->SetReal(L"Min frequency", 2.5);
  parameters->SetRealOptional(L"Max frequency", 7.5, 1, 7);
  parameters->SetRealOptional(L"Shift", 9.5, 0, 7);
  parameters->SetEntityName(L"Surface", L"Hull", 6);

  const std::vector<ParameterSummary> shown = SummariseModel(built.host).loadCases.at(0).parameters;

  ASSERT_EQ(shown.size(), 5u);
  EXPECT_EQ(shown[0].name, "Number of Modes");
  EXPECT_EQ(std::get<double>(shown[0].value), 12.0);
  EXPECT_EQ(std::get<double>(shown[1].value), 2.5);
  EXPECT_EQ(std::get<double>(shown[2].value), 7.5);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(shown[3].value));
  EXPECT_EQ(std::get<std::string>(shown[4].value), "Hull");
}

TEST(ModelSummary, WhatIsInNoLoadCaseIsFoundByKind) {
  CaseHost built;
  built.MakeForce(L"Unused");
  LoadCase* first = built.MakeCase(L"A");
  LoadCase* second = built.MakeCase(L"B");
  ForceLoad* inBoth = built.MakeForce(L"In both");
  first->AddEntity(inBoth, 0, 0.0);
  second->AddEntity(inBoth, 0, 0.0);
  second->AddEntity(built.MakeConstraint(L"In the second"), 0, 0.0);
  built.MakeConstraint(L"Loose");
  built.MakeForce(L"Unused too");
  MassEntity* mass = nullptr;
  built.Store()->CreateMass(&mass);  // Acts without load cases.

  const std::vector<ItemKind> kinds = SummariseModel(built.host).inNoLoadCase;

  ASSERT_EQ(kinds.size(), 2u);
  EXPECT_EQ(kinds[0].kind, "forces and moments");
  ASSERT_EQ(kinds[0].items.size(), 2u);
  EXPECT_EQ(kinds[0].items[0].name, "Unused");
  EXPECT_EQ(kinds[0].items[1].name, "Unused too");
  EXPECT_EQ(kinds[1].kind, "constraints");
  ASSERT_EQ(kinds[1].items.size(), 1u);
  EXPECT_EQ(kinds[1].items[0].name, "Loose");
}

}  // namespace
}  // namespace btz::cli
