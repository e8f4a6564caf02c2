#include "cli/system_summary.h"

#include <gtest/gtest.h>

#include "cli/model_summary.h"
#include "memory_host/memory_host.h"

namespace btz::cli {
namespace {

MeshNode* MakeNode(memory::MemoryHost& host, std::int32_t id, double x, double y, double z, std::int32_t systemId = 0) {
  MeshModel* model = nullptr;
  host.GetProject()->GetMeshModel(&model, 1);
  const double xyz[3] = {x, y, z};
  model->CreateNode(id, xyz, 0);
  MeshNode* node = nullptr;
  model->GetNode(id, &node);
  node->coordinateSystemId = systemId;
  return node;
}

CoordinateSystem* MakeSystem(memory::MemoryHost& host, std::int32_t id, std::int32_t kind) {
  CoordinateSystem* system = nullptr;
  host.GetBoundaryStore()->CreateCoordinateSystem(&system);
  system->SetKind(kind);
  system->SetId(id);
  return system;
}

TEST(SystemSummary, ASystemHasIdKindNameAndTheOriginOfItsFirstPoint) {
  memory::MemoryHost host;
  MeshNode* a = MakeNode(host, 1, 1.5, -2.0, 30.0);
  MeshNode* b = MakeNode(host, 2, 1.5, -2.0, 31.0);
  MeshNode* c = MakeNode(host, 3, 2.5, -2.0, 30.0);
  CoordinateSystem* system = MakeSystem(host, 10, 2);
  system->SetPoints(a, b, c);
  system->SetName(L"CyliCoordinate10");

  const std::vector<SystemSummary> systems = SummariseSystems(host);

  ASSERT_EQ(systems.size(), 1u);
  EXPECT_EQ(systems[0].id, 10);
  EXPECT_EQ(systems[0].kind, "cylindrical");
  EXPECT_EQ(systems[0].name, "CyliCoordinate10");
  ASSERT_TRUE(systems[0].origin.has_value());
  EXPECT_EQ(*systems[0].origin, (std::array<double, 3>{1.5, -2.0, 30.0}));
}

TEST(SystemSummary, KindsHaveWordsAndPointsMayBeMissing) {
  memory::MemoryHost host;
  for (std::int32_t kind = 1; kind <= 4; ++kind) {
    MakeSystem(host, kind, kind);
  }

  const std::vector<SystemSummary> systems = SummariseSystems(host);

  ASSERT_EQ(systems.size(), 4u);
  EXPECT_EQ(systems[0].kind, "rectangular");
  EXPECT_EQ(systems[1].kind, "cylindrical");
  EXPECT_EQ(systems[2].kind, "spherical");
  EXPECT_EQ(systems[3].kind, "kind 4");
  EXPECT_FALSE(systems[0].origin.has_value());
}

TEST(SystemSummary, NodesAreCountedBySystem) {
  memory::MemoryHost host;
  MakeNode(host, 1, 0.0, 0.0, 0.0);
  MakeNode(host, 2, 0.0, 0.0, 0.0, 10);
  MakeNode(host, 3, 0.0, 0.0, 0.0, 20);
  MakeNode(host, 4, 0.0, 0.0, 0.0, 10);
  MakeSystem(host, 10, 1);
  MakeSystem(host, 20, 2);
  MakeSystem(host, 30, 1);

  const ModelSummary summary = SummariseModel(host);

  EXPECT_EQ(summary.nodes, 4u);
  EXPECT_EQ(summary.nodesInLocalSystems, 3u);
  ASSERT_EQ(summary.systems.size(), 3u);
  EXPECT_EQ(summary.systems[0].nodes, 2u);
  EXPECT_EQ(summary.systems[1].nodes, 1u);
  EXPECT_EQ(summary.systems[2].nodes, 0u);
}

}  // namespace
}  // namespace btz::cli
