// What stands in the in-memory host after a run, counted and named for a report: plain data, which says nothing of how the host keeps it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cli/entity_kinds.h"
#include "cli/load_case_summary.h"
#include "cli/load_summary.h"
#include "cli/property_summary.h"
#include "cli/set_summary.h"
#include "cli/system_summary.h"

namespace btz::memory {
class MemoryHost;
}

namespace btz::cli {

inline constexpr std::size_t elementTypes = 17;  ///< Type indices 0 to 16.

/// Number of elements of each type, by type index.
using ElementCounts = std::array<std::size_t, elementTypes>;

/// Name of an element type, in the plural: "quadrilaterals, 4 nodes".
const char* ElementTypeName(std::size_t typeIndex);

std::size_t Total(const ElementCounts& counts);

struct PartSummary {
  std::int32_t id = 0;
  std::int32_t number = 0;  ///< Running number for display, 0 when the part was given none.
  std::string name;
  bool isRigid = false;
  std::size_t faces = 0;
  ElementCounts elements{};
  std::vector<std::size_t> properties;  ///< Places of its properties in the model's list.
};

/// A heading of the report, "other loads", with the kinds of it that the model has.
struct ItemGroup {
  std::string title;
  std::vector<ItemKind> kinds;
};

struct ModelSummary {
  std::size_t nodes = 0;
  std::size_t nodesInLocalSystems = 0;  ///< Nodes whose coordinates the deck gives in a system of its own.
  ElementCounts elements{};
  std::vector<PartSummary> parts;
  std::vector<PropertySummary> properties;
  std::vector<MaterialSummary> materials;
  std::vector<SystemSummary> systems;
  std::vector<ConstraintSummary> constraints;
  std::vector<ForceSummary> forces;
  std::vector<BodyLoadSummary> bodyLoads;
  std::vector<PressureSummary> pressures;
  std::vector<SetSummary> sets;
  std::vector<ItemGroup> groups;  ///< The other headings, in the report's order; empty ones have no kinds.
  std::vector<LoadCaseSummary> loadCases;
  /// Constraints and loads that no load case has, by kind. Without load cases all of them.
  std::vector<ItemKind> inNoLoadCase;
  bool isHandedOver = false;  ///< The host received the finished model.
};

/// Reads the host.
ModelSummary SummariseModel(const memory::MemoryHost& host);

}  // namespace btz::cli
