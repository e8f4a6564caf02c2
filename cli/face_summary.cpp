#include "cli/face_summary.h"

#include <array>
#include <cmath>

#include "memory_host/element_shapes.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

namespace {

using Vector = std::array<double, 3>;

Vector Difference(const MeshNode& from, const MeshNode& to) {
  return {to.position[0] - from.position[0], to.position[1] - from.position[1], to.position[2] - from.position[2]};
}

/// Length of the cross product.
double CrossLength(const Vector& a, const Vector& b) {
  return std::hypot(a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]);
}

/// Half the cross product of two edges, of a quadrilateral of its diagonals: exact when it is flat. 0 when a corner is missing.
double AreaOf(const MeshElement& face) {
  const std::int32_t corners = memory::IsShellType(face.typeIndex) ? memory::CornerCount(face.typeIndex) : 0;
  for (std::int32_t i = 0; i < corners; ++i) {
    if (face.nodes[i] == nullptr) {
      return 0.0;
    }
  }
  switch (corners) {
    case 3:
      return 0.5 * CrossLength(Difference(*face.nodes[0], *face.nodes[1]), Difference(*face.nodes[0], *face.nodes[2]));
    case 4:
      return 0.5 * CrossLength(Difference(*face.nodes[0], *face.nodes[2]), Difference(*face.nodes[1], *face.nodes[3]));
    default:
      return 0.0;
  }
}

}  // namespace

FaceMeter::FaceMeter(const memory::MemoryHost& host) {
  for (const memory::MemoryFace& face : host.Model().faces) {
    faceOf_.emplace(&face, &face);
  }
}

FaceSummary FaceMeter::Measure(const memory::OwnedList& parts) const {
  FaceSummary summary;
  for (const MeshPart* part : parts.As<MeshPart>()) {
    ++summary.parts;
    const auto found = faceOf_.find(part);
    if (found == faceOf_.end()) {
      continue;
    }
    for (const MeshElement* element : found->second->mesh.elements.As<MeshElement>()) {
      ++summary.faces;
      summary.area += AreaOf(*element);
    }
  }
  return summary;
}

}  // namespace btz::cli
