// A host with shells whose areas are easy to tell, and a solid: for what a report says of faces.
#pragma once

#include <initializer_list>

#include "memory_host/memory_host.h"
#include "support/pooled_list.h"

namespace btz::cli {

/// Part 7 has a right triangle of area 2 and a square of area 4, part 8 a leaning rectangle of area 10 with mid-side nodes, part 9 a tetrahedron.
class FacedHost {
 public:
  FacedHost() {
    ListCellPoolInit(&cells_);
    host.GetProject()->GetMeshModel(&model_, 1);
    AddNodes();
    plate = MakeFace(7);
    slope = MakeFace(8);
    MakeElement(1, 3, 7, {1, 2, 4});
    MakeElement(2, 5, 7, {1, 2, 3, 4});
    MakeElement(3, 6, 8, {1, 2, 6, 5, 1, 2, 6, 5});
    model_->CreateBody(1, &block, 9, 0, 1, 1);
    const std::int32_t corners[4] = {1, 2, 4, 5};
    model_->CreateElement(4, 7, corners, 9, 0, 1, 0, 0);
  }
  ~FacedHost() { ListCellPoolReset(&cells_); }
  FacedHost(const FacedHost&) = delete;
  FacedHost& operator=(const FacedHost&) = delete;

  BoundaryStore* Store() { return host.GetBoundaryStore(); }
  MeshModel* Model() { return model_; }

  template <typename Target>
  void SetParts(Target* target, std::initializer_list<MeshPart*> given) {
    PooledList parts = ListOf();
    for (MeshPart* part : given) {
      ListAppend(&parts, part);
    }
    target->SetParts(&parts);
    ListClear(&parts);
  }

  PooledList ListOf() {
    PooledList list;
    ListInit(&list, &cells_);
    return list;
  }

  memory::MemoryHost host;
  TopoFace* plate = nullptr;
  TopoFace* slope = nullptr;
  MeshPart* block = nullptr;

 private:
  void AddNodes() {
    const double places[6][3] = {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {0, 3, 4}, {2, 3, 4}};
    std::int32_t id = 0;
    for (const double(&place)[3] : places) {
      model_->CreateNode(++id, place, 0);
    }
  }

  TopoFace* MakeFace(std::int32_t partId) {
    MeshPart* part = nullptr;
    model_->CreateBody(1, &part, partId, 0, 1, 1);
    TopoEntity* face = nullptr;
    model_->CreateTopoEntity(topoFace, &face, partId, part, 1);
    part->AddFace(static_cast<TopoFace*>(face), 1);
    return static_cast<TopoFace*>(face);
  }

  void MakeElement(std::int32_t id, std::int32_t type, std::int32_t partId, std::initializer_list<std::int32_t> nodes) {
    model_->CreateElement(id, type, nodes.begin(), partId, 0, 0, 1, 0);
  }

  MeshModel* model_ = nullptr;
  ListCellPool cells_;
};

}  // namespace btz::cli
