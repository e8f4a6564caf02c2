// A run of the driver without a host: its tables are set up, its files are opened, and a test walks them with a table of its own or with one of
// the pass tables whose readers were exchanged for ones that record.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "driver/clean_up.h"
#include "driver/line_walk.h"
#include "driver/tables.h"
#include "tests/unit/testing/fake_platform.h"
#include "tests/unit/testing/temporary_folder.h"

namespace btz::test {

/// Text at the cursor up to its line feed or the chunk's end.
inline std::string LineAt(const char* cursor) { return std::string(cursor, std::strcspn(cursor, "\n")); }

/// Moves behind the line at the cursor, or to the chunk's end.
inline void PassLine(DeckBuffer& file) {
  file.cursor += std::strcspn(file.cursor, "\n");
  file.cursor += *file.cursor == '\n' ? 1 : 0;
}

class WalkTest : public testing::Test {
 protected:
  WalkTest() {
    ResetProcessState();
    SetUpTables(&run);
  }

  ~WalkTest() override {
    CloseDeck();
    ReleaseRun(&run);
    ResetProcessState();
  }

  void CloseDeck() {
    if (run.deck.stream != nullptr) {
      std::fclose(run.deck.stream);
      run.deck.stream = nullptr;
    }
  }

  /// Puts the run on a deck with this text, its first chunk read.
  void OpenDeck(std::string_view text) {
    CloseDeck();
    deckPath = folder.Write("deck.bdf", text);
    run.deckPath = deckPath.c_str();
    std::FILE* stream = OpenFileUtf8(run.deckPath, "rb");
    ASSERT_NE(stream, nullptr);
    ASSERT_TRUE(AllocateDeckBuffer(&run.deck));
    AttachDeckStream(&run.deck, stream);
    firstChunkResult = ReadDeckChunk(&run.deck);
  }

  /// Walks a deck with this text.
  void Walk(std::string_view text, const PassTable& table, const PassTable* includeTable = nullptr) {
    OpenDeck(text);
    WalkDeckFile(&run, &run.deck, table, includeTable);
  }

  TemporaryFolder folder;
  FakePlatform platform;
  ScopedPlatform scope{platform};
  RunState run;
  std::string deckPath;
  std::int32_t firstChunkResult = -1;
};

/// What the rows of a table under test were handed: keyword of the row and the line at the cursor.
struct TakenCard {
  std::string keyword;
  std::string line;
  bool operator==(const TakenCard&) const = default;
};

/// A copy of a pass table in which every row but the include row records its card and passes its line. One at a time.
class RecordingTable {
 public:
  explicit RecordingTable(const PassTable& original) : table(original) {
    inForce = this;
    Replace(std::make_index_sequence<PassTable::mostRows>());
  }
  ~RecordingTable() { inForce = nullptr; }
  RecordingTable(const RecordingTable&) = delete;
  RecordingTable& operator=(const RecordingTable&) = delete;

  /// Keywords of the rows that took a card, in order.
  std::vector<std::string> Keywords() const {
    std::vector<std::string> keywords;
    for (const TakenCard& card : taken) {
      keywords.push_back(card.keyword);
    }
    return keywords;
  }

  PassTable table;
  std::vector<TakenCard> taken;
  std::int32_t result = 0;  ///< What the recording readers return.

 private:
  template <std::size_t row>
  static std::int32_t Record(CardContext& context) {
    inForce->taken.push_back({inForce->table.rows[row].keyword, LineAt(context.file.cursor)});
    PassLine(context.file);
    return inForce->result;
  }

  template <std::size_t... row>
  void Replace(std::index_sequence<row...>) {
    ((table.rows[row].keyword != nullptr && table.rows[row].guard != Guard::AnyCase ? void(table.rows[row].reader = Record<row>) : void()),
     ...);
  }

  static inline RecordingTable* inForce = nullptr;
};

}  // namespace btz::test
