// Nodes and elements as the in-memory host keeps them: the shared records with what the host remembers behind them.
#pragma once

#include <btz/host_records.h>

#include "memory_host/arena.h"

namespace btz::memory {

class MemoryBody;

struct MemoryNode : MeshNode {
  double created[3];    ///< Coordinates at creation, to tell which nodes were moved.
  std::int32_t index;   ///< Order of creation from 0.
  std::uint32_t visit;  ///< Number of the last walk that met the node. The shared `mark` is the translator's.
};

/// An element, or a face record that the host made for a side of a solid.
struct MemoryElement : MeshElement {
  std::int32_t nodeCount;  ///< Entries of `nodes`.
  MemoryElement* solid;    ///< Of a face record: the solid; else null.
  std::int32_t side;       ///< Of a face record: the side of the solid.
  MemoryBody* body;        ///< Body for which it was made.
};

/// All mesh records of one host, in order of creation.
struct MeshRecords {
  Arena<MemoryNode> nodes;
  Arena<MemoryElement> elements;     ///< Both registers.
  Arena<MemoryElement> faceRecords;  ///< Faces of solids.
  ArrayArena<MeshNode*> nodeArrays;
  ArrayArena<MeshElement*> faceArrays;

  bool OwnsNode(const void* node) const { return nodes.Owns(node); }
  bool OwnsElement(const void* element) const { return elements.Owns(element) || faceRecords.Owns(element); }

  std::uint32_t lastVisit = 0;  ///< Number of the last walk over nodes.
};

}  // namespace btz::memory
