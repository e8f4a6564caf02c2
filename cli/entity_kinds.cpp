#include "cli/entity_kinds.h"

#include <algorithm>

#include "cli/display_text.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

using memory::ObjectType;

const std::vector<EntityWords>& AllEntityWords() {
  static const std::vector<EntityWords> words = {
      {ObjectType::Constraint, nullptr, "constraints", true},
      {ObjectType::ForceLoad, nullptr, "forces and moments", true},
      {ObjectType::BodyLoad, nullptr, "body loads", true},
      {ObjectType::NodeSystemAssignment, "displacement systems", "assignments to nodes", false},
      {ObjectType::Pressure, nullptr, "pressures", true},
      {ObjectType::Pretension, "other loads", "pretensions", false},
      {ObjectType::ThermalLoad, "other loads", "temperatures", true},
      {ObjectType::Flux, "other loads", "heat fluxes", true},
      {ObjectType::Convection, "other loads", "convections", true},
      {ObjectType::Excitation, "other loads", "excitations", true},
      {ObjectType::Mpc, "ties", "ties between nodes", true},
      {ObjectType::RigidConnection, "connections", "rigid connections", false},
      {ObjectType::Spring, "connections", "springs", false},
      {ObjectType::Bush, "connections", "bushes", false},
      {ObjectType::GapEntity, "connections", "gaps", false},
      {ObjectType::Damping, "connections", "dampings", false},
      {ObjectType::MassEntity, "masses", "masses", false},
      {ObjectType::PlotEntity, "plot elements", "plot elements", false},
      {ObjectType::EntitySet, nullptr, "sets", false},
      {ObjectType::Surface, "surfaces of shells", "surfaces", false},
  };
  return words;
}

const EntityWords* FindWords(ObjectType type) {
  const std::vector<EntityWords>& all = AllEntityWords();
  const auto found = std::find_if(all.begin(), all.end(), [type](const EntityWords& held) { return held.type == type; });
  return found == all.end() ? nullptr : &*found;
}

const char* KindOf(ObjectType type) {
  const EntityWords* words = FindWords(type);
  return words == nullptr ? memory::TypeName(type) : words->kind;
}

NamedItem ItemOf(const memory::EntityInfo& entity) { return {entity.shownId, DisplayText(entity.name)}; }

void KindList::Add(const std::string& kind, NamedItem item) {
  auto found = std::find_if(kinds_.begin(), kinds_.end(), [&](const ItemKind& held) { return held.kind == kind; });
  if (found == kinds_.end()) {
    found = kinds_.insert(found, ItemKind{kind, {}});
  }
  found->items.push_back(std::move(item));
}

}  // namespace btz::cli
