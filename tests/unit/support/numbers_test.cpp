// Numbers from text: the integer conversion with its wrap, and the decimal conversion that the tests on a field use.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "support/text.h"

namespace btz {
namespace {

TEST(ParseInteger, ReadsSpaceSignAndDigitsAndStopsAtTheFirstOtherCharacter) {
  EXPECT_EQ(ParseInteger("123"), 123);
  EXPECT_EQ(ParseInteger(" \t\r\n\v\f123"), 123);
  EXPECT_EQ(ParseInteger("-45"), -45);
  EXPECT_EQ(ParseInteger("+45"), 45);
  EXPECT_EQ(ParseInteger("007"), 7);
  EXPECT_EQ(ParseInteger("12.9"), 12);
  EXPECT_EQ(ParseInteger("12 34"), 12);
  EXPECT_EQ(ParseInteger("1E5"), 1);
  EXPECT_EQ(ParseInteger("0x1A"), 0);
  EXPECT_EQ(ParseInteger("3\xE9"), 3);
}

TEST(ParseInteger, GivesZeroWithoutDigits) {
  EXPECT_EQ(ParseInteger(""), 0);
  EXPECT_EQ(ParseInteger("   "), 0);
  EXPECT_EQ(ParseInteger("GRID"), 0);
  EXPECT_EQ(ParseInteger("-"), 0);
  EXPECT_EQ(ParseInteger("+-5"), 0);
  EXPECT_EQ(ParseInteger("- 5"), 0);
  EXPECT_EQ(ParseInteger("*5"), 0);
  EXPECT_EQ(ParseInteger(".5"), 0);
  EXPECT_EQ(ParseInteger("\xA0"
                         "5"),
            0)
      << "a no-break space is no space";
  EXPECT_EQ(ParseInteger(nullptr), 0);
}

TEST(ParseInteger, WrapsModulo32Bits) {
  EXPECT_EQ(ParseInteger("2147483647"), INT32_MAX);
  EXPECT_EQ(ParseInteger("-2147483648"), INT32_MIN);
  EXPECT_EQ(ParseInteger("2147483648"), INT32_MIN);
  EXPECT_EQ(ParseInteger("3000000000"), -1294967296);
  EXPECT_EQ(ParseInteger("4294967296"), 0);
  EXPECT_EQ(ParseInteger("4294967303"), 7);
  EXPECT_EQ(ParseInteger("-4294967303"), -7);
  // 99999999999999999999 = 10^20 - 1 and 10^20 = 0x56BC75E2D63100000, so the low word is 0x630FFFFF.
  EXPECT_EQ(ParseInteger("99999999999999999999"), 0x630FFFFF);
}

TEST(ParseInteger, WithALengthReadsNoFurther) {
  EXPECT_EQ(ParseInteger("12345678", 3), 123);
  EXPECT_EQ(ParseInteger("12345678", 0), 0);
  EXPECT_EQ(ParseInteger("  12", 2), 0);
  EXPECT_EQ(ParseInteger("-12", 1), 0);
  EXPECT_EQ(ParseInteger("12\0"
                         "34",
                         5),
            12);
  const char unterminated[] = {'4', '2'};
  EXPECT_EQ(ParseInteger(unterminated, 2), 42);
}

TEST(ParseInteger, AgreesWithTheSystemWhereNothingWraps) {
  std::mt19937 random(7);
  const std::string alphabet = "0123456789 +-.E\t";
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (std::uint32_t length = random() % 9; length > 0; --length) {
      text += alphabet[random() % alphabet.size()];
    }
    ASSERT_EQ(ParseInteger(text.c_str()), std::atoi(text.c_str())) << text;
    ASSERT_EQ(ParseInteger(text.data(), text.size()), std::atoi(text.c_str())) << text;
  }
}

TEST(ParseDecimal, ReadsFractionAndExponent) {
  EXPECT_EQ(ParseDecimal("1.5"), 1.5);
  EXPECT_EQ(ParseDecimal("-1.5"), -1.5);
  EXPECT_EQ(ParseDecimal("+1.5"), 1.5);
  EXPECT_EQ(ParseDecimal("  1.5  "), 1.5);
  EXPECT_EQ(ParseDecimal("5"), 5.0);
  EXPECT_EQ(ParseDecimal("5."), 5.0);
  EXPECT_EQ(ParseDecimal(".5"), 0.5);
  EXPECT_EQ(ParseDecimal("-.5"), -0.5);
  EXPECT_EQ(ParseDecimal("1.5E3"), 1500.0);
  EXPECT_EQ(ParseDecimal("1.5e+3"), 1500.0);
  EXPECT_EQ(ParseDecimal("1.5E-3"), 0.0015);
  EXPECT_EQ(ParseDecimal("1.E2"), 100.0);
  EXPECT_EQ(ParseDecimal(".1E1"), 1.0);
}

TEST(ParseDecimal, StopsAtTheFirstCharacterThatDoesNotBelong) {
  EXPECT_EQ(ParseDecimal("1.5D+3"), 1.5);
  EXPECT_EQ(ParseDecimal("1.5+3"), 1.5);
  EXPECT_EQ(ParseDecimal("1.5E"), 1.5);
  EXPECT_EQ(ParseDecimal("1.5E+"), 1.5);
  EXPECT_EQ(ParseDecimal("1.5EX"), 1.5);
  EXPECT_EQ(ParseDecimal("1.2.3"), 1.2);
  EXPECT_EQ(ParseDecimal("1,5"), 1.0);
  EXPECT_EQ(ParseDecimal("1 5"), 1.0);
}

TEST(ParseDecimal, KnowsNoInfinityHexadecimalOrNumberWithoutDigits) {
  for (const char* text : {"", " ", ".", "-", "+.", "E5", ".E5", "INF", "INFO", "infinity", "NAN", "NAN1", "-inf", "+-1", "$1", "*1"}) {
    EXPECT_EQ(ParseDecimal(text), 0.0) << text;
  }
  EXPECT_EQ(ParseDecimal("0x1A"), 0.0);
  EXPECT_EQ(ParseDecimal(nullptr), 0.0);
}

TEST(ParseDecimal, IsCorrectlyRounded) {
  EXPECT_EQ(ParseDecimal("0.1"), 0.1);
  EXPECT_EQ(ParseDecimal("1.7976931348623157E308"), 1.7976931348623157E308);
  EXPECT_EQ(ParseDecimal("2.2250738585072014E-308"), 2.2250738585072014E-308);
  EXPECT_EQ(ParseDecimal("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(ParseDecimal("5E-324"), 5E-324);
}

TEST(ParseDecimal, OverflowsToInfinityAndUnderflowsToZero) {
  EXPECT_EQ(ParseDecimal("1E400"), HUGE_VAL);
  EXPECT_EQ(ParseDecimal("-1E400"), -HUGE_VAL);
  EXPECT_EQ(ParseDecimal("1E+99999999999"), HUGE_VAL);
  EXPECT_EQ(ParseDecimal("1E-400"), 0.0);
  EXPECT_EQ(ParseDecimal("1E-99999999999"), 0.0);
  EXPECT_EQ(ParseDecimal("0E99999999999"), 0.0);
  EXPECT_EQ(ParseDecimal("0.000E400"), 0.0);
}

TEST(ParseDecimal, JudgesNumbersOutOfRangeByMantissaAndExponentTogether) {
  EXPECT_EQ(ParseDecimal(("1" + std::string(400, '0') + "E-5").c_str()), HUGE_VAL);
  EXPECT_EQ(ParseDecimal(("." + std::string(400, '0') + "1E5").c_str()), 0.0);
  EXPECT_EQ(ParseDecimal(("." + std::string(400, '0') + "1").c_str()), 0.0);
  EXPECT_EQ(ParseDecimal(("." + std::string(400, '0') + "1E401").c_str()), 1.0);
  EXPECT_EQ(ParseDecimal(std::string(400, '9').c_str()), HUGE_VAL);
}

TEST(ParseDecimal, AgreesWithTheSystemOnRandomText) {
  std::mt19937 random(8);
  const std::string alphabet = "0123456789012345678901234567890123456789....+-+-EEe D*";
  for (int i = 0; i < 50000; ++i) {
    std::string text;
    for (std::uint32_t length = random() % 17; length > 0; --length) {
      text += alphabet[random() % alphabet.size()];
    }
    // A Windows runtime takes D for an exponent letter.
    const std::string common = text.substr(0, text.find('D'));
    ASSERT_EQ(ParseDecimal(text.c_str()), std::strtod(common.c_str(), nullptr)) << text;
  }
}

}  // namespace
}  // namespace btz
