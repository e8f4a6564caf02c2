// Displacement systems of nodes that no constraint took up.
#pragma once

#include "host/host_interfaces.h"

namespace btz {

/// Tells the host, for each coordinate system in the order of their list (CsRecord), the nodes whose displacements it measures and whose records in
/// `gridCdTable` (GridCdRecord) are not marked as used; marks those that it takes.
void CreateNodeCoordinateAssignments(MeshModel* model, BoundaryStore* boundary, HashTable* gridCdTable, PooledList* coordinateSystemList);

}  // namespace btz
