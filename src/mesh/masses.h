// Point masses: `CONM2` cards grouped by the value of the mass.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable MassGroupTable;  ///< Groups of equal mass, keyed by the mass: the third 64-bit real of the record.

}  // namespace btz
