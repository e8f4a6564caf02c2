// Contact surfaces: what the lines of a SURF card name, which faces the host is asked to make, and the set that comes of it.
#include "sets/surfaces.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>

#include "deck/name_comments.h"
#include "tests/unit/sets/surface_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What the host is told.

TEST_F(SurfaceCardTest, FacesThatExistAreSplitOffAndNamedAsASet) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n"
                 "+       1       1       3       \n"
                 "+       2       9       11      \n"
                 "GRID    1\n",
                 "Seal"),
            "GRID    1\n");
  // The lowest side of the first brick and the top of the second one, by their diagonals.
  EXPECT_THAT(Calls(), ElementsAre("FaceMesh#1.Rebuild()", "MeshModel.CreatePart(2, 8, MeshPart#1) -> TopoFace#2",
                                   "MeshPart#1.RegisterChildPart(8, 1, 0)", "FaceMesh#2.Rebuild()", "TopoFace#2.UpdateBounds()",
                                   "TopoFace#2.SetVisible(0)", "TopoFace#2.Finish()", "BoundaryStore.CreateSet() -> 0 EntitySet#1",
                                   "EntitySet#1.SetKind(2)", "EntitySet#1.SetMemberType(2)", "EntitySet#1.SetParts([TopoFace#2])",
                                   "EntitySet#1.SetName(\"Seal\")"));
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:0 2:5"));
  EXPECT_THAT(Filed(5), ElementsAre(1u));
}

TEST_F(SurfaceCardTest, FacesThatDoNotExistAreMadeAndNamedAsASet) {
  MakeTwoBricks();
  Read(
      "SURF    5       \n"
      "+       1       5       7       \n"
      "ENDDATA\n");
  // The owner is the volume of the part, asked for the first time.
  EXPECT_THAT(Calls(), ElementsAre("TopoFace#1.CreateFaces([e1], [6]) -> [f1:5] TopoFace#2", "BoundaryStore.CreateSet() -> 0 EntitySet#1",
                                   "EntitySet#1.SetKind(2)", "EntitySet#1.SetMemberType(2)", "EntitySet#1.SetParts([TopoFace#2])",
                                   "EntitySet#1.SetName(\"Name\")"));
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:5"));
  EXPECT_EQ(LoadPartList.size, 1);
}

TEST_F(SurfaceCardTest, FacesMadeComeBehindThoseThatExist) {
  MakeTwoBricks();
  ReadLines({"2|5|7", "1|5|7", "1|1|3"});
  EXPECT_THAT(Calls(), ElementsAre("TopoFace#2.CreateFaces([e2, e1], [1, 6]) -> [f2:0, f1:5] TopoFace#3", "FaceMesh#1.Rebuild()",
                                   "MeshModel.CreatePart(2, 9, MeshPart#1) -> TopoFace#4", "MeshPart#1.RegisterChildPart(9, 1, 0)",
                                   "FaceMesh#2.Rebuild()", "TopoFace#4.UpdateBounds()", "TopoFace#4.SetVisible(0)", "TopoFace#4.Finish()",
                                   "BoundaryStore.CreateSet() -> 0 EntitySet#1", "EntitySet#1.SetKind(2)", "EntitySet#1.SetMemberType(2)",
                                   "EntitySet#1.SetParts([TopoFace#4, TopoFace#3])", "EntitySet#1.SetName(\"Name\")"));
  EXPECT_THAT(PartsOfSet(1), ElementsAre("9: 1:0", "8: 2:0 1:5"));
}

TEST_F(SurfaceCardTest, AFaceNamedTwiceIsInTheSetOnce) {
  MakeTwoBricks();
  ReadLines({"1|1|3", "1|4|2", "1|1|3"});
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:0"));
}

// The host gives a face for each pair; the second takes the place of the first at the side of the solid.
TEST_F(SurfaceCardTest, AMissingFaceNamedTwiceIsAskedForTwice) {
  MakeTwoBricks();
  ReadLines({"1|5|7", "1|8|6"});
  EXPECT_EQ(FacesAskedFor(), "[e1, e1], [6, 6]");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:5 1:5"));
}

TEST_F(SurfaceCardTest, AFaceThatWasMadeExistsForTheNextSurface) {
  MakeTwoBricks();
  ReadLines({"1|5|7"});
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  ReadLines({"1|5|7"});
  EXPECT_EQ(FacesAskedFor(), "none");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:5"));
  EXPECT_THAT(PartsOfSet(2), ElementsAre("8: 1:5"));
  // From the other side it is another face.
  ReadLines({"2|5|7"});
  EXPECT_EQ(FacesAskedFor(), "[e2], [1]");
  EXPECT_THAT(PartsOfSet(3), ElementsAre("9: 2:0"));
}

// A set is no load: when its part is cut for a later surface it does not get the new piece.
TEST_F(SurfaceCardTest, ASecondSurfaceCutsWhatTheFirstCovers) {
  MakeTwoBricks();
  ReadLines({"1|1|3", "2|9|11"});
  Calls();
  ReadLines({"2|9|11"});
  EXPECT_THAT(Calls(), ElementsAre("FaceMesh#2.Rebuild()", "MeshModel.CreatePart(2, 9, MeshPart#1) -> TopoFace#3",
                                   "MeshPart#1.RegisterChildPart(9, 1, 0)", "FaceMesh#3.Rebuild()", "TopoFace#3.UpdateBounds()",
                                   "TopoFace#3.SetVisible(0)", "TopoFace#3.Finish()", "BoundaryStore.CreateSet() -> 0 EntitySet#2",
                                   "EntitySet#2.SetKind(2)", "EntitySet#2.SetMemberType(2)", "EntitySet#2.SetParts([TopoFace#3])",
                                   "EntitySet#2.SetName(\"Name\")"));
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:0"));
  EXPECT_THAT(PartsOfSet(2), ElementsAre("9: 2:5"));
  EXPECT_THAT(Filed(5), ElementsAre(1u, 2u));
}

TEST_F(SurfaceCardTest, AllFacesOfASkinAreThePartThatHoldsThem) {
  MakeSolid(1, elementTetra4);
  FinishSolids();
  ReadLines({"1|1|4", "1|1|3", "1|1|2", "1|2|1"});
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateSet() -> 0 EntitySet#1", "EntitySet#1.SetKind(2)", "EntitySet#1.SetMemberType(2)",
                                   "EntitySet#1.SetParts([TopoFace#1])", "EntitySet#1.SetName(\"Name\")"));
  EXPECT_THAT(PartsOfSet(1), ElementsAre("7: 1:0 1:1 1:2 1:3"));
}

TEST_F(SurfaceCardTest, AShellOnASideIsTheFace) {
  MakeSolid(1, elementHexa8);
  EnsurePart(model, 3, partOfSurfaces);
  const std::int32_t corners[] = {5, 6, 7, 8};
  ASSERT_EQ(model->CreateElement(70, elementQuad4, corners, 3, 0, 0, 1, 0), 0);
  FinishSolids();
  ReadLines({"1|5|7"});
  EXPECT_THAT(PartsOfSet(1), ElementsAre("3: 70"));
}

TEST_F(SurfaceCardTest, PartsStandInTheOrderInWhichTheirFacesAreNamed) {
  EnsurePart(model, 3, partOfSolids);
  MakeSolid(1, elementHexa8, 1, 7);
  MakeSolid(2, elementHexa8, 11, 3);
  FinishSolids();
  ReadLines({"2|11|13", "1|1|3", "2|15|17"});
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 2:0 2:5", "9: 1:0"));
}

// Whole elements.

// A solid stands in no face, and only what stands in one can be in a part of the set.
TEST_F(SurfaceCardTest, WholeSolidsAloneMakeNoSet) {
  MakeTwoBricks();
  ReadLines({"1", "2"});
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(SetCount(), 0u);
  EXPECT_EQ(LoadPartList.size, 0);
}

TEST_F(SurfaceCardTest, WholeSolidsAreLeftOutBesideFaces) {
  MakeTwoBricks();
  ReadLines({"1", "2|9|11", "2|0|7"});
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 2:5"));
}

TEST_F(SurfaceCardTest, WithoutAFirstNodeTheSecondIsNotLookedAt) {
  MakeSolid(1, elementTetra4);
  FinishSolids();
  DropFace(1, 0);
  ReadLines({"1||1"});
  EXPECT_THAT(Calls(), IsEmpty());
}

// A host is free to let its solids stand in faces.
TEST_F(SurfaceCardTest, WholeElementsThatStandInAFaceAreSplitOff) {
  MakeTwoBricks();
  TopoFace* skin = SolidElement(1)->faces[0]->owner;
  PooledList* elements = nullptr;
  FaceMesh* mesh = nullptr;
  skin->GetMesh(&mesh);
  mesh->GetElements(&elements);
  for (const std::int32_t id : {1, 2}) {
    SolidElement(id)->owner = skin;
    ListRewind(elements);
    ListAppend(elements, SolidElement(id));
  }
  Calls();
  ReadLines({"2", "1"});
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1 2")) << "in the order of a table by id";
}

TEST_F(SurfaceCardTest, AnEmptyCardMakesNothing) {
  EXPECT_EQ(Read("SURF    5       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SurfaceCardTest, AFaceInNoPartIsMadeAnew) {
  MakeTwoBricks();
  SolidElement(1)->faces[0]->owner = nullptr;
  ReadLines({"1|1|3"});
  EXPECT_EQ(FacesAskedFor(), "[e1], [1]");
}

TEST_F(SurfaceCardTest, AFaceInAVolumeIsMadeAnew) {
  MakeTwoBricks();
  SolidElement(1)->faces[0]->owner = SolidElement(1)->owner;
  ReadLines({"1|1|3"});
  EXPECT_EQ(FacesAskedFor(), "[e1], [1]");
}

TEST_F(SurfaceCardTest, AnElementThatHasNoFacesIsDropped) {
  MakeTwoBricks();
  MakeSolid(3, elementHexa8, 21);
  ASSERT_EQ(SolidElement(3)->faces, nullptr);
  ReadLines({"3|21|23", "2|9|11", "3|21|22"});
  EXPECT_EQ(FacesAskedFor(), "none");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 2:5")) << "the lines behind it are read";
}

TEST_F(SurfaceCardTest, AnElementThatStandsNowhereHasNoFacesMade) {
  MakeTwoBricks();
  SolidElement(1)->owner = nullptr;
  ReadLines({"1|5|7", "2|5|7", "2|9|11"});
  EXPECT_EQ(FacesAskedFor(), "none") << "the owner of the first element is the one asked";
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 2:5"));
}

TEST_F(SurfaceCardTest, TheOwnerOfTheFirstElementMakesTheFacesOfAll) {
  EnsurePart(model, 3, partOfSolids);
  MakeSolid(1, elementHexa8, 1, 7);
  MakeSolid(2, elementHexa8, 5, 3);
  FinishSolids();
  SolidElement(1)->owner->GetId();
  SolidElement(2)->owner->GetId();
  ReadLines({"2|5|7", "1|5|7"});
  EXPECT_EQ(Calls().front(), "TopoFace#2.CreateFaces([e2, e1], [1, 6]) -> [f2:0, f1:5] TopoFace#3");
}

// Names.

TEST_F(SurfaceCardTest, ANameOfItsNumberWinsOverTheNameGiven) {
  MakeTwoBricks();
  RegisterSetName(5, "Seal", 3);
  RegisterSetName(6, "Elements", 2);
  RegisterSetName(6, "Nodes", 1);
  RegisterSetName(1, "Element", 3);
  Read("SURF    5       \n+       1       5       7       \n", "Given");
  EXPECT_EQ(Calls().back(), "EntitySet#1.SetName(\"Seal\")");
  Read("SURF    6       \n+       1       5       7       \n", "Given");
  EXPECT_EQ(Calls().back(), "EntitySet#2.SetName(\"Given\")");
}

TEST_F(SurfaceCardTest, NamesAreWidenedByteByByteAndMayBeLongOrTaken) {
  MakeTwoBricks();
  Read("SURF    5       \n+       1       5       7       \n", "T\xFC\x72");
  EXPECT_EQ(Calls().back(), "EntitySet#1.SetName(\"T\\u{00FC}r\")");
  const std::string longName(255, 'n');
  for (int i = 2; i <= 3; ++i) {
    Read("SURF    5       \n+       1       5       7       \n", longName.c_str());
    EXPECT_EQ(Calls().back(), "EntitySet#" + std::to_string(i) + ".SetName(\"" + longName + "\")");
  }
  Read("SURF    5       \n+       1       5       7       \n", "");
  EXPECT_EQ(Calls().back(), "EntitySet#4.SetName(\"\")");
}

// Hosts that refuse.

class RefusedSurface : public SurfaceCardTest, public testing::WithParamInterface<bool> {
 protected:
  RefusedSurface() : SurfaceCardTest({.nullOnFailure = GetParam()}) { MakeTwoBricks(); }
};

TEST_P(RefusedSurface, WithoutNewFacesTheOthersAreTheSet) {
  host.Refusals().RefuseCall("TopoFace.CreateFaces", 1);
  ReadLines({"1|5|7", "1|1|3"});
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:0"));
}

TEST_P(RefusedSurface, WithoutAnyFaceThereIsNoSet) {
  host.Refusals().RefuseCall("TopoFace.CreateFaces", 1);
  ReadLines({"1|5|7"});
  EXPECT_THAT(Calls(), ElementsAre("TopoFace#1.CreateFaces([e1], [6]) -> null"));
}

TEST_P(RefusedSurface, ASetThatIsRefusedIsNotFiled) {
  host.Refusals().RefuseCall("BoundaryStore.CreateSet", 1);
  ReadLines({"1|1|3"});
  EXPECT_EQ(Calls().back(), "BoundaryStore.CreateSet() -> 1");
  EXPECT_EQ(LoadSetTable.size, 0);
  EXPECT_EQ(LoadPartList.size, 1) << "the part is split off all the same";
}

TEST_P(RefusedSurface, ASetThatIsNotHandedOutIsNotFiled) {
  host.Refusals().RefuseCall("BoundaryStore.CreateSet", 1, Refusal::EmptySuccess);
  ReadLines({"1|1|3"});
  EXPECT_EQ(Calls().back(), "BoundaryStore.CreateSet() -> 0");
  EXPECT_EQ(LoadSetTable.size, 0);
}

TEST_P(RefusedSurface, AnElementThatIsNotGivenIsTheNextCard) {
  host.Refusals().RefuseCall("MeshModel.GetSolidElement", 2);
  const std::string next = "+       2       9       11      \n";
  EXPECT_EQ(Read("SURF    5       \n+       1       1       3       \n" + next), next);
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:0"));
}

TEST_P(RefusedSurface, APartThatIsRefusedIsNotInTheSet) {
  host.Refusals().RefuseCall("MeshModel.CreatePart", 1);
  ReadLines({"1|1|3"});
  EXPECT_EQ(SetCount(), 0u);
}

INSTANTIATE_TEST_SUITE_P(, RefusedSurface, testing::Bool());

TEST_F(SurfaceCardTest, WithoutModelOrStoreNothingIsRead) {
  MakeTwoBricks();
  const std::string text = "SURF    5       \n+       1       5       7       \n";
  Open(text);
  ReadSurfCard(&file, nullptr, boundary, "Name");
  EXPECT_EQ(file.cursor, text);
  ReadSurfCard(&file, model, nullptr, "Name");
  EXPECT_EQ(file.cursor, text);
  EXPECT_THAT(Calls(), IsEmpty());
}

}  // namespace
}  // namespace btz::test
