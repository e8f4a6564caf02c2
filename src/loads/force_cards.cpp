#include <algorithm>
#include <iterator>

#include "deck/line_field_walk.h"
#include "loads/forces.h"
#include "support/block_pool.h"

namespace btz {

namespace {

/// One card, its vector already scaled.
struct ForceCard {
  std::int32_t setId = 0;
  std::int32_t nodeId = 0;
  std::int32_t csId = 0;
  LoadVector vector = {};
};

void Copy(const LoadVector& from, LoadVector& to) { std::copy(std::begin(from), std::end(from), to); }

void Scale(LoadVector& vector, double factor) {
  for (double& component : vector) {
    component *= factor;
  }
}

double GetFreeReal(const char* line, std::int32_t index) {
  char token[deckLineCapacity];
  GetFreeToken(line, index, token, sizeof(token), true);
  return ParseReal(token);
}

/// False without a line end or a node.
bool ReadFreeCard(CardCursor* cursor, ForceCard* card) {
  char line[deckLineCapacity];
  if (ReadDeckLine(cursor, line, sizeof(line)) < 0) {
    return false;
  }
  card->setId = GetFreeInteger(line, 1);
  card->nodeId = GetFreeInteger(line, 2);
  card->csId = GetFreeInteger(line, 3);
  for (std::int32_t i = 0; i < 3; ++i) {
    card->vector[i] = GetFreeReal(line, 5 + i);
  }
  Scale(card->vector, GetFreeReal(line, 4));
  return card->nodeId >= 1;
}

/// False without a node; the components are not read then.
bool ReadFixedCard(CardCursor* cursor, std::int32_t width, ForceCard* card) {
  Advance(cursor, 8);
  ReadIntField(width, cursor, &card->setId);
  ReadIntField(width, cursor, &card->nodeId);
  ReadIntField(width, cursor, &card->csId);
  double factor = 0.0;
  ReadRealField(width, cursor, &factor);
  if (card->nodeId < 1) {
    return false;
  }
  WalkLineReals(cursor, width, card->vector, 3);
  Scale(card->vector, factor);
  return true;
}

bool ReadCard(CardCursor* cursor, char behindKeyword, ForceCard* card) {
  return behindKeyword == ',' ? ReadFreeCard(cursor, card) : ReadFixedCard(cursor, behindKeyword == '*' ? 16 : 8, card);
}

ForceSetRecord* FindSet(std::int32_t setId) {
  const IndexedCell* cell = IndexedListFind(&ForceSetTable, setId);
  return cell == nullptr ? nullptr : static_cast<ForceSetRecord*>(cell->record);
}

/// A new set; null when its id is negative or memory ran out.
ForceSetRecord* NewSet(const ForceCard& card, const char* name) {
  if (card.setId < 0) {
    return nullptr;
  }
  auto* record = static_cast<ForceSetRecord*>(AllocateZeroed(sizeof(ForceSetRecord)));
  if (record == nullptr) {
    return nullptr;
  }
  record->setId = card.setId;
  record->csId = card.csId;
  CopyText(record->name, nameCapacity, name);
  IndexedListAppend(&ForceSetTable, card.setId, record);
  return record;
}

/// The record of the card's node in the set, made if it does not exist; null without such a node in the model.
ForceNodeRecord* FindOrMakeNode(MeshModel* model, ForceSetRecord* set, const ForceCard& card, bool isMoment) {
  MeshNode* node = nullptr;
  model->GetNode(card.nodeId, &node);
  if (node == nullptr || set == nullptr || node->id < 0) {
    return nullptr;
  }
  const std::int64_t id = PairId(set->setId, node->id);
  const IndexedCell* cell = IndexedListFind(&ForceNodeTable, id);
  if (cell != nullptr) {
    return static_cast<ForceNodeRecord*>(cell->record);
  }
  auto* record = static_cast<ForceNodeRecord*>(AllocateZeroed(sizeof(ForceNodeRecord)));
  if (record == nullptr) {
    return nullptr;
  }
  record->node = node;
  record->csId = card.csId;
  record->isMoment = isMoment ? 1 : 0;
  IndexedListAppend(&ForceNodeTable, id, record);
  (set->lastNode == nullptr ? set->firstNode : set->lastNode->next) = record;
  set->lastNode = record;
  ++set->nodeCount;
  return record;
}

bool DiffersInAny(const LoadVector& a, const LoadVector& b) { return a[0] != b[0] || a[1] != b[1] || a[2] != b[2]; }

/// Required: moments are told apart by their first component only.
bool DiffersInFirst(const LoadVector& a, const LoadVector& b) { return a[0] != b[0]; }

/// Compares a further card of a set with the reference. `held` is the vector that the set's record has had so far.
template <typename Differs>
void TestMixed(ForceSetRecord* set, const LoadVector& held, const LoadVector& vector, std::int32_t cardCount, LoadVector& reference,
               Differs differs) {
  if (set->mixed == 0) {
    Copy(held, reference);
  }
  if (cardCount == 1) {
    Copy(vector, reference);
    return;
  }
  if (set->mixed == 0 && differs(vector, reference)) {
    set->mixed = 1;
  }
}

}  // namespace

void ReadForceCard(CardCursor* cursor, MeshModel* model, LoadVector& reference, const char* name, std::int32_t cardCount) {
  ForceCard card;
  if (!ReadCard(cursor, (*cursor)[std::size("FORCE") - 1], &card)) {
    return;
  }
  ForceSetRecord* set = FindSet(card.setId);
  if (set == nullptr) {
    set = NewSet(card, name);
    if (set != nullptr) {
      Copy(card.vector, set->force);
    }
    Copy(card.vector, reference);
  } else {
    TestMixed(set, set->force, card.vector, cardCount, reference, DiffersInAny);
  }
  ForceNodeRecord* node = FindOrMakeNode(model, set, card, false);
  if (node != nullptr) {
    Copy(card.vector, node->force);
  }
}

void ReadMomentCard(CardCursor* cursor, MeshModel* model, LoadVector& reference, const char* name, std::int32_t cardCount) {
  ForceCard card;
  if (!ReadCard(cursor, (*cursor)[std::size("MOMENT") - 1], &card)) {
    return;
  }
  ForceSetRecord* set = FindSet(card.setId);
  if (set == nullptr) {
    set = NewSet(card, name);
    Copy(card.vector, reference);
  } else {
    TestMixed(set, set->moment, card.vector, cardCount, reference, DiffersInFirst);
  }
  if (set != nullptr) {
    Copy(card.vector, set->moment);
  }
  ForceNodeRecord* node = FindOrMakeNode(model, set, card, true);
  if (node != nullptr) {
    Copy(card.vector, node->moment);
  }
}

}  // namespace btz
