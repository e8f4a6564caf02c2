// Groups of elements of the in-memory host.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "memory_host/host_context.h"

namespace btz::memory {

class MemoryGroup final : public Group {
 public:
  explicit MemoryGroup(HostContext& context) : object(context, ObjectType::Group, this) {}

  void SetName(const wchar_t* text) override;
  void SetType(std::int32_t value) override;

  HostObject object;
  std::wstring name;
  std::int32_t type = 0;
  std::vector<MeshElement*> elements;
  bool deleted = false;
};

class MemoryGroupStore final : public GroupStore {
 public:
  explicit MemoryGroupStore(HostContext& context) : object(context, ObjectType::GroupStore, this) {}

  void FindGroup(const wchar_t* name, Group** out) override;
  std::int32_t CreateGroup(Group** out, HashTable* elements, std::int32_t flag1, std::int32_t flag2, std::int32_t flag3, std::int32_t flag4,
                           std::int32_t flag5, std::int32_t kind) override;
  void DeleteFound() override;

  HostObject object;
  std::deque<MemoryGroup> groups;  ///< In order of creation, deleted ones included.

 private:
  MemoryGroup* found_ = nullptr;
};

}  // namespace btz::memory
