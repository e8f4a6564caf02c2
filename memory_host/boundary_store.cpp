#include "memory_host/boundary_store.h"

#include <algorithm>

namespace btz::memory {

namespace {

constexpr std::int32_t refused = 1;

}  // namespace

void MemoryBoundaryStore::GetEntities(PooledList** out) {
  Call call(object, "GetEntities");
  if (call.HasRoom(out)) {
    call.GiveObjects(out, entityList_);
  }
}

std::int32_t MemoryBoundaryStore::CreatePressure(Pressure** out) { return MakeWithCode("CreatePressure", out, pressures); }

std::int32_t MemoryBoundaryStore::CreateForce(ForceLoad** out, std::int32_t* id) {
  Call call(object, "CreateForce");
  const MemoryForce* force = call.HasRoom(id) ? Make(call, out, forces) : nullptr;
  if (force == nullptr) {
    return call.Failed(refused);
  }
  *id = force->info.id;
  return call.Code(0);
}

std::int32_t MemoryBoundaryStore::CreateConstraint(Constraint** out, std::int32_t enforced) {
  Call call(object, "CreateConstraint");
  call.Arguments(enforced);
  MemoryConstraint* constraint = Make(call, out, constraints);
  if (constraint == nullptr) {
    return call.Failed(refused);
  }
  constraint->Enforce(enforced);
  return call.Code(0);
}

std::int32_t MemoryBoundaryStore::CreateLoadCase(LoadCase** out, std::int32_t position) {
  Call call(object, "CreateLoadCase");
  call.Arguments(position);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return call.Failed(refused);
  }
  call.Give(out, loadCases.emplace_back(object.context));
  return call.Code(0);
}

std::int32_t MemoryBoundaryStore::CreateFlux(Flux** out) { return MakeWithCode("CreateFlux", out, fluxes); }

std::int32_t MemoryBoundaryStore::CreateConvection(Convection** out) { return MakeWithCode("CreateConvection", out, convections); }

void MemoryBoundaryStore::CreateSpring(Spring** out) { MakeWithoutCode("CreateSpring", out, springs); }

std::int32_t MemoryBoundaryStore::CreateRigidConnection(RigidConnection** out) {
  return MakeWithCode("CreateRigidConnection", out, rigidConnections);
}

std::int32_t MemoryBoundaryStore::CreateMass(MassEntity** out) { return MakeWithCode("CreateMass", out, masses); }

void MemoryBoundaryStore::CreateThermalLoad(ThermalLoad** out) { MakeWithoutCode("CreateThermalLoad", out, thermalLoads); }

std::int32_t MemoryBoundaryStore::CreateMpc(Mpc** out) { return MakeWithCode("CreateMpc", out, mpcs); }

void MemoryBoundaryStore::CreateCoordinateSystem(CoordinateSystem** out) {
  MakeWithoutCode("CreateCoordinateSystem", out, coordinateSystems);
}

std::int32_t MemoryBoundaryStore::CreatePretension(Pretension** out) { return MakeWithCode("CreatePretension", out, pretensions); }

void MemoryBoundaryStore::CreateBush(Bush** out, std::int32_t* id) {
  Call call(object, "CreateBush");
  const MemoryBush* bush = call.HasRoom(id) ? Make(call, out, bushes) : nullptr;
  if (bush != nullptr) {
    *id = bush->info.id;
  }
}

std::int32_t MemoryBoundaryStore::CreateBodyLoad(BodyLoad** out) { return MakeWithCode("CreateBodyLoad", out, bodyLoads); }

void MemoryBoundaryStore::CreateDamping(Damping** out) { MakeWithoutCode("CreateDamping", out, dampings); }

std::int32_t MemoryBoundaryStore::CreateSet(EntitySet** out) { return MakeWithCode("CreateSet", out, sets); }

std::int32_t MemoryBoundaryStore::CreateSurface(Surface** out) { return MakeWithCode("CreateSurface", out, surfaces); }

void MemoryBoundaryStore::FindEntity(const wchar_t* name, Entity** out, std::int32_t flags, std::int32_t typeCode) {
  Call call(object, "FindEntity");
  call.Arguments(name, flags, typeCode);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  EntityInfo* found = object.context.names.Find(CopyOf(name), typeCode);
  if (found == nullptr) {
    call.Withhold(out);
    return;
  }
  *out = found->entity;
  found->object.HandOut();
  call.Gave(Object{*out});
}

void MemoryBoundaryStore::GetEntitiesOfType(std::int32_t type, PooledList* out) {
  Call call(object, "GetEntitiesOfType");
  call.Arguments(type);
  if (!call.HasRoom(out) || call.IsFillingRefused()) {
    return;
  }
  for (EntityInfo* info : entities) {
    if (info->type == type) {
      info->object.HandOut();
      AppendLast(out, info->entity);
    }
  }
  call.Gave(Objects{out});
}

void MemoryBoundaryStore::GetCoordinateSystem(std::int32_t id, CoordinateSystem** out) {
  Call call(object, "GetCoordinateSystem");
  call.Arguments(id);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  for (MemoryCoordinateSystem& system : coordinateSystems) {
    if (system.systemId == id) {
      *out = &system;
      call.Gave(Object{*out});
      return;
    }
  }
  call.Withhold(out);
}

void MemoryBoundaryStore::CreateGap(GapEntity** out) { MakeWithoutCode("CreateGap", out, gaps); }

std::int32_t MemoryBoundaryStore::CreatePlot(PlotEntity** out) { return MakeWithCode("CreatePlot", out, plots); }

std::int32_t MemoryBoundaryStore::CheckSetName(std::int32_t flags, const wchar_t* name, std::int32_t kind) {
  Call call(object, "CheckSetName");
  call.Arguments(flags, name, kind);
  const std::wstring wanted = CopyOf(name);
  const bool taken =
      std::any_of(sets.begin(), sets.end(), [&](const MemoryEntitySet& set) { return set.kind == kind && set.info.name == wanted; });
  return call.Code(taken ? -1 : 0);
}

void MemoryBoundaryStore::CreateNodeSystemAssignment(NodeSystemAssignment** out) {
  MakeWithoutCode("CreateNodeSystemAssignment", out, nodeSystemAssignments);
}

void MemoryBoundaryStore::CreateExcitation(Excitation** out) { MakeWithoutCode("CreateExcitation", out, excitations); }

std::int32_t MemoryBoundaryStore::GetNextGapGroupId() {
  Call call(object, "GetNextGapGroupId");
  std::int32_t highest = 0;
  for (const MemoryGap& gap : gaps) {
    highest = std::max(highest, gap.info.groupId);
  }
  return call.Code(highest + 1);
}

}  // namespace btz::memory
