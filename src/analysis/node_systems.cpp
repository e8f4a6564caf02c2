#include "analysis/node_systems.h"

#include "mesh/coordinate_systems.h"
#include "mesh/nodes.h"
#include "support/hash_table.h"
#include "support/indexed_list.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

/// Takes the nodes of a system that are not used yet, in the order of the records.
void TakeNodes(MeshModel* model, const IndexedList& records, std::int32_t systemId, PooledList* nodes) {
  for (const IndexedCell* cell = IndexedListFind(&records, systemId); cell != nullptr; cell = cell->nextOfId) {
    auto* record = static_cast<GridCdRecord*>(cell->record);
    if (record->used != 0) {
      continue;
    }
    record->used = 1;
    MeshNode* node = nullptr;
    model->GetNode(record->nodeId, &node);
    if (node != nullptr) {
      ListAppend(nodes, node);
    }
  }
}

/// False when the host gave no assignment.
bool Assign(BoundaryStore* boundary, std::int32_t systemId, PooledList* nodes) {
  NodeSystemAssignment* assignment = nullptr;
  boundary->CreateNodeSystemAssignment(&assignment);
  if (assignment == nullptr) {
    return false;
  }
  assignment->SetKind(1);
  assignment->SetCoordinateSystem(systemId);
  assignment->SetNodes(nodes);
  return true;
}

}  // namespace

void CreateNodeCoordinateAssignments(MeshModel* model, BoundaryStore* boundary, HashTable* gridCdTable, PooledList* coordinateSystemList) {
  // By system, the records are found in the order of their table, as by a walk of it for each system.
  IndexedList bySystem;
  IndexedListInit(&bySystem);
  WalkTable<GridCdRecord>(gridCdTable, [&](GridCdRecord* record) { IndexedListAppend(&bySystem, record->cdId, record); });
  ListCellPool cells;
  ListCellPoolInit(&cells);
  PooledList nodes;
  ListInit(&nodes, &cells);
  bool goesOn = true;
  WalkList<CsRecord>(coordinateSystemList, [&](const CsRecord* system) {
    if (!goesOn) {
      return;
    }
    TakeNodes(model, bySystem, system->id, &nodes);
    goesOn = nodes.size == 0 || Assign(boundary, system->id, &nodes);
    ListClear(&nodes);
  });
  ListCellPoolReset(&cells);
  IndexedListClear(&bySystem);
}

}  // namespace btz
