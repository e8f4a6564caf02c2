#include "support/id_set.h"

#include <algorithm>

namespace btz {

namespace {

/// Buckets of the table before its first rebuilding, and the most ids for which it is not rebuilt.
constexpr std::int32_t firstBucketCount = 101;
constexpr std::int32_t mostWithoutRebuilding = 100;

/// An id with its place in the order of insertion.
struct InsertedId {
  std::int32_t id;
  std::int32_t number;
};

/// Whether `a` stands before `b` in the table whose last rebuilding, at `rebuiltAt` ids, was followed by at most one insertion. Rebuilding keeps the order
/// within a bucket, so ids of one bucket stand as in the table before; an id inserted since stands behind.
bool StandsBefore(const InsertedId& a, const InsertedId& b, std::int32_t rebuiltAt) {
  for (std::int32_t held = rebuiltAt; held > mostWithoutRebuilding; --held) {
    const std::int32_t bucketCount = (held + 1) | 1;
    if (a.id % bucketCount != b.id % bucketCount) {
      return a.id % bucketCount < b.id % bucketCount;
    }
    if (a.number >= held || b.number >= held) {
      return a.number < b.number;
    }
  }
  if (a.id % firstBucketCount != b.id % firstBucketCount) {
    return a.id % firstBucketCount < b.id % firstBucketCount;
  }
  return a.number < b.number;
}

}  // namespace

void IdSetInit(IdSet* set) {
  set->isOpen = false;
  set->rebuiltAt = 0;
  IndexedListInit(&set->ids);
}

void IdSetOpen(IdSet* set) {
  IdSetClear(set);
  set->isOpen = true;
}

void IdSetInsert(IdSet* set, std::int32_t id) {
  if (!set->isOpen) {
    return;
  }
  if (set->ids.size > mostWithoutRebuilding) {
    set->rebuiltAt = set->ids.size;
  }
  if (id >= 0 && IndexedListFind(&set->ids, id) == nullptr) {
    IndexedListAppend(&set->ids, id, nullptr);
  }
}

void IdSetOrder(const IdSet* set, HeapArray<std::int32_t>* order) {
  HeapArray<InsertedId> ids(IdSetCount(set));
  if (ids.size() != order->size()) {
    return;
  }
  std::int32_t number = 0;
  for (const IndexedCell* cell = set->ids.first; cell != nullptr && static_cast<std::size_t>(number) < ids.size(); cell = cell->next) {
    ids[static_cast<std::size_t>(number)] = {static_cast<std::int32_t>(cell->id), number};
    ++number;
  }
  std::sort(ids.begin(), ids.end(), [set](const InsertedId& a, const InsertedId& b) { return StandsBefore(a, b, set->rebuiltAt); });
  std::transform(ids.begin(), ids.end(), order->begin(), [](const InsertedId& entry) { return entry.id; });
}

void IdSetClear(IdSet* set) {
  IndexedListClear(&set->ids);
  IdSetInit(set);
}

}  // namespace btz
