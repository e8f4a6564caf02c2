// Whole runs from the call to the return, beside `wc -l` on the same file in the same run: what counts is the ratio between them. The
// ignoring host shows the translator alone, the in-memory host the translator with a host that stores everything. Arguments are the numbers of
// `CQUAD4` (and about as many `GRID`).
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

#include "bench/deck_writer.h"
#include "bench/ignoring_host.h"
#include "bench/quiet_platform.h"
#include "driver/translate_deck.h"
#include "memory_host/memory_host.h"

namespace btz::bench {

namespace {

/// Runs on the ignoring host; returns the number of elements that reached it.
std::int64_t RunIgnoring(const std::string& deckPath) {
  QuietPlatform platform;
  ScopedPlatform scope(platform);
  IgnoringProject project;
  IgnoringBoundaryStore boundary;
  IgnoringMaterialStore materials;
  IgnoringCurveStore curves;
  TranslateDeck(deckPath.c_str(), nullptr, &boundary, &materials, &project, &curves, 0.0, 0, 0, 0, nullptr, 0, 0);
  return project.model.elements;
}

/// Argument with which this program starts itself to measure memory: in a process that has done nothing else.
constexpr const char* peakMemoryOption = "--peak-memory-of=";

/// Largest resident memory that this process has had, in MB; 0 if the system does not tell.
double PeakMemory() {
  std::FILE* status = std::fopen("/proc/self/status", "r");
  double kilobytes = 0.0;
  char line[256];
  while (status != nullptr && std::fgets(line, sizeof(line), status) != nullptr) {
    if (std::sscanf(line, "VmHWM: %lf", &kilobytes) == 1) {
      break;
    }
  }
  if (status != nullptr) {
    std::fclose(status);
  }
  return kilobytes / 1024.0;
}

/// What PeakMemory tells in a new process of this program, behind a run on the deck, or behind nothing for an empty path.
double PeakMemoryOfProcess(const std::string& deckPath) {
  // Resolved here: inside the shell that popen starts, the link would lead to the shell.
  const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
  std::FILE* process = popen(("'" + program + "' '" + peakMemoryOption + deckPath + "'").c_str(), "r");
  double megabytes = 0.0;
  if (process != nullptr) {
    if (std::fscanf(process, "%lf", &megabytes) != 1) {
      megabytes = 0.0;
    }
    pclose(process);
  }
  return megabytes;
}

/// The other end of PeakMemoryOfProcess.
void PrintPeakMemory(const std::string& deckPath) {
  if (!deckPath.empty()) {
    RunIgnoring(deckPath);
  }
  std::printf("%f\n", PeakMemory());
}

void ReportThroughput(benchmark::State& state, const BenchDeck& deck) { state.SetBytesProcessed(state.iterations() * deck.Bytes()); }

void LineCount(benchmark::State& state) {
  const BenchDeck deck(static_cast<std::int32_t>(state.range(0)));
  const std::string command = "wc -l '" + deck.Path() + "' > /dev/null";
  for (auto _ : state) {
    if (std::system(command.c_str()) != 0) {
      state.SkipWithError("wc failed");
    }
  }
  ReportThroughput(state, deck);
}

void RunOnIgnoringHost(benchmark::State& state) {
  const BenchDeck deck(static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) {
    if (RunIgnoring(deck.Path()) == 0) {
      state.SkipWithError("no element arrived");
    }
  }
  ReportThroughput(state, deck);
  state.counters["translator_peak_MB"] = PeakMemoryOfProcess(deck.Path()) - PeakMemoryOfProcess("");
}

void RunOnMemoryHost(benchmark::State& state) {
  const BenchDeck deck(static_cast<std::int32_t>(state.range(0)));
  QuietPlatform platform;
  ScopedPlatform scope(platform);
  for (auto _ : state) {
    MemoryHost host;
    const std::int32_t result = TranslateDeck(deck.Path().c_str(), nullptr, host.GetBoundaryStore(), host.GetMaterialStore(),
                                              host.GetProject(), host.GetCurveStore(), 0.0, 0, 0, 0, host.GetGroupStore(), 0, 0);
    if (result != runDone) {
      state.SkipWithError("the run failed");
    }
  }
  ReportThroughput(state, deck);
}

// The time of `wc` passes in another process, so the wall clock is what all three have in common.
BENCHMARK(LineCount)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(RunOnIgnoringHost)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(RunOnMemoryHost)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

/// Takes the option with which the program starts itself; false when it is not given.
bool RunPeakMemoryOption(int argc, char** argv) {
  if (argc != 2 || std::strncmp(argv[1], peakMemoryOption, std::strlen(peakMemoryOption)) != 0) {
    return false;
  }
  PrintPeakMemory(argv[1] + std::strlen(peakMemoryOption));
  return true;
}

}  // namespace btz::bench

int main(int argc, char** argv) {
  if (btz::bench::RunPeakMemoryOption(argc, argv)) {
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 1;
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
