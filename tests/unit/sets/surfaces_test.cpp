// Contact surfaces: what the lines of a SURF card name, which faces the host is asked to make, and the set that comes of it.
#include "sets/surfaces.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "deck/name_comments.h"
#include "loads/load_parts.h"
#include "loads/load_sets.h"
#include "mesh/element_topology.h"
#include "sets/pretension.h"
#include "support/block_pool.h"
#include "tests/unit/deck/columns.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

/// Solids of the part 7 and cards that name them. The next part that is made gets the number 8.
class SurfaceCardTest : public MeshTest {
 protected:
  explicit SurfaceCardTest(const HostOptions& options = HostOptions()) : MeshTest(options) {
    MakeNodes(30);
    EnsurePart(model, 7, partOfSolids);
    Calls();
  }

  ~SurfaceCardTest() override {
    CloseFile();
    FreeDeckBuffer(&file);
  }

  /// Makes a solid of nodes `first`, `first` + 1 and so on.
  void MakeSolid(std::int32_t id, ElementType type, std::int32_t first = 1, std::int32_t partId = 7) {
    const auto count = static_cast<std::size_t>(TopologyOf(ElementNodeCount, type));
    std::vector<std::int32_t> nodes;
    for (std::size_t i = 0; i < count; ++i) {
      nodes.push_back(first + static_cast<std::int32_t>(i));
    }
    ASSERT_EQ(model->CreateElement(id, type, nodes.data(), partId, 0, 1, 0, 0), 0);
    Calls();
  }

  /// Gives every solid its faces: all sides but the shared ones, in the skin of the part.
  void FinishSolids() {
    model->UpdateTopology(0);
    Calls();
  }

  /// Two bricks of nodes 1 to 12, the second on top of the first. Side 5 of element 1 is side 0 of element 2, so neither has a face there.
  void MakeTwoBricks() {
    MakeSolid(1, elementHexa8, 1);
    MakeSolid(2, elementHexa8, 5);
    FinishSolids();
  }

  MeshElement* SolidElement(std::int32_t id) {
    MeshElement* element = nullptr;
    model->GetSolidElement(id, &element, 1);
    return element;
  }

  /// Puts the deck on a file with this text, its first chunk read.
  void Open(std::string_view text) {
    CloseFile();
    ASSERT_TRUE(AllocateDeckBuffer(&file));
    AttachDeckStream(&file, OpenFileUtf8(folder.Write("surfaces.bdf", text).c_str(), "rb"));
    ASSERT_EQ(ReadDeckChunk(&file), 0);
  }

  /// Reads the card at the start of a file with this text; what stands at the cursor afterwards.
  std::string Read(std::string_view text, const char* name = "Name") {
    Open(text);
    ReadSurfCard(&file, model, boundary, name);
    return file.cursor;
  }

  /// Reads a card of surface 5 with these lines, "element|first node|second node", and another card behind it.
  void ReadLines(const std::vector<std::string>& lines) {
    std::string text = "SURF    5       \n";
    for (const std::string& line : lines) {
      text += Small("+|" + line + "|");
    }
    EXPECT_EQ(Read(text + "ENDDATA\n"), "ENDDATA\n");
  }

  /// The one call of CreateFaces since the last question, without its answer: "[e1], [3]"; "none" when there is none.
  std::string FacesAskedFor() {
    std::string asked = "none";
    for (const std::string& call : Calls()) {
      const std::size_t at = call.find(".CreateFaces(");
      if (at != std::string::npos) {
        EXPECT_EQ(asked, "none") << "more than one call";
        const std::size_t from = at + std::string_view(".CreateFaces(").size();
        asked = call.substr(from, call.find(')') - from);
      }
    }
    return asked;
  }

  /// Takes the face away from a side of a solid, as if the host had made none there.
  void DropFace(std::int32_t elementId, std::int32_t side) { SolidElement(elementId)->faces[side] = nullptr; }

  /// The faces that a set lists, each with the elements that its mesh held at the end: "8: 1:0" is face 8 with side 0 of solid 1. A shell is given by its id.
  static std::string TextOf(const memory::MemoryFace& face) {
    std::string text = std::to_string(face.id) + ":";
    for (const MeshElement* element : face.mesh.elements.As<MeshElement>()) {
      const auto* made = static_cast<const memory::MemoryElement*>(element);
      text += " " + std::to_string(made->id) + (made->solid == nullptr ? "" : ":" + std::to_string(made->side));
    }
    return text;
  }

  /// The parts of the n-th set that the host has made, from 1, in words.
  Lines PartsOfSet(std::size_t number) {
    Lines texts;
    if (number > host.Boundary().sets.size()) {
      return {"no set"};
    }
    for (MeshPart* part : host.Boundary().sets[number - 1].info.parts.As<MeshPart>()) {
      texts.push_back(TextOf(*static_cast<memory::MemoryFace*>(static_cast<TopoFace*>(part))));
    }
    return texts;
  }

  std::size_t SetCount() const { return host.Boundary().sets.size(); }

  /// Numbers of the sets filed under an id, by order of creation from 1.
  std::vector<std::size_t> Filed(std::int32_t setId) const {
    std::vector<std::size_t> numbers;
    LoadSetRecord* record = FindLoadSet(setId, namedSet);
    if (record == nullptr) {
      return numbers;
    }
    WalkList<Entity>(&record->items, [&](const Entity* item) {
      for (std::size_t i = 0; i < SetCount(); ++i) {
        if (static_cast<const Entity*>(&host.Boundary().sets[i]) == item) {
          numbers.push_back(i + 1);
        }
      }
    });
    return numbers;
  }

  DeckBuffer file;
  BoundaryStore* boundary = host.GetBoundaryStore();

 private:
  void CloseFile() {
    if (file.stream != nullptr) {
      std::fclose(file.stream);
      file.stream = nullptr;
    }
  }
};

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

// Faces to be made, by every pair of nodes.

struct NamedFace {
  const char* nodes;
  const char* number;
};

class MissingFace : public SurfaceCardTest {
 protected:
  void Expect(ElementType type, const std::vector<NamedFace>& named) {
    MakeSolid(1, type, 11);
    FinishSolids();
    const std::int32_t sides = TopologyOf(ElementSideCount, type);
    for (const NamedFace& face : named) {
      for (std::int32_t side = 0; side < sides; ++side) {
        DropFace(1, side);
      }
      ReadLines({std::string("1|") + face.nodes});
      EXPECT_EQ(FacesAskedFor(), std::string("[e1], [") + face.number + "]") << face.nodes;
    }
  }
};

// Corners of the solids are nodes 11, 12 and so on.

constexpr NamedFace brickFaces[] = {{"11|13", "1"}, {"13|11", "1"}, {"14|12", "1"}, {"12|14", "1"}, {"15|12", "2"}, {"12|15", "2"},
                                    {"11|16", "2"}, {"16|11", "2"}, {"14|17", "3"}, {"17|14", "3"}, {"13|18", "3"}, {"18|13", "3"},
                                    {"14|15", "4"}, {"15|14", "4"}, {"11|18", "4"}, {"18|11", "4"}, {"12|17", "5"}, {"17|12", "5"},
                                    {"13|16", "5"}, {"16|13", "5"}, {"18|16", "6"}, {"16|18", "6"}, {"15|17", "6"}, {"17|15", "6"}};

TEST_F(MissingFace, OfAHexahedronByTheDiagonals) { Expect(elementHexa8, {std::begin(brickFaces), std::end(brickFaces)}); }

TEST_F(MissingFace, OfAHexahedronOfTwentyNodes) {
  MakeNodes(40);
  Expect(elementHexa20, {std::begin(brickFaces), std::end(brickFaces)});
}

TEST_F(MissingFace, OfAHexahedronByAnEdgeOrOneNodeHasTheNumberZero) {
  Expect(elementHexa8, {{"11|12", "0"}, {"11|15", "0"}, {"11|17", "0"}, {"11", "0"}, {"11|11", "0"}, {"11|30", "0"}, {"30|13", "0"}});
}

TEST_F(MissingFace, OfATetrahedronByTheNodeOpposite) {
  Expect(elementTetra4, {{"12|11", "1"}, {"11|12", "2"}, {"11|13", "3"}, {"11|14", "4"}});
}

TEST_F(MissingFace, OfATetrahedronWhateverItsFirstNodeIs) { Expect(elementTetra10, {{"99|11", "1"}, {"11|11", "1"}, {"-1|14", "4"}}); }

TEST_F(MissingFace, OfATetrahedronWithoutACornerOppositeHasTheNumberZero) {
  Expect(elementTetra10, {{"11", "0"}, {"11|15", "0"}, {"11|99", "0"}});
}

TEST_F(MissingFace, OfAWedgeByTheDiagonals) {
  Expect(elementWedge6, {{"12|16", "2"},
                         {"16|12", "2"},
                         {"13|15", "2"},
                         {"15|13", "2"},
                         {"13|14", "3"},
                         {"14|13", "3"},
                         {"11|16", "3"},
                         {"16|11", "3"},
                         {"11|15", "4"},
                         {"15|11", "4"},
                         {"12|14", "4"},
                         {"14|12", "4"}});
}

TEST_F(MissingFace, OfAWedgeByOneCornerOfATriangle) {
  Expect(elementWedge15, {{"11", "1"}, {"12", "1"}, {"13", "1"}, {"14", "5"}, {"15", "5"}, {"16", "5"}});
}

TEST_F(MissingFace, OfAWedgeByOtherNodesHasTheNumberZero) {
  Expect(elementWedge15, {{"17", "0"}, {"11|12", "0"}, {"11|14", "0"}, {"11|13", "0"}});
}

TEST_F(MissingFace, OfAPyramidHasTheNumberZero) { Expect(elementPyramid5, {{"11|13", "0"}, {"11", "0"}, {"11|15", "0"}}); }

// A number 0 is a face for the host to leave out. The part that it gives all the same holds nothing and is not in the set.
TEST_F(MissingFace, WithTheNumberZeroIsNotInTheSet) {
  MakeTwoBricks();
  ReadLines({"1|1|2", "1|5|7", "2|1|3"});
  EXPECT_EQ(FacesAskedFor(), "[e1, e1, e2], [0, 6, 0]");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:5"));
  ReadLines({"1|1|2"});
  EXPECT_EQ(FacesAskedFor(), "[e1], [0]");
  EXPECT_EQ(SetCount(), 1u);
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

// Where the lines end.

TEST_F(SurfaceCardTest, TextInTheFirstColumnsIsTheNextCard) {
  MakeTwoBricks();
  for (const char* next :
       {"GRID    1       5       7       \n", "$ 1     1       5       7       \n", "+A      1       5       7       \n",
        "1E +5   1       5       7       \n", "1.0D+3  1       5       7       \n", "1E5     1       5       7       \n"}) {
    EXPECT_EQ(Read("SURF    5       \n+       1       1       3       \n" + std::string(next)), next);
    EXPECT_EQ(FacesAskedFor(), "none") << next;
  }
  EXPECT_EQ(SetCount(), 6u);
}

TEST_F(SurfaceCardTest, AnyOtherTextInTheFirstColumnsIsPassedOver) {
  MakeTwoBricks();
  for (const char* head : {"+       ", "*       ", "++++++++", "1234    ", "1.0E+3  ", "e-      ", ",       ", "\x01       "}) {
    EXPECT_EQ(Read("SURF    5       \n" + std::string(head) + "1       5       7       \nENDDATA\n"), "ENDDATA\n");
    EXPECT_NE(FacesAskedFor(), "none") << head;
    DropFace(1, 5);
  }
}

TEST_F(SurfaceCardTest, LettersBehindTheFirstColumnsAreNumbers) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n+       1A      5B      7C      ELEM\nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
}

TEST_F(SurfaceCardTest, AnElementOfNumberZeroIsTheNextCard) {
  MakeTwoBricks();
  for (const char* next : {"+       0       5       7       \n", "+               5       7       \n", "+       X       5       7       \n",
                           "+\n", "+       \n", "\n", "        \n", "12345678\n"}) {
    EXPECT_EQ(Read("SURF    5       \n+       1       5       7       \n" + std::string(next) + "+       2       5       7       \n"),
              next + std::string("+       2       5       7       \n"));
    EXPECT_EQ(FacesAskedFor(), "[e1], [6]") << next;
    DropFace(1, 5);
  }
}

TEST_F(SurfaceCardTest, AnElementOfNumberZeroIsNotAskedFor) {
  MakeTwoBricks();
  std::int32_t asked = 0;
  host.SetHook([&](const char* /*type*/, const char* operation) { asked += std::string_view(operation) == "GetSolidElement" ? 1 : 0; });
  Read("SURF    5       \n+       1       5       7       \n+       0       \n");
  EXPECT_EQ(asked, 1);
  Read("SURF    5       \n+       1       5       7       \n+       -1      \n");
  EXPECT_EQ(asked, 3);
}

TEST_F(SurfaceCardTest, AnElementThatDoesNotExistIsTheNextCard) {
  MakeTwoBricks();
  EnsurePart(model, 3, partOfSurfaces);
  const std::int32_t corners[] = {1, 2, 3, 4};
  ASSERT_EQ(model->CreateElement(70, elementQuad4, corners, 3, 0, 0, 1, 0), 0);
  Calls();
  for (const char* next :
       {"+       99      5       7       \n", "+       -1      5       7       \n", "+       70      1       3       \n"}) {
    EXPECT_EQ(Read("SURF    5       \n+       1       5       7       \n" + std::string(next) + "+       2       5       7       \n"),
              next + std::string("+       2       5       7       \n"));
    EXPECT_EQ(FacesAskedFor(), "[e1], [6]") << next;
    DropFace(1, 5);
  }
}

TEST_F(SurfaceCardTest, TheNextSurfaceIsTheNextCard) {
  MakeTwoBricks();
  const std::string second = "SURF    6       \n+       2       9       11      \n";
  EXPECT_EQ(Read("SURF    5       \n+       1       1       3       \n" + second), second);
}

// Columns.

// A line is trimmed before its columns are counted: what leads it moves it.
TEST_F(SurfaceCardTest, ALineLedByBlanksLosesItsColumns) {
  MakeTwoBricks();
  for (const char* line : {"        1       5       7       \n", "\t       1       \n", "       +1       \n"}) {
    EXPECT_EQ(Read("SURF    5       \n" + std::string(line)), line);
  }
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SurfaceCardTest, BlanksInFrontOfTheMarkAreNotCounted) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n \t +       1       5       7       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
}

// Without a mark the element is passed over as the line's head, and the nodes stand for element and first node.
TEST_F(SurfaceCardTest, ALineLedByBlanksNamesItsFirstNodeAsTheElement) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n        99      2       9       11      \nENDDATA\n"), "ENDDATA\n");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 2:5"));
}

TEST_F(SurfaceCardTest, NumbersMayFillTheirColumns) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    0000000500\n+       000000010000000500000007ABCD\nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u)) << "the rest of the first line is not looked at";
}

TEST_F(SurfaceCardTest, ALineMayEndBehindAnyField) {
  MakeTwoBricks();
  for (const char* line :
       {"+       1       5       7", "+       1       5       7       9999", "+       1       5       7       9999    88"}) {
    EXPECT_EQ(Read("SURF    5\n" + std::string(line) + "\nENDDATA\n"), "ENDDATA\n");
    EXPECT_EQ(FacesAskedFor(), "[e1], [6]") << line;
    DropFace(1, 5);
  }
  EXPECT_EQ(Read("SURF    5\n+       1\n+       2       5\nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e2], [0]");
}

TEST_F(SurfaceCardTest, LargeFieldsAreSixteenColumnsWideFromTheHeadOn) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF*                  5 9\n"
                 "*                          1               5               7\n"
                 "*               2                               \n"
                 "*               0               \n"),
            "*               0               \n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u)) << "columns 9 to 24";
}

// The usual large line, with an element in columns 9 to 24: half of that field counts to the head.
TEST_F(SurfaceCardTest, ALargeLineOfAMarkOfEightColumnsIsReadHalfAFieldOff) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF*                  5\n"
                 "*                      1               5               7\n"
                 "ENDDATA\n"),
            "ENDDATA\n");
  // Columns 17 to 32 hold "       1        ", 33 to 48 "       5", 49 to 64 "       7".
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_EQ(Read("SURF*   5               \n*       1               5               7               \n"),
            "*       1               5               7               \n")
      << "left-bound numbers are out of place";
}

TEST_F(SurfaceCardTest, TextInSixteenColumnsEndsALargeCard) {
  MakeTwoBricks();
  const std::string next = "*       X       1               5               7               \n";
  EXPECT_EQ(Read("SURF*   5               \n" + next), next);
  EXPECT_EQ(Read("SURF    5       \n" + next), next) << "X is no element in small fields";
}

// Forms of the first line.

// The letters that drop a card are not those of the keyword, so only text that is no surface is dropped.
TEST_F(SurfaceCardTest, TheKeywordSurrWithACommaIsLeftAlone) {
  MakeTwoBricks();
  const std::string text = "SURR,   5       \n+       1       5       7       \n";
  EXPECT_EQ(Read(text), text);
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(SurfaceCardTest, AKeywordWithACommaGoesOnInColumns) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF,9, 5       \n+       1       5       7       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u));
  EXPECT_THAT(Filed(9), IsEmpty());
}

TEST_F(SurfaceCardTest, OtherTextInTheKeywordFieldDoesNotMatter) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURFACE15       \n+       1       5       7       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_THAT(Filed(5), ElementsAre(1u));
  EXPECT_EQ(Read("SURR    6       \n+       1       5       7       \nENDDATA\n"), "ENDDATA\n");
  EXPECT_THAT(Filed(6), ElementsAre(2u));
}

TEST_F(SurfaceCardTest, AFirstLineThatIsTooShortHasTheNumberZero) {
  MakeTwoBricks();
  for (const char* first : {"SURF\n", "SURF    \n", "SURF    X\n", "SURF    \r\n", "SURF*\n"}) {
    const std::string head(first[4] == '*' ? 16 : 8, '+');
    const std::string line = first[4] == '*' ? "1               5               7               \n" : "1       5       7       \n";
    EXPECT_EQ(Read(first + head + line + "ENDDATA\n"), "ENDDATA\n");
  }
  EXPECT_THAT(Filed(0), ElementsAre(1u, 2u, 3u, 4u, 5u));
}

TEST_F(SurfaceCardTest, ANegativeNumberMakesASetThatIsFiledNowhere) {
  MakeTwoBricks();
  Read("SURF    -5      \n+       1       5       7       \nENDDATA\n");
  EXPECT_EQ(SetCount(), 1u);
  EXPECT_EQ(LoadSetTable.size, 0);
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

// Bolts.

class SurfaceBolts : public SurfaceCardTest {
 protected:
  SurfaceBolts() { MakeTwoBricks(); }

  PretensionRecord* AddBolt(std::int32_t boltId, std::int32_t targetId, std::int32_t isElement = 0) {
    auto* bolt = static_cast<PretensionRecord*>(AllocateZeroed(sizeof(PretensionRecord)));
    *bolt = {boltId, targetId, isElement, nullptr};
    EXPECT_EQ(HashInsert(&PretensionTable, bolt), 1);
    return bolt;
  }

  /// The id of the face that a bolt is cut at; 0 when it has none.
  static std::int32_t CutOf(const PretensionRecord* bolt) {
    return bolt->cutPart == nullptr ? 0 : static_cast<memory::MemoryFace*>(static_cast<TopoFace*>(bolt->cutPart))->id;
  }
};

TEST_F(SurfaceBolts, ABoltOfTheNumberIsCutAtTheFacesMade) {
  PretensionRecord* bolt = AddBolt(5, 99);
  PretensionRecord* other = AddBolt(6, 99);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 8);
  EXPECT_EQ(bolt->cutPart, host.Boundary().sets[0].info.parts.First());
  EXPECT_EQ(CutOf(other), 0);
}

TEST_F(SurfaceBolts, ABoltThatNamesTheSurfaceIsCutToo) {
  PretensionRecord* other = AddBolt(1, 6);
  PretensionRecord* bolt = AddBolt(2, 5);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 8);
  EXPECT_EQ(CutOf(other), 0);
}

TEST_F(SurfaceBolts, ABoltOfTheNumberWinsOverOneThatNamesTheSurface) {
  PretensionRecord* names = AddBolt(1, 5);
  PretensionRecord* bears = AddBolt(5, 77);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(names), 0);
  EXPECT_EQ(CutOf(bears), 8);
}

// The table has 501 buckets: bolt 600 comes behind bolt 2, though it was read first, and bolt 503 behind both in one bucket with 2.
TEST_F(SurfaceBolts, OfSeveralThatNameTheSurfaceTheFirstOfTheTableIsCut) {
  PretensionRecord* late = AddBolt(600, 5);
  PretensionRecord* first = AddBolt(2, 5);
  PretensionRecord* behind = AddBolt(503, 5);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(first), 8);
  EXPECT_EQ(CutOf(late), 0);
  EXPECT_EQ(CutOf(behind), 0);
}

TEST_F(SurfaceBolts, ABoltCutAtAnElementOfThatNumberCountsToo) {
  PretensionRecord* bolt = AddBolt(1, 5, 1);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 8);
}

TEST_F(SurfaceBolts, ANegativeNumberIsNoBolts) {
  PretensionRecord* bolt = AddBolt(1, -5);
  Read("SURF    -5      \n+       1       5       7       \nENDDATA\n");
  EXPECT_EQ(CutOf(bolt), 0);
}

TEST_F(SurfaceBolts, FacesThatExistCutNoBolt) {
  PretensionRecord* bolt = AddBolt(5, 0);
  ReadLines({"1|1|3"});
  EXPECT_EQ(SetCount(), 1u);
  EXPECT_EQ(CutOf(bolt), 0);
}

TEST_F(SurfaceBolts, TheLastSurfaceOfANumberCuts) {
  PretensionRecord* bolt = AddBolt(5, 0);
  ReadLines({"1|5|7"});
  ReadLines({"2|5|7"});
  EXPECT_EQ(CutOf(bolt), 9);
  ReadLines({"1|1|3"});
  EXPECT_EQ(CutOf(bolt), 9);
}

TEST_F(SurfaceBolts, APartWithoutAFaceCutsToo) {
  PretensionRecord* bolt = AddBolt(5, 0);
  ReadLines({"1|1|2"});
  EXPECT_EQ(SetCount(), 0u);
  EXPECT_EQ(CutOf(bolt), 8);
}

TEST_F(SurfaceBolts, FacesThatWereRefusedCutNothing) {
  PretensionRecord* bolt = AddBolt(5, 0);
  host.Refusals().RefuseFrom("TopoFace.CreateFaces", 1);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 0);
  SolidElement(1)->owner = nullptr;
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 0);
}

TEST_F(SurfaceBolts, FacesThatWereRefusedLeaveTheCutOfAnEarlierSurface) {
  PretensionRecord* bolt = AddBolt(5, 0);
  ReadLines({"1|5|7"});
  host.Refusals().RefuseFrom("TopoFace.CreateFaces", 1);
  ReadLines({"2|5|7"});
  EXPECT_EQ(CutOf(bolt), 8);
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

// Line ends, chunks and the end of the deck.

TEST_F(SurfaceCardTest, CarriageReturnsDoNotMatter) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5\r\n+       1       5       7\r\n+       2\r\nGRID    1\r\n"), "GRID    1\r\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u));
  EXPECT_EQ(Read("SURF    5       \r\n\r\n+       1       5       7\r\n"), "\r\n+       1       5       7\r\n") << "an empty line ends";
}

TEST_F(SurfaceCardTest, TheEndOfTheDeckEndsTheCard) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n+       1       5       7       \n"), "");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  EXPECT_THAT(Filed(5), ElementsAre(1u));
}

TEST_F(SurfaceCardTest, ALastLineWithoutALineEndIsNotTaken) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       \n+       1       5       7       \n+       2       9       11      "), "");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:5"));
  EXPECT_EQ(Read("SURF    5       \n+       1       5       7       "), "");
  EXPECT_EQ(SetCount(), 1u);
}

TEST_F(SurfaceCardTest, AFirstLineWithoutALineEndMakesNothing) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       "), "SURF    5       ");
  EXPECT_THAT(Calls(), IsEmpty());
}

// A chunk that holds nothing but one card is cut at a line's end, in the middle of the card.
TEST_F(SurfaceCardTest, ACardGoesOnInTheNextChunk) {
  MakeTwoBricks();
  std::string text = "SURF    5       \n+       1       1       3       \n";
  while (text.size() <= deckChunkLimit) {
    text += Small("+|1|0|0|") + Small("+|2||||||||");
  }
  EXPECT_EQ(Read(text + "+       2       9       11      \n" + "+       1       5       7       \n" + "GRID    1\n"), "GRID    1\n");
  EXPECT_THAT(PartsOfSet(1), ElementsAre("9: 1:0 2:5", "8: 1:5"));
  EXPECT_EQ(SetCount(), 1u);
}

TEST_F(SurfaceCardTest, TheNextCardMayStandInTheNextChunk) {
  MakeTwoBricks();
  // Its line crosses the end of the first chunk, which is cut in front of it.
  std::string text = "SURF    5       \n+       1       5       7       \n+       2";
  text.resize(deckChunkLimit - 5, ' ');
  text += "\n";
  EXPECT_EQ(Read(text + "GRID    1\n"), "GRID    1\n");
  EXPECT_EQ(file.cursor, file.block) << "at the start of the second chunk";
  EXPECT_THAT(PartsOfSet(1), ElementsAre("8: 1:5"));
}

TEST_F(SurfaceCardTest, LongLinesAreCutNotSpilled) {
  MakeTwoBricks();
  EXPECT_EQ(Read("SURF    5       " + std::string(5000, '9') + "\n" + "+       1       5       7       " + std::string(5000, '9') + "\n" +
                 std::string(5000, '+') + "\n"),
            std::string(5000, '+') + "\n");
  EXPECT_EQ(FacesAskedFor(), "[e1], [6]");
  // Blanks count to the line's length: what stands behind the 511th byte is not seen.
  const std::string far = std::string(600, ' ') + "+       1       5       7       \n";
  EXPECT_EQ(Read("SURF    5       \n" + far), far);
}

TEST_F(SurfaceCardTest, ACardCutShortAnywhereIsSurvived) {
  MakeTwoBricks();
  const std::string card =
      "SURF    5       \n+       1       5       7       0       \n+       2       9       11      \n+       2       \nEND\n";
  for (std::size_t length = 1; length <= card.size(); ++length) {
    Read(card.substr(0, length));
    DropFace(1, 5);
  }
}

TEST_F(SurfaceCardTest, AByteChangedAnywhereIsSurvived) {
  MakeTwoBricks();
  for (const std::string& card : {std::string("SURF    5       \n+       1       5       7       \n+       2       9       11      \n"),
                                  std::string("SURF*   5\r\n*               1               5               7\r\n")}) {
    for (std::size_t at = 4; at < card.size(); ++at) {
      for (const char changed : {'\n', '\0', '*', '+', 'E', '9', ',', '-', '\t', '\xFF'}) {
        std::string text = card;
        text[at] = changed;
        Read(text);
        EXPECT_LE(file.cursor, file.block + text.size());
        DropFace(1, 5);
      }
    }
  }
}

}  // namespace
}  // namespace btz::test
