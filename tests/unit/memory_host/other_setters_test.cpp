// Every setter of parts, sets, systems, materials, properties, fields, load cases and groups: its line in the trace, and what the host
// keeps.
#include "memory_host/setters_fixture.h"

namespace btz::memory {
namespace {

class HostSetters : public SettersTest {};

TEST_F(HostSetters, Parts) {
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

TEST_F(HostSetters, Sets) {
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

TEST_F(HostSetters, Systems) {
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

TEST_F(HostSetters, MaterialsPropertiesAndFields) {
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

TEST_F(HostSetters, LoadCasesAndGroups) {
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
