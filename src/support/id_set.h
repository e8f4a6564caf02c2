// A set of ids that keeps the order of a hash table which, once it holds more than 100 ids, is rebuilt before each insertion with as many buckets as
// it holds. Such a table can't degrade, but rebuilding it costs more than all else; here its order is worked out once, when it is asked for.
#pragma once

#include <cstdint>

#include "support/heap_array.h"
#include "support/indexed_list.h"

namespace btz {

struct IdSet {
  bool isOpen;             ///< A set that nobody asked for takes no ids.
  std::int32_t rebuiltAt;  ///< Number of ids at the table's last rebuilding, 0 before the first.
  IndexedList ids;         ///< In the order of insertion, without records.
};

/// Makes an uninitialised set empty. It takes no ids yet.
void IdSetInit(IdSet* set);

/// Empties the set and lets it take ids.
void IdSetOpen(IdSet* set);

/// Adds an id. Nothing happens for one that the set holds, for a negative one, and in a set that is not open.
void IdSetInsert(IdSet* set, std::int32_t id);

inline std::size_t IdSetCount(const IdSet* set) { return static_cast<std::size_t>(set->ids.size); }

/// Fills `order`, which has IdSetCount entries, with the ids in the table's order.
void IdSetOrder(const IdSet* set, HeapArray<std::int32_t>* order);

/// Releases the set's memory. It is empty and takes no ids.
void IdSetClear(IdSet* set);

/// Calls `visit(id)` for each id in the table's order.
template <typename Visit>
void WalkIdSet(const IdSet* set, Visit visit) {
  HeapArray<std::int32_t> order(IdSetCount(set));
  IdSetOrder(set, &order);
  for (const std::int32_t id : order) {
    visit(id);
  }
}

}  // namespace btz
