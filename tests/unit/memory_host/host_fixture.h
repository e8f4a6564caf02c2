// A host in memory with its stores at hand, for tests that call it as the translator does. Wrong calls are collected instead of stopping
// the program.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "memory_host/memory_host.h"
#include "support/pooled_list.h"

namespace btz::memory {

/// A list that a caller fills and passes in.
class GivenList {
 public:
  GivenList() {
    ListCellPoolInit(&pool_);
    ListInit(&list_, &pool_);
  }
  explicit GivenList(const std::vector<void*>& values) : GivenList() {
    for (void* value : values) {
      Add(value);
    }
  }
  GivenList(const GivenList&) = delete;
  GivenList& operator=(const GivenList&) = delete;
  ~GivenList() { ListCellPoolReset(&pool_); }

  void Add(void* value) { ListAppend(&list_, value); }
  PooledList* Get() { return &list_; }

 private:
  ListCellPool pool_;
  PooledList list_;
};

/// Values of a list from its first cell to the first null.
template <typename Value>
std::vector<Value*> ValuesOf(PooledList* list) {
  std::vector<Value*> values;
  ListRewind(list);
  while (void* value = ListNext(list)) {
    values.push_back(static_cast<Value*>(value));
  }
  return values;
}

class MemoryHostTest : public testing::Test {
 protected:
  MemoryHostTest() {
    host.SetFaultHandler([this](const std::string& message) { faults.push_back(message); });
    host.GetProject()->GetMeshModel(&model, 1);
  }
  ~MemoryHostTest() override { EXPECT_EQ(faults, expectedFaults); }

  void MakeNode(std::int32_t id, double x, double y, double z) {
    const double xyz[3] = {x, y, z};
    ASSERT_EQ(model->CreateNode(id, xyz, 0), 0);
  }
  /// Nodes 1 to `count` on the x axis.
  void MakeNodes(std::int32_t count) {
    for (std::int32_t id = 1; id <= count; ++id) {
      MakeNode(id, id, 0.0, 0.0);
    }
  }
  MeshPart* MakeBody(std::int32_t id) {
    MeshPart* part = nullptr;
    model->CreateBody(1, &part, id, 0, 1, 1);
    return part;
  }
  TopoFace* MakeFace(MeshPart* part, std::int32_t id) {
    TopoEntity* entity = nullptr;
    model->CreateTopoEntity(2, &entity, id, part, 1);
    return static_cast<TopoFace*>(entity);
  }
  std::int32_t MakeElement(std::int32_t id, std::int32_t type, const std::vector<std::int32_t>& nodes, std::int32_t part) {
    return model->CreateElement(id, type, nodes.data(), part, 0, 0, 0, 0);
  }
  MeshNode* Node(std::int32_t id) {
    MeshNode* node = nullptr;
    model->GetNode(id, &node);
    return node;
  }
  MeshElement* Element(std::int32_t id) {
    MeshElement* element = nullptr;
    model->GetElement(id, &element);
    return element;
  }
  MeshElement* SolidElement(std::int32_t id) {
    MeshElement* element = nullptr;
    model->GetSolidElement(id, &element, 1);
    return element;
  }
  static std::vector<std::int32_t> NodeIds(const MeshElement& element, std::int32_t count) {
    std::vector<std::int32_t> ids;
    for (std::int32_t i = 0; i < count; ++i) {
      ids.push_back(element.nodes[i] == nullptr ? 0 : element.nodes[i]->id);
    }
    return ids;
  }
  static std::vector<std::int32_t> ElementIds(PooledList* list) {
    std::vector<std::int32_t> ids;
    for (const MeshElement* element : ValuesOf<MeshElement>(list)) {
      ids.push_back(element->id);
    }
    return ids;
  }
  static FaceMesh* MeshOf(TopoFace* face) {
    FaceMesh* mesh = nullptr;
    face->GetMesh(&mesh);
    return mesh;
  }
  static PooledList* ElementsOf(TopoFace* face) {
    PooledList* list = nullptr;
    MeshOf(face)->GetElements(&list);
    return list;
  }
  static std::vector<TopoFace*> FacesOf(MeshPart* part) {
    PooledList* list = nullptr;
    part->GetFaceList(&list);
    return ValuesOf<TopoFace>(list);
  }

  MemoryHost host;
  MeshModel* model = nullptr;
  BoundaryStore* boundary = host.GetBoundaryStore();
  std::vector<std::string> faults;
  std::vector<std::string> expectedFaults;
};

}  // namespace btz::memory
