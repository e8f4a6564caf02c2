#include "analysis/load_cases.h"

#include <cwchar>
#include <iterator>

#include "analysis/case_parameters.h"
#include "analysis/case_selection.h"
#include "loads/load_sets.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr wchar_t frequencyResponse[] = L"FREQUENCY";

/// Analysis of a case for NASTRAN, by the solution sequence.
const wchar_t* AnalysisOfSolution() {
  switch (SolNumber) {
    case 103:
      return L"NORMALMODE";
    case 106:
      return L"NONLINEAR";
    case 111:
      return frequencyResponse;
    case 153:
    case 159:
      return L"STEADYSTATE";
    default:
      return L"LINEAR";
  }
}

/// Name of the analysis of a subcase that names none, by the solution sequence.
const char* DefaultAnalysisName() {
  switch (SolNumber) {
    case 101:
      return "STATICS";
    case 103:
      return "MODES";
    case 106:
      return "NLSTAT";
    case 111:
      return "MFREQ";
    case 153:
    case 159:
      return "HEAT";
    default:
      return "";
  }
}

/// Analysis of a case for RADIOSS, by the name of the subcase's analysis.
const wchar_t* AnalysisOfSubcase(const SubcaseRecord& subcase) {
  const char* name = subcase.analysisName[0] != 0 ? subcase.analysisName : DefaultAnalysisName();
  const auto is = [name](const char* other) { return CompareNoCase(name, other) == 0; };
  if (is("STATICS")) {
    return L"LINEAR";
  }
  if (is("NLSTAT")) {
    return L"NONLINEAR";
  }
  if (is("MODES")) {
    return L"NORMALMODE";
  }
  if (is("MFREQ") || subcase.frequencyId != 0) {
    return frequencyResponse;
  }
  return is("HEAT") ? L"STEADYSTATE" : L"LINEAR";
}

/// A damping entity of a table, or null when there is no such table.
Damping* CreateGlobalDamping(BoundaryStore* boundary, CurveStore* curves, std::int32_t id) {
  if (id == 0 || curves == nullptr) {
    return nullptr;
  }
  Curve* curve = nullptr;
  curves->GetCurve(id, &curve);
  if (curve == nullptr) {
    return nullptr;
  }
  Damping* damping = nullptr;
  boundary->CreateDamping(&damping);
  if (damping == nullptr) {
    return nullptr;
  }
  damping->SetCurve(curve);
  damping->SetId(id);
  wchar_t name[32];
  FormatNumbered(name, std::size(name), "Global_Damp_", id);
  damping->SetName(name);
  return damping;
}

/// Adds entities to a load case.
class CaseFiller final : public EntityTaker {
 public:
  explicit CaseFiller(LoadCase* loadCase) : loadCase_(loadCase) {}
  void Take(Entity* entity) override { loadCase_->AddEntity(entity, 0, 0.0); }

 private:
  LoadCase* loadCase_;
};

/// Counts the entities that a load case would get.
class EntityCounter final : public EntityTaker {
 public:
  void Take(Entity* /*entity*/) override { ++count_; }
  std::int64_t Count() const { return count_; }

 private:
  std::int64_t count_ = 0;
};

void NameCase(LoadCase* loadCase, const SubcaseRecord& subcase, std::int32_t number) {
  wchar_t name[sizeof(subcase.title)];
  if (subcase.title[0] != 0) {
    Widen(name, std::size(name), subcase.title);
  } else {
    FormatNumbered(name, std::size(name), "LoadCase_", number);
  }
  loadCase->SetName(name);
}

void FillCase(LoadCase* loadCase, const SubcaseRecord& subcase, std::int32_t number, const LoadCaseAssembly& assembly) {
  NameCase(loadCase, subcase, number);
  const bool nastran = assembly.targetSolver == 0;
  const wchar_t* solver = nastran ? L"NASTRAN" : L"RADIOSS";
  const wchar_t* analysis = nastran ? AnalysisOfSolution() : AnalysisOfSubcase(subcase);
  const bool isFrequencyResponse = std::wcscmp(analysis, frequencyResponse) == 0;
  loadCase->SetSolverProfile(solver, analysis);
  ParameterSet* parameters = loadCase->GetParameters(solver, analysis, 14);
  CaseFiller filler(loadCase);
  SelectEntities(subcase, &filler);
  Damping* damping = CreateGlobalDamping(assembly.boundary, assembly.curves, subcase.dampingId);
  if (damping != nullptr) {
    loadCase->AddEntity(damping, 0, 0.0);
  }
  SetFrequencies(parameters, subcase);
  assembly.addBolts(loadCase, subcase.pretensionId);
  SetEigenvalueMethod(parameters, subcase, isFrequencyResponse);
  if (isFrequencyResponse) {
    SetFluid(parameters, subcase, assembly.boundary);
  }
}

SubcaseRecord* FirstSubcase(PooledList* subcaseList) {
  ListRewind(subcaseList);
  return static_cast<SubcaseRecord*>(ListNext(subcaseList));
}

}  // namespace

void AssembleLoadCases(const LoadCaseAssembly& assembly) {
  const std::int32_t count = assembly.subcaseList->size;
  bool casesMade = false;
  if (count == 1) {
    CheckSingleSubcaseCoverage(assembly.subcaseList);
    casesMade = SubcaseNeedsCases != 0;
  } else {
    casesMade = count > 1 && LoadSetTable.size != 0;
  }
  if (casesMade) {
    CreateLoadCases(assembly);
  }
  std::int32_t dampingId = GlobalSdampingId;
  if (dampingId == 0 && count == 1 && !casesMade) {
    dampingId = FirstSubcase(assembly.subcaseList)->dampingId;
  }
  CreateGlobalDamping(assembly.boundary, assembly.curves, dampingId);
}

void CheckSingleSubcaseCoverage(PooledList* subcaseList) {
  std::int64_t total = 0;
  WalkIndexedList<LoadSetRecord>(&LoadSetTable, [&](const LoadSetRecord* set) {
    if (set->kind != pretensionSet && set->kind != namedSet) {
      total += set->items.size;
    }
  });
  EntityCounter used;
  const SubcaseRecord* subcase = FirstSubcase(subcaseList);
  if (subcase != nullptr) {
    SelectEntities(*subcase, &used);
  }
  if (used.Count() != total) {
    SubcaseNeedsCases = 1;
  }
}

void CreateLoadCases(const LoadCaseAssembly& assembly) {
  std::int32_t number = 0;
  bool goesOn = true;
  WalkList<SubcaseRecord>(assembly.subcaseList, [&](const SubcaseRecord* subcase) {
    if (!goesOn || subcase->skip != 0) {
      return;
    }
    LoadCase* loadCase = nullptr;
    if (assembly.boundary->CreateLoadCase(&loadCase, -1) != 0 || loadCase == nullptr) {
      goesOn = false;
      return;
    }
    FillCase(loadCase, *subcase, ++number, assembly);
  });
}

}  // namespace btz
