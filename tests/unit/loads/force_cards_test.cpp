// The reader of `FORCE` cards: forms of a card, what it leaves in its set, when a set is one of different vectors.
#include <random>
#include <string>

#include "loads/force_fixture.h"

namespace btz {
namespace {

using test::Large;
using test::ReadChangedAnywhere;
using test::ReadCutAnywhere;
using test::Reals;
using test::RealsOf;
using test::Small;

class ForceCards : public test::ForcesTest {
 protected:
  ForceCards() { MakeNodes(20); }

  /// The vector of set 1 on node 10 behind a card that is read to its end.
  Reals VectorOf(const std::string& content) {
    ReadForce(content);
    const ForceNodeRecord* node = Node(1, 10);
    return node == nullptr ? Reals{} : RealsOf(node->force);
  }
};

TEST_F(ForceCards, SmallFields) {
  EXPECT_EQ(ReadForce(Small("FORCE|1|10|4|2.0|1.0|-2.0|0.5") + "GRID"), "\nGRID");
  const ForceSetRecord* set = Set(1);
  ASSERT_NE(set, nullptr);
  EXPECT_EQ(set->csId, 4);
  EXPECT_EQ(RealsOf(set->force), (Reals{2.0, -4.0, 1.0}));
  EXPECT_EQ(RealsOf(set->moment), (Reals{0.0, 0.0, 0.0}));
  EXPECT_EQ(set->mixed, 0);
  EXPECT_EQ(set->nodeCount, 1);
  const ForceNodeRecord* node = Node(1, 10);
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(node->node->id, 10);
  EXPECT_EQ(RealsOf(node->force), (Reals{2.0, -4.0, 1.0}));
  EXPECT_EQ(RealsOf(node->moment), (Reals{0.0, 0.0, 0.0}));
  EXPECT_EQ(node->csId, 4);
  EXPECT_EQ(node->isMoment, 0);
  EXPECT_EQ(RealsOf(forceReference), (Reals{2.0, -4.0, 1.0}));
}

TEST_F(ForceCards, LargeFields) {
  EXPECT_EQ(ReadForce(Large("FORCE*|1|10|4|2.0") + Large("*|1.0|-2.0|0.5") + "GRID"), "\nGRID");
  ASSERT_NE(Node(1, 10), nullptr);
  EXPECT_EQ(Node(1, 10)->csId, 4);
  EXPECT_EQ(RealsOf(Node(1, 10)->force), (Reals{2.0, -4.0, 1.0}));
}

TEST_F(ForceCards, LargeFieldsWithNamedMarks) {
  const std::string first = Large("FORCE*|1|10|4|2.0", "*F1\n");
  EXPECT_EQ(VectorOf(first + Large("*F1|1.0|-2.0|0.5")), (Reals{2.0, -4.0, 1.0}));
}

TEST_F(ForceCards, FreeFields) {
  EXPECT_EQ(ReadForce("FORCE,1,10,4,2.0,1.0,-2.0,0.5\nGRID"), "GRID");
  ASSERT_NE(Node(1, 10), nullptr);
  EXPECT_EQ(Node(1, 10)->csId, 4);
  EXPECT_EQ(RealsOf(Node(1, 10)->force), (Reals{2.0, -4.0, 1.0}));
}

TEST_F(ForceCards, FreeFieldsThatAreMissingAreZero) { EXPECT_EQ(VectorOf("FORCE,1,10,0,2.0,3.0\n"), (Reals{6.0, 0.0, 0.0})); }

// Required: a run of delimiters counts as one.
TEST_F(ForceCards, EmptyFreeFieldsCloseUp) { EXPECT_EQ(VectorOf("FORCE,1,10,0,2.0,,, 3.0\n"), (Reals{6.0, 0.0, 0.0})); }

TEST_F(ForceCards, FreeFieldsOfACarriageReturnLine) { EXPECT_EQ(VectorOf("FORCE,1,10,0,2.0,1.0,1.0,1.5\r\n"), (Reals{2.0, 2.0, 3.0})); }

TEST_F(ForceCards, FreeFieldsDoNotGoOnInTheNextLine) {
  EXPECT_EQ(ReadForce("FORCE,1,10,0,2.0,1.0\n+,1.0,1.0\n"), "+,1.0,1.0\n");
  EXPECT_EQ(RealsOf(Node(1, 10)->force), (Reals{2.0, 0.0, 0.0}));
}

TEST_F(ForceCards, FreeFieldsWithoutALineEndAreNotRead) {
  EXPECT_EQ(ReadForce("FORCE,1,10,0,2.0,1.0"), "FORCE,1,10,0,2.0,1.0");
  EXPECT_EQ(Set(1), nullptr);
}

// Any sixth character but "1" comes here, and only a star or a comma says anything about the form.
TEST_F(ForceCards, AnyOtherCharacterBehindTheKeywordMeansSmallFields) {
  EXPECT_EQ(VectorOf(Small("FORCE2|1|10|0|1.0|7.0")), (Reals{7.0, 0.0, 0.0}));
  EXPECT_EQ(VectorOf(Small("FORCE2*|1|10|0|1.0|8.0")), (Reals{8.0, 0.0, 0.0}));
  EXPECT_EQ(VectorOf("FORCE\t 1" + Small("|1|10|0|1.0|9.0").substr(8)), (Reals{9.0, 0.0, 0.0}));
}

TEST_F(ForceCards, WithoutANodeEndsBehindTheScale) {
  for (const char* node : {"0", "-4", "", "X"}) {
    EXPECT_EQ(ReadForce(Small(std::string("FORCE|1|") + node + "|0|2.0|1.0")), "1.0     \n") << node;
    EXPECT_EQ(Set(1), nullptr) << node;
  }
  EXPECT_EQ(RealsOf(forceReference), (Reals{0.0, 0.0, 0.0}));
}

TEST_F(ForceCards, WithoutANodeInFreeFieldsEndsBehindTheLine) {
  EXPECT_EQ(ReadForce("FORCE,1,0,0,2.0,1.0\nGRID"), "GRID");
  EXPECT_EQ(Set(1), nullptr);
}

TEST_F(ForceCards, ACaseControlLineTakesEightColumnsOfTheNextLine) {
  EXPECT_EQ(ReadForce("FORCE = ALL\nSUBCASE 1\n"), "1\n");
  EXPECT_EQ(ForceSetTable.size, 0);
}

TEST_F(ForceCards, AShortLineTakesEightColumnsOfTheNextLineToo) {
  EXPECT_EQ(ReadForce("FORCE   1\nGRID    5       0\n"), "5       0\n");
  EXPECT_EQ(Set(1), nullptr);
}

TEST_F(ForceCards, ABlankComponentTakesNoPlace) {
  EXPECT_EQ(VectorOf(Small("FORCE|1|10|0|2.0||1.0|")), (Reals{2.0, 0.0, 0.0}));
  EXPECT_EQ(VectorOf(Small("FORCE|1|10|0|2.0|||1.0")), (Reals{2.0, 0.0, 0.0}));
  EXPECT_EQ(VectorOf(Small("FORCE|1|10|0|2.0|3.0||1.0")), (Reals{6.0, 2.0, 0.0}));
}

TEST_F(ForceCards, ABlankScaleIsZero) { EXPECT_EQ(VectorOf(Small("FORCE|1|10|0||1.0|2.0|3.0")), (Reals{0.0, 0.0, 0.0})); }

TEST_F(ForceCards, ComponentsMayStandInTheNextLine) {
  EXPECT_EQ(VectorOf(Small("FORCE|1|10|0|2.0|1.0||||+F1") + Small("+F1|2.0|3.0")), (Reals{2.0, 4.0, 6.0}));
}

TEST_F(ForceCards, TheLastComponentMayEndWithItsLine) {
  EXPECT_EQ(ReadForce("FORCE   1       10      0       1.0     1.0     2.0     0.5\nFORCE   1\n"), "\nFORCE   1\n");
  EXPECT_EQ(RealsOf(Node(1, 10)->force), (Reals{1.0, 2.0, 0.5}));
}

TEST_F(ForceCards, CarriageReturns) { EXPECT_EQ(VectorOf(Small("FORCE|1|10|0|1.0|1.0|2.0|0.5", "\r\n") + "GRID"), (Reals{1.0, 2.0, 0.5})); }

TEST_F(ForceCards, TheFirstCardOfASetNamesIt) {
  Force("1|10|0|1.0", "Upper lug");
  Force("1|11|0|1.0", "Lower lug");
  EXPECT_STREQ(Set(1)->name, "Upper lug");
}

TEST_F(ForceCards, TheFirstCardOfASetGivesItsSystemAndVector) {
  Force("1|10|4|1.0");
  Force("1|11|5|2.0");
  EXPECT_EQ(Set(1)->csId, 4);
  EXPECT_EQ(RealsOf(Set(1)->force), (Reals{1.0, 0.0, 0.0}));
  EXPECT_EQ(Node(1, 10)->csId, 4);
  EXPECT_EQ(Node(1, 11)->csId, 5);
}

TEST_F(ForceCards, TheLastCardOnANodeWinsButForItsSystem) {
  Force("1|10|4|1.0");
  Force("1|10|5|2.0");
  EXPECT_EQ(RealsOf(Node(1, 10)->force), (Reals{2.0, 0.0, 0.0}));
  EXPECT_EQ(Node(1, 10)->csId, 4);
  EXPECT_EQ(Set(1)->nodeCount, 1);
}

TEST_F(ForceCards, SetsHaveNodesOfTheirOwn) {
  Force("1|10|0|1.0");
  Force("2|10|0|2.0");
  EXPECT_EQ(RealsOf(Node(1, 10)->force), (Reals{1.0, 0.0, 0.0}));
  EXPECT_EQ(RealsOf(Node(2, 10)->force), (Reals{2.0, 0.0, 0.0}));
  EXPECT_EQ(Set(1)->mixed, 0);
  EXPECT_EQ(Set(2)->mixed, 0);
}

TEST_F(ForceCards, EqualVectorsAreNotMixed) {
  Force("1|10|0|1.0|2.0|3.0");
  Force("1|11|0|1.0|2.0|3.0");
  ReadForce(Small("FORCE|1|12|0|2.0|0.5|1.0|1.5"));
  EXPECT_EQ(Set(1)->mixed, 0) << "it is the scaled vector that counts";
}

TEST_F(ForceCards, ADifferenceInAnyComponentIsMixed) {
  for (const char* other : {"9.0|2.0|3.0", "1.0|9.0|3.0", "1.0|2.0|9.0"}) {
    const std::string set = std::to_string(forceCards + 1);
    Force(set + "|10|0|1.0|2.0|3.0");
    Force(set + "|11|0|" + other);
    EXPECT_EQ(Set(forceCards - 1)->mixed, 1) << other;
  }
}

TEST_F(ForceCards, AMixedSetStaysMixedAndLeavesTheReference) {
  Force("1|10|0|1.0");
  Force("1|11|0|2.0");
  EXPECT_EQ(Set(1)->mixed, 1);
  Force("2|10|0|7.0");
  Force("1|12|0|1.0");
  EXPECT_EQ(Set(1)->mixed, 1);
  EXPECT_EQ(RealsOf(forceReference), (Reals{7.0, 0.0, 0.0}));
}

TEST_F(ForceCards, AFurtherCardBringsTheSetsVectorBackIntoTheReference) {
  Force("1|10|0|1.0");
  Force("2|10|0|7.0");
  Force("1|11|0|1.0");
  EXPECT_EQ(Set(1)->mixed, 0);
  EXPECT_EQ(RealsOf(forceReference), (Reals{1.0, 0.0, 0.0}));
}

TEST_F(ForceCards, TheFirstCardOfTheRunIsNotCompared) {
  Moment("1|10|0|5.0");
  Force("1|11|0|1.0");
  EXPECT_EQ(Set(1)->mixed, 0);
  EXPECT_EQ(RealsOf(Set(1)->force), (Reals{0.0, 0.0, 0.0})) << "only a card that makes the set stores its force";
  EXPECT_EQ(RealsOf(forceReference), (Reals{1.0, 0.0, 0.0}));
}

TEST_F(ForceCards, ALaterCardIsComparedWithNoForceInASetThatAMomentMade) {
  Force("2|10|0|1.0");
  Moment("1|10|0|5.0");
  Force("1|11|0|1.0");
  EXPECT_EQ(Set(1)->mixed, 1);
  EXPECT_EQ(RealsOf(forceReference), (Reals{0.0, 0.0, 0.0}));
  Moment("3|10|0|5.0");
  Force("3|11|0|0.0");
  EXPECT_EQ(Set(3)->mixed, 0) << "no force either";
}

TEST_F(ForceCards, OnANodeOfAMomentSharesItsRecord) {
  Moment("1|10|4|5.0");
  Force("1|10|6|1.0");
  ASSERT_EQ(Set(1)->nodeCount, 1);
  const ForceNodeRecord* node = Node(1, 10);
  EXPECT_EQ(RealsOf(node->force), (Reals{1.0, 0.0, 0.0}));
  EXPECT_EQ(RealsOf(node->moment), (Reals{5.0, 0.0, 0.0}));
  EXPECT_EQ(node->csId, 4);
  EXPECT_EQ(node->isMoment, 1);
}

TEST_F(ForceCards, AnUnknownNodeLeavesTheSetChanged) {
  Force("1|99|4|1.0", "Lug");
  ASSERT_NE(Set(1), nullptr);
  EXPECT_STREQ(Set(1)->name, "Lug");
  EXPECT_EQ(Set(1)->nodeCount, 0);
  Force("1|98|4|2.0");
  EXPECT_EQ(Set(1)->mixed, 1);
  EXPECT_EQ(Node(1, 98), nullptr);
}

TEST_F(ForceCards, ANegativeSetIsNotKept) {
  Force("-1|10|0|3.0");
  EXPECT_EQ(Set(-1), nullptr);
  EXPECT_EQ(ForceSetTable.size, 0);
  EXPECT_EQ(ForceNodeTable.size, 0);
  EXPECT_EQ(RealsOf(forceReference), (Reals{3.0, 0.0, 0.0})) << "each of its cards makes it anew";
}

TEST_F(ForceCards, TheSetZeroIsOneLikeOthers) {
  Force("0|10|0|3.0");
  ASSERT_NE(Set(0), nullptr);
  EXPECT_NE(Node(0, 10), nullptr);
}

TEST_F(ForceCards, CutAtAnyByteStaysInBounds) {
  for (const std::string& card : {Small("FORCE|1|10|4|2.0|1.0|-2.0|0.5") + "GRID    5\n",
                                  Large("FORCE*|1|10|4|2.0") + Large("*|1.0|2.0|0.5"), std::string("FORCE,1,10,4,2.0,1.0,-2.0,0.5\n")}) {
    ReadCutAnywhere(card, 5, [this](const std::string& text) { ReadForce(text); });
  }
}

TEST_F(ForceCards, WithAnyByteChangedStaysInBounds) {
  std::mt19937 random(6);
  for (const std::string& card : {Small("FORCE|1|10|4|2.0|1.0|-2.0|0.5") + "+       7\n",
                                  Large("FORCE*|1|10|4|2.0") + Large("*|1.0|2.0|0.5"), std::string("FORCE,1,10,4,2.0,1.0,-2.0,0.5\n")}) {
    for (int i = 0; i < 20; ++i) {
      ReadChangedAnywhere(card, 5, static_cast<char>(random()), [this](const std::string& text) { ReadForce(text); });
    }
  }
}

}  // namespace
}  // namespace btz
