#include "support/indexed_list.h"

namespace btz {

namespace {

constexpr std::uint32_t fewestSlots = 64;

/// Where the search for an id starts. Eight ids in a row have neighbouring slots, which the processor's cache rewards; the blocks of eight are spread.
std::uint32_t FirstSlot(std::int64_t id) {
  // 2^64 divided by the golden ratio spreads numbers that differ by a common step. Twice, because the step of a pair's first number may be a
  // multiple of 2^32 times a power of two, which one product leaves without low bits.
  constexpr std::uint64_t factor = 0x9E3779B97F4A7C15u;
  std::uint64_t block = (static_cast<std::uint64_t>(id) >> 3) * factor;
  block = (block ^ (block >> 32)) * factor;
  return (static_cast<std::uint32_t>(block >> 32) << 3) | (static_cast<std::uint32_t>(id) & 7u);
}

/// Slot of `id`, or the free slot where it belongs. The table always has a free one.
IndexedSlot* SlotOf(IndexedSlot* slots, std::uint32_t slotCount, std::int64_t id) {
  for (std::uint32_t at = FirstSlot(id);; ++at) {
    IndexedSlot* slot = &slots[at & (slotCount - 1)];
    if (slot->first == nullptr || slot->id == id) {
      return slot;
    }
  }
}

/// Makes room for one id more: at most half of the slots are in use. False when memory ran out.
bool GrowIndex(IndexedList* list) {
  if (list->idCount * 2 < list->slotCount) {
    return true;
  }
  const std::uint32_t slotCount = list->slotCount == 0 ? fewestSlots : list->slotCount * 2;
  auto* slots = static_cast<IndexedSlot*>(AllocateZeroed(slotCount * sizeof(IndexedSlot)));
  if (slots == nullptr) {
    return false;
  }
  for (std::uint32_t i = 0; i < list->slotCount; ++i) {
    const IndexedSlot& slot = list->slots[i];
    if (slot.first != nullptr) {
      *SlotOf(slots, slotCount, slot.id) = slot;
    }
  }
  ReleaseMemory(list->slots);
  list->slots = slots;
  list->slotCount = slotCount;
  return true;
}

/// A cell for one record more, with room in the index; null when memory ran out.
IndexedCell* NewCell(IndexedList* list, std::int64_t id, void* record) {
  auto* cell = static_cast<IndexedCell*>(PoolAllocate(&list->cells, sizeof(IndexedCell)));
  if (cell == nullptr || !GrowIndex(list)) {
    return nullptr;
  }
  *cell = {nullptr, nullptr, record, id};
  ++list->size;
  return cell;
}

/// The slot of the cell's id, in use; a new one holds the cell as the only record of the id and is told by `*isNew`.
IndexedSlot* SlotWith(IndexedList* list, IndexedCell* cell, bool* isNew) {
  IndexedSlot* slot = SlotOf(list->slots, list->slotCount, cell->id);
  *isNew = slot->first == nullptr;
  if (*isNew) {
    *slot = {cell->id, cell, cell};
    ++list->idCount;
  }
  return slot;
}

}  // namespace

void IndexedListInit(IndexedList* list) {
  *list = IndexedList{};
  PoolInit(&list->cells);
}

void IndexedListAppend(IndexedList* list, std::int64_t id, void* record) {
  IndexedCell* cell = NewCell(list, id, record);
  if (cell == nullptr) {
    return;
  }
  if (list->last == nullptr) {
    list->first = cell;
  } else {
    list->last->next = cell;
  }
  list->last = cell;
  bool isNew = false;
  IndexedSlot* slot = SlotWith(list, cell, &isNew);
  if (!isNew) {
    slot->last->nextOfId = cell;
    slot->last = cell;
  }
}

void IndexedListPrepend(IndexedList* list, std::int64_t id, void* record) {
  IndexedCell* cell = NewCell(list, id, record);
  if (cell == nullptr) {
    return;
  }
  if (list->last == nullptr) {
    list->last = cell;
  }
  cell->next = list->first;
  list->first = cell;
  bool isNew = false;
  IndexedSlot* slot = SlotWith(list, cell, &isNew);
  if (!isNew) {
    cell->nextOfId = slot->first;
    slot->first = cell;
  }
}

const IndexedCell* IndexedListFind(const IndexedList* list, std::int64_t id) {
  return list->slots == nullptr ? nullptr : SlotOf(list->slots, list->slotCount, id)->first;
}

void IndexedListClear(IndexedList* list) {
  PoolReset(&list->cells);
  ReleaseMemory(list->slots);
  IndexedListInit(list);
}

}  // namespace btz
