// The reader of `MOMENT` cards: forms of a card, what it leaves in its set, when moments count as different.
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

class MomentCards : public test::ForcesTest {
 protected:
  MomentCards() { MakeNodes(20); }

  Reals VectorOf(const std::string& content) {
    ReadMoment(content);
    const ForceNodeRecord* node = Node(1, 10);
    return node == nullptr ? Reals{} : RealsOf(node->moment);
  }
};

TEST_F(MomentCards, SmallFields) {
  EXPECT_EQ(ReadMoment(Small("MOMENT|1|10|4|2.0|1.0|-2.0|0.5") + "GRID", "Hinge"), "\nGRID");
  const ForceSetRecord* set = Set(1);
  ASSERT_NE(set, nullptr);
  EXPECT_EQ(set->csId, 4);
  EXPECT_STREQ(set->name, "Hinge");
  EXPECT_EQ(RealsOf(set->force), (Reals{0.0, 0.0, 0.0}));
  EXPECT_EQ(RealsOf(set->moment), (Reals{2.0, -4.0, 1.0}));
  EXPECT_EQ(set->mixed, 0);
  const ForceNodeRecord* node = Node(1, 10);
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(RealsOf(node->force), (Reals{0.0, 0.0, 0.0}));
  EXPECT_EQ(RealsOf(node->moment), (Reals{2.0, -4.0, 1.0}));
  EXPECT_EQ(node->csId, 4);
  EXPECT_EQ(node->isMoment, 1);
  EXPECT_EQ(RealsOf(momentReference), (Reals{2.0, -4.0, 1.0}));
}

TEST_F(MomentCards, LargeFields) {
  EXPECT_EQ(ReadMoment(Large("MOMENT*|1|10|4|2.0") + Large("*|1.0|-2.0|0.5") + "GRID"), "\nGRID");
  ASSERT_NE(Node(1, 10), nullptr);
  EXPECT_EQ(RealsOf(Node(1, 10)->moment), (Reals{2.0, -4.0, 1.0}));
}

TEST_F(MomentCards, FreeFields) {
  EXPECT_EQ(ReadMoment("MOMENT,1,10,4,2.0,1.0,-2.0,0.5\nGRID"), "GRID");
  ASSERT_NE(Node(1, 10), nullptr);
  EXPECT_EQ(Node(1, 10)->csId, 4);
  EXPECT_EQ(RealsOf(Node(1, 10)->moment), (Reals{2.0, -4.0, 1.0}));
}

TEST_F(MomentCards, FreeFieldsWithoutALineEndAreNotRead) {
  EXPECT_EQ(ReadMoment("MOMENT,1,10,0,2.0,1.0"), "MOMENT,1,10,0,2.0,1.0");
  EXPECT_EQ(Set(1), nullptr);
}

// MOMENT1 and MOMENT2 come here too.
TEST_F(MomentCards, AnyOtherCharacterBehindTheKeywordMeansSmallFields) {
  EXPECT_EQ(VectorOf(Small("MOMENT1|1|10|0|1.0|7.0")), (Reals{7.0, 0.0, 0.0}));
  EXPECT_EQ(VectorOf(Small("MOMENT2*|1|10|0|1.0|8.0")), (Reals{8.0, 0.0, 0.0}));
}

TEST_F(MomentCards, WithoutANodeEndsBehindTheScale) {
  EXPECT_EQ(ReadMoment(Small("MOMENT|1|0|0|2.0|1.0")), "1.0     \n");
  EXPECT_EQ(ReadMoment("MOMENT,1,0,0,2.0,1.0\nGRID"), "GRID");
  EXPECT_EQ(Set(1), nullptr);
}

TEST_F(MomentCards, ABlankComponentTakesNoPlace) { EXPECT_EQ(VectorOf(Small("MOMENT|1|10|0|2.0||1.0|")), (Reals{2.0, 0.0, 0.0})); }

TEST_F(MomentCards, TheSetKeepsTheLatestMoment) {
  Moment("1|10|0|1.0|2.0", "Hinge");
  Moment("1|11|0|1.0|3.0", "Other");
  EXPECT_EQ(RealsOf(Set(1)->moment), (Reals{1.0, 3.0, 0.0}));
  EXPECT_STREQ(Set(1)->name, "Hinge");
  EXPECT_EQ(RealsOf(Node(1, 10)->moment), (Reals{1.0, 2.0, 0.0}));
  EXPECT_EQ(RealsOf(Node(1, 11)->moment), (Reals{1.0, 3.0, 0.0}));
}

// Required: only the first component tells moments apart.
TEST_F(MomentCards, ADifferenceInTheFirstComponentOnlyIsMixed) {
  Moment("1|10|0|1.0|2.0|3.0");
  Moment("1|11|0|1.0|9.0|3.0");
  EXPECT_EQ(Set(1)->mixed, 0);
  Moment("1|12|0|1.0|2.0|9.0");
  EXPECT_EQ(Set(1)->mixed, 0);
  Moment("1|13|0|1.5|2.0|3.0");
  EXPECT_EQ(Set(1)->mixed, 1);
}

TEST_F(MomentCards, EachIsComparedWithTheOneBefore) {
  Moment("1|10|0|1.0|2.0");
  Moment("1|11|0|1.0|3.0");
  EXPECT_EQ(RealsOf(momentReference), (Reals{1.0, 2.0, 0.0}));
  Moment("1|12|0|1.0|4.0");
  EXPECT_EQ(RealsOf(momentReference), (Reals{1.0, 3.0, 0.0}));
}

TEST_F(MomentCards, AMixedSetStaysMixedAndLeavesTheReference) {
  Moment("1|10|0|1.0");
  Moment("1|11|0|2.0");
  EXPECT_EQ(RealsOf(momentReference), (Reals{1.0, 0.0, 0.0}));
  Moment("1|12|0|2.0");
  EXPECT_EQ(Set(1)->mixed, 1);
  EXPECT_EQ(RealsOf(momentReference), (Reals{1.0, 0.0, 0.0}));
  EXPECT_EQ(RealsOf(Set(1)->moment), (Reals{2.0, 0.0, 0.0}));
}

TEST_F(MomentCards, TheFirstCardOfTheRunIsNotCompared) {
  Force("1|10|0|5.0");
  Moment("1|11|0|1.0");
  EXPECT_EQ(Set(1)->mixed, 0);
  EXPECT_EQ(RealsOf(Set(1)->moment), (Reals{1.0, 0.0, 0.0}));
  EXPECT_EQ(RealsOf(momentReference), (Reals{1.0, 0.0, 0.0}));
}

TEST_F(MomentCards, ALaterCardIsComparedWithNoMomentInASetThatAForceMade) {
  Moment("2|10|0|1.0");
  Force("1|10|0|5.0");
  Moment("1|11|0|0.0|1.0");
  EXPECT_EQ(Set(1)->mixed, 0) << "its first component is none";
  Force("3|10|0|5.0");
  Moment("3|11|0|1.0");
  EXPECT_EQ(Set(3)->mixed, 1);
}

TEST_F(MomentCards, OnANodeOfAForceSharesItsRecord) {
  Force("1|10|4|1.0");
  Moment("1|10|6|5.0");
  ASSERT_EQ(Set(1)->nodeCount, 1);
  const ForceNodeRecord* node = Node(1, 10);
  EXPECT_EQ(RealsOf(node->force), (Reals{1.0, 0.0, 0.0}));
  EXPECT_EQ(RealsOf(node->moment), (Reals{5.0, 0.0, 0.0}));
  EXPECT_EQ(node->csId, 4);
  EXPECT_EQ(node->isMoment, 0);
}

TEST_F(MomentCards, AnUnknownNodeLeavesTheSetChanged) {
  Moment("1|99|4|1.0");
  ASSERT_NE(Set(1), nullptr);
  EXPECT_EQ(Set(1)->nodeCount, 0);
  EXPECT_EQ(RealsOf(Set(1)->moment), (Reals{1.0, 0.0, 0.0}));
}

TEST_F(MomentCards, ANegativeSetIsNotKept) {
  Moment("-1|10|0|3.0");
  EXPECT_EQ(ForceSetTable.size, 0);
  EXPECT_EQ(ForceNodeTable.size, 0);
  EXPECT_EQ(RealsOf(momentReference), (Reals{3.0, 0.0, 0.0}));
}

TEST_F(MomentCards, CutAtAnyByteStaysInBounds) {
  for (const std::string& card : {Small("MOMENT|1|10|4|2.0|1.0|-2.0|0.5") + "GRID    5\n",
                                  Large("MOMENT*|1|10|4|2.0") + Large("*|1.0|2.0|0.5"), std::string("MOMENT,1,10,4,2.0,1.0,-2.0,0.5\n")}) {
    ReadCutAnywhere(card, 6, [this](const std::string& text) { ReadMoment(text); });
  }
}

TEST_F(MomentCards, WithAnyByteChangedStaysInBounds) {
  std::mt19937 random(7);
  for (const std::string& card : {Small("MOMENT|1|10|4|2.0|1.0|-2.0|0.5") + "+       7\n",
                                  Large("MOMENT*|1|10|4|2.0") + Large("*|1.0|2.0|0.5"), std::string("MOMENT,1,10,4,2.0,1.0,-2.0,0.5\n")}) {
    for (int i = 0; i < 20; ++i) {
      ReadChangedAnywhere(card, 6, static_cast<char>(random()), [this](const std::string& text) { ReadMoment(text); });
    }
  }
}

}  // namespace
}  // namespace btz
