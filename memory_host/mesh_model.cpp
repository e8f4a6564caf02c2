#include "memory_host/mesh_model.h"

#include <algorithm>
#include <limits>

#include "memory_host/element_shapes.h"
#include "memory_host/solid_faces.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz::memory {

namespace {

constexpr std::int32_t refused = -1;
constexpr std::int32_t highestId = std::numeric_limits<std::int32_t>::max();

/// Takes the next answer of a script; 0 when it is used up.
std::int32_t NextAnswer(std::vector<std::int32_t>& script) {
  if (script.empty()) {
    return 0;
  }
  const std::int32_t answer = script.front();
  script.erase(script.begin());
  return answer;
}

}  // namespace

MemoryModel::MemoryModel(HostContext& context) : object(context, ObjectType::MeshModel, this), bodyList_(context) {
  HashInit(&allElements_);
}

MemoryModel::~MemoryModel() { HashRelease(&allElements_); }

void MemoryModel::SetSourcePath(const char* path) {
  Call(object, "SetSourcePath").Arguments(FileName{path});
  sourcePath = path == nullptr ? "" : path;
}

void MemoryModel::GetParts(PooledList** out) {
  Call call(object, "GetParts");
  if (call.HasRoom(out)) {
    call.GiveObjects(out, bodyList_);
  }
}

std::int32_t MemoryModel::GetDescriptorNumber() {
  Call call(object, "GetDescriptorNumber");
  return call.Code(1);
}

// Parts.

std::int32_t MemoryModel::NextPartId() {
  Call call(object, "NextPartId");
  return call.Code(nextPartId_);
}

void MemoryModel::RaisePartId(std::int32_t takenId) { nextPartId_ = std::max(nextPartId_, takenId == highestId ? takenId : takenId + 1); }

std::int32_t MemoryModel::TakePartId() {
  const std::int32_t id = nextPartId_;
  RaisePartId(id);
  return id;
}

void MemoryModel::ReservePartId(std::int32_t id) {
  Call(object, "ReservePartId").Arguments(id);
  RaisePartId(id);
}

MemoryBody* MemoryModel::FindBody(std::int32_t id) const {
  const auto found = bodyById_.find(id);
  return found == bodyById_.end() ? nullptr : found->second;
}

MemoryEdge* MemoryModel::FindEdge(std::int32_t id) const {
  const auto found = edgeById_.find(id);
  return found == edgeById_.end() ? nullptr : found->second;
}

MemoryBody* MemoryModel::BodyOf(MeshPart* part, const char* operation) {
  if (part == nullptr || Accept(object, operation, part) == nullptr) {
    return nullptr;
  }
  if (object.context.Find(part)->type == ObjectType::TopoFace) {
    return &static_cast<MemoryFace*>(static_cast<TopoFace*>(part))->body;
  }
  return static_cast<MemoryBody*>(part);
}

void MemoryModel::CreateBody(std::int32_t bodyKind, MeshPart** out, std::int32_t partId, std::int32_t flag1, std::int32_t flag2,
                             std::uint8_t flag3) {
  Call call(object, "CreateBody");
  call.Arguments(bodyKind, partId, flag1, flag2, flag3);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  MemoryBody& body = bodies.emplace_back(*this, partId, false);
  bodyById_[partId] = &body;
  lastBody_ = nullptr;
  bodyList_.Append(static_cast<MeshPart*>(&body));
  call.Give(out, body);
}

MeshPart* MemoryModel::CreateRigidBody(std::int32_t mode) {
  Call call(object, "CreateRigidBody");
  call.Arguments(mode);
  if (call.IsRefused()) {
    call.WithholdValue();
    return nullptr;
  }
  MemoryBody& body = bodies.emplace_back(*this, TakePartId(), true);
  bodyById_[body.id] = &body;
  lastBody_ = nullptr;
  bodyList_.Append(static_cast<MeshPart*>(&body));
  MeshPart* given = nullptr;
  call.Give(&given, body);
  return given;
}

void MemoryModel::GiveFaceOrEdge(Call& call, std::int32_t kind, TopoEntity** out, std::int32_t id, MemoryBody& body) {
  if (kind == topoFace) {
    call.Give(out, MakeFace(topoFace, id, body));
  } else if (kind == topoEdge) {
    MemoryEdge& edge = edges.emplace_back(object.context, id, body);
    edgeById_[id] = &edge;
    call.Give(out, edge);
  } else {
    call.Withhold(out);
  }
}

void MemoryModel::CreatePart(std::int32_t kind, TopoEntity** out, std::int32_t id, MeshPart* parent) {
  Call call(object, "CreatePart");
  call.Arguments(kind, id, Object{parent});
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  MemoryBody* body = BodyOf(parent, "CreatePart");
  if (body == nullptr) {
    call.Withhold(out);
    return;
  }
  RaisePartId(id);
  GiveFaceOrEdge(call, kind, out, id, *body);
}

void MemoryModel::CreateTopoEntity(std::int32_t kind, TopoEntity** out, std::int32_t partId, MeshPart* part, std::int32_t mode) {
  Call call(object, "CreateTopoEntity");
  call.Arguments(kind, partId, Object{part}, mode);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  MemoryBody* body = BodyOf(part, "CreateTopoEntity");
  if (body == nullptr) {
    call.Withhold(out);
    return;
  }
  GiveFaceOrEdge(call, kind, out, partId, *body);
}

MemoryFace& MemoryModel::MakeFace(std::int32_t kind, std::int32_t id, MemoryBody& body) {
  MemoryFace& face = faces.emplace_back(*this, kind, id, body);
  if (kind == topoFace) {
    body.madeFaces.push_back(&face);
  }
  return face;
}

void MemoryModel::CollectBodies(PooledList* list, std::int32_t flag1, std::int32_t flag2, std::int32_t flag3) {
  Call call(object, "CollectBodies");
  call.Arguments(flag1, flag2, flag3);
  if (!call.HasRoom(list) || call.IsFillingRefused()) {
    return;
  }
  std::vector<const MeshPart*> held;
  for (const MeshPart* part : ReadParts(object, "CollectBodies", list)) {
    held.push_back(part);
  }
  for (MemoryBody& body : bodies) {
    MeshPart* part = &body;
    if (std::find(held.begin(), held.end(), part) == held.end()) {
      AppendLast(list, part);
      body.object.HandOut();
    }
  }
  call.Gave(Objects{list});
}

void MemoryModel::ReservePartElements(std::int32_t partId, std::int32_t count) {
  Call(object, "ReservePartElements").Arguments(partId, count);
  if (MemoryBody* body = FindBody(partId)) {
    body->reservedElements = count;
  }
}

// Nodes.

void MemoryModel::Reserve(std::int32_t nodeCount, std::int32_t elementCount) {
  Call(object, "Reserve").Arguments(nodeCount, elementCount);
  reservedNodes = nodeCount;
  reservedElements = elementCount;
  nodeById_.Reserve(static_cast<std::size_t>(std::max(nodeCount, 0)));
}

std::int32_t MemoryModel::CreateNode(std::int32_t id, const double* xyz, std::int32_t mode) {
  Call call(object, "CreateNode");
  call.Arguments(id, Point{xyz}, mode);
  if (call.IsRefused()) {
    return call.Failed(refused);
  }
  if (xyz == nullptr) {
    call.Fault("null coordinates");
    return call.Code(refused);
  }
  if (id < 1 || FindNode(id) != nullptr) {
    return call.Code(refused);
  }
  Arena<MemoryNode>& nodes = object.context.mesh.nodes;
  const std::size_t index = nodes.Size();
  MemoryNode& node = nodes.Add();
  node.id = id;
  std::copy_n(xyz, 3, node.position);
  std::copy_n(xyz, 3, node.created);
  node.index = static_cast<std::int32_t>(index);
  nodeById_.Insert(id, &node);
  highestNodeId_ = std::max(highestNodeId_, id);
  return call.Code(0);
}

void MemoryModel::GetNode(std::int32_t id, MeshNode** out) {
  Call call(object, "GetNode");
  call.Arguments(id);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  MeshNode* node = FindNode(id);
  if (node == nullptr) {
    call.Withhold(out);
    return;
  }
  *out = node;
  call.Gave(static_cast<const MeshNode*>(node));
}

std::int32_t MemoryModel::NextNodeId() {
  Call call(object, "NextNodeId");
  return call.Code(highestNodeId_ == highestId ? highestId : highestNodeId_ + 1);
}

// Elements.

bool MemoryModel::FillNodes(MemoryElement& element, const std::int32_t* ids, std::int32_t count, std::int32_t neededCount) {
  // A rigid element without nodes has room for the one entry that counts all the same.
  element.nodes = object.context.mesh.nodeArrays.Take(static_cast<std::size_t>(std::max(count, 1)));
  element.nodeCount = count;
  for (std::int32_t i = 0; i < count; ++i) {
    element.nodes[i] = FindNode(ids[i]);
    if (element.nodes[i] == nullptr && i < neededCount) {
      return false;
    }
  }
  return true;
}

std::int32_t MemoryModel::CreateElement(std::int32_t id, std::int32_t typeIndex, const std::int32_t* nodeIds, std::int32_t partId,
                                        std::uint8_t reserved1, std::int32_t solidFlag, std::uint8_t shellFlag, std::uint8_t reserved2) {
  Call call(object, "CreateElement");
  call.Arguments(id, typeIndex, ElementNodeIds{typeIndex, nodeIds}, partId, reserved1, solidFlag, shellFlag, reserved2);
  if (call.IsRefused()) {
    return call.Failed(refused);
  }
  if (nodeIds == nullptr) {
    call.Fault("null node ids");
    return call.Code(refused);
  }
  const bool isRigid = typeIndex == rigidType;
  const bool isSolid = IsSolidType(typeIndex);
  IdMap<MemoryElement>& registered = isSolid ? solidById_ : elementById_;
  const std::int32_t count = isRigid ? nodeIds[0] : NodeCount(typeIndex);
  if (typeIndex < 1 || NodeCount(typeIndex) == 0 || count < 0 || id < 1 || registered.Find(id) != nullptr) {
    return call.Code(refused);
  }

  // A rigid element names the edge that was made for it, all others their body. Edge and body of line elements have the same id.
  if (lastBody_ == nullptr || lastBody_->id != partId) {
    lastBody_ = FindBody(partId);
  }
  MemoryBody* body = lastBody_;
  MemoryFace* face = nullptr;
  if (isRigid || body == nullptr) {
    if (const MemoryEdge* edge = FindEdge(partId)) {
      body = &edge->body;
      face = edge->face;
    }
  }
  if (body == nullptr) {
    return call.Code(refused);
  }

  MemoryElement made{};
  const std::int32_t neededCount = isRigid ? count : CornerCount(typeIndex);
  if (!FillNodes(made, isRigid ? nodeIds + 1 : nodeIds, count, neededCount)) {
    return call.Code(refused);
  }
  MemoryElement& element = object.context.mesh.elements.Add();
  element = made;
  element.id = id;
  element.typeIndex = typeIndex;
  element.body = body;
  registered.Insert(id, &element);
  highestElementId_ = std::max(highestElementId_, id);
  if (isSolid) {
    if (body->volume == nullptr) {
      body->volume = &MakeFace(topoBody, body->id, *body);
    }
    element.owner = body->volume;
    body->solid.elements.Append(static_cast<MeshElement*>(&element));
    solids.push_back(&element);
  } else {
    MemoryFace& holder = face == nullptr ? body->FirstFace() : *face;
    element.owner = &holder;
    holder.mesh.elements.Append(static_cast<MeshElement*>(&element));
  }
  return call.Code(0);
}

void MemoryModel::GetElement(std::int32_t id, MeshElement** out) {
  Call call(object, "GetElement");
  call.Arguments(id);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  MeshElement* element = FindElement(id);
  if (element == nullptr) {
    call.Withhold(out);
    return;
  }
  *out = element;
  call.Gave(static_cast<const MeshElement*>(element));
}

void MemoryModel::GetSolidElement(std::int32_t id, MeshElement** out, std::int32_t mode) {
  Call call(object, "GetSolidElement");
  call.Arguments(id, mode);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  MeshElement* element = FindSolidElement(id);
  if (element == nullptr) {
    call.Withhold(out);
    return;
  }
  *out = element;
  call.Gave(static_cast<const MeshElement*>(element));
}

std::int32_t MemoryModel::NextElementId() {
  Call call(object, "NextElementId");
  return call.Code(highestElementId_);
}

void MemoryModel::GetAllElements(HashTable** out) {
  Call call(object, "GetAllElements");
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  Arena<MemoryElement>& elements = object.context.mesh.elements;
  if (elementsInTable_ != elements.Size() || allElements_.buckets == nullptr) {
    // Keyed by id, told apart by address: an id may stand for a shell and for a solid.
    HashDestroy(&allElements_);
    HashCreate(&allElements_, static_cast<std::int32_t>(std::min<std::size_t>(elements.Size(), 100000000)), HashFirstInt, ComparePointer,
               nullptr, 0);
    for (elementsInTable_ = 0; elementsInTable_ < elements.Size(); ++elementsInTable_) {
      HashInsert(&allElements_, static_cast<MeshElement*>(&elements[elementsInTable_]));
    }
  }
  *out = &allElements_;
  call.Gave(ElementTable{&allElements_});
}

void MemoryModel::CollectNodeElements(std::int32_t mode, PooledList* nodeList, PooledList* out, std::int32_t flag1, std::int32_t flag2,
                                      std::int32_t flag3, std::int32_t flag4, std::int32_t flag5, std::int32_t flag6, std::int32_t flag7,
                                      std::int32_t flag8, std::int32_t flag9, std::int32_t flag10) {
  Call call(object, "CollectNodeElements");
  call.Arguments(mode, Nodes{nodeList}, flag1, flag2, flag3, flag4, flag5, flag6, flag7, flag8, flag9, flag10);
  if (!call.HasRoom(out) || call.IsFillingRefused()) {
    return;
  }
  MeshRecords& mesh = object.context.mesh;
  const std::uint32_t visit = ++mesh.lastVisit;
  for (MeshNode* node : ReadNodes(object, "CollectNodeElements", nodeList)) {
    static_cast<MemoryNode*>(node)->visit = visit;
  }
  const auto collect = [&](Arena<MemoryElement>& elements) {
    for (std::size_t i = 0; i < elements.Size(); ++i) {
      MemoryElement& element = elements[i];
      const bool usesNode = std::any_of(element.nodes, element.nodes + element.nodeCount, [visit](const MeshNode* node) {
        return node != nullptr && static_cast<const MemoryNode*>(node)->visit == visit;
      });
      if (usesNode) {
        AppendLast(out, static_cast<MeshElement*>(&element));
      }
    }
  };
  collect(mesh.elements);
  collect(mesh.faceRecords);
  call.Gave(Elements{out});
}

// Finishing.

void MemoryModel::Commit(std::int32_t first, std::int32_t second) { Call(object, "Commit").Arguments(first, second); }

void MemoryModel::FinishSolidPart(MeshPart* part, std::int32_t flag1, std::int32_t flag2, std::uint8_t flag3) {
  Call(object, "FinishSolidPart").Arguments(Object{part}, flag1, flag2, flag3);
  Accept(object, "FinishSolidPart", part);
  BuildSolidFaces(*this);
}

void MemoryModel::UpdateTopology(std::int32_t mode) {
  Call(object, "UpdateTopology").Arguments(mode);
  ++topologyUpdates;
  BuildSolidFaces(*this);
}

void MemoryModel::Finish() {
  Call(object, "Finish").Arguments();
  finished = true;
}

std::int32_t MemoryModel::CountDefects(std::int32_t mask) {
  Call call(object, "CountDefects");
  call.Arguments(mask);
  return call.Code(NextAnswer(defects));
}

void MemoryModel::RepairDefects() {
  Call(object, "RepairDefects").Arguments();
  ++repairs;
}

std::int32_t MemoryModel::MergeSplitPart(MeshPart* part) {
  Call call(object, "MergeSplitPart");
  call.Arguments(Object{part});
  Accept(object, "MergeSplitPart", part);
  return call.Code(NextAnswer(merges));
}

void MemoryProject::AttachModel(MeshModel* given, std::int32_t mode) {
  Call(object, "AttachModel").Arguments(Object{given}, mode);
  Accept(object, "AttachModel", given);
  attached = true;
  object.context.handedOver = true;
}

void MemoryProject::GetMeshModel(MeshModel** out, std::uint8_t mode) {
  Call call(object, "GetMeshModel");
  call.Arguments(mode);
  if (call.HasRoom(out) && !call.IsRefused(out)) {
    call.Give(out, model);
  }
}

}  // namespace btz::memory
