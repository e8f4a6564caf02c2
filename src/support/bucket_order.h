// The order in which a hash table of ids gives its records: by bucket, which is the id modulo the number of buckets, and within a bucket as they
// were inserted. The order of host objects follows from it, so whoever keeps records in another way brings them into this order first.
#pragma once

#include <cstdint>

#include "support/heap_array.h"

namespace btz {

/// Buckets of a table made for 1,000 records.
inline constexpr std::int32_t tableBucketCount = 1001;

/// Brings `records`, which stand in the order of insertion, into the order of a table with `bucketCount` buckets. `idOf(record)` is never negative.
/// Linear in the number of records. When memory runs out the order stays as it is.
template <typename Record, typename IdOf>
void SortByBucket(HeapArray<Record*>* records, std::int32_t bucketCount, IdOf idOf) {
  HeapArray<Record*> inserted(records->size());
  HeapArray<std::size_t> places(static_cast<std::size_t>(bucketCount) + 1);
  if (inserted.size() != records->size() || places.size() == 0) {
    return;
  }
  for (std::size_t i = 0; i < records->size(); ++i) {
    inserted[i] = (*records)[i];
    ++places[static_cast<std::size_t>(idOf(inserted[i]) % bucketCount) + 1];
  }
  for (std::size_t bucket = 1; bucket < places.size(); ++bucket) {
    places[bucket] += places[bucket - 1];
  }
  for (Record* record : inserted) {
    (*records)[places[static_cast<std::size_t>(idOf(record) % bucketCount)]++] = record;
  }
}

}  // namespace btz
