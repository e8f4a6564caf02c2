// The tests on a field's text that tell where a card ends, and the step over a field.
#include "deck/card_boundaries.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "deck/deck_text.h"

namespace btz {
namespace {

using test::DeckText;

struct Step {
  std::int32_t result;
  std::size_t place;
};

Step Skip(const std::string& content, std::int32_t width) {
  DeckText text(content);
  const std::int32_t result = SkipField(&text.cursor, width);
  EXPECT_EQ(text.Bytes(), content);
  return {result, text.Place()};
}

void ExpectSkip(const std::string& content, std::int32_t width, std::int32_t result, std::size_t place) {
  const Step step = Skip(content, width);
  EXPECT_EQ(step.result, result) << content;
  EXPECT_EQ(step.place, place) << content;
}

TEST(SkipField, MovesOverWidthBytes) {
  ExpectSkip("       1       2\n", 8, 0, 8);
  ExpectSkip("       1       2       3\n", 16, 0, 16);
}

TEST(SkipField, DoesNotMoveOnANul) {
  ExpectSkip("", 8, 1, 0);
  ExpectSkip(std::string("\0ABC", 4), 8, 1, 0);
}

TEST(SkipField, AShortFieldEndsBehindTheLineFeed) {
  ExpectSkip("  1\n+       2", 8, 0, 4);
  ExpectSkip("  1\r\n+       2", 8, 0, 5);
  ExpectSkip("\n+       2", 8, 0, 1);
}

TEST(SkipField, AFullFieldTakesTheLineFeedThatEndsTheLine) {
  ExpectSkip("       1\nGRID", 8, 0, 9);
  ExpectSkip("       1\r\nGRID", 8, 0, 8);
}

TEST(SkipField, TakesASecondLineFeedDirectlyBehindTheFirst) {
  ExpectSkip("\n\nGRID", 8, 0, 2);
  ExpectSkip("  1\n\n\nGRID", 8, 0, 5);
}

TEST(SkipField, AFullFieldBeforeAnEmptyLineTakesOneLineFeed) { ExpectSkip("       1\n\nGRID", 8, 0, 9); }

TEST(SkipField, EndsAtTheNulWithinTheField) {
  ExpectSkip("  1", 8, 0, 3);
  ExpectSkip("\n", 8, 0, 1);
  ExpectSkip("       1", 16, 0, 8);
}

TEST(LooksLikeText, IsTrueForLettersAndTheDollarSign) {
  for (const char* text : {"GRID", "1A", "$", "1$", "x", "THRU", "12ab", "E", "e", "1.0E5", "1E", "1.0D+3", "-e-x", "E+E"}) {
    EXPECT_TRUE(LooksLikeText(text)) << text;
  }
}

TEST(LooksLikeText, PassesOverAnExponentWithASign) {
  for (const char* text : {"1.0E+5", "1.0e-5", "E+", "e-", "E+E-", "1E+2e-3"}) {
    EXPECT_FALSE(LooksLikeText(text)) << text;
  }
}

TEST(LooksLikeText, IsFalseForNumbersSignsAndOtherBytes) {
  for (const char* text : {"", "12", "-1.5", "+", "*", "1.5+3", "%#_,", "\xE9\xFC"}) {
    EXPECT_FALSE(LooksLikeText(text)) << text;
  }
  EXPECT_FALSE(LooksLikeText(nullptr));
}

TEST(IsContinuationMark, IsTrueForAPlusBeforeAnyLetter) {
  for (const char* text : {"+", "+CONT", "+1.5", "1.5+3", "-+", "$+", "*+", "12+A", "\xE9+"}) {
    EXPECT_TRUE(IsContinuationMark(text)) << text;
  }
}

TEST(IsContinuationMark, IsFalseWithoutAPlusOrBehindALetter) {
  for (const char* text : {"", "A+", "1.5E+3", "e+", "12", "-5", "*", "D+"}) {
    EXPECT_FALSE(IsContinuationMark(text)) << text;
  }
  EXPECT_FALSE(IsContinuationMark(nullptr));
}

TEST(HasStar, IsTrueForAStarAnywhere) {
  EXPECT_TRUE(HasStar("*"));
  EXPECT_TRUE(HasStar("GRID*"));
  EXPECT_TRUE(HasStar("1*2"));
  EXPECT_FALSE(HasStar("GRID"));
  EXPECT_FALSE(HasStar(""));
  EXPECT_FALSE(HasStar(nullptr));
}

/// The whole list in its order. A text that begins with one of these is a keyword.
const std::vector<std::string> plainKeywords = {
    "CTETRA",  "CTRIA3", "CTRIA6", "CHEXA",  "CQUAD4", "CQUAD8",  "CPENTA",  "CBAR",    "PBAR",   "CORD2R", "CORD2C", "PBEAM",
    "CBEAM",   "GRID",   "RBE2",   "RBE3",   "PGAP",   "CGAP",    "CBUSH",   "PBUSH",   "PSOLID", "PSHELL", "PELAS",  "CELAS",
    "MPC",     "SPC",    "SPC1",   "CQUADR", "PLOTEL", "CPYRA",   "SET",     "SURF",    "CORD1C", "CGASK6", "CGASK8", "CGASK12",
    "CGASK16", "MGASK",  "PGASK",  "CORD1R", "DLOAD",  "RLOAD1",  "RLOAD2",  "MAT1",    "MAT4",   "DAREA",  "SPCD",   "SPCADD",
    "MPCADD",  "MFLUID", "ELIST",  "FREQ",   "FREQ1",  "TABDMP1", "TABLED1", "TABLES1", "BEGIN",  "EIGRL",  "PBUSHT", "LOAD"};

bool IsKeywordOfTheList(const std::string& text) {
  for (const std::string& keyword : plainKeywords) {
    if (std::strncmp(text.c_str(), keyword.c_str(), keyword.size()) == 0) {
      return true;
    }
  }
  return false;
}

TEST(IsCardKeyword, KnowsEveryKeywordOfTheList) {
  for (const std::string& keyword : plainKeywords) {
    EXPECT_TRUE(IsCardKeyword(keyword.c_str())) << keyword;
    EXPECT_TRUE(IsCardKeyword((keyword + "*").c_str())) << keyword;
    EXPECT_TRUE(IsCardKeyword((keyword + "XYZ").c_str())) << keyword;
    EXPECT_FALSE(IsCardKeyword(("X" + keyword).c_str())) << keyword;
  }
  EXPECT_TRUE(IsCardKeyword("PLOTEL3"));
  EXPECT_TRUE(IsCardKeyword("PLOTEL4*"));
}

TEST(IsCardKeyword, KnowsNoOther) {
  for (const char* text :
       {"",      "FORCE",  "CONM2",   "CONM1",  "MOMENT",  "PLOAD4",  "PLOAD",  "TEMP",  "RBAR", "CTRIAR", "CTRIA",   "CQUAD",
        "CQUAD", "CORD2S", "CORD1S",  "MAT2",   "MAT8",    "PCOMP",   "PROD",   "CROD",  "CBA",  "GRI",    "ENDDATA", "EIGRA",
        "CGASK", "CGASK1", "CGASK11", "RLOAD",  "RLOAD3",  "TABLED2", "TABLES", "SOL",   "CEND", "PTADD",  "ASET",    "$",
        "+",     "*",      "1GRID",   "TABDMP", "INCLUDE", "NSM",     "CMASS2", "CTETR", "DLOA", "SUR",    "RBE1"}) {
    EXPECT_FALSE(IsCardKeyword(text)) << text;
  }
  EXPECT_TRUE(IsCardKeyword("MAT10")) << "begins with MAT1";
  EXPECT_TRUE(IsCardKeyword("SETTING"));
  EXPECT_TRUE(IsCardKeyword("PBEAML"));
  EXPECT_FALSE(IsCardKeyword(nullptr));
}

TEST(IsCardKeyword, IsCaseSensitive) {
  EXPECT_FALSE(IsCardKeyword("grid"));
  EXPECT_FALSE(IsCardKeyword("Grid"));
  EXPECT_FALSE(IsCardKeyword("cTETRA"));
}

TEST(IsCardKeyword, EqualsTheListOnKeywordsWithOneLetterChanged) {
  std::mt19937 random(51);
  for (int i = 0; i < 200000; ++i) {
    std::string text = plainKeywords[random() % plainKeywords.size()];
    switch (random() % 3) {
      case 0:
        text[random() % text.size()] = static_cast<char>('A' + random() % 26);
        break;
      case 1:
        text[random() % text.size()] = static_cast<char>('0' + random() % 10);
        break;
      default:
        text.resize(random() % text.size());
    }
    ASSERT_EQ(IsCardKeyword(text.c_str()), IsKeywordOfTheList(text)) << text;
  }
}

}  // namespace
}  // namespace btz
