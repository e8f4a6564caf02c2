// The table through which everything created for a set id reaches the load cases.
#pragma once

#include "host/host_interfaces.h"
#include "support/indexed_list.h"

namespace btz {

/// What a load set record holds.
enum LoadSetKind : std::int32_t {
  loadSet = 0,         ///< Forces, pressures, enforced constraints and other loads.
  constraintSet = 1,   ///< Plain constraints.
  multiPointSet = 2,   ///< Multi-point constraints.
  excitationSet = 3,   ///< Excitation loads.
  temperatureSet = 4,  ///< Temperature loads.
  pretensionSet = 5,   ///< Pretension entities.
  namedSet = 6         ///< Named sets and surfaces.
};

/// The host entities of one set id and kind. Heap block, held by LoadSetTable.
struct LoadSetRecord {
  std::int32_t setId;
  std::int32_t kind;  ///< LoadSetKind.
  PooledList items;   ///< Entity, in order of creation.
};

inline IndexedList LoadSetTable;  ///< LoadSetRecord by set id and kind.

/// The record of a set, or null.
LoadSetRecord* FindLoadSet(std::int32_t setId, LoadSetKind kind);

/// Files an entity under a set, which is made if it does not exist. A negative set id files nothing.
void AddToLoadSet(std::int32_t setId, LoadSetKind kind, Entity* entity);

/// Frees a LoadSetRecord with its list. The entities are the host's.
void FreeLoadSetRecord(void* record);

}  // namespace btz
