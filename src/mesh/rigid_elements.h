// Rigid bars: `RBAR` cards by group.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable RbarTable;  ///< Groups of rigid bars by group id.

}  // namespace btz
