// Which faces stand in the face list of a body, and in what order, when one body has many.
#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

class FaceLists : public MemoryHostTest {
 protected:
  TopoFace* MakeChild(MeshPart* parent, std::int32_t id) {
    TopoEntity* entity = nullptr;
    model->CreatePart(topoFace, &entity, id, parent);
    return static_cast<TopoFace*>(entity);
  }
};

TEST_F(FaceLists, FacesStandInTheOrderInWhichTheyWereEntered) {
  MeshPart* body = model->CreateRigidBody(1);
  std::vector<TopoFace*> made;
  for (std::int32_t id = 10; id < 15; ++id) {
    made.push_back(MakeChild(body, id));
  }
  body->SetRigidFaceId(12, 1, 0);
  body->RegisterChildPart(10, 1, 0);
  body->AddFace(made[4], 1);
  EXPECT_EQ(FacesOf(body), (std::vector<TopoFace*>{made[2], made[0], made[4]}));
}

TEST_F(FaceLists, AFaceIsEnteredOnceWhicheverWay) {
  MeshPart* body = MakeBody(1);
  TopoFace* face = MakeChild(body, 9);
  body->RegisterChildPart(9, 1, 0);
  body->SetRigidFaceId(9, 1, 0);
  body->AddFace(face, 1);
  EXPECT_EQ(FacesOf(body), std::vector<TopoFace*>{face});
}

TEST_F(FaceLists, AnIdThatSeveralFacesBearEntersOneThatIsNotThereYet) {
  MakeNodes(4);
  MeshPart* body = MakeBody(5);
  TopoFace* child = MakeChild(body, 5);
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 5), 0);
  model->FinishSolidPart(body, 0, 0, 0);
  TopoFace* skin = SolidElement(1)->faces[0]->owner;
  EXPECT_EQ(FacesOf(body), std::vector<TopoFace*>{skin});
  body->RegisterChildPart(5, 1, 0);
  EXPECT_EQ(FacesOf(body), (std::vector<TopoFace*>{skin, child}));
}

TEST_F(FaceLists, AnIdOfAnotherBodysFaceEntersNothing) {
  MeshPart* first = MakeBody(1);
  MeshPart* second = MakeBody(2);
  MakeChild(first, 9);
  second->RegisterChildPart(9, 1, 0);
  EXPECT_TRUE(FacesOf(first).empty());
  EXPECT_TRUE(FacesOf(second).empty());
}

}  // namespace
}  // namespace btz::memory
