// The stages that make host constraints of the records of `SPC`, `SPCD` and `SPC1` cards.
#pragma once

#include "host/host_interfaces.h"
#include "support/indexed_list.h"

namespace btz {

/// Makes a constraint of each group of records with equal set and components: a plain one when the first record is an SPC and all values are 0,
/// else one with enforced values, which stand in a field when the nodes have different ones. Groups and their records are met newest first.
/// Marks the nodes' records in `gridCdTable` (GridCdRecord) as used.
void CreateSpcConstraints(MeshModel* model, BoundaryStore* boundary, const IndexedList* spcList, HashTable* gridCdTable,
                          CurveStore* curves);

/// Makes a plain constraint of each Spc1Record, newest first.
void CreateSpc1Constraints(BoundaryStore* boundary, const IndexedList* spc1List, HashTable* gridCdTable);

}  // namespace btz
