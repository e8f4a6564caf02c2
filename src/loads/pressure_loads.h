// The stage that makes host pressures of the sets of `PLOAD4` cards.
#pragma once

#include "host/host_interfaces.h"

namespace btz {

/// Makes the pressure of each set, uniform or with a field of values by position, on parts cut to fit. `*nameNumber` is the next number of a generated
/// name.
void CreatePressures(BoundaryStore* boundary, CurveStore* curves, std::int32_t* nameNumber);

}  // namespace btz
