// The script refuses whatever hands something out: a caller has to live without the mesh of a face, the list of a part, the solid of a body.
#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

class RefusedQuestions : public MemoryHostTest {
 protected:
  RefusedQuestions() {
    MakeNodes(4);
    body_ = MakeBody(1);
    face_ = MakeFace(body_, 1);
    body_->AddFace(face_, 1);
    EXPECT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 1), 0);
  }

  /// True when the first call of `operation` leaves the out parameter alone and the second one writes it.
  template <typename Given, typename Ask>
  bool IsRefusedOnce(const std::string& operation, Ask ask) {
    host.Refusals().Clear();
    host.Refusals().RefuseCall(operation, 1);
    Given* given = nullptr;
    ask(&given);
    const bool refused = given == nullptr;
    ask(&given);
    return refused && given != nullptr;
  }

  MeshPart* body_ = nullptr;
  TopoFace* face_ = nullptr;
};

TEST_F(RefusedQuestions, ObjectsOfTheTopology) {
  EXPECT_TRUE(IsRefusedOnce<FaceMesh>("TopoFace.GetMesh", [this](FaceMesh** out) { face_->GetMesh(out); }));
  EXPECT_TRUE(IsRefusedOnce<MeshPart>("TopoFace.GetParent", [this](MeshPart** out) { face_->GetParent(out); }));
  EXPECT_TRUE(IsRefusedOnce<MeshModel>("TopoFace.GetModel", [this](MeshModel** out) { face_->GetModel(out); }));
  EXPECT_TRUE(IsRefusedOnce<MeshModel>("MeshPart.GetOwnerModel", [this](MeshModel** out) { body_->GetOwnerModel(out); }));
  EXPECT_TRUE(IsRefusedOnce<Solid>("MeshPart.GetSolid", [this](Solid** out) { body_->GetSolid(out); }));
  Solid* solid = nullptr;
  body_->GetSolid(&solid);
  EXPECT_TRUE(IsRefusedOnce<Shell>("Solid.GetShell", [solid](Shell** out) { solid->GetShell(out); }));
}

TEST_F(RefusedQuestions, ListsAndTables) {
  EXPECT_TRUE(IsRefusedOnce<PooledList>("MeshModel.GetParts", [this](PooledList** out) { model->GetParts(out); }));
  EXPECT_TRUE(IsRefusedOnce<HashTable>("MeshModel.GetAllElements", [this](HashTable** out) { model->GetAllElements(out); }));
  EXPECT_TRUE(IsRefusedOnce<PooledList>("MeshPart.GetFaceList", [this](PooledList** out) { body_->GetFaceList(out); }));
  EXPECT_TRUE(IsRefusedOnce<PooledList>("MeshPart.GetFaces", [this](PooledList** out) { body_->GetFaces(out); }));
  FaceMesh* mesh = MeshOf(face_);
  EXPECT_TRUE(IsRefusedOnce<PooledList>("FaceMesh.GetElements", [mesh](PooledList** out) { mesh->GetElements(out); }));
  EXPECT_TRUE(IsRefusedOnce<PooledList>("FaceMesh.GetNodes", [mesh](PooledList** out) { mesh->GetNodes(out); }));
  EXPECT_TRUE(IsRefusedOnce<PooledList>("BoundaryStore.GetEntities", [this](PooledList** out) { boundary->GetEntities(out); }));
  Pressure* pressure = nullptr;
  ASSERT_EQ(boundary->CreatePressure(&pressure), 0);
  EXPECT_TRUE(IsRefusedOnce<PooledList>("Pressure.GetParts", [pressure](PooledList** out) { pressure->GetParts(out); }));
}

TEST_F(RefusedQuestions, PointsAndTheNameOfAMaterial) {
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  system->SetPoints(Node(1), Node(2), Node(3));
  EXPECT_TRUE(IsRefusedOnce<double>("CoordinateSystem.GetOrigin", [system](double** out) { system->GetOrigin(out); }));
  double* x = nullptr;
  double* y = nullptr;
  EXPECT_TRUE(IsRefusedOnce<double>("CoordinateSystem.GetAxisPoints", [&](double** out) { system->GetAxisPoints(&x, &y, out); }));
  Material* material = nullptr;
  ASSERT_EQ(host.GetMaterialStore()->CreateMaterial(&material, 1), 0);
  EXPECT_TRUE(
      IsRefusedOnce<MaterialDescriptor>("Material.GetDescriptor", [material](MaterialDescriptor** out) { material->GetDescriptor(out); }));
}

TEST_F(RefusedQuestions, AListToFillStaysAsItIs) {
  GivenList bodies;
  host.Refusals().RefuseCall("MeshModel.CollectBodies", 1);
  model->CollectBodies(bodies.Get(), 0, 0, 0);
  EXPECT_TRUE(ValuesOf<MeshPart>(bodies.Get()).empty());
  model->CollectBodies(bodies.Get(), 0, 0, 0);
  EXPECT_EQ(ValuesOf<MeshPart>(bodies.Get()), std::vector<MeshPart*>{body_});

  GivenList nodes({Node(1)});
  GivenList elements;
  host.Refusals().RefuseCall("MeshModel.CollectNodeElements", 1);
  model->CollectNodeElements(0, nodes.Get(), elements.Get(), 0, 1, 0, 0, 0, 1, 0, 0, 0, 0);
  EXPECT_TRUE(ElementIds(elements.Get()).empty());

  Pressure* pressure = nullptr;
  ASSERT_EQ(boundary->CreatePressure(&pressure), 0);
  GivenList entities;
  host.Refusals().RefuseCall("BoundaryStore.GetEntitiesOfType", 1);
  boundary->GetEntitiesOfType(0, entities.Get());
  EXPECT_TRUE(ValuesOf<Entity>(entities.Get()).empty());
}

TEST_F(RefusedQuestions, AreTracedAsNull) {
  std::string text;
  TraceSink sink(&text, TraceSink::Coverage::All);
  host.SetTrace(&sink);
  host.Refusals().RefuseFrom("MeshModel.GetParts", 1);
  host.Refusals().RefuseFrom("MeshModel.CollectBodies", 1);
  PooledList* parts = nullptr;
  GivenList bodies;
  model->GetParts(&parts);
  model->CollectBodies(bodies.Get(), 0, 0, 0);
  EXPECT_EQ(text,
            "MeshModel.GetParts() -> null\n"
            "MeshModel.CollectBodies(0, 0, 0) -> null\n");
}

TEST(RefusedQuestionsWithNull, AListIsTakenBack) {
  HostOptions options;
  options.nullOnFailure = true;
  MemoryHost host(options);
  MeshModel* model = nullptr;
  host.GetProject()->GetMeshModel(&model, 1);
  PooledList* parts = nullptr;
  model->GetParts(&parts);
  EXPECT_NE(parts, nullptr);
  host.Refusals().RefuseCall("MeshModel.GetParts", 1);
  model->GetParts(&parts);
  EXPECT_EQ(parts, nullptr);
}

}  // namespace
}  // namespace btz::memory
