// Faces of solids by the nodes that name them, centres of faces, and which elements can carry loads.
#include "loads/element_faces.h"

#include <map>
#include <utility>

#include "loads/pressure_fixture.h"

namespace btz {
namespace {

using test::Ids;

constexpr std::int32_t untouched = -7;

/// Faces by the positions of two nodes. Position -1 is the id 0.
using FacesByPair = std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t>;

/// A solid of nodes 11, 12, 13... that is no host's.
class LooseElement {
 public:
  LooseElement(std::int32_t typeIndex, const Ids& ids) : nodes(ids.size()) {
    for (std::size_t i = 0; i < ids.size(); ++i) {
      nodes[i].id = ids[i];
      pointers.push_back(ids[i] == 0 ? nullptr : &nodes[i]);
    }
    element.typeIndex = typeIndex;
    element.nodes = pointers.data();
  }
  explicit LooseElement(std::int32_t typeIndex) : LooseElement(typeIndex, FirstIds(TopologyOf(ElementNodeCount, typeIndex))) {}

  static Ids FirstIds(std::int32_t count) {
    Ids ids;
    for (std::int32_t i = 0; i < count; ++i) {
      ids.push_back(11 + i);
    }
    return ids;
  }

  /// The face that two ids name, -1 for none.
  std::int32_t FaceOf(std::int32_t first, std::int32_t second) const {
    std::int32_t face = untouched;
    const bool found = FindElementFace(&element, first, second, &face);
    EXPECT_EQ(found, face != untouched) << first << " " << second;
    return found ? face : -1;
  }

  std::vector<MeshNode> nodes;
  std::vector<MeshNode*> pointers;
  MeshElement element = {};
};

std::int32_t IdAt(std::int32_t position) { return position < 0 ? 0 : 11 + position; }

/// Asks for every pair of an element's nodes, of none and of a strange node, in both orders.
void ExpectFaces(std::int32_t typeIndex, const FacesByPair& faces) {
  const LooseElement element(typeIndex);
  const std::int32_t count = TopologyOf(ElementNodeCount, typeIndex);
  for (std::int32_t a = -1; a <= count; ++a) {
    for (std::int32_t b = -1; b <= count; ++b) {
      const auto expected = faces.find({a, b});
      EXPECT_EQ(element.FaceOf(IdAt(a), IdAt(b)), expected == faces.end() ? -1 : expected->second)
          << "type " << typeIndex << ", nodes " << a << " and " << b;
    }
  }
}

/// Each pair in both orders.
FacesByPair BothOrders(const std::vector<std::array<std::int32_t, 3>>& pairs) {
  FacesByPair faces;
  for (const auto& [a, b, face] : pairs) {
    faces[{a, b}] = face;
    faces[{b, a}] = face;
  }
  return faces;
}

// Required: the first node is not looked at, and may be no node of the element at all.
TEST(ElementFaces, OfATetrahedronIsOppositeTheSecondNode) {
  for (const ElementType type : {elementTetra4, elementTetra10}) {
    FacesByPair faces;
    const std::int32_t strange = TopologyOf(ElementNodeCount, type);
    for (std::int32_t first = 0; first <= strange; ++first) {
      for (std::int32_t opposite = 0; opposite < 4; ++opposite) {
        faces[{first, opposite}] = opposite;
      }
    }
    ExpectFaces(type, faces);
  }
}

TEST(ElementFaces, OfAHexahedronLieBetweenOppositeCorners) {
  const FacesByPair faces = BothOrders(
      {{0, 2, 0}, {1, 3, 0}, {1, 4, 1}, {0, 5, 1}, {3, 6, 2}, {2, 7, 2}, {3, 4, 3}, {0, 7, 3}, {1, 6, 4}, {2, 5, 4}, {5, 7, 5}, {4, 6, 5}});
  ExpectFaces(elementHexa8, faces);
  ExpectFaces(elementHexa20, faces);
}

TEST(ElementFaces, OfAWedgeAreTrianglesByOneNodeAndQuadrilateralsByTwo) {
  FacesByPair faces = BothOrders({{1, 5, 1}, {2, 4, 1}, {2, 3, 2}, {0, 5, 2}, {0, 4, 3}, {1, 3, 3}});
  for (std::int32_t corner = 0; corner < 6; ++corner) {
    faces[{corner, -1}] = corner < 3 ? 0 : 4;
  }
  ExpectFaces(elementWedge6, faces);
  ExpectFaces(elementWedge15, faces);
}

// Required: those of a pyramid are never found.
TEST(ElementFaces, OfOtherTypesAreNotFound) {
  for (std::int32_t type = 0; type < 20; ++type) {
    const bool isKnown = type == elementTetra4 || type == elementTetra10 || type == elementHexa8 || type == elementHexa20 ||
                         type == elementWedge6 || type == elementWedge15;
    if (!isKnown) {
      ExpectFaces(type, {});
    }
  }
  for (const std::int32_t type : {-1, 20, 1000}) {
    LooseElement element(elementHexa8);
    element.element.typeIndex = type;
    EXPECT_EQ(element.FaceOf(11, 13), -1) << type;
  }
}

TEST(ElementFaces, OfNoElementAreNotFound) {
  std::int32_t face = untouched;
  EXPECT_FALSE(FindElementFace(nullptr, 11, 13, &face));
  LooseElement element(elementHexa8);
  element.element.nodes = nullptr;
  EXPECT_FALSE(FindElementFace(&element.element, 11, 13, &face));
  EXPECT_EQ(face, untouched);
}

TEST(ElementFaces, OfADegenerateSolidTheFirstPairOfTheTableCounts) {
  // Corners 5 and 7 are corners 2 and 0 again: the top's diagonal is the bottom's.
  EXPECT_EQ(LooseElement(elementHexa8, {11, 12, 13, 14, 15, 13, 17, 11}).FaceOf(11, 13), 0);
  // Corners 4 and 6 are corners 1 and 4 of the front face.
  EXPECT_EQ(LooseElement(elementHexa8, {11, 12, 13, 14, 15, 16, 12, 18}).FaceOf(15, 12), 1);
  EXPECT_EQ(LooseElement(elementTetra4, {11, 12, 12, 14}).FaceOf(14, 12), 1);
  EXPECT_EQ(LooseElement(elementWedge6, {11, 12, 13, 12, 15, 11}).FaceOf(11, 0), 0);
}

TEST(ElementFaces, CornersThatAreMissingNameNoFace) {
  const LooseElement hexa(elementHexa8, {11, 12, 0, 14, 15, 16, 17, 18});
  EXPECT_EQ(hexa.FaceOf(11, 0), -1);
  EXPECT_EQ(hexa.FaceOf(14, 12), 0);
  EXPECT_EQ(LooseElement(elementTetra4, {11, 12, 0, 14}).FaceOf(11, 0), -1);
  EXPECT_EQ(LooseElement(elementWedge6, {0, 12, 13, 14, 15, 16}).FaceOf(0, 0), -1);
  EXPECT_EQ(LooseElement(elementWedge6, {0, 12, 13, 14, 15, 16}).FaceOf(16, 0), 4);
}

std::vector<double> CentreOf(const MeshElement& element) {
  double centre[3] = {9.0, 9.0, 9.0};
  ElementFaceCentre(&element, centre);
  return {centre[0], centre[1], centre[2]};
}

void Place(LooseElement& element, std::size_t node, double x, double y, double z) {
  const double position[3] = {x, y, z};
  std::copy_n(position, 3, element.nodes[node].position);
}

TEST(ElementCentres, AreTheMeanOfTheCorners) {
  for (const ElementType type : {elementTria3, elementTria6}) {
    LooseElement triangle(type);
    for (std::size_t i = 0; i < triangle.nodes.size(); ++i) {
      Place(triangle, i, 100.0, 100.0, 100.0);
    }
    Place(triangle, 0, 0.0, 1.0, -3.0);
    Place(triangle, 1, 3.0, 1.0, 0.0);
    Place(triangle, 2, 6.0, 4.0, -3.0);
    EXPECT_EQ(CentreOf(triangle.element), (std::vector<double>{3.0, 2.0, -2.0})) << type;
  }
  for (const ElementType type : {elementQuad4, elementQuad8}) {
    LooseElement quadrilateral(type);
    for (std::size_t i = 0; i < quadrilateral.nodes.size(); ++i) {
      Place(quadrilateral, i, 100.0, 100.0, 100.0);
    }
    Place(quadrilateral, 0, 0.0, 0.0, 1.0);
    Place(quadrilateral, 1, 4.0, 0.0, 1.0);
    Place(quadrilateral, 2, 4.0, 2.0, 1.0);
    Place(quadrilateral, 3, 2.0, 2.0, 1.0);
    EXPECT_EQ(CentreOf(quadrilateral.element), (std::vector<double>{2.5, 1.0, 1.0})) << type;
  }
}

TEST(ElementCentres, OfASolidAreTheMeanOfAllCorners) {
  LooseElement hexa(elementHexa8);
  for (std::size_t i = 0; i < 8; ++i) {
    Place(hexa, i, static_cast<double>(i), 0.0, i < 4 ? 0.0 : 2.0);
  }
  EXPECT_EQ(CentreOf(hexa.element), (std::vector<double>{3.5, 0.0, 1.0}));
}

TEST(ElementCentres, CountACornerThatIsMissingAsTheOrigin) {
  LooseElement triangle(elementTria3, {11, 0, 13});
  Place(triangle, 0, 3.0, 0.0, 6.0);
  Place(triangle, 2, 3.0, 3.0, 0.0);
  EXPECT_EQ(CentreOf(triangle.element), (std::vector<double>{2.0, 1.0, 2.0}));
}

TEST(ElementCentres, OfWhatIsNoElementAreTheOrigin) {
  LooseElement none(elementTria3);
  for (const std::int32_t type : {-1, 17, 20}) {
    none.element.typeIndex = type;
    EXPECT_EQ(CentreOf(none.element), (std::vector<double>{0.0, 0.0, 0.0})) << type;
  }
}

class LoadCarriers : public test::PressuresTest {};

TEST_F(LoadCarriers, AreShellsAndFacesOfSolids) {
  MakeNodes(4);
  EXPECT_TRUE(StandsInFace(Make(1, elementTria3, {1, 2, 3}, 7)));
  const MeshElement* solid = Make(2, elementTetra4, {1, 2, 3, 4}, 8);
  MakeFaces();
  EXPECT_FALSE(StandsInFace(solid));
  EXPECT_TRUE(StandsInFace(solid->faces[0]));
  const LooseElement loose(elementTria3);
  EXPECT_FALSE(StandsInFace(&loose.element)) << "without an owner";
}

}  // namespace
}  // namespace btz
