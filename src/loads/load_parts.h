// Parts cut to fit loads. A host's load does not point at elements or faces but at whole parts, so what is loaded is cut out of its part first; and
// everything that covered the part goes on covering both pieces.
#pragma once

#include "host/host_interfaces.h"

namespace btz {

/// TopoFace and MeshPart that loads use, whole or split off. Survives a run; its entries are only compared, never called.
inline PooledList LoadPartList;

/// Turns a list of shells and faces of solids (MeshElement) into the parts (TopoFace, appended to `parts`) that together hold exactly these: parts that are
/// used whole, and parts split off for the rest. Entries that stand in no face, such as whole solids, are left out. The parts enter LoadPartList.
/// The working marks of the entries' nodes become 1.
void CollectLoadParts(PooledList* elements, PooledList* parts, BoundaryStore* boundary);

/// Puts `newPart` behind `oldPart` wherever an entity covers that, so that it goes on covering both pieces. With `removeOld` the old part is taken out
/// first, and the new one goes behind the part that followed.
void ReplaceOrAddPartInLoads(MeshPart* oldPart, MeshPart* newPart, bool removeOld, BoundaryStore* boundary);

}  // namespace btz
