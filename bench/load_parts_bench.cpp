// Decks of pressures, and of contact surfaces on faces of solids, on the in-memory host: what it costs to cut what is loaded out of its parts.
// The time for a loaded element or face must not grow with their number. A cut costs two things on top of that which do: each entity of the store is
// asked for its parts, and the elements of the part are walked from where the last cut ended to the last one that leaves. Sets are handled in the
// order of a table of 1001 buckets, so many sets on one part go over it once for each bucket. Compare the rows of one run with each other; the rows
// named Alone are the same meshes without loads.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "bench/deck_writer.h"
#include "bench/quiet_platform.h"
#include "driver/translate_deck.h"
#include "memory_host/memory_host.h"

namespace btz::bench {

namespace {

/// What a run made of the loads.
struct Outcome {
  std::size_t loads = 0;  ///< Pressures and sets.
  std::size_t faces = 0;  ///< Parts.
};

Outcome Run(const BenchDeck& deck) {
  QuietPlatform platform;
  ScopedPlatform scope(platform);
  MemoryHost host;
  TranslateDeck(deck.Path().c_str(), nullptr, host.GetBoundaryStore(), host.GetMaterialStore(), host.GetProject(), host.GetCurveStore(),
                0.0, 0, 0, 0, host.GetGroupStore(), 0, 0);
  return {host.Boundary().pressures.size() + host.Boundary().sets.size(), host.Model().faces.size()};
}

using WriteCards = std::function<void(std::FILE* deck)>;

/// A strip of quadrilaterals with ids from 1, `inPart` to a part.
void WriteStrip(std::FILE* deck, std::int32_t elements, std::int32_t inPart) {
  for (std::int32_t id = 1; id <= 2 * (elements + 1); ++id) {
    WriteNode(deck, id, 0.001 * (id / 2), id % 2, 0.0);
  }
  for (std::int32_t id = 1; id <= elements; ++id) {
    const int node = static_cast<int>(2 * id - 1);
    std::fprintf(deck, "CQUAD4  %8d%8d%8d%8d%8d%8d\n", static_cast<int>(id), static_cast<int>((id - 1) / inPart + 1), node, node + 2,
                 node + 3, node + 1);
  }
}

/// A bar of hexahedra with ids from 1 in one part. The nodes of cell k are 4k-3 to 4k+4; nodes 4k-3 and 4k+2 name a side that no two share.
void WriteSolids(std::FILE* deck, std::int32_t solids) {
  for (std::int32_t id = 1; id <= 4 * (solids + 1); ++id) {
    const int corner = static_cast<int>(id - 1) % 4;
    WriteNode(deck, id, corner == 1 || corner == 2 ? 1.0 : 0.0, corner / 2, 0.001 * (id / 4));
  }
  for (std::int32_t id = 1; id <= solids; ++id) {
    const int n = static_cast<int>(4 * id - 3);
    std::fprintf(deck, "CHEXA   %8d%8d%8d%8d%8d%8d%8d%8d+\n+       %8d%8d\n", static_cast<int>(id), 1, n, n + 1, n + 2, n + 3, n + 4, n + 5,
                 n + 6, n + 7);
  }
}

void WritePressure(std::FILE* deck, std::int32_t set, std::int32_t element) {
  std::fprintf(deck, "PLOAD4  %8d%8d     1.5\n", static_cast<int>(set), static_cast<int>(element));
}

void WriteFaceLine(std::FILE* deck, const char* head, std::int32_t solid) {
  std::fprintf(deck, "%s%8d%8d%8d\n", head, static_cast<int>(solid), static_cast<int>(4 * solid - 3), static_cast<int>(4 * solid + 2));
}

/// Measures a deck of `mesh` and `cards`, which become `loads` loads, and shows the time divided by `count`.
void Measure(benchmark::State& state, const std::string& name, const WriteCards& mesh, const WriteCards& cards, std::size_t loads,
             const char* what, std::int32_t count) {
  const BenchDeck deck(name, [&](std::FILE* file) {
    std::fputs("SOL 101\nCEND\nBEGIN BULK\n", file);
    mesh(file);
    cards(file);
    std::fputs("ENDDATA\n", file);
  });
  Outcome outcome;
  for (auto _ : state) {
    outcome = Run(deck);
    if (outcome.loads != loads) {
      state.SkipWithError("the loads did not arrive");
    }
  }
  state.counters[what] = benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
  state.counters["parts"] = static_cast<double>(outcome.faces);
}

void NoCards(std::FILE* /*deck*/) {}

// One part, of which ten elements in eleven are loaded.

void ElementsAlone(benchmark::State& state) {
  const auto count = static_cast<std::int32_t>(state.range(0));
  Measure(
      state, "elements_alone", [&](std::FILE* deck) { WriteStrip(deck, count + count / 10, count * 2); }, NoCards, 0, "per_element", count);
}

void LoadedElementsOfOneSet(benchmark::State& state) {
  const auto count = static_cast<std::int32_t>(state.range(0));
  Measure(
      state, "elements_one_set", [&](std::FILE* deck) { WriteStrip(deck, count + count / 10, count * 2); },
      [&](std::FILE* deck) {
        for (std::int32_t i = 0; i < count; ++i) {
          WritePressure(deck, 1, i / 10 * 11 + i % 10 + 1);
        }
      },
      1, "per_element", count);
}

// One part, cut by set after set until one element is left.

void SetsOnOnePart(benchmark::State& state, std::int32_t inSet, bool isRandom) {
  const auto count = static_cast<std::int32_t>(state.range(0));
  std::vector<std::int32_t> elements(static_cast<std::size_t>(count) * static_cast<std::size_t>(inSet));
  std::iota(elements.begin(), elements.end(), 1);
  if (isRandom) {
    std::shuffle(elements.begin(), elements.end(), std::mt19937(1));
  }
  const auto size = static_cast<std::int32_t>(elements.size());
  Measure(
      state, "sets_one_part", [&](std::FILE* deck) { WriteStrip(deck, size + 1, size * 2); },
      [&](std::FILE* deck) {
        for (std::int32_t i = 0; i < size; ++i) {
          WritePressure(deck, i / inSet + 1, elements[static_cast<std::size_t>(i)]);
        }
      },
      static_cast<std::size_t>(count), "per_set", count);
}

void SetsOf1InMeshOrder(benchmark::State& state) { SetsOnOnePart(state, 1, false); }
void SetsOf1InRandomOrder(benchmark::State& state) { SetsOnOnePart(state, 1, true); }
void SetsOf100InMeshOrder(benchmark::State& state) { SetsOnOnePart(state, 100, false); }
void SetsOf100InRandomOrder(benchmark::State& state) { SetsOnOnePart(state, 100, true); }

// Many parts of three elements each.

constexpr std::int32_t elementsInPart = 3;

void PartsAlone(benchmark::State& state) {
  const auto parts = static_cast<std::int32_t>(state.range(0));
  Measure(
      state, "parts_alone", [&](std::FILE* deck) { WriteStrip(deck, parts * elementsInPart, elementsInPart); }, NoCards, 0, "per_part",
      parts);
}

/// One set that takes `loaded` elements of each part.
void OneSetOverParts(benchmark::State& state, std::int32_t loaded) {
  const auto parts = static_cast<std::int32_t>(state.range(0));
  Measure(
      state, "parts_one_set", [&](std::FILE* deck) { WriteStrip(deck, parts * elementsInPart, elementsInPart); },
      [&](std::FILE* deck) {
        for (std::int32_t i = 0; i < parts * loaded; ++i) {
          WritePressure(deck, 1, i / loaded * elementsInPart + i % loaded + 1);
        }
      },
      1, "per_part", parts);
}

void OneSetOverCutParts(benchmark::State& state) { OneSetOverParts(state, 2); }
void OneSetOverWholeParts(benchmark::State& state) { OneSetOverParts(state, elementsInPart); }

// Faces of solids.

void SolidsAlone(benchmark::State& state) {
  const auto solids = static_cast<std::int32_t>(state.range(0));
  Measure(
      state, "solids_alone", [&](std::FILE* deck) { WriteSolids(deck, solids); }, NoCards, 0, "per_solid", solids);
}

/// Surfaces of `inSurface` faces, one of each solid.
void Surfaces(benchmark::State& state, std::int32_t inSurface) {
  const auto solids = static_cast<std::int32_t>(state.range(0));
  Measure(
      state, "solids_surf", [&](std::FILE* deck) { WriteSolids(deck, solids); },
      [&](std::FILE* deck) {
        for (std::int32_t id = 1; id <= solids; ++id) {
          if ((id - 1) % inSurface == 0) {
            std::fprintf(deck, "SURF    %8d\n", static_cast<int>(id));
          }
          WriteFaceLine(deck, "+       ", id);
        }
      },
      static_cast<std::size_t>((solids + inSurface - 1) / inSurface), "per_solid", solids);
}

void OneSurface(benchmark::State& state) { Surfaces(state, static_cast<std::int32_t>(state.range(0))); }
void SurfacesOf1Face(benchmark::State& state) { Surfaces(state, 1); }

/// A surface of the sides between the solids, which have no faces yet.
void OneSurfaceOfFacesToMake(benchmark::State& state) {
  const auto solids = static_cast<std::int32_t>(state.range(0));
  Measure(
      state, "solids_make", [&](std::FILE* deck) { WriteSolids(deck, solids); },
      [&](std::FILE* deck) {
        std::fputs("SURF           1\n", deck);
        for (std::int32_t id = 1; id < solids; ++id) {
          std::fprintf(deck, "+       %8d%8d%8d\n", static_cast<int>(id), static_cast<int>(4 * id + 1), static_cast<int>(4 * id + 3));
        }
      },
      1, "per_solid", solids);
}

BENCHMARK(ElementsAlone)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(LoadedElementsOfOneSet)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SetsOf1InMeshOrder)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SetsOf1InRandomOrder)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SetsOf100InMeshOrder)->Arg(1000)->Arg(3000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SetsOf100InRandomOrder)->Arg(1000)->Arg(3000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(PartsAlone)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(OneSetOverCutParts)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(OneSetOverWholeParts)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SolidsAlone)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(OneSurface)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SurfacesOf1Face)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(OneSurfaceOfFacesToMake)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

}  // namespace btz::bench
