// Pressures on shells and on faces of solids: `PLOAD4`. The reader fills a record for each set; the stage behind the loads cuts the loaded faces out of
// their parts and makes host pressures of them (pressure_loads).
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"
#include "support/indexed_list.h"

namespace btz {

/// Values at the corners of a face: P1 to P4 of a card.
using CornerValues = double[4];

/// One card. Heap block, chained in its set.
struct PressureCard {
  MeshNode* firstNode;   ///< G1, null when there is none.
  MeshNode* secondNode;  ///< G3 or G4, null when there is none.
  MeshElement* element;  ///< Null when the model has none of the id: then this card and all behind it are lost.
  CornerValues values;
  PressureCard* next;
};

/// One set of pressures. Heap block, held by PressureSetTable.
struct PressureSetRecord {
  std::int32_t setId;
  double pressure;       ///< P1 of the card that made the record; 1.0 once the stage has found the set mixed.
  std::int32_t mixed;    ///< 1 when the set needs a field of values.
  std::uint8_t isShell;  ///< 1 when the latest card had neither G1 nor G3. Required: the last card decides for the whole set.
  PressureCard* first;   ///< Cards of the set, in order.
  PressureCard* last;
};

inline IndexedList PressureSetTable;  ///< PressureSetRecord by set id.

/// Reads the `PLOAD4` card at the cursor, in small or large fields. `reference` holds the values that later cards of a set are compared with; it lives
/// as long as the run. Required: a card with THRU in place of a node has no effect at all.
void ReadPload4Card(CardCursor* cursor, MeshModel* model, CornerValues& reference);

/// Frees a PressureSetRecord with its cards.
void FreePressureSetRecord(void* record);

}  // namespace btz
