// The stage that makes host forces of the sets of `FORCE` and `MOMENT` cards.
#pragma once

#include "host/host_interfaces.h"

namespace btz {

/// Makes the forces of all sets: one for each coordinate system of a set, with a field of values when the set's vectors differ, and one more for
/// each load that is shared by nodes of a set with coincident nodes. `*pointForceNumber` is the next number of a generated name.
void CreateForceLoads(BoundaryStore* boundary, CurveStore* curves, std::int32_t* pointForceNumber);

}  // namespace btz
