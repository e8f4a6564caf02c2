#include <cstring>

#include "deck/card_boundaries.h"
#include "loads/constraints.h"
#include "mesh/nodes.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

/// Ids that a THRU range enters one by one. Behind them only nodes that the model has are entered.
constexpr std::int64_t mostHoles = 10000000;

// The forms of an SPC card.
enum class SpcForm { Small, Large, Unread };

SpcForm FormOf(const char* card) {
  if (card[3] == '*' || (card[3] == 'D' && card[4] == '*')) {
    return SpcForm::Large;
  }
  return BeginsWithKeyword(card, "SPC     ") || BeginsWithKeyword(card, "SPCD    ") ? SpcForm::Small : SpcForm::Unread;
}

bool LineHolds(const char* line, char c) {
  while (*line != 0 && *line != '\n' && *line != c) {
    ++line;
  }
  return *line == c;
}

void MoveToLineEnd(CardCursor* cursor) {
  while (**cursor != 0 && **cursor != '\n') {
    ++*cursor;
  }
}

/// Moves to the first field of the next line when the cursor stands on a mark of a continuation line or on the line end.
void StepToContinuation(CardCursor* cursor) {
  if (**cursor == '+' || **cursor == '*' || **cursor == '\n') {
    MoveToLineEnd(cursor);
    Advance(cursor, 9);
  }
}

/// An integer field of an SPC card. At the line's end it is 0, and nothing is taken or overwritten.
std::int32_t TakeSpcInteger(CardCursor* cursor, std::int32_t width) {
  std::int32_t value = 0;
  if (**cursor != '\n' && **cursor != 0) {
    ReadIdField(width, cursor, &value, false);
  }
  return value;
}

/// One node with its components and value.
struct SpcGroup {
  std::int32_t nodeId = 0;
  std::int32_t components = 0;
  double value = 0.0;
};

/// Reads what follows a group's node id.
void TakeComponentsAndValue(CardCursor* cursor, std::int32_t width, SpcGroup* group) {
  StepToContinuation(cursor);
  group->components = TakeSpcInteger(cursor, width);
  StepToContinuation(cursor);
  ReadRealField(width, cursor, &group->value);
}

/// Calls `visit(component)`, 0 to 5, for each digit 1 to 6 of the number from the right. `stopAtZero` ends at the first digit 0.
template <typename Visit>
void VisitDigits(std::int32_t number, bool stopAtZero, Visit visit) {
  for (; number > 0; number /= 10) {
    const std::int32_t digit = number % 10;
    if (digit == 0 && stopAtZero) {
      return;
    }
    if (digit >= 1 && digit <= static_cast<std::int32_t>(componentCount)) {
      visit(static_cast<std::size_t>(digit - 1));
    }
  }
}

/// The card at hand: which digits its merges have met, over both groups.
class SpcCard {
 public:
  SpcCard(IndexedList* list, std::int32_t setId, bool isSpc) : list_(list), setId_(setId), isSpc_(isSpc) {}

  void EnterFirst(const SpcGroup& group) {
    SpcRecord* record = Find(group.nodeId);
    firstFound_ = record != nullptr;
    if (firstFound_) {
      Merge(record, group);
    } else {
      Create(group);
    }
  }

  void EnterSecond(const SpcGroup& group) {
    SpcRecord* record = Find(group.nodeId);
    if (record != nullptr) {
      Merge(record, group);
      return;
    }
    // Required: that the first group was found still counts, and then a node that also has the oldest record, in another set, is lost.
    if (firstFound_ && static_cast<const SpcRecord*>(list_->last->record)->nodeId == group.nodeId) {
      return;
    }
    Create(group);
  }

 private:
  SpcRecord* Find(std::int32_t nodeId) const {
    const IndexedCell* cell = IndexedListFind(list_, PairId(setId_, nodeId));
    return cell == nullptr ? nullptr : static_cast<SpcRecord*>(cell->record);
  }

  static void SetComponents(SpcRecord* record, const SpcGroup& group) {
    VisitDigits(group.components, false, [&](std::size_t component) {
      record->dofFlag[component] = 1;
      record->dofValue[component] = group.value;
    });
  }

  void Create(const SpcGroup& group) {
    auto* record = static_cast<SpcRecord*>(AllocateZeroed(sizeof(SpcRecord)));
    if (record == nullptr) {
      return;
    }
    record->setId = setId_;
    record->nodeId = group.nodeId;
    record->components = group.components;
    record->isSpc = isSpc_;
    SetComponents(record, group);
    IndexedListPrepend(list_, PairId(setId_, group.nodeId), record);
  }

  void Merge(SpcRecord* record, const SpcGroup& group) {
    SetComponents(record, group);
    if (record->components == group.components || group.components == 0) {
      return;
    }
    if (record->components == 0) {
      record->components = group.components;
      return;
    }
    // Required: the digits met are not forgotten between the groups of a card, so a second merge takes those of the first.
    const auto meet = [this](std::size_t component) { digits_[component] = true; };
    VisitDigits(record->components, true, meet);
    VisitDigits(group.components, true, meet);
    record->components = 0;
    for (std::size_t component = 0; component < componentCount; ++component) {
      if (digits_[component]) {
        record->components = record->components * 10 + static_cast<std::int32_t>(component) + 1;
      }
    }
  }

  IndexedList* list_;
  std::int32_t setId_;
  bool isSpc_;
  bool firstFound_ = false;
  bool digits_[componentCount] = {};
};

/// Whether the next `count` characters are blanks.
bool AreBlanks(const char* text, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    if (text[i] != ' ') {
      return false;
    }
  }
  return true;
}

enum class SecondGroup { None, Given, CardLost };

/// Reads the second group of a small card, right behind the first.
SecondGroup TakeSecondSmall(CardCursor* cursor, SpcGroup* group) {
  group->nodeId = TakeSpcInteger(cursor, 8);
  if (group->nodeId < 1) {
    return SecondGroup::None;
  }
  TakeComponentsAndValue(cursor, 8, group);
  return SecondGroup::Given;
}

/// Reads the second group of a large card, which stands in its next line.
/// Required: a card whose fourth field has no mark of a continuation behind it is lost.
SecondGroup TakeSecondLarge(CardCursor* cursor, SpcGroup* group) {
  if (**cursor == '\n') {
    ++*cursor;
    return SecondGroup::CardLost;
  }
  if (**cursor != '+' && **cursor != '*') {
    return SecondGroup::CardLost;
  }
  MoveToLineEnd(cursor);
  Advance(cursor, 2);
  if (!AreBlanks(*cursor, 7)) {
    return SecondGroup::None;
  }
  Advance(cursor, 7);
  group->nodeId = TakeSpcInteger(cursor, 16);
  TakeComponentsAndValue(cursor, 16, group);
  return SecondGroup::Given;
}

void MoveBehindLine(CardCursor* cursor) {
  MoveToLineEnd(cursor);
  Advance(cursor, 1);
}

Spc1Record* FindOrMakeSpc1(IndexedList* list, std::int32_t setId, std::int32_t components) {
  const std::int64_t id = PairId(setId, components);
  const IndexedCell* cell = IndexedListFind(list, id);
  if (cell != nullptr) {
    return static_cast<Spc1Record*>(cell->record);
  }
  auto* record = static_cast<Spc1Record*>(AllocateZeroed(sizeof(Spc1Record)));
  if (record == nullptr) {
    return nullptr;
  }
  record->setId = setId;
  record->components = components;
  VisitDigits(components, false, [&](std::size_t component) { record->dofFlag[component] = 1; });
  ListInit(&record->nodes, &ListPool);
  IndexedListPrepend(list, id, record);
  return record;
}

/// Whether the field at the cursor holds THRU and white space only.
bool IsThru(const char* cursor, std::int32_t width) {
  FieldText field;
  PeekField(width, cursor, field);
  const char* letter = "THRU";
  for (const char* c = field; *c != 0; ++c) {
    if (IsSpace(*c)) {
      continue;
    }
    if (*letter == 0 || *c != *letter++) {
      return false;
    }
  }
  return *letter == 0;
}

/// Appends the nodes of a range. Required: the node of a hole is that of the id before it, or none.
void AppendRange(MeshModel* model, std::int32_t first, std::int32_t last, PooledList* nodes) {
  MeshNode* node = nullptr;
  const std::int64_t lastHole = static_cast<std::int64_t>(first) + mostHoles - 1;
  std::int64_t id = first;
  for (; id <= last && id <= lastHole; ++id) {
    model->GetNode(static_cast<std::int32_t>(id), &node);
    ListAppend(nodes, node);
  }
  // A range of billions says "to the end": there are no nodes behind the highest.
  for (; id <= last && id <= HighestNodeId; ++id) {
    MeshNode* found = nullptr;
    model->GetNode(static_cast<std::int32_t>(id), &found);
    if (found != nullptr) {
      ListAppend(nodes, found);
    }
  }
}

}  // namespace

void EnterNodeEnforcedValue(std::int32_t nodeId, double value) {
  if (nodeId < 0 || IndexedListFind(&NodeEnforcedValueTable, nodeId) != nullptr) {
    return;
  }
  auto* record = static_cast<NodeEnforcedValue*>(AllocateZeroed(sizeof(NodeEnforcedValue)));
  if (record == nullptr) {
    return;
  }
  *record = {nodeId, value};
  IndexedListAppend(&NodeEnforcedValueTable, nodeId, record);
}

void ReadSpcCard(CardCursor* cursor, IndexedList* spcList) {
  const SpcForm form = FormOf(*cursor);
  if (LineHolds(*cursor, '=')) {
    Advance(cursor, 6);
    return;
  }
  if (form == SpcForm::Unread) {
    Advance(cursor, 7);
    return;
  }
  const bool isSpc = (*cursor)[3] == ' ' || (*cursor)[3] == '*';
  const std::int32_t width = form == SpcForm::Large ? 16 : 8;
  Advance(cursor, 8);
  const std::int32_t setId = TakeSpcInteger(cursor, width);
  StepToContinuation(cursor);
  SpcGroup first;
  first.nodeId = TakeSpcInteger(cursor, width);
  TakeComponentsAndValue(cursor, width, &first);
  EnterNodeEnforcedValue(first.nodeId, first.value);
  SpcGroup second;
  const SecondGroup secondGroup = width == 8 ? TakeSecondSmall(cursor, &second) : TakeSecondLarge(cursor, &second);
  if (secondGroup == SecondGroup::CardLost) {
    return;
  }
  MoveBehindLine(cursor);
  SpcCard card(spcList, setId, isSpc);
  card.EnterFirst(first);
  if (secondGroup == SecondGroup::Given) {
    card.EnterSecond(second);
  }
}

void ReadSpc1Card(MeshModel* model, CardCursor* cursor, IndexedList* spc1List) {
  const bool large = (*cursor)[4] == '*';
  if (!large && (*cursor)[4] != ' ') {
    Advance(cursor, 4);
    return;
  }
  const std::int32_t width = large ? 16 : 8;
  Advance(cursor, 8);
  std::int32_t setId = 0;
  std::int32_t components = 0;
  std::int32_t first = 0;
  ReadIntField(width, cursor, &setId);
  ReadIntField(width, cursor, &components);
  ReadIntField(width, cursor, &first);
  const bool thru = IsThru(*cursor, width);
  std::int32_t last = first;
  if (thru) {
    Advance(cursor, static_cast<std::size_t>(width));
    // Required: in the large form 20 characters more, over the mark, the line end and the marker of the next line. That is into the field itself,
    // so its number has to stand at the right.
    Advance(cursor, large ? 20 : 0);
    ReadIntField(width, cursor, &last);
  }
  Spc1Record* record = FindOrMakeSpc1(spc1List, setId, components);
  if (record != nullptr) {
    AppendRange(model, first, last, &record->nodes);
  }
}

void FreeSpc1Record(void* record) {
  ListClear(&static_cast<Spc1Record*>(record)->nodes);
  ReleaseMemory(record);
}

}  // namespace btz
