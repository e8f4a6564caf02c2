#include "sets/pretension.h"

#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

void AddBoltsToCase(LoadCase* loadCase, std::int32_t pretensionId) {
  WalkList<BoltRecord>(&PretensionBoltList, [&](const BoltRecord* bolt) {
    const auto* step = static_cast<const BoltStep*>(HashFind(&bolt->steps, &pretensionId));
    if (step == nullptr) {
      return;
    }
    if (step->adjustGiven != 0 && bolt->constraintEntity != nullptr) {
      loadCase->AddEntity(bolt->constraintEntity, 0, step->adjustValue);
    }
    if (step->forceGiven != 0 && bolt->forceEntity != nullptr) {
      loadCase->AddEntity(bolt->forceEntity, 0, step->forceValue);
    }
  });
}

}  // namespace btz
