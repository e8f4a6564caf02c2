// Readers of the property cards of shells, solids, bars, beams and gaskets. They only capture: each copies its card into a record and appends
// that to a list under the property id. They take the comment line above the card as the property's name too; a bare `$name` also names the
// part, unless it has a name already.
#pragma once

#include "deck/deck_buffer.h"
#include "properties/property_records.h"
#include "support/indexed_list.h"

namespace btz {

// The cursor stands at the first column of the card and ends on what the card did not take.

/// `PSHELL`, `PSHELL*`: adds a PshellRecord.
void ReadPshellCard(CardCursor* cursor, IndexedList* pshellList);

/// `PSOLID`, `PSOLID*`: adds a PsolidRecord.
void ReadPsolidCard(CardCursor* cursor, IndexedList* psolidList);

/// `PBAR`, `PBARL`, `PBEAM`, `PBEAML` and their star forms: adds a BeamPropertyRecord.
void ReadBeamPropertyCard(CardCursor* cursor, IndexedList* beamPropertyList);

/// `PGASK`, `PGASK*`: adds a PgaskRecord.
void ReadPgaskCard(CardCursor* cursor, IndexedList* pgaskList);

}  // namespace btz
