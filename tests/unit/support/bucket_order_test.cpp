// Records brought into the order of a table that they were never in: as a real table gives them.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "support/bucket_order.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz {
namespace {

/// A record of a table by id.
struct Numbered {
  std::int32_t id;
  std::int32_t number;
};

using Numbers = std::vector<std::int32_t>;

/// The numbers of the records in bucket order.
Numbers Sorted(std::vector<Numbered>& records, std::int32_t bucketCount = tableBucketCount) {
  HeapArray<Numbered*> order(records.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    order[i] = &records[i];
  }
  SortByBucket(&order, bucketCount, [](const Numbered* record) { return record->id; });
  Numbers numbers;
  for (const Numbered* record : order) {
    numbers.push_back(record->number);
  }
  return numbers;
}

/// The numbers of the records as a table of `size` gives them.
Numbers OfTable(std::vector<Numbered>& records, std::int32_t size) {
  HashTable table;
  HashInit(&table);
  HashCreate(&table, size, HashFirstInt, nullptr, nullptr, 1);
  for (Numbered& record : records) {
    EXPECT_EQ(HashInsert(&table, &record), 1);
  }
  Numbers numbers;
  WalkTable<Numbered>(&table, [&](Numbered* record) { numbers.push_back(record->number); });
  HashRelease(&table);
  return numbers;
}

TEST(BucketOrder, IsByRemainderAndThenByInsertion) {
  // Remainders by 1001: 9, 1, 0, 0, 1, 9.
  std::vector<Numbered> records = {{9, 1}, {1, 2}, {2002, 3}, {0, 4}, {1002, 5}, {9, 6}};
  EXPECT_EQ(Sorted(records), (Numbers{3, 4, 2, 5, 1, 6}));
}

TEST(BucketOrder, WithOneBucketIsTheOrderOfInsertion) {
  std::vector<Numbered> records = {{5, 1}, {3, 2}, {4, 3}};
  EXPECT_EQ(Sorted(records, 1), (Numbers{1, 2, 3}));
}

TEST(BucketOrder, OfNothingIsNothing) {
  std::vector<Numbered> records;
  EXPECT_EQ(Sorted(records), Numbers{});
}

TEST(BucketOrder, OfTheGreatestId) {
  // 2147483647 = 2145338 * 1001 + 309.
  std::vector<Numbered> records = {{310, 1}, {INT32_MAX, 2}, {309, 3}, {308, 4}};
  EXPECT_EQ(Sorted(records), (Numbers{4, 2, 3, 1}));
}

TEST(BucketOrder, IsThatOfATableOfAThousand) {
  std::mt19937 random(9);
  for (int round = 0; round < 50; ++round) {
    std::vector<Numbered> records;
    const std::uint32_t highest = round % 2 == 0 ? 5000 : INT32_MAX;
    const std::uint32_t count = random() % 4000;
    for (std::uint32_t i = 0; i < count; ++i) {
      records.push_back({static_cast<std::int32_t>(random() % highest), static_cast<std::int32_t>(i)});
    }
    EXPECT_EQ(Sorted(records), OfTable(records, 1000)) << round;
  }
}

}  // namespace
}  // namespace btz
