#include "cli/system_summary.h"

#include <unordered_map>

#include "cli/display_text.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

namespace {

std::string KindName(std::int32_t kind) {
  switch (kind) {
    case 1:
      return "rectangular";
    case 2:
      return "cylindrical";
    case 3:
      return "spherical";
    default:
      return "kind " + std::to_string(kind);
  }
}

std::unordered_map<std::int32_t, std::size_t> CountNodesBySystem(const memory::MemoryHost& host) {
  std::unordered_map<std::int32_t, std::size_t> counts;
  for (std::size_t i = 0; i < host.Nodes().Size(); ++i) {
    ++counts[host.Nodes()[i].coordinateSystemId];
  }
  return counts;
}

}  // namespace

std::vector<SystemSummary> SummariseSystems(const memory::MemoryHost& host) {
  std::unordered_map<std::int32_t, std::size_t> nodesOf = CountNodesBySystem(host);
  std::vector<SystemSummary> systems;
  for (const memory::MemoryCoordinateSystem& system : host.Boundary().coordinateSystems) {
    SystemSummary& summary = systems.emplace_back();
    summary.id = system.systemId;
    summary.kind = KindName(system.kind);
    summary.name = DisplayText(system.info.name);
    if (const MeshNode* a = system.points[0]) {
      summary.origin = {a->position[0], a->position[1], a->position[2]};
    }
    summary.nodes = system.systemId == 0 ? 0 : nodesOf[system.systemId];
  }
  return systems;
}

}  // namespace btz::cli
