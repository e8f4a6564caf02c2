// Connectors, ties, masses and plot lines of the in-memory boundary store. Each keeps what its setters were told, for reports and tests.
#pragma once

#include <array>
#include <vector>

#include "memory_host/entity_base.h"

namespace btz::memory {

/// Tie between nodes.
class MemoryMpc final : public EntityBase<Mpc> {
 public:
  MemoryMpc(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Mpc, entityMpc, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetCoordinateSystem(std::int32_t value) override {
    Told("SetCoordinateSystem", value);
    coordinateSystem = value;
  }
  void SetTranslationMask(std::int32_t value) override {
    Told("SetTranslationMask", value);
    translationMask = value;
  }
  void SetTranslationFactors(double f1, double f2, double f3) override {
    Told("SetTranslationFactors", f1, f2, f3);
    translationFactors = {f1, f2, f3};
  }
  void SetRotationMask(std::int32_t value) override {
    Told("SetRotationMask", value);
    rotationMask = value;
  }
  void SetRotationFactors(double f1, double f2, double f3) override {
    Told("SetRotationFactors", f1, f2, f3);
    rotationFactors = {f1, f2, f3};
  }
  void SetTieMode(std::int32_t value) override {
    Told("SetTieMode", value);
    tieMode = value;
  }
  void SetAnchorNode(MeshNode* node) override {
    Told("SetAnchorNode", node);
    anchorNode = AcceptNode(object, "SetAnchorNode", node);
  }
  void SetAnchorOwner(Entity* owner) override {
    Told("SetAnchorOwner", Object{owner});
    anchorOwner = Accept(object, "SetAnchorOwner", owner);
  }
  void SetKind(std::int32_t value) override {
    Told("SetKind", value);
    kind = value;
  }
  void SetTieType(std::int32_t value) override {
    Told("SetTieType", value);
    tieType = value;
  }
  void SetAnchorNodeId(std::int32_t value) override {
    Told("SetAnchorNodeId", value);
    anchorNodeId = value;
  }
  void SetNodes(PooledList* first, PooledList* second) override {
    Told("SetNodes", Nodes{first}, Nodes{second});
    independent = ReadNodes(object, "SetNodes", first);
    dependent = ReadNodes(object, "SetNodes", second);
  }

  std::int32_t coordinateSystem = 0;
  std::int32_t translationMask = 0;
  std::array<double, 3> translationFactors{};
  std::int32_t rotationMask = 0;
  std::array<double, 3> rotationFactors{};
  std::int32_t tieMode = 0;
  MeshNode* anchorNode = nullptr;
  Entity* anchorOwner = nullptr;
  std::int32_t kind = 0;
  std::int32_t tieType = 0;
  std::int32_t anchorNodeId = 0;
  std::vector<MeshNode*> independent;
  std::vector<MeshNode*> dependent;
};

/// Rigid bars between nodes.
class MemoryRigidConnection final : public EntityBase<RigidConnection> {
 public:
  MemoryRigidConnection(HostContext& context, std::int32_t id)
      : EntityBase(context, ObjectType::RigidConnection, entityRigidConnection, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetTranslationMask(std::uint8_t value) override {
    Told("SetTranslationMask", value);
    translationMask = value;
  }
  void SetRotationMask(std::uint8_t value) override {
    Told("SetRotationMask", value);
    rotationMask = value;
  }
  void SetElementId(std::int32_t value) override {
    Told("SetElementId", value);
    elementId = value;
  }
  void SetNodes(PooledList* first, PooledList* second) override {
    Told("SetNodes", Nodes{first}, Nodes{second});
    independent = ReadNodes(object, "SetNodes", first);
    dependent = ReadNodes(object, "SetNodes", second);
  }
  void SetKind(std::int32_t value) override {
    Told("SetKind", value);
    kind = value;
  }

  std::int32_t translationMask = 0;
  std::int32_t rotationMask = 0;
  std::int32_t elementId = 0;
  std::vector<MeshNode*> independent;
  std::vector<MeshNode*> dependent;
  std::int32_t kind = 0;
};

/// Lumped mass.
class MemoryMass final : public EntityBase<MassEntity> {
 public:
  MemoryMass(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::MassEntity, entityMass, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetCoordinateSystem(std::int32_t value) override {
    Told("SetCoordinateSystem", value);
    coordinateSystem = value;
  }
  void SetMass(double value) override {
    Told("SetMass", value);
    mass = value;
  }
  void SetOffDiagonalMask(std::uint8_t value) override {
    Told("SetOffDiagonalMask", value);
    offDiagonalMask = value;
  }
  void SetDiagonalMask(std::uint8_t value) override {
    Told("SetDiagonalMask", value);
    diagonalMask = value;
  }
  void SetDiagonalInertia(double i11, double i22, double i33) override {
    Told("SetDiagonalInertia", i11, i22, i33);
    diagonalInertia = {i11, i22, i33};
  }
  void SetOffDiagonalInertia(double i21, double i32, double i31) override {
    Told("SetOffDiagonalInertia", i21, i32, i31);
    offDiagonalInertia = {i21, i32, i31};
  }
  void SetKind(std::int32_t value) override {
    Told("SetKind", value);
    kind = value;
  }
  void SetNodes(PooledList* list) override {
    Told("SetNodes", Nodes{list});
    nodes = ReadNodes(object, "SetNodes", list);
  }
  void SetCentre(double x, double y, double z) override {
    Told("SetCentre", x, y, z);
    centre = {x, y, z};
  }

  std::int32_t coordinateSystem = 0;
  double mass = 0.0;
  std::int32_t offDiagonalMask = 0;
  std::int32_t diagonalMask = 0;
  std::array<double, 3> diagonalInertia{};
  std::array<double, 3> offDiagonalInertia{};
  std::int32_t kind = 0;
  std::vector<MeshNode*> nodes;
  std::array<double, 3> centre{};
};

/// Scalar springs of equal values.
class MemorySpring final : public EntityBase<Spring> {
 public:
  MemorySpring(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Spring, entitySpring, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetCoordinateSystem(std::int32_t value) override {
    Told("SetCoordinateSystem", value);
    coordinateSystem = value;
  }
  void SetGroundedNodes(PooledList* first, PooledList* second) override {
    Told("SetGroundedNodes", Nodes{first}, Nodes{second});
    groundedA = ReadNodes(object, "SetGroundedNodes", first);
    groundedB = ReadNodes(object, "SetGroundedNodes", second);
  }
  void SetRotationMask(std::int32_t value) override {
    Told("SetRotationMask", value);
    rotationMask = value;
  }
  void SetTranslationMask(std::int32_t value) override {
    Told("SetTranslationMask", value);
    translationMask = value;
  }
  void SetStiffness(double k1, double k2, double k3) override {
    Told("SetStiffness", k1, k2, k3);
    stiffness = {k1, k2, k3};
  }
  void SetDamping(double first, double second, double third) override {
    Told("SetDamping", first, second, third);
    damping = {first, second, third};
  }
  void SetOwner(void* given) override {
    Told("SetOwner", Object{given});
    owner = Accept(object, "SetOwner", given);
  }
  void SetConnection(std::int32_t value) override {
    Told("SetConnection", value);
    connection = value;
  }
  void SetElementId(std::int32_t value) override {
    Told("SetElementId", value);
    elementId = value;
  }
  void SetPropertyId(std::int32_t value) override {
    Told("SetPropertyId", value);
    propertyId = value;
  }
  void SetSpringKind(std::int32_t value) override {
    Told("SetSpringKind", value);
    springKind = value;
  }
  void SetNodePairs(PooledList* first, PooledList* second) override {
    Told("SetNodePairs", Nodes{first}, Nodes{second});
    pairsA = ReadNodes(object, "SetNodePairs", first);
    pairsB = ReadNodes(object, "SetNodePairs", second);
  }

  std::int32_t coordinateSystem = 0;
  std::vector<MeshNode*> groundedA;
  std::vector<MeshNode*> groundedB;
  std::int32_t rotationMask = 0;
  std::int32_t translationMask = 0;
  std::array<double, 3> stiffness{};
  std::array<double, 3> damping{};  ///< Or the stiffness of components 4 to 6.
  void* owner = nullptr;
  std::int32_t connection = 0;
  std::int32_t elementId = 0;
  std::int32_t propertyId = 0;
  std::int32_t springKind = 0;
  std::vector<MeshNode*> pairsA;
  std::vector<MeshNode*> pairsB;
};

/// Spring-damper of six components.
class MemoryBush final : public EntityBase<Bush> {
 public:
  MemoryBush(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::Bush, entityBush, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetCoordinateSystem(std::int32_t value) override {
    Told("SetCoordinateSystem", value);
    coordinateSystem = value;
  }
  void SetCurve(Curve* curve, std::int32_t slot) override {
    Told("SetCurve", Object{curve}, slot);
    if (IsSlot(slot)) {
      curves[static_cast<std::size_t>(slot)] = Accept(object, "SetCurve", curve);
    }
  }
  void SetCurveId(std::int32_t curveId, std::int32_t slot) override {
    Told("SetCurveId", curveId, slot);
    if (IsSlot(slot)) {
      curveIds[static_cast<std::size_t>(slot)] = curveId;
    }
  }
  void SetGroundedNodes(PooledList* first, PooledList* second) override {
    Told("SetGroundedNodes", Nodes{first}, Nodes{second});
    groundedA = ReadNodes(object, "SetGroundedNodes", first);
    groundedB = ReadNodes(object, "SetGroundedNodes", second);
  }
  void SetTranslationMasks(std::uint8_t stiffness, std::uint8_t damping, std::uint8_t hasStructural) override {
    Told("SetTranslationMasks", stiffness, damping, hasStructural);
    translationMasks = {stiffness, damping, hasStructural};
  }
  void SetRotationMasks(std::uint8_t stiffness, std::uint8_t damping, std::uint8_t hasStructural) override {
    Told("SetRotationMasks", stiffness, damping, hasStructural);
    rotationMasks = {stiffness, damping, hasStructural};
  }
  void SetTranslationValues(double k1, double k2, double k3, double b1, double b2, double b3) override {
    Told("SetTranslationValues", k1, k2, k3, b1, b2, b3);
    translationValues = {k1, k2, k3, b1, b2, b3};
  }
  void SetStructuralDamping(double value) override {
    Told("SetStructuralDamping", value);
    structuralDamping = value;
  }
  void SetRotationValues(double k4, double k5, double k6, double b4, double b5, double b6) override {
    Told("SetRotationValues", k4, k5, k6, b4, b5, b6);
    rotationValues = {k4, k5, k6, b4, b5, b6};
  }
  void SetGroundNode(void* entry) override {
    Told("SetGroundNode", Object{entry});
    groundNode = Accept(object, "SetGroundNode", entry);
  }
  void SetOwnerPart(MeshPart* part) override {
    Told("SetOwnerPart", Object{part});
    ownerPart = Accept(object, "SetOwnerPart", part);
  }
  void SetConnection(std::int32_t value) override {
    Told("SetConnection", value);
    connection = value;
  }
  void SetNodes(PooledList* list) override {
    Told("SetNodes", Nodes{list});
    nodes = ReadNodes(object, "SetNodes", list);
  }
  void SetBushKind(std::int32_t value) override {
    Told("SetBushKind", value);
    bushKind = value;
  }

  std::int32_t coordinateSystem = 0;
  std::array<Curve*, 12> curves{};
  std::array<std::int32_t, 12> curveIds{};
  std::vector<MeshNode*> groundedA;
  std::vector<MeshNode*> groundedB;
  std::array<std::uint8_t, 3> translationMasks{};  ///< Stiffness, damping, structural damping.
  std::array<std::uint8_t, 3> rotationMasks{};
  std::array<double, 6> translationValues{};  ///< Three stiffnesses, three dampings.
  double structuralDamping = 0.0;
  std::array<double, 6> rotationValues{};
  void* groundNode = nullptr;
  MeshPart* ownerPart = nullptr;
  std::int32_t connection = 0;
  std::vector<MeshNode*> nodes;
  std::int32_t bushKind = 0;

 private:
  static bool IsSlot(std::int32_t slot) { return slot >= 0 && slot < 12; }
};

/// Gap elements of one property and orientation.
class MemoryGap final : public EntityBase<GapEntity> {
 public:
  MemoryGap(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::GapEntity, entityGap, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetCoordinateSystem(std::int32_t value) override {
    Told("SetCoordinateSystem", value);
    coordinateSystem = value;
  }
  void SetFrictionStatic(double value) override {
    Told("SetFrictionStatic", value);
    frictionStatic = value;
  }
  void SetFrictionKinetic(double value) override {
    Told("SetFrictionKinetic", value);
    frictionKinetic = value;
  }
  void SetInitialOpening(double value) override {
    Told("SetInitialOpening", value);
    initialOpening = value;
  }
  void SetPreload(double value) override {
    Told("SetPreload", value);
    preload = value;
  }
  void SetClosedStiffness(double value) override {
    Told("SetClosedStiffness", value);
    closedStiffness = value;
  }
  void SetOpenStiffness(double value) override {
    Told("SetOpenStiffness", value);
    openStiffness = value;
  }
  void SetTransverseStiffness(double value) override {
    Told("SetTransverseStiffness", value);
    transverseStiffness = value;
  }
  void SetActive(std::int32_t value) override {
    Told("SetActive", value);
    active = value;
  }
  void SetNodes(PooledList* first, PooledList* second, std::int32_t nodeMode) override {
    Told("SetNodes", Nodes{first}, Nodes{second}, nodeMode);
    nodesA = ReadNodes(object, "SetNodes", first);
    nodesB = ReadNodes(object, "SetNodes", second);
  }
  void SetMode(std::int32_t value) override {
    Told("SetMode", value);
    mode = value;
  }
  void SetOrientationX(double value) override {
    Told("SetOrientationX", value);
    orientation[0] = value;
  }
  void SetOrientationY(double value) override {
    Told("SetOrientationY", value);
    orientation[1] = value;
  }
  void SetOrientationZ(double value) override {
    Told("SetOrientationZ", value);
    orientation[2] = value;
  }
  void SetGroupId(std::int32_t value) override {
    Told("SetGroupId", value);
    info.groupId = value;
  }
  void SetElementIds(PooledList* ids) override {
    Told("SetElementIds", Ids{ids});
    elementIds = ReadIds(object, "SetElementIds", ids);
  }

  std::int32_t coordinateSystem = 0;
  double frictionStatic = 0.0;
  double frictionKinetic = 0.0;
  double initialOpening = 0.0;
  double preload = 0.0;
  double closedStiffness = 0.0;
  double openStiffness = 0.0;
  double transverseStiffness = 0.0;
  std::int32_t active = 0;
  std::vector<MeshNode*> nodesA;
  std::vector<MeshNode*> nodesB;
  std::int32_t mode = 0;
  std::array<double, 3> orientation{};
  std::vector<std::int32_t> elementIds;
};

/// Lines that are only drawn.
class MemoryPlot final : public EntityBase<PlotEntity> {
 public:
  MemoryPlot(HostContext& context, std::int32_t id) : EntityBase(context, ObjectType::PlotEntity, entityPlot, id) {}

  void SetName(const wchar_t* text) override { TakeName(text); }
  void SetKind(std::int32_t value) override {
    Told("SetKind", value);
    kind = value;
  }
  void SetNodePairs(PooledList* first, PooledList* second) override {
    Told("SetNodePairs", Nodes{first}, Nodes{second});
    pairsA = ReadNodes(object, "SetNodePairs", first);
    pairsB = ReadNodes(object, "SetNodePairs", second);
  }

  std::int32_t kind = 0;
  std::vector<MeshNode*> pairsA;
  std::vector<MeshNode*> pairsB;
};

}  // namespace btz::memory
