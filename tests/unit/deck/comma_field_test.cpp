// Free-format fields that may stand on continuation lines, and the step over plus signs and white space.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <ostream>
#include <random>
#include <string>

#include "deck/deck_text.h"
#include "deck/fields.h"
#include "support/text.h"

namespace btz {
namespace {

using test::DeckText;

std::size_t PlaceAfterSkip(const std::string& content) {
  DeckText text(content);
  SkipPlusAndBlanks(&text.cursor);
  EXPECT_EQ(text.Bytes(), content);
  return text.Place();
}

TEST(SkipPlusAndBlanks, PassesPlusSignsAndAllWhiteSpace) {
  EXPECT_EQ(PlaceAfterSkip("+ \t\r\n\v\f++CHEXA"), 9u);
  EXPECT_EQ(PlaceAfterSkip("CHEXA"), 0u);
  EXPECT_EQ(PlaceAfterSkip("\n\n12"), 2u);
  EXPECT_EQ(PlaceAfterSkip("* 12"), 0u);
  EXPECT_EQ(PlaceAfterSkip("-1"), 0u);
  EXPECT_EQ(PlaceAfterSkip("\xE9"), 0u);
}

TEST(SkipPlusAndBlanks, StopsAtTheNul) {
  EXPECT_EQ(PlaceAfterSkip(""), 0u);
  EXPECT_EQ(PlaceAfterSkip(" +\n"), 3u);
}

/// What ReadCommaField did.
struct CommaResult {
  std::int32_t result;
  std::string field;
  std::size_t place;

  friend bool operator==(const CommaResult&, const CommaResult&) = default;
  friend void PrintTo(const CommaResult& read, std::ostream* out) { *out << read.result << " \"" << read.field << "\" at " << read.place; }
};

CommaResult Read(const std::string& content, std::size_t place = 0) {
  DeckText text(content, place);
  char field[64];
  std::memset(field, '#', sizeof(field));
  const std::int32_t result = ReadCommaField(&text.cursor, field, sizeof(field));
  EXPECT_EQ(text.Bytes(), content);
  return {result, field, text.Place()};
}

TEST(ReadCommaField, EndsAtAComma) {
  EXPECT_EQ(Read("12,34"), (CommaResult{0, "12", 3}));
  EXPECT_EQ(Read("THRU,34"), (CommaResult{0, "THRU", 5}));
  EXPECT_EQ(Read("1 2 ,3"), (CommaResult{0, "1 2 ", 5})) << "blanks inside and behind stay";
}

TEST(ReadCommaField, StepsOverOneLineFeedBehindTheComma) {
  EXPECT_EQ(Read("12,\nGRID"), (CommaResult{0, "12", 4}));
  EXPECT_EQ(Read("12,\n\nGRID"), (CommaResult{0, "12", 4}));
  EXPECT_EQ(Read("12,\r\nGRID"), (CommaResult{0, "12", 3})) << "a carriage return is no line feed";
  EXPECT_EQ(Read("12, \nGRID"), (CommaResult{0, "12", 3}));
}

TEST(ReadCommaField, SkipsWhiteSpaceInFront) {
  EXPECT_EQ(Read("\n\n \t\r\n  12,3"), (CommaResult{0, "12", 11}));
  EXPECT_EQ(Read("   12,3"), (CommaResult{0, "12", 6}));
}

TEST(ReadCommaField, ACommaAtTheStartGivesAnEmptyField) {
  EXPECT_EQ(Read(",12"), (CommaResult{0, "", 1}));
  EXPECT_EQ(Read("  ,12"), (CommaResult{0, "", 3}));
  EXPECT_EQ(Read(",\n12"), (CommaResult{0, "", 2}));
}

TEST(ReadCommaField, EndsAtALineFeedThatStaysInTheField) {
  EXPECT_EQ(Read("12\nGRID"), (CommaResult{1, "12\n", 3}));
  EXPECT_EQ(Read("12\r\nGRID"), (CommaResult{1, "12\r\n", 4}));
}

TEST(ReadCommaField, SkipsTheWhiteSpaceBehindTheLineFeed) {
  EXPECT_EQ(Read("12\n\n\r\n \t GRID"), (CommaResult{1, "12\n", 9}));
  EXPECT_EQ(Read("12\n+,13"), (CommaResult{1, "12\n", 3})) << "but no plus sign";
  EXPECT_EQ(Read("12\n"), (CommaResult{1, "12\n", 3}));
}

TEST(ReadCommaField, AFieldThatBeginsWithAPlusKeepsItAndLosesItsFirstRealCharacter) {
  EXPECT_EQ(Read("+12,3"), (CommaResult{0, "+2", 4}));
  EXPECT_EQ(Read("+  12,3"), (CommaResult{0, "+2", 6}));
  EXPECT_EQ(Read("+\n++ 123\n"), (CommaResult{1, "+23\n", 9}));
  EXPECT_EQ(Read("+7,3"), (CommaResult{0, "+", 3}));
  EXPECT_EQ(Read("+,3"), (CommaResult{0, "", 2}));
  EXPECT_EQ(Read("+7\n3"), (CommaResult{1, "+\n", 3}));
}

TEST(ReadCommaField, APlusInsideIsText) { EXPECT_EQ(Read("1+2,3"), (CommaResult{0, "1+2", 4})); }

TEST(ReadCommaField, AtTheNulTheCursorStays) {
  EXPECT_EQ(Read("12"), (CommaResult{-1, "12", 0}));
  EXPECT_EQ(Read("  12"), (CommaResult{-1, "12", 0}));
  EXPECT_EQ(Read(""), (CommaResult{-1, "", 0}));
  EXPECT_EQ(Read(" \n "), (CommaResult{-1, "", 0}));
  EXPECT_EQ(Read("+ "), (CommaResult{-1, "", 0}));
}

TEST(ReadCommaField, ReadsAListFieldByField) {
  DeckText text("SET 1 = 5, 6,\n7,8\n");
  text.cursor += 7;
  char field[16];
  EXPECT_EQ(ReadCommaField(&text.cursor, field, sizeof(field)), 0);
  EXPECT_STREQ(field, "5");
  EXPECT_EQ(ReadCommaField(&text.cursor, field, sizeof(field)), 0);
  EXPECT_STREQ(field, "6");
  EXPECT_EQ(ReadCommaField(&text.cursor, field, sizeof(field)), 0);
  EXPECT_STREQ(field, "7");
  EXPECT_EQ(ReadCommaField(&text.cursor, field, sizeof(field)), 1);
  EXPECT_STREQ(field, "8\n");
  EXPECT_EQ(text.Rest(), "");
}

TEST(ReadCommaField, CutsALongFieldAndMovesBehindIt) {
  DeckText text(std::string(1000, 'x') + ",12");
  char field[8 + 1];
  std::memset(field, '#', sizeof(field));
  EXPECT_EQ(ReadCommaField(&text.cursor, field, 8), 0);
  EXPECT_EQ(std::string(field, 7), "xxxxxxx");
  EXPECT_EQ(field[7], 0);
  EXPECT_EQ(field[8], '#');
  EXPECT_EQ(text.Place(), 1001u);
}

/// The rules one by one. Results of -1 leave the field open.
CommaResult ReadPlainly(const std::string& content) {
  const auto at = [&](std::size_t place) { return place < content.size() ? content[place] : '\0'; };
  std::size_t start = 0;
  while (at(start) == '\n') {
    ++start;
  }
  while (IsSpace(at(start))) {
    ++start;
  }
  std::string field(1, at(start));
  std::size_t walk = start;
  while (at(walk) == '+' || IsSpace(at(walk))) {
    ++walk;
  }
  // `field` has one character for each place from `walk` on; the first of them came from `start`.
  std::size_t index = 0;
  for (;; ++walk, ++index) {
    if (index > 0) {
      field.resize(index);
      field += at(walk);
    }
    if (at(walk) == ',') {
      const std::size_t behind = at(walk + 1) == '\n' ? walk + 2 : walk + 1;
      return {0, field.substr(0, index), behind};
    }
    if (at(walk) == '\n') {
      std::size_t behind = walk;
      while (at(behind) == '\n') {
        ++behind;
      }
      while (at(behind) == '\r') {
        ++behind;
      }
      while (IsSpace(at(behind))) {
        ++behind;
      }
      return {1, field.substr(0, index + 1), behind};
    }
    if (at(walk) == '\0') {
      return {-1, "", 0};
    }
  }
}

TEST(ReadCommaField, FollowsItsRulesOnRandomText) {
  std::mt19937 random(41);
  const std::string alphabet = "012ABC,,, +\n\r\t";
  for (int i = 0; i < 50000; ++i) {
    std::string content;
    for (std::uint32_t length = random() % 24; length > 0; --length) {
      content += alphabet[random() % alphabet.size()];
    }
    const CommaResult expected = ReadPlainly(content);
    CommaResult result = Read(content);
    if (expected.result == -1) {
      result.field.clear();
    }
    ASSERT_EQ(result, expected) << content;
  }
}

}  // namespace
}  // namespace btz
