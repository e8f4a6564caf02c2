// Decks of many property cards. The time must grow with the elements and with the parts, not with their product with the cards, but for one
// step: each part of bars goes through all bar cards of the deck and asks for the material of each, which is why the cost of one such visit
// is told by itself. Compare the rows of one benchmark with each other.
#include <benchmark/benchmark.h>

#include <string>

#include "bench/deck_writer.h"
#include "bench/property_host.h"
#include "bench/quiet_platform.h"
#include "driver/translate_deck.h"

namespace btz::bench {

namespace {

constexpr std::int32_t nodeCount = 1000;
constexpr std::int32_t materialCount = 20;

void WriteHead(std::FILE* deck) {
  std::fputs("SOL 101\nCEND\nBEGIN BULK\n", deck);
  for (std::int32_t id = 1; id <= nodeCount; ++id) {
    WriteNode(deck, id, 0.5 * id, 0.0, 0.0);
  }
  for (std::int32_t id = 1; id <= materialCount; ++id) {
    std::fprintf(deck, "MAT1    %8d 210000.              .3   7.8-9\n", static_cast<int>(id));
  }
}

std::int32_t MaterialOf(std::int32_t property) { return property % materialCount + 1; }

/// Bars one behind the other, each of the next property.
void WriteBars(std::FILE* deck, std::int32_t properties, std::int32_t bars) {
  WriteHead(deck);
  for (std::int32_t id = 1; id <= properties; ++id) {
    std::fprintf(deck, "PBAR    %8d%8d     1.5     2.5     3.5     4.5\n", static_cast<int>(id), static_cast<int>(MaterialOf(id)));
  }
  for (std::int32_t bar = 0; bar < bars; ++bar) {
    const std::int32_t node = bar % (nodeCount - 1) + 1;
    std::fprintf(deck, "CBAR    %8d%8d%8d%8d      0.      0.     -1.\n", static_cast<int>(bar + 1), static_cast<int>(bar % properties + 1),
                 static_cast<int>(node), static_cast<int>(node + 1));
  }
  std::fputs("ENDDATA\n", deck);
}

/// One triangle to a property.
void WriteShells(std::FILE* deck, std::int32_t properties) {
  WriteHead(deck);
  for (std::int32_t id = 1; id <= properties; ++id) {
    std::fprintf(deck, "PSHELL  %8d%8d     1.5\n", static_cast<int>(id), static_cast<int>(MaterialOf(id)));
  }
  for (std::int32_t id = 1; id <= properties; ++id) {
    const std::int32_t node = id % (nodeCount - 2) + 1;
    std::fprintf(deck, "CTRIA3  %8d%8d%8d%8d%8d\n", static_cast<int>(id), static_cast<int>(id), static_cast<int>(node),
                 static_cast<int>(node + 1), static_cast<int>(node + 2));
  }
  std::fputs("ENDDATA\n", deck);
}

/// What a run made of a deck.
struct Outcome {
  std::int64_t elements = 0;
  std::int64_t properties = 0;
  std::int64_t materialQuestions = 0;
};

Outcome Run(const BenchDeck& deck) {
  QuietPlatform platform;
  ScopedPlatform scope(platform);
  PartsProject project;
  IgnoringBoundaryStore boundary;
  TakingMaterialStore materials;
  IgnoringCurveStore curves;
  TranslateDeck(deck.Path().c_str(), nullptr, &boundary, &materials, &project, &curves, 0.0, 0, 0, 0, nullptr, 0, 0);
  return {project.partsModel.elements, materials.properties, materials.materialQuestions};
}

/// Runs the deck and stops the benchmark when it did not become `elements` elements in `properties` properties.
Outcome Measure(benchmark::State& state, const BenchDeck& deck, std::int64_t elements, std::int64_t properties) {
  Outcome outcome;
  for (auto _ : state) {
    outcome = Run(deck);
    if (outcome.elements != elements || outcome.properties != properties) {
      state.SkipWithError("the deck did not arrive");
    }
  }
  return outcome;
}

/// Shows the time of one run divided by `count`.
void ReportTimePer(benchmark::State& state, const char* what, std::int64_t count) {
  state.counters[what] =
      benchmark::Counter(static_cast<double>(count), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BarsOf2000Properties(benchmark::State& state) {
  const auto bars = static_cast<std::int32_t>(state.range(0));
  constexpr std::int32_t properties = 2000;
  const BenchDeck deck("bars_" + std::to_string(bars), [bars](std::FILE* file) { WriteBars(file, properties, bars); });
  Measure(state, deck, bars, properties);
  ReportTimePer(state, "per_bar", bars);
}

void BarPartsTimesBarCards(benchmark::State& state) {
  const auto properties = static_cast<std::int32_t>(state.range(0));
  const BenchDeck deck("bar_cards_" + std::to_string(properties),
                       [properties](std::FILE* file) { WriteBars(file, properties, properties); });
  const Outcome outcome = Measure(state, deck, properties, properties);
  ReportTimePer(state, "per_material_question", outcome.materialQuestions);
}

void ShellPartsTimesShellCards(benchmark::State& state) {
  const auto properties = static_cast<std::int32_t>(state.range(0));
  const BenchDeck deck("shell_cards_" + std::to_string(properties), [properties](std::FILE* file) { WriteShells(file, properties); });
  Measure(state, deck, properties, properties);
  ReportTimePer(state, "per_part", properties);
}

// The first row, one bar to a property, is what the properties themselves cost.
BENCHMARK(BarsOf2000Properties)->Arg(2000)->Arg(250000)->Arg(500000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BarPartsTimesBarCards)->Arg(1000)->Arg(2000)->Arg(4000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ShellPartsTimesShellCards)->Arg(2500)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

}  // namespace btz::bench
