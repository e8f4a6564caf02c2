// Shell elements: `CTRIA3`, `CTRIA6`, `CQUAD4`, `CQUADR`, `CQUAD8` and the plot shells `PLOTEL3` and `PLOTEL4`. Element id, property id and
// nodes are read; thickness, material angle and offsets of the card are not. Each reader leaves the cursor where its walk over the nodes
// ended, and returns 1 if the host refused the element (which is logged), else 0.
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"

namespace btz {

/// Heap-allocated int32 ids of the parts that have a `CQUADR` element.
extern HashTable ReducedShellPropertyTable;

std::int32_t ReadTria3Card(MeshModel* model, CardCursor* cursor, const char* logPath);  ///< `CTRIA3`, `PLOTEL3`.
std::int32_t ReadTria6Card(MeshModel* model, CardCursor* cursor, const char* logPath);  ///< `CTRIA6`.
std::int32_t ReadQuad4Card(MeshModel* model, CardCursor* cursor, const char* logPath);  ///< `CQUAD4`, `CQUADR`, `PLOTEL4`.
std::int32_t ReadQuad8Card(MeshModel* model, CardCursor* cursor, const char* logPath);  ///< `CQUAD8`.

}  // namespace btz
