// Thermal materials: `MAT4`.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable ThermalMaterialTable;  ///< Convection coefficients by material id.

}  // namespace btz
