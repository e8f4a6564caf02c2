#include "cli/model_summary.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <unordered_map>
#include <unordered_set>

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

/// Under which heading a kind of entity stands, and what it is called.
struct EntityWords {
  ObjectType type;
  const char* title;  ///< Null for those that have a table of their own.
  const char* kind;
  bool isForLoadCases;  ///< Acts through load cases.
};

/// In the order of the report.
constexpr EntityWords entityWords[] = {
    {ObjectType::Constraint, nullptr, "constraints", true},
    {ObjectType::ForceLoad, nullptr, "forces and moments", true},
    {ObjectType::BodyLoad, nullptr, "body loads", true},
    {ObjectType::NodeSystemAssignment, "displacement systems", "assignments to nodes", false},
    {ObjectType::Pressure, "other loads", "pressures", true},
    {ObjectType::Pretension, "other loads", "pretensions", false},
    {ObjectType::ThermalLoad, "other loads", "temperatures", true},
    {ObjectType::Flux, "other loads", "heat fluxes", true},
    {ObjectType::Convection, "other loads", "convections", true},
    {ObjectType::Excitation, "other loads", "excitations", true},
    {ObjectType::Mpc, "ties", "ties between nodes", true},
    {ObjectType::RigidConnection, "connections", "rigid connections", false},
    {ObjectType::Spring, "connections", "springs", false},
    {ObjectType::Bush, "connections", "bushes", false},
    {ObjectType::GapEntity, "connections", "gaps", false},
    {ObjectType::Damping, "connections", "dampings", false},
    {ObjectType::MassEntity, "masses", "masses", false},
    {ObjectType::PlotEntity, "plot elements", "plot elements", false},
    {ObjectType::EntitySet, "sets and surfaces", "sets", false},
    {ObjectType::Surface, "sets and surfaces", "surfaces", false},
};

const EntityWords* FindWords(ObjectType type) {
  const auto* words =
      std::find_if(std::begin(entityWords), std::end(entityWords), [type](const EntityWords& held) { return held.type == type; });
  return words == std::end(entityWords) ? nullptr : words;
}

/// Items by kind, with the kinds in order of first use.
class KindList {
 public:
  void Add(const std::string& kind, NamedItem item) {
    auto found = std::find_if(kinds_.begin(), kinds_.end(), [&](const ItemKind& held) { return held.kind == kind; });
    if (found == kinds_.end()) {
      found = kinds_.insert(found, ItemKind{kind, {}});
    }
    found->items.push_back(std::move(item));
  }

  std::vector<ItemKind> Take() { return std::move(kinds_); }

 private:
  std::vector<ItemKind> kinds_;
};

const char* KindOf(ObjectType type) {
  const EntityWords* words = FindWords(type);
  return words == nullptr ? memory::TypeName(type) : words->kind;
}

NamedItem ItemOf(const EntityInfo& entity) { return {entity.shownId, DisplayText(entity.name)}; }

/// Headings of the entities, in the order of the table, empty ones too.
void AddEntityGroups(const memory::MemoryBoundaryStore& store, std::vector<ItemGroup>& groups) {
  std::map<ObjectType, std::vector<NamedItem>> itemsByType;
  for (const EntityInfo* entity : store.entities) {
    itemsByType[entity->object.type].push_back(ItemOf(*entity));
  }
  const std::size_t firstGroup = groups.size();
  for (const EntityWords& words : entityWords) {
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

ParameterSummary Summarise(const memory::MemoryParameterSet::Parameter& parameter) {
  ParameterSummary summary{DisplayText(parameter.name), {}};
  if (!parameter.entity.empty()) {
    summary.value = DisplayText(parameter.entity);
  } else if (parameter.present) {
    summary.value = parameter.value;
  }
  return summary;
}

/// The load cases, and in `used` all entities that one of them has.
std::vector<LoadCaseSummary> LoadCases(const memory::MemoryBoundaryStore& store, std::unordered_set<const Entity*>* used) {
  std::unordered_map<const Entity*, const EntityInfo*> infoOf;
  for (const EntityInfo* entity : store.entities) {
    infoOf.emplace(entity->entity, entity);
  }
  std::vector<LoadCaseSummary> summaries;
  for (const memory::MemoryLoadCase& loadCase : store.loadCases) {
    LoadCaseSummary& summary = summaries.emplace_back();
    summary.name = DisplayText(loadCase.name);
    summary.solver = DisplayText(loadCase.solver);
    summary.analysis = DisplayText(loadCase.analysis);
    KindList members;
    for (const memory::MemoryLoadCase::Member& member : loadCase.members) {
      used->insert(member.entity);
      const auto found = infoOf.find(member.entity);
      if (found != infoOf.end()) {
        members.Add(KindOf(found->second->object.type), ItemOf(*found->second));
      }
    }
    summary.members = members.Take();
    for (const memory::MemoryParameterSet& set : loadCase.parameterSets) {
      for (const memory::MemoryParameterSet::Parameter& parameter : set.parameters) {
        summary.parameters.push_back(Summarise(parameter));
      }
    }
  }
  return summaries;
}

/// Entities that act through load cases and are not among the used ones.
std::vector<ItemKind> InNoLoadCase(const memory::MemoryBoundaryStore& store, const std::unordered_set<const Entity*>& used) {
  KindList kinds;
  for (const EntityInfo* entity : store.entities) {
    const EntityWords* words = FindWords(entity->object.type);
    if (words != nullptr && words->isForLoadCases && used.count(entity->entity) == 0) {
      kinds.Add(words->kind, ItemOf(*entity));
    }
  }
  return kinds.Take();
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
  summary.groups = {FieldGroup(host.Curves())};
  AddEntityGroups(host.Boundary(), summary.groups);
  summary.groups.push_back(ElementGroups(host.Groups()));
  std::unordered_set<const Entity*> used;
  summary.loadCases = LoadCases(host.Boundary(), &used);
  summary.inNoLoadCase = InNoLoadCase(host.Boundary(), used);
  summary.isHandedOver = host.IsAttached();
  return summary;
}

}  // namespace btz::cli
