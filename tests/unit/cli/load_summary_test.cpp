#include "cli/load_summary.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "memory_host/memory_host.h"
#include "support/pooled_list.h"

namespace btz::cli {
namespace {

/// A host with four nodes, 1 to 4, and lists of them.
class LoadedHost {
 public:
  LoadedHost() {
    ListCellPoolInit(&cells_);
    host.GetProject()->GetMeshModel(&model_, 1);
    const double xyz[3] = {0.0, 0.0, 0.0};
    for (std::int32_t id = 1; id <= 4; ++id) {
      model_->CreateNode(id, xyz, 0);
    }
  }
  ~LoadedHost() { ListCellPoolReset(&cells_); }
  LoadedHost(const LoadedHost&) = delete;
  LoadedHost& operator=(const LoadedHost&) = delete;

  Constraint* MakeConstraint(std::int32_t enforced, std::uint8_t translations, std::uint8_t rotations) {
    Constraint* constraint = nullptr;
    Store()->CreateConstraint(&constraint, enforced);
    constraint->SetTranslationMask(translations);
    constraint->SetRotationMask(rotations);
    return constraint;
  }

  ForceLoad* MakeForce() {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    Store()->CreateForce(&force, &id);
    return force;
  }

  BodyLoad* MakeBodyLoad() {
    BodyLoad* load = nullptr;
    Store()->CreateBodyLoad(&load);
    return load;
  }

  Field* MakeField() {
    Field* field = nullptr;
    host.GetCurveStore()->CreateField(&field);
    return field;
  }

  MeshPart* MakePart(std::int32_t id) {
    MeshPart* part = nullptr;
    model_->CreateBody(1, &part, id, 0, 1, 1);
    return part;
  }

  template <typename Target>
  void SetNodes(Target* target, std::initializer_list<std::int32_t> ids) {
    PooledList nodes;
    ListInit(&nodes, &cells_);
    for (const std::int32_t id : ids) {
      MeshNode* node = nullptr;
      model_->GetNode(id, &node);
      ListAppend(&nodes, node);
    }
    target->SetNodes(&nodes);
    ListClear(&nodes);
  }

  void SetParts(BodyLoad* load, std::initializer_list<MeshPart*> given) {
    PooledList parts;
    ListInit(&parts, &cells_);
    for (MeshPart* part : given) {
      ListAppend(&parts, part);
    }
    load->SetParts(&parts);
    ListClear(&parts);
  }

  BoundaryStore* Store() { return host.GetBoundaryStore(); }

  memory::MemoryHost host;

 private:
  MeshModel* model_ = nullptr;
  ListCellPool cells_;
};

TEST(ConstraintSummary, APlainOneHoldsTheComponentsOfItsMasksAndHasNoValues) {
  LoadedHost built;
  Constraint* constraint = built.MakeConstraint(0, 5, 2);  // Components 1, 3 and 5.
  constraint->SetTranslations(1.0, 0.0, 1.0);              // Marks of a plain constraint, not values.
  constraint->SetRotations(0.0, 1.0, 0.0);
  constraint->SetName(L"Node_Constraint_7");
  constraint->SetCoordinateSystem(12);
  built.SetNodes(constraint, {2, 3, 4});

  const std::vector<ConstraintSummary> constraints = SummariseConstraints(built.host);

  ASSERT_EQ(constraints.size(), 1u);
  EXPECT_EQ(constraints[0].id, 1);
  EXPECT_EQ(constraints[0].name, "Node_Constraint_7");
  EXPECT_FALSE(constraints[0].isEnforced);
  EXPECT_EQ(constraints[0].components, "135");
  EXPECT_EQ(constraints[0].values, (std::array<double, 6>{}));
  EXPECT_FALSE(constraints[0].isByField);
  EXPECT_EQ(constraints[0].nodes, 3u);
  EXPECT_EQ(constraints[0].system, 12);
}

TEST(ConstraintSummary, AnEnforcedOneHasItsValues) {
  LoadedHost built;
  Constraint* constraint = built.MakeConstraint(1, 7, 7);
  constraint->SetTranslations(0.5, 0.0, -2.0);
  constraint->SetRotations(0.0, 1.5, 0.25);

  const std::vector<ConstraintSummary> constraints = SummariseConstraints(built.host);

  ASSERT_EQ(constraints.size(), 1u);
  EXPECT_TRUE(constraints[0].isEnforced);
  EXPECT_EQ(constraints[0].components, "123456");
  EXPECT_EQ(constraints[0].values, (std::array<double, 6>{0.5, 0.0, -2.0, 0.0, 1.5, 0.25}));
  EXPECT_EQ(constraints[0].name, "");
  EXPECT_EQ(constraints[0].nodes, 0u);
  EXPECT_EQ(constraints[0].system, 0);
}

TEST(ConstraintSummary, ValuesMayBeThoseOfAField) {
  LoadedHost built;
  built.MakeConstraint(1, 0, 4)->SetField(built.MakeField(), 0);

  const std::vector<ConstraintSummary> constraints = SummariseConstraints(built.host);

  ASSERT_EQ(constraints.size(), 1u);
  EXPECT_TRUE(constraints[0].isByField);
  EXPECT_EQ(constraints[0].components, "6");
}

TEST(ForceSummary, ForcesHaveVectorsNodesAndSystemInOrderOfCreation) {
  LoadedHost built;
  ForceLoad* pull = built.MakeForce();
  pull->SetName(L"Pull");
  pull->SetForce(1.0, -2.0, 3.5);
  pull->SetMoment(0.0, 4.0, 0.0);
  pull->SetCoordinateSystem(3);
  pull->SetField(nullptr, 0);
  built.SetNodes(pull, {1, 4});
  ForceLoad* spread = built.MakeForce();
  spread->SetForce(1.0, 1.0, 1.0);
  spread->SetField(built.MakeField(), 0);

  const std::vector<ForceSummary> forces = SummariseForces(built.host);

  ASSERT_EQ(forces.size(), 2u);
  EXPECT_EQ(forces[0].id, 1);
  EXPECT_EQ(forces[0].name, "Pull");
  EXPECT_EQ(forces[0].force, (Vector{1.0, -2.0, 3.5}));
  EXPECT_EQ(forces[0].moment, (Vector{0.0, 4.0, 0.0}));
  EXPECT_FALSE(forces[0].isByField);
  EXPECT_EQ(forces[0].nodes, 2u);
  EXPECT_EQ(forces[0].system, 3);
  EXPECT_EQ(forces[1].id, 2);
  EXPECT_TRUE(forces[1].isByField);
  EXPECT_EQ(forces[1].nodes, 0u);
}

TEST(BodyLoadSummary, TheKindIsThatOfTheVectorThatWasGiven) {
  LoadedHost built;
  BodyLoad* weight = built.MakeBodyLoad();
  weight->SetGravity(0.0, 0.0, -9810.0);
  built.SetParts(weight, {built.MakePart(7), built.MakePart(8)});
  built.MakeBodyLoad()->SetRotationVector(1.0, 0.0, 0.0);
  built.MakeBodyLoad()->SetScaledRotationVector(0.0, 2.0, 0.0);
  built.MakeBodyLoad()->SetGravity(0.0, 0.0, 0.0);

  const std::vector<BodyLoadSummary> loads = SummariseBodyLoads(built.host);

  ASSERT_EQ(loads.size(), 4u);
  EXPECT_EQ(loads[0].kind, "gravity");
  EXPECT_EQ(loads[0].vector, (Vector{0.0, 0.0, -9810.0}));
  EXPECT_EQ(loads[0].parts, 2u);
  EXPECT_EQ(loads[0].name, "");
  EXPECT_EQ(loads[1].kind, "rotation");
  EXPECT_EQ(loads[1].vector, (Vector{1.0, 0.0, 0.0}));
  EXPECT_EQ(loads[1].parts, 0u);
  EXPECT_EQ(loads[2].kind, "scaled rotation");
  EXPECT_EQ(loads[2].vector, (Vector{0.0, 2.0, 0.0}));
  EXPECT_EQ(loads[3].kind, "none");
  EXPECT_EQ(loads[3].id, 4);
}

}  // namespace
}  // namespace btz::cli
