// Nodes, elements and parts of the in-memory host: what is refused, where elements end up, what the lists hold.
#include "memory_host/host_fixture.h"
#include "support/hash_table.h"

namespace btz::memory {
namespace {

class HostMesh : public MemoryHostTest {};

using Ids = std::vector<std::int32_t>;

TEST_F(HostMesh, ANodeOfATakenIdIsRefusedAndTheFirstStays) {
  MakeNode(5, 1.0, 2.0, 3.0);
  const double other[3] = {9.0, 9.0, 9.0};
  EXPECT_EQ(model->CreateNode(5, other, 0), -1);
  EXPECT_EQ(Node(5)->position[1], 2.0);
  EXPECT_EQ(host.Nodes().Size(), 1U);
}

TEST_F(HostMesh, ANodeIdBelowOneIsRefused) {
  const double xyz[3] = {0.0, 0.0, 0.0};
  EXPECT_EQ(model->CreateNode(0, xyz, 0), -1);
  EXPECT_EQ(model->CreateNode(-3, xyz, 0), -1);
  EXPECT_EQ(Node(0), nullptr);
  EXPECT_EQ(Node(-3), nullptr);
}

TEST_F(HostMesh, ANewNodeHasNoSystemAndNoMark) {
  MakeNode(5, 1.0, 2.0, 3.0);
  EXPECT_EQ(Node(5)->coordinateSystemId, 0);
  EXPECT_EQ(Node(5)->mark, 0);
}

TEST_F(HostMesh, ElementTypesOutsideOneToSixteenAreRefused) {
  MakeNodes(20);
  MakeBody(1);
  const Ids nodes = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20};
  for (const std::int32_t type : {-1, 0, 17, 18, 1000}) {
    EXPECT_EQ(MakeElement(1, type, nodes, 1), -1) << type;
  }
  for (const std::int32_t type : {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15, 16}) {
    EXPECT_EQ(MakeElement(100 + type, type, nodes, 1), 0) << type;
  }
}

TEST_F(HostMesh, ElementIdsAreTakenForEachRegisterApart) {
  MakeNodes(4);
  MakeBody(1);
  EXPECT_EQ(MakeElement(0, 5, {1, 2, 3, 4}, 1), -1);
  EXPECT_EQ(MakeElement(9, 5, {1, 2, 3, 4}, 1), 0);
  EXPECT_EQ(MakeElement(9, 1, {1, 2}, 1), -1) << "lines and shells share a register";
  EXPECT_EQ(MakeElement(9, 7, {1, 2, 3, 4}, 1), 0) << "solids have their own";
  EXPECT_EQ(MakeElement(9, 7, {1, 2, 3, 4}, 1), -1);
  EXPECT_EQ(Element(9)->typeIndex, 5);
  EXPECT_EQ(SolidElement(9)->typeIndex, 7);
}

TEST_F(HostMesh, APartIdWithoutBodyOrEdgeIsRefused) {
  MakeNodes(3);
  EXPECT_EQ(MakeElement(1, 3, {1, 2, 3}, 7), -1);
}

TEST_F(HostMesh, AnUnknownCornerIsRefusedAndAMissingMidSideNodeIsNull) {
  MakeNodes(6);
  MakeBody(1);
  EXPECT_EQ(MakeElement(1, 4, {1, 2, 99, 4, 5, 6}, 1), -1);
  EXPECT_EQ(MakeElement(1, 4, {1, 2, 0, 4, 5, 6}, 1), -1);
  ASSERT_EQ(MakeElement(1, 4, {1, 2, 3, 4, 0, 99}, 1), 0);
  EXPECT_EQ(NodeIds(*Element(1), 6), (Ids{1, 2, 3, 4, 0, 0}));
}

TEST_F(HostMesh, ARefusedElementLeavesNothingBehind) {
  MakeNodes(2);
  MeshPart* body = MakeBody(1);
  EXPECT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), -1);
  EXPECT_EQ(Element(1), nullptr);
  EXPECT_EQ(body->HasMesh(), 0);
  EXPECT_EQ(model->NextElementId(), 0);
  EXPECT_TRUE(FacesOf(body).empty());
}

TEST_F(HostMesh, AFreshElementIsUnmarked) {
  MakeNodes(3);
  MakeBody(1);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  const MeshElement* element = Element(1);
  EXPECT_EQ(element->rigidKind, 0);
  EXPECT_EQ(element->mark, 0);
  EXPECT_EQ(element->faces, nullptr);
  EXPECT_EQ(element->normal[2], 0.0);
}

TEST_F(HostMesh, ShellsAndLinesLieInTheFirstFaceOfTheBody) {
  MakeNodes(4);
  MeshPart* body = MakeBody(7);
  TopoFace* face = MakeFace(body, 7);
  EXPECT_TRUE(FacesOf(body).empty()) << "a face enters the list by AddFace";
  body->AddFace(face, 1);
  ASSERT_EQ(MakeElement(1, 5, {1, 2, 3, 4}, 7), 0);
  ASSERT_EQ(MakeElement(2, 1, {1, 2}, 7), 0);
  EXPECT_EQ(FacesOf(body), std::vector<TopoFace*>{face});
  EXPECT_EQ(ElementIds(ElementsOf(face)), (Ids{1, 2}));
  EXPECT_EQ(Element(1)->owner, face);
  EXPECT_EQ(Element(1)->owner->GetTopoKind(), 2);
  MeshPart* parent = nullptr;
  face->GetParent(&parent);
  EXPECT_EQ(parent, body);
}

TEST_F(HostMesh, AFirstFaceIsMadeOnDemand) {
  MakeNodes(4);
  MeshPart* body = MakeBody(7);
  ASSERT_EQ(MakeElement(1, 5, {1, 2, 3, 4}, 7), 0);
  ASSERT_EQ(FacesOf(body).size(), 1U);
  EXPECT_EQ(FacesOf(body)[0]->GetId(), 7);
  EXPECT_EQ(Element(1)->owner, FacesOf(body)[0]);
  EXPECT_EQ(model->NextPartId(), 1);
}

TEST_F(HostMesh, AddingAFaceTwiceEntersItOnce) {
  MeshPart* body = MakeBody(7);
  TopoFace* face = MakeFace(body, 7);
  body->AddFace(face, 1);
  body->AddFace(face, 1);
  EXPECT_EQ(FacesOf(body).size(), 1U);
  PooledList* list = nullptr;
  PooledList* same = nullptr;
  body->GetFaceList(&list);
  body->GetFaces(&same);
  EXPECT_EQ(list, same);
}

TEST_F(HostMesh, SolidsBelongToTheVolumeOfTheirBody) {
  MakeNodes(4);
  MeshPart* body = MakeBody(7);
  Solid* solid = nullptr;
  body->GetSolid(&solid);
  EXPECT_EQ(solid, nullptr) << "no solid element yet";
  EXPECT_FALSE(body->IsSolid());
  ASSERT_EQ(MakeElement(1, 7, {1, 2, 3, 4}, 7), 0);
  TopoFace* owner = SolidElement(1)->owner;
  EXPECT_EQ(owner->GetTopoKind(), 1);
  EXPECT_NE(owner->HasMesh(), 0);
  MeshPart* parent = nullptr;
  owner->GetParent(&parent);
  EXPECT_EQ(parent, body);
  EXPECT_TRUE(body->IsSolid());
  body->GetSolid(&solid);
  ASSERT_NE(solid, nullptr);
  PooledList* elements = nullptr;
  solid->GetElements(&elements);
  EXPECT_EQ(ElementIds(elements), Ids{1});
  Shell* shell = nullptr;
  solid->GetShell(&shell);
  EXPECT_NE(shell, nullptr);
}

TEST_F(HostMesh, HasMeshTellsOfAnyElement) {
  MakeNodes(4);
  MeshPart* empty = MakeBody(1);
  MeshPart* shell = MakeBody(2);
  TopoFace* face = MakeFace(empty, 1);
  empty->AddFace(face, 1);
  ASSERT_EQ(MakeElement(1, 5, {1, 2, 3, 4}, 2), 0);
  EXPECT_EQ(empty->HasMesh(), 0);
  EXPECT_EQ(face->HasMesh(), 0);
  EXPECT_NE(shell->HasMesh(), 0);
  EXPECT_FALSE(shell->IsSolid());
  ASSERT_NE(MeshOf(face), nullptr) << "a face has a mesh from the start";
}

TEST_F(HostMesh, ARigidElementLiesInTheFaceOfItsEdge) {
  MakeNodes(3);
  MeshPart* body = model->CreateRigidBody(1);
  TopoEntity* face = nullptr;
  TopoEntity* edge = nullptr;
  model->CreatePart(2, &face, 10, body);
  model->CreatePart(3, &edge, 11, body);
  EXPECT_TRUE(FacesOf(body).empty());
  body->SetRigidFaceId(10, 1, 0);
  static_cast<TopoFace*>(face)->AddEdge(static_cast<TopoEdge*>(edge), 1);
  ASSERT_EQ(MakeElement(900, 9, {2, 1, 3}, 11), 0);
  EXPECT_EQ(FacesOf(body), std::vector<TopoFace*>{static_cast<TopoFace*>(face)});
  EXPECT_EQ(Element(900)->owner, face);
  EXPECT_EQ(NodeIds(*Element(900), 2), (Ids{1, 3}));
  EXPECT_EQ(MakeElement(901, 9, {2, 1, 99}, 11), -1) << "all nodes of a rigid element have to exist";
  EXPECT_EQ(MakeElement(901, 9, {1, 1}, 12), -1) << "no such edge";
}

TEST_F(HostMesh, ARigidElementWithoutNodesHasANullForTheOneThatCounts) {
  MeshPart* body = model->CreateRigidBody(1);
  TopoEntity* edge = nullptr;
  model->CreatePart(3, &edge, 11, body);
  ASSERT_EQ(MakeElement(900, 9, {0}, 11), 0);
  EXPECT_EQ(Element(900)->nodes[0], nullptr);
  EXPECT_EQ(MakeElement(901, 9, {-1}, 11), -1);
}

TEST_F(HostMesh, ARegisteredChildEntersTheFacesOfItsParent) {
  MeshPart* body = MakeBody(7);
  TopoEntity* child = nullptr;
  model->CreatePart(2, &child, 12, body);
  body->RegisterChildPart(13, 1, 0);
  EXPECT_TRUE(FacesOf(body).empty());
  body->RegisterChildPart(12, 1, 0);
  EXPECT_EQ(FacesOf(body), std::vector<TopoFace*>{static_cast<TopoFace*>(child)});
}

TEST_F(HostMesh, TheNewestBodyOfAnIdTakesItsElements) {
  MakeNodes(3);
  MeshPart* first = MakeBody(-2);
  MeshPart* second = MakeBody(-2);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, -2), 0);
  EXPECT_EQ(first->HasMesh(), 0);
  EXPECT_NE(second->HasMesh(), 0);
}

TEST_F(HostMesh, PartsAreAllBodiesInOrderOfCreation) {
  MeshPart* a = MakeBody(9);
  MeshPart* b = model->CreateRigidBody(1);
  MeshPart* c = MakeBody(2);
  PooledList* list = nullptr;
  model->GetParts(&list);
  EXPECT_EQ(ValuesOf<MeshPart>(list), (std::vector<MeshPart*>{a, b, c}));
}

TEST_F(HostMesh, CollectBodiesAppendsWhatTheListDoesNotHold) {
  MeshPart* a = MakeBody(9);
  MeshPart* b = MakeBody(2);
  MeshPart* c = MakeBody(5);
  GivenList list({b});
  model->CollectBodies(list.Get(), 0, 0, 0);
  EXPECT_EQ(ValuesOf<MeshPart>(list.Get()), (std::vector<MeshPart*>{b, a, c}));
}

TEST_F(HostMesh, NamesAreEmptyUntilSet) {
  MeshPart* body = MakeBody(7);
  EXPECT_STREQ(body->GetName(), L"");
  body->SetName(L"Door");
  EXPECT_STREQ(body->GetName(), L"Door");
  EXPECT_EQ(body->IsNamed(), 0);
  body->SetNamed(1);
  EXPECT_EQ(body->IsNamed(), 1);
}

TEST_F(HostMesh, CollectNodeElementsGivesEachElementOnceInOrderOfCreation) {
  MakeNodes(8);
  MakeBody(1);
  ASSERT_EQ(MakeElement(30, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(20, 7, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(10, 3, {5, 6, 7}, 1), 0);
  ASSERT_EQ(MakeElement(40, 3, {6, 7, 2}, 1), 0);
  GivenList nodes({Node(2), Node(1)});
  GivenList out;
  model->CollectNodeElements(0, nodes.Get(), out.Get(), 0, 1, 0, 0, 0, 1, 0, 0, 0, 0);
  EXPECT_EQ(ElementIds(out.Get()), (Ids{30, 20, 40}));
  EXPECT_EQ(Node(2)->mark, 0) << "the working marks are the translator's";
}

TEST_F(HostMesh, CollectNodeElementsEndsWithFaceRecords) {
  MakeNodes(5);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(20, 7, {1, 2, 3, 4}, 1), 0);
  model->FinishSolidPart(body, 0, 0, 0);
  ASSERT_EQ(MakeElement(30, 1, {1, 5}, 1), 0);
  GivenList nodes({Node(1)});
  GivenList out;
  model->CollectNodeElements(0, nodes.Get(), out.Get(), 0, 1, 0, 0, 0, 1, 0, 0, 0, 0);
  const std::vector<MeshElement*> found = ValuesOf<MeshElement>(out.Get());
  ASSERT_EQ(found.size(), 5U);
  EXPECT_EQ(found[0], SolidElement(20));
  EXPECT_EQ(found[1], Element(30));
  EXPECT_EQ(found[2], SolidElement(20)->faces[1]) << "side 0 lies opposite node 1";
  EXPECT_EQ(found[3], SolidElement(20)->faces[2]);
  EXPECT_EQ(found[4], SolidElement(20)->faces[3]);
}

TEST_F(HostMesh, AllElementsStandInOneTable) {
  MakeNodes(4);
  MakeBody(1);
  HashTable* table = nullptr;
  model->GetAllElements(&table);
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(HashCount(table), 0);
  ASSERT_EQ(MakeElement(9, 5, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(9, 7, {1, 2, 3, 4}, 1), 0);
  ASSERT_EQ(MakeElement(2, 3, {1, 2, 3}, 1), 0);
  model->GetAllElements(&table);
  std::vector<void*> records;
  HashIterateStart(table);
  while (void* record = HashIterateNext(table)) {
    records.push_back(record);
  }
  // Five buckets for three elements: ids 9 and 9 in bucket 4, id 2 in bucket 2.
  EXPECT_EQ(records, (std::vector<void*>{Element(2), Element(9), SolidElement(9)}));
}

TEST_F(HostMesh, RebuildCollectsTheNodesInOrderOfFirstUse) {
  MakeNodes(6);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 3, {3, 1, 2}, 1), 0);
  ASSERT_EQ(MakeElement(2, 4, {2, 1, 5, 0, 6, 0}, 1), 0);
  FaceMesh* mesh = MeshOf(FacesOf(body)[0]);
  mesh->Rebuild();
  PooledList* nodes = nullptr;
  mesh->GetNodes(&nodes);
  EXPECT_EQ(ValuesOf<MeshNode>(nodes), (std::vector<MeshNode*>{Node(3), Node(1), Node(2), Node(5), Node(6)}));
}

TEST_F(HostMesh, ElementsMoveToANewFaceByEditingTheLists) {
  MakeNodes(4);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(2, 3, {2, 3, 4}, 1), 0);
  TopoFace* old = FacesOf(body)[0];
  PooledList* elements = ElementsOf(old);
  ListRewind(elements);
  ASSERT_EQ(ListNext(elements), Element(1));
  ASSERT_EQ(ListRemoveCurrent(elements, Element(1)), 0);
  MeshOf(old)->Rebuild();

  TopoEntity* made = nullptr;
  model->CreatePart(2, &made, model->NextPartId(), body);
  auto* face = static_cast<TopoFace*>(made);
  ListAppend(ElementsOf(face), Element(1));
  Element(1)->owner = face;
  body->RegisterChildPart(face->GetId(), 1, 0);
  MeshOf(face)->Rebuild();

  ASSERT_EQ(MakeElement(3, 3, {1, 2, 4}, 1), 0) << "the host goes on behind the edited list";
  EXPECT_EQ(ElementIds(ElementsOf(old)), (Ids{2, 3}));
  EXPECT_EQ(ElementIds(ElementsOf(face)), Ids{1});
  PooledList* nodes = nullptr;
  MeshOf(face)->GetNodes(&nodes);
  EXPECT_EQ(ValuesOf<MeshNode>(nodes), (std::vector<MeshNode*>{Node(1), Node(2), Node(3)}));
  EXPECT_EQ(FacesOf(body), (std::vector<TopoFace*>{old, face}));
  EXPECT_EQ(host.Model().bodies[0].ElementCount(), 3);
}

TEST_F(HostMesh, AnEmptiedListIsFilledFromItsStartAgain) {
  MakeNodes(3);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  PooledList* elements = ElementsOf(FacesOf(body)[0]);
  ListClear(elements);
  ASSERT_EQ(MakeElement(2, 3, {1, 2, 3}, 1), 0);
  ASSERT_EQ(MakeElement(3, 3, {1, 2, 3}, 1), 0);
  EXPECT_EQ(ElementIds(elements), (Ids{2, 3}));
}

TEST_F(HostMesh, DefectsAndMergesFollowTheScript) {
  MeshPart* body = MakeBody(1);
  EXPECT_EQ(model->CountDefects(3), 0);
  EXPECT_EQ(model->MergeSplitPart(body), 0);
  host.ScriptDefects({4});
  host.ScriptMerges({2, 1, 0, 3});
  EXPECT_EQ(model->CountDefects(3), 4);
  EXPECT_EQ(model->CountDefects(3), 0);
  EXPECT_EQ(model->MergeSplitPart(body), 2);
  EXPECT_EQ(model->MergeSplitPart(body), 1);
  EXPECT_EQ(model->MergeSplitPart(body), 0);
  EXPECT_EQ(model->MergeSplitPart(body), 3);
  EXPECT_EQ(model->MergeSplitPart(body), 0);
}

TEST_F(HostMesh, WhatIsOnlyRecordedCanBeRead) {
  MakeNodes(3);
  MeshPart* body = MakeBody(1);
  ASSERT_EQ(MakeElement(1, 3, {1, 2, 3}, 1), 0);
  TopoFace* face = FacesOf(body)[0];
  model->SetSourcePath("/decks/door.bdf");
  model->Reserve(10, 20);
  model->ReservePartElements(1, 15);
  body->SetLinePartId(1, 1);
  const float orange[3] = {1.0F, 0.5F, 0.0F};
  body->SetColor(orange);
  face->SetVisible(0);
  GivenList faces({face});
  body->SplitFaces(faces.Get(), 30.0, 0);
  model->UpdateTopology(0);
  model->RepairDefects();
  model->Finish();
  const MemoryModel& seen = host.Model();
  EXPECT_EQ(seen.sourcePath, "/decks/door.bdf");
  EXPECT_EQ(seen.reservedNodes, 10);
  EXPECT_EQ(seen.reservedElements, 20);
  EXPECT_EQ(seen.bodies[0].reservedElements, 15);
  EXPECT_EQ(seen.bodies[0].linePartId, 1);
  EXPECT_EQ(seen.bodies[0].colour[1], 0.5F);
  EXPECT_FALSE(seen.faces[0].visible);
  EXPECT_EQ(seen.bodies[0].splits, 1);
  EXPECT_EQ(seen.topologyUpdates, 1);
  EXPECT_EQ(seen.repairs, 1);
  EXPECT_TRUE(seen.finished);
  EXPECT_FALSE(host.IsAttached());
  host.GetProject()->AttachModel(model, 1);
  EXPECT_TRUE(host.IsAttached());
}

TEST_F(HostMesh, PartsKnowTheirModel) {
  MeshPart* body = MakeBody(1);
  TopoFace* face = MakeFace(body, 1);
  MeshModel* ofBody = nullptr;
  MeshModel* ofFace = nullptr;
  body->GetOwnerModel(&ofBody);
  face->GetModel(&ofFace);
  EXPECT_EQ(ofBody, model);
  EXPECT_EQ(ofFace, model);
}

}  // namespace
}  // namespace btz::memory
