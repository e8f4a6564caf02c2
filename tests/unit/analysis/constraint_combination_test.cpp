// SPCADD and MPCADD: the listed ids, where the card ends, and which subcases they expand.
#include <gtest/gtest.h>

#include <random>

#include "tests/unit/analysis/combination_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConstraintCombination : public CombinationTest {
 protected:
  std::vector<std::int32_t> Ids(std::string_view text) { return IdsOfCard(text, SubcaseId::Spc); }
};

TEST_F(ConstraintCombination, AllFieldsBehindTheSetAreIds) {
  EXPECT_THAT(Ids("SPCADD  10      3       1       2       \n"), ElementsAre(1, 2, 3)) << "in the order of the table";
  EXPECT_THAT(IdsOfCard("MPCADD  10      3       1       2       \n", SubcaseId::Mpc), ElementsAre(1, 2, 3));
}

TEST_F(ConstraintCombination, ACardExpandsItsOwnTableOnly) {
  Ids("SPCADD  10      5       \n");
  EXPECT_THAT(IdsOf(Subcase(0).mpcIds), IsEmpty());
  EXPECT_THAT(IdsOf(Subcase(0).loadIds), IsEmpty());
  IdsOfCard("MPCADD  10      5       \n", SubcaseId::Mpc);
  EXPECT_THAT(IdsOf(Subcase(0).mpcIds), ElementsAre(5));
  EXPECT_THAT(IdsOf(Subcase(0).spcIds), IsEmpty());
}

TEST_F(ConstraintCombination, SetZeroIsNeverMatched) {
  ReadCases("SUBCASE 1\nSPC = 0\nSUBCASE 2\nMPC = 1\nBEGIN\n");
  ReadCard("SPCADD  0       5       \n", SubcaseId::Spc);
  ReadCard("SPCADD          5       \n", SubcaseId::Spc);
  EXPECT_THAT(IdsOf(Subcase(0).spcIds), IsEmpty());
  EXPECT_THAT(IdsOf(Subcase(1).spcIds), IsEmpty());
}

TEST_F(ConstraintCombination, AllSubcasesWithTheIdAreExpanded) {
  ReadCases("SUBCASE 1\nSPC = 10\nSUBCASE 2\nSPC = 11\nSUBCASE 3\nSPC = 10\nBEGIN\n");
  ReadCard("SPCADD  10      5       \n", SubcaseId::Spc);
  EXPECT_THAT(IdsOf(Subcase(0).spcIds), ElementsAre(5));
  EXPECT_THAT(IdsOf(Subcase(1).spcIds), IsEmpty());
  EXPECT_THAT(IdsOf(Subcase(2).spcIds), ElementsAre(5));
}

TEST_F(ConstraintCombination, ASubcaseWithoutItsKeywordLineTakesNothing) {
  ReadCases("SUBCASE 1\nLOAD = 10\nBEGIN\n");
  ReadCard("SPCADD  10      5       \n", SubcaseId::Spc);
  EXPECT_THAT(IdsOf(Subcase(0).spcIds), IsEmpty());
}

TEST_F(ConstraintCombination, BlanksMarksAndStarsAreSteppedOver) {
  EXPECT_THAT(Ids("SPCADD  10              1               2       +A      \n"
                  "+A      3       *       4       \n"),
              ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(Ids("SPCADD  10      +1      2+      3*      4       \n"), ElementsAre(4));
}

TEST_F(ConstraintCombination, UnpaddedLinesGoOn) {
  EXPECT_THAT(Ids("SPCADD  10      1       2\n"
                  "+       3       4\n"
                  "        5\n"
                  "SPC1    7       123     8\n"),
              ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(rest, "\nSPC1    7       123     8\n");
}

TEST_F(ConstraintCombination, WordsEndTheCard) {
  EXPECT_THAT(Ids("SPCADD  10      1       THRU    4       \n"), ElementsAre(1));
  EXPECT_EQ(rest, "THRU    4       \n");
  EXPECT_THAT(Ids("SPCADD  10      1       2       \nMPCADD  10      3       \n"), ElementsAre(1, 2));
  EXPECT_EQ(rest, "\nMPCADD  10      3       \n");
  EXPECT_THAT(Ids("SPCADD  10      1       $ 2     3       \n"), ElementsAre(1));
}

TEST_F(ConstraintCombination, ALineWithAnEqualsSignIsReadAllTheSame) {
  EXPECT_THAT(Ids("SPCADD  10      1       =       3       \n"), ElementsAre(0, 1, 3)) << "= reads as 0";
}

TEST_F(ConstraintCombination, ANumberAtTheHeadOfALineEndsTheCard) {
  EXPECT_THAT(Ids("SPCADD  10      1\n2       3\n"), ElementsAre(0, 1)) << "seen from the line end it reads as 0";
  EXPECT_EQ(rest, "\n2       3\n");
}

TEST_F(ConstraintCombination, AnUnterminatedLineIsTaken) {
  EXPECT_THAT(Ids("SPCADD  10      1       2"), ElementsAre(1, 2));
  EXPECT_EQ(rest, "");
  EXPECT_THAT(Ids("SPCADD  10"), IsEmpty());
  EXPECT_THAT(Ids("SPCADD"), IsEmpty());
}

TEST_F(ConstraintCombination, CarriageReturnsAreBlanks) {
  EXPECT_THAT(Ids("SPCADD  10      1       2\r\n+       3\r\nGRID    1\r\n"), ElementsAre(1, 2, 3));
  EXPECT_EQ(rest, "\nGRID    1\r\n");
}

TEST_F(ConstraintCombination, FieldsAreEightColumnsInTheLargeFormToo) {
  EXPECT_THAT(Ids("SPCADD* 10              1               2       \n"), ElementsAre(1, 2));
}

TEST_F(ConstraintCombination, ManyIdsStandInTheOrderOfTheRebuiltTable) {
  std::mt19937 random(72);
  for (const std::size_t count : {101U, 102U, 120U, 333U}) {
    std::string card = "SPCADD  10      ";
    std::vector<std::int32_t> ids;
    for (std::size_t i = 0; i < count; ++i) {
      ids.push_back(std::uniform_int_distribution<std::int32_t>(0, 700)(random));
      std::string field = std::to_string(ids.back());
      field.resize(8, ' ');
      card += (i % 8 == 7 ? "\n+       " : "") + field;
    }
    EXPECT_EQ(Ids(card + "\n"), TableOrder(ids)) << count;
  }
}

}  // namespace
}  // namespace btz::test
