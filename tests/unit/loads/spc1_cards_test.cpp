// SPC1 cards: their forms, the one node or range that is taken, and the cards that share a record.
#include "tests/unit/loads/loads_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Spc1CardTest : public LoadsTest {
 protected:
  Spc1CardTest() { MakeNodes(9); }

  /// Reads a card into a list of its own; the nodes of its record.
  std::vector<std::int32_t> NodesOf(std::string_view text) {
    const std::int32_t size = run.lists.spc1.size;
    rest = ReadSpc1(text);
    EXPECT_EQ(run.lists.spc1.size, size + 1) << text;
    return NodeIds(Spc1Records().front()->nodes);
  }

  std::string rest;
};

class Spc1NullCardTest : public LoadsTest {
 protected:
  Spc1NullCardTest() : LoadsTest(HostOptions{.nullOnFailure = true}) { MakeNodes(9); }
};

TEST_F(Spc1CardTest, ASmallCardNamesANode) {
  EXPECT_THAT(NodesOf(Small("SPC1|2|123|7")), ElementsAre(7));
  EXPECT_EQ(rest, "\n");
  const Spc1Record* record = Spc1Records().front();
  EXPECT_EQ(record->setId, 2);
  EXPECT_EQ(record->components, 123);
  EXPECT_THAT(record->dofFlag, ElementsAre(1, 1, 1, 0, 0, 0));
  EXPECT_THAT(Calls(), IsEmpty());
}

// Required: the other nodes of a list are left to the pass.
TEST_F(Spc1CardTest, OfAListOfNodesTheFirstIsTaken) {
  EXPECT_THAT(NodesOf(Small("SPC1|2|123|7|8|9")), ElementsAre(7));
  EXPECT_EQ(rest, Columns("8|9", 8, "\n"));
}

TEST_F(Spc1CardTest, TheOnlyNodeNeedsNoPadding) {
  EXPECT_THAT(NodesOf("SPC1    2       123     7\nNEXT\n"), ElementsAre(7));
  EXPECT_EQ(rest, "\nNEXT\n");
}

TEST_F(Spc1CardTest, ThruNamesARange) {
  EXPECT_THAT(NodesOf(Small("SPC1|2|123|7|THRU|9")), ElementsAre(7, 8, 9));
  EXPECT_EQ(rest, "\n");
}

TEST_F(Spc1CardTest, TheEndOfARangeNeedsNoPadding) {
  EXPECT_THAT(NodesOf("SPC1    2       123     7       THRU    9\nNEXT\n"), ElementsAre(7, 8, 9));
  EXPECT_EQ(rest, "\nNEXT\n");
}

TEST_F(Spc1CardTest, ThruMayHaveWhiteSpaceInIt) {
  EXPECT_THAT(NodesOf(Small("SPC1|2|123|7|    THRU|9")), ElementsAre(7, 8, 9));
  EXPECT_THAT(NodesOf(Small("SPC1|3|123|7|T H\tRU|9")), ElementsAre(7, 8, 9));
}

TEST_F(Spc1CardTest, AnythingButThruIsNoRange) {
  EXPECT_THAT(NodesOf(Small("SPC1|2|123|7|thru|9")), ElementsAre(7));
  EXPECT_THAT(NodesOf(Small("SPC1|3|123|7|THR|9")), ElementsAre(7));
  EXPECT_THAT(NodesOf(Small("SPC1|4|123|7|THRUX|9")), ElementsAre(7));
  EXPECT_THAT(NodesOf(Small("SPC1|5|123|7|XTHRU|9")), ElementsAre(7));
  EXPECT_EQ(rest, Columns("XTHRU|9", 8, "\n"));
}

TEST_F(Spc1CardTest, ARangeMayBeOneNodeOrNone) {
  EXPECT_THAT(NodesOf(Small("SPC1|2|123|7|THRU|7")), ElementsAre(7));
  EXPECT_THAT(NodesOf(Small("SPC1|3|123|7|THRU|6")), IsEmpty());
  EXPECT_THAT(NodesOf(Small("SPC1|4|123|7|THRU|")), IsEmpty());
}

// Required: a hole repeats the node before it, or null.
TEST_F(Spc1CardTest, AHoleRepeatsTheNodeBeforeIt) {
  MakeNode(12);
  EXPECT_THAT(NodesOf(Small("SPC1|2|123|8|THRU|14")), ElementsAre(8, 9, 9, 9, 12, 12, 12));
  EXPECT_THAT(NodesOf(Small("SPC1|3|123|-1|THRU|2")), ElementsAre(0, 0, 1, 2));
}

TEST_F(Spc1CardTest, AMissingNodeIsANull) {
  EXPECT_THAT(NodesOf(Small("SPC1|2|123|77")), ElementsAre(0));
  EXPECT_THAT(NodesOf(Small("SPC1|3|123|")), ElementsAre(0));
}

TEST_F(Spc1CardTest, ARangeStartsWithoutTheNodeOfTheOneBefore) {
  ReadSpc1(Small("SPC1|2|123|8|THRU|9"));
  ReadSpc1(Small("SPC1|2|123|77|THRU|78"));
  EXPECT_THAT(NodeIds(Spc1Records().front()->nodes), ElementsAre(8, 9, 0, 0));
}

TEST_F(Spc1NullCardTest, AHoleIsANullWhenTheHostSaysSo) {
  ReadSpc1(Small("SPC1|2|123|8|THRU|11"));
  EXPECT_THAT(NodeIds(Spc1Records().front()->nodes), ElementsAre(8, 9, 0, 0));
}

TEST_F(Spc1CardTest, ARangeMayEndAtTheHighestInteger) {
  MakeNode(2147483646);
  EXPECT_THAT(NodesOf(Large("SPC1*|2|123|2147483645|THRU", "*\n") + "*                  2147483647\n"),
              ElementsAre(0, 2147483646, 2147483646));
}

TEST_F(Spc1CardTest, ARangeToTheEndIsCutBehindTenMillionHoles) {
  ReadSpc1(Small("SPC1|2|123|4|THRU|99999999"));
  const PooledList& nodes = Spc1Records().front()->nodes;
  EXPECT_EQ(nodes.size, 10000000);
  const std::vector<std::int32_t> ids = NodeIds(nodes);
  EXPECT_THAT(std::vector<std::int32_t>(ids.begin(), ids.begin() + 8), ElementsAre(4, 5, 6, 7, 8, 9, 9, 9));
  EXPECT_EQ(ids.back(), 9);
}

TEST_F(Spc1CardTest, ANodeBehindTenMillionHolesIsStillInItsRange) {
  MakeNode(10000007);
  MakeNode(10000009);
  ReadSpc1(Small("SPC1|2|123|4|THRU|99999999"));
  const std::vector<std::int32_t> ids = NodeIds(Spc1Records().front()->nodes);
  ASSERT_EQ(ids.size(), 10000002u);
  EXPECT_EQ(ids[9999999], 9);
  EXPECT_EQ(ids[10000000], 10000007);
  EXPECT_EQ(ids[10000001], 10000009);
}

// Large fields.

TEST_F(Spc1CardTest, ALargeCardNamesANode) {
  EXPECT_THAT(NodesOf(Large("SPC1*|2|123|7")), ElementsAre(7));
  EXPECT_EQ(rest, "\n");
}

// Required: twenty characters are passed behind THRU, so the end of a range has to stand at the right of its field.
TEST_F(Spc1CardTest, ALargeRangeEndsInTheNextLine) {
  EXPECT_THAT(NodesOf(Large("SPC1*|2|123|7|THRU", "*\n") + Large("*|               9")), ElementsAre(7, 8, 9));
  EXPECT_THAT(NodesOf(Large("SPC1*|3|123|7|THRU", "*SPC0001\n") + Large("*SPC0001|   9")), ElementsAre(7, 8, 9));
}

TEST_F(Spc1CardTest, ALargeRangeWithItsEndAtTheLeftIsEmpty) {
  EXPECT_THAT(NodesOf(Large("SPC1*|2|123|7|THRU", "*\n") + Large("*|9")), IsEmpty());
  EXPECT_THAT(NodesOf(Large("SPC1*|3|123|7|THRU", "*SPC0001\n") + Large("*SPC0001|9")), IsEmpty());
}

TEST_F(Spc1CardTest, ALargeRangeMayMeetTheTextsEnd) {
  EXPECT_THAT(NodesOf(Large("SPC1*|2|123|7|THRU", "*\n*")), IsEmpty());
  EXPECT_EQ(rest, "");
}

// Forms that are not read.

TEST_F(Spc1CardTest, OtherFormsAreNotRead) {
  EXPECT_EQ(ReadSpc1("SPC1,2,123,7\n"), ",2,123,7\n");
  EXPECT_EQ(ReadSpc1("SPC1X   2       123     7\n"), "X   2       123     7\n");
  EXPECT_EQ(ReadSpc1("SPC1\nNEXT\n"), "\nNEXT\n");
  EXPECT_EQ(ReadSpc1("SPC1"), "");
  EXPECT_THAT(Spc1Records(), IsEmpty());
}

TEST_F(Spc1CardTest, OnlyTheColumnBehindTheKeywordTellsTheForm) {
  EXPECT_THAT(NodesOf("SPC1 X*Y2       123     7\n"), ElementsAre(7));
  EXPECT_THAT(NodesOf("SPC1*XYZ3               123             7\n"), ElementsAre(7));
}

// Records.

TEST_F(Spc1CardTest, CardsOfOneSetAndNumberShareARecord) {
  ReadSpc1(Small("SPC1|2|123|7"));
  ReadSpc1(Small("SPC1|3|123|1"));
  ReadSpc1(Small("SPC1|2|123|3|THRU|4"));
  ASSERT_EQ(Spc1Records().size(), 2u);
  EXPECT_THAT(NodeIds(Spc1Records()[0]->nodes), ElementsAre(1));
  EXPECT_THAT(NodeIds(Spc1Records()[1]->nodes), ElementsAre(7, 3, 4));
}

TEST_F(Spc1CardTest, TheOrderOfTheDigitsTellsRecordsApart) {
  ReadSpc1(Small("SPC1|2|123|7"));
  ReadSpc1(Small("SPC1|2|132|8"));
  ReadSpc1(Small("SPC1|-2|123|9"));
  ASSERT_EQ(Spc1Records().size(), 3u);
  EXPECT_EQ(Spc1Records()[0]->setId, -2);
  EXPECT_EQ(Spc1Records()[1]->components, 132);
  EXPECT_EQ(Spc1Records()[2]->components, 123);
}

TEST_F(Spc1CardTest, DigitsFromSevenOnAndZeroNameNothing) {
  ReadSpc1(Small("SPC1|2|1703|7"));
  ReadSpc1(Small("SPC1|2||7"));
  ReadSpc1(Small("SPC1|2|-12|7"));
  ASSERT_EQ(Spc1Records().size(), 3u);
  EXPECT_THAT(Spc1Records()[0]->dofFlag, ElementsAre(0, 0, 0, 0, 0, 0));
  EXPECT_EQ(Spc1Records()[0]->components, -12);
  EXPECT_THAT(Spc1Records()[1]->dofFlag, ElementsAre(0, 0, 0, 0, 0, 0));
  EXPECT_THAT(Spc1Records()[2]->dofFlag, ElementsAre(1, 0, 1, 0, 0, 0));
}

}  // namespace
}  // namespace btz::test
