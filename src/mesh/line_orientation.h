// Orientation of line elements. The mesh holds none; the host takes a direction by itself, from the axis of the element, and otherwise wants a
// coordinate system that has the card's vector as an axis. Here it is worked out which of the two a section needs.
#pragma once

#include "host/host_interfaces.h"
#include "mesh/vectors.h"

namespace btz {

/// The unit vector that the host takes by itself for a line element; zero for null and for other types. Not always at right angles to the axis:
/// it is compared exactly and depends on this very rule.
Vector DefaultLineOrientation(const MeshElement* element);

/// DefaultLineOrientation of the first element in the first face mesh of the part. Without a face or a mesh `*out` stays as it was.
void FirstElementOrientation(MeshPart* part, Vector* out);

/// Writes 0 into `*systemId` when `orientation` is the direction that the host takes by itself, else the id of the first coordinate system of the
/// store whose Y axis it is, compared exactly. `*systemId` stays as it was when there is none.
void FindOrientationSystem(MeshPart* part, BoundaryStore* boundary, const double (&orientation)[3], std::int32_t* systemId);

}  // namespace btz
