// Every setter of every host object: its line in the trace, and what the host keeps of it.
#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

using Triple = std::array<double, 3>;
using Six = std::array<double, 6>;

class Setters : public MemoryHostTest {
 protected:
  Setters() {
    MakeNodes(3);
    ofAll.Add(Node(1));
    ofAll.Add(Node(2));
    ofOne.Add(Node(3));
    host.GetCurveStore()->CreateField(&field);
    field->SetId(12);
    host.GetCurveStore()->GetCurve(12, &curve);
    body = MakeBody(7);
    face = MakeFace(body, 7);
    parts.Add(static_cast<MeshPart*>(face));
    host.SetTrace(&sink_);
  }

  std::string Lines() {
    std::string lines;
    lines.swap(text_);
    return lines;
  }

  GivenList ofAll;  ///< [n1, n2]
  GivenList ofOne;  ///< [n3]
  GivenList parts;  ///< [TopoFace#1]
  Field* field = nullptr;
  Curve* curve = nullptr;
  MeshPart* body = nullptr;
  TopoFace* face = nullptr;

 private:
  std::string text_;
  TraceSink sink_{&text_};
};

TEST_F(Setters, Parts) {
  TopoEntity* made = nullptr;
  model->CreateTopoEntity(3, &made, 7, body, 1);
  auto* edge = static_cast<TopoEdge*>(made);
  body->SetNamed(1);
  body->RegisterChildPart(7, 1, 0);
  body->SetRigidFaceId(7, 1, 0);
  body->SetLinePartId(7, 1);
  body->SetNumber(4);
  body->SetName(L"Door");
  body->AddFace(face, 1);
  body->SplitFaces(parts.Get(), 30.5, 0);
  face->AddEdge(edge, 1);
  face->UpdateBounds();
  face->Finish();
  face->SetVisible(0);
  face->SetName(L"Skin");
  FaceMesh* mesh = nullptr;
  face->GetMesh(&mesh);
  mesh->Rebuild();
  model->Commit(0, 0);
  model->RepairDefects();
  model->ReservePartId(9);
  model->Reserve(10, 20);
  model->UpdateTopology(0);
  model->MergeSplitPart(body);
  model->ReservePartElements(7, 12);
  host.GetMaterialStore()->Commit();
  host.GetGroupStore()->DeleteFound();
  TopoEntity* child = nullptr;
  model->CreatePart(2, &child, 12, body);
  EXPECT_EQ(Lines(),
            "MeshModel.CreateTopoEntity(3, 7, MeshPart#1, 1) -> TopoEdge#1\n"
            "MeshPart#1.SetNamed(1)\n"
            "MeshPart#1.RegisterChildPart(7, 1, 0)\n"
            "MeshPart#1.SetRigidFaceId(7, 1, 0)\n"
            "MeshPart#1.SetLinePartId(7, 1)\n"
            "MeshPart#1.SetNumber(4)\n"
            "MeshPart#1.SetName(\"Door\")\n"
            "MeshPart#1.AddFace(TopoFace#1, 1)\n"
            "MeshPart#1.SplitFaces([TopoFace#1], 30.5, 0)\n"
            "TopoFace#1.AddEdge(TopoEdge#1, 1)\n"
            "TopoFace#1.UpdateBounds()\n"
            "TopoFace#1.Finish()\n"
            "TopoFace#1.SetVisible(0)\n"
            "TopoFace#1.SetName(\"Skin\")\n"
            "FaceMesh#1.Rebuild()\n"
            "MeshModel.Commit(0, 0)\n"
            "MeshModel.RepairDefects()\n"
            "MeshModel.ReservePartId(9)\n"
            "MeshModel.Reserve(10, 20)\n"
            "MeshModel.UpdateTopology(0)\n"
            "MeshModel.MergeSplitPart(MeshPart#1) -> 0\n"
            "MeshModel.ReservePartElements(7, 12)\n"
            "MaterialStore.Commit()\n"
            "GroupStore.DeleteFound()\n"
            "MeshModel.CreatePart(2, 12, MeshPart#1) -> TopoFace#2\n");
}

TEST_F(Setters, AConstraint) {
  Constraint* constraint = nullptr;
  EXPECT_EQ(boundary->CreateConstraint(&constraint, 1), 0);
  constraint->SetName(L"fix");
  constraint->SetCoordinateSystem(5);
  constraint->SetField(field, 0);
  constraint->SetTranslations(1.0, 2.0, 3.0);
  constraint->SetRotations(4.0, 5.0, 6.0);
  constraint->SetTranslationMask(7);
  constraint->SetRotationMask(3);
  constraint->SetNodes(ofAll.Get());
  constraint->SetNodeBased(1);
  constraint->SetAxisFlag(1);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateConstraint(1) -> 0 Constraint#1\n"
            "Constraint#1.SetName(\"fix\")\n"
            "Constraint#1.SetCoordinateSystem(5)\n"
            "Constraint#1.SetField(Field#1, 0)\n"
            "Constraint#1.SetTranslations(1.0, 2.0, 3.0)\n"
            "Constraint#1.SetRotations(4.0, 5.0, 6.0)\n"
            "Constraint#1.SetTranslationMask(7)\n"
            "Constraint#1.SetRotationMask(3)\n"
            "Constraint#1.SetNodes([n1, n2])\n"
            "Constraint#1.SetNodeBased(1)\n"
            "Constraint#1.SetAxisFlag(1)\n");
  const MemoryConstraint& kept = host.Boundary().constraints[0];
  EXPECT_EQ(kept.info.name, L"fix");
  EXPECT_EQ(kept.coordinateSystem, 5);
  EXPECT_EQ(kept.field, field);
  EXPECT_EQ(kept.translations, (Triple{1.0, 2.0, 3.0}));
  EXPECT_EQ(kept.rotations, (Triple{4.0, 5.0, 6.0}));
  EXPECT_EQ(kept.translationMask, 7);
  EXPECT_EQ(kept.rotationMask, 3);
  EXPECT_EQ(kept.nodes.Size(), 2);
  EXPECT_EQ(kept.nodeBased, 1);
  EXPECT_EQ(kept.axisFlag, 1);
}

TEST_F(Setters, AForce) {
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  EXPECT_EQ(boundary->CreateForce(&force, &id), 0);
  force->SetNodeBased(1);
  force->SetForce(2.0, 0.0, 0.0);
  force->SetMoment(0.0, 3.0, 0.0);
  force->SetCoordinateSystem(4);
  force->SetNodes(ofAll.Get());
  force->SetField(nullptr, 0);
  force->SetName(L"PointForce1");
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateForce() -> 0 ForceLoad#1\n"
            "ForceLoad#1.SetNodeBased(1)\n"
            "ForceLoad#1.SetForce(2.0, 0.0, 0.0)\n"
            "ForceLoad#1.SetMoment(0.0, 3.0, 0.0)\n"
            "ForceLoad#1.SetCoordinateSystem(4)\n"
            "ForceLoad#1.SetNodes([n1, n2])\n"
            "ForceLoad#1.SetField(null, 0)\n"
            "ForceLoad#1.SetName(\"PointForce1\")\n");
  const MemoryForce& kept = host.Boundary().forces[0];
  EXPECT_EQ(kept.force, (Triple{2.0, 0.0, 0.0}));
  EXPECT_EQ(kept.moment, (Triple{0.0, 3.0, 0.0}));
  EXPECT_EQ(kept.coordinateSystem, 4);
  EXPECT_EQ(kept.nodes.size(), 2U);
  EXPECT_EQ(kept.nodeBased, 1);
}

TEST_F(Setters, SurfaceLoads) {
  Pressure* pressure = nullptr;
  Convection* convection = nullptr;
  Flux* flux = nullptr;
  boundary->CreatePressure(&pressure);
  pressure->SetPressure(1.5);
  pressure->SetParts(parts.Get());
  pressure->SetField(field, 0);
  pressure->SetName(L"Pressure1");
  boundary->CreateConvection(&convection);
  convection->SetValues(0.1, 100.0);
  convection->SetParts(parts.Get());
  convection->SetMode(3);
  convection->SetField(field, 0);
  convection->SetName(L"Convection1");
  boundary->CreateFlux(&flux);
  flux->SetValue(1.5);
  flux->SetParts(parts.Get());
  flux->SetField(field, 0);
  flux->SetName(L"Flux1");
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreatePressure() -> 0 Pressure#1\n"
            "Pressure#1.SetPressure(1.5)\n"
            "Pressure#1.SetParts([TopoFace#1])\n"
            "Pressure#1.SetField(Field#1, 0)\n"
            "Pressure#1.SetName(\"Pressure1\")\n"
            "BoundaryStore.CreateConvection() -> 0 Convection#1\n"
            "Convection#1.SetValues(0.1, 100.0)\n"
            "Convection#1.SetParts([TopoFace#1])\n"
            "Convection#1.SetMode(3)\n"
            "Convection#1.SetField(Field#1, 0)\n"
            "Convection#1.SetName(\"Convection1\")\n"
            "BoundaryStore.CreateFlux() -> 0 Flux#1\n"
            "Flux#1.SetValue(1.5)\n"
            "Flux#1.SetParts([TopoFace#1])\n"
            "Flux#1.SetField(Field#1, 0)\n"
            "Flux#1.SetName(\"Flux1\")\n");
  EXPECT_EQ(host.Boundary().pressures[0].pressure, 1.5);
  EXPECT_EQ(host.Boundary().pressures[0].field, field);
  EXPECT_EQ(host.Boundary().convections[0].coefficient, 0.1);
  EXPECT_EQ(host.Boundary().convections[0].ambient, 100.0);
  EXPECT_EQ(host.Boundary().convections[0].mode, 3);
  EXPECT_EQ(host.Boundary().fluxes[0].value, 1.5);
}

TEST_F(Setters, AThermalLoad) {
  GivenList bodies({body});
  ThermalLoad* load = nullptr;
  boundary->CreateThermalLoad(&load);
  load->SetValue(20.5F);
  load->SetSecondValue(0.0F);
  load->SetMode(3);
  load->SetLabel(L"");
  load->SetNodes(ofAll.Get(), 0);
  load->SetBodies(bodies.Get());
  load->SetField(field);
  load->SetName(L"Temp1");
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateThermalLoad() -> ThermalLoad#1\n"
            "ThermalLoad#1.SetValue(20.5)\n"
            "ThermalLoad#1.SetSecondValue(0.0)\n"
            "ThermalLoad#1.SetMode(3)\n"
            "ThermalLoad#1.SetLabel(\"\")\n"
            "ThermalLoad#1.SetNodes([n1, n2], 0)\n"
            "ThermalLoad#1.SetBodies([MeshPart#1])\n"
            "ThermalLoad#1.SetField(Field#1)\n"
            "ThermalLoad#1.SetName(\"Temp1\")\n");
  const MemoryThermalLoad& kept = host.Boundary().thermalLoads[0];
  EXPECT_EQ(kept.value, 20.5F);
  EXPECT_EQ(kept.mode, 3);
  EXPECT_EQ(kept.nodes.size(), 2U);
  EXPECT_EQ(kept.bodies, std::vector<MeshPart*>{body});
  EXPECT_EQ(kept.field, field);
}

TEST_F(Setters, ABodyLoad) {
  BodyLoad* load = nullptr;
  boundary->CreateBodyLoad(&load);
  load->SetParts(parts.Get());
  load->SetGravity(0.0, 0.0, -9810.0);
  load->SetRotationVector(1.0, 2.0, 3.0);
  load->SetScaledRotationVector(4.0, 5.0, 6.0);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#1\n"
            "BodyLoad#1.SetParts([TopoFace#1])\n"
            "BodyLoad#1.SetGravity(0.0, 0.0, -9810.0)\n"
            "BodyLoad#1.SetRotationVector(1.0, 2.0, 3.0)\n"
            "BodyLoad#1.SetScaledRotationVector(4.0, 5.0, 6.0)\n");
  const MemoryBodyLoad& kept = host.Boundary().bodyLoads[0];
  EXPECT_EQ(kept.gravity, (Triple{0.0, 0.0, -9810.0}));
  EXPECT_EQ(kept.rotation, (Triple{1.0, 2.0, 3.0}));
  EXPECT_EQ(kept.scaledRotation, (Triple{4.0, 5.0, 6.0}));
}

TEST_F(Setters, AnExcitationAndADamping) {
  Excitation* excitation = nullptr;
  boundary->CreateExcitation(&excitation);
  excitation->SetTable(curve, 0);
  excitation->SetTable(nullptr, 1);
  excitation->SetNodes(ofOne.Get());
  excitation->SetComponentMask(33);
  excitation->SetScales(1.0, 2.0, 3.0, 4.0, 5.0, 6.0);
  excitation->SetReferenceId(9);
  excitation->SetReferenceKind(2);
  excitation->SetLoadType(1);
  excitation->SetName(L"Exc");
  Damping* damping = nullptr;
  boundary->CreateDamping(&damping);
  damping->SetCurve(curve);
  damping->SetId(12);
  damping->SetName(L"Global_Damp_12");
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateExcitation() -> Excitation#1\n"
            "Excitation#1.SetTable(Curve#1, 0)\n"
            "Excitation#1.SetTable(null, 1)\n"
            "Excitation#1.SetNodes([n3])\n"
            "Excitation#1.SetComponentMask(33)\n"
            "Excitation#1.SetScales(1.0, 2.0, 3.0, 4.0, 5.0, 6.0)\n"
            "Excitation#1.SetReferenceId(9)\n"
            "Excitation#1.SetReferenceKind(2)\n"
            "Excitation#1.SetLoadType(1)\n"
            "Excitation#1.SetName(\"Exc\")\n"
            "BoundaryStore.CreateDamping() -> Damping#1\n"
            "Damping#1.SetCurve(Curve#1)\n"
            "Damping#1.SetId(12)\n"
            "Damping#1.SetName(\"Global_Damp_12\")\n");
  const MemoryExcitation& kept = host.Boundary().excitations[0];
  EXPECT_EQ(kept.tables[0], curve);
  EXPECT_EQ(kept.componentMask, 33);
  EXPECT_EQ(kept.scales, (Six{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}));
  EXPECT_EQ(kept.referenceId, 9);
  EXPECT_EQ(kept.referenceKind, 2);
  EXPECT_EQ(kept.loadType, 1);
  EXPECT_EQ(host.Boundary().dampings[0].curve, curve);
  EXPECT_EQ(host.Boundary().dampings[0].tableId, 12);
}

TEST_F(Setters, APretension) {
  Pretension* pretension = nullptr;
  boundary->CreatePretension(&pretension);
  pretension->SetName(L"Bolt");
  pretension->SetMode(2);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreatePretension() -> 0 Pretension#1\n"
            "Pretension#1.SetName(\"Bolt\")\n"
            "Pretension#1.SetMode(2)\n");
  EXPECT_EQ(host.Boundary().pretensions[0].mode, 2);
}

TEST_F(Setters, ATie) {
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

TEST_F(Setters, ARigidConnection) {
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

TEST_F(Setters, AMass) {
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

TEST_F(Setters, ASpring) {
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

TEST_F(Setters, ABush) {
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

TEST_F(Setters, AGap) {
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

TEST_F(Setters, PlotLines) {
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

TEST_F(Setters, Sets) {
  GivenList none;
  EntitySet* set = nullptr;
  boundary->CreateSet(&set);
  set->SetKind(2);
  set->SetMemberType(2);
  set->SetAsetKind(1);
  set->SetNodes(ofAll.Get());
  set->SetElements(none.Get());
  set->SetParts(parts.Get());
  set->SetName(L"Set1");
  Surface* surface = nullptr;
  boundary->CreateSurface(&surface);
  surface->SetName(L"Skin");
  surface->SetElements(none.Get());
  surface->SetSurfaceKind(6);
  surface->SetElementBased(1);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateSet() -> 0 EntitySet#1\n"
            "EntitySet#1.SetKind(2)\n"
            "EntitySet#1.SetMemberType(2)\n"
            "EntitySet#1.SetAsetKind(1)\n"
            "EntitySet#1.SetNodes([n1, n2])\n"
            "EntitySet#1.SetElements([])\n"
            "EntitySet#1.SetParts([TopoFace#1])\n"
            "EntitySet#1.SetName(\"Set1\")\n"
            "BoundaryStore.CreateSurface() -> 0 Surface#1\n"
            "Surface#1.SetName(\"Skin\")\n"
            "Surface#1.SetElements([])\n"
            "Surface#1.SetSurfaceKind(6)\n"
            "Surface#1.SetElementBased(1)\n");
  const MemoryEntitySet& kept = host.Boundary().sets[0];
  EXPECT_EQ(kept.kind, 2);
  EXPECT_EQ(kept.memberType, 2);
  EXPECT_EQ(kept.asetKind, 1);
  EXPECT_EQ(kept.nodes.size(), 2U);
  EXPECT_EQ(kept.info.parts.Size(), 1);
  EXPECT_EQ(host.Boundary().surfaces[0].surfaceKind, 6);
  EXPECT_EQ(host.Boundary().surfaces[0].elementBased, 1);
}

TEST_F(Setters, Systems) {
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  system->SetPoints(Node(1), Node(2), nullptr);
  system->SetModels(model, model, model);
  system->SetKind(2);
  system->SetActive(1);
  system->SetId(15);
  system->SetFromNodes(1);
  system->SetName(L"CylCoordinate15");
  NodeSystemAssignment* assignment = nullptr;
  boundary->CreateNodeSystemAssignment(&assignment);
  assignment->SetCoordinateSystem(15);
  assignment->SetNodes(ofAll.Get());
  assignment->SetKind(1);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateCoordinateSystem() -> CoordinateSystem#1\n"
            "CoordinateSystem#1.SetPoints(n1, n2, null)\n"
            "CoordinateSystem#1.SetModels(MeshModel, MeshModel, MeshModel)\n"
            "CoordinateSystem#1.SetKind(2)\n"
            "CoordinateSystem#1.SetActive(1)\n"
            "CoordinateSystem#1.SetId(15)\n"
            "CoordinateSystem#1.SetFromNodes(1)\n"
            "CoordinateSystem#1.SetName(\"CylCoordinate15\")\n"
            "BoundaryStore.CreateNodeSystemAssignment() -> NodeSystemAssignment#1\n"
            "NodeSystemAssignment#1.SetCoordinateSystem(15)\n"
            "NodeSystemAssignment#1.SetNodes([n1, n2])\n"
            "NodeSystemAssignment#1.SetKind(1)\n");
  const MemoryCoordinateSystem& kept = host.Boundary().coordinateSystems[0];
  EXPECT_EQ(kept.kind, 2);
  EXPECT_EQ(kept.active, 1);
  EXPECT_EQ(kept.fromNodes, 1);
  EXPECT_EQ(kept.points[1], Node(2));
  EXPECT_EQ(host.Boundary().nodeSystemAssignments[0].coordinateSystem, 15);
  EXPECT_EQ(host.Boundary().nodeSystemAssignments[0].kind, 1);
}

TEST_F(Setters, MaterialsPropertiesAndFields) {
  Material* material = nullptr;
  Property* property = nullptr;
  EXPECT_EQ(host.GetMaterialStore()->CreateMaterial(&material, 3), 0);
  EXPECT_NE(host.GetMaterialStore()->CreateMaterial(&material, 3), 0);
  material->SetUsageFlag(0);
  EXPECT_EQ(host.GetMaterialStore()->CreateProperty(&property, 7), 0);
  property->SetName(L"Property7");
  property->SetName(L"Door panel");
  property->SetParts(parts.Get());
  property->SetLinkedIndex(1);
  field->SetName(L"Fld_12");
  field->SetQuantity(L"XYZ");
  field->SetRowCount(3);
  EXPECT_EQ(Lines(),
            "MaterialStore.CreateMaterial(3) -> 0 Material#1\n"
            "MaterialStore.CreateMaterial(3) -> 1\n"
            "Material#1.SetUsageFlag(0)\n"
            "MaterialStore.CreateProperty(7) -> 0 Property#1\n"
            "Property#1.SetName(\"Property7\")\n"
            "Property#1.SetName(\"Door panel\")\n"
            "Property#1.SetParts([TopoFace#1])\n"
            "Property#1.SetLinkedIndex(1)\n"
            "Field#1.SetName(\"Fld_12\")\n"
            "Field#1.SetQuantity(\"XYZ\")\n"
            "Field#1.SetRowCount(3)\n");
  const MemoryProperty& kept = host.Materials().properties[0];
  EXPECT_EQ(kept.id, 7);
  EXPECT_EQ(kept.name, L"Door panel");
  EXPECT_EQ(kept.parts, std::vector<MeshPart*>{face});
  EXPECT_EQ(kept.linkedIndex, 1);
  EXPECT_EQ(host.Curves().fields[0].name, L"Fld_12");
  EXPECT_EQ(host.Curves().fields[0].rowCount, 3);
}

TEST_F(Setters, LoadCasesAndGroups) {
  LoadCase* loadCase = nullptr;
  EXPECT_EQ(boundary->CreateLoadCase(&loadCase, -1), 0);
  Constraint* constraint = nullptr;
  boundary->CreateConstraint(&constraint, 0);
  loadCase->SetName(L"Case1");
  loadCase->SetSolverProfile(L"NASTRAN", L"STATIC");
  loadCase->AddEntity(constraint, 0, 2.5);
  ParameterSet* parameters = loadCase->GetParameters(L"NASTRAN", L"STATIC", 14);
  parameters->SetRealOptional(L"Min frequency", 10.0, 1, 7);
  parameters->SetEntityName(L"Fluid coordinate system", L"Rect1", 5);
  parameters->SetReal(L"Density", 1e-9);
  parameters->SetInt(L"Method", 2, 3);
  Group* group = nullptr;
  host.GetGroupStore()->CreateGroup(&group, nullptr, 0, 0, 0, 0, 0, 10);
  group->SetName(L"SL_TransitionElements");
  group->SetType(11);
  EXPECT_EQ(Lines(),
            "BoundaryStore.CreateLoadCase(-1) -> 0 LoadCase#1\n"
            "BoundaryStore.CreateConstraint(0) -> 0 Constraint#1\n"
            "LoadCase#1.SetName(\"Case1\")\n"
            "LoadCase#1.SetSolverProfile(\"NASTRAN\", \"STATIC\")\n"
            "LoadCase#1.AddEntity(Constraint#1, 0, 2.5)\n"
            "LoadCase#1.GetParameters(\"NASTRAN\", \"STATIC\", 14) -> ParameterSet#1\n"
            "ParameterSet#1.SetRealOptional(\"Min frequency\", 10.0, 1, 7)\n"
            "ParameterSet#1.SetEntityName(\"Fluid coordinate system\", \"Rect1\", 5)\n"
            "ParameterSet#1.SetReal(\"Density\", 1e-09)\n"
            "ParameterSet#1.SetInt(\"Method\", 2, 3)\n"
            "GroupStore.CreateGroup(null, 0, 0, 0, 0, 0, 10) -> 0 Group#1\n"
            "Group#1.SetName(\"SL_TransitionElements\")\n"
            "Group#1.SetType(11)\n");
  EXPECT_EQ(host.Groups().groups[0].type, 11);
}

}  // namespace
}  // namespace btz::memory
