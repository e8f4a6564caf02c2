#include "golden_case.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <system_error>

namespace btz::golden {

namespace {

bool IsKeyCharacter(char character) { return (character >= 'a' && character <= 'z') || character == '_'; }

/// True when `.key=` begins at `position`. A value may hold a point too, so the point alone does not end it.
bool IsKeyAt(std::string_view text, std::size_t position) {
  if (text[position] != '.') {
    return false;
  }
  std::size_t end = position + 1;
  while (end < text.size() && IsKeyCharacter(text[end])) {
    ++end;
  }
  return end > position + 1 && end < text.size() && text[end] == '=';
}

template <typename Number>
bool ParseNumber(std::string_view text, Number* out) {
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, *out);
  return error == std::errc() && rest == end;
}

bool ParseFlag(std::string_view text, bool* out) {
  *out = text == "1";
  return text == "0" || text == "1";
}

bool ParseFlag(std::string_view text, std::uint8_t* out) { return ParseNumber(text, out); }

bool ParseSolver(std::string_view text, std::int32_t* out) {
  *out = text == "radioss" ? 1 : 0;
  return text == "radioss" || text == "nastran";
}

bool SetOption(std::string_view key, std::string_view value, RunOptions* options) {
  if (key == "split_face") {
    return ParseNumber(value, &options->splitFaceValue);
  }
  if (key == "early_topology") {
    return ParseNumber(value, &options->earlyTopology);
  }
  if (key == "thickness_precision") {
    return ParseNumber(value, &options->thicknessPrecision);
  }
  if (key == "solver") {
    return ParseSolver(value, &options->targetSolver);
  }
  if (key == "group_store") {
    return ParseFlag(value, &options->hasGroupStore);
  }
  if (key == "repair") {
    return ParseFlag(value, &options->repairMesh);
  }
  if (key == "split_repair") {
    return ParseFlag(value, &options->splitFaceRepair);
  }
  if (key == "all") {
    return ParseFlag(value, &options->isEveryCallTraced);
  }
  return false;
}

/// Files with the extension in the folders of the root, by path below the root, in alphabetical order.
std::vector<std::string> FindFiles(const std::filesystem::path& root, const std::string& extension) {
  std::vector<std::string> files;
  std::error_code error;
  for (const auto& topic : std::filesystem::directory_iterator(root, error)) {
    if (!topic.is_directory()) {
      continue;
    }
    for (const auto& file : std::filesystem::directory_iterator(topic.path())) {
      if (file.path().extension() == extension) {
        files.push_back(topic.path().filename().string() + "/" + file.path().filename().string());
      }
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string WithoutExtension(const std::string& file) { return file.substr(0, file.rfind('.')); }

}  // namespace

GoldenCase MakeCase(const std::filesystem::path& root, const std::string& name) {
  const std::size_t folderEnd = name.find_last_of('/');
  const std::size_t deckEnd = std::min(name.find('.', folderEnd == std::string::npos ? 0 : folderEnd), name.size());
  GoldenCase golden;
  golden.name = name;
  golden.deck = root / (name.substr(0, deckEnd) + ".bdf");
  golden.trace = root / (name + ".trace");
  golden.log = root / (name + ".log");
  golden.optionText = name.substr(deckEnd);
  return golden;
}

std::vector<std::string> FindCases(const std::filesystem::path& root) {
  std::vector<std::string> names = FindFiles(root, ".trace");
  std::transform(names.begin(), names.end(), names.begin(), WithoutExtension);
  return names;
}

std::vector<std::string> FindOrphans(const std::filesystem::path& root) {
  const std::vector<std::string> cases = FindCases(root);
  std::vector<std::string> orphans;
  for (const std::string& deck : FindFiles(root, ".bdf")) {
    const auto isOfDeck = [&](const std::string& name) { return MakeCase(root, name).deck == root / deck; };
    if (std::none_of(cases.begin(), cases.end(), isOfDeck)) {
      orphans.push_back(deck);
    }
  }
  for (const std::string& log : FindFiles(root, ".log")) {
    if (std::find(cases.begin(), cases.end(), WithoutExtension(log)) == cases.end()) {
      orphans.push_back(log);
    }
  }
  return orphans;
}

std::optional<RunOptions> ParseOptions(const std::string& optionText) {
  const std::string_view text = optionText;
  RunOptions options;
  std::size_t position = 0;
  while (position < text.size()) {
    if (!IsKeyAt(text, position)) {
      return std::nullopt;
    }
    const std::size_t equals = text.find('=', position);
    std::size_t end = equals + 1;
    while (end < text.size() && !IsKeyAt(text, end)) {
      ++end;
    }
    if (!SetOption(text.substr(position + 1, equals - position - 1), text.substr(equals + 1, end - equals - 1), &options)) {
      return std::nullopt;
    }
    position = end;
  }
  return options;
}

}  // namespace btz::golden
