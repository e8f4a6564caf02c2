// Faces of solid elements as load cards name them, by nodes.
#pragma once

#include "host/host_interfaces.h"

namespace btz {

/// Finds the face of a solid element by the ids of two of its nodes: two opposite corners of a quadrilateral, or for a tetrahedron `secondId` alone, the
/// node opposite the face, or for a triangle of a wedge `firstId` alone. True when there is one, and only then `*face` is written: the index of the
/// face, from 0. An id of 0 is no node.
bool FindElementFace(const MeshElement* element, std::int32_t firstId, std::int32_t secondId, std::int32_t* face);

/// The mean of the corners of a shell or face; 0 for a corner that is missing.
void ElementFaceCentre(const MeshElement* element, double (&centre)[3]);

/// Whether the element or face stands in a TopoFace, as only shells and faces of solids do. Only these can carry loads.
bool StandsInFace(const MeshElement* element);

}  // namespace btz
