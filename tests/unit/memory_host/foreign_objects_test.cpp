// Objects of one host given to another: wherever an operation takes an object, a strict host names the stranger.
#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

class ForeignObjects : public MemoryHostTest {
 protected:
  ForeignObjects() {
    other_.GetProject()->GetMeshModel(&otherModel, 1);
    otherModel->CreateBody(1, &otherBody, 1, 0, 1, 1);
    TopoEntity* entity = nullptr;
    otherModel->CreateTopoEntity(2, &entity, 1, otherBody, 1);
    otherFace = static_cast<TopoFace*>(entity);
  }

  /// The fault that `operation` on `object` has to report.
  void Expect(const std::string& operation, const std::string& object) {
    expectedFaults.push_back("memory host: " + operation + " on " + object + ": an object that this host never handed out");
  }

  MeshModel* otherModel = nullptr;
  MeshPart* otherBody = nullptr;
  TopoFace* otherFace = nullptr;
  BoundaryStore* otherStore() { return other_.GetBoundaryStore(); }
  HostProject* otherProject() { return other_.GetProject(); }

 private:
  MemoryHost other_;
};

TEST_F(ForeignObjects, OperationsOfTheModel) {
  Expect("FinishSolidPart", "MeshModel");
  Expect("MergeSplitPart", "MeshModel");
  Expect("CreateTopoEntity", "MeshModel");
  Expect("AttachModel", "HostProject");
  model->FinishSolidPart(otherBody, 0, 0, 0);
  model->MergeSplitPart(otherBody);
  TopoEntity* entity = nullptr;
  model->CreateTopoEntity(2, &entity, 1, otherBody, 1);
  EXPECT_EQ(entity, nullptr);
  host.GetProject()->AttachModel(otherModel, 1);
}

TEST_F(ForeignObjects, FacesOfABodyAndOfAFace) {
  MeshPart* body = MakeBody(1);
  TopoFace* face = MakeFace(body, 1);
  Expect("AddFace", "MeshPart#1");
  Expect("AddFace", "TopoFace#1");
  body->AddFace(otherFace, 1);
  face->AddFace(otherFace, 1);
  EXPECT_TRUE(FacesOf(body).empty());
}

TEST_F(ForeignObjects, ModelsOfACoordinateSystem) {
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  Expect("SetModels", "CoordinateSystem#1");
  system->SetModels(model, otherModel, model);
}

TEST_F(ForeignObjects, PartStoreAndEntitiesOfACut) {
  ForceLoad* otherForce = nullptr;
  Constraint* otherConstraint = nullptr;
  std::int32_t id = 0;
  ASSERT_EQ(otherStore()->CreateForce(&otherForce, &id), 0);
  ASSERT_EQ(otherStore()->CreateConstraint(&otherConstraint, 0), 0);
  Pretension* pretension = nullptr;
  ASSERT_EQ(boundary->CreatePretension(&pretension), 0);
  const CutPartStep step = {1, 5};
  for (int given = 0; given < 4; ++given) {
    Expect("AddPart", "Pretension#1");
  }
  pretension->AddPart(otherFace, &step, 0.0, otherStore(), &otherForce, &otherConstraint);
  const MemoryPretension::Cut& cut = host.Boundary().pretensions[0].cuts[0];
  EXPECT_EQ(cut.part, nullptr);
  EXPECT_EQ(cut.force, nullptr);
  EXPECT_EQ(cut.constraint, nullptr);
}

TEST_F(ForeignObjects, TheOwnerOfASpring) {
  Spring* spring = nullptr;
  boundary->CreateSpring(&spring);
  Expect("SetOwner", "Spring#1");
  spring->SetOwner(otherProject());
}

}  // namespace
}  // namespace btz::memory
