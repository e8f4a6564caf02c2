// Reals as text with a fixed number of decimals.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "support/decimal_text.h"

namespace btz {
namespace {

std::string Format(double value, std::int32_t decimals) {
  char text[decimalTextCapacity + 4];
  std::memset(text, '#', sizeof(text));
  const std::size_t length = FormatDecimals(text, value, decimals);
  EXPECT_EQ(text[length], '\0');
  EXPECT_EQ(std::strlen(text), length);
  EXPECT_EQ(std::string(text + decimalTextCapacity, 4), "####");
  return text;
}

TEST(FormatDecimals, WritesThatManyDecimals) {
  EXPECT_EQ(Format(1.0, 0), "1");
  EXPECT_EQ(Format(1.0, 2), "1.00");
  EXPECT_EQ(Format(5.0, 6), "5.000000");
  EXPECT_EQ(Format(-12.5, 1), "-12.5");
  EXPECT_EQ(Format(0.0, 3), "0.000");
  EXPECT_EQ(Format(1e-9, 6), "0.000000");
  EXPECT_EQ(Format(0.0000015, 6), "0.000002") << "the double is above 0.0000015";
  EXPECT_EQ(Format(999.9996, 3), "1000.000");
}

TEST(FormatDecimals, ATieGoesToTheEvenDigit) {
  EXPECT_EQ(Format(0.125, 2), "0.12");
  EXPECT_EQ(Format(0.375, 2), "0.38");
  EXPECT_EQ(Format(-0.125, 2), "-0.12");
  EXPECT_EQ(Format(0.25, 1), "0.2");
  EXPECT_EQ(Format(0.75, 1), "0.8");
  EXPECT_EQ(Format(0.0625, 3), "0.062");
  EXPECT_EQ(Format(0.5, 0), "0");
  EXPECT_EQ(Format(1.5, 0), "2");
  EXPECT_EQ(Format(2.5, 0), "2");
  EXPECT_EQ(Format(0.0000152587890625, 6), "0.000015");
}

TEST(FormatDecimals, TheExactBinaryValueIsRounded) {
  EXPECT_EQ(Format(1.005, 2), "1.00") << "the double is below 1.005";
  EXPECT_EQ(Format(2.675, 2), "2.67") << "the double is below 2.675";
  EXPECT_EQ(Format(1.015, 2), "1.01") << "the double is below 1.015";
  EXPECT_EQ(Format(1.025, 2), "1.02") << "the double is below 1.025";
  EXPECT_EQ(Format(std::nextafter(0.125, 1.0), 2), "0.13");
  EXPECT_EQ(Format(std::nextafter(0.375, 0.0), 2), "0.37");
}

TEST(FormatDecimals, ANegativeZeroKeepsItsSign) {
  EXPECT_EQ(Format(-0.0, 1), "-0.0");
  EXPECT_EQ(Format(-0.01, 1), "-0.0");
  EXPECT_EQ(Format(-0.0, 0), "-0");
}

TEST(FormatDecimals, TheLargestNumbersFit) {
  EXPECT_EQ(Format(1e22, 1), "10000000000000000000000.0");
  const std::string largest = Format(DBL_MAX, 6);
  EXPECT_EQ(largest.size(), 309u + 1 + 6);
  EXPECT_EQ(largest.substr(0, 17), "17976931348623157");
  EXPECT_EQ(largest.substr(309), ".000000");
  EXPECT_EQ(std::strtod(largest.c_str(), nullptr), DBL_MAX);
  EXPECT_EQ(Format(-DBL_MAX, 6), "-" + largest);
}

TEST(FormatDecimals, InfinitiesAndNotANumberAreWords) {
  EXPECT_EQ(Format(INFINITY, 2), "inf");
  EXPECT_EQ(Format(-INFINITY, 2), "-inf");
  EXPECT_EQ(Format(std::fabs(std::nan("")), 2), "nan");
}

/// The exact value of `numerator / 1024` with `decimals` decimals, by whole numbers.
std::string PlainDecimals(std::int64_t numerator, std::int32_t decimals) {
  std::int64_t scale = 1;
  for (std::int32_t i = 0; i < decimals; ++i) {
    scale *= 10;
  }
  const std::int64_t scaled = std::llabs(numerator) * scale;
  std::int64_t rounded = scaled / 1024;
  const std::int64_t rest = scaled % 1024;
  rounded += rest > 512 || (rest == 512 && rounded % 2 == 1) ? 1 : 0;
  std::string digits = std::to_string(rounded);
  while (static_cast<std::int32_t>(digits.size()) <= decimals) {
    digits.insert(0, 1, '0');
  }
  if (decimals > 0) {
    digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, '.');
  }
  return (numerator < 0 ? "-" : "") + digits;
}

TEST(FormatDecimals, AgreesWithWholeNumbersOnBinaryFractions) {
  std::mt19937 random(11);
  for (int i = 0; i < 50000; ++i) {
    const std::int64_t numerator = static_cast<std::int64_t>(random() % 4000000) - 2000000;
    const auto decimals = static_cast<std::int32_t>(random() % 7);
    ASSERT_EQ(Format(static_cast<double>(numerator) / 1024.0, decimals), PlainDecimals(numerator, decimals)) << numerator << "/1024";
  }
}

}  // namespace
}  // namespace btz
