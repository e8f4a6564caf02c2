// Properties of connectors: `PBUSH`.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable BushPropertyTable;  ///< Bush properties by property id.

}  // namespace btz
