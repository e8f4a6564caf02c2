// Transfer of bar and beam properties to the host: those given by numbers with their numbers, those of the section library with the name and the
// dimensions of a round section, whose numbers the host works out.
#pragma once

#include "host/material_links.h"

namespace btz {

/// Finds the coordinate system in which a bar's orientation vector is an axis; `*systemId` is 0 for the direction that the host takes by itself
/// and stays as it is when no system has it.
using FindOrientation = void (*)(MeshPart* part, BoundaryStore* boundary, const double (&orientation)[3], std::int32_t* systemId);

/// Makes a host property of each BeamPropertyRecord of `partId`. The materials of all records are looked up at each call, in list order.
void CreateBeamProperty(MeshPart* part, const MaterialSource& source, const IndexedList* beamPropertyList, std::int32_t partId,
                        BoundaryStore* boundary, FindOrientation findOrientation);

}  // namespace btz
