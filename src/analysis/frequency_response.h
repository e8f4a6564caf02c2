// Frequency response: `RLOAD1`, `RLOAD2`, `DAREA`, `EIGRL` and `EIGRA`.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable RloadTable;  ///< Dynamic loads by set id.
inline HashTable DareaTable;  ///< Excited nodes by set id.
inline HashTable EigrTable;   ///< Eigenvalue methods by set id.

}  // namespace btz
