// Integers from fields: the plain field, and the identifier field with its one-character rule and the line end that it takes away.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <random>
#include <string>

#include "deck/deck_text.h"
#include "deck/fields.h"

namespace btz {
namespace {

using test::DeckText;

constexpr std::int32_t unwritten = -777;

TEST(ReadIntField, ReadsTheFieldAndMovesToItsEnd) {
  DeckText text("      42      43\n");
  std::int32_t value = unwritten;
  ReadIntField(8, &text.cursor, &value);
  EXPECT_EQ(value, 42);
  EXPECT_EQ(text.Place(), 8u);
  ReadIntField(8, &text.cursor, &value);
  EXPECT_EQ(value, 43);
  EXPECT_EQ(text.Place(), 16u);
  EXPECT_EQ(text.Bytes(), "      42      43\n");
}

TEST(ReadIntField, DoesNotReadIntoTheNextField) {
  DeckText text("1234567890123456789012345678901234567890");
  std::int32_t value = unwritten;
  ReadIntField(8, &text.cursor, &value);
  EXPECT_EQ(value, 12345678);
  ReadIntField(16, &text.cursor, &value);
  EXPECT_EQ(value, static_cast<std::int32_t>(static_cast<std::uint32_t>(9012345678901234ull)));
  EXPECT_EQ(text.Place(), 24u);
}

TEST(ReadIntField, StopsOnTheLineFeedOfAShortLine) {
  DeckText text(" 42\n    9999");
  std::int32_t value = unwritten;
  ReadIntField(8, &text.cursor, &value);
  EXPECT_EQ(value, 42);
  EXPECT_EQ(text.Place(), 3u);
  EXPECT_EQ(text.Bytes(), " 42\n    9999");
}

TEST(ReadIntField, GivesZeroOnALineFeedAndDoesNotMove) {
  DeckText text("\n     123");
  std::int32_t value = unwritten;
  ReadIntField(8, &text.cursor, &value);
  EXPECT_EQ(value, 0);
  EXPECT_EQ(text.Place(), 0u);
}

TEST(ReadIntField, GivesZeroOnTheNulAndDoesNotMove) {
  DeckText text("");
  std::int32_t value = unwritten;
  ReadIntField(16, &text.cursor, &value);
  EXPECT_EQ(value, 0);
  EXPECT_EQ(text.Place(), 0u);
  EXPECT_TRUE(text.IsUntouchedBehind());
}

TEST(ReadIntField, EndsAtTheNul) {
  DeckText text("  12");
  std::int32_t value = unwritten;
  ReadIntField(8, &text.cursor, &value);
  EXPECT_EQ(value, 12);
  EXPECT_EQ(text.Place(), 4u);
  EXPECT_TRUE(text.IsUntouchedBehind());
}

TEST(ReadIntField, TakesTheNumberAtTheFieldsStart) {
  const struct {
    const char* field;
    std::int32_t value;
  } cases[] = {{"-5      ", -5}, {"+5      ", 5}, {"12 34   ", 12}, {"1.9     ", 1}, {"THRU    ", 0}, {"        ", 0}, {"\t 8\r\n   ", 8}};
  for (const auto& [field, expected] : cases) {
    DeckText text(field);
    std::int32_t value = unwritten;
    ReadIntField(8, &text.cursor, &value);
    EXPECT_EQ(value, expected) << field;
  }
}

/// What ReadIdField left behind.
struct IdResult {
  bool written;
  std::int32_t value;
  std::size_t place;
  std::string bytes;

  friend bool operator==(const IdResult&, const IdResult&) = default;
  friend void PrintTo(const IdResult& result, std::ostream* out) {
    *out << result.written << ' ' << result.value << " at " << result.place << " in \"" << result.bytes << '"';
  }
};

IdResult ReadId(const std::string& content, std::int32_t width, bool skipBlanks) {
  DeckText text(content);
  std::int32_t value = unwritten;
  const bool written = ReadIdField(width, &text.cursor, &value, skipBlanks);
  EXPECT_TRUE(text.IsUntouchedBehind());
  EXPECT_EQ(written, value != unwritten);
  return {written, value, text.Place(), std::string(text.Bytes())};
}

TEST(ReadIdField, ReadsAFullFieldAndChangesNothing) {
  EXPECT_EQ(ReadId("     123CQUAD4  9\n", 8, false), (IdResult{true, 123, 8, "     123CQUAD4  9\n"}));
  EXPECT_EQ(ReadId("             123       4\n", 16, false), (IdResult{true, 123, 16, "             123       4\n"}));
}

TEST(ReadIdField, AFullFieldMayEndAtTheLineFeed) {
  EXPECT_EQ(ReadId("     123\nGRID\n", 8, false), (IdResult{true, 123, 8, "     123\nGRID\n"}));
}

TEST(ReadIdField, ReplacesALineFeedInsideTheFieldByTheByteBehindTheWidth) {
  // Bytes: 0 '1', 1 '2', 2 line feed, 3-8 "CQUAD4": the byte at 8 is '4'.
  EXPECT_EQ(ReadId("12\nCQUAD4  99\n", 8, false), (IdResult{true, 12, 2, "124CQUAD4  99\n"}));
  // Bytes: 3 line feed, 4 on "GRID    7": the byte at 8 is a blank.
  EXPECT_EQ(ReadId(" 12\nGRID    7\n", 8, false), (IdResult{true, 12, 3, " 12 GRID    7\n"}));
  // Width 16: the byte at 16 is '5'.
  EXPECT_EQ(ReadId("      12\nGRID   567\n", 16, false), (IdResult{true, 12, 8, "      125GRID   567\n"}));
}

TEST(ReadIdField, TheReplacingByteMayBeALineFeedItself) {
  EXPECT_EQ(ReadId("12\r\nABCD\nXY", 8, false), (IdResult{true, 12, 3, "12\r\nABCD\nXY"}));
}

TEST(ReadIdField, GivesZeroForALineFeedAtTheStartAndReplacesIt) {
  // Bytes: 0 line feed, 1-4 "GRID", 5-8 blank.
  EXPECT_EQ(ReadId("\nGRID    5\n", 8, false), (IdResult{true, 0, 0, " GRID    5\n"}));
  EXPECT_EQ(ReadId("\nCQUAD4 15\n", 8, false), (IdResult{true, 0, 0, "1CQUAD4 15\n"}));
}

TEST(ReadIdField, OneCharacterBeforeTheLineFeedCountsAsEmptyAndIsOverwritten) {
  // Bytes: 0 '7', 1 line feed, 2-5 "GRID", 6-9 blank.
  EXPECT_EQ(ReadId("7\nGRID    5\n", 8, false), (IdResult{false, unwritten, 0, " \nGRID    5\n"}));
  EXPECT_EQ(ReadId("\r\nCQUAD4 15\n", 8, false), (IdResult{false, unwritten, 0, " \nCQUAD4 15\n"}));
  EXPECT_EQ(ReadId("\r\nCQUAD44 15\n", 8, false), (IdResult{false, unwritten, 0, "4\nCQUAD44 15\n"}));
  EXPECT_EQ(ReadId("\r\nGRID*         123\n", 16, false), (IdResult{false, unwritten, 0, "1\nGRID*         123\n"}));
}

TEST(ReadIdField, SkipsBlanksAndCountsTheWidthFromThere) {
  EXPECT_EQ(ReadId("   12   345678X", 8, true), (IdResult{true, 12, 11, "   12   345678X"}));
  EXPECT_EQ(ReadId("123456789", 8, true), (IdResult{true, 12345678, 8, "123456789"}));
}

TEST(ReadIdField, DoesNotSkipTabs) { EXPECT_EQ(ReadId("\t\t12    9", 8, true), (IdResult{true, 12, 8, "\t\t12    9"})); }

TEST(ReadIdField, WithSkippedBlanksTheLineFeedStays) {
  EXPECT_EQ(ReadId("  12\nGRID    7\n", 8, true), (IdResult{true, 12, 4, "  12\nGRID    7\n"}));
  EXPECT_EQ(ReadId("  \nGRID    7\n", 8, true), (IdResult{true, 0, 2, "  \nGRID    7\n"}));
}

TEST(ReadIdField, WithSkippedBlanksOneCharacterBecomesALineFeed) {
  EXPECT_EQ(ReadId("  7\nGRID\n", 8, true), (IdResult{false, unwritten, 2, "  \n\nGRID\n"}));
  EXPECT_EQ(ReadId("  \r\nGRID\n", 8, true), (IdResult{false, unwritten, 2, "  \n\nGRID\n"}));
}

TEST(ReadIdField, OneDigitBeforeTheNulIsANumber) {
  EXPECT_EQ(ReadId("7", 8, false), (IdResult{true, 7, 1, "7"}));
  EXPECT_EQ(ReadId("  7", 8, true), (IdResult{true, 7, 3, "  7"}));
}

TEST(ReadIdField, EndsAtTheNul) {
  EXPECT_EQ(ReadId("", 8, false), (IdResult{true, 0, 0, ""}));
  EXPECT_EQ(ReadId("    ", 8, true), (IdResult{true, 0, 4, "    "}));
  EXPECT_EQ(ReadId("  12", 16, false), (IdResult{true, 12, 4, "  12"}));
}

TEST(ReadIdField, TakesTheNulThatStandsWithinTheWidthForTheByteBehindIt) {
  EXPECT_EQ(ReadId("12\nAB", 8, false), (IdResult{true, 12, 2, std::string("12\0AB", 5)}));
  EXPECT_EQ(ReadId("7\nAB", 8, false), (IdResult{false, unwritten, 0, std::string("\0\nAB", 4)}));
}

/// The rules one by one, on text of which at least `width` bytes behind the cursor exist.
IdResult ReadIdPlainly(std::string bytes, std::size_t width, bool skipBlanks) {
  std::size_t start = 0;
  std::size_t n = width;
  if (skipBlanks) {
    while (bytes[start] == ' ') {
      ++start;
    }
    const std::size_t lineFeed = bytes.find('\n', start);
    n = lineFeed != std::string::npos && lineFeed - start < width ? lineFeed - start : width;
  }
  const char saved = bytes[start + n];
  const std::size_t lineFeed = bytes.find('\n', start);
  const std::size_t m = lineFeed != std::string::npos && lineFeed - start < n ? lineFeed - start : n;
  if (m == 1) {
    bytes[start] = saved;
    return {false, unwritten, start, bytes};
  }
  const auto value = static_cast<std::int32_t>(std::strtoll(bytes.substr(start, m).c_str(), nullptr, 10));
  bytes[start + m] = saved;
  return {true, value, start + m, bytes};
}

TEST(ReadIdField, FollowsItsRulesOnRandomText) {
  std::mt19937 random(11);
  const std::string alphabet = "0123456789      -+\n\n\r\tGX";
  for (int i = 0; i < 50000; ++i) {
    std::string content;
    for (int length = 0; length < 64; ++length) {
      content += alphabet[random() % alphabet.size()];
    }
    content[40] = 'X';  // Blanks end at the latest here, so that the field stays within the text.
    for (const std::int32_t width : {8, 16}) {
      for (const bool skipBlanks : {false, true}) {
        ASSERT_EQ(ReadId(content, width, skipBlanks), ReadIdPlainly(content, static_cast<std::size_t>(width), skipBlanks)) << content;
      }
    }
  }
}

}  // namespace
}  // namespace btz
