// Constraints made of SPC and SPCD cards: groups and their order, plain and enforced ones, values in fields, names, displacement systems.
#include "tests/unit/loads/loads_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SpcConstraintTest : public LoadsTest {
 protected:
  SpcConstraintTest() {
    for (std::int32_t id = 1; id <= 9; ++id) {
      MakeNode(id, id, 10.0 * id, 0.5);
    }
  }

  void Create() { CreateSpcConstraints(model, boundary, &run.lists.spc, &run.gridCdTable, host.GetCurveStore()); }
};

TEST_F(SpcConstraintTest, WithoutRecordsNothingHappens) {
  Create();
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SpcConstraintTest, ZeroValuesMakeAPlainConstraint) {
  ReadSpc(Small("SPC|1|5|123|0.0"));
  Create();
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateConstraint(0) -> 0 Constraint#1", "Constraint#1.SetTranslationMask(7)",
                          "Constraint#1.SetRotationMask(0)", "Constraint#1.SetTranslations(1.0, 1.0, 1.0)",
                          "Constraint#1.SetRotations(0.0, 0.0, 0.0)", "Constraint#1.SetNodes([n5])", "Constraint#1.SetNodeBased(1)",
                          "Constraint#1.SetCoordinateSystem(0)", "Constraint#1.SetName(\"Node_Constraint_1\")"));
  EXPECT_THAT(SetItems(1, constraintSet), ElementsAre("Constraint 1"));
  EXPECT_THAT(SetItems(1, loadSet), ElementsAre("no set"));
}

TEST_F(SpcConstraintTest, EqualValuesMakeAnEnforcedConstraintWithoutAField) {
  ReadSpc(Small("SPC|4|5|246|0.5|7|246|0.5"));
  Create();
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateConstraint(1) -> 0 Constraint#1", "Constraint#1.SetTranslationMask(2)",
                          "Constraint#1.SetRotationMask(5)", "Constraint#1.SetTranslations(0.0, 0.5, 0.0)",
                          "Constraint#1.SetRotations(0.5, 0.0, 0.5)", "Constraint#1.SetNodes([n7, n5])", "Constraint#1.SetNodeBased(1)",
                          "Constraint#1.SetCoordinateSystem(0)", "Constraint#1.SetName(\"EnforcedConstraint_4\")"));
  EXPECT_THAT(SetItems(4, loadSet), ElementsAre("Constraint 1"));
  EXPECT_THAT(SetItems(4, constraintSet), ElementsAre("no set"));
}

TEST_F(SpcConstraintTest, DifferentValuesStandInAField) {
  ReadSpc(Small("SPC|4|5|15|0.5"));
  ReadSpc(Small("SPC|4|7|15|1.5"));
  Create();
  EXPECT_THAT(Calls(), ElementsAre("CurveStore.CreateField() -> Field#1", "Field#1.SetQuantity(\"Displacement\")",
                                   "Field#1.SetColumnCount(9)", "Field#1.SetRowCount(2)",
                                   "Field#1.SetRows([[7.0, 70.0, 0.5, 1.5, 0.0, 0.0, 0.0, 1.5, 0.0], "
                                   "[5.0, 50.0, 0.5, 0.5, 0.0, 0.0, 0.0, 0.5, 0.0]])",
                                   "BoundaryStore.CreateConstraint(1) -> 0 Constraint#1", "Constraint#1.SetTranslationMask(1)",
                                   "Constraint#1.SetRotationMask(2)", "Constraint#1.SetTranslations(0.0, 0.0, 0.0)",
                                   "Constraint#1.SetRotations(0.0, 0.0, 0.0)", "Constraint#1.SetNodes([n7, n5])",
                                   "Constraint#1.SetNodeBased(1)", "Constraint#1.SetCoordinateSystem(0)",
                                   "Constraint#1.SetName(\"EnforcedConstraint_4\")", "Constraint#1.SetField(Field#1, 0)"));
  EXPECT_THAT(SetItems(4, loadSet), ElementsAre("Constraint 1"));
}

TEST_F(SpcConstraintTest, AZeroBesideAnotherValueStandsInAFieldToo) {
  ReadSpc(Small("SPC|4|5|1|0.0|7|1|0.5"));
  Create();
  EXPECT_THAT(
      CallsWith("SetRows"),
      ElementsAre("Field#1.SetRows([[7.0, 70.0, 0.5, 0.5, 0.0, 0.0, 0.0, 0.0, 0.0], [5.0, 50.0, 0.5, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0]])"));
  EXPECT_THAT(SetItems(4, loadSet), ElementsAre("Constraint 1"));
}

TEST_F(SpcConstraintTest, ANegativeZeroIsAZero) {
  ReadSpc(Small("SPC|4|5|1|-0.0|7|1|0.0"));
  Create();
  EXPECT_THAT(CallsWith("Set"), testing::Contains("Constraint#1.SetName(\"Node_Constraint_4\")"));
}

// Required: SPCD makes an enforced constraint whatever its value.
TEST_F(SpcConstraintTest, AnSpcdOfZeroMakesAnEnforcedConstraint) {
  ReadSpc(Small("SPCD|1|5|123|0.0"));
  Create();
  EXPECT_THAT(CallsWith("Constraint"),
              ElementsAre("BoundaryStore.CreateConstraint(1) -> 0 Constraint#1", "Constraint#1.SetTranslationMask(7)",
                          "Constraint#1.SetRotationMask(0)", "Constraint#1.SetTranslations(0.0, 0.0, 0.0)",
                          "Constraint#1.SetRotations(0.0, 0.0, 0.0)", "Constraint#1.SetNodes([n5])", "Constraint#1.SetNodeBased(1)",
                          "Constraint#1.SetCoordinateSystem(0)", "Constraint#1.SetName(\"EnforcedConstraint_1\")"));
  EXPECT_THAT(SetItems(1, loadSet), ElementsAre("Constraint 1"));
}

TEST_F(SpcConstraintTest, TheNewestCardOfAGroupSaysWhetherItIsAnSpc) {
  ReadSpc(Small("SPCD|1|5|1|0.0"));
  ReadSpc(Small("SPC|1|6|1|0.0"));
  ReadSpc(Small("SPC|2|5|1|0.0"));
  ReadSpc(Small("SPCD|2|6|1|0.0"));
  Create();
  EXPECT_THAT(CallsWith("Set"),
              testing::IsSupersetOf({"Constraint#1.SetName(\"EnforcedConstraint_2\")", "Constraint#2.SetName(\"Node_Constraint_1\")"}));
}

TEST_F(SpcConstraintTest, ComponentsWithoutADigitHoldNothing) {
  ReadSpc(Small("SPC|1|5|0|0.5"));
  Create();
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateConstraint(0) -> 0 Constraint#1", "Constraint#1.SetTranslationMask(0)",
                          "Constraint#1.SetRotationMask(0)", "Constraint#1.SetTranslations(0.0, 0.0, 0.0)",
                          "Constraint#1.SetRotations(0.0, 0.0, 0.0)", "Constraint#1.SetNodes([n5])", "Constraint#1.SetNodeBased(1)",
                          "Constraint#1.SetCoordinateSystem(0)", "Constraint#1.SetName(\"Node_Constraint_1\")"));
}

// Groups.

TEST_F(SpcConstraintTest, GroupsAndTheirNodesComeNewestFirst) {
  ReadSpc(Small("SPC|1|1|12|0.0|2|12|0.0"));
  ReadSpc(Small("SPC|2|3|12|0.0"));
  ReadSpc(Small("SPC|1|4|3|0.0|5|12|0.0"));
  Create();
  EXPECT_THAT(
      CallsWith("SetN"),
      ElementsAre("Constraint#1.SetNodes([n5, n2, n1])", "Constraint#1.SetNodeBased(1)", "Constraint#1.SetName(\"Node_Constraint_1\")",
                  "Constraint#2.SetNodes([n4])", "Constraint#2.SetNodeBased(1)", "Constraint#2.SetName(\"Node_Constraint_1_1\")",
                  "Constraint#3.SetNodes([n3])", "Constraint#3.SetNodeBased(1)", "Constraint#3.SetName(\"Node_Constraint_2\")"));
  EXPECT_THAT(SetItems(1, constraintSet), ElementsAre("Constraint 1", "Constraint 2"));
  EXPECT_THAT(SetItems(2, constraintSet), ElementsAre("Constraint 3"));
}

TEST_F(SpcConstraintTest, TheOrderOfTheDigitsTellsGroupsApart) {
  ReadSpc(Small("SPC|7|1|132|0.0"));
  ReadSpc(Small("SPC|7|2|123|0.0"));
  Create();
  EXPECT_THAT(CallsWith("SetN"),
              ElementsAre("Constraint#1.SetNodes([n2])", "Constraint#1.SetNodeBased(1)", "Constraint#1.SetName(\"Node_Constraint_7\")",
                          "Constraint#2.SetNodes([n1])", "Constraint#2.SetNodeBased(1)", "Constraint#2.SetName(\"Node_Constraint_7_1\")"));
}

// Required: merged flags can hold more than the number says; the members of a group then have different components, and a member keeps the
// values of the one before for those that it does not name.
TEST_F(SpcConstraintTest, AComponentThatAMemberDoesNotNameHasTheValueBefore) {
  ReadSpc(Small("SPC|1|1|2|0.25"));
  ReadSpc(Small("SPC|1|2|102|0.5"));
  ReadSpc(Small("SPC|1|2|20|0.5"));  // Number 2 with the flags of 1 and 2.
  EXPECT_EQ(SpcRecords()[0], "set 1 node 2 SPC 2 [0.5 0.5 - - - -]");
  Create();
  EXPECT_THAT(CallsWith("Set"), testing::IsSupersetOf({"Field#1.SetRows([[2.0, 20.0, 0.5, 0.5, 0.5, 0.0, 0.0, 0.0, 0.0], "
                                                       "[1.0, 10.0, 0.5, 0.5, 0.25, 0.0, 0.0, 0.0, 0.0]])",
                                                       "Constraint#1.SetTranslationMask(3)"}));
}

TEST_F(SpcConstraintTest, TheNextGroupStartsWithoutValuesAndMasks) {
  ReadSpc(Small("SPC|1|1|2|0.0"));
  ReadSpc(Small("SPC|1|2|16|0.5"));
  Create();
  EXPECT_THAT(
      CallsWith("Constraint#2.Set"),
      ElementsAre("Constraint#2.SetTranslationMask(2)", "Constraint#2.SetRotationMask(0)", "Constraint#2.SetTranslations(0.0, 1.0, 0.0)",
                  "Constraint#2.SetRotations(0.0, 0.0, 0.0)", "Constraint#2.SetNodes([n1])", "Constraint#2.SetNodeBased(1)",
                  "Constraint#2.SetCoordinateSystem(0)", "Constraint#2.SetName(\"Node_Constraint_1\")"));
}

// Nodes that the model does not have.

TEST_F(SpcConstraintTest, AGroupWithoutANodeMakesNothing) {
  ReadSpc(Small("SPC|1|77|1|0.5|78|1|1.5"));
  ReadSpc(Small("SPC|2|5|1|0.0"));
  Create();
  EXPECT_THAT(CallsWith("Create"), ElementsAre("BoundaryStore.CreateConstraint(0) -> 0 Constraint#1"));
  EXPECT_THAT(SetItems(1, loadSet), ElementsAre("no set"));
}

// Required: a missing node keeps its row, but is not counted.
TEST_F(SpcConstraintTest, AMissingNodeKeepsItsRow) {
  ReadSpc(Small("SPC|1|5|1|0.5|77|1|1.5"));
  Create();
  EXPECT_THAT(
      CallsWith("Row"),
      ElementsAre("Field#1.SetRowCount(1)",
                  "Field#1.SetRows([[0.0, 0.0, 0.0, 1.5, 0.0, 0.0, 0.0, 0.0, 0.0], [5.0, 50.0, 0.5, 0.5, 0.0, 0.0, 0.0, 0.0, 0.0]])"));
}

TEST_F(SpcConstraintTest, AMissingNodeIsNotInTheNodeList) {
  ReadSpc(Small("SPC|1|5|1|0.0|77|1|0.0"));
  ReadSpc(Small("SPC|1|6|1|0.0"));
  Create();
  EXPECT_THAT(CallsWith("SetNodes"), ElementsAre("Constraint#1.SetNodes([n6, n5])"));
}

// Names.

TEST_F(SpcConstraintTest, TheSuffixCountsOverAllSets) {
  ReadSpc(Small("SPC|8|1|1|0.0|2|2|0.0"));
  ReadSpc(Small("SPC|7|1|1|0.0|2|2|0.0"));
  ReadSpc(Small("SPC|7|3|3|0.0"));
  Create();
  EXPECT_THAT(CallsWith("SetName"),
              ElementsAre("Constraint#1.SetName(\"Node_Constraint_7\")", "Constraint#2.SetName(\"Node_Constraint_7_1\")",
                          "Constraint#3.SetName(\"Node_Constraint_7_2\")", "Constraint#4.SetName(\"Node_Constraint_8\")",
                          "Constraint#5.SetName(\"Node_Constraint_8_3\")"));
}

TEST_F(SpcConstraintTest, EnforcedNamesAreAFamilyOfTheirOwn) {
  ReadSpc(Small("SPC|7|1|1|0.0|2|2|0.5"));
  ReadSpc(Small("SPC|7|3|3|0.5"));
  Create();
  EXPECT_THAT(CallsWith("SetName"),
              ElementsAre("Constraint#1.SetName(\"EnforcedConstraint_7\")", "Constraint#2.SetName(\"EnforcedConstraint_7_1\")",
                          "Constraint#3.SetName(\"Node_Constraint_7\")"));
}

TEST_F(SpcConstraintTest, ANameThatTheHostHasGetsASuffix) {
  Constraint* made = nullptr;
  boundary->CreateConstraint(&made, 0);
  made->SetName(L"Node_Constraint_7");
  Calls();
  ReadSpc(Small("SPC|7|1|1|0.0"));
  Create();
  EXPECT_THAT(CallsWith("SetName"), ElementsAre("Constraint#2.SetName(\"Node_Constraint_7_1\")"));
}

TEST_F(SpcConstraintTest, ANegativeSetHasANameButIsFiledNowhere) {
  ReadSpc(Small("SPC|-1|1|1|0.0"));
  Create();
  EXPECT_THAT(CallsWith("SetName"), ElementsAre("Constraint#1.SetName(\"Node_Constraint_-1\")"));
  EXPECT_EQ(LoadSetTable.size, 0);
}

// Displacement systems.

TEST_F(SpcConstraintTest, TheFirstNodeWithASystemDecides) {
  const GridCdRecord* first = GiveSystem(6, 30);
  const GridCdRecord* second = GiveSystem(5, 20);
  const GridCdRecord* other = GiveSystem(8, 20);
  ReadSpc(Small("SPC|1|5|1|0.0|6|1|0.0"));
  ReadSpc(Small("SPC|1|7|1|0.0"));
  Create();  // Nodes 7, 6, 5.
  EXPECT_THAT(CallsWith("SetCoordinateSystem"), ElementsAre("Constraint#1.SetCoordinateSystem(30)"));
  EXPECT_EQ(first->used, 1);
  EXPECT_EQ(second->used, 1);
  EXPECT_EQ(other->used, 0);
}

TEST_F(SpcConstraintTest, ARefusedConstraintMarksNoSystem) {
  const GridCdRecord* record = GiveSystem(5, 20);
  host.Refusals().RefuseCall("BoundaryStore.CreateConstraint", 1);
  ReadSpc(Small("SPC|1|5|1|0.0"));
  Create();
  EXPECT_EQ(record->used, 0);
}

// Refusals.

TEST_F(SpcConstraintTest, ARefusedConstraintIsPassedOver) {
  host.Refusals().RefuseCall("BoundaryStore.CreateConstraint", 1);
  ReadSpc(Small("SPC|1|5|1|0.0|6|2|0.0"));
  Create();
  EXPECT_THAT(CallsWith("t"), testing::IsSupersetOf({"BoundaryStore.CreateConstraint(0) -> 1", "Constraint#1.SetNodes([n5])",
                                                     "Constraint#1.SetName(\"Node_Constraint_1\")"}));
  EXPECT_THAT(SetItems(1, constraintSet), ElementsAre("Constraint 1"));
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(SpcConstraintTest, ASuccessWithoutAConstraintIsARefusal) {
  host.Refusals().RefuseCall("BoundaryStore.CreateConstraint", 1, Refusal::EmptySuccess);
  ReadSpc(Small("SPC|1|5|1|0.0|6|2|0.0"));
  Create();
  EXPECT_THAT(CallsWith("SetNodes"), ElementsAre("Constraint#1.SetNodes([n5])"));
}

TEST_F(SpcConstraintTest, ARefusedConstraintUsesUpItsSuffix) {
  host.Refusals().RefuseCall("BoundaryStore.CreateConstraint", 2);
  ReadSpc(Small("SPC|1|5|1|0.0|6|2|0.0"));
  ReadSpc(Small("SPC|1|7|3|0.0"));
  Create();
  EXPECT_THAT(CallsWith("SetName"),
              ElementsAre("Constraint#1.SetName(\"Node_Constraint_1\")", "Constraint#2.SetName(\"Node_Constraint_1_2\")"));
}

TEST_F(SpcConstraintTest, WithoutAFieldTheLastMembersValuesCount) {
  host.Refusals().RefuseCall("CurveStore.CreateField", 1);
  ReadSpc(Small("SPC|4|5|1|0.5"));
  ReadSpc(Small("SPC|4|7|1|1.5"));
  Create();
  EXPECT_THAT(CallsWith("Set"), ElementsAre("Constraint#1.SetTranslationMask(1)", "Constraint#1.SetRotationMask(0)",
                                            "Constraint#1.SetTranslations(0.5, 0.0, 0.0)", "Constraint#1.SetRotations(0.0, 0.0, 0.0)",
                                            "Constraint#1.SetNodes([n7, n5])", "Constraint#1.SetNodeBased(1)",
                                            "Constraint#1.SetCoordinateSystem(0)", "Constraint#1.SetName(\"EnforcedConstraint_4\")"));
}

TEST_F(SpcConstraintTest, WithoutAFieldAConstraintMayTurnPlain) {
  host.Refusals().RefuseCall("CurveStore.CreateField", 1);
  ReadSpc(Small("SPC|4|5|1|0.0"));
  ReadSpc(Small("SPC|4|7|1|1.5"));
  Create();
  EXPECT_THAT(CallsWith("t"),
              testing::IsSupersetOf({"BoundaryStore.CreateConstraint(0) -> 0 Constraint#1", "Constraint#1.SetTranslations(1.0, 0.0, 0.0)",
                                     "Constraint#1.SetName(\"Node_Constraint_4\")"}));
}

}  // namespace
}  // namespace btz::test
