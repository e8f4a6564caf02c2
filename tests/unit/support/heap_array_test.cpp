// An array on the heap: its entries are zero, its size is what was asked for.
#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

#include "support/heap_array.h"

namespace btz {
namespace {

TEST(HeapArrayOfNumbers, BeginsWithZeros) {
  const HeapArray<std::int32_t> numbers(1000);
  EXPECT_EQ(numbers.size(), 1000U);
  EXPECT_EQ(numbers.end() - numbers.begin(), 1000);
  for (const std::int32_t number : numbers) {
    EXPECT_EQ(number, 0);
  }
}

TEST(HeapArrayOfNumbers, KeepsWhatIsWritten) {
  HeapArray<double> numbers(3);
  double next = 1.5;
  for (double& number : numbers) {
    number = next;
    next += 1.0;
  }
  numbers[1] = -1.0;
  EXPECT_EQ(numbers[0], 1.5);
  EXPECT_EQ(numbers[1], -1.0);
  EXPECT_EQ(numbers[2], 3.5);
  const HeapArray<double>& same = numbers;
  EXPECT_EQ(same[2], 3.5);
  EXPECT_EQ(*same.begin(), 1.5);
}

TEST(HeapArrayOfNumbers, CanHoldNothing) {
  HeapArray<std::int32_t> numbers(0);
  EXPECT_EQ(numbers.size(), 0U);
  EXPECT_EQ(numbers.begin(), numbers.end());
}

TEST(HeapArrayOfPointers, BeginsWithNulls) {
  const HeapArray<const char*> pointers(2);
  EXPECT_EQ(pointers[0], nullptr);
  EXPECT_EQ(pointers[1], nullptr);
}

static_assert(!std::is_copy_constructible_v<HeapArray<double>> && !std::is_copy_assignable_v<HeapArray<double>>);

}  // namespace
}  // namespace btz
