#include "cli/model_summary.h"

#include <map>
#include <numeric>
#include <unordered_map>

#include "cli/display_text.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

namespace {

using memory::EntityInfo;
using memory::ObjectType;

constexpr std::array<const char*, elementTypes> typeNames = {
    "points",
    "lines, 2 nodes",
    "lines, 3 nodes",
    "triangles, 3 nodes",
    "triangles, 6 nodes",
    "quadrilaterals, 4 nodes",
    "quadrilaterals, 8 nodes",
    "tetrahedra, 4 nodes",
    "tetrahedra, 10 nodes",
    "rigid elements",
    "one-node elements",
    "two-node connections",
    "hexahedra, 8 nodes",
    "wedges, 6 nodes",
    "pyramids, 5 nodes",
    "hexahedra, 20 nodes",
    "wedges, 15 nodes",
};

/// Headings of the entities, in the order of the table, empty ones too.
void AddEntityGroups(const memory::MemoryBoundaryStore& store, std::vector<ItemGroup>& groups) {
  std::map<ObjectType, std::vector<NamedItem>> itemsByType;
  for (const EntityInfo* entity : store.entities) {
    itemsByType[entity->object.type].push_back(ItemOf(*entity));
  }
  const std::size_t firstGroup = groups.size();
  for (const EntityWords& words : AllEntityWords()) {
    if (words.title == nullptr) {
      continue;
    }
    if (groups.size() == firstGroup || groups.back().title != words.title) {
      groups.push_back({words.title, {}});
    }
    std::vector<NamedItem>& items = itemsByType[words.type];
    if (!items.empty()) {
      groups.back().kinds.push_back({words.kind, std::move(items)});
    }
  }
}

ItemGroup FieldGroup(const memory::MemoryCurveStore& store) {
  KindList kinds;
  for (const memory::MemoryField& field : store.fields) {
    kinds.Add(field.quantity.empty() ? "not described" : DisplayText(field.quantity), {field.id, DisplayText(field.name)});
  }
  return {"curves and fields", kinds.Take()};
}

ItemGroup ElementGroups(const memory::MemoryGroupStore& store) {
  KindList kinds;
  for (const memory::MemoryGroup& group : store.groups) {
    if (!group.deleted) {
      kinds.Add("groups of elements", {group.object.number, DisplayText(group.name)});
    }
  }
  return {"element groups", kinds.Take()};
}

std::vector<PartSummary> Parts(const MemoryHost& host) {
  std::vector<PartSummary> parts;
  std::unordered_map<const memory::MemoryBody*, std::size_t> placeOf;
  for (const memory::MemoryBody& body : host.Model().bodies) {
    placeOf.emplace(&body, parts.size());
    parts.push_back({body.id, body.number, DisplayText(body.name), body.rigid, static_cast<std::size_t>(body.faces.Size()), {}, {}});
  }
  for (std::size_t i = 0; i < host.Elements().Size(); ++i) {
    const memory::MemoryElement& element = host.Elements()[i];
    const auto found = placeOf.find(element.body);
    if (found != placeOf.end()) {
      ++parts[found->second].elements.at(static_cast<std::size_t>(element.typeIndex));
    }
  }
  return parts;
}

/// Tells properties and parts of each other.
void LinkProperties(const MemoryHost& host, ModelSummary* summary) {
  std::unordered_map<const MeshPart*, std::size_t> placeOf;
  for (const memory::MemoryBody& body : host.Model().bodies) {
    placeOf.emplace(&body, placeOf.size());
  }
  std::size_t property = 0;
  for (const memory::MemoryProperty& held : host.Materials().properties) {
    for (const MeshPart* part : held.parts) {
      const auto found = placeOf.find(part);
      if (found != placeOf.end()) {
        summary->parts[found->second].properties.push_back(property);
        summary->properties[property].parts.push_back(found->second);
      }
    }
    ++property;
  }
}

std::size_t NodesInLocalSystems(const MemoryHost& host) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < host.Nodes().Size(); ++i) {
    count += host.Nodes()[i].coordinateSystemId != 0 ? 1 : 0;
  }
  return count;
}

}  // namespace

const char* ElementTypeName(std::size_t typeIndex) { return typeNames.at(typeIndex); }

std::size_t Total(const ElementCounts& counts) { return std::accumulate(counts.begin(), counts.end(), std::size_t{0}); }

ModelSummary SummariseModel(const MemoryHost& host) {
  ModelSummary summary;
  summary.nodes = host.Nodes().Size();
  for (std::size_t i = 0; i < host.Elements().Size(); ++i) {
    ++summary.elements.at(static_cast<std::size_t>(host.Elements()[i].typeIndex));
  }
  summary.parts = Parts(host);
  summary.nodesInLocalSystems = NodesInLocalSystems(host);
  summary.properties = SummariseProperties(host);
  LinkProperties(host, &summary);
  summary.materials = SummariseMaterials(host);
  summary.systems = SummariseSystems(host);
  summary.constraints = SummariseConstraints(host);
  summary.forces = SummariseForces(host);
  summary.bodyLoads = SummariseBodyLoads(host);
  const FaceMeter meter(host);
  summary.pressures = SummarisePressures(host, meter);
  summary.sets = SummariseSets(host, meter);
  summary.groups = {FieldGroup(host.Curves())};
  AddEntityGroups(host.Boundary(), summary.groups);
  summary.groups.push_back(ElementGroups(host.Groups()));
  summary.loadCases = SummariseLoadCases(host);
  summary.inNoLoadCase = FindInNoLoadCase(host);
  summary.isHandedOver = host.IsAttached();
  return summary;
}

}  // namespace btz::cli
