#include "support/pooled_list.h"

#include "support/block_pool.h"

namespace btz {

namespace {

ListCellPool MakeListCellPool() {
  ListCellPool pool;
  ListCellPoolInit(&pool);
  return pool;
}

void PushFree(ListCellPool* pool, ListCell* cell) {
  cell->value = nullptr;
  cell->next = pool->freeCells;
  pool->freeCells = cell;
}

ListCell* TakeCell(ListCellPool* pool) {
  ListCell* cell = pool->freeCells;
  if (cell == nullptr) {
    return static_cast<ListCell*>(PoolAllocate(&pool->blocks, sizeof(ListCell)));
  }
  pool->freeCells = cell->next;
  return cell;
}

}  // namespace

ListCellPool ListPool = MakeListCellPool();

void ListCellPoolInit(ListCellPool* pool) {
  pool->freeCells = nullptr;
  PoolInit(&pool->blocks);
}

void ListCellPoolReset(ListCellPool* pool) {
  pool->freeCells = nullptr;
  PoolReset(&pool->blocks);
}

void ListInit(PooledList* list, ListCellPool* pool) {
  list->next = list;
  list->value = nullptr;
  list->pool = pool;
  list->size = 0;
  ListRewind(list);
}

PooledList* NewList(ListCellPool* pool) {
  auto* list = static_cast<PooledList*>(AllocateZeroed(sizeof(PooledList)));
  if (list != nullptr) {
    ListInit(list, pool);
  }
  return list;
}

void ListAppend(PooledList* list, void* value) {
  ListCell* cell = list->pool == nullptr ? nullptr : TakeCell(list->pool);
  if (cell == nullptr) {
    return;
  }
  cell->value = value;
  cell->next = list->cursor->next;
  list->cursor->next = cell;
  ++list->size;
  list->previous = list->cursor;
  list->cursor = cell;
}

std::int32_t ListRemoveCurrent(PooledList* list, const void* value) {
  ListCell* removed = list->cursor;
  // The sentinel's value is null: without this test a null argument would unlink the list from its own ring.
  if (removed == list || removed->value != value) {
    return -1;
  }
  list->cursor = removed->next;
  list->previous->next = removed->next;
  PushFree(list->pool, removed);
  --list->size;
  list->stay = 1;
  return 0;
}

void ListClear(PooledList* list) {
  while (list->next != list) {
    ListCell* cell = list->next;
    list->next = cell->next;
    PushFree(list->pool, cell);
  }
  ListRewind(list);
  list->size = 0;
}

PooledList* ListDestroy(PooledList* list, std::int32_t flags) {
  ListClear(list);
  if ((flags & 1) != 0) {
    ReleaseMemory(list);
  }
  return list;
}

}  // namespace btz
