// The stage that makes host forces of the sets: one force for each system of a set, fields for sets of different vectors, names, order and
// what a refusing host changes.
#include <string>

#include "loads/force_fixture.h"

namespace btz {
namespace {

using test::ExpectedField;
using test::ExpectedForce;
using test::Joined;
using test::Small;

constexpr const char* none = "0.0, 0.0, 0.0";
constexpr const char* ones = "1.0, 1.0, 1.0";

/// Nodes 1 to 20 at x = their id.
class ForceLoads : public test::ForcesTest {
 protected:
  ForceLoads() { MakeNodes(20); }
};

TEST_F(ForceLoads, WithoutSetsThereIsNothing) { EXPECT_TRUE(Create().empty()); }

TEST_F(ForceLoads, OneForce) {
  ReadForce(Small("FORCE|1|10|0|2.0|1.0|0.0|0.0"));
  EXPECT_EQ(Create(), (ExpectedForce{"1", "2.0, 0.0, 0.0", none, "0", "n10", "null", "PointForce1"}.Calls()));
  EXPECT_EQ(pointForceNumber, 2);
  EXPECT_EQ(LoadCount(1), 1);
}

TEST_F(ForceLoads, EqualVectorsMakeOneForceOnAllNodes) {
  Force("1|11|3|1.0|2.0|3.0");
  Force("1|10|3|1.0|2.0|3.0");
  EXPECT_EQ(Create(), (ExpectedForce{"1", "1.0, 2.0, 3.0", none, "3", "n10, n11", "null", "PointForce1"}.Calls()))
      << "nodes stand in the order of the table";
}

TEST_F(ForceLoads, DifferentVectorsMakeAField) {
  Force("1|10|3|1.0|2.0|3.0");
  Force("1|11|3|4.0|5.0|6.0");
  EXPECT_EQ(
      Create(),
      Joined({ExpectedField("1", "2", "[10.0, 0.0, 0.0, 1.0, 2.0, 3.0, 0.0, 0.0, 0.0], [11.0, 0.0, 0.0, 4.0, 5.0, 6.0, 0.0, 0.0, 0.0]"),
              ExpectedForce{"1", ones, none, "3", "n10, n11", "Field#1", "PointForce1"}.Calls()}));
  EXPECT_EQ(LoadCount(1), 1);
}

// Required: the field's rows hold moments, but the force's own moment is 0.
TEST_F(ForceLoads, DifferentMomentsMakeAFieldToo) {
  Moment("1|10|0|1.0");
  Moment("1|11|0|2.0|3.0");
  EXPECT_EQ(
      Create(),
      Joined({ExpectedField("1", "2", "[10.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0], [11.0, 0.0, 0.0, 0.0, 0.0, 0.0, 2.0, 3.0, 0.0]"),
              ExpectedForce{"1", ones, none, "0", "n10, n11", "Field#1", "PointForce1"}.Calls()}));
}

TEST_F(ForceLoads, MomentsThatDifferInTheirSecondComponentAreTheLastOneOnAllNodes) {
  Moment("1|10|0|1.0|2.0");
  Moment("1|11|0|1.0|3.0");
  EXPECT_EQ(Create(), (ExpectedForce{"1", none, "1.0, 3.0, 0.0", "0", "n10, n11", "null", "PointForce1"}.Calls()));
}

TEST_F(ForceLoads, TheLastMomentIsThatOfTheLastNodeOfTheTable) {
  Moment("1|11|0|1.0|3.0");
  Moment("1|10|0|1.0|2.0");
  EXPECT_EQ(Create(), (ExpectedForce{"1", none, "1.0, 3.0, 0.0", "0", "n10, n11", "null", "PointForce1"}.Calls()));
}

TEST_F(ForceLoads, OfAUniformSetTheFirstNodeGivesForceAndMomentButALaterMomentWins) {
  // Node 9 bears a force alone, node 10 a moment; the first cards of both kinds are not compared.
  Moment("1|10|0|0.0|7.0");
  Force("1|9|0|4.0");
  EXPECT_EQ(Create(), (ExpectedForce{"1", "4.0, 0.0, 0.0", "0.0, 7.0, 0.0", "0", "n9, n10", "null", "PointForce1"}.Calls()));
}

TEST_F(ForceLoads, AMomentOnANodeThatAForceMadeDoesNotReachTheOthers) {
  Force("1|9|0|4.0");
  Force("1|10|0|4.0");
  Moment("1|10|0|0.0|7.0");
  EXPECT_EQ(Set(1)->mixed, 0);
  EXPECT_EQ(Create(), (ExpectedForce{"1", "4.0, 0.0, 0.0", none, "0", "n9, n10", "null", "PointForce1"}.Calls()));
}

TEST_F(ForceLoads, AForceAndAMomentOnOneNodeMakeOneForceWithBoth) {
  Force("1|10|0|1.0");
  Moment("1|10|0|0.0|5.0");
  EXPECT_EQ(Create(), (ExpectedForce{"1", "1.0, 0.0, 0.0", "0.0, 5.0, 0.0", "0", "n10", "null", "PointForce1"}.Calls()));
}

TEST_F(ForceLoads, AForceAndAMomentOnOneNodeMakeOneRowWithBoth) {
  Force("1|10|0|1.0");
  Force("1|11|0|2.0");
  Moment("1|10|0|0.0|5.0");
  EXPECT_EQ(
      Create(),
      Joined({ExpectedField("1", "2", "[10.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 5.0, 0.0], [11.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
              ExpectedForce{"1", ones, none, "0", "n10, n11", "Field#1", "PointForce1"}.Calls()}));
}

TEST_F(ForceLoads, ACommentNamesTheForce) {
  Force("1|10|0|1.0", "Upper \xFC lug");
  EXPECT_EQ(Create(), (ExpectedForce{"1", "1.0, 0.0, 0.0", none, "0", "n10", "null", "Upper \\u{00FC} lug"}.Calls()));
  EXPECT_EQ(pointForceNumber, 1) << "a name of its own takes no number";
}

TEST_F(ForceLoads, OneForceForEachSystemInTheOrderOfTheTable) {
  Force("1|12|5|1.0", "Lug");
  Force("1|11|3|1.0");
  Force("1|10|5|1.0");
  Force("1|13|4|1.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", "1.0, 0.0, 0.0", none, "5", "n10, n12", "null", "Lug"}.Calls(),
                              ExpectedForce{"2", "1.0, 0.0, 0.0", none, "3", "n11", "null", "PointForce1"}.Calls(),
                              ExpectedForce{"3", "1.0, 0.0, 0.0", none, "4", "n13", "null", "PointForce2"}.Calls()}));
  EXPECT_EQ(pointForceNumber, 3);
  EXPECT_EQ(LoadCount(1), 3);
}

TEST_F(ForceLoads, TheSecondSystemOfASetWithoutANameIsNumberedOnce) {
  Force("1|10|0|1.0");
  Force("1|11|3|1.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", "1.0, 0.0, 0.0", none, "0", "n10", "null", "PointForce1"}.Calls(),
                              ExpectedForce{"2", "1.0, 0.0, 0.0", none, "3", "n11", "null", "PointForce2"}.Calls()}));
  EXPECT_EQ(pointForceNumber, 3);
}

TEST_F(ForceLoads, ANodeStaysInTheSystemOfItsFirstCard) {
  Force("1|10|0|1.0");
  Force("1|10|3|1.0");
  EXPECT_EQ(Create(), (ExpectedForce{"1", "1.0, 0.0, 0.0", none, "0", "n10", "null", "PointForce1"}.Calls()));
}

TEST_F(ForceLoads, EachSystemOfAUniformSetHasTheMomentOfItsOwnNodes) {
  Moment("1|10|0|1.0|2.0");
  Moment("1|11|3|1.0|3.0");
  Moment("1|12|0|1.0|4.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", none, "1.0, 4.0, 0.0", "0", "n10, n12", "null", "PointForce1"}.Calls(),
                              ExpectedForce{"2", none, "1.0, 3.0, 0.0", "3", "n11", "null", "PointForce2"}.Calls()}));
}

// Required: the row count runs on through the systems of a set; that of the next set begins anew.
TEST_F(ForceLoads, RowsAreCountedThroughTheSystemsOfASet) {
  Force("1|10|0|1.0");
  Force("1|11|0|2.0");
  Force("1|12|3|3.0");
  Force("2|10|0|1.0");
  Force("2|11|0|2.0");
  const std::string rows = "[10.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0], [11.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0]";
  EXPECT_EQ(Create(),
            Joined({ExpectedField("1", "2", rows), ExpectedForce{"1", ones, none, "0", "n10, n11", "Field#1", "PointForce1"}.Calls(),
                    ExpectedField("2", "3", "[12.0, 0.0, 0.0, 3.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                    ExpectedForce{"2", ones, none, "3", "n12", "Field#2", "PointForce2"}.Calls(), ExpectedField("3", "2", rows),
                    ExpectedForce{"3", ones, none, "0", "n10, n11", "Field#3", "PointForce3"}.Calls()}));
}

TEST_F(ForceLoads, SetsAndNodesComeInTheOrderOfATable) {
  MakeNode(1001, 0.0);
  MakeNode(1011, 0.0, 1.0);
  Force("9|5|0|1.0");
  Force("2002|5|0|1.0");
  Force("1|1011|0|1.0");  // 1011 = 1001 + 10.
  Force("1|11|0|1.0");
  Force("1|10|0|1.0");
  Force("1|1001|0|1.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", "1.0, 0.0, 0.0", none, "0", "n5", "null", "PointForce1"}.Calls(),
                              ExpectedForce{"2", "1.0, 0.0, 0.0", none, "0", "n1001, n1011, n10, n11", "null", "PointForce2"}.Calls(),
                              ExpectedForce{"3", "1.0, 0.0, 0.0", none, "0", "n5", "null", "PointForce3"}.Calls()}));
  EXPECT_EQ(LoadCount(2002), 1);
  EXPECT_EQ(LoadCount(1), 1);
  EXPECT_EQ(LoadCount(9), 1);
}

TEST_F(ForceLoads, ASetWithoutNodesMakesNothing) {
  Force("1|99|0|1.0", "Lug");
  Force("1|98|0|2.0");
  Force("2|99|0|2.0");
  EXPECT_TRUE(Create().empty());
  EXPECT_EQ(LoadCount(1), 0);
}

TEST_F(ForceLoads, NumbersGoOnFromTheRuns) {
  pointForceNumber = 7;
  Force("1|10|0|1.0");
  EXPECT_EQ(Create().back(), "ForceLoad#1.SetName(\"PointForce7\")");
  EXPECT_EQ(pointForceNumber, 8);
}

TEST_F(ForceLoads, ARefusedForceIsLeftOutAndTakesNoNumber) {
  host.Refusals().RefuseCall("BoundaryStore.CreateForce", 1);
  Force("1|10|0|1.0");
  Force("2|11|0|2.0");
  EXPECT_EQ(Create(), Joined({{"BoundaryStore.CreateForce() -> 1"},
                              ExpectedForce{"1", "2.0, 0.0, 0.0", none, "0", "n11", "null", "PointForce1"}.Calls()}));
  EXPECT_EQ(LoadCount(1), 0);
  EXPECT_EQ(LoadCount(2), 1);
}

TEST_F(ForceLoads, ASuccessWithoutAForceIsARefusalToo) {
  host.Refusals().RefuseCall("BoundaryStore.CreateForce", 1, Refusal::EmptySuccess);
  Force("1|10|0|1.0");
  Force("2|11|0|2.0");
  const std::vector<std::string> calls = Create();
  ASSERT_EQ(calls.size(), 9U);
  EXPECT_EQ(calls.back(), "ForceLoad#1.SetName(\"PointForce1\")");
  EXPECT_EQ(LoadCount(1), 0);
}

TEST_F(ForceLoads, ARefusedForceOfALaterSystemTakesItsNumberAllTheSame) {
  host.Refusals().RefuseCall("BoundaryStore.CreateForce", 2);
  Force("1|10|0|1.0");
  Force("1|11|3|1.0");
  Force("1|12|4|1.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", "1.0, 0.0, 0.0", none, "0", "n10", "null", "PointForce1"}.Calls(),
                              {"BoundaryStore.CreateForce() -> 1"},
                              ExpectedForce{"2", "1.0, 0.0, 0.0", none, "4", "n12", "null", "PointForce3"}.Calls()}));
}

// Required: rows of a group whose field was refused count on, and the next group is the first one to be named.
TEST_F(ForceLoads, ARefusedFieldDropsItsGroup) {
  host.Refusals().RefuseCall("CurveStore.CreateField", 1);
  Force("1|10|0|1.0", "Lug");
  Force("1|11|0|2.0");
  Force("1|12|3|3.0");
  EXPECT_EQ(Create(), Joined({{"CurveStore.CreateField() -> null"},
                              ExpectedField("1", "3", "[12.0, 0.0, 0.0, 3.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                              ExpectedForce{"1", ones, none, "3", "n12", "Field#1", "Lug"}.Calls()}));
  EXPECT_EQ(pointForceNumber, 1);
}

TEST_F(ForceLoads, ARefusedForceLeavesItsFieldBehind) {
  host.Refusals().RefuseCall("BoundaryStore.CreateForce", 1);
  Force("1|10|0|1.0");
  Force("1|11|0|2.0");
  EXPECT_EQ(
      Create(),
      Joined({ExpectedField("1", "2", "[10.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0], [11.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
              {"BoundaryStore.CreateForce() -> 1"}}));
  EXPECT_EQ(LoadCount(1), 0);
  EXPECT_EQ(pointForceNumber, 1);
}

}  // namespace
}  // namespace btz
