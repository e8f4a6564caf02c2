// The walk of load cards. A field's text ends at its line's end; only a field that begins at the line end looks into the next line, so that a
// mark or a keyword there is seen. So the last number of a line is read whatever stands below it.
#pragma once

#include "deck/card_boundaries.h"

namespace btz {

/// Copies the text of the field of `width` columns at the cursor, up to its line's end. From a line feed on, the head of the next line is copied too.
void PeekLineField(std::int32_t width, const char* cursor, char* dest);

/// Reads up to `count` reals of a card and returns how many were read. A blank field takes no place: values close up. A mark of a continuation line
/// is only one when it does not read as a number other than 0. The cursor ends on what was not consumed.
std::int32_t WalkLineReals(CardCursor* cursor, std::int32_t width, double* values, std::int32_t count);

}  // namespace btz
