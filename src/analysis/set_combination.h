// Combinations: `LOAD`, `DLOAD`, `SPCADD` and `MPCADD`.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable LoadCombinationTable;  ///< Every set id that a `LOAD` card lists.

}  // namespace btz
