// The walk of property and material cards over positions: what a field is, which position it takes, where the walk ends; and the same on
// random text, compared with the walk's tests taken one after the other.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "deck/card_boundaries.h"
#include "deck/columns.h"
#include "deck/deck_text.h"
#include "deck/plain_fields.h"
#include "deck/position_walk.h"
#include "deck/random_lines.h"

namespace btz {
namespace {

using test::DeckText;
using test::Large;

constexpr double untouched = -99.0;
constexpr std::uint8_t unmarked = 77;

PositionKind KindOf(const std::string& content, std::int32_t width = 8) {
  const DeckText text(content);
  FieldText field;
  return ClassifyPosition(text.cursor, width, field);
}

TEST(PositionKind, ANumberIsAValue) {
  for (const char* field : {"1.5", "0", "0.0", "-.5", "1.5E+3", "1.5-3", "0.0E+0", ".", "-", "1 2"}) {
    EXPECT_EQ(KindOf(field), PositionKind::Value) << field;
  }
}

TEST(PositionKind, NothingButWhiteSpaceIsABlank) {
  for (const char* field : {"", "        ", "\n", "\r\n      ", "\t", "\n       7"}) {
    EXPECT_EQ(KindOf(field), PositionKind::Blank) << "\"" << field << '"';
  }
}

TEST(PositionKind, AMarkMustNotReadAsANumber) {
  for (const char* field : {"+", "+CONT", "+0", "\n+       ", "0.0\n+   ", "+.0E", "-+5", "+-5"}) {
    EXPECT_EQ(KindOf(field), PositionKind::ContinuationMark) << "\"" << field << '"';
  }
  for (const char* field : {"+1", "+1.5", "1.5+3", "7\n+", "+2A"}) {
    EXPECT_EQ(KindOf(field), PositionKind::Value) << "\"" << field << '"';
  }
  EXPECT_EQ(KindOf("A+"), PositionKind::Text) << "a letter stands before the plus sign";
}

TEST(PositionKind, AStarMustNotReadAsANumberEither) {
  for (const char* field : {"*", "*       1.5", "*A7", "\n*      ", "0.0*", "FORCE*", "-*"}) {
    EXPECT_EQ(KindOf(field, 16), PositionKind::StarMarker) << "\"" << field << '"';
  }
  for (const char* field : {"GRID*", "\nPSHELL*", "SPC*", "CHEXA  *", "LOAD*"}) {
    EXPECT_EQ(KindOf(field), PositionKind::StarKeyword) << "\"" << field << '"';
  }
  for (const char* field : {"1.5*", "2*3", "7GRID*"}) {
    EXPECT_EQ(KindOf(field), PositionKind::Value) << field;
  }
  EXPECT_EQ(KindOf("+*"), PositionKind::ContinuationMark) << "the mark comes before the star";
}

TEST(PositionKind, AnyTextWithoutANumberEndsTheCard) {
  for (const char* field : {"GRID", "FORCE", "THRU", "E", "$", "$1", "\n$ note", "0.0\nGRID", "D+3", "0A", "inf", "nan"}) {
    EXPECT_EQ(KindOf(field), PositionKind::Text) << "\"" << field << '"';
  }
  for (const char* field : {"1.0E5", "1.5D+3", "3A", "1$", "7\nGRID"}) {
    EXPECT_EQ(KindOf(field), PositionKind::Value) << "\"" << field << '"';
  }
}

/// The values and marks of a walk over a text.
struct Walked {
  Walked(const std::string& content, std::int32_t width, std::size_t count, std::size_t start = 0)
      : values(count, untouched), blanks(count, unmarked) {
    DeckText text(content, start);
    reached = WalkPositions(&text.cursor, width, values.data(), blanks.data(), static_cast<std::int32_t>(count));
    place = text.Place();
    rest = text.Rest();
    EXPECT_EQ(text.Bytes(), content) << "the text stays as it is";
    EXPECT_TRUE(text.IsUntouchedBehind());
  }

  std::vector<double> values;
  std::vector<std::uint8_t> blanks;
  std::int32_t reached = -1;
  std::size_t place = 0;
  std::string rest;
};

using Values = std::vector<double>;
using Blanks = std::vector<std::uint8_t>;

TEST(PositionWalk, ABlankFieldTakesItsPosition) {
  const Walked walked("1.0             3.0     4.0     5.0     ", 8, 4);
  EXPECT_EQ(walked.reached, 4);
  EXPECT_EQ(walked.values, (Values{1.0, 0.0, 3.0, 4.0}));
  EXPECT_EQ(walked.blanks, (Blanks{0, 1, 0, 0}));
  EXPECT_EQ(walked.rest, "5.0     ");
}

TEST(PositionWalk, WhatIsNotReachedKeepsItsValueAndMark) {
  const Walked walked("1.0     \nGRID    7       ", 8, 3);
  EXPECT_EQ(walked.reached, 1);
  EXPECT_EQ(walked.values, (Values{1.0, untouched, untouched}));
  EXPECT_EQ(walked.blanks, (Blanks{0, unmarked, unmarked}));
  EXPECT_EQ(walked.rest, "\nGRID    7       ") << "the text that ends the card stays";
}

TEST(PositionWalk, TextThatIsNoKeywordOfTheListEndsTheCardToo) {
  EXPECT_EQ(Walked("1.0     \nFORCE   7       ", 8, 3).reached, 1);
  EXPECT_EQ(Walked("1.0     \n$ note\n", 8, 3).reached, 1);
}

TEST(PositionWalk, ALargeCardOfTheListEndsTheCard) {
  const Walked walked("1.0     \nGRID*   7       ", 8, 3);
  EXPECT_EQ(walked.reached, 1);
  EXPECT_EQ(walked.rest, "\nGRID*   7       ");
}

// Required: the keyword is stepped over as a marker would be, and the fields behind it are taken for the card's own.
TEST(PositionWalk, ALargeCardOutsideTheListIsReadOn) {
  const Walked walked("1.0     \nFORCE*  7               8               ", 8, 4);
  EXPECT_EQ(walked.values, (Values{1.0, 7.0, 0.0, 8.0}));
  EXPECT_EQ(walked.blanks, (Blanks{0, 0, 1, 0}));
  EXPECT_EQ(walked.rest, "        ");
}

TEST(PositionWalk, MarksOfContinuationLinesTakeNoPosition) {
  const Walked walked("1.0     +A1     \n+A1     2.0     \n+       3.0     \n", 8, 3);
  EXPECT_EQ(walked.values, (Values{1.0, 2.0, 3.0}));
  EXPECT_EQ(walked.blanks, (Blanks{0, 0, 0}));
  EXPECT_EQ(walked.rest, "\n");
}

// Required: a label that is a number is read as one, at the end of its line and again at the start of the next.
TEST(PositionWalk, ANumericLabelIsAValue) {
  const Walked walked("1.0     +1      \n+1      2.0     \n", 8, 4);
  EXPECT_EQ(walked.values, (Values{1.0, 1.0, 1.0, 2.0}));
}

TEST(PositionWalk, StarMarkersAreEightColumnsWide) {
  const Walked walked(Large("MAT1*|1.0|2.0") + Large("*|3.0|4.0") + Large("*B|5.0"), 16, 5, 8);
  EXPECT_EQ(walked.values, (Values{1.0, 2.0, 3.0, 4.0, 5.0}));
  EXPECT_EQ(walked.rest, "\n");
}

TEST(PositionWalk, AStarAtTheEndOfALineAndAtTheStartOfTheNext) {
  const Walked walked("1.0             *\n*       2.0             *C1     \n*C1     3.0             ", 16, 3);
  EXPECT_EQ(walked.values, (Values{1.0, 2.0, 3.0}));
  EXPECT_EQ(walked.rest, "");
}

// Required: the peek at a field crosses the line end, so an unpadded zero is judged with the head of the next line.
TEST(PositionWalk, AnUnpaddedZeroBeforeAMarkIsLost) {
  const Walked walked("1.0     0.0\n+       2.0     \n", 8, 2);
  EXPECT_EQ(walked.values, (Values{1.0, 2.0}));
  EXPECT_EQ(Walked("1.0     0.5\n+       2.0     \n", 8, 3).values, (Values{1.0, 0.5, 2.0})) << "any other number is kept";
  EXPECT_EQ(Walked("1.0     0.0     \n+       2.0     \n", 8, 3).values, (Values{1.0, 0.0, 2.0})) << "and so is a padded one";
}

TEST(PositionWalk, AnUnpaddedZeroBeforeTextEndsTheCard) {
  const Walked walked("1.0     0.0\nGRID    2.0     \n", 8, 3);
  EXPECT_EQ(walked.reached, 1);
  EXPECT_EQ(walked.rest, "0.0\nGRID    2.0     \n");
}

TEST(PositionWalk, ABlankMarkerOfALineTakesOnePositionWithTheLineEnd) {
  const Walked walked("1.0     \n        2.0     \n", 8, 3);
  EXPECT_EQ(walked.values, (Values{1.0, 0.0, 2.0}));
  EXPECT_EQ(walked.blanks, (Blanks{0, 1, 0}));
}

// Required: the carriage return is a blank field of its own, with the line feed behind it not yet passed.
TEST(PositionWalk, ABlankMarkerBehindACarriageReturnTakesTwo) {
  const Walked walked("1.0     \r\n        2.0     \r\n", 8, 4);
  EXPECT_EQ(walked.values, (Values{1.0, 0.0, 0.0, 2.0}));
  EXPECT_EQ(walked.blanks, (Blanks{0, 1, 1, 0}));
}

TEST(PositionWalk, ACarriageReturnBeforeAMarkIsSteppedOverWithIt) {
  const Walked walked("1.0     \r\n+       2.0\r\nGRID    ", 8, 3);
  EXPECT_EQ(walked.values, (Values{1.0, 2.0, untouched}));
  EXPECT_EQ(walked.rest, "\nGRID    ") << "the carriage return belongs to the unpadded field";
}

// Required: at the text's end a position is blank like any other.
TEST(PositionWalk, AtTheTextsEndThePositionsLeftAreBlank) {
  const Walked walked("1.0     \n", 8, 3);
  EXPECT_EQ(walked.reached, 3);
  EXPECT_EQ(walked.values, (Values{1.0, 0.0, 0.0}));
  EXPECT_EQ(walked.blanks, (Blanks{0, 1, 1}));
  EXPECT_EQ(walked.rest, "");
}

TEST(PositionWalk, OfNoPositionsMovesNothing) {
  const Walked walked("+       1.0     ", 8, 0);
  EXPECT_EQ(walked.reached, 0);
  EXPECT_EQ(walked.place, 0u);
}

/// The walk as it is told.
std::int32_t PlainWalk(const std::string& content, std::size_t* place, std::int32_t width, Walked* out) {
  std::size_t position = 0;
  while (position < out->values.size()) {
    const std::string text = test::PlainField(content, *place, static_cast<std::size_t>(width));
    const bool zero = test::PlainDecimal(text) == 0.0;
    if (test::PlainMark(text) && zero) {
      test::PlainSkip(content, place, width);
      continue;
    }
    if (text.find('*') != std::string::npos && zero) {
      if (IsCardKeyword(text.c_str())) {
        break;
      }
      test::PlainSkip(content, place, 8);
      continue;
    }
    if (test::PlainText(text) && zero) {
      break;
    }
    out->values[position] = test::PlainReal(content, place, width);
    out->blanks[position] = text.empty() ? 1 : 0;
    ++position;
  }
  return static_cast<std::int32_t>(position);
}

/// Lines of fields, marks and keywords, padded or not, cut anywhere.
std::string RandomLines(std::mt19937& random) {
  const char* const heads[] = {"+       ", "+A1     ", "+1      ", "        ", "*       ", "*B2     ", "GRID    ",
                               "FORCE   ", "CHEXA   ", "GRID*   ", "$ note  ", "FORCE*  ", "1       "};
  const char* const fields[] = {"1.0     ", "     0.5", "        ", "0.0     ",         "   1.5+3",     "1.5E+3  ", "1.0E5   ",
                                "THRU    ", "+A1     ", "+1      ", "*       ",         "-4.5    ",     "0.0\n",    "0\r\n",
                                "2.5\n",    "1.5\r\n",  "  a b   ", "1.25            ", "0           *"};
  return test::JoinRandomLines(random, heads, fields);
}

TEST(PositionWalkRandom, TakesTheSameValuesAndMarksAndStopsAtTheSamePlace) {
  std::mt19937 random(81);
  for (int i = 0; i < 60000; ++i) {
    const std::string content = RandomLines(random);
    const std::size_t start = content.empty() || random() % 4 != 0 ? 0 : random() % content.size();
    const std::int32_t width = random() % 2 == 0 ? 8 : 16;
    const std::size_t count = 1 + random() % 16;

    Walked expected("", width, 0);
    expected.values.assign(count, untouched);
    expected.blanks.assign(count, unmarked);
    std::size_t place = start;
    const std::int32_t reached = PlainWalk(content, &place, width, &expected);

    const Walked walked(content, width, count, start);
    ASSERT_EQ(walked.reached, reached) << content;
    ASSERT_EQ(walked.values, expected.values) << content;
    ASSERT_EQ(walked.blanks, expected.blanks) << content;
    ASSERT_EQ(walked.place, place) << content;
  }
}

}  // namespace
}  // namespace btz
