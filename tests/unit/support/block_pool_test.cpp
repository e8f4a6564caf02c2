// The bump allocator of cells: how requests are rounded, where they come to lie, when a block is taken and what the counters say.
#include "support/block_pool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace btz {
namespace {

/// Heap of a test: remembers what was asked for and what came back, and can refuse.
struct TestHeap {
  std::vector<std::size_t> sizes;
  std::vector<void*> live;
  std::int32_t doubleReleases = 0;
  bool refuses = false;
};

TestHeap heap;

void* TestAllocate(std::size_t size) {
  if (heap.refuses) {
    return nullptr;
  }
  heap.sizes.push_back(size);
  heap.live.push_back(std::calloc(1, size));
  return heap.live.back();
}

void TestRelease(void* memory) {
  if (std::erase(heap.live, memory) != 1) {
    ++heap.doubleReleases;
    return;
  }
  std::free(memory);
}

class BlockPoolTest : public ::testing::Test {
 protected:
  BlockPoolTest() {
    heap = TestHeap{};
    PoolInit(&pool);
    pool.allocate = TestAllocate;
    pool.release = TestRelease;
  }

  ~BlockPoolTest() override {
    PoolReset(&pool);
    EXPECT_TRUE(heap.live.empty());
    EXPECT_EQ(heap.doubleReleases, 0);
  }

  char* Take(std::size_t size) { return static_cast<char*>(PoolAllocate(&pool, size)); }

  BlockPool pool;
};

TEST_F(BlockPoolTest, StartsEmptyWithTheUsualBlockSize) {
  BlockPool fresh;
  PoolInit(&fresh);
  EXPECT_EQ(fresh.firstBlock, nullptr);
  EXPECT_EQ(fresh.currentBlock, nullptr);
  EXPECT_EQ(fresh.blockSize, 4084u);
  EXPECT_EQ(fresh.requestedBytes, 0u);
  EXPECT_EQ(fresh.allocatedBytes, 0);
  ASSERT_NE(fresh.allocate, nullptr);
  ASSERT_NE(fresh.release, nullptr);
  auto* memory = static_cast<unsigned char*>(fresh.allocate(64));
  ASSERT_NE(memory, nullptr);
  for (int i = 0; i < 64; ++i) {
    EXPECT_EQ(memory[i], 0);
  }
  fresh.release(memory);
}

TEST_F(BlockPoolTest, RoundsRequestsUpToMultiplesOfEight) {
  Take(1);
  EXPECT_EQ(pool.requestedBytes, 8u);
  Take(8);
  EXPECT_EQ(pool.requestedBytes, 16u);
  Take(9);
  EXPECT_EQ(pool.requestedBytes, 32u);
  Take(16);
  EXPECT_EQ(pool.requestedBytes, 48u);
}

TEST_F(BlockPoolTest, TakesABlockOf4100BytesAtTheFirstRequest) {
  Take(16);
  EXPECT_EQ(heap.sizes, std::vector<std::size_t>{4100});
  EXPECT_EQ(pool.allocatedBytes, 4100);
  EXPECT_EQ(pool.firstBlock, pool.currentBlock);
  ASSERT_NE(pool.firstBlock, nullptr);
  EXPECT_EQ(pool.firstBlock->next, nullptr);
}

TEST_F(BlockPoolTest, HandsOutFallingAddressesWithinABlock) {
  char* first = Take(16);
  char* second = Take(16);
  char* third = Take(3);
  EXPECT_EQ(second, first - 16);
  EXPECT_EQ(third, second - 8);
  EXPECT_EQ(pool.currentBlock->top, third);
}

TEST_F(BlockPoolTest, StartsAtTheEndOfTheBlock) {
  char* first = Take(16);
  const char* blockEnd = reinterpret_cast<char*>(pool.firstBlock) + 4100;
  EXPECT_LE(first + 16, blockEnd);
  EXPECT_LT(blockEnd - (first + 16), 8) << "no more than the rounding to aligned cells may be left";
}

TEST_F(BlockPoolTest, AlignsEveryCell) {
  for (int i = 0; i < 600; ++i) {
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(Take(16)) % 8, 0u);
  }
}

TEST_F(BlockPoolTest, Fits255CellsOf16BytesIntoABlock) {
  for (int i = 0; i < 255; ++i) {
    Take(16);
  }
  EXPECT_EQ(heap.sizes.size(), 1u);
  Take(16);
  EXPECT_EQ(heap.sizes.size(), 2u);
  EXPECT_EQ(pool.allocatedBytes, 8200);
}

TEST_F(BlockPoolTest, UsesTheSmallRestOfABlockForASmallRequest) {
  for (int i = 0; i < 254; ++i) {
    Take(16);
  }
  // 4084 - 4064 leaves 20 bytes: two requests of 8.
  Take(8);
  Take(8);
  EXPECT_EQ(heap.sizes.size(), 1u);
  Take(8);
  EXPECT_EQ(heap.sizes.size(), 2u);
}

TEST_F(BlockPoolTest, LinksANewBlockBehindTheChain) {
  Take(16);
  PoolBlock* first = pool.firstBlock;
  Take(4080);
  EXPECT_EQ(pool.firstBlock, first);
  EXPECT_EQ(first->next, pool.currentBlock);
  EXPECT_EQ(pool.currentBlock->next, nullptr);
  EXPECT_NE(pool.currentBlock, first);
}

TEST_F(BlockPoolTest, DoesNotGoBackToAnEarlierBlockWithRoom) {
  Take(16);
  PoolBlock* first = pool.firstBlock;
  const char* topOfFirst = first->top;
  Take(4080);
  Take(4080);
  EXPECT_EQ(heap.sizes.size(), 3u);
  EXPECT_EQ(first->top, topOfFirst);
}

TEST_F(BlockPoolTest, GivesABigRequestABlockOfItsOwnSize) {
  char* big = Take(9999);
  EXPECT_EQ(heap.sizes, std::vector<std::size_t>{10000 + 16});
  EXPECT_EQ(pool.allocatedBytes, 10016);
  EXPECT_EQ(pool.requestedBytes, 10000u);
  EXPECT_EQ(big, reinterpret_cast<char*>(pool.firstBlock) + 16);
  Take(8);
  EXPECT_EQ(heap.sizes.size(), 2u);
}

TEST_F(BlockPoolTest, GivesZeroedMemoryThatCanBeWrittenWhole) {
  std::vector<unsigned char*> cells;
  for (std::size_t size = 1; size < 200; ++size) {
    auto* cell = reinterpret_cast<unsigned char*>(Take(size));
    for (std::size_t i = 0; i < size; ++i) {
      EXPECT_EQ(cell[i], 0);
      cell[i] = static_cast<unsigned char>(size);
    }
    cells.push_back(cell);
  }
  for (std::size_t size = 1; size < 200; ++size) {
    EXPECT_EQ(cells[size - 1][0], size);
    EXPECT_EQ(cells[size - 1][size - 1], size);
  }
}

TEST_F(BlockPoolTest, YieldsNullAndKeepsItsBlocksWhenMemoryRunsOut) {
  heap.refuses = true;
  EXPECT_EQ(PoolAllocate(&pool, 16), nullptr);
  EXPECT_EQ(pool.firstBlock, nullptr);
  EXPECT_EQ(pool.currentBlock, nullptr);
  EXPECT_EQ(pool.allocatedBytes, 0);
  heap.refuses = false;
  char* held = Take(4080);
  PoolBlock* block = pool.currentBlock;
  heap.refuses = true;
  EXPECT_EQ(PoolAllocate(&pool, 16), nullptr);
  EXPECT_EQ(pool.currentBlock, block);
  EXPECT_EQ(block->next, nullptr);
  EXPECT_EQ(block->top, held);
  EXPECT_EQ(pool.allocatedBytes, 4100);
}

TEST_F(BlockPoolTest, ResetReturnsEveryBlockAndKeepsTheSumObtained) {
  for (int i = 0; i < 1000; ++i) {
    Take(16);
  }
  EXPECT_EQ(heap.live.size(), 4u);
  PoolReset(&pool);
  EXPECT_TRUE(heap.live.empty());
  EXPECT_EQ(pool.requestedBytes, 0u);
  EXPECT_EQ(pool.currentBlock, nullptr);
  EXPECT_EQ(pool.allocatedBytes, 4 * 4100);
  EXPECT_EQ(pool.blockSize, 4084u);
}

TEST_F(BlockPoolTest, CanBeUsedAndResetAgainAfterAReset) {
  Take(16);
  PoolReset(&pool);
  PoolReset(&pool);
  EXPECT_EQ(heap.doubleReleases, 0);
  Take(16);
  EXPECT_EQ(heap.live.size(), 1u);
  EXPECT_EQ(pool.allocatedBytes, 8200);
  EXPECT_EQ(pool.requestedBytes, 16u);
}

}  // namespace
}  // namespace btz
