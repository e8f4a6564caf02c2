#include "properties/property_cards.h"

#include "deck/position_walk.h"
#include "properties/property_capture.h"
#include "support/hash_keys.h"

namespace btz {

void ReadPshellCard(CardCursor* cursor, IndexedList* pshellList) {
  auto* record = NewRecord<PshellRecord>();
  if (record == nullptr) {
    return;
  }
  const std::int32_t comment = ReadCommentAboveCard(*cursor, record->name);
  const std::int32_t width = FieldWidthFor(*cursor, "PSHELL*");
  Advance(cursor, 8);
  ReadIntField(width, cursor, &record->propertyId);
  ReadIntField(width, cursor, &record->materialId);
  double values[6] = {};
  std::uint8_t blanks[6] = {};
  WalkPositions(cursor, width, values, blanks, 6);
  record->thickness = values[0];
  record->bendingMaterialId = TruncateToInt(values[1]);
  record->bendingRatio = values[2];
  record->shearMaterialId = TruncateToInt(values[3]);
  record->shearRatio = values[4];
  record->nonStructuralMass = values[5];
  // Required: a card that ends before T is not blank there; its thickness counts as 0.0.
  record->thicknessBlank = blanks[0];
  Capture(record, pshellList, comment);
}

void ReadPsolidCard(CardCursor* cursor, IndexedList* psolidList) {
  auto* record = NewRecord<PsolidRecord>();
  if (record == nullptr) {
    return;
  }
  const std::int32_t comment = ReadCommentAboveCard(*cursor, record->name);
  const std::int32_t width = FieldWidthFor(*cursor, "PSOLID*");
  Advance(cursor, 8);
  ReadIntField(width, cursor, &record->propertyId);
  ReadIntField(width, cursor, &record->materialId);
  ReadIntField(width, cursor, &record->coordinateSystemId);
  Capture(record, psolidList, comment);
}

void ReadPgaskCard(CardCursor* cursor, IndexedList* pgaskList) {
  auto* record = NewRecord<PgaskRecord>();
  if (record == nullptr) {
    return;
  }
  const std::int32_t comment = ReadCommentAboveCard(*cursor, record->name);
  const std::int32_t width = FieldWidthFor(*cursor, "PGASK*");
  Advance(cursor, 8);
  ReadIntField(width, cursor, &record->propertyId);
  ReadIntField(width, cursor, &record->materialId);
  ReadIntField(width, cursor, &record->membraneMaterialId);
  ReadIntField(width, cursor, &record->reservedId);
  // Required: four values and no more, so that the fifth, which would switch stabilization on, never does; and a value that the card does not
  // reach counts as present.
  double values[4] = {};
  std::uint8_t blanks[4] = {};
  WalkPositions(cursor, width, values, blanks, 4);
  record->thickness = values[0];
  record->thicknessPresent = blanks[0] == 0;
  record->gap = values[1];
  record->gapPresent = blanks[1] == 0;
  record->voidValue = values[2];
  record->voidPresent = blanks[2] == 0;
  record->leakagePressure = values[3];
  record->leakagePressurePresent = blanks[3] == 0;
  Capture(record, pgaskList, comment);
}

}  // namespace btz
