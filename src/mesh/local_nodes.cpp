#include "mesh/local_nodes.h"

#include <algorithm>

#include "mesh/coordinate_systems.h"
#include "mesh/element_topology.h"
#include "mesh/nodes.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "support/indexed_list.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

void StoreVector(double (&dest)[3], const Vector& v) { std::copy(v.begin(), v.end(), dest); }

/// Takes the node's coordinates for those in `system` and makes them global.
void MoveNode(MeshNode* node, const CsRecord& system) {
  Vector point = VectorAt(node->position);
  if (system.kind == cylindricalSystem) {
    point = CylindricalToRectangular(point);
  }
  StoreVector(node->position, LocalToGlobal(point, system.rotation, system.translation));
  node->coordinateSystemId = system.id;
}

/// Moves the nodes and collects them in `moved`, each once.
void MoveNodes(MeshModel* model, PooledList* gridCpList, PooledList* coordinateSystemList, HashTable* moved) {
  // By id, the systems are found in the order of their list, as by a walk of it for each node.
  IndexedList systems;
  IndexedListInit(&systems);
  WalkList<CsRecord>(coordinateSystemList, [&](CsRecord* system) { IndexedListAppend(&systems, system->id, system); });
  WalkList<GridCpRecord>(gridCpList, [&](const GridCpRecord* record) {
    for (const IndexedCell* cell = IndexedListFind(&systems, record->cpId); cell != nullptr; cell = cell->nextOfId) {
      MeshNode* node = nullptr;
      model->GetNode(record->nodeId, &node);
      if (node == nullptr) {
        continue;
      }
      MoveNode(node, *static_cast<const CsRecord*>(cell->record));
      HashInsert(moved, node);
    }
  });
  IndexedListClear(&systems);
}

/// Normal by the first three nodes. An element without three nodes has none.
void RenewNormal(MeshElement* element) {
  if (TopologyOf(ElementNodeCount, element->typeIndex) < 3) {
    return;
  }
  MeshNode* const* nodes = element->nodes;
  if (nodes == nullptr || nodes[0] == nullptr || nodes[1] == nullptr || nodes[2] == nullptr) {
    return;
  }
  StoreVector(element->normal, TriangleNormal(VectorAt(nodes[0]->position), VectorAt(nodes[1]->position), VectorAt(nodes[2]->position)));
}

void RenewNormals(MeshModel* model, HashTable* moved) {
  ListCellPool cells;
  ListCellPoolInit(&cells);
  PooledList nodes;
  PooledList elements;
  ListInit(&nodes, &cells);
  ListInit(&elements, &cells);
  WalkTable<MeshNode>(moved, [&](MeshNode* node) { ListAppend(&nodes, node); });
  model->CollectNodeElements(0, &nodes, &elements, 0, 1, 0, 0, 0, 1, 0, 0, 0, 0);
  WalkList<MeshElement>(&elements, RenewNormal);
  ListClear(&nodes);
  ListClear(&elements);
  ListCellPoolReset(&cells);
}

constexpr std::int32_t listedMark = 2;

bool LiesOnListedNodes(const MeshElement& element) {
  const std::int32_t count = TopologyOf(ElementNodeCount, element.typeIndex);
  return std::all_of(element.nodes, element.nodes + count,
                     [](const MeshNode* node) { return node == nullptr || node->mark == listedMark; });
}

bool FaceLiesOnListedNodes(TopoFace* face) {
  FaceMesh* mesh = nullptr;
  face->GetMesh(&mesh);
  if (mesh == nullptr) {
    return true;
  }
  PooledList* elements = nullptr;
  mesh->GetElements(&elements);
  bool covered = true;
  WalkList<MeshElement>(elements, [&](const MeshElement* element) { covered = covered && LiesOnListedNodes(*element); });
  return covered;
}

}  // namespace

void ApplyGridCoordinateSystems(MeshModel* model, PooledList* gridCpList, PooledList* coordinateSystemList) {
  HashTable moved;
  HashInit(&moved);
  HashCreate(&moved, gridCpList->size, HashFirstInt, nullptr, nullptr, 0);
  MoveNodes(model, gridCpList, coordinateSystemList, &moved);
  if (HashCount(&moved) != 0) {
    RenewNormals(model, &moved);
  }
  HashRelease(&moved);
}

bool ElementsCoverOnlyListedNodes(MeshModel* model, PooledList* nodeList, PooledList* bodyList) {
  if (model == nullptr || nodeList == nullptr || bodyList == nullptr) {
    return false;
  }
  model->CollectBodies(bodyList, 0, 0, 0);
  WalkList<MeshNode>(nodeList, [](MeshNode* node) { node->mark = listedMark; });
  bool covered = true;
  WalkList<MeshPart>(bodyList, [&](MeshPart* body) {
    PooledList* faces = nullptr;
    body->GetFaceList(&faces);
    WalkList<TopoFace>(faces, [&](TopoFace* face) { covered = covered && FaceLiesOnListedNodes(face); });
  });
  return covered;
}

}  // namespace btz
