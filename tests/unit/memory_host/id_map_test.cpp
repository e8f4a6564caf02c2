// The id look-up and the record storage of the in-memory host, compared with the plain way.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "memory_host/arena.h"

namespace btz::memory {
namespace {

struct Record {
  std::int32_t id;
  double filler[3];
};

void FillAndCompare(const std::vector<std::int32_t>& ids) {
  Arena<Record> records;
  IdMap<Record> map;
  std::map<std::int32_t, Record*> plain;
  for (const std::int32_t id : ids) {
    EXPECT_EQ(map.Find(id) == nullptr, plain.count(id) == 0);
    if (plain.count(id) == 0) {
      Record& record = records.Add();
      record.id = id;
      map.Insert(id, &record);
      plain[id] = &record;
    }
  }
  for (const auto& [id, record] : plain) {
    ASSERT_EQ(map.Find(id), record);
    ASSERT_EQ(map.Find(id + 1) != nullptr, plain.count(id + 1) != 0);
  }
}

TEST(IdMap, FindsRandomIds) {
  std::mt19937 random(7);
  std::vector<std::int32_t> ids(20000);
  for (std::int32_t& id : ids) {
    id = static_cast<std::int32_t>(random() % 30000) + 1;
  }
  FillAndCompare(ids);
}

TEST(IdMap, FindsIdsThatShareTheirLowBits) {
  std::vector<std::int32_t> ids;
  for (std::int32_t i = 1; i < 30000; ++i) {
    ids.push_back(i * 65536);
  }
  FillAndCompare(ids);
}

TEST(IdMap, FindsRunsThatFallOnEachOther) {
  std::vector<std::int32_t> ids;
  for (std::int32_t run = 0; run < 8; ++run) {
    for (std::int32_t i = 1; i <= 5000; ++i) {
      ids.push_back((run << 20) + i);
    }
  }
  FillAndCompare(ids);
}

TEST(IdMap, KnowsNoIdBelowOne) {
  IdMap<Record> map;
  EXPECT_EQ(map.Find(5), nullptr);
  map.Reserve(100);
  EXPECT_EQ(map.Find(0), nullptr);
  EXPECT_EQ(map.Find(-1), nullptr);
}

TEST(Arena, KnowsItsOwnRecords) {
  Arena<Record> arena;
  Arena<Record> other;
  const Record foreign{};
  EXPECT_FALSE(arena.Owns(&foreign));
  std::vector<Record*> made;
  for (int i = 0; i < 10000; ++i) {
    made.push_back(&arena.Add());
    other.Add();
  }
  for (std::size_t i = 0; i < made.size(); ++i) {
    ASSERT_TRUE(arena.Owns(made[i]));
    ASSERT_FALSE(other.Owns(made[i]));
    ASSERT_EQ(&arena[i], made[i]);
  }
  EXPECT_FALSE(arena.Owns(&foreign));
  EXPECT_FALSE(arena.Owns(made.back() + 1)) << "not handed out yet";
  EXPECT_FALSE(arena.Owns(reinterpret_cast<const char*>(made[5]) + 4)) << "inside a record";
}

TEST(Arena, GivesZeroedRecords) {
  Arena<Record> arena;
  EXPECT_EQ(arena.Add().filler[2], 0.0);
}

TEST(ArrayArena, GivesNullsInARow) {
  ArrayArena<Record*> arena;
  Record one{};
  Record** first = arena.Take(3);
  first[0] = first[1] = first[2] = &one;
  Record** second = arena.Take(40000);
  EXPECT_EQ(second[0], nullptr);
  EXPECT_EQ(second[39999], nullptr);
  EXPECT_EQ(first[2], &one);
}

}  // namespace
}  // namespace btz::memory
