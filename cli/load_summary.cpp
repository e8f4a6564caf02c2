#include "cli/load_summary.h"

#include <algorithm>

#include "cli/display_text.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

namespace {

/// The digits of the components whose bits are set: 1 to 3 for translations, 4 to 6 for rotations.
std::string ComponentDigits(std::int32_t translationMask, std::int32_t rotationMask) {
  std::string digits;
  for (std::int32_t component = 0; component < 6; ++component) {
    const std::int32_t mask = component < 3 ? translationMask : rotationMask;
    if ((mask >> (component % 3) & 1) != 0) {
      digits += static_cast<char>('1' + component);
    }
  }
  return digits;
}

bool IsZero(const Vector& vector) {
  return std::all_of(vector.begin(), vector.end(), [](double value) { return value == 0.0; });
}

/// Finds the one of its three vectors that the load was given.
void SetKindAndVector(const memory::MemoryBodyLoad& load, BodyLoadSummary* summary) {
  const struct {
    const char* kind;
    const Vector& vector;
  } kinds[] = {{"gravity", load.gravity}, {"rotation", load.rotation}, {"scaled rotation", load.scaledRotation}};
  summary->kind = "none";
  for (const auto& held : kinds) {
    if (!IsZero(held.vector)) {
      summary->kind = held.kind;
      summary->vector = held.vector;
    }
  }
}

/// Finds the lowest and highest value of a field: the last column of its rows.
void SetRange(const memory::MemoryField& field, PressureSummary* summary) {
  bool isFirst = true;
  for (const std::vector<double>& row : field.rows) {
    if (row.empty()) {
      continue;
    }
    summary->lowest = isFirst ? row.back() : std::min(summary->lowest, row.back());
    summary->highest = isFirst ? row.back() : std::max(summary->highest, row.back());
    isFirst = false;
  }
}

}  // namespace

std::vector<ConstraintSummary> SummariseConstraints(const memory::MemoryHost& host) {
  std::vector<ConstraintSummary> constraints;
  for (const memory::MemoryConstraint& constraint : host.Boundary().constraints) {
    ConstraintSummary& summary = constraints.emplace_back();
    summary.id = constraint.info.shownId;
    summary.name = DisplayText(constraint.info.name);
    summary.isEnforced = constraint.enforced != 0;
    summary.components = ComponentDigits(constraint.translationMask, constraint.rotationMask);
    if (summary.isEnforced) {
      std::copy(constraint.translations.begin(), constraint.translations.end(), summary.values.begin());
      std::copy(constraint.rotations.begin(), constraint.rotations.end(), summary.values.begin() + 3);
    }
    summary.isByField = constraint.field != nullptr;
    summary.nodes = static_cast<std::size_t>(constraint.nodes.Size());
    summary.system = constraint.coordinateSystem;
  }
  return constraints;
}

std::vector<ForceSummary> SummariseForces(const memory::MemoryHost& host) {
  std::vector<ForceSummary> forces;
  for (const memory::MemoryForce& force : host.Boundary().forces) {
    forces.push_back({force.info.shownId, DisplayText(force.info.name), force.force, force.moment, force.field != nullptr,
                      force.nodes.size(), force.coordinateSystem});
  }
  return forces;
}

std::vector<BodyLoadSummary> SummariseBodyLoads(const memory::MemoryHost& host) {
  std::vector<BodyLoadSummary> loads;
  for (const memory::MemoryBodyLoad& load : host.Boundary().bodyLoads) {
    BodyLoadSummary& summary = loads.emplace_back();
    summary.id = load.info.shownId;
    summary.name = DisplayText(load.info.name);
    SetKindAndVector(load, &summary);
    summary.parts = static_cast<std::size_t>(load.info.parts.Size());
  }
  return loads;
}

std::vector<PressureSummary> SummarisePressures(const memory::MemoryHost& host, const FaceMeter& meter) {
  std::vector<PressureSummary> pressures;
  for (const memory::MemoryPressure& pressure : host.Boundary().pressures) {
    PressureSummary& summary = pressures.emplace_back();
    summary.id = pressure.info.shownId;
    summary.name = DisplayText(pressure.info.name);
    summary.isByField = pressure.field != nullptr;
    if (summary.isByField) {
      SetRange(*static_cast<const memory::MemoryField*>(pressure.field), &summary);
    } else {
      summary.lowest = pressure.pressure;
      summary.highest = pressure.pressure;
    }
    summary.faces = meter.Measure(pressure.info.parts);
  }
  return pressures;
}

}  // namespace btz::cli
