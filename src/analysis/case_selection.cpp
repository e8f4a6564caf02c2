#include "analysis/case_selection.h"

#include "loads/load_sets.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

void TakeAll(std::int32_t setId, LoadSetKind kind, EntityTaker* taker) {
  LoadSetRecord* set = FindLoadSet(setId, kind);
  if (set != nullptr) {
    WalkList<Entity>(&set->items, [&](Entity* entity) { taker->Take(entity); });
  }
}

/// The sets that a combination lists, or the subcase's own when there is no combination.
void TakeCombined(std::int32_t setId, const IdSet& combined, LoadSetKind kind, EntityTaker* taker) {
  if (setId == 0) {
    return;
  }
  if (IdSetCount(&combined) == 0) {
    TakeAll(setId, kind, taker);
    return;
  }
  WalkIdSet(&combined, [&](std::int32_t id) { TakeAll(id, kind, taker); });
}

bool IsAppliedLoad(std::int32_t type) { return type == entityForce || type == entityPressure || type == entityBodyLoad; }

/// The applied loads of the type of the first one.
void TakeFirstKind(LoadSetRecord* set, EntityTaker* taker) {
  constexpr std::int32_t none = -1;
  std::int32_t wanted = none;
  WalkList<Entity>(&set->items, [&](Entity* entity) {
    const std::int32_t type = entity->GetEntityType();
    if (wanted == none && IsAppliedLoad(type)) {
      wanted = type;
    }
    if (type == wanted) {
      taker->Take(entity);
    }
  });
}

/// Constraints with enforced values, which are filed with the loads.
void TakeEnforced(std::int32_t setId, EntityTaker* taker) {
  LoadSetRecord* set = FindLoadSet(setId, loadSet);
  if (set == nullptr) {
    return;
  }
  WalkList<Entity>(&set->items, [&](Entity* entity) {
    if (entity->GetEntityType() == entityConstraint && static_cast<Constraint*>(entity)->IsEnforced() != 0) {
      taker->Take(entity);
    }
  });
}

void TakeLoads(const SubcaseRecord& subcase, EntityTaker* taker) {
  if (subcase.loadId == 0) {
    return;
  }
  if (IdSetCount(&subcase.loadIds) != 0) {
    TakeCombined(subcase.loadId, subcase.loadIds, loadSet, taker);
  } else if (LoadSetRecord* set = FindLoadSet(subcase.loadId, loadSet)) {
    TakeFirstKind(set, taker);
  }
  TakeEnforced(subcase.loadId, taker);
}

}  // namespace

void SelectEntities(const SubcaseRecord& subcase, EntityTaker* taker) {
  TakeLoads(subcase, taker);
  TakeCombined(subcase.spcId, subcase.spcIds, constraintSet, taker);
  if (subcase.spcId != 0) {
    TakeEnforced(subcase.spcId, taker);
  }
  TakeCombined(subcase.mpcId, subcase.mpcIds, multiPointSet, taker);
  TakeCombined(subcase.dloadId, subcase.dloadIds, excitationSet, taker);
  if (subcase.temperatureId != 0) {
    TakeAll(subcase.temperatureId, temperatureSet, taker);
  }
}

}  // namespace btz
