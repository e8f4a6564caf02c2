// Nodes given in local systems: what moves them where, which elements get a new normal, and which elements lie on a list of nodes.
#include "mesh/local_nodes.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <random>

#include "mesh/coordinate_systems.h"
#include "mesh/element_topology.h"
#include "mesh/nodes.h"
#include "support/block_pool.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Rotation noTurn = {1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};

/// Takes x to y and y to -x.
constexpr Rotation quarterTurn = {0.0, -1.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0};

class LocalNodesTest : public MeshTest {
 protected:
  /// A record at the end of the list of systems.
  void AddSystem(std::int32_t id, std::int32_t kind, const Rotation& rotation, const Vector& translation) {
    auto* record = static_cast<CsRecord*>(AllocateZeroed(sizeof(CsRecord)));
    *record = {id, kind, translation, rotation, translation};
    ListAppend(&run.lists.coordinateSystems, record);
  }

  /// Notes that a node is given in a system.
  void Note(std::int32_t nodeId, std::int32_t systemId) {
    auto* record = static_cast<GridCpRecord*>(AllocateZeroed(sizeof(GridCpRecord)));
    record->nodeId = nodeId;
    record->cpId = systemId;
    ListAppend(&run.lists.gridCp, record);
  }

  void MakeNode(std::int32_t id, const Vector& position) { ASSERT_EQ(model->CreateNode(id, position.data(), 0), 0); }

  void MakeNode(std::int32_t id, const Vector& position, std::int32_t systemId) {
    MakeNode(id, position);
    Note(id, systemId);
  }

  void MakeElement(std::int32_t id, std::int32_t type, const std::vector<std::int32_t>& nodes, std::int32_t partId = 7) {
    ASSERT_EQ(model->CreateElement(id, type, nodes.data(), partId, 0, 0, 0, 0), 0);
  }

  MeshNode* Node(std::int32_t id) {
    MeshNode* node = nullptr;
    model->GetNode(id, &node);
    return node;
  }

  MeshElement* Element(std::int32_t id) {
    MeshElement* element = nullptr;
    model->GetElement(id, &element);
    return element;
  }

  Vector PositionOf(std::int32_t id) { return VectorAt(Node(id)->position); }

  std::int32_t SystemOf(std::int32_t id) { return Node(id)->coordinateSystemId; }

  void Apply() { ApplyGridCoordinateSystems(model, &run.lists.gridCp, &run.lists.coordinateSystems); }

  /// Operations that Apply calls, questions included.
  std::vector<std::string> OperationsOfApply() {
    std::string asked;
    TraceSink questions(&asked, TraceSink::Coverage::All);
    host.SetTrace(&questions);
    Apply();
    host.SetTrace(&sink);
    std::vector<std::string> operations;
    for (const std::string& line : LinesOf(asked)) {
      operations.push_back(line.substr(0, line.find('(')));
    }
    return operations;
  }
};

TEST_F(LocalNodesTest, ARectangularSystemTurnsAndMovesItsNodes) {
  AddSystem(5, rectangularSystem, quarterTurn, {10.0, 20.0, 30.0});
  MakeNode(1, {1.0, 2.0, 3.0}, 5);
  MakeNode(2, {1.0, 2.0, 3.0});
  Apply();
  EXPECT_EQ(PositionOf(1), (Vector{8.0, 21.0, 33.0}));
  EXPECT_EQ(SystemOf(1), 5);
  EXPECT_EQ(PositionOf(2), (Vector{1.0, 2.0, 3.0}));
  EXPECT_EQ(SystemOf(2), 0);
}

TEST_F(LocalNodesTest, ACylindricalSystemTakesRadiusAndDegrees) {
  AddSystem(5, cylindricalSystem, noTurn, {0.0, 0.0, 0.0});
  AddSystem(6, cylindricalSystem, quarterTurn, {10.0, 20.0, 30.0});
  MakeNode(1, {2.0, 90.0, 1.0}, 5);
  MakeNode(2, {2.0, 90.0, 1.0}, 6);
  Apply();
  // 90 degrees are no exact quarter turn.
  EXPECT_EQ(PositionOf(1), (Vector{1.2246467991473532e-16, 2.0, 1.0}));
  EXPECT_EQ(PositionOf(2), (Vector{8.0, 20.0, 31.0}));
  EXPECT_EQ(SystemOf(2), 6);
}

TEST_F(LocalNodesTest, ASphericalSystemIsTakenAsRectangular) {
  AddSystem(5, sphericalSystem, quarterTurn, {10.0, 20.0, 30.0});
  MakeNode(1, {1.0, 2.0, 3.0}, 5);
  Apply();
  EXPECT_EQ(PositionOf(1), (Vector{8.0, 21.0, 33.0}));
}

TEST_F(LocalNodesTest, TheSystemOfACardMovesANodeOfACard) {
  CardText grid(Card8({"GRID", "1", "5", "2.0", "90.0", "1.0", "", ""}) + "\n");
  ReadGridCard(model, &grid.cursor, &run.lists.gridCp, &run.gridCdTable, logPath);
  CardText system(Card8({"CORD2C", "5", "0", "0.0", "0.0", "0.0", "0.0", "0.0", "1.0", "+"}) + "\n" + Card8({"+", "1.0", "0.0", "0.0"}) +
                  "     \n");
  ReadCord2Card(model, host.GetBoundaryStore(), cylindricalSystem, &system.cursor, &run.lists.coordinateSystems);
  Apply();
  EXPECT_EQ(PositionOf(1), (Vector{1.2246467991473532e-16, 2.0, 1.0}));
  EXPECT_EQ(SystemOf(1), 5);
}

TEST_F(LocalNodesTest, ANodeWithoutASystemIsNeverMoved) {
  AddSystem(0, rectangularSystem, quarterTurn, {10.0, 20.0, 30.0});
  CardText grid(Card8({"GRID", "1", "0", "1.0", "2.0", "3.0", "", ""}) + "\n");
  ReadGridCard(model, &grid.cursor, &run.lists.gridCp, &run.gridCdTable, logPath);
  Apply();
  EXPECT_EQ(PositionOf(1), (Vector{1.0, 2.0, 3.0}));
}

TEST_F(LocalNodesTest, AnUnknownSystemLeavesTheNodeWhereItIs) {
  AddSystem(5, rectangularSystem, quarterTurn, {10.0, 20.0, 30.0});
  MakeNode(1, {1.0, 2.0, 3.0}, 6);
  MakeNode(2, {1.0, 2.0, 3.0}, -5);
  EXPECT_THAT(OperationsOfApply(), IsEmpty());
  EXPECT_EQ(PositionOf(1), (Vector{1.0, 2.0, 3.0}));
  EXPECT_EQ(SystemOf(1), 0);
  EXPECT_EQ(PositionOf(2), (Vector{1.0, 2.0, 3.0}));
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(LocalNodesTest, ANegativeIdIsAnIdLikeAnyOther) {
  AddSystem(-5, rectangularSystem, noTurn, {1.0, 0.0, 0.0});
  MakeNode(1, {1.0, 2.0, 3.0}, -5);
  Apply();
  EXPECT_EQ(PositionOf(1), (Vector{2.0, 2.0, 3.0}));
  EXPECT_EQ(SystemOf(1), -5);
}

TEST_F(LocalNodesTest, ANodeThatDoesNotExistIsPassedBy) {
  AddSystem(5, rectangularSystem, noTurn, {1.0, 0.0, 0.0});
  Note(99, 5);
  MakeNode(1, {1.0, 2.0, 3.0}, 5);
  Apply();
  EXPECT_EQ(PositionOf(1), (Vector{2.0, 2.0, 3.0}));
}

TEST_F(LocalNodesTest, TwoSystemsOfOneIdMoveTheNodeTwiceInTheOrderOfTheList) {
  AddSystem(5, rectangularSystem, quarterTurn, {0.0, 0.0, 0.0});
  AddSystem(6, rectangularSystem, noTurn, {50.0, 0.0, 0.0});
  AddSystem(5, rectangularSystem, noTurn, {100.0, 0.0, 0.0});
  MakeNode(1, {1.0, 2.0, 3.0}, 5);
  Apply();
  // First turned, then moved; the other way round it would be (-2, 101, 3).
  EXPECT_EQ(PositionOf(1), (Vector{98.0, 1.0, 3.0}));
  EXPECT_EQ(SystemOf(1), 5);
}

TEST_F(LocalNodesTest, TwoCylindricalSystemsOfOneIdTakeTheMovedPointForRadiusAndDegrees) {
  AddSystem(5, rectangularSystem, noTurn, {1.0, 89.0, 0.0});
  AddSystem(5, cylindricalSystem, noTurn, {0.0, 0.0, 0.0});
  MakeNode(1, {1.0, 1.0, 4.0}, 5);
  Apply();
  EXPECT_EQ(PositionOf(1), (Vector{1.2246467991473532e-16, 2.0, 4.0}));
}

TEST_F(LocalNodesTest, ANodeNotedTwiceMovesTwice) {
  // As a second card of the same id leaves it, whose node the host refused.
  AddSystem(5, rectangularSystem, noTurn, {1.0, 0.0, 0.0});
  AddSystem(6, rectangularSystem, noTurn, {0.0, 10.0, 0.0});
  MakeNode(1, {0.0, 0.0, 0.0}, 5);
  Note(1, 6);
  Apply();
  EXPECT_EQ(PositionOf(1), (Vector{1.0, 10.0, 0.0}));
  EXPECT_EQ(SystemOf(1), 6);
}

// Normals.

TEST_F(LocalNodesTest, ElementsOnMovedNodesGetANewNormal) {
  EnsurePart(model, 7, partOfSurfaces);
  AddSystem(5, rectangularSystem, noTurn, {0.0, 0.0, 2.0});
  MakeNode(1, {0.0, 0.0, 0.0});
  MakeNode(2, {1.0, 0.0, 0.0});
  MakeNode(3, {0.0, 1.0, 0.0});
  MakeNode(4, {0.0, 1.0, -2.0}, 5);
  MakeNode(5, {0.0, 0.0, -1.0}, 5);
  MakeElement(101, elementTria3, {1, 2, 3});
  MakeElement(102, elementTria3, {1, 2, 4});
  MakeElement(103, elementTria3, {1, 5, 3});
  MakeElement(104, elementQuad4, {2, 1, 3, 5});
  for (const std::int32_t id : {101, 102, 103, 104}) {
    std::fill_n(Element(id)->normal, 3, 9.0);
  }
  Apply();
  EXPECT_EQ(VectorAt(Element(101)->normal), (Vector{9.0, 9.0, 9.0}));
  EXPECT_EQ(VectorAt(Element(102)->normal), (Vector{0.0, 0.0, 1.0}));
  EXPECT_EQ(VectorAt(Element(103)->normal), (Vector{-1.0, 0.0, 0.0}));
  // The first three nodes alone tell the normal.
  EXPECT_EQ(VectorAt(Element(104)->normal), (Vector{0.0, 0.0, -1.0}));
}

TEST_F(LocalNodesTest, SolidsOnMovedNodesGetTheNormalOfTheirFirstThreeNodes) {
  EnsurePart(model, 7, partOfSolids);
  AddSystem(5, rectangularSystem, noTurn, {0.0, 0.0, 0.0});
  MakeNode(1, {0.0, 0.0, 0.0});
  MakeNode(2, {0.0, 1.0, 0.0});
  MakeNode(3, {0.0, 0.0, 1.0});
  MakeNode(4, {1.0, 0.0, 0.0}, 5);
  MakeElement(101, elementTetra4, {1, 2, 3, 4});
  Apply();
  MeshElement* solid = nullptr;
  model->GetSolidElement(101, &solid, 1);
  EXPECT_EQ(VectorAt(solid->normal), (Vector{1.0, 0.0, 0.0}));
}

TEST_F(LocalNodesTest, LinesHaveNoNormal) {
  EnsurePart(model, 7, partOfLines);
  AddSystem(5, rectangularSystem, noTurn, {0.0, 0.0, 2.0});
  MakeNode(1, {0.0, 0.0, 0.0});
  MakeNode(2, {1.0, 0.0, 0.0}, 5);
  MakeElement(101, elementLine2, {1, 2});
  std::fill_n(Element(101)->normal, 3, 9.0);
  Apply();
  EXPECT_EQ(VectorAt(Element(101)->normal), (Vector{9.0, 9.0, 9.0}));
}

TEST_F(LocalNodesTest, AnElementWithoutItsMidSideNodesHasANormal) {
  EnsurePart(model, 7, partOfSurfaces);
  AddSystem(5, rectangularSystem, noTurn, {0.0, 0.0, 0.0});
  MakeNode(1, {0.0, 0.0, 0.0});
  MakeNode(2, {1.0, 0.0, 0.0});
  MakeNode(3, {0.0, 1.0, 0.0}, 5);
  MakeElement(101, elementTria6, {1, 2, 3, 0, 0, 0});
  Apply();
  EXPECT_EQ(VectorAt(Element(101)->normal), (Vector{0.0, 0.0, 1.0}));
}

TEST_F(LocalNodesTest, AnElementThatLacksACornerKeepsItsNormal) {
  EnsurePart(model, 7, partOfSurfaces);
  AddSystem(5, rectangularSystem, noTurn, {0.0, 0.0, 0.0});
  MakeNode(1, {0.0, 0.0, 0.0}, 5);
  MakeNode(2, {1.0, 0.0, 0.0}, 5);
  MakeNode(3, {0.0, 1.0, 0.0}, 5);
  for (std::int32_t corner = 0; corner < 3; ++corner) {
    MakeElement(101 + corner, elementTria3, {1, 2, 3});
    Element(101 + corner)->nodes[corner] = nullptr;
  }
  Apply();
  for (std::int32_t id = 101; id <= 103; ++id) {
    EXPECT_EQ(VectorAt(Element(id)->normal), (Vector{0.0, 0.0, 0.0})) << id;
  }
}

TEST_F(LocalNodesTest, ElementsAreAskedForOnceAndOnlyWhenANodeMoved) {
  AddSystem(5, rectangularSystem, noTurn, {0.0, 0.0, 0.0});
  EXPECT_THAT(OperationsOfApply(), IsEmpty());
  MakeNode(1, {0.0, 0.0, 0.0}, 5);
  MakeNode(2, {0.0, 0.0, 0.0}, 6);
  MakeNode(3, {0.0, 0.0, 0.0}, 5);
  EXPECT_THAT(OperationsOfApply(), ElementsAre("MeshModel.GetNode", "MeshModel.GetNode", "MeshModel.CollectNodeElements"));
}

TEST_F(LocalNodesTest, TheMovedNodesAreHandedOverOnceEachInTheOrderOfATable) {
  AddSystem(5, rectangularSystem, noTurn, {0.0, 0.0, 0.0});
  AddSystem(5, rectangularSystem, noTurn, {0.0, 0.0, 0.0});
  // Four records make five buckets: 11 stands in bucket 1, 7 in bucket 2, 3 and 8 in bucket 3.
  for (const std::int32_t id : {8, 7, 3, 11}) {
    MakeNode(id, {0.0, 0.0, 0.0}, 5);
  }
  std::string asked;
  TraceSink questions(&asked, TraceSink::Coverage::All);
  host.SetTrace(&questions);
  Apply();
  host.SetTrace(&sink);
  const std::vector<std::string> lines = LinesOf(asked);
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.back(), "MeshModel.CollectNodeElements(0, [n11, n7, n8, n3], 0, 1, 0, 0, 0, 1, 0, 0, 0, 0) -> []");
}

// Against a plain double loop.

struct PlainSystem {
  std::int32_t id;
  std::int32_t kind;
  Rotation rotation;
  Vector translation;
};

struct PlainRecord {
  std::int32_t nodeId;
  std::int32_t cpId;
};

TEST_F(LocalNodesTest, DoesWhatAWalkOfAllSystemsForEachNodeDoes) {
  std::mt19937 random(5);
  const auto below = [&](std::int32_t count) { return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(count)); };
  const auto coordinate = [&] { return std::uniform_real_distribution<double>(-100.0, 100.0)(random); };
  std::vector<PlainSystem> systems;
  for (int i = 0; i < 40; ++i) {
    PlainSystem system{below(12) - 3, 1 + below(3), {}, {coordinate(), coordinate(), coordinate()}};
    for (double& entry : system.rotation) {
      entry = coordinate() / 100.0;
    }
    systems.push_back(system);
    AddSystem(system.id, system.kind, system.rotation, system.translation);
  }
  constexpr std::int32_t nodeCount = 300;
  std::vector<std::array<double, 3>> expected(nodeCount + 1);
  std::vector<std::int32_t> expectedSystem(nodeCount + 1, 0);
  for (std::int32_t id = 1; id <= nodeCount; ++id) {
    expected[static_cast<std::size_t>(id)] = {coordinate(), coordinate(), coordinate()};
    MakeNode(id, expected[static_cast<std::size_t>(id)]);
  }
  std::vector<PlainRecord> records;
  for (int i = 0; i < 400; ++i) {
    // Some nodes come twice, some not at all, some do not exist; some systems do not exist.
    records.push_back({1 + below(nodeCount + 20), below(16) - 4});
    Note(records.back().nodeId, records.back().cpId);
  }
  std::int32_t moves = 0;
  for (const PlainRecord& record : records) {
    for (const PlainSystem& system : systems) {
      if (record.cpId != system.id || record.nodeId > nodeCount) {
        continue;
      }
      auto& p = expected[static_cast<std::size_t>(record.nodeId)];
      const Vector q = system.kind == 2 ? CylindricalToRectangular(p) : Vector{p[0], p[1], p[2]};
      const Rotation& r = system.rotation;
      for (std::size_t row = 0; row < 3; ++row) {
        p[row] = r[3 * row] * q[0] + r[3 * row + 1] * q[1] + r[3 * row + 2] * q[2] + system.translation[row];
      }
      expectedSystem[static_cast<std::size_t>(record.nodeId)] = system.id;
      ++moves;
    }
  }
  ASSERT_GT(moves, 500);
  Apply();
  for (std::int32_t id = 1; id <= nodeCount; ++id) {
    EXPECT_EQ(PositionOf(id), expected[static_cast<std::size_t>(id)]) << id;
    EXPECT_EQ(SystemOf(id), expectedSystem[static_cast<std::size_t>(id)]) << id;
  }
}

// Elements on listed nodes.

class CoverTest : public LocalNodesTest {
 protected:
  CoverTest() {
    ListCellPoolInit(&cells);
    ListInit(&nodes, &cells);
    ListInit(&bodies, &cells);
    MakeNodes(20);
  }
  ~CoverTest() override { ListCellPoolReset(&cells); }

  bool Covers(const std::vector<std::int32_t>& ids) {
    ListClear(&nodes);
    ListClear(&bodies);
    for (std::int32_t id = 1; id <= 20; ++id) {
      Node(id)->mark = 0;
    }
    for (const std::int32_t id : ids) {
      ListAppend(&nodes, Node(id));
    }
    return ElementsCoverOnlyListedNodes(model, &nodes, &bodies);
  }

  ListCellPool cells;
  PooledList nodes;
  PooledList bodies;
};

TEST_F(CoverTest, AllNodesOfAllShellsMustBeListed) {
  EnsurePart(model, 7, partOfSurfaces);
  EnsurePart(model, 8, partOfSurfaces);
  MakeElement(101, elementTria3, {1, 2, 3}, 7);
  MakeElement(102, elementQuad4, {3, 4, 5, 6}, 8);
  EXPECT_TRUE(Covers({1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(bodies.size, 2);
  EXPECT_TRUE(Covers({1, 2, 3, 4, 5, 6, 20}));
  EXPECT_FALSE(Covers({1, 2, 3, 4, 5}));
  EXPECT_FALSE(Covers({2, 3, 4, 5, 6}));
  EXPECT_FALSE(Covers({}));
}

TEST_F(CoverTest, MidSideNodesCountAndMissingOnesDoNot) {
  EnsurePart(model, 7, partOfSurfaces);
  MakeElement(101, elementTria6, {1, 2, 3, 4, 0, 6}, 7);
  EXPECT_TRUE(Covers({1, 2, 3, 4, 6}));
  EXPECT_FALSE(Covers({1, 2, 3, 4}));
}

TEST_F(CoverTest, LinesCountToo) {
  EnsurePart(model, 7, partOfLines);
  MakeElement(101, elementLine2, {1, 2}, 7);
  EXPECT_TRUE(Covers({1, 2}));
  EXPECT_FALSE(Covers({1}));
}

TEST_F(CoverTest, ListedNodesAreMarkedWhateverTheAnswer) {
  EnsurePart(model, 7, partOfSurfaces);
  MakeElement(101, elementTria3, {1, 2, 3}, 7);
  EXPECT_FALSE(Covers({1, 9}));
  EXPECT_EQ(Node(1)->mark, 2);
  EXPECT_EQ(Node(9)->mark, 2);
  EXPECT_EQ(Node(2)->mark, 0);
}

TEST_F(CoverTest, OnlyTheMarkTwoCounts) {
  EnsurePart(model, 7, partOfSurfaces);
  MakeElement(101, elementTria3, {1, 2, 3}, 7);
  EXPECT_FALSE(Covers({1, 2}));
  Node(3)->mark = 1;
  EXPECT_FALSE(ElementsCoverOnlyListedNodes(model, &nodes, &bodies));
  // A mark of an earlier question still counts.
  Node(3)->mark = 2;
  EXPECT_TRUE(ElementsCoverOnlyListedNodes(model, &nodes, &bodies));
}

TEST_F(CoverTest, WithoutElementsNothingIsUncovered) {
  EXPECT_TRUE(Covers({}));
  EnsurePart(model, 7, partOfSurfaces);
  EXPECT_TRUE(Covers({1}));
  EXPECT_EQ(bodies.size, 1);
}

TEST_F(CoverTest, AFaceWithoutAMeshCoversNothing) {
  EnsurePart(model, 7, partOfSurfaces);
  MakeElement(101, elementTria3, {1, 2, 3}, 7);
  host.Refusals().RefuseCall("TopoFace.GetMesh", 1);
  EXPECT_TRUE(Covers({}));
}

TEST_F(CoverTest, AMissingArgumentIsNoCover) {
  EXPECT_FALSE(ElementsCoverOnlyListedNodes(nullptr, &nodes, &bodies));
  EXPECT_FALSE(ElementsCoverOnlyListedNodes(model, nullptr, &bodies));
  EXPECT_FALSE(ElementsCoverOnlyListedNodes(model, &nodes, nullptr));
}

}  // namespace
}  // namespace btz::test
