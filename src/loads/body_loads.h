// Body loads: `GRAV` and `RFORCE` become host entities as they are read. They cover the parts that exist at that moment and have no name. A card
// with a star behind its keyword is not read.
#pragma once

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"

namespace btz {

/// Reads the `GRAV` card at the cursor: the vector times the acceleration, of which 0 counts as 1.
void ReadGravCard(CardCursor* cursor, BoundaryStore* boundary, MeshModel* model);

/// Reads the `RFORCE` card at the cursor: the vector as it stands; the factor only decides between the two kinds of rotation.
void ReadRforceCard(CardCursor* cursor, BoundaryStore* boundary, MeshModel* model);

}  // namespace btz
