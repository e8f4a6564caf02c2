#include "memory_host/topology.h"

#include "memory_host/mesh_model.h"
#include "memory_host/solid_faces.h"

namespace btz::memory {

MemoryFaceMesh::MemoryFaceMesh(HostContext& context, std::int32_t number)
    : object(context, ObjectType::FaceMesh, this), elements(context), nodes_(context), number_(number) {}

void MemoryFaceMesh::GetNodes(PooledList** out) {
  Call call(object, "GetNodes");
  if (call.HasRoom(out)) {
    call.GiveList<memory::Nodes>(out, Nodes());
  }
}

void MemoryFaceMesh::GetElements(PooledList** out) {
  Call call(object, "GetElements");
  if (call.HasRoom(out)) {
    call.GiveList<Elements>(out, elements);
  }
}

void MemoryFaceMesh::Rebuild() {
  Call call(object, "Rebuild");
  call.Arguments();
  Refresh();
}

void MemoryFaceMesh::Refresh() { areNodesKnown_ = false; }

OwnedList& MemoryFaceMesh::Nodes() {
  if (!areNodesKnown_) {
    CollectNodes();
    areNodesKnown_ = true;
  }
  return nodes_;
}

void MemoryFaceMesh::CollectNodes() {
  MeshRecords& records = object.context.mesh;
  const std::uint32_t visit = ++records.lastVisit;
  nodes_.Clear();
  for (MeshElement* element : ReadElements(object, "Rebuild", elements.Get())) {
    const auto* known = static_cast<const MemoryElement*>(element);
    for (std::int32_t i = 0; i < known->nodeCount; ++i) {
      auto* node = static_cast<MemoryNode*>(known->nodes[i]);
      if (node != nullptr && node->visit != visit) {
        node->visit = visit;
        nodes_.Append(static_cast<MeshNode*>(node));
      }
    }
  }
}

std::int32_t MemoryFaceMesh::GetNumber() {
  Call call(object, "GetNumber");
  return call.Code(number_);
}

MemorySolid::MemorySolid(HostContext& context) : object(context, ObjectType::Solid, this), elements(context), shell(context) {}

void MemorySolid::GetElements(PooledList** out) {
  Call call(object, "GetElements");
  if (call.HasRoom(out)) {
    call.GiveList<Elements>(out, elements);
  }
}

void MemorySolid::GetShell(Shell** out) {
  Call call(object, "GetShell");
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  // Nobody looks into a Shell but the host that made it, so each host gives what it likes under that name.
  *out = reinterpret_cast<Shell*>(&shell);
  shell.object.HandOut();
  call.Gave(Object{*out});
}

void MemorySolid::Finish() { Call(object, "Finish").Arguments(); }

void MemorySolid::AttachShell(Shell* given, std::int32_t mode) {
  Call(object, "AttachShell").Arguments(Object{given}, mode);
  attachedShell = Accept(object, "AttachShell", given);
}

MemoryEdge::MemoryEdge(HostContext& context, std::int32_t edgeId, MemoryBody& parent)
    : object(context, ObjectType::TopoEdge, this), id(edgeId), body(parent) {}

std::int32_t MemoryEdge::GetTopoKind() {
  Call call(object, "GetTopoKind");
  return call.Code(topoEdge);
}

template <typename Interface>
PartBase<Interface>::PartBase(MemoryModel& owner, ObjectType type, std::int32_t topoKind, std::int32_t partId)
    : object(owner.object.context, type, static_cast<Interface*>(this)), model(owner), kind(topoKind), id(partId) {}

template <typename Interface>
void PartBase<Interface>::GetOwnerModel(MeshModel** out) {
  Call call(object, "GetOwnerModel");
  if (call.HasRoom(out)) {
    call.Give(out, model);
  }
}

template <typename Interface>
void PartBase<Interface>::SplitFaces(PooledList* faces, double value, std::uint8_t flags) {
  Call(object, "SplitFaces").Arguments(Objects{faces}, value, flags);
  splits += static_cast<std::int32_t>(ReadParts(object, "SplitFaces", faces).size());
}

template class PartBase<MeshPart>;
template class PartBase<TopoFace>;

MemoryFace::MemoryFace(MemoryModel& owner, std::int32_t topoKind, std::int32_t partId, MemoryBody& parent)
    : PartBase<TopoFace>(owner, ObjectType::TopoFace, topoKind, partId),
      body(parent),
      mesh(owner.object.context, partId),
      noFaces(owner.object.context) {}

void MemoryFace::GetSolid(Solid** out) {
  Call call(object, "GetSolid");
  if (!call.HasRoom(out)) {
    return;
  }
  if (HoldsSolids()) {
    call.Give(out, body.solid);
  } else {
    call.Withhold(out);
  }
}

void MemoryFace::GetFaceList(PooledList** out) {
  Call call(object, "GetFaceList");
  if (call.HasRoom(out)) {
    call.GiveObjects(out, noFaces);
  }
}

void MemoryFace::GetFaces(PooledList** out) {
  Call call(object, "GetFaces");
  if (call.HasRoom(out)) {
    call.GiveObjects(out, noFaces);
  }
}

void MemoryFace::RegisterChildPart(std::int32_t childId, std::int32_t mode, std::int32_t flags) {
  Call(object, "RegisterChildPart").Arguments(childId, mode, flags);
}

void MemoryFace::SetRigidFaceId(std::int32_t faceId, std::int32_t mode, std::int32_t flags) {
  Call(object, "SetRigidFaceId").Arguments(faceId, mode, flags);
}

void MemoryFace::AddFace(TopoFace* face, std::uint8_t mode) {
  Call(object, "AddFace").Arguments(Object{face}, mode);
  Accept(object, "AddFace", face);
}

void MemoryFace::CreateFaces(PooledList* elements, PooledList* faceNumbers, PooledList* result, MeshPart** outPart) {
  Call call(object, "CreateFaces");
  MakeFaces(call, object, body, elements, faceNumbers, result, outPart);
}

void MemoryFace::GetMesh(FaceMesh** out) {
  Call call(object, "GetMesh");
  if (!call.HasRoom(out)) {
    return;
  }
  if (kind == topoFace) {
    call.Give(out, mesh);
  } else {
    call.Withhold(out);
  }
}

void MemoryFace::GetParent(MeshPart** out) {
  Call call(object, "GetParent");
  if (call.HasRoom(out)) {
    call.Give(out, body);
  }
}

void MemoryFace::AddEdge(TopoEdge* edge, std::uint8_t mode) {
  Call(object, "AddEdge").Arguments(Object{edge}, mode);
  if (Accept(object, "AddEdge", edge) == nullptr) {
    return;
  }
  auto* added = static_cast<MemoryEdge*>(edge);
  added->face = this;
  edges.push_back(added);
}

void MemoryFace::GetModel(MeshModel** out) {
  Call call(object, "GetModel");
  if (call.HasRoom(out)) {
    call.Give(out, model);
  }
}

void MemoryFace::UpdateBounds() { Call(object, "UpdateBounds").Arguments(); }

void MemoryFace::Finish() { Call(object, "Finish").Arguments(); }

void MemoryFace::SetVisible(std::int32_t value) {
  Call(object, "SetVisible").Arguments(value);
  visible = value != 0;
}

bool MemoryFace::HoldsElements() const { return kind == topoFace ? mesh.elements.Size() > 0 : body.HoldsSolids(); }

bool MemoryFace::HoldsSolids() const { return kind != topoFace && body.HoldsSolids(); }

MemoryBody::MemoryBody(MemoryModel& owner, std::int32_t partId, bool isRigid)
    : PartBase<MeshPart>(owner, ObjectType::MeshPart, topoBody, partId),
      rigid(isRigid),
      faces(owner.object.context),
      solid(owner.object.context) {}

void MemoryBody::GetSolid(Solid** out) {
  Call call(object, "GetSolid");
  if (!call.HasRoom(out)) {
    return;
  }
  if (HoldsSolids()) {
    call.Give(out, solid);
  } else {
    call.Withhold(out);
  }
}

void MemoryBody::GetFaceList(PooledList** out) {
  Call call(object, "GetFaceList");
  if (call.HasRoom(out)) {
    call.GiveObjects(out, faces);
  }
}

void MemoryBody::GetFaces(PooledList** out) {
  Call call(object, "GetFaces");
  if (call.HasRoom(out)) {
    call.GiveObjects(out, faces);
  }
}

void MemoryBody::RegisterChildPart(std::int32_t childId, std::int32_t mode, std::int32_t flags) {
  Call(object, "RegisterChildPart").Arguments(childId, mode, flags);
  EnterById(childId);
}

void MemoryBody::SetRigidFaceId(std::int32_t faceId, std::int32_t mode, std::int32_t flags) {
  Call(object, "SetRigidFaceId").Arguments(faceId, mode, flags);
  EnterById(faceId);
}

void MemoryBody::AddFace(TopoFace* face, std::uint8_t mode) {
  Call(object, "AddFace").Arguments(Object{face}, mode);
  if (Accept(object, "AddFace", face) != nullptr) {
    Enter(*static_cast<MemoryFace*>(face));
  }
}

void MemoryBody::CreateFaces(PooledList* elements, PooledList* faceNumbers, PooledList* result, MeshPart** outPart) {
  Call call(object, "CreateFaces");
  MakeFaces(call, object, *this, elements, faceNumbers, result, outPart);
}

bool MemoryBody::HoldsElements() const {
  if (HoldsSolids()) {
    return true;
  }
  for (const MemoryFace* face : madeFaces) {
    if (face->HoldsElements()) {
      return true;
    }
  }
  return false;
}

bool MemoryBody::HoldsSolids() const { return solid.elements.Size() > 0; }

MemoryFace& MemoryBody::FirstFace() {
  if (void* first = faces.First()) {
    return *static_cast<MemoryFace*>(static_cast<TopoFace*>(first));
  }
  MemoryFace& face = model.MakeFace(topoFace, id, *this);
  Enter(face);
  return face;
}

MemoryFace& MemoryBody::SkinFace() {
  if (skin_ == nullptr) {
    skin_ = &model.MakeFace(topoFace, id, *this);
    Enter(*skin_);
  }
  return *skin_;
}

void MemoryBody::Enter(MemoryFace& face) {
  if (face.enteredIn != this) {
    face.enteredIn = this;
    faces.Append(static_cast<TopoFace*>(&face));
  }
}

void MemoryBody::EnterById(std::int32_t faceId) {
  // From the newest on: a face is entered right after it was made, and one body may hold all rigid elements of a deck.
  for (auto face = madeFaces.rbegin(); face != madeFaces.rend(); ++face) {
    if ((*face)->id == faceId && (*face)->enteredIn != this) {
      Enter(**face);
      return;
    }
  }
}

std::int32_t MemoryBody::ElementCount() const {
  std::int32_t count = solid.elements.Size();
  for (const MemoryFace* face : madeFaces) {
    for (const MeshElement* element : face->mesh.elements.As<MeshElement>()) {
      count += static_cast<const MemoryElement*>(element)->solid == nullptr ? 1 : 0;
    }
  }
  return count;
}

}  // namespace btz::memory
