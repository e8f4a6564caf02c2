#include "driver/line_walk.h"

#include <cstring>

#include "mesh/parts.h"
#include "support/text.h"

namespace btz {

namespace {

/// Whether the first card of the family starts a new default part.
constexpr bool OwnsDefaultPart(Family family) { return family < elementFamilyCount && family != familyRbe2 && family != familyRbe3; }

/// Whether the text begins with the row's keyword; `*length` is the keyword's.
bool MatchesKeyword(const CardRow& row, const char* text, const char* parentText, std::size_t* length) {
  std::size_t i = 0;
  for (; row.keyword[i] != 0; ++i) {
    char c = row.guard == Guard::AnyCase ? ToLower(text[i]) : text[i];
    if (text[i] != 0 && i == 4 && row.guard == Guard::FifthInParent) {
      c = parentText[strnlen(parentText, 4)];
    }
    if (c != row.keyword[i]) {
      return false;
    }
  }
  *length = i;
  return true;
}

bool Fits(const CardRow& row, const char* text, const char* parentText) {
  std::size_t length = 0;
  if (!MatchesKeyword(row, text, parentText, &length)) {
    return false;
  }
  const char next = text[length];
  const bool isNamed = next != 0 && std::strchr(row.guardCharacters, next) != nullptr;
  switch (row.guard) {
    case Guard::NextIsOneOf:
      return isNamed;
    case Guard::NextIsNoneOf:
      return !isNamed;
    default:
      return true;
  }
}

const CardRow* FindRow(const PassTable& table, const char* text, const char* parentText) {
  const auto letter = static_cast<unsigned char>(*text);
  // Letters of either case share their lower five bits, so this holds for keywords taken in any case mix too.
  if ((table.secondLetters[letter] >> (static_cast<unsigned char>(letter == 0 ? 0 : text[1]) & 31u) & 1u) == 0) {
    return nullptr;
  }
  const CardRow* row = &table.rows[table.firstRow[letter]];
  for (std::uint8_t i = 0; i < table.rowCount[letter]; ++i, ++row) {
    if (Fits(*row, text, parentText)) {
      return row;
    }
  }
  return nullptr;
}

void RunRow(const CardRow& row, CardContext& context) {
  if (row.family == familyNone) {
    row.reader(context);
    return;
  }
  std::int32_t& counter = context.run.counters[row.family];
  ++counter;
  if (counter == 1 && OwnsDefaultPart(row.family)) {
    DefaultPartId = 0;
  }
  if (row.reader(context) == 1 && row.refusal == Refusal::Undoes) {
    --counter;
  }
}

/// Moves behind the next line feed: true. At the text's end: false.
bool SkipLine(DeckBuffer* file) {
  char* const text = file->cursor;
  char* const filled = file->block + file->filled;
  if (text >= filled) {
    return false;
  }
  auto* end = static_cast<char*>(std::memchr(text, '\n', static_cast<std::size_t>(filled - text)));
  char* const last = end == nullptr ? filled : end;
  // A NUL in front of the line feed ends the text: readers leave some behind, and a deck may hold some.
  auto* nul = static_cast<char*>(std::memchr(text, 0, static_cast<std::size_t>(last - text)));
  if (nul != nullptr || end == nullptr) {
    file->cursor = nul != nullptr ? nul : last;
    return false;
  }
  file->cursor = end + 1;
  return true;
}

}  // namespace

void WalkDeckFile(RunState* run, DeckBuffer* file, const PassTable& table, const PassTable* includeTable) {
  CardContext context{*run, *file, includeTable};
  // While an include file is walked, the deck's cursor stands behind the include line.
  const char* parentText = run->deck.cursor;
  for (;;) {
    while (table.skipsBlanks && IsSpace(*file->cursor)) {
      ++file->cursor;
    }
    const CardRow* row = FindRow(table, file->cursor, parentText);
    if (row != nullptr && row->reader != NotBuilt) {
      const CardCursor before = file->cursor;
      const std::uint64_t generation = file->generation;
      RunRow(*row, context);
      // A reader that took nothing must not see its line again.
      if (file->cursor != before || file->generation != generation) {
        continue;
      }
    }
    if (SkipLine(file)) {
      continue;
    }
    const std::int32_t exhausted = ReadDeckChunk(file);
    ShowNextChunk(&run->progress);
    if (exhausted == 1) {
      return;
    }
  }
}

}  // namespace btz
