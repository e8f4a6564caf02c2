// Nodes given in local systems: they were created with the numbers of their cards, and move to global coordinates when all systems are known.
#pragma once

#include <btz/containers.h>

#include "host/host_interfaces.h"

namespace btz {

/// Moves the node of each GridCpRecord whose system is in `coordinateSystemList` (CsRecord), writes the system's id into it, and works the
/// normals of the elements on moved nodes out anew. A node whose system is not known stays where it is.
/// Required: with two systems of one id the node is moved twice.
void ApplyGridCoordinateSystems(MeshModel* model, PooledList* gridCpList, PooledList* coordinateSystemList);

/// Whether every element in the face meshes of the model's bodies lies on nodes of `nodeList` only. `bodyList` receives the bodies. The working
/// mark of the listed nodes becomes 2. False without model or lists.
bool ElementsCoverOnlyListedNodes(MeshModel* model, PooledList* nodeList, PooledList* bodyList);

}  // namespace btz
