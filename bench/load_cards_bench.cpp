// Decks of many load cards. The time for a card must not grow with their number, whatever sets they stand in. The first rows are decks with the
// same nodes and no loads, which is what a card's node costs by itself. Compare the rows of one run with each other.
#include <benchmark/benchmark.h>

#include <functional>
#include <string>

#include "bench/deck_writer.h"
#include "bench/load_host.h"
#include "bench/quiet_platform.h"
#include "driver/translate_deck.h"

namespace btz::bench {

namespace {

/// What a run gave to the host.
struct Outcome {
  std::int64_t forceNodes = 0;
  std::int64_t constraintNodes = 0;
  std::int64_t caseEntities = 0;
};

Outcome Run(const BenchDeck& deck) {
  QuietPlatform platform;
  ScopedPlatform scope(platform);
  NodesProject project;
  TakingBoundaryStore boundary;
  IgnoringMaterialStore materials;
  TakingCurveStore curves;
  TranslateDeck(deck.Path().c_str(), nullptr, &boundary, &materials, &project, &curves, 0.0, 0, 0, 0, nullptr, 0, 0);
  return {boundary.force.nodes, boundary.constraint.nodes, boundary.loadCase.entities};
}

/// Writes one card of a kind.
using WriteCard = std::function<void(std::FILE* deck, std::int32_t number)>;

/// A deck with `nodes` nodes, `together` of them at each place, and the cards.
void WriteDeck(std::FILE* deck, const char* caseControl, std::int32_t nodes, std::int32_t together, std::int32_t cards,
               const WriteCard& writeCard) {
  std::fprintf(deck, "SOL 101\nCEND\n%sBEGIN BULK\n", caseControl);
  for (std::int32_t id = 1; id <= nodes; ++id) {
    const std::int32_t place = (id - 1) / together;
    WriteNode(deck, id, place % 1000, place / 1000, 0.0);
  }
  std::fputs("CTRIA3         1       1       1       2       3\n", deck);
  for (std::int32_t number = 1; number <= cards; ++number) {
    writeCard(deck, number);
  }
  std::fputs("ENDDATA\n", deck);
}

/// Measures a deck of `state.range(0)` cards, one to a node, and shows the time of a card.
void MeasureCards(benchmark::State& state, const char* name, std::int32_t together, const WriteCard& writeCard,
                  std::int64_t Outcome::*arrived) {
  const auto count = static_cast<std::int32_t>(state.range(0));
  const BenchDeck deck(std::string(name) + std::to_string(count),
                       [&](std::FILE* file) { WriteDeck(file, "", count, together, count, writeCard); });
  for (auto _ : state) {
    if (Run(deck).*arrived != count) {
      state.SkipWithError("the loads did not arrive");
    }
  }
  state.counters["per_card"] = benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void WriteForce(std::FILE* deck, std::int32_t set, std::int32_t node, std::int32_t size) {
  std::fprintf(deck, "FORCE   %8d%8d       0     1.0%7d.     0.5     0.5\n", static_cast<int>(set), static_cast<int>(node),
               static_cast<int>(size));
}

void NodesAlone(benchmark::State& state) {
  const auto count = static_cast<std::int32_t>(state.range(0));
  const BenchDeck deck("nodes_alone_" + std::to_string(count), [&](std::FILE* file) { WriteDeck(file, "", count, 1, 0, {}); });
  for (auto _ : state) {
    Run(deck);
  }
  state.counters["per_card"] = benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void SpcCardsOfOneSet(benchmark::State& state) {
  MeasureCards(
      state, "spc_", 1,
      [](std::FILE* deck, std::int32_t number) {
        std::fprintf(deck, "SPC            1%8d  123456     0.0        \n", static_cast<int>(number));
      },
      &Outcome::constraintNodes);
}

void ForceCardsOfOneSet(benchmark::State& state) {
  MeasureCards(
      state, "force_one_set_", 1, [](std::FILE* deck, std::int32_t number) { WriteForce(deck, 1, number, number % 1000); },
      &Outcome::forceNodes);
}

void ForceCardsOf100000Sets(benchmark::State& state) {
  MeasureCards(
      state, "force_many_sets_", 1,
      [](std::FILE* deck, std::int32_t number) { WriteForce(deck, number % 100000 + 1, number, number % 1000); }, &Outcome::forceNodes);
}

/// Pairs of nodes at one place, with a load that 100 nodes share.
void ForceCardsOnCoincidentNodes(benchmark::State& state) {
  MeasureCards(
      state, "force_coincident_", 2, [](std::FILE* deck, std::int32_t number) { WriteForce(deck, 1, number, number / 100); },
      &Outcome::forceNodes);
}

/// A combination of `state.range(0)` sets, seven in a card, asked for by one of two subcases. The sets exist but for their constraints.
void IdsOfCombinations(benchmark::State& state, const char* keyword) {
  const auto count = static_cast<std::int32_t>(state.range(0));
  const std::string caseControl = std::string("SUBCASE 1\n  ") + keyword + " = 1\nSUBCASE 2\n  " + keyword + " = 2\n";
  const BenchDeck deck(std::string(keyword) + "add_" + std::to_string(count), [&](std::FILE* file) {
    WriteDeck(file, caseControl.c_str(), 10, 1, (count + 6) / 7, [&](std::FILE* cards, std::int32_t number) {
      std::fprintf(cards, "%sADD         1", keyword);
      for (std::int32_t id = (number - 1) * 7 + 1; id <= count && id <= number * 7; ++id) {
        std::fprintf(cards, "%8d", static_cast<int>(id));
      }
      std::fputs(number == 1 ? "\nSPC            7       1  123456     0.0        \n" : "\n", cards);
    });
  });
  for (auto _ : state) {
    if (Run(deck).constraintNodes != 1) {
      state.SkipWithError("the constraint did not arrive");
    }
  }
  state.counters["per_id"] = benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void IdsOfSpcadd(benchmark::State& state) { IdsOfCombinations(state, "SPC"); }
void IdsOfMpcadd(benchmark::State& state) { IdsOfCombinations(state, "MPC"); }

BENCHMARK(NodesAlone)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SpcCardsOfOneSet)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ForceCardsOfOneSet)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ForceCardsOf100000Sets)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ForceCardsOnCoincidentNodes)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(IdsOfSpcadd)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(IdsOfMpcadd)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

}  // namespace btz::bench
