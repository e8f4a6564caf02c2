// Coordinate systems. A `CORD2R`, `CORD2C`, `CORD1R` or `CORD1C` card becomes a system of the host at once, and a record here with the rotation
// and the origin, by which nodes given in it are moved later (local_nodes).
// Required: the reference field of a CORD2 card is read and dropped. Every system is taken as defined in global coordinates, so chains of
// systems are not resolved.
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"
#include "mesh/vectors.h"

namespace btz {

/// How a system measures.
enum SystemKind : std::int32_t { rectangularSystem = 1, cylindricalSystem = 2, sphericalSystem = 3 };

/// One coordinate system. Heap block, held by the run's CoordinateSystemList.
struct CsRecord {
  std::int32_t id;     ///< CID.
  std::int32_t kind;   ///< SystemKind; no card makes a spherical one.
  Vector origin;       ///< Point A of the card.
  Rotation rotation;   ///< Column j is the unit vector of local axis j.
  Vector translation;  ///< Copy of the origin.
};

/// Reads the `CORD2R` (kind 1) or `CORD2C` (kind 2) card at the cursor. Makes three helper nodes at its points, which stay in the model, and the
/// system; the record goes to the head of the list.
void ReadCord2Card(MeshModel* model, BoundaryStore* boundary, SystemKind kind, CardCursor* cursor, PooledList* coordinateSystemList);

/// Reads the `CORD1R` (kind 1) or `CORD1C` (kind 2) card at the cursor, in fixed or free format, with one or two systems.
void ReadCord1Card(MeshModel* model, BoundaryStore* boundary, SystemKind kind, CardCursor* cursor, PooledList* coordinateSystemList);

/// Makes the system through three nodes, as they stand now, and adds its record to the list. Without all three nodes nothing is made.
void CreateCord1System(MeshModel* model, BoundaryStore* boundary, std::int32_t cid, SystemKind kind, MeshNode* nodeA, MeshNode* nodeB,
                       MeshNode* nodeC, PooledList* coordinateSystemList);

}  // namespace btz
