// The bulk form of SET: what its first line says, the walk over the fields of the lines below, ranges, where the card ends, and what the host is told.
#include <random>

#include "deck/name_comments.h"
#include "tests/unit/sets/set_card_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SetGroupCardTest : public SetCardTest {
 protected:
  /// Ids of the node set 7 whose fields stand in one line.
  std::vector<std::string> NodeSetOf(std::string_view fields) {
    Group(Small("SET|7|GRID") + Small("+|" + std::string(fields)) + "NEXT\n");
    return Sets();
  }
};

TEST_F(SetGroupCardTest, ASetOfNodes) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(Group(Small("SET|7|GRID") + Small("+|1|2|3") + "NEXT\n"), "\nNEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateSet() -> 0 EntitySet#1", "EntitySet#1.SetName(\"Name\")", "EntitySet#1.SetKind(0)",
                                   "EntitySet#1.SetMemberType(5)", "EntitySet#1.SetNodes([n1, n2, n3])"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
}

TEST_F(SetGroupCardTest, ASetOfElements) {
  MakeNodes({1, 2, 3});
  MakeShells({1, 3});
  EXPECT_EQ(Group(Small("SET|7|ELEM") + Small("+|3|1|2") + "NEXT\n"), "\nNEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateSet() -> 0 EntitySet#1", "EntitySet#1.SetName(\"Name\")", "EntitySet#1.SetKind(1)",
                                   "EntitySet#1.SetMemberType(6)", "EntitySet#1.SetElements([e3, e1])"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
}

TEST_F(SetGroupCardTest, OneSolidMakesItASetOfSolids) {
  MakeShells({1, 3});
  MakeSolids({2, 3});
  Group(Small("SET|7|ELEM") + Small("+|1|2|3"));
  EXPECT_THAT(Sets(), ElementsAre("kind 3 of type 6 \"Name\": 1 2 3"));
  // The 3 is a shell: solids are asked for only where there is no other element.
  Group(Small("SET|8|ELEM") + Small("+|1|3"));
  EXPECT_THAT(Sets(), ElementsAre("kind 1 of type 6 \"Name\": 1 3"));
}

TEST_F(SetGroupCardTest, AMissingElementIsNoSolid) {
  MakeShells({1});
  Group(Small("SET|7|ELEM") + Small("+|99|1|98"));
  EXPECT_THAT(Sets(), ElementsAre("kind 1 of type 6 \"Name\": 1"));
}

TEST_F(SetGroupCardTest, RigidElementsAreElementsLikeOthers) {
  MakeShells({1});
  MakeRigids({2});
  Group(Small("SET|7|ELEM") + Small("+|1|2"));
  EXPECT_THAT(Sets(), ElementsAre("kind 1 of type 6 \"Name\": 1 2"));
}

TEST_F(SetGroupCardTest, IdsThatDoNotExistArePassedOver) {
  MakeNodes({2, 4});
  EXPECT_THAT(NodeSetOf("1|2|3|4|5"), ElementsAre("kind 0 of type 5 \"Name\": 2 4"));
}

TEST_F(SetGroupCardTest, ASetWithoutMembersIsNotMade) {
  MakeNodes({1});
  MakeShells({2});
  EXPECT_EQ(Group(Small("SET|7|GRID") + Small("+|2|3") + "NEXT\n"), "\nNEXT\n");
  EXPECT_EQ(Group(Small("SET|7|ELEM") + Small("+|1|3") + "NEXT\n"), "\nNEXT\n");
  EXPECT_EQ(Group(Small("SET|7|GRID") + "NEXT\n"), "NEXT\n");
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_THAT(Filed(7), IsEmpty());
}

TEST_F(SetGroupCardTest, TheWordIsTakenInAnyCase) {
  MakeNodes({1});
  MakeShells({1});
  for (const char* word : {"grid", "Grid", "GRID", " GRID", "   GRID "}) {
    Group(Small("SET|7|" + std::string(word)) + Small("+|1"));
    EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1")) << word;
  }
  for (const char* word : {"elem", "Elem", "ELEM", "    ELEM"}) {
    Group(Small("SET|7|" + std::string(word)) + Small("+|1"));
    EXPECT_THAT(Sets(), ElementsAre("kind 1 of type 6 \"Name\": 1")) << word;
  }
}

TEST_F(SetGroupCardTest, AnyOtherWordLeavesTheCardBehindItsFirstLine) {
  MakeNodes({1});
  MakeShells({1});
  const std::string below = Small("+|1") + "NEXT\n";
  for (const char* head :
       {"SET|7|LIST", "SET|7|GRIDS", "SET|7|ELEMENT", "SET|7|GR ID", "SET|7||GRID", "SET|7|X|ELEM", "SET|GRID", "SET|7", "SET"}) {
    EXPECT_EQ(Group(Small(head) + below), below) << head;
  }
  EXPECT_EQ(Group("SET 7\n" + below), below);
  EXPECT_EQ(Group("SET     7       \n" + below), below);
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetGroupCardTest, WhatStandsBehindTheWordDoesNotMatter) {
  MakeNodes({1});
  Group(Small("SET|7|GRID|LIST|5|6") + Small("+|1"));
  Group(Small("SET|7|GRID") + Small("+|1"));
  Group("SET     7       GRID\r\n" + Small("+|1"));
  EXPECT_THAT(Filed(7), ElementsAre(1, 2, 3));
}

TEST_F(SetGroupCardTest, TheIdBeginsInTheNinthColumn) {
  MakeNodes({1});
  Group("SET 5   7       GRID\n" + Small("+|1"));
  Group("SET           8 GRID\n" + Small("+|1"));
  Group("SET             GRID\n" + Small("+|1"));
  Group("SET     12345678GRID\n" + Small("+|1"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
  EXPECT_THAT(Filed(8), ElementsAre(2));
  EXPECT_THAT(Filed(0), ElementsAre(3));
  EXPECT_THAT(Filed(12345678), ElementsAre(4));
}

TEST_F(SetGroupCardTest, ASetOfANegativeIdIsMadeButNotFiled) {
  MakeNodes({1});
  Group(Small("SET|-7|GRID") + Small("+|1"));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1"));
  EXPECT_THAT(Filed(-7), IsEmpty());
}

TEST_F(SetGroupCardTest, SetsOfOneIdAreFiledTogether) {
  MakeNodes({1});
  MakeShells({1});
  Group(Small("SET|7|GRID") + Small("+|1"));
  Group(Small("SET|7|ELEM") + Small("+|1"));
  Group(Small("SET|8|ELEM") + Small("+|1"));
  EXPECT_THAT(Filed(7), ElementsAre(1, 2));
  EXPECT_THAT(Filed(8), ElementsAre(3));
}

TEST_F(SetGroupCardTest, ASetThatTheHostRefusesIsNotFiled) {
  MakeNodes({1});
  host.Refusals().RefuseCall("BoundaryStore.CreateSet", 1);
  host.Refusals().RefuseCall("BoundaryStore.CreateSet", 2, Refusal::EmptySuccess);
  Group(Small("SET|7|GRID") + Small("+|1"));
  Group(Small("SET|7|GRID") + Small("+|1"));
  EXPECT_THAT(Calls(), testing::SizeIs(2));
  EXPECT_THAT(Filed(7), IsEmpty());
}

TEST_F(SetGroupCardTest, ANameCommentForItsIdNamesTheSet) {
  MakeNodes({1});
  MakeShells({1});
  RegisterSetName(7, "Bolts", 1);
  RegisterSetName(7, "Door", 2);
  RegisterSetName(8, "Nuts", 1);
  RegisterSetName(9, "Skin", 3);
  for (const char* head : {"SET|7|GRID", "SET|7|ELEM", "SET|8|GRID", "SET|8|ELEM", "SET|9|GRID"}) {
    Group(Small(head) + Small("+|1"));
  }
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Bolts\": 1", "kind 1 of type 6 \"Door\": 1", "kind 0 of type 5 \"Nuts\": 1",
                                  "kind 1 of type 6 \"Name\": 1", "kind 0 of type 5 \"Name\": 1"));
}

TEST_F(SetGroupCardTest, ANameIsGivenAsItIsHoweverOftenItIsTaken) {
  MakeNodes({1});
  TraceSink all(&trace, TraceSink::Coverage::All);
  host.SetTrace(&all);
  Group(Small("SET|7|GRID") + Small("+|1"));
  Group(Small("SET|7|GRID") + Small("+|1"));
  EXPECT_EQ(trace.find("CheckSetName"), std::string::npos);
  host.SetTrace(&sink);
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1", "kind 0 of type 5 \"Name\": 1"));
}

TEST_F(SetGroupCardTest, ALongNameIsGivenWhole) {
  MakeNodes({1});
  const std::string name(255, 'N');
  Group(Small("SET|7|GRID") + Small("+|1"), name.c_str());
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"" + name + "\": 1"));
}

TEST_F(SetGroupCardTest, AnEmptyNameIsNotGiven) {
  MakeNodes({1});
  Group(Small("SET|7|GRID") + Small("+|1"), "");
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateSet() -> 0 EntitySet#1", "EntitySet#1.SetKind(0)", "EntitySet#1.SetMemberType(5)",
                                   "EntitySet#1.SetNodes([n1])"));
}

TEST_F(SetGroupCardTest, ARangeStandsInThreeFields) {
  MakeNodes({1, 2, 3, 4, 5, 6});
  for (const char* thru : {"THRU", "thru", "Thru", "  THRU"}) {
    EXPECT_THAT(NodeSetOf("1|" + std::string(thru) + "|5"), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4 5")) << thru;
  }
}

TEST_F(SetGroupCardTest, ARangeMayGoOverLinesAndBlankFields) {
  MakeNodes({1, 2, 3, 4, 5, 6});
  Group(Small("SET|7|GRID") + Small("+|||||||1|") + Small("+|") + Small("+A|THRU|") + Small("|||4"));
  Group(Small("SET|7|GRID") + Small("+|2||THRU|||4"));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4", "kind 0 of type 5 \"Name\": 2 3 4"));
}

TEST_F(SetGroupCardTest, EachRangeStartsAnew) {
  MakeNodes({1, 2, 3, 4, 5, 6, 7, 8, 9});
  EXPECT_THAT(NodeSetOf("1|THRU|3|7|THRU|9|5"), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 7 8 9 5"));
  EXPECT_THAT(NodeSetOf("1|2|THRU|4|8"), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4 8"));
  EXPECT_THAT(NodeSetOf("1|THRU|THRU|3"), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3"));
  EXPECT_THAT(NodeSetOf("1|THRU|0|3"), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3"));
  EXPECT_THAT(NodeSetOf("1|THRU|3|THRU|5"), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 5"));
  EXPECT_THAT(NodeSetOf("4|THRU|4|6"), ElementsAre("kind 0 of type 5 \"Name\": 4 6"));
}

TEST_F(SetGroupCardTest, AFallingRangeIsItsFirstId) {
  MakeNodes({1, 2, 3, 4, 5, 7, 8, 9});
  EXPECT_THAT(NodeSetOf("5|THRU|3|7|THRU|9"), ElementsAre("kind 0 of type 5 \"Name\": 5 7 8 9"));
}

// Required: the last id of a range without a first one is kept, and makes a range with the next id.
TEST_F(SetGroupCardTest, ARangeWithoutAFirstIdIsCompletedByTheNextOne) {
  MakeNodes({4, 5, 6, 7, 8, 9});
  EXPECT_THAT(NodeSetOf("THRU|9|5|4"), ElementsAre("kind 0 of type 5 \"Name\": 9 6 7 8 9 4"));
  EXPECT_THAT(NodeSetOf("THRU|5|7|8"), ElementsAre("kind 0 of type 5 \"Name\": 5 8"));
}

TEST_F(SetGroupCardTest, IdsBelowOneMakeNoRange) {
  MakeNodes({1, 2, 3, 4, 5, 6, 7, 8});
  EXPECT_THAT(NodeSetOf("-2|THRU|3"), ElementsAre("kind 0 of type 5 \"Name\": 3"));
  EXPECT_THAT(NodeSetOf("-2|5|THRU|7"), ElementsAre("kind 0 of type 5 \"Name\": 5 6 7"));
  EXPECT_THAT(NodeSetOf("2|THRU|-1|6|THRU|8"), ElementsAre("kind 0 of type 5 \"Name\": 2 6 7 8"));
  EXPECT_THAT(NodeSetOf("0|1|0|THRU|3"), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3"));
}

TEST_F(SetGroupCardTest, AnIdListedTwiceIsTwiceInTheSet) {
  MakeNodes({1, 2, 3});
  EXPECT_THAT(NodeSetOf("2|1|THRU|3|2"), ElementsAre("kind 0 of type 5 \"Name\": 2 1 2 3 2"));
}

TEST_F(SetGroupCardTest, ARangeToTheHighestNumberTakesWhatThereIs) {
  MakeNodes({1, 2, 5});
  MakeShells({1, 4});
  MakeSolids({6});
  Group(Small("SET|7|GRID") + Large("+|") + Small("+|1|THRU|99999999|2"));
  Group("SET     7       GRID\n1       THRU    +\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 5 900000 2", "kind 0 of type 5 \"Name\": 1"));
  // Ten digits need a large field.
  Group(Large("SET*|7|GRID") + Large("*|1|THRU|2147483647") + Large("*|2"));
  Group(Large("SET*|7|ELEM") + Large("*|1|THRU|2147483647") + Large("*|4"));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 5 900000 2", "kind 3 of type 6 \"Name\": 1 4 6 4"));
}

TEST_F(SetGroupCardTest, ALongRangeReachesTheHighestIdOfTheModel) {
  MakeNodes({2000000001, 2000000003});
  MakeShells({2000000005, 2000000007});
  Group(Large("SET*|7|GRID") + Large("*|2000000001|THRU|2147483647"));
  Group(Large("SET*|7|ELEM") + Large("*|2000000001|THRU|2147483647"));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 2000000001 2000000003", "kind 1 of type 6 \"Name\": 2000000005 2000000007"));
}

TEST_F(SetGroupCardTest, AShortRangeMayEndAtTheHighestNumber) {
  MakeNodes({2147483646, 2147483647});
  Group(Large("SET*|7|GRID") + Large("*|2147483640|THRU|2147483647"));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 2147483646 2147483647"));
}

TEST_F(SetGroupCardTest, ContinuationLinesBeginWithAMarkAStarOrBlanks) {
  MakeNodes({1, 2, 3, 4, 5, 6});
  EXPECT_EQ(Group(Small("SET|7|GRID|||||||+S1") + Small("+S1|1|2|||||||+S2") + Small("+S2|3") + Small("*|4") + Small("*S3|5") +
                  Small("|6") + "NEXT\n"),
            "\nNEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4 5 6"));
}

TEST_F(SetGroupCardTest, LinesWithoutAMarkBelongToTheCardToo) {
  MakeNodes({1, 2, 3, 4, 5});
  EXPECT_EQ(Group(Small("SET|7|GRID") + Small("1|THRU") + Small("3|4") + Small("5") + "NEXT\n"), "\nNEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4 5"));
}

TEST_F(SetGroupCardTest, AZeroAtTheHeadOfALineEndsNothing) {
  MakeNodes({1, 2, 3});
  Group(Small("SET|7|GRID") + Small("+|1") + Small("0|2") + Small("-5|3"));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3"));
}

TEST_F(SetGroupCardTest, AnyTextButThruEndsTheCard) {
  MakeNodes({1, 2, 3});
  for (const char* text : {"EXCEPT", "ALL", "THRUX", "TH RU", "$", "X1", "FORCE", "1E5$"}) {
    const std::string tail = Small(std::string(text) + "|3") + "NEXT\n";
    const std::string rest = Group(Small("SET|7|GRID") + Small("+|1|2") + tail);
    // "1E5$" begins with a number.
    EXPECT_EQ(rest, std::string_view(text) == "1E5$" ? "\nNEXT\n" : "\n" + tail) << text;
    EXPECT_THAT(Sets(),
                ElementsAre(std::string_view(text) == "1E5$" ? "kind 0 of type 5 \"Name\": 1 2 1 3" : "kind 0 of type 5 \"Name\": 1 2"))
        << text;
  }
  EXPECT_EQ(Group(Small("SET|7|GRID") + Small("+|1|THRU|2|EXCEPT|3")), "EXCEPT  3       \n");
}

TEST_F(SetGroupCardTest, TextBehindADigitDoesNotMatter) {
  MakeNodes({1, 2, 3});
  EXPECT_THAT(NodeSetOf("1A|2THRU|3.5"), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3"));
}

TEST_F(SetGroupCardTest, AStarBehindAKeywordEndsTheCard) {
  MakeNodes({1, 2});
  const std::string tail = Large("GRID*|2") + "NEXT\n";
  EXPECT_EQ(Group(Small("SET|7|GRID") + Small("+|1") + tail), "\n" + tail);
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1"));
}

// Required: a keyword with a star that is none of those that end a card counts as the marker of a continuation line.
TEST_F(SetGroupCardTest, AStarBehindAnotherWordIsAMarker) {
  MakeNodes({1, 2});
  EXPECT_EQ(Group(Small("SET|7|GRID") + Small("+|1") + Large("FORCE*|2") + "NEXT\n"), "NEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
}

TEST_F(SetGroupCardTest, AStarBehindANumberDoesNotMatter) {
  MakeNodes({1, 2});
  EXPECT_THAT(NodeSetOf("1*|2"), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
}

// Required: the last field of a line that is not padded is seen with the head of the next line.
TEST_F(SetGroupCardTest, AnUnpaddedLastIdIsJudgedWithTheNextLine) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(Group(Small("SET|7|GRID") + "+       1       2\n" + Small("+|3") + "NEXT\n"), "\nNEXT\n");
  EXPECT_EQ(Group(Small("SET|7|GRID") + "+       1       2\nNEXT\n"), "\nNEXT\n");
  EXPECT_EQ(Group(Small("SET|7|GRID") + "+       1       THRU\n" + Small("+|3") + "NEXT\n"), "THRU\n" + Small("+|3") + "NEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 3", "kind 0 of type 5 \"Name\": 1 2", "kind 0 of type 5 \"Name\": 1"));
}

TEST_F(SetGroupCardTest, CarriageReturnsDoNotMatter) {
  MakeNodes({1, 2, 3, 4, 5});
  EXPECT_EQ(Group(Small("SET|7|GRID", "\r\n") + Small("+|1|THRU", "\r\n") + Small("+|3", "\r\n") + Small("|5", "\r\n") + "NEXT\r\n"),
            "\r\nNEXT\r\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 5"));
}

TEST_F(SetGroupCardTest, ACommentBetweenItsLinesEndsTheCard) {
  MakeNodes({1, 2});
  const std::string tail = "$ note\n" + Small("+|2");
  EXPECT_EQ(Group(Small("SET|7|GRID") + Small("+|1") + tail), "\n" + tail);
  EXPECT_EQ(Group(Small("SET|7|GRID") + tail), tail);
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1"));
}

TEST_F(SetGroupCardTest, TheDecksEndEndsTheCard) {
  MakeNodes({1, 2, 3});
  EXPECT_EQ(Group(Small("SET|7|GRID") + "+       1       2"), "");
  EXPECT_EQ(Group(Small("SET|7|GRID") + "+       1       THRU    3"), "");
  EXPECT_EQ(Group(Small("SET|7|GRID") + Small("+|1|") + "\n\n"), "");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2", "kind 0 of type 5 \"Name\": 1 2 3", "kind 0 of type 5 \"Name\": 1"));
}

TEST_F(SetGroupCardTest, AFirstLineThatTheDeckEndsWithIsLeft) {
  MakeNodes({1});
  EXPECT_EQ(Group("SET     7       GRID"), "SET     7       GRID");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetGroupCardTest, ACardGoesOnInTheNextChunk) {
  MakeNodes({1, 2, 3, 4, 5, 7});
  EXPECT_EQ(GroupAcrossChunks(Small("SET|7|GRID") + Small("+|1|THRU"), Small("5|7") + "NEXT\n"), "\nNEXT\n");
  EXPECT_EQ(GroupAcrossChunks(Small("SET|7|GRID"), Small("2|7") + "NEXT\n"), "\nNEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4 5 7", "kind 0 of type 5 \"Name\": 2 7"));
}

TEST_F(SetGroupCardTest, TheCardThatBeginsTheNextChunkEndsIt) {
  MakeNodes({1, 2});
  EXPECT_EQ(GroupAcrossChunks(Small("SET|7|GRID") + Small("+|1|2"), "FORCE   1       2\n"), "FORCE   1       2\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2"));
}

TEST_F(SetGroupCardTest, ACardMayFillSeveralChunks) {
  MakeNodes({1, 2, 3, 4, 5});
  std::string text = Small("SET|7|GRID") + Small("+|1|THRU");
  while (text.size() < 2 * deckChunkLimit + 100) {
    text += Small("+|0||0");
  }
  EXPECT_EQ(Group(text + Small("+|4|5") + "NEXT\n"), "\nNEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 4 5"));
}

TEST_F(SetGroupCardTest, LargeFields) {
  MakeNodes({1, 2, 3, 4, 5});
  EXPECT_EQ(Group(Large("SET*|7|GRID") + Large("*|1|THRU") + Large("*A|3|5") + "NEXT\n"), "\nNEXT\n");
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1 2 3 5"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
}

TEST_F(SetGroupCardTest, LargeFieldsAreLookedAtWhole) {
  MakeNodes({1000, 1000000001});
  Group(Large("SET*|              7|            GRID") + Large("*||    1000000001|"));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 1000000001"));
  EXPECT_THAT(Filed(7), ElementsAre(1));
}

// Required: a plus sign is stepped over with the width of a field, and half of the first field with it.
TEST_F(SetGroupCardTest, APlusSignInFrontOfLargeFieldsCostsHalfOfTheFirst) {
  MakeNodes({1, 2, 3});
  Group(Large("SET*|7|GRID") + Large("+|1|2") + Large("*|3"));
  EXPECT_THAT(Sets(), ElementsAre("kind 0 of type 5 \"Name\": 2 3"));
}

TEST_F(SetGroupCardTest, ACardWithCommasIsDropped) {
  MakeNodes({1});
  const std::string text = "SET,7,GRID\n+,1\n" + Small("+|1");
  EXPECT_EQ(Group(text), text);
  EXPECT_EQ(Group("SET,    7       GRID\n" + Small("+|1")), "SET,    7       GRID\n" + Small("+|1"));
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SetGroupCardTest, WithoutAModelOrAStoreNothingHappens) {
  const std::string text = Small("SET|7|GRID") + Small("+|1");
  MakeNodes({1});
  Open(text);
  ReadSetGroupCard(&file, nullptr, boundary, "Name");
  ReadSetGroupCard(&file, model, nullptr, "Name");
  EXPECT_EQ(file.cursor, text);
}

const std::string groupCard =
    Small("SET|7|GRID|LIST") + Small("+|1|THRU|4|6") + Small("*A|5|", "\r\n") + Small("|0|7") + Small("8|-9") + "GRID    9\n";

TEST_F(SetGroupCardTest, CutAnywhereItStaysInItsText) {
  MakeNodes({1, 2, 3, 4, 5, 6, 7, 8});
  for (std::size_t length = 4; length < groupCard.size(); ++length) {
    const std::string rest = Group(groupCard.substr(0, length));
    EXPECT_TRUE(groupCard.substr(0, length).ends_with(rest)) << length;
  }
}

TEST_F(SetGroupCardTest, WithBytesChangedItStaysInItsText) {
  MakeNodes({1, 2, 3, 4, 5, 6, 7, 8});
  std::mt19937 random(12);
  const std::string_view bytes("\n\r\0 ,+*$-=TX\xFF", 14);
  for (int i = 0; i < 500; ++i) {
    std::string text = groupCard;
    for (std::uint32_t changes = 1 + random() % 6; changes != 0; --changes) {
      text[4 + random() % (text.size() - 4)] = bytes[random() % bytes.size()];
    }
    const std::string rest = Group(text);
    EXPECT_NE(text.find(rest), std::string::npos) << text;
    EXPECT_TRUE(file.cursor >= file.block && file.cursor <= file.block + text.size()) << text;
  }
}

}  // namespace
}  // namespace btz::test
