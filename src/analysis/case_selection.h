// Which entities a subcase selects from the sets.
#pragma once

#include "analysis/case_control.h"
#include "host/host_interfaces.h"

namespace btz {

/// Takes one entity of a subcase.
class EntityTaker {
 public:
  virtual void Take(Entity* entity) = 0;

 protected:
  ~EntityTaker() = default;
};

/// Gives the taker the entities that the subcase's LOAD, SPC, MPC, DLOAD and temperature lines select, in the order of a load case.
/// Required: of a load set without combination only the kind that comes first in it is selected.
void SelectEntities(const SubcaseRecord& subcase, EntityTaker* taker);

}  // namespace btz
