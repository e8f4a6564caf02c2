// Mid-side nodes that gasket elements share along their through-thickness edges.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable GasketMidNodeTable;  ///< Two corner ids and the node made between them; created by the first gasket that needs one.
inline std::int32_t GasketMidNodeTableSize = 0;  ///< Size with which it is created: four times the elements that the pre-scan counted.

}  // namespace btz
