// What a bar or beam property hands to the host: the calls, the values of a card with numbers and those of a library section, and the names.
#include "properties/beam_property.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <limits>

#include "deck/name_comments.h"
#include "mesh/line_orientation.h"
#include "tests/unit/properties/beam_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

/// Gives every number of the record a value of its own and marks all as given.
void FillNumbers(BeamPropertyRecord* record) {
  record->area = 1.5;
  record->i1 = 2.5;
  record->i2 = 3.5;
  record->torsion = 4.5;
  record->nonStructuralMass = 5.5;
  record->c1 = 6.5;
  record->c2 = 7.5;
  record->d1 = 8.5;
  record->d2 = 9.5;
  record->e1 = 10.5;
  record->e2 = 11.5;
  record->f1 = 12.5;
  record->f2 = 13.5;
  record->k1 = 14.5;
  record->k2 = 15.5;
  record->i12 = 16.5;
  for (std::uint8_t& blank : record->blank) {
    blank = 0;
  }
}

class BeamValuesTest : public BeamPropertyTest {
 protected:
  BeamValuesTest() { MakeLinkedMaterial(1); }

  /// A bar from (1, 0, 0) to (2, 0, 0) in the part: by itself the host takes (0, 0, -1) for it.
  void MakeBarAlongX() {
    MakeNodes(2);
    const std::int32_t nodes[2] = {1, 2};
    model->CreateElement(1, 1, nodes, 7, 0, 0, 0, 0);
    Calls();
  }

  /// A system in the origin whose local y axis is `axis` and whose local z axis is `normal`.
  void MakeSystem(std::int32_t id, const double (&normal)[3], const double (&axis)[3]) {
    CoordinateSystem* system = nullptr;
    host.GetBoundaryStore()->CreateCoordinateSystem(&system);
    // The host takes y along normal x (C - A).
    const double c[3] = {axis[1] * normal[2] - axis[2] * normal[1], axis[2] * normal[0] - axis[0] * normal[2],
                         axis[0] * normal[1] - axis[1] * normal[0]};
    const double origin[3] = {};
    system->SetPoints(MakeNode(origin), MakeNode(normal), MakeNode(c));
    system->SetId(id);
    Calls();
  }

 private:
  MeshNode* MakeNode(const double (&position)[3]) {
    const std::int32_t id = model->NextNodeId();
    model->CreateNode(id, position, 0);
    MeshNode* node = nullptr;
    model->GetNode(id, &node);
    return node;
  }
};

TEST_F(BeamValuesTest, BarWithAllNumbers) {
  BeamPropertyRecord* record = AddRecord(7, 1);
  FillNumbers(record);
  record->pinFlagsA = 456;
  record->pinFlagsB = 4;
  Transfer(7);
  EXPECT_THAT(
      Calls(),
      ElementsAre("MaterialStore.CreateProperty(7) -> 0 Property#1", "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Bar\">)",
                  "Property#1.SetValues({Sys_Coord_Id: Integer 0.0, Area: Real 1.5, I1: Real 2.5, I2: Real 3.5, Torsional: Real 4.5, "
                  "NSM: Real 5.5, C1: Real 6.5, C2: Real 7.5, D1: Real 8.5, D2: Real 9.5, E1: Real 10.5, E2: Real 11.5, "
                  "F1: Real 12.5, F2: Real 13.5, K1: Real 14.5, K2: Real 15.5, I12: Real 16.5, PA: Integer 456.0, "
                  "PB: Integer 4.0})",
                  "Property#1.SetLinkedIndex(0)", "Property#1.SetParts([MeshPart#1])", "Property#1.SetName(\"Property7\")"));
}

TEST_F(BeamValuesTest, BeamHasNoSystemAndNoType) {
  BeamPropertyRecord* record = AddRecord(7, 1);
  FillNumbers(record);
  record->isBeam = 1;
  Transfer(7);
  const std::vector<std::string> calls = Calls();
  ASSERT_THAT(calls, SizeIs(6));
  EXPECT_EQ(calls[1], "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Beam\">)");
  EXPECT_EQ(calls[2],
            "Property#1.SetValues({Area: Real 1.5, I1: Real 2.5, I2: Real 3.5, Torsional: Real 4.5, NSM: Real 5.5, C1: Real 6.5, "
            "C2: Real 7.5, D1: Real 8.5, D2: Real 9.5, E1: Real 10.5, E2: Real 11.5, F1: Real 12.5, F2: Real 13.5, K1: Real 14.5, "
            "K2: Real 15.5, I12: Real 16.5, PA: Integer 0.0, PB: Integer 0.0})");
}

TEST_F(BeamValuesTest, BlankMarksMakeNumbersUnset) {
  // Each mark by itself, so that no two are exchanged. The slot keeps the number that the reader had.
  const char* const keys[beamValueCount] = {"Area", "I1", "I2", "Torsional", "NSM", "C1", "C2", "D1",
                                            "D2",   "E1", "E2", "F1",        "F2",  "K1", "K2", "I12"};
  for (std::size_t blank = 0; blank < beamValueCount; ++blank) {
    BeamPropertyRecord* record = AddRecord(7, 1);
    FillNumbers(record);
    record->isBeam = 1;
    record->blank[blank] = 1;
  }
  Transfer(7);
  for (std::size_t blank = 0; blank < beamValueCount; ++blank) {
    const std::vector<memory::StoredValue>& values = ValuesOf(blank);
    ASSERT_THAT(values, SizeIs(beamValueCount + 2));
    for (std::size_t i = 0; i < beamValueCount; ++i) {
      EXPECT_EQ(values[i].key, keys[i]);
      EXPECT_EQ(values[i].kind, i == blank ? ValueUnset : ValueReal) << keys[i] << " with mark " << blank;
      EXPECT_EQ(values[i].real, 1.5 + static_cast<double>(i));
      EXPECT_EQ(values[i].extent, 0);
      EXPECT_FALSE(values[i].text.has_value());
    }
  }
}

TEST_F(BeamValuesTest, PinFlagsAndSystemHaveNoMarks) {
  BeamPropertyRecord* record = AddRecord(7, 1);  // All marks set.
  record->pinFlagsA = -12;
  Transfer(7);
  EXPECT_EQ(ValueOf(0, "Sys_Coord_Id").kind, ValueInteger);
  EXPECT_EQ(ValueOf(0, "PA").kind, ValueInteger);
  EXPECT_EQ(ValueOf(0, "PA").real, -12.0);
  EXPECT_EQ(ValueOf(0, "PB").kind, ValueInteger);
  EXPECT_EQ(ValueOf(0, "PA").extent, 0);
}

TEST_F(BeamValuesTest, CallsWithAllQuestionsInOrder) {
  MakeBarAlongX();
  BeamPropertyRecord* record = AddRecord(7, 1);
  record->orientation[2] = -1.0;
  TraceQuestions();
  Transfer(7, FindOrientationSystem);
  const std::vector<std::string> calls = Calls();
  ASSERT_THAT(calls, SizeIs(12));
  EXPECT_EQ(calls[0], "MeshPart#1.GetOwnerModel() -> MeshModel");
  EXPECT_EQ(calls[1], "MaterialStore.GetMaterial(101) -> Material#1 1");
  EXPECT_EQ(calls[2], "MaterialStore.CreateProperty(7) -> 0 Property#1");
  EXPECT_EQ(calls[3], "MeshModel.GetDescriptorNumber() -> 1");
  EXPECT_THAT(calls[4], HasSubstr("Property#1.SetDescriptor("));
  EXPECT_THAT(calls[5], HasSubstr("MeshPart#1.GetFaces()"));
  EXPECT_THAT(calls[6], HasSubstr("TopoFace#1.GetMesh()"));
  EXPECT_THAT(calls[7], HasSubstr("FaceMesh#1.GetElements()"));
  EXPECT_THAT(calls[8], HasSubstr("Property#1.SetValues({Sys_Coord_Id: Integer 0.0, "));
  EXPECT_EQ(calls[9], "Property#1.SetLinkedIndex(0)");
  EXPECT_EQ(calls[10], "Property#1.SetParts([MeshPart#1])");
  EXPECT_EQ(calls[11], "Property#1.SetName(\"Property7\")");
}

TEST_F(BeamValuesTest, SystemWhoseAxisYIsTheVector) {
  MakeBarAlongX();
  MakeSystem(21, {0.0, 0.0, 1.0}, {1.0, 0.0, 0.0});
  MakeSystem(22, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0});
  MakeSystem(23, {0.0, 0.0, 1.0}, {0.0, 1.0, 0.0});
  AddRecord(7, 1)->orientation[1] = 1.0;
  AddRecord(7, 1)->orientation[2] = -1.0;  // What the host takes by itself.
  AddRecord(7, 1)->orientation[0] = 1.0;
  AddRecord(7, 1)->orientation[1] = 2.0;  // Along an axis but not of length one.
  AddRecord(7, 1);                        // No vector at all.
  Transfer(7, FindOrientationSystem);
  EXPECT_EQ(ValueOf(0, "Sys_Coord_Id").real, 22.0) << "the first of two systems with the axis";
  EXPECT_EQ(ValueOf(1, "Sys_Coord_Id").real, 0.0);
  EXPECT_EQ(ValueOf(2, "Sys_Coord_Id").real, 21.0);
  EXPECT_EQ(ValueOf(3, "Sys_Coord_Id").real, 0.0) << "nothing is left of the record before";
  EXPECT_EQ(ValueOf(4, "Sys_Coord_Id").real, 0.0);
}

TEST_F(BeamValuesTest, OrientationIsAskedForBeamsAndSectionsToo) {
  AddRecord(7, 1)->isBeam = 1;
  AddSection(0, 1.0, 0.0);
  static std::vector<MeshPart*> askedParts;
  askedParts.clear();
  Transfer(7, [](MeshPart* asked, BoundaryStore*, const double(&)[3], std::int32_t* systemId) {
    askedParts.push_back(asked);
    EXPECT_EQ(*systemId, 0);
    *systemId = 99;
  });
  EXPECT_THAT(askedParts, ElementsAre(part, part));
}

TEST_F(BeamValuesTest, BarOfRod) {
  AddSection(0, 5.0, 0.0)->nonStructuralMass = 2.0;
  TraceQuestions();
  Transfer(7);
  const std::vector<std::string> calls = Calls();
  ASSERT_THAT(calls, SizeIs(11));
  EXPECT_EQ(calls[4], "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Bar\">)");
  EXPECT_EQ(calls[5], "MaterialStore.GetSectionCalculator() -> SectionCalculator#1");
  EXPECT_THAT(calls[6], HasSubstr(".ComputeSolidSection(5.0)"));
  EXPECT_EQ(calls[7],
            "Property#1.SetValues({SectionType: Text \"O1Section\" extent=9, SectionParam: Text \"5.000000\" extent=8, "
            "Area: Real 78.53981633974483, I1: Real 490.8738521234052, I2: Real 490.8738521234052, Torsional: Real 981.7477042468104, "
            "NSM: Real 0.0, C1: Real 5.0, C2: Real 0.0, D1: Real 0.0, D2: Real 5.0, E1: Real -5.0, E2: Real 0.0, F1: Real 0.0, "
            "F2: Real -5.0, K1: Real 1.0, K2: Real 1.0, I12: Real 0.0, Nastran_Bar_Type: Enum 1})");
  EXPECT_EQ(calls[8], "Property#1.SetLinkedIndex(0)");
  EXPECT_EQ(calls[9], "Property#1.SetParts([MeshPart#1])");
  EXPECT_EQ(calls[10], "Property#1.SetName(\"Property7\")");
}

TEST_F(BeamValuesTest, BeamOfTube) {
  AddSection(1, 5.0, 3.0);
  TraceQuestions();
  Transfer(7);
  const std::vector<std::string> calls = Calls();
  ASSERT_THAT(calls, SizeIs(11));
  EXPECT_EQ(calls[4], "Property#1.SetDescriptor(<1, Material#1, \"Bar\", \"Beam\">)");
  EXPECT_THAT(calls[6], HasSubstr(".ComputeHollowSection(5.0, 3.0)"));
  EXPECT_EQ(calls[7],
            "Property#1.SetValues({SectionParam: Text \"5.000000,3.000000\" extent=26, Area: Real 50.26548245743669, "
            "I1: Real 427.2566008882119, I2: Real 427.2566008882119, Torsional: Real 854.5132017764238, NSM: Real 0.0, C1: Real 5.0, "
            "C2: Real 0.0, D1: Real 0.0, D2: Real 5.0, E1: Real -5.0, E2: Real 0.0, F1: Real 0.0, F2: Real -5.0, K1: Real 1.0, "
            "K2: Real 1.0, I12: Real 0.0, Nastran_Beam_Type: Enum 1})");
}

TEST_F(BeamValuesTest, SectionIgnoresTheMarksAndNumbersOfTheCard) {
  BeamPropertyRecord* record = AddSection(0, 1.0, 0.0);
  FillNumbers(record);
  record->pinFlagsA = 4;
  AddSection(0, 1.0, 0.0);
  Transfer(7);
  EXPECT_EQ(KeysOf(0), KeysOf(1));
  for (std::size_t i = 2; i < 2 + beamValueCount; ++i) {
    EXPECT_EQ(ValuesOf(0)[i].real, ValuesOf(1)[i].real) << ValuesOf(0)[i].key;
    EXPECT_EQ(ValuesOf(1)[i].kind, ValueReal) << "with the mark set";
  }
}

TEST_F(BeamValuesTest, SectionTexts) {
  struct Case {
    double dim1;
    double dim2;
    const char* type;
    const char* parameters;
    std::int32_t extent;
  };
  // The extent is the length, and the length from the comma on once more.
  const Case cases[] = {
      {12.0, 0.25, "OSection", "12.000000,0.250000", 27},
      {2.5, -0.0, "O1Section", "2.500000", 8},          // A minus zero is zero.
      {0.0, 3.0, "OSection", "0.000000,3.000000", 26},  // Blank first dimension.
      {0.0, 0.0, "O1Section", "0.000000", 8},
      {-1.5, -2.0, "OSection", "-1.500000,-2.000000", 29},
      {1.0, 1.0e-9, "OSection", "1.000000,0.000000", 26},  // Not zero, though its text is.
      {0.0000005, 0.0, "O1Section", "0.000000", 8},        // Just below one half in binary.
      {1234567.1234567, 0.0, "O1Section", "1234567.123457", 14},
  };
  for (const Case& section : cases) {
    AddSection(0, section.dim1, section.dim2);
  }
  Transfer(7);
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    const memory::StoredValue type = ValueOf(i, "SectionType");
    EXPECT_EQ(type.kind, ValueText);
    EXPECT_EQ(type.characters, cases[i].type);
    EXPECT_EQ(type.extent, static_cast<std::int32_t>(std::string_view(cases[i].type).size()));
    const memory::StoredValue parameters = ValueOf(i, "SectionParam");
    EXPECT_EQ(parameters.kind, ValueText);
    EXPECT_EQ(parameters.characters, cases[i].parameters);
    EXPECT_EQ(parameters.extent, cases[i].extent) << cases[i].parameters;
    EXPECT_FALSE(parameters.text.has_value());
  }
}

TEST_F(BeamValuesTest, LargestDimensionsHaveRoom) {
  const double largest = -std::numeric_limits<double>::max();
  AddSection(0, largest, largest);
  Transfer(7);
  const memory::StoredValue parameters = ValueOf(0, "SectionParam");
  // A sign, 309 digits, the point and six decimals, twice, and the comma.
  EXPECT_EQ(parameters.characters.size(), 2 * 317u + 1);
  EXPECT_EQ(parameters.characters.substr(0, 6), "-17976");
  EXPECT_EQ(parameters.characters.substr(316, 3), "0,-");
  EXPECT_EQ(parameters.extent, 317 + 318 + 318);
}

TEST_F(BeamValuesTest, EverySectionStartsFromThePresets) {
  // A host without a calculator leaves the block as it was given.
  AddSection(0, 5.0, 3.0);
  AddSection(0, 5.0, 0.0);
  host.Refusals().RefuseCall("MaterialStore.GetSectionCalculator", 2);
  Transfer(7);
  EXPECT_EQ(ValueOf(0, "C1").real, 5.0);
  for (const memory::StoredValue& value : ValuesOf(1)) {
    if (value.kind == ValueReal) {
      EXPECT_EQ(value.real, value.key == "K1" || value.key == "K2" ? 1.0 : 0.0) << value.key;
    }
  }
}

TEST_F(BeamValuesTest, RecordsOfOneIdMakeAPropertyEach) {
  AddRecord(7, 1)->isBeam = 1;
  AddSection(0, 1.0, 0.0);
  AddRecord(8, 1);
  AddRecord(7, 1);
  TraceQuestions();
  Transfer(7);
  const std::vector<std::string> calls = Calls();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "MeshModel.GetDescriptorNumber() -> 1"), 3) << "asked afresh for each property";
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "MeshPart#1.GetOwnerModel() -> MeshModel"), 1);
  ASSERT_THAT(host.Materials().properties, SizeIs(3));
  EXPECT_THAT(KeysOf(0), SizeIs(18));
  EXPECT_THAT(KeysOf(1), SizeIs(19));
  EXPECT_THAT(KeysOf(2), SizeIs(19));
  EXPECT_EQ(KeysOf(2).front(), "Sys_Coord_Id");
}

TEST_F(BeamValuesTest, RefusedPropertyEndsTheStage) {
  for (const Refusal how : {Refusal::Code, Refusal::EmptySuccess}) {
    AddRecord(7, 1);
    AddRecord(7, 1);
    AddRecord(9, 1);
    BeamPropertyRecord* last = AddRecord(7, 1);
    host.Refusals().Clear();
    host.Refusals().RefuseCall("MaterialStore.CreateProperty", 2, how);
    TraceQuestions();
    Transfer(7);
    const std::vector<std::string> calls = Calls();
    EXPECT_THAT(calls.back(), HasSubstr("MaterialStore.CreateProperty(7) -> ")) << "nothing comes behind the refusal";
    EXPECT_EQ(last->materialId, 1) << "its material is not looked for any more";
    WalkIndexedList<void>(&run.lists.beamProperties, ReleaseMemory);
    IndexedListClear(&run.lists.beamProperties);
  }
  EXPECT_THAT(host.Materials().properties, SizeIs(2));
}

TEST_F(BeamValuesTest, NamedByItsCommentOrItsId) {
  CopyText(AddRecord(7, 1)->name, nameCapacity, "front spar");
  AddRecord(7, 1);
  Transfer(7);
  const std::vector<std::string> calls = Calls();
  ASSERT_THAT(calls, SizeIs(12));
  EXPECT_EQ(calls[5], "Property#1.SetName(\"front spar\")");
  EXPECT_EQ(calls[11], "Property#2.SetName(\"Property7\")");
}

TEST_F(BeamValuesTest, PropertyCommentNamesOnceMore) {
  RegisterCommentName("PROP", 7, "spar cap");
  RegisterCommentName("PROP", 8, "rib");
  RegisterCommentName("MAT", 7, "steel");
  CopyText(AddRecord(7, 1)->name, nameCapacity, "front spar");
  Transfer(7);
  const std::vector<std::string> calls = Calls();
  ASSERT_THAT(calls, SizeIs(7));
  EXPECT_EQ(calls[5], "Property#1.SetName(\"front spar\")");
  EXPECT_EQ(calls[6], "Property#1.SetName(\"spar cap\")");
}

TEST_F(BeamValuesTest, CommentsForOtherIdsLeaveTheName) {
  RegisterCommentName("PROP", 8, "rib");
  AddRecord(7, 1);
  Transfer(7);
  EXPECT_EQ(Calls().back(), "Property#1.SetName(\"Property7\")");
}

}  // namespace
}  // namespace btz::test
