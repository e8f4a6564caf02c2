// Forces at coincident nodes. A field addresses its values by position, and two nodes at one point can't hold two values in it, so a group with
// coincident nodes is taken apart by value: nodes that share a load get a force of their own.
#pragma once

#include "loads/forces.h"
#include "support/heap_array.h"

namespace btz {

/// Nodes of one set and coordinate system, in the order of the set's table.
class ForceGroup {
 public:
  /// The records of a chain of an index by system.
  explicit ForceGroup(const IndexedCell* chain);

  std::size_t size() const { return size_; }
  ForceNodeRecord* operator[](std::size_t index) const { return nodes_[index]; }
  ForceNodeRecord* const* begin() const { return nodes_.begin(); }
  ForceNodeRecord* const* end() const { return nodes_.begin() + size_; }

  /// Keeps the nodes for which `keeps(node)` holds, in their order.
  template <typename Keeps>
  void Filter(Keeps keeps) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < size_; ++i) {
      if (keeps(nodes_[i])) {
        nodes_[kept++] = nodes_[i];
      }
    }
    size_ = kept;
  }

 private:
  HeapArray<ForceNodeRecord*> nodes_;
  std::size_t size_;
};

/// Writes "PointForce" and `*number` into `dest` and raises the number.
void FormatPointForce(wchar_t* dest, std::size_t capacity, std::int32_t* number);
void FormatPointForce(char* dest, std::size_t capacity, std::int32_t* number);

/// When two nodes of the group coincide, makes a host force of each run of two or more nodes with the same load and takes them out of the group.
/// Otherwise nothing happens.
void SplitCoincidentForces(BoundaryStore* boundary, ForceGroup* group, std::int32_t csId, std::int32_t* pointForceNumber,
                           std::int32_t setId);

}  // namespace btz
