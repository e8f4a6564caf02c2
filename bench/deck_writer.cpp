#include "bench/deck_writer.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace btz::bench {

namespace {

constexpr std::int32_t propertyCount = 10;

void WritePanel(std::FILE* deck, std::int32_t side) {
  std::fputs("$ Curved panel for measurements\nSOL 101\nCEND\nBEGIN BULK\n", deck);
  const std::int32_t row = side + 1;
  for (std::int32_t j = 0; j < row; ++j) {
    const double angle = 3.0 * j / side - 1.5;
    for (std::int32_t i = 0; i < row; ++i) {
      WriteNode(deck, j * row + i + 1, 0.125 * i, 50.0 * std::sin(angle), 50.0 * std::cos(angle));
    }
  }
  for (std::int32_t cell = 0; cell < side * side; ++cell) {
    const std::int32_t first = cell / side * row + cell % side + 1;
    const std::int32_t property = static_cast<std::int32_t>(static_cast<std::int64_t>(cell) * propertyCount / (side * side)) + 1;
    std::fprintf(deck, "CQUAD4  %8d%8d%8d%8d%8d%8d\n", static_cast<int>(cell + 1), static_cast<int>(property), static_cast<int>(first),
                 static_cast<int>(first + 1), static_cast<int>(first + row + 1), static_cast<int>(first + row));
  }
  std::fputs("ENDDATA\n", deck);
}

}  // namespace

void WriteNode(std::FILE* deck, std::int32_t id, double x, double y, double z) {
  std::fprintf(deck, "GRID    %8d        %8.3f%8.4f%8.4f\n", static_cast<int>(id), x, y, z);
}

BenchDeck::BenchDeck(std::int32_t cells)
    : BenchDeck(std::to_string(cells), [cells](std::FILE* deck) {
        WritePanel(deck, static_cast<std::int32_t>(std::lround(std::sqrt(static_cast<double>(cells)))));
      }) {}

BenchDeck::BenchDeck(const std::string& name, const std::function<void(std::FILE* deck)>& write) {
  path = (std::filesystem::temp_directory_path() / ("btz_bench_" + name + ".bdf")).string();
  std::FILE* deck = std::fopen(path.c_str(), "wb");
  if (deck == nullptr) {
    std::perror(path.c_str());
    std::exit(1);
  }
  write(deck);
  std::fclose(deck);
  bytes = static_cast<std::int64_t>(std::filesystem::file_size(path));
}

BenchDeck::~BenchDeck() { std::filesystem::remove(path); }

}  // namespace btz::bench
