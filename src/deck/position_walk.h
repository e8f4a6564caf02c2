// The walk of property and material cards. Unlike the walk of element cards, a blank field is a value here: it is read as 0.0 and takes its
// position, so that a value means what its column says; and a mark of a continuation line must not read as a number.
#pragma once

#include "deck/fields.h"

namespace btz {

/// What the field at the cursor is, for a walk over positions. The tests are made in this order.
enum class PositionKind {
  ContinuationMark,  ///< To be stepped over with the walk's width.
  StarKeyword,       ///< The next card has been reached, a large-field one.
  StarMarker,        ///< Marker of a large-field continuation line, to be stepped over with 8 columns.
  Blank,             ///< Nothing in it: 0.0, or what the reader makes of it.
  Text,              ///< Letters without a numeric value: the next card has been reached.
  Value              ///< To be read as a number.
};

/// What the field of `width` columns at the cursor is. Nothing moves. `text` gets the compacted text; it is empty for a blank.
PositionKind ClassifyPosition(const char* cursor, std::int32_t width, FieldText& text);

/// Reads up to `count` reals of a card by position and returns how many were reached. Required: a label of a continuation line that is a number
/// (`+1`) is a value, and the positions left at the text's end are blank ones. `blanks[i]` becomes 1 for a blank field, which reads as 0.0,
/// and 0 for another; values and marks of positions that were not reached keep what they had. The cursor ends on what was not consumed.
std::int32_t WalkPositions(CardCursor* cursor, std::int32_t width, double* values, std::uint8_t* blanks, std::int32_t count);

}  // namespace btz
