#include "cli/set_summary.h"

#include "cli/display_text.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

namespace {

constexpr std::int32_t surfaceKind = 2;

std::string KindName(std::int32_t kind) {
  switch (kind) {
    case 0:
      return "nodes";
    case 1:
      return "elements";
    case surfaceKind:
      return "surface";
    case 3:
      return "elements with solids";
    case 4:
      return "rigid elements";
    default:
      return "kind " + std::to_string(kind);
  }
}

}  // namespace

std::vector<SetSummary> SummariseSets(const memory::MemoryHost& host, const FaceMeter& meter) {
  std::vector<SetSummary> sets;
  for (const memory::MemoryEntitySet& set : host.Boundary().sets) {
    SetSummary& summary = sets.emplace_back();
    summary.id = set.info.shownId;
    summary.name = DisplayText(set.info.name);
    summary.kind = KindName(set.kind);
    summary.isSurface = set.kind == surfaceKind;
    if (summary.isSurface) {
      summary.faces = meter.Measure(set.info.parts);
      summary.members = summary.faces.faces;
    } else {
      summary.members = set.nodes.size() + set.elements.size();
    }
  }
  return sets;
}

}  // namespace btz::cli
