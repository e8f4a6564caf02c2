#include "cli/display_text.h"

#include <gtest/gtest.h>

namespace btz::cli {
namespace {

TEST(DisplayText, AsciiStaysAsItIs) {
  EXPECT_EQ(DisplayText(L"Wing skin 7"), "Wing skin 7");
  EXPECT_EQ(DisplayText(L""), "");
}

TEST(DisplayText, WidenedUtf8IsTakenForUtf8) { EXPECT_EQ(DisplayText(L"Fl\u00C3\u00BCgel"), "Fl\xC3\xBCgel"); }

TEST(DisplayText, OtherBytesAreLatin1) {
  EXPECT_EQ(DisplayText(L"Fl\u00FCgel"), "Fl\xC3\xBCgel");
  // The first byte of a character whose second one is missing.
  EXPECT_EQ(DisplayText(L"x\u00C3"), "x\xC3\x83");
}

TEST(DisplayText, OtherCharactersAreEncoded) {
  EXPECT_EQ(DisplayText(L"\u7FFC"), "\xE7\xBF\xBC");
  EXPECT_EQ(DisplayText(L"\u0416"), "\xD0\x96");
}

TEST(DisplayText, ControlCharactersDoNotReachTheTerminal) { EXPECT_EQ(DisplayText(L"a\x1b[2Jb\n"), "a?[2Jb?"); }

TEST(DisplayWidth, CharactersCountOnceAndWideOnesTwice) {
  EXPECT_EQ(DisplayWidth(""), 0u);
  EXPECT_EQ(DisplayWidth("Rib 7"), 5u);
  EXPECT_EQ(DisplayWidth("Fl\xC3\xBCgel"), 6u);
  EXPECT_EQ(DisplayWidth("\xE7\xBF\xBC"), 2u);      // U+7FFC
  EXPECT_EQ(DisplayWidth("\xF0\xA0\x80\x80"), 2u);  // U+20000
  EXPECT_EQ(DisplayWidth("e\xCC\x81"), 1u);         // A letter with a combining accent.
}

TEST(DisplayWidth, BytesThatAreNoUtf8CountOnceEach) {
  EXPECT_EQ(DisplayWidth("a\xFF"
                         "b"),
            3u);
  EXPECT_EQ(DisplayWidth("ab\xE7"), 3u);
}

}  // namespace
}  // namespace btz::cli
