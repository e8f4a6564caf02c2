// Layouts of the containers that cross the boundary between the translator and a host: the pooled list, in which nodes, elements, parts
// and rows travel in both directions, and the hash table, in which a host hands out all its elements and takes the elements of a group.
// A host must implement exactly these layouts (64-bit, natural alignment); the operations that work on them are the business of either
// side. `src/support/` holds the translator's own operations, which a host may link or copy as they are (target `btz_support`).
#pragma once

#include <cstddef>
#include <cstdint>

namespace btz {

/// Returns zero-filled memory of `size` bytes, or null.
using AllocateFunction = void* (*)(std::size_t size);
/// Frees what the matching AllocateFunction returned.
using ReleaseFunction = void (*)(void* memory);

/// Head of one block of a BlockPool; the payload follows it directly.
struct PoolBlock {
  PoolBlock* next;  ///< Next block of the chain, null at its end.
  char* top;        ///< Lowest address handed out so far; moves from the block's end towards the payload.
};

/// Bump allocator of small cells. Cells are never freed one by one; the whole pool is.
struct BlockPool {
  PoolBlock* firstBlock;         ///< Head of the chain of blocks.
  PoolBlock* currentBlock;       ///< Block from which allocation goes on; last in the chain.
  std::uint64_t blockSize;       ///< Least payload of a new block in bytes; always 4084.
  std::uint64_t requestedBytes;  ///< Sum of all requests, each rounded up to a multiple of 8.
  std::int32_t allocatedBytes;   ///< Sum of the block sizes obtained, headers included; never reduced.
  AllocateFunction allocate;     ///< Source of blocks. The side that made the pool supplies it, so blocks never change heaps.
  ReleaseFunction release;       ///< Takes blocks back.
};

/// One cell of a PooledList.
struct ListCell {
  ListCell* next;  ///< Next cell; the list itself behind the last cell.
  void* value;     ///< Pointer held; null ends a walk.
};

/// Cells for many lists: a stack of released cells in front of a BlockPool.
struct ListCellPool {
  ListCell* freeCells;  ///< Released cells, linked through `next`.
  BlockPool blocks;     ///< Source of new cells.
};

/// Ordered list of pointers with a built-in cursor. Its head is laid out like a cell: the list is the sentinel of its own ring.
/// The values belong to whoever filled the list.
struct PooledList : ListCell {
  ListCell* cursor;    ///< Current cell; the list itself before the first.
  ListCell* previous;  ///< Cell before the cursor; right only while a walk moves one cell at a time.
  ListCellPool* pool;  ///< Source of cells. A list without a pool can be walked but not extended.
  std::int32_t stay;   ///< 1: the next step of a walk stays on the cursor, because the cell it stood on was removed.
  std::int32_t size;   ///< Number of cells.
};

/// One cell of a HashTable. A bucket is a cell in the bucket array.
struct HashCell {
  HashCell* next;  ///< Next cell of the chain, null at its end.
  void* record;    ///< Record held, owned by the caller; null marks a free cell.
};

/// Key of a record; a negative value is never stored, found or deleted.
using HashFunction = std::int32_t (*)(const void* record, void* userData);
/// 0 when the stored record and the other one are equal.
using CompareFunction = std::int32_t (*)(const void* stored, const void* other);

/// Chained hash table of record pointers. The records belong to the caller.
struct HashTable {
  HashCell* freeCells;           ///< Overflow cells released by deletion.
  BlockPool pool;                ///< Source of overflow cells.
  std::int32_t bucketCount;      ///< Always odd once created; 0 before.
  std::int32_t reserved[2];      ///< Zero.
  HashCell* buckets;             ///< Array of `bucketCount` cells, or null before creation.
  void* userData;                ///< Second argument of every hash call.
  std::int32_t allowDuplicates;  ///< Non-zero: insertion skips the duplicate test.
  HashFunction hash;             ///< Key of a record.
  CompareFunction compare;       ///< Equality of two records of one key; null: equal keys are equal records.
  std::int32_t count;            ///< Records held.
  std::int32_t iteratorBucket;   ///< Bucket at which the iterator stands.
  std::int32_t highestBucket;    ///< Upper bound for iteration; never below the highest used bucket.
  HashCell* iteratorCell;        ///< Next cell that the iterator returns; null at the end.
  AllocateFunction allocate;     ///< Source of the bucket array.
  ReleaseFunction release;       ///< Takes the bucket array back.
};

}  // namespace btz
