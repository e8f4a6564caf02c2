#include "cli/run_deck.h"

#include <btz/bdf_to_zel.h>
#include <fmt/format.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include "cli/exit_codes.h"
#include "cli/log_folder.h"
#include "cli/paths.h"
#include "cli/progress_bar.h"
#include "cli/standard_streams.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

namespace {

std::int32_t CallLibrary(const Options& options, MemoryHost& host) {
  return BdfToZel_DLL(options.deckPath.c_str(), nullptr, host.GetMaterialStore(), host.GetBoundaryStore(), host.GetProject(),
                      host.GetCurveStore(), options.splitFaceValue, options.earlyTopology, options.thicknessPrecision, options.targetSolver,
                      options.hasGroupStore ? host.GetGroupStore() : nullptr, options.isRepairWanted ? 1 : 0,
                      options.isSplitRepairWanted ? 1 : 0);
}

}  // namespace

RunOutcome RunDeck(const Options& options, MemoryHost& host, ResultStream& results) {
  RunOutcome outcome;
  std::error_code ignored;
  const std::uintmax_t size = std::filesystem::file_size(PathOf(options.deckPath), ignored);
  outcome.deckBytes = ignored ? 0 : size;

  LogFolder logFolder(options.logFolder);
  std::optional<ProgressBar> bar;
  if (options.isProgressShown && IsErrorTerminal()) {
    bar.emplace(outcome.deckBytes);
  }
  host.SetFaultHandler([&](const std::string& message) {
    // The library knows no exceptions, so there is no way back through it.
    if (bar) {
      bar->End(false);
    }
    logFolder.Remove();
    results.Close();
    fmt::print(stderr, "btz: {}\n", message);
    std::fflush(stderr);
    std::_Exit(exitHostMisused);
  });
  {
    const ConsoleGuard quiet;
    const auto start = std::chrono::steady_clock::now();
    outcome.result = CallLibrary(options, host);
    outcome.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  }
  if (bar) {
    bar->End(outcome.result == 0);
  }
  outcome.log = logFolder.ReadLog();
  return outcome;
}

}  // namespace btz::cli
