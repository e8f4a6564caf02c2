#include <algorithm>
#include <iterator>

#include "deck/card_boundaries.h"
#include "deck/name_comments.h"
#include "loads/load_sets.h"
#include "mesh/nodes.h"
#include "sets/entity_sets.h"
#include "sets/set_members.h"
#include "support/text.h"

namespace btz {

namespace {

/// Ranges up to this length are asked for id by id; longer ones end where nothing more can be found.
constexpr std::int32_t plainRange = 10'000'000;

/// The numbers of the card, as members of one kind.
class GroupMembers {
 public:
  GroupMembers(MeshModel* model, bool isNodeSet) : model_(model), isNodeSet_(isNodeSet) {}

  /// The next number is the end of a range. Required: without one in front of it, it is an id of its own, and the number behind it is lost.
  void NoteRange() { isRange_ = true; }

  void Take(std::int32_t value) {
    (isRange_ ? last_ : first_) = value;
    isRange_ = false;
    if (first_ < 1 || last_ < 1) {
      Add(value);
      return;
    }
    // The first id was added as it was read.
    const std::int32_t end = EndOfRange();
    for (std::int32_t id = first_; id < end; ++id) {
      Add(id + 1);
    }
    first_ = 0;
    last_ = 0;
  }

  SetMembers members;
  bool solidFound = false;

 private:
  /// The last id to ask for. Of a very long range, none behind the highest of the model.
  std::int32_t EndOfRange() {
    if (last_ - first_ <= plainRange) {
      return last_;
    }
    return std::min(last_, isNodeSet_ ? HighestNodeId : model_->NextElementId());
  }

  void Add(std::int32_t id) {
    if (isNodeSet_) {
      MeshNode* node = nullptr;
      model_->GetNode(id, &node);
      if (node != nullptr) {
        ListAppend(&members.nodes, node);
      }
      return;
    }
    bool isSolid = false;
    MeshElement* element = FindAnyElement(model_, id, &isSolid);
    if (element != nullptr) {
      solidFound = solidFound || isSolid;
      ListAppend(&members.elements, element);
    }
  }

  MeshModel* model_;
  bool isNodeSet_;
  std::int32_t first_ = 0;
  std::int32_t last_ = 0;
  bool isRange_ = false;
};

/// What the first line of the card says.
struct GroupHead {
  std::int32_t setId = 0;
  bool isNodeSet = false;
  bool isElementSet = false;
};

/// Takes the first line.
GroupHead TakeHead(CardCursor* cursor, std::int32_t width) {
  char line[512];
  ReadDeckLine(cursor, line, sizeof(line));
  CardCursor at = line;
  Advance(&at, 8);
  GroupHead head;
  head.setId = ParseInteger(at);
  Advance(&at, width);
  FieldText kind;
  PeekField(width, at, kind);
  TrimField(kind);
  head.isNodeSet = CompareNoCase(kind, "GRID") == 0;
  head.isElementSet = CompareNoCase(kind, "ELEM") == 0;
  return head;
}

/// Takes one field; false at the end of the card.
bool TakeField(DeckBuffer* file, std::int32_t width, GroupMembers* numbers) {
  CardCursor* cursor = &file->cursor;
  FieldText text;
  PeekField(width, *cursor, text);
  const char* compact = CompactField(text);
  if (IsContinuationMark(compact)) {
    SkipField(cursor, width);
    return true;
  }
  if (compact == nullptr) {
    return SkipField(cursor, width) == 0 || ReadDeckChunk(file) == 0;
  }
  const bool zero = ParseInteger(text) == 0;
  if (zero && HasStar(text)) {
    if (IsCardKeyword(text)) {
      return false;
    }
    SkipField(cursor, 8);
    return true;
  }
  if (LooksLikeText(text)) {
    if (CompareNoCase(text, "THRU") == 0) {
      numbers->NoteRange();
      SkipField(cursor, width);
      return true;
    }
    if (zero) {
      return false;
    }
  }
  if (**cursor == '\n') {
    // What was seen is the head of the next line, without a mark in front of it: it is read from there.
    ++*cursor;
    return true;
  }
  std::int32_t value = 0;
  ReadIntField(width, cursor, &value);
  if (value != 0) {
    numbers->Take(value);
  }
  return true;
}

/// Names the set by the comment for its id, or by the name that was found above the card.
void NameSet(EntitySet* set, const HashTable* names, std::int32_t setId, const char* name) {
  const NameRecord* record = FindName(names, setId);
  const char* text = record == nullptr ? name : record->name;
  if (*text == 0) {
    return;
  }
  wchar_t wide[512];
  Widen(wide, std::size(wide), text);
  set->SetName(wide);
}

}  // namespace

void ReadSetGroupCard(DeckBuffer* file, MeshModel* model, BoundaryStore* boundary, const char* name) {
  if (model == nullptr || boundary == nullptr || BeginsWithKeyword(file->cursor, "SET,")) {
    return;
  }
  const std::int32_t width = FieldWidthFor(file->cursor, "SET*");
  const GroupHead head = TakeHead(&file->cursor, width);
  if (!head.isNodeSet && !head.isElementSet) {
    return;
  }
  GroupMembers numbers(model, head.isNodeSet);
  while (TakeField(file, width, &numbers)) {
  }
  PooledList* members = head.isNodeSet ? &numbers.members.nodes : &numbers.members.elements;
  if (members->size == 0) {
    return;
  }
  EntitySet* set = nullptr;
  if (boundary->CreateSet(&set) != 0 || set == nullptr) {
    return;
  }
  NameSet(set, head.isNodeSet ? &NodeSetNameTable : &ElementSetNameTable, head.setId, name);
  if (head.isNodeSet) {
    set->SetKind(nodeSet);
    set->SetMemberType(nodeMembers);
    set->SetNodes(members);
  } else {
    set->SetKind(numbers.solidFound ? solidSet : shellSet);
    set->SetMemberType(elementMembers);
    set->SetElements(members);
  }
  AddToLoadSet(head.setId, namedSet, set);
}

}  // namespace btz
