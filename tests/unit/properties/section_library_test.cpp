// PBARL and PBEAML cards as they are captured: the section word, and what becomes of the numbers behind it.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "properties/property_cards_fixture.h"

namespace btz {
namespace {

using test::Large;
using test::Small;

const std::string nextCard = Small("GRID|1||0.5|1.5|2.5");

class SectionLibrary : public test::BeamCards {
 protected:
  /// Both dimensions and the mass; the card must leave everything else as on no other card.
  std::string Section(const std::string& card) {
    const BeamPropertyRecord& record = Read(card);
    EXPECT_EQ(record.isSectionLibrary, 1) << card;
    EXPECT_TRUE(std::all_of(std::begin(record.blank), std::end(record.blank), [](std::uint8_t mark) { return mark == 1; })) << card;
    for (std::size_t i = 0; i < beamValueCount; ++i) {
      EXPECT_TRUE(i == beamNonStructuralMass || record.*beamValueFields[i] == 0.0) << card;
    }
    std::ostringstream text;
    text << record.sectionDim1 << ' ' << record.sectionDim2 << " nsm " << record.nonStructuralMass;
    return text.str();
  }

  /// The section of a word with three numbers behind it.
  std::string SectionOf(const std::string& word) { return Section(Small("PBARL|11|21||" + word) + Small("+|5.0|3.0|2.0") + nextCard); }
};

TEST_F(SectionLibrary, ARodHasOneDimensionAndAMass) {
  EXPECT_EQ(Section(Small("PBARL|11|21||ROD") + Small("+|5.0|2.0") + nextCard), "5 0 nsm 2");
  EXPECT_EQ(rest, "\n" + nextCard);
  for (const char* word : {"ROD", "RODS", "ROD1"}) {
    EXPECT_EQ(SectionOf(word), "5 0 nsm 3") << word;
  }
}

TEST_F(SectionLibrary, TheOtherWordsHaveTwoDimensionsAndAMass) {
  for (const char* word : {"TUBE", "TUBE2", "BAR", "BARS", "BOX", "BOX1", "CHA", "CHAN", "CHAN1", "CHAN2"}) {
    EXPECT_EQ(SectionOf(word), "5 3 nsm 2") << word;
  }
}

TEST_F(SectionLibrary, AnyOtherWordEndsTheCard) {
  for (const char* word : {"I",     "I1",   "L",   "T",  "T1", "T2", "Z",   "H",    "HAT",  "HAT1", "HEXA",
                           "CROSS", "DBOX", "TUB", "BO", "CH", "RO", "rod", "Tube", "$ROD", "E",    "X"}) {
    EXPECT_EQ(SectionOf(word), "0 0 nsm 0") << word;
    EXPECT_EQ(rest, Small(word) + Small("+|5.0|3.0|2.0") + nextCard);
  }
}

TEST_F(SectionLibrary, ABeamOfAnUnknownWord) {
  const BeamPropertyRecord& record = Read(Small("PBEAML|11|21||I") + Small("+|5.0|3.0|2.0|0.1") + nextCard);
  EXPECT_EQ(record.sectionDim1, 0.0);
  EXPECT_EQ(record.sectionDim2, 0.0);
  EXPECT_EQ(record.isSectionLibrary, 1);
  EXPECT_EQ(record.isBeam, 1);
}

TEST_F(SectionLibrary, OfABeam) {
  EXPECT_EQ(Section(Small("PBEAML|11|21||TUBE") + Small("+|5.0|3.0") + nextCard), "5 3 nsm 0");
  EXPECT_EQ(Section(Small("PBEAML|11|21|MSCBML0|ROD") + Small("+|5.0|2.0") + nextCard), "5 0 nsm 2");
}

TEST_F(SectionLibrary, LargeFields) {
  EXPECT_EQ(Section(Large("PBARL*|11|21||TUBE") + Large("*|5.0|3.0|2.0") + nextCard), "5 3 nsm 2");
  EXPECT_EQ(Section(Large("PBARL*|11|21||ROD", "*\n") + Large("*|5.0|2.0") + nextCard), "5 0 nsm 2");
  EXPECT_EQ(Section(Large("PBEAML*|11|21|GROUPED|BOX", "*L1     \n") + Large("*L1|5.0|3.0|2.0") + nextCard), "5 3 nsm 2");
}

TEST_F(SectionLibrary, TheGroupIsPassedOverUnread) {
  EXPECT_EQ(Section(Small("PBARL|11|21|TUBE|ROD") + Small("+|5.0|2.0") + nextCard), "5 0 nsm 2");
  EXPECT_EQ(Section(Small("PBARL|11|21|7.0|ROD") + Small("+|5.0|2.0") + nextCard), "5 0 nsm 2");
  EXPECT_EQ(Section(Small("PBARL|11|21|+|ROD") + Small("+|5.0|2.0") + nextCard), "5 0 nsm 2");
}

// Required: the group's columns are counted from where the material ended, also across a line end.
TEST_F(SectionLibrary, TheGroupOfAShortLineIsTheHeadOfTheNext) {
  EXPECT_EQ(Section("PBARL   11      21\n" + Small("+|ROD|5.0|2.0") + nextCard), "5 0 nsm 2");
}

TEST_F(SectionLibrary, MissingDimensionsAreZero) {
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE") + Small("+|5.0") + nextCard), "5 0 nsm 0");
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE") + nextCard), "0 0 nsm 0");
  EXPECT_EQ(Section(Small("PBARL|11|21||ROD") + nextCard), "0 0 nsm 0");
  EXPECT_EQ(rest, nextCard) << "the line end went with the word";
}

// Required: three numbers and no more, so of a section with more dimensions the third counts as the mass.
TEST_F(SectionLibrary, ThreeNumbersAreTaken) {
  EXPECT_EQ(Section(Small("PBARL|11|21||BOX") + Small("+|5.0|3.0|0.1|0.2|2.0") + nextCard), "5 3 nsm 0.1");
  EXPECT_EQ(rest, Small("0.2|2.0") + nextCard);
}

TEST_F(SectionLibrary, BlankFieldsDoNotCount) {
  EXPECT_EQ(Section(Small("PBARL|11|21||||TUBE|") + Small("+||5.0||3.0|||2.0") + nextCard), "5 3 nsm 2");
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE") + Small("|5.0|3.0|2.0") + nextCard), "5 3 nsm 2") << "a blank marker";
}

TEST_F(SectionLibrary, NumbersBeforeTheWordCount) {
  EXPECT_EQ(Section(Small("PBARL|11|21||7.0|ROD|5.0") + nextCard), "7 0 nsm 5");
  EXPECT_EQ(Section(Small("PBARL|11|21||7.0|TUBE|5.0|2.0") + nextCard), "7 5 nsm 2");
  EXPECT_EQ(Section(Small("PBARL|11|21||7.0|8.0|I|9.0") + nextCard), "7 0 nsm 0");
}

TEST_F(SectionLibrary, WithoutAWordOnlyTheFirstDimensionIsTaken) {
  EXPECT_EQ(Section(Small("PBARL|11|21||5.0|3.0|2.0") + nextCard), "5 0 nsm 0");
  EXPECT_EQ(Section(Small("PBARL|11|21||") + Small("+|5.0|3.0|2.0") + nextCard), "5 0 nsm 0");
}

TEST_F(SectionLibrary, AWordBehindTheThirdNumberIsNotReached) {
  EXPECT_EQ(Section(Small("PBARL|11|21||5.0|3.0|2.0|TUBE") + nextCard), "5 0 nsm 0");
  EXPECT_EQ(rest, Small("TUBE") + nextCard);
}

TEST_F(SectionLibrary, TheLastOfTwoWordsCounts) {
  EXPECT_EQ(Section(Small("PBARL|11|21||ROD|5.0|TUBE|3.0") + nextCard), "5 3 nsm 0");
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE|5.0|ROD|3.0") + nextCard), "5 0 nsm 3");
}

TEST_F(SectionLibrary, AWordThatReadsAsANumberIsAValue) {
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE|1.0E2|3.0") + nextCard), "100 3 nsm 0");
  // In a number letters are digits: R is 34, O is 31, D is 20.
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE|2ROD|3.0") + nextCard), "5730 3 nsm 0");
}

TEST_F(SectionLibrary, MarksAreNoValuesAndNumericLabelsAre) {
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE|||||+L1") + Small("+L1|5.0|3.0") + nextCard), "5 3 nsm 0");
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE|||||+1") + Small("+1|5.0|3.0") + nextCard), "1 1 nsm 5");
}

TEST_F(SectionLibrary, AnUnpaddedWordIsFoundAll) {
  EXPECT_EQ(Section("PBARL   11      21              TUBE\n" + Small("+|5.0|3.0") + nextCard), "5 3 nsm 0");
  EXPECT_EQ(Section("PBARL   11      21              ROD\r\n" + Small("+|5.0|2.0", "\r\n") + nextCard), "5 0 nsm 2");
}

TEST_F(SectionLibrary, TheNextCardEndsIt) {
  for (const std::string& next : {nextCard, Small("FORCE|7|8"), std::string("$ note\n"), Large("GRID*|1")}) {
    EXPECT_EQ(Section(Small("PBARL|11|21||TUBE") + Small("+|5.0") + next), "5 0 nsm 0") << next;
    EXPECT_EQ(rest, "\n" + next);
  }
}

// Required: words are compared by their heads, so a card whose keyword begins like a section is taken for its word.
TEST_F(SectionLibrary, ACardThatBeginsLikeASectionIsReadOn) {
  EXPECT_EQ(Section(Small("PBARL|11|21||ROD") + Small("+|5.0") + Small("BAROR|7|8|9") + nextCard), "5 7 nsm 8");
}

TEST_F(SectionLibrary, ALargeCardOutsideTheListIsReadOn) {
  EXPECT_EQ(Section(Small("PBARL|11|21||TUBE") + Small("+|5.0") + Large("FORCE*|7|8")), "5 7 nsm 8");
}

TEST_F(SectionLibrary, TheTextMayEndAtAnyField) {
  const std::string card = Small("PBARL|11|21|GROUP|TUBE|5.0|3.0|2.0", "");
  const char* const expected[] = {"0 0 nsm 0", "0 0 nsm 0", "0 0 nsm 0", "0 0 nsm 0", "0 0 nsm 0", "5 0 nsm 0", "5 3 nsm 0", "5 3 nsm 2"};
  for (std::size_t fields = 0; fields < std::size(expected); ++fields) {
    EXPECT_EQ(Section(card.substr(0, 8 * (fields + 1))), expected[fields]);
    EXPECT_EQ(rest, "");
    EXPECT_EQ(Section(card.substr(0, 8 * (fields + 1)) + "\n"), expected[fields]);
  }
  EXPECT_EQ(Section("PBARL"), "0 0 nsm 0");
}

}  // namespace
}  // namespace btz
