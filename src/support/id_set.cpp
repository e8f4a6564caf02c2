#include "support/id_set.h"

#include <algorithm>

#include "support/bucket_order.h"

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

/// Buckets of the table after a rebuilding at `held` ids; 0: before the first.
std::int32_t BucketCountAt(std::int32_t held) { return held > mostWithoutRebuilding ? (held + 1) | 1 : firstBucketCount; }

/// Whether `a` stands before `b` in the table whose last rebuilding, at `rebuiltAt` ids, was followed by at most one insertion. Rebuilding keeps the order
/// within a bucket, so ids of one bucket stand as in the table before; an id inserted since stands behind.
bool StandsBefore(const InsertedId& a, const InsertedId& b, std::int32_t rebuiltAt) {
  for (std::int32_t held = rebuiltAt; held > mostWithoutRebuilding; --held) {
    const std::int32_t bucketCount = BucketCountAt(held);
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

/// Brings the ids of each bucket, which stand together, into their order.
void SortWithinBuckets(HeapArray<InsertedId*>* sorted, std::int32_t bucketCount, std::int32_t rebuiltAt) {
  InsertedId** const end = sorted->end();
  for (InsertedId** first = sorted->begin(); first != end;) {
    const std::int32_t bucket = (*first)->id % bucketCount;
    InsertedId** const last =
        std::find_if(first, end, [bucket, bucketCount](const InsertedId* entry) { return entry->id % bucketCount != bucket; });
    std::sort(first, last, [rebuiltAt](const InsertedId* a, const InsertedId* b) { return StandsBefore(*a, *b, rebuiltAt); });
    first = last;
  }
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
  HeapArray<InsertedId*> sorted(IdSetCount(set));
  if (ids.size() != order->size() || sorted.size() != order->size()) {
    return;
  }
  std::size_t count = 0;
  for (const IndexedCell* cell = set->ids.first; cell != nullptr && count < ids.size(); cell = cell->next) {
    ids[count] = {static_cast<std::int32_t>(cell->id), static_cast<std::int32_t>(count)};
    sorted[count] = &ids[count];
    ++count;
  }
  const std::int32_t bucketCount = BucketCountAt(set->rebuiltAt);
  SortByBucket(&sorted, bucketCount, [](const InsertedId* entry) { return entry->id; });
  SortWithinBuckets(&sorted, bucketCount, set->rebuiltAt);
  std::transform(sorted.begin(), sorted.end(), order->begin(), [](const InsertedId* entry) { return entry->id; });
}

void IdSetClear(IdSet* set) {
  IndexedListClear(&set->ids);
  IdSetInit(set);
}

}  // namespace btz
