// Bolts with a preload: `PRETENS`, `PTADJST`, `PTFORCE` and `PTADD`.
#pragma once

#include "host/host_interfaces.h"

namespace btz {

/// A bolt and where it is cut. Heap block, held by PretensionTable.
struct PretensionRecord {
  std::int32_t boltId;
  std::int32_t targetId;  ///< Surface, or element when isElement is 1.
  std::int32_t isElement;
  MeshPart* cutPart;  ///< Faces that a surface card had made; null if there are none.
};

/// What a subcase does to a bolt. Heap block, held by the bolt's table of steps.
struct BoltStep {
  std::int32_t caseId;  ///< The subcase's pretension id.
  std::uint8_t forceGiven;
  std::uint8_t adjustGiven;
  double forceValue;
  double adjustValue;
};

/// One bolt, or a group of bolts that behave alike. Heap block, held by PretensionBoltList.
struct BoltRecord {
  std::uint8_t merged;  ///< 1 for the head of a group.
  MeshPart* part;       ///< The bolt's own cut part.
  PooledList* parts;    ///< Parts of the group.
  HashTable steps;      ///< BoltStep by case id.
  ForceLoad* forceEntity;
  Constraint* constraintEntity;
};

inline HashTable PretensionTable;        ///< PretensionRecord by bolt id.
inline HashTable PretensionAdjustTable;  ///< Forces and adjustments by set id, the third field of the record.
inline PooledList PretensionBoltList;    ///< BoltRecord.

/// Adds the entities of all bolts that have a step for `pretensionId` to the load case, with the step's values. An AddBolts of the load cases.
void AddBoltsToCase(LoadCase* loadCase, std::int32_t pretensionId);

}  // namespace btz
