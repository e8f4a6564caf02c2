// Load cases: each subcase becomes a load case of the host that points at the entities it asks for, with the solver profile and the parameters of
// its analysis. Everything was created before; here it is only selected.
#pragma once

#include "analysis/case_control.h"
#include "host/host_interfaces.h"

namespace btz {

/// Adds the pretension entities of a subcase's `pretensionId` to its load case.
using AddBolts = void (*)(LoadCase* loadCase, std::int32_t pretensionId);

/// What the assembly works with.
struct LoadCaseAssembly {
  std::int32_t targetSolver;  ///< 0: NASTRAN; else RADIOSS.
  PooledList* subcaseList;    ///< SubcaseRecord.
  BoundaryStore* boundary;
  CurveStore* curves;
  AddBolts addBolts;
};

/// Decides whether load cases are wanted and makes them; then makes the damping of the whole model, if there is one. A single subcase that uses all
/// that there is needs no load case.
void AssembleLoadCases(const LoadCaseAssembly& assembly);

/// Sets SubcaseNeedsCases when the first subcase does not use just as many entities as the sets hold.
void CheckSingleSubcaseCoverage(PooledList* subcaseList);

/// Makes a load case of each subcase that is not skipped. A refusal of the host ends the stage.
void CreateLoadCases(const LoadCaseAssembly& assembly);

}  // namespace btz
