// Line elements: `CBAR` and `CBEAM`.
#pragma once

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"
#include "support/indexed_list.h"

namespace btz {

// 1 if the host refused the element, which is logged, else 0. The cursor ends behind the last field taken.

/// Reads the `CBAR` or `CBAR*` card at the cursor. Its orientation vector and pin flags go to all captured properties of its part
/// (`beamPropertyList`, BeamPropertyRecord by property id), because the host keeps them by section: the last bar of a property decides.
std::int32_t ReadBarCard(MeshModel* model, CardCursor* cursor, const char* logPath, const IndexedList* beamPropertyList);

/// Reads the `CBEAM` or `CBEAM*` card at the cursor: ids and end nodes only.
std::int32_t ReadBeamCard(MeshModel* model, CardCursor* cursor, const char* logPath);

}  // namespace btz
