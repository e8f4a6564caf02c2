// Loads and constraints that a BoundaryStore makes. See host_entities.h for what masks, lists and units mean.
#pragma once

#include <btz/host_entities.h>

namespace btz {

/// Single-point constraint. [implemented by: host] [from BoundaryStore::CreateConstraint, or an Entity of type 6]
class Constraint : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Id of the system in which the components act, 0 for the basic one. [stage]
  virtual void SetCoordinateSystem(std::int32_t csId) = 0;

  /// Attaches per-node values: rows of x, y, z and six component values. `mode` is always 0. [stage]
  virtual void SetField(Field* field, std::int32_t mode) = 0;

  /// Enforced values of components 1 to 3. [stage]
  virtual void SetTranslations(double x, double y, double z) = 0;

  /// Enforced values of components 4 to 6. [stage]
  virtual void SetRotations(double x, double y, double z) = 0;

  /// Components 1 to 3 that are held. [stage]
  virtual void SetTranslationMask(std::uint8_t mask) = 0;

  /// Components 4 to 6 that are held. [stage]
  virtual void SetRotationMask(std::uint8_t mask) = 0;

  /// Node list. [stage]
  virtual void SetNodes(PooledList* nodes) = 0;

  /// Always called with 1. [stage]
  virtual void SetNodeBased(std::int32_t nodeBased) = 0;

  /// Non-zero when the constraint was created with enforced values. [stage]
  virtual std::int32_t IsEnforced() = 0;

  /// Called with 1 on the constraint of a bolt: it acts along the bolt's axis. [stage]
  virtual void SetAxisFlag(std::int32_t axis) = 0;

  /// List of MeshNode*, what SetNodes stored. The host's own; read only. Added to the plain set of operations: ties of three terms look for
  /// the constraint that holds their anchor node. [stage]
  virtual void GetNodes(PooledList** out) = 0;

 protected:
  ~Constraint() = default;
};

/// Forces and moments at nodes. [implemented by: host] [from BoundaryStore::CreateForce]
class ForceLoad : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Id of the system in which the vectors stand. [stage]
  virtual void SetCoordinateSystem(std::int32_t csId) = 0;

  /// Per-node vectors: rows of x, y, z and six values, which then replace SetForce and SetMoment. Null: the vectors hold for all nodes.
  /// `mode` is always 0. [stage]
  virtual void SetField(Field* field, std::int32_t mode) = 0;

  /// Force vector. [stage]
  virtual void SetForce(double x, double y, double z) = 0;

  /// Moment vector. [stage]
  virtual void SetMoment(double x, double y, double z) = 0;

  /// Node list. [stage]
  virtual void SetNodes(PooledList* nodes) = 0;

  /// Always called with 1. [stage]
  virtual void SetNodeBased(std::int32_t nodeBased) = 0;

 protected:
  ~ForceLoad() = default;
};

/// Pressure on faces. [implemented by: host] [from BoundaryStore::CreatePressure; type 0]
class Pressure : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Values by position: rows of x, y, z and the value. Null: the pressure is uniform. `mode` is always 0. [stage]
  virtual void SetField(Field* field, std::int32_t mode) = 0;

  /// Uniform pressure, or 1.0 with a field. [stage]
  virtual void SetPressure(double value) = 0;

  /// Part list. [stage]
  virtual void SetParts(PooledList* parts) = 0;

 protected:
  ~Pressure() = default;
};

/// Temperatures of nodes or bodies. [implemented by: host] [from BoundaryStore::CreateThermalLoad]
class ThermalLoad : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Values by position: rows of x, y, z and the temperature. [stage]
  virtual void SetField(Field* field) = 0;

  /// Always an empty text. [stage]
  virtual void SetLabel(const wchar_t* label) = 0;

  /// 3, and 1 when a field is set afterwards. [stage]
  virtual void SetMode(std::int32_t mode) = 0;

  /// Uniform temperature. [stage]
  virtual void SetValue(float value) = 0;

  /// Always 0.0. [stage]
  virtual void SetSecondValue(float value) = 0;

  /// List of MeshPart*, bodies that the load covers as a whole. [stage]
  virtual void SetBodies(PooledList* bodies) = 0;

  /// Node list; `mode` is always 0. [stage]
  virtual void SetNodes(PooledList* nodes, std::int32_t mode) = 0;

 protected:
  ~ThermalLoad() = default;
};

/// Convection on faces. [implemented by: host] [from BoundaryStore::CreateConvection; type 13]
class Convection : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Values by position: rows of x, y, z, coefficient and ambient temperature. `mode` is always 0. [stage]
  virtual void SetField(Field* field, std::int32_t mode) = 0;

  /// Uniform coefficient and ambient temperature; always 0.1 and 100.0, since the field holds the real ones. [stage]
  virtual void SetValues(double coefficient, double ambient) = 0;

  /// Part list. [stage]
  virtual void SetParts(PooledList* parts) = 0;

  /// Always called with 3. [stage]
  virtual void SetMode(std::int32_t mode) = 0;

 protected:
  ~Convection() = default;
};

/// Heat flux on faces. [implemented by: host] [from BoundaryStore::CreateFlux; type 11]
class Flux : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Values by position: rows of x, y, z and the flux. `mode` is always 0. [stage]
  virtual void SetField(Field* field, std::int32_t mode) = 0;

  /// Uniform flux; always 1.5, since the field holds the real ones. [stage]
  virtual void SetValue(double value) = 0;

  /// Part list. [stage]
  virtual void SetParts(PooledList* parts) = 0;

 protected:
  ~Flux() = default;
};

/// Gravity or rotation of the whole model. [implemented by: host] [from BoundaryStore::CreateBodyLoad; type 29]
class BodyLoad : public Entity {
 public:
  /// Part list. [pass 4]
  virtual void SetParts(PooledList* parts) = 0;

  /// Acceleration vector. [pass 4]
  virtual void SetGravity(double x, double y, double z) = 0;

  /// Rotation vector of a card without a scale factor. [pass 4]
  virtual void SetRotationVector(double x, double y, double z) = 0;

  /// Rotation vector of a card with a scale factor. [pass 4]
  virtual void SetScaledRotationVector(double x, double y, double z) = 0;

 protected:
  ~BodyLoad() = default;
};

/// Pretension of a bolt through cut faces. [implemented by: host] [from BoundaryStore::CreatePretension]
class Pretension : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Called with 2 when the bolt has a constraint. [stage]
  virtual void SetMode(std::int32_t mode) = 0;

  /// Adds a cut face with the load step in which it is tightened. `value` is always 0.0. `force` and `constraint` are addresses of the
  /// pointers to the bolt's entities, which may be null; everything is read during the call. [stage]
  virtual void AddPart(MeshPart* part, const CutPartStep* step, double value, BoundaryStore* store, ForceLoad** force,
                       Constraint** constraint) = 0;

 protected:
  ~Pretension() = default;
};

/// Excitation of a frequency response. [implemented by: host] [from BoundaryStore::CreateExcitation]
class Excitation : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Table over frequency, may be null: index 0 amplitude or real part, 1 phase or imaginary part. [stage]
  virtual void SetTable(Curve* curve, std::int32_t index) = 0;

  /// Node list. [stage]
  virtual void SetNodes(PooledList* nodes) = 0;

  /// What is excited, as the card's TYPE field says. [stage]
  virtual void SetLoadType(std::int32_t type) = 0;

  /// Kind of the entity that SetReferenceId names: 1 to 4 by its type, 0 for none. [stage]
  virtual void SetReferenceKind(std::int32_t kind) = 0;

  /// Excited components, bit 0 to 5 for components 1 to 6. [stage]
  virtual void SetComponentMask(std::uint8_t mask) = 0;

  /// Scale factor of each component. [stage]
  virtual void SetScales(double s1, double s2, double s3, double s4, double s5, double s6) = 0;

  /// Id of the load whose distribution is excited, 0 for none. [stage]
  virtual void SetReferenceId(std::int32_t id) = 0;

 protected:
  ~Excitation() = default;
};

/// Modal damping by a table over frequency. [implemented by: host] [from BoundaryStore::CreateDamping]
class Damping : public Entity {
 public:
  /// Name of the entity. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Damping table. [stage]
  virtual void SetCurve(Curve* curve) = 0;

  /// Table id. [stage]
  virtual void SetId(std::int32_t id) = 0;

 protected:
  ~Damping() = default;
};

}  // namespace btz
