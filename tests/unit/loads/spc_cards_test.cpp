// SPC and SPCD cards: their forms, where their fields stand, how the cards of one node and set merge, and which value a node keeps.
#include <random>

#include "tests/unit/loads/loads_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using SpcCardTest = LoadsTest;

constexpr const char* next = "NEXT\n";

// Small fields.

TEST_F(SpcCardTest, ASmallCardNamesOneNode) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|123|0.0") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 123 [0 0 0 - - -]"));
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SpcCardTest, AnSpcdCardIsTold) {
  ReadSpc(Small("SPCD|1|5|6|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPCD 6 [- - - - - 0.5]"));
}

TEST_F(SpcCardTest, ValuesHaveAnyFormOfAReal) {
  ReadSpc(Small("SPC|1|5|1|-.5-2"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 1 [-0.005 - - - - -]"));
}

TEST_F(SpcCardTest, FieldsMayBeRightAligned) {
  ReadSpc("SPC            1       5      12     0.5      16       3     1.5\n");
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 16 SPC 3 [- - 1.5 - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, TheLastValueNeedsNoPadding) {
  EXPECT_EQ(ReadSpc("SPC     1       5       12      0.5\nNEXT\n"), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ABlankValueIsZero) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|12|") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0 0 - - - -]"));
}

TEST_F(SpcCardTest, TheSecondGroupStandsInFrontOfTheFirst) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|12|0.5|6|3|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 3 [- - 1.5 - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, TheNewestCardStandsFirst) {
  ReadSpc(Small("SPC|1|5|1|0.0"));
  ReadSpc(Small("SPC|1|6|1|0.0"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 1 [0 - - - - -]", "set 1 node 5 SPC 1 [0 - - - - -]"));
}

TEST_F(SpcCardTest, ASecondNodeBelowOneIsNone) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|1|0.0|0|2|1.5") + next), next);
  EXPECT_EQ(ReadSpc(Small("SPC|1|6|1|0.0|-7|2|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 1 [0 - - - - -]", "set 1 node 5 SPC 1 [0 - - - - -]"));
}

TEST_F(SpcCardTest, ASecondNodeOfOneDigitAtTheLineEndIsNone) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|1|0.0", "7\n") + "NEXT8901\n"), "NEXT8901\n");
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 1 [0 - - - - -]"));
}

TEST_F(SpcCardTest, ASecondNodeMayHaveNeitherComponentsNorValue) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|1|0.0|6||") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 0 [- - - - - -]", "set 1 node 5 SPC 1 [0 - - - - -]"));
}

// Required: blanks behind the value that do not fill a field take the line end with them, and the next card is lost.
TEST_F(SpcCardTest, AFewBlanksBehindTheValueTakeTheNextLine) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|1|0.5", "   \n") + Small("SPC|2|6|1|0.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 1 [0.5 - - - - -]"));
}

TEST_F(SpcCardTest, ACarriageReturnBehindAFullValueIsNoSecondNode) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|1|0.5", "\r\n") + "NEXT8901\n"), "NEXT8901\n");
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 1 [0.5 - - - - -]"));
}

TEST_F(SpcCardTest, ACarriageReturnBehindAnUnpaddedValueIsNoPartOfIt) {
  EXPECT_EQ(ReadSpc("SPC     1       5       1       0.5\r\nNEXT\n"), next);
  EXPECT_EQ(ReadSpc("SPC     1       6       1       0.5     7       2       1.5\r\nNEXT\n"), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 7 SPC 2 [- 1.5 - - - -]", "set 1 node 6 SPC 1 [0.5 - - - - -]",
                                        "set 1 node 5 SPC 1 [0.5 - - - - -]"));
}

TEST_F(SpcCardTest, TheTextMayEndBehindTheValue) {
  EXPECT_EQ(ReadSpc("SPC     1       5       1       0.5"), "");
  EXPECT_EQ(ReadSpc(Small("SPC|1|6|1|0.5", "")), "");
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 1 [0.5 - - - - -]", "set 1 node 5 SPC 1 [0.5 - - - - -]"));
}

// Continuation lines.

TEST_F(SpcCardTest, AMarkBehindTheSetLeadsToTheNextLine) {
  EXPECT_EQ(ReadSpc(Small("SPC|1", "+A\n") + Small("+A|5|12|0.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, AMarkBehindTheNodeLeadsToTheNextLine) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5", "*\n") + Small("*|12|0.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, AMarkBehindTheComponentsLeadsToTheNextLine) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|12", "+\n") + Small("+|0.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ALineEndDoesForAMark) {
  EXPECT_EQ(ReadSpc(Small("SPC|1") + Small("|5") + Small("|12") + Small("|0.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, TheSecondGroupHasContinuationsToo) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|12|0.5|6", "+\n") + Small("+|3", "+\n") + Small("+|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 3 [- - 1.5 - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ASmallCardHasNoContinuationBehindTheValue) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|12|0.5", "+\n") + Small("+|6|3|1.5")), Small("+|6|3|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, AMarkOfTwoCharactersBehindTheValueTakesTheNextLine) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|12|0.5", "+A\n") + Small("+A|6|3|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

// Large fields.

TEST_F(SpcCardTest, ALargeCardHasItsSecondGroupInTheNextLine) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5", "*\n") + Large("*|6|3|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 3 [- - 1.5 - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ALargeCardIsOneToAPlusAsWell) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5", "+AB\n") + Large("+|6|3|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 3 [- - 1.5 - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ANamedContinuationOfALargeCardIsPassedOver) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5", "*AB\n") + Large("*AB|6|3|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ASecondLargeNodeIsTakenWhateverItIs) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5", "*\n") + Large("*||3|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 0 SPC 3 [- - 1.5 - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ASecondLargeGroupGoesOnInAThirdLine) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5", "*\n") + Large("*|6", "*\n") + Large("*|3", "*\n") + Large("*|1.5") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 3 [- - 1.5 - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ALargeCardMayBreakBehindEachField) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1", "*\n") + Large("*|5", "*\n") + Large("*|12", "*\n") + Large("*|0.5", "*\n") + Large("*|6|3|1.5")), "");
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 3 [- - 1.5 - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

// Required: a large card without a mark behind its value is lost, but the node keeps the value.
TEST_F(SpcCardTest, ALargeCardWithoutAMarkIsLost) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5") + next), next);
  EXPECT_THAT(SpcRecords(), IsEmpty());
  EXPECT_EQ(EnforcedValue(5), "0.500000");
}

TEST_F(SpcCardTest, ALargeCardAtTheTextsEndIsLost) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5", "")), "");
  EXPECT_EQ(ReadSpc(Large("SPC*|1|6|12|0.25", "*")), "");  // A mark, but nothing behind it: one group.
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 12 [0.25 0.25 - - - -]"));
  EXPECT_EQ(EnforcedValue(5), "0.500000");
}

TEST_F(SpcCardTest, ALargeCardWithAnythingElseBehindItsValueIsLost) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5", "\r\n") + next), std::string("\r\n") + next);
  EXPECT_EQ(ReadSpc(Large("SPC*|1|6|12|0.5", " *\n") + Large("*|7|3|1.5")), " *\n" + Large("*|7|3|1.5"));
  EXPECT_THAT(SpcRecords(), IsEmpty());
  EXPECT_EQ(EnforcedValue(6), "0.500000");
  EXPECT_EQ(EnforcedValue(7), "none");
}

TEST_F(SpcCardTest, ALargeUnpaddedValueIsLostToo) {
  EXPECT_EQ(ReadSpc("SPC*    1               5               12              0.5\nNEXT\n"), next);
  EXPECT_THAT(SpcRecords(), IsEmpty());
}

TEST_F(SpcCardTest, AMarkWithoutAContinuationTakesTheNextCard) {
  EXPECT_EQ(ReadSpc(Large("SPC*|1|5|12|0.5", "*\n") + Large("SPC*|1|6|12|0.5", "*\n") + next), next);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, StarsTellTheLargeForm) {
  const std::string fields = Large("*|6|3|1.5");
  ReadSpc(Large("SPCD*|1|5|12|0.5", "*\n") + fields);
  ReadSpc(Large("SPC**|2|5|12|0.5", "*\n") + fields);
  ReadSpc(Large("SPC*XYZ|3|5|12|0.5", "*\n") + fields);
  EXPECT_THAT(SpcRecords(), ElementsAre("set 3 node 6 SPC 3 [- - 1.5 - - -]", "set 3 node 5 SPC 12 [0.5 0.5 - - - -]",
                                        "set 2 node 6 SPC 3 [- - 1.5 - - -]", "set 2 node 5 SPC 12 [0.5 0.5 - - - -]",
                                        "set 1 node 6 SPCD 3 [- - 1.5 - - -]", "set 1 node 5 SPCD 12 [0.5 0.5 - - - -]"));
}

// Forms that are not read.

TEST_F(SpcCardTest, ACommaFormIsNotRead) {
  EXPECT_EQ(ReadSpc("SPC,1,5,123,0.0\nNEXT\n"), ",123,0.0\nNEXT\n");
  EXPECT_EQ(ReadSpc("SPCD,1,5,123,0.0\n"), "5,123,0.0\n");
  EXPECT_THAT(SpcRecords(), IsEmpty());
  EXPECT_EQ(EnforcedValue(5), "none");
}

TEST_F(SpcCardTest, AKeywordThatIsNotPaddedToItsFieldIsNotRead) {
  EXPECT_EQ(ReadSpc("SPC 1   1       5       1       0.5     \n"), " 1       5       1       0.5     \n");
  EXPECT_EQ(ReadSpc("SPC\t    1       5       1       0.5     \n"), " 1       5       1       0.5     \n");
  EXPECT_EQ(ReadSpc("SPCADD  1       5       6       \n"), " 1       5       6       \n");
  EXPECT_EQ(ReadSpc("SPCX    1       5       1       0.5     \n"), " 1       5       1       0.5     \n");
  EXPECT_EQ(ReadSpc("SPCD   *1       5       1       0.5     \n"), "*1       5       1       0.5     \n");
  EXPECT_THAT(SpcRecords(), IsEmpty());
}

// Required: seven characters are passed, whatever line they stand in.
TEST_F(SpcCardTest, AShortLineThatIsNotReadTakesPartOfTheNext) {
  EXPECT_EQ(ReadSpc("SPC\nGRID    1\n"), "D    1\n");
  EXPECT_EQ(ReadSpc("SPC"), "");
  EXPECT_EQ(ReadSpc("SPCADD"), "");
}

TEST_F(SpcCardTest, ALineWithAnEqualsSignIsNotRead) {
  const std::string card = Small("SPC|1|5|123|0.0", "$ a = b\n");
  EXPECT_EQ(ReadSpc(card + next), card.substr(6) + next);
  const std::string large = Large("SPC*|1|5|12|=", "*\n") + Large("*|6|3|1.5");
  EXPECT_EQ(ReadSpc(large), large.substr(6));
  EXPECT_THAT(SpcRecords(), IsEmpty());
  EXPECT_EQ(EnforcedValue(5), "none");
}

TEST_F(SpcCardTest, TheEqualsSignGoesBeforeTheForm) {
  EXPECT_EQ(ReadSpc("SPC = 1\nNEXT\n"), "1\nNEXT\n");
  EXPECT_EQ(ReadSpc("SPCFORCES = ALL\n"), "CES = ALL\n");
  EXPECT_EQ(ReadSpc("SPC=1\nNEXT\n"), next);
  EXPECT_EQ(ReadSpc("SPC=1"), "");
}

TEST_F(SpcCardTest, AnEqualsSignInTheNextLineDoesNotCount) {
  EXPECT_EQ(ReadSpc(Small("SPC|1|5|123|0.0") + "A = B\n"), "A = B\n");
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 123 [0 0 0 - - -]"));
}

// Digits of the components.

TEST_F(SpcCardTest, DigitsFromSevenOnAndZeroNameNothing) {
  ReadSpc(Small("SPC|1|5|1789|0.5"));
  ReadSpc(Small("SPC|1|6|102|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 102 [0.5 0.5 - - - -]", "set 1 node 5 SPC 1789 [0.5 - - - - -]"));
}

TEST_F(SpcCardTest, ComponentsBelowOneNameNothing) {
  ReadSpc(Small("SPC|1|5||0.5"));
  ReadSpc(Small("SPC|1|6|-12|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC -12 [- - - - - -]", "set 1 node 5 SPC 0 [- - - - - -]"));
}

// Cards of one node and set.

TEST_F(SpcCardTest, CardsOfOneNodeAndSetMerge) {
  ReadSpc(Small("SPC|1|5|12|0.5"));
  ReadSpc(Small("SPC|1|5|3|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 123 [0.5 0.5 1.5 - - -]"));
}

TEST_F(SpcCardTest, OtherSetsAndNodesDoNotMerge) {
  ReadSpc(Small("SPC|1|5|12|0.5"));
  ReadSpc(Small("SPC|2|5|3|0.5|6|3|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 2 node 6 SPC 3 [- - 0.5 - - -]", "set 2 node 5 SPC 3 [- - 0.5 - - -]",
                                        "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, TheGroupsOfACardMergeWithEachOther) {
  ReadSpc(Small("SPC|1|5|2|0.5|5|1|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [1.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, AMergedNumberIsAscending) {
  ReadSpc(Small("SPC|1|5|62|0.5"));
  ReadSpc(Small("SPC|1|5|41|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 1246 [1.5 0.5 - 1.5 - 0.5]"));
}

TEST_F(SpcCardTest, AnEqualNumberStaysAsItIs) {
  ReadSpc(Small("SPC|1|5|21|0.5"));
  ReadSpc(Small("SPC|1|5|21|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 21 [1.5 1.5 - - - -]"));
}

TEST_F(SpcCardTest, TheSameDigitsInAnotherOrderAreBroughtInOrder) {
  ReadSpc(Small("SPC|1|5|21|0.5"));
  ReadSpc(Small("SPC|1|5|2|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 1.5 - - - -]"));
}

TEST_F(SpcCardTest, ComponentsOfZeroChangeNothing) {
  ReadSpc(Small("SPC|1|5|21|0.5"));
  ReadSpc(Small("SPC|1|5|0|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 21 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, ARecordWithoutComponentsTakesThoseOfTheCard) {
  ReadSpc(Small("SPC|1|5|0|0.5"));
  ReadSpc(Small("SPC|1|5|21|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 21 [1.5 1.5 - - - -]"));
}

TEST_F(SpcCardTest, AMergedNumberHasNoDigitFromSevenOn) {
  ReadSpc(Small("SPC|1|5|17|0.5"));
  ReadSpc(Small("SPC|1|5|92|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 1.5 - - - -]"));
}

// Required: of 102 a merge takes only the digits behind the zero, though the flags take all.
TEST_F(SpcCardTest, AZeroEndsTheDigitsOfAMergedNumber) {
  ReadSpc(Small("SPC|1|5|102|0.5"));
  ReadSpc(Small("SPC|1|5|3|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 23 [0.5 0.5 1.5 - - -]"));
}

TEST_F(SpcCardTest, WithoutDigitsAMergedNumberIsZero) {
  ReadSpc(Small("SPC|1|5|10|0.5"));
  ReadSpc(Small("SPC|1|5|30|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 0 [0.5 - 1.5 - - -]"));
}

TEST_F(SpcCardTest, NegativeComponentsHaveNoDigits) {
  ReadSpc(Small("SPC|1|5|21|0.5"));
  ReadSpc(Small("SPC|1|5|-3|1.5"));
  ReadSpc(Small("SPC|1|6|-3|0.5"));
  ReadSpc(Small("SPC|1|6|1|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 1 [1.5 - - - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

TEST_F(SpcCardTest, AMergedRecordKeepsItsKind) {
  ReadSpc(Small("SPC|1|5|1|0.5"));
  ReadSpc(Small("SPCD|1|5|2|0.5"));
  ReadSpc(Small("SPCD|1|6|1|0.5"));
  ReadSpc(Small("SPC|1|6|2|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPCD 12 [0.5 0.5 - - - -]", "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

// Required: when both groups of a card merge, the second one's number takes the digits of the first.
TEST_F(SpcCardTest, TheSecondMergeTakesTheDigitsOfTheFirst) {
  ReadSpc(Small("SPC|1|5|1|0.5|6|4|0.5"));
  ReadSpc(Small("SPC|1|5|2|1.5|6|5|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 1245 [- - - 0.5 1.5 -]", "set 1 node 5 SPC 12 [0.5 1.5 - - - -]"));
  // The next card starts without digits.
  ReadSpc(Small("SPC|1|5|3|1.5"));
  EXPECT_EQ(SpcRecords()[1], "set 1 node 5 SPC 123 [0.5 1.5 1.5 - - -]");
}

TEST_F(SpcCardTest, TheSecondMergeOfALargeCardTakesTheDigitsOfTheFirstToo) {
  ReadSpc(Small("SPC|1|5|1|0.5|6|4|0.5"));
  ReadSpc(Large("SPC*|1|5|2|1.5", "*\n") + Large("*|6|5|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 1245 [- - - 0.5 1.5 -]", "set 1 node 5 SPC 12 [0.5 1.5 - - - -]"));
}

TEST_F(SpcCardTest, AMergeThatChangesNoNumberLeavesNoDigits) {
  ReadSpc(Small("SPC|1|5|1|0.5|6|4|0.5"));
  ReadSpc(Small("SPC|1|5|1|1.5|6|5|1.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 45 [- - - 0.5 1.5 -]", "set 1 node 5 SPC 1 [1.5 - - - - -]"));
}

// Required: behind a first group that was found, a second one with the node of the oldest record is lost when it is not found.
TEST_F(SpcCardTest, ASecondNodeOfTheOldestRecordIsLostBehindAFoundOne) {
  ReadSpc(Small("SPC|9|6|1|0.5"));
  ReadSpc(Small("SPC|1|5|1|0.5"));
  ReadSpc(Small("SPC|1|5|2|0.5|6|3|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 5 SPC 12 [0.5 0.5 - - - -]", "set 9 node 6 SPC 1 [0.5 - - - - -]"));
}

TEST_F(SpcCardTest, ASecondNodeOfTheOldestRecordIsMadeBehindANewOne) {
  ReadSpc(Small("SPC|9|6|1|0.5"));
  ReadSpc(Small("SPC|1|5|2|0.5|6|3|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 3 [- - 0.5 - - -]", "set 1 node 5 SPC 2 [- 0.5 - - - -]",
                                        "set 9 node 6 SPC 1 [0.5 - - - - -]"));
}

TEST_F(SpcCardTest, ASecondNodeOfAnotherRecordIsMadeBehindAFoundOne) {
  ReadSpc(Small("SPC|1|5|1|0.5"));
  ReadSpc(Small("SPC|9|6|1|0.5"));
  ReadSpc(Small("SPC|1|5|2|0.5|6|3|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node 6 SPC 3 [- - 0.5 - - -]", "set 9 node 6 SPC 1 [0.5 - - - - -]",
                                        "set 1 node 5 SPC 12 [0.5 0.5 - - - -]"));
}

// The value that a node keeps.

TEST_F(SpcCardTest, ANodeKeepsItsFirstValue) {
  ReadSpc(Small("SPCD|1|5|1|0.5"));
  ReadSpc(Small("SPC|2|5|1|1.5"));
  ReadSpc(Small("SPC|2|6|1|0.0"));
  ReadSpc(Small("SPC|2|6|1|1.5"));
  EXPECT_EQ(EnforcedValue(5), "0.500000");
  EXPECT_EQ(EnforcedValue(6), "0.000000");
  EXPECT_EQ(NodeEnforcedValueTable.size, 2);
}

TEST_F(SpcCardTest, TheNodeOfASecondGroupKeepsNoValue) {
  ReadSpc(Small("SPC|1|5|1|0.5|6|1|1.5"));
  ReadSpc(Large("SPC*|1|7|12|0.5", "*\n") + Large("*|8|3|1.5"));
  EXPECT_EQ(EnforcedValue(5), "0.500000");
  EXPECT_EQ(EnforcedValue(6), "none");
  EXPECT_EQ(EnforcedValue(7), "0.500000");
  EXPECT_EQ(EnforcedValue(8), "none");
}

TEST_F(SpcCardTest, ANegativeNodeHasARecordButKeepsNoValue) {
  ReadSpc(Small("SPC|1|-5|1|0.5"));
  EXPECT_THAT(SpcRecords(), ElementsAre("set 1 node -5 SPC 1 [0.5 - - - - -]"));
  EXPECT_EQ(NodeEnforcedValueTable.size, 0);
}

// Broken text.

/// A deck with a card in every form.
std::string AllForms() {
  return Small("SPC|1|5|12|0.5|6|3|1.5") + Small("SPCD|1|5", "+A\n") + Small("+A|3", "+\n") + Small("+|0.5") +
         Large("SPC*|1|5|2|1.5", "*\n") + Large("*|6|5|1.5", "\r\n") + Large("SPCD*|2|5|2|1.5") +
         "SPC,1,5,123\nSPC = 4\nSPC\nSPC     1       7       1       0.5\n" + Small("SPC1|2|123|1|THRU|9") +
         Large("SPC1*|2|123|1|THRU", "*\n") + Large("*|9") + Small("SPC1|2|12|3|4|5") + "SPC1,2,12,3\n";
}

/// Reads all cards of a text as a pass does; the cursor and all bytes written stay in it.
class BrokenSpcTest : public LoadsTest {
 protected:
  void ReadAll(const std::string& deck) {
    DeckText text(deck);
    Walk(&text.cursor);
    EXPECT_LE(text.Place(), deck.size()) << deck;  // A digit alone at the end of its line may be overwritten with the NUL.
    EXPECT_TRUE(text.IsUntouchedBehind()) << deck;
    CardText block(deck);  // The same in a block of just its size, for the address sanitizer.
    Walk(&block.cursor);
  }

 private:
  void Walk(CardCursor* cursor) {
    while (**cursor != 0) {
      const char* before = *cursor;
      if (std::strncmp(*cursor, "SPC1", 4) == 0) {
        ReadSpc1Card(model, cursor, &run.lists.spc1);
      } else if (std::strncmp(*cursor, "SPC", 3) == 0) {
        ReadSpcCard(cursor, &run.lists.spc);
      } else {
        *cursor += std::strcspn(*cursor, "\n");
        *cursor += **cursor == '\n' ? 1 : 0;
      }
      ASSERT_GT(*cursor, before);
    }
  }
};

TEST_F(BrokenSpcTest, CutAtEveryByte) {
  MakeNodes(9);
  const std::string deck = AllForms();
  for (std::size_t length = 0; length <= deck.size(); ++length) {
    ReadAll(deck.substr(0, length));
  }
  EXPECT_GT(run.lists.spc.size, 3);
}

TEST_F(BrokenSpcTest, CardsCutAtEveryByte) {
  for (const std::string& card : {Large("SPC*|1|5|2|1.5", "*\n") + Large("*|6|5|1.5"), Small("SPC|1|5|12|0.5|6|3|1.5"),
                                  Large("SPC1*|2|123|1|THRU", "*\n") + Large("*|9")}) {
    for (std::size_t length = 0; length <= card.size(); ++length) {
      ReadAll(card.substr(0, length));
    }
  }
}

TEST_F(BrokenSpcTest, WithBytesChanged) {
  MakeNodes(9);
  std::mt19937 random(91);
  const std::string meaningful("\n\r\0 ,+*=.0ED19", 14);
  for (int round = 0; round < 3000; ++round) {
    std::string deck = AllForms();
    for (std::uint32_t changes = 1 + random() % 8; changes != 0; --changes) {
      deck[random() % deck.size()] = random() % 4 == 0 ? static_cast<char>(random() % 256) : meaningful[random() % meaningful.size()];
    }
    deck.resize(std::min(deck.find('\0'), deck.size()));
    ReadAll(deck);
  }
}

}  // namespace
}  // namespace btz::test
