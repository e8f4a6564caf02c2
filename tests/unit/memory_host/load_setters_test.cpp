// Every setter of loads and constraints: its line in the trace, and what the host keeps of it.
#include "memory_host/setters_fixture.h"

namespace btz::memory {
namespace {

class LoadSetters : public SettersTest {};

TEST_F(LoadSetters, AConstraint) {
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

TEST_F(LoadSetters, AForce) {
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

TEST_F(LoadSetters, SurfaceLoads) {
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

TEST_F(LoadSetters, AThermalLoad) {
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

TEST_F(LoadSetters, ABodyLoad) {
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

TEST_F(LoadSetters, AnExcitationAndADamping) {
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

TEST_F(LoadSetters, APretension) {
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

}  // namespace
}  // namespace btz::memory
