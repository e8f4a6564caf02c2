// A list of records with an index by id: both orders are those of a plain search through all records.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

#include "support/indexed_list.h"

namespace btz {
namespace {

using Numbers = std::vector<std::size_t>;

class IndexedListTest : public ::testing::Test {
 protected:
  IndexedListTest() { IndexedListInit(&list); }
  ~IndexedListTest() override { IndexedListClear(&list); }

  /// Adds a record to the list and to the plain one.
  void Append(std::int32_t id) {
    plain.emplace_back(id, plain.size() + 1);
    IndexedListAppend(&list, id, Address(plain.size()));
  }

  /// An address that stands for a record's number; nobody looks behind it.
  static void* Address(std::size_t number) { return reinterpret_cast<void*>(number); }

  static Numbers Collect(const IndexedCell* cell, IndexedCell* IndexedCell::*next) {
    Numbers numbers;
    for (; cell != nullptr; cell = cell->*next) {
      numbers.push_back(reinterpret_cast<std::size_t>(cell->record));
    }
    return numbers;
  }

  Numbers All() const { return Collect(list.first, &IndexedCell::next); }
  Numbers Of(std::int32_t id) const { return Collect(IndexedListFind(&list, id), &IndexedCell::nextOfId); }

  Numbers PlainOf(std::int32_t id) const {
    Numbers numbers;
    for (const auto& [plainId, number] : plain) {
      if (plainId == id) {
        numbers.push_back(number);
      }
    }
    return numbers;
  }

  IndexedList list;
  std::vector<std::pair<std::int32_t, std::size_t>> plain;
};

TEST_F(IndexedListTest, AnEmptyListHoldsNothing) {
  EXPECT_EQ(list.size, 0);
  EXPECT_EQ(list.first, nullptr);
  EXPECT_EQ(IndexedListFind(&list, 0), nullptr);
  EXPECT_EQ(IndexedListFind(&list, 7), nullptr);
}

TEST_F(IndexedListTest, RecordsOfAnIdKeepTheirOrder) {
  for (const std::int32_t id : {7, 8, 7, 0, -7, 7, 0}) {
    Append(id);
  }
  EXPECT_EQ(list.size, 7);
  EXPECT_EQ(All(), (Numbers{1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(Of(7), (Numbers{1, 3, 6}));
  EXPECT_EQ(Of(8), (Numbers{2}));
  EXPECT_EQ(Of(0), (Numbers{4, 7}));
  EXPECT_EQ(Of(-7), (Numbers{5}));
  EXPECT_EQ(Of(9), Numbers{});
}

TEST_F(IndexedListTest, AnyIntegerIsAnId) {
  for (const std::int32_t id : {INT_MAX, INT_MIN, -1, 0, 1}) {
    EXPECT_EQ(Of(id), Numbers{}) << id;
    Append(id);
    EXPECT_EQ(Of(id), Numbers{plain.size()}) << id;
  }
}

TEST_F(IndexedListTest, FindsWhatASearchFindsOnRandomIds) {
  std::mt19937 random(5);
  for (const std::uint32_t range : {3u, 100u, 5000u}) {
    for (int i = 0; i < 2000; ++i) {
      Append(static_cast<std::int32_t>(random() % range) - static_cast<std::int32_t>(range / 2));
    }
    for (int i = 0; i < 300; ++i) {
      const std::int32_t id = static_cast<std::int32_t>(random() % (2 * range)) - static_cast<std::int32_t>(range);
      ASSERT_EQ(Of(id), PlainOf(id)) << id;
    }
  }
  EXPECT_EQ(list.size, 6000);
  EXPECT_EQ(All().size(), 6000u);
  EXPECT_EQ(All().back(), 6000u);
}

TEST_F(IndexedListTest, ManyIdsOfACommonStep) {
  for (const std::int32_t step : {1, 64, 65536, 1000000}) {
    for (std::int32_t i = 1; i <= 2000; ++i) {
      IndexedListAppend(&list, i * step, Address(static_cast<std::size_t>(i)));
    }
    for (std::int32_t i = 1; i <= 2000; ++i) {
      ASSERT_EQ(Of(i * step), Numbers{static_cast<std::size_t>(i)}) << "step " << step;
    }
    IndexedListClear(&list);
  }
}

TEST_F(IndexedListTest, ManyIdsArePlacedAtEvenCost) {
  constexpr std::int32_t count = 300000;
  for (std::int32_t id = 0; id < count; ++id) {
    IndexedListAppend(&list, id, Address(static_cast<std::size_t>(id) + 1));
  }
  EXPECT_EQ(list.size, count);
  for (std::int32_t id = 0; id < count; ++id) {
    const IndexedCell* cell = IndexedListFind(&list, id);
    ASSERT_TRUE(cell != nullptr && cell->record == Address(static_cast<std::size_t>(id) + 1) && cell->nextOfId == nullptr) << id;
  }
  EXPECT_EQ(IndexedListFind(&list, count), nullptr);
}

TEST_F(IndexedListTest, AClearedListIsEmptyAndUsable) {
  Append(7);
  Append(7);
  IndexedListClear(&list);
  EXPECT_EQ(list.size, 0);
  EXPECT_EQ(list.first, nullptr);
  EXPECT_EQ(IndexedListFind(&list, 7), nullptr);
  plain.clear();
  Append(8);
  EXPECT_EQ(All(), Numbers{1});
  EXPECT_EQ(Of(8), Numbers{1});
  EXPECT_EQ(Of(7), Numbers{});
}

TEST_F(IndexedListTest, AWalkVisitsWhatItAppends) {
  Append(1);
  Numbers visited;
  WalkIndexedList<void>(&list, [&](void* record) {
    visited.push_back(reinterpret_cast<std::size_t>(record));
    if (visited.size() < 4) {
      Append(1);
    }
  });
  EXPECT_EQ(visited, (Numbers{1, 2, 3, 4}));
  EXPECT_EQ(Of(1), (Numbers{1, 2, 3, 4}));
}

TEST_F(IndexedListTest, APrependedRecordIsTheFirstInBothOrders) {
  IndexedListPrepend(&list, 7, Address(1));
  IndexedListPrepend(&list, 8, Address(2));
  IndexedListPrepend(&list, 7, Address(3));
  EXPECT_EQ(All(), (Numbers{3, 2, 1}));
  EXPECT_EQ(Of(7), (Numbers{3, 1}));
  EXPECT_EQ(Of(8), (Numbers{2}));
  EXPECT_EQ(list.size, 3);
  EXPECT_EQ(list.last->record, Address(1));
}

TEST_F(IndexedListTest, RecordsMayComeInAtBothEnds) {
  IndexedListAppend(&list, 7, Address(1));
  IndexedListPrepend(&list, 7, Address(2));
  IndexedListAppend(&list, 7, Address(3));
  IndexedListPrepend(&list, 8, Address(4));
  EXPECT_EQ(All(), (Numbers{4, 2, 1, 3}));
  EXPECT_EQ(Of(7), (Numbers{2, 1, 3}));
}

TEST_F(IndexedListTest, PairsAreFoundByBothNumbers) {
  std::size_t number = 0;
  const std::vector<std::int32_t> parts = {INT_MIN, -1, 0, 1, 1 << 20, INT_MAX};
  for (const std::int32_t first : parts) {
    for (const std::int32_t second : parts) {
      IndexedListPrepend(&list, PairId(first, second), Address(++number));
    }
  }
  number = 0;
  for (const std::int32_t first : parts) {
    for (const std::int32_t second : parts) {
      const IndexedCell* cell = IndexedListFind(&list, PairId(first, second));
      ASSERT_NE(cell, nullptr);
      EXPECT_EQ(cell->record, Address(++number));
      EXPECT_EQ(cell->nextOfId, nullptr);
    }
  }
}

}  // namespace
}  // namespace btz
