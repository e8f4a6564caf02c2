// Analysis node sets: `ASET` and `ASET1`.
#pragma once

#include <btz/containers.h>

namespace btz {

inline PooledList AsetList;  ///< Groups of nodes, in order of the cards.

}  // namespace btz
