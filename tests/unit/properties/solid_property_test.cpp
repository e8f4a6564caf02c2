// Transfer of solid and gasket properties: calls in order, values, which card counts, materials, refusals.
#include "properties/solid_property.h"

#include "tests/unit/properties/transfer_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The transfer of solids and gaskets with the fixture `Base`.
template <typename Base>
class SolidTransferOn : public Base {
 protected:
  PsolidRecord* AddSolid(std::int32_t propertyId, std::int32_t materialId, const char* name = "") {
    return Base::template AddRecord<PsolidRecord>(&this->run.lists.psolid, propertyId, materialId, name);
  }

  PgaskRecord* AddGasket(std::int32_t propertyId, std::int32_t materialId, const char* name = "") {
    return Base::template AddRecord<PgaskRecord>(&this->run.lists.pgask, propertyId, materialId, name);
  }

  void Transfer() { CreateSolidOrGasketProperty(part, this->Source(), &this->run.lists.psolid, &this->run.lists.pgask, 7); }

  MeshPart* part = this->MakePart(7);
};

using SolidProperty = SolidTransferOn<TransferTest>;
using GasketProperty = SolidTransferOn<TransferTest>;
using SolidPropertyOfNumberedMaterials = SolidTransferOn<NumberedMaterialsTest>;
using SolidPropertyOnNullingHost = SolidTransferOn<NullingHostTest>;

TEST_F(SolidProperty, CallsComeInOrder) {
  MakeLinkedMaterial(5);
  AddSolid(7, 5);
  Transfer();
  EXPECT_THAT(Calls(), ElementsAre("MaterialStore.GetMaterial(5) -> Material#1 1",                         //
                                   "MaterialStore.CreateProperty(7) -> 0 Property#1",                      //
                                   "Property#1.SetDescriptor(<0, Material#1, \"Solid\", \"Isotropic\">)",  //
                                   "Property#1.SetValues({})",                                             //
                                   "Property#1.SetLinkedIndex(0)",                                         //
                                   "Property#1.SetParts([MeshPart#1])",                                    //
                                   "Property#1.SetName(\"Property7\")"));
}

TEST_F(SolidProperty, WithoutACardOfThePartNothingHappens) {
  MakeLinkedMaterial(5);
  AddSolid(8, 5);
  AddGasket(6, 5);
  Transfer();
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SolidProperty, TwoCardsOfOneIdMakeTwoProperties) {
  MakeLinkedMaterial(5);
  AddSolid(7, 5, "Block");
  AddSolid(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("SetName"), ElementsAre("Property#1.SetName(\"Block\")", "Property#2.SetName(\"Property7\")"));
}

TEST_F(SolidProperty, ASolidCardKeepsTheGasketCardOfItsIdAway) {
  MakeLinkedMaterial(5);
  AddSolid(7, 5);
  AddGasket(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("SetDescriptor"), ElementsAre("Property#1.SetDescriptor(<0, Material#1, \"Solid\", \"Isotropic\">)"));
}

TEST_F(SolidProperty, ASolidCardWithoutAMaterialLeavesThePartToTheGasketCard) {
  MakeLinkedMaterial(5);
  AddSolid(7, 0);
  AddGasket(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("SetDescriptor"), ElementsAre("Property#1.SetDescriptor(<0, Material#1, \"Solid\", \"Gasket\">)"));
}

TEST_F(SolidProperty, AnUnknownMaterialIsMadeWithDefaults) {
  AddSolid(7, 5);
  Transfer();
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 13u);
  EXPECT_EQ(calls[0], "MaterialStore.GetMaterial(5) -> null null");
  EXPECT_EQ(calls[1], "MaterialStore.CreateMaterial(5) -> 0 Material#1");
  EXPECT_EQ(calls[6], "MaterialStore.GetMaterial(5) -> Material#1 1");
  EXPECT_EQ(calls[7], "MaterialStore.CreateProperty(7) -> 0 Property#1");
  EXPECT_EQ(calls[8], "Property#1.SetDescriptor(<0, Material#1, \"Solid\", \"Isotropic\">)");
  EXPECT_EQ(Links().size(), 1u);
}

TEST_F(SolidPropertyOnNullingHost, AnUnknownMaterialIsMadeWithDefaults) {
  AddSolid(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("Property#1.SetDescriptor"), ElementsAre("Property#1.SetDescriptor(<0, Material#1, \"Solid\", \"Isotropic\">)"));
}

// A material that the host knew by an id without a link stays at hand for the cards behind it.

TEST_F(SolidProperty, AMaterialWithALinkIsNotLookedUpBehindOneThatOnlyTheHostKnows) {
  MakeHostMaterial(4);
  MakeLinkedMaterial(5);
  AddSolid(7, 4);
  AddSolid(7, 5);
  Transfer();
  const std::vector<std::string> calls = Calls();
  EXPECT_EQ(calls[0], "MaterialStore.GetMaterial(4) -> Material#1 1");
  EXPECT_EQ(calls[7], "MaterialStore.CreateProperty(7) -> 0 Property#2");
  EXPECT_EQ(calls[8], "Property#2.SetDescriptor(<0, Material#1, \"Solid\", \"Isotropic\">)");
}

TEST_F(SolidProperty, TheMaterialAtHandIsForgottenWhenTheHostDoesNotKnowTheNext) {
  MakeHostMaterial(4);
  MakeLinkedMaterial(5);
  AddSolid(7, 4);
  AddSolid(7, 6);  // Made with defaults: Material#3.
  AddSolid(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("Descriptor(<0"),
              ElementsAre(HasSubstr("<0, Material#1,"), HasSubstr("<0, Material#3,"), HasSubstr("<0, Material#2,")));
}

TEST_F(SolidProperty, TheMaterialAtHandSurvivesACardWithoutAMaterial) {
  MakeHostMaterial(4);
  MakeLinkedMaterial(5);
  AddSolid(7, 4);
  AddSolid(7, 0);
  AddSolid(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("Descriptor(<0"), ElementsAre(HasSubstr("<0, Material#1,"), HasSubstr("<0, Material#1,")));
}

TEST_F(SolidProperty, CardsOfOtherPartsDoNotChangeTheMaterialAtHand) {
  MakeHostMaterial(4);
  MakeLinkedMaterial(5);
  PsolidRecord* other = AddSolid(8, 4);
  AddSolid(7, 5);
  Transfer();
  EXPECT_EQ(Calls()[0], "MaterialStore.GetMaterial(5) -> Material#2 2");
  EXPECT_EQ(other->materialId, 4);
}

TEST_F(SolidProperty, TheMaterialAtHandIsForgottenWithThePart) {
  MakeHostMaterial(4);
  MakeLinkedMaterial(5);
  AddSolid(7, 4);
  AddSolid(8, 5);
  Transfer();
  CreateSolidOrGasketProperty(part, Source(), &run.lists.psolid, &run.lists.pgask, 8);
  EXPECT_THAT(CallsWith("Descriptor(<0"), ElementsAre(HasSubstr("<0, Material#1,"), HasSubstr("<0, Material#2,")));
}

TEST_F(SolidPropertyOfNumberedMaterials, TheIdOfTheCardBecomesTheNumberOfTheHost) {
  MakeLinkedMaterial(5);
  PsolidRecord* solid = AddSolid(7, 5);
  Transfer();
  EXPECT_EQ(Calls()[0], "MaterialStore.GetMaterial(105) -> Material#1 1");
  EXPECT_EQ(solid->materialId, 105);
}

TEST_F(SolidPropertyOfNumberedMaterials, TheMaterialsOfAGasketAreTheLinkedOneAndTheMembraneByItsOwnId) {
  MakeLinkedMaterial(5);
  MakeLinkedMaterial(6);
  PgaskRecord* gasket = AddGasket(7, 5);
  gasket->membraneMaterialId = 106;
  Transfer();
  const std::vector<std::string> calls = Calls();
  EXPECT_EQ(calls[0], "MaterialStore.GetMaterial(105) -> Material#1 1");
  EXPECT_EQ(calls[3], "MaterialStore.GetMaterial(106) -> Material#2 2");
  EXPECT_EQ(gasket->materialId, 105);
  EXPECT_EQ(gasket->membraneMaterialId, 106);
}

// Gaskets.

TEST_F(GasketProperty, CallsComeInOrder) {
  MakeLinkedMaterial(5);
  MakeLinkedMaterial(6);
  PgaskRecord* gasket = AddGasket(7, 5);
  gasket->membraneMaterialId = 6;
  gasket->thickness = 1.5;
  gasket->thicknessPresent = 1;
  gasket->gap = 0.25;
  gasket->gapPresent = 1;
  gasket->voidValue = 0.125;
  gasket->voidPresent = 1;
  gasket->leakagePressure = 20.0;
  gasket->leakagePressurePresent = 1;
  Transfer();
  EXPECT_THAT(Calls(), ElementsAre("MaterialStore.GetMaterial(5) -> Material#1 1",                      //
                                   "MaterialStore.CreateProperty(7) -> 0 Property#1",                   //
                                   "Property#1.SetDescriptor(<0, Material#1, \"Solid\", \"Gasket\">)",  //
                                   "MaterialStore.GetMaterial(6) -> Material#2 2",
                                   "Property#1.SetValues({Membrane_Property_Material: Object Material#2 extent=1, "
                                   "Initial_Gasket_Thickness: Real 1.5, Initial_Gap: Real 0.25, Initial_Void: Real 0.125, "
                                   "Leakage_Pressure: Real 20.0, Stabilization_Stiffness: Flag 0.0})",
                                   "Property#1.SetLinkedIndex(0)",       //
                                   "Property#1.SetParts([MeshPart#1])",  //
                                   "Property#1.SetName(\"Property_7\")"));
}

TEST_F(GasketProperty, ValuesThatAreNotPresentAreUnset) {
  MakeLinkedMaterial(5);
  AddGasket(7, 5)->gapPresent = 1;
  Transfer();
  EXPECT_THAT(CallsWith("SetValues"),
              ElementsAre("Property#1.SetValues({Initial_Gasket_Thickness: Unset 0.0, Initial_Gap: Real 0.0, Initial_Void: Unset 0.0, "
                          "Leakage_Pressure: Unset 0.0, Stabilization_Stiffness: Flag 0.0})"));
}

TEST_F(GasketProperty, StabilizationIsAFlag) {
  MakeLinkedMaterial(5);
  AddGasket(7, 5)->stabilizationOn = 1;
  Transfer();
  EXPECT_THAT(CallsWith("SetValues"), ElementsAre(HasSubstr("Stabilization_Stiffness: Flag 1.0})")));
}

TEST_F(GasketProperty, WithoutAMembraneIdNoMembraneIsAskedFor) {
  MakeLinkedMaterial(5);
  AddGasket(7, 5);
  AddGasket(7, 5)->membraneMaterialId = -5;
  Transfer();
  EXPECT_EQ(CallsWith("GetMaterial").size(), 2u);
}

TEST_F(GasketProperty, AMembraneThatTheHostDoesNotKnowIsLeftOutAndNotMade) {
  MakeLinkedMaterial(5);
  AddGasket(7, 5)->membraneMaterialId = 6;
  Transfer();
  const std::vector<std::string> calls = Calls();
  EXPECT_EQ(calls[3], "MaterialStore.GetMaterial(6) -> null null");
  EXPECT_THAT(calls[4], HasSubstr("SetValues({Initial_Gasket_Thickness: "));
  EXPECT_EQ(Links().size(), 1u);
}

TEST_F(GasketProperty, EveryCardOfTheIdMakesAProperty) {
  MakeLinkedMaterial(5);
  AddGasket(7, 5);
  AddGasket(7, 0);
  AddGasket(7, 5, "Seal");
  Transfer();
  EXPECT_THAT(CallsWith("SetName"), ElementsAre("Property#1.SetName(\"Property_7\")", "Property#2.SetName(\"Seal\")"));
}

TEST_F(GasketProperty, AnUnknownMaterialIsMadeWithDefaults) {
  AddGasket(7, 5);
  Transfer();
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 13u);
  EXPECT_EQ(calls[1], "MaterialStore.CreateMaterial(5) -> 0 Material#1");
  EXPECT_EQ(calls[6], "MaterialStore.GetMaterial(5) -> Material#1 1");
  EXPECT_EQ(calls[8], "Property#1.SetDescriptor(<0, Material#1, \"Solid\", \"Gasket\">)");
}

TEST_F(GasketProperty, EveryMaterialIsLookedUp) {
  MakeHostMaterial(4);
  MakeLinkedMaterial(5);
  AddGasket(7, 4);
  AddGasket(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("Descriptor(<0"), ElementsAre(HasSubstr("<0, Material#1,"), HasSubstr("<0, Material#2,")));
}

// Refusals.

TEST_F(SolidProperty, ARefusedPropertyEndsTheTransferOfThePart) {
  MakeLinkedMaterial(5);
  AddSolid(7, 5);
  AddSolid(7, 5);
  AddGasket(7, 5);
  host.Refusals().RefuseCall("MaterialStore.CreateProperty", 1);
  Transfer();
  EXPECT_THAT(Calls(), ElementsAre("MaterialStore.GetMaterial(5) -> Material#1 1", "MaterialStore.CreateProperty(7) -> 1"));
}

TEST_F(GasketProperty, ARefusedPropertyEndsTheTransferOfThePart) {
  MakeLinkedMaterial(5);
  AddGasket(7, 5);
  AddGasket(7, 5);
  AddGasket(7, 5);
  host.Refusals().RefuseCall("MaterialStore.CreateProperty", 2);
  Transfer();
  EXPECT_THAT(CallsWith("CreateProperty"),
              ElementsAre("MaterialStore.CreateProperty(7) -> 0 Property#1", "MaterialStore.CreateProperty(7) -> 1"));
}

TEST_F(SolidProperty, ASuccessWithoutAPropertyCountsAsRefused) {
  MakeLinkedMaterial(5);
  AddSolid(7, 5);
  AddGasket(7, 5);
  host.Refusals().RefuseCall("MaterialStore.CreateProperty", 1, Refusal::EmptySuccess);
  Transfer();
  EXPECT_EQ(CallsWith("CreateProperty").size(), 1u);
}

TEST_F(SolidProperty, ARefusedDefaultMaterialLeavesThePropertyWithoutOne) {
  AddSolid(7, 5);
  host.Refusals().RefuseFrom("MaterialStore.CreateMaterial", 1);
  Transfer();
  const std::vector<std::string> calls = Calls();
  EXPECT_EQ(calls[1], "MaterialStore.CreateMaterial(5) -> 1");
  EXPECT_EQ(calls[2], "MaterialStore.GetMaterial(5) -> null null");
  EXPECT_EQ(calls[4], "Property#1.SetDescriptor(<0, null, \"Solid\", \"Isotropic\">)");
  EXPECT_THAT(Links(), IsEmpty());
}

TEST_F(SolidProperty, ALinkedMaterialThatTheHostDoesNotGiveLeavesThePropertyWithoutOne) {
  MakeLinkedMaterial(5);
  AddSolid(7, 5);
  AddSolid(7, 5);
  host.Refusals().RefuseCall("MaterialStore.GetMaterial", 2);
  Transfer();
  EXPECT_THAT(CallsWith("Descriptor(<0"), ElementsAre(HasSubstr("<0, Material#1,"), HasSubstr("<0, null,")));
}

}  // namespace
}  // namespace btz::test
