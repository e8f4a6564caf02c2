// Entities by name, so that a question for a name need not look at all entities: a translation asks once for each constraint.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace btz::memory {

struct EntityInfo;

class EntityNames {
 public:
  /// Gives an entity another name.
  void Rename(EntityInfo* entity, std::wstring name);

  /// The first entity made of those with this type and name, which isn't empty; null if there is none.
  EntityInfo* Find(const std::wstring& name, std::int32_t type) const;

 private:
  std::unordered_map<std::wstring, std::vector<EntityInfo*>> named_;
};

}  // namespace btz::memory
