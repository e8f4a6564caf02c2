// The direction that the host takes for a line element by itself: each way to choose the candidate, each rule for its signs; and the search for
// a coordinate system that holds another direction.
#include "mesh/line_orientation.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "mesh/coordinate_systems.h"
#include "mesh/element_topology.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

/// An element of one type between points that the test gives.
struct LooseElement {
  LooseElement(std::int32_t type, const Vector& from, const Vector& to) {
    std::copy(from.begin(), from.end(), first.position);
    std::copy(to.begin(), to.end(), second.position);
    element.typeIndex = type;
    element.nodes = nodes;
  }
  LooseElement(const LooseElement&) = delete;
  LooseElement& operator=(const LooseElement&) = delete;

  MeshNode first{};
  MeshNode second{};
  MeshNode* nodes[20] = {&first, &second};
  MeshElement element{};
};

/// Direction of a bar whose first node less its second one is `d`.
Vector DirectionFor(const Vector& d) {
  const LooseElement bar(elementLine2, d, {0.0, 0.0, 0.0});
  return DefaultLineOrientation(&bar.element);
}

/// `v` divided by the root of the sum of its squares.
Vector Unit(const Vector& v) {
  const double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
  return {v[0] / length, v[1] / length, v[2] / length};
}

// Along the axes. The components of unit length get another sign than all others.

TEST(DefaultLineOrientation, ABarOfUnitLengthAlongX) {
  const LooseElement bar(elementLine2, {0.0, 0.0, 0.0}, {1.0, 0.0, 0.0});
  EXPECT_EQ(DefaultLineOrientation(&bar.element), (Vector{0.0, 0.0, -1.0}));
  const LooseElement back(elementLine2, {1.0, 0.0, 0.0}, {0.0, 0.0, 0.0});
  EXPECT_EQ(DefaultLineOrientation(&back.element), (Vector{0.0, 0.0, -1.0}));
}

TEST(DefaultLineOrientation, ABarOfUnitLengthAlongY) {
  EXPECT_EQ(DirectionFor({0.0, 1.0, 0.0}), (Vector{0.0, 0.0, -1.0}));
  EXPECT_EQ(DirectionFor({0.0, -1.0, 0.0}), (Vector{0.0, 0.0, -1.0}));
}

TEST(DefaultLineOrientation, ABarOfUnitLengthAlongZ) {
  const LooseElement bar(elementLine2, {0.0, 0.0, 0.0}, {0.0, 0.0, 1.0});
  EXPECT_EQ(DefaultLineOrientation(&bar.element), (Vector{-1.0, 0.0, 0.0}));
  const LooseElement back(elementLine2, {0.0, 0.0, 1.0}, {0.0, 0.0, 0.0});
  EXPECT_EQ(DefaultLineOrientation(&back.element), (Vector{-1.0, 0.0, 0.0}));
}

TEST(DefaultLineOrientation, ABarOfAnotherLengthAlongXOrYTurnsAround) {
  EXPECT_EQ(DirectionFor({2.0, 0.0, 0.0}), (Vector{0.0, 0.0, 1.0}));
  EXPECT_EQ(DirectionFor({-2.0, 0.0, 0.0}), (Vector{0.0, 0.0, 1.0}));
  EXPECT_EQ(DirectionFor({0.0, 0.5, 0.0}), (Vector{0.0, 0.0, 1.0}));
  EXPECT_EQ(DirectionFor({0.0, -0.5, 0.0}), (Vector{0.0, 0.0, 1.0}));
}

TEST(DefaultLineOrientation, ABarOfAnotherLengthAlongZFollowsItsSense) {
  EXPECT_EQ(DirectionFor({0.0, 0.0, 2.0}), (Vector{1.0, 0.0, 0.0}));
  EXPECT_EQ(DirectionFor({0.0, 0.0, -2.0}), (Vector{-1.0, 0.0, 0.0}));
}

// The choice of the candidate, by which component is the smallest in size.

TEST(DefaultLineOrientation, AllEqualDiagonalsOfACube) {
  // Only the sense along z decides, so half of the directions are not at right angles to their bar.
  for (const double x : {1.0, -1.0}) {
    for (const double y : {1.0, -1.0}) {
      EXPECT_EQ(DirectionFor({x, y, 1.0}), Unit({0.0, 1.0, -1.0})) << x << " " << y;
      EXPECT_EQ(DirectionFor({x, y, -1.0}), Unit({0.0, -1.0, 1.0})) << x << " " << y;
    }
  }
}

TEST(DefaultLineOrientation, ABarWithoutLengthHasNone) { EXPECT_EQ(DirectionFor({0.0, 0.0, 0.0}), (Vector{0.0, 0.0, 0.0})); }

TEST(DefaultLineOrientation, YEqualToZAndXAboveThem) {
  EXPECT_EQ(DirectionFor({2.0, 1.0, 1.0}), Unit({1.0, 0.0, -2.0}));
  EXPECT_EQ(DirectionFor({-2.0, 1.0, 1.0}), Unit({1.0, 0.0, -2.0}));
  EXPECT_EQ(DirectionFor({2.0, 1.0, -1.0}), Unit({-1.0, 0.0, 2.0}));
  EXPECT_EQ(DirectionFor({-2.0, -1.0, -1.0}), Unit({-1.0, 0.0, 2.0}));
}

TEST(DefaultLineOrientation, YEqualToZAndXBelowThem) {
  EXPECT_EQ(DirectionFor({1.0, 2.0, 2.0}), Unit({0.0, 2.0, -2.0}));
  EXPECT_EQ(DirectionFor({1.0, -2.0, 2.0}), Unit({0.0, 2.0, -2.0}));
  EXPECT_EQ(DirectionFor({1.0, 2.0, -2.0}), Unit({0.0, -2.0, 2.0}));
  EXPECT_EQ(DirectionFor({-1.0, -2.0, -2.0}), Unit({0.0, -2.0, 2.0}));
}

TEST(DefaultLineOrientation, XEqualToYAndAboveZ) {
  EXPECT_EQ(DirectionFor({2.0, 2.0, 1.0}), Unit({2.0, -2.0, 0.0}));
  EXPECT_EQ(DirectionFor({-2.0, 2.0, 1.0}), Unit({2.0, -2.0, 0.0}));
  EXPECT_EQ(DirectionFor({2.0, -2.0, 1.0}), Unit({-2.0, 2.0, 0.0}));
  EXPECT_EQ(DirectionFor({-2.0, -2.0, -1.0}), Unit({-2.0, 2.0, 0.0}));
}

TEST(DefaultLineOrientation, XEqualToYAndBelowZ) {
  EXPECT_EQ(DirectionFor({1.0, 1.0, 2.0}), Unit({2.0, 0.0, -1.0}));
  EXPECT_EQ(DirectionFor({-1.0, 1.0, 2.0}), Unit({2.0, 0.0, -1.0}));
  EXPECT_EQ(DirectionFor({1.0, 1.0, -2.0}), Unit({-2.0, 0.0, 1.0}));
  EXPECT_EQ(DirectionFor({-1.0, -1.0, -2.0}), Unit({-2.0, 0.0, 1.0}));
}

TEST(DefaultLineOrientation, XEqualToZAndAboveY) {
  EXPECT_EQ(DirectionFor({2.0, 1.0, 2.0}), Unit({2.0, 0.0, -2.0}));
  EXPECT_EQ(DirectionFor({-2.0, 1.0, 2.0}), Unit({2.0, 0.0, -2.0}));
  EXPECT_EQ(DirectionFor({2.0, -1.0, -2.0}), Unit({-2.0, 0.0, 2.0}));
  EXPECT_EQ(DirectionFor({-2.0, -1.0, -2.0}), Unit({-2.0, 0.0, 2.0}));
}

TEST(DefaultLineOrientation, XEqualToZAndBelowY) {
  EXPECT_EQ(DirectionFor({1.0, 2.0, 1.0}), Unit({0.0, 1.0, -2.0}));
  EXPECT_EQ(DirectionFor({1.0, -2.0, 1.0}), Unit({0.0, 1.0, -2.0}));
  EXPECT_EQ(DirectionFor({1.0, 2.0, -1.0}), Unit({0.0, -1.0, 2.0}));
  EXPECT_EQ(DirectionFor({-1.0, -2.0, -1.0}), Unit({0.0, -1.0, 2.0}));
}

TEST(DefaultLineOrientation, DiagonalsOfTheFacesOfACube) {
  EXPECT_EQ(DirectionFor({1.0, 1.0, 0.0}), Unit({1.0, -1.0, 0.0}));
  EXPECT_EQ(DirectionFor({-1.0, 1.0, 0.0}), Unit({1.0, -1.0, 0.0}));
  EXPECT_EQ(DirectionFor({1.0, -1.0, 0.0}), Unit({-1.0, 1.0, 0.0}));
  EXPECT_EQ(DirectionFor({-1.0, -1.0, 0.0}), Unit({-1.0, 1.0, 0.0}));
  EXPECT_EQ(DirectionFor({1.0, 0.0, 1.0}), Unit({1.0, 0.0, -1.0}));
  EXPECT_EQ(DirectionFor({-1.0, 0.0, 1.0}), Unit({1.0, 0.0, -1.0}));
  EXPECT_EQ(DirectionFor({1.0, 0.0, -1.0}), Unit({-1.0, 0.0, 1.0}));
  EXPECT_EQ(DirectionFor({-1.0, 0.0, -1.0}), Unit({-1.0, 0.0, 1.0}));
  EXPECT_EQ(DirectionFor({0.0, 1.0, 1.0}), Unit({0.0, 1.0, -1.0}));
  EXPECT_EQ(DirectionFor({0.0, -1.0, 1.0}), Unit({0.0, 1.0, -1.0}));
  EXPECT_EQ(DirectionFor({0.0, 1.0, -1.0}), Unit({0.0, -1.0, 1.0}));
  EXPECT_EQ(DirectionFor({0.0, -1.0, -1.0}), Unit({0.0, -1.0, 1.0}));
}

TEST(DefaultLineOrientation, XTheSmallest) {
  EXPECT_EQ(DirectionFor({1.0, 2.0, 3.0}), Unit({0.0, 3.0, -2.0}));
  EXPECT_EQ(DirectionFor({1.0, -2.0, 3.0}), Unit({0.0, 3.0, -2.0}));
  EXPECT_EQ(DirectionFor({1.0, 3.0, -2.0}), Unit({0.0, -2.0, 3.0}));
  EXPECT_EQ(DirectionFor({0.0, -3.0, -2.0}), Unit({0.0, -2.0, 3.0}));
}

TEST(DefaultLineOrientation, YTheSmallest) {
  EXPECT_EQ(DirectionFor({2.0, 1.0, 3.0}), Unit({3.0, 0.0, -2.0}));
  EXPECT_EQ(DirectionFor({-2.0, 1.0, 3.0}), Unit({3.0, 0.0, -2.0}));
  EXPECT_EQ(DirectionFor({3.0, -1.0, -2.0}), Unit({-2.0, 0.0, 3.0}));
  EXPECT_EQ(DirectionFor({-3.0, 0.0, -2.0}), Unit({-2.0, 0.0, 3.0}));
}

TEST(DefaultLineOrientation, ZTheSmallest) {
  EXPECT_EQ(DirectionFor({2.0, 3.0, 1.0}), Unit({3.0, -2.0, 0.0}));
  EXPECT_EQ(DirectionFor({-2.0, 3.0, 1.0}), Unit({3.0, -2.0, 0.0}));
  EXPECT_EQ(DirectionFor({3.0, -2.0, -1.0}), Unit({-2.0, 3.0, 0.0}));
  EXPECT_EQ(DirectionFor({-3.0, -2.0, 0.0}), Unit({-2.0, 3.0, 0.0}));
}

TEST(DefaultLineOrientation, ComponentsAreComparedExactly) {
  const double nextToOne = 1.0 + std::numeric_limits<double>::epsilon();
  EXPECT_EQ(DirectionFor({1.0, nextToOne, nextToOne + std::numeric_limits<double>::epsilon()}),
            Unit({0.0, nextToOne + std::numeric_limits<double>::epsilon(), -nextToOne}));
  // Equal to all but the last place in z, which is now the smallest.
  EXPECT_EQ(DirectionFor({nextToOne, nextToOne, 1.0}), Unit({nextToOne, -nextToOne, 0.0}));
}

// What is no number.

TEST(DefaultLineOrientation, ThreeSizesWithOneThatIsNoNumberGiveNone) {
  const double none = std::nan("");
  EXPECT_EQ(DirectionFor({none, 1.0, 2.0}), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(DirectionFor({1.0, none, 2.0}), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(DirectionFor({2.0, 1.0, none}), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(DirectionFor({none, 2.0, 1.0}), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(DirectionFor({2.0, none, 1.0}), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(DirectionFor({1.0, 2.0, none}), (Vector{0.0, 0.0, 0.0}));
  EXPECT_EQ(DirectionFor({none, none, none}), (Vector{0.0, 0.0, 0.0}));
}

TEST(DefaultLineOrientation, TwoEqualSizesBesideWhatIsNoNumberStillChoose) {
  const double none = std::nan("");
  EXPECT_EQ(DirectionFor({none, 1.0, 1.0}), Unit({0.0, 1.0, -1.0}));
  const Vector withoutZ = DirectionFor({1.0, 1.0, none});
  EXPECT_TRUE(std::isnan(withoutZ[0]));
  EXPECT_EQ(withoutZ[1], 0.0);
  EXPECT_EQ(withoutZ[2], 1.0);
  const Vector withoutY = DirectionFor({1.0, none, 1.0});
  EXPECT_EQ(withoutY[0], 0.0);
  EXPECT_EQ(withoutY[1], 1.0);
  EXPECT_TRUE(std::isnan(withoutY[2]));
}

// Sizes that can't be normalised.

TEST(DefaultLineOrientation, AVectorOutOfRangeStaysAsItIs) {
  EXPECT_EQ(DirectionFor({0.0, 0.0, 1e200}), (Vector{1e200, 0.0, 0.0}));
  EXPECT_EQ(DirectionFor({1e-200, 0.0, 0.0}), (Vector{0.0, 0.0, 1e-200}));
}

// Other elements.

TEST(DefaultLineOrientation, ALineOfThreeNodesGoesByItsEnds) {
  const LooseElement line(elementLine3, {0.0, 0.0, 0.0}, {1.0, 0.0, 0.0});
  EXPECT_EQ(DefaultLineOrientation(&line.element), (Vector{0.0, 0.0, -1.0}));
}

TEST(DefaultLineOrientation, OtherElementsHaveNone) {
  for (std::int32_t type = -1; type < 20; ++type) {
    if (type == elementLine2 || type == elementLine3) {
      continue;
    }
    const LooseElement element(type, {0.0, 0.0, 0.0}, {1.0, 0.0, 0.0});
    EXPECT_EQ(DefaultLineOrientation(&element.element), (Vector{0.0, 0.0, 0.0})) << type;
  }
}

TEST(DefaultLineOrientation, NoElementAndMissingNodesHaveNone) {
  EXPECT_EQ(DefaultLineOrientation(nullptr), (Vector{0.0, 0.0, 0.0}));
  LooseElement bar(elementLine2, {0.0, 0.0, 0.0}, {1.0, 0.0, 0.0});
  bar.nodes[1] = nullptr;
  EXPECT_EQ(DefaultLineOrientation(&bar.element), (Vector{0.0, 0.0, 0.0}));
}

// In a part, and among the systems of the store.

class LineOrientationTest : public MeshTest {
 protected:
  LineOrientationTest() : boundary(host.GetBoundaryStore()) {
    const double positions[4][3] = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}};
    for (std::int32_t id = 1; id <= 4; ++id) {
      model->CreateNode(id, positions[id - 1], 0);
    }
  }

  /// A part with its face and edge, without elements.
  MeshPart* MakePart(std::int32_t id) {
    MeshPart* part = nullptr;
    CreateMeshPart(partOfLines, id, model, &part);
    return part;
  }

  void MakeElement(std::int32_t id, std::int32_t type, const std::vector<std::int32_t>& nodes, std::int32_t partId) {
    ASSERT_EQ(model->CreateElement(id, type, nodes.data(), partId, 0, 0, 0, 0), 0);
  }

  /// A system whose axes run along the global ones in another order: B lies on its Z axis, C in the plane of X and Z.
  void MakeSystem(std::int32_t id, std::int32_t a, std::int32_t b, std::int32_t c) {
    CoordinateSystem* system = nullptr;
    boundary->CreateCoordinateSystem(&system);
    MeshNode* nodes[3] = {};
    const std::int32_t ids[3] = {a, b, c};
    for (std::size_t i = 0; i < 3; ++i) {
      model->GetNode(ids[i], &nodes[i]);
    }
    system->SetPoints(nodes[0], nodes[1], nodes[2]);
    system->SetId(id);
  }

  /// The system found; 77 when none was.
  std::int32_t Find(MeshPart* part, const Vector& orientation) {
    const double card[3] = {orientation[0], orientation[1], orientation[2]};
    std::int32_t id = 77;
    FindOrientationSystem(part, boundary, card, &id);
    return id;
  }

  BoundaryStore* boundary;
};

TEST_F(LineOrientationTest, TheFirstElementOfThePartCounts) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 4}, 7);
  MakeElement(102, elementLine2, {1, 2}, 7);
  Vector out = {9.0, 9.0, 9.0};
  FirstElementOrientation(part, &out);
  EXPECT_EQ(out, (Vector{-1.0, 0.0, 0.0}));
}

TEST_F(LineOrientationTest, AnotherElementAtTheHeadOfThePartGivesZeros) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementTria3, {1, 2, 3}, 7);
  MakeElement(102, elementLine2, {1, 2}, 7);
  Vector out = {9.0, 9.0, 9.0};
  FirstElementOrientation(part, &out);
  EXPECT_EQ(out, (Vector{0.0, 0.0, 0.0}));
}

TEST_F(LineOrientationTest, AnEmptyMeshGivesZeros) {
  MeshPart* part = MakePart(7);
  Vector out = {9.0, 9.0, 9.0};
  FirstElementOrientation(part, &out);
  EXPECT_EQ(out, (Vector{0.0, 0.0, 0.0}));
}

TEST_F(LineOrientationTest, APartWithoutAFaceOrMeshLeavesWhatWasThere) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  Vector out = {9.0, 9.0, 9.0};
  host.Refusals().RefuseCall("TopoFace.GetMesh", 1);
  FirstElementOrientation(part, &out);
  EXPECT_EQ(out, (Vector{9.0, 9.0, 9.0}));
  MeshPart* solid = nullptr;
  CreateMeshPart(partOfSolids, 8, model, &solid);
  FirstElementOrientation(solid, &out);
  EXPECT_EQ(out, (Vector{9.0, 9.0, 9.0}));
}

TEST_F(LineOrientationTest, TheDirectionThatTheHostTakesByItselfNeedsNoSystem) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  MakeSystem(5, 1, 3, 2);  // Z along y, X along x: Y runs against z.
  EXPECT_EQ(Find(part, {0.0, 0.0, -1.0}), 0);
}

TEST_F(LineOrientationTest, TheSystemWhoseSecondAxisItIsIsFoundByItsOwnId) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  MakeSystem(50, 1, 2, 3);  // Z along x, X along y: Y along z.
  MakeSystem(60, 1, 4, 2);  // Z along z, X along x: Y along y.
  EXPECT_EQ(Find(part, {0.0, 0.0, 1.0}), 50);
  EXPECT_EQ(Find(part, {0.0, 1.0, 0.0}), 60);
}

TEST_F(LineOrientationTest, TheFirstOfTwoThatFitIsTaken) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  MakeSystem(61, 1, 2, 3);
  MakeSystem(9, 1, 4, 2);
  MakeSystem(3, 2, 4, 1);  // Z along z, X against x: Y against y.
  MakeSystem(2, 1, 4, 2);
  EXPECT_EQ(Find(part, {0.0, 1.0, 0.0}), 9);
  EXPECT_EQ(Find(part, {0.0, -1.0, 0.0}), 3);
}

TEST_F(LineOrientationTest, TheOriginIsTakenOffTheAxisPoint) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  const double positions[3][3] = {{4.0, 8.0, 16.0}, {4.0, 8.0, 17.0}, {5.0, 8.0, 16.0}};
  for (std::int32_t id = 11; id <= 13; ++id) {
    model->CreateNode(id, positions[id - 11], 0);
  }
  MakeSystem(5, 11, 12, 13);
  EXPECT_EQ(Find(part, {0.0, 1.0, 0.0}), 5);
}

TEST_F(LineOrientationTest, AnythingButTheExactUnitVectorIsNotFound) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  MakeSystem(60, 1, 4, 2);
  EXPECT_EQ(Find(part, {0.0, 2.0, 0.0}), 77);
  EXPECT_EQ(Find(part, {0.0, 1.0 + std::numeric_limits<double>::epsilon(), 0.0}), 77);
  EXPECT_EQ(Find(part, {1.0, 0.0, 0.0}), 77);
  EXPECT_EQ(Find(part, {0.0, 0.0, 0.0}), 77);
  // The default is compared exactly too.
  EXPECT_EQ(Find(part, {0.0, 0.0, -2.0}), 77);
}

TEST_F(LineOrientationTest, NoSystemAtAllLeavesTheIdAlone) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  EXPECT_EQ(Find(part, {0.0, 1.0, 0.0}), 77);
}

TEST_F(LineOrientationTest, OnlyCoordinateSystemsAreLookedAt) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  boundary->CreateForce(&force, &id);
  MassEntity* mass = nullptr;
  boundary->CreateMass(&mass);
  MakeSystem(60, 1, 4, 2);
  std::string asked;
  TraceSink questions(&asked, TraceSink::Coverage::All);
  host.SetTrace(&questions);
  EXPECT_EQ(Find(part, {0.0, 1.0, 0.0}), 60);
  host.SetTrace(&sink);
  // The first two entries are asked for their type alone.
  const std::vector<std::string> lines = LinesOf(asked);
  std::vector<std::string> ofSystems;
  for (const std::string& line : lines) {
    if (line.find("CoordinateSystem#") == 0) {
      ofSystems.push_back(line.substr(0, line.find('(')));
    }
  }
  EXPECT_THAT(ofSystems, ElementsAre("CoordinateSystem#1.GetEntityType", "CoordinateSystem#1.GetAxisPoints", "CoordinateSystem#1.GetOrigin",
                                     "CoordinateSystem#1.GetId"));
  for (const std::string& line : lines) {
    EXPECT_TRUE(line.find("ForceLoad#1.") != 0 || line.find("ForceLoad#1.GetEntityType") == 0) << line;
    EXPECT_TRUE(line.find("MassEntity#1.") != 0 || line.find("MassEntity#1.GetEntityType") == 0) << line;
  }
}

TEST_F(LineOrientationTest, ASystemThatDoesNotTellItsAxesIsPassedBy) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementLine2, {1, 2}, 7);
  MakeSystem(9, 1, 4, 2);
  MakeSystem(8, 1, 4, 2);
  host.Refusals().RefuseCall("CoordinateSystem.GetAxisPoints", 1);
  EXPECT_EQ(Find(part, {0.0, 1.0, 0.0}), 8);
  host.Refusals().Clear();
  host.Refusals().RefuseCall("CoordinateSystem.GetOrigin", 1);
  EXPECT_EQ(Find(part, {0.0, 1.0, 0.0}), 8);
}

TEST_F(LineOrientationTest, APartWithoutALineComparesWithTheZeroVector) {
  MeshPart* part = MakePart(7);
  MakeElement(101, elementTria3, {1, 2, 3}, 7);
  EXPECT_EQ(Find(part, {0.0, 0.0, 0.0}), 0);
  EXPECT_EQ(Find(part, {0.0, 0.0, -1.0}), 77);
}

}  // namespace
}  // namespace btz::test
