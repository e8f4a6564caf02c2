// What all entities of the in-memory boundary store have in common: identity, name, and the list of parts that some of them carry.
#pragma once

#include <algorithm>
#include <string>

#include "memory_host/host_context.h"

namespace btz::memory {

/// Type codes of the kinds that the translator does not tell apart by code.
enum OwnEntityType : std::int32_t {
  entitySet = 101,
  entityNodeSystemAssignment,
  entityThermalLoad,
  entityPretension,
  entityExcitation,
  entityDamping,
  entityMpc,
  entityRigidConnection,
  entityMass,
  entitySpring,
  entityBush,
  entityPlot
};

/// Through which question an entity gives its part list.
enum class PartList { None, Parts, SurfaceParts, AppliedParts };

/// An entity as reports see it.
struct EntityInfo {
  EntityInfo(HostContext& context, ObjectType objectType, std::int32_t typeCode, std::int32_t entityId, Entity* address)
      : object(context, objectType, address), entity(address), type(typeCode), id(entityId), shownId(entityId), parts(context) {}

  HostObject object;
  Entity* entity;
  std::int32_t type;     ///< Type code.
  std::int32_t id;       ///< 1, 2, ... over all entities of the store.
  std::int32_t shownId;  ///< What GetId answers: the id, or the system id of a coordinate system.
  std::int32_t groupId = 0;
  std::wstring name;
  OwnedList parts;  ///< MeshPart*. The translator edits it when it splits a face.
};

template <typename Interface>
class EntityBase : public Interface {
 public:
  std::int32_t GetEntityType() final {
    Call call(info.object, "GetEntityType");
    return call.Code(info.type);
  }
  void GetName(wchar_t* out) final {
    constexpr std::size_t room = 511;
    Call call(info.object, "GetName");
    if (call.HasRoom(out)) {
      const std::size_t length = std::min(info.name.size(), room);
      std::copy_n(info.name.begin(), length, out);
      out[length] = 0;
      call.Gave(static_cast<const wchar_t*>(out));
    }
  }
  void GetId(std::int32_t* out) final {
    Call call(info.object, "GetId");
    if (call.HasRoom(out)) {
      *out = info.shownId;
      call.Gave(*out);
    }
  }
  void GetParts(PooledList** out) final { GiveParts("GetParts", out, PartList::Parts); }
  void GetSurfaceParts(PooledList** out) final { GiveParts("GetSurfaceParts", out, PartList::SurfaceParts); }
  void GetAppliedParts(PooledList** out) final { GiveParts("GetAppliedParts", out, PartList::AppliedParts); }
  void GetContactParts(PooledList** out) final {
    Call call(info.object, "GetContactParts");
    if (call.HasRoom(out)) {
      call.Withhold(out);
    }
  }
  std::int32_t GetApplyKind() final {
    Call call(info.object, "GetApplyKind");
    return call.Code(info.type == entityForce || info.type == entityConstraint ? 1 : 0);
  }
  std::int32_t GetGroupId() final {
    Call call(info.object, "GetGroupId");
    return call.Code(info.groupId);
  }

  EntityInfo info;

 protected:
  EntityBase(HostContext& context, ObjectType type, std::int32_t typeCode, std::int32_t id, PartList partList = PartList::None)
      : info(context, type, typeCode, id, this), object(info.object), partList_(partList) {}
  ~EntityBase() = default;

  /// Announces a setter and writes its arguments to the trace.
  template <typename... Value>
  void Told(Operation operation, const Value&... values) {
    Call call(object, operation);
    call.Arguments(values...);
  }

  void TakeName(const wchar_t* name) {
    Told("SetName", name);
    info.object.context.names.Rename(&info, CopyOf(name));
  }

  void TakeParts(Operation operation, PooledList* list) {
    Told(operation, Objects{list});
    info.parts.Clear();
    for (MeshPart* part : ReadParts(object, operation.name, list)) {
      info.parts.Append(part);
    }
  }

  HostObject& object;  ///< Who is called, for the operations of the derived classes.

 private:
  void GiveParts(Operation operation, PooledList** out, PartList asked) {
    Call call(object, operation);
    if (!call.HasRoom(out)) {
      return;
    }
    if (partList_ == asked) {
      call.GiveObjects(out, info.parts);
    } else {
      call.Withhold(out);
    }
  }

  PartList partList_;
};

}  // namespace btz::memory
