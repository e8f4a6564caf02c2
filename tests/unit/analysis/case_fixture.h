// Subcases from case control text, sets filled with entities of the in-memory host, and what a load case got of them.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/case_control.h"
#include "analysis/load_cases.h"
#include "analysis/set_combination.h"
#include "loads/load_sets.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {

inline void ClearCaseGlobals() {
  SolNumber = 0;
  GlobalSdampingId = 0;
  GlobalMfluidId = 0;
  GlobalMethodId = 0;
  SubcaseNeedsCases = 0;
}

/// The ids of a set, in its order.
inline std::vector<std::int32_t> IdsOf(const IdSet& set) {
  std::vector<std::int32_t> ids;
  WalkIdSet(&set, [&](std::int32_t id) { ids.push_back(id); });
  return ids;
}

class CaseTest : public MeshTest {
 protected:
  explicit CaseTest(const HostOptions& options = HostOptions()) : MeshTest(options) { ClearCaseGlobals(); }
  ~CaseTest() override { ClearCaseGlobals(); }

  /// Reads subcases; `rest` has what the reader left.
  void ReadCases(std::string_view text) {
    CardText card(text);
    ReadSubcases(&card.cursor, subcases);
    rest = card.Rest();
  }

  std::size_t CaseCount() const { return static_cast<std::size_t>(subcases->size); }

  /// A subcase, counted from 0. The list's cursor stays where it is: the next subcase goes behind it.
  SubcaseRecord& Subcase(std::size_t index) {
    for (const ListCell* cell = subcases->next; cell != subcases; cell = cell->next) {
      if (index-- == 0) {
        return *static_cast<SubcaseRecord*>(cell->value);
      }
    }
    ADD_FAILURE() << "no such subcase";
    return missing;
  }

  // Entities of the host, filed under a set.
  Entity* AddForce(std::int32_t setId) {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    boundary->CreateForce(&force, &id);
    return File(setId, loadSet, force);
  }
  Entity* AddPressure(std::int32_t setId) {
    Pressure* pressure = nullptr;
    boundary->CreatePressure(&pressure);
    return File(setId, loadSet, pressure);
  }
  Entity* AddBodyLoad(std::int32_t setId) {
    BodyLoad* load = nullptr;
    boundary->CreateBodyLoad(&load);
    return File(setId, loadSet, load);
  }
  Entity* AddConstraint(std::int32_t setId, LoadSetKind kind, std::int32_t enforced) {
    Constraint* constraint = nullptr;
    boundary->CreateConstraint(&constraint, enforced);
    return File(setId, kind, constraint);
  }
  Entity* AddPlainConstraint(std::int32_t setId) { return AddConstraint(setId, constraintSet, 0); }
  Entity* AddEnforced(std::int32_t setId) { return AddConstraint(setId, loadSet, 1); }
  Entity* AddMpc(std::int32_t setId) {
    Mpc* mpc = nullptr;
    boundary->CreateMpc(&mpc);
    return File(setId, multiPointSet, mpc);
  }
  Entity* AddExcitation(std::int32_t setId) {
    Excitation* excitation = nullptr;
    boundary->CreateExcitation(&excitation);
    return File(setId, excitationSet, excitation);
  }
  Entity* AddTemperature(std::int32_t setId, LoadSetKind kind = temperatureSet) {
    ThermalLoad* load = nullptr;
    boundary->CreateThermalLoad(&load);
    return File(setId, kind, load);
  }
  Entity* AddSurface(std::int32_t setId, const wchar_t* name) {
    Surface* surface = nullptr;
    boundary->CreateSurface(&surface);
    surface->SetName(name);
    return File(setId, namedSet, surface);
  }
  Entity* AddNamedSet(std::int32_t setId) {
    EntitySet* set = nullptr;
    boundary->CreateSet(&set);
    return File(setId, namedSet, set);
  }

  /// A table of the host that is found as a curve.
  void AddCurve(std::int32_t id) {
    Field* field = nullptr;
    host.GetCurveStore()->CreateField(&field);
    field->SetId(id);
  }

  /// The load case decision, without the calls that filled the sets in the trace.
  void Assemble(std::int32_t targetSolver = 0) {
    trace.clear();
    AssembleLoadCases({targetSolver, subcases, boundary, host.GetCurveStore(), addBolts});
  }

  const std::deque<memory::MemoryLoadCase>& Cases() const { return host.Boundary().loadCases; }

  /// What a load case was given, in order.
  std::vector<Entity*> Members(std::size_t index) const {
    std::vector<Entity*> members;
    if (index < Cases().size()) {
      for (const auto& member : Cases()[index].members) {
        members.push_back(member.entity);
      }
    }
    return members;
  }

  /// Makes load cases of this case control, whatever the coverage, and gives what the first one holds.
  std::vector<Entity*> Selected(std::string_view caseControl) {
    ReadCases(caseControl);
    CreateLoadCases({0, subcases, boundary, host.GetCurveStore(), addBolts});
    return Members(0);
  }

  PooledList* subcases = &run.lists.subcases;
  BoundaryStore* boundary = host.GetBoundaryStore();
  AddBolts addBolts = [](LoadCase*, std::int32_t) {};
  std::string rest;
  SubcaseRecord missing = {};

 private:
  static Entity* File(std::int32_t setId, LoadSetKind kind, Entity* entity) {
    AddToLoadSet(setId, kind, entity);
    return entity;
  }
};

}  // namespace btz::test
