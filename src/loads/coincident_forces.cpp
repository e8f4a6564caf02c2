#include "loads/coincident_forces.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

#include "loads/load_sets.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

std::size_t LengthOf(const IndexedCell* chain) {
  std::size_t length = 0;
  for (; chain != nullptr; chain = chain->nextOfId) {
    ++length;
  }
  return length;
}

/// Mixes a number into an index key; numbers that compare equal mix equally.
std::int64_t Mix(std::int64_t key, double value) {
  const double normal = value == 0.0 ? 0.0 : value;
  std::uint64_t bits = 0;
  std::memcpy(&bits, &normal, sizeof(bits));
  const std::uint64_t mixed = (static_cast<std::uint64_t>(key) ^ bits) * 0xD6E8FEB86659FD93u;
  return static_cast<std::int64_t>(mixed ^ (mixed >> 32));
}

double Distance(const MeshNode& a, const MeshNode& b) {
  const double x = a.position[0] - b.position[0];
  const double y = a.position[1] - b.position[1];
  const double z = a.position[2] - b.position[2];
  return std::sqrt(x * x + y * y + z * z);
}

/// Key that all nodes at a distance of exactly 0.0 share. Coordinates so small that the squares of their differences vanish count as 0; all others
/// must be equal.
std::int64_t PlaceKey(const MeshNode& node) {
  constexpr double vanishing = 1e-140;
  std::int64_t key = 0;
  for (double coordinate : node.position) {
    key = Mix(key, std::fabs(coordinate) < vanishing ? 0.0 : coordinate);
  }
  return key;
}

bool HasCoincidentNodes(const ForceGroup& group) {
  IndexedList places;
  IndexedListInit(&places);
  bool found = false;
  for (ForceNodeRecord* node : group) {
    const std::int64_t key = PlaceKey(*node->node);
    for (const IndexedCell* cell = IndexedListFind(&places, key); cell != nullptr && !found; cell = cell->nextOfId) {
      found = Distance(*node->node, *static_cast<const ForceNodeRecord*>(cell->record)->node) == 0.0;
    }
    if (found) {
      break;
    }
    IndexedListAppend(&places, key, node);
  }
  IndexedListClear(&places);
  return found;
}

std::int64_t LoadKey(const ForceNodeRecord& node) {
  std::int64_t key = 0;
  for (double component : node.force) {
    key = Mix(key, component);
  }
  for (double component : node.moment) {
    key = Mix(key, component);
  }
  return key;
}

bool HaveEqualLoads(const ForceNodeRecord& a, const ForceNodeRecord& b) {
  return std::equal(std::begin(a.force), std::end(a.force), b.force) && std::equal(std::begin(a.moment), std::end(a.moment), b.moment);
}

void CreateForceOfRun(BoundaryStore* boundary, const ForceNodeRecord& pattern, PooledList* run, std::int32_t csId, std::int32_t* number,
                      std::int32_t setId) {
  ForceLoad* force = nullptr;
  std::int32_t id = 0;
  if (boundary->CreateForce(&force, &id) != 0 || force == nullptr) {
    return;
  }
  force->SetNodeBased(1);
  force->SetForce(pattern.force[0], pattern.force[1], pattern.force[2]);
  force->SetMoment(pattern.moment[0], pattern.moment[1], pattern.moment[2]);
  force->SetCoordinateSystem(csId);
  force->SetNodes(run);
  wchar_t name[32];
  FormatPointForce(name, std::size(name), number);
  force->SetName(name);
  AddToLoadSet(setId, loadSet, force);
}

/// Collects the nodes that share the load of `pattern`, itself included, in order. Marks them as grouped.
void CollectRun(const IndexedList& byLoad, const ForceNodeRecord& pattern, PooledList* run) {
  for (const IndexedCell* cell = IndexedListFind(&byLoad, LoadKey(pattern)); cell != nullptr; cell = cell->nextOfId) {
    auto* node = static_cast<ForceNodeRecord*>(cell->record);
    if (node == &pattern || HaveEqualLoads(*node, pattern)) {
      node->isGrouped = 1;
      ListAppend(run, node->node);
    }
  }
}

}  // namespace

ForceGroup::ForceGroup(const IndexedCell* chain) : nodes_(LengthOf(chain)), size_(nodes_.size()) {
  for (std::size_t i = 0; i < size_; ++i, chain = chain->nextOfId) {
    nodes_[i] = static_cast<ForceNodeRecord*>(chain->record);
  }
}

void FormatPointForce(wchar_t* dest, std::size_t capacity, std::int32_t* number) {
  FormatNumbered(dest, capacity, "PointForce", (*number)++);
}

void FormatPointForce(char* dest, std::size_t capacity, std::int32_t* number) { FormatNumbered(dest, capacity, "PointForce", (*number)++); }

void SplitCoincidentForces(BoundaryStore* boundary, ForceGroup* group, std::int32_t csId, std::int32_t* pointForceNumber,
                           std::int32_t setId) {
  if (!HasCoincidentNodes(*group)) {
    return;
  }
  // By load, the nodes of a run are found in the order of the group, as by a search of the whole group for each load.
  IndexedList byLoad;
  IndexedListInit(&byLoad);
  for (ForceNodeRecord* node : *group) {
    IndexedListAppend(&byLoad, LoadKey(*node), node);
  }
  ListCellPool cells;
  ListCellPoolInit(&cells);
  PooledList run;
  ListInit(&run, &cells);
  group->Filter([&](ForceNodeRecord* node) {
    if (node->isGrouped != 0) {
      return false;
    }
    CollectRun(byLoad, *node, &run);
    const bool alone = run.size == 1;
    if (!alone) {
      CreateForceOfRun(boundary, *node, &run, csId, pointForceNumber, setId);
    }
    ListClear(&run);
    return alone;
  });
  ListCellPoolReset(&cells);
  IndexedListClear(&byLoad);
}

}  // namespace btz
