// Contact surfaces: `SURF` cards name elements or faces of elements as one surface, which a host knows as a set of parts.
#pragma once

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"

namespace btz {

/// Reads the `SURF` or `SURF*` card at the cursor. Each of its further lines names a solid element, as a whole or with two nodes of a face. Faces that
/// are in no part yet are made by the host; parts are cut to fit. The set bears the name that a comment gives it, or `name`. New faces become the
/// cut face of the bolt that bears the surface's id or names the surface.
void ReadSurfCard(DeckBuffer* file, MeshModel* model, BoundaryStore* boundary, const char* name);

}  // namespace btz
