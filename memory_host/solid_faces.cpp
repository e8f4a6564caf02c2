#include "memory_host/solid_faces.h"

#include <algorithm>
#include <array>

#include "memory_host/element_shapes.h"
#include "memory_host/mesh_model.h"

namespace btz::memory {

namespace {

/// Corners of a side or shell in order of their creation, which is the same whichever way the side is walked round.
struct CornerSet {
  std::array<std::int32_t, 4> indices{};
  std::int32_t count = 0;

  /// Puts the node in its place among those that are there; there are never more than four.
  void Add(const MeshNode* node) {
    const std::int32_t index = static_cast<const MemoryNode*>(node)->index;
    auto place = static_cast<std::size_t>(count++);
    for (; place > 0 && indices[place - 1] > index; --place) {
      indices[place] = indices[place - 1];
    }
    indices[place] = index;
  }
  bool operator==(const CornerSet& other) const { return count == other.count && indices == other.indices; }
};

CornerSet CornersOf(const MemoryElement& solid, const SideShape& side) {
  CornerSet corners;
  for (std::int32_t i = 0; i < side.cornerCount; ++i) {
    corners.Add(solid.nodes[side.corners[i]]);
  }
  return corners;
}

CornerSet CornersOf(const MemoryElement& shell) {
  CornerSet corners;
  for (std::int32_t i = 0; i < CornerCount(shell.typeIndex); ++i) {
    corners.Add(shell.nodes[i]);
  }
  return corners;
}

/// Chains of numbered things by their lowest corner: two integers each, however many there are.
class CornerIndex {
 public:
  explicit CornerIndex(std::size_t nodeCount) : heads_(nodeCount, none) {}

  void Add(const CornerSet& corners) {
    std::uint32_t& head = heads_[static_cast<std::size_t>(corners.indices[0])];
    next_.push_back(head);
    head = static_cast<std::uint32_t>(next_.size() - 1);
  }

  /// Calls `visit` with the number, in order of Add, of each thing with this lowest corner until it returns true.
  template <typename Visit>
  void ForEach(const CornerSet& corners, Visit visit) const {
    std::uint32_t number = heads_[static_cast<std::size_t>(corners.indices[0])];
    while (number != none && !visit(number)) {
      number = next_[number];
    }
  }

 private:
  static constexpr std::uint32_t none = 0xFFFFFFFF;

  std::vector<std::uint32_t> heads_;  ///< Newest thing of each node.
  std::vector<std::uint32_t> next_;   ///< The one before it.
};

/// All sides of all solids, to find out which are shared.
class SideIndex {
 public:
  explicit SideIndex(const MemoryModel& model) : index_(model.object.context.mesh.nodes.Size()) {
    for (const MemoryElement* solid : model.solids) {
      const auto sides = Sides(solid->typeIndex);
      for (std::size_t i = 0; i < sides.size(); ++i) {
        index_.Add(CornersOf(*solid, sides[i]));
        sides_.push_back({solid, static_cast<std::int32_t>(i)});
      }
    }
  }

  bool IsShared(const MemoryElement& solid, const CornerSet& corners) const {
    bool shared = false;
    index_.ForEach(corners, [&](std::uint32_t number) {
      const Side& side = sides_[number];
      shared =
          side.solid != &solid && CornersOf(*side.solid, Sides(side.solid->typeIndex)[static_cast<std::size_t>(side.number)]) == corners;
      return shared;
    });
    return shared;
  }

 private:
  struct Side {
    const MemoryElement* solid;
    std::int32_t number;
  };

  CornerIndex index_;
  std::vector<Side> sides_;
};

/// All shells, to find the one that lies on a side.
class ShellIndex {
 public:
  explicit ShellIndex(MeshRecords& mesh) : index_(mesh.nodes.Size()) {
    for (std::size_t i = 0; i < mesh.elements.Size(); ++i) {
      MemoryElement& element = mesh.elements[i];
      if (IsShellType(element.typeIndex)) {
        index_.Add(CornersOf(element));
        shells_.push_back(&element);
      }
    }
  }

  /// The first shell with these corners, or null.
  MemoryElement* Find(const CornerSet& corners) const {
    MemoryElement* found = nullptr;
    index_.ForEach(corners, [&](std::uint32_t number) {
      if (CornersOf(*shells_[number]) == corners) {
        found = shells_[number];
      }
      return false;
    });
    return found;
  }

 private:
  CornerIndex index_;
  std::vector<MemoryElement*> shells_;
};

/// A new record for a side of a solid, in the mesh of `face`.
MemoryElement& MakeRecord(MemoryElement& solid, std::int32_t sideNumber, MemoryFace& face) {
  MeshRecords& mesh = face.object.context.mesh;
  const SideShape& side = Sides(solid.typeIndex)[static_cast<std::size_t>(sideNumber)];
  const bool hasMids = NodeCount(solid.typeIndex) > CornerCount(solid.typeIndex);
  const std::int32_t corners = side.cornerCount;
  MemoryElement& record = mesh.faceRecords.Add();
  record.id = solid.id;
  record.typeIndex = (corners == 3 ? 3 : 5) + (hasMids ? 1 : 0);
  record.nodeCount = hasMids ? 2 * corners : corners;
  record.nodes = mesh.nodeArrays.Take(static_cast<std::size_t>(record.nodeCount));
  for (std::int32_t i = 0; i < corners; ++i) {
    record.nodes[i] = solid.nodes[side.corners[i]];
    if (hasMids) {
      record.nodes[corners + i] = solid.nodes[side.mids[i]];
    }
  }
  record.owner = &face;
  record.solid = &solid;
  record.side = sideNumber;
  record.body = solid.body;
  face.mesh.elements.Append(static_cast<MeshElement*>(&record));
  return record;
}

void GiveFaceArray(MeshRecords& mesh, MemoryElement& solid) {
  if (solid.faces == nullptr) {
    solid.faces = mesh.faceArrays.Take(Sides(solid.typeIndex).size());
  }
}

}  // namespace

void BuildSolidFaces(MemoryModel& model) {
  if (model.solidsWithFaces == model.solids.size()) {
    return;
  }
  MeshRecords& mesh = model.object.context.mesh;
  const SideIndex sideIndex(model);
  const ShellIndex shellIndex(mesh);
  std::vector<MemoryFace*> skins;
  for (; model.solidsWithFaces < model.solids.size(); ++model.solidsWithFaces) {
    MemoryElement& solid = *model.solids[model.solidsWithFaces];
    if (solid.faces != nullptr) {
      continue;
    }
    GiveFaceArray(mesh, solid);
    const auto sides = Sides(solid.typeIndex);
    for (std::size_t i = 0; i < sides.size(); ++i) {
      const CornerSet corners = CornersOf(solid, sides[i]);
      if (sideIndex.IsShared(solid, corners)) {
        continue;
      }
      MemoryElement* shell = shellIndex.Find(corners);
      if (shell != nullptr) {
        solid.faces[i] = shell;
        continue;
      }
      MemoryFace& skin = solid.body->SkinFace();
      solid.faces[i] = &MakeRecord(solid, static_cast<std::int32_t>(i), skin);
      if (skins.empty() || skins.back() != &skin) {
        skins.push_back(&skin);
      }
    }
  }
  std::sort(skins.begin(), skins.end());
  skins.erase(std::unique(skins.begin(), skins.end()), skins.end());
  for (MemoryFace* skin : skins) {
    skin->mesh.Refresh();
  }
}

void MakeFaces(Call& call, HostObject& object, MemoryBody& body, PooledList* elements, PooledList* faceNumbers, PooledList* result,
               MeshPart** outPart) {
  call.Arguments(Elements{elements}, Ids{faceNumbers});
  if (!call.HasRoom(result) || !call.HasRoom(outPart) || call.IsRefused(outPart)) {
    return;
  }
  const std::vector<MeshElement*> solids = ReadElements(object, "CreateFaces", elements);
  const std::vector<std::int32_t> numbers = ReadIds(object, "CreateFaces", faceNumbers);
  MemoryFace& face = body.model.MakeFace(topoFace, body.model.TakePartId(), body);
  body.Enter(face);
  for (std::size_t i = 0; i < solids.size() && i < numbers.size(); ++i) {
    auto& solid = *static_cast<MemoryElement*>(solids[i]);
    const auto sides = Sides(solid.typeIndex);
    if (numbers[i] < 1 || static_cast<std::size_t>(numbers[i]) > sides.size()) {
      continue;
    }
    GiveFaceArray(object.context.mesh, solid);
    MeshElement* record = &MakeRecord(solid, numbers[i] - 1, face);
    solid.faces[numbers[i] - 1] = record;
    AppendLast(result, record);
  }
  face.mesh.Refresh();
  call.Gave(Elements{face.mesh.elements.Get()});
  call.Give(outPart, face);
}

}  // namespace btz::memory
