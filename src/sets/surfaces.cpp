#include "sets/surfaces.h"

#include <iterator>

#include "deck/card_boundaries.h"
#include "deck/name_comments.h"
#include "loads/element_faces.h"
#include "loads/load_parts.h"
#include "loads/load_sets.h"
#include "mesh/element_topology.h"
#include "sets/entity_sets.h"
#include "sets/pretension.h"
#include "support/block_pool.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

/// What the lines of a card name.
struct SurfaceLists {
  ListCellPool cells;
  PooledList items;        ///< MeshElement: whole elements, and faces that stand in a part.
  PooledList faceOwners;   ///< MeshElement whose face is to be made,
  PooledList faceNumbers;  ///< and the address of the number of that face, from 1.
  BlockPool numbers;

  SurfaceLists() {
    ListCellPoolInit(&cells);
    PoolInit(&numbers);
    for (PooledList* list : {&items, &faceOwners, &faceNumbers}) {
      ListInit(list, &cells);
    }
  }
  ~SurfaceLists() {
    ListCellPoolReset(&cells);
    PoolReset(&numbers);
  }
  SurfaceLists(const SurfaceLists&) = delete;
  SurfaceLists& operator=(const SurfaceLists&) = delete;
};

/// One line of the card.
struct SurfaceLine {
  std::int32_t elementId = 0;
  std::int32_t firstNode = 0;
  std::int32_t secondNode = 0;
};

/// Reads a line's fields; false when it belongs to the next card. Required: columns are counted from the first character that is no blank, and the head
/// of a line takes a whole field of the card's width, 16 columns in a large card.
bool ReadSurfaceLine(char* line, std::int32_t width, SurfaceLine* fields) {
  TrimLeft(line);
  FieldText head;
  PeekField(width, line, head);
  if (LooksLikeText(head)) {
    return false;
  }
  CardCursor cursor = line;
  SkipField(&cursor, width);
  ReadIntField(width, &cursor, &fields->elementId);
  ReadIntField(width, &cursor, &fields->firstNode);
  ReadIntField(width, &cursor, &fields->secondNode);
  return fields->elementId != 0;
}

/// Lists a face that is to be made. A face that the nodes do not name has the number 0.
void ListMissingFace(MeshElement* element, std::int32_t number, SurfaceLists* lists) {
  auto* kept = static_cast<std::int32_t*>(PoolAllocate(&lists->numbers, sizeof(std::int32_t)));
  if (kept == nullptr) {
    return;
  }
  *kept = number;
  ListAppend(&lists->faceOwners, element);
  ListAppend(&lists->faceNumbers, kept);
}

/// Lists what a line names; false when it names no solid element.
bool TakeLine(MeshModel* model, const SurfaceLine& line, SurfaceLists* lists) {
  MeshElement* element = nullptr;
  model->GetSolidElement(line.elementId, &element, 1);
  if (element == nullptr) {
    return false;
  }
  if (line.firstNode == 0) {
    ListAppend(&lists->items, element);
    return true;
  }
  std::int32_t face = -1;
  FindElementFace(element, line.firstNode, line.secondNode, &face);
  if (element->faces == nullptr) {
    return true;
  }
  const bool isInRange = face >= 0 && face < TopologyOf(ElementSideCount, element->typeIndex);
  MeshElement* record = isInRange ? element->faces[face] : nullptr;
  if (record != nullptr && StandsInFace(record)) {
    ListAppend(&lists->items, record);
  } else {
    ListMissingFace(element, face + 1, lists);
  }
  return true;
}

/// Takes the lines of the card; the line that belongs to the next card is given back. Required: a last line without a line end is not taken.
void TakeLines(DeckBuffer* file, MeshModel* model, std::int32_t width, SurfaceLists* lists) {
  char line[512];
  while (true) {
    CardCursor start = file->cursor;
    if (ReadDeckLine(&file->cursor, line, sizeof(line)) < 0) {
      if (ReadDeckChunk(file) == 1) {
        return;
      }
      continue;
    }
    SurfaceLine fields;
    if (!ReadSurfaceLine(line, width, &fields) || !TakeLine(model, fields, lists)) {
      file->cursor = start;
      return;
    }
  }
}

/// The bolt that bears the surface's id, or else the first that names the surface.
PretensionRecord* FindBolt(std::int32_t surfaceId) {
  auto* bolt = static_cast<PretensionRecord*>(HashFind(&PretensionTable, &surfaceId));
  if (bolt != nullptr || surfaceId < 0) {
    return bolt;
  }
  WalkTable<PretensionRecord>(&PretensionTable, [&](PretensionRecord* record) {
    if (bolt == nullptr && record->targetId == surfaceId) {
      bolt = record;
    }
  });
  return bolt;
}

/// Has the host make the faces that are in no part yet; they join the items.
void MakeFaces(std::int32_t surfaceId, SurfaceLists* lists) {
  if (lists->faceOwners.size == 0 || lists->faceOwners.size != lists->faceNumbers.size) {
    return;
  }
  const auto* first = static_cast<const MeshElement*>(lists->faceOwners.next->value);
  MeshPart* part = nullptr;
  if (first->owner != nullptr) {
    first->owner->CreateFaces(&lists->faceOwners, &lists->faceNumbers, &lists->items, &part);
  }
  PretensionRecord* bolt = FindBolt(surfaceId);
  if (bolt != nullptr && part != nullptr) {
    bolt->cutPart = part;
  }
}

void CreateSurfaceSet(BoundaryStore* boundary, PooledList* parts, std::int32_t surfaceId, const char* name) {
  EntitySet* set = nullptr;
  if (boundary->CreateSet(&set) != 0 || set == nullptr) {
    return;
  }
  const NameRecord* record = FindName(&SurfaceNameTable, surfaceId);
  wchar_t wide[512];
  Widen(wide, std::size(wide), record == nullptr ? name : record->name);
  set->SetKind(partSet);
  set->SetMemberType(partMembers);
  set->SetParts(parts);
  set->SetName(wide);
  AddToLoadSet(surfaceId, namedSet, set);
}

}  // namespace

void ReadSurfCard(DeckBuffer* file, MeshModel* model, BoundaryStore* boundary, const char* name) {
  // Required: the letters of this test; SURF with a comma goes on in columns.
  if (model == nullptr || boundary == nullptr || BeginsWithKeyword(file->cursor, "SURR,")) {
    return;
  }
  const std::int32_t width = FieldWidthFor(file->cursor, "SURF*");
  char line[512];
  if (ReadDeckLine(&file->cursor, line, sizeof(line)) < 0) {
    return;
  }
  CardCursor at = line;
  Advance(&at, 8);
  const std::int32_t surfaceId = ParseInteger(at, static_cast<std::size_t>(width));
  SurfaceLists lists;
  TakeLines(file, model, width, &lists);
  MakeFaces(surfaceId, &lists);
  PooledList parts;
  ListInit(&parts, &lists.cells);
  CollectLoadParts(&lists.items, &parts, boundary);
  if (parts.size != 0) {
    CreateSurfaceSet(boundary, &parts, surfaceId, name);
  }
}

}  // namespace btz
