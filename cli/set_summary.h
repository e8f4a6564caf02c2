// Sets and surfaces of the in-memory host for a report.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cli/face_summary.h"

namespace btz::cli {

struct SetSummary {
  std::int32_t id = 0;
  std::string name;
  std::string kind;         ///< "nodes", "elements", "elements with solids", "rigid elements", "surface".
  std::size_t members = 0;  ///< Nodes or elements, or the faces of a surface.
  bool isSurface = false;
  FaceSummary faces;  ///< Of a surface.
};

/// In order of creation.
std::vector<SetSummary> SummariseSets(const memory::MemoryHost& host, const FaceMeter& meter);

}  // namespace btz::cli
