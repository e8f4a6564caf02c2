#include "analysis/case_parameters.h"

#include <cstring>

#include "analysis/fluid.h"
#include "analysis/frequency_response.h"
#include "loads/load_sets.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

// Type codes of parameters.
constexpr std::int32_t plainNumber = 1;
constexpr std::int32_t choice = 3;
constexpr std::int32_t systemName = 5;
constexpr std::int32_t surfaceName = 6;
constexpr std::int32_t optionalNumber = 7;

constexpr std::size_t entityNameCapacity = 512;

template <typename Record>
const Record* FindRecord(const HashTable* table, std::int32_t id) {
  return id == 0 ? nullptr : static_cast<const Record*>(HashFind(table, &id));
}

/// The id that a subcase asks for, or that of the whole deck.
std::int32_t OwnOrGlobal(std::int32_t own, std::int32_t global) { return own != 0 ? own : global; }

void SetOptionalLimits(ParameterSet* parameters, const EigrRecord& method) {
  parameters->SetInt(L"Normalization Method", method.normalization, choice);
  parameters->SetRealOptional(L"Min frequency", method.lowFrequency, method.lowPresent, optionalNumber);
  parameters->SetRealOptional(L"Max frequency", method.highFrequency, method.highPresent, optionalNumber);
  parameters->SetRealOptional(L"Number of Modes", method.modeCount, method.countPresent, optionalNumber);
}

void SetGivenLimits(ParameterSet* parameters, const EigrRecord& method) {
  parameters->SetInt(L"Normalization Method", method.normalization == 2 ? 1 : 0, choice);
  if (method.lowPresent != 0) {
    parameters->SetReal(L"Min frequency", method.lowFrequency);
  }
  if (method.highPresent != 0) {
    parameters->SetReal(L"Max frequency", method.highFrequency);
  }
  if (method.countPresent != 0) {
    parameters->SetInt(L"Number of Modes", method.modeCount, plainNumber);
  }
}

void SetName(ParameterSet* parameters, const wchar_t* parameter, Entity* entity, std::int32_t typeCode) {
  wchar_t name[entityNameCapacity] = {};
  entity->GetName(name);
  parameters->SetEntityName(parameter, name, typeCode);
}

void SetFluidSystem(ParameterSet* parameters, std::int32_t csId, BoundaryStore* boundary) {
  CoordinateSystem* system = nullptr;
  if (csId != 0) {
    boundary->GetCoordinateSystem(csId, &system);
  }
  if (system != nullptr) {
    SetName(parameters, L"Fluid coordinate system", system, systemName);
  }
}

void SetDampedSurfaces(ParameterSet* parameters, const wchar_t* parameter, std::int32_t listId) {
  LoadSetRecord* set = listId == 0 ? nullptr : FindLoadSet(listId, namedSet);
  if (set == nullptr) {
    return;
  }
  WalkList<Entity>(&set->items, [&](Entity* entity) {
    if (entity->GetEntityType() == entitySurface) {
      SetName(parameters, parameter, entity, surfaceName);
    }
  });
}

/// 1 for symmetry, 2 for antimetry, else 0.
std::int32_t SymmetryType(const char* plane) {
  if (std::strcmp(plane, "S") == 0) {
    return 1;
  }
  return std::strcmp(plane, "A") == 0 ? 2 : 0;
}

}  // namespace

void SetFrequencies(ParameterSet* parameters, const SubcaseRecord& subcase) {
  if (subcase.frequencyId == 0 || parameters == nullptr || !(subcase.frequencyCount > 0.0)) {
    return;
  }
  parameters->SetInt(L"No.of Frequency", TruncateToInt(subcase.frequencyCount), plainNumber);
  parameters->SetReal(L"Start frequency", subcase.frequencyStart);
  parameters->SetReal(L"Increment", subcase.frequencyStep);
}

void SetEigenvalueMethod(ParameterSet* parameters, const SubcaseRecord& subcase, bool isFrequencyResponse) {
  const std::int32_t id = OwnOrGlobal(subcase.methodId, GlobalMethodId);
  const auto* method = parameters == nullptr ? nullptr : FindRecord<EigrRecord>(&EigrTable, id);
  if (method == nullptr) {
    return;
  }
  parameters->SetInt(L"Extraction Method", method->methodKind, choice);
  if (isFrequencyResponse) {
    SetOptionalLimits(parameters, *method);
  } else {
    SetGivenLimits(parameters, *method);
  }
}

void SetFluid(ParameterSet* parameters, const SubcaseRecord& subcase, BoundaryStore* boundary) {
  const std::int32_t id = OwnOrGlobal(subcase.fluidId, GlobalMfluidId);
  const auto* fluid = parameters == nullptr ? nullptr : FindRecord<FluidRecord>(&FluidTable, id);
  if (fluid == nullptr) {
    return;
  }
  SetFluidSystem(parameters, fluid->csId, boundary);
  SetDampedSurfaces(parameters, L"One side damped surface", fluid->oneSideList);
  SetDampedSurfaces(parameters, L"Two side damped surface", fluid->twoSideList);
  parameters->SetReal(L"Free surface location on z-axis", fluid->freeSurface);
  parameters->SetReal(L"Fluid density", fluid->density);
  parameters->SetReal(L"Interaction ratio(RMAX)", fluid->ratio);
  parameters->SetInt(L"X-Z plane symmetry type", SymmetryType(fluid->firstPlane), choice);
  parameters->SetInt(L"Y-Z plane symmetry type", SymmetryType(fluid->secondPlane), choice);
  parameters->SetInt(L"Fluid direction", fluid->reversed == 1 ? 1 : 0, choice);
}

}  // namespace btz
