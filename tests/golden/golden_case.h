// What a golden file's name says. `<topic>/<name>_NN.trace` is the trace that the deck `<topic>/<name>_NN.bdf` must give, and the `.log`
// beside it, where there is one, the log. Options of the run stand in the name, each with its value, and belong to trace and log alike:
// `<name>_NN.early_topology=1.trace`, `<name>_NN.split_face=0.5.split_repair=1.trace`.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace btz::golden {

/// How a deck is translated: arguments of the entry point, and which calls the trace shows.
struct RunOptions {
  double splitFaceValue = 0.0;
  std::int32_t earlyTopology = 0;
  std::int32_t thicknessPrecision = 0;
  std::int32_t targetSolver = 0;  ///< `solver=nastran` or `solver=radioss`.
  bool hasGroupStore = true;
  std::uint8_t repairMesh = 0;
  std::uint8_t splitFaceRepair = 0;
  bool isEveryCallTraced = false;  ///< `all=1`: questions too.
};

struct GoldenCase {
  std::string name;  ///< Path of the trace below the root, without its extension; "/" between folders.
  std::filesystem::path deck;
  std::filesystem::path trace;
  std::filesystem::path log;  ///< Need not exist: then the log is not looked at.
  std::string optionText;     ///< What stands in the name behind the deck's: ".early_topology=1", or nothing.
};

/// The case of a name; the files need not exist.
GoldenCase MakeCase(const std::filesystem::path& root, const std::string& name);

/// Names of all traces in the folders of the root, in alphabetical order.
std::vector<std::string> FindCases(const std::filesystem::path& root);

/// Decks without a trace and logs without a trace, by path below the root.
std::vector<std::string> FindOrphans(const std::filesystem::path& root);

/// The options that a name holds; nothing when one is unknown or its value makes no sense.
std::optional<RunOptions> ParseOptions(const std::string& optionText);

}  // namespace btz::golden
