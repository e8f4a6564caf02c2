// The one look-up container: a chained hash table of record pointers, with key and equality supplied as callbacks. The first cell of every
// chain lies in the bucket array, overflow cells come from the table's own pool. It never copies, frees or looks into a record. Iteration
// runs by ascending bucket and, within a bucket, in order of insertion; the order of host objects follows from it.
#pragma once

#include <btz/containers.h>

namespace btz {

/// Sets every field of an uninitialised table to zero and its functions to this side's heap. HashCreate must follow before records enter;
/// until then the table behaves as an empty one.
void HashInit(HashTable* table);

/// Makes the bucket array: the smallest odd number of buckets above `size`. Cells and buckets that the table had are dropped or released
/// first; its pool is kept. Returns 0.
std::int32_t HashCreate(HashTable* table, std::int32_t size, HashFunction hash, CompareFunction compare, void* userData,
                        std::int32_t allowDuplicates);

/// Empties the table and keeps its buckets.
void HashClear(HashTable* table);

/// Empties the table, releases its memory and returns it to the state behind HashInit.
void HashDestroy(HashTable* table);

/// Releases buckets and pool; the last call on a table that goes out of scope.
void HashRelease(HashTable* table);

/// Stores `record`: 1, or 0 if its key is negative or an equal record is held (the record held stays, the caller keeps the new one).
std::int32_t HashInsert(HashTable* table, void* record);

/// The stored record that equals `probe`, or null. `probe` needs only the fields that the callbacks read.
void* HashFind(const HashTable* table, const void* probe);

/// Number of records held.
inline std::int32_t HashCount(const HashTable* table) { return table->count; }

/// Takes the record that equals `probe` out of the table: 1, or 0 if there is none. Passing the very record that HashIterateNext would
/// return next moves the iterator on first; a separate probe does not.
std::int32_t HashDelete(HashTable* table, const void* probe);

/// Resizes the table to the number of records held. Bucket numbers and so the order of iteration can change. Returns 0.
std::int32_t HashRehash(HashTable* table);

/// Puts the iterator on the first record.
void HashIterateStart(HashTable* table);

/// The next record, or null at the end and from then on until HashIterateStart. One iterator a table: walks can't be nested.
void* HashIterateNext(HashTable* table);

/// Calls `visit(record)` for each record, in the table's order. `visit` must not walk the table.
template <typename Record, typename Visit>
void WalkTable(HashTable* table, Visit visit) {
  HashIterateStart(table);
  for (void* record = HashIterateNext(table); record != nullptr; record = HashIterateNext(table)) {
    visit(static_cast<Record*>(record));
  }
}

}  // namespace btz
