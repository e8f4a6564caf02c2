// Key and equality callbacks of hash tables, on records laid out by hand.
#include "support/hash_keys.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace btz {
namespace {

constexpr std::int32_t lowest = INT32_MIN;

TEST(HashKeys, IntegerKeysTakeTheirField) {
  const std::int32_t record[] = {11, -22, 33, 44, 55};
  EXPECT_EQ(HashFirstInt(record, nullptr), 11);
  EXPECT_EQ(HashSecondInt(record, nullptr), -22);
  EXPECT_EQ(HashThirdInt(record, nullptr), 33);
  EXPECT_EQ(HashFifthInt(record, nullptr), 55);
}

TEST(HashKeys, PositiveIdTurnsWhatIsNotPositiveIntoZero) {
  const std::int32_t ids[][2] = {{7, 7}, {1, 1}, {0, 0}, {-1, 0}, {lowest, 0}, {INT32_MAX, INT32_MAX}};
  for (const auto& [id, key] : ids) {
    EXPECT_EQ(HashPositiveId(&id, nullptr), key) << id;
  }
}

TEST(HashKeys, RealKeysAreCutTowardsZero) {
  const double record[] = {1.9, 2.9, 3.9, -4.9};
  EXPECT_EQ(HashTruncatedThirdReal(record, nullptr), 3);
  EXPECT_EQ(HashTruncatedFourthReal(record, nullptr), -4);
  const double fraction[] = {0, 0, -0.99, 0.99};
  EXPECT_EQ(HashTruncatedThirdReal(fraction, nullptr), 0);
  EXPECT_EQ(HashTruncatedFourthReal(fraction, nullptr), 0);
}

TEST(HashKeys, RealsThatFitNoIntegerGiveTheLowestOne) {
  EXPECT_EQ(TruncateToInt(2147483647.0), 2147483647);
  EXPECT_EQ(TruncateToInt(2147483647.9), 2147483647);
  EXPECT_EQ(TruncateToInt(2147483648.0), lowest);
  EXPECT_EQ(TruncateToInt(-2147483648.0), lowest);
  EXPECT_EQ(TruncateToInt(-2147483648.9), lowest);
  EXPECT_EQ(TruncateToInt(-2147483647.9), -2147483647);
  EXPECT_EQ(TruncateToInt(-2147483649.0), lowest);
  EXPECT_EQ(TruncateToInt(1e300), lowest);
  EXPECT_EQ(TruncateToInt(-1e300), lowest);
  EXPECT_EQ(TruncateToInt(HUGE_VAL), lowest);
  EXPECT_EQ(TruncateToInt(-HUGE_VAL), lowest);
  EXPECT_EQ(TruncateToInt(std::numeric_limits<double>::quiet_NaN()), lowest);
}

TEST(HashKeys, PairMinIsSignedAndFreeOfOrder) {
  const std::int32_t pairs[][3] = {{3, 8, 3}, {8, 3, 3}, {5, 5, 5}, {-2, 7, -2}, {7, -2, -2}, {lowest, INT32_MAX, lowest}};
  for (const auto& pair : pairs) {
    EXPECT_EQ(HashPairMin(pair, nullptr), pair[2]);
  }
}

TEST(HashKeys, ValueIsTheLowHalfOfThePointerWithoutItsSign) {
  const auto key = [](std::uintptr_t value) { return HashValue(reinterpret_cast<const void*>(value), nullptr); };
  EXPECT_EQ(key(0), 0);
  EXPECT_EQ(key(1000), 1000);
  EXPECT_EQ(key(0x7FFFFFFF), 0x7FFFFFFF);
  EXPECT_EQ(key(0xFFFFFFFF), 1);
  EXPECT_EQ(key(0x80000001), 0x7FFFFFFF);
  EXPECT_EQ(key(0x7FFF00001000), 0x1000) << "0x7FFF 00001000: only the low 32 bits count";
  EXPECT_EQ(key(0x7F00FFFFFFF0), 16);
  EXPECT_LT(key(0x80000000), 0) << "no positive counterpart: refused by every table";
}

TEST(HashKeys, IndirectIdReadsBehindTheFirstPointer) {
  const std::int32_t object[] = {77, 1};
  struct {
    const std::int32_t* object;
    std::int32_t id;
  } const record{object, 5};
  EXPECT_EQ(HashIndirectId(&record, nullptr), 77);
}

TEST(HashKeys, SignedFirstIntComparesThreeWays) {
  const std::int32_t minus = -5, one = 1, alsoOne = 1, high = INT32_MAX;
  EXPECT_EQ(CompareSignedFirstInt(&one, &alsoOne), 0);
  EXPECT_EQ(CompareSignedFirstInt(&minus, &one), -1);
  EXPECT_EQ(CompareSignedFirstInt(&one, &minus), 1);
  EXPECT_EQ(CompareSignedFirstInt(&lowest, &high), -1) << "no overflow of a difference";
  EXPECT_EQ(CompareSignedFirstInt(&high, &lowest), 1);
}

TEST(HashKeys, SecondIntIgnoresTheFirst) {
  const std::int32_t a[] = {1, 9}, b[] = {2, 9}, c[] = {1, 8};
  EXPECT_EQ(CompareSecondInt(a, b), 0);
  EXPECT_NE(CompareSecondInt(a, c), 0);
}

TEST(HashKeys, RealsCompareExactly) {
  const double a[] = {1, 2, 0.1 + 0.2, 4}, b[] = {9, 9, 0.3, 4}, c[] = {0, 0, 0.1 + 0.2, 4.000000001};
  EXPECT_NE(CompareThirdReal(a, b), 0);
  EXPECT_EQ(CompareThirdReal(a, c), 0);
  EXPECT_EQ(CompareFourthReal(a, b), 0);
  EXPECT_NE(CompareFourthReal(a, c), 0);
  const double minusZero[] = {0, 0, -0.0, -0.0}, zero[] = {0, 0, 0.0, 0.0};
  EXPECT_EQ(CompareThirdReal(minusZero, zero), 0);
  EXPECT_EQ(CompareFourthReal(minusZero, zero), 0);
}

TEST(HashKeys, UnorderedPairsAreEqualInEitherOrder) {
  const std::int32_t pair[] = {3, 8}, same[] = {3, 8}, turned[] = {8, 3}, other[] = {3, 9}, twice[] = {3, 3};
  EXPECT_EQ(CompareUnorderedPair(pair, same), 0);
  EXPECT_EQ(CompareUnorderedPair(pair, turned), 0);
  EXPECT_NE(CompareUnorderedPair(pair, other), 0);
  EXPECT_NE(CompareUnorderedPair(pair, twice), 0);
  EXPECT_NE(CompareUnorderedPair(twice, pair), 0);
  EXPECT_EQ(CompareUnorderedPair(twice, twice), 0);
}

TEST(HashKeys, ThreeIntsMustAllAgreeInOrder) {
  const std::int32_t a[] = {1, 2, 3, 4}, b[] = {1, 2, 3, 9}, c[] = {1, 2, 4, 4}, d[] = {9, 2, 3, 4}, e[] = {2, 1, 3, 4};
  EXPECT_EQ(CompareThreeInts(a, b), 0);
  EXPECT_NE(CompareThreeInts(a, c), 0);
  EXPECT_NE(CompareThreeInts(a, d), 0);
  EXPECT_NE(CompareThreeInts(a, e), 0);
}

TEST(HashKeys, PointersAreEqualOnlyToThemselves) {
  const std::int32_t a = 1, b = 1;
  EXPECT_EQ(ComparePointer(&a, &a), 0);
  EXPECT_NE(ComparePointer(&a, &b), 0);
}

}  // namespace
}  // namespace btz
