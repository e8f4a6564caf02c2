// Every setter of connectors, ties, masses and plot lines: its line in the trace, and what the host keeps of it.
#include "memory_host/setters_fixture.h"

namespace btz::memory {
namespace {

class ConnectorSetters : public SettersTest {};

TEST_F(ConnectorSetters, ATie) {
  Mpc* mpc = nullptr;
  Constraint* owner = nullptr;
  boundary->CreateConstraint(&owner, 0);
  boundary->CreateMpc(&mpc);
  mpc->SetNodes(ofAll.Get(), ofOne.Get());
  mpc->SetTranslationMask(7);
  mpc->SetTranslationFactors(1.0, 1.0, 1.0);
  mpc->SetRotationMask(2);
  mpc->SetRotationFactors(0.0, 0.5, 0.25);
  mpc->SetTieMode(1);
  mpc->SetCoordinateSystem(3);
  mpc->SetKind(7);
  mpc->SetAnchorNode(Node(3));
  mpc->SetAnchorOwner(owner);
  mpc->SetAnchorNodeId(3);
  mpc->SetTieType(5);
  mpc->SetName(L"Mpc1");
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateConstraint(0) -> 0 Constraint#1\n"
            "BoundaryStore.CreateMpc() -> 0 Mpc#1\n"
            "Mpc#1.SetNodes([n1, n2], [n3])\n"
            "Mpc#1.SetTranslationMask(7)\n"
            "Mpc#1.SetTranslationFactors(1.0, 1.0, 1.0)\n"
            "Mpc#1.SetRotationMask(2)\n"
            "Mpc#1.SetRotationFactors(0.0, 0.5, 0.25)\n"
            "Mpc#1.SetTieMode(1)\n"
            "Mpc#1.SetCoordinateSystem(3)\n"
            "Mpc#1.SetKind(7)\n"
            "Mpc#1.SetAnchorNode(n3)\n"
            "Mpc#1.SetAnchorOwner(Constraint#1)\n"
            "Mpc#1.SetAnchorNodeId(3)\n"
            "Mpc#1.SetTieType(5)\n"
            "Mpc#1.SetName(\"Mpc1\")\n");
  const MemoryMpc& kept = host.Boundary().mpcs[0];
  EXPECT_EQ(kept.independent.size(), 2U);
  EXPECT_EQ(kept.dependent, std::vector<MeshNode*>{Node(3)});
  EXPECT_EQ(kept.translationMask, 7);
  EXPECT_EQ(kept.rotationMask, 2);
  EXPECT_EQ(kept.translationFactors, (Triple{1.0, 1.0, 1.0}));
  EXPECT_EQ(kept.rotationFactors, (Triple{0.0, 0.5, 0.25}));
  EXPECT_EQ(kept.tieMode, 1);
  EXPECT_EQ(kept.coordinateSystem, 3);
  EXPECT_EQ(kept.kind, 7);
  EXPECT_EQ(kept.anchorNode, Node(3));
  EXPECT_EQ(kept.anchorOwner, owner);
  EXPECT_EQ(kept.anchorNodeId, 3);
  EXPECT_EQ(kept.tieType, 5);
}

TEST_F(ConnectorSetters, ARigidConnection) {
  RigidConnection* connection = nullptr;
  boundary->CreateRigidConnection(&connection);
  connection->SetName(L"NodeRbar2");
  connection->SetTranslationMask(7);
  connection->SetRotationMask(1);
  connection->SetElementId(500);
  connection->SetNodes(ofOne.Get(), ofAll.Get());
  connection->SetKind(4);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateRigidConnection() -> 0 RigidConnection#1\n"
            "RigidConnection#1.SetName(\"NodeRbar2\")\n"
            "RigidConnection#1.SetTranslationMask(7)\n"
            "RigidConnection#1.SetRotationMask(1)\n"
            "RigidConnection#1.SetElementId(500)\n"
            "RigidConnection#1.SetNodes([n3], [n1, n2])\n"
            "RigidConnection#1.SetKind(4)\n");
  const MemoryRigidConnection& kept = host.Boundary().rigidConnections[0];
  EXPECT_EQ(kept.translationMask, 7);
  EXPECT_EQ(kept.rotationMask, 1);
  EXPECT_EQ(kept.elementId, 500);
  EXPECT_EQ(kept.independent.size(), 1U);
  EXPECT_EQ(kept.dependent.size(), 2U);
  EXPECT_EQ(kept.kind, 4);
}

TEST_F(ConnectorSetters, AMass) {
  MassEntity* mass = nullptr;
  boundary->CreateMass(&mass);
  mass->SetKind(3);
  mass->SetMass(2.5);
  mass->SetDiagonalInertia(1.0, 2.0, 3.0);
  mass->SetOffDiagonalInertia(4.0, 5.0, 6.0);
  mass->SetDiagonalMask(7);
  mass->SetOffDiagonalMask(5);
  mass->SetNodes(ofAll.Get());
  mass->SetCentre(0.5, 0.25, 0.0);
  mass->SetCoordinateSystem(2);
  mass->SetName(L"Mass2");
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateMass() -> 0 MassEntity#1\n"
            "MassEntity#1.SetKind(3)\n"
            "MassEntity#1.SetMass(2.5)\n"
            "MassEntity#1.SetDiagonalInertia(1.0, 2.0, 3.0)\n"
            "MassEntity#1.SetOffDiagonalInertia(4.0, 5.0, 6.0)\n"
            "MassEntity#1.SetDiagonalMask(7)\n"
            "MassEntity#1.SetOffDiagonalMask(5)\n"
            "MassEntity#1.SetNodes([n1, n2])\n"
            "MassEntity#1.SetCentre(0.5, 0.25, 0.0)\n"
            "MassEntity#1.SetCoordinateSystem(2)\n"
            "MassEntity#1.SetName(\"Mass2\")\n");
  const MemoryMass& kept = host.Boundary().masses[0];
  EXPECT_EQ(kept.kind, 3);
  EXPECT_EQ(kept.mass, 2.5);
  EXPECT_EQ(kept.diagonalInertia, (Triple{1.0, 2.0, 3.0}));
  EXPECT_EQ(kept.offDiagonalInertia, (Triple{4.0, 5.0, 6.0}));
  EXPECT_EQ(kept.diagonalMask, 7);
  EXPECT_EQ(kept.offDiagonalMask, 5);
  EXPECT_EQ(kept.nodes.size(), 2U);
  EXPECT_EQ(kept.centre, (Triple{0.5, 0.25, 0.0}));
  EXPECT_EQ(kept.coordinateSystem, 2);
}

TEST_F(ConnectorSetters, ASpring) {
  GivenList none;
  Spring* spring = nullptr;
  boundary->CreateSpring(&spring);
  spring->SetOwner(host.GetProject());
  spring->SetConnection(1);
  spring->SetSpringKind(2);
  spring->SetTranslationMask(1);
  spring->SetRotationMask(4);
  spring->SetDamping(0.0, 0.0, 0.0);
  spring->SetName(L"NodeSpring5");
  spring->SetGroundedNodes(ofOne.Get(), none.Get());
  spring->SetNodePairs(ofAll.Get(), ofAll.Get());
  spring->SetStiffness(100.0, 200.0, 300.0);
  spring->SetCoordinateSystem(3);
  spring->SetElementId(5);
  spring->SetPropertyId(6);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateSpring() -> Spring#1\n"
            "Spring#1.SetOwner(HostProject)\n"
            "Spring#1.SetConnection(1)\n"
            "Spring#1.SetSpringKind(2)\n"
            "Spring#1.SetTranslationMask(1)\n"
            "Spring#1.SetRotationMask(4)\n"
            "Spring#1.SetDamping(0.0, 0.0, 0.0)\n"
            "Spring#1.SetName(\"NodeSpring5\")\n"
            "Spring#1.SetGroundedNodes([n3], [])\n"
            "Spring#1.SetNodePairs([n1, n2], [n1, n2])\n"
            "Spring#1.SetStiffness(100.0, 200.0, 300.0)\n"
            "Spring#1.SetCoordinateSystem(3)\n"
            "Spring#1.SetElementId(5)\n"
            "Spring#1.SetPropertyId(6)\n");
  const MemorySpring& kept = host.Boundary().springs[0];
  EXPECT_EQ(kept.owner, host.GetProject());
  EXPECT_EQ(kept.connection, 1);
  EXPECT_EQ(kept.springKind, 2);
  EXPECT_EQ(kept.translationMask, 1);
  EXPECT_EQ(kept.rotationMask, 4);
  EXPECT_EQ(kept.groundedA, std::vector<MeshNode*>{Node(3)});
  EXPECT_TRUE(kept.groundedB.empty());
  EXPECT_EQ(kept.pairsB.size(), 2U);
  EXPECT_EQ(kept.stiffness, (Triple{100.0, 200.0, 300.0}));
  EXPECT_EQ(kept.coordinateSystem, 3);
  EXPECT_EQ(kept.elementId, 5);
  EXPECT_EQ(kept.propertyId, 6);
}

TEST_F(ConnectorSetters, ABush) {
  GivenList none;
  Bush* bush = nullptr;
  std::int32_t id = 0;
  boundary->CreateBush(&bush, &id);
  bush->SetConnection(0);
  bush->SetBushKind(2);
  bush->SetName(L"NodeBush_9");
  bush->SetGroundedNodes(ofAll.Get(), none.Get());
  bush->SetOwnerPart(body);
  bush->SetGroundNode(body);
  bush->SetNodes(ofOne.Get());
  bush->SetCurveId(12, 7);
  bush->SetCurve(curve, 7);
  bush->SetCurve(curve, 12);
  bush->SetTranslationMasks(7, 3, 1);
  bush->SetRotationMasks(1, 2, 0);
  bush->SetTranslationValues(1.0, 2.0, 3.0, 4.0, 5.0, 6.0);
  bush->SetRotationValues(7.0, 8.0, 9.0, 10.0, 11.0, 12.0);
  bush->SetStructuralDamping(0.02);
  bush->SetCoordinateSystem(4);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateBush() -> Bush#1\n"
            "Bush#1.SetConnection(0)\n"
            "Bush#1.SetBushKind(2)\n"
            "Bush#1.SetName(\"NodeBush_9\")\n"
            "Bush#1.SetGroundedNodes([n1, n2], [])\n"
            "Bush#1.SetOwnerPart(MeshPart#1)\n"
            "Bush#1.SetGroundNode(MeshPart#1)\n"
            "Bush#1.SetNodes([n3])\n"
            "Bush#1.SetCurveId(12, 7)\n"
            "Bush#1.SetCurve(Curve#1, 7)\n"
            "Bush#1.SetCurve(Curve#1, 12)\n"
            "Bush#1.SetTranslationMasks(7, 3, 1)\n"
            "Bush#1.SetRotationMasks(1, 2, 0)\n"
            "Bush#1.SetTranslationValues(1.0, 2.0, 3.0, 4.0, 5.0, 6.0)\n"
            "Bush#1.SetRotationValues(7.0, 8.0, 9.0, 10.0, 11.0, 12.0)\n"
            "Bush#1.SetStructuralDamping(0.02)\n"
            "Bush#1.SetCoordinateSystem(4)\n");
  const MemoryBush& kept = host.Boundary().bushes[0];
  EXPECT_EQ(kept.curves[7], curve);
  EXPECT_EQ(kept.curves[6], nullptr);
  EXPECT_EQ(kept.curveIds[7], 12);
  EXPECT_EQ(kept.ownerPart, body);
  EXPECT_EQ(kept.bushKind, 2);
  EXPECT_EQ(kept.connection, 0);
  EXPECT_EQ(kept.translationMasks, (std::array<std::uint8_t, 3>{7, 3, 1}));
  EXPECT_EQ(kept.rotationMasks, (std::array<std::uint8_t, 3>{1, 2, 0}));
  EXPECT_EQ(kept.translationValues, (Six{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}));
  EXPECT_EQ(kept.rotationValues, (Six{7.0, 8.0, 9.0, 10.0, 11.0, 12.0}));
  EXPECT_EQ(kept.structuralDamping, 0.02);
  EXPECT_EQ(kept.coordinateSystem, 4);
  EXPECT_EQ(kept.groundedA.size(), 2U);
  EXPECT_EQ(kept.nodes.size(), 1U);
}

TEST_F(ConnectorSetters, AGap) {
  std::int32_t elementId = 77;
  GivenList ids({&elementId});
  GapEntity* gap = nullptr;
  boundary->CreateGap(&gap);
  gap->SetActive(0);
  gap->SetName(L"GapElem2");
  gap->SetNodes(ofOne.Get(), ofOne.Get(), 0);
  gap->SetOrientationX(1.0);
  gap->SetOrientationY(2.0);
  gap->SetOrientationZ(3.0);
  gap->SetMode(0);
  gap->SetFrictionStatic(0.1);
  gap->SetFrictionKinetic(0.2);
  gap->SetInitialOpening(0.3);
  gap->SetPreload(0.4);
  gap->SetClosedStiffness(0.5);
  gap->SetOpenStiffness(0.6);
  gap->SetTransverseStiffness(0.7);
  gap->SetGroupId(9);
  gap->SetCoordinateSystem(3);
  gap->SetElementIds(ids.Get());
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateGap() -> GapEntity#1\n"
            "GapEntity#1.SetActive(0)\n"
            "GapEntity#1.SetName(\"GapElem2\")\n"
            "GapEntity#1.SetNodes([n3], [n3], 0)\n"
            "GapEntity#1.SetOrientationX(1.0)\n"
            "GapEntity#1.SetOrientationY(2.0)\n"
            "GapEntity#1.SetOrientationZ(3.0)\n"
            "GapEntity#1.SetMode(0)\n"
            "GapEntity#1.SetFrictionStatic(0.1)\n"
            "GapEntity#1.SetFrictionKinetic(0.2)\n"
            "GapEntity#1.SetInitialOpening(0.3)\n"
            "GapEntity#1.SetPreload(0.4)\n"
            "GapEntity#1.SetClosedStiffness(0.5)\n"
            "GapEntity#1.SetOpenStiffness(0.6)\n"
            "GapEntity#1.SetTransverseStiffness(0.7)\n"
            "GapEntity#1.SetGroupId(9)\n"
            "GapEntity#1.SetCoordinateSystem(3)\n"
            "GapEntity#1.SetElementIds([77])\n");
  const MemoryGap& kept = host.Boundary().gaps[0];
  EXPECT_EQ(kept.orientation, (Triple{1.0, 2.0, 3.0}));
  EXPECT_EQ(kept.frictionStatic, 0.1);
  EXPECT_EQ(kept.frictionKinetic, 0.2);
  EXPECT_EQ(kept.initialOpening, 0.3);
  EXPECT_EQ(kept.preload, 0.4);
  EXPECT_EQ(kept.closedStiffness, 0.5);
  EXPECT_EQ(kept.openStiffness, 0.6);
  EXPECT_EQ(kept.transverseStiffness, 0.7);
  EXPECT_EQ(kept.coordinateSystem, 3);
  EXPECT_EQ(kept.elementIds, std::vector<std::int32_t>{77});
  EXPECT_EQ(kept.nodesA, std::vector<MeshNode*>{Node(3)});
  EXPECT_EQ(kept.nodesB, std::vector<MeshNode*>{Node(3)});
}

TEST_F(ConnectorSetters, PlotLines) {
  PlotEntity* plot = nullptr;
  boundary->CreatePlot(&plot);
  plot->SetKind(0);
  plot->SetNodePairs(ofAll.Get(), ofAll.Get());
  plot->SetName(L"PlotElem1");
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreatePlot() -> 0 PlotEntity#1\n"
            "PlotEntity#1.SetKind(0)\n"
            "PlotEntity#1.SetNodePairs([n1, n2], [n1, n2])\n"
            "PlotEntity#1.SetName(\"PlotElem1\")\n");
  EXPECT_EQ(host.Boundary().plots[0].pairsA.size(), 2U);
}

}  // namespace
}  // namespace btz::memory
