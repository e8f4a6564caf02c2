// Records in an order of their own, and, for each id, the records that bear it in that same order: what a search through the whole list for an
// id would meet, without the search. A deck may have millions of cards, and the stages ask once for each part or bar.
#pragma once

#include <btz/containers.h>

#include "support/block_pool.h"

namespace btz {

/// One record with its place in both orders.
struct IndexedCell {
  IndexedCell* next;      ///< Next record of the list, null at the end.
  IndexedCell* nextOfId;  ///< Next record of the same id, null at the end.
  void* record;
  std::int64_t id;
};

/// Slot of the index. A free slot has no first cell.
struct IndexedSlot {
  std::int64_t id;
  IndexedCell* first;
  IndexedCell* last;
};

/// The records belong to whoever fills the list.
struct IndexedList {
  IndexedCell* first;       ///< Null when the list is empty.
  IndexedCell* last;        ///< Null when the list is empty.
  std::int32_t size;        ///< Number of records.
  BlockPool cells;          ///< Source of the cells.
  IndexedSlot* slots;       ///< Open-addressing table, or null before the first record.
  std::uint32_t slotCount;  ///< Power of two.
  std::uint32_t idCount;    ///< Slots in use.
};

/// Makes an uninitialised list empty.
void IndexedListInit(IndexedList* list);

/// Puts `record` at the end of both orders. When memory runs out it is in neither.
void IndexedListAppend(IndexedList* list, std::int64_t id, void* record);

/// Puts `record` at the head of both orders. When memory runs out it is in neither.
void IndexedListPrepend(IndexedList* list, std::int64_t id, void* record);

/// The first record of `id`, from which `nextOfId` leads to the others; null if there is none. Any integer may be an id.
const IndexedCell* IndexedListFind(const IndexedList* list, std::int64_t id);

/// An id made of two numbers.
inline std::int64_t PairId(std::int32_t first, std::int32_t second) {
  return static_cast<std::int64_t>((static_cast<std::uint64_t>(static_cast<std::uint32_t>(first)) << 32) |
                                   static_cast<std::uint32_t>(second));
}

/// Forgets all records and releases the list's memory. The records are not touched.
void IndexedListClear(IndexedList* list);

/// Calls `visit(record)` for each record in order. Records that `visit` appends are visited too.
template <typename Record, typename Visit>
void WalkIndexedList(const IndexedList* list, Visit visit) {
  for (const IndexedCell* cell = list->first; cell != nullptr; cell = cell->next) {
    visit(static_cast<Record*>(cell->record));
  }
}

}  // namespace btz
