#include "support/block_pool.h"

#include <cstdlib>

namespace btz {

namespace {

char* Payload(PoolBlock* block) { return reinterpret_cast<char*>(block + 1); }

bool HasRoom(PoolBlock* block, std::size_t size) { return static_cast<std::size_t>(block->top - Payload(block)) >= size; }

bool AddBlock(BlockPool* pool, std::size_t size) {
  const std::size_t payload = size > pool->blockSize ? size : static_cast<std::size_t>(pool->blockSize);
  const std::size_t total = payload + sizeof(PoolBlock);
  auto* block = static_cast<PoolBlock*>(pool->allocate(total));
  if (block == nullptr) {
    return false;
  }
  pool->allocatedBytes = static_cast<std::int32_t>(static_cast<std::uint32_t>(pool->allocatedBytes) + static_cast<std::uint32_t>(total));
  block->next = nullptr;
  // 4084 is no multiple of 8: starting at the rounded-down end keeps every cell aligned, and as many cells fit.
  block->top = Payload(block) + (payload & ~std::size_t{7});
  if (pool->currentBlock == nullptr) {
    pool->firstBlock = block;
  } else {
    pool->currentBlock->next = block;
  }
  pool->currentBlock = block;
  return true;
}

}  // namespace

void* AllocateZeroed(std::size_t size) { return std::calloc(1, size); }

void ReleaseMemory(void* memory) { std::free(memory); }

void PoolInit(BlockPool* pool) {
  *pool = BlockPool{};
  pool->blockSize = poolBlockSize;
  pool->allocate = AllocateZeroed;
  pool->release = ReleaseMemory;
}

void* PoolAllocate(BlockPool* pool, std::size_t size) {
  const std::size_t rounded = (size + 7) & ~std::size_t{7};
  pool->requestedBytes += rounded;
  if ((pool->currentBlock == nullptr || !HasRoom(pool->currentBlock, rounded)) && !AddBlock(pool, rounded)) {
    return nullptr;
  }
  pool->currentBlock->top -= rounded;
  return pool->currentBlock->top;
}

void PoolReset(BlockPool* pool) {
  for (PoolBlock* block = pool->firstBlock; block != nullptr;) {
    PoolBlock* next = block->next;
    pool->release(block);
    block = next;
  }
  pool->firstBlock = nullptr;
  pool->currentBlock = nullptr;
  pool->requestedBytes = 0;
}

}  // namespace btz
