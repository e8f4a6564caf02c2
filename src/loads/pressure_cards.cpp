#include <algorithm>
#include <cstring>
#include <iterator>

#include "deck/line_field_walk.h"
#include "loads/pressures.h"
#include "support/block_pool.h"

namespace btz {

namespace {

/// One card as read.
struct Pload4 {
  std::int32_t setId = 0;
  std::int32_t elementId = 0;
  CornerValues values = {};
  std::int32_t nodeIds[2] = {};
};

/// Reads P1 to P4. False when the line ends behind P1. Required: the other values stay 0 then, although blanks in their place make them equal to P1.
bool ReadCornerValues(CardCursor* cursor, std::int32_t width, CornerValues& values) {
  if (**cursor == '\n') {
    ++*cursor;
  }
  ReadRealField(width, cursor, &values[0]);
  if (**cursor == '\r' || **cursor == '\n') {
    return false;
  }
  for (std::size_t i = 1; i < 4; ++i) {
    ReadRealField(width, cursor, &values[i]);
  }
  // Required: equal values at the other corners give way to the first, blank or not.
  if (values[1] == values[2] && values[2] == values[3]) {
    std::fill(values + 1, values + 4, values[0]);
  }
  return true;
}

/// What the field of a node is. Required: any plus sign makes it the mark of a continuation line, in front of a number too; any star without a number
/// that is no known keyword makes it the marker of one, so a `PLOAD4*` below is stepped over; and THRU ends the card.
enum class NodeField { Value, Blank, ContinuationMark, StarMarker, Thru, CardEnd };

NodeField ClassifyNodeField(const char* cursor, std::int32_t width) {
  FieldText text;
  PeekLineField(width, cursor, text);
  if (CompactField(text) == nullptr) {
    return NodeField::Blank;
  }
  if (IsContinuationMark(text)) {
    return NodeField::ContinuationMark;
  }
  const bool zero = ParseInteger(text) == 0;
  if (zero && HasStar(text)) {
    return IsCardKeyword(text) ? NodeField::CardEnd : NodeField::StarMarker;
  }
  if (LooksLikeText(text)) {
    if (std::strcmp(text, "THRU") == 0) {
      return NodeField::Thru;
    }
    if (zero) {
      return NodeField::CardEnd;
    }
  }
  return NodeField::Value;
}

/// Reads G1 and G3. False at a THRU.
bool ReadNodeIds(CardCursor* cursor, std::int32_t width, std::int32_t (&nodeIds)[2]) {
  std::size_t place = 0;
  while (place < std::size(nodeIds)) {
    switch (ClassifyNodeField(*cursor, width)) {
      case NodeField::Value:
        ReadIntField(width, cursor, &nodeIds[place++]);
        break;
      case NodeField::Blank:
        if (SkipField(cursor, width) == 1) {
          return true;
        }
        break;
      case NodeField::ContinuationMark:
        SkipField(cursor, width);
        break;
      case NodeField::StarMarker:
        SkipField(cursor, 8);
        break;
      case NodeField::Thru:
        return false;
      case NodeField::CardEnd:
        return true;
    }
  }
  return true;
}

/// Whether a set that begins with these values needs a field. Required: P4 is not looked at.
bool AreMixed(const CornerValues& p) { return p[1] != 0.0 && (p[0] != p[1] || p[0] != p[2] || p[1] != p[2]); }

PressureSetRecord* NewSet(const Pload4& card) {
  auto* set = static_cast<PressureSetRecord*>(AllocateZeroed(sizeof(PressureSetRecord)));
  if (set == nullptr) {
    return nullptr;
  }
  set->setId = card.setId;
  set->pressure = card.values[0];
  set->mixed = AreMixed(card.values) ? 1 : 0;
  IndexedListAppend(&PressureSetTable, card.setId, set);
  return set;
}

/// The set of the card, made if it does not exist; null for a negative id, which is not kept.
PressureSetRecord* FindOrMakeSet(const Pload4& card, CornerValues& reference) {
  const IndexedCell* cell = IndexedListFind(&PressureSetTable, card.setId);
  if (cell == nullptr) {
    std::copy(std::begin(card.values), std::end(card.values), reference);
    return card.setId < 0 ? nullptr : NewSet(card);
  }
  auto* set = static_cast<PressureSetRecord*>(cell->record);
  if (set->mixed == 0) {
    reference[0] = set->pressure;
    set->mixed = card.values[0] != reference[0] ? 1 : 0;
  }
  return set;
}

void AddCard(MeshModel* model, const Pload4& card, PressureSetRecord* set) {
  auto* added = static_cast<PressureCard*>(AllocateZeroed(sizeof(PressureCard)));
  if (added == nullptr) {
    return;
  }
  std::copy(std::begin(card.values), std::end(card.values), added->values);
  model->GetNode(card.nodeIds[0], &added->firstNode);
  model->GetNode(card.nodeIds[1], &added->secondNode);
  set->isShell = card.nodeIds[0] == 0 && card.nodeIds[1] == 0 ? 1 : 0;
  if (set->isShell != 0) {
    model->GetElement(card.elementId, &added->element);
  } else {
    model->GetSolidElement(card.elementId, &added->element, 1);
  }
  (set->last == nullptr ? set->first : set->last->next) = added;
  set->last = added;
}

}  // namespace

void ReadPload4Card(CardCursor* cursor, MeshModel* model, CornerValues& reference) {
  const std::int32_t width = FieldWidthFor(*cursor, "PLOAD4*");
  Advance(cursor, 8);
  Pload4 card;
  ReadIntField(width, cursor, &card.setId);
  ReadIntField(width, cursor, &card.elementId);
  if (ReadCornerValues(cursor, width, card.values) && !ReadNodeIds(cursor, width, card.nodeIds)) {
    return;
  }
  PressureSetRecord* set = FindOrMakeSet(card, reference);
  if (set != nullptr) {
    AddCard(model, card, set);
  }
}

void FreePressureSetRecord(void* record) {
  auto* set = static_cast<PressureSetRecord*>(record);
  for (PressureCard* card = set->first; card != nullptr;) {
    PressureCard* next = card->next;
    ReleaseMemory(card);
    card = next;
  }
  ReleaseMemory(set);
}

}  // namespace btz
