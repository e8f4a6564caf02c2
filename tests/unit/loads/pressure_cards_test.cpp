// The reader of `PLOAD4` cards: forms of a card, what it leaves in its set, when a set is one of different values.
#include <algorithm>
#include <iterator>
#include <random>
#include <string>

#include "deck/plain_line_walk.h"
#include "deck/random_lines.h"
#include "loads/pressure_fixture.h"

namespace btz {
namespace {

using test::Large;
using test::ReadChangedAnywhere;
using test::ReadCutAnywhere;
using test::Reals;
using test::Small;
using testing::ElementsAre;
using testing::IsEmpty;

/// Shells 10, 11 and 12, solids 11, 12 and 20, nodes 1 to 20.
class PressureCards : public test::PressuresTest {
 protected:
  PressureCards() {
    MakeNodes(20);
    for (const std::int32_t id : {10, 11, 12}) {
      Make(id, elementQuad4, {1, 2, 3, 4}, 7);
    }
    for (const std::int32_t id : {11, 12, 20}) {
      Make(id, elementHexa8, {1, 2, 3, 4, 5, 6, 7, 8}, 8);
    }
  }

  /// The only card of set 5 behind a text that is read from its start; "none" when it left nothing.
  std::string CardOf(const std::string& content) {
    Read(content);
    const std::vector<std::string> cards = Cards(5);
    EXPECT_LE(cards.size(), 1U);
    FreeSets();
    return cards.empty() ? "none" : cards[0];
  }

  /// Whether a set that begins with these values is mixed.
  bool IsMixed(const std::string& values) {
    Card("5|20|" + values + "|1|3");
    const bool mixed = Set(5)->mixed != 0;
    FreeSets();
    return mixed;
  }

  static void FreeSets() {
    WalkIndexedList<void>(&PressureSetTable, FreePressureSetRecord);
    IndexedListClear(&PressureSetTable);
  }

  Reals Reference() const { return {std::begin(reference), std::end(reference)}; }
};

TEST_F(PressureCards, OnASolid) {
  EXPECT_EQ(Read(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|1|3") + "GRID"), "\nGRID");
  const PressureSetRecord* set = Set(5);
  ASSERT_NE(set, nullptr);
  EXPECT_EQ(set->setId, 5);
  EXPECT_EQ(set->pressure, 1.0);
  EXPECT_EQ(set->mixed, 1);
  EXPECT_EQ(set->isShell, 0);
  EXPECT_THAT(Cards(5), ElementsAre("e20 n1 n3 (1 2 3 4)"));
  EXPECT_EQ(Reference(), (Reals{1.0, 2.0, 3.0, 4.0}));
}

TEST_F(PressureCards, OnAShell) {
  EXPECT_EQ(Read(Small("PLOAD4|5|10|2.0|||||") + "GRID    1\n"), "GRID    1\n");
  const PressureSetRecord* set = Set(5);
  ASSERT_NE(set, nullptr);
  EXPECT_EQ(set->pressure, 2.0);
  EXPECT_EQ(set->mixed, 0);
  EXPECT_EQ(set->isShell, 1);
  EXPECT_THAT(Cards(5), ElementsAre("e10 - - (2 2 2 2)"));
  EXPECT_EQ(Reference(), (Reals{2.0, 2.0, 2.0, 2.0}));
}

// Required: the other values of a card that ends behind P1 are 0, and the field walk is not begun.
TEST_F(PressureCards, ThatEndsBehindP1KeepsOneValue) {
  EXPECT_EQ(Read(Small("PLOAD4|5|10|2.0") + "+       1       3\n"), "\n+       1       3\n");
  EXPECT_THAT(Cards(5), ElementsAre("e10 - - (2 0 0 0)"));
  EXPECT_EQ(Set(5)->mixed, 0);
  EXPECT_EQ(Reference(), (Reals{2.0, 0.0, 0.0, 0.0}));
}

TEST_F(PressureCards, ThatEndsBehindAShortP1KeepsOneValue) {
  EXPECT_EQ(Read("PLOAD4  5       10      2.0\nGRID"), "\nGRID");
  EXPECT_THAT(Cards(5), ElementsAre("e10 - - (2 0 0 0)"));
}

TEST_F(PressureCards, ACarriageReturnBehindP1EndsTheCardToo) {
  EXPECT_EQ(Read(Small("PLOAD4|5|10|2.0", "\r\n") + "GRID"), "\r\nGRID");
  EXPECT_EQ(Read("PLOAD4  5       11      2.0\r\nGRID"), "\nGRID") << "here it belongs to the field";
  EXPECT_THAT(Cards(5), ElementsAre("e10 - - (2 0 0 0)", "e11 - - (2 0 0 0)"));
}

// Required: the end of the text behind P1 is no line's end, so all four values are the first.
TEST_F(PressureCards, TheEndOfTheTextBehindP1IsAsGoodAsBlanks) {
  EXPECT_EQ(Read("PLOAD4  5       10      2.0"), "");
  EXPECT_EQ(Read("PLOAD4  5       11      2.0     "), "");
  EXPECT_THAT(Cards(5), ElementsAre("e10 - - (2 2 2 2)", "e11 - - (2 2 2 2)"));
}

TEST_F(PressureCards, P1MayStandInTheNextLine) {
  EXPECT_EQ(CardOf("PLOAD4  5       10\n2.0\nGRID"), "e10 - - (2 0 0 0)");
  EXPECT_EQ(CardOf("PLOAD4  5       10\n\n2.0\nGRID"), "e10 - - (2 0 0 0)");
  EXPECT_EQ(Read("PLOAD4  5       10\n\n\n2.0\n"), "\n2.0\n") << "two line feeds are stepped over, not three";
}

// Required: reals are read on in the next line. A line with a few blanks behind P1 takes them from the next card.
TEST_F(PressureCards, ValuesThatAreMissingComeFromTheNextLine) {
  // "GRID    " as digits of a number: 23, 34, 25, 20.
  EXPECT_EQ(Read(Small("PLOAD4|5|20|2.0|") + "GRID    1       3\n"), "");
  EXPECT_THAT(Cards(5), ElementsAre("e20 n3 - (2 0 26670 1)"));
}

TEST_F(PressureCards, LargeFieldsWithLineEndsBehindTheLastColumn) {
  EXPECT_EQ(Read(Large("PLOAD4*|5|20|1.0|2.0") + Large("*|3.0|4.0|1|3") + "GRID"), "        \nGRID");
  EXPECT_THAT(Cards(5), ElementsAre("e20 n1 n3 (1 2 3 4)"));
}

// Required: P3 begins with the mark's columns, so a value far to the right in its field becomes the next one.
TEST_F(PressureCards, LargeFieldsAreReadFromTheFirstColumnOfTheirSecondLine) {
  const std::string second = "*                    3.0             4.0                            1\n";
  EXPECT_EQ(CardOf(Large("PLOAD4*|5|20|1.0|2.0") + second), "e20 n4 n1 (1 2 0 3)");
}

// Required: the name of a mark behind P2 is read as P3, letters being digits from 17 on.
TEST_F(PressureCards, ANamedMarkOfLargeFieldsIsRead) {
  EXPECT_EQ(CardOf(Large("PLOAD4*|5|20|1.0|2.0", "*A\n") + Large("*A|3.0|4.0|1|7")), "e20 n4 n1 (1 2 17 173)");
}

TEST_F(PressureCards, OnlyAStarRightBehindTheKeywordMeansLargeFields) {
  EXPECT_EQ(CardOf(Small("PLOAD41*|5|20|1.0|2.0|3.0|4.0|1|3")), "e20 n1 n3 (1 2 3 4)");
  EXPECT_EQ(CardOf(Small("PLOAD4 *|5|20|1.0|2.0|3.0|4.0|1|3")), "e20 n1 n3 (1 2 3 4)");
}

TEST_F(PressureCards, TheKeywordFieldHasEightColumnsWhateverIsInIt) {
  EXPECT_EQ(CardOf("PLOAD4\n 5       10      2.0\n"), "e10 - - (2 0 0 0)");
}

// Required: commas do not count, so this card has neither a set nor an element, and its values come from the next line.
TEST_F(PressureCards, CommasAreNoFields) {
  EXPECT_EQ(Read("PLOAD4,5,10,2.0\n3.0\nGRID"), "\nGRID");
  EXPECT_EQ(Set(5), nullptr);
  EXPECT_THAT(Cards(0), ElementsAre("- - - (3 0 0 0)"));
}

// Required: equal values at the other corners give way to the first, blank or not.
TEST_F(PressureCards, EqualValuesBehindTheFirstGiveWayToIt) {
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|2.0|5.0|5.0|5.0|1|3")), "e20 n1 n3 (2 2 2 2)");
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|2.0|0.0|0.0|0.0|1|3")), "e20 n1 n3 (2 2 2 2)");
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|2.0|5.0|5.0||1|3")), "e20 n1 n3 (2 5 5 0)");
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|2.0||5.0|5.0|1|3")), "e20 n1 n3 (2 0 5 5)");
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|2.0|5.0||5.0|1|3")), "e20 n1 n3 (2 5 0 5)");
}

TEST_F(PressureCards, NodesStandInTheNextLine) {
  const std::string first = "PLOAD4|5|20|1.0|2.0|3.0|4.0";
  EXPECT_EQ(CardOf(Small(first + "|||+P1") + Small("+P1|1|3")), "e20 n1 n3 (1 2 3 4)");
  EXPECT_EQ(CardOf(Small(first + "|1||+P1") + Small("+P1|3")), "e20 n1 n3 (1 2 3 4)");
  EXPECT_EQ(CardOf(Small(first) + Small("+|1|3")), "e20 n1 n3 (1 2 3 4)") << "the peek at the line end sees the mark";
  EXPECT_EQ(CardOf(Small(first, "\r\n") + Small("+|1|3", "\r\n")), "e20 n1 n3 (1 2 3 4)");
}

TEST_F(PressureCards, ABlankNodeTakesNoPlace) {
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0||3") + "GRID"), "e20 n3 - (1 2 3 4)");
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|3|") + "GRID"), "e20 n3 - (1 2 3 4)");
}

TEST_F(PressureCards, AZeroTakesThePlaceOfANode) { EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|0|3")), "e20 - n3 (1 2 3 4)"); }

// Required: a plus sign makes a mark of any number; forces read such a field.
TEST_F(PressureCards, ANodeWithAPlusSignIsSteppedOverAsAMark) {
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|+1|3") + "GRID"), "e20 n3 - (1 2 3 4)");
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|1+2|3") + "GRID"), "e20 n3 - (1 2 3 4)");
}

TEST_F(PressureCards, AStarMarkerHasEightColumnsWhateverTheWidth) {
  const std::string head = Large("PLOAD4*|5|20|1.0|2.0") + Large("*|3.0|4.0");
  EXPECT_EQ(CardOf(head + Large("*|1|3")), "e20 n1 n3 (1 2 3 4)");
  EXPECT_EQ(CardOf(head + Large("*P2|1|3")), "e20 n1 n3 (1 2 3 4)");
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0") + Small("*|1|3")), "e20 n1 n3 (1 2 3 4)");
}

TEST_F(PressureCards, AStarBehindANumberIsPartOfIt) { EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|1*|3")), "e20 n1 n3 (1 2 3 4)"); }

TEST_F(PressureCards, AKeywordEndsTheCard) {
  const std::string card = Small("PLOAD4|5|10|1.0|2.0|3.0|4.0");
  EXPECT_EQ(Read(card + "GRID*   9\n"), "\nGRID*   9\n");
  EXPECT_EQ(Read(card + "GRID    9\n"), "\nGRID    9\n");
  EXPECT_EQ(Read(card + "FORCE   9\n"), "\nFORCE   9\n") << "any text does";
  EXPECT_EQ(Read(card + "$ 1\n"), "\n$ 1\n");
  EXPECT_THAT(Cards(5), ElementsAre("e10 - - (1 2 3 4)", "e10 - - (1 2 3 4)", "e10 - - (1 2 3 4)", "e10 - - (1 2 3 4)"));
}

// Required: a keyword with a star that is on no list of keywords counts as a marker.
TEST_F(PressureCards, AKeywordWithAStarThatNobodyListsIsAMarker) {
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0") + "FORCE*  1               3\n"), "e20 n1 n3 (1 2 3 4)");
}

TEST_F(PressureCards, TextWithANumberInFrontIsANumber) {
  EXPECT_EQ(CardOf(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|3X|2THRU")), "e20 n3 n2 (1 2 3 4)");
}

TEST_F(PressureCards, TextInPlaceOfANodeEndsTheCard) {
  EXPECT_EQ(Read(Small("PLOAD4|5|10|1.0|2.0|3.0|4.0|X|3")), "X       3       \n");
  EXPECT_EQ(Read(Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|1|Y3")), "Y3      \n");
  EXPECT_THAT(Cards(5), ElementsAre("e10 - - (1 2 3 4)", "e20 n1 - (1 2 3 4)"));
}

// Required: THRU leaves neither a set nor a value.
TEST_F(PressureCards, WithThruHasNoEffect) {
  EXPECT_EQ(Read(Small("PLOAD4|5|10|2.0||||THRU|12")), "THRU    12      \n");
  EXPECT_EQ(Read(Small("PLOAD4|5|10|2.0||||1|THRU")), "THRU    \n") << "in either place";
  EXPECT_EQ(Read(Small("PLOAD4|5|10|2.0||||") + Small("+|  THRU")), "  THRU  \n");
  EXPECT_EQ(Set(5), nullptr);
  EXPECT_EQ(PressureSetTable.size, 0);
  EXPECT_EQ(Reference(), (Reals{0.0, 0.0, 0.0, 0.0}));
}

TEST_F(PressureCards, WithThruLeavesItsSetAsItIs) {
  Card("5|10|2.0");
  Read(Small("PLOAD4|5|11|9.0||||THRU|12"));
  EXPECT_THAT(Cards(5), ElementsAre("e10 - - (2 2 2 2)"));
  EXPECT_EQ(Set(5)->mixed, 0);
  EXPECT_EQ(Set(5)->isShell, 1);
}

TEST_F(PressureCards, OnlyThruItselfIsOne) {
  for (const char* text : {"thru", "THRUX", "THR", "XTHRU", "T HRU"}) {
    EXPECT_EQ(CardOf(Small(std::string("PLOAD4|5|10|2.0||||") + text + "|12")), "e10 - - (2 2 2 2)") << text;
  }
}

TEST_F(PressureCards, ThruInPlaceOfAnotherFieldIsNone) { EXPECT_EQ(CardOf(Small("PLOAD4|5|10|2.0||||1|3|THRU")), "- n1 n3 (2 2 2 2)"); }

TEST_F(PressureCards, TheFirstThreeValuesMakeASetMixed) {
  EXPECT_FALSE(IsMixed("1.0|1.0|1.0|1.0"));
  EXPECT_TRUE(IsMixed("1.0|2.0|1.0|1.0"));
  EXPECT_TRUE(IsMixed("1.0|1.0|2.0|1.0"));
  EXPECT_TRUE(IsMixed("2.0|1.0|1.0|3.0"));
  EXPECT_TRUE(IsMixed("1.0|2.0|3.0|4.0"));
}

// Required.
TEST_F(PressureCards, TheFourthValueIsNotLookedAt) { EXPECT_FALSE(IsMixed("1.0|1.0|1.0|9.0")); }

// Required.
TEST_F(PressureCards, WithoutASecondValueASetIsNotMixed) {
  EXPECT_FALSE(IsMixed("1.0|0.0|2.0|3.0"));
  EXPECT_FALSE(IsMixed("1.0||2.0|"));
  EXPECT_TRUE(IsMixed("0.0|1.0|0.0|0.0"));
}

TEST_F(PressureCards, AnotherFirstValueMakesASetMixed) {
  Card("5|10|2.0");
  Card("5|11|2.0");
  EXPECT_EQ(Set(5)->mixed, 0);
  Card("5|12|3.0");
  EXPECT_EQ(Set(5)->mixed, 1);
  EXPECT_EQ(Set(5)->pressure, 2.0);
  Card("5|12|2.0");
  EXPECT_EQ(Set(5)->mixed, 1) << "it stays so";
}

// Required: values behind the first are compared on the first card of a set only.
TEST_F(PressureCards, OtherValuesOfALaterCardDoNotMakeASetMixed) {
  Card("5|20|2.0|2.0|2.0|2.0|1|3");
  Card("5|20|2.0|3.0|4.0|5.0|1|3");
  EXPECT_EQ(Set(5)->mixed, 0);
  EXPECT_THAT(Cards(5), ElementsAre("e20 n1 n3 (2 2 2 2)", "e20 n1 n3 (2 3 4 5)"));
}

TEST_F(PressureCards, CardsOfOtherSetsBetweenDoNotMatter) {
  Card("5|10|2.0");
  Card("6|10|3.0");
  EXPECT_EQ(Reference(), (Reals{3.0, 3.0, 3.0, 3.0}));
  Card("5|11|2.0");
  EXPECT_EQ(Set(5)->mixed, 0);
  EXPECT_EQ(Set(6)->mixed, 0);
  EXPECT_EQ(Reference(), (Reals{2.0, 3.0, 3.0, 3.0})) << "only the first value comes back";
}

TEST_F(PressureCards, AMixedSetLeavesTheReference) {
  Card("5|10|2.0");
  Card("5|11|3.0");
  Card("6|10|7.0");
  Card("5|12|2.0");
  EXPECT_EQ(Reference(), (Reals{7.0, 7.0, 7.0, 7.0}));
  Card("6|11|7.0");
  EXPECT_EQ(Set(6)->mixed, 0);
}

TEST_F(PressureCards, ANegativeSetIsNotKept) {
  Card("-5|10|2.0");
  EXPECT_EQ(Set(-5), nullptr);
  EXPECT_EQ(PressureSetTable.size, 0);
  EXPECT_EQ(Reference(), (Reals{2.0, 2.0, 2.0, 2.0})) << "each of its cards makes it anew";
}

TEST_F(PressureCards, TheSetZeroIsOneLikeOthers) {
  Card("0|10|2.0");
  EXPECT_THAT(Cards(0), ElementsAre("e10 - - (2 2 2 2)"));
}

TEST_F(PressureCards, StandInTheirSetInOrder) {
  Card("5|12|2.0");
  Card("1006|10|2.0");
  Card("5|10|2.0");
  Card("5|11|2.0");
  EXPECT_THAT(Cards(5), ElementsAre("e12 - - (2 2 2 2)", "e10 - - (2 2 2 2)", "e11 - - (2 2 2 2)"));
  EXPECT_THAT(Cards(1006), ElementsAre("e10 - - (2 2 2 2)"));
}

// Required.
TEST_F(PressureCards, TheLastCardDecidesBetweenShellsAndSolids) {
  Card("5|10|2.0");
  EXPECT_EQ(Set(5)->isShell, 1);
  Card("5|20|2.0||||1|3");
  EXPECT_EQ(Set(5)->isShell, 0);
  Card("5|20|2.0||||1");
  EXPECT_EQ(Set(5)->isShell, 0);
  Card("5|20|2.0||||0|3");
  EXPECT_EQ(Set(5)->isShell, 0);
  Card("5|10|2.0||||0|0");
  EXPECT_EQ(Set(5)->isShell, 1);
}

TEST_F(PressureCards, NodesTellWhetherTheElementIsAShellOrASolid) {
  Card("5|11|2.0");
  Card("5|11|2.0||||1|3");
  ASSERT_EQ(Cards(5).size(), 2U);
  EXPECT_EQ(Set(5)->first->element, Shell(11));
  EXPECT_EQ(Set(5)->last->element, Solid(11));
  EXPECT_NE(Shell(11), Solid(11));
}

TEST_F(PressureCards, WhatTheModelLacksIsLeftOpen) {
  Card("5|99|2.0");
  Card("5|20|2.0");
  Card("5|10|2.0||||1|3");
  Card("5|20|2.0||||98|99");
  EXPECT_THAT(Cards(5), ElementsAre("- - - (2 2 2 2)", "- - - (2 2 2 2)", "- n1 n3 (2 2 2 2)", "e20 - - (2 2 2 2)"));
  EXPECT_EQ(Set(5)->isShell, 0) << "nodes that do not exist are named all the same";
}

TEST_F(PressureCards, NothingIsToldToTheHost) {
  Card("5|10|2.0");
  EXPECT_THAT(Calls(), IsEmpty());
}

const char* const wholeCards[] = {"small", "large"};

std::string WholeCard(const std::string& form) {
  return form == "small" ? Small("PLOAD4|5|20|1.0|2.0|3.0|4.0|1|3") + "+       7\n"
                         : Large("PLOAD4*|5|20|1.0|2.0") + Large("*|3.0|4.0|1|3") + "GRID*   7\n";
}

TEST_F(PressureCards, CutAtAnyByteStaysInBounds) {
  for (const char* form : wholeCards) {
    ReadCutAnywhere(WholeCard(form), 6, [this](const std::string& text) { Read(text); });
  }
}

TEST_F(PressureCards, WithAnyByteChangedStaysInBounds) {
  std::mt19937 random(6);
  for (const char* form : wholeCards) {
    for (int i = 0; i < 20; ++i) {
      ReadChangedAnywhere(WholeCard(form), 6, static_cast<char>(random()), [this](const std::string& text) { Read(text); });
    }
  }
}

/// A card read in the plainest way, every test in its order.
struct PlainCard {
  std::int32_t ids[2] = {};
  double values[4] = {};
  std::int32_t nodes[2] = {};
  bool isDropped = false;

  explicit PlainCard(const std::string& content) {
    const std::int32_t width = content[6] == '*' ? 16 : 8;
    place = std::min<std::size_t>(8, content.size());
    for (std::int32_t& id : ids) {
      id = test::PlainInteger(content, &place, width);
    }
    place += test::PlainAt(content, place) == '\n' ? 1 : 0;
    values[0] = test::PlainReal(content, &place, width);
    if (test::PlainAt(content, place) == '\r' || test::PlainAt(content, place) == '\n') {
      return;
    }
    for (int i = 1; i < 4; ++i) {
      values[i] = test::PlainReal(content, &place, width);
    }
    if (values[1] == values[2] && values[1] == values[3]) {
      values[1] = values[2] = values[3] = values[0];
    }
    ReadNodes(content, width);
  }

  void ReadNodes(const std::string& content, std::int32_t width) {
    int read = 0;
    while (read < 2) {
      const std::string text = test::PlainField(test::PlainLineField(content, place, width), 0, static_cast<std::size_t>(width));
      if (test::PlainMark(text)) {
        test::PlainSkip(content, &place, width);
      } else if (text.empty()) {
        if (test::PlainSkip(content, &place, width) == 1) {
          return;
        }
      } else if (text.find('*') != std::string::npos && test::PlainIntegerOf(text) == 0) {
        if (IsCardKeyword(text.c_str())) {
          return;
        }
        test::PlainSkip(content, &place, 8);
      } else if (test::PlainText(text) && text == "THRU") {
        isDropped = true;
        return;
      } else if (test::PlainText(text) && test::PlainIntegerOf(text) == 0) {
        return;
      } else {
        nodes[read++] = test::PlainInteger(content, &place, width);
      }
    }
  }

  std::size_t place = 0;
};

TEST_F(PressureCards, ReadWhatThePlainWayReads) {
  static constexpr const char* heads[] = {"+       ", "+P1     ", "        ", "*       ", "*P1     ",
                                          "GRID    ", "FORCE*  ", "$       ", ""};
  static constexpr const char* fields[] = {"1       ",         "2       ",         "3       ",         "20      ", "        ", "1.0     ",
                                           "2.0     ",         "+       ",         "+P1     ",         "THRU    ", "    THRU", "THRU9   ",
                                           "*       ",         "3*      ",         "4X      ",         "1.5+3   ", "1 2     ", "E+3     ",
                                           "        1       ", "               2", "        3.0     ", "$"};
  std::mt19937 random(4);
  std::size_t dropped = 0;
  std::size_t withNodes = 0;
  for (int round = 0; round < 20000; ++round) {
    const bool isLarge = random() % 3 == 0;
    const std::string head = isLarge ? Large("PLOAD4*|5|20", "") : Small("PLOAD4|5|20", "");
    const std::string content = head + test::JoinRandomLines(random, heads, fields);
    const PlainCard plain(content);
    ASSERT_EQ(Read(content), content.substr(plain.place)) << content;
    dropped += plain.isDropped ? 1 : 0;
    withNodes += plain.nodes[1] != 0 ? 1 : 0;
    if (plain.isDropped) {
      ASSERT_EQ(PressureSetTable.size, 0) << content;
      continue;
    }
    ASSERT_NE(Set(5), nullptr) << content;
    const bool isShell = plain.nodes[0] == 0 && plain.nodes[1] == 0;
    ASSERT_EQ(Set(5)->isShell, isShell ? 1 : 0) << content;
    CornerValues values;
    std::copy(std::begin(plain.values), std::end(plain.values), values);
    const auto node = [this](std::int32_t id) { return Node(id) == nullptr ? std::string("-") : "n" + std::to_string(id); };
    ASSERT_THAT(Cards(5),
                ElementsAre((isShell ? "-" : "e20") + (" " + node(plain.nodes[0])) + " " + node(plain.nodes[1]) + " " + TextOf(values)))
        << content;
    FreeSets();
  }
  EXPECT_GT(dropped, 200U);
  EXPECT_GT(withNodes, 2000U);
}

}  // namespace
}  // namespace btz
