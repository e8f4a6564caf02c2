// The table through which everything created for a set id reaches the load cases.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable LoadSetTable;  ///< Host entities by set id and kind.

}  // namespace btz
