#include "deck/line_field_walk.h"

namespace btz {

namespace {

/// What the field at the cursor is. A mark is only one without a value, and a word only without an integer in front.
FieldKind ClassifyLineField(const char* cursor, std::int32_t width) {
  FieldText text;
  PeekLineField(width, cursor, text);
  if (CompactField(text) == nullptr) {
    return FieldKind::Blank;
  }
  if (IsContinuationMark(text) && ParseDecimal(text) == 0.0) {
    return FieldKind::ContinuationMark;
  }
  if (ParseInteger(text) != 0) {
    return FieldKind::Value;
  }
  if (HasStar(text)) {
    return IsCardKeyword(text) ? FieldKind::CardEnd : FieldKind::StarMarker;
  }
  return LooksLikeText(text) ? FieldKind::CardEnd : FieldKind::Value;
}

}  // namespace

void PeekLineField(std::int32_t width, const char* cursor, char* dest) {
  std::int32_t length = 0;
  bool hasText = *cursor != '\n';
  for (; length < width && cursor[length] != 0 && !(hasText && cursor[length] == '\n'); ++length) {
    dest[length] = cursor[length];
    hasText = hasText || !IsSpace(cursor[length]);
  }
  dest[length] = 0;
}

std::int32_t WalkLineReals(CardCursor* cursor, std::int32_t width, double* values, std::int32_t count) {
  std::int32_t place = 0;
  while (place < count) {
    switch (ClassifyLineField(*cursor, width)) {
      case FieldKind::Value:
        ReadRealField(width, cursor, &values[place++]);
        break;
      case FieldKind::Blank:
        if (SkipField(cursor, width) == 1) {
          return place;
        }
        break;
      case FieldKind::ContinuationMark:
        SkipField(cursor, width);
        break;
      case FieldKind::StarMarker:
        SkipField(cursor, 8);
        break;
      case FieldKind::CardEnd:
        return place;
    }
  }
  return place;
}

}  // namespace btz
