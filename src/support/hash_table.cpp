#include "support/hash_table.h"

#include "support/block_pool.h"

namespace btz {

namespace {

/// Bucket of `record`, or -1 when its key is negative or the table has no buckets.
std::int32_t BucketOf(const HashTable* table, const void* record, std::int32_t* key) {
  if (table->bucketCount <= 0 || table->buckets == nullptr) {
    return -1;
  }
  *key = table->hash(record, table->userData);
  return *key < 0 ? -1 : *key % table->bucketCount;
}

bool Matches(const HashTable* table, const HashCell* cell, std::int32_t key, const void* other) {
  if (table->hash(cell->record, table->userData) != key) {
    return false;
  }
  return table->compare == nullptr || table->compare(cell->record, other) == 0;
}

void PushFree(HashTable* table, HashCell* cell) {
  cell->record = nullptr;
  cell->next = table->freeCells;
  table->freeCells = cell;
}

HashCell* TakeCell(HashTable* table) {
  HashCell* cell = table->freeCells;
  if (cell == nullptr) {
    return static_cast<HashCell*>(PoolAllocate(&table->pool, sizeof(HashCell)));
  }
  table->freeCells = cell->next;
  return cell;
}

/// First bucket from `from` up to the upper bound that holds a record; one behind the bound if none does.
std::int32_t ScanBuckets(const HashTable* table, std::int32_t from) {
  std::int32_t bucket = from;
  while (bucket <= table->highestBucket && table->buckets[bucket].record == nullptr) {
    ++bucket;
  }
  return bucket;
}

void StepIteratorPast(HashTable* table, const void* record) {
  if (table->iteratorCell != nullptr && table->iteratorCell->record == record) {
    HashIterateNext(table);
  }
}

void ResetIteration(HashTable* table) {
  table->count = 0;
  table->iteratorBucket = 0;
  table->highestBucket = 0;
  table->iteratorCell = nullptr;
}

void ReleaseBuckets(HashTable* table) {
  if (table->buckets != nullptr) {
    table->release(table->buckets);
  }
  table->buckets = nullptr;
  table->bucketCount = 0;
}

}  // namespace

void HashInit(HashTable* table) {
  *table = HashTable{};
  PoolInit(&table->pool);
  table->allocate = AllocateZeroed;
  table->release = ReleaseMemory;
}

std::int32_t HashCreate(HashTable* table, std::int32_t size, HashFunction hash, CompareFunction compare, void* userData,
                        std::int32_t allowDuplicates) {
  HashClear(table);
  ReleaseBuckets(table);
  const std::uint32_t least = (size < 0 ? 0u : static_cast<std::uint32_t>(size)) + 1u;
  const std::uint32_t odd = least | 1u;
  const std::uint32_t most = INT32_MAX;
  const std::uint32_t bucketCount = odd > most ? most : odd;
  table->buckets = static_cast<HashCell*>(table->allocate(bucketCount * sizeof(HashCell)));
  table->bucketCount = table->buckets == nullptr ? 0 : static_cast<std::int32_t>(bucketCount);
  table->reserved[0] = 0;
  table->reserved[1] = 0;
  table->hash = hash;
  table->compare = compare;
  table->userData = userData;
  table->allowDuplicates = allowDuplicates;
  return 0;
}

void HashClear(HashTable* table) {
  for (std::int32_t bucket = 0; table->buckets != nullptr && bucket < table->bucketCount; ++bucket) {
    HashCell* head = &table->buckets[bucket];
    for (HashCell* cell = head->next; cell != nullptr;) {
      HashCell* next = cell->next;
      PushFree(table, cell);
      cell = next;
    }
    *head = HashCell{};
  }
  ResetIteration(table);
}

void HashDestroy(HashTable* table) {
  HashRelease(table);
  HashInit(table);
}

void HashRelease(HashTable* table) {
  ReleaseBuckets(table);
  PoolReset(&table->pool);
  table->freeCells = nullptr;
  ResetIteration(table);
}

std::int32_t HashInsert(HashTable* table, void* record) {
  std::int32_t key = 0;
  const std::int32_t bucket = BucketOf(table, record, &key);
  if (bucket < 0) {
    return 0;
  }
  HashCell* cell = &table->buckets[bucket];
  if (cell->record != nullptr) {
    for (;; cell = cell->next) {
      if (table->allowDuplicates == 0 && Matches(table, cell, key, record)) {
        return 0;
      }
      if (cell->next == nullptr) {
        break;
      }
    }
    HashCell* added = TakeCell(table);
    if (added == nullptr) {
      return 0;
    }
    cell->next = added;
    cell = added;
  }
  cell->record = record;
  cell->next = nullptr;
  ++table->count;
  if (bucket > table->highestBucket) {
    table->highestBucket = bucket;
  }
  return 1;
}

void* HashFind(const HashTable* table, const void* probe) {
  std::int32_t key = 0;
  const std::int32_t bucket = BucketOf(table, probe, &key);
  if (bucket < 0 || table->buckets[bucket].record == nullptr) {
    return nullptr;
  }
  for (const HashCell* cell = &table->buckets[bucket]; cell != nullptr; cell = cell->next) {
    if (Matches(table, cell, key, probe)) {
      return cell->record;
    }
  }
  return nullptr;
}

std::int32_t HashDelete(HashTable* table, const void* probe) {
  std::int32_t key = 0;
  const std::int32_t bucket = BucketOf(table, probe, &key);
  if (bucket < 0 || table->buckets[bucket].record == nullptr) {
    return 0;
  }
  HashCell* head = &table->buckets[bucket];
  if (Matches(table, head, key, probe)) {
    HashCell* follower = head->next;
    if (follower == nullptr) {
      StepIteratorPast(table, probe);
      head->record = nullptr;
    } else {
      *head = *follower;
      if (table->iteratorCell == follower) {
        table->iteratorCell = head;
      }
      PushFree(table, follower);
    }
    --table->count;
    return 1;
  }
  for (HashCell* before = head; before->next != nullptr; before = before->next) {
    HashCell* cell = before->next;
    if (Matches(table, cell, key, probe)) {
      StepIteratorPast(table, probe);
      before->next = cell->next;
      PushFree(table, cell);
      --table->count;
      return 1;
    }
  }
  return 0;
}

std::int32_t HashRehash(HashTable* table) {
  const std::int32_t held = table->count;
  auto** records = static_cast<void**>(AllocateZeroed(static_cast<std::size_t>(held > 0 ? held : 1) * sizeof(void*)));
  if (records == nullptr) {
    return 0;
  }
  std::int32_t taken = 0;
  HashIterateStart(table);
  for (void* record = HashIterateNext(table); record != nullptr && taken < held; record = HashIterateNext(table)) {
    records[taken++] = record;
  }
  HashClear(table);
  HashCreate(table, held, table->hash, table->compare, table->userData, table->allowDuplicates);
  for (std::int32_t i = 0; i < taken; ++i) {
    HashInsert(table, records[i]);
  }
  ReleaseMemory(records);
  return 0;
}

void HashIterateStart(HashTable* table) {
  table->iteratorBucket = 0;
  table->iteratorCell = nullptr;
  if (table->bucketCount <= 0 || table->buckets == nullptr) {
    return;
  }
  const std::int32_t last = table->bucketCount - 1;
  if (table->highestBucket > last) {
    table->highestBucket = last;
  }
  const std::int32_t bucket = ScanBuckets(table, 0);
  if (bucket <= table->highestBucket) {
    table->iteratorBucket = bucket;
    table->iteratorCell = &table->buckets[bucket];
  }
}

void* HashIterateNext(HashTable* table) {
  const HashCell* cell = table->iteratorCell;
  if (cell == nullptr) {
    return nullptr;
  }
  void* record = cell->record;
  if (cell->next != nullptr && cell->next->record != nullptr) {
    table->iteratorCell = cell->next;
    return record;
  }
  const std::int32_t lastUsed = table->iteratorBucket;
  const std::int32_t bucket = ScanBuckets(table, lastUsed + 1);
  if (bucket <= table->highestBucket) {
    table->iteratorBucket = bucket;
    table->iteratorCell = &table->buckets[bucket];
    return record;
  }
  table->iteratorBucket = 0;
  table->iteratorCell = nullptr;
  // The walk has seen that nothing lies behind this bucket, so the next one need not look there.
  if (lastUsed + 1 < table->highestBucket) {
    table->highestBucket = lastUsed + 1;
  }
  return record;
}

}  // namespace btz
