// Length of UTF-8 text in UTF-16 units, and what is no UTF-8.
#include "platform/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace btz {
namespace {

TEST(CountUtf16Units, CountsAsciiByByte) {
  EXPECT_EQ(CountUtf16Units(""), 0);
  EXPECT_EQ(CountUtf16Units("C:/decks/a.bdf"), 14);
  EXPECT_EQ(CountUtf16Units("\x01\x7F"), 2);
}

TEST(CountUtf16Units, CountsCharactersUpToFfffOnce) {
  EXPECT_EQ(CountUtf16Units("\xC2\x80"), 1);
  EXPECT_EQ(CountUtf16Units("gr\xC3\xB6\xC3\x9F"
                            "e"),
            5);
  EXPECT_EQ(CountUtf16Units("\xDF\xBF"), 1);
  EXPECT_EQ(CountUtf16Units("\xE0\xA0\x80"), 1);
  EXPECT_EQ(CountUtf16Units("\xE4\xB8\xAD\xE6\x96\x87"), 2);
  EXPECT_EQ(CountUtf16Units("\xED\x9F\xBF"), 1) << "the last character before the surrogates";
  EXPECT_EQ(CountUtf16Units("\xEE\x80\x80"), 1) << "the first one behind them";
  EXPECT_EQ(CountUtf16Units("\xEF\xBF\xBF"), 1);
}

TEST(CountUtf16Units, CountsCharactersAboveFfffTwice) {
  EXPECT_EQ(CountUtf16Units("\xF0\x90\x80\x80"), 2);
  EXPECT_EQ(CountUtf16Units("a\xF0\x9F\x98\x80z"), 4);
  EXPECT_EQ(CountUtf16Units("\xF4\x8F\xBF\xBF"), 2) << "U+10FFFF";
}

TEST(CountUtf16Units, RefusesWhatIsNoUtf8) {
  const char* const broken[] = {
      "\x80",              // A following byte alone.
      "\xBF",              //
      "a\xE9t\xE9",        // Latin-1.
      "\xC3",              // Cut off.
      "\xC3z",             //
      "\xE4\xB8",          //
      "\xE4\xB8z",         //
      "\xF0\x9F\x98",      //
      "\xF0\x9F\x98z",     //
      "\xC0\x80",          // Longer than needed.
      "\xC1\xBF",          //
      "\xE0\x9F\xBF",      //
      "\xF0\x8F\xBF\xBF",  //
      "\xED\xA0\x80",      // Surrogates.
      "\xED\xBF\xBF",      //
      "\xF4\x90\x80\x80",  // Above U+10FFFF.
      "\xF5\x80\x80\x80",  //
      "\xFE",              //
      "\xFF",              //
      "\xC3\xB6\x80",      // One following byte too many.
  };
  for (const char* text : broken) {
    EXPECT_EQ(CountUtf16Units(text), -1) << text;
    EXPECT_EQ(CountUtf16Units((std::string("fine/") + text).c_str()), -1) << text;
  }
}

}  // namespace
}  // namespace btz
