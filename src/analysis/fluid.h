// Fluid: `MFLUID` and `ELIST`.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable FluidTable;  ///< Fluid data by id.

}  // namespace btz
