// The walk of load cards: where a field's text ends, what a field is, where the walk ends; and the same on random text, compared with the
// walk's tests taken one after the other.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "deck/deck_text.h"
#include "deck/line_field_walk.h"
#include "deck/plain_line_walk.h"

namespace btz {
namespace {

using test::DeckText;
using Reals = std::vector<double>;

std::string Peek(const std::string& content, std::int32_t width = 8) {
  const DeckText text(content);
  FieldText field;
  PeekLineField(width, text.cursor, field);
  return field;
}

TEST(LineField, EndsAtItsWidthItsLineOrItsText) {
  EXPECT_EQ(Peek("1.0     2.0     "), "1.0     ");
  EXPECT_EQ(Peek("1.0     2.0     ", 16), "1.0     2.0     ");
  EXPECT_EQ(Peek("0.5\n+       "), "0.5");
  EXPECT_EQ(Peek("0.5"), "0.5");
  EXPECT_EQ(Peek(""), "");
}

TEST(LineField, OfBlanksEndsAtItsLineToo) {
  EXPECT_EQ(Peek("   \nGRID"), "   ");
  EXPECT_EQ(Peek("\r\nGRID"), "\r");
}

TEST(LineField, ThatBeginsAtALineEndShowsTheHeadOfTheNextLine) {
  EXPECT_EQ(Peek("\n+       1.0"), "\n+      ");
  EXPECT_EQ(Peek("\nGRID\nCQ"), "\nGRID");
  EXPECT_EQ(Peek("\n  \nGRID    1"), "\n  \nGRID");
}

/// A walk for three reals over a text.
struct Walked {
  explicit Walked(const std::string& content, std::int32_t width = 8, std::int32_t count = 3) {
    DeckText text(content);
    Reals places(static_cast<std::size_t>(count), -99.0);
    const std::int32_t reached = WalkLineReals(&text.cursor, width, places.data(), count);
    values.assign(places.begin(), places.begin() + reached);
    rest = text.Rest();
    for (std::size_t i = values.size(); i < places.size(); ++i) {
      EXPECT_EQ(places[i], -99.0) << "a place that was not reached keeps its value";
    }
    EXPECT_EQ(text.Bytes(), content);
    EXPECT_TRUE(text.IsUntouchedBehind());
  }

  Reals values;
  std::string rest;
};

TEST(LineWalk, ReadsAsManyRealsAsAskedFor) {
  const Walked walked("     1.0    -2.5     3.0     4.0\n");
  EXPECT_EQ(walked.values, (Reals{1.0, -2.5, 3.0}));
  EXPECT_EQ(walked.rest, "     4.0\n");
}

TEST(LineWalk, ForNoRealsDoesNotMove) { EXPECT_EQ(Walked("1.0", 8, 0).rest, "1.0"); }

TEST(LineWalk, ABlankFieldTakesNoPlace) {
  const Walked walked("        2.0             3.0     \nGRID");
  EXPECT_EQ(walked.values, (Reals{2.0, 3.0}));
  EXPECT_EQ(walked.rest, "\nGRID");
}

TEST(LineWalk, TheLastNumberOfALineIsReadWhateverStandsBelow) {
  for (const char* below : {"GRID    1", "+       ", "FORCE   1", "7"}) {
    const Walked walked(std::string("0.5\n") + below, 8, 1);
    EXPECT_EQ(walked.values, Reals{0.5}) << below;
    EXPECT_EQ(walked.rest, std::string("\n") + below);
  }
}

TEST(LineWalk, GoesOnBehindTheMarkOfAContinuationLine) {
  for (const char* mark : {"+       ", "+F1     ", "        ", "*       ", "+0      "}) {
    const Walked walked(std::string("0.5\n") + mark + "1.5     \nCEND");
    EXPECT_EQ(walked.values, (Reals{0.5, 1.5})) << mark;
    EXPECT_EQ(walked.rest, "\nCEND") << mark;
  }
}

TEST(LineWalk, AMarkStandsAtTheEndOfTheLineToo) { EXPECT_EQ(Walked("1.0     +F1\n+F1     2.0     \nCEND").values, (Reals{1.0, 2.0})); }

TEST(LineWalk, APlusBeforeANumberIsNoMark) {
  EXPECT_EQ(Walked("+1.5    1.5+3   .5+3    ").values, (Reals{1.5, 1500.0, 500.0}));
  EXPECT_EQ(Walked("+0.0    2.0     ").values, Reals{2.0}) << "a zero with its sign reads as a mark";
}

TEST(LineWalk, StepsOverTheStarOfALargeContinuationLine) {
  EXPECT_EQ(Walked("             1.0\n*                    2.0             3.0\n", 16).values, (Reals{1.0, 2.0, 3.0}));
  EXPECT_EQ(Walked("             1.0*FRC1\n*FRC1                2.0", 16).values, (Reals{1.0, 2.0}));
}

TEST(LineWalk, AStarBehindADigitIsPartOfANumber) {
  EXPECT_EQ(Walked("2.0*    ").values, Reals{2.0});
  EXPECT_EQ(Walked("0.5*    3.0     ").values, Reals{3.0}) << "its integer is 0";
}

TEST(LineWalk, AKeywordWithAStarEndsTheCard) {
  const Walked walked("             1.0\nGRID*   1               ", 16);
  EXPECT_EQ(walked.values, Reals{1.0});
  EXPECT_EQ(walked.rest, "\nGRID*   1               ");
}

// Required: FORCE is not in the list of keywords, so its star form is taken for a marker and its numbers for the card's.
TEST(LineWalk, ForceWithAStarDoesNotEndTheCard) {
  const Walked walked("             1.0\nFORCE*  1               10              0", 16);
  EXPECT_EQ(walked.values, (Reals{1.0, 1.0, 10.0}));
  EXPECT_EQ(walked.rest, "0");
}

TEST(LineWalk, AnyTextEndsTheCard) {
  for (const char* text : {"FORCE   1", "GRID", "ABC", "$ note", ".5E5", "0.5D+3", "A+"}) {
    const Walked walked(std::string("1.0     ") + text);
    EXPECT_EQ(walked.values, Reals{1.0}) << text;
    EXPECT_EQ(walked.rest, text);
  }
}

TEST(LineWalk, AnExponentAndALetterBehindADigitAreNoText) {
  EXPECT_EQ(Walked("1.0E5   .5E+1   .5E-1   ").values, (Reals{1e5, 5.0, 0.5 / 10.0}));
}

TEST(LineWalk, EndsWithTheText) {
  for (const char* content : {"1.0     ", "1.0", "1.0\n", "1.0\n\n", "1.0     \n      "}) {
    const Walked walked(content);
    EXPECT_EQ(walked.values, Reals{1.0}) << content;
    EXPECT_EQ(walked.rest, "") << content;
  }
  EXPECT_EQ(Walked("").values, Reals{});
}

TEST(LineWalk, LooksBehindEmptyLines) {
  const Walked ended("1.0\n\n\nGRID");
  EXPECT_EQ(ended.values, Reals{1.0});
  EXPECT_EQ(ended.rest, "\n\n\nGRID");
  EXPECT_EQ(Walked("\n   \n+       2.0").values, Reals{2.0});
}

TEST(LineWalk, CarriageReturnsAreBlanks) {
  EXPECT_EQ(Walked("1.0\r\n+       2.0\r\n+       3.0\r\n").values, (Reals{1.0, 2.0, 3.0})) << "short lines";
  EXPECT_EQ(Walked("     1.0\r\n+            2.0\r\nGRID").values, (Reals{1.0, 2.0})) << "full fields";
  EXPECT_EQ(Walked("     1.0\r\nGRID").rest, "GRID");
}

TEST(LineWalk, ANumberAtTheHeadOfTheNextLineBelongsToTheCard) { EXPECT_EQ(Walked("1.0\n2.0     3.0").values, (Reals{1.0, 2.0, 3.0})); }

TEST(LineWalk, OnRandomTextDoesWhatItsTestsSayOneByOne) {
  const std::vector<std::string> pieces = {"1.0",   "0.0",  "+",   "+1.5",    "1.5+3",     "*",          "*A",   "        ",
                                           "\n",    "\r\n", "E",   "GRID",    "FORCE*",    "SPC*",       "$",    "2",
                                           ".5E+2", "-",    " ",   "       ", "\n+      ", "\n*       ", "THRU", "\t",
                                           "3*4",   "0.5*", "A+B", "\n\n",    "12345678",  ".0",         "1 2",  "LOAD"};
  std::mt19937 random(20);
  for (int round = 0; round < 20000; ++round) {
    std::string content;
    for (std::uint32_t i = random() % 12; i > 0; --i) {
      content += pieces[random() % pieces.size()];
    }
    const std::int32_t width = random() % 2 == 0 ? 8 : 16;
    const std::int32_t count = static_cast<std::int32_t>(random() % 5);
    const Walked walked(content, width, count);
    std::size_t place = 0;
    EXPECT_EQ(walked.values, test::PlainLineReals(content, &place, width, static_cast<std::size_t>(count))) << content;
    EXPECT_EQ(walked.rest, content.substr(place)) << content;
    if (HasFailure()) {
      return;
    }
  }
}

}  // namespace
}  // namespace btz
