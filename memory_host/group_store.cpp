#include "memory_host/group_store.h"

namespace btz::memory {

void MemoryGroup::SetName(const wchar_t* text) {
  Call(object, "SetName").Arguments(text);
  name = CopyOf(text);
}

void MemoryGroup::SetType(std::int32_t value) {
  Call(object, "SetType").Arguments(value);
  type = value;
}

void MemoryGroupStore::FindGroup(const wchar_t* name, Group** out) {
  Call call(object, "FindGroup");
  call.Arguments(name);
  found_ = nullptr;
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  const std::wstring wanted = CopyOf(name);
  for (MemoryGroup& group : groups) {
    if (!group.deleted && group.name == wanted) {
      found_ = &group;
      call.Give(out, group);
      return;
    }
  }
  call.Withhold(out);
}

std::int32_t MemoryGroupStore::CreateGroup(Group** out, HashTable* elements, std::int32_t flag1, std::int32_t flag2, std::int32_t flag3,
                                           std::int32_t flag4, std::int32_t flag5, std::int32_t kind) {
  Call call(object, "CreateGroup");
  call.Arguments(ElementTable{elements}, flag1, flag2, flag3, flag4, flag5, kind);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return call.Failed(1);
  }
  MemoryGroup& group = groups.emplace_back(object.context);
  if (elements != nullptr) {
    ForEachRecord(*elements, [&](void* record) {
      if (object.context.mesh.OwnsElement(record)) {
        group.elements.push_back(static_cast<MeshElement*>(record));
      } else {
        call.Fault("an element that this host never handed out");
      }
    });
  }
  call.Give(out, group);
  return call.Code(0);
}

void MemoryGroupStore::DeleteFound() {
  Call(object, "DeleteFound").Arguments();
  if (found_ != nullptr) {
    found_->deleted = true;
    found_ = nullptr;
  }
}

}  // namespace btz::memory
