#include "mesh/parts.h"

#include "support/block_pool.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

HashTable PartIdTable;
HashTable SolidPartCounts;
PooledList PartList;
std::int32_t DefaultPartId = 0;

namespace {

/// Elements for which room is reserved beyond those counted.
constexpr std::int32_t spareElements = 10;

TopoFace* AddFace(MeshModel* model, std::int32_t partId, MeshPart* part) {
  TopoEntity* entity = nullptr;
  model->CreateTopoEntity(2, &entity, partId, part, 1);
  auto* face = static_cast<TopoFace*>(entity);
  if (face != nullptr) {
    part->AddFace(face, 1);
  }
  return face;
}

void AddEdge(MeshModel* model, std::int32_t partId, MeshPart* part, TopoFace* face) {
  TopoEntity* entity = nullptr;
  model->CreateTopoEntity(3, &entity, partId, part, 1);
  if (entity != nullptr && face != nullptr) {
    face->AddEdge(static_cast<TopoEdge*>(entity), 1);
  }
}

void ReserveSolidElements(MeshModel* model, std::int32_t partId) {
  const auto* counted = static_cast<const PropertyElementCountRecord*>(HashFind(&SolidPartCounts, &partId));
  if (counted != nullptr) {
    model->ReservePartElements(partId, counted->elementCount + spareElements);
  }
}

void RememberPartId(std::int32_t partId) {
  auto* record = static_cast<std::int32_t*>(AllocateZeroed(sizeof(std::int32_t)));
  if (record == nullptr) {
    return;
  }
  *record = partId;
  // A negative id is never held: every element of it makes a part of its own.
  if (HashInsert(&PartIdTable, record) == 0) {
    ReleaseMemory(record);
  }
}

}  // namespace

std::int32_t EnsurePart(MeshModel* model, std::int32_t partId, PartKind kind) {
  if (HashFind(&PartIdTable, &partId) != nullptr) {
    return 1;
  }
  MeshPart* part = nullptr;
  const bool made = CreateMeshPart(kind, partId, model, &part);
  if (kind == partOfSolids && HashCount(&SolidPartCounts) != 0) {
    ReserveSolidElements(model, partId);
  }
  if (made) {
    ListAppend(&PartList, part);
  }
  if (model->NextPartId() <= partId) {
    model->ReservePartId(partId);
  }
  RememberPartId(partId);
  return 0;
}

bool CreateMeshPart(PartKind kind, std::int32_t partId, MeshModel* model, MeshPart** partOut) {
  MeshPart* part = nullptr;
  model->CreateBody(1, &part, partId, 0, 1, 1);
  *partOut = part;
  if (part == nullptr) {
    return false;
  }
  if (kind == partOfSurfaces) {
    AddFace(model, partId, part);
  } else if (kind == partOfLines) {
    AddEdge(model, partId, part, AddFace(model, partId, part));
    part->SetLinePartId(partId, 1);
  }
  return true;
}

std::int32_t ResolvePartId(MeshModel* model, std::int32_t pid) {
  if (pid != 0) {
    return pid;
  }
  if (DefaultPartId == 0) {
    DefaultPartId = model->NextPartId();
    model->ReservePartId(DefaultPartId);
  }
  return DefaultPartId;
}

}  // namespace btz
