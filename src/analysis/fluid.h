// Fluid: `MFLUID` and `ELIST`.
#pragma once

#include <btz/containers.h>

namespace btz {

/// A fluid volume and its surfaces. Heap block, held by FluidTable.
struct FluidRecord {
  std::int32_t setId;
  std::int32_t csId;
  double freeSurface;
  double density;
  std::int32_t oneSideList;  ///< Surface that is wetted on one side.
  std::int32_t twoSideList;  ///< Surface that is wetted on both sides.
  double ratio;              ///< RMAX.
  char firstPlane[8];        ///< "S", "A" or another text.
  char secondPlane[8];
  std::uint8_t reversed;  ///< 1 when a surface list of it named a negative element id.
};

inline HashTable FluidTable;  ///< FluidRecord by set id.

}  // namespace btz
