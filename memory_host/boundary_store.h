// The boundary store of the in-memory host: everything that acts on the mesh, by kind and in order of creation.
#pragma once

#include <deque>
#include <vector>

#include "memory_host/connectors.h"
#include "memory_host/load_cases.h"
#include "memory_host/loads.h"
#include "memory_host/sets_and_systems.h"

namespace btz::memory {

class MemoryBoundaryStore final : public BoundaryStore {
 public:
  explicit MemoryBoundaryStore(HostContext& context) : object(context, ObjectType::BoundaryStore, this), entityList_(context) {}

  void GetEntities(PooledList** out) override;
  std::int32_t CreatePressure(Pressure** out) override;
  std::int32_t CreateForce(ForceLoad** out, std::int32_t* id) override;
  std::int32_t CreateConstraint(Constraint** out, std::int32_t enforced) override;
  std::int32_t CreateLoadCase(LoadCase** out, std::int32_t position) override;
  std::int32_t CreateFlux(Flux** out) override;
  std::int32_t CreateConvection(Convection** out) override;
  void CreateSpring(Spring** out) override;
  std::int32_t CreateRigidConnection(RigidConnection** out) override;
  std::int32_t CreateMass(MassEntity** out) override;
  void CreateThermalLoad(ThermalLoad** out) override;
  std::int32_t CreateMpc(Mpc** out) override;
  void CreateCoordinateSystem(CoordinateSystem** out) override;
  std::int32_t CreatePretension(Pretension** out) override;
  void CreateBush(Bush** out, std::int32_t* id) override;
  std::int32_t CreateBodyLoad(BodyLoad** out) override;
  void CreateDamping(Damping** out) override;
  std::int32_t CreateSet(EntitySet** out) override;
  std::int32_t CreateSurface(Surface** out) override;
  void FindEntity(const wchar_t* name, Entity** out, std::int32_t flags, std::int32_t typeCode) override;
  void GetEntitiesOfType(std::int32_t type, PooledList* out) override;
  void GetCoordinateSystem(std::int32_t id, CoordinateSystem** out) override;
  void CreateGap(GapEntity** out) override;
  std::int32_t CreatePlot(PlotEntity** out) override;
  std::int32_t CheckSetName(std::int32_t flags, const wchar_t* name, std::int32_t kind) override;
  void CreateNodeSystemAssignment(NodeSystemAssignment** out) override;
  void CreateExcitation(Excitation** out) override;
  std::int32_t GetNextGapGroupId() override;

  HostObject object;
  std::vector<EntityInfo*> entities;  ///< All entities, in order of creation.
  std::deque<MemoryLoadCase> loadCases;
  std::deque<MemoryPressure> pressures;
  std::deque<MemoryForce> forces;
  std::deque<MemoryConstraint> constraints;
  std::deque<MemoryFlux> fluxes;
  std::deque<MemoryConvection> convections;
  std::deque<MemorySpring> springs;
  std::deque<MemoryRigidConnection> rigidConnections;
  std::deque<MemoryMass> masses;
  std::deque<MemoryThermalLoad> thermalLoads;
  std::deque<MemoryMpc> mpcs;
  std::deque<MemoryCoordinateSystem> coordinateSystems;
  std::deque<MemoryPretension> pretensions;
  std::deque<MemoryBush> bushes;
  std::deque<MemoryBodyLoad> bodyLoads;
  std::deque<MemoryDamping> dampings;
  std::deque<MemoryEntitySet> sets;
  std::deque<MemorySurface> surfaces;
  std::deque<MemoryGap> gaps;
  std::deque<MemoryPlot> plots;
  std::deque<MemoryNodeSystemAssignment> nodeSystemAssignments;
  std::deque<MemoryExcitation> excitations;

 private:
  /// Makes an entity for `*out`, unless the call is refused; null then.
  template <typename Interface, typename Class>
  Class* Make(Call& call, Interface** out, std::deque<Class>& made) {
    if (!call.HasRoom(out) || call.IsRefused(out)) {
      return nullptr;
    }
    Class& entity = made.emplace_back(object.context, static_cast<std::int32_t>(entities.size()) + 1);
    entities.push_back(&entity.info);
    entityList_.Append(entity.info.entity);
    entity.info.object.HandOut();
    *out = &entity;
    call.Gave(Object{*out});
    return &entity;
  }

  template <typename Interface, typename Class>
  std::int32_t MakeWithCode(Operation operation, Interface** out, std::deque<Class>& made) {
    Call call(object, operation);
    return Make(call, out, made) == nullptr ? call.Failed(1) : call.Code(0);
  }

  template <typename Interface, typename Class>
  void MakeWithoutCode(Operation operation, Interface** out, std::deque<Class>& made) {
    Call call(object, operation);
    Make(call, out, made);
  }

  OwnedList entityList_;  ///< Entity*.
};

}  // namespace btz::memory
