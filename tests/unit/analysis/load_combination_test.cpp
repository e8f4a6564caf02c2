// LOAD and DLOAD: which fields are ids, where the card ends, and which subcases they expand.
#include <gtest/gtest.h>

#include <random>

#include "tests/unit/analysis/combination_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LoadCombination : public CombinationTest {
 protected:
  std::vector<std::int32_t> Ids(std::string_view text) { return IdsOfCard(text, SubcaseId::Load); }
};

TEST_F(LoadCombination, FactorsAreLost) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       2.0     6       \n"), ElementsAre(5, 6));
  EXPECT_THAT(IdsOfCard("DLOAD   10      1.0     1.0     5       2.0     6       \n", SubcaseId::Dload), ElementsAre(5, 6));
}

TEST_F(LoadCombination, ACardExpandsItsOwnTableOnly) {
  Ids("LOAD    10      1.0     1.0     5       \n");
  EXPECT_THAT(IdsOf(Subcase(0).dloadIds), IsEmpty());
  EXPECT_THAT(IdsOf(Subcase(0).spcIds), IsEmpty());
  IdsOfCard("DLOAD   10      1.0     1.0     5       \n", SubcaseId::Dload);
  EXPECT_THAT(IdsOf(Subcase(0).dloadIds), ElementsAre(5));
  EXPECT_THAT(IdsOf(Subcase(0).loadIds), IsEmpty());
}

TEST_F(LoadCombination, ASetThatNobodyAsksForChangesNothing) {
  EXPECT_THAT(Ids("LOAD    11      1.0     1.0     5       \n"), IsEmpty());
  EXPECT_THAT(Ids("LOAD    -10     1.0     1.0     5       \n"), IsEmpty());
}

TEST_F(LoadCombination, SetZeroIsNeverAskedFor) {
  ReadCases("SUBCASE 1\nLOAD = 0\nSUBCASE 2\nLOAD = -4\nSUBCASE 3\nSPC = 3\nBEGIN\n");
  ReadCard("LOAD    0       1.0     1.0     5       \n", SubcaseId::Load);
  ReadCard("LOAD    -4      1.0     1.0     5       \n", SubcaseId::Load);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_THAT(IdsOf(Subcase(i).loadIds), IsEmpty()) << i;
  }
}

TEST_F(LoadCombination, AllSubcasesWithTheIdAreExpanded) {
  ReadCases("SUBCASE 1\nLOAD = 10\nSUBCASE 2\nLOAD = 11\nSUBCASE 3\nLOAD = 10\nSUBCASE 4\nDLOAD = 10\nBEGIN\n");
  ReadCard("LOAD    10      1.0     1.0     5       1.0     6       \n", SubcaseId::Load);
  ReadCard("LOAD    10      1.0     1.0     7       \n", SubcaseId::Load);
  EXPECT_THAT(IdsOf(Subcase(0).loadIds), ElementsAre(5, 6, 7));
  EXPECT_THAT(IdsOf(Subcase(1).loadIds), IsEmpty());
  EXPECT_THAT(IdsOf(Subcase(2).loadIds), ElementsAre(5, 6, 7));
  EXPECT_THAT(IdsOf(Subcase(3).dloadIds), IsEmpty());
}

TEST_F(LoadCombination, ASubcaseMayHaveTheSameIdForSeveralKinds) {
  ReadCases("SUBCASE 1\nLOAD = 10\nSPC = 10\nBEGIN\n");
  ReadCard("LOAD    10      1.0     1.0     5       \n", SubcaseId::Load);
  ReadCard("SPCADD  10      6       \n", SubcaseId::Spc);
  EXPECT_THAT(IdsOf(Subcase(0).loadIds), ElementsAre(5));
  EXPECT_THAT(IdsOf(Subcase(0).spcIds), ElementsAre(6));
}

TEST_F(LoadCombination, IdsStandInTheOrderOfTheirTable) {
  // Of 101 buckets 103 is in bucket 2, 205 and behind it 104 in bucket 3, 4 in bucket 4.
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     205     1.0     103     1.0     4\n"
                  "        1.0     104\n"),
              ElementsAre(103, 205, 104, 4));
}

TEST_F(LoadCombination, AnIdIsHeldOnce) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       2.0     5       3.0     5       \n"), ElementsAre(5));
}

TEST_F(LoadCombination, ZeroIsAnIdANegativeOneIsNot) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     0       2.0     -5      3.0     6       \n"), ElementsAre(0, 6));
}

TEST_F(LoadCombination, BlankFieldsDoNotDisturbTheAlternation) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0             5       2.0             6       3.0     \n"
                  "                7       \n"),
              ElementsAre(5, 6, 7));
}

TEST_F(LoadCombination, TheFirstTwoFactorsAreSteppedOverWhateverTheyHold) {
  EXPECT_THAT(Ids("LOAD    10                      5       2.0     6       \n"), ElementsAre(5, 6));
  EXPECT_THAT(Ids("LOAD    10      1.      GRID    5       \n"), ElementsAre(5));
  EXPECT_THAT(Ids("LOAD    10      +1.5    1.5+1   5       \n"), ElementsAre(5));
}

TEST_F(LoadCombination, AMarkIsSteppedOverAndTheListGoesOn) {
  const char* card =
      "LOAD    10      1.0     1.0     5       2.0     6       3.0     7       +L1     \n"
      "+L1     4.0     8       \n";
  EXPECT_THAT(Ids(card), ElementsAre(5, 6, 7, 8));
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       2.0\n"
                  "+       6       3.0     7\n"
                  "+       4.0     8\n"),
              ElementsAre(5, 6, 7, 8));
}

TEST_F(LoadCombination, LinesThatBeginWithBlanksGoOn) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5\n"
                  "        2.0     6\n"
                  "        3.0     7\n"
                  "SPC1    1       123     4\n"),
              ElementsAre(5, 6, 7));
  EXPECT_EQ(rest, "\nSPC1    1       123     4\n");
}

TEST_F(LoadCombination, CarriageReturnsAreBlanks) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       2.0     6\r\n"
                  "+       3.0     7\r\n"
                  "GRID    1\r\n"),
              ElementsAre(5, 6, 7));
  EXPECT_EQ(rest, "\nGRID    1\r\n");
}

TEST_F(LoadCombination, RealsThatLookLikeMarksTakeNoPlace) {
  // Behind 5 comes its factor: 1.5+1 and +2. are passed over as marks, so 6 counts as the factor and 7 as the next id.
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       1.5+1   6       7       \n"), ElementsAre(5, 7));
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       +2.     6       7       \n"), ElementsAre(5, 7));
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       1.5E+1  6       7       \n"), ElementsAre(5, 6))
      << "behind a letter + is no mark";
}

TEST_F(LoadCombination, FieldsWithAStarTakeNoPlace) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       *       2.0     6       \n"), ElementsAre(5, 6));
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       2*      2.0     6       \n"), ElementsAre(5, 6));
}

TEST_F(LoadCombination, LettersEndTheCard) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       A       6       7       \n"), ElementsAre(5));
  EXPECT_EQ(rest, "A       6       7       \n");
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       1.0E1   6       \n"), ElementsAre(5)) << "an E without a sign is a letter";
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       1.0E-1  6       \n"), ElementsAre(5, 6));
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       1.0     6A      7       \n"), ElementsAre(5)) << "letters behind digits too";
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       $ two   6       7       \n"), ElementsAre(5));
}

TEST_F(LoadCombination, AnyWordInTheNextLineEndsTheCard) {
  for (const char* next : {"GRID    1", "FORCE   1       2", "$ comment", "ENDDATA", "LOAD    11      1.0", "grid    1"}) {
    const std::string line = std::string("\n") + next + "\n";
    EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5" + line), ElementsAre(5)) << next;
    EXPECT_EQ(rest, line) << next;
  }
}

TEST_F(LoadCombination, ACardWithAStarInItsKeywordIsReadOn) {
  // GRID* is passed over like any field with a star: its 21 goes for the factor, its 9 for an id.
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5\n"
                  "GRID*   21      9       \n"),
              ElementsAre(5, 9));
}

TEST_F(LoadCombination, ANumberAtTheHeadOfALineIsSeenFromTheLineEnd) {
  // From the line end 6 is seen twice: once for a factor, whose step leads to the line's head, once for the id.
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5\n"
                  "6       7.0     8       \n"),
              ElementsAre(5, 6, 8));
  // The step over a factor takes the line feed with it, so an id is never looked for from the line end.
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       2.0\n"
                  "6       7.0     8       \n"),
              ElementsAre(5, 6, 8));
}

TEST_F(LoadCombination, FieldsAreEightColumnsInTheLargeFormToo) {
  EXPECT_THAT(Ids("LOAD*   10              1.0     5       2.0     6       \n"), ElementsAre(5, 6));
}

TEST_F(LoadCombination, AShortLineEndsEarly) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0\nGRID    1\n"), IsEmpty());
  EXPECT_EQ(rest, "GRID    1\n") << "the step over the last factor takes the line feed";
  EXPECT_THAT(Ids("LOAD    10      1.0\nGRID    1\n"), ElementsAre(1)) << "GRID stands where the second factor should";
}

TEST_F(LoadCombination, ALineWithAnEqualsSignIsPassed) {
  for (const char* line : {"LOAD = 2\n", "LOAD=2\n", "LOADSET = 3\n", "LOAD    10      1.0     1.0     5       $ a=b\n", "DLOAD = 4\r\n"}) {
    EXPECT_THAT(Ids(std::string(line) + "        7       8       \n"), IsEmpty()) << line;
    EXPECT_EQ(rest, "        7       8       \n") << line;
  }
}

TEST_F(LoadCombination, AnEqualsSignInALaterLineDoesNotCount) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       \n+       2.0     6       =\n"), ElementsAre(5, 6));
}

TEST_F(LoadCombination, AnUnterminatedLineIsNotTaken) {
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5"), IsEmpty());
  EXPECT_EQ(rest, "LOAD    10      1.0     1.0     5");
  EXPECT_THAT(Ids("LOAD    10      1.0     1.0     5       2.0\n+       6       3.0     7"), ElementsAre(5, 6, 7))
      << "only the first line has to be whole";
  EXPECT_EQ(rest, "");
}

TEST_F(LoadCombination, AOneDigitSetThatEndsItsLineIsLost) {
  ReadCases("SUBCASE 1\nLOAD = 1\nBEGIN\n");
  ReadCard("LOAD    1\n        5\n", SubcaseId::Load);
  EXPECT_THAT(IdsOf(Subcase(0).loadIds), IsEmpty());
}

TEST_F(LoadCombination, ManyIdsStandInTheOrderOfTheRebuiltTable) {
  std::mt19937 random(71);
  for (const std::size_t count : {99U, 100U, 101U, 102U, 103U, 150U, 260U, 500U}) {
    for (const std::int32_t highest : {120, 600, 100000, 2147483647}) {
      std::string card = "LOAD    10      1.0     ";
      std::vector<std::int32_t> ids;
      for (std::size_t i = 0; i < count; ++i) {
        const auto id = static_cast<std::int32_t>(std::uniform_int_distribution<std::int32_t>(0, highest)(random)) % 99999999;
        ids.push_back(id);
        std::string field = std::to_string(id);
        field.resize(8, ' ');
        card += (i % 3 == 2 ? "\n+       1.0     " : "1.0     ") + field;
      }
      EXPECT_EQ(Ids(card + "\n"), TableOrder(ids)) << count << " ids up to " << highest;
    }
  }
}

TEST_F(LoadCombination, SeveralCardsOfASetFillOneTable) {
  FreeSubcases();
  ReadCases("SUBCASE 1\nLOAD = 10\nBEGIN\n");
  std::vector<std::int32_t> ids;
  for (std::int32_t i = 0; i < 130; ++i) {
    const std::int32_t id = (i * 7919) % 1000;
    ids.push_back(id);
    ReadCard(Card8({"LOAD", "10", "1.0", "1.0", std::to_string(id), ""}) + "\n", SubcaseId::Load);
  }
  EXPECT_EQ(IdsOf(Subcase(0).loadIds), TableOrder(ids));
}

}  // namespace
}  // namespace btz::test
