// Named groups of elements. The group store is the only argument of the library that may be null: no groups are made then. The general
// rules of the host interfaces stand in host_mesh.h.
#pragma once

#include <btz/host_records.h>

namespace btz {

/// A named group of elements. [implemented by: host] [from GroupStore::CreateGroup, FindGroup]
class Group {
 public:
  /// Name of the group. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Always called with 11. [stage]
  virtual void SetType(std::int32_t type) = 0;

 protected:
  ~Group() = default;
};

/// Factory and register of groups. [implemented by: host] [handed in as argument `groupStore`, may be null]
class GroupStore {
 public:
  /// Finds a group by its name and remembers it for DeleteFound. `*out` stays null if there is none. [stage]
  virtual void FindGroup(const wchar_t* name, Group** out) = 0;

  /// New group of the MeshElement* in the table `elements`, which the host reads during the call. The other arguments are always
  /// 0, 0, 0, 0, 0, 10. 0 on success. [stage]
  virtual std::int32_t CreateGroup(Group** out, HashTable* elements, std::int32_t flag1, std::int32_t flag2, std::int32_t flag3,
                                   std::int32_t flag4, std::int32_t flag5, std::int32_t kind) = 0;

  /// Drops the group that FindGroup found last. [stage]
  virtual void DeleteFound() = 0;

 protected:
  ~GroupStore() = default;
};

}  // namespace btz
