#include "cli/load_case_summary.h"

#include <unordered_map>
#include <unordered_set>

#include "cli/display_text.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

namespace {

using memory::EntityInfo;

using InfoByEntity = std::unordered_map<const Entity*, const EntityInfo*>;

ParameterSummary Summarise(const memory::MemoryParameterSet::Parameter& parameter) {
  ParameterSummary summary{DisplayText(parameter.name), {}};
  if (!parameter.entity.empty()) {
    summary.value = DisplayText(parameter.entity);
  } else if (parameter.present) {
    summary.value = parameter.value;
  }
  return summary;
}

std::vector<ItemKind> Members(const memory::MemoryLoadCase& loadCase, const InfoByEntity& infoOf) {
  KindList members;
  for (const memory::MemoryLoadCase::Member& member : loadCase.members) {
    const auto found = infoOf.find(member.entity);
    if (found != infoOf.end()) {
      members.Add(KindOf(found->second->object.type), ItemOf(*found->second));
    }
  }
  return members.Take();
}

}  // namespace

std::vector<LoadCaseSummary> SummariseLoadCases(const memory::MemoryHost& host) {
  InfoByEntity infoOf;
  for (const EntityInfo* entity : host.Boundary().entities) {
    infoOf.emplace(entity->entity, entity);
  }
  std::vector<LoadCaseSummary> summaries;
  for (const memory::MemoryLoadCase& loadCase : host.Boundary().loadCases) {
    LoadCaseSummary& summary = summaries.emplace_back();
    summary.name = DisplayText(loadCase.name);
    summary.solver = DisplayText(loadCase.solver);
    summary.analysis = DisplayText(loadCase.analysis);
    summary.members = Members(loadCase, infoOf);
    for (const memory::MemoryParameterSet& set : loadCase.parameterSets) {
      for (const memory::MemoryParameterSet::Parameter& parameter : set.parameters) {
        summary.parameters.push_back(Summarise(parameter));
      }
    }
  }
  return summaries;
}

std::vector<ItemKind> FindInNoLoadCase(const memory::MemoryHost& host) {
  std::unordered_set<const Entity*> used;
  for (const memory::MemoryLoadCase& loadCase : host.Boundary().loadCases) {
    for (const memory::MemoryLoadCase::Member& member : loadCase.members) {
      used.insert(member.entity);
    }
  }
  KindList kinds;
  for (const EntityInfo* entity : host.Boundary().entities) {
    const EntityWords* words = FindWords(entity->object.type);
    if (words != nullptr && words->isForLoadCases && used.count(entity->entity) == 0) {
      kinds.Add(words->kind, ItemOf(*entity));
    }
  }
  return kinds.Take();
}

}  // namespace btz::cli
