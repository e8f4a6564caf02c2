// The pooled list: where the cursor stands, where an appended value goes, what a removal does to a walk, and which cells are used again.
#include "support/pooled_list.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "support/block_pool.h"

namespace btz {
namespace {

static_assert(sizeof(PooledList) == 48);
static_assert(sizeof(ListCell) == 16);

class PooledListTest : public ::testing::Test {
 protected:
  PooledListTest() {
    ListCellPoolInit(&pool);
    ListInit(&list, &pool);
  }

  ~PooledListTest() override { ListCellPoolReset(&pool); }

  void Append(std::initializer_list<int*> values) {
    for (int* value : values) {
      ListAppend(&list, value);
    }
  }

  /// The values by their links alone, without touching the cursor.
  std::vector<void*> Values() const {
    std::vector<void*> values;
    for (const ListCell* cell = list.next; cell != &list; cell = cell->next) {
      values.push_back(cell->value);
    }
    return values;
  }

  static std::vector<void*> Expect(std::initializer_list<int*> values) { return {values.begin(), values.end()}; }

  ListCellPool pool;
  PooledList list;
  int a = 1, b = 2, c = 3, d = 4, e = 5;
};

TEST_F(PooledListTest, InitMakesTheListItsOwnSentinel) {
  EXPECT_EQ(list.next, &list);
  EXPECT_EQ(list.cursor, &list);
  EXPECT_EQ(list.previous, &list);
  EXPECT_EQ(list.value, nullptr);
  EXPECT_EQ(list.pool, &pool);
  EXPECT_EQ(list.stay, 0);
  EXPECT_EQ(list.size, 0);
}

TEST_F(PooledListTest, AnEmptyListGivesNullAgainAndAgain) {
  EXPECT_EQ(ListNext(&list), nullptr);
  EXPECT_EQ(ListNext(&list), nullptr);
  EXPECT_EQ(list.cursor, &list);
}

TEST_F(PooledListTest, AppendsAfterInitKeepTheirOrder) {
  Append({&a, &b, &c});
  EXPECT_EQ(Values(), Expect({&a, &b, &c}));
  EXPECT_EQ(list.size, 3);
}

TEST_F(PooledListTest, AppendLeavesTheCursorOnTheNewCellAndPreviousOnTheOldOne) {
  Append({&a});
  ListCell* first = list.cursor;
  EXPECT_EQ(first->value, &a);
  EXPECT_EQ(list.previous, &list);
  Append({&b});
  EXPECT_EQ(list.cursor->value, &b);
  EXPECT_EQ(list.previous, first);
}

TEST_F(PooledListTest, AppendAfterRewindGoesToTheHead) {
  Append({&a, &b});
  ListRewind(&list);
  Append({&c});
  EXPECT_EQ(Values(), Expect({&c, &a, &b}));
  Append({&d});
  EXPECT_EQ(Values(), Expect({&c, &d, &a, &b}));
}

TEST_F(PooledListTest, AppendAfterAFinishedWalkGoesToTheHead) {
  Append({&a, &b});
  ListRewind(&list);
  while (ListNext(&list) != nullptr) {
  }
  Append({&c});
  EXPECT_EQ(Values(), Expect({&c, &a, &b}));
}

TEST_F(PooledListTest, AppendDuringAWalkGoesBehindTheCurrentCellAndTheWalkMovesPastIt) {
  Append({&a, &b, &c});
  ListRewind(&list);
  ListNext(&list);
  EXPECT_EQ(ListNext(&list), &b);
  Append({&d});
  EXPECT_EQ(Values(), Expect({&a, &b, &d, &c}));
  EXPECT_EQ(list.cursor->value, &d);
  EXPECT_EQ(ListNext(&list), &c);
  EXPECT_EQ(ListNext(&list), nullptr);
}

TEST_F(PooledListTest, TheLastCellPointsToTheList) {
  Append({&a, &b});
  EXPECT_EQ(list.cursor->next, &list);
}

TEST_F(PooledListTest, TheStepBehindTheEndStartsAtTheFirstCellAgain) {
  Append({&a, &b});
  ListRewind(&list);
  EXPECT_EQ(ListNext(&list), &a);
  EXPECT_EQ(ListNext(&list), &b);
  EXPECT_EQ(ListNext(&list), nullptr);
  EXPECT_EQ(list.cursor, &list);
  EXPECT_EQ(ListNext(&list), &a);
}

TEST_F(PooledListTest, ANullValueIsHeldButEndsAWalk) {
  Append({&a, nullptr, &b});
  EXPECT_EQ(list.size, 3);
  ListRewind(&list);
  EXPECT_EQ(ListNext(&list), &a);
  EXPECT_EQ(ListNext(&list), nullptr);
  EXPECT_NE(list.cursor, &list);
  EXPECT_EQ(ListNext(&list), &b);
}

TEST_F(PooledListTest, RewindClearsStay) {
  Append({&a, &b});
  ListRewind(&list);
  ListNext(&list);
  ListRemoveCurrent(&list, &a);
  EXPECT_EQ(list.stay, 1);
  ListRewind(&list);
  EXPECT_EQ(list.stay, 0);
  EXPECT_EQ(list.cursor, &list);
  EXPECT_EQ(list.previous, &list);
}

TEST_F(PooledListTest, RemoveRefusesAnotherValue) {
  Append({&a, &b});
  EXPECT_EQ(ListRemoveCurrent(&list, &a), -1) << "the cursor stands on b";
  EXPECT_EQ(list.size, 2);
  EXPECT_EQ(list.stay, 0);
  EXPECT_EQ(Values(), Expect({&a, &b}));
}

TEST_F(PooledListTest, RemoveRefusesTheListItself) {
  Append({&a});
  ListRewind(&list);
  EXPECT_EQ(ListRemoveCurrent(&list, nullptr), -1);
  EXPECT_EQ(Values(), Expect({&a}));
  EXPECT_EQ(list.size, 1);
}

TEST_F(PooledListTest, AWalkSeesTheCellBehindARemovedOneWithoutSkippingIt) {
  Append({&a, &b, &c});
  ListRewind(&list);
  ListNext(&list);
  EXPECT_EQ(ListNext(&list), &b);
  EXPECT_EQ(ListRemoveCurrent(&list, &b), 0);
  EXPECT_EQ(list.size, 2);
  EXPECT_EQ(list.stay, 1);
  EXPECT_EQ(ListNext(&list), &c);
  EXPECT_EQ(list.stay, 0);
  EXPECT_EQ(ListNext(&list), nullptr);
  EXPECT_EQ(Values(), Expect({&a, &c}));
}

TEST_F(PooledListTest, RemovingTheLastValueEndsTheWalk) {
  Append({&a, &b});
  ListRewind(&list);
  ListNext(&list);
  ListNext(&list);
  EXPECT_EQ(ListRemoveCurrent(&list, &b), 0);
  EXPECT_EQ(ListNext(&list), nullptr);
  EXPECT_EQ(ListNext(&list), &a);
}

TEST_F(PooledListTest, RemovingEveryValueInOneWalkLeavesTheListUsable) {
  Append({&a, &b, &c, &d});
  ListRewind(&list);
  std::vector<void*> seen;
  for (void* value = ListNext(&list); value != nullptr; value = ListNext(&list)) {
    seen.push_back(value);
    EXPECT_EQ(ListRemoveCurrent(&list, value), 0);
  }
  EXPECT_EQ(seen, Expect({&a, &b, &c, &d}));
  EXPECT_EQ(list.size, 0);
  EXPECT_EQ(list.next, &list);
  ListRewind(&list);
  Append({&e, &a});
  EXPECT_EQ(Values(), Expect({&e, &a}));
}

TEST_F(PooledListTest, TwoRemovalsInARowTakeNeighbours) {
  Append({&a, &b, &c, &d});
  ListRewind(&list);
  ListNext(&list);
  ListNext(&list);
  EXPECT_EQ(ListRemoveCurrent(&list, &b), 0);
  EXPECT_EQ(ListRemoveCurrent(&list, &c), 0) << "the cursor has moved to c";
  EXPECT_EQ(ListNext(&list), &d);
  EXPECT_EQ(Values(), Expect({&a, &d}));
}

TEST_F(PooledListTest, AppendKeepsStay) {
  Append({&a, &b, &c});
  ListRewind(&list);
  ListNext(&list);
  ListRemoveCurrent(&list, &a);
  Append({&d});
  EXPECT_EQ(Values(), Expect({&b, &d, &c})) << "the cursor stood on b";
  EXPECT_EQ(list.stay, 1);
  EXPECT_EQ(ListNext(&list), &d);
  EXPECT_EQ(ListNext(&list), &c);
}

TEST_F(PooledListTest, RemoveClearsTheCellAndPutsItOnTheStack) {
  Append({&a, &b});
  ListCell* second = list.cursor;
  ListRemoveCurrent(&list, &b);
  EXPECT_EQ(pool.freeCells, second);
  EXPECT_EQ(second->value, nullptr);
  EXPECT_EQ(second->next, nullptr);
}

TEST_F(PooledListTest, AppendTakesAReleasedCellBeforeNewMemory) {
  Append({&a, &b});
  EXPECT_EQ(pool.blocks.requestedBytes, 32u);
  ListCell* second = list.cursor;
  ListRemoveCurrent(&list, &b);
  ListRewind(&list);
  Append({&c});
  EXPECT_EQ(list.cursor, second);
  EXPECT_EQ(pool.freeCells, nullptr);
  EXPECT_EQ(pool.blocks.requestedBytes, 32u);
  Append({&d});
  EXPECT_EQ(pool.blocks.requestedBytes, 48u);
}

TEST_F(PooledListTest, ClearInTheMiddleOfAWalkLeavesAnEmptyListWithTheCursorOnIt) {
  Append({&a, &b, &c});
  ListRewind(&list);
  ListNext(&list);
  ListNext(&list);
  ListRemoveCurrent(&list, &b);
  ListClear(&list);
  EXPECT_EQ(list.size, 0);
  EXPECT_EQ(list.next, &list);
  EXPECT_EQ(list.cursor, &list);
  EXPECT_EQ(list.previous, &list);
  EXPECT_EQ(list.stay, 0);
  EXPECT_EQ(ListNext(&list), nullptr);
}

TEST_F(PooledListTest, ClearGivesTheCellsToTheNextListOfThePool) {
  Append({&a, &b, &c});
  ListCell* const first = list.next;
  ListCell* const last = list.cursor;
  ListClear(&list);
  // Popped from the front, so the last cell lies on top of the stack.
  EXPECT_EQ(pool.freeCells, last);
  EXPECT_EQ(first->next, nullptr);
  for (const ListCell* cell = pool.freeCells; cell != nullptr; cell = cell->next) {
    EXPECT_EQ(cell->value, nullptr);
  }
  PooledList second;
  ListInit(&second, &pool);
  for (int i = 0; i < 3; ++i) {
    ListAppend(&second, &d);
  }
  EXPECT_EQ(pool.blocks.requestedBytes, 48u);
  EXPECT_EQ(pool.freeCells, nullptr);
  EXPECT_EQ(second.size, 3);
}

TEST_F(PooledListTest, ClearLeavesTheValuesAlone) {
  Append({&a, &b});
  ListClear(&list);
  EXPECT_EQ(a, 1);
  EXPECT_EQ(b, 2);
}

TEST_F(PooledListTest, DestroyWithoutFlagKeepsTheListsMemory) {
  Append({&a});
  EXPECT_EQ(ListDestroy(&list, 0), &list);
  EXPECT_EQ(list.size, 0);
  EXPECT_EQ(list.next, &list);
  Append({&b});
  EXPECT_EQ(Values(), Expect({&b}));
}

TEST_F(PooledListTest, DestroyWithTheFlagFreesAHeapMadeList) {
  PooledList* made = NewList(&pool);
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->next, made);
  EXPECT_EQ(made->pool, &pool);
  ListAppend(made, &a);
  EXPECT_EQ(ListDestroy(made, 1), made) << "only the address, to memory that is gone";
  EXPECT_NE(pool.freeCells, nullptr);
}

TEST_F(PooledListTest, OnlyBitZeroOfTheFlagsFrees) {
  Append({&a});
  EXPECT_EQ(ListDestroy(&list, 2), &list);
  EXPECT_EQ(list.size, 0);
}

TEST_F(PooledListTest, AListWithoutAPoolIsWalkedButNotExtended) {
  ListCell cells[2];
  PooledList foreign;
  ListInit(&foreign, nullptr);
  foreign.next = &cells[0];
  cells[0] = {&cells[1], &a};
  cells[1] = {&foreign, &b};
  foreign.size = 2;
  EXPECT_EQ(ListNext(&foreign), &a);
  ListAppend(&foreign, &c);
  EXPECT_EQ(foreign.size, 2);
  EXPECT_EQ(ListNext(&foreign), &b);
  EXPECT_EQ(ListNext(&foreign), nullptr);
}

TEST_F(PooledListTest, WalkListVisitsEveryValueAndAcceptsNull) {
  Append({&a, &b, &c});
  std::vector<void*> seen;
  WalkList<int>(&list, [&](int* value) { seen.push_back(value); });
  EXPECT_EQ(seen, Expect({&a, &b, &c}));
  WalkList<int>(nullptr, [&](int*) { FAIL(); });
}

TEST_F(PooledListTest, ListsOfOnePoolDoNotDisturbEachOther) {
  PooledList second;
  ListInit(&second, &pool);
  for (int i = 0; i < 300; ++i) {
    ListAppend(&list, &a);
    ListAppend(&second, &b);
  }
  EXPECT_EQ(list.size, 300);
  EXPECT_EQ(second.size, 300);
  WalkList<int>(&list, [&](int* value) { EXPECT_EQ(value, &a); });
  WalkList<int>(&second, [&](int* value) { EXPECT_EQ(value, &b); });
  EXPECT_EQ(pool.blocks.requestedBytes, 600u * 16u);
}

TEST(ListPool, IsReadyFromTheStartWithTheUsualBlockSize) {
  EXPECT_EQ(ListPool.blocks.blockSize, 4084u);
  PooledList* list = NewList(&ListPool);
  int value = 0;
  ListAppend(list, &value);
  EXPECT_EQ(list->size, 1);
  ListDestroy(list, 1);
}

/// The list as a plain row of values with a place for the cursor (-1: before the first) and the flag.
class PlainList {
 public:
  void Rewind() {
    cursor = -1;
    stay = false;
  }

  void* Next() {
    if (stay) {
      stay = false;
    } else {
      cursor = cursor + 1 == static_cast<std::ptrdiff_t>(values.size()) ? -1 : cursor + 1;
    }
    return Current();
  }

  void Append(void* value) {
    values.insert(values.begin() + (cursor + 1), value);
    ++cursor;
  }

  int Remove(const void* value) {
    if (cursor < 0 || values[static_cast<std::size_t>(cursor)] != value) {
      return -1;
    }
    values.erase(values.begin() + cursor);
    cursor = cursor == static_cast<std::ptrdiff_t>(values.size()) ? -1 : cursor;
    stay = true;
    return 0;
  }

  void Clear() {
    values.clear();
    Rewind();
  }

  void* Current() const { return cursor < 0 ? nullptr : values[static_cast<std::size_t>(cursor)]; }

  std::vector<void*> values;

 private:
  std::ptrdiff_t cursor = -1;
  bool stay = false;
};

TEST_F(PooledListTest, BehavesLikeAPlainRowOverRandomOperations) {
  std::mt19937 random(20240611);
  PlainList plain;
  int pieces[8] = {};
  for (int step = 0; step < 200000; ++step) {
    void* value = random() % 9 == 8 ? nullptr : &pieces[random() % 8];
    switch (random() % 16) {
      case 0:
        if (random() % 200 == 0) {
          ListClear(&list);
          plain.Clear();
        }
        break;
      case 1:
        if (random() % 4 == 0) {
          ListRewind(&list);
          plain.Rewind();
        }
        break;
      case 2:
      case 3:
      case 4:
      case 5:
        ListAppend(&list, value);
        plain.Append(value);
        break;
      case 6:
      case 7:
      case 8:
      case 9:
        value = random() % 8 == 0 ? value : plain.Current();
        ASSERT_EQ(ListRemoveCurrent(&list, value), plain.Remove(value));
        break;
      default:
        ASSERT_EQ(ListNext(&list), plain.Next());
    }
    ASSERT_EQ(static_cast<std::size_t>(list.size), plain.values.size());
    if (step % 64 == 0) {
      ASSERT_EQ(Values(), plain.values);
    }
  }
}

}  // namespace
}  // namespace btz
