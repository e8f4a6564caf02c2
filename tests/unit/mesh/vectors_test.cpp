// The vector operations whose rounding other code relies on: limits of normalisation, order of additions, degrees.
#include "mesh/vectors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace btz {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Cross, GivesTheThirdAxisOfTheFirstTwo) {
  EXPECT_EQ(Cross({1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}), (Vector{0.0, 0.0, 1.0}));
  EXPECT_EQ(Cross({0.0, 1.0, 0.0}, {1.0, 0.0, 0.0}), (Vector{0.0, 0.0, -1.0}));
  EXPECT_EQ(Cross({1.0, 2.0, 3.0}, {4.0, 5.0, 7.0}), (Vector{-1.0, 5.0, -3.0}));
}

TEST(NormaliseIfFinite, DividesByTheLength) {
  EXPECT_EQ(NormaliseIfFinite({0.0, 3.0, -4.0}), (Vector{0.0, 3.0 / 5.0, -4.0 / 5.0}));
  EXPECT_EQ(NormaliseIfFinite({2.0, 3.0, 6.0}), (Vector{2.0 / 7.0, 3.0 / 7.0, 6.0 / 7.0}));
}

TEST(NormaliseIfFinite, LeavesTheZeroVector) { EXPECT_EQ(NormaliseIfFinite({0.0, 0.0, 0.0}), (Vector{0.0, 0.0, 0.0})); }

TEST(NormaliseIfFinite, KeepsTheSignOfZeros) {
  const Vector unit = NormaliseIfFinite({-0.0, 0.0, -2.0});
  EXPECT_TRUE(std::signbit(unit[0]));
  EXPECT_FALSE(std::signbit(unit[1]));
  EXPECT_EQ(unit[2], -1.0);
}

TEST(NormaliseIfFinite, TakesASquaredLengthFromTheSmallestNormalNumberOn) {
  // 2^-511 squared is the smallest normal number, 2^-1022.
  EXPECT_EQ(NormaliseIfFinite({0.0, 0x1p-511, 0.0}), (Vector{0.0, 1.0, 0.0}));
  EXPECT_EQ(NormaliseIfFinite({0.0, 0x1p-512, 0.0}), (Vector{0.0, 0x1p-512, 0.0}));
  EXPECT_EQ(NormaliseIfFinite({1e-170, -2e-170, 0.0}), (Vector{1e-170, -2e-170, 0.0}));
}

TEST(NormaliseIfFinite, TakesASquaredLengthUpToTheLargestNumber) {
  EXPECT_EQ(NormaliseIfFinite({0.0, 0.0, 0x1p511}), (Vector{0.0, 0.0, 1.0}));
  // The squares add up to the largest number itself.
  constexpr double longest = 0x1.fffffffffffffp+511;
  constexpr double rest = 0x1.6a09e667f3bcdp+485;
  ASSERT_EQ(longest * longest + rest * rest, std::numeric_limits<double>::max());
  EXPECT_EQ(NormaliseIfFinite({longest, rest, 0.0}), (Vector{1.0, rest / longest, 0.0}));
  EXPECT_EQ(NormaliseIfFinite({0.0, 0.0, 0x1p512}), (Vector{0.0, 0.0, 0x1p512}));
  EXPECT_EQ(NormaliseIfFinite({infinity, 0.0, 1.0}), (Vector{infinity, 0.0, 1.0}));
}

TEST(NormaliseIfFinite, LeavesAVectorThatIsNoNumber) {
  const Vector vector = NormaliseIfFinite({std::nan(""), 3.0, 4.0});
  EXPECT_TRUE(std::isnan(vector[0]));
  EXPECT_EQ(vector[1], 3.0);
  EXPECT_EQ(vector[2], 4.0);
}

TEST(BuildRotation, PutsTheAxesIntoTheColumnsAndTheOriginIntoTheTranslation) {
  Rotation rotation{};
  Vector translation{};
  BuildRotation({7.0, 8.0, 9.0}, {0.0, 2.0, 0.0}, {0.0, 0.0, 4.0}, {8.0, 0.0, 0.0}, &rotation, &translation);
  EXPECT_EQ(rotation, (Rotation{0.0, 0.0, 1.0,  //
                                1.0, 0.0, 0.0,  //
                                0.0, 1.0, 0.0}));
  EXPECT_EQ(translation, (Vector{7.0, 8.0, 9.0}));
}

TEST(BuildRotation, LeavesAZeroAxisAZeroColumn) {
  Rotation rotation{};
  Vector translation{};
  BuildRotation({0.0, 0.0, 0.0}, {3.0, 0.0, 4.0}, {0.0, 0.0, 0.0}, {0.0, 5.0, 0.0}, &rotation, &translation);
  EXPECT_EQ(rotation, (Rotation{0.6, 0.0, 0.0,  //
                                0.0, 0.0, 1.0,  //
                                0.8, 0.0, 0.0}));
}

TEST(LocalToGlobal, TurnsThenMoves) {
  const Rotation quarterTurn = {0.0, -1.0, 0.0,  //
                                1.0, 0.0,  0.0,  //
                                0.0, 0.0,  1.0};
  EXPECT_EQ(LocalToGlobal({1.0, 2.0, 3.0}, quarterTurn, {10.0, 20.0, 30.0}), (Vector{8.0, 21.0, 33.0}));
}

TEST(LocalToGlobal, AddsTheProductsInOrderAndTheTranslationLast) {
  const Rotation rows = {1.0, 1.0, 1.0,  //
                         1.0, 1.0, 1.0,  //
                         1.0, 1.0, 1.0};
  // 1e16 + 1 is 1e16 again.
  EXPECT_EQ(LocalToGlobal({1e16, 1.0, -1e16}, rows, {0.5, 0.0, -0.5}), (Vector{0.5, 0.0, -0.5}));
  EXPECT_EQ(LocalToGlobal({1e16, -1e16, 1.0}, rows, {0.5, 0.0, -0.5}), (Vector{1.5, 1.0, 0.5}));
}

TEST(CylindricalToRectangular, TakesDegrees) {
  // The quarter and the half turn are no exact multiples of pi: 6.1e-17 and 1.2e-16 remain of cosine and sine.
  EXPECT_EQ(CylindricalToRectangular({2.0, 0.0, 5.0}), (Vector{2.0, 0.0, 5.0}));
  EXPECT_EQ(CylindricalToRectangular({2.0, 90.0, 1.0}), (Vector{1.2246467991473532e-16, 2.0, 1.0}));
  EXPECT_EQ(CylindricalToRectangular({3.0, 180.0, -1.0}), (Vector{-3.0, 3.0 * 1.2246467991473532e-16, -1.0}));
  EXPECT_EQ(CylindricalToRectangular({2.0, -90.0, 0.0}), (Vector{1.2246467991473532e-16, -2.0, 0.0}));
  EXPECT_EQ(CylindricalToRectangular({1.0, 30.0, 0.0}), (Vector{0.8660254037844387, 0.49999999999999994, 0.0}));
}

TEST(CylindricalToRectangular, ARadiusOfZeroLiesOnTheAxis) {
  EXPECT_EQ(CylindricalToRectangular({0.0, 37.5, 4.0}), (Vector{0.0, 0.0, 4.0}));
}

TEST(TriangleNormal, IsAtRightAnglesToBothSides) {
  EXPECT_EQ(TriangleNormal({0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {0.0, 3.0, 0.0}), (Vector{0.0, 0.0, 1.0}));
  EXPECT_EQ(TriangleNormal({0.0, 0.0, 0.0}, {0.0, 3.0, 0.0}, {2.0, 0.0, 0.0}), (Vector{0.0, 0.0, -1.0}));
  EXPECT_EQ(TriangleNormal({5.0, 5.0, 5.0}, {5.0, 6.0, 5.0}, {5.0, 5.0, 7.0}), (Vector{1.0, 0.0, 0.0}));
}

TEST(TriangleNormal, OfPointsInALineIsZero) {
  EXPECT_EQ(TriangleNormal({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}, {3.0, 3.0, 3.0}), (Vector{0.0, 0.0, 0.0}));
}

TEST(TriangleNormal, StaysAsComputedWithoutALength) {
  // The square of 1e-200 is zero.
  EXPECT_EQ(TriangleNormal({0.0, 0.0, 0.0}, {1e-100, 0.0, 0.0}, {0.0, 1e-100, 0.0}), (Vector{0.0, 0.0, 1e-100 * 1e-100}));
}

TEST(TriangleNormal, AsksForTheLengthAndNotForItsSquare) {
  // The square, 2^-1064, is no normal number any more; the length is.
  EXPECT_EQ(TriangleNormal({0.0, 0.0, 0.0}, {0x1p-266, 0.0, 0.0}, {0.0, 0x1p-266, 0.0}), (Vector{0.0, 0.0, 1.0}));
}

}  // namespace
}  // namespace btz
