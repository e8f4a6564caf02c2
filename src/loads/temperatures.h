// Temperatures: `TEMP` cards by set.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable TemperatureSetTable;  ///< Nodes and values by set id.

}  // namespace btz
