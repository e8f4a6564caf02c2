// Forces and moments: `FORCE` and `MOMENT` cards by set.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable ForceSetTable;  ///< Loaded nodes by set id.

}  // namespace btz
