// Single-point constraints: enforced values by node.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable NodeEnforcedValueTable;  ///< Node id and the first value enforced there.

}  // namespace btz
