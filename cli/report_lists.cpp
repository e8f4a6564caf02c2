#include "cli/report_lists.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "cli/report_tables.h"

namespace btz::cli {

namespace {

/// A line for each kind below a load case: "pressures  1  Pressure2".
std::string MembersText(const std::vector<ItemKind>& kinds) {
  std::string text;
  for (const ItemKind& kind : kinds) {
    text += fmt::format("      {:<{}}{:<6}  {}\n", kind.kind, labelWidth, kind.items.size(), NamesText(kind));
  }
  return text;
}

std::string ParameterText(const ParameterSummary& parameter) {
  if (const double* number = std::get_if<double>(&parameter.value)) {
    return fmt::format("      {} = {:g}\n", parameter.name, *number);
  }
  const std::string* name = std::get_if<std::string>(&parameter.value);
  return fmt::format("      {} = {}\n", parameter.name, name == nullptr ? "unset" : *name);
}

std::string LoadCaseText(const LoadCaseSummary& loadCase) {
  std::string text = fmt::format("  {}  ({}, {}){}\n", loadCase.name.empty() ? "(no name)" : loadCase.name, loadCase.solver,
                                 loadCase.analysis, loadCase.members.empty() ? ": empty" : "");
  text += MembersText(loadCase.members);
  for (const ParameterSummary& parameter : loadCase.parameters) {
    text += ParameterText(parameter);
  }
  return text;
}

}  // namespace

std::string NamesText(const ItemKind& kind) {
  std::vector<std::string> names;
  for (const NamedItem& item : kind.items) {
    if (names.size() == mostNames) {
      names.push_back("...");
      break;
    }
    names.push_back(item.name.empty() ? fmt::format("id {}", item.id) : item.name);
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

std::string LoadCasesText(const ModelSummary& model) {
  std::string text;
  const std::size_t shown = std::min(model.loadCases.size(), mostRows);
  for (std::size_t i = 0; i < shown; ++i) {
    text += LoadCaseText(model.loadCases[i]);
  }
  if (shown < model.loadCases.size()) {
    text += RestLine(model.loadCases.size() - shown);
  }
  if (!model.inNoLoadCase.empty()) {
    text += "  in no load case\n" + MembersText(model.inNoLoadCase);
  }
  return text;
}

}  // namespace btz::cli
