#include "memory_host/element_shapes.h"

#include <array>

namespace btz::memory {

namespace {

struct Shape {
  std::int32_t nodes;
  std::int32_t corners;
  const char* name;
};

constexpr std::array<Shape, 17> shapes = {{{1, 1, "point"},
                                           {2, 2, "line, 2 nodes"},
                                           {3, 2, "line, 3 nodes"},
                                           {3, 3, "triangle, 3 nodes"},
                                           {6, 3, "triangle, 6 nodes"},
                                           {4, 4, "quadrilateral, 4 nodes"},
                                           {8, 4, "quadrilateral, 8 nodes"},
                                           {4, 4, "tetrahedron, 4 nodes"},
                                           {10, 4, "tetrahedron, 10 nodes"},
                                           {1, 1, "rigid element"},
                                           {1, 1, "one-node element"},
                                           {2, 2, "two-node connection"},
                                           {8, 8, "hexahedron, 8 nodes"},
                                           {6, 6, "wedge, 6 nodes"},
                                           {5, 5, "pyramid, 5 nodes"},
                                           {20, 8, "hexahedron, 20 nodes"},
                                           {15, 6, "wedge, 15 nodes"}}};

// Mid-side nodes of the 10-node tetrahedron: 4 (0-1), 5 (1-2), 6 (2-0), 7 (0-3), 8 (1-3), 9 (2-3).
constexpr std::array<SideShape, 4> tetraSides = {{{3, {1, 2, 3, -1}, {5, 9, 8, -1}},
                                                  {3, {0, 3, 2, -1}, {7, 9, 6, -1}},
                                                  {3, {0, 1, 3, -1}, {4, 8, 7, -1}},
                                                  {3, {0, 2, 1, -1}, {6, 5, 4, -1}}}};

// Mid-side nodes of the 20-node hexahedron: 8 to 11 around the bottom, 12 to 15 up the edges, 16 to 19 around the top.
constexpr std::array<SideShape, 6> hexaSides = {{{4, {0, 3, 2, 1}, {11, 10, 9, 8}},
                                                 {4, {0, 1, 5, 4}, {8, 13, 16, 12}},
                                                 {4, {2, 3, 7, 6}, {10, 15, 18, 14}},
                                                 {4, {0, 4, 7, 3}, {12, 19, 15, 11}},
                                                 {4, {1, 2, 6, 5}, {9, 14, 17, 13}},
                                                 {4, {4, 5, 6, 7}, {16, 17, 18, 19}}}};

// Mid-side nodes of the 15-node wedge: 6 to 8 around the bottom, 9 to 11 up the edges, 12 to 14 around the top.
constexpr std::array<SideShape, 5> wedgeSides = {{{3, {0, 2, 1, -1}, {8, 7, 6, -1}},
                                                  {4, {1, 2, 5, 4}, {7, 11, 13, 10}},
                                                  {4, {2, 0, 3, 5}, {8, 9, 14, 11}},
                                                  {4, {0, 1, 4, 3}, {6, 10, 12, 9}},
                                                  {3, {3, 4, 5, -1}, {12, 13, 14, -1}}}};

constexpr std::array<SideShape, 5> pyramidSides = {{{4, {0, 3, 2, 1}, {-1, -1, -1, -1}},
                                                    {3, {0, 1, 4, -1}, {-1, -1, -1, -1}},
                                                    {3, {1, 2, 4, -1}, {-1, -1, -1, -1}},
                                                    {3, {2, 3, 4, -1}, {-1, -1, -1, -1}},
                                                    {3, {3, 0, 4, -1}, {-1, -1, -1, -1}}}};

bool Exists(std::int32_t typeIndex) { return typeIndex >= 0 && static_cast<std::size_t>(typeIndex) < shapes.size(); }

}  // namespace

std::int32_t NodeCount(std::int32_t typeIndex) { return Exists(typeIndex) ? shapes[static_cast<std::size_t>(typeIndex)].nodes : 0; }

std::int32_t CornerCount(std::int32_t typeIndex) { return Exists(typeIndex) ? shapes[static_cast<std::size_t>(typeIndex)].corners : 0; }

bool IsSolidType(std::int32_t typeIndex) { return !Sides(typeIndex).empty(); }

bool IsShellType(std::int32_t typeIndex) { return typeIndex >= 3 && typeIndex <= 6; }

std::span<const SideShape> Sides(std::int32_t typeIndex) {
  switch (typeIndex) {
    case 7:
    case 8:
      return tetraSides;
    case 12:
    case 15:
      return hexaSides;
    case 13:
    case 16:
      return wedgeSides;
    case 14:
      return pyramidSides;
    default:
      return {};
  }
}

const char* ShapeName(std::int32_t typeIndex) {
  return Exists(typeIndex) ? shapes[static_cast<std::size_t>(typeIndex)].name : "no element";
}

}  // namespace btz::memory
