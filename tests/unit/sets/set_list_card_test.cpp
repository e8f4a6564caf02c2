// The case control form of SET: which numbers become sets of which kind, what a range is, where the list ends, and what the host is told.
#include <random>

#include "tests/unit/sets/set_card_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SetListCardTest : public SetCardTest {};

TEST_F(SetListCardTest, NumbersThatAreAllNodesAreANodeSet) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(List("SET 7 = 1, 2, 3\n"), "");
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateSet() -> 0 EntitySet#1", "EntitySet#1.SetKind(0)",
                                   "EntitySet#1.SetNodes([n1, n2, n3])", "EntitySet#1.SetMemberType(5)", "EntitySet#1.SetName(\"Name\")"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
}

TEST_F(SetListCardTest, NumbersThatAreAllElementsAreAnElementSet) {
  MakeNodes({1, 2});
  MakeShells({1, 2, 3});
  List("SET 7 = 1, 2, 3\n");
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateSet() -> 0 EntitySet#1", "EntitySet#1.SetKind(1)", "EntitySet#1.SetElements([e1, e2, e3])",
                          "EntitySet#1.SetMemberType(6)", "EntitySet#1.SetName(\"Name\")"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
}

TEST_F(SetListCardTest, ANumberThatIsNeitherLeavesNothing) {
  MakeNodes({1});
  MakeShells({1});
  List("SET 7 = 1, 99\n");
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_THAT(Filed(7), IsEmpty());
}

TEST_F(SetListCardTest, NodesAndElementsThatMissDifferentNumbersLeaveNothing) {
  MakeNodes({1, 2});
  MakeShells({1, 3});
  List("SET 7 = 1, 2, 3\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetListCardTest, ANumberThatIsNoElementLeavesTheNodeSet) {
  MakeNodes({1, 2});
  MakeShells({1});
  MakeRigids({3});
  List("SET 7 = 1, 2\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
}

TEST_F(SetListCardTest, NumbersThatAreBothMakeTwoSetsOfOneId) {
  MakeNodes({1, 2});
  MakeShells({1, 2});
  List("SET 7 = 1, 2\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2", "kind 1 of type 6 \"Name\": 1 2"));
  EXPECT_THAT(Filed(7), ElementsAre(1, 2));
}

TEST_F(SetListCardTest, OneSolidMakesItASetOfSolids) {
  MakeShells({1, 3});
  MakeSolids({2});
  List("SET 7 = 1, 2, 3\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 3 of type 6 \"Name\": 1 2 3"));
}

TEST_F(SetListCardTest, ASolidIsOnlySoughtWhereThereIsNoOtherElement) {
  MakeShells({1});
  MakeSolids({1});
  List("SET 7 = 1\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 1 of type 6 \"Name\": 1"));
}

TEST_F(SetListCardTest, RigidElementsAreASetOfTheirOwn) {
  MakeShells({1, 4});
  MakeRigids({2, 3});
  List("SET 7 = 1, 2, 3, 4\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 1 of type 6 \"Name\": 1 4", "kind 4 of type 6 \"Name\": 2 3"));
  EXPECT_THAT(Filed(7), ElementsAre(1, 2));
}

TEST_F(SetListCardTest, RigidElementsAloneLeaveNoOtherSet) {
  MakeRigids({2, 3});
  List("SET 7 = 2, 3\n");
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateSet() -> 0 EntitySet#1", "EntitySet#1.SetKind(4)",
                                   "EntitySet#1.SetElements([e2, e3])", "EntitySet#1.SetMemberType(6)", "EntitySet#1.SetName(\"Name\")"));
}

TEST_F(SetListCardTest, AllThreeSetsComeInOrder) {
  MakeNodes({1, 2});
  MakeSolids({1});
  MakeRigids({2});
  List("SET 7 = 2, 1\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 2 1", "kind 3 of type 6 \"Name\": 1", "kind 4 of type 6 \"Name\": 2"));
  EXPECT_THAT(Filed(7), ElementsAre(1, 2, 3));
}

TEST_F(SetListCardTest, AMissingElementCancelsShellsAndRigidElements) {
  MakeNodes({1, 2, 3});
  MakeShells({1});
  MakeRigids({2});
  List("SET 7 = 1, 2, 3\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3"));
}

TEST_F(SetListCardTest, ANumberListedTwiceIsTwiceInTheSet) {
  MakeNodes({1, 2});
  List("SET 7 = 1, 2, 1\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 1"));
}

TEST_F(SetListCardTest, ASetThatTheHostRefusesIsLeftOut) {
  MakeNodes({1});
  MakeShells({1});
  host.Refusals().RefuseCall("BoundaryStore.CreateSet", 1);
  List("SET 7 = 1\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 1 of type 6 \"Name\": 1"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
}

TEST_F(SetListCardTest, ASetThatTheHostDidNotGiveIsLeftOut) {
  MakeNodes({1});
  host.Refusals().RefuseCall("BoundaryStore.CreateSet", 1, Refusal::EmptySuccess);
  List("SET 7 = 1\n");
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateSet() -> 0"));
  EXPECT_THAT(Filed(7), IsEmpty());
}

// Required: the longer name is not asked for again.
TEST_F(SetListCardTest, ANameThatIsTakenGetsASuffixOnce) {
  MakeNodes({1});
  for (int i = 0; i < 3; ++i) {
    List("SET 7 = 1\n");
  }
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1", "kind 0 of type 5 \"Name_1\": 1", "kind 0 of type 5 \"Name_1\": 1"));
  EXPECT_THAT(Filed(7), ElementsAre(1, 2, 3));
}

TEST_F(SetListCardTest, TheHostIsAskedForTheNameOfEachKind) {
  MakeNodes({1});
  MakeSolids({1});
  TraceSink all(&trace, TraceSink::Coverage::All);
  host.SetTrace(&all);
  List("SET 7 = 1\n");
  std::vector<std::string> asked;
  for (const std::string& call : Calls()) {
    if (call.find("CheckSetName") != std::string::npos) {
      asked.push_back(call);
    }
  }
  host.SetTrace(&sink);
  EXPECT_THAT(asked, ElementsAre("BoundaryStore.CheckSetName(0, \"Name\", 0) -> 0", "BoundaryStore.CheckSetName(0, \"Name\", 3) -> 0"));
}

TEST_F(SetListCardTest, TheLongestNameHasRoomForTheSuffix) {
  MakeNodes({1});
  const std::string name(255, 'N');
  List("SET 7 = 1\n", name.c_str());
  List("SET 7 = 1\n", name.c_str());
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"" + name + "\": 1", "kind 0 of type 5 \"" + name + "_1\": 1"));
}

TEST_F(SetListCardTest, TheIdStandsInFrontOfTheEqualsSign) {
  MakeNodes({1});
  for (const char* text :
       {"SET12=1\n", "SET 12=1\n", "SET 12 = 1\n", "SET   12   =   1\n", "SET 12 x = 1\n", "SET\t12\t=\t1\n", "SET +12 = 1\n"}) {
    List(text);
    ASSERT_THAT(Filed(12), testing::SizeIs(1)) << text;
    ListClear(&FindLoadSet(12, namedSet)->items);
  }
}

TEST_F(SetListCardTest, WithoutAnEqualsSignTheListBeginsInTheNextLine) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(List("SET 7   3\n1, 2\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
}

TEST_F(SetListCardTest, AnIdOfZeroLeavesTheListUnread) {
  MakeNodes({1});
  EXPECT_EQ(List("SET 0 = 1\nNEXT\n"), " 1\nNEXT\n");
  EXPECT_EQ(List("SET = 1\n"), " 1\n");
  EXPECT_EQ(List("SET A7 = 1\n"), " 1\n");
  EXPECT_EQ(List("SET ALL\nNEXT\n"), "\nNEXT\n");
  EXPECT_EQ(List("SET "), "");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetListCardTest, ASetOfANegativeIdIsMadeButNotFiled) {
  MakeNodes({1});
  List("SET -7 = 1\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1"));
  EXPECT_THAT(Filed(-7), IsEmpty());
  EXPECT_THAT(Filed(7), IsEmpty());
}

TEST_F(SetListCardTest, EmptyPlacesAndZerosAreNoNumbers) {
  MakeNodes({1, 2});
  List("SET 7 = ,1,, ,0, 00 ,\n , 2,\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
}

TEST_F(SetListCardTest, ANegativeNumberIsMissing) {
  MakeNodes({1});
  List("SET 7 = 1, -1\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetListCardTest, OfNumbersWithoutCommasTheFirstCounts) {
  MakeNodes({1, 2, 3});
  List("SET 7 = 1 99, 2.5, 3E+1\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3"));
}

// Required: a plus sign is kept and the character behind it lost.
TEST_F(SetListCardTest, APlusSignInFrontOfANumberCostsItsFirstDigit) {
  MakeNodes({1, 3});
  List("SET 7 = 1,\n+ 23, +9\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 3"));
}

TEST_F(SetListCardTest, ARangeStandsBetweenTwoCommas) {
  MakeNodes({1, 5, 6, 7, 8, 9, 12});
  for (const char* range :
       {"5 THRU 9", "5 thru 9", "5 Thru 9", " 5   tHrU   9 ", "5\tTHRU\t9", "5 THRU 9 EXCEPT 7", "5 xTHRUx 9", "5=THRU=9"}) {
    List("SET 7 = 1, " + std::string(range) + ", 12\n");
    EXPECT_THAT(Calls()[2], testing::EndsWith("SetNodes([n1, n5, n6, n7, n8, n9, n12])")) << range;
  }
}

TEST_F(SetListCardTest, ARangeOfOneAndAFallingRange) {
  MakeNodes({1, 5, 9});
  List("SET 7 = 5 THRU 5, 9 THRU 5, 1\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 5 1"));
}

TEST_F(SetListCardTest, AHoleInARangeIsAMissingNumber) {
  MakeNodes({1, 2, 4});
  MakeShells({1, 2, 3, 4});
  List("SET 7 = 1 THRU 4\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 1 of type 6 \"Name\": 1 2 3 4"));
}

TEST_F(SetListCardTest, ARangeWithoutItsLastNumberIsEmpty) {
  MakeNodes({1, 2, 3});
  List("SET 7 = 1 THRU, 1THRU3, 1 THRU\n3, 2\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 3 2"));
}

// Required: a range that commas or line ends take apart runs from 0 to 0, and there is no node 0.
TEST_F(SetListCardTest, ARangeWithoutItsFirstNumberCancelsTheSet) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(List("SET 7 = 1, THRU, 3\nNEXT\n"), "NEXT\n");
  List("SET 7 = 1, THRU 3\n");
  List("SET 7 = -1 THRU 3\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetListCardTest, RangesMayEndAtTheHighestNumber) {
  MakeNodes({2147483646, 2147483647});
  List("SET 7 = 2147483646 THRU 2147483647\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 2147483646 2147483647"));
}

TEST_F(SetListCardTest, ARangeToTheHighestNumberComesToAnEnd) {
  MakeNodes({1, 2});
  MakeShells({1, 2});
  EXPECT_EQ(List("SET 7 = 1 THRU 2147483647, -2147483648 THRU 2147483647, 2\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetListCardTest, ATokenThatIsAnotherWordEndsTheListAndIsGivenBack) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(List("SET 7 = 1, 2, X, 3\n"), "X, 3\n");
  EXPECT_EQ(List("SET 7 = 1, 2, EXCEPT 2\nNEXT\n"), "EXCEPT 2\nNEXT\n");
  EXPECT_EQ(List("SET 7 = 1, 2,\n\n  GRID,4\n"), "GRID,4\n");
  EXPECT_EQ(List("SET 7 = 1, 2\n+XY, 3\n"), "+XY, 3\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2", "kind 0 of type 5 \"Name_1\": 1 2", "kind 0 of type 5 \"Name_1\": 1 2",
                                  "kind 0 of type 5 \"Name_1\": 1 2"));
}

TEST_F(SetListCardTest, AWordAloneMakesNoSet) {
  MakeNodes({1});
  EXPECT_EQ(List("SET 7 = ALL\nNEXT\n"), "ALL\nNEXT\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetListCardTest, TheNextCardIsGivenBack) {
  MakeNodes({1, 2});
  EXPECT_EQ(List("SET 7 = 1, 2\nSET 8 = 3\n"), "SET 8 = 3\n");
  EXPECT_EQ(List("SET 7 = 1, 2,\r\n\r\n   SET 8 = 3\n"), "SET 8 = 3\n");
}

TEST_F(SetListCardTest, LinesWithoutACommaAtTheirEndGoOn) {
  MakeNodes({1, 2, 3, 4});
  EXPECT_EQ(List("SET 7 = 1, 2\n3\n\n4\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4"));
}

TEST_F(SetListCardTest, ACommentEndsTheList) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(List("SET 7 = 1, 2,\n$ note\n3\n"), "$ note\n3\n");
  EXPECT_EQ(List("SET 7 = 1, 2 $ two\n3\n"), "2 $ two\n3\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2", "kind 0 of type 5 \"Name_1\": 1"));
}

// Required: a comment with the word in it is a range like any other, of whatever numbers stand there.
TEST_F(SetListCardTest, ACommentThatSpeaksOfThruIsARange) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(List("SET 7 = 1\n$ 5 thru 9\n2\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), IsEmpty());
  List("SET 7 = 1, 2 $ 3 thru 2\n3\n");  // From 2, the first word, to 3, the third.
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 3"));
}

// Required: so is a card behind the list whose first token speaks of a range.
TEST_F(SetListCardTest, ACardBehindTheListThatBeginsWithARangeIsEaten) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(List("SET 7 = 1, 2\nSET 8 = 1 THRU 3\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(List("SET 7 = 1, 2\nSET 8 = 3, 1 THRU 3\nNEXT\n"), "SET 8 = 3, 1 THRU 3\nNEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
}

TEST_F(SetListCardTest, CarriageReturnsDoNotMatter) {
  MakeNodes({1, 2, 3, 4, 5});
  EXPECT_EQ(List("SET 7 = 1, 2,\r\n3 THRU 4,\r\n 5\r\nNEXT\r\n"), "NEXT\r\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4 5"));
}

// Required: what no comma and no line feed ends is not read.
TEST_F(SetListCardTest, ALastLineWithoutALineFeedLosesItsLastNumber) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(List("SET 7 = 1, 2, 3"), "");
  EXPECT_EQ(List("SET 7 = 3"), "");
  EXPECT_EQ(List("SET 7 = 1, 99 THRU 100"), "");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2", "kind 0 of type 5 \"Name_1\": 1"));
}

TEST_F(SetListCardTest, ANulEndsTheText) {
  MakeNodes({1, 2, 3});
  List(std::string_view("SET 7 = 1, 2\0, 3\n", 17));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1"));
}

TEST_F(SetListCardTest, AListGoesOnInTheNextChunk) {
  MakeNodes({1, 2, 3, 4, 5, 6});
  EXPECT_EQ(ListAcrossChunks("SET 7 = 1, 2,\n3,\n", "4, 5 THRU 6\nNEXT\n"), "NEXT\n");
  EXPECT_EQ(ListAcrossChunks("SET 7 = 1, 2, 3\n", "4, 5, 6, X\nNEXT\n"), "X\nNEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4 5 6", "kind 0 of type 5 \"Name_1\": 1 2 3 4 5 6"));
}

TEST_F(SetListCardTest, TheCardThatBeginsTheNextChunkIsGivenBack) {
  MakeNodes({1, 2});
  EXPECT_EQ(ListAcrossChunks("SET 7 = 1, 2\n", "GRID    4\n"), "GRID    4\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
}

TEST_F(SetListCardTest, AListMayFillSeveralChunks) {
  MakeNodes({1, 2, 3});
  std::string text = "SET 7 = 1,\n";
  while (text.size() < 2 * deckChunkLimit + 100) {
    text += "0," + std::string(100, ' ') + "\n";
  }
  EXPECT_EQ(List(text + "2,\n3\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3"));
}

TEST_F(SetListCardTest, AnOverlongNumberIsCut) {
  MakeNodes({1, 2});
  EXPECT_EQ(List("SET 7 = 1" + std::string(5000, ' ') + "9, 2\nNEXT\n"), "NEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
}

TEST_F(SetListCardTest, WithoutAModelOrAStoreNothingHappens) {
  const char* text = "SET 7 = 1\n";
  Open(text);
  ReadSetListCard(&file, nullptr, boundary, "Name");
  EXPECT_STREQ(file.cursor, text);
  ReadSetListCard(&file, model, nullptr, "Name");
  EXPECT_STREQ(file.cursor, text);
}

const std::string listCard = "SET 7 = 1, 2 THRU 4,\n5, 6,\r\n+ 17\n8\nGRID    9\n";

TEST_F(SetListCardTest, CutAnywhereItStaysInItsText) {
  MakeNodes({1, 2, 3, 4, 5, 6, 7, 8});
  for (std::size_t length = 4; length < listCard.size(); ++length) {
    const std::string rest = List(listCard.substr(0, length));
    EXPECT_TRUE(listCard.substr(0, length).ends_with(rest)) << length;
  }
}

TEST_F(SetListCardTest, WithBytesChangedItStaysInItsText) {
  MakeNodes({1, 2, 3, 4, 5, 6, 7, 8});
  std::mt19937 random(11);
  const std::string_view bytes("\n\r\0 ,+*$-=TX\xFF", 14);
  for (int i = 0; i < 500; ++i) {
    std::string text = listCard;
    for (std::uint32_t changes = 1 + random() % 4; changes != 0; --changes) {
      text[4 + random() % (text.size() - 4)] = bytes[random() % bytes.size()];
    }
    const std::string rest = List(text);
    EXPECT_NE(text.find(rest), std::string::npos) << text;
    EXPECT_TRUE(file.cursor >= file.block && file.cursor <= file.block + text.size()) << text;
  }
}

}  // namespace
}  // namespace btz::test
