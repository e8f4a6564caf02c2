// Thermal surfaces: `CHBDYG`, `CONV`, `PCONV`, `QBDY1` and `QBDY3`.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable SurfaceElementTable;      ///< Surface elements by element id.
inline HashTable ConvectionSetTable;       ///< Convection by property id.
inline HashTable ConvectionPropertyTable;  ///< Material ids by convection property id.
inline HashTable FluxTable;                ///< Flux by surface element id, the second field of the record.

}  // namespace btz
