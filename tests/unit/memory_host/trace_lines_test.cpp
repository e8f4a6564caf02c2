// The trace: which calls are lines, how objects are numbered, what refusals look like, and the state behind the last call.
#include "memory_host/trace_fixture.h"

namespace btz::memory {
namespace {

class TraceLines : public TraceTest {};

TEST_F(TraceLines, TheExampleOfAShell) {
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

TEST_F(TraceLines, ResultsOfRefusals) {
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

TEST_F(TraceLines, QuestionsAreLeftOutExceptTwoThatMakeWhatTheyGive) {
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

TEST_F(TraceLines, InAllModeQuestionsAndTheirAnswersAreLines) {
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

TEST_F(TraceLines, ObjectsAreNumberedByTypeAsTheyAreHandedOut) {
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

TEST_F(TraceLines, FieldsAndCurvesOfOneTableAreNumberedApart) {
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

TEST_F(TraceLines, FacesMadeForSolidsAreGivenWithTheNewPart) {
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

TEST_F(TraceLines, ShellsAndOwnersAreObjects) {
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

TEST_F(TraceLines, EndsWithTheStateThatNoCallWroteAndTheResult) {
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

TEST_F(TraceLines, OfARunThatNeverAskedForTheModelOnlyTheResultRemains) {
  host.FinishTrace(1);
  EXPECT_EQ(Lines(), "= result 1\n");
}

TEST_F(TraceLines, AFileGetsTheSameBytes) {
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
