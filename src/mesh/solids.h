// Solid elements: `CTETRA`, `CPENTA`, `CHEXA`, `CPYRA` and `CPYRAM`. The element type is picked by how many node values the card really has.
// A tetrahedron with only some of its mid-side nodes can't be made at once: it is kept for the stage that completes transition elements.
// Each reader returns 1 if the host refused the element (which is logged), else 0.
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"

namespace btz {

/// A tetrahedron that has neither 4 nor 10 nodes. Heap block, held by TransitionElementList.
struct TransitionTetRecord {
  std::int32_t elementId;
  std::int32_t nodes[10];  ///< The card's node fields by position, 0 for a blank.
  std::int32_t partId;
};

extern PooledList TransitionElementList;  ///< TransitionTetRecord, in order of the cards.

std::int32_t ReadTetraCard(MeshModel* model, CardCursor* cursor, const char* logPath);
std::int32_t ReadPentaCard(MeshModel* model, CardCursor* cursor, const char* logPath);
std::int32_t ReadHexaCard(MeshModel* model, CardCursor* cursor, const char* logPath);

/// Fixed fields, or free format when a comma follows the keyword directly. `buffer` is the file that the card is in: a free-format card that
/// meets the chunk's end fetches the next one. Returns 1 also when the deck ended there and nothing was made.
std::int32_t ReadPyramidCard(MeshModel* model, DeckBuffer* buffer, const char* logPath);

}  // namespace btz
