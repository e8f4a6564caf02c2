// Transfer of shell properties: calls in order, values, materials, thickness, refusals.
#include "properties/shell_property.h"

#include "tests/unit/properties/transfer_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The transfer of shells with the fixture `Base`.
template <typename Base>
class ShellTransferOn : public Base {
 protected:
  PshellRecord* AddShell(std::int32_t propertyId, std::int32_t materialId, const char* name = "") {
    return Base::template AddRecord<PshellRecord>(&this->run.lists.pshell, propertyId, materialId, name);
  }

  void Transfer(std::int32_t precision = 0, bool isReduced = false) {
    CreateShellProperty(part, this->Source(), &this->run.lists.pshell, 7, precision, isReduced);
  }

  MeshPart* part = this->MakePart(7);
};

class ShellProperty : public ShellTransferOn<TransferTest> {
 protected:
  /// The thickness as the host gets it, and the name that the part gets from it; "" when it gets none.
  std::vector<std::string> ThicknessAndName(double thickness, std::int32_t precision) {
    IndexedListClear(&run.lists.pshell);
    PshellRecord* record = AddShell(7, 5);
    record->thickness = thickness;
    Calls();
    Transfer(precision);
    ReleaseMemory(record);
    IndexedListClear(&run.lists.pshell);
    std::vector<std::string> found{"", ""};
    for (const std::string& call : Calls()) {
      const std::string_view value = "{Thickness: ";
      const std::string_view name = "MeshPart#1.SetName(";
      if (const std::size_t at = call.find(value); at != std::string::npos) {
        found[0] = call.substr(at + value.size(), call.find(',') - at - value.size());
      } else if (call.starts_with(name)) {
        found[1] = call.substr(name.size(), call.size() - name.size() - 1);
      }
    }
    return found;
  }
};

using ShellPropertyOfNumberedMaterials = ShellTransferOn<NumberedMaterialsTest>;
using ShellPropertyOnNullingHost = ShellTransferOn<NullingHostTest>;

TEST_F(ShellProperty, CallsComeInOrder) {
  MakeLinkedMaterial(5);
  MakeLinkedMaterial(6);
  PshellRecord* record = AddShell(7, 5);
  record->thickness = 1.5;
  record->bendingMaterialId = 6;
  record->bendingRatio = 1.25;
  record->shearMaterialId = 5;
  record->shearRatio = 0.75;
  record->nonStructuralMass = 0.25;
  Transfer();
  EXPECT_THAT(Calls(), ElementsAre("MaterialStore.GetMaterial(5) -> Material#1 1",                         //
                                   "MaterialStore.CreateProperty(7) -> 0 Property#1",                      //
                                   "Property#1.SetDescriptor(<0, Material#1, \"Shell\", \"Isotropic\">)",  //
                                   "MaterialStore.GetMaterial(6) -> Material#2 2",                         //
                                   "MaterialStore.GetMaterial(5) -> Material#1 1",
                                   "Property#1.SetValues({Thickness: Real 1.5, Nastran_Element_Type: Enum 0, "
                                   "Material_Bending: Object Material#2 extent=1, Bending_MI_Ratio: Real 1.25, "
                                   "Material_TS: Object Material#1 extent=1, TS_Ratio: Real 0.75, NSM: Real 0.25})",
                                   "Property#1.SetLinkedIndex(1)",       //
                                   "Property#1.SetParts([MeshPart#1])",  //
                                   "Property#1.SetName(\"Property7\")"));
}

TEST_F(ShellProperty, ThePartIsNamedByItsThicknessBeforeTheValuesAreHandedOver) {
  MakeLinkedMaterial(5);
  AddShell(7, 5)->thickness = 0.75;
  Transfer(1);
  EXPECT_THAT(Calls(), ElementsAre(HasSubstr("GetMaterial(5)"), HasSubstr("CreateProperty"), HasSubstr("SetDescriptor"),
                                   "MaterialStore.GetMaterial(0) -> null null", "MaterialStore.GetMaterial(0) -> null null",
                                   "MeshPart#1.SetName(\"T_0.8\")", "MeshPart#1.SetNamed(1)",
                                   "Property#1.SetValues({Thickness: Real 0.8 text=\"0.8\", Nastran_Element_Type: Enum 0, "
                                   "Material_Bending: Object null, Bending_MI_Ratio: Real 0.0, Material_TS: Object null, "
                                   "TS_Ratio: Real 0.0, NSM: Real 0.0})",
                                   "Property#1.SetLinkedIndex(0)", HasSubstr("SetParts"), HasSubstr("SetName")));
}

TEST_F(ShellProperty, OnlyCardsOfThePartCount) {
  MakeLinkedMaterial(5);
  AddShell(8, 5);
  AddShell(6, 0);
  Transfer();
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(ShellProperty, TwoCardsOfOneIdMakeTwoProperties) {
  MakeLinkedMaterial(5);
  AddShell(7, 5, "Outer");
  AddShell(8, 5, "Other");
  AddShell(7, 5, "Inner");
  Transfer();
  EXPECT_THAT(CallsWith("SetName"), ElementsAre("Property#1.SetName(\"Outer\")", "Property#2.SetName(\"Inner\")"));
}

TEST_F(ShellProperty, ReducedElementsOfThePartSetTheElementType) {
  MakeLinkedMaterial(5);
  AddShell(7, 5);
  Transfer(0, true);
  EXPECT_THAT(CallsWith("SetValues"), ElementsAre(HasSubstr("Nastran_Element_Type: Enum 1,")));
}

// Thickness.

TEST_F(ShellProperty, BlankThicknessIsUnset) {
  MakeLinkedMaterial(5);
  AddShell(7, 5)->thicknessBlank = 1;
  Transfer();
  EXPECT_THAT(Calls(), testing::Contains(HasSubstr("{Thickness: Unset 0.0, ")));
}

TEST_F(ShellProperty, ABlankThicknessNamesThePartAllTheSame) {
  MakeLinkedMaterial(5);
  AddShell(7, 5)->thicknessBlank = 1;
  Transfer(2);
  const std::vector<std::string> calls = Calls();
  EXPECT_THAT(calls, testing::Contains("MeshPart#1.SetName(\"T_0.00\")"));
  EXPECT_THAT(calls, testing::Contains("MeshPart#1.SetNamed(1)"));
  EXPECT_THAT(calls, testing::Contains(HasSubstr("{Thickness: Unset 0.0 text=\"0.00\", ")));
}

TEST_F(ShellProperty, WithoutAPrecisionAboveZeroTheThicknessStaysAndThePartKeepsItsName) {
  MakeLinkedMaterial(5);
  EXPECT_THAT(ThicknessAndName(1.005, 0), ElementsAre("Real 1.005", ""));
  EXPECT_THAT(ThicknessAndName(1.005, -1), ElementsAre("Real 1.005", ""));
}

TEST_F(ShellProperty, ThePrecisionIsTheNumberOfDecimals) {
  MakeLinkedMaterial(5);
  EXPECT_THAT(ThicknessAndName(1.23456789, 1), ElementsAre("Real 1.2 text=\"1.2\"", "\"T_1.2\""));
  EXPECT_THAT(ThicknessAndName(1.23456789, 2), ElementsAre("Real 1.23 text=\"1.23\"", "\"T_1.23\""));
  EXPECT_THAT(ThicknessAndName(1.23456789, 3), ElementsAre("Real 1.235 text=\"1.235\"", "\"T_1.235\""));
  EXPECT_THAT(ThicknessAndName(1.23456789, 4), ElementsAre("Real 1.2346 text=\"1.2346\"", "\"T_1.2346\""));
  EXPECT_THAT(ThicknessAndName(1.23456789, 5), ElementsAre("Real 1.23457 text=\"1.23457\"", "\"T_1.23457\""));
  EXPECT_THAT(ThicknessAndName(1.23456789, 6), ElementsAre("Real 1.234568 text=\"1.234568\"", "\"T_1.234568\""));
}

TEST_F(ShellProperty, APrecisionAboveSixLeavesNoThickness) {
  MakeLinkedMaterial(5);
  EXPECT_THAT(ThicknessAndName(1.5, 7), ElementsAre("Real 0.0 text=\"\"", "\"T_\""));
  EXPECT_THAT(ThicknessAndName(1.5, 2147483647), ElementsAre("Real 0.0 text=\"\"", "\"T_\""));
}

TEST_F(ShellProperty, RoundingGoesByTheBinaryValueAndTiesToTheEvenDigit) {
  MakeLinkedMaterial(5);
  // 1.005 lies just below itself in binary.
  EXPECT_THAT(ThicknessAndName(1.005, 2), ElementsAre("Real 1.0 text=\"1.00\"", "\"T_1.00\""));
  EXPECT_THAT(ThicknessAndName(0.125, 2), ElementsAre("Real 0.12 text=\"0.12\"", "\"T_0.12\""));
  EXPECT_THAT(ThicknessAndName(0.375, 2), ElementsAre("Real 0.38 text=\"0.38\"", "\"T_0.38\""));
  EXPECT_THAT(ThicknessAndName(0.25, 1), ElementsAre("Real 0.2 text=\"0.2\"", "\"T_0.2\""));
  EXPECT_THAT(ThicknessAndName(0.0625, 3), ElementsAre("Real 0.062 text=\"0.062\"", "\"T_0.062\""));
}

TEST_F(ShellProperty, NegativeThicknessKeepsItsSignEvenWhenItRoundsToZero) {
  MakeLinkedMaterial(5);
  EXPECT_THAT(ThicknessAndName(-2.5, 1), ElementsAre("Real -2.5 text=\"-2.5\"", "\"T_-2.5\""));
  EXPECT_THAT(ThicknessAndName(-0.01, 1), ElementsAre("Real -0.0 text=\"-0.0\"", "\"T_-0.0\""));
}

TEST_F(ShellProperty, AnEnormousThicknessIsRoundedFromItsWholeTextAndOnlyTheNameIsCut) {
  MakeLinkedMaterial(5);
  const std::vector<std::string> found = ThicknessAndName(1e300, 2);
  EXPECT_THAT(found[0], testing::StartsWith("Real 1e+300 text=\"1000000000000000052"));
  // 253 of the 301 digits have room behind "T_"; the quotes count too.
  EXPECT_EQ(found[1].size(), 257u);
  EXPECT_THAT(found[1], testing::StartsWith("\"T_1000000000000000052"));
}

// Materials.

TEST_F(ShellProperty, WithoutAMaterialThereIsNoProperty) {
  AddShell(7, 0);
  AddShell(7, -3);
  Transfer(2);
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(ShellProperty, ACardWithoutAMaterialDoesNotEndTheTransfer) {
  MakeLinkedMaterial(5);
  AddShell(7, 0, "None");
  AddShell(7, 5, "Steel");
  Transfer();
  EXPECT_THAT(CallsWith("SetName"), ElementsAre("Property#1.SetName(\"Steel\")"));
}

TEST_F(ShellProperty, ABlankMaterialIdWithALinkHasItsMaterial) {
  // The host numbers a material that was made without an id; its link stands under 0.
  Material* material = nullptr;
  host.GetMaterialStore()->CreateMaterial(&material, 0);
  auto* link = static_cast<MaterialLink*>(AllocateZeroed(sizeof(MaterialLink)));
  *link = {0, 1, material};
  IndexedListAppend(&run.lists.materials, 0, link);
  PshellRecord* record = AddShell(7, 0);
  Calls();
  Transfer();
  EXPECT_THAT(CallsWith("SetDescriptor"), ElementsAre("Property#1.SetDescriptor(<0, Material#1, \"Shell\", \"Isotropic\">)"));
  EXPECT_EQ(record->materialId, 1);
}

TEST_F(ShellProperty, AnUnknownMaterialIsMadeWithDefaultsAndLinkedForLaterProperties) {
  AddShell(7, 5);
  AddShell(7, 5);
  Transfer();
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 24u);
  EXPECT_EQ(calls[0], "MaterialStore.GetMaterial(5) -> null null");
  EXPECT_EQ(calls[1], "MaterialStore.CreateMaterial(5) -> 0 Material#1");
  EXPECT_EQ(calls[2], "Material#1.SetDescriptor(<\"Material_5\", \"Isotropic\", \"Elastic\", \"Metal\", \"\">)");
  EXPECT_THAT(calls[3], testing::StartsWith("Material#1.SetValues({Youngs_modulus: Real 208000.0, "));
  EXPECT_EQ(calls[4], "Material#1.SetUsageFlag(0)");
  EXPECT_EQ(calls[5], "Material#1.GetNumber() -> 5");
  EXPECT_EQ(calls[6], "MaterialStore.GetMaterial(5) -> Material#1 1");
  EXPECT_EQ(calls[7], "MaterialStore.CreateProperty(7) -> 0 Property#1");
  // The second property finds the link: one look-up, nothing made.
  EXPECT_EQ(calls[15], "MaterialStore.GetMaterial(5) -> Material#1 1");
  EXPECT_EQ(calls[16], "MaterialStore.CreateProperty(7) -> 0 Property#2");
  ASSERT_EQ(Links().size(), 1u);
  EXPECT_EQ(Links()[0]->materialId, 5);
}

TEST_F(ShellProperty, AMaterialThatOnlyTheHostKnowsIsTaken) {
  MakeHostMaterial(5);
  PshellRecord* record = AddShell(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("Material(5)"), ElementsAre("MaterialStore.GetMaterial(5) -> Material#1 1"));
  EXPECT_EQ(record->materialId, 5);
  EXPECT_THAT(Links(), IsEmpty());
}

TEST_F(ShellPropertyOfNumberedMaterials, TheIdOfTheCardBecomesTheNumberOfTheHost) {
  MakeLinkedMaterial(5);
  PshellRecord* record = AddShell(7, 5);
  Transfer();
  EXPECT_EQ(Calls()[0], "MaterialStore.GetMaterial(105) -> Material#1 1");
  EXPECT_EQ(record->materialId, 105);
}

TEST_F(ShellPropertyOfNumberedMaterials, ASecondTransferTakesTheNumberForAnId) {
  MakeLinkedMaterial(5);
  AddShell(7, 5);
  Transfer();
  Calls();
  Transfer();
  EXPECT_EQ(Calls()[0], "MaterialStore.GetMaterial(105) -> Material#1 1");
  MakeLinkedMaterial(105);
  Transfer();
  EXPECT_EQ(Calls()[0], "MaterialStore.GetMaterial(205) -> Material#2 2");
}

TEST_F(ShellPropertyOfNumberedMaterials, ADefaultMaterialUnderAnotherNumberIsMissedByTheFirstPropertyAndFoundByTheNext) {
  AddShell(7, 5);
  AddShell(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("escriptor(<0"), ElementsAre("Property#1.SetDescriptor(<0, null, \"Shell\", \"Isotropic\">)",
                                                     "Property#2.SetDescriptor(<0, Material#1, \"Shell\", \"Isotropic\">)"));
}

TEST_F(ShellPropertyOfNumberedMaterials, TheFurtherMaterialsAreLookedUpByTheIdsOfTheCard) {
  MakeLinkedMaterial(5);
  MakeLinkedMaterial(6);
  PshellRecord* record = AddShell(7, 5);
  record->bendingMaterialId = 6;
  record->shearMaterialId = 106;
  Transfer();
  const std::vector<std::string> calls = Calls();
  EXPECT_EQ(calls[3], "MaterialStore.GetMaterial(6) -> null null");
  EXPECT_EQ(calls[4], "MaterialStore.GetMaterial(106) -> Material#2 2");
  EXPECT_THAT(calls[5], HasSubstr("Material_Bending: Object null, "));
  EXPECT_THAT(calls[5], HasSubstr("Material_TS: Object Material#2 extent=1, "));
  EXPECT_EQ(record->bendingMaterialId, 6);
  EXPECT_EQ(record->shearMaterialId, 106);
}

TEST_F(ShellProperty, UnknownFurtherMaterialsAreNotMade) {
  MakeLinkedMaterial(5);
  PshellRecord* record = AddShell(7, 5);
  record->bendingMaterialId = 6;
  record->shearMaterialId = -1;
  Transfer();
  EXPECT_THAT(CallsWith("GetMaterial"),
              ElementsAre("MaterialStore.GetMaterial(5) -> Material#1 1", "MaterialStore.GetMaterial(6) -> null null",
                          "MaterialStore.GetMaterial(-1) -> null null"));
  EXPECT_EQ(Links().size(), 1u);
}

// The linked index is that of the last further material that was found, kept from card to card.

TEST_F(ShellProperty, TheIndexOfTheFirstMaterialIsNotForwarded) {
  MakeLinkedMaterial(4);
  MakeLinkedMaterial(5);
  AddShell(7, 5);
  Transfer();
  EXPECT_THAT(CallsWith("SetLinkedIndex"), ElementsAre("Property#1.SetLinkedIndex(0)"));
}

TEST_F(ShellProperty, AnUnknownShearMaterialLeavesTheIndexOfTheBendingMaterial) {
  MakeLinkedMaterial(5);
  MakeLinkedMaterial(6);
  PshellRecord* record = AddShell(7, 5);
  record->bendingMaterialId = 6;
  record->shearMaterialId = 9;
  Transfer();
  EXPECT_THAT(CallsWith("SetLinkedIndex"), ElementsAre("Property#1.SetLinkedIndex(2)"));
}

TEST_F(ShellProperty, TheIndexStaysOverTheCardsOfAPartAndStartsAnewWithTheNextPart) {
  MakeLinkedMaterial(5);
  MakeLinkedMaterial(6);
  AddShell(7, 5);
  AddShell(7, 5)->bendingMaterialId = 6;
  AddShell(7, 5);
  AddShell(7, 5)->shearMaterialId = 5;
  AddShell(8, 5);
  Transfer();
  CreateShellProperty(part, Source(), &run.lists.pshell, 8, 0, false);
  EXPECT_THAT(CallsWith("SetLinkedIndex"),
              ElementsAre("Property#1.SetLinkedIndex(0)", "Property#2.SetLinkedIndex(2)", "Property#3.SetLinkedIndex(2)",
                          "Property#4.SetLinkedIndex(1)", "Property#5.SetLinkedIndex(0)"));
}

// Refusals.

TEST_F(ShellProperty, ARefusedPropertyEndsTheTransferOfThePart) {
  MakeLinkedMaterial(5);
  AddShell(7, 5);
  AddShell(7, 5);
  AddShell(7, 5);
  host.Refusals().RefuseCall("MaterialStore.CreateProperty", 2);
  Transfer(2);
  EXPECT_THAT(CallsWith("CreateProperty"),
              ElementsAre("MaterialStore.CreateProperty(7) -> 0 Property#1", "MaterialStore.CreateProperty(7) -> 1"));
}

TEST_F(ShellProperty, NothingIsAskedOrNamedBehindARefusedProperty) {
  MakeLinkedMaterial(5);
  AddShell(7, 5)->bendingMaterialId = 5;
  host.Refusals().RefuseFrom("MaterialStore.CreateProperty", 1);
  Transfer(2);
  EXPECT_THAT(Calls(), ElementsAre("MaterialStore.GetMaterial(5) -> Material#1 1", "MaterialStore.CreateProperty(7) -> 1"));
}

TEST_F(ShellProperty, ASuccessWithoutAPropertyCountsAsRefused) {
  MakeLinkedMaterial(5);
  AddShell(7, 5);
  AddShell(7, 5);
  host.Refusals().RefuseCall("MaterialStore.CreateProperty", 1, Refusal::EmptySuccess);
  Transfer();
  EXPECT_EQ(CallsWith("CreateProperty").size(), 1u);
}

TEST_F(ShellProperty, ARefusedDefaultMaterialLeavesThePropertyWithoutOne) {
  AddShell(7, 5);
  host.Refusals().RefuseFrom("MaterialStore.CreateMaterial", 1);
  Transfer();
  const std::vector<std::string> calls = Calls();
  EXPECT_EQ(calls[0], "MaterialStore.GetMaterial(5) -> null null");
  EXPECT_EQ(calls[1], "MaterialStore.CreateMaterial(5) -> 1");
  EXPECT_EQ(calls[2], "MaterialStore.GetMaterial(5) -> null null");
  EXPECT_EQ(calls[3], "MaterialStore.CreateProperty(7) -> 0 Property#1");
  EXPECT_EQ(calls[4], "Property#1.SetDescriptor(<0, null, \"Shell\", \"Isotropic\">)");
  EXPECT_THAT(Links(), IsEmpty());
}

TEST_F(ShellProperty, ALinkedMaterialThatTheHostDoesNotGiveIsNotMadeAgain) {
  MakeLinkedMaterial(5);
  AddShell(7, 5);
  host.Refusals().RefuseFrom("MaterialStore.GetMaterial", 1);
  Transfer();
  const std::vector<std::string> calls = Calls();
  EXPECT_EQ(calls[0], "MaterialStore.GetMaterial(5) -> null null");
  EXPECT_EQ(calls[1], "MaterialStore.CreateProperty(7) -> 0 Property#1");
  EXPECT_EQ(calls[2], "Property#1.SetDescriptor(<0, null, \"Shell\", \"Isotropic\">)");
}

TEST_F(ShellPropertyOnNullingHost, TheMaterialsAreTheSame) {
  AddShell(7, 5)->bendingMaterialId = 6;
  Transfer();
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 15u);
  EXPECT_EQ(calls[8], "Property#1.SetDescriptor(<0, Material#1, \"Shell\", \"Isotropic\">)");
  EXPECT_THAT(calls[11], HasSubstr("Material_Bending: Object null, "));
}

}  // namespace
}  // namespace btz::test
