#include "driver/split_faces.h"

#include "loads/load_parts.h"
#include "mesh/parts.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

/// Fills `table` with the faces and parts that loads use. They are only compared: some may be of an earlier run.
void CollectUsed(HashTable* table) {
  HashInit(table);
  HashCreate(table, LoadPartList.size, HashValue, ComparePointer, nullptr, 0);
  WalkList<void>(&LoadPartList, [&](void* used) { HashInsert(table, used); });
}

bool HasElements(TopoFace* face) {
  FaceMesh* mesh = nullptr;
  face->GetMesh(&mesh);
  if (mesh == nullptr) {
    return false;
  }
  PooledList* elements = nullptr;
  mesh->GetElements(&elements);
  return elements != nullptr && elements->size != 0;
}

void SplitFacesOfPart(MeshPart* part, const HashTable* used, RunState& run) {
  if (part->HasMesh() == 0) {
    return;
  }
  PooledList* faces = nullptr;
  part->GetFaceList(&faces);
  PooledList* free = &run.lists.faceScratch;
  WalkList<TopoFace>(faces, [&](TopoFace* face) {
    if (HashFind(used, face) == nullptr && HasElements(face)) {
      ListAppend(free, face);
    }
  });
  if (free->size != 0) {
    part->SplitFaces(free, run.options.splitFaceValue, 0);
  }
  ListClear(free);
}

void MergeSplitParts(MeshModel* model) {
  PooledList* parts = nullptr;
  model->GetParts(&parts);
  WalkList<MeshPart>(parts, [&](MeshPart* part) {
    if (part->HasMesh() == 0) {
      return;
    }
    while (model->MergeSplitPart(part) > 0) {
    }
  });
}

}  // namespace

void SplitFaces(RunState& run) {
  HashTable used;
  CollectUsed(&used);
  WalkList<MeshPart>(&PartList, [&](MeshPart* part) { SplitFacesOfPart(part, &used, run); });
  if (run.options.splitFaceRepair == 1) {
    MergeSplitParts(run.model);
  }
  HashRelease(&used);
}

}  // namespace btz
