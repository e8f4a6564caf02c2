// Parts cut to fit a load: which parts are used whole, which are split off and with what in them, and what other loads cover afterwards.
#include "loads/load_parts.h"

#include <string>
#include <utility>

#include "loads/pressure_fixture.h"

namespace btz {
namespace {

using test::ExpectedSplit;
using test::Ids;
using testing::ElementsAre;
using testing::IsEmpty;

class LoadParts : public test::PressuresTest {
 protected:
  LoadParts() {
    MakeNodes(20);
    ListCellPoolInit(&pool);
    ListInit(&elements, &pool);
  }
  ~LoadParts() override { ListCellPoolReset(&pool); }

  /// Triangles of one part.
  void MakeTriangles(const Ids& ids, std::int32_t partId) {
    for (const std::int32_t id : ids) {
      Make(id, elementTria3, {1, 2, 3}, partId);
    }
  }

  void Collect(const std::vector<MeshElement*>& given) {
    ListClear(&elements);
    for (MeshElement* element : given) {
      ListAppend(&elements, element);
    }
    CollectLoadParts(&elements, &parts, boundary);
  }

  void CollectShells(const Ids& ids) {
    std::vector<MeshElement*> given;
    for (const std::int32_t id : ids) {
      given.push_back(Shell(id));
    }
    Collect(given);
  }

  /// A pressure that covers the faces in which these shells stand.
  void CoverFacesOf(const Ids& shells) {
    const std::string before = trace;
    PooledList faces;
    ListInit(&faces, &pool);
    for (const std::int32_t id : shells) {
      ListAppend(&faces, static_cast<MeshPart*>(Shell(id)->owner));
    }
    Pressure* pressure = nullptr;
    boundary->CreatePressure(&pressure);
    pressure->SetParts(&faces);
    trace = before;
  }

  ListCellPool pool;
  PooledList elements;
};

TEST_F(LoadParts, OfAllElementsOfAPartAreThePart) {
  MakeTriangles({1, 2, 3}, 7);
  CollectShells({3, 1, 2});
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{1, 2, 3}}));
  EXPECT_EQ(PartsOf(&LoadPartList), (std::vector<Ids>{{1, 2, 3}}));
}

TEST_F(LoadParts, OfSomeElementsAreANewPart) {
  MakeTriangles({1, 2, 3}, 7);
  TopoFace* old = Shell(1)->owner;
  CollectShells({2});
  EXPECT_EQ(Calls(), ExpectedSplit("FaceMesh#1", "8", "MeshPart#1", "TopoFace#2", "FaceMesh#2"));
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{2}}));
  EXPECT_EQ(PartsOf(&LoadPartList), (std::vector<Ids>{{2}})) << "the old part is not listed";
  EXPECT_EQ(ElementsOf(old), (Ids{1, 3}));
  EXPECT_EQ(Shell(1)->owner, old);
  EXPECT_NE(Shell(2)->owner, old);
  EXPECT_EQ(Shell(2)->owner->GetId(), 8);
  EXPECT_EQ(ElementsOf(Shell(2)->owner), (Ids{2}));
}

TEST_F(LoadParts, TheNewPartEntersTheBody) {
  MakeTriangles({1, 2, 3}, 7);
  CollectShells({2});
  const auto& faces = host.Model().bodies[0].faces.As<TopoFace>();
  EXPECT_THAT(faces, ElementsAre(Shell(1)->owner, Shell(2)->owner));
}

// The order is that of a table by id with the first odd number of buckets above the length of the list.
TEST_F(LoadParts, ElementsOfTheNewPartStandInTheOrderOfATable) {
  MakeTriangles({1, 2, 5, 10, 12}, 7);
  CollectShells({12, 10, 5});  // 5 buckets: 12 in 2, then 10 and 5 in 0
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{10, 5, 12}}));
}

TEST_F(LoadParts, OfAListOfEvenLengthTheTableHasOneBucketMore) {
  MakeTriangles({1, 2, 5, 6, 10, 12}, 7);
  CollectShells({12, 6, 10, 5});  // 5 buckets: 12 in 2, 6 in 1, 10 and 5 in 0
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{10, 5, 6, 12}}));
}

TEST_F(LoadParts, TheTableIsMadeForTheWholeList) {
  MakeTriangles({1, 2, 5, 10, 12}, 7);
  MakeTriangles({20}, 8);
  MeshElement* solid = Make(1, elementTetra4, {1, 2, 3, 4}, 9);
  // 7 buckets, for solids and elements of other parts as well: 12 in 5, 10 in 3, 5 in 5.
  Collect({Shell(12), Shell(10), Shell(5), Shell(20), solid});
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{10, 12, 5}, {20}}));
}

TEST_F(LoadParts, IdsBelowOneCountAsZero) {
  MakeTriangles({1, 2, 3, 4, 5}, 7);
  Shell(2)->id = -6;
  MeshElement* nameless = Shell(2);
  ASSERT_EQ(nameless->id, -6);
  Collect({Shell(1), nameless, Shell(5)});  // 5 buckets: 1 in 1, then -6 and 5 in 0
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{-6, 5, 1}}));
}

TEST_F(LoadParts, AnElementNamedTwiceCountsOnce) {
  MakeTriangles({1, 2}, 7);
  CollectShells({1, 2, 1});
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{1, 2}}));
}

TEST_F(LoadParts, AnElementNamedTwiceIsSplitOffOnce) {
  MakeTriangles({1, 2}, 7);
  CollectShells({1, 1});
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{1}}));
  EXPECT_EQ(ElementsOf(Shell(2)->owner), (Ids{2}));
}

TEST_F(LoadParts, OfElementsOfSeveralPartsComeInTheOrderInWhichTheListNamesThem) {
  MakeTriangles({1, 2}, 7);
  MakeTriangles({3, 4}, 8);
  MakeTriangles({5}, 9);
  CollectShells({4, 2, 5, 1});
  EXPECT_EQ(Calls(), ExpectedSplit("FaceMesh#1", "10", "MeshPart#2", "TopoFace#4", "FaceMesh#2"));
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{4}, {1, 2}, {5}}));
  EXPECT_EQ(PartsOf(&LoadPartList), (std::vector<Ids>{{4}, {1, 2}, {5}}));
}

TEST_F(LoadParts, APartThatWasSplitOffIsSplitAgain) {
  MakeTriangles({1, 2, 3, 4}, 7);
  CollectShells({1, 2, 3});
  trace.clear();
  ListClear(&parts);
  CollectShells({2, 4});
  // Element 4 is all that the old part still has; 5 buckets do not matter for one element.
  EXPECT_EQ(Calls(), ExpectedSplit("FaceMesh#2", "9", "MeshPart#1", "TopoFace#3", "FaceMesh#3"));
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{2}, {4}}));
  EXPECT_EQ(ElementsOf(Shell(1)->owner), (Ids{1, 3}));
}

TEST_F(LoadParts, PartsAreAppendedToWhatTheListHolds) {
  MakeTriangles({1}, 7);
  MakeTriangles({2}, 8);
  CollectShells({2});
  CollectShells({1});
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{2}, {1}}));
}

TEST_F(LoadParts, OfFacesOfSolidsComeOutOfTheSkin) {
  MeshElement* tetra = Make(30, elementTetra4, {1, 2, 3, 4}, 9);
  MakeFaces();
  Collect({tetra->faces[3], tetra->faces[1]});
  EXPECT_EQ(Calls(), ExpectedSplit("FaceMesh#1", "10", "MeshPart#1", "TopoFace#2", "FaceMesh#2"));
  ASSERT_EQ(parts.size, 1);
  EXPECT_EQ(tetra->faces[1]->owner, tetra->faces[3]->owner);
  EXPECT_NE(tetra->faces[0]->owner, tetra->faces[1]->owner);
  EXPECT_EQ(tetra->faces[0]->owner, tetra->faces[2]->owner);
  // Faces of one solid bear one id and stand as they were named.
  FaceMesh* mesh = nullptr;
  tetra->faces[1]->owner->GetMesh(&mesh);
  PooledList* held = nullptr;
  mesh->GetElements(&held);
  std::vector<MeshElement*> found;
  WalkList<MeshElement>(held, [&](MeshElement* face) { found.push_back(face); });
  EXPECT_THAT(found, ElementsAre(tetra->faces[3], tetra->faces[1]));
}

TEST_F(LoadParts, OfAllFacesOfASkinAreTheSkin) {
  MeshElement* tetra = Make(30, elementTetra4, {1, 2, 3, 4}, 9);
  MakeFaces();
  Collect({tetra->faces[0], tetra->faces[1], tetra->faces[2], tetra->faces[3]});
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{30, 30, 30, 30}}));
}

TEST_F(LoadParts, WholeSolidsAreLeftOut) {
  MeshElement* tetra = Make(30, elementTetra4, {1, 2, 3, 4}, 9);
  MakeFaces();
  Collect({tetra});
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(parts.size, 0);
  EXPECT_EQ(LoadPartList.size, 0);
  EXPECT_EQ(tetra->mark, 0);
}

TEST_F(LoadParts, ElementsWithoutAnOwnerAreLeftOut) {
  MakeTriangles({1, 2}, 7);
  MeshElement* lost = Shell(2);
  TopoFace* owner = lost->owner;
  lost->owner = nullptr;
  Collect({lost, Shell(1)});
  lost->owner = owner;
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{1}}));
}

TEST_F(LoadParts, OfNothingAreNone) {
  Collect({});
  CollectLoadParts(nullptr, &parts, boundary);
  EXPECT_EQ(parts.size, 0);
  MakeTriangles({1, 2}, 7);
  ListAppend(&elements, Shell(1));
  CollectLoadParts(&elements, nullptr, boundary);
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(ElementsOf(Shell(1)->owner), (Ids{1, 2}));
}

TEST_F(LoadParts, ANullAmongTheElementsEndsTheList) {
  MakeTriangles({1, 2, 3}, 7);
  Collect({Shell(3), nullptr, Shell(2)});
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{3}}));
}

TEST_F(LoadParts, NodesOfTheElementsAreMarkedMidSideNodesToo) {
  Make(1, elementTria6, {1, 2, 3, 4, 5, 6}, 7);
  Make(2, elementTria3, {7, 8, 9}, 7);
  MeshElement* tetra = Make(3, elementTetra4, {10, 11, 12, 13}, 8);
  Collect({Shell(1), tetra});
  Ids marked;
  for (std::int32_t id = 1; id <= 20; ++id) {
    if (Node(id)->mark == 1) {
      marked.push_back(id);
    }
  }
  EXPECT_THAT(marked, ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(Shell(1)->mark, 0);
  EXPECT_EQ(Shell(2)->mark, 0);
}

TEST_F(LoadParts, AMidSideNodeThatIsMissingIsPassedBy) {
  Make(1, elementTria6, {1, 2, 3, 0, 5, 0}, 7);
  Make(2, elementTria3, {7, 8, 9}, 7);
  CollectShells({1});
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{1}}));
  EXPECT_EQ(Node(5)->mark, 1);
}

// What the new mesh holds when it is rebuilt: each element's nodes, shared ones as often as they are used.
TEST_F(LoadParts, TheNewMeshGetsTheNodesOfEachElement) {
  Make(1, elementTria3, {1, 2, 3}, 7);
  Make(2, elementTria6, {2, 3, 4, 5, 6, 7}, 7);
  Make(3, elementTria3, {7, 8, 9}, 7);
  std::vector<Ids> nodes;
  host.SetHook([&](const char* /*type*/, const char* operation) {
    if (std::string(operation) == "Rebuild") {
      nodes.emplace_back();
      for (const MeshNode* node : host.Model().bodies[0].madeFaces.back()->mesh.Nodes().As<MeshNode>()) {
        nodes.back().push_back(node->id);
      }
    }
  });
  CollectShells({1, 2});
  host.SetHook(nullptr);
  ASSERT_EQ(nodes.size(), 2U);
  EXPECT_THAT(nodes[1], ElementsAre(1, 2, 3, 2, 3, 4, 5, 6, 7));
}

TEST_F(LoadParts, APartWithoutAMeshIsLeftAsItIs) {
  MakeTriangles({1, 2}, 7);
  MakeTriangles({3, 4}, 8);
  host.Refusals().RefuseCall("TopoFace.GetMesh", 1);
  CollectShells({1, 3});
  host.Refusals().Clear();
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{3}}));
  EXPECT_EQ(ElementsOf(Shell(1)->owner), (Ids{1, 2}));
  // A later load finds it as it was.
  ListClear(&parts);
  CollectShells({1, 2});
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{1, 2}}));
}

TEST_F(LoadParts, AMeshWithoutAListIsLeftAsItIs) {
  MakeTriangles({1, 2}, 7);
  host.Refusals().RefuseCall("FaceMesh.GetElements", 1);
  CollectShells({1});
  host.Refusals().Clear();
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(parts.size, 0);
  EXPECT_EQ(ElementsOf(Shell(1)->owner), (Ids{1, 2}));
}

// Required: the elements have left their part by then.
TEST_F(LoadParts, ARefusedPartLeavesItsElementsInNone) {
  MakeTriangles({1, 2, 3}, 7);
  TopoFace* old = Shell(1)->owner;
  CoverFacesOf({1});
  host.Refusals().RefuseCall("MeshModel.CreatePart", 1);
  CollectShells({2});
  host.Refusals().Clear();
  EXPECT_THAT(Calls(), ElementsAre("FaceMesh#1.Rebuild()", "MeshModel.CreatePart(2, 8, MeshPart#1) -> null"));
  EXPECT_EQ(parts.size, 0);
  EXPECT_EQ(LoadPartList.size, 0);
  EXPECT_EQ(ElementsOf(old), (Ids{1, 3}));
  EXPECT_EQ(Shell(2)->owner, old);
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{1, 3}}));
}

TEST_F(LoadParts, WithoutAParentOrAModelNoPartIsMade) {
  MakeTriangles({1, 2, 3, 4}, 7);
  TopoFace* old = Shell(1)->owner;
  host.Refusals().RefuseCall("TopoFace.GetParent", 1);
  CollectShells({1});
  EXPECT_THAT(Calls(), ElementsAre("FaceMesh#1.Rebuild()"));
  host.Refusals().Clear();
  host.Refusals().RefuseCall("TopoFace.GetModel", 1);
  CollectShells({2});
  EXPECT_THAT(Calls(), ElementsAre("FaceMesh#1.Rebuild()"));
  host.Refusals().Clear();
  EXPECT_EQ(parts.size, 0);
  EXPECT_EQ(ElementsOf(old), (Ids{3, 4}));
}

TEST_F(LoadParts, ARefusedPartLeavesTheNextOneAlone) {
  MakeTriangles({1, 2}, 7);
  MakeTriangles({3, 4}, 8);
  host.Refusals().RefuseCall("MeshModel.CreatePart", 1);
  CollectShells({1, 3});
  host.Refusals().Clear();
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{3}}));
}

// The face is still the owner of what it lost, but can't give it to a later load.
TEST_F(LoadParts, ElementsWithoutAPartAreNotLoadedLater) {
  MakeTriangles({1, 2, 3, 4}, 7);
  host.Refusals().RefuseCall("MeshModel.CreatePart", 1);
  CollectShells({2});
  host.Refusals().Clear();
  trace.clear();
  CollectShells({2});
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(parts.size, 0);
  CollectShells({4, 2, 1});  // as many as the face still has, but not the same
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{1, 4}}));
  ListClear(&parts);
  CollectShells({2, 3});
  EXPECT_EQ(PartsOf(&parts), (std::vector<Ids>{{3}}));
}

TEST_F(LoadParts, AFaceWithAnEmptyMeshIsNoPartOfALoad) {
  MakeTriangles({1}, 7);
  FaceMesh* mesh = nullptr;
  Shell(1)->owner->GetMesh(&mesh);
  PooledList* held = nullptr;
  mesh->GetElements(&held);
  ListClear(held);
  CollectShells({1});
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(parts.size, 0);
}

TEST_F(LoadParts, ANewPartWithoutAMeshIsFinishedAllTheSame) {
  MakeTriangles({1, 2}, 7);
  host.Refusals().RefuseCall("TopoFace.GetMesh", 2);
  CollectShells({1});
  host.Refusals().Clear();
  EXPECT_THAT(Calls(), ElementsAre("FaceMesh#1.Rebuild()", "MeshModel.CreatePart(2, 8, MeshPart#1) -> TopoFace#2",
                                   "MeshPart#1.RegisterChildPart(8, 1, 0)", "TopoFace#2.UpdateBounds()", "TopoFace#2.SetVisible(0)",
                                   "TopoFace#2.Finish()"));
  EXPECT_EQ(parts.size, 1);
}

TEST_F(LoadParts, ALoadMadeEarlierGoesOnCoveringBothPieces) {
  MakeTriangles({1, 2, 3}, 7);
  MakeTriangles({4}, 8);
  CoverFacesOf({1, 4});
  CoverFacesOf({4});
  CollectShells({2});
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{1, 3}, {2}, {4}})) << "the new part stands behind the old one";
  EXPECT_EQ(PartsOfPressure(2), (std::vector<Ids>{{4}}));
  CollectShells({3});
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{1}, {3}, {2}, {4}}));
}

TEST_F(LoadParts, APartUsedWholeChangesNoOtherLoad) {
  MakeTriangles({1, 2}, 7);
  CoverFacesOf({1});
  CollectShells({1, 2});
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{1, 2}}));
}

/// An entity of any type with a list for each question.
class AnyEntity : public Entity {
 public:
  AnyEntity(std::int32_t type, std::int32_t applyKind) : type_(type), applyKind_(applyKind) {
    ListCellPoolInit(&pool_);
    for (PooledList* list : {&parts, &surfaceParts, &appliedParts, &contactParts}) {
      ListInit(list, &pool_);
    }
  }
  ~AnyEntity() { ListCellPoolReset(&pool_); }
  AnyEntity(const AnyEntity&) = delete;
  AnyEntity& operator=(const AnyEntity&) = delete;

  std::int32_t GetEntityType() override { return type_; }
  void GetName(wchar_t* out) override { *out = 0; }
  void GetId(std::int32_t* out) override { *out = 1; }
  void GetParts(PooledList** out) override { *out = &parts; }
  void GetSurfaceParts(PooledList** out) override { *out = &surfaceParts; }
  void GetAppliedParts(PooledList** out) override { *out = &appliedParts; }
  std::int32_t GetApplyKind() override { return applyKind_; }
  void GetContactParts(PooledList** out) override { *out = &contactParts; }
  std::int32_t GetGroupId() override { return 0; }

  PooledList parts;
  PooledList surfaceParts;
  PooledList appliedParts;
  PooledList contactParts;

 private:
  std::int32_t type_;
  std::int32_t applyKind_;
  ListCellPool pool_;
};

class CoveredParts : public LoadParts {
 protected:
  CoveredParts() {
    MakeTriangles({1}, 7);
    MakeTriangles({2}, 8);
    MakeTriangles({3}, 9);
    MakeTriangles({4}, 10);
    PooledList* entities = nullptr;
    boundary->GetEntities(&entities);
    known = entities;
  }

  MeshPart* Part(std::int32_t shell) { return Shell(shell)->owner; }

  void Enter(AnyEntity* entity) { ListAppend(known, static_cast<Entity*>(entity)); }

  /// Which shells stand in the parts of a list.
  Ids Shells(PooledList* list) {
    Ids shells;
    for (const Ids& part : PartsOf(list)) {
      shells.insert(shells.end(), part.begin(), part.end());
    }
    return shells;
  }

  void Fill(PooledList* list, const Ids& shells) {
    for (const std::int32_t shell : shells) {
      ListAppend(list, Part(shell));
    }
  }

  /// The parts of a pressure behind the replacement of shell 1's part by shell 2's.
  Ids Replaced(const Ids& before, bool removeOld) {
    AnyEntity entity(entityPressure, 0);
    Fill(&entity.parts, before);
    Enter(&entity);
    ReplaceOrAddPartInLoads(Part(1), Part(2), removeOld, boundary);
    ListClear(known);
    return Shells(&entity.parts);
  }

  PooledList* known = nullptr;
};

TEST_F(CoveredParts, AreAskedByTheTypeOfTheEntity) {
  enum Answer { None, Parts, Applied, Contact, Surface };
  constexpr std::pair<std::int32_t, Answer> answers[] = {{-1, None},    {0, Parts}, {1, Applied}, {2, Applied}, {3, Applied},  {4, None},
                                                         {5, None},     {6, None},  {10, None},   {11, Parts},  {12, None},    {13, Parts},
                                                         {14, Parts},   {15, None}, {21, None},   {23, None},   {24, None},    {29, None},
                                                         {22, Contact}, {43, None}, {45, None},   {47, None},   {44, Surface}, {101, None}};
  for (const auto& [type, answer] : answers) {
    AnyEntity entity(type, 0);
    for (PooledList* list : {&entity.parts, &entity.surfaceParts, &entity.appliedParts, &entity.contactParts}) {
      Fill(list, {1});
    }
    Enter(&entity);
    ReplaceOrAddPartInLoads(Part(1), Part(2), false, boundary);
    ListClear(known);
    const auto expected = [answer = answer](Answer list) { return list == answer ? Ids{1, 2} : Ids{1}; };
    EXPECT_EQ(Shells(&entity.parts), expected(Parts)) << type;
    EXPECT_EQ(Shells(&entity.appliedParts), expected(Applied)) << type;
    EXPECT_EQ(Shells(&entity.contactParts), expected(Contact)) << type;
    EXPECT_EQ(Shells(&entity.surfaceParts), expected(Surface)) << type;
  }
}

TEST_F(CoveredParts, OfLoadsOnNodesAreNone) {
  for (const std::int32_t type : {0, 1, 2, 3, 22, 44}) {
    for (const std::int32_t kind : {1, 2}) {
      AnyEntity entity(type, kind);
      for (PooledList* list : {&entity.parts, &entity.surfaceParts, &entity.appliedParts, &entity.contactParts}) {
        Fill(list, {1});
      }
      Enter(&entity);
      ReplaceOrAddPartInLoads(Part(1), Part(2), false, boundary);
      ListClear(known);
      const bool changed = entity.parts.size + entity.surfaceParts.size + entity.appliedParts.size + entity.contactParts.size > 4;
      EXPECT_EQ(changed, kind == 2 || type == 0 || type >= 22) << type << " kind " << kind;
    }
  }
}

TEST_F(CoveredParts, GetTheNewPartBehindTheOldOneWhereverItStands) {
  EXPECT_THAT(Replaced({1}, false), ElementsAre(1, 2));
  EXPECT_THAT(Replaced({1, 3}, false), ElementsAre(1, 2, 3));
  EXPECT_THAT(Replaced({3, 1, 4, 1}, false), ElementsAre(3, 1, 2, 4, 1, 2));
  EXPECT_THAT(Replaced({3, 4}, false), ElementsAre(3, 4));
  EXPECT_THAT(Replaced({}, false), IsEmpty());
}

// Required: the walk stands on the follower when the old part is out, so the new one goes behind that.
TEST_F(CoveredParts, LoseTheOldPartWhenToldSo) {
  EXPECT_THAT(Replaced({1}, true), ElementsAre(2));
  EXPECT_THAT(Replaced({3, 1, 4}, true), ElementsAre(3, 4, 2));
  EXPECT_THAT(Replaced({1, 3, 4}, true), ElementsAre(3, 2, 4));
  EXPECT_THAT(Replaced({3, 4}, true), ElementsAre(3, 4));
}

TEST_F(CoveredParts, OfEveryEntityAreChanged) {
  AnyEntity first(entityPressure, 0);
  AnyEntity second(entitySurface, 0);
  AnyEntity third(entityContact, 0);
  Fill(&first.parts, {1});
  Fill(&second.surfaceParts, {3, 1});
  Fill(&third.contactParts, {1});
  for (AnyEntity* entity : {&first, &second, &third}) {
    Enter(entity);
  }
  ReplaceOrAddPartInLoads(Part(1), Part(2), false, boundary);
  EXPECT_THAT(Shells(&first.parts), ElementsAre(1, 2));
  EXPECT_THAT(Shells(&second.surfaceParts), ElementsAre(3, 1, 2));
  EXPECT_THAT(Shells(&third.contactParts), ElementsAre(1, 2));
  ListClear(known);
}

TEST_F(CoveredParts, OfAHostWithoutEntitiesOrListsAreLeftAlone) {
  host.Refusals().RefuseCall("BoundaryStore.GetEntities", 1);
  ReplaceOrAddPartInLoads(Part(1), Part(2), false, boundary);
  host.Refusals().Clear();
  CoverFacesOf({1});
  host.Refusals().RefuseCall("Pressure.GetParts", 1);
  ReplaceOrAddPartInLoads(Part(1), Part(2), false, boundary);
  host.Refusals().Clear();
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{1}}));
}

}  // namespace
}  // namespace btz
