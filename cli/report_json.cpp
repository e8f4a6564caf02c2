#include <nlohmann/json.hpp>

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
  return {{"id", part.id},         {"number", part.number}, {"name", part.name},
          {"rigid", part.isRigid}, {"faces", part.faces},   {"elements", JsonOf(part.elements)}};
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

Json JsonOf(const LoadCaseSummary& loadCase) {
  return {{"name", loadCase.name}, {"solver", loadCase.solver}, {"analysis", loadCase.analysis}, {"members", JsonOf(loadCase.members)}};
}

Json JsonOf(const ModelSummary& model) {
  Json json = {{"handedOver", model.isHandedOver}, {"nodes", model.nodes}, {"elements", JsonOf(model.elements)}};
  Json& parts = json["parts"] = Json::array();
  for (const PartSummary& part : model.parts) {
    parts.push_back(JsonOf(part));
  }
  for (const ItemGroup& group : model.groups) {
    json[group.title] = JsonOf(group.kinds);
  }
  Json& loadCases = json["load cases"] = Json::array();
  for (const LoadCaseSummary& loadCase : model.loadCases) {
    loadCases.push_back(JsonOf(loadCase));
  }
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
