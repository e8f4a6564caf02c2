#include <nlohmann/json.hpp>

#include <type_traits>
#include <variant>

#include "cli/exit_codes.h"
#include "cli/report.h"

namespace btz::cli {

namespace {

using Json = nlohmann::ordered_json;

Json JsonOf(const ElementCounts& counts) {
  Json json = Json::object();
  for (std::size_t type = 0; type < counts.size(); ++type) {
    if (counts[type] != 0) {
      json[ElementTypeName(type)] = counts[type];
    }
  }
  return json;
}

Json JsonOf(const PartSummary& part) {
  return {{"id", part.id},
          {"number", part.number},
          {"name", part.name},
          {"rigid", part.isRigid},
          {"faces", part.faces},
          {"elements", JsonOf(part.elements)},
          {"properties", part.properties}};
}

/// Sets what a variant holds; null for nothing.
template <typename Variant>
void SetHeld(Json& shown, const Variant& value) {
  shown = nullptr;
  std::visit(
      [&](const auto& held) {
        if constexpr (!std::is_same_v<std::decay_t<decltype(held)>, std::monostate>) {
          shown = held;
        }
      },
      value);
}

/// Values by key; null for a value that the deck left blank and for a material that is none.
Json JsonOf(const std::vector<ValueSummary>& values) {
  Json json = Json::object();
  for (const ValueSummary& value : values) {
    SetHeld(json[value.key], value.value);
  }
  return json;
}

Json JsonOf(const PropertySummary& property) {
  Json material = nullptr;
  if (property.material) {
    material = {{"number", property.material->number}, {"name", property.material->name}};
  }
  return {{"id", property.id},    {"name", property.name},   {"class", property.kind},
          {"material", material}, {"parts", property.parts}, {"values", JsonOf(property.values)}};
}

Json JsonOf(const MaterialSummary& material) {
  return {{"number", material.number}, {"name", material.name}, {"class", material.kind}, {"values", JsonOf(material.values)}};
}

Json JsonOf(const SystemSummary& system) {
  Json origin = nullptr;
  if (system.origin) {
    origin = *system.origin;
  }
  return {{"id", system.id}, {"kind", system.kind}, {"name", system.name}, {"origin", origin}, {"nodes", system.nodes}};
}

Json JsonOf(const ConstraintSummary& constraint) {
  Json json = {
      {"id", constraint.id}, {"name", constraint.name},         {"enforced", constraint.isEnforced}, {"components", constraint.components},
      {"values", nullptr},   {"byField", constraint.isByField}, {"nodes", constraint.nodes},         {"system", constraint.system}};
  if (constraint.isEnforced && !constraint.isByField) {
    json["values"] = constraint.values;
  }
  return json;
}

Json JsonOf(const ForceSummary& force) {
  Json json = {{"id", force.id},       {"name", force.name},    {"force", nullptr}, {"moment", nullptr}, {"byField", force.isByField},
               {"nodes", force.nodes}, {"system", force.system}};
  if (!force.isByField) {
    json["force"] = force.force;
    json["moment"] = force.moment;
  }
  return json;
}

Json JsonOf(const BodyLoadSummary& load) {
  return {{"id", load.id}, {"name", load.name}, {"kind", load.kind}, {"vector", load.vector}, {"parts", load.parts}};
}

Json JsonOf(const PressureSummary& pressure) {
  return {{"id", pressure.id},           {"name", pressure.name},         {"byField", pressure.isByField}, {"lowest", pressure.lowest},
          {"highest", pressure.highest}, {"parts", pressure.faces.parts}, {"faces", pressure.faces.faces}, {"area", pressure.faces.area}};
}

Json JsonOf(const SetSummary& set) {
  Json json = {{"id", set.id}, {"name", set.name}, {"kind", set.kind}, {"members", set.members}};
  if (set.isSurface) {
    json["parts"] = set.faces.parts;
    json["area"] = set.faces.area;
  }
  return json;
}

Json JsonOf(const std::vector<ItemKind>& kinds) {
  Json json = Json::object();
  for (const ItemKind& kind : kinds) {
    Json& items = json[kind.kind] = Json::array();
    for (const NamedItem& item : kind.items) {
      items.push_back({{"id", item.id}, {"name", item.name}});
    }
  }
  return json;
}

/// Values by name; null for one that is not given.
Json JsonOf(const std::vector<ParameterSummary>& parameters) {
  Json json = Json::object();
  for (const ParameterSummary& parameter : parameters) {
    SetHeld(json[parameter.name], parameter.value);
  }
  return json;
}

Json JsonOf(const LoadCaseSummary& loadCase) {
  return {{"name", loadCase.name},
          {"solver", loadCase.solver},
          {"analysis", loadCase.analysis},
          {"members", JsonOf(loadCase.members)},
          {"parameters", JsonOf(loadCase.parameters)}};
}

template <typename Item>
Json ArrayOf(const std::vector<Item>& items) {
  Json json = Json::array();
  for (const Item& item : items) {
    json.push_back(JsonOf(item));
  }
  return json;
}

/// Parts and properties name each other by their places in the lists, from 0: ids need not be unique.
Json JsonOf(const ModelSummary& model) {
  Json json = {{"handedOver", model.isHandedOver},
               {"nodes", model.nodes},
               {"nodesInLocalSystems", model.nodesInLocalSystems},
               {"elements", JsonOf(model.elements)},
               {"parts", ArrayOf(model.parts)},
               {"properties", ArrayOf(model.properties)},
               {"materials", ArrayOf(model.materials)},
               {"coordinate systems", ArrayOf(model.systems)},
               {"constraints", ArrayOf(model.constraints)},
               {"forces and moments", ArrayOf(model.forces)},
               {"body loads", ArrayOf(model.bodyLoads)},
               {"pressures", ArrayOf(model.pressures)},
               {"sets", ArrayOf(model.sets)}};
  for (const ItemGroup& group : model.groups) {
    json[group.title] = JsonOf(group.kinds);
  }
  json["load cases"] = ArrayOf(model.loadCases);
  json["in no load case"] = JsonOf(model.inNoLoadCase);
  return json;
}

Json JsonOf(const LogDigest& log) {
  Json json = {{"written", log.isPresent}, {"complete", log.isComplete}, {"nodesRead", log.nodesRead}};
  Json& elementsRead = json["elementsRead"] = Json::object();
  for (const CardCount& card : log.elementsRead) {
    elementsRead[card.what] = card.count;
  }
  json["steps"] = log.steps;
  json["missingIncludes"] = log.missingIncludes;
  Json& refusals = json["refusals"] = Json::array();
  for (const Refusals& refused : log.refusals) {
    refusals.push_back({{"what", refused.what}, {"count", refused.count}, {"firstIds", refused.firstIds}});
  }
  json["otherLines"] = log.otherLines;
  return json;
}

}  // namespace

std::string ReportJson(const RunReport& report) {
  const Json json = {{"deck", {{"name", report.deckName}, {"bytes", report.deckBytes}}},
                     {"result", {{"code", report.result}, {"words", ResultInWords(report.result)}}},
                     {"seconds", report.seconds},
                     {"model", JsonOf(report.model)},
                     {"log", JsonOf(report.log)}};
  // Names come from the deck, which may be in any encoding.
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace btz::cli
