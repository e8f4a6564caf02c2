#include "loads/element_faces.h"

#include <cstddef>

#include "mesh/element_topology.h"

namespace btz {

namespace {

/// Two nodes of an element, by position, that name a face together.
struct FacePair {
  std::int32_t a;
  std::int32_t b;
  std::int32_t face;
};

constexpr FacePair hexaPairs[] = {{0, 2, 0}, {3, 1, 0}, {4, 1, 1}, {0, 5, 1}, {3, 6, 2}, {2, 7, 2},
                                  {3, 4, 3}, {0, 7, 3}, {1, 6, 4}, {2, 5, 4}, {7, 5, 5}, {4, 6, 5}};
constexpr FacePair wedgePairs[] = {{1, 5, 1}, {2, 4, 1}, {2, 3, 2}, {0, 5, 2}, {0, 4, 3}, {1, 3, 3}};

/// Id of the node at a position, 0 when the card left it out.
std::int32_t IdAt(const MeshElement* element, std::int32_t position) {
  const MeshNode* node = element->nodes[position];
  return node == nullptr ? 0 : node->id;
}

template <std::size_t count>
bool FindPair(const MeshElement* element, const FacePair (&pairs)[count], std::int32_t first, std::int32_t second, std::int32_t* face) {
  for (const FacePair& pair : pairs) {
    const std::int32_t a = IdAt(element, pair.a);
    const std::int32_t b = IdAt(element, pair.b);
    if ((first == a && second == b) || (first == b && second == a)) {
      *face = pair.face;
      return true;
    }
  }
  return false;
}

/// Position of a node among those from `from` up to `to`; -1 when it is not among them.
std::int32_t PositionOf(const MeshElement* element, std::int32_t id, std::int32_t from, std::int32_t to) {
  for (std::int32_t position = from; position < to; ++position) {
    if (IdAt(element, position) == id) {
      return position;
    }
  }
  return -1;
}

/// Faces of a tetrahedron bear the number of the corner opposite. Required: the first node is not looked at.
bool FindTetraFace(const MeshElement* element, std::int32_t opposite, std::int32_t* face) {
  const std::int32_t position = opposite == 0 ? -1 : PositionOf(element, opposite, 0, 4);
  if (position < 0) {
    return false;
  }
  *face = position;
  return true;
}

bool FindWedgeFace(const MeshElement* element, std::int32_t first, std::int32_t second, std::int32_t* face) {
  if (second != 0) {
    return FindPair(element, wedgePairs, first, second, face);
  }
  const std::int32_t position = PositionOf(element, first, 0, 6);
  if (position < 0) {
    return false;
  }
  *face = position < 3 ? 0 : 4;
  return true;
}

}  // namespace

bool FindElementFace(const MeshElement* element, std::int32_t firstId, std::int32_t secondId, std::int32_t* face) {
  if (element == nullptr || element->nodes == nullptr || firstId == 0) {
    return false;
  }
  switch (element->typeIndex) {
    case elementTetra4:
    case elementTetra10:
      return FindTetraFace(element, secondId, face);
    case elementHexa8:
    case elementHexa20:
      return secondId != 0 && FindPair(element, hexaPairs, firstId, secondId, face);
    case elementWedge6:
    case elementWedge15:
      return FindWedgeFace(element, firstId, secondId, face);
    default:
      return false;
  }
}

void ElementFaceCentre(const MeshElement* element, double (&centre)[3]) {
  const std::int32_t corners = TopologyOf(ElementCornerCount, element->typeIndex);
  for (std::size_t i = 0; i < 3; ++i) {
    double sum = 0.0;
    for (std::int32_t corner = 0; corner < corners; ++corner) {
      const MeshNode* node = element->nodes[corner];
      sum += node == nullptr ? 0.0 : node->position[i];
    }
    centre[i] = corners == 0 ? 0.0 : sum / corners;
  }
}

bool StandsInFace(const MeshElement* element) { return element->owner != nullptr && element->owner->GetTopoKind() == topoFace; }

}  // namespace btz
