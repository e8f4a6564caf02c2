// The form of a pass table: which keywords a pass looks for in a file, in the order of the tests, and what is done with each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "driver/run_state.h"

namespace btz {

struct PassTable;

/// Where a card is met: the run, the file that holds it, and what the walk of that file is doing.
struct CardContext {
  RunState& run;
  DeckBuffer& file;
  const PassTable* includeTable;  ///< Table for the include files of this walk; null inside an include file.
};

/// Takes the card at the cursor of `context.file`. 1 means that the card was refused.
using CardReader = std::int32_t (*)(CardContext& context);

/// Marks a row whose reader is not built yet: its line is skipped as unknown text is.
inline constexpr CardReader NotBuilt = nullptr;

/// What is asked of the text behind a keyword.
enum class Guard {
  None,
  NextIsOneOf,    ///< The next character is one of the row's.
  NextIsNoneOf,   ///< It is not.
  AnyCase,        ///< The keyword itself is taken in any case mix.
  FifthInParent,  ///< The keyword's fifth character is looked for in the line of the parent file where its walk will go on.
};

/// What a refused card does to the counter that was raised for it.
enum class Refusal { Undoes, Ignored };

struct CardRow {
  const char* keyword;
  Guard guard;
  const char* guardCharacters;
  Family family;  ///< Raised before the reader runs; familyNone: no counter.
  CardReader reader;
  Refusal refusal;
};

constexpr CardRow Row(const char* keyword, CardReader reader) { return {keyword, Guard::None, "", familyNone, reader, Refusal::Ignored}; }

constexpr CardRow RowIfNext(const char* keyword, const char* characters, CardReader reader) {
  return {keyword, Guard::NextIsOneOf, characters, familyNone, reader, Refusal::Ignored};
}

constexpr CardRow RowUnlessNext(const char* keyword, const char* characters, CardReader reader) {
  return {keyword, Guard::NextIsNoneOf, characters, familyNone, reader, Refusal::Ignored};
}

constexpr CardRow CountedRow(const char* keyword, Family family, CardReader reader, Refusal refusal = Refusal::Ignored) {
  return {keyword, Guard::None, "", family, reader, refusal};
}

/// A table ready for the walk: its rows in order, regrouped by first letter. Rows of different letters can't fit the same text, so only the
/// order within a letter matters, and a line that nobody claims costs a look-up of its first two characters.
struct PassTable {
  static constexpr std::size_t mostRows = 64;

  bool skipsBlanks = false;  ///< White space in front of a keyword is skipped, line feeds included.
  std::uint8_t firstRow[256] = {};
  std::uint8_t rowCount[256] = {};
  std::uint32_t secondLetters[256] = {};  ///< Bit (character & 31) is set for each second character that a row of the letter has.
  CardRow rows[mostRows] = {};
};

constexpr bool BeginsWithLetter(const CardRow& row, unsigned char letter) {
  const auto first = static_cast<unsigned char>(row.keyword[0]);
  return first == letter || (row.guard == Guard::AnyCase && (first | 0x20) == (letter | 0x20));
}

constexpr PassTable MakePassTable(bool skipsBlanks, std::span<const CardRow> rows) {
  PassTable table;
  table.skipsBlanks = skipsBlanks;
  std::uint8_t used = 0;
  for (unsigned letter = 1; letter < 256; ++letter) {
    table.firstRow[letter] = used;
    for (const CardRow& row : rows) {
      if (BeginsWithLetter(row, static_cast<unsigned char>(letter))) {
        table.rows[used++] = row;
        ++table.rowCount[letter];
        table.secondLetters[letter] |= 1u << (static_cast<unsigned char>(row.keyword[1]) & 31u);
      }
    }
  }
  return table;
}

}  // namespace btz
