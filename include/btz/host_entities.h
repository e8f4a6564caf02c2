// What a host's BoundaryStore makes: loads, constraints, coordinate systems, connectors, masses, sets and load cases. Each is filled by its
// setters in the order in which the translator calls them; whatever is not set keeps the host's own default. All values are in deck units
// and stand in the coordinate system that the entity is given, 0 being the basic one. Masks hold a bit for each component: bit 0, 1, 2 for
// components 1, 2, 3 of a translation mask and for 4, 5, 6 of a rotation mask. "Node lists" hold MeshNode*, "part lists" the MeshPart* of
// faces (TopoFace objects) unless told otherwise. The general rules stand in host_mesh.h.
#pragma once

#include <btz/host_records.h>

namespace btz {

class BoundaryStore;
class Constraint;
class Curve;
class Entity;
class Field;
class ForceLoad;
class HostProject;
class MeshModel;
class MeshPart;

/// Type codes of Entity that the translator knows. A host gives all other kinds codes of its own, each different from these.
enum EntityType : std::int32_t {
  entityPressure = 0,
  entityForce = 1,
  entityAppliedFirst = 2,   ///< Load of the host's own that may be applied to parts; see GetAppliedParts.
  entityAppliedSecond = 3,  ///< The same.
  entityConstraint = 6,
  entityFlux = 11,
  entityConvection = 13,
  entityPartLoad = 14,  ///< Load of the host's own that is applied to parts; see GetParts.
  entityContact = 22,   ///< Contact of the host's own; see GetContactParts.
  entityCoordinateSystem = 24,
  entityBodyLoad = 29,
  entitySurface = 44,
  entityGap = 47
};

/// Base of all that a BoundaryStore makes, load cases excepted. [implemented by: host] [from BoundaryStore::GetEntities, FindEntity,
/// GetEntitiesOfType]
class Entity {
 public:
  /// Type code of the entity, see EntityType. A pointer may only be converted to a derived class behind a test of this code. [any]
  virtual std::int32_t GetEntityType() = 0;

  /// Copies the name into `out`: at most 511 characters and the zero. The caller gives room for 512. [stage]
  virtual void GetName(wchar_t* out) = 0;

  /// Id of the entity, of a coordinate system what CoordinateSystem::SetId said. [any]
  virtual void GetId(std::int32_t* out) = 0;

  /// Part list of types 0, 11, 13 and 14. When a face is split the translator edits it in place: it removes parts and adds them behind the
  /// cursor. [pass 4] [stage]
  virtual void GetParts(PooledList** out) = 0;

  /// Part list of type 44; edited in place as well. [pass 4] [stage]
  virtual void GetSurfaceParts(PooledList** out) = 0;

  /// Part list of types 1, 2 and 3 when they are not node based; edited in place as well. [pass 4] [stage]
  virtual void GetAppliedParts(PooledList** out) = 0;

  /// 1: the entity is applied to nodes. Asked of types 1, 2 and 3. [pass 4] [stage]
  virtual std::int32_t GetApplyKind() = 0;

  /// Part list of type 22; edited in place as well. [pass 4] [stage]
  virtual void GetContactParts(PooledList** out) = 0;

  /// Group number of a gap entity (type 47), what GapEntity::SetGroupId said; 0 when none. [stage]
  virtual std::int32_t GetGroupId() = 0;

 protected:
  ~Entity() = default;
};

/// Coordinate system, defined by three nodes: A its origin, B on the third axis, C in the plane of the first and third.
/// [implemented by: host] [from BoundaryStore::CreateCoordinateSystem, GetCoordinateSystem, or an Entity of type 24]
class CoordinateSystem : public Entity {
 public:
  /// Name, "RectCoordinate7" and the like. [pass 2-3]
  virtual void SetName(const wchar_t* name) = 0;

  /// System id of the card, by which BoundaryStore::GetCoordinateSystem finds it. [pass 2-3]
  virtual void SetId(std::int32_t id) = 0;

  /// 0: the nodes are helper nodes made for the system; 1: they are grid points of the deck. [pass 2-3]
  virtual void SetFromNodes(std::int32_t fromNodes) = 0;

  /// The three defining nodes. [pass 2-3]
  virtual void SetPoints(MeshNode* a, MeshNode* b, MeshNode* c) = 0;

  /// Gives pointers to three coordinates each: one point on each local axis, not the origin. They stay valid as long as the entity.
  /// [pass 2-3] [stage]
  virtual void GetAxisPoints(double** x, double** y, double** z) = 0;

  /// Gives a pointer to the three coordinates of the origin, valid as long as the entity. [stage]
  virtual void GetOrigin(double** out) = 0;

  /// Always called with 1. [pass 2-3]
  virtual void SetActive(std::int32_t active) = 0;

  /// 1 rectangular, 2 cylindrical, 3 spherical. [pass 2-3]
  virtual void SetKind(std::int32_t kind) = 0;

  /// Models of the three nodes: always the same one. [pass 2-3]
  virtual void SetModels(MeshModel* a, MeshModel* b, MeshModel* c) = 0;

 protected:
  ~CoordinateSystem() = default;
};

/// Coordinate system in which the results of nodes are given. [implemented by: host] [from BoundaryStore::CreateNodeSystemAssignment]
class NodeSystemAssignment : public Entity {
 public:
  /// System id. [stage]
  virtual void SetCoordinateSystem(std::int32_t id) = 0;

  /// Node list. [stage]
  virtual void SetNodes(PooledList* nodes) = 0;

  /// Always called with 1. [stage]
  virtual void SetKind(std::int32_t kind) = 0;

 protected:
  ~NodeSystemAssignment() = default;
};

/// Named set of nodes, elements or parts, or the analysis node set. [implemented by: host] [from BoundaryStore::CreateSet]
class EntitySet : public Entity {
 public:
  /// Name of the set. [pass 4] [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Members of a node set, MeshNode*. [pass 4] [stage]
  virtual void SetNodes(PooledList* nodes) = 0;

  /// Members of an element set, MeshElement*. [pass 4]
  virtual void SetElements(PooledList* elements) = 0;

  /// Members of a surface set, MeshPart*. [pass 4]
  virtual void SetParts(PooledList* parts) = 0;

  /// What the members are: 2 parts, 5 nodes, 6 elements. [pass 4] [stage]
  virtual void SetMemberType(std::int32_t type) = 0;

  /// 0 nodes, 1 elements, 2 surface, 3 elements with solids among them, 4 rigid elements, 10 analysis node set. [pass 4] [stage]
  virtual void SetKind(std::int32_t kind) = 0;

  /// Form of the card behind an analysis node set, 0 or 1. [stage]
  virtual void SetAsetKind(std::int32_t kind) = 0;

  /// Address of six bytes, one for each component 1 to 6: non-zero when the component is in the analysis set. Read during the call. [stage]
  virtual void SetComponentMarks(const std::uint8_t* marks) = 0;

 protected:
  ~EntitySet() = default;
};

/// Surface of shell elements, as fluid coupling uses it. [implemented by: host] [from BoundaryStore::CreateSurface; type 44]
class Surface : public Entity {
 public:
  /// Name of the surface. [pass 4]
  virtual void SetName(const wchar_t* name) = 0;

  /// List of MeshElement*, shells. [pass 4]
  virtual void SetElements(PooledList* elements) = 0;

  /// Always called with 6. [pass 4]
  virtual void SetSurfaceKind(std::int32_t kind) = 0;

  /// Always called with 1. [pass 4]
  virtual void SetElementBased(std::int32_t elementBased) = 0;

 protected:
  ~Surface() = default;
};

}  // namespace btz
