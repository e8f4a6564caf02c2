// The hash table: bucket counts, which records are stored and found, the order of iteration, and what deletions, clearing and rehashing
// leave behind.
#include "support/hash_table.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "support/block_pool.h"
#include "support/hash_keys.h"

namespace btz {
namespace {

struct Record {
  std::int32_t id;
  std::int32_t kind;
};

class HashTableTest : public ::testing::Test {
 protected:
  HashTableTest() { HashInit(&table); }
  ~HashTableTest() override { HashRelease(&table); }

  void Create(std::int32_t size, CompareFunction compare = nullptr, std::int32_t allowDuplicates = 0) {
    EXPECT_EQ(HashCreate(&table, size, HashFirstInt, compare, nullptr, allowDuplicates), 0);
  }

  std::int32_t Insert(Record& record) { return HashInsert(&table, &record); }

  void* Find(std::int32_t id, std::int32_t kind = 0) {
    const Record probe{id, kind};
    return HashFind(&table, &probe);
  }

  std::int32_t Delete(std::int32_t id, std::int32_t kind = 0) {
    const Record probe{id, kind};
    return HashDelete(&table, &probe);
  }

  std::vector<std::int32_t> Ids() {
    std::vector<std::int32_t> ids;
    WalkTable<Record>(&table, [&](Record* record) { ids.push_back(record->id); });
    return ids;
  }

  using Order = std::vector<std::int32_t>;

  HashTable table;
};

TEST_F(HashTableTest, InitClearsEverythingAndSetsTheHeap) {
  EXPECT_EQ(table.freeCells, nullptr);
  EXPECT_EQ(table.pool.blockSize, 4084u);
  EXPECT_EQ(table.pool.firstBlock, nullptr);
  EXPECT_EQ(table.bucketCount, 0);
  EXPECT_EQ(table.reserved[0], 0);
  EXPECT_EQ(table.reserved[1], 0);
  EXPECT_EQ(table.buckets, nullptr);
  EXPECT_EQ(table.userData, nullptr);
  EXPECT_EQ(table.allowDuplicates, 0);
  EXPECT_EQ(table.hash, nullptr);
  EXPECT_EQ(table.compare, nullptr);
  EXPECT_EQ(table.count, 0);
  EXPECT_EQ(table.iteratorBucket, 0);
  EXPECT_EQ(table.highestBucket, 0);
  EXPECT_EQ(table.iteratorCell, nullptr);
  EXPECT_NE(table.allocate, nullptr);
  EXPECT_NE(table.release, nullptr);
  EXPECT_NE(table.pool.allocate, nullptr);
  EXPECT_NE(table.pool.release, nullptr);
}

TEST_F(HashTableTest, BucketCountIsTheSmallestOddNumberAboveTheSize) {
  const std::int32_t expected[][2] = {{0, 1},     {1, 3},      {2, 3},       {3, 5},       {4, 5},
                                      {100, 101}, {999, 1001}, {1000, 1001}, {1001, 1003}, {50000, 50001}};
  for (const auto& [size, buckets] : expected) {
    Create(size);
    EXPECT_EQ(table.bucketCount, buckets) << size;
    for (std::int32_t i = 0; i < buckets; ++i) {
      ASSERT_EQ(table.buckets[i].record, nullptr);
      ASSERT_EQ(table.buckets[i].next, nullptr);
    }
  }
}

TEST_F(HashTableTest, CreateKeepsCallbacksUserDataAndDuplicateRule) {
  int data = 0;
  HashCreate(&table, 10, HashSecondInt, CompareSecondInt, &data, 1);
  EXPECT_EQ(table.hash, HashSecondInt);
  EXPECT_EQ(table.compare, CompareSecondInt);
  EXPECT_EQ(table.userData, &data);
  EXPECT_EQ(table.allowDuplicates, 1);
}

TEST_F(HashTableTest, CreatingAgainDropsTheRecordsAndStartsAnew) {
  Create(10);
  Record records[] = {{1, 0}, {12, 0}, {5, 0}};
  for (Record& record : records) {
    Insert(record);
  }
  HashIterateStart(&table);
  Create(3);
  EXPECT_EQ(table.bucketCount, 5);
  EXPECT_EQ(table.count, 0);
  EXPECT_EQ(table.iteratorBucket, 0);
  EXPECT_EQ(table.highestBucket, 0);
  EXPECT_EQ(table.iteratorCell, nullptr);
  EXPECT_EQ(Find(1), nullptr);
  EXPECT_EQ(Insert(records[1]), 1);
  EXPECT_EQ(Ids(), Order{12});
}

TEST_F(HashTableTest, BehavesAsEmptyBeforeItIsCreated) {
  Record record{7, 0};
  EXPECT_EQ(Insert(record), 0);
  EXPECT_EQ(Find(7), nullptr);
  EXPECT_EQ(Delete(7), 0);
  EXPECT_EQ(HashCount(&table), 0);
  HashIterateStart(&table);
  EXPECT_EQ(HashIterateNext(&table), nullptr);
  HashClear(&table);
  EXPECT_EQ(HashCount(&table), 0);
}

TEST_F(HashTableTest, AZeroedTableWithoutInitBehavesAsEmpty) {
  HashTable zeroed{};
  const std::int32_t probe = 7;
  EXPECT_EQ(HashFind(&zeroed, &probe), nullptr);
  EXPECT_EQ(HashCount(&zeroed), 0);
  HashIterateStart(&zeroed);
  EXPECT_EQ(HashIterateNext(&zeroed), nullptr);
}

TEST_F(HashTableTest, FindsWhatWasInserted) {
  Create(10);
  Record five{5, 0}, sixteen{16, 0};
  EXPECT_EQ(Insert(five), 1);
  EXPECT_EQ(Insert(sixteen), 1) << "same bucket of 11, other key";
  EXPECT_EQ(Find(5), &five);
  EXPECT_EQ(Find(16), &sixteen);
  EXPECT_EQ(Find(27), nullptr) << "same bucket, not held";
  EXPECT_EQ(Find(6), nullptr);
  EXPECT_EQ(HashCount(&table), 2);
}

TEST_F(HashTableTest, ZeroIsALegalKey) {
  Create(10);
  Record zero{0, 0};
  EXPECT_EQ(Insert(zero), 1);
  EXPECT_EQ(Find(0), &zero);
  EXPECT_EQ(Delete(0), 1);
  EXPECT_EQ(Find(0), nullptr);
}

TEST_F(HashTableTest, ANegativeKeyIsNotStoredFoundOrDeleted) {
  Create(10);
  Record minusOne{-1, 0}, lowest{INT32_MIN, 0};
  EXPECT_EQ(Insert(minusOne), 0);
  EXPECT_EQ(Insert(lowest), 0);
  EXPECT_EQ(HashCount(&table), 0);
  EXPECT_EQ(Find(-1), nullptr);
  EXPECT_EQ(Delete(-1), 0);
}

TEST_F(HashTableTest, TheHighestKeyIsStored) {
  Create(10);
  Record highest{INT32_MAX, 0};
  EXPECT_EQ(Insert(highest), 1);
  EXPECT_EQ(Find(INT32_MAX), &highest);
}

TEST_F(HashTableTest, WithoutCompareAnEqualKeyIsRefusedAndTheFirstRecordStays) {
  Create(10);
  Record first{5, 1}, second{5, 2}, behind{16, 1}, secondBehind{16, 2};
  EXPECT_EQ(Insert(first), 1);
  EXPECT_EQ(Insert(second), 0);
  EXPECT_EQ(Find(5), &first);
  EXPECT_EQ(Insert(behind), 1);
  EXPECT_EQ(Insert(secondBehind), 0) << "the last cell of a chain is compared too";
  EXPECT_EQ(Find(16), &behind);
  EXPECT_EQ(HashCount(&table), 2);
}

TEST_F(HashTableTest, WithCompareEqualKeysShareAChainAndAreFoundOneByOne) {
  Create(10, CompareSecondInt);
  Record one{5, 1}, two{5, 2}, three{5, 3}, twoAgain{5, 2};
  EXPECT_EQ(Insert(one), 1);
  EXPECT_EQ(Insert(two), 1);
  EXPECT_EQ(Insert(three), 1);
  EXPECT_EQ(Insert(twoAgain), 0);
  EXPECT_EQ(Find(5, 1), &one);
  EXPECT_EQ(Find(5, 2), &two);
  EXPECT_EQ(Find(5, 3), &three);
  EXPECT_EQ(Find(5, 4), nullptr);
  EXPECT_EQ(Delete(5, 2), 1);
  EXPECT_EQ(Find(5, 2), nullptr);
  EXPECT_EQ(Find(5, 3), &three);
}

TEST_F(HashTableTest, CompareIsNotAskedAboutRecordsOfAnotherKey) {
  HashCreate(
      &table, 0, HashFirstInt, [](const void*, const void*) { return 0; }, nullptr, 0);
  Record one{1, 0}, two{2, 0};
  EXPECT_EQ(Insert(one), 1);
  EXPECT_EQ(Insert(two), 1) << "one bucket, a compare that calls all equal, but another key";
  EXPECT_EQ(Find(2), &two);
}

TEST_F(HashTableTest, CompareGetsTheStoredRecordFirst) {
  HashCreate(
      &table, 10, HashFirstInt,
      [](const void* stored, const void* other) {
        return static_cast<const Record*>(stored)->kind == 100 && static_cast<const Record*>(other)->kind != 100 ? 0 : 1;
      },
      nullptr, 0);
  Record stored{5, 100}, other{5, 1};
  EXPECT_EQ(Insert(stored), 1);
  EXPECT_EQ(Insert(other), 0);
  EXPECT_EQ(Find(5, 2), &stored);
  EXPECT_EQ(Delete(5, 2), 1);
}

TEST_F(HashTableTest, WithDuplicatesAllowedEqualRecordsStandInOrderAndTheFirstIsFound) {
  Create(10, nullptr, 1);
  Record first{5, 1}, second{5, 2}, third{5, 3};
  EXPECT_EQ(Insert(first), 1);
  EXPECT_EQ(Insert(second), 1);
  EXPECT_EQ(Insert(third), 1);
  EXPECT_EQ(Find(5), &first);
  EXPECT_EQ(Delete(5), 1);
  EXPECT_EQ(Find(5), &second);
  EXPECT_EQ(HashCount(&table), 2);
}

TEST_F(HashTableTest, UserDataReachesTheHash) {
  std::int32_t offset = 100;
  HashCreate(
      &table, 10, [](const void* record, void* data) { return static_cast<const Record*>(record)->id + *static_cast<std::int32_t*>(data); },
      nullptr, &offset, 0);
  Record record{-60, 0};
  EXPECT_EQ(Insert(record), 1) << "-60 + 100 is a legal key";
  EXPECT_EQ(table.buckets[40 % 11].record, &record);
  EXPECT_EQ(Find(-60), &record);
}

TEST_F(HashTableTest, TheFirstCellOfAChainIsTheBucketAndOthersFollowInOrderOfInsertion) {
  Create(10);
  Record records[] = {{5, 0}, {16, 0}, {27, 0}};
  for (Record& record : records) {
    Insert(record);
  }
  const HashCell* cell = &table.buckets[5];
  for (Record& record : records) {
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->record, &record);
    cell = cell->next;
  }
  EXPECT_EQ(cell, nullptr);
  EXPECT_EQ(table.pool.requestedBytes, 32u) << "two overflow cells of 16 bytes";
}

TEST_F(HashTableTest, IteratesByBucketAndThenByInsertion) {
  Create(10);
  Record records[] = {{25, 0}, {3, 0}, {0, 0}, {14, 0}, {10, 0}, {22, 0}};
  for (Record& record : records) {
    Insert(record);
  }
  // Buckets of 11: 0 -> 0 and 22; 3 -> 25, 3, 14; 10 -> 10.
  EXPECT_EQ(Ids(), (Order{0, 22, 25, 3, 14, 10}));
  EXPECT_EQ(Ids(), (Order{0, 22, 25, 3, 14, 10})) << "a second walk is the same";
}

TEST_F(HashTableTest, IterationGivesNullAtTheEndUntilItIsStartedAgain) {
  Create(10);
  Record record{7, 0};
  Insert(record);
  HashIterateStart(&table);
  EXPECT_EQ(HashIterateNext(&table), &record);
  EXPECT_EQ(HashIterateNext(&table), nullptr);
  EXPECT_EQ(HashIterateNext(&table), nullptr);
  HashIterateStart(&table);
  EXPECT_EQ(HashIterateNext(&table), &record);
}

TEST_F(HashTableTest, AnEmptyTableIteratesOverNothing) {
  Create(10);
  HashIterateStart(&table);
  EXPECT_EQ(table.iteratorBucket, 0);
  EXPECT_EQ(table.iteratorCell, nullptr);
  EXPECT_EQ(HashIterateNext(&table), nullptr);
}

TEST_F(HashTableTest, HighestBucketFollowsInsertionsAndTightensAtTheEndOfAWalk) {
  Create(100);
  Record low{2, 0}, high{90, 0};
  Insert(high);
  EXPECT_EQ(table.highestBucket, 90);
  Insert(low);
  EXPECT_EQ(table.highestBucket, 90);
  EXPECT_EQ(Delete(90), 1);
  EXPECT_EQ(table.highestBucket, 90);
  EXPECT_EQ(Ids(), Order{2});
  EXPECT_EQ(table.highestBucket, 3) << "the bucket at which the last scan began";
  Insert(high);
  EXPECT_EQ(table.highestBucket, 90);
  EXPECT_EQ(Ids(), (Order{2, 90}));
}

TEST_F(HashTableTest, AFullWalkDoesNotRaiseHighestBucket) {
  Create(10);
  Record last{10, 0};
  Insert(last);
  EXPECT_EQ(Ids(), Order{10});
  EXPECT_EQ(table.highestBucket, 10);
}

TEST_F(HashTableTest, StartLowersAHighestBucketBeyondTheArray) {
  Create(10);
  Record record{4, 0};
  Insert(record);
  table.highestBucket = 500;
  HashIterateStart(&table);
  EXPECT_EQ(table.highestBucket, 10);
  EXPECT_EQ(HashIterateNext(&table), &record);
}

TEST_F(HashTableTest, ARecordInsertedBehindTheIteratorDuringAWalkIsSeen) {
  Create(10);
  Record one{1, 0}, five{5, 0}, nine{9, 0};
  Insert(one);
  Insert(five);
  HashIterateStart(&table);
  EXPECT_EQ(HashIterateNext(&table), &one);
  Insert(nine);
  EXPECT_EQ(HashIterateNext(&table), &five);
  EXPECT_EQ(HashIterateNext(&table), &nine);
  EXPECT_EQ(HashIterateNext(&table), nullptr);
}

TEST_F(HashTableTest, SizeZeroWorksAsAList) {
  Create(0);
  Record records[] = {{9, 0}, {2, 0}, {7, 0}, {4, 0}};
  for (Record& record : records) {
    EXPECT_EQ(Insert(record), 1);
  }
  EXPECT_EQ(Ids(), (Order{9, 2, 7, 4}));
  EXPECT_EQ(Find(4), &records[3]);
}

TEST_F(HashTableTest, ClearEmptiesTheTableAndKeepsTheBuckets) {
  Create(10);
  Record records[] = {{5, 0}, {16, 0}, {27, 0}, {8, 0}};
  for (Record& record : records) {
    Insert(record);
  }
  const HashCell* buckets = table.buckets;
  HashClear(&table);
  EXPECT_EQ(table.buckets, buckets);
  EXPECT_EQ(table.bucketCount, 11);
  EXPECT_EQ(HashCount(&table), 0);
  EXPECT_EQ(table.iteratorCell, nullptr);
  EXPECT_EQ(Find(5), nullptr);
  EXPECT_EQ(Find(27), nullptr);
  EXPECT_EQ(Ids(), Order{});
  EXPECT_EQ(Insert(records[2]), 1);
  EXPECT_EQ(Insert(records[0]), 1);
  EXPECT_EQ(Ids(), (Order{27, 5}));
}

TEST_F(HashTableTest, DestroyReturnsToTheStateBehindInit) {
  Create(10, CompareSecondInt, 1);
  Record records[] = {{5, 0}, {16, 0}};
  for (Record& record : records) {
    Insert(record);
  }
  HashDestroy(&table);
  EXPECT_EQ(table.buckets, nullptr);
  EXPECT_EQ(table.bucketCount, 0);
  EXPECT_EQ(table.count, 0);
  EXPECT_EQ(table.hash, nullptr);
  EXPECT_EQ(table.compare, nullptr);
  EXPECT_EQ(table.allowDuplicates, 0);
  EXPECT_EQ(table.freeCells, nullptr);
  EXPECT_EQ(table.pool.firstBlock, nullptr);
  EXPECT_EQ(table.pool.allocatedBytes, 0);
  EXPECT_EQ(table.pool.blockSize, 4084u);
  Create(3);
  EXPECT_EQ(Insert(records[0]), 1);
  EXPECT_EQ(Find(5), &records[0]);
}

TEST_F(HashTableTest, ReleaseReturnsAllMemoryAndMayRunTwice) {
  Create(1);
  Record records[] = {{5, 0}, {2, 0}, {8, 0}};
  for (Record& record : records) {
    Insert(record);
  }
  HashRelease(&table);
  EXPECT_EQ(table.buckets, nullptr);
  EXPECT_EQ(table.pool.firstBlock, nullptr);
  HashRelease(&table);
  EXPECT_EQ(Find(5), nullptr);
}

TEST_F(HashTableTest, RehashFitsTheBucketsToTheRecordsHeld) {
  Create(1000);
  std::vector<Record> records(1001);
  for (std::int32_t i = 0; i < 1001; ++i) {
    records[static_cast<std::size_t>(i)].id = 3 * i;
    Insert(records[static_cast<std::size_t>(i)]);
  }
  EXPECT_EQ(table.bucketCount, 1001);
  EXPECT_EQ(HashRehash(&table), 0);
  EXPECT_EQ(table.bucketCount, 1003);
  EXPECT_EQ(HashCount(&table), 1001);
  for (Record& record : records) {
    ASSERT_EQ(Find(record.id), &record);
  }
}

TEST_F(HashTableTest, RehashInsertsInTheOrderOfTheOldTable) {
  Create(10);
  Record records[] = {{13, 0}, {1, 0}, {2, 0}, {0, 0}};
  for (Record& record : records) {
    Insert(record);
  }
  // Buckets of 11: 0 -> 0; 1 -> 1; 2 -> 13, 2.
  EXPECT_EQ(Ids(), (Order{0, 1, 13, 2}));
  HashRehash(&table);
  // Four records: 5 buckets. 0 -> 0; 1 -> 1; 2 -> 2; 3 -> 13.
  EXPECT_EQ(table.bucketCount, 5);
  EXPECT_EQ(Ids(), (Order{0, 1, 2, 13}));
}

TEST_F(HashTableTest, RehashKeepsTheCallbacksAndTheDuplicateRule) {
  int data = 0;
  HashCreate(&table, 100, HashFirstInt, CompareSecondInt, &data, 1);
  Record records[] = {{5, 1}, {5, 1}, {5, 2}};
  for (Record& record : records) {
    Insert(record);
  }
  HashRehash(&table);
  EXPECT_EQ(table.bucketCount, 5);
  EXPECT_EQ(HashCount(&table), 3);
  EXPECT_EQ(table.hash, HashFirstInt);
  EXPECT_EQ(table.compare, CompareSecondInt);
  EXPECT_EQ(table.userData, &data);
  EXPECT_EQ(table.allowDuplicates, 1);
}

TEST_F(HashTableTest, RehashOfAnEmptyTableLeavesOneBucket) {
  Create(10);
  EXPECT_EQ(HashRehash(&table), 0);
  EXPECT_EQ(table.bucketCount, 1);
  EXPECT_EQ(HashCount(&table), 0);
}

}  // namespace
}  // namespace btz
