// Constraints and loads of the in-memory host for a report: who they are, what they do, and on how much of the model.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cli/face_summary.h"

namespace btz::memory {
class MemoryHost;
}

namespace btz::cli {

using Vector = std::array<double, 3>;

struct ConstraintSummary {
  std::int32_t id = 0;
  std::string name;
  bool isEnforced = false;
  std::string components;          ///< The digits of those that it holds: "123".
  std::array<double, 6> values{};  ///< Enforced values, by component.
  bool isByField = false;          ///< The enforced values are those of a field, node by node.
  std::size_t nodes = 0;
  std::int32_t system = 0;  ///< Id of the system of the components, 0 for the global one.
};

struct ForceSummary {
  std::int32_t id = 0;
  std::string name;
  Vector force{};
  Vector moment{};
  bool isByField = false;  ///< The vectors are those of a field, node by node.
  std::size_t nodes = 0;
  std::int32_t system = 0;  ///< Id of the system of the vectors, 0 for the global one.
};

struct BodyLoadSummary {
  std::int32_t id = 0;
  std::string name;
  std::string kind;  ///< "gravity", "rotation", "scaled rotation"; "none" when its vector is zero.
  Vector vector{};
  std::size_t parts = 0;
};

struct PressureSummary {
  std::int32_t id = 0;
  std::string name;
  double lowest = 0.0;  ///< Lowest and highest value, the same when it is uniform.
  double highest = 0.0;
  bool isByField = false;  ///< The values are those of a field, by position.
  FaceSummary faces;
};

// Each in order of creation.
std::vector<ConstraintSummary> SummariseConstraints(const memory::MemoryHost& host);
std::vector<ForceSummary> SummariseForces(const memory::MemoryHost& host);
std::vector<BodyLoadSummary> SummariseBodyLoads(const memory::MemoryHost& host);
std::vector<PressureSummary> SummarisePressures(const memory::MemoryHost& host, const FaceMeter& meter);

}  // namespace btz::cli
