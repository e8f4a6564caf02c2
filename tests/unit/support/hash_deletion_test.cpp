// Deletion from the hash table: which cell a chain loses, where the iterator goes, and a comparison with a plain table over random runs.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz {
namespace {

struct Record {
  std::int32_t id;
  std::int32_t kind;
};

/// Five records, three of them in one chain of 11 buckets: 5, 16 and 27 in bucket 5, 2 in bucket 2, 9 in bucket 9.
class HashDeletionTest : public ::testing::Test {
 protected:
  HashDeletionTest() {
    HashInit(&table);
    HashCreate(&table, 10, HashFirstInt, nullptr, nullptr, 0);
    for (Record& record : records) {
      HashInsert(&table, &record);
    }
  }

  ~HashDeletionTest() override { HashRelease(&table); }

  std::int32_t DeleteByProbe(std::int32_t id) {
    const Record probe{id, 0};
    return HashDelete(&table, &probe);
  }

  std::vector<std::int32_t> Rest() {
    std::vector<std::int32_t> ids;
    for (void* record = HashIterateNext(&table); record != nullptr; record = HashIterateNext(&table)) {
      ids.push_back(static_cast<Record*>(record)->id);
    }
    return ids;
  }

  std::vector<std::int32_t> Ids() {
    HashIterateStart(&table);
    return Rest();
  }

  /// Starts a walk and takes `count` records.
  void Walk(int count) {
    HashIterateStart(&table);
    for (int i = 0; i < count; ++i) {
      HashIterateNext(&table);
    }
  }

  using Order = std::vector<std::int32_t>;

  HashTable table;
  Record records[5] = {{5, 0}, {16, 0}, {27, 0}, {2, 0}, {9, 0}};
  Record& five = records[0];
  Record& sixteen = records[1];
  Record& twentySeven = records[2];
  Record& two = records[3];
  Record& nine = records[4];
};

TEST_F(HashDeletionTest, StartsFromTheOrderOfTheBuckets) { EXPECT_EQ(Ids(), (Order{2, 5, 16, 27, 9})); }

TEST_F(HashDeletionTest, AnUnknownKeyOrAnEmptyBucketDeletesNothing) {
  EXPECT_EQ(DeleteByProbe(38), 0) << "in the chain's bucket";
  EXPECT_EQ(DeleteByProbe(3), 0);
  EXPECT_EQ(DeleteByProbe(-5), 0);
  EXPECT_EQ(HashCount(&table), 5);
}

TEST_F(HashDeletionTest, ALoneBucketRecordLeavesAFreeBucket) {
  EXPECT_EQ(DeleteByProbe(9), 1);
  EXPECT_EQ(table.buckets[9].record, nullptr);
  EXPECT_EQ(HashCount(&table), 4);
  EXPECT_EQ(table.freeCells, nullptr) << "a bucket is no overflow cell";
  EXPECT_EQ(Ids(), (Order{2, 5, 16, 27}));
}

TEST_F(HashDeletionTest, TheFollowerOfABucketRecordMovesIntoTheBucket) {
  HashCell* follower = table.buckets[5].next;
  EXPECT_EQ(DeleteByProbe(5), 1);
  EXPECT_EQ(table.buckets[5].record, &sixteen);
  EXPECT_EQ(table.buckets[5].next->record, &twentySeven);
  EXPECT_EQ(table.freeCells, follower);
  EXPECT_EQ(follower->record, nullptr);
  EXPECT_EQ(Ids(), (Order{2, 16, 27, 9}));
}

TEST_F(HashDeletionTest, ACellInTheMiddleIsUnlinked) {
  EXPECT_EQ(DeleteByProbe(16), 1);
  EXPECT_EQ(Ids(), (Order{2, 5, 27, 9}));
  EXPECT_NE(table.freeCells, nullptr);
}

TEST_F(HashDeletionTest, TheLastCellIsUnlinked) {
  EXPECT_EQ(DeleteByProbe(27), 1);
  EXPECT_EQ(Ids(), (Order{2, 5, 16, 9}));
  EXPECT_EQ(HashInsert(&table, &twentySeven), 1);
  EXPECT_EQ(Ids(), (Order{2, 5, 16, 27, 9}));
}

TEST_F(HashDeletionTest, InsertionTakesTheCellReleasedLastBeforeNewMemory) {
  EXPECT_EQ(table.pool.requestedBytes, 32u);
  HashCell* cell = table.buckets[5].next->next;
  DeleteByProbe(16);
  DeleteByProbe(27);
  EXPECT_EQ(table.freeCells, cell);
  HashInsert(&table, &sixteen);
  EXPECT_EQ(table.buckets[5].next, cell);
  HashInsert(&table, &twentySeven);
  EXPECT_EQ(table.freeCells, nullptr);
  EXPECT_EQ(table.pool.requestedBytes, 32u);
  EXPECT_EQ(Ids(), (Order{2, 5, 16, 27, 9}));
}

TEST_F(HashDeletionTest, DeletingTheNextRecordItselfMovesTheIteratorOn) {
  Walk(2);
  EXPECT_EQ(HashDelete(&table, &sixteen), 1);
  EXPECT_EQ(Rest(), (Order{27, 9}));
}

TEST_F(HashDeletionTest, DeletingALoneNextRecordItselfMovesTheIteratorToALaterBucket) {
  Walk(0);
  EXPECT_EQ(HashDelete(&table, &two), 1);
  EXPECT_EQ(Rest(), (Order{5, 16, 27, 9}));
}

TEST_F(HashDeletionTest, DeletingTheLastRecordOfTheWalkItselfEndsIt) {
  Walk(4);
  EXPECT_EQ(HashDelete(&table, &nine), 1);
  EXPECT_EQ(HashIterateNext(&table), nullptr);
  EXPECT_EQ(Ids(), (Order{2, 5, 16, 27}));
}

TEST_F(HashDeletionTest, DeletingTheNextBucketRecordWithAFollowerGoesOnWithTheFollower) {
  Walk(1);
  EXPECT_EQ(HashDelete(&table, &five), 1);
  EXPECT_EQ(Rest(), (Order{16, 27, 9}));
}

TEST_F(HashDeletionTest, AFollowerThatMovesIntoTheBucketTakesTheIteratorWithIt) {
  Walk(2);
  EXPECT_EQ(DeleteByProbe(5), 1);
  EXPECT_EQ(Rest(), (Order{16, 27, 9}));
}

TEST_F(HashDeletionTest, AnIteratorFurtherDownTheChainStaysWhereItIs) {
  Walk(3);
  EXPECT_EQ(DeleteByProbe(5), 1);
  EXPECT_EQ(Rest(), (Order{27, 9}));
}

TEST_F(HashDeletionTest, ASeparateProbeOfTheNextRecordDoesNotMoveTheIterator) {
  Walk(4);
  const HashCell* next = table.iteratorCell;
  EXPECT_EQ(DeleteByProbe(9), 1);
  EXPECT_EQ(table.iteratorCell, next);
  EXPECT_EQ(HashIterateNext(&table), nullptr) << "the free bucket it stands on";
}

TEST_F(HashDeletionTest, EachRecordCanBeDeletedAsSoonAsTheWalkHasGivenIt) {
  HashIterateStart(&table);
  std::vector<std::int32_t> seen;
  for (void* record = HashIterateNext(&table); record != nullptr; record = HashIterateNext(&table)) {
    seen.push_back(static_cast<Record*>(record)->id);
    EXPECT_EQ(HashDelete(&table, record), 1);
  }
  EXPECT_EQ(seen, (Order{2, 5, 16, 27, 9}));
  EXPECT_EQ(HashCount(&table), 0);
  EXPECT_EQ(Ids(), Order{});
}

/// A table written for reading, not for speed: cells are numbers into one row, the buckets come first, and cells that are not in use hang on
/// a stack. It prescribes every result, order and counter of the real one.
class PlainTable {
 public:
  PlainTable(std::int32_t size, bool comparesKind) : byKind(comparesKind) { Create(size); }

  std::int32_t Insert(Record* record) {
    if (record->id < 0) {
      return 0;
    }
    const int bucket = record->id % bucketCount;
    if (At(bucket).record == nullptr) {
      At(bucket) = {none, record};
    } else {
      int last = bucket;
      for (int cell = bucket; cell != none; cell = At(cell).next) {
        if (Equals(At(cell).record, record)) {
          return 0;
        }
        last = cell;
      }
      const int added = Take();
      At(added) = {none, record};
      At(last).next = added;
    }
    ++count;
    highestBucket = bucket > highestBucket ? bucket : highestBucket;
    return 1;
  }

  Record* Find(const Record* probe) {
    for (int cell = FirstOf(probe); cell != none; cell = At(cell).next) {
      if (Equals(At(cell).record, probe)) {
        return At(cell).record;
      }
    }
    return nullptr;
  }

  std::int32_t Delete(const Record* probe) {
    const int bucket = FirstOf(probe);
    if (bucket == none) {
      return 0;
    }
    int before = none;
    int cell = bucket;
    while (cell != none && !Equals(At(cell).record, probe)) {
      before = cell;
      cell = At(cell).next;
    }
    if (cell == none) {
      return 0;
    }
    --count;
    const int follower = At(cell).next;
    if (cell == bucket && follower != none) {
      At(bucket) = At(follower);
      iterator = iterator == follower ? bucket : iterator;
      Release(follower);
      return 1;
    }
    if (iterator != none && At(iterator).record == probe) {
      Next();
    }
    if (cell == bucket) {
      At(bucket).record = nullptr;
    } else {
      At(before).next = At(cell).next;
      Release(cell);
    }
    return 1;
  }

  void Start() {
    highestBucket = highestBucket > bucketCount - 1 ? bucketCount - 1 : highestBucket;
    iteratorBucket = 0;
    iterator = none;
    Scan(0);
  }

  Record* Next() {
    if (iterator == none) {
      return nullptr;
    }
    Record* result = At(iterator).record;
    const int follower = At(iterator).next;
    if (follower != none && At(follower).record != nullptr) {
      iterator = follower;
      return result;
    }
    const int from = iteratorBucket + 1;
    Scan(from);
    if (iterator == none) {
      highestBucket = from < highestBucket ? from : highestBucket;
    }
    return result;
  }

  void Rehash() {
    std::vector<Record*> held;
    Start();
    while (iterator != none) {
      held.push_back(Next());
    }
    Create(count);
    for (Record* record : held) {
      Insert(record);
    }
  }

  void Clear() { Create(bucketCount - 1); }

  int bucketCount = 0;
  int count = 0;
  int highestBucket = 0;
  int iteratorBucket = 0;

 private:
  static constexpr int none = -1;

  struct Cell {
    int next = none;
    Record* record = nullptr;
  };

  Cell& At(int cell) { return cells[static_cast<std::size_t>(cell)]; }

  void Create(std::int32_t size) {
    bucketCount = (size + 1) % 2 == 1 ? size + 1 : size + 2;
    cells.assign(static_cast<std::size_t>(bucketCount), Cell{});
    freeCell = none;
    count = highestBucket = iteratorBucket = 0;
    iterator = none;
  }

  bool Equals(const Record* stored, const Record* other) const {
    return stored->id == other->id && (!byKind || stored->kind == other->kind);
  }

  int FirstOf(const Record* probe) {
    return probe->id < 0 || At(probe->id % bucketCount).record == nullptr ? none : probe->id % bucketCount;
  }

  int Take() {
    if (freeCell == none) {
      cells.push_back(Cell{});
      return static_cast<int>(cells.size()) - 1;
    }
    const int cell = freeCell;
    freeCell = At(cell).next;
    return cell;
  }

  void Release(int cell) {
    At(cell) = {freeCell, nullptr};
    freeCell = cell;
  }

  void Scan(int from) {
    iterator = none;
    for (int bucket = from; bucket <= highestBucket; ++bucket) {
      if (At(bucket).record != nullptr) {
        iterator = iteratorBucket = bucket;
        return;
      }
    }
    iteratorBucket = 0;
  }

  bool byKind;
  std::vector<Cell> cells;
  int freeCell = none;
  int iterator = none;
};

void CompareOverRandomOperations(std::uint32_t seed, std::int32_t size, std::int32_t ids, bool byKind) {
  std::mt19937 random(seed);
  HashTable table;
  HashInit(&table);
  HashCreate(&table, size, HashFirstInt, byKind ? CompareSecondInt : nullptr, nullptr, 0);
  PlainTable plain(size, byKind);
  std::vector<Record> records(400);
  for (Record& record : records) {
    record.id = static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(ids)) - 2;
    record.kind = static_cast<std::int32_t>(random() % 3);
  }
  for (int step = 0; step < 20000; ++step) {
    Record& record = records[random() % records.size()];
    Record probe = record;
    switch (random() % 16) {
      case 0:
        HashIterateStart(&table);
        plain.Start();
        break;
      case 1:
        if (random() % 100 == 0) {
          HashRehash(&table);
          plain.Rehash();
        } else if (random() % 100 == 0) {
          HashClear(&table);
          plain.Clear();
        }
        break;
      case 2:
      case 3:
        ASSERT_EQ(HashFind(&table, &probe), plain.Find(&probe));
        break;
      case 4:
        ASSERT_EQ(HashDelete(&table, &probe), plain.Delete(&probe));
        break;
      case 5:
      case 6:
        ASSERT_EQ(HashDelete(&table, &record), plain.Delete(&record));
        break;
      case 7:
      case 8:
      case 9:
      case 10:
      case 11:
        ASSERT_EQ(HashInsert(&table, &record), plain.Insert(&record));
        break;
      default:
        ASSERT_EQ(HashIterateNext(&table), plain.Next());
    }
    ASSERT_EQ(table.count, plain.count);
    ASSERT_EQ(table.bucketCount, plain.bucketCount);
    ASSERT_EQ(table.highestBucket, plain.highestBucket);
    ASSERT_EQ(table.iteratorBucket, plain.iteratorBucket);
  }
  HashRelease(&table);
}

TEST(HashTableRandom, EqualsAPlainTableWithManyBuckets) { CompareOverRandomOperations(1, 100, 300, false); }

TEST(HashTableRandom, EqualsAPlainTableWithLongChains) { CompareOverRandomOperations(2, 4, 200, false); }

TEST(HashTableRandom, EqualsAPlainTableWithOneBucket) { CompareOverRandomOperations(3, 0, 40, false); }

TEST(HashTableRandom, EqualsAPlainTableWithCompare) {
  CompareOverRandomOperations(4, 10, 60, true);
  CompareOverRandomOperations(5, 50, 200, true);
}

}  // namespace
}  // namespace btz
