#include "mesh/host_keys.h"

#include "host/host_interfaces.h"
#include "mesh/element_topology.h"

namespace btz {

namespace {

const MeshElement& AsFace(const void* record) { return *static_cast<const MeshElement*>(record); }

std::int32_t CornerCount(const MeshElement& face) { return face.nodes == nullptr ? 0 : TopologyOf(ElementCornerCount, face.typeIndex); }

/// Id of a corner; 0 for one that is absent.
std::int32_t CornerId(const MeshElement& face, std::int32_t corner) {
  const MeshNode* node = face.nodes[corner];
  return node == nullptr ? 0 : node->id;
}

std::int32_t CountOccurrences(const MeshElement& face, std::int32_t id) {
  std::int32_t count = 0;
  for (std::int32_t corner = 0; corner < CornerCount(face); ++corner) {
    count += CornerId(face, corner) == id ? 1 : 0;
  }
  return count;
}

std::int32_t Negated(std::int32_t value) { return static_cast<std::int32_t>(0u - static_cast<std::uint32_t>(value)); }

}  // namespace

std::int32_t HashHostObjectId(const void* part, void* /*userData*/) {
  // Asking a part for its id changes nothing in it, though the interface can't say so.
  const std::int32_t id = static_cast<MeshPart*>(const_cast<void*>(part))->GetId();
  return id < 1 ? Negated(id) : id;
}

std::int32_t HashFaceNodes(const void* face, void* /*userData*/) {
  const MeshElement& record = AsFace(face);
  const std::int32_t corners = CornerCount(record);
  std::int32_t key = corners == 0 ? 0 : CornerId(record, 0);
  for (std::int32_t corner = 0; corner < corners; ++corner) {
    const std::int32_t id = CornerId(record, corner);
    if (id > 0 && id < key) {
      key = id;
    } else if (id < 0 && Negated(id) > key) {
      key = Negated(id);
    }
  }
  return key;
}

std::int32_t CompareFaceNodes(const void* stored, const void* other) {
  const MeshElement& a = AsFace(stored);
  const MeshElement& b = AsFace(other);
  const std::int32_t corners = CornerCount(a);
  if (corners < 1 || corners != CornerCount(b)) {
    return 1;
  }
  std::int32_t occurrences = 0;
  for (std::int32_t corner = 0; corner < corners; ++corner) {
    occurrences = CountOccurrences(b, CornerId(a, corner));
    if (occurrences == 0) {
      return 1;
    }
  }
  return occurrences == 1 ? 0 : 1;
}

}  // namespace btz
