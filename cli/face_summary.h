// How much of the model's surface a load or a set covers: the faces of its parts, and their area.
#pragma once

#include <cstddef>
#include <unordered_map>

namespace btz {
class MeshPart;
}

namespace btz::memory {
class MemoryHost;
class MemoryFace;
class OwnedList;
}  // namespace btz::memory

namespace btz::cli {

/// Shells and sides of solids.
struct FaceSummary {
  std::size_t parts = 0;  ///< Parts that hold them.
  std::size_t faces = 0;
  double area = 0.0;  ///< Between the corners, in deck units.
};

/// Measures lists of parts of one host.
class FaceMeter {
 public:
  explicit FaceMeter(const memory::MemoryHost& host);

  /// The faces in the parts of a list; each part counts as often as it stands there. Parts without a mesh of their own count as parts only.
  FaceSummary Measure(const memory::OwnedList& parts) const;

 private:
  std::unordered_map<const MeshPart*, const memory::MemoryFace*> faceOf_;
};

}  // namespace btz::cli
