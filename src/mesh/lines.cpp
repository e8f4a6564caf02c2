#include "mesh/lines.h"

#include <algorithm>

#include "mesh/element_card.h"
#include "properties/property_records.h"
#include "support/hash_keys.h"

namespace btz {

namespace {

/// The values behind the nodes of a bar card.
enum BarValue : std::size_t { barX1, barX2, barX3, barPinA, barPinB, barValueCount };

void StoreInProperties(const IndexedList* beamPropertyList, std::int32_t partId, const double (&values)[barValueCount]) {
  for (const IndexedCell* cell = IndexedListFind(beamPropertyList, partId); cell != nullptr; cell = cell->nextOfId) {
    auto* record = static_cast<BeamPropertyRecord*>(cell->record);
    std::copy(values + barX1, values + barPinA, record->orientation);
    record->pinFlagsA = TruncateToInt(values[barPinA]);
    record->pinFlagsB = TruncateToInt(values[barPinB]);
  }
}

}  // namespace

std::int32_t ReadBarCard(MeshModel* model, CardCursor* cursor, const char* logPath, const IndexedList* beamPropertyList) {
  const std::int32_t width = FieldWidthFor(*cursor, "CBAR*");
  ElementCard card;
  card.type = elementLine2;
  ReadElementHead(model, cursor, width, &card);
  ReadIntField(width, cursor, &card.nodes[0]);
  ReadIntField(width, cursor, &card.nodes[1]);
  // Required: a blank field takes no value's place, so pin flags close up behind a blank OFFT and move forward behind a blank X; a node id in
  // the place of X1 is read as a number like the others.
  double values[barValueCount] = {};
  const FieldWalk walk{width, StopTest::AnyText, NumericTest::Integer};
  WalkFields(cursor, barValueCount, walk, [&](std::int32_t slot) { ReadRealField(width, cursor, &values[slot]); });
  const std::int32_t refused = CreateElementInPart(model, card, partOfLines, 0, 0, "Bar", logPath);
  StoreInProperties(beamPropertyList, card.partId, values);
  return refused;
}

std::int32_t ReadBeamCard(MeshModel* model, CardCursor* cursor, const char* logPath) {
  const std::int32_t width = FieldWidthFor(*cursor, "CBEAM*");
  ElementCard card;
  card.type = elementLine2;
  ReadElementHead(model, cursor, width, &card);
  ReadIdField(width, cursor, &card.nodes[0], false);
  ReadIdField(width, cursor, &card.nodes[1], false);
  return CreateElementInPart(model, card, partOfLines, 0, 0, "Beam", logPath);
}

}  // namespace btz
