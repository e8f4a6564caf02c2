// Reals in the deck's forms. Every character that is no sign, point, blank or exponent letter counts as a digit of its code minus 48, and
// each power of ten is one operation; the expected values are written as these operations.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "deck/fields.h"

namespace btz {
namespace {

TEST(ParseReal, ReadsTheUsualForms) {
  EXPECT_EQ(ParseReal("1.5"), 1.5);
  EXPECT_EQ(ParseReal("1.5+3"), 1500.0);
  EXPECT_EQ(ParseReal("1.5E3"), 1500.0);
  EXPECT_EQ(ParseReal("1.5e+3"), 1500.0);
  EXPECT_EQ(ParseReal("1.5E+3"), 1500.0);
  EXPECT_EQ(ParseReal("15.+2"), 1500.0);
  EXPECT_EQ(ParseReal("7"), 7.0);
  EXPECT_EQ(ParseReal("7."), 7.0);
  EXPECT_EQ(ParseReal(".5"), 0.5);
  EXPECT_EQ(ParseReal("0.5"), 0.5);
  EXPECT_EQ(ParseReal("-1.5"), -1.5);
  EXPECT_EQ(ParseReal("+1.5"), 1.5);
  EXPECT_EQ(ParseReal("-.5-2"), -(0.5 / 10.0 / 10.0));
  EXPECT_DOUBLE_EQ(ParseReal("-.5-2"), -0.005);
}

TEST(ParseReal, GivesZeroForAnEmptyText) {
  EXPECT_EQ(ParseReal(""), 0.0);
  EXPECT_FALSE(std::signbit(ParseReal("")));
  EXPECT_EQ(ParseReal("        "), 0.0);
  EXPECT_EQ(ParseReal("."), 0.0);
  EXPECT_EQ(ParseReal("E"), 0.0);
  EXPECT_EQ(ParseReal("-"), 0.0);
}

TEST(ParseReal, TakesTheLetterDAsADigit) {
  // D is 68 - 48 = 20: the fraction is 5 * 10 + 20 = 70 with two digits.
  EXPECT_EQ(ParseReal("1.5D+3"), (1.0 + 70.0 / 10.0 / 10.0) * 10.0 * 10.0 * 10.0);
  EXPECT_EQ(ParseReal("1D"), 30.0);
  EXPECT_EQ(ParseReal("d"), 52.0);
}

TEST(ParseReal, IgnoresStarsBlanksAndLineEndsEverywhere) {
  EXPECT_EQ(ParseReal("*  1 2"), 12.0);
  EXPECT_EQ(ParseReal("1*2"), 12.0);
  EXPECT_EQ(ParseReal("1\r\n2"), 12.0);
  EXPECT_EQ(ParseReal(" 1 . 5 E + 3 "), 1500.0);
  EXPECT_EQ(ParseReal("  -5"), -5.0) << "blanks are not yet something seen";
  EXPECT_EQ(ParseReal("*-5"), -5.0);
  EXPECT_EQ(ParseReal("\r\n-5"), -5.0);
}

TEST(ParseReal, TakesATabAsADigit) {
  EXPECT_EQ(ParseReal("\t"), -39.0);
  EXPECT_EQ(ParseReal("\t5"), -385.0);
  EXPECT_EQ(ParseReal("5\t"), 11.0);
  EXPECT_EQ(ParseReal("\t-2"), -39.0 / 10.0 / 10.0) << "the tab was something, so the sign is the exponent's";
}

TEST(ParseReal, TakesBytesAbove127AsSignedDigits) {
  // 0xE9 is -23, minus 48 is -71.
  EXPECT_EQ(ParseReal("\xE9"), -71.0);
  EXPECT_EQ(ParseReal(".\xE9"), -7.1);
  EXPECT_EQ(ParseReal("1E\xE9"), 1.0) << "a negative exponent does nothing";
  EXPECT_EQ(ParseReal("2\xE9"), 20.0 - 71.0);
}

TEST(ParseReal, ALaterSignWinsWhileNothingIsSeen) {
  EXPECT_EQ(ParseReal("+-5"), -5.0);
  EXPECT_EQ(ParseReal("-+5"), 5.0);
  EXPECT_EQ(ParseReal("--5"), -5.0);
}

TEST(ParseReal, ThePointIsNotSomethingSeen) {
  EXPECT_EQ(ParseReal(".-5"), -0.5);
  EXPECT_EQ(ParseReal("-.-5"), -0.5);
  EXPECT_EQ(ParseReal(".+5"), 0.5);
}

TEST(ParseReal, TheExponentLetterIsNotSomethingSeen) {
  EXPECT_EQ(ParseReal("E5"), 0.0);
  EXPECT_EQ(ParseReal("E-5"), 0.0);
  EXPECT_TRUE(std::signbit(ParseReal("E-5"))) << "the sign is the value's";
  EXPECT_EQ(ParseReal("E.5"), 0.5);
  EXPECT_EQ(ParseReal("E-.5"), -0.5);
}

TEST(ParseReal, APointLeadsBackToTheFraction) {
  EXPECT_EQ(ParseReal("1.5.2"), 1.0 + 52.0 / 10.0 / 10.0);
  EXPECT_EQ(ParseReal("1E2.5"), 150.0);
  EXPECT_EQ(ParseReal("1.5E1.5"), (1.0 + 55.0 / 10.0 / 10.0) * 10.0);
}

TEST(ParseReal, ExponentDigitsAddUpAndTheLastSignHolds) {
  // Exponent digits 1 and 2, last sign minus.
  double expected = 1.0;
  for (int i = 0; i < 12; ++i) {
    expected /= 10.0;
  }
  EXPECT_EQ(ParseReal("1E+1-2"), expected);
  EXPECT_EQ(ParseReal("1-1E2"), 1e12) << "the letter makes the sign positive again";
  EXPECT_EQ(ParseReal("1-1-2"), expected);
  EXPECT_EQ(ParseReal("1+2"), 100.0);
  EXPECT_EQ(ParseReal("1-E2"), 100.0);
  EXPECT_EQ(ParseReal("1E-2"), 1.0 / 10.0 / 10.0);
}

TEST(ParseReal, ASignWithoutExponentDigitsDoesNothing) {
  EXPECT_EQ(ParseReal("1.5+"), 1.5);
  EXPECT_EQ(ParseReal("1.5E"), 1.5);
  EXPECT_EQ(ParseReal("1.5E-0"), 1.5);
}

TEST(ParseReal, DividesTheFractionOnceForEachDigit) {
  EXPECT_EQ(ParseReal(".123"), 123.0 / 10.0 / 10.0 / 10.0);
  EXPECT_EQ(ParseReal("3.14159"), 14159.0 / 10.0 / 10.0 / 10.0 / 10.0 / 10.0 + 3.0);
  EXPECT_EQ(ParseReal(".0001"), 1.0 / 10.0 / 10.0 / 10.0 / 10.0);
}

TEST(ParseReal, RoundsAsRepeatedOperationsDo) {
  double repeated = 1.0;
  for (int i = 0; i < 30; ++i) {
    repeated *= 10.0;
  }
  EXPECT_EQ(ParseReal("1+30"), repeated);
  EXPECT_NE(repeated, 1e30) << "else this test would say nothing";
  double divided = 7.0;
  for (int i = 0; i < 11; ++i) {
    divided /= 10.0;
  }
  EXPECT_EQ(ParseReal("7-11"), divided);
  EXPECT_NE(divided, 7e-11);
}

TEST(ParseReal, TheIntegerPartWrapsAt32Bits) {
  EXPECT_EQ(ParseReal("2147483647"), 2147483647.0);
  EXPECT_EQ(ParseReal("2147483648"), -2147483648.0);
  EXPECT_EQ(ParseReal("3000000000."), -1294967296.0);
  EXPECT_EQ(ParseReal("4294967296"), 0.0);
  EXPECT_EQ(ParseReal("4294967301.5"), 5.5);
  EXPECT_EQ(ParseReal("-2147483648"), 2147483648.0) << "wrapped to negative, then negated";
}

TEST(ParseReal, TheFractionDoesNotWrap) {
  EXPECT_NEAR(ParseReal("0.99999999999999"), 1.0, 1e-13);
  EXPECT_LT(ParseReal("0.99999999999999"), 1.0);
}

TEST(ParseReal, TheExponentWrapsAt32Bits) {
  EXPECT_EQ(ParseReal("1E4294967296"), 1.0);
  EXPECT_EQ(ParseReal("1E4294967298"), 100.0);
  EXPECT_EQ(ParseReal("1E2147483648"), 1.0) << "wrapped to negative";
  EXPECT_EQ(ParseReal("5-4294967297"), 0.5);
}

TEST(ParseReal, LongFractionsAddTheCodeBeforeTheyTakeOff48) {
  const std::string digits = "882240130060100085";
  double fraction = 0.0;
  double otherWay = 0.0;
  for (const char c : digits) {
    fraction = fraction * 10.0 + c;
    fraction = fraction - 48.0;
    otherWay = otherWay * 10.0 + (c - 48.0);
  }
  for (std::size_t i = 0; i < digits.size(); ++i) {
    fraction /= 10.0;
    otherWay /= 10.0;
  }
  EXPECT_NE(fraction, otherWay) << "else this test would say nothing";
  EXPECT_EQ(ParseReal(("." + digits).c_str()), fraction);
}

TEST(ParseReal, HugeExponentsAreQuick) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(ParseReal("1E2147483647"), HUGE_VAL);
    EXPECT_EQ(ParseReal("-1E2147483647"), -HUGE_VAL);
    EXPECT_EQ(ParseReal("1-2147483647"), 0.0);
    EXPECT_EQ(ParseReal("0E2147483647"), 0.0);
    EXPECT_EQ(ParseReal("ENDDATA"), 0.0);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << "2^31 steps would take that for one of them";
}

TEST(ParseReal, AKeywordIsANumberToo) {
  // G is 23, R 34, I 25, D 20, in integer mode.
  EXPECT_EQ(ParseReal("GRID"), ((23.0 * 10 + 34) * 10 + 25) * 10 + 20);
  // T is 36, then H 24, R 34, U 37.
  EXPECT_EQ(ParseReal("THRU"), ((36.0 * 10 + 24) * 10 + 34) * 10 + 37);
}

TEST(ParseReal, WithALengthReadsNoFurther) {
  EXPECT_EQ(ParseReal("12345", 2), 12.0);
  EXPECT_EQ(ParseReal("12345", 0), 0.0);
  EXPECT_EQ(ParseReal("12\0"
                      "34",
                      5),
            12.0)
      << "the NUL ends it";
}

/// The same number, one rule after the other.
double ParseRealPlainly(const std::string& text) {
  std::int64_t integer = 0;
  std::int64_t exponent = 0;
  double fraction = 0.0;
  int digits = 0;
  enum { Integer, Fraction, Exponent } mode = Integer;
  int valueSign = 1;
  int exponentSign = 1;
  bool nothingSeenYet = true;
  const auto wrap = [](std::int64_t value) {
    value &= 0xFFFFFFFF;
    return value >= 0x80000000 ? value - 0x100000000 : value;
  };
  for (const char c : text) {
    const int byte = static_cast<unsigned char>(c);
    const int code = byte > 127 ? byte - 256 : byte;
    if (c == '\n' || c == '\r' || c == ' ' || c == '*') {
      continue;
    }
    if (c == '+' || c == '-') {
      if (nothingSeenYet) {
        valueSign = c == '+' ? 1 : -1;
      } else {
        exponentSign = c == '+' ? 1 : -1;
        mode = Exponent;
      }
    } else if (c == '.') {
      mode = Fraction;
    } else if (c == 'E' || c == 'e') {
      mode = Exponent;
      exponentSign = 1;
    } else {
      nothingSeenYet = false;
      if (mode == Integer) {
        integer = wrap(integer * 10 + code - 48);
      } else if (mode == Fraction) {
        fraction = fraction * 10.0;
        fraction = fraction + code;
        fraction = fraction - 48.0;
        ++digits;
      } else {
        exponent = wrap(exponent * 10 + code - 48);
      }
    }
  }
  for (int i = 0; i < digits; ++i) {
    fraction = fraction / 10.0;
  }
  double value = fraction + static_cast<double>(integer);
  // The smallest double times ten to the 700th is infinite, the largest divided by it is 0: no step behind that changes anything.
  for (std::int64_t i = 0; i < exponent && i < 700; ++i) {
    value = exponentSign > 0 ? value * 10.0 : value / 10.0;
  }
  return valueSign > 0 ? value : -value;
}

void ExpectTheSameReal(const std::string& text) {
  const double expected = ParseRealPlainly(text);
  const double value = ParseReal(text.c_str());
  ASSERT_EQ(std::isnan(value), std::isnan(expected)) << text;
  if (!std::isnan(expected)) {
    ASSERT_EQ(value, expected) << text;
    ASSERT_EQ(std::signbit(value), std::signbit(expected)) << text;
  }
}

TEST(ParseReal, FollowsItsRulesOnRandomNumbers) {
  std::mt19937 random(21);
  const std::string alphabet = "01234567890123456789.+-Ee *";
  for (int i = 0; i < 100000; ++i) {
    std::string text;
    for (std::uint32_t length = random() % 17; length > 0; --length) {
      text += alphabet[random() % alphabet.size()];
    }
    ExpectTheSameReal(text);
  }
}

TEST(ParseReal, FollowsItsRulesOnLongNumbers) {
  std::mt19937 random(23);
  const std::string alphabet = "01234567890123456789012345678901234567890123456789.-E";
  for (int i = 0; i < 20000; ++i) {
    std::string text = random() % 2 == 0 ? "." : "";
    for (std::uint32_t length = 16 + random() % 40; length > 0; --length) {
      text += alphabet[random() % alphabet.size()];
    }
    ExpectTheSameReal(text);
  }
}

TEST(ParseReal, FollowsItsRulesOnRandomBytes) {
  std::mt19937 random(22);
  for (int i = 0; i < 100000; ++i) {
    std::string text;
    for (std::uint32_t length = random() % 17; length > 0; --length) {
      text += static_cast<char>(1 + random() % 255);
    }
    ExpectTheSameReal(text);
  }
}

}  // namespace
}  // namespace btz
