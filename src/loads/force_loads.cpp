#include "loads/force_loads.h"

#include <algorithm>
#include <iterator>

#include "loads/coincident_forces.h"
#include "loads/forces.h"
#include "loads/load_sets.h"
#include "support/bucket_order.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr std::size_t rowLength = 9;  ///< x, y, z, force and moment.

/// What the forces of one set are made with.
struct ForceStage {
  BoundaryStore* boundary;
  CurveStore* curves;
  std::int32_t* number;
  ListCellPool cells;
};

/// Fills `sets` with all sets, in the order of a table by id.
void SortSets(HeapArray<ForceSetRecord*>* sets) {
  std::size_t count = 0;
  WalkIndexedList<ForceSetRecord>(&ForceSetTable, [&](ForceSetRecord* set) {
    if (count < sets->size()) {
      (*sets)[count++] = set;
    }
  });
  SortByBucket(sets, tableBucketCount, [](const ForceSetRecord* set) { return set->setId; });
}

/// Fills `nodes`, which has room for them, with the nodes of a set, in the order of a table by id.
void SortNodes(const ForceSetRecord& set, HeapArray<ForceNodeRecord*>* nodes) {
  std::size_t count = 0;
  for (ForceNodeRecord* node = set.firstNode; node != nullptr; node = node->next) {
    (*nodes)[count++] = node;
  }
  SortByBucket(nodes, tableBucketCount, [](const ForceNodeRecord* node) { return node->node->id; });
}

/// Makes the force of a group with the set's vectors, or with a field.
void CreatePointForce(ForceStage* stage, const ForceSetRecord& set, std::int32_t csId, PooledList* nodes, Field* field) {
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  if (stage->boundary->CreateForce(&force, &id) != 0 || force == nullptr) {
    return;
  }
  force->SetNodeBased(1);
  if (set.mixed != 0) {
    // The values are those of the field. Required: moments too are scaled by the force's vector, their own stays 0.
    force->SetForce(1.0, 1.0, 1.0);
    force->SetMoment(0.0, 0.0, 0.0);
  } else {
    force->SetForce(set.force[0], set.force[1], set.force[2]);
    force->SetMoment(set.moment[0], set.moment[1], set.moment[2]);
  }
  force->SetCoordinateSystem(csId);
  force->SetNodes(nodes);
  force->SetField(field, 0);
  wchar_t name[nameCapacity];
  if (set.name[0] != 0) {
    Widen(name, nameCapacity, set.name);
  } else {
    FormatPointForce(name, nameCapacity, stage->number);
  }
  force->SetName(name);
  AddToLoadSet(set.setId, loadSet, force);
}

/// A field with a row for each node, or null when the host refused it.
Field* CreateForceField(ForceStage* stage, const ForceGroup& group, std::int32_t rowCount) {
  HeapArray<double> rows(group.size() * rowLength);
  Field* field = nullptr;
  stage->curves->CreateField(&field);
  if (field == nullptr || rows.size() == 0) {
    return nullptr;
  }
  PooledList list;
  ListInit(&list, &stage->cells);
  double* row = rows.begin();
  for (const ForceNodeRecord* node : group) {
    std::copy(node->node->position, node->node->position + 3, row);
    std::copy(std::begin(node->force), std::end(node->force), row + 3);
    std::copy(std::begin(node->moment), std::end(node->moment), row + 6);
    ListAppend(&list, row);
    row += rowLength;
  }
  field->SetQuantity(L"Force");
  field->SetColumnCount(rowLength);
  field->SetRowCount(rowCount);
  field->SetRows(&list);
  ListClear(&list);
  return field;
}

void ListNodes(const ForceGroup& group, PooledList* nodes) {
  for (const ForceNodeRecord* node : group) {
    ListAppend(nodes, node->node);
  }
}

/// From the second group of a set on, its name is a generated one, even when a comment named the set.
void RenameFromSecondGroup(ForceStage* stage, ForceSetRecord* set, std::int32_t* groupsNamed) {
  if (++*groupsNamed > 1) {
    FormatPointForce(set->name, nameCapacity, stage->number);
  }
}

/// Makes the forces of one group of a set whose vectors differ.
void CreateMixedGroup(ForceStage* stage, ForceSetRecord* set, ForceGroup* group, std::int32_t* groupsNamed, std::int32_t* rowCount) {
  const std::int32_t csId = (*group)[0]->csId;
  SplitCoincidentForces(stage->boundary, group, csId, stage->number, set->setId);
  if (group->size() == 0) {
    return;
  }
  // Required: rows are counted through all coordinate systems of the set.
  *rowCount += static_cast<std::int32_t>(group->size());
  Field* field = CreateForceField(stage, *group, *rowCount);
  if (field == nullptr) {
    return;
  }
  RenameFromSecondGroup(stage, set, groupsNamed);
  PooledList nodes;
  ListInit(&nodes, &stage->cells);
  ListNodes(*group, &nodes);
  CreatePointForce(stage, *set, csId, &nodes, field);
  ListClear(&nodes);
}

/// Makes the force of one group of a set with one vector: that of the group's first node, with the moment of its last node that a MOMENT made.
void CreateUniformGroup(ForceStage* stage, ForceSetRecord* set, const ForceGroup& group, std::int32_t* groupsNamed) {
  const ForceNodeRecord& first = *group[0];
  std::copy(std::begin(first.force), std::end(first.force), set->force);
  std::copy(std::begin(first.moment), std::end(first.moment), set->moment);
  for (std::size_t i = 1; i < group.size(); ++i) {
    if (group[i]->isMoment != 0) {
      std::copy(std::begin(group[i]->moment), std::end(group[i]->moment), set->moment);
    }
  }
  PooledList nodes;
  ListInit(&nodes, &stage->cells);
  ListNodes(group, &nodes);
  RenameFromSecondGroup(stage, set, groupsNamed);
  CreatePointForce(stage, *set, first.csId, &nodes, nullptr);
  ListClear(&nodes);
}

void CreateForcesOfSet(ForceStage* stage, ForceSetRecord* set) {
  HeapArray<ForceNodeRecord*> nodes(static_cast<std::size_t>(set->nodeCount));
  if (nodes.size() == 0) {
    return;
  }
  SortNodes(*set, &nodes);
  // By system, each group is found in the order of the table, as by taking all nodes of the first one's system out of it again and again.
  IndexedList bySystem;
  IndexedListInit(&bySystem);
  for (ForceNodeRecord* node : nodes) {
    IndexedListAppend(&bySystem, node->csId, node);
  }
  std::int32_t groupsNamed = 0;
  std::int32_t rowCount = 0;
  for (const ForceNodeRecord* node : nodes) {
    const IndexedCell* cell = IndexedListFind(&bySystem, node->csId);
    if (cell == nullptr || cell->record != node) {
      continue;
    }
    ForceGroup group(cell);
    if (group.size() == 0) {
      continue;
    }
    if (set->mixed != 0) {
      CreateMixedGroup(stage, set, &group, &groupsNamed, &rowCount);
    } else {
      CreateUniformGroup(stage, set, group, &groupsNamed);
    }
  }
  IndexedListClear(&bySystem);
}

}  // namespace

void CreateForceLoads(BoundaryStore* boundary, CurveStore* curves, std::int32_t* pointForceNumber) {
  ForceStage stage{boundary, curves, pointForceNumber, {}};
  ListCellPoolInit(&stage.cells);
  HeapArray<ForceSetRecord*> sets(static_cast<std::size_t>(ForceSetTable.size));
  SortSets(&sets);
  for (ForceSetRecord* set : sets) {
    CreateForcesOfSet(&stage, set);
  }
  ListCellPoolReset(&stage.cells);
}

}  // namespace btz
