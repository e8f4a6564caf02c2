// The host's mesh: project, model, parts, faces and their meshes. The translator has no model of its own; every node, element and part that
// it makes lives behind these interfaces.
//
// Rules for all host interfaces (here and in the headers beside this one):
//  - Slot order is declaration order. Single inheritance, no virtual destructor, no overloads, no exceptions, nothing by value but
//    numbers and pointers. An operation may only be added behind a class's last one.
//  - Every object belongs to the host from the moment of its creation; the translator never releases one and keeps none after it returns.
//  - A look-up or create that fails leaves `*out` unchanged or makes it null; the caller has set it to null where it tests the result.
//  - Lists passed in are read or copied during the call. Lists handed out stay the host's; unless told otherwise the caller moves only
//    their cursor. A null value ends a walk.
//  - Texts are terminated by a zero and copied by the host during the call. They are wide except MeshModel::SetSourcePath.
//  - All calls come one at a time from the thread that called the library.
//
// A mark behind an operation tells where it is called: [pass 1] nodes and property cards, [pass 2-3] elements and what goes with them,
// [pass 4] loads and remaining elements, [stage] the finishing stages between and behind the passes, [after] behind
// HostProject::AttachModel, [any]. `[never]` is a slot that the translator does not use.
#pragma once

#include <btz/host_records.h>

namespace btz {

class MeshModel;
class MeshPart;
class TopoFace;
class FaceMesh;

/// Kinds of TopoEntity.
enum TopoKind : std::int32_t {
  topoBody = 1,  ///< A part, or the volume object that owns the solids of a part.
  topoFace = 2,  ///< A TopoFace.
  topoEdge = 3   ///< A TopoEdge.
};

/// The document that holds the model. [implemented by: host] [handed in as argument `project`]
class HostProject {
 public:
  /// Hands the finished model over; `mode` is always 1. Called once, after MeshModel::Finish. Of the model's operations only those marked
  /// [after] follow. [stage]
  virtual void AttachModel(MeshModel* model, std::int32_t mode) = 0;

  /// Gives the model that the run fills; `mode` is always 1. The model stays the host's and lives at least as long as the call of the
  /// library. Called once, before pass 1. [any]
  virtual void GetMeshModel(MeshModel** out, std::uint8_t mode) = 0;

 protected:
  ~HostProject() = default;
};

/// Base of everything that has a place in the topology: parts, faces and edges. [implemented by: host] [from MeshModel::CreatePart,
/// MeshModel::CreateTopoEntity and the owner field of elements]
class TopoEntity {
 public:
  /// A TopoKind. Added to the plain set of operations: an element's owner is asked for its kind, and a pointer may only be converted to a
  /// TopoFace behind this test. [any]
  virtual std::int32_t GetTopoKind() = 0;

 protected:
  ~TopoEntity() = default;
};

/// An edge, which bears the line elements and rigid elements of a part. Has no operations of its own. [implemented by: host]
/// [from MeshModel::CreatePart and CreateTopoEntity with kind 3]
class TopoEdge : public TopoEntity {
 protected:
  ~TopoEdge() = default;
};

/// The outer skin of a solid, opaque to the translator. [implemented by: host] [from Solid::GetShell]
class Shell;

/// The volume content of a part. [implemented by: host] [from MeshPart::GetSolid]
class Solid {
 public:
  /// List of MeshElement*, all solid elements of the part in order of creation. The host's own; read only. [stage]
  virtual void GetElements(PooledList** out) = 0;

  /// The skin of the solid; only handed back to AttachShell. [stage]
  virtual void GetShell(Shell** out) = 0;

  /// The elements of the solid are complete. [stage]
  virtual void Finish() = 0;

  /// Makes `shell`, which came from GetShell, the skin of the solid; `mode` is always 0. [stage]
  virtual void AttachShell(Shell* shell, std::int32_t mode) = 0;

 protected:
  ~Solid() = default;
};

/// The mesh of one face: the shells, lines, rigid elements or solid faces that the face holds. [implemented by: host] [from
/// TopoFace::GetMesh]
class FaceMesh {
 public:
  /// List of MeshNode*. The translator appends nodes to it and calls Rebuild afterwards. [pass 4] [stage]
  virtual void GetNodes(PooledList** out) = 0;

  /// List of MeshElement*. The translator appends and removes elements and calls Rebuild afterwards.
  /// [pass 4] [stage] [after]
  virtual void GetElements(PooledList** out) = 0;

  /// Brings the mesh in line with its lists after they have changed. [pass 4] [stage]
  virtual void Rebuild() = 0;

  /// Number of the mesh. [never]
  virtual std::int32_t GetNumber() = 0;

 protected:
  ~FaceMesh() = default;
};

/// A part, which stands for one property of the deck, or a rigid body. Its faces are parts too. [implemented by: host]
/// [from MeshModel::CreateBody, CreateRigidBody, GetParts and TopoFace::GetParent]
class MeshPart : public TopoEntity {
 public:
  /// Id of the part: the property id of the deck, or a number of the host's. Unchanged by SetNumber. [any]
  virtual std::int32_t GetId() = 0;

  /// 1: the part's name was set by the program from a comment; 0: it was not. [stage]
  virtual void SetNamed(std::int32_t named) = 0;

  /// What SetNamed said last, 0 before. [stage]
  virtual std::int32_t IsNamed() = 0;

  /// Non-zero when the part holds any element, a face when its mesh holds one. [stage] [after]
  virtual std::int32_t HasMesh() = 0;

  /// The volume content, or null for a part without solid elements. [stage]
  virtual void GetSolid(Solid** out) = 0;

  /// Model to which the part belongs. [stage]
  virtual void GetOwnerModel(MeshModel** out) = 0;

  /// List of TopoFace*, the faces of the part. The host's own; read only. [stage] [after]
  virtual void GetFaceList(PooledList** out) = 0;

  /// List of TopoFace*, the same faces; only its first entry is used. [stage]
  virtual void GetFaces(PooledList** out) = 0;

  /// Enters the TopoFace `id`, made under this part by MeshModel::CreatePart, among its faces. `mode` is 1, `flags` 0. [pass 4]
  /// [stage]
  virtual void RegisterChildPart(std::int32_t id, std::int32_t mode, std::int32_t flags) = 0;

  /// Enters the TopoFace `faceId` as the face of a rigid body. `mode` is 1, `flags` 0. [stage]
  virtual void SetRigidFaceId(std::int32_t faceId, std::int32_t mode, std::int32_t flags) = 0;

  /// Id of the edge that bears the line elements of the part: its own id with `mode` 1, the edge of a rigid body with `mode` 0. [pass 2-3]
  /// [stage]
  virtual void SetLinePartId(std::int32_t partId, std::uint8_t mode) = 0;

  /// Running number for display; GetId stays. [stage]
  virtual void SetNumber(std::int32_t number) = 0;

  /// Colour as red, green, blue between 0 and 1. [stage]
  virtual void SetColor(const float* rgb) = 0;

  /// Name of the part; the last call wins. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Name of the part, an empty text before any was set; never null. The text is the host's and valid until the next SetName. [stage]
  virtual const wchar_t* GetName() = 0;

  /// Enters `face`, made under this part by MeshModel::CreateTopoEntity, among its faces; `mode` is always 1. [pass 2-3]
  virtual void AddFace(TopoFace* face, std::uint8_t mode) = 0;

  /// True when the part holds solid or gasket elements. [stage]
  virtual bool IsSolid() = 0;

  /// Splits the listed TopoFace* of this part where their surface bends by more than `value`; `flags` is always 0. [after]
  virtual void SplitFaces(PooledList* faces, double value, std::uint8_t flags) = 0;

  /// Makes faces of solid elements: `elements` and `faceNumbers` run in step, a number is the index into MeshElement::faces plus 1, held in
  /// the list as the address of an int32. The host enters each new record in the element's `faces`, appends it to `result`, and gives the
  /// face that holds them all in `outPart`. [pass 4]
  virtual void CreateFaces(PooledList* elements, PooledList* faceNumbers, PooledList* result, MeshPart** outPart) = 0;

 protected:
  ~MeshPart() = default;
};

/// A face: the child of a part that holds elements. Owner of shells, lines, rigid elements and face records, and what loads, surfaces and
/// pretension carry as "part". [implemented by: host] [from MeshModel::CreatePart and CreateTopoEntity with kind 2]
class TopoFace : public MeshPart {
 public:
  /// Mesh of the face, may be null. [pass 4] [stage] [after]
  virtual void GetMesh(FaceMesh** out) = 0;

  /// Part above the face. [pass 4] [stage]
  virtual void GetParent(MeshPart** out) = 0;

  /// Enters `edge` among the edges of the face; `mode` is always 1. [pass 2-3] [stage]
  virtual void AddEdge(TopoEdge* edge, std::uint8_t mode) = 0;

  /// Model to which the face belongs. [pass 4] [stage]
  virtual void GetModel(MeshModel** out) = 0;

  /// The mesh has changed: bounds are to be computed afresh. [pass 4] [stage]
  virtual void UpdateBounds() = 0;

  /// The face is complete. [pass 4] [stage]
  virtual void Finish() = 0;

  /// Whether the face is shown; always called with 0. [pass 4] [stage]
  virtual void SetVisible(std::int32_t visible) = 0;

 protected:
  ~TopoFace() = default;
};

/// The mesh that the run fills. [implemented by: host] [from HostProject::GetMeshModel]
class MeshModel {
 public:
  /// Path of the deck in UTF-8, as the caller of the library gave it. The only narrow text of the boundary. [any]
  virtual void SetSourcePath(const char* path) = 0;

  /// List of MeshPart*, all bodies in order of creation, rigid ones included. The host's own; read only. [pass 4] [stage] [after]
  virtual void GetParts(PooledList** out) = 0;

  /// Number for PropertyDescriptor::number; asked afresh for each property. [stage]
  virtual std::int32_t GetDescriptorNumber() = 0;

  /// New face (kind 2) or edge (kind 3) with `id` under `parent`. A face enters its parent by RegisterChildPart or SetRigidFaceId.
  /// [pass 4] [stage]
  virtual void CreatePart(std::int32_t kind, TopoEntity** out, std::int32_t id, MeshPart* parent) = 0;

  /// Appends to `out` the MeshElement* (elements and face records) that use a listed MeshNode*, each once. The other arguments are always
  /// 0, then 0, 1, 0, 0, 0, 1, 0, 0, 0, 0. [stage]
  virtual void CollectNodeElements(std::int32_t mode, PooledList* nodes, PooledList* out, std::int32_t flag1, std::int32_t flag2,
                                   std::int32_t flag3, std::int32_t flag4, std::int32_t flag5, std::int32_t flag6, std::int32_t flag7,
                                   std::int32_t flag8, std::int32_t flag9, std::int32_t flag10) = 0;

  /// Finds a line, shell or rigid element. The caller may write its `rigidKind`. [stage] [pass 4]
  virtual void GetElement(std::int32_t id, MeshElement** out) = 0;

  /// Finds a node. [any]
  virtual void GetNode(std::int32_t id, MeshNode** out) = 0;

  /// A part id that is not in use. Only tells; the id is not taken by asking. [any]
  virtual std::int32_t NextPartId() = 0;

  /// Makes an element of MeshElement's `typeIndex` in the part `partId`; for type 9 in the edge of that id. `nodeIds` holds as many ids as
  /// the type has nodes, 0 where a mid-side node is missing; for type 9 the first integer is the number of ids that follow. `solidFlag` and
  /// `shellFlag` tell the family, the other two are always 0. Negative: refused, nothing was made. [pass 2-3] [stage]
  virtual std::int32_t CreateElement(std::int32_t id, std::int32_t typeIndex, const std::int32_t* nodeIds, std::int32_t partId,
                                     std::uint8_t reserved1, std::int32_t solidFlag, std::uint8_t shellFlag, std::uint8_t reserved2) = 0;

  /// Makes a node at `xyz`, three coordinates in deck units; `mode` is always 0. The id comes from the deck or from NextNodeId. 0: made;
  /// else refused, and a node that has the id already stays as it is. [pass 1] [pass 2-3]
  virtual std::int32_t CreateNode(std::int32_t id, const double* xyz, std::int32_t mode) = 0;

  /// Called with 0, 0 after each rigid element. [stage]
  virtual void Commit(std::int32_t first, std::int32_t second) = 0;

  /// Highest element id in use, 0 for none; callers add 1. Only tells. [stage]
  virtual std::int32_t NextElementId() = 0;

  /// A node id that is not in use, for helper nodes. Only tells. [pass 2-3] [stage]
  virtual std::int32_t NextNodeId() = 0;

  /// Table of MeshElement*, all elements of both registers. The host's own; read only. [stage]
  virtual void GetAllElements(HashTable** out) = 0;

  /// Appends every body to `bodies` that the list does not hold yet, as MeshPart*. The flags are always 0. [stage]
  virtual void CollectBodies(PooledList* bodies, std::int32_t flag1, std::int32_t flag2, std::int32_t flag3) = 0;

  /// Mends what CountDefects counted. [after]
  virtual void RepairDefects() = 0;

  /// New face (kind 2) or edge (kind 3) of `part`, with the part's id; `mode` is always 1. It enters the part by AddFace or AddEdge.
  /// [pass 2-3]
  virtual void CreateTopoEntity(std::int32_t kind, TopoEntity** out, std::int32_t partId, MeshPart* part, std::int32_t mode) = 0;

  /// Marks `id` as taken, so that NextPartId gives a higher one. [pass 2-3] [stage]
  virtual void ReservePartId(std::int32_t id) = 0;

  /// Number of mesh defects of the kinds in `mask`, always 3; non-zero: RepairDefects follows. [after]
  virtual std::int32_t CountDefects(std::int32_t mask) = 0;

  /// The elements of the solid part are complete. The flags are always 0. [stage]
  virtual void FinishSolidPart(MeshPart* part, std::int32_t flag1, std::int32_t flag2, std::uint8_t flag3) = 0;

  /// Expected numbers of nodes and elements, so that a host can size its tables. A hint. [any]
  virtual void Reserve(std::int32_t nodes, std::int32_t elements) = 0;

  /// Builds the topology from the mesh; `mode` is always 0. [stage] [after]
  virtual void UpdateTopology(std::int32_t mode) = 0;

  /// The model is complete; the last call before HostProject::AttachModel. [stage]
  virtual void Finish() = 0;

  /// Finds a solid element; `mode` is always 1. [pass 2-3] [pass 4] [stage]
  virtual void GetSolidElement(std::int32_t id, MeshElement** out, std::int32_t mode) = 0;

  /// Merges faces of a part that was split; called again while the result is above 0. [after]
  virtual std::int32_t MergeSplitPart(MeshPart* part) = 0;

  /// New body for rigid elements, with an id of the host's choice; `mode` is always 1. Null: refused. [stage]
  virtual MeshPart* CreateRigidBody(std::int32_t mode) = 0;

  /// New body with the id `partId`. The other arguments are always 1, 0, 1, 1. [pass 2-3]
  virtual void CreateBody(std::int32_t kind, MeshPart** out, std::int32_t partId, std::int32_t flag1, std::int32_t flag2,
                          std::uint8_t flag3) = 0;

  /// Expected number of solid elements of a part. A hint. [pass 2-3]
  virtual void ReservePartElements(std::int32_t partId, std::int32_t count) = 0;

 protected:
  ~MeshModel() = default;
};

}  // namespace btz
