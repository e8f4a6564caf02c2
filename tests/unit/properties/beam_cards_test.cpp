// PBAR and PBEAM cards as they are captured: which value stands at which position, and which count as not given.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "properties/property_cards_fixture.h"

namespace btz {
namespace {

using test::BeamCards;
using test::Large;
using test::Small;

const std::string nextCard = Small("GRID|1||0.5|1.5|2.5");

constexpr const char* valueNames[beamValueCount] = {"A",  "I1", "I2", "J",  "NSM", "C1", "C2", "D1",
                                                    "D2", "E1", "E2", "F1", "F2",  "K1", "K2", "I12"};

/// The values that count as given, by name, and behind a `?` those that do not but are not 0.
std::string Given(const BeamPropertyRecord& record) {
  std::ostringstream text;
  for (std::size_t i = 0; i < beamValueCount; ++i) {
    const double value = record.*beamValueFields[i];
    if (record.blank[i] == 0 || value != 0.0 || record.blank[i] != 1) {
      text << (text.tellp() == 0 ? "" : " ") << (record.blank[i] == 0 ? "" : "?") << valueNames[i] << '=' << value;
    }
  }
  return text.str();
}

TEST_F(BeamCards, TheKeywordTellsBarsFromBeamsAndLibrarySections) {
  struct Form {
    const char* keyword;
    std::int32_t isBeam;
    std::int32_t isSectionLibrary;
  };
  for (const Form& form : {Form{"PBAR", 0, 0}, Form{"PBAR*", 0, 0}, Form{"PBARL", 0, 1}, Form{"PBARL*", 0, 1}, Form{"PBEAM", 1, 0},
                           Form{"PBEAM*", 1, 0}, Form{"PBEAML", 1, 1}, Form{"PBEAML*", 1, 1}}) {
    const std::string keyword = form.keyword;
    const BeamPropertyRecord& record = Read(keyword.back() == '*' ? Large(keyword + "|11|21") : Small(keyword + "|11|21"));
    EXPECT_EQ(record.propertyId, 11) << keyword;
    EXPECT_EQ(record.materialId, 21) << keyword;
    EXPECT_EQ(record.isBeam, form.isBeam) << keyword;
    EXPECT_EQ(record.isSectionLibrary, form.isSectionLibrary) << keyword;
    EXPECT_STREQ(record.name, "");
  }
}

TEST_F(BeamCards, AKeywordThatOnlyBeginsLikeOneIsABar) {
  for (const char* keyword : {"PBARX", "PBEAM3", "PBEAMX", "PBCOMP", "PBARL2"}) {
    const BeamPropertyRecord& record = Read(Small(std::string(keyword) + "|11|21|0.5|1.5"));
    EXPECT_EQ(record.isBeam, 0) << keyword;
    EXPECT_EQ(record.isSectionLibrary, 0) << keyword;
    EXPECT_EQ(Given(record), "A=0.5 I1=1.5") << keyword;
  }
}

TEST_F(BeamCards, CaseCountsForTheWidthButNotForTheKind) {
  const BeamPropertyRecord& record = Read(Small("pbeam*|11|21|0.5|1.5"));
  EXPECT_EQ(record.isBeam, 1);
  EXPECT_EQ(record.propertyId, 11);
  EXPECT_EQ(Given(record), "A=0.5 I1=1.5");
  EXPECT_EQ(Read(Small("Pbarl|11|21")).isSectionLibrary, 1);
}

TEST_F(BeamCards, EachPositionOfABar) {
  const std::string card = Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|") + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + Small("+|2.1|2.2|2.3");
  EXPECT_EQ(Given(Read(card + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 F2=1.8 K1=2.1 K2=2.2 I12=2.3");
  EXPECT_EQ(rest, "\n" + nextCard);
}

TEST_F(BeamCards, EachPositionOfABeam) {
  const std::string card =
      Small("PBEAM|11|21|0.1|0.2|0.3|0.4|0.5|0.6") + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + Small("+|2.1|2.2|2.3");
  EXPECT_EQ(Given(Read(card + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.5 NSM=0.6 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 F2=1.8 K1=2.1 K2=2.2 I12=0.4");
  EXPECT_EQ(rest, Small("2.3") + nextCard);
}

TEST_F(BeamCards, LargeBarWithItsBlankEighthField) {
  const std::string card = Large("PBAR*|11|21|0.1|0.2") + Large("*|0.3|0.4|0.5|") + Large("*|1.1|1.2|1.3|1.4") +
                           Large("*|1.5|1.6|1.7|1.8") + Large("*|2.1|2.2|2.3");
  EXPECT_EQ(Given(Read(card + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 F2=1.8 K1=2.1 K2=2.2 I12=2.3");
  EXPECT_EQ(rest, "\n" + nextCard);
}

TEST_F(BeamCards, LargeBeam) {
  const std::string card = Large("PBEAM*|11|21|0.1|0.2", "*P1     \n") + Large("*P1|0.3|0.4|0.5|0.6", "*P2     \n") +
                           Large("*P2|1.1|1.2|1.3|1.4") + Large("*|1.5|1.6|1.7|1.8");
  EXPECT_EQ(Given(Read(card + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.5 NSM=0.6 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 F2=1.8 I12=0.4");
}

TEST_F(BeamCards, ABarOfOneLineHasNothingBehindItsMass) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|") + nextCard)), "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5");
  EXPECT_EQ(rest, nextCard) << "the blank eighth field was skipped with the line end";
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5") + nextCard)), "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5");
  EXPECT_EQ(rest, "\n" + nextCard);
}

TEST_F(BeamCards, TorsionAndMassOfABarTakeTheirMarksFromTheFields) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4||") + nextCard)), "A=0.1 I1=0.2 I2=0.3 J=0.4");
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3||0.5|") + nextCard)), "A=0.1 I1=0.2 I2=0.3 NSM=0.5");
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.0|0|.0|0.0|0.0|") + nextCard)), "A=0 I1=0 I2=0 J=0 NSM=0") << "a zero is given";
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|||||||") + nextCard)), "");
}

TEST_F(BeamCards, ABlankMassOfABeamIsABlankValue) {
  const std::string second = Small("+|1.1|1.2");
  EXPECT_EQ(Given(Read(Small("PBEAM|11|21|0.1|0.2|0.3|0.4|0.5|") + second + nextCard)), "A=0.1 I1=0.2 I2=0.3 J=0.5 C1=1.1 C2=1.2 I12=0.4");
}

TEST_F(BeamCards, ABarsFirstLineMayEndBeforeItsEighthField) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5") + Small("+|1.1|1.2") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=1.1 C2=1.2");
}

TEST_F(BeamCards, ANumberInTheEighthFieldOfABarIsItsC1) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|0.6") + Small("+|1.1|1.2") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=0.6 C2=1.1 D1=1.2");
}

// Required: a blank at the position of C1 is taken for the eighth field wherever it stands, so a blank C1 gets the value behind it.
TEST_F(BeamCards, ABlankC1OfABarIsSkippedToo) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|") + Small("+||1.2|1.3") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=1.2 C2=1.3");
}

TEST_F(BeamCards, ABlankC1OfABeamIsABlankValue) {
  EXPECT_EQ(Given(Read(Small("PBEAM|11|21|0.1|0.2|0.3|0.4|0.5|0.6") + Small("+||1.2|1.3") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.5 NSM=0.6 C2=1.2 D1=1.3 I12=0.4");
}

TEST_F(BeamCards, BlanksBehindC1AreBlankValues) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1||0.3|0.4||") + Small("+|1.1||1.3||1.5||1.7|") + nextCard)),
            "A=0.1 I2=0.3 J=0.4 C1=1.1 D1=1.3 E1=1.5 F1=1.7");
}

const std::string barLine = Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|");
const std::string barGiven = "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 F2=1.8";

TEST_F(BeamCards, BlankMarkersOfABarsLinesTakeNoPosition) {
  const std::string card = barLine + Small("|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + Small("|2.1|2.2|2.3");
  EXPECT_EQ(Given(Read(card + nextCard)), barGiven + " K1=2.1 K2=2.2 I12=2.3");
}

// Required: a mark on the second line makes the blank marker of the third a value.
TEST_F(BeamCards, BehindAMarkABlankMarkerOfTheThirdLineIsK1) {
  const std::string card = barLine + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + Small("|2.1|2.2|2.3");
  EXPECT_EQ(Given(Read(card + nextCard)), barGiven + " K2=2.1 I12=2.2");
  EXPECT_EQ(rest, Small("2.3") + nextCard);
}

TEST_F(BeamCards, ABlankK1IsABlankValueBehindAMarkOnly) {
  const std::string marked = barLine + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + Small("+||2.2|2.3");
  EXPECT_EQ(Given(Read(marked + nextCard)), barGiven + " K2=2.2 I12=2.3");
  const std::string blankFirst = barLine + Small("|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + Small("||2.2|2.3");
  EXPECT_EQ(Given(Read(blankFirst + nextCard)), barGiven + " K1=2.2 K2=2.3");
}

// Required: a star is no mark for this rule.
TEST_F(BeamCards, StarsDoNotCountAsMarks) {
  const std::string card = Large("PBAR*|11|21|0.1|0.2") + Large("*|0.3|0.4|0.5|") + Large("*|1.1|1.2|1.3|1.4") +
                           Large("*|1.5|1.6|1.7|1.8") + Large("*||2.2|2.3");
  EXPECT_EQ(Given(Read(card + nextCard)), barGiven + " K1=2.2 K2=2.3");
}

TEST_F(BeamCards, ABlankF2OfABeamIsABlankValueBehindAMarkOnly) {
  const std::string first = Small("PBEAM|11|21|0.1|0.2|0.3|0.4|0.5|0.6");
  EXPECT_EQ(Given(Read(first + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|") + Small("+|2.1|2.2") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.5 NSM=0.6 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 K1=2.1 K2=2.2 I12=0.4");
  const std::string large = Large("PBEAM*|11|21|0.1|0.2") + Large("*|0.3|0.4|0.5|0.6") + Large("*|1.1|1.2|1.3|1.4") +
                            Large("*|1.5|1.6|1.7|") + Large("*|2.1|2.2");
  EXPECT_EQ(Given(Read(large + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.5 NSM=0.6 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 F2=2.1 K1=2.2 I12=0.4");
}

// Required: the blank marker of a beam's second line is C1, with the line end before it.
TEST_F(BeamCards, ABlankMarkerOfABeamsSecondLineIsC1) {
  EXPECT_EQ(Given(Read(Small("PBEAM|11|21|0.1|0.2|0.3|0.4|0.5|0.6") + Small("|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.5 NSM=0.6 C2=1.1 D1=1.2 D2=1.3 E1=1.4 E2=1.5 F1=1.6 F2=1.7 K1=1.8 I12=0.4");
}

// Required: the third line of a PBEAM is not read in a layout of its own.
TEST_F(BeamCards, AWordOnTheThirdLineOfABeamEndsIt) {
  const std::string card = Small("PBEAM|11|21|0.1|0.2|0.3|0.4|0.5|0.6") + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8");
  const std::string given = "A=0.1 I1=0.2 I2=0.3 J=0.5 NSM=0.6 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 F2=1.8";
  for (const char* word : {"YES", "NO", "YESA"}) {
    EXPECT_EQ(Given(Read(card + Small("+|" + std::string(word) + "|1.0|2.1|2.2") + nextCard)), given + " I12=0.4") << word;
    EXPECT_EQ(rest, Small(std::string(word) + "|1.0|2.1|2.2") + nextCard) << word;
  }
  EXPECT_EQ(Given(Read(card + Small("+|2.1|YES") + nextCard)), given + " K1=2.1 I12=0.4");
}

TEST_F(BeamCards, NumbersOnTheThirdLineOfABeamAreItsShearFactors) {
  const std::string card = Small("PBEAM|11|21|0.1|0.2|0.3|0.4|0.5|0.6") + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8");
  EXPECT_EQ(Given(Read(card + Small("+||2.2") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.5 NSM=0.6 C1=1.1 C2=1.2 D1=1.3 D2=1.4 E1=1.5 E2=1.6 F1=1.7 F2=1.8 K2=2.2 I12=0.4");
}

TEST_F(BeamCards, AShortCardEndsAtTheNext) {
  for (const std::string& next : {nextCard, Small("FORCE|7|8"), std::string("$ note\n"), std::string("ENDDATA\n")}) {
    EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2") + next)), "A=0.1 I1=0.2") << next;
    EXPECT_EQ(rest, "\n" + next);
    EXPECT_EQ(Given(Read(Small("PBEAM|11|21") + next)), "") << next;
    EXPECT_EQ(rest, "\n" + next);
  }
}

// Required: the mark is written before it is known that the next card has been reached, and only text without a star sets it back.
TEST_F(BeamCards, ALargeCardOfTheListLeavesTheNextValueGivenAsZero) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2") + Large("GRID*|1|2"))), "A=0.1 I1=0.2 I2=0");
  EXPECT_EQ(rest, "\n" + Large("GRID*|1|2"));
  EXPECT_EQ(Given(Read(Small("PBEAM|11|21|0.1|0.2|0.3") + Large("PBEAM*|1|2"))), "A=0.1 I1=0.2 I2=0.3 I12=0");
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|") + Large("MAT1*|1|2"))), "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=0");
  EXPECT_EQ(Given(Read(Large("PBAR*|11|21|0.1|0.2") + Large("*|0.3|0.4|0.5|") + Large("GRID*|1|2"))),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=0");
}

TEST_F(BeamCards, ALargeCardOutsideTheListIsReadOn) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2") + Large("FORCE*|7|8"))), "A=0.1 I1=0.2 I2=7 NSM=8");
}

// Required: a star marker leaves its position given until the field behind it is looked at; at C1 a skipped blank does not set it back.
TEST_F(BeamCards, AStarMarkerBeforeABlankC1LeavesItGiven) {
  const std::string card = Large("PBAR*|11|21|0.1|0.2") + Large("*|0.3|0.4|0.5|") + Large("*|") + nextCard;
  EXPECT_EQ(Given(Read(card)), "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5") << "the text behind it sets the mark back";
  EXPECT_EQ(Given(Read(Large("PBAR*|11|21|0.1|0.2") + Large("*|0.3|0.4|0.5|") + Large("*|"))), "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=0");
  EXPECT_EQ(Given(Read(Large("PBAR*|11|21|0.1|") + Large("*||0.4"))), "A=0.1 J=0.4") << "elsewhere the blank sets it";
}

TEST_F(BeamCards, LabelsOfContinuationLines) {
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5||+B1") + Small("+B1|1.1|1.2") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=1.1 C2=1.2");
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5||+1") + Small("+1|1.1|1.2") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=1 C2=1 D1=1.1 D2=1.2")
      << "a numeric label is read as a number, twice";
}

TEST_F(BeamCards, AnUnpaddedLastValueIsJudgedWithTheNextLine) {
  EXPECT_EQ(Given(Read("PBAR    11      21      0.1     0.2\n" + nextCard)), "A=0.1 I1=0.2");
  EXPECT_EQ(Given(Read("PBAR    11      21      0.1     0.0\n" + nextCard)), "A=0.1") << "a zero goes with the text behind it";
  EXPECT_EQ(Given(Read("PBAR    11      21      0.1     0.0\n" + Small("+|0.3") + nextCard)), "A=0.1 I1=0.3") << "or with the mark";
  EXPECT_EQ(Given(Read("PBAR    11      21      0.1     0.2\n" + Small("+|0.3") + nextCard)), "A=0.1 I1=0.2 I2=0.3");
}

TEST_F(BeamCards, CarriageReturns) {
  const std::string card = Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|", "\r\n") + Small("+|1.1|1.2|1.3|1.4|1.5|1.6|1.7|1.8", "\r\n") +
                           Small("+|2.1|2.2|2.3", "\r\n");
  EXPECT_EQ(Given(Read(card + nextCard)), barGiven + " K1=2.1 K2=2.2 I12=2.3");
  EXPECT_EQ(rest, "\r\n" + nextCard);
  EXPECT_EQ(Given(Read(Small("PBEAM|11|21|0.1|0.2", "\r\n") + nextCard)), "A=0.1 I1=0.2");
  EXPECT_EQ(Given(Read(Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|", "\r\n") + Small("|1.1|1.2", "\r\n") + nextCard)),
            "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5 C1=1.1 C2=1.2")
      << "the blank of the carriage return is skipped like the eighth field";
}

TEST_F(BeamCards, TheTextMayEndAtAnyFieldOfABar) {
  const std::string card = Small("PBAR|11|21|0.1|0.2|0.3|0.4|0.5|", "");
  const char* const expected[] = {"",
                                  "",
                                  "",
                                  "A=0.1",
                                  "A=0.1 I1=0.2",
                                  "A=0.1 I1=0.2 I2=0.3",
                                  "A=0.1 I1=0.2 I2=0.3 J=0.4",
                                  "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5",
                                  "A=0.1 I1=0.2 I2=0.3 J=0.4 NSM=0.5"};
  for (std::size_t fields = 0; fields < std::size(expected); ++fields) {
    EXPECT_EQ(Given(Read(card.substr(0, 8 * (fields + 1)))), expected[fields]);
    EXPECT_EQ(rest, "");
    EXPECT_EQ(Given(Read(card.substr(0, 8 * (fields + 1)) + "\n")), expected[fields]);
    EXPECT_EQ(rest, "");
  }
  EXPECT_EQ(Given(Read("PBAR")), "");
}

TEST_F(BeamCards, NothingElseIsSet) {
  const BeamPropertyRecord& record = Read(barLine + Small("+|1.1") + nextCard);
  EXPECT_EQ(record.sectionDim1, 0.0);
  EXPECT_EQ(record.sectionDim2, 0.0);
  EXPECT_EQ(record.orientation[0], 0.0);
  EXPECT_EQ(record.orientation[1], 0.0);
  EXPECT_EQ(record.orientation[2], 0.0);
  EXPECT_EQ(record.pinFlagsA, 0);
  EXPECT_EQ(record.pinFlagsB, 0);
}

TEST_F(BeamCards, NamesFromTheCommentAbove) {
  EXPECT_STREQ(Read(Small("PBAR|7|1|0.5"), "$Strut\n").name, "Strut");
  EXPECT_STREQ(Read(Large("PBEAM*|8|1|0.5"), "$Girder\n").name, "Girder");
  EXPECT_STREQ(Read(Small("PBARL|9|1||ROD|0.5"), "$Rail\r\n").name, "Rail");
  EXPECT_STREQ(Read(Small("PBEAML|10|1||ROD|0.5"), "$ Property: Mast\n").name, "Mast");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Strut");
  EXPECT_EQ(Name(PropertyNameTable, 8), "Girder");
  EXPECT_EQ(Name(PropertyNameTable, 9), "Rail");
  EXPECT_EQ(CountNames(), 3);
}

}  // namespace
}  // namespace btz
