#include "cli/set_summary.h"

#include <gtest/gtest.h>

#include "tests/unit/cli/faced_host.h"

namespace btz::cli {
namespace {

EntitySet* MakeSet(FacedHost& built, std::int32_t kind) {
  EntitySet* set = nullptr;
  built.Store()->CreateSet(&set);
  set->SetKind(kind);
  return set;
}

std::vector<SetSummary> Summarise(const FacedHost& built) { return SummariseSets(built.host, FaceMeter(built.host)); }

TEST(SetSummary, SetsOfNodesAndElementsCountTheirMembers) {
  FacedHost built;
  PooledList nodes = built.ListOf();
  PooledList elements = built.ListOf();
  for (const std::int32_t id : {1, 2, 3}) {
    MeshNode* node = nullptr;
    built.Model()->GetNode(id, &node);
    ListAppend(&nodes, node);
  }
  for (const std::int32_t id : {1, 2}) {
    MeshElement* element = nullptr;
    built.Model()->GetElement(id, &element);
    ListAppend(&elements, element);
  }
  EntitySet* rim = MakeSet(built, 0);
  rim->SetName(L"Rim");
  rim->SetNodes(&nodes);
  MakeSet(built, 1)->SetElements(&elements);
  ListClear(&nodes);
  ListClear(&elements);

  const std::vector<SetSummary> sets = Summarise(built);

  ASSERT_EQ(sets.size(), 2u);
  EXPECT_EQ(sets[0].id, 1);
  EXPECT_EQ(sets[0].name, "Rim");
  EXPECT_EQ(sets[0].kind, "nodes");
  EXPECT_EQ(sets[0].members, 3u);
  EXPECT_FALSE(sets[0].isSurface);
  EXPECT_EQ(sets[1].id, 2);
  EXPECT_EQ(sets[1].name, "");
  EXPECT_EQ(sets[1].kind, "elements");
  EXPECT_EQ(sets[1].members, 2u);
}

TEST(SetSummary, ASurfaceHasTheFacesOfItsParts) {
  FacedHost built;
  built.SetParts(MakeSet(built, 2), {built.plate, built.slope});

  const std::vector<SetSummary> sets = Summarise(built);

  ASSERT_EQ(sets.size(), 1u);
  EXPECT_EQ(sets[0].kind, "surface");
  EXPECT_TRUE(sets[0].isSurface);
  EXPECT_EQ(sets[0].members, 3u);
  EXPECT_EQ(sets[0].faces.parts, 2u);
  EXPECT_DOUBLE_EQ(sets[0].faces.area, 16.0);
}

TEST(SetSummary, EveryKindHasAName) {
  FacedHost built;
  MakeSet(built, 3);
  MakeSet(built, 4);
  MakeSet(built, 7);

  const std::vector<SetSummary> sets = Summarise(built);

  ASSERT_EQ(sets.size(), 3u);
  EXPECT_EQ(sets[0].kind, "elements with solids");
  EXPECT_EQ(sets[1].kind, "rigid elements");
  EXPECT_EQ(sets[2].kind, "kind 7");
}

}  // namespace
}  // namespace btz::cli
