// The field walk over cards written out by hand: continuation marks, star markers, blank fields, and the text that ends a card.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "deck/card_boundaries.h"
#include "deck/deck_text.h"

namespace btz {
namespace {

using test::DeckText;
using Row = std::vector<std::int32_t>;
using RealRow = std::vector<double>;

constexpr FieldWalk anyTextIntegers{8, StopTest::AnyText, NumericTest::Integer};
constexpr FieldWalk anyTextDecimals{8, StopTest::AnyText, NumericTest::Decimal};
constexpr FieldWalk keywordIntegers{8, StopTest::Keyword, NumericTest::Integer};
constexpr FieldWalk keywordDecimals{8, StopTest::Keyword, NumericTest::Decimal};

constexpr FieldWalk Large(FieldWalk walk) {
  walk.width = 16;
  return walk;
}

/// A walk over a text: the values, what the walk returned, and where it stopped.
template <typename Value>
struct Walked {
  std::vector<Value> values;  ///< All slots; those that were not reached hold -9.
  std::int32_t filled = 0;
  std::int32_t blanks = 0;
  std::string rest;  ///< From the cursor on.
};

Walked<std::int32_t> WalkInts(const std::string& content, std::int32_t count, const FieldWalk& walk = anyTextIntegers) {
  DeckText text(content);
  Walked<std::int32_t> walked;
  walked.values.assign(static_cast<std::size_t>(count), -9);
  walked.filled = WalkFields(
      &text.cursor, count, walk,
      [&](std::int32_t slot) { ReadIntField(walk.width, &text.cursor, &walked.values[static_cast<std::size_t>(slot)]); },
      [&] { ++walked.blanks; });
  walked.rest = text.Rest();
  EXPECT_EQ(text.Bytes(), content);
  EXPECT_TRUE(text.IsUntouchedBehind());
  return walked;
}

Walked<double> WalkReals(const std::string& content, std::int32_t count, const FieldWalk& walk = anyTextDecimals) {
  DeckText text(content);
  Walked<double> walked;
  walked.values.assign(static_cast<std::size_t>(count), -9.0);
  walked.filled = WalkFields(&text.cursor, count, walk, [&](std::int32_t slot) {
    ReadRealField(walk.width, &text.cursor, &walked.values[static_cast<std::size_t>(slot)]);
  });
  walked.rest = text.Rest();
  return walked;
}

FieldKind Classify(const std::string& content, const FieldWalk& walk) {
  DeckText text(content);
  const FieldKind kind = ClassifyField(text.cursor, walk);
  EXPECT_EQ(text.Place(), 0u);
  EXPECT_EQ(text.Bytes(), content);
  return kind;
}

TEST(FieldWalk, EndsWhenAllSlotsAreFull) {
  const auto walked = WalkInts("       1       2       3       4\n", 3);
  EXPECT_EQ(walked.values, (Row{1, 2, 3}));
  EXPECT_EQ(walked.filled, 3);
  EXPECT_EQ(walked.rest, "       4\n");
}

TEST(FieldWalk, TakesNothingForNoSlots) {
  const auto walked = WalkInts("       1\n", 0);
  EXPECT_EQ(walked.filled, 0);
  EXPECT_EQ(walked.rest, "       1\n");
}

TEST(FieldWalk, EndsOnTheLineFeedBeforeAKeyword) {
  for (const FieldWalk& walk : {anyTextIntegers, keywordIntegers, anyTextDecimals, keywordDecimals}) {
    const auto walked = WalkInts("       1       2\nCQUAD4         3\n", 4, walk);
    EXPECT_EQ(walked.values, (Row{1, 2, -9, -9}));
    EXPECT_EQ(walked.filled, 2);
    EXPECT_EQ(walked.rest, "\nCQUAD4         3\n");
  }
}

TEST(FieldWalk, EndsOnTheLineFeedOfALineCutShort) {
  const auto walked = WalkInts("       1   2\nGRID           3\n", 4);
  // The peek at the second field sees "   2", the line feed and "GRI": the number 2 stands first, so it is a value.
  EXPECT_EQ(walked.values, (Row{1, 2, -9, -9}));
  EXPECT_EQ(walked.rest, "\nGRID           3\n");
}

TEST(FieldWalk, StepsOverAContinuationMarkAtTheStartOfTheNextLine) {
  const auto walked = WalkInts("       1       2\n+              3       4\n", 4);
  EXPECT_EQ(walked.values, (Row{1, 2, 3, 4}));
  EXPECT_EQ(walked.rest, "\n");
  EXPECT_EQ(walked.blanks, 0);
}

TEST(FieldWalk, StepsOverNamedMarksOnBothLines) {
  const auto walked = WalkInts("       1       2+A1     \n+A1            3       4\n", 4);
  EXPECT_EQ(walked.values, (Row{1, 2, 3, 4}));
}

TEST(FieldWalk, StepsOverBlankContinuationColumns) {
  const auto walked = WalkInts("       1       2\n               3       4\n", 4);
  // The peek on the line feed is blank: a blank field, which ends behind the line feed; then the eight columns are another one.
  EXPECT_EQ(walked.values, (Row{1, 2, 3, 4}));
  EXPECT_EQ(walked.blanks, 2);
}

TEST(FieldWalk, ABlankFieldTakesNoSlot) {
  const auto walked = WalkInts("       1               3\n", 3);
  EXPECT_EQ(walked.values, (Row{1, 3, -9}));
  EXPECT_EQ(walked.filled, 2);
  EXPECT_EQ(walked.blanks, 2) << "the empty column and the line end";
  EXPECT_EQ(walked.rest, "");
}

TEST(FieldWalk, ACarriageReturnIsBlank) {
  const auto walked = WalkInts("       1       2\r\n+              3\r\nGRID\r\n", 4);
  // The peek on the carriage return sees CR LF + and blanks: a mark, which takes the field up to the line feed.
  EXPECT_EQ(walked.values, (Row{1, 2, 3, -9}));
  EXPECT_EQ(walked.rest, "\r\nGRID\r\n");
}

TEST(FieldWalk, TheNulEndsIt) {
  for (const char* content : {"       1       2", "       1       2\n", "       1       2\n   ", "       1       2\n+"}) {
    const auto walked = WalkInts(content, 4);
    EXPECT_EQ(walked.values, (Row{1, 2, -9, -9})) << content;
    EXPECT_EQ(walked.rest, "") << content;
  }
}

TEST(FieldWalk, LargeFieldsStepOverTheStarMarker) {
  const auto walked = WalkInts("               1               2\n*                      3               4\n", 4, Large(anyTextIntegers));
  EXPECT_EQ(walked.values, (Row{1, 2, 3, 4}));
  EXPECT_EQ(walked.rest, "\n");
}

TEST(FieldWalk, AStarMarkerMayStandBeforeAFullValue) {
  const auto walked = WalkInts("               1               2\n*       12345678        \n", 3, Large(anyTextIntegers));
  EXPECT_EQ(walked.values, (Row{1, 2, 12345678}));
}

TEST(FieldWalk, AStarMarkerIsEightColumnsWideWhateverTheWidth) {
  EXPECT_EQ(Classify("*       ", anyTextIntegers), FieldKind::StarMarker);
  const auto walked = WalkInts("*A1            5       6\n", 2);
  EXPECT_EQ(walked.values, (Row{5, 6}));
}

TEST(FieldWalk, AStarBehindANumberIsAValue) {
  EXPECT_EQ(Classify("5*      ", anyTextIntegers), FieldKind::Value);
  EXPECT_EQ(Classify("0*      ", anyTextIntegers), FieldKind::StarMarker);
  EXPECT_EQ(Classify("0.5*    ", anyTextIntegers), FieldKind::StarMarker);
  EXPECT_EQ(Classify("0.5*    ", anyTextDecimals), FieldKind::Value);
}

TEST(FieldWalk, AStarKeywordEndsItAndOtherStarTextIsSteppedOver) {
  for (const FieldWalk& walk : {anyTextIntegers, keywordIntegers}) {
    EXPECT_EQ(Classify("GRID*   ", walk), FieldKind::CardEnd);
    EXPECT_EQ(Classify("FORCE*  ", walk), FieldKind::StarMarker);
  }
  // The step over 8 columns ends behind the line feed on which it begins. The next peek sees FORCE* again and steps over it.
  const auto walked = WalkInts("       1\nFORCE*         7\n", 3);
  EXPECT_EQ(walked.values, (Row{1, 7, -9}));
}

TEST(FieldWalk, AZeroInALargeFieldIsAValue) {
  const auto walked = WalkInts("               0               0\n", 2, Large(anyTextIntegers));
  EXPECT_EQ(walked.filled, 2);
  EXPECT_EQ(walked.values, (Row{0, 0}));
}

TEST(FieldWalk, ALoneExponentLetterIsTextAndASignedExponentIsNot) {
  EXPECT_EQ(Classify("E       ", anyTextDecimals), FieldKind::CardEnd);
  EXPECT_EQ(Classify("1.5E+3  ", anyTextDecimals), FieldKind::Value);
  EXPECT_EQ(Classify("0.E+3   ", anyTextDecimals), FieldKind::Value);
  EXPECT_EQ(Classify("0.E3    ", anyTextDecimals), FieldKind::CardEnd);
  EXPECT_EQ(Classify("1.5E3   ", anyTextDecimals), FieldKind::Value);
}

TEST(FieldWalk, ARealWithAPlusExponentIsTakenForAMarkAndSkipped) {
  EXPECT_EQ(Classify("1.5+3   ", anyTextDecimals), FieldKind::ContinuationMark);
  EXPECT_EQ(Classify("+1.5    ", anyTextDecimals), FieldKind::ContinuationMark);
  const auto walked = WalkReals("     1.0   1.5+3     2.0\n", 3);
  EXPECT_EQ(walked.values, (RealRow{1.0, 2.0, -9.0}));
  const auto minus = WalkReals("     1.0   1.5-3     2.0\n", 3);
  EXPECT_EQ(minus.values, (RealRow{1.0, 1.5 / 10 / 10 / 10, 2.0})) << "a minus is no mark";
}

TEST(FieldWalk, TheNumericValueDecidesAboutTextThatBeginsWithANumber) {
  EXPECT_EQ(Classify("1.0E5   ", anyTextIntegers), FieldKind::Value);
  EXPECT_EQ(Classify("1.0D+3  ", anyTextDecimals), FieldKind::Value);
  EXPECT_EQ(Classify("0.5E5   ", anyTextIntegers), FieldKind::CardEnd) << "as an integer it is 0";
  EXPECT_EQ(Classify("0.5E5   ", anyTextDecimals), FieldKind::Value);
  EXPECT_EQ(Classify("0.5E5   ", keywordIntegers), FieldKind::Value) << "and no keyword";
}

TEST(FieldWalk, OtherTextEndsAnyTextWalksAndIsAValueInKeywordWalks) {
  for (const char* field : {"FORCE   ", "CONM2   ", "THRU    ", "$ text  ", "\nFORCE  ", "\n$ text "}) {
    EXPECT_EQ(Classify(field, anyTextIntegers), FieldKind::CardEnd) << field;
    EXPECT_EQ(Classify(field, anyTextDecimals), FieldKind::CardEnd) << field;
    EXPECT_EQ(Classify(field, keywordIntegers), FieldKind::Value) << field;
    EXPECT_EQ(Classify(field, keywordDecimals), FieldKind::Value) << field;
  }
}

TEST(FieldWalk, AKeywordWalkFillsZerosBeforeAKeywordThatIsNotInTheList) {
  const auto walked = WalkInts("       1\nFORCE          7\n", 3, keywordIntegers);
  EXPECT_EQ(walked.values, (Row{1, 0, 0}));
  EXPECT_EQ(walked.rest, "\nFORCE          7\n") << "an integer read on a line feed does not move";
}

TEST(FieldWalk, AKeywordWalkOfRealsReadsAKeywordThatIsNotInTheListAsANumber) {
  const auto walked = WalkReals("     1.0\nFORCE          7\n", 2, keywordDecimals);
  // F 22, O 31, R 34, C 19 are digits; then E leads to an exponent without digits.
  EXPECT_EQ(walked.values, (RealRow{1.0, ((22.0 * 10 + 31) * 10 + 34) * 10 + 19}));
  EXPECT_EQ(walked.rest, "       7\n");
}

TEST(FieldWalk, AKeywordWithBlanksInsideIsAKeyword) {
  EXPECT_EQ(Classify("GR ID   ", keywordIntegers), FieldKind::CardEnd);
  EXPECT_EQ(Classify("G R I D ", keywordIntegers), FieldKind::CardEnd);
}

TEST(FieldWalk, ACommentWithAPlusBeforeItsFirstLetterIsAMark) {
  EXPECT_EQ(Classify("\n$ + abc", anyTextIntegers), FieldKind::ContinuationMark);
  EXPECT_EQ(Classify("\n$ a + b", anyTextIntegers), FieldKind::CardEnd);
}

TEST(FieldWalk, BytesAbove127AreNeitherTextNorBlank) {
  EXPECT_EQ(Classify("\xE9\xE9      ", anyTextIntegers), FieldKind::Value);
  EXPECT_EQ(Classify("\xA0       ", anyTextIntegers), FieldKind::Value);
}

TEST(FieldWalk, WhiteSpaceOfAnyKindIsBlank) {
  EXPECT_EQ(Classify("        ", anyTextIntegers), FieldKind::Blank);
  EXPECT_EQ(Classify(" \t\r\n\v\f  ", anyTextIntegers), FieldKind::Blank);
  EXPECT_EQ(Classify("", anyTextIntegers), FieldKind::Blank);
  EXPECT_EQ(Classify("   ", anyTextIntegers), FieldKind::Blank);
}

TEST(FieldWalk, LooksAtNoMoreColumnsThanItsWidth) {
  EXPECT_EQ(Classify("       1+", anyTextIntegers), FieldKind::Value);
  EXPECT_EQ(Classify("        GRID    ", anyTextIntegers), FieldKind::Blank);
  EXPECT_EQ(Classify("        GRID    ", Large(anyTextIntegers)), FieldKind::CardEnd);
}

TEST(FieldWalk, WalkIntegersIsTheWalkEndedByAnyText) {
  DeckText text("       1       2\nFORCE          3\n");
  std::int32_t values[4] = {-9, -9, -9, -9};
  EXPECT_EQ(WalkIntegers(&text.cursor, 8, values, 4), 2);
  EXPECT_EQ((Row{values, values + 4}), (Row{1, 2, -9, -9}));
  EXPECT_EQ(text.Rest(), "\nFORCE          3\n");
}

TEST(FieldWalk, ASlotReadByTheIdentifierRuleIsUsedUpWhenTheRuleFindsItEmpty) {
  DeckText text("       1\r\nGRID    ");
  text.cursor += 8;
  std::int32_t value = -9;
  // The peek sees CR LF GRID: text that ends the walk before the rule is asked.
  EXPECT_EQ(WalkFields(&text.cursor, 1, anyTextIntegers, [&](std::int32_t) { ReadIdField(8, &text.cursor, &value, false); }), 0);
  DeckText digit("7\n1234567890");
  EXPECT_EQ(WalkFields(&digit.cursor, 1, anyTextIntegers, [&](std::int32_t) { ReadIdField(8, &digit.cursor, &value, false); }), 1);
  EXPECT_EQ(value, -9);
  EXPECT_EQ(digit.Place(), 0u);
}

}  // namespace
}  // namespace btz
