// PSHELL cards as they are captured, and what the comment above a property card does for all of them.
#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "properties/property_cards_fixture.h"

namespace btz {
namespace {

using test::Large;
using test::ShellCards;
using test::Small;

const std::string nextCard = Small("GRID|1||0.5|1.5|2.5");

/// A record as text, so that one comparison shows all of it.
std::string Show(const PshellRecord& record) {
  std::ostringstream text;
  text << record.propertyId << " mid " << record.materialId << ' ' << record.bendingMaterialId << ' ' << record.shearMaterialId << " t "
       << record.thickness << " ratios " << record.bendingRatio << ' ' << record.shearRatio << " nsm " << record.nonStructuralMass
       << (record.thicknessBlank == 0 ? "" : " blank");
  return text.str();
}

TEST_F(ShellCards, EachFieldOfASmallCardHasItsPlace) {
  const PshellRecord& record = Read(Small("PSHELL|11|21|0.5|22|1.25|23|0.75|0.125") + nextCard);
  EXPECT_EQ(Show(record), "11 mid 21 22 23 t 0.5 ratios 1.25 0.75 nsm 0.125");
  EXPECT_STREQ(record.name, "");
  EXPECT_EQ(rest, "\n" + nextCard);
}

TEST_F(ShellCards, FieldsOfALargeCardAre16ColumnsWideBehindAKeywordOf8) {
  const PshellRecord& record = Read(Large("PSHELL*|11|21|0.5|22") + Large("*|1.25|23|0.75|0.125") + nextCard);
  EXPECT_EQ(Show(record), "11 mid 21 22 23 t 0.5 ratios 1.25 0.75 nsm 0.125");
  EXPECT_EQ(rest, "\n" + nextCard);
  const PshellRecord& labelled = Read(Large("PSHELL*|11|21|0.5|22", "*S1     \n") + Large("*S1|1.25|23|0.75|0.125") + nextCard);
  EXPECT_EQ(Show(labelled), "11 mid 21 22 23 t 0.5 ratios 1.25 0.75 nsm 0.125");
}

TEST_F(ShellCards, TheStarMustStandRightBehindTheKeyword) {
  EXPECT_EQ(Show(Read(Small("PSHELL *|11|21|0.5|22"))), "11 mid 21 22 0 t 0.5 ratios 0 0 nsm 0");
}

TEST_F(ShellCards, ContinuationFieldsAreLeftUnread) {
  const std::string further = Small("+|0.1|-0.1|44");
  Read(Small("PSHELL|11|21|0.5|22|1.25|23|0.75|0.125") + further);
  EXPECT_EQ(rest, "\n" + further);
}

TEST_F(ShellCards, ABlankThicknessIsMarked) {
  EXPECT_EQ(Show(Read(Small("PSHELL|11|21||22|1.25|23") + nextCard)), "11 mid 21 22 23 t 0 ratios 1.25 0 nsm 0 blank");
  EXPECT_EQ(Show(Read(Large("PSHELL*|11|21||22") + nextCard)), "11 mid 21 22 0 t 0 ratios 0 0 nsm 0 blank");
}

TEST_F(ShellCards, OnlyABlankThicknessIsMarked) {
  EXPECT_EQ(Show(Read(Small("PSHELL|11|21|0.5|||||") + nextCard)), "11 mid 21 0 0 t 0.5 ratios 0 0 nsm 0");
  EXPECT_EQ(Show(Read(Small("PSHELL|11|21|0.0|22") + nextCard)), "11 mid 21 22 0 t 0 ratios 0 0 nsm 0");
}

// Required: a card that ends before T is not blank there.
TEST_F(ShellCards, ACardThatEndsBeforeTheThicknessHasOneOfZero) {
  for (const std::string& next : {nextCard, Small("FORCE|7|8"), std::string("$ note\n"), Small("GRID*|1"), std::string("ENDDATA\n")}) {
    EXPECT_EQ(Show(Read(Small("PSHELL|11|21") + next)), "11 mid 21 0 0 t 0 ratios 0 0 nsm 0") << next;
    EXPECT_EQ(rest, "\n" + next);
  }
}

TEST_F(ShellCards, AtTheTextsEndTheThicknessIsBlank) {
  EXPECT_EQ(Show(Read(Small("PSHELL|11|21"))), "11 mid 21 0 0 t 0 ratios 0 0 nsm 0 blank");
  EXPECT_EQ(rest, "");
  EXPECT_EQ(Show(Read(Small("PSHELL|11|21", ""))), "11 mid 21 0 0 t 0 ratios 0 0 nsm 0 blank");
}

TEST_F(ShellCards, TheTextMayEndAtAnyField) {
  const std::string card = Small("PSHELL|11|21|0.5|22|1.25|23|0.75|0.125", "");
  const char* const expected[] = {"0 mid 0 0 0 t 0 ratios 0 0 nsm 0 blank",          "11 mid 0 0 0 t 0 ratios 0 0 nsm 0 blank",
                                  "11 mid 21 0 0 t 0 ratios 0 0 nsm 0 blank",        "11 mid 21 0 0 t 0.5 ratios 0 0 nsm 0",
                                  "11 mid 21 22 0 t 0.5 ratios 0 0 nsm 0",           "11 mid 21 22 0 t 0.5 ratios 1.25 0 nsm 0",
                                  "11 mid 21 22 23 t 0.5 ratios 1.25 0 nsm 0",       "11 mid 21 22 23 t 0.5 ratios 1.25 0.75 nsm 0",
                                  "11 mid 21 22 23 t 0.5 ratios 1.25 0.75 nsm 0.125"};
  for (std::size_t fields = 0; fields < std::size(expected); ++fields) {
    EXPECT_EQ(Show(Read(card.substr(0, 8 * (fields + 1)))), expected[fields]);
    EXPECT_EQ(rest, "");
  }
  EXPECT_EQ(Show(Read("PSHELL")), expected[0]);
}

TEST_F(ShellCards, AShortLineEndsTheIntegers) {
  EXPECT_EQ(Show(Read("PSHELL  7\n" + nextCard)), "7 mid 0 0 0 t 0 ratios 0 0 nsm 0");
  EXPECT_EQ(rest, "\n" + nextCard);
  EXPECT_EQ(Show(Read("PSHELL  7       8\n" + nextCard)), "7 mid 8 0 0 t 0 ratios 0 0 nsm 0");
}

// Required: the peek crosses the line end, so an unpadded zero before a mark is lost and the next line's value takes its place.
TEST_F(ShellCards, AnUnpaddedLastValueIsJudgedWithTheNextLine) {
  EXPECT_EQ(Show(Read("PSHELL  11      21      0.0\n" + Small("+|9.5") + nextCard)), "11 mid 21 0 0 t 9.5 ratios 0 0 nsm 0");
  EXPECT_EQ(Show(Read("PSHELL  11      21      0.5\n" + Small("+|9.5") + nextCard)), "11 mid 21 9 0 t 0.5 ratios 0 0 nsm 0");
  EXPECT_EQ(Show(Read("PSHELL  11      21      0.5\n" + nextCard)), "11 mid 21 0 0 t 0.5 ratios 0 0 nsm 0");
  EXPECT_EQ(Show(Read("PSHELL  11      21      0.5     0\n" + nextCard)), "11 mid 21 0 0 t 0.5 ratios 0 0 nsm 0");
  EXPECT_EQ(rest, "0\n" + nextCard) << "the zero went to the text behind it";
}

// Required: a large-field card that the walk does not know is taken for this card's values.
TEST_F(ShellCards, ALargeCardOfAnUnknownKeywordIsReadOn) {
  EXPECT_EQ(Show(Read(Small("PSHELL|11|21|0.5") + Large("FORCE*|5|1|0|2.5"))), "11 mid 21 5 1 t 0.5 ratios 0 0 nsm 0");
  EXPECT_EQ(rest, "        2.5             \n") << "five fields of 8 columns are taken behind the keyword";
}

TEST_F(ShellCards, FurtherMaterialsAreRealsCutTowardsZero) {
  EXPECT_EQ(Show(Read(Small("PSHELL|1|2|0.5|2.9|1.0|-3.9"))), "1 mid 2 2 -3 t 0.5 ratios 1 0 nsm 0");
  EXPECT_EQ(Show(Read(Small("PSHELL|1|2|0.5|4.5+1|1.0|-"))), "1 mid 2 45 0 t 0.5 ratios 1 0 nsm 0");
  EXPECT_EQ(Read(Small("PSHELL|1|2|0.5|1.0+10|1.0|-1.0+300")).bendingMaterialId, INT32_MIN) << "out of range";
}

TEST_F(ShellCards, NumbersInTheirWrittenForms) {
  EXPECT_EQ(Read(Small("PSHELL|1|2|1.5-3")).thickness, 1.5 / 10.0 / 10.0 / 10.0);
  EXPECT_EQ(Read(Small("PSHELL|1|2|+1.5")).thickness, 1.5) << "no mark: it reads as a number";
  EXPECT_EQ(Read(Small("PSHELL|1|2|1.0E2")).thickness, 100.0) << "no text: it reads as a number";
  EXPECT_EQ(Read(Small("PSHELL|1|2|1.5D+3")).thickness, 1700.0) << "D is a digit of 20";
  EXPECT_EQ(Read(Small("PSHELL|1|2|    -2")).thickness, -2.0);
}

TEST_F(ShellCards, IntegersWithoutDigitsAreZero) {
  EXPECT_EQ(Show(Read(Small("PSHELL|A|B|0.5") + nextCard)), "0 mid 0 0 0 t 0.5 ratios 0 0 nsm 0");
  EXPECT_EQ(Show(Read(Small("PSHELL|||0.5") + nextCard)), "0 mid 0 0 0 t 0.5 ratios 0 0 nsm 0");
  EXPECT_EQ(Show(Read(Small("PSHELL|-4|1.9|0.5") + nextCard)), "-4 mid 1 0 0 t 0.5 ratios 0 0 nsm 0");
}

TEST_F(ShellCards, CarriageReturnsCostNothing) {
  const std::string next = "\r\nGRID    1\r\n";
  EXPECT_EQ(Show(Read(Small("PSHELL|11|21|0.5|22|1.25|23|0.75|0.125", next))), "11 mid 21 22 23 t 0.5 ratios 1.25 0.75 nsm 0.125");
  EXPECT_EQ(rest, next);
  EXPECT_EQ(Show(Read("PSHELL  11      21      0.5" + next)), "11 mid 21 0 0 t 0.5 ratios 0 0 nsm 0");
  EXPECT_EQ(rest, next.substr(1)) << "the carriage return belongs to the unpadded field";
  EXPECT_EQ(Show(Read("PSHELL  11      21" + next)), "11 mid 21 0 0 t 0 ratios 0 0 nsm 0");
  EXPECT_EQ(Show(Read(Large("PSHELL*|11|21|0.5|22", "\r\n") + Large("*|1.25|23|0.75|0.125", next))),
            "11 mid 21 22 23 t 0.5 ratios 1.25 0.75 nsm 0.125");
}

TEST_F(ShellCards, CardsOfOneIdAreKeptInOrderAndNotMerged) {
  Read(Small("PSHELL|7|1|0.5"));
  Read(Small("PSHELL|8|1|1.5"));
  Read(Small("PSHELL|7|1|2.5"));
  std::vector<double> all;
  WalkIndexedList<PshellRecord>(&list, [&](const PshellRecord* record) { all.push_back(record->thickness); });
  EXPECT_EQ(all, (std::vector<double>{0.5, 1.5, 2.5}));
  std::vector<double> ofId;
  for (const IndexedCell* cell = IndexedListFind(&list, 7); cell != nullptr; cell = cell->nextOfId) {
    ofId.push_back(static_cast<const PshellRecord*>(cell->record)->thickness);
  }
  EXPECT_EQ(ofId, (std::vector<double>{0.5, 2.5}));
}

const std::string plainCard = Small("PSHELL|7|1|0.5");

TEST_F(ShellCards, ABareNameGoesToTheRecordAndNamesThePart) {
  EXPECT_STREQ(Read(plainCard, "$Left arm\n").name, "Left arm");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Left arm");
  EXPECT_EQ(CountNames(), 1);
}

TEST_F(ShellCards, ANameBehindAColonGoesToTheRecordOnly) {
  EXPECT_STREQ(Read(plainCard, "$ Property: Left arm \r\n").name, "Left arm");
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(ShellCards, OtherLinesAboveNameNothing) {
  for (const char* above : {"", "\n", "$\n", "$ Left arm\n", "$Default\n", "$HMCOLOR COMP 7 5\n", "$$arm\n", "GRID    1\n", "$Arm\n\n"}) {
    EXPECT_STREQ(Read(plainCard, above).name, "") << above;
  }
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(ShellCards, TheFirstBareNameOfAnIdNamesThePartAndEachRecordKeepsItsOwn) {
  EXPECT_STREQ(Read(plainCard, "$First\n").name, "First");
  EXPECT_STREQ(Read(plainCard, "$Second\n").name, "Second");
  EXPECT_STREQ(Read(Small("PSHELL|8|1|0.5"), "$Third\n").name, "Third");
  EXPECT_EQ(Name(PropertyNameTable, 7), "First");
  EXPECT_EQ(Name(PropertyNameTable, 8), "Third");
}

TEST_F(ShellCards, AnExplicitNameCommentWinsBeforeAndBehindTheCard) {
  RegisterPropertyName(7, "Door", true);
  Read(plainCard, "$Arm\n");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Door");
  Read(Small("PSHELL|8|1|0.5"), "$Arm\n");
  RegisterPropertyName(8, "Roof", true);
  EXPECT_EQ(Name(PropertyNameTable, 8), "Roof");
}

TEST_F(ShellCards, AnIdBelowOneHasNoPartToName) {
  EXPECT_STREQ(Read(Small("PSHELL|0|1|0.5"), "$Arm\n").name, "Arm");
  EXPECT_STREQ(Read(Small("PSHELL|-7|1|0.5"), "$Arm\n").name, "Arm");
  EXPECT_STREQ(Read(Small("PSHELL||1|0.5"), "$Arm\n").name, "Arm");
  EXPECT_EQ(CountNames(), 0);
  EXPECT_NE(IndexedListFind(&list, 0), nullptr) << "the records are captured all the same";
  EXPECT_NE(IndexedListFind(&list, -7), nullptr);
}

TEST_F(ShellCards, NamesOfLargeCards) {
  EXPECT_STREQ(Read(Large("PSHELL*|7|1|0.5"), "$Large one\n").name, "Large one");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Large one");
}

TEST_F(ShellCards, ALongNameIsCut) {
  const std::string name = Read(plainCard, "$ Name:" + std::string(400, 'n') + "\n").name;
  // The comment line is taken with up to 259 characters.
  EXPECT_EQ(name, std::string(259 - 7, 'n'));
}

}  // namespace
}  // namespace btz
