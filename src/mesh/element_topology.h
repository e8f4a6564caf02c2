// The numbers of the element types and their topology, by type index. The host's element records carry the index, so whoever walks elements
// can look up here how many nodes, corners, sides and edges they have.
#pragma once

#include <array>
#include <cstdint>

namespace btz {

/// Type index, as passed to MeshModel::CreateElement and held by MeshElement::typeIndex.
enum ElementType : std::int32_t {
  elementPoint = 0,
  elementLine2 = 1,
  elementLine3 = 2,
  elementTria3 = 3,
  elementTria6 = 4,
  elementQuad4 = 5,
  elementQuad8 = 6,
  elementTetra4 = 7,
  elementTetra10 = 8,
  elementRigid = 9,  ///< Rigid element with a variable node list, of which the tables count the first node only.
  elementOneNode = 10,
  elementConnection = 11,
  elementHexa8 = 12,
  elementWedge6 = 13,
  elementPyramid5 = 14,
  elementHexa20 = 15,
  elementWedge15 = 16
};

inline constexpr std::int32_t elementTypeCount = 20;  ///< Entries of the tables; 17 to 19 are no element.
inline constexpr std::int32_t mostElementNodes = 20;  ///< Nodes of the largest type.

using ElementTable = std::array<std::int32_t, elementTypeCount>;

inline constexpr ElementTable ElementNodeCount = {1, 2, 3, 3, 6, 4, 8, 4, 10, 1, 1, 2, 8, 6, 5, 20, 15, -1, -1, -1};
inline constexpr ElementTable ElementCornerCount = {1, 2, 2, 3, 3, 4, 4, 4, 4, 1, 1, 2, 8, 6, 5, 8, 6, -1, -1, -1};
inline constexpr ElementTable ElementSideCount = {1, 2, 2, 3, 3, 4, 4, 4, 4, 0, 0, 2, 6, 5, 5, 6, 5, -1, -1, -1};
inline constexpr ElementTable ElementEdgeCount = {0, 1, 1, 3, 3, 4, 4, 6, 6, 0, 0, 0, 12, 9, 8, 12, 9, 0, 0, 0};

/// Entry of `table` for the type index of a host's record; 0 for an index that no table has and for what is no element.
inline std::int32_t TopologyOf(const ElementTable& table, std::int32_t typeIndex) {
  if (typeIndex < 0 || typeIndex >= elementTypeCount) {
    return 0;
  }
  const std::int32_t count = table[static_cast<std::size_t>(typeIndex)];
  return count > 0 ? count : 0;
}

}  // namespace btz
