#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <vector>

#include "cli/exit_codes.h"
#include "cli/report.h"
#include "cli/report_lists.h"
#include "cli/report_tables.h"

namespace btz::cli {

namespace {

constexpr std::size_t widestLine = 100;
constexpr std::size_t mostLines = 10;  ///< Lines of the log shown that the digest has no place for.

std::string Join(const std::vector<std::string>& parts) { return fmt::format("{}", fmt::join(parts, ", ")); }

/// The same on as many lines as it takes; those behind the first begin under it.
std::string JoinWrapped(const std::vector<std::string>& parts) {
  std::string text;
  std::size_t column = labelWidth;
  for (const std::string& part : parts) {
    if (!text.empty()) {
      text += ',';
      if (column + 2 + part.size() > widestLine) {
        text += '\n' + std::string(labelWidth, ' ');
        column = labelWidth;
      } else {
        text += ' ';
        column += 2;
      }
    }
    text += part;
    column += part.size();
  }
  return text;
}

class TextReport {
 public:
  std::string Take() { return std::move(text_); }

  /// Whole lines.
  void Append(const std::string& lines) { text_ += lines; }

  void Blank() { text_ += '\n'; }

  /// A heading with its value.
  template <typename Value>
  void Heading(const std::string& label, const Value& value) {
    const std::size_t width = std::max(labelWidth, label.size() + 2);
    fmt::format_to(std::back_inserter(text_), "{:<{}}{}\n", label, width, value);
  }

  /// An indented line below a heading.
  template <typename Value>
  void Detail(const std::string& label, const Value& value) {
    Heading("  " + label, value);
  }

  template <typename... Values>
  void Line(fmt::format_string<Values...> format, Values&&... values) {
    fmt::format_to(std::back_inserter(text_), format, std::forward<Values>(values)...);
    text_ += '\n';
  }

 private:
  std::string text_;
};

std::string SpeedText(const RunReport& report) {
  if (report.seconds <= 0.0) {
    return fmt::format("{:.3f} s", report.seconds);
  }
  return fmt::format("{:.3f} s, {:.1f} MB/s", report.seconds, static_cast<double>(report.deckBytes) / 1e6 / report.seconds);
}

void AddMesh(TextReport& text, const ModelSummary& model) {
  text.Heading("Nodes", model.nodes);
  if (model.nodesInLocalSystems != 0) {
    text.Detail("in local systems", model.nodesInLocalSystems);
  }
  text.Heading("Elements", Total(model.elements));
  for (std::size_t type = 0; type < model.elements.size(); ++type) {
    if (model.elements[type] != 0) {
      text.Line("  {:>{}}  {}", model.elements[type], labelWidth - 4, ElementTypeName(type));
    }
  }
}

/// A heading with the number of its rows, and the table below; nothing when there are none.
template <typename Row>
void AddTable(TextReport& text, const char* heading, const std::vector<Row>& rows, const std::string& table) {
  if (rows.empty()) {
    return;
  }
  text.Blank();
  text.Heading(heading, rows.size());
  text.Append(table);
}

/// Tells which parts have elements to describe and no property that does.
void AddPartsWithoutProperty(TextReport& text, const ModelSummary& model) {
  std::vector<std::string> names;
  std::size_t count = 0;
  for (const PartSummary& part : model.parts) {
    if (part.isRigid || !part.properties.empty()) {
      continue;
    }
    ++count;
    if (names.size() < mostNames) {
      names.push_back(part.name.empty() ? fmt::format("{}", part.id) : fmt::format("{} {}", part.id, part.name));
    }
  }
  if (count == 0) {
    return;
  }
  if (count > names.size()) {
    names.push_back("...");
  }
  text.Detail("without property", fmt::format("{} {}: {}", count, count == 1 ? "part" : "parts", Join(names)));
}

void AddProperties(TextReport& text, const ModelSummary& model) {
  AddTable(text, "Properties", model.properties, PropertiesTable(model));
  if (!model.properties.empty()) {
    AddPartsWithoutProperty(text, model);
  }
}

std::string Capitalised(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') {
    text[0] = static_cast<char>(text[0] - 'a' + 'A');
  }
  return text;
}

std::size_t Total(const ItemGroup& group) {
  std::size_t total = 0;
  for (const ItemKind& kind : group.kinds) {
    total += kind.items.size();
  }
  return total;
}

void AddGroup(TextReport& text, const ItemGroup& group) {
  if (group.kinds.empty()) {
    return;
  }
  text.Blank();
  text.Heading(Capitalised(group.title), Total(group));
  std::size_t kindWidth = labelWidth - 2;
  for (const ItemKind& kind : group.kinds) {
    kindWidth = std::max(kindWidth, kind.kind.size() + 2);
  }
  for (const ItemKind& kind : group.kinds) {
    text.Line("  {:<{}}{:<6}  {}", kind.kind, kindWidth, kind.items.size(), NamesText(kind));
  }
}

void AddLoadCases(TextReport& text, const ModelSummary& model) {
  if (!model.loadCases.empty()) {
    text.Blank();
    text.Heading("Load cases", model.loadCases.size());
    text.Append(LoadCasesText(model));
  } else if (!model.inNoLoadCase.empty()) {
    text.Blank();
    text.Heading("Load cases", "none: the deck has no subcase with loads, or a single one that uses all of them");
  }
}

/// One line for all that the model does not have.
void AddMissing(TextReport& text, const ModelSummary& model) {
  std::vector<std::string> missing;
  const auto note = [&](const char* what, bool isMissing) {
    if (isMissing) {
      missing.push_back(what);
    }
  };
  note("parts", model.parts.empty());
  note("properties", model.properties.empty());
  note("materials", model.materials.empty());
  note("coordinate systems", model.systems.empty());
  note("constraints", model.constraints.empty());
  note("forces and moments", model.forces.empty());
  note("body loads", model.bodyLoads.empty());
  note("pressures", model.pressures.empty());
  for (const ItemGroup& group : model.groups) {
    note(group.title.c_str(), group.kinds.empty());
  }
  note("sets", model.sets.empty());
  note("load cases", model.loadCases.empty() && model.inNoLoadCase.empty());
  if (!missing.empty()) {
    text.Blank();
    text.Heading("Not in the model", JoinWrapped(missing));
  }
}

std::string RefusalText(const Refusals& refusals) {
  std::vector<std::string> ids;
  for (const std::int32_t id : refusals.firstIds) {
    ids.push_back(fmt::format("{}", id));
  }
  if (refusals.count > ids.size()) {
    ids.push_back("...");
  }
  return fmt::format("{} x {}: {}", refusals.count, refusals.what, Join(ids));
}

std::string ReadText(const LogDigest& log) {
  std::string text = fmt::format("{} nodes", log.nodesRead);
  for (const CardCount& card : log.elementsRead) {
    fmt::format_to(std::back_inserter(text), ", {} {}", card.count, card.what);
  }
  return text;
}

void AddLog(TextReport& text, const LogDigest& log) {
  text.Blank();
  if (!log.isPresent) {
    text.Heading("Log", "none was written");
    return;
  }
  text.Heading("Log", log.isComplete ? "complete" : "ends early");
  text.Detail("cards read", ReadText(log));
  if (!log.steps.empty()) {
    text.Detail("steps", JoinWrapped(log.steps));
  }
  for (const std::string& include : log.missingIncludes) {
    text.Detail("not found", fmt::format("include file \"{}\"", include));
  }
  for (const Refusals& refusals : log.refusals) {
    text.Detail("refused by host", RefusalText(refusals));
  }
  for (std::size_t i = 0; i < log.otherLines.size() && i < mostLines; ++i) {
    text.Detail("said", log.otherLines[i]);
  }
  if (log.otherLines.size() > mostLines) {
    text.Detail("said", fmt::format("... and {} more lines", log.otherLines.size() - mostLines));
  }
}

}  // namespace

std::string ReportText(const RunReport& report) {
  TextReport text;
  text.Heading("Deck", fmt::format("{}, {} bytes", report.deckName, report.deckBytes));
  text.Heading("Result", fmt::format("{} ({})", ResultInWords(report.result), report.result));
  text.Heading("Time", SpeedText(report));
  text.Blank();
  AddMesh(text, report.model);
  AddTable(text, "Parts", report.model.parts, PartsTable(report.model));
  AddProperties(text, report.model);
  AddTable(text, "Materials", report.model.materials, MaterialsTable(report.model));
  AddTable(text, "Coordinate systems", report.model.systems, SystemsTable(report.model));
  AddTable(text, "Constraints", report.model.constraints, ConstraintsTable(report.model));
  AddTable(text, "Forces and moments", report.model.forces, ForcesTable(report.model));
  AddTable(text, "Body loads", report.model.bodyLoads, BodyLoadsTable(report.model));
  AddTable(text, "Pressures", report.model.pressures, PressuresTable(report.model));
  for (const ItemGroup& group : report.model.groups) {
    AddGroup(text, group);
  }
  AddTable(text, "Sets", report.model.sets, SetsTable(report.model));
  AddLoadCases(text, report.model);
  AddMissing(text, report.model);
  AddLog(text, report.log);
  return text.Take();
}

}  // namespace btz::cli
