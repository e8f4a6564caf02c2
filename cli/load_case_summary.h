// Load cases of the in-memory host for a report: what acts in them, their parameters, and what acts in none.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "cli/entity_kinds.h"

namespace btz::memory {
class MemoryHost;
}

namespace btz::cli {

/// A parameter of a load case's analysis.
struct ParameterSummary {
  std::string name;
  std::variant<std::monostate, double, std::string> value;  ///< Nothing when it was said not to be given.
};

struct LoadCaseSummary {
  std::string name;
  std::string solver;
  std::string analysis;
  std::vector<ItemKind> members;  ///< Kinds of the entities that act in it.
  std::vector<ParameterSummary> parameters;
};

/// The load cases, in order of creation.
std::vector<LoadCaseSummary> SummariseLoadCases(const memory::MemoryHost& host);

/// Constraints and loads that no load case has, by kind. Without load cases all of them.
std::vector<ItemKind> FindInNoLoadCase(const memory::MemoryHost& host);

}  // namespace btz::cli
