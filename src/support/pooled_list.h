// The one sequence type: an ordered list of pointers with a built-in cursor, whose cells come from a pool that many lists share. The same
// layout crosses to the host in both directions. The order of host objects follows from where ListAppend puts a cell: behind the cursor,
// not behind the tail.
#pragma once

#include <btz/containers.h>

namespace btz {

/// Pool of the lists that outlive a card: heap-made lists of the readers and the process-wide lists. Never reset while the library lives.
extern ListCellPool ListPool;

/// Sets an uninitialised pool to empty, with this side's heap.
void ListCellPoolInit(ListCellPool* pool);

/// Returns all blocks of the pool. Every list of it must have been cleared or be forgotten.
void ListCellPoolReset(ListCellPool* pool);

/// Makes `list` empty, with cells from `pool`.
void ListInit(PooledList* list, ListCellPool* pool);

/// A new empty list on the heap, with cells from `pool`; null when memory ran out. Freed with ListDestroy(list, 1).
PooledList* NewList(ListCellPool* pool);

/// Puts the cursor before the first cell.
inline void ListRewind(PooledList* list) {
  list->cursor = list;
  list->previous = list;
  list->stay = 0;
}

/// Advances and returns the value at the cursor; null at the end. The call behind the end starts at the first cell again.
inline void* ListNext(PooledList* list) {
  if (list->stay == 1) {
    list->stay = 0;
    return list->cursor->value;
  }
  list->previous = list->cursor;
  list->cursor = list->cursor->next;
  return list->cursor->value;
}

/// Puts `value` into a new cell right behind the cursor, which then stands on it. After ListInit or a series of appends that is the tail,
/// after a rewind or a finished walk the head. Nothing happens when the list has no pool or memory ran out.
void ListAppend(PooledList* list, void* value);

/// Removes the cell at the cursor if it holds `value`: 0 if removed, -1 otherwise. The next ListNext gives the cell that followed.
std::int32_t ListRemoveCurrent(PooledList* list, const void* value);

/// Gives all cells back to the pool and makes the list empty. The values are not touched.
void ListClear(PooledList* list);

/// ListClear; with bit 0 of `flags` set, frees the list's own memory too. Returns the list.
PooledList* ListDestroy(PooledList* list, std::int32_t flags);

/// Calls `visit(value)` for each value, from the first cell up to the first null. A null list counts as empty. `visit` must not walk the list.
template <typename Value, typename Visit>
void WalkList(PooledList* list, Visit visit) {
  if (list == nullptr) {
    return;
  }
  ListRewind(list);
  for (void* value = ListNext(list); value != nullptr; value = ListNext(list)) {
    visit(static_cast<Value*>(value));
  }
}

}  // namespace btz
