// Decks of any size for the benchmarks.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>

namespace btz::bench {

/// Writes one `GRID` in fields of 8 columns.
void WriteNode(std::FILE* deck, std::int32_t id, double x, double y, double z);

/// A deck on disk, removed at the end.
class BenchDeck {
 public:
  /// Writes a square panel of about `cells` `CQUAD4` and as many `GRID`, in fields of 8 columns, with ten properties.
  explicit BenchDeck(std::int32_t cells);
  /// Writes whatever `write` puts into the file; `name` tells it from other decks of the same time.
  BenchDeck(const std::string& name, const std::function<void(std::FILE* deck)>& write);
  ~BenchDeck();
  BenchDeck(const BenchDeck&) = delete;
  BenchDeck& operator=(const BenchDeck&) = delete;

  const std::string& Path() const { return path; }
  std::int64_t Bytes() const { return bytes; }

 private:
  std::string path;
  std::int64_t bytes = 0;
};

}  // namespace btz::bench
