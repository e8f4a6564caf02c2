// What the element readers share: the head of a card and the creation of the element with its line in the log.
#pragma once

#include "deck/card_boundaries.h"
#include "host/host_interfaces.h"
#include "mesh/element_topology.h"
#include "mesh/parts.h"

namespace btz {

/// An element about to be created. `nodes` has room for the largest type, unused entries are 0.
struct ElementCard {
  std::int32_t id = 0;
  std::int32_t partId = 0;
  std::int32_t type = 0;
  std::int32_t nodes[mostElementNodes] = {};
};

/// Takes the keyword field, the element id and the property id, which gives the card's part.
void ReadElementHead(MeshModel* model, CardCursor* cursor, std::int32_t width, ElementCard* card);

/// Makes sure that the part exists and creates the element: 1 if the host refused it, which is logged as "*** Failed <word> Element", else 0.
std::int32_t CreateElementInPart(MeshModel* model, const ElementCard& card, PartKind kind, std::int32_t solidFlag, std::uint8_t shellFlag,
                                 const char* word, const char* logPath);

}  // namespace btz
