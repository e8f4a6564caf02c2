// The trace: how each kind of value is written, which calls are lines, how objects are numbered, and the state behind the last call.
#include <cmath>
#include <limits>

#include "memory_host/host_fixture.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz::memory {
namespace {

class Trace : public MemoryHostTest {
 protected:
  Trace() { host.SetTrace(&changes_); }

  /// The lines since the last question.
  std::string Lines() {
    std::string lines;
    lines.swap(text_);
    return lines;
  }
  void TraceAll() { host.SetTrace(&all_); }
  ForceLoad* MakeForce() {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    boundary->CreateForce(&force, &id);
    return force;
  }

  std::string text_;
  TraceSink changes_{&text_};
  TraceSink all_{&text_, TraceSink::Coverage::All};
};

TEST_F(Trace, RealsAreTheShortestTextThatReadsBack) {
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

TEST_F(Trace, SinglePrecisionIsWrittenAsShortAsItCanBe) {
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

TEST_F(Trace, TextsAreQuotedAndEscaped) {
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

TEST_F(Trace, OfThePathOnlyTheFileNameIsWritten) {
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

TEST_F(Trace, TheExampleOfAShell) {
  MakeNode(1, 0.0, 0.0, 0.0);
  MakeNode(2, 1.0, 0.0, 0.0);
  MakeNode(3, 0.0, 1.5, 0.0);
  MeshPart* body = MakeBody(7);
  body->AddFace(MakeFace(body, 7), 1);
  const std::int32_t nodes[] = {1, 2, 3};
  EXPECT_EQ(model->CreateElement(1, 3, nodes, 7, 0, 0, 1, 0), 0);
  EXPECT_EQ(model->CreateElement(1, 3, nodes, 7, 0, 0, 1, 0), -1);
  EXPECT_EQ(Lines(),
            "MeshModel.CreateNode(1, (0.0, 0.0, 0.0), 0) -> 0\n"
            "MeshModel.CreateNode(2, (1.0, 0.0, 0.0), 0) -> 0\n"
            "MeshModel.CreateNode(3, (0.0, 1.5, 0.0), 0) -> 0\n"
            "MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1\n"
            "MeshModel.CreateTopoEntity(2, 7, MeshPart#1, 1) -> TopoFace#1\n"
            "MeshPart#1.AddFace(TopoFace#1, 1)\n"
            "MeshModel.CreateElement(1, 3, [1, 2, 3], 7, 0, 0, 1, 0) -> 0\n"
            "MeshModel.CreateElement(1, 3, [1, 2, 3], 7, 0, 0, 1, 0) -> -1\n");
}

TEST_F(Trace, NodeIdsOfAnElementAreAsManyAsItsTypeHas) {
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

TEST_F(Trace, ListsAreWrittenUpToTheirFirstNull) {
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

TEST_F(Trace, WritingAListLeavesItsCursorToTheHost) {
  MakeNodes(2);
  MakeForce();
  GivenList nodes({Node(1), Node(2)});
  const ListCell* last = nodes.Get()->cursor;
  std::string text;
  ValueWriter(host.Boundary().forces[0].info.object.context, text).Write(Nodes{nodes.Get()});
  EXPECT_EQ(text, "[n1, n2]");
  EXPECT_EQ(nodes.Get()->cursor, last);
}

TEST_F(Trace, ElementsAndFaceRecordsAreToldApart) {
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

TEST_F(Trace, IdsMarksRowsAndSteps) {
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

TEST_F(Trace, ValueListsShowKindSlotExtentAndText) {
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

TEST_F(Trace, Descriptors) {
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

TEST_F(Trace, AGroupsElementsStandInOrderOfTheTable) {
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

TEST_F(Trace, ResultsOfRefusals) {
  host.Refusals().RefuseCreatesFrom(1);
  MakeForce();
  Spring* spring = nullptr;
  boundary->CreateSpring(&spring);
  MeshPart* body = nullptr;
  model->CreateBody(1, &body, 7, 0, 1, 1);
  model->CreateRigidBody(1);
  host.Refusals().Clear();
  MakeForce();
  host.Refusals().RefuseFrom("BoundaryStore.CreateForce", 1, Refusal::EmptySuccess);
  MakeForce();
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateForce() -> 1\n"
            "BoundaryStore.CreateSpring() -> null\n"
            "MeshModel.CreateBody(1, 7, 0, 1, 1) -> null\n"
            "MeshModel.CreateRigidBody(1) -> null\n"
            "BoundaryStore.CreateForce() -> 0 ForceLoad#1\n"
            "BoundaryStore.CreateForce() -> 0\n");
}

TEST_F(Trace, QuestionsAreLeftOutExceptTwoThatMakeWhatTheyGive) {
  MeshModel* given = nullptr;
  host.GetProject()->GetMeshModel(&given, 1);
  LoadCase* loadCase = nullptr;
  boundary->CreateLoadCase(&loadCase, -1);
  loadCase->GetParameters(L"NASTRAN", L"STATIC", 14);
  host.Refusals().RefuseFrom("LoadCase.GetParameters", 1);
  loadCase->GetParameters(L"NASTRAN", L"STATIC", 14);
  model->NextPartId();
  Node(1);
  model->CountDefects(3);
  boundary->CheckSetName(0, L"x", 0);
  Entity* entity = nullptr;
  boundary->FindEntity(L"x", &entity, 0, 6);
  MeshPart* body = MakeBody(7);
  body->IsSolid();
  body->HasMesh();
  GivenList bodies;
  model->CollectBodies(bodies.Get(), 0, 0, 0);
  SectionCalculator* calculator = nullptr;
  host.GetMaterialStore()->GetSectionCalculator(&calculator);
  SectionValues values{};
  calculator->ComputeSolidSection(1.0, &values);
  model->FinishSolidPart(body, 0, 0, 0);
  model->Finish();
  EXPECT_EQ(Lines(),
            "HostProject.GetMeshModel(1) -> MeshModel\n"
            "BoundaryStore.CreateLoadCase(-1) -> 0 LoadCase#1\n"
            "LoadCase#1.GetParameters(\"NASTRAN\", \"STATIC\", 14) -> ParameterSet#1\n"
            "LoadCase#1.GetParameters(\"NASTRAN\", \"STATIC\", 14) -> null\n"
            "MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1\n"
            "MeshModel.FinishSolidPart(MeshPart#1, 0, 0, 0)\n"
            "MeshModel.Finish()\n");
}

TEST_F(Trace, InAllModeQuestionsAndTheirAnswersAreLines) {
  MakeNodes(3);
  MeshPart* body = MakeBody(7);
  ASSERT_EQ(MakeElement(5, 3, {1, 2, 3}, 7), 0);
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  Material* material = nullptr;
  host.GetMaterialStore()->CreateMaterial(&material, 3);
  Lines();
  TraceAll();
  Node(2);
  Node(9);
  model->NextPartId();
  body->IsSolid();
  body->GetName();
  FacesOf(body);
  ElementsOf(FacesOf(body)[0]);
  Solid* solid = nullptr;
  body->GetSolid(&solid);
  std::int32_t index = 0;
  host.GetMaterialStore()->GetMaterial(3, &material, &index);
  host.GetMaterialStore()->GetMaterial(4, &material, &index);
  MeshNode* origin = Node(1);
  MeshNode* onAxis = Node(2);
  MeshNode* inPlane = Node(3);
  system->SetPoints(origin, onAxis, inPlane);
  double* x = nullptr;
  double* y = nullptr;
  double* z = nullptr;
  system->GetAxisPoints(&x, &y, &z);
  GivenList out;
  boundary->GetEntitiesOfType(24, out.Get());
  GivenList nodes({Node(1)});
  GivenList found;
  model->CollectNodeElements(0, nodes.Get(), found.Get(), 0, 1, 0, 0, 0, 1, 0, 0, 0, 0);
  HashTable* table = nullptr;
  model->GetAllElements(&table);
  EXPECT_EQ(Lines(),
            "MeshModel.GetNode(2) -> n2\n"
            "MeshModel.GetNode(9) -> null\n"
            "MeshModel.NextPartId() -> 1\n"
            "MeshPart#1.IsSolid() -> 0\n"
            "MeshPart#1.GetName() -> \"\"\n"
            "MeshPart#1.GetFaceList() -> [TopoFace#1]\n"
            "MeshPart#1.GetFaceList() -> [TopoFace#1]\n"
            "TopoFace#1.GetMesh() -> FaceMesh#1\n"
            "FaceMesh#1.GetElements() -> [e5]\n"
            "MeshPart#1.GetSolid() -> null\n"
            "MaterialStore.GetMaterial(3) -> Material#1 1\n"
            "MaterialStore.GetMaterial(4) -> null null\n"
            "MeshModel.GetNode(1) -> n1\n"
            "MeshModel.GetNode(2) -> n2\n"
            "MeshModel.GetNode(3) -> n3\n"
            "CoordinateSystem#1.SetPoints(n1, n2, n3)\n"
            // B on the first axis of the basic system, C on the same line: two local axes have no length.
            "CoordinateSystem#1.GetAxisPoints() -> (1.0, 0.0, 0.0) (1.0, 0.0, 0.0) (2.0, 0.0, 0.0)\n"
            "BoundaryStore.GetEntitiesOfType(24) -> [CoordinateSystem#1]\n"
            "MeshModel.GetNode(1) -> n1\n"
            "MeshModel.CollectNodeElements(0, [n1], 0, 1, 0, 0, 0, 1, 0, 0, 0, 0) -> [e5]\n"
            "MeshModel.GetAllElements() -> {e5}\n");
}

TEST_F(Trace, ObjectsAreNumberedByTypeAsTheyAreHandedOut) {
  MakeNodes(4);
  MeshPart* first = MakeBody(1);
  MeshPart* second = MakeBody(2);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(2, 3, {1, 2, 4}, 2), 0);
  Lines();
  // The faces were made in the order of the bodies, but the second body's is handed out first, by a question that is no line.
  TopoFace* ofSecond = FacesOf(second)[0];
  TopoFace* ofFirst = FacesOf(first)[0];
  ofFirst->Finish();
  ofSecond->Finish();
  EXPECT_EQ(Lines(),
            "TopoFace#2.Finish()\n"
            "TopoFace#1.Finish()\n");
}

TEST_F(Trace, FieldsAndCurvesOfOneTableAreNumberedApart) {
  CurveStore* store = host.GetCurveStore();
  Field* field = nullptr;
  store->CreateField(&field);
  store->CreateField(&field);
  field->SetId(12);
  Curve* curve = nullptr;
  store->GetCurve(12, &curve);
  curve->SetQuantity(L"Frequency_Stiffness");
  EXPECT_EQ(Lines(),
            "CurveStore.CreateField() -> Field#1\n"
            "CurveStore.CreateField() -> Field#2\n"
            "Field#2.SetId(12)\n"
            "Curve#1.SetQuantity(\"Frequency_Stiffness\")\n");
}

TEST_F(Trace, FacesMadeForSolidsAreGivenWithTheNewPart) {
  MakeNodes(5);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(2, 7, {1, 3, 2, 5}, 1), 0);
  model->FinishSolidPart(body, 0, 0, 0);
  Lines();
  std::int32_t number = 4;
  GivenList elements({SolidElement(1)});
  GivenList numbers({&number});
  GivenList result;
  MeshPart* made = nullptr;
  SolidElement(1)->owner->CreateFaces(elements.Get(), numbers.Get(), result.Get(), &made);
  EXPECT_EQ(Lines(), "TopoFace#1.CreateFaces([e1], [4]) -> [f1:3] TopoFace#2\n");
}

TEST_F(Trace, ShellsAndOwnersAreObjects) {
  MakeNodes(4);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 1), 0);
  Spring* spring = nullptr;
  boundary->CreateSpring(&spring);
  Lines();
  Solid* solid = nullptr;
  Shell* shell = nullptr;
  body->GetSolid(&solid);
  solid->GetShell(&shell);
  solid->AttachShell(shell, 0);
  spring->SetOwner(host.GetProject());
  spring->SetRotationalStiffness(1.0, 2.0, 3.0);
  EXPECT_EQ(Lines(),
            "Solid#1.AttachShell(Shell#1, 0)\n"
            "Spring#1.SetOwner(HostProject)\n"
            "Spring#1.SetDamping(1.0, 2.0, 3.0)\n");
}

TEST_F(Trace, EndsWithTheStateThatNoCallWroteAndTheResult) {
  MakeNodes(12);
  MakeBody(1);
  ASSERT_EQ(MakeElement(31, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(8, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(8, 7, {1, 2, 3, 4}, 1), 0);
  MeshPart* rigid = model->CreateRigidBody(1);
  TopoEntity* edge = nullptr;
  model->CreatePart(3, &edge, 100, rigid);
  ASSERT_EQ(MakeElement(900, 9, {1, 1}, 100), 0);
  Material* first = nullptr;
  Material* second = nullptr;
  host.GetMaterialStore()->CreateMaterial(&first, 5);
  host.GetMaterialStore()->CreateMaterial(&second, 4);
  MaterialDescriptor descriptor{};
  std::copy_n(L"Material_4", 11, descriptor.name);
  second->SetDescriptor(&descriptor);
  Lines();

  Node(12)->position[0] = 1.0;
  Node(12)->position[1] = 2.0;
  Node(12)->position[2] = 3.0;
  Node(12)->coordinateSystemId = 5;
  Node(11)->coordinateSystemId = 6;
  Node(2)->position[2] = 0.5;
  Node(3)->mark = 2;
  Element(900)->rigidKind = 1;
  Element(31)->normal[2] = 1.0;
  SolidElement(8)->normal[0] = -1.0;
  MaterialDescriptor* own = nullptr;
  second->GetDescriptor(&own);
  std::copy_n(L"Steel", 6, own->name);
  host.FinishTrace(-5);
  EXPECT_EQ(Lines(),
            "= n2 xyz (2.0, 0.0, 0.5)\n"
            "= n11 cs 6\n"
            "= n12 xyz (1.0, 2.0, 3.0) cs 5\n"
            "= e8 normal (-1.0, 0.0, 0.0)\n"
            "= e31 normal (0.0, 0.0, 1.0)\n"
            "= e900 rigidKind 1\n"
            "= Material#2 name \"Steel\"\n"
            "= result -5\n");
}

TEST_F(Trace, OfARunThatNeverAskedForTheModelOnlyTheResultRemains) {
  host.FinishTrace(1);
  EXPECT_EQ(Lines(), "= result 1\n");
}

TEST_F(Trace, AFileGetsTheSameBytes) {
  std::FILE* file = std::tmpfile();
  ASSERT_NE(file, nullptr);
  TraceSink sink(file);
  host.SetTrace(&sink);
  model->ReservePartId(7);
  host.FinishTrace(0);
  std::rewind(file);
  char bytes[100] = {};
  const std::size_t length = std::fread(bytes, 1, sizeof(bytes), file);
  std::fclose(file);
  EXPECT_EQ(std::string(bytes, length), "MeshModel.ReservePartId(7)\n= result 0\n");
}

}  // namespace
}  // namespace btz::memory
