// Parts of the in-memory model: bodies, their faces with a mesh each, edges, and the volume of a body that holds solids.
//
// A body is one part of the deck or one rigid body. Its shells and lines lie in the mesh of its first face, its solids in its solid. A
// solid's owner is the body's volume, an object of the face interface with the kind of a body, so that both kinds of owner answer the same
// questions.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "memory_host/host_context.h"

namespace btz::memory {

class MemoryModel;
class MemoryBody;
class MemoryFace;

/// The mesh of one face. Its two lists are edited by the translator.
class MemoryFaceMesh final : public FaceMesh {
 public:
  MemoryFaceMesh(HostContext& context, std::int32_t number);

  void GetNodes(PooledList** out) override;
  void GetElements(PooledList** out) override;
  void Rebuild() override;
  std::int32_t GetNumber() override;

  /// To be called when the elements have changed: the node list becomes the distinct nodes of the elements, in order of first use. It is collected
  /// when somebody asks for it: a load on a small piece of a large part changes the part's mesh, and hardly anybody asks.
  void Refresh();
  OwnedList& Nodes();

  HostObject object;
  OwnedList elements;

 private:
  void CollectNodes();

  OwnedList nodes_;
  bool areNodesKnown_ = true;  ///< The node list is what it is to be.
  std::int32_t number_;
};

/// The skin of a solid. To the translator it is an opaque `Shell`.
class MemoryShell {
 public:
  explicit MemoryShell(HostContext& context) : object(context, ObjectType::Shell, this) {}

  HostObject object;
};

class MemorySolid final : public Solid {
 public:
  explicit MemorySolid(HostContext& context);

  void GetElements(PooledList** out) override;
  void GetShell(Shell** out) override;
  void Finish() override;
  void AttachShell(Shell* shell, std::int32_t mode) override;

  HostObject object;
  OwnedList elements;
  MemoryShell shell;
  const void* attachedShell = nullptr;
};

class MemoryEdge final : public TopoEdge {
 public:
  MemoryEdge(HostContext& context, std::int32_t edgeId, MemoryBody& parent);

  std::int32_t GetTopoKind() override;

  HostObject object;
  std::int32_t id;
  MemoryBody& body;
  MemoryFace* face = nullptr;  ///< Face to which the edge was added.
};

/// What bodies, faces and volumes have in common. `Interface` is MeshPart or TopoFace.
template <typename Interface>
class PartBase : public Interface {
 public:
  std::int32_t GetTopoKind() final {
    Call call(object, "GetTopoKind");
    return call.Code(kind);
  }
  std::int32_t GetId() final {
    Call call(object, "GetId");
    return call.Code(id);
  }
  void SetNamed(std::int32_t value) final {
    Call(object, "SetNamed").Arguments(value);
    named = value;
  }
  std::int32_t IsNamed() final {
    Call call(object, "IsNamed");
    return call.Code(named);
  }
  std::int32_t HasMesh() final {
    Call call(object, "HasMesh");
    return call.Code(HoldsElements() ? 1 : 0);
  }
  bool IsSolid() final {
    Call call(object, "IsSolid");
    return call.Code(HoldsSolids() ? 1 : 0) != 0;
  }
  void SetLinePartId(std::int32_t partId, std::uint8_t mode) final {
    Call(object, "SetLinePartId").Arguments(partId, mode);
    linePartId = partId;
  }
  void SetNumber(std::int32_t value) final {
    Call(object, "SetNumber").Arguments(value);
    number = value;
  }
  void SetColor(const float* rgb) final {
    Call(object, "SetColor").Arguments(Colour{rgb});
    for (std::size_t i = 0; rgb != nullptr && i < colour.size(); ++i) {
      colour[i] = rgb[i];
    }
  }
  void SetName(const wchar_t* text) final {
    Call(object, "SetName").Arguments(text);
    name = CopyOf(text);
  }
  const wchar_t* GetName() final {
    Call call(object, "GetName");
    call.Gave(name.c_str());
    return name.c_str();
  }
  void GetOwnerModel(MeshModel** out) final;
  void SplitFaces(PooledList* faces, double value, std::uint8_t flags) final;

  virtual bool HoldsElements() const = 0;
  virtual bool HoldsSolids() const = 0;

  HostObject object;
  MemoryModel& model;
  std::int32_t kind;
  std::int32_t id;
  std::int32_t number = 0;  ///< What SetNumber said.
  std::int32_t named = 0;
  std::int32_t linePartId = 0;
  std::array<float, 3> colour{};
  std::wstring name;
  std::int32_t splits = 0;  ///< Faces that SplitFaces was given. They are counted and left whole.

 protected:
  PartBase(MemoryModel& owner, ObjectType type, std::int32_t topoKind, std::int32_t partId);
  ~PartBase() = default;
};

/// A face, or the volume of a body.
class MemoryFace final : public PartBase<TopoFace> {
 public:
  MemoryFace(MemoryModel& owner, std::int32_t topoKind, std::int32_t partId, MemoryBody& parent);

  void GetSolid(Solid** out) override;
  void GetFaceList(PooledList** out) override;
  void GetFaces(PooledList** out) override;
  void RegisterChildPart(std::int32_t childId, std::int32_t mode, std::int32_t flags) override;
  void SetRigidFaceId(std::int32_t faceId, std::int32_t mode, std::int32_t flags) override;
  void AddFace(TopoFace* face, std::uint8_t mode) override;
  void CreateFaces(PooledList* elements, PooledList* faceNumbers, PooledList* result, MeshPart** outPart) override;

  void GetMesh(FaceMesh** out) override;
  void GetParent(MeshPart** out) override;
  void AddEdge(TopoEdge* edge, std::uint8_t mode) override;
  void GetModel(MeshModel** out) override;
  void UpdateBounds() override;
  void Finish() override;
  void SetVisible(std::int32_t visible) override;

  bool HoldsElements() const override;
  bool HoldsSolids() const override;

  MemoryBody& body;
  MemoryFaceMesh mesh;
  OwnedList noFaces;                      ///< A face has none itself.
  const MemoryBody* enteredIn = nullptr;  ///< Body in whose list of faces it stands.
  std::vector<MemoryEdge*> edges;
  bool visible = true;
};

/// A part of the deck, or a rigid body.
class MemoryBody final : public PartBase<MeshPart> {
 public:
  MemoryBody(MemoryModel& owner, std::int32_t partId, bool isRigid);

  void GetSolid(Solid** out) override;
  void GetFaceList(PooledList** out) override;
  void GetFaces(PooledList** out) override;
  void RegisterChildPart(std::int32_t childId, std::int32_t mode, std::int32_t flags) override;
  void SetRigidFaceId(std::int32_t faceId, std::int32_t mode, std::int32_t flags) override;
  void AddFace(TopoFace* face, std::uint8_t mode) override;
  void CreateFaces(PooledList* elements, PooledList* faceNumbers, PooledList* result, MeshPart** outPart) override;

  bool HoldsElements() const override;
  bool HoldsSolids() const override;

  /// First face of the body, made if it has none.
  MemoryFace& FirstFace();
  /// Face of the body that holds the skin of its solids, made on first use.
  MemoryFace& SkinFace();
  /// Enters a face of this body in its list of faces.
  void Enter(MemoryFace& face);
  /// Number of elements that the body holds: solids, and what lies in its faces, skins of solids left out.
  std::int32_t ElementCount() const;

  bool rigid;
  OwnedList faces;                     ///< Faces that were entered, TopoFace*.
  std::vector<MemoryFace*> madeFaces;  ///< All faces made under this body, entered or not.
  MemorySolid solid;
  MemoryFace* volume = nullptr;  ///< Owner of the solids.
  std::int32_t reservedElements = 0;

 private:
  void EnterById(std::int32_t faceId);

  MemoryFace* skin_ = nullptr;
};

}  // namespace btz::memory
