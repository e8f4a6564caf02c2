// Bump allocator of small cells. Hash tables and pooled lists draw their cells from one, so that a record costs no call of the heap.
// Blocks are obtained and returned through the pool's own functions: a pool that came from the host is extended with the host's memory.
#pragma once

#include <btz/containers.h>

namespace btz {

/// Least payload of a block in bytes.
inline constexpr std::uint64_t poolBlockSize = 4084;

/// Zero-filled heap memory of `size` bytes, or null; the `allocate` of every container made on this side.
void* AllocateZeroed(std::size_t size);

/// Frees what AllocateZeroed returned; null is allowed.
void ReleaseMemory(void* memory);

/// Sets an uninitialised pool to empty, with `poolBlockSize` and this side's heap.
void PoolInit(BlockPool* pool);

/// `size` bytes, rounded up to a multiple of 8, from the current block or a new one; null when no block could be obtained.
/// Consecutive requests in one block have falling addresses. The memory is zero-filled and 8-byte aligned.
void* PoolAllocate(BlockPool* pool, std::size_t size);

/// Returns every block. The pool is empty and usable afterwards; `allocatedBytes` keeps its value.
void PoolReset(BlockPool* pool);

}  // namespace btz
