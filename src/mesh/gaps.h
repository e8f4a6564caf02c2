// Gaps: `CGAP` cards of one property and one orientation become one gap entity with many node pairs.
#pragma once

#include <btz/containers.h>

namespace btz {

/// Gaps of one property and orientation. Heap block, held by GapElementTable.
struct GapGroup {
  std::int32_t propertyId;
  std::int32_t systemId;
  double orientation[3];
  PooledList* nodesA;      ///< MeshNode at the first ends.
  PooledList* nodesB;      ///< MeshNode at the second ends.
  PooledList* elementIds;  ///< Heap-allocated int32.
};

inline HashTable GapElementTable;  ///< GapGroup by property id and orientation.
inline HashTable GapGroupTable;    ///< int32 group numbers that the host uses already; records of the run's pool.

/// Equality of two GapGroup: all three components of the orientation agree exactly.
inline std::int32_t CompareOrientation(const void* stored, const void* other) {
  const auto& a = static_cast<const GapGroup*>(stored)->orientation;
  const auto& b = static_cast<const GapGroup*>(other)->orientation;
  return a[0] == b[0] && a[1] == b[1] && a[2] == b[2] ? 0 : 1;
}

}  // namespace btz
