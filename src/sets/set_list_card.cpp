#include "deck/card_boundaries.h"
#include "loads/load_sets.h"
#include "mesh/element_topology.h"
#include "sets/entity_sets.h"
#include "sets/set_members.h"
#include "support/text.h"

namespace btz {

namespace {

/// The numbers of a list, as far as they have been looked up.
class NumberList {
 public:
  explicit NumberList(MeshModel* model) : model_(model) {}

  void Take(std::int32_t id) {
    MeshNode* node = nullptr;
    model_->GetNode(id, &node);
    if (node != nullptr) {
      ListAppend(&members.nodes, node);
    } else {
      nodeMissing = true;
    }
    MeshElement* element = FindAnyElement(model_, id, &solidFound);
    if (element == nullptr) {
      elementMissing = true;
      return;
    }
    ListAppend(element->typeIndex == elementRigid ? &members.rigidElements : &members.elements, element);
  }

  /// Takes a range. Once a node and an element are missing no set comes of the list, and the rest of the range has nothing to add.
  void TakeRange(std::int32_t first, std::int32_t last) {
    for (std::int64_t id = first; id <= last && !(nodeMissing && elementMissing); ++id) {
      Take(static_cast<std::int32_t>(id));
    }
  }

  SetMembers members;
  bool nodeMissing = false;
  bool elementMissing = false;
  bool solidFound = false;

 private:
  MeshModel* model_;
};

/// Makes a set of the list form and files it. Required: a second name is not checked again, so two sets may be called "Set1_1".
void CreateEntitySet(BoundaryStore* boundary, PooledList* members, SetKind kind, const char* name, std::int32_t setId) {
  wchar_t unique[260];
  Widen(unique, 256, name);
  if (boundary->CheckSetName(0, unique, kind) == -1) {
    wchar_t* end = unique;
    while (*end != 0) {
      ++end;
    }
    Widen(end, 3, "_1");
  }
  EntitySet* set = nullptr;
  if (boundary->CreateSet(&set) != 0 || set == nullptr) {
    return;
  }
  set->SetKind(kind);
  if (kind == nodeSet) {
    set->SetNodes(members);
    set->SetMemberType(nodeMembers);
  } else {
    set->SetElements(members);
    set->SetMemberType(elementMembers);
  }
  set->SetName(unique);
  AddToLoadSet(setId, namedSet, set);
}

/// Takes the set id, up to the equals sign or the line's end.
std::int32_t TakeListId(CardCursor* cursor) {
  Advance(cursor, 3);
  const char* text = *cursor;
  while (**cursor != 0 && **cursor != '=' && **cursor != '\n') {
    ++*cursor;
  }
  const std::int32_t setId = ParseInteger(text, static_cast<std::size_t>(*cursor - text));
  if (**cursor == '=') {
    ++*cursor;
  }
  return setId;
}

/// False when the token ends the list.
/// Required: a following card or comment that has "thru" in its first token is a range as well. It begins at no number, which is 0, and there is no
/// node or element of that id: the sets of the list are lost, and the card is eaten.
bool TakeToken(const char* token, NumberList* numbers) {
  if (!LooksLikeText(token)) {
    const std::int32_t id = ParseInteger(token);
    if (id != 0) {
      numbers->Take(id);
    }
    return true;
  }
  if (FindNoCase(token, "thru") == nullptr) {
    return false;
  }
  numbers->TakeRange(GetFreeInteger(token, 0), GetFreeInteger(token, 2));
  return true;
}

/// Takes the tokens of the list. The one that ends it is given back: the card behind the list begins there. Required: a number that neither a comma nor
/// a line end follows is not taken.
void TakeTokens(DeckBuffer* file, NumberList* numbers) {
  char token[deckLineCapacity];
  while (true) {
    CardCursor start = file->cursor;
    const std::int32_t result = ReadCommaField(&file->cursor, token, sizeof(token));
    if (result < 0) {
      if (ReadDeckChunk(file) == 1) {
        return;
      }
      continue;
    }
    if (token[0] != 0 && !TakeToken(token, numbers)) {
      while (IsSpace(*start)) {
        ++start;
      }
      file->cursor = start;
      return;
    }
  }
}

}  // namespace

void ReadSetListCard(DeckBuffer* file, MeshModel* model, BoundaryStore* boundary, const char* name) {
  if (model == nullptr || boundary == nullptr) {
    return;
  }
  const std::int32_t setId = TakeListId(&file->cursor);
  if (setId == 0) {
    return;
  }
  NumberList numbers(model);
  TakeTokens(file, &numbers);
  if (numbers.members.nodes.size != 0 && !numbers.nodeMissing) {
    CreateEntitySet(boundary, &numbers.members.nodes, nodeSet, name, setId);
  }
  if (numbers.elementMissing) {
    return;
  }
  if (numbers.members.elements.size != 0) {
    CreateEntitySet(boundary, &numbers.members.elements, numbers.solidFound ? solidSet : shellSet, name, setId);
  }
  if (numbers.members.rigidElements.size != 0) {
    CreateEntitySet(boundary, &numbers.members.rigidElements, rigidElementSet, name, setId);
  }
}

}  // namespace btz
