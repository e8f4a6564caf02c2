// The store of loads, constraints, coordinate systems, connectors, sets and load cases, and the load cases themselves. The general rules of
// the host interfaces stand in host_mesh.h, the entities in host_entities.h, host_loads.h and host_connectors.h.
//
// For all creates: a result of 0 with an object in `*out` is success; any other result, or no object, is a refusal, and the caller silently
// drops the item. Entities belong to the store. Names and ids are handed out in the order of the calls.
#pragma once

#include <btz/host_connectors.h>
#include <btz/host_entities.h>
#include <btz/host_loads.h>

namespace btz {

/// Parameters of a load case. A key that the host does not know is its own matter. [implemented by: host] [from LoadCase::GetParameters]
class ParameterSet {
 public:
  /// Real parameter that counts only when `present` is non-zero; `typeCode` is always 7. [stage]
  virtual void SetRealOptional(const wchar_t* name, double value, std::int32_t present, std::int32_t typeCode) = 0;

  /// Parameter that names an entity; `typeCode` 5 a coordinate system, 6 a surface. [stage]
  virtual void SetEntityName(const wchar_t* name, const wchar_t* value, std::int32_t typeCode) = 0;

  /// Real parameter. [stage]
  virtual void SetReal(const wchar_t* name, double value) = 0;

  /// Integer parameter; `typeCode` 1 a plain number, 3 a choice. [stage]
  virtual void SetInt(const wchar_t* name, std::int32_t value, std::int32_t typeCode) = 0;

 protected:
  ~ParameterSet() = default;
};

/// One subcase with the entities that act in it. Not an Entity. [implemented by: host] [from BoundaryStore::CreateLoadCase]
class LoadCase {
 public:
  /// Name of the case. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Parameters of the case for a solver ("NASTRAN", "RADIOSS") and analysis kind; `kind` is always 14. Null: the case has none. The set
  /// stays the host's. [stage]
  virtual ParameterSet* GetParameters(const wchar_t* solver, const wchar_t* analysis, std::int32_t kind) = 0;

  /// Adds an entity to the case. `flags` is always 0; `payload` is the value of a pretension, else 0.0. [stage]
  virtual void AddEntity(Entity* entity, std::int32_t flags, double payload) = 0;

  /// Chooses solver and analysis kind. [stage]
  virtual void SetSolverProfile(const wchar_t* solver, const wchar_t* analysis) = 0;

 protected:
  ~LoadCase() = default;
};

/// Factory and register of entities. [implemented by: host] [handed in as argument `boundaryStore`]
class BoundaryStore {
 public:
  /// List of Entity*, all entities in order of creation. The host's own; read only. [pass 4] [stage]
  virtual void GetEntities(PooledList** out) = 0;

  /// New pressure. 0 on success. [stage]
  virtual std::int32_t CreatePressure(Pressure** out) = 0;

  /// New force; gives its entity id in `id`, which the caller has set to 0. 0 on success. [stage]
  virtual std::int32_t CreateForce(ForceLoad** out, std::int32_t* id) = 0;

  /// New constraint; `enforced` 0 plain, 1 with enforced values. 0 on success. [stage]
  virtual std::int32_t CreateConstraint(Constraint** out, std::int32_t enforced) = 0;

  /// New load case; `position` is always -1, behind the others. 0 on success. [stage]
  virtual std::int32_t CreateLoadCase(LoadCase** out, std::int32_t position) = 0;

  /// New heat flux. 0 on success. [stage]
  virtual std::int32_t CreateFlux(Flux** out) = 0;

  /// New convection. 0 on success. [stage]
  virtual std::int32_t CreateConvection(Convection** out) = 0;

  /// New spring; `*out` stays null on refusal. [stage]
  virtual void CreateSpring(Spring** out) = 0;

  /// New rigid connection. 0 on success. [stage]
  virtual std::int32_t CreateRigidConnection(RigidConnection** out) = 0;

  /// New mass. 0 on success. [stage]
  virtual std::int32_t CreateMass(MassEntity** out) = 0;

  /// New thermal load; `*out` stays null on refusal. [stage]
  virtual void CreateThermalLoad(ThermalLoad** out) = 0;

  /// New tie. 0 on success. [stage]
  virtual std::int32_t CreateMpc(Mpc** out) = 0;

  /// New coordinate system; `*out` stays null on refusal. [pass 2-3]
  virtual void CreateCoordinateSystem(CoordinateSystem** out) = 0;

  /// New pretension. 0 on success. [stage]
  virtual std::int32_t CreatePretension(Pretension** out) = 0;

  /// New bush; gives its entity id in `id`, which the caller has set to 0. `*out` stays null on refusal. [stage]
  virtual void CreateBush(Bush** out, std::int32_t* id) = 0;

  /// New body load. 0 on success. [pass 4]
  virtual std::int32_t CreateBodyLoad(BodyLoad** out) = 0;

  /// New damping; `*out` stays null on refusal. [stage]
  virtual void CreateDamping(Damping** out) = 0;

  /// New set. 0 on success. [pass 4] [stage]
  virtual std::int32_t CreateSet(EntitySet** out) = 0;

  /// New surface. 0 on success. [pass 4]
  virtual std::int32_t CreateSurface(Surface** out) = 0;

  /// The first entity of the type `typeCode` with exactly this name; `flags` is always 0. `*out` stays null if there is none. [stage]
  virtual void FindEntity(const wchar_t* name, Entity** out, std::int32_t flags, std::int32_t typeCode) = 0;

  /// Appends the entities of a type to `out`, as Entity*, in order of creation. [stage]
  virtual void GetEntitiesOfType(std::int32_t type, PooledList* out) = 0;

  /// The coordinate system whose id CoordinateSystem::SetId set; `*out` stays null if there is none. [stage]
  virtual void GetCoordinateSystem(std::int32_t id, CoordinateSystem** out) = 0;

  /// New gap entity; `*out` stays null on refusal. [stage]
  virtual void CreateGap(GapEntity** out) = 0;

  /// New plot entity. 0 on success. [pass 4]
  virtual std::int32_t CreatePlot(PlotEntity** out) = 0;

  /// -1 when a set of the kind `kind` (EntitySet::SetKind) has this name already, else 0. `flags` is always 0. [pass 4]
  virtual std::int32_t CheckSetName(std::int32_t flags, const wchar_t* name, std::int32_t kind) = 0;

  /// New assignment of a coordinate system to nodes; `*out` stays null on refusal. [stage]
  virtual void CreateNodeSystemAssignment(NodeSystemAssignment** out) = 0;

  /// New excitation; `*out` stays null on refusal. [stage]
  virtual void CreateExcitation(Excitation** out) = 0;

  /// First group number that no gap entity has, from 1. [stage]
  virtual std::int32_t GetNextGapGroupId() = 0;

 protected:
  ~BoundaryStore() = default;
};

}  // namespace btz
