// Faces that a contact surface needs and that do not exist: which number each pair of nodes asks the host for.
#include "sets/surfaces.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/unit/sets/surface_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

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

}  // namespace
}  // namespace btz::test
