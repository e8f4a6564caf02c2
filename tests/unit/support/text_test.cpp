// Text routines: character classes, comparison and search without regard to case, copies into bounded buffers and numbered names.
#include "support/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <cwchar>
#include <string>

namespace btz {
namespace {

TEST(CharacterClasses, SpaceIsBlankAndTheFiveControls) {
  const std::string spaces = "\t\n\v\f\r ";
  for (int code = 0; code < 256; ++code) {
    const char c = static_cast<char>(code);
    EXPECT_EQ(IsSpace(c), code != 0 && spaces.find(c) != std::string::npos) << code;
  }
}

TEST(CharacterClasses, LettersAndDigitsAreAscii) {
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  const std::string digits = "0123456789";
  for (int code = 0; code < 256; ++code) {
    const char c = static_cast<char>(code);
    EXPECT_EQ(IsAlpha(c), letters.find(c) != std::string::npos) << code;
    EXPECT_EQ(IsDigit(c), digits.find(c) != std::string::npos) << code;
  }
}

TEST(CharacterClasses, LowerCaseChangesOnlyAsciiCapitals) {
  const std::string capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  const std::string small = "abcdefghijklmnopqrstuvwxyz";
  for (int code = 0; code < 256; ++code) {
    const char c = static_cast<char>(code);
    const std::size_t place = capitals.find(c);
    EXPECT_EQ(ToLower(c), place == std::string::npos ? c : small[place]) << code;
  }
}

TEST(StartsWithNoCase, MatchesAnyCaseMix) {
  EXPECT_EQ(StartsWithNoCase("Include 'a.bdf'", "include "), 0);
  EXPECT_EQ(StartsWithNoCase("INCLUDE 'a.bdf'", "include "), 0);
  EXPECT_EQ(StartsWithNoCase("include", "INCLUDE"), 0);
  EXPECT_EQ(StartsWithNoCase("$default", "$Default"), 0);
}

TEST(StartsWithNoCase, GivesMinusOneForNullOrEmpty) {
  EXPECT_EQ(StartsWithNoCase(nullptr, "a"), -1);
  EXPECT_EQ(StartsWithNoCase("a", nullptr), -1);
  EXPECT_EQ(StartsWithNoCase("", "a"), -1);
  EXPECT_EQ(StartsWithNoCase("a", ""), -1);
  EXPECT_EQ(StartsWithNoCase("", ""), -1);
  EXPECT_EQ(StartsWithNoCase(nullptr, nullptr), -1);
}

TEST(StartsWithNoCase, GivesMinusTwoForAShorterText) {
  EXPECT_EQ(StartsWithNoCase("includ", "include "), -2);
  EXPECT_EQ(StartsWithNoCase("xyz", "include "), -2) << "length is tested before content";
  EXPECT_EQ(StartsWithNoCase("include", "include "), -2);
}

TEST(StartsWithNoCase, OtherwiseTellsTheOrderOfTheHeads) {
  EXPECT_GT(StartsWithNoCase("include\t'a'", "INCLUDA"), 0);
  EXPECT_LT(StartsWithNoCase("include\t'a'", "include "), 0) << "a tab comes before a blank";
  EXPECT_LT(StartsWithNoCase("abc", "ABD"), 0);
  EXPECT_LT(StartsWithNoCase("a_", "aZ"), 0) << "an underscore comes before the small letters";
  EXPECT_GT(StartsWithNoCase("\xE9t\xE9", "ete"), 0) << "bytes above 127 come behind the letters";
}

TEST(FindSubstringNoCase, GivesTheFirstOccurrence) {
  const char* text = "one Two TWO two";
  EXPECT_EQ(FindSubstringNoCase(text, "tWo"), text + 4);
  EXPECT_EQ(FindSubstringNoCase(text, "ONE"), text);
  EXPECT_EQ(FindSubstringNoCase(text, "two two"), text + 4);
  EXPECT_EQ(FindSubstringNoCase(text, "TWO "), text + 4);
  EXPECT_EQ(FindSubstringNoCase(text, "o two two"), text + 6);
  EXPECT_EQ(FindSubstringNoCase(text, "two two two two"), nullptr);
}

TEST(FindSubstringNoCase, FindsAPatternThatBeginsInsideAFailedAttempt) {
  const char* text = "aaAab";
  EXPECT_EQ(FindSubstringNoCase(text, "AAB"), text + 2);
}

TEST(FindSubstringNoCase, GivesNullForAbsentAndForNull) {
  EXPECT_EQ(FindSubstringNoCase("abc", "abcd"), nullptr);
  EXPECT_EQ(FindSubstringNoCase("", "a"), nullptr);
  EXPECT_EQ(FindSubstringNoCase(nullptr, "a"), nullptr);
  EXPECT_EQ(FindSubstringNoCase("a", nullptr), nullptr);
}

TEST(FindSubstringNoCase, FindsAnEmptyPatternAtTheStart) {
  const char* text = "abc";
  EXPECT_EQ(FindSubstringNoCase(text, ""), text);
  const char* empty = "";
  EXPECT_EQ(FindSubstringNoCase(empty, ""), empty);
}

TEST(CompareNoCase, IsThreeWay) {
  EXPECT_EQ(CompareNoCase("PShell", "pSHELL"), 0);
  EXPECT_EQ(CompareNoCase("", ""), 0);
  EXPECT_LT(CompareNoCase("COMP", "COMPS"), 0);
  EXPECT_GT(CompareNoCase("COMPS", "COMP"), 0);
  EXPECT_LT(CompareNoCase("abc", "ABD"), 0);
  EXPECT_GT(CompareNoCase("ABD", "abc"), 0);
  EXPECT_GT(CompareNoCase("\xE9", "z"), 0);
  EXPECT_NE(CompareNoCase("\xC9", "\xE9"), 0) << "only ASCII letters have a case";
  EXPECT_LT(CompareNoCase("_", "A"), 0) << "compared as small letters";
}

TEST(CompareNoCase, WideTextsCountNullAsEmpty) {
  EXPECT_EQ(CompareNoCase(L"Door", L"dOOR"), 0);
  EXPECT_LT(CompareNoCase(L"Door", L"Doors"), 0);
  EXPECT_GT(CompareNoCase(L"Doors", L"Door"), 0);
  EXPECT_EQ(CompareNoCase(static_cast<const wchar_t*>(nullptr), L""), 0);
  EXPECT_GT(CompareNoCase(L"a", nullptr), 0);
  EXPECT_LT(CompareNoCase(nullptr, L"a"), 0);
  EXPECT_GT(CompareNoCase(L"\u00E9", L"z"), 0);
}

/// A buffer with a mark behind the part that may be written.
template <typename Character, std::size_t capacity>
struct Guarded {
  Guarded() {
    for (Character& c : text) {
      c = '#';
    }
  }

  bool IsUntouchedBehind() const { return text[capacity] == '#' && text[capacity + 1] == '#'; }

  Character text[capacity + 2];
};

TEST(CopyText, CutsToTheCapacityAndTerminates) {
  Guarded<char, 4> dest;
  CopyText(dest.text, 4, "abcdef");
  EXPECT_STREQ(dest.text, "abc");
  EXPECT_TRUE(dest.IsUntouchedBehind());
  CopyText(dest.text, 4, "ab");
  EXPECT_STREQ(dest.text, "ab");
  CopyText(dest.text, 4, "xyz");
  EXPECT_STREQ(dest.text, "xyz");
  CopyText(dest.text, 4, "");
  EXPECT_STREQ(dest.text, "");
  CopyText(dest.text, 1, "abc");
  EXPECT_STREQ(dest.text, "");
}

TEST(Widen, TakesEachByteAsOneCharacter) {
  Guarded<wchar_t, 8> dest;
  Widen(dest.text, 8, "A\xE9\xFC\x80\xFFz");
  EXPECT_EQ(std::wcslen(dest.text), 6u);
  EXPECT_EQ(dest.text[0], L'A');
  EXPECT_EQ(dest.text[1], static_cast<wchar_t>(0xE9));
  EXPECT_EQ(dest.text[2], static_cast<wchar_t>(0xFC));
  EXPECT_EQ(dest.text[3], static_cast<wchar_t>(0x80));
  EXPECT_EQ(dest.text[4], static_cast<wchar_t>(0xFF));
  EXPECT_EQ(dest.text[5], L'z');
}

TEST(Widen, CutsToTheCapacityAndTerminates) {
  Guarded<wchar_t, 4> dest;
  Widen(dest.text, 4, "abcdef");
  EXPECT_STREQ(dest.text, L"abc");
  EXPECT_TRUE(dest.IsUntouchedBehind());
  Widen(dest.text, 4, "");
  EXPECT_STREQ(dest.text, L"");
}

TEST(FormatNumbered, WritesPrefixAndNumber) {
  wchar_t wide[32];
  FormatNumbered(wide, 32, "Body ", 7);
  EXPECT_STREQ(wide, L"Body 7");
  char narrow[32];
  FormatNumbered(narrow, 32, "Set", 12);
  EXPECT_STREQ(narrow, "Set12");
  FormatNumbered(narrow, 32, "Set", 0);
  EXPECT_STREQ(narrow, "Set0");
  FormatNumbered(narrow, 32, "", -5);
  EXPECT_STREQ(narrow, "-5");
  FormatNumbered(narrow, 32, "x", INT32_MIN);
  EXPECT_STREQ(narrow, "x-2147483648");
  FormatNumbered(narrow, 32, "x", INT32_MAX);
  EXPECT_STREQ(narrow, "x2147483647");
}

TEST(FormatNumbered, CutsToTheCapacityAndTerminates) {
  Guarded<wchar_t, 6> wide;
  FormatNumbered(wide.text, 6, "Mass", 1234);
  EXPECT_STREQ(wide.text, L"Mass1");
  EXPECT_TRUE(wide.IsUntouchedBehind());
  Guarded<char, 3> narrow;
  FormatNumbered(narrow.text, 3, "Mass", 1234);
  EXPECT_STREQ(narrow.text, "Ma");
  EXPECT_TRUE(narrow.IsUntouchedBehind());
}

TEST(FormatSuffixed, WritesNameUnderscoreAndNumber) {
  wchar_t dest[32];
  FormatSuffixed(dest, 32, L"Door", 1);
  EXPECT_STREQ(dest, L"Door_1");
  FormatSuffixed(dest, 32, L"", 12);
  EXPECT_STREQ(dest, L"_12");
  FormatSuffixed(dest, 32, nullptr, 3);
  EXPECT_STREQ(dest, L"_3");
}

TEST(FormatSuffixed, CutsToTheCapacityAndTerminates) {
  Guarded<wchar_t, 6> dest;
  FormatSuffixed(dest.text, 6, L"Door", 12);
  EXPECT_STREQ(dest.text, L"Door_");
  EXPECT_TRUE(dest.IsUntouchedBehind());
  FormatSuffixed(dest.text, 6, L"Bonnet", 1);
  EXPECT_STREQ(dest.text, L"Bonne");
  EXPECT_TRUE(dest.IsUntouchedBehind());
}

}  // namespace
}  // namespace btz
