// The set of ids: its order is that of a table which, above 100 ids, is rebuilt with as many buckets as it holds before each insertion.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <deque>
#include <numeric>
#include <random>
#include <vector>

#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "support/id_set.h"

namespace btz {
namespace {

using Ids = std::vector<std::int32_t>;

/// The table itself.
class RebuiltTable {
 public:
  RebuiltTable() {
    HashInit(&table);
    HashCreate(&table, 100, HashFirstInt, nullptr, nullptr, 0);
  }
  ~RebuiltTable() { HashRelease(&table); }
  RebuiltTable(const RebuiltTable&) = delete;
  RebuiltTable& operator=(const RebuiltTable&) = delete;

  void Insert(std::int32_t id) {
    if (HashCount(&table) > 100) {
      HashRehash(&table);
    }
    records.push_back(id);
    HashInsert(&table, &records.back());
  }

  Ids Order() {
    Ids ids;
    WalkTable<std::int32_t>(&table, [&](const std::int32_t* id) { ids.push_back(*id); });
    return ids;
  }

 private:
  HashTable table;
  std::deque<std::int32_t> records;
};

class IdSetTest : public testing::Test {
 protected:
  IdSetTest() {
    IdSetInit(&set);
    IdSetOpen(&set);
  }
  ~IdSetTest() override { IdSetClear(&set); }

  void Insert(const Ids& ids) {
    for (const std::int32_t id : ids) {
      IdSetInsert(&set, id);
    }
  }

  Ids Order() const {
    Ids ids;
    WalkIdSet(&set, [&](std::int32_t id) { ids.push_back(id); });
    EXPECT_EQ(IdSetCount(&set), ids.size());
    return ids;
  }

  IdSet set;
};

/// The ids from `first` to `last`.
Ids Range(std::int32_t first, std::int32_t last) {
  Ids ids(static_cast<std::size_t>(last - first + 1));
  std::iota(ids.begin(), ids.end(), first);
  return ids;
}

TEST_F(IdSetTest, OfAFewIdsIsInTheOrderOf101Buckets) {
  // Remainders by 101: 7, 1, 0, 1, 7.
  Insert({7, 102, 101, 1, 108});
  EXPECT_EQ(Order(), (Ids{101, 102, 1, 7, 108}));
}

TEST_F(IdSetTest, HoldsAnIdOnce) {
  Insert({5, 3, 5, 3, 3});
  EXPECT_EQ(Order(), (Ids{3, 5}));
}

TEST_F(IdSetTest, HoldsNoNegativeId) {
  Insert({-1, INT_MIN, 0});
  EXPECT_EQ(Order(), Ids{0});
}

TEST_F(IdSetTest, IsNotRebuiltBeforeItHolds101) {
  // 101 ids from 101 on are the buckets 0 to 100; in 103 buckets 103 would come first.
  Insert(Range(101, 201));
  EXPECT_EQ(Order(), Range(101, 201));
}

TEST_F(IdSetTest, IsRebuiltBeforeTheNextIdEvenIfItIsRefused) {
  // In 103 buckets: 103 to 201 have the remainders 0 to 98, 101 and 102 their own.
  Ids expected = Range(103, 201);
  expected.push_back(101);
  expected.push_back(102);
  for (const std::int32_t refused : {-5, 150}) {
    IdSetOpen(&set);
    Insert(Range(101, 201));
    IdSetInsert(&set, refused);
    EXPECT_EQ(Order(), expected) << refused;
  }
}

TEST_F(IdSetTest, ThatIsNotOpenTakesNothing) {
  IdSet closed;
  IdSetInit(&closed);
  IdSetInsert(&closed, 7);
  EXPECT_EQ(IdSetCount(&closed), 0U);
  IdSetClear(&set);
  IdSetInsert(&set, 7);
  EXPECT_EQ(Order(), Ids{}) << "cleared sets are closed";
}

TEST_F(IdSetTest, OpenedAnewIsEmpty) {
  Insert(Range(1, 150));
  IdSetOpen(&set);
  EXPECT_EQ(Order(), Ids{});
  Insert({9, 8});
  EXPECT_EQ(Order(), (Ids{8, 9})) << "the rebuilding is forgotten too";
}

TEST_F(IdSetTest, GivesTheOrderOfTheTableItStandsFor) {
  std::mt19937 random(4);
  const std::uint32_t spans[] = {150, 700, 20000, INT32_MAX};
  for (int round = 0; round < 40; ++round) {
    IdSetOpen(&set);
    RebuiltTable table;
    const std::uint32_t span = spans[round % 4];
    const std::uint32_t count = random() % 400;
    for (std::uint32_t i = 0; i < count; ++i) {
      const std::int32_t id = static_cast<std::int32_t>(random() % span) - static_cast<std::int32_t>(span / 10);
      IdSetInsert(&set, id);
      table.Insert(id);
      if (i % 50 == 0 || (i > 98 && i < 106)) {
        ASSERT_EQ(Order(), table.Order()) << "round " << round << ", id " << i;
      }
    }
    ASSERT_EQ(Order(), table.Order()) << round;
  }
}

TEST_F(IdSetTest, OfMultiplesOfOneNumberKeepsTheTablesOrder) {
  // Many ids fall into the same buckets through several rebuildings.
  for (const std::int32_t step : {101, 103, 101 * 103, 105 * 103, 3, 2 * 3 * 5 * 7 * 11 * 13}) {
    IdSetOpen(&set);
    RebuiltTable table;
    for (std::int32_t i = 200; i > 0; --i) {
      IdSetInsert(&set, i * step);
      table.Insert(i * step);
      ASSERT_EQ(Order(), table.Order()) << step << " at " << i;
    }
  }
}

}  // namespace
}  // namespace btz
