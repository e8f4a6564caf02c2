// Parts by property. The host keeps its mesh in parts, and one part stands for one property: the property id of an element card is the
// part's number. Every element reader finds or makes its part here before it creates the element.
#pragma once

#include <btz/containers.h>

#include "host/host_interfaces.h"

namespace btz {

/// How many solid or gasket elements the deck has of one property, counted before the passes. Heap block.
struct PropertyElementCountRecord {
  std::int32_t propertyId;
  std::int32_t elementCount;
};

extern HashTable PartIdTable;       ///< Heap-allocated int32 ids of all parts made so far.
extern HashTable SolidPartCounts;   ///< PropertyElementCountRecord by property id; created by the first one counted.
extern PooledList PartList;         ///< MeshPart, all parts in order of creation. Owned by the host.
extern std::int32_t DefaultPartId;  ///< Part of the elements with a blank property id; 0 when none has been chosen yet.

/// Topology that a part needs.
enum PartKind : std::int32_t { partOfSolids = 0, partOfLines = 1, partOfSurfaces = 2 };

/// Makes sure that the part exists: 1 if it did, 0 if it was made. The topology is that of whichever element came first.
std::int32_t EnsurePart(MeshModel* model, std::int32_t partId, PartKind kind);

/// Makes the part and its topology; `*partOut` is the host's part or null. Returns whether a part came back.
bool CreateMeshPart(PartKind kind, std::int32_t partId, MeshModel* model, MeshPart** partOut);

/// Part of an element whose card has the property id `pid`: that id, or for 0 the default part, which is chosen and reserved when needed.
std::int32_t ResolvePartId(MeshModel* model, std::int32_t pid);

}  // namespace btz
