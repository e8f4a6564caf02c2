// Sets of different vectors with nodes at one point: nodes that share a load get a force of their own, the others stay in the field.
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

class CoincidentForces : public test::ForcesTest {
 protected:
  /// Whether forces at two nodes with these x are taken for forces at one point.
  bool Coincide(double first, double second) {
    MakeNode(1, first);
    MakeNode(2, second);
    MakeNode(3, 100.0);
    Force("1|1|0|1.0");
    Force("1|2|0|1.0");
    Force("1|3|0|2.0");
    const std::vector<std::string> calls = Create();
    return calls.front() == "BoundaryStore.CreateForce() -> 0 ForceLoad#1";
  }
};

TEST_F(CoincidentForces, NodesOfOneLoadGetAForceOfTheirOwn) {
  MakeNode(10, 5.0);
  MakeNode(11, 5.0);
  MakeNode(12, 6.0);
  Force("1|10|4|1.0");
  Force("1|11|4|1.0");
  Force("1|12|4|2.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", "1.0, 0.0, 0.0", none, "4", "n10, n11", "", "PointForce1"}.Calls(),
                              ExpectedField("1", "1", "[6.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                              ExpectedForce{"2", ones, none, "4", "n12", "Field#1", "PointForce2"}.Calls()}));
  EXPECT_EQ(LoadCount(1), 2);
  EXPECT_EQ(pointForceNumber, 3);
}

TEST_F(CoincidentForces, WithoutOnePointAllStayInTheField) {
  MakeNode(10, 5.0);
  MakeNode(11, 5.0, 1.0);
  MakeNode(12, 5.0, 0.0, 1.0);
  Force("1|10|0|1.0");
  Force("1|11|0|1.0");
  Force("1|12|0|2.0");
  const std::vector<std::string> calls = Create();
  EXPECT_EQ(calls.front(), "CurveStore.CreateField() -> Field#1");
  EXPECT_EQ(LoadCount(1), 1);
}

TEST_F(CoincidentForces, OfDifferentLoadsStayInTheField) {
  MakeNode(10, 5.0);
  MakeNode(11, 5.0);
  Force("1|10|0|1.0");
  Force("1|11|0|2.0");
  EXPECT_EQ(Create(),
            Joined({ExpectedField("1", "2", "[5.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0], [5.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                    ExpectedForce{"1", ones, none, "0", "n10, n11", "Field#1", "PointForce1"}.Calls()}));
}

TEST_F(CoincidentForces, OnePairTakesAllSharedLoadsOutOfTheField) {
  MakeNode(10, 0.0);
  MakeNode(11, 1.0);
  MakeNode(12, 2.0);
  MakeNode(13, 2.0);
  MakeNode(14, 3.0);
  MakeNode(15, 4.0);
  Force("1|10|0|7.0");
  Force("1|11|0|8.0");
  Force("1|12|0|1.0");
  Force("1|13|0|2.0");
  Force("1|14|0|7.0");
  Force("1|15|0|8.0");
  const std::string rows = "[2.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0], [2.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0]";
  EXPECT_EQ(Create(),
            Joined({ExpectedForce{"1", "7.0, 0.0, 0.0", none, "0", "n10, n14", "", "PointForce1"}.Calls(),
                    ExpectedForce{"2", "8.0, 0.0, 0.0", none, "0", "n11, n15", "", "PointForce2"}.Calls(), ExpectedField("1", "2", rows),
                    ExpectedForce{"3", ones, none, "0", "n12, n13", "Field#1", "PointForce3"}.Calls()}));
}

TEST_F(CoincidentForces, RunsComeInTheOrderOfTheTable) {
  MakeNode(10, 0.0);
  MakeNode(1011, 0.0);  // 1011 = 1001 + 10, so it stands behind node 10 or before it, as their cards do.
  MakeNode(5, 1.0);
  MakeNode(6, 2.0);
  Force("1|6|0|1.0");
  Force("1|1011|0|2.0");
  Force("1|10|0|2.0");
  Force("1|5|0|1.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", "1.0, 0.0, 0.0", none, "0", "n5, n6", "", "PointForce1"}.Calls(),
                              ExpectedForce{"2", "2.0, 0.0, 0.0", none, "0", "n1011, n10", "", "PointForce2"}.Calls()}));
}

TEST_F(CoincidentForces, AGroupThatIsAllRunsMakesNoField) {
  MakeNode(10, 0.0);
  MakeNode(11, 0.0);
  MakeNode(12, 1.0);
  MakeNode(13, 1.0);
  MakeNode(14, 2.0);
  Force("1|10|0|1.0", "Lug");
  Force("1|11|0|1.0");
  Force("1|12|0|2.0");
  Force("1|13|0|2.0");
  Force("1|14|3|3.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", "1.0, 0.0, 0.0", none, "0", "n10, n11", "", "PointForce1"}.Calls(),
                              ExpectedForce{"2", "2.0, 0.0, 0.0", none, "0", "n12, n13", "", "PointForce2"}.Calls(),
                              ExpectedField("1", "1", "[2.0, 0.0, 0.0, 3.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                              ExpectedForce{"3", ones, none, "3", "n14", "Field#1", "Lug"}.Calls()}))
      << "the first group with a field bears the set's name";
  EXPECT_EQ(LoadCount(1), 3);
}

TEST_F(CoincidentForces, AreLookedForWithinOneSystem) {
  MakeNode(10, 0.0);
  MakeNode(11, 0.0);
  MakeNode(12, 1.0);
  Force("1|10|0|1.0");
  Force("1|11|3|1.0");
  Force("1|12|0|1.0");
  Force("1|12|0|2.0");
  EXPECT_EQ(Create(),
            Joined({ExpectedField("1", "2", "[0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0], [1.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                    ExpectedForce{"1", ones, none, "0", "n10, n12", "Field#1", "PointForce1"}.Calls(),
                    ExpectedField("2", "3", "[0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                    ExpectedForce{"2", ones, none, "3", "n11", "Field#2", "PointForce2"}.Calls()}));
}

TEST_F(CoincidentForces, InAUniformSetDoNotMatter) {
  MakeNode(10, 5.0);
  MakeNode(11, 5.0);
  Force("1|10|0|1.0");
  Force("1|11|0|1.0");
  EXPECT_EQ(Create(), (ExpectedForce{"1", "1.0, 0.0, 0.0", none, "0", "n10, n11", "null", "PointForce1"}.Calls()));
}

TEST_F(CoincidentForces, LoadsAreForceAndMoment) {
  MakeNode(10, 5.0);
  MakeNode(11, 5.0);
  MakeNode(12, 6.0);
  Force("1|10|0|1.0");
  Force("1|11|0|1.0");
  Force("1|12|0|2.0");
  Force("1|12|0|1.0");
  Moment("1|10|0|0.0|0.0|3.0");
  Moment("1|12|0|0.0|0.0|3.0");
  EXPECT_EQ(Create(), Joined({ExpectedForce{"1", "1.0, 0.0, 0.0", "0.0, 0.0, 3.0", "0", "n10, n12", "", "PointForce1"}.Calls(),
                              ExpectedField("1", "1", "[5.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                              ExpectedForce{"2", ones, none, "0", "n11", "Field#1", "PointForce2"}.Calls()}));
}

TEST_F(CoincidentForces, AMinusZeroIsAZero) {
  MakeNode(10, 5.0);
  MakeNode(11, 5.0);
  MakeNode(12, 6.0);
  Force("1|10|0|1.0");
  ReadForce(Small("FORCE|1|11|0|-1.0|-1.0"));  // 0.0 times -1.0 in the components behind.
  Force("1|12|0|2.0");
  const std::vector<std::string> calls = Create();
  EXPECT_EQ(calls[5], "ForceLoad#1.SetNodes([n10, n11])");
}

TEST_F(CoincidentForces, ARefusedRunIsLostAndTakesNoNumber) {
  host.Refusals().RefuseCall("BoundaryStore.CreateForce", 1);
  MakeNode(10, 5.0);
  MakeNode(11, 5.0);
  MakeNode(12, 6.0);
  Force("1|10|0|1.0");
  Force("1|11|0|1.0");
  Force("1|12|0|2.0");
  EXPECT_EQ(Create(), Joined({{"BoundaryStore.CreateForce() -> 1"},
                              ExpectedField("1", "1", "[6.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0]"),
                              ExpectedForce{"1", ones, none, "0", "n12", "Field#1", "PointForce1"}.Calls()}));
  EXPECT_EQ(LoadCount(1), 1);
}

TEST_F(CoincidentForces, EqualPlacesCoincide) { EXPECT_TRUE(Coincide(1e6, 1e6)); }

TEST_F(CoincidentForces, NeighbouringNumbersDoNotCoincide) { EXPECT_FALSE(Coincide(1.0, 1.0 + 2.3e-16)); }

TEST_F(CoincidentForces, BothZerosCoincide) { EXPECT_TRUE(Coincide(0.0, -0.0)); }

// A distance is a root of squares, and those of differences below 1e-162 vanish.
TEST_F(CoincidentForces, PlacesWithoutAMeasurableDistanceCoincide) { EXPECT_TRUE(Coincide(1e-170, -3e-170)); }

TEST_F(CoincidentForces, PlacesWithATinyDistanceDoNotCoincide) { EXPECT_FALSE(Coincide(0.0, 1e-160)); }

TEST_F(CoincidentForces, TinyPlacesOfDifferentSizeDoNotCoincide) { EXPECT_FALSE(Coincide(0.9e-140, 1.1e-140)); }

}  // namespace
}  // namespace btz
