#include "cli/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <filesystem>

#include "cli/exit_codes.h"
#include "cli/paths.h"

namespace btz::cli {

namespace {

constexpr const char* exitCodeHelp =
    "Exit codes:\n"
    "  0   translated\n"
    "  1   the deck holds no node, or there was no path\n"
    "  2   the deck holds no element\n"
    "  3   the file can't be opened, is empty, or holds nothing that looks like a deck\n"
    "  64  wrong usage\n"
    "  70  the library called the host in a way that no host allows\n"
    "  74  the result could not be written to standard output\n";

std::string CheckNumber(const std::string& text) {
  double value = 0.0;
  return CLI::detail::lexical_cast(text, value) && std::isfinite(value) ? "" : "'" + text + "' is no finite number";
}

std::string CheckFolder(const std::string& text) {
  std::error_code error;
  return std::filesystem::is_directory(PathOf(text), error) ? "" : "there is no folder '" + text + "'";
}

void AddRunOptions(CLI::App& command, Options& options) {
  command.add_option("DECK", options.deckPath, "NASTRAN bulk data deck; include files are looked for from its folder")
      ->option_text("(REQUIRED)")
      ->required();
  command.add_option("--split-face", options.splitFaceValue, "Above 0: have the host split the faces of parts, with this value")
      ->option_text("VALUE (0)")
      ->check(CheckNumber);
  command
      .add_option("--early-topology", options.earlyTopology,
                  "1: build the topology before the properties, parts keep their numbers; 0: build it last; other values: not at all")
      ->option_text("N (0)");
  command.add_option("--thickness-precision", options.thicknessPrecision, "Decimals to which shell thicknesses are rounded")
      ->option_text("N (0)");
  command
      .add_option_function<std::string>(
          "--solver", [&options](const std::string& name) { options.targetSolver = CLI::detail::to_lower(name) == "radioss" ? 1 : 0; },
          "Solver for which load cases are made")
      ->option_text("nastran|radioss (nastran)")
      ->check(CLI::IsMember({"nastran", "radioss"}, CLI::ignore_case));
  command.add_flag_callback(
      "--no-group-store", [&options] { options.hasGroupStore = false; }, "Give the library no store for groups");
  command.add_flag("--repair", options.isRepairWanted, "Have the host repair the defects that it counts in the mesh");
  command.add_flag("--split-repair", options.isSplitRepairWanted, "Have the host merge split parts again as far as it can");
  command.add_option("--log-dir", options.logFolder, "Keep the library's log, Bdf_Reader_Log.txt, in this folder")
      ->option_text("DIR")
      ->check(CheckFolder);
  command.add_flag("--progress", options.isProgressShown, "Show a progress bar on standard error, if that is a terminal");
}

}  // namespace

CommandLine ParseCommandLine(std::vector<std::string> arguments) {
  CommandLine line;
  CLI::App app("Translates a NASTRAN bulk data deck into a host that keeps the model in memory, and shows what came of it.", "btz");
  app.footer(exitCodeHelp);
  app.get_formatter()->column_width(40);
  app.allow_windows_style_options(false);  // Paths begin with a slash on some systems.
  app.require_subcommand(1);
  app.set_version_flag("--version", "btz " BTZ_VERSION);

  CLI::App* inspect = app.add_subcommand("inspect", "Print a report on the model that the deck makes");
  AddRunOptions(*inspect, line.options);
  inspect->add_flag("--json", line.options.isJson, "Print the report as JSON");

  CLI::App* trace = app.add_subcommand("trace", "Print every call that changes the host, one a line");
  AddRunOptions(*trace, line.options);
  trace->add_flag("--all", line.options.isEveryCallTraced, "Print the calls that only ask, too");
  for (CLI::App* command : {inspect, trace}) {
    command->footer(exitCodeHelp);
  }

  std::reverse(arguments.begin(), arguments.end());  // CLI11 takes them from the back.
  try {
    app.parse(std::move(arguments));
    line.options.command = inspect->parsed() ? Command::Inspect : Command::Trace;
  } catch (const CLI::ParseError& error) {
    line.exitCode = app.exit(error) == 0 ? exitTranslated : exitWrongUsage;
  }
  return line;
}

}  // namespace btz::cli
