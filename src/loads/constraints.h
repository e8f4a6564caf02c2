// Single-point constraints: `SPC`, `SPCD` and `SPC1`. The readers only collect records, because a constraint's grouping and coordinate system
// need the whole deck; the stages behind the loads turn groups of records into host constraints.
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"
#include "support/indexed_list.h"

namespace btz {

/// Components of a node: three translations and three rotations.
inline constexpr std::size_t componentCount = 6;

/// What the `SPC` and `SPCD` cards of one set say of one node. Heap block, held by the run's SpcList.
struct SpcRecord {
  std::int32_t setId;
  std::int32_t nodeId;
  std::int32_t components;               ///< Decimal digits 1 to 6, as the card has them; rebuilt in ascending order when cards merge.
  std::int32_t dofFlag[componentCount];  ///< 1 where the digit was named.
  double dofValue[componentCount];       ///< Enforced value, deck units.
  std::uint8_t isSpc;                    ///< 1 for SPC, 0 for SPCD.
};

/// The nodes of all `SPC1` cards of one set and component number. Heap block, held by the run's Spc1List.
struct Spc1Record {
  std::int32_t setId;
  std::int32_t components;
  std::int32_t dofFlag[componentCount];
  PooledList nodes;  ///< MeshNode, in order of the cards; null for a node that the host does not have.
};

/// The first value enforced at a node. Heap block, held by NodeEnforcedValueTable.
struct NodeEnforcedValue {
  std::int32_t nodeId;
  double value;
};

inline IndexedList NodeEnforcedValueTable;  ///< NodeEnforcedValue by node id.

/// Keeps the first value for a node; a later one changes nothing.
void EnterNodeEnforcedValue(std::int32_t nodeId, double value);

/// Reads the `SPC` or `SPCD` card at the cursor into `spcList`, the newest record first (SpcRecord by set and node). Records of one node and set
/// merge. Only the fixed forms are read: of any other, and of a line with an equals sign, the keyword is stepped over.
void ReadSpcCard(CardCursor* cursor, IndexedList* spcList);

/// Reads the `SPC1` card at the cursor into `spc1List`, the newest record first (Spc1Record by set and components). Of a
/// THRU range of more than ten million ids only nodes of the model are taken behind these, up to the highest.
/// Required: of a card that lists several nodes only the first is taken.
void ReadSpc1Card(MeshModel* model, CardCursor* cursor, IndexedList* spc1List);

/// Frees a Spc1Record with its list. The nodes are the host's.
void FreeSpc1Record(void* record);

}  // namespace btz
