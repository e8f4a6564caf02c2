// A host that ignores everything: it counts nodes and elements, hands out one part for all and forgets the rest. What a run on it costs is
// the cost of the translator alone.
#pragma once

#include <btz/host_interfaces.h>

namespace btz {

/// Stands for every part and every face.
class IgnoringPart : public TopoFace {
 public:
  std::int32_t GetTopoKind() override { return topoFace; }
  std::int32_t GetId() override { return 1; }
  void SetNamed(std::int32_t /*named*/) override {}
  std::int32_t IsNamed() override { return 0; }
  std::int32_t HasMesh() override { return 0; }
  void GetSolid(Solid** /*out*/) override {}
  void GetOwnerModel(MeshModel** /*out*/) override {}
  void GetFaceList(PooledList** /*out*/) override {}
  void GetFaces(PooledList** /*out*/) override {}
  void RegisterChildPart(std::int32_t /*id*/, std::int32_t /*mode*/, std::int32_t /*flags*/) override {}
  void SetRigidFaceId(std::int32_t /*faceId*/, std::int32_t /*mode*/, std::int32_t /*flags*/) override {}
  void SetLinePartId(std::int32_t /*partId*/, std::uint8_t /*mode*/) override {}
  void SetNumber(std::int32_t /*number*/) override {}
  void SetColor(const float* /*rgb*/) override {}
  void SetName(const wchar_t* /*name*/) override {}
  const wchar_t* GetName() override { return L""; }
  void AddFace(TopoFace* /*face*/, std::uint8_t /*mode*/) override {}
  bool IsSolid() override { return false; }
  void SplitFaces(PooledList* /*faces*/, double /*value*/, std::uint8_t /*flags*/) override {}
  void CreateFaces(PooledList* /*elements*/, PooledList* /*faceNumbers*/, PooledList* /*result*/, MeshPart** /*outPart*/) override {}
  void GetMesh(FaceMesh** /*out*/) override {}
  void GetParent(MeshPart** /*out*/) override {}
  void AddEdge(TopoEdge* /*edge*/, std::uint8_t /*mode*/) override {}
  void GetModel(MeshModel** /*out*/) override {}
  void UpdateBounds() override {}
  void Finish() override {}
  void SetVisible(std::int32_t /*visible*/) override {}
};

/// Counts nodes and elements.
class IgnoringModel : public MeshModel {
 public:
  std::int64_t nodes = 0;
  std::int64_t elements = 0;
  double coordinateSum = 0.0;  ///< So that no coordinate is computed in vain.
  std::int64_t nodeIdSum = 0;

  std::int32_t CreateNode(std::int32_t id, const double* xyz, std::int32_t /*mode*/) override {
    ++nodes;
    nodeIdSum += id;
    coordinateSum += xyz[0] + xyz[1] + xyz[2];
    return 0;
  }
  std::int32_t CreateElement(std::int32_t /*id*/, std::int32_t /*typeIndex*/, const std::int32_t* nodeIds, std::int32_t /*partId*/,
                             std::uint8_t /*flag1*/, std::int32_t /*solidFlag*/, std::uint8_t /*shellFlag*/,
                             std::uint8_t /*flag2*/) override {
    ++elements;
    nodeIdSum += nodeIds[0];
    return 0;
  }
  void CreateBody(std::int32_t /*kind*/, MeshPart** out, std::int32_t /*partId*/, std::int32_t /*flag1*/, std::int32_t /*flag2*/,
                  std::uint8_t /*flag3*/) override {
    *out = &part;
  }
  void CreateTopoEntity(std::int32_t kind, TopoEntity** out, std::int32_t /*partId*/, MeshPart* /*part*/, std::int32_t /*mode*/) override {
    *out = kind == topoFace ? &part : nullptr;
  }
  void SetSourcePath(const char* /*path*/) override {}
  void GetParts(PooledList** /*out*/) override {}
  std::int32_t GetDescriptorNumber() override { return 0; }
  void CreatePart(std::int32_t /*kind*/, TopoEntity** /*out*/, std::int32_t /*id*/, MeshPart* /*parent*/) override {}
  void CollectNodeElements(std::int32_t /*mode*/, PooledList* /*nodes*/, PooledList* /*out*/, std::int32_t /*flag1*/,
                           std::int32_t /*flag2*/, std::int32_t /*flag3*/, std::int32_t /*flag4*/, std::int32_t /*flag5*/,
                           std::int32_t /*flag6*/, std::int32_t /*flag7*/, std::int32_t /*flag8*/, std::int32_t /*flag9*/,
                           std::int32_t /*flag10*/) override {}
  void GetElement(std::int32_t /*id*/, MeshElement** /*out*/) override {}
  void GetNode(std::int32_t /*id*/, MeshNode** /*out*/) override {}
  std::int32_t NextPartId() override { return 0; }
  void Commit(std::int32_t /*first*/, std::int32_t /*second*/) override {}
  std::int32_t NextElementId() override { return 0; }
  std::int32_t NextNodeId() override { return 0; }
  void GetAllElements(HashTable** /*out*/) override {}
  void CollectBodies(PooledList* /*bodies*/, std::int32_t /*flag1*/, std::int32_t /*flag2*/, std::int32_t /*flag3*/) override {}
  void RepairDefects() override {}
  void ReservePartId(std::int32_t /*id*/) override {}
  std::int32_t CountDefects(std::int32_t /*mask*/) override { return 0; }
  void FinishSolidPart(MeshPart* /*part*/, std::int32_t /*flag1*/, std::int32_t /*flag2*/, std::uint8_t /*flag3*/) override {}
  void Reserve(std::int32_t /*nodes*/, std::int32_t /*elements*/) override {}
  void UpdateTopology(std::int32_t /*mode*/) override {}
  void Finish() override {}
  void GetSolidElement(std::int32_t /*id*/, MeshElement** /*out*/, std::int32_t /*mode*/) override {}
  std::int32_t MergeSplitPart(MeshPart* /*part*/) override { return 0; }
  MeshPart* CreateRigidBody(std::int32_t /*mode*/) override { return nullptr; }
  void ReservePartElements(std::int32_t /*partId*/, std::int32_t /*count*/) override {}

 private:
  IgnoringPart part;
};

class IgnoringProject : public HostProject {
 public:
  IgnoringModel model;

  void GetMeshModel(MeshModel** out, std::uint8_t /*mode*/) override { *out = &model; }
  void AttachModel(MeshModel* /*model*/, std::int32_t /*mode*/) override {}
};

class IgnoringBoundaryStore : public BoundaryStore {
 public:
  void GetEntities(PooledList** /*out*/) override {}
  std::int32_t CreatePressure(Pressure** /*out*/) override { return 0; }
  std::int32_t CreateForce(ForceLoad** /*out*/, std::int32_t* /*id*/) override { return 0; }
  std::int32_t CreateConstraint(Constraint** /*out*/, std::int32_t /*enforced*/) override { return 0; }
  std::int32_t CreateLoadCase(LoadCase** /*out*/, std::int32_t /*position*/) override { return 0; }
  std::int32_t CreateFlux(Flux** /*out*/) override { return 0; }
  std::int32_t CreateConvection(Convection** /*out*/) override { return 0; }
  void CreateSpring(Spring** /*out*/) override {}
  std::int32_t CreateRigidConnection(RigidConnection** /*out*/) override { return 0; }
  std::int32_t CreateMass(MassEntity** /*out*/) override { return 0; }
  void CreateThermalLoad(ThermalLoad** /*out*/) override {}
  std::int32_t CreateMpc(Mpc** /*out*/) override { return 0; }
  void CreateCoordinateSystem(CoordinateSystem** /*out*/) override {}
  std::int32_t CreatePretension(Pretension** /*out*/) override { return 0; }
  void CreateBush(Bush** /*out*/, std::int32_t* /*id*/) override {}
  std::int32_t CreateBodyLoad(BodyLoad** /*out*/) override { return 0; }
  void CreateDamping(Damping** /*out*/) override {}
  std::int32_t CreateSet(EntitySet** /*out*/) override { return 0; }
  std::int32_t CreateSurface(Surface** /*out*/) override { return 0; }
  void FindEntity(const wchar_t* /*name*/, Entity** /*out*/, std::int32_t /*flags*/, std::int32_t /*typeCode*/) override {}
  void GetEntitiesOfType(std::int32_t /*type*/, PooledList* /*out*/) override {}
  void GetCoordinateSystem(std::int32_t /*id*/, CoordinateSystem** /*out*/) override {}
  void CreateGap(GapEntity** /*out*/) override {}
  std::int32_t CreatePlot(PlotEntity** /*out*/) override { return 0; }
  std::int32_t CheckSetName(std::int32_t /*flags*/, const wchar_t* /*name*/, std::int32_t /*kind*/) override { return 0; }
  void CreateNodeSystemAssignment(NodeSystemAssignment** /*out*/) override {}
  void CreateExcitation(Excitation** /*out*/) override {}
  std::int32_t GetNextGapGroupId() override { return 0; }
};

class IgnoringMaterialStore : public MaterialStore {
 public:
  std::int32_t CreateMaterial(Material** /*out*/, std::int32_t /*id*/) override { return 0; }
  void GetMaterial(std::int32_t /*id*/, Material** /*out*/, std::int32_t* /*index*/) override {}
  std::int32_t CreateProperty(Property** /*out*/, std::int32_t /*id*/) override { return 0; }
  void GetSectionCalculator(SectionCalculator** /*out*/) override {}
  void Commit() override {}
};

class IgnoringCurveStore : public CurveStore {
 public:
  void GetField(std::int32_t /*id*/, Field** /*out*/) override {}
  void GetCurve(std::int32_t /*id*/, Curve** /*out*/) override {}
  void CreateField(Field** /*out*/) override {}
};

}  // namespace btz
