#include "memory_host/entity_names.h"

#include <algorithm>

#include "memory_host/entity_base.h"

namespace btz::memory {

void EntityNames::Rename(EntityInfo* entity, std::wstring name) {
  if (!entity->name.empty()) {
    std::erase(named_[entity->name], entity);
  }
  entity->name = std::move(name);
  if (!entity->name.empty()) {
    named_[entity->name].push_back(entity);
  }
}

EntityInfo* EntityNames::Find(const std::wstring& name, std::int32_t type) const {
  const auto found = named_.find(name);
  if (found == named_.end()) {
    return nullptr;
  }
  EntityInfo* first = nullptr;
  for (EntityInfo* entity : found->second) {
    // Ids count over all entities in order of creation.
    if (entity->type == type && (first == nullptr || entity->id < first->id)) {
      first = entity;
    }
  }
  return first;
}

}  // namespace btz::memory
