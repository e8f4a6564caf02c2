// Bolts with a preload: `PRETENS`, `PTADJST`, `PTFORCE` and `PTADD`.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable PretensionTable;        ///< Bolts by bolt id.
inline HashTable PretensionAdjustTable;  ///< Forces and adjustments by set id, the third field of the record.
inline PooledList PretensionBoltList;    ///< Bolts that the pretension stage ties together.

}  // namespace btz
