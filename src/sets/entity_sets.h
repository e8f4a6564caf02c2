// Sets of nodes and elements: `SET` cards in two forms. The case control form is a list of numbers, each tried as a node and as an element; the bulk form
// says on its first line what its numbers are. Either way the host's sets are filed under the card's id.
#pragma once

#include "deck/deck_buffer.h"
#include "host/host_interfaces.h"

namespace btz {

/// What a host's set holds, as EntitySet::SetKind takes it.
enum SetKind : std::int32_t {
  nodeSet = 0,
  shellSet = 1,         ///< Shells and other elements that are no solids.
  partSet = 2,          ///< Parts: surfaces.
  solidSet = 3,         ///< Elements, at least one of them a solid.
  rigidElementSet = 4,  ///< Rigid elements.
};

/// What kind of member a host's set has, as EntitySet::SetMemberType takes it.
enum SetMemberType : std::int32_t { partMembers = 2, nodeMembers = 5, elementMembers = 6 };

/// Reads a `SET id = list` card at the cursor. Numbers and ranges (`5 THRU 9`) are separated by commas and may go on over lines and chunks. A set of nodes
/// is made when all numbers are nodes, sets of elements when all are elements; they are named `name`, or with "_1" behind it when the host has a
/// set of that kind and name.
void ReadSetListCard(DeckBuffer* file, MeshModel* model, BoundaryStore* boundary, const char* name);

/// Reads a `SET` card at the cursor whose first line says GRID or ELEM; its ids stand in the fields of the lines below. Ids that do not exist are left
/// out. The set bears the name that a comment gives it, or `name`.
void ReadSetGroupCard(DeckBuffer* file, MeshModel* model, BoundaryStore* boundary, const char* name);

}  // namespace btz
