// The command line of `btz`: commands, options, their help and the checks on them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace btz::cli {

enum class Command {
  None,     ///< Nothing to do: help or version was asked for, or the usage was wrong.
  Inspect,  ///< Report on what the deck made in the host.
  Trace     ///< Print the host calls.
};

/// What the user asked for. The values from `splitFaceValue` on are the arguments of the library's entry point.
struct Options {
  Command command = Command::None;
  std::string deckPath;  ///< UTF-8.
  double splitFaceValue = 0.0;
  std::int32_t earlyTopology = 0;
  std::int32_t thicknessPrecision = 0;
  std::int32_t targetSolver = 0;  ///< 0 NASTRAN, 1 RADIOSS.
  bool hasGroupStore = true;
  bool isRepairWanted = false;
  bool isSplitRepairWanted = false;
  std::string logFolder;  ///< UTF-8; empty: the log is not kept.
  bool isProgressShown = false;
  bool isEveryCallTraced = false;  ///< Trace only: questions too.
  bool isJson = false;             ///< Inspect only.
};

struct CommandLine {
  Options options;
  int exitCode = 0;  ///< Counts when the command is None.
};

/// Takes the arguments behind the program's name, in UTF-8. Help and version go to standard output, complaints to standard error.
CommandLine ParseCommandLine(std::vector<std::string> arguments);

}  // namespace btz::cli
