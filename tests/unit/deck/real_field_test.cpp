// Reals from fields: on the column grid with a step over a line feed, and as tokens that give the grid up.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>

#include "deck/deck_text.h"
#include "deck/fields.h"

namespace btz {
namespace {

using test::DeckText;

TEST(ReadRealField, ReadsTheFieldAndMovesToItsEnd) {
  DeckText text("     1.5   2.5+1\n");
  double value = -1.0;
  ReadRealField(8, &text.cursor, &value);
  EXPECT_EQ(value, 1.5);
  EXPECT_EQ(text.Place(), 8u);
  ReadRealField(8, &text.cursor, &value);
  EXPECT_EQ(value, 25.0);
  EXPECT_EQ(text.Place(), 16u);
  EXPECT_EQ(text.Bytes(), "     1.5   2.5+1\n");
}

TEST(ReadRealField, ReadsLargeFields) {
  DeckText text("      1.23456789*       9.\n");
  double value = -1.0;
  ReadRealField(16, &text.cursor, &value);
  EXPECT_EQ(value, 23456789.0 / 10 / 10 / 10 / 10 / 10 / 10 / 10 / 10 + 1.0);
  EXPECT_EQ(text.Place(), 16u);
}

TEST(ReadRealField, OnALineFeedReadsFromTheNextLine) {
  DeckText text("\n     2.5     3.5\n");
  double value = -1.0;
  ReadRealField(8, &text.cursor, &value);
  EXPECT_EQ(value, 2.5);
  EXPECT_EQ(text.Place(), 9u);
}

TEST(ReadRealField, StepsOverOneLineFeedOnly) {
  DeckText text("\n\n     2.5");
  double value = -1.0;
  ReadRealField(8, &text.cursor, &value);
  EXPECT_EQ(value, 0.0);
  EXPECT_EQ(text.Place(), 1u);
}

TEST(ReadRealField, StopsOnTheLineFeedOfAShortLine) {
  DeckText text("1.5\n  9");
  double value = -1.0;
  ReadRealField(8, &text.cursor, &value);
  EXPECT_EQ(value, 1.5);
  EXPECT_EQ(text.Place(), 3u);
}

TEST(ReadRealField, EndsAtTheNul) {
  DeckText text("1.5");
  double value = -1.0;
  ReadRealField(8, &text.cursor, &value);
  EXPECT_EQ(value, 1.5);
  EXPECT_EQ(text.Place(), 3u);
  ReadRealField(8, &text.cursor, &value);
  EXPECT_EQ(value, 0.0);
  EXPECT_EQ(text.Place(), 3u);
  DeckText lineFeed("\n");
  ReadRealField(8, &lineFeed.cursor, &value);
  EXPECT_EQ(value, 0.0);
  EXPECT_EQ(lineFeed.Place(), 1u);
  EXPECT_TRUE(text.IsUntouchedBehind());
}

TEST(ReadRealField, IgnoresACarriageReturn) {
  DeckText text("   -2.5\r\n");
  double value = -1.0;
  ReadRealField(16, &text.cursor, &value);
  EXPECT_EQ(value, -2.5);
  EXPECT_EQ(text.Place(), 8u);
}

TEST(ReadRealToken, WithoutSkippingTakesTheWholeWidth) {
  DeckText text("     1.5     2.5");
  double value = -1.0;
  ReadRealToken(8, &text.cursor, &value, false);
  EXPECT_EQ(value, 1.5);
  EXPECT_EQ(text.Place(), 8u);
}

TEST(ReadRealToken, WithoutSkippingReadsAcrossALineFeed) {
  DeckText text("\n    2.5    7");
  double value = -1.0;
  ReadRealToken(8, &text.cursor, &value, false);
  EXPECT_EQ(value, 2.5) << "the line feed is ignored by the conversion";
  EXPECT_EQ(text.Place(), 8u) << "and counts as a column";
  DeckText split("1\n2\n3456789");
  ReadRealToken(8, &split.cursor, &value, false);
  EXPECT_EQ(value, 123456.0);
  EXPECT_EQ(split.Place(), 8u);
}

TEST(ReadRealToken, WithSkippingEndsBehindTheToken) {
  DeckText text("    1.5   2.5+1 3.\n 4.");
  double value = -1.0;
  ReadRealToken(8, &text.cursor, &value, true);
  EXPECT_EQ(value, 1.5);
  EXPECT_EQ(text.Place(), 7u);
  ReadRealToken(8, &text.cursor, &value, true);
  EXPECT_EQ(value, 25.0);
  EXPECT_EQ(text.Place(), 15u);
  ReadRealToken(8, &text.cursor, &value, true);
  EXPECT_EQ(value, 3.0);
  EXPECT_EQ(text.Place(), 18u) << "on the line feed";
  ReadRealToken(8, &text.cursor, &value, true);
  EXPECT_EQ(value, 0.0);
  EXPECT_EQ(text.Place(), 18u) << "there is no step over it";
}

TEST(ReadRealToken, WithSkippingATokenIsNotLongerThanTheWidth) {
  DeckText text("  1234567890");
  double value = -1.0;
  ReadRealToken(8, &text.cursor, &value, true);
  EXPECT_EQ(value, 12345678.0);
  EXPECT_EQ(text.Place(), 10u);
}

TEST(ReadRealToken, WithSkippingOnlyBlanksSeparate) {
  DeckText text(" 1.\r\n");
  double value = -1.0;
  ReadRealToken(8, &text.cursor, &value, true);
  EXPECT_EQ(value, 1.0);
  EXPECT_EQ(text.Place(), 4u) << "the carriage return belongs to the token";
  DeckText tab("1\t2 ");
  ReadRealToken(8, &tab.cursor, &value, true);
  EXPECT_EQ(value, (1.0 * 10 - 39) * 10 + 2) << "a tab is a digit of -39";
}

TEST(ReadRealToken, EndsAtTheNul) {
  for (const bool skipBlanks : {false, true}) {
    DeckText text(" 2.5");
    double value = -1.0;
    ReadRealToken(16, &text.cursor, &value, skipBlanks);
    EXPECT_EQ(value, 2.5);
    EXPECT_EQ(text.Place(), 4u);
    ReadRealToken(16, &text.cursor, &value, skipBlanks);
    EXPECT_EQ(value, 0.0);
    EXPECT_EQ(text.Place(), 4u);
    EXPECT_TRUE(text.IsUntouchedBehind());
  }
}

TEST(ReadRealFieldAndToken, ReadTheSameBytesAsTheRulesSay) {
  std::mt19937 random(31);
  const std::string alphabet = "0123456789.+-E     \n\r*X";
  for (int i = 0; i < 20000; ++i) {
    std::string content;
    for (std::uint32_t length = random() % 40; length > 0; --length) {
      content += alphabet[random() % alphabet.size()];
    }
    const std::size_t width = random() % 2 == 0 ? 8 : 16;

    std::size_t start = content[0] == '\n' ? 1 : 0;
    std::size_t end = start;
    while (end < content.size() && end - start < width && content[end] != '\n') {
      ++end;
    }
    DeckText field(content);
    double value = -1.0;
    ReadRealField(static_cast<std::int32_t>(width), &field.cursor, &value);
    ASSERT_EQ(value, ParseReal(content.substr(start, end - start).c_str())) << content;
    ASSERT_EQ(field.Place(), end) << content;

    start = 0;
    while (start < content.size() && content[start] == ' ') {
      ++start;
    }
    end = start;
    while (end < content.size() && end - start < width && content[end] != '\n' && content[end] != ' ') {
      ++end;
    }
    DeckText token(content);
    ReadRealToken(static_cast<std::int32_t>(width), &token.cursor, &value, true);
    ASSERT_EQ(value, ParseReal(content.substr(start, end - start).c_str())) << content;
    ASSERT_EQ(token.Place(), end) << content;
    ASSERT_EQ(token.Bytes(), content);
  }
}

}  // namespace
}  // namespace btz
