// Springs: `CELAS1` and `CELAS2` cards make no mesh elements. They are grouped, the first kind by property, the second by node pair and then by
// equal stiffness, so that one host entity can hold many pairs.
#pragma once

#include <btz/containers.h>

namespace btz {

/// `CELAS1` cards of one property. Heap block, held by SpringPropertyTable under its second field.
struct Celas1Group {
  std::int32_t elementId;        ///< Of the first card; it goes into the name.
  std::int32_t propertyId;       ///< Key.
  std::int32_t translationMask;  ///< Bits 0 to 2: component 1 to 3 at the first end; bits 3 to 5: at the second.
  std::int32_t rotationMask;     ///< Likewise for components 4 to 6.
  double stiffness;              ///< 0 for this card.
  PooledList* nodesA;            ///< MeshNode at the first ends.
  PooledList* nodesB;            ///< MeshNode at the second ends.
};

/// `CELAS2` cards between two nodes. Heap block, held by SpringPairTable.
struct Celas2Record {
  double stiffness[6];  ///< By component 1 to 6.
  std::int32_t node1;
  std::int32_t node2;
  std::int32_t translationMask;
  std::int32_t rotationMask;
  std::int32_t elementId;  ///< Of the card that made the record.
};

/// `CELAS2` pairs that become one entity. Heap block, held by BushInstanceTable.
struct Celas2Group : Celas2Record {
  PooledList* nodesA;
  PooledList* nodesB;
  std::uint8_t sealed;  ///< 1: takes no further pairs.
};

inline HashTable SpringPropertyTable;       ///< Celas1Group by property id.
inline HashTable SpringPairTable;           ///< Celas2Record by node pair.
inline HashTable BushInstanceTable;         ///< Celas2Group by masks and stiffness.
inline HashTable SpringPropertyValueTable;  ///< Three int32 (property, first and second node) of each `CELAS1` pair seen.

// Callbacks on a Celas2Record or Celas2Group.
std::int32_t HashNodePairMin(const void* record, void* userData);     ///< The lower of the two node ids.
std::int32_t HashNodeSum(const void* record, void* userData);         ///< Sum of the two node ids; -1 for null.
std::int32_t HashMaskSum(const void* record, void* userData);         ///< Sum of the two masks; -1 for null.
std::int32_t CompareNodePair(const void* stored, const void* other);  ///< Same nodes in the same order.
/// On two Celas2Group: equal unless either is sealed, if both pairs of masks share a bit or all six stiffnesses agree.
std::int32_t CompareSpringRecords(const void* stored, const void* other);

}  // namespace btz
