// Connectors, ties, masses and other entities between nodes that a BoundaryStore makes. See host_entities.h for what masks, lists and units
// mean. Where an operation takes two node lists, they run in step unless told otherwise.
#pragma once

#include <btz/host_entities.h>

namespace btz {

/// Tie between nodes. [implemented by: host] [from BoundaryStore::CreateMpc]
class Mpc : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Id of the system in which the components act. [stage]
  virtual void SetCoordinateSystem(std::int32_t csId) = 0;

  /// Tied components 1 to 3. [stage]
  virtual void SetTranslationMask(std::int32_t mask) = 0;

  /// Factors of components 1 to 3, always 1.0 each. [stage]
  virtual void SetTranslationFactors(double f1, double f2, double f3) = 0;

  /// Tied components 4 to 6. [stage]
  virtual void SetRotationMask(std::int32_t mask) = 0;

  /// Factors of components 4 to 6, 1.0 each, or 0.0 each for a tie with an anchor. [stage]
  virtual void SetRotationFactors(double f1, double f2, double f3) = 0;

  /// 0, or 1 when an anchor and its owner are set. [stage]
  virtual void SetTieMode(std::int32_t mode) = 0;

  /// Node of the third term. [stage]
  virtual void SetAnchorNode(MeshNode* node) = 0;

  /// Constraint that holds the anchor. [stage]
  virtual void SetAnchorOwner(Entity* owner) = 0;

  /// 1, 3 or 7: how many nodes each side has. [stage]
  virtual void SetKind(std::int32_t kind) = 0;

  /// 5 or 9: form of a tie with an anchor. [stage]
  virtual void SetTieType(std::int32_t type) = 0;

  /// Id of the anchor node. [stage]
  virtual void SetAnchorNodeId(std::int32_t id) = 0;

  /// Independent and dependent node lists, not in step. [stage]
  virtual void SetNodes(PooledList* first, PooledList* second) = 0;

 protected:
  ~Mpc() = default;
};

/// Rigid bar between nodes. [implemented by: host] [from BoundaryStore::CreateRigidConnection]
class RigidConnection : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Connected components 1 to 3. [stage]
  virtual void SetTranslationMask(std::uint8_t mask) = 0;

  /// Connected components 4 to 6. [stage]
  virtual void SetRotationMask(std::uint8_t mask) = 0;

  /// Element id of the first card of the group. [stage]
  virtual void SetElementId(std::int32_t id) = 0;

  /// Independent and dependent node lists, not in step. [stage]
  virtual void SetNodes(PooledList* independent, PooledList* dependent) = 0;

  /// 4 when one node connects to many, else 5. [stage]
  virtual void SetKind(std::int32_t kind) = 0;

 protected:
  ~RigidConnection() = default;
};

/// Lumped mass, spread over nodes. [implemented by: host] [from BoundaryStore::CreateMass]
class MassEntity : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Id of the system in which the inertia stands. [stage]
  virtual void SetCoordinateSystem(std::int32_t id) = 0;

  /// Mass. [stage]
  virtual void SetMass(double mass) = 0;

  /// Off-diagonal terms of the inertia that are not zero: bits 0, 1, 2 in the order of SetOffDiagonalInertia. [stage]
  virtual void SetOffDiagonalMask(std::uint8_t mask) = 0;

  /// Diagonal terms of the inertia that are not zero: bits 0, 1, 2. [stage]
  virtual void SetDiagonalMask(std::uint8_t mask) = 0;

  /// Diagonal terms of the inertia. [stage]
  virtual void SetDiagonalInertia(double i11, double i22, double i33) = 0;

  /// Off-diagonal terms of the inertia. [stage]
  virtual void SetOffDiagonalInertia(double i21, double i32, double i31) = 0;

  /// Always called with 3. [stage]
  virtual void SetKind(std::int32_t kind) = 0;

  /// Node list: all nodes that bear this mass. [stage]
  virtual void SetNodes(PooledList* nodes) = 0;

  /// Place of the mass in the basic system, rounded. [stage]
  virtual void SetCentre(double x, double y, double z) = 0;

 protected:
  ~MassEntity() = default;
};

/// Scalar springs of equal values. [implemented by: host] [from BoundaryStore::CreateSpring]
class Spring : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Id of the system in which the components act. [stage]
  virtual void SetCoordinateSystem(std::int32_t id) = 0;

  /// Nodes of springs to ground. Both lists are always given; the second may be empty. [stage]
  virtual void SetGroundedNodes(PooledList* a, PooledList* b) = 0;

  /// Components 4 to 6 on which the springs act. [stage]
  virtual void SetRotationMask(std::int32_t mask) = 0;

  /// Components 1 to 3 on which the springs act. [stage]
  virtual void SetTranslationMask(std::int32_t mask) = 0;

  /// Stiffness values. [stage]
  virtual void SetStiffness(double k1, double k2, double k3) = 0;

  /// Damping values, or the stiffness of components 4 to 6; see SetRotationalStiffness. [stage]
  virtual void SetDamping(double first, double second, double third) = 0;

  /// The HostProject; nothing depends on it. [stage]
  virtual void SetOwner(void* owner) = 0;

  /// 0 pairs, 1 springs to ground, 6 pairs whose two sides act on different components. [stage]
  virtual void SetConnection(std::int32_t code) = 0;

  /// Element id of a spring card. [stage]
  virtual void SetElementId(std::int32_t id) = 0;

  /// Property id of a spring card. [stage]
  virtual void SetPropertyId(std::int32_t id) = 0;

  /// Always called with 2. [stage]
  virtual void SetSpringKind(std::int32_t kind) = 0;

  /// Springs between nodes. [stage]
  virtual void SetNodePairs(PooledList* a, PooledList* b) = 0;

  /// Stiffness of components 4 to 6. Has no slot of its own: the three numbers travel through SetDamping, which springs of stiffness
  /// without damping leave free.
  void SetRotationalStiffness(double k4, double k5, double k6) { SetDamping(k4, k5, k6); }

 protected:
  ~Spring() = default;
};

/// Spring-damper of six components. Arrays run over components 1 to 6. [implemented by: host] [from BoundaryStore::CreateBush]
class Bush : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Id of the system in which the components act. [stage]
  virtual void SetCoordinateSystem(std::int32_t id) = 0;

  /// Table over frequency of one value: slots 0 to 5 stiffness, 6 to 11 damping. [stage]
  virtual void SetCurve(Curve* curve, std::int32_t slot) = 0;

  /// Table id of the curve in the same slot. [stage]
  virtual void SetCurveId(std::int32_t id, std::int32_t slot) = 0;

  /// Nodes of bushes to ground. Both lists are always given; the second may be empty. [stage]
  virtual void SetGroundedNodes(PooledList* a, PooledList* b) = 0;

  /// Components 1 to 3 that have stiffness, damping and structural damping. [stage]
  virtual void SetTranslationMasks(std::uint8_t stiffness, std::uint8_t damping, std::uint8_t hasStructural) = 0;

  /// Components 4 to 6 that have stiffness, damping and structural damping. [stage]
  virtual void SetRotationMasks(std::uint8_t stiffness, std::uint8_t damping, std::uint8_t hasStructural) = 0;

  /// Stiffness and viscous damping of components 1 to 3. [stage]
  virtual void SetTranslationValues(double k1, double k2, double k3, double b1, double b2, double b3) = 0;

  /// Structural damping. [stage]
  virtual void SetStructuralDamping(double ge) = 0;

  /// Stiffness and viscous damping of components 4 to 6. [stage]
  virtual void SetRotationValues(double k4, double k5, double k6, double b4, double b5, double b6) = 0;

  /// First entry of MeshModel::GetParts. [never]
  virtual void SetGroundNode(void* entry) = 0;

  /// Part that stands for the ground: the first entry of MeshModel::GetParts. [stage]
  virtual void SetOwnerPart(MeshPart* part) = 0;

  /// 0 pairs, 1 bushes to ground. [stage]
  virtual void SetConnection(std::int32_t code) = 0;

  /// Node list: the first nodes of all bushes that are not to ground. [stage]
  virtual void SetNodes(PooledList* nodes) = 0;

  /// 2 pairs, 1 bushes to ground. [stage]
  virtual void SetBushKind(std::int32_t kind) = 0;

 protected:
  ~Bush() = default;
};

/// Gap elements of one property and orientation. [implemented by: host] [from BoundaryStore::CreateGap; type 47]
class GapEntity : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Id of the system in which the orientation stands. [stage]
  virtual void SetCoordinateSystem(std::int32_t id) = 0;

  /// Coefficient of static friction. [stage]
  virtual void SetFrictionStatic(double value) = 0;

  /// Coefficient of kinetic friction. [stage]
  virtual void SetFrictionKinetic(double value) = 0;

  /// Initial opening. [stage]
  virtual void SetInitialOpening(double value) = 0;

  /// Preload. [stage]
  virtual void SetPreload(double value) = 0;

  /// Stiffness when closed. [stage]
  virtual void SetClosedStiffness(double value) = 0;

  /// Stiffness when open. [stage]
  virtual void SetOpenStiffness(double value) = 0;

  /// Transverse stiffness. [stage]
  virtual void SetTransverseStiffness(double value) = 0;

  /// Always called with 0. [stage]
  virtual void SetActive(std::int32_t active) = 0;

  /// Nodes of the gaps, in step; `mode` is always 0. [stage]
  virtual void SetNodes(PooledList* a, PooledList* b, std::int32_t mode) = 0;

  /// Called with 0 before the values of the property. [stage]
  virtual void SetMode(std::int32_t mode) = 0;

  /// First component of the orientation vector. [stage]
  virtual void SetOrientationX(double value) = 0;

  /// Second component of the orientation vector. [stage]
  virtual void SetOrientationY(double value) = 0;

  /// Third component of the orientation vector. [stage]
  virtual void SetOrientationZ(double value) = 0;

  /// Group number of the entity, from BoundaryStore::GetNextGapGroupId. [stage]
  virtual void SetGroupId(std::int32_t id) = 0;

  /// List of addresses of int32: the element id of each gap, in step with the nodes. Read during the call. [stage]
  virtual void SetElementIds(PooledList* ids) = 0;

 protected:
  ~GapEntity() = default;
};

/// Lines that are drawn and do nothing else. [implemented by: host] [from BoundaryStore::CreatePlot]
class PlotEntity : public Entity {
 public:
  /// Name of the entity. [pass 4]
  virtual void SetName(const wchar_t* name) = 0;

  /// Always called with 0. [pass 4]
  virtual void SetKind(std::int32_t kind) = 0;

  /// Ends of the lines, in step. [pass 4]
  virtual void SetNodePairs(PooledList* a, PooledList* b) = 0;

 protected:
  ~PlotEntity() = default;
};

}  // namespace btz
