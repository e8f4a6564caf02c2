// Peeking at a field, trimming and compacting it, moving on and searching without regard to case.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "deck/deck_text.h"
#include "deck/fields.h"

namespace btz {
namespace {

using test::DeckText;

std::string Peek(const std::string& content, std::int32_t width) {
  DeckText text(content);
  FieldText field;
  std::memset(field, '#', sizeof(field));
  PeekField(width, text.cursor, field);
  EXPECT_EQ(text.Place(), 0u);
  EXPECT_EQ(text.Bytes(), content);
  EXPECT_TRUE(text.IsUntouchedBehind());
  return field;
}

TEST(PeekField, CopiesWidthBytesWithoutMoving) {
  EXPECT_EQ(Peek("       1       2", 8), "       1");
  EXPECT_EQ(Peek("       1       2       3", 16), "       1       2");
}

TEST(PeekField, DoesNotStopAtALineFeed) {
  EXPECT_EQ(Peek("  1\nGRID    ", 8), "  1\nGRID");
  EXPECT_EQ(Peek("\n+       \r\n", 8), "\n+      ");
}

TEST(PeekField, StopsAtTheNul) {
  EXPECT_EQ(Peek("  1", 8), "  1");
  EXPECT_EQ(Peek("", 16), "");
  EXPECT_EQ(Peek(std::string("12\0"
                             "34",
                             5),
                 8),
            "12");
}

template <typename Routine>
std::string Apply(Routine routine, std::string content) {
  char text[64];
  std::memcpy(text, content.c_str(), content.size() + 1);
  EXPECT_EQ(routine(text), text);
  return text;
}

TEST(TrimLeft, RemovesLeadingSpaceByMovingTheRestDown) {
  EXPECT_EQ(Apply(TrimLeft, "  \t\r\n\v\fab c  "), "ab c  ");
  EXPECT_EQ(Apply(TrimLeft, "ab"), "ab");
  EXPECT_EQ(Apply(TrimLeft, "   "), "");
  EXPECT_EQ(Apply(TrimLeft, ""), "");
  EXPECT_EQ(TrimLeft(nullptr), nullptr);
}

TEST(TrimRight, OverwritesTrailingSpace) {
  EXPECT_EQ(Apply(TrimRight, "  ab c \t\r\n\v\f"), "  ab c");
  EXPECT_EQ(Apply(TrimRight, "ab"), "ab");
  EXPECT_EQ(Apply(TrimRight, "   "), "");
  EXPECT_EQ(Apply(TrimRight, ""), "");
  EXPECT_EQ(TrimRight(nullptr), nullptr);
}

TEST(TrimField, TrimsBothSidesAndNothingInside) {
  EXPECT_EQ(Apply(TrimField, " \n a  b \r\n"), "a  b");
  EXPECT_EQ(Apply(TrimField, "\xA0 x"), "\xA0 x") << "a no-break space is no space";
  EXPECT_EQ(Apply(TrimField, " \t "), "");
  EXPECT_EQ(TrimField(nullptr), nullptr);
}

std::string Compact(const std::string& content) {
  char text[64];
  std::memcpy(text, content.c_str(), content.size() + 1);
  char* result = CompactField(text);
  if (result == nullptr) {
    EXPECT_STREQ(text, "") << "nothing may be left";
    return "(null)";
  }
  EXPECT_EQ(result, text);
  return text;
}

TEST(CompactField, GivesNullAndAnEmptyTextForBlanks) {
  EXPECT_EQ(Compact("        "), "(null)");
  EXPECT_EQ(Compact(""), "(null)");
  EXPECT_EQ(Compact(" \t\r\n\v\f "), "(null)");
  EXPECT_EQ(CompactField(nullptr), nullptr);
}

TEST(CompactField, TrimsAtBothEnds) {
  EXPECT_EQ(Compact("  123   "), "123");
  EXPECT_EQ(Compact("\nCQUAD4 "), "CQUAD4");
  EXPECT_EQ(Compact("12\r\n"), "12");
}

TEST(CompactField, KeepsRepeatedCharactersAtTheEnd) {
  EXPECT_EQ(Compact("1 2"), "122");
  EXPECT_EQ(Compact("A B C"), "ABC C") << "five characters stay: A, B and C moved down, then the old fourth and fifth";
  EXPECT_EQ(Compact("A  BC"), "ABCBC");
  EXPECT_EQ(Compact(" 1 2 "), "122");
  EXPECT_EQ(Compact("a b"), "abb");
  EXPECT_EQ(Compact("ab   cd"), "abcd cd");
}

TEST(CompactField, DropsALineFeedInsideLikeABlank) {
  EXPECT_EQ(Compact("  1\nGRID"), "1GRIDD");
  EXPECT_EQ(Compact("1\r\nGRID"), "1GRIDID");
}

TEST(Advance, MovesAheadButNotBehindTheNul) {
  DeckText text("12345");
  Advance(&text.cursor, 3);
  EXPECT_EQ(text.Place(), 3u);
  Advance(&text.cursor, 0);
  EXPECT_EQ(text.Place(), 3u);
  Advance(&text.cursor, 8);
  EXPECT_EQ(text.Place(), 5u);
  Advance(&text.cursor, 8);
  EXPECT_EQ(text.Place(), 5u);
}

TEST(FieldLength, EndsAtLineFeedNulOrWidth) {
  EXPECT_EQ(FieldLength("123\n5678", 8), 3);
  EXPECT_EQ(FieldLength("123", 8), 3);
  EXPECT_EQ(FieldLength("123456789", 8), 8);
  EXPECT_EQ(FieldLength("\n", 8), 0);
  EXPECT_EQ(FieldLength("12\r\n", 8), 3) << "a carriage return is text";
  EXPECT_EQ(FieldLength("1234567\n", 8), 7);
  EXPECT_EQ(FieldLength("12345678\n", 8), 8);
}

TEST(FindNoCase, FindsAnyCaseMix) {
  const char* text = "1.5Alpha";
  EXPECT_EQ(FindNoCase(text, "."), text + 1);
  EXPECT_EQ(FindNoCase(text, "aLPHA"), text + 3);
  EXPECT_EQ(FindNoCase(text, "beta"), nullptr);
  EXPECT_EQ(FindNoCase(nullptr, "a"), nullptr);
  EXPECT_EQ(FindNoCase("a", nullptr), nullptr);
}

}  // namespace
}  // namespace btz
