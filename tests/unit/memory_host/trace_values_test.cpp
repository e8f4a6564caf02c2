// The trace: how each kind of value is written.
#include <cmath>
#include <limits>

#include "memory_host/trace_fixture.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz::memory {
namespace {

class TraceValues : public TraceTest {};

TEST_F(TraceValues, RealsAreTheShortestTextThatReadsBack) {
  ForceLoad* force = MakeForce();
  Lines();
  force->SetForce(0.1, 1500.0, 1e20);
  force->SetForce(-0.0, 0.0, 100000.0);
  force->SetForce(1.0 / 3.0, 1e-7, -2.5);
  force->SetForce(std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity());
  force->SetForce(-std::nan(""), std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(Lines(),
            "ForceLoad#1.SetForce(0.1, 1500.0, 1e+20)\n"
            "ForceLoad#1.SetForce(-0.0, 0.0, 1e+05)\n"
            "ForceLoad#1.SetForce(0.3333333333333333, 1e-07, -2.5)\n"
            "ForceLoad#1.SetForce(nan, inf, -inf)\n"
            "ForceLoad#1.SetForce(nan, 1.7976931348623157e+308, 5e-324)\n");
}

TEST_F(TraceValues, SinglePrecisionIsWrittenAsShortAsItCanBe) {
  ThermalLoad* load = nullptr;
  boundary->CreateThermalLoad(&load);
  MeshPart* body = MakeBody(1);
  Lines();
  load->SetValue(0.1F);
  const float rgb[3] = {1.0F, 0.5F, 0.0F};
  body->SetColor(rgb);
  body->SetColor(nullptr);
  EXPECT_EQ(Lines(),
            "ThermalLoad#1.SetValue(0.1)\n"
            "MeshPart#1.SetColor((1.0, 0.5, 0.0))\n"
            "MeshPart#1.SetColor(null)\n");
}

TEST_F(TraceValues, TextsAreQuotedAndEscaped) {
  ForceLoad* force = MakeForce();
  Lines();
  force->SetName(L"PointForce1");
  force->SetName(L"a \"b\" c\\d");
  force->SetName(L"1\n2\r3\t4\x01\x1F\x7F");
  force->SetName(L"M\u00FCll\u00FFx\u20AC");
  force->SetName(L"");
  force->SetName(nullptr);
  EXPECT_EQ(Lines(),
            "ForceLoad#1.SetName(\"PointForce1\")\n"
            "ForceLoad#1.SetName(\"a \\\"b\\\" c\\\\d\")\n"
            "ForceLoad#1.SetName(\"1\\n2\\r3\\t4\\x01\\x1F\\x7F\")\n"
            "ForceLoad#1.SetName(\"M\\u{00FC}ll\\u{00FF}x\\u{20AC}\")\n"
            "ForceLoad#1.SetName(\"\")\n"
            "ForceLoad#1.SetName(null)\n");
}

TEST_F(TraceValues, OfThePathOnlyTheFileNameIsWritten) {
  model->SetSourcePath("/home/user/my deck.bdf");
  model->SetSourcePath("C:\\decks\\door.bdf");
  model->SetSourcePath("d\xC3\xBCse.bdf");
  model->SetSourcePath("folder/");
  EXPECT_EQ(Lines(),
            "MeshModel.SetSourcePath(\"my deck.bdf\")\n"
            "MeshModel.SetSourcePath(\"door.bdf\")\n"
            "MeshModel.SetSourcePath(\"d\\u{00C3}\\u{00BC}se.bdf\")\n"
            "MeshModel.SetSourcePath(\"\")\n");
}

TEST_F(TraceValues, NodeIdsOfAnElementAreAsManyAsItsTypeHas) {
  const std::int32_t nodes[] = {2, 5, 6, 0, 8, 9, 1, 4, 7, 3};
  model->CreateElement(4, 1, nodes, 7, 0, 0, 0, 0);
  model->CreateElement(4, 9, nodes, 7, 0, 0, 0, 0);
  model->CreateElement(4, 8, nodes, 7, 0, 1, 0, 0);
  model->CreateElement(4, 44, nodes, 7, 0, 1, 0, 0);
  EXPECT_EQ(Lines(),
            "MeshModel.CreateElement(4, 1, [2, 5], 7, 0, 0, 0, 0) -> -1\n"
            "MeshModel.CreateElement(4, 9, [2, 5, 6], 7, 0, 0, 0, 0) -> -1\n"
            "MeshModel.CreateElement(4, 8, [2, 5, 6, 0, 8, 9, 1, 4, 7, 3], 7, 0, 1, 0, 0) -> -1\n"
            "MeshModel.CreateElement(4, 44, [], 7, 0, 1, 0, 0) -> -1\n");
}

TEST_F(TraceValues, ListsAreWrittenUpToTheirFirstNull) {
  MakeNodes(3);
  ForceLoad* force = MakeForce();
  Lines();
  GivenList nodes({Node(3), Node(1), nullptr, Node(2)});
  force->SetNodes(nodes.Get());
  GivenList empty;
  force->SetNodes(empty.Get());
  force->SetNodes(nullptr);
  EXPECT_EQ(Lines(),
            "ForceLoad#1.SetNodes([n3, n1])\n"
            "ForceLoad#1.SetNodes([])\n"
            "ForceLoad#1.SetNodes(null)\n");
}

TEST_F(TraceValues, WritingAListLeavesItsCursorToTheHost) {
  MakeNodes(2);
  MakeForce();
  GivenList nodes({Node(1), Node(2)});
  const ListCell* last = nodes.Get()->cursor;
  std::string text;
  ValueWriter(host.Boundary().forces[0].info.object.context, text).Write(Nodes{nodes.Get()});
  EXPECT_EQ(text, "[n1, n2]");
  EXPECT_EQ(nodes.Get()->cursor, last);
}

TEST_F(TraceValues, ElementsAndFaceRecordsAreToldApart) {
  MakeNodes(4);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(7, 7, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(70, 3, {1, 2, 4}, 1), 0);
  model->FinishSolidPart(body, 0, 0, 0);
  EntitySet* set = nullptr;
  boundary->CreateSet(&set);
  Lines();
  const MeshElement* solid = SolidElement(7);
  GivenList elements({Element(70), SolidElement(7), solid->faces[0], solid->faces[2], solid->faces[3]});
  set->SetElements(elements.Get());
  EXPECT_EQ(Lines(), "EntitySet#1.SetElements([e70, e7, f7:0, e70, f7:3])\n");
}

TEST_F(TraceValues, IdsMarksRowsAndSteps) {
  GapEntity* gap = nullptr;
  EntitySet* set = nullptr;
  Field* field = nullptr;
  Pretension* pretension = nullptr;
  boundary->CreateGap(&gap);
  boundary->CreateSet(&set);
  boundary->CreatePretension(&pretension);
  host.GetCurveStore()->CreateField(&field);
  ForceLoad* force = MakeForce();
  MeshPart* face = MakeFace(MakeBody(1), 1);
  Lines();
  std::int32_t first = 1;
  std::int32_t second = -2;
  GivenList ids({&first, &second});
  gap->SetElementIds(ids.Get());
  const std::uint8_t marks[6] = {1, 1, 1, 0, 0, 255};
  set->SetComponentMarks(marks);
  double row[4] = {0.0, 0.0, 0.0, 5.0};
  GivenList rows({row, row});
  field->SetRows(rows.Get());
  field->SetColumnCount(4);
  field->SetRows(rows.Get());
  const CutPartStep step{3, 5};
  Constraint* none = nullptr;
  pretension->AddPart(face, &step, 0.0, boundary, &force, &none);
  EXPECT_EQ(Lines(),
            "GapEntity#1.SetElementIds([1, -2])\n"
            "EntitySet#1.SetComponentMarks((1, 1, 1, 0, 0, 255))\n"
            "Field#1.SetRows([[], []])\n"
            "Field#1.SetColumnCount(4)\n"
            "Field#1.SetRows([[0.0, 0.0, 0.0, 5.0], [0.0, 0.0, 0.0, 5.0]])\n"
            "Pretension#1.AddPart(TopoFace#1, <3, 5>, 0.0, BoundaryStore, ForceLoad#1, null)\n");
}

TEST_F(TraceValues, ValueListsShowKindSlotExtentAndText) {
  Property* property = nullptr;
  Material* material = nullptr;
  host.GetMaterialStore()->CreateProperty(&property, 1);
  host.GetMaterialStore()->CreateMaterial(&material, 3);
  Lines();
  char text[] = "1.50";
  char word[] = "Time: \"10\"";
  std::int32_t fieldId = 12;
  NamedValue values[9] = {};
  const char* keys[] = {"Thickness", "PA", "On", "Law", "T", "Word", "Loading", "TS_Material", "None"};
  const std::int32_t kinds[] = {ValueReal, ValueInteger,  ValueFlag,   ValueEnum,  ValueUnset,
                                ValueText, ValueFieldRef, ValueObject, ValueObject};
  GivenList list;
  for (std::size_t i = 0; i < 9; ++i) {
    std::snprintf(values[i].key, sizeof(values[i].key), "%s", keys[i]);
    values[i].kind = kinds[i];
    list.Add(&values[i]);
  }
  values[0].value.real = 1.5;
  values[0].text = text;
  values[1].value.real = 12.0;
  values[2].value.real = 1.0;
  values[3].value.choice = 4;
  values[5].value.characters = word;
  values[5].extent = 10;
  values[6].value.fieldId = &fieldId;
  values[6].extent = 1;
  values[7].value.object = material;
  values[7].extent = 1;
  property->SetValues(list.Get());
  GivenList empty;
  property->SetValues(empty.Get());
  EXPECT_EQ(Lines(),
            "Property#1.SetValues({Thickness: Real 1.5 text=\"1.50\", PA: Integer 12.0, On: Flag 1.0, Law: Enum 4, T: Unset 0.0, "
            "Word: Text \"Time: \\\"10\\\"\" extent=10, Loading: FieldRef 12 extent=1, TS_Material: Object Material#1 extent=1, "
            "None: Object null})\n"
            "Property#1.SetValues({})\n");
}

TEST_F(TraceValues, Descriptors) {
  Property* property = nullptr;
  Material* material = nullptr;
  host.GetMaterialStore()->CreateProperty(&property, 1);
  host.GetMaterialStore()->CreateMaterial(&material, 3);
  Lines();
  PropertyDescriptor ofProperty{};
  ofProperty.material = material;
  std::copy_n(L"Shell", 6, ofProperty.propertyClass);
  std::copy_n(L"Isotropic", 10, ofProperty.materialClass);
  property->SetDescriptor(&ofProperty);
  ofProperty.number = 1;
  ofProperty.material = nullptr;
  property->SetDescriptor(&ofProperty);
  MaterialDescriptor ofMaterial{};
  std::copy_n(L"Steel", 6, ofMaterial.name);
  std::copy_n(L"Isotropic", 10, ofMaterial.symmetry);
  std::copy_n(L"Elastic", 8, ofMaterial.behaviour);
  std::copy_n(L"Metal", 6, ofMaterial.family);
  material->SetDescriptor(&ofMaterial);
  EXPECT_EQ(Lines(),
            "Property#1.SetDescriptor(<0, Material#1, \"Shell\", \"Isotropic\">)\n"
            "Property#1.SetDescriptor(<1, null, \"Shell\", \"Isotropic\">)\n"
            "Material#1.SetDescriptor(<\"Steel\", \"Isotropic\", \"Elastic\", \"Metal\", \"\">)\n");
}

TEST_F(TraceValues, AGroupsElementsStandInOrderOfTheTable) {
  MakeNodes(3);
  MakeBody(1);
  ASSERT_EQ(MakeElement(4, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(2, 3, {1, 2, 3}, 1), 0);
  Lines();
  HashTable table;
  HashInit(&table);
  HashCreate(&table, 6, HashFirstInt, nullptr, nullptr, 0);
  HashInsert(&table, Element(4));
  HashInsert(&table, Element(2));
  Group* group = nullptr;
  host.GetGroupStore()->CreateGroup(&group, &table, 0, 0, 0, 0, 0, 10);
  HashRelease(&table);
  EXPECT_EQ(Lines(), "GroupStore.CreateGroup({e2, e4}, 0, 0, 0, 0, 0, 10) -> 0 Group#1\n");
}

}  // namespace
}  // namespace btz::memory
