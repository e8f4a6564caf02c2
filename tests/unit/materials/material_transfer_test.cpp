// Materials: the card, what the host gets, default materials, links, refusals, names from comments.
#include "materials/material_transfer.h"

#include <gmock/gmock.h>

#include <cstring>

#include "deck/name_comments.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The fields of a card and one blank behind the last, so that this does not meet the next line.
std::string PaddedCard8(const std::vector<std::string>& fields) {
  std::string card = Card8(fields);
  card.resize(8 * fields.size(), ' ');
  return card;
}

class MaterialTest : public MeshTest {
 protected:
  explicit MaterialTest(const HostOptions& options = HostOptions()) : MeshTest(options) { host.SetTrace(&everyCall); }

  /// Reads the card at the start of the text; gives what the cursor stands on behind it.
  std::string Read(const std::string& text, const char* name = "") {
    CardText card(text);
    ReadMat1Card(&card.cursor, store, &run.lists.materials, name);
    return card.Rest();
  }

  /// The values of the one material that the card makes, as the host gets them.
  std::string ValuesOf(const std::string& text) {
    Read(text);
    const std::string_view head = ".SetValues(";
    for (const std::string& call : Calls()) {
      if (const std::size_t at = call.find(head); at != std::string::npos) {
        return call.substr(at + head.size(), call.size() - at - head.size() - 1);
      }
    }
    return "(no call)";
  }

  std::vector<const MaterialLink*> Links() const {
    std::vector<const MaterialLink*> links;
    WalkIndexedList<MaterialLink>(&run.lists.materials, [&](const MaterialLink* link) { links.push_back(link); });
    return links;
  }

  std::wstring NameInHost(std::int32_t number) {
    Material* material = GetHostMaterial(store, number);
    MaterialDescriptor* descriptor = nullptr;
    material->GetDescriptor(&descriptor);
    return descriptor->name;
  }

  MaterialStore* store = host.GetMaterialStore();
  TraceSink everyCall{&trace, TraceSink::Coverage::All};
};

class NumberedMaterialTest : public MaterialTest {
 protected:
  NumberedMaterialTest() : MaterialTest(Options()) {}

 private:
  static HostOptions Options() {
    HostOptions options;
    options.materialNumberOffset = 100;
    return options;
  }
};

// The card.

TEST_F(MaterialTest, CallsComeInOrder) {
  Read(PaddedCard8({"MAT1", "5", "210000.", "80000.", "0.3", "7.85-9", "1.2-5", "20.", "0.01"}) + "\n" +
       PaddedCard8({"+", "235.", "240.", "130.", "9"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MaterialStore.CreateMaterial(5) -> 0 Material#1",
                                   "Material#1.SetDescriptor(<\"Material_5\", \"Isotropic\", \"Elastic\", \"Metal\", \"\">)",
                                   HasSubstr("Material#1.SetValues("), "Material#1.SetUsageFlag(0)", "Material#1.GetNumber() -> 5"));
}

TEST_F(MaterialTest, AllValuesOfASmallFieldCard) {
  EXPECT_EQ(ValuesOf(PaddedCard8({"MAT1", "5", "210000.", "80000.", "0.25", "0.5", "0.125", "20.", "0.75"}) + "\n" +
                     PaddedCard8({"+", "235.", "240.", "130.", "9"}) + "\n"),
            "{Youngs_modulus: Real 210000.0, Shear_modulus: Real 80000.0, Poissons_ratio: Real 0.25, Density: Real 0.5, "
            "Thermal_Expansion: Real 0.125, Reference_Temperature: Real 20.0, Damping_coefficient: Real 0.75, "
            "Stress_Tension: Real 235.0, Stress_Compression: Real 240.0, Stress_Shear: Real 130.0, Mat_cord_Sys: Integer 9.0}");
}

TEST_F(MaterialTest, AllValuesOfALargeFieldCard) {
  EXPECT_EQ(ValuesOf("MAT1*   5               210000.0        80000.0         0.25            \n"
                     "*       0.5             0.125           20.0            0.75            \n"
                     "*       235.0           240.0           130.0           9               \n"),
            "{Youngs_modulus: Real 210000.0, Shear_modulus: Real 80000.0, Poissons_ratio: Real 0.25, Density: Real 0.5, "
            "Thermal_Expansion: Real 0.125, Reference_Temperature: Real 20.0, Damping_coefficient: Real 0.75, "
            "Stress_Tension: Real 235.0, Stress_Compression: Real 240.0, Stress_Shear: Real 130.0, Mat_cord_Sys: Integer 9.0}");
}

TEST_F(MaterialTest, ValuesThatTheCardDoesNotReachAreUnset) {
  EXPECT_EQ(ValuesOf(PaddedCard8({"MAT1", "5", "210000.", "80000.", "0.25"}) + "\nENDDATA\n"),
            "{Youngs_modulus: Real 210000.0, Shear_modulus: Real 80000.0, Poissons_ratio: Real 0.25, Density: Unset 0.0, "
            "Thermal_Expansion: Unset 0.0, Reference_Temperature: Unset 0.0, Damping_coefficient: Unset 0.0, "
            "Stress_Tension: Unset 0.0, Stress_Compression: Unset 0.0, Stress_Shear: Unset 0.0, Mat_cord_Sys: Unset 0.0}");
}

TEST_F(MaterialTest, ABlankFieldIsUnsetAndKeepsItsPosition) {
  EXPECT_THAT(
      ValuesOf(PaddedCard8({"MAT1", "5", "210000.", "", "0.25"}) + "\nENDDATA\n"),
      testing::StartsWith("{Youngs_modulus: Real 210000.0, Shear_modulus: Unset 0.0, Poissons_ratio: Real 0.25, Density: Unset 0.0, "));
}

TEST_F(MaterialTest, AZeroIsAValue) {
  EXPECT_THAT(ValuesOf(PaddedCard8({"MAT1", "5", "0.0", "0", "0.25"}) + "\nENDDATA\n"),
              testing::StartsWith("{Youngs_modulus: Real 0.0, Shear_modulus: Real 0.0, Poissons_ratio: Real 0.25, "));
}

TEST_F(MaterialTest, ACardThatEndsBehindItsIdHasNoValues) {
  EXPECT_THAT(ValuesOf("MAT1    5       \nENDDATA\n"), testing::StartsWith("{Youngs_modulus: Unset 0.0, Shear_modulus: Unset 0.0, "));
}

TEST_F(MaterialTest, TheCursorStandsOnTheNextCard) {
  EXPECT_EQ(Read(PaddedCard8({"MAT1", "5", "210000.", "80000.", "0.25"}) + "\nENDDATA\n"), "\nENDDATA\n");
}

TEST_F(MaterialTest, ACardWithoutAnIdAboveZeroMakesNothing) {
  Read(PaddedCard8({"MAT1", "0", "210000."}) + "\nENDDATA\n");
  Read(PaddedCard8({"MAT1", "-5", "210000."}) + "\nENDDATA\n");
  Read(PaddedCard8({"MAT1", "STEEL", "210000."}) + "\nENDDATA\n");
  Read(PaddedCard8({"MAT1", "", "210000."}) + "\nENDDATA\n");
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_THAT(Links(), IsEmpty());
}

TEST_F(MaterialTest, AnyKeywordThatBeginsSoIsReadAsOne) {
  Read(PaddedCard8({"MAT10", "5", "2.5"}) + "\nENDDATA\n");
  EXPECT_THAT(Calls(), Contains("MaterialStore.CreateMaterial(5) -> 0 Material#1"));
}

// Names.

TEST_F(MaterialTest, AGivenNameIsTaken) {
  Read("MAT1    5       \n", "Steel S235");
  EXPECT_EQ(NameInHost(5), L"Steel S235");
}

TEST_F(MaterialTest, ATimeStampIsNoName) {
  Read("MAT1    5       \n", "Date: 2020 Time: 10");
  Read("MAT1    6       \n", "Time:");
  EXPECT_EQ(NameInHost(5), L"Material_5");
  EXPECT_EQ(NameInHost(6), L"Material_6");
}

TEST_F(MaterialTest, OnlyTheWordInThisSpellingIsATimeStamp) {
  Read("MAT1    5       \n", "Time 10");
  Read("MAT1    6       \n", "time: 10");
  EXPECT_EQ(NameInHost(5), L"Time 10");
  EXPECT_EQ(NameInHost(6), L"time: 10");
}

TEST_F(MaterialTest, ALongNameIsCutTo255Characters) {
  Read("MAT1    5       \n", std::string(300, 's').c_str());
  EXPECT_EQ(NameInHost(5), std::wstring(255, L's'));
}

// Links and refusals.

TEST_F(MaterialTest, EveryMaterialGetsALinkInOrderOfCreation) {
  Read("MAT1    9       \n");
  Read("MAT1    5       \n");
  ASSERT_EQ(Links().size(), 2u);
  EXPECT_EQ(Links()[0]->materialId, 9);
  EXPECT_EQ(Links()[0]->number, 9);
  EXPECT_EQ(Links()[0]->material, GetHostMaterial(store, 9));
  EXPECT_EQ(Links()[1]->materialId, 5);
}

TEST_F(NumberedMaterialTest, TheLinkHoldsTheIdOfTheCardAndTheNumberOfTheHost) {
  Read("MAT1    5       \n");
  EXPECT_THAT(Calls(), Contains("Material#1.GetNumber() -> 105"));
  ASSERT_EQ(Links().size(), 1u);
  EXPECT_EQ(Links()[0]->materialId, 5);
  EXPECT_EQ(Links()[0]->number, 105);
}

TEST_F(MaterialTest, ASecondCardOfAnIdGoesToTheHostToo) {
  Read("MAT1    5       \n", "First");
  Read("MAT1    5       \n", "Second");
  EXPECT_EQ(Calls().back(), "MaterialStore.CreateMaterial(5) -> 1");
  EXPECT_EQ(Links().size(), 1u);
  EXPECT_EQ(NameInHost(5), L"First");
}

TEST_F(MaterialTest, ARefusedMaterialGetsNoLink) {
  host.Refusals().RefuseFrom("MaterialStore.CreateMaterial", 1);
  Read("MAT1    5       \n");
  EXPECT_THAT(Calls(), ElementsAre("MaterialStore.CreateMaterial(5) -> 1"));
  EXPECT_THAT(Links(), IsEmpty());
}

TEST_F(MaterialTest, ASuccessWithoutAMaterialCountsAsRefused) {
  host.Refusals().RefuseFrom("MaterialStore.CreateMaterial", 1, Refusal::EmptySuccess);
  Read("MAT1    5       \n");
  EXPECT_THAT(Calls(), ElementsAre("MaterialStore.CreateMaterial(5) -> 0"));
  EXPECT_THAT(Links(), IsEmpty());
}

// Made without a card.

TEST_F(MaterialTest, DefaultMaterialIsALittleLikeSteel) {
  CreateDefaultMaterial(store, &run.lists.materials, 12);
  EXPECT_THAT(Calls(),
              ElementsAre("MaterialStore.CreateMaterial(12) -> 0 Material#1",
                          "Material#1.SetDescriptor(<\"Material_12\", \"Isotropic\", \"Elastic\", \"Metal\", \"\">)",
                          "Material#1.SetValues({Youngs_modulus: Real 208000.0, Shear_modulus: Real 79000.0, Poissons_ratio: Real 0.3, "
                          "Density: Real 7800.0, Thermal_Expansion: Real 0.0, Reference_Temperature: Real 20.0, "
                          "Damping_coefficient: Real 0.0, Stress_Tension: Real 0.0, Stress_Compression: Real 0.0, "
                          "Stress_Shear: Real 0.0, Mat_cord_Sys: Integer 0.0})",
                          "Material#1.SetUsageFlag(0)", "Material#1.GetNumber() -> 12"));
}

TEST_F(MaterialTest, DefaultsAreWrittenIntoTheValuesOfTheCaller) {
  double values[materialValueCount] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, 10.0, 11.0};
  std::uint8_t marks[materialValueCount] = {};
  CreateMaterial(store, 5, values, marks, "", &run.lists.materials, true);
  EXPECT_THAT(values, ElementsAre(208000.0, 79000.0, 0.3, 7800.0, 5.0, 20.0, 7.0, 8.0, 9.0, 10.0, 11.0));
}

TEST_F(MaterialTest, BlankMarksCountWithDefaultsToo) {
  double values[materialValueCount] = {};
  std::uint8_t marks[materialValueCount] = {1};
  CreateMaterial(store, 5, values, marks, "", &run.lists.materials, true);
  EXPECT_THAT(Calls(), Contains(HasSubstr("{Youngs_modulus: Unset 208000.0, Shear_modulus: Real 79000.0, ")));
}

TEST_F(MaterialTest, WithoutDefaultsTheValuesStay) {
  double values[materialValueCount] = {1.0};
  std::uint8_t marks[materialValueCount] = {};
  CreateMaterial(store, 5, values, marks, "", &run.lists.materials, false);
  EXPECT_THAT(Calls(), Contains(HasSubstr("{Youngs_modulus: Real 1.0, Shear_modulus: Real 0.0, ")));
}

TEST_F(MaterialTest, WithoutAStoreOrAnIdNothingHappens) {
  double values[materialValueCount] = {};
  std::uint8_t marks[materialValueCount] = {};
  CreateMaterial(nullptr, 5, values, marks, "", &run.lists.materials, true);
  CreateMaterial(store, 0, values, marks, "", &run.lists.materials, true);
  CreateMaterial(store, -1, values, marks, "", &run.lists.materials, true);
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_THAT(values, testing::Each(0.0));
  EXPECT_THAT(Links(), IsEmpty());
}

// Names written late.

TEST_F(MaterialTest, AMaterialIsRenamedByTheCommentForItsId) {
  Read("MAT1    5       \n", "Card");
  Read("MAT1    6       \n");
  RegisterCommentName("MAT", 6, "Rubber");
  RegisterCommentName("PROP", 5, "Sheet");
  Calls();
  RenameMaterials(&run.lists.materials);
  EXPECT_THAT(Calls(), ElementsAre(HasSubstr("Material#2.GetDescriptor()")));
  EXPECT_EQ(NameInHost(5), L"Card");
  EXPECT_EQ(NameInHost(6), L"Rubber");
}

TEST_F(MaterialTest, RenamingKeepsToTheRoomOfTheName) {
  Read("MAT1    5       \n");
  RegisterCommentName("MAT", 5, std::string(400, 'x').c_str());
  RenameMaterials(&run.lists.materials);
  EXPECT_EQ(NameInHost(5), std::wstring(255, L'x'));
  MaterialDescriptor* descriptor = nullptr;
  Links()[0]->material->GetDescriptor(&descriptor);
  EXPECT_STREQ(descriptor->symmetry, L"Isotropic");
}

TEST_F(NumberedMaterialTest, RenamingGoesByTheIdOfTheCard) {
  Read("MAT1    5       \n");
  RegisterCommentName("MAT", 105, "Number");
  RenameMaterials(&run.lists.materials);
  EXPECT_EQ(NameInHost(105), L"Material_5");
  RegisterCommentName("MAT", 5, "Card");
  RenameMaterials(&run.lists.materials);
  EXPECT_EQ(NameInHost(105), L"Card");
}

TEST_F(MaterialTest, ATimeStampInTheCommentForAMaterialIsAName) {
  Read("MAT1    5       \n");
  RegisterCommentName("MAT", 5, "Time: 10");
  RenameMaterials(&run.lists.materials);
  EXPECT_EQ(NameInHost(5), L"Time: 10");
}

TEST_F(MaterialTest, AMaterialWithoutADescriptorKeepsItsName) {
  Read("MAT1    5       \n");
  RegisterCommentName("MAT", 5, "Steel");
  host.Refusals().RefuseCall("Material.GetDescriptor", 1);
  RenameMaterials(&run.lists.materials);
  EXPECT_EQ(NameInHost(5), L"Material_5");
}

}  // namespace
}  // namespace btz::test
