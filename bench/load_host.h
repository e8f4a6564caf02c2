// The ignoring host with what loads need to do all their work: it knows its nodes, takes forces, constraints, fields and load cases, and counts
// what it was given.
#pragma once

#include <deque>
#include <vector>

#include "bench/ignoring_host.h"
#include "support/pooled_list.h"

namespace btz {

/// Knows nodes with ids from 1 on without gaps.
class NodesModel final : public IgnoringModel {
 public:
  std::int32_t CreateNode(std::int32_t id, const double* xyz, std::int32_t mode) override {
    meshNodes.push_back({id, {xyz[0], xyz[1], xyz[2]}, 0, 0});
    return IgnoringModel::CreateNode(id, xyz, mode);
  }
  void GetNode(std::int32_t id, MeshNode** out) override {
    if (id >= 1 && static_cast<std::size_t>(id) <= meshNodes.size()) {
      *out = &meshNodes[static_cast<std::size_t>(id) - 1];
    }
  }

 private:
  std::deque<MeshNode> meshNodes;
};

class NodesProject final : public IgnoringProject {
 public:
  void GetMeshModel(MeshModel** out, std::uint8_t /*mode*/) override { *out = &nodesModel; }

  NodesModel nodesModel;
};

/// What forces and constraints have in common.
template <typename Load, std::int32_t type>
class TakingLoad : public Load {
 public:
  std::int64_t nodes = 0;  ///< That it was given, by all calls.

  std::int32_t GetEntityType() override { return type; }
  void GetName(wchar_t* out) override { *out = 0; }
  void GetId(std::int32_t* out) override { *out = 1; }
  void GetParts(PooledList** /*out*/) override {}
  void GetSurfaceParts(PooledList** /*out*/) override {}
  void GetAppliedParts(PooledList** /*out*/) override {}
  std::int32_t GetApplyKind() override { return 1; }
  void GetContactParts(PooledList** /*out*/) override {}
  std::int32_t GetGroupId() override { return 0; }
  void SetName(const wchar_t* /*name*/) override {}
  void SetCoordinateSystem(std::int32_t /*csId*/) override {}
  void SetField(Field* /*field*/, std::int32_t /*mode*/) override {}
  void SetNodes(PooledList* list) override { nodes += list->size; }
  void SetNodeBased(std::int32_t /*nodeBased*/) override {}
};

class TakingForce final : public TakingLoad<ForceLoad, entityForce> {
 public:
  void SetForce(double /*x*/, double /*y*/, double /*z*/) override {}
  void SetMoment(double /*x*/, double /*y*/, double /*z*/) override {}
};

class TakingConstraint final : public TakingLoad<Constraint, entityConstraint> {
 public:
  void SetTranslations(double /*x*/, double /*y*/, double /*z*/) override {}
  void SetRotations(double /*x*/, double /*y*/, double /*z*/) override {}
  void SetTranslationMask(std::uint8_t /*mask*/) override {}
  void SetRotationMask(std::uint8_t /*mask*/) override {}
  std::int32_t IsEnforced() override { return 0; }
  void SetAxisFlag(std::int32_t /*axis*/) override {}
  void GetNodes(PooledList** /*out*/) override {}
};

class TakingLoadCase final : public LoadCase {
 public:
  std::int64_t entities = 0;

  void SetName(const wchar_t* /*name*/) override {}
  ParameterSet* GetParameters(const wchar_t* /*solver*/, const wchar_t* /*analysis*/, std::int32_t /*kind*/) override { return nullptr; }
  void AddEntity(Entity* /*entity*/, std::int32_t /*flags*/, double /*payload*/) override { ++entities; }
  void SetSolverProfile(const wchar_t* /*solver*/, const wchar_t* /*analysis*/) override {}
};

/// Hands out one object of each kind for all.
class TakingBoundaryStore final : public IgnoringBoundaryStore {
 public:
  TakingForce force;
  TakingConstraint constraint;
  TakingLoadCase loadCase;

  std::int32_t CreateForce(ForceLoad** out, std::int32_t* /*id*/) override {
    *out = &force;
    return 0;
  }
  std::int32_t CreateConstraint(Constraint** out, std::int32_t /*enforced*/) override {
    *out = &constraint;
    return 0;
  }
  std::int32_t CreateLoadCase(LoadCase** out, std::int32_t /*position*/) override {
    *out = &loadCase;
    return 0;
  }
};

class TakingField final : public Field {
 public:
  void SetName(const wchar_t* /*name*/) override {}
  void GetId(std::int32_t* out) override { *out = 1; }
  void SetId(std::int32_t /*id*/) override {}
  void SetRows(PooledList* /*rows*/) override {}
  void SetQuantity(const wchar_t* /*name*/) override {}
  void SetRowCount(std::int32_t /*count*/) override {}
  void SetColumnCount(std::int32_t /*count*/) override {}
};

class TakingCurveStore final : public IgnoringCurveStore {
 public:
  void CreateField(Field** out) override { *out = &field; }

 private:
  TakingField field;
};

}  // namespace btz
