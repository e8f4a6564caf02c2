// Once the model is handed over, an operation is allowed by the kind of object it is called on, not by its name alone.
#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

class AfterHandOver : public MemoryHostTest {
 protected:
  void Expect(const std::string& operation, const std::string& object) {
    expectedFaults.push_back("memory host: " + operation + " on " + object + ": the model was handed over already");
  }
};

TEST_F(AfterHandOver, PartsOfAnEntityAreNoLongerAskedFor) {
  Pressure* pressure = nullptr;
  ASSERT_EQ(boundary->CreatePressure(&pressure), 0);
  host.GetProject()->AttachModel(model, 1);
  PooledList* list = nullptr;
  model->GetParts(&list);
  EXPECT_TRUE(faults.empty());
  Expect("GetParts", "Pressure#1");
  pressure->GetParts(&list);
}

TEST_F(AfterHandOver, ElementsOfASolidAreNoLongerAskedFor) {
  MakeNodes(7);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(2, 7, {4, 5, 6, 7}, 1), 0);
  FaceMesh* mesh = MeshOf(FacesOf(body)[0]);
  Solid* solid = nullptr;
  body->GetSolid(&solid);
  host.GetProject()->AttachModel(model, 1);
  PooledList* list = nullptr;
  mesh->GetElements(&list);
  EXPECT_TRUE(faults.empty());
  Expect("GetElements", "Solid#1");
  solid->GetElements(&list);
}

TEST_F(AfterHandOver, TheModelIsHandedOverOnce) {
  host.GetProject()->AttachModel(model, 1);
  Expect("AttachModel", "HostProject");
  host.GetProject()->AttachModel(model, 1);
}

TEST_F(AfterHandOver, TheMeshIsNoLongerChanged) {
  MakeNodes(3);
  MakeBody(1);
  host.GetProject()->AttachModel(model, 1);
  Expect("CreateElement", "MeshModel");
  Expect("Finish", "MeshModel");
  MakeElement(1, 3, {1, 2, 3}, 1);
  model->Finish();
}

}  // namespace
}  // namespace btz::memory
