#include "loads/load_sets.h"

#include "support/pooled_list.h"

namespace btz {

namespace {

LoadSetRecord* NewLoadSet(std::int32_t setId, LoadSetKind kind) {
  auto* record = static_cast<LoadSetRecord*>(AllocateZeroed(sizeof(LoadSetRecord)));
  if (record == nullptr) {
    return nullptr;
  }
  record->setId = setId;
  record->kind = kind;
  ListInit(&record->items, &ListPool);
  IndexedListAppend(&LoadSetTable, PairId(setId, kind), record);
  return record;
}

}  // namespace

LoadSetRecord* FindLoadSet(std::int32_t setId, LoadSetKind kind) {
  const IndexedCell* cell = IndexedListFind(&LoadSetTable, PairId(setId, kind));
  return cell == nullptr ? nullptr : static_cast<LoadSetRecord*>(cell->record);
}

void AddToLoadSet(std::int32_t setId, LoadSetKind kind, Entity* entity) {
  if (setId < 0) {
    return;
  }
  LoadSetRecord* record = FindLoadSet(setId, kind);
  if (record == nullptr) {
    record = NewLoadSet(setId, kind);
  }
  if (record != nullptr) {
    ListAppend(&record->items, entity);
  }
}

void FreeLoadSetRecord(void* record) {
  ListClear(&static_cast<LoadSetRecord*>(record)->items);
  ReleaseMemory(record);
}

}  // namespace btz
