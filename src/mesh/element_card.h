// What the element readers share: the head of a card and the creation of the element with its line in the log.
#pragma once

#include "deck/card_boundaries.h"
#include "host/host_interfaces.h"
#include "mesh/element_topology.h"
#include "mesh/parts.h"

namespace btz {

/// Whether the text at the cursor begins with `keyword`.
inline bool BeginsWithKeyword(const char* cursor, const char* keyword) { return std::strncmp(cursor, keyword, std::strlen(keyword)) == 0; }

/// Columns of a field: 16 when the text at the cursor begins with `largeKeyword` ("CHEXA*"), else 8.
inline std::int32_t FieldWidthFor(const char* cursor, const char* largeKeyword) { return BeginsWithKeyword(cursor, largeKeyword) ? 16 : 8; }

/// Takes the keyword field: its compacted text goes to `keyword`, the cursor moves over its 8 columns.
inline void TakeKeyword(CardCursor* cursor, FieldText& keyword) {
  PeekField(8, *cursor, keyword);
  CompactField(keyword);
  Advance(cursor, 8);
}

/// An element about to be created. `nodes` has room for the largest type, unused entries are 0.
struct ElementCard {
  std::int32_t id = 0;
  std::int32_t partId = 0;
  std::int32_t type = 0;
  std::int32_t nodes[mostElementNodes] = {};
};

/// Makes sure that the part exists and creates the element: 1 if the host refused it, which is logged as "*** Failed <word> Element", else 0.
std::int32_t CreateElementInPart(MeshModel* model, const ElementCard& card, PartKind kind, std::int32_t solidFlag, std::uint8_t shellFlag,
                                 const char* word, const char* logPath);

}  // namespace btz
