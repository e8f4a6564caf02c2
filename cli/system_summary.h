// Coordinate systems of the in-memory host for a report.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace btz::memory {
class MemoryHost;
}

namespace btz::cli {

struct SystemSummary {
  std::int32_t id = 0;
  std::string kind;  ///< "cylindrical".
  std::string name;
  std::optional<std::array<double, 3>> origin;  ///< Nothing when the system was given no points.
  std::size_t nodes = 0;                        ///< Nodes whose coordinates the deck gives in a system of this id.
};

/// In order of creation.
std::vector<SystemSummary> SummariseSystems(const memory::MemoryHost& host);

}  // namespace btz::cli
