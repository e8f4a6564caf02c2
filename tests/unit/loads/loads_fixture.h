// Cards of constraints and body loads read into the lists of a run, and what the in-memory host is told of them.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "loads/constraint_stages.h"
#include "loads/constraints.h"
#include "loads/load_sets.h"
#include "mesh/nodes.h"
#include "tests/unit/deck/columns.h"
#include "tests/unit/deck/deck_text.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {

/// A record in words: "set 1 node 5 SPC 123 [0 0 0 - - -]", with the values of the components that are named.
inline std::string TextOf(const SpcRecord& record) {
  std::string text = "set " + std::to_string(record.setId) + " node " + std::to_string(record.nodeId) +
                     (record.isSpc == 1 ? " SPC " : " SPCD ") + std::to_string(record.components) + " [";
  for (std::size_t i = 0; i < componentCount; ++i) {
    char value[32];
    std::snprintf(value, sizeof(value), "%g", record.dofValue[i]);
    // A component that is not named has no value.
    const std::string shown = record.dofFlag[i] == 1 ? value : (record.dofFlag[i] == 0 && record.dofValue[i] == 0.0 ? "-" : "wrong");
    text += (i == 0 ? "" : " ") + shown;
  }
  return text + "]";
}

/// The nodes of a list, in the order in which they stand; 0 for null.
inline std::vector<std::int32_t> NodeIds(const PooledList& list) {
  std::vector<std::int32_t> ids;
  for (const ListCell* cell = list.next; cell != reinterpret_cast<const ListCell*>(&list); cell = cell->next) {
    const auto* node = static_cast<const MeshNode*>(cell->value);
    ids.push_back(node == nullptr ? 0 : node->id);
  }
  return ids;
}

class LoadsTest : public MeshTest {
 protected:
  using MeshTest::MeshTest;

  /// The calls since the last question that have `part` in them.
  std::vector<std::string> CallsWith(std::string_view part) {
    std::vector<std::string> found;
    for (const std::string& call : Calls()) {
      if (call.find(part) != std::string::npos) {
        found.push_back(call);
      }
    }
    return found;
  }

  /// Makes a node without a trace.
  void MakeNode(std::int32_t id, double x = 0.0, double y = 0.0, double z = 0.0) {
    const std::string before = trace;
    const double position[3] = {x, y, z};
    model->CreateNode(id, position, 0);
    NoteNodeId(id);
    trace = before;
  }

  /// Gives a node a displacement system.
  GridCdRecord* GiveSystem(std::int32_t nodeId, std::int32_t systemId) {
    auto* record = static_cast<GridCdRecord*>(AllocateZeroed(sizeof(GridCdRecord)));
    *record = {nodeId, systemId, 0};
    EXPECT_EQ(HashInsert(&run.gridCdTable, record), 1);
    return record;
  }

  /// Reads the SPC or SPCD card at the start of a text; returns what stands at the cursor afterwards.
  std::string ReadSpc(std::string_view text) {
    CardText card(text);
    ReadSpcCard(&card.cursor, &run.lists.spc);
    return card.Rest();
  }

  /// Reads the SPC1 card at the start of a text; returns what stands at the cursor afterwards.
  std::string ReadSpc1(std::string_view text) {
    CardText card(text);
    ReadSpc1Card(model, &card.cursor, &run.lists.spc1);
    return card.Rest();
  }

  /// The records of SPC and SPCD cards, in the order of their list.
  std::vector<std::string> SpcRecords() const {
    std::vector<std::string> records;
    WalkIndexedList<SpcRecord>(&run.lists.spc, [&](const SpcRecord* record) { records.push_back(TextOf(*record)); });
    return records;
  }

  std::vector<const Spc1Record*> Spc1Records() const {
    std::vector<const Spc1Record*> records;
    WalkIndexedList<Spc1Record>(&run.lists.spc1, [&](const Spc1Record* record) { records.push_back(record); });
    return records;
  }

  /// The value kept for a node; "none" without one.
  static std::string EnforcedValue(std::int32_t nodeId) {
    const IndexedCell* cell = IndexedListFind(&NodeEnforcedValueTable, nodeId);
    return cell == nullptr ? "none" : std::to_string(static_cast<const NodeEnforcedValue*>(cell->record)->value);
  }

  /// What is filed under a set: "Constraint 1" is the first constraint that the host made.
  std::vector<std::string> SetItems(std::int32_t setId, LoadSetKind kind) const {
    std::vector<std::string> items;
    LoadSetRecord* record = FindLoadSet(setId, kind);
    if (record == nullptr) {
      return {"no set"};
    }
    WalkList<Entity>(&record->items, [&](const Entity* item) { items.push_back(NameOf(item)); });
    return items;
  }

  BoundaryStore* boundary = host.GetBoundaryStore();

 private:
  std::string NameOf(const Entity* item) const {
    const auto find = [&](const auto& made, const char* kind) {
      for (std::size_t i = 0; i < made.size(); ++i) {
        if (static_cast<const Entity*>(&made[i]) == item) {
          return kind + std::to_string(i + 1);
        }
      }
      return std::string();
    };
    const std::string constraint = find(host.Boundary().constraints, "Constraint ");
    return constraint.empty() ? find(host.Boundary().bodyLoads, "BodyLoad ") : constraint;
  }
};

}  // namespace btz::test
