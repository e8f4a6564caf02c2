// Grid points. A `GRID` card becomes a node of the host's model at once, with the coordinates exactly as the card has them. Nodes given in a
// local system are noted, because the systems may stand behind them in the deck; they are moved when all systems are known. The displacement
// system of a node is noted too, for the readers of constraints and loads.
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"

namespace btz {

/// A grid point whose position is given in a local system. Heap block, held by the run's GridCpList.
struct GridCpRecord {
  std::int32_t nodeId;
  std::int32_t cpId;  ///< Coordinate system of the position; never 0, may be negative.
  std::int32_t cdId;  ///< Coordinate system of the displacements, 0 if none.
  double x, y, z;     ///< As written on the card.
};

/// A grid point with a displacement system. Heap block, held by the run's GridCdTable, keyed by node id.
struct GridCdRecord {
  std::int32_t nodeId;
  std::int32_t cdId;  ///< Above 0.
  std::uint8_t used;  ///< Set once an entity acts in the system at this node.
};

/// Highest id of the nodes that the run has made from cards; 0 when there is none.
inline std::int32_t HighestNodeId = 0;

inline void NoteNodeId(std::int32_t id) { HighestNodeId = id > HighestNodeId ? id : HighestNodeId; }

/// Reads the `GRID` card at the cursor and creates its node. Small fields, large fields and free format; the cursor ends behind the card's
/// line (behind its second one in large fields). A node that the host refuses costs a line in the log where that form's result is kept: in
/// small fields, and in the other forms for a node in a local system.
void ReadGridCard(MeshModel* model, CardCursor* cursor, PooledList* gridCpList, HashTable* gridCdTable, const char* logPath);

}  // namespace btz
