// Constraints made of SPC1 cards: one for each record, named by number, with the displacement system of their nodes.
#include "tests/unit/loads/loads_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Spc1ConstraintTest : public LoadsTest {
 protected:
  Spc1ConstraintTest() { MakeNodes(9); }

  void Create() { CreateSpc1Constraints(boundary, &run.lists.spc1, &run.gridCdTable); }
};

TEST_F(Spc1ConstraintTest, WithoutRecordsNothingHappens) {
  Create();
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(Spc1ConstraintTest, ARecordMakesAPlainConstraint) {
  ReadSpc1(Small("SPC1|2|1235|7|THRU|9"));
  Create();
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateConstraint(0) -> 0 Constraint#1", "Constraint#1.SetTranslationMask(7)",
                          "Constraint#1.SetRotationMask(2)", "Constraint#1.SetTranslations(1.0, 1.0, 1.0)",
                          "Constraint#1.SetRotations(0.0, 1.0, 0.0)", "Constraint#1.SetNodes([n7, n8, n9])", "Constraint#1.SetNodeBased(1)",
                          "Constraint#1.SetCoordinateSystem(0)", "Constraint#1.SetName(\"Node Constraint1\")"));
  EXPECT_THAT(SetItems(2, constraintSet), ElementsAre("Constraint 1"));
}

TEST_F(Spc1ConstraintTest, RecordsComeNewestFirstAndCountTheirNames) {
  ReadSpc1(Small("SPC1|2|1|7"));
  ReadSpc1(Small("SPC1|3|2|8"));
  ReadSpc1(Small("SPC1|2|1|9"));
  ReadSpc1(Small("SPC1|2|4|6"));
  Create();
  EXPECT_THAT(CallsWith("SetN"),
              ElementsAre("Constraint#1.SetNodes([n6])", "Constraint#1.SetNodeBased(1)", "Constraint#1.SetName(\"Node Constraint1\")",
                          "Constraint#2.SetNodes([n8])", "Constraint#2.SetNodeBased(1)", "Constraint#2.SetName(\"Node Constraint2\")",
                          "Constraint#3.SetNodes([n7, n9])", "Constraint#3.SetNodeBased(1)", "Constraint#3.SetName(\"Node Constraint3\")"));
  EXPECT_THAT(SetItems(2, constraintSet), ElementsAre("Constraint 1", "Constraint 3"));
  EXPECT_THAT(SetItems(3, constraintSet), ElementsAre("Constraint 2"));
}

TEST_F(Spc1ConstraintTest, ANameThatTheHostHasIsUsedAgain) {
  Constraint* made = nullptr;
  boundary->CreateConstraint(&made, 0);
  made->SetName(L"Node Constraint1");
  Calls();
  ReadSpc1(Small("SPC1|2|1|7"));
  Create();
  EXPECT_THAT(CallsWith("SetName"), ElementsAre("Constraint#2.SetName(\"Node Constraint1\")"));
}

TEST_F(Spc1ConstraintTest, AHoleAppearsAsTheNodeBeforeIt) {
  ReadSpc1(Small("SPC1|2|1|8|THRU|11"));
  Create();
  EXPECT_THAT(CallsWith("SetNodes"), ElementsAre("Constraint#1.SetNodes([n8, n9, n9, n9])"));
}

TEST_F(Spc1ConstraintTest, AMissingNodeStillMakesAConstraint) {
  ReadSpc1(Small("SPC1|2|1|77"));
  Create();
  EXPECT_THAT(CallsWith("SetN"),
              ElementsAre("Constraint#1.SetNodes([])", "Constraint#1.SetNodeBased(1)", "Constraint#1.SetName(\"Node Constraint1\")"));
  EXPECT_THAT(SetItems(2, constraintSet), ElementsAre("Constraint 1"));
}

// Required: the host reads a list to its first null.
TEST_F(Spc1ConstraintTest, NodesBehindAMissingOneAreNotReached) {
  ReadSpc1(Small("SPC1|2|1|7"));
  ReadSpc1(Small("SPC1|2|1|77"));
  ReadSpc1(Small("SPC1|2|1|8"));
  Create();
  EXPECT_THAT(CallsWith("SetNodes"), ElementsAre("Constraint#1.SetNodes([n7])"));
}

TEST_F(Spc1ConstraintTest, TheFirstNodeWithASystemDecides) {
  const GridCdRecord* first = GiveSystem(8, 30);
  const GridCdRecord* second = GiveSystem(9, 20);
  const GridCdRecord* other = GiveSystem(6, 30);
  ReadSpc1(Small("SPC1|2|1|7|THRU|9"));
  Create();
  EXPECT_THAT(CallsWith("SetCoordinateSystem"), ElementsAre("Constraint#1.SetCoordinateSystem(30)"));
  EXPECT_EQ(first->used, 1);
  EXPECT_EQ(second->used, 1);
  EXPECT_EQ(other->used, 0);
}

// Required: without a node the system of the constraint before stays; a node without a system brings it back to 0.
TEST_F(Spc1ConstraintTest, WithoutANodeTheSystemBeforeStays) {
  GiveSystem(8, 30);
  ReadSpc1(Small("SPC1|5|1|7"));
  ReadSpc1(Small("SPC1|4|1|77"));
  ReadSpc1(Small("SPC1|3|1|9|THRU|8"));
  ReadSpc1(Small("SPC1|2|1|8"));
  ReadSpc1(Small("SPC1|1|1|78"));
  Create();
  EXPECT_THAT(CallsWith("SetCoordinateSystem"), ElementsAre("Constraint#1.SetCoordinateSystem(0)", "Constraint#2.SetCoordinateSystem(30)",
                                                            "Constraint#3.SetCoordinateSystem(30)", "Constraint#4.SetCoordinateSystem(30)",
                                                            "Constraint#5.SetCoordinateSystem(0)"));
}

// Required: a refused constraint ends the stage.
TEST_F(Spc1ConstraintTest, ARefusalEndsTheStage) {
  const GridCdRecord* record = GiveSystem(8, 30);
  const GridCdRecord* behind = GiveSystem(7, 30);
  host.Refusals().RefuseCall("BoundaryStore.CreateConstraint", 2);
  ReadSpc1(Small("SPC1|2|1|7"));
  ReadSpc1(Small("SPC1|2|2|8"));
  ReadSpc1(Small("SPC1|2|3|9"));
  Create();
  EXPECT_THAT(CallsWith("Create"),
              ElementsAre("BoundaryStore.CreateConstraint(0) -> 0 Constraint#1", "BoundaryStore.CreateConstraint(0) -> 1"));
  EXPECT_THAT(SetItems(2, constraintSet), ElementsAre("Constraint 1"));
  EXPECT_EQ(record->used, 1);  // The system is taken before the constraint is asked for.
  EXPECT_EQ(behind->used, 0);
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(Spc1ConstraintTest, ASuccessWithoutAConstraintIsARefusal) {
  host.Refusals().RefuseCall("BoundaryStore.CreateConstraint", 1, Refusal::EmptySuccess);
  ReadSpc1(Small("SPC1|2|1|7"));
  ReadSpc1(Small("SPC1|2|2|8"));
  Create();
  EXPECT_THAT(CallsWith("Set"), IsEmpty());
}

TEST_F(Spc1ConstraintTest, ANegativeSetIsFiledNowhere) {
  ReadSpc1(Small("SPC1|-2|1|7"));
  Create();
  EXPECT_THAT(CallsWith("SetName"), ElementsAre("Constraint#1.SetName(\"Node Constraint1\")"));
  EXPECT_EQ(LoadSetTable.size, 0);
}

}  // namespace
}  // namespace btz::test
