// The program `btz`: shows what the library makes of a deck.
#include <cstdio>
#include <string>
#include <vector>

#include "cli/exit_codes.h"
#include "cli/options.h"
#include "cli/paths.h"
#include "cli/report.h"
#include "cli/run_deck.h"
#include "cli/standard_streams.h"
#include "memory_host/memory_host.h"

#ifdef _WIN32
#include <windows.h>
// Behind windows.h, which it needs.
#include <shellapi.h>
#endif

namespace btz::cli {

namespace {

/// The arguments behind the program's name, in UTF-8.
std::vector<std::string> TakeArguments([[maybe_unused]] int count, [[maybe_unused]] char** values) {
  std::vector<std::string> arguments;
#ifdef _WIN32
  // The narrow arguments have lost what is not in the system's code page.
  int wideCount = 0;
  wchar_t** wideValues = CommandLineToArgvW(GetCommandLineW(), &wideCount);
  for (int i = 1; wideValues != nullptr && i < wideCount; ++i) {
    arguments.push_back(Utf8Of(wideValues[i]));
  }
  LocalFree(wideValues);
#else
  arguments.assign(values + 1, values + count);
#endif
  return arguments;
}

void Complain(const std::string& message) { std::fprintf(stderr, "btz: %s\n", message.c_str()); }

RunReport MakeReport(const Options& options, const RunOutcome& outcome, const MemoryHost& host) {
  RunReport report;
  report.deckName = FileNameOf(options.deckPath);
  report.deckBytes = outcome.deckBytes;
  report.result = outcome.result;
  report.seconds = outcome.seconds;
  if (outcome.log) {
    report.log = DigestLog(*outcome.log);
  }
  report.model = SummariseModel(host);
  return report;
}

/// A report of a run that the library refused would be empty: there is none then.
ExitCode Inspect(const Options& options, ResultStream& results) {
  MemoryHost host;
  const RunOutcome outcome = RunDeck(options, host, results);
  const ExitCode code = ExitCodeOf(outcome.result);
  if (code == exitNotUsable) {
    return code;
  }
  const RunReport report = MakeReport(options, outcome, host);
  results.Write(options.isJson ? ReportJson(report) : ReportText(report));
  return code;
}

ExitCode Trace(const Options& options, ResultStream& results) {
  MemoryHost host;
  TraceSink sink(results.File(), options.isEveryCallTraced ? TraceSink::Coverage::All : TraceSink::Coverage::Changes);
  host.SetTrace(&sink);
  const RunOutcome outcome = RunDeck(options, host, results);
  host.FinishTrace(outcome.result);
  return ExitCodeOf(outcome.result);
}

int Run(std::vector<std::string> arguments) {
  const CommandLine line = ParseCommandLine(std::move(arguments));
  const Options& options = line.options;
  if (options.command == Command::None) {
    return line.exitCode;
  }
  ResultStream results;
  if (results.File() == nullptr) {
    Complain("standard output is closed");
    return exitOutputFailed;
  }
  const ExitCode code = options.command == Command::Inspect ? Inspect(options, results) : Trace(options, results);
  if (code == exitNotUsable) {
    Complain(options.deckPath + ": " + WhyNotUsable(options.deckPath));
  }
  if (!results.Close()) {
    Complain("the result could not be written to standard output");
    return exitOutputFailed;
  }
  return code;
}

}  // namespace

}  // namespace btz::cli

int main(int count, char** values) { return btz::cli::Run(btz::cli::TakeArguments(count, values)); }
