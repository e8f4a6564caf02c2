#include "loads/constraint_stages.h"

#include <algorithm>
#include <iterator>

#include "loads/constraints.h"
#include "loads/load_sets.h"
#include "mesh/nodes.h"
#include "support/hash_table.h"
#include "support/heap_array.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr std::size_t rowLength = 9;  ///< x, y, z and six component values.

/// Bits 0, 1, 2 for components 1, 2, 3 and for 4, 5, 6.
struct Masks {
  std::uint8_t translation = 0;
  std::uint8_t rotation = 0;

  void Set(std::size_t component) {
    if (component < 3) {
      translation = static_cast<std::uint8_t>(translation | (1u << component));
    } else {
      rotation = static_cast<std::uint8_t>(rotation | (1u << (component - 3)));
    }
  }
};

GridCdRecord* FindDisplacementSystem(HashTable* gridCdTable, const MeshNode* node) {
  return static_cast<GridCdRecord*>(HashFind(gridCdTable, &node->id));
}

/// The displacement system of the first node that has one, whose record is marked as used; 0 when nodes were looked at and none has. Without a
/// node to look at, `systemId` as it was.
std::int32_t TakeDisplacementSystem(HashTable* gridCdTable, PooledList* nodes, std::int32_t systemId) {
  ListRewind(nodes);
  for (void* value = ListNext(nodes); value != nullptr; value = ListNext(nodes)) {
    GridCdRecord* record = FindDisplacementSystem(gridCdTable, static_cast<MeshNode*>(value));
    if (record != nullptr) {
      record->used = 1;
      return record->cdId;
    }
    systemId = 0;
  }
  return systemId;
}

void MarkDisplacementSystems(HashTable* gridCdTable, PooledList* nodes) {
  WalkList<MeshNode>(nodes, [&](const MeshNode* node) {
    GridCdRecord* record = FindDisplacementSystem(gridCdTable, node);
    if (record != nullptr) {
      record->used = 1;
    }
  });
}

/// What is the same for all groups.
struct SpcStage {
  MeshModel* model;
  BoundaryStore* boundary;
  HashTable* gridCdTable;
  CurveStore* curves;
  ListCellPool cells;
  std::int32_t suffix = 1;  ///< Next number behind a name that is taken.
};

/// The records of one set and component number, on their way into one constraint.
struct SpcGroupValues {
  double values[componentCount] = {};
  double flags[componentCount] = {};
  Masks masks;
};

/// Takes a record over. Required: what it does not name keeps the value of the record before.
void Accumulate(const SpcRecord& record, SpcGroupValues* group) {
  for (std::size_t component = 0; component < componentCount; ++component) {
    if (record.dofFlag[component] != 0) {
      group->masks.Set(component);
      group->values[component] = record.dofValue[component];
      group->flags[component] = 1.0;
    }
  }
}

void FillRow(double* row, const MeshNode* node, const double (&values)[componentCount]) {
  if (node != nullptr) {
    std::copy(node->position, node->position + 3, row);
  }
  std::copy(values, values + componentCount, row + 3);
}

bool HaveDifferentValues(const HeapArray<double>& rows) {
  for (std::size_t row = rowLength; row < rows.size(); row += rowLength) {
    if (!std::equal(rows.begin() + row + 3, rows.begin() + row + rowLength, rows.begin() + 3)) {
      return true;
    }
  }
  return false;
}

/// A field of the rows, or null when the host refused it.
Field* CreateValueField(SpcStage* stage, HeapArray<double>* rows, std::int32_t nodeCount) {
  Field* field = nullptr;
  stage->curves->CreateField(&field);
  if (field == nullptr) {
    return nullptr;
  }
  PooledList list;
  ListInit(&list, &stage->cells);
  for (std::size_t row = 0; row < rows->size(); row += rowLength) {
    ListAppend(&list, &(*rows)[row]);
  }
  field->SetQuantity(L"Displacement");
  field->SetColumnCount(rowLength);
  field->SetRowCount(nodeCount);
  field->SetRows(&list);
  ListClear(&list);
  return field;
}

/// "Node_Constraint_7", with the stage's suffix behind it when a constraint has that name.
void FormatConstraintName(SpcStage* stage, wchar_t (&name)[512], bool plain, std::int32_t setId) {
  FormatNumbered(name, std::size(name), plain ? "Node_Constraint_" : "EnforcedConstraint_", setId);
  Entity* taken = nullptr;
  stage->boundary->FindEntity(name, &taken, 0, entityConstraint);
  if (taken != nullptr) {
    wchar_t base[512];
    std::copy(std::begin(name), std::end(name), base);
    FormatSuffixed(name, std::size(name), base, stage->suffix++);
  }
}

void FillConstraint(SpcStage* stage, Constraint* constraint, const SpcGroupValues& group, const double (&values)[componentCount],
                    PooledList* nodes, const wchar_t* name, Field* field) {
  const std::int32_t systemId = TakeDisplacementSystem(stage->gridCdTable, nodes, 0);
  constraint->SetTranslationMask(group.masks.translation);
  constraint->SetRotationMask(group.masks.rotation);
  constraint->SetTranslations(values[0], values[1], values[2]);
  constraint->SetRotations(values[3], values[4], values[5]);
  constraint->SetNodes(nodes);
  constraint->SetNodeBased(1);
  constraint->SetCoordinateSystem(systemId);
  if (systemId > 0) {
    MarkDisplacementSystems(stage->gridCdTable, nodes);
  }
  constraint->SetName(name);
  if (field != nullptr) {
    constraint->SetField(field, 0);
  }
}

void CreateGroupConstraint(SpcStage* stage, const SpcRecord& first, const SpcGroupValues& group, PooledList* nodes,
                           HeapArray<double>* rows) {
  Field* field = HaveDifferentValues(*rows) ? CreateValueField(stage, rows, nodes->size) : nullptr;
  const bool allZero = std::all_of(std::begin(group.values), std::end(group.values), [](double value) { return value == 0.0; });
  const bool plain = first.isSpc != 0 && field == nullptr && allZero;
  wchar_t name[512];
  FormatConstraintName(stage, name, plain, first.setId);
  Constraint* constraint = nullptr;
  if (stage->boundary->CreateConstraint(&constraint, plain ? 0 : 1) != 0 || constraint == nullptr) {
    return;
  }
  constexpr double none[componentCount] = {};
  FillConstraint(stage, constraint, group, plain ? group.flags : (field != nullptr ? none : group.values), nodes, name, field);
  AddToLoadSet(first.setId, plain ? constraintSet : loadSet, constraint);
}

/// The group of records whose first is at `cell`.
void CreateGroup(SpcStage* stage, const IndexedCell* cell) {
  const auto& first = *static_cast<const SpcRecord*>(cell->record);
  std::size_t count = 0;
  for (const IndexedCell* member = cell; member != nullptr; member = member->nextOfId) {
    ++count;
  }
  HeapArray<double> rows(count * rowLength);
  if (rows.size() == 0) {
    return;
  }
  PooledList nodes;
  ListInit(&nodes, &stage->cells);
  SpcGroupValues group;
  double* row = rows.begin();
  for (const IndexedCell* member = cell; member != nullptr; member = member->nextOfId, row += rowLength) {
    const auto& record = *static_cast<const SpcRecord*>(member->record);
    MeshNode* node = nullptr;
    stage->model->GetNode(record.nodeId, &node);
    if (node != nullptr) {
      ListAppend(&nodes, node);
    }
    Accumulate(record, &group);
    FillRow(row, node, group.values);
  }
  if (nodes.size != 0) {
    CreateGroupConstraint(stage, first, group, &nodes, &rows);
  }
  ListClear(&nodes);
}

}  // namespace

void CreateSpcConstraints(MeshModel* model, BoundaryStore* boundary, const IndexedList* spcList, HashTable* gridCdTable,
                          CurveStore* curves) {
  // By set and components, each group is found in the order of the list, as by a walk for each record that is not in a group yet.
  IndexedList groups;
  IndexedListInit(&groups);
  const auto groupId = [](const SpcRecord* record) { return PairId(record->setId, record->components); };
  WalkIndexedList<SpcRecord>(spcList, [&](SpcRecord* record) { IndexedListAppend(&groups, groupId(record), record); });
  SpcStage stage{model, boundary, gridCdTable, curves, {}};
  ListCellPoolInit(&stage.cells);
  WalkIndexedList<SpcRecord>(spcList, [&](const SpcRecord* record) {
    const IndexedCell* cell = IndexedListFind(&groups, groupId(record));
    if (cell != nullptr && cell->record == record) {
      CreateGroup(&stage, cell);
    }
  });
  ListCellPoolReset(&stage.cells);
  IndexedListClear(&groups);
}

void CreateSpc1Constraints(BoundaryStore* boundary, const IndexedList* spc1List, HashTable* gridCdTable) {
  std::int32_t number = 1;
  std::int32_t systemId = 0;
  for (const IndexedCell* cell = spc1List->first; cell != nullptr; cell = cell->next) {
    auto* record = static_cast<Spc1Record*>(cell->record);
    // Required: without a node the system of the record before stays.
    systemId = TakeDisplacementSystem(gridCdTable, &record->nodes, systemId);
    Constraint* constraint = nullptr;
    if (boundary->CreateConstraint(&constraint, 0) != 0 || constraint == nullptr) {
      return;
    }
    Masks masks;
    double flags[componentCount] = {};
    for (std::size_t component = 0; component < componentCount; ++component) {
      if (record->dofFlag[component] != 0) {
        masks.Set(component);
        flags[component] = 1.0;
      }
    }
    constraint->SetTranslationMask(masks.translation);
    constraint->SetRotationMask(masks.rotation);
    constraint->SetTranslations(flags[0], flags[1], flags[2]);
    constraint->SetRotations(flags[3], flags[4], flags[5]);
    constraint->SetNodes(&record->nodes);
    constraint->SetNodeBased(1);
    constraint->SetCoordinateSystem(systemId);
    wchar_t name[32];
    FormatNumbered(name, std::size(name), "Node Constraint", number++);
    constraint->SetName(name);
    if (systemId > 0) {
      MarkDisplacementSystems(gridCdTable, &record->nodes);
    }
    AddToLoadSet(record->setId, constraintSet, constraint);
  }
}

}  // namespace btz
