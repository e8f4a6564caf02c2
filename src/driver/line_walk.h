// The walk that all passes and all files share: it owns the text between cards and all text that no keyword claims.
#pragma once

#include "driver/card_table.h"

namespace btz {

/// Walks `file` from its cursor to its end, handing each card to its row's reader. The first chunk must have been read. `includeTable` is
/// the table for the include files that rows of `table` may lead to, or null.
void WalkDeckFile(RunState* run, DeckBuffer* file, const PassTable& table, const PassTable* includeTable);

}  // namespace btz
