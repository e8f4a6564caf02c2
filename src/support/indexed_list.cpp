#include "support/indexed_list.h"

namespace btz {

namespace {

constexpr std::uint32_t fewestSlots = 64;

/// Slot of `id`, or the free slot where it belongs. The table always has a free one.
IndexedSlot* SlotOf(IndexedSlot* slots, std::uint32_t slotCount, std::int32_t id) {
  // 2^32 divided by the golden ratio spreads ids that differ by a common step.
  std::uint32_t at = static_cast<std::uint32_t>(id) * 2654435769u;
  at ^= at >> 16;
  while (true) {
    IndexedSlot* slot = &slots[at & (slotCount - 1)];
    if (slot->first == nullptr || slot->id == id) {
      return slot;
    }
    ++at;
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

void EnterInOrder(IndexedList* list, IndexedCell* cell) {
  if (list->last == nullptr) {
    list->first = cell;
  } else {
    list->last->next = cell;
  }
  list->last = cell;
  ++list->size;
}

void EnterInIndex(IndexedList* list, std::int32_t id, IndexedCell* cell) {
  IndexedSlot* slot = SlotOf(list->slots, list->slotCount, id);
  if (slot->first == nullptr) {
    *slot = {id, cell, cell};
    ++list->idCount;
    return;
  }
  slot->last->nextOfId = cell;
  slot->last = cell;
}

}  // namespace

void IndexedListInit(IndexedList* list) {
  *list = IndexedList{};
  PoolInit(&list->cells);
}

void IndexedListAppend(IndexedList* list, std::int32_t id, void* record) {
  auto* cell = static_cast<IndexedCell*>(PoolAllocate(&list->cells, sizeof(IndexedCell)));
  if (cell == nullptr || !GrowIndex(list)) {
    return;
  }
  *cell = {nullptr, nullptr, record};
  EnterInOrder(list, cell);
  EnterInIndex(list, id, cell);
}

const IndexedCell* IndexedListFind(const IndexedList* list, std::int32_t id) {
  return list->slots == nullptr ? nullptr : SlotOf(list->slots, list->slotCount, id)->first;
}

void IndexedListClear(IndexedList* list) {
  PoolReset(&list->cells);
  ReleaseMemory(list->slots);
  IndexedListInit(list);
}

}  // namespace btz
