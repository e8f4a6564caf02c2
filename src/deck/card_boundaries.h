// Where a card ends. The deck gives no count of a card's fields: it may stop after any field, go on in lines that begin with a plus sign, a
// star or a blank, or simply end with the next keyword where a further field might have stood. So a reader looks at each coming field before
// it takes it, and decides whether this is a value, a blank, a continuation mark or the start of the next card. Here are the tests, and the
// field walk that almost every reader uses.
#pragma once

#include <cstdint>

#include "deck/fields.h"

namespace btz {

/// Moves over one field of `width` columns or over the rest of the line, and over the line feed that ends it: 0. On a NUL: 1, with no move.
std::int32_t SkipField(CardCursor* cursor, std::int32_t width);

// Tests on a compacted field text. Null is never true.

/// Whether the text holds a letter or `$` that is not part of an exponent: an `E` or `e` with a sign right behind it is passed over.
bool LooksLikeText(const char* text);

/// Whether a plus sign stands before any letter.
/// Required: true for `+1.5` and `1.5+3` too, so a real in the exponent form without `E` is stepped over as a mark.
bool IsContinuationMark(const char* text);

bool HasStar(const char* text);

/// Whether the text begins with one of the keywords that end a card; upper case only.
/// Required: the list lacks keywords that a deck can hold, such as `FORCE` and `CONM2`. It is not to be completed.
bool IsCardKeyword(const char* text);

/// What the field at the cursor is, for a walk that fills slots.
enum class FieldKind {
  Value,             ///< To be read as a number.
  Blank,             ///< Nothing in it.
  ContinuationMark,  ///< To be stepped over with the walk's width.
  StarMarker,        ///< Marker of a large-field continuation line, to be stepped over with 8 columns.
  CardEnd            ///< The card has ended before it.
};

/// Which text ends a walk: any text with a numeric value of 0, or only one of the keywords (other text is then read as a number).
enum class StopTest { AnyText, Keyword };

/// How the numeric value of a text is taken in a walk's tests.
enum class NumericTest { Integer, Decimal };

/// How a reader's walk goes.
struct FieldWalk {
  std::int32_t width;  ///< 8 or 16 columns.
  StopTest stop;
  NumericTest numeric;
};

/// The tests on a field that holds more than digits, signs, points and blanks. Not to be called directly.
FieldKind ClassifyOddField(const char* cursor, const FieldWalk& walk);

/// What the field at the cursor is. Nothing moves.
inline FieldKind ClassifyField(const char* cursor, const FieldWalk& walk) {
  // Most fields are plain numbers or blank. Such a field can be no mark, star, text or keyword, whatever compaction would leave of it.
  bool blank = true;
  for (std::int32_t i = 0; i < walk.width; ++i) {
    const char c = cursor[i];
    if (c == ' ') {
      continue;
    }
    if (!IsDigit(c) && c != '.' && c != '-') {
      return ClassifyOddField(cursor, walk);
    }
    blank = false;
  }
  return blank ? FieldKind::Blank : FieldKind::Value;
}

/// The field walk: fills up to `count` slots with the values of a card, in order, and returns how many were filled. `readSlot(slot)` reads the
/// field at the cursor into that slot; `onBlank()` is told of each blank field. A blank field takes no slot: values close up. The cursor ends
/// on what was not consumed.
template <typename ReadSlot, typename OnBlank>
std::int32_t WalkFields(CardCursor* cursor, std::int32_t count, const FieldWalk& walk, ReadSlot readSlot, OnBlank onBlank) {
  std::int32_t slot = 0;
  while (slot < count) {
    switch (ClassifyField(*cursor, walk)) {
      case FieldKind::Value:
        readSlot(slot++);
        break;
      case FieldKind::Blank:
        if (SkipField(cursor, walk.width) == 1) {
          return slot;
        }
        onBlank();
        break;
      case FieldKind::ContinuationMark:
        SkipField(cursor, walk.width);
        break;
      case FieldKind::StarMarker:
        SkipField(cursor, 8);
        break;
      case FieldKind::CardEnd:
        return slot;
    }
  }
  return slot;
}

template <typename ReadSlot>
std::int32_t WalkFields(CardCursor* cursor, std::int32_t count, const FieldWalk& walk, ReadSlot readSlot) {
  return WalkFields(cursor, count, walk, readSlot, [] {});
}

/// The walk of most element readers: integers, ended by any text.
inline std::int32_t WalkIntegers(CardCursor* cursor, std::int32_t width, std::int32_t* values, std::int32_t count) {
  const FieldWalk walk{width, StopTest::AnyText, NumericTest::Integer};
  return WalkFields(cursor, count, walk, [&](std::int32_t slot) { ReadIntField(width, cursor, &values[slot]); });
}

}  // namespace btz
