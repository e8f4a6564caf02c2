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

}  // namespace
}  // namespace btz::cli
