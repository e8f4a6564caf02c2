#include "deck/position_walk.h"

#include "deck/card_boundaries.h"

namespace btz {

PositionKind ClassifyPosition(const char* cursor, std::int32_t width, FieldText& text) {
  PeekField(width, cursor, text);
  if (CompactField(text) == nullptr) {
    return PositionKind::Blank;
  }
  const bool zero = ParseDecimal(text) == 0.0;
  if (zero && IsContinuationMark(text)) {
    return PositionKind::ContinuationMark;
  }
  if (zero && HasStar(text)) {
    return IsCardKeyword(text) ? PositionKind::StarKeyword : PositionKind::StarMarker;
  }
  return zero && LooksLikeText(text) ? PositionKind::Text : PositionKind::Value;
}

std::int32_t WalkPositions(CardCursor* cursor, std::int32_t width, double* values, std::uint8_t* blanks, std::int32_t count) {
  std::int32_t position = 0;
  FieldText text;
  while (position < count) {
    const PositionKind kind = ClassifyPosition(*cursor, width, text);
    switch (kind) {
      case PositionKind::ContinuationMark:
        SkipField(cursor, width);
        break;
      case PositionKind::StarMarker:
        SkipField(cursor, 8);
        break;
      case PositionKind::StarKeyword:
      case PositionKind::Text:
        return position;
      case PositionKind::Blank:
      case PositionKind::Value:
        blanks[position] = kind == PositionKind::Blank ? 1 : 0;
        ReadRealField(width, cursor, &values[position]);
        ++position;
        break;
    }
  }
  return position;
}

}  // namespace btz
