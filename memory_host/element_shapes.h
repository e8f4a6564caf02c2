// What the in-memory host knows of element types: how many nodes each has, and which nodes bound the sides of the solids. A host keeps
// tables of its own; it must not look into the translator's.
#pragma once

#include <cstdint>
#include <span>

namespace btz::memory {

inline constexpr std::int32_t rigidType = 9;  ///< The type with a variable node list.

/// One side of a solid, as positions in its node array.
struct SideShape {
  std::int32_t cornerCount;  ///< 3 or 4.
  std::int32_t corners[4];   ///< In order around the side, seen from outside against the clock.
  std::int32_t mids[4];      ///< Mid-side node between a corner and the next one; only solids with mid-side nodes have it.
};

/// Entries of `nodes` of an element of the type, 0 for a type that does not exist. The rigid type counts its first node only.
std::int32_t NodeCount(std::int32_t typeIndex);

/// How many of them are corners.
std::int32_t CornerCount(std::int32_t typeIndex);

/// True for tetrahedron, hexahedron, wedge and pyramid.
bool IsSolidType(std::int32_t typeIndex);

/// True for triangle and quadrilateral.
bool IsShellType(std::int32_t typeIndex);

/// Sides of a solid type; empty for all others.
std::span<const SideShape> Sides(std::int32_t typeIndex);

/// Name of the type for reports: "quadrilateral, 4 nodes".
const char* ShapeName(std::int32_t typeIndex);

}  // namespace btz::memory
