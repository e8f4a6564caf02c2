// The mesh model of the in-memory host: two registers of elements, the nodes, the parts and the numbers that are handed out for them. Also
// the project, which only owns the model.
#pragma once

#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

#include "memory_host/host_context.h"
#include "memory_host/topology.h"

namespace btz::memory {

class MemoryModel final : public MeshModel {
 public:
  explicit MemoryModel(HostContext& context);
  ~MemoryModel();

  void SetSourcePath(const char* path) override;
  void GetParts(PooledList** out) override;
  std::int32_t GetDescriptorNumber() override;
  void CreatePart(std::int32_t kind, TopoEntity** out, std::int32_t id, MeshPart* parent) override;
  void CollectNodeElements(std::int32_t mode, PooledList* nodeList, PooledList* out, std::int32_t flag1, std::int32_t flag2,
                           std::int32_t flag3, std::int32_t flag4, std::int32_t flag5, std::int32_t flag6, std::int32_t flag7,
                           std::int32_t flag8, std::int32_t flag9, std::int32_t flag10) override;
  void GetElement(std::int32_t id, MeshElement** out) override;
  void GetNode(std::int32_t id, MeshNode** out) override;
  std::int32_t NextPartId() override;
  std::int32_t CreateElement(std::int32_t id, std::int32_t typeIndex, const std::int32_t* nodeIds, std::int32_t partId,
                             std::uint8_t reserved1, std::int32_t solidFlag, std::uint8_t shellFlag, std::uint8_t reserved2) override;
  std::int32_t CreateNode(std::int32_t id, const double* xyz, std::int32_t mode) override;
  void Commit(std::int32_t first, std::int32_t second) override;
  std::int32_t NextElementId() override;
  std::int32_t NextNodeId() override;
  void GetAllElements(HashTable** out) override;
  void CollectBodies(PooledList* bodyList, std::int32_t flag1, std::int32_t flag2, std::int32_t flag3) override;
  void RepairDefects() override;
  void CreateTopoEntity(std::int32_t kind, TopoEntity** out, std::int32_t partId, MeshPart* part, std::int32_t mode) override;
  void ReservePartId(std::int32_t id) override;
  std::int32_t CountDefects(std::int32_t mask) override;
  void FinishSolidPart(MeshPart* part, std::int32_t flag1, std::int32_t flag2, std::uint8_t flag3) override;
  void Reserve(std::int32_t nodeCount, std::int32_t elementCount) override;
  void UpdateTopology(std::int32_t mode) override;
  void Finish() override;
  void GetSolidElement(std::int32_t id, MeshElement** out, std::int32_t mode) override;
  std::int32_t MergeSplitPart(MeshPart* part) override;
  MeshPart* CreateRigidBody(std::int32_t mode) override;
  void CreateBody(std::int32_t bodyKind, MeshPart** out, std::int32_t partId, std::int32_t flag1, std::int32_t flag2,
                  std::uint8_t flag3) override;
  void ReservePartElements(std::int32_t partId, std::int32_t count) override;

  /// A new face of `body`, kind topoFace, or its volume, kind topoBody. Not entered in the body's list yet.
  MemoryFace& MakeFace(std::int32_t kind, std::int32_t id, MemoryBody& body);
  /// Takes the next part id.
  std::int32_t TakePartId();

  /// The node or element of an id, or null.
  MemoryNode* FindNode(std::int32_t id) const { return nodeById_.Find(id); }
  MemoryElement* FindElement(std::int32_t id) const { return elementById_.Find(id); }
  MemoryElement* FindSolidElement(std::int32_t id) const { return solidById_.Find(id); }
  /// The newest body of an id, or null.
  MemoryBody* FindBody(std::int32_t id) const;

  HostObject object;
  std::string sourcePath;
  std::deque<MemoryBody> bodies;  ///< In order of creation.
  std::deque<MemoryFace> faces;   ///< Faces and volumes.
  std::deque<MemoryEdge> edges;
  std::vector<MemoryElement*> solids;  ///< Solid elements in order of creation.
  std::size_t solidsWithFaces = 0;     ///< How many of them were given their faces.
  std::vector<std::int32_t> defects;   ///< Script: what CountDefects answers, one call after another; then 0.
  std::vector<std::int32_t> merges;    ///< Script: what MergeSplitPart answers.
  std::int32_t reservedNodes = 0;      ///< What Reserve said last.
  std::int32_t reservedElements = 0;
  std::int32_t topologyUpdates = 0;  ///< Calls of UpdateTopology.
  std::int32_t repairs = 0;          ///< Calls of RepairDefects.
  bool finished = false;

 private:
  MemoryBody* BodyOf(MeshPart* part, const char* operation);
  MemoryEdge* FindEdge(std::int32_t id) const;
  void GiveFaceOrEdge(Call& call, std::int32_t kind, TopoEntity** out, std::int32_t id, MemoryBody& body);
  void RaisePartId(std::int32_t takenId);
  bool FillNodes(MemoryElement& element, const std::int32_t* ids, std::int32_t count, std::int32_t neededCount);

  OwnedList bodyList_;
  IdMap<MemoryNode> nodeById_;
  IdMap<MemoryElement> elementById_;
  IdMap<MemoryElement> solidById_;
  std::unordered_map<std::int32_t, MemoryBody*> bodyById_;
  std::unordered_map<std::int32_t, MemoryEdge*> edgeById_;
  MemoryBody* lastBody_ = nullptr;  ///< Body found last: elements of one part follow each other.
  HashTable allElements_;
  std::size_t elementsInTable_ = 0;
  std::int32_t nextPartId_ = 1;
  std::int32_t highestNodeId_ = 0;
  std::int32_t highestElementId_ = 0;
};

class MemoryProject final : public HostProject {
 public:
  explicit MemoryProject(HostContext& context) : object(context, ObjectType::HostProject, this), model(context) {}

  void AttachModel(MeshModel* given, std::int32_t mode) override;
  void GetMeshModel(MeshModel** out, std::uint8_t mode) override;

  HostObject object;
  MemoryModel model;
  bool attached = false;  ///< The model was handed over.
};

}  // namespace btz::memory
