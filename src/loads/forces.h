// Forces and moments at nodes: `FORCE` and `MOMENT`. The readers fill a record for each set; the stage behind the loads makes host forces of them
// (force_loads).
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"
#include "deck/name_comments.h"
#include "host/host_interfaces.h"
#include "support/indexed_list.h"

namespace btz {

/// Three components, in deck units.
using LoadVector = double[3];

/// What the cards of one set say of one node. Heap block, held by ForceNodeTable.
struct ForceNodeRecord {
  MeshNode* node;          ///< Never null.
  LoadVector force;        ///< Of the last FORCE on this node, scaled.
  LoadVector moment;       ///< Of the last MOMENT on this node, scaled.
  std::int32_t csId;       ///< System of the card that made the record.
  std::uint8_t isMoment;   ///< 1 when a MOMENT made the record.
  std::uint8_t isGrouped;  ///< Working mark of the stage.
  ForceNodeRecord* next;   ///< Next node of the set, in the order of the cards.
};

/// One set of forces and moments. Heap block, held by ForceSetTable.
struct ForceSetRecord {
  std::int32_t setId;
  std::int32_t csId;           ///< System of the card that made the record.
  LoadVector force;            ///< Of the FORCE card that made the record; in the stage, what the host is told.
  LoadVector moment;           ///< Of the latest MOMENT card.
  std::int32_t mixed;          ///< 1 when cards of the set have different vectors.
  ForceNodeRecord* firstNode;  ///< Chain of the set's nodes.
  ForceNodeRecord* lastNode;
  std::int32_t nodeCount;
  char name[nameCapacity];  ///< From the comment above the first card; empty if there is none.
};

inline IndexedList ForceSetTable;   ///< ForceSetRecord by set id.
inline IndexedList ForceNodeTable;  ///< ForceNodeRecord by set id and node id.

/// Reads the `FORCE` card at the cursor, in small, large or free fields. `reference` is the vector that later cards of the set are compared with; it
/// lives as long as the run. `name` is that of the comment above the card, `cardCount` how many such cards there have been, this one included.
void ReadForceCard(CardCursor* cursor, MeshModel* model, LoadVector& reference, const char* name, std::int32_t cardCount);

/// Reads the `MOMENT` card at the cursor, likewise.
void ReadMomentCard(CardCursor* cursor, MeshModel* model, LoadVector& reference, const char* name, std::int32_t cardCount);

}  // namespace btz
