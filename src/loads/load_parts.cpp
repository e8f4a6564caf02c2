#include "loads/load_parts.h"

#include "loads/element_faces.h"
#include "mesh/element_topology.h"
#include "support/bucket_order.h"
#include "support/indexed_list.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

// Working marks of elements. Between two calls every element bears the first.
constexpr std::int32_t markStays = 0;
constexpr std::int32_t markLeaves = 1;  ///< Named by the load, and not yet taken out of its part's mesh.

using Elements = HeapArray<MeshElement*>;

std::int64_t IdOf(const void* pointer) { return static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(pointer)); }

template <typename Visit>
void VisitNodes(const MeshElement* element, Visit visit) {
  const std::int32_t count = TopologyOf(ElementNodeCount, element->typeIndex);
  for (std::int32_t i = 0; i < count; ++i) {
    if (element->nodes[i] != nullptr) {
      visit(element->nodes[i]);
    }
  }
}

/// Marks each element of the list that stands in a face, and enters it once under that face.
void GroupByFace(PooledList* elements, IndexedList* byFace) {
  WalkList<MeshElement>(elements, [&](MeshElement* element) {
    if (!StandsInFace(element) || element->mark == markLeaves) {
      return;
    }
    element->mark = markLeaves;
    VisitNodes(element, [](MeshNode* node) { node->mark = 1; });
    IndexedListAppend(byFace, IdOf(element->owner), element);
  });
}

/// Enters the elements of `byFace` in `sorted`, by face again, but in the order of a table by id that is made for `tableSize` records and in which all
/// ids below 1 count as 0. All at once: a sort of its own for each face would walk as many buckets as the list is long.
void SortByTable(const IndexedList& byFace, std::int32_t tableSize, IndexedList* sorted) {
  Elements elements(static_cast<std::size_t>(byFace.size));
  std::size_t count = 0;
  WalkIndexedList<MeshElement>(&byFace, [&](MeshElement* element) {
    if (count < elements.size()) {
      elements[count++] = element;
    }
  });
  SortByBucket(&elements, (tableSize + 1) | 1, [](const MeshElement* element) { return element->id > 0 ? element->id : 0; });
  for (MeshElement* element : elements) {
    IndexedListAppend(sorted, IdOf(element->owner), element);
  }
}

std::size_t LengthOf(const IndexedCell* chain) {
  std::size_t length = 0;
  for (; chain != nullptr; chain = chain->nextOfId) {
    ++length;
  }
  return length;
}

void CopyChain(const IndexedCell* chain, Elements* elements) {
  for (MeshElement*& element : *elements) {
    element = static_cast<MeshElement*>(chain->record);
    chain = chain->nextOfId;
  }
}

/// Whether a load that names `count` elements of a face names all that its mesh still holds. The count alone does not tell: elements for which the host
/// once refused a part stand in no mesh, but the face is still their owner.
bool AreAllMarked(PooledList* meshElements, std::size_t count) {
  if (meshElements->size == 0 || static_cast<std::size_t>(meshElements->size) > count) {
    return false;
  }
  bool all = true;
  WalkList<MeshElement>(meshElements, [&](const MeshElement* element) { all = all && element->mark == markLeaves; });
  return all;
}

/// Takes the marked elements out of their mesh, `count` at most, and clears their marks. The walk ends with the last of them: many loads on one large
/// part must not cost a walk over the whole part each. Returns how many there were.
std::size_t RemoveMarked(PooledList* meshElements, std::size_t count) {
  std::size_t removed = 0;
  ListRewind(meshElements);
  while (removed < count) {
    auto* element = static_cast<MeshElement*>(ListNext(meshElements));
    if (element == nullptr) {
      break;
    }
    if (element->mark == markLeaves) {
      element->mark = markStays;
      ListRemoveCurrent(meshElements, element);
      ++removed;
    }
  }
  ListRewind(meshElements);
  return removed;
}

/// Puts the elements that were taken out of the old mesh, and their nodes, into the mesh of a new part and makes the part their owner.
void FillMesh(TopoFace* part, FaceMesh* mesh, const Elements& elements) {
  PooledList* meshElements = nullptr;
  PooledList* meshNodes = nullptr;
  mesh->GetElements(&meshElements);
  mesh->GetNodes(&meshNodes);
  if (meshElements == nullptr || meshNodes == nullptr) {
    return;
  }
  for (MeshElement* element : elements) {
    if (element->mark == markLeaves) {
      continue;
    }
    element->owner = part;
    ListAppend(meshElements, element);
    VisitNodes(element, [&](MeshNode* node) { ListAppend(meshNodes, node); });
  }
}

/// A new part, beside `old`, with the elements that were taken out of it; null when the host made none.
TopoFace* SplitOffPart(TopoFace* old, const Elements& elements) {
  MeshPart* parent = nullptr;
  MeshModel* model = nullptr;
  old->GetParent(&parent);
  old->GetModel(&model);
  if (parent == nullptr || model == nullptr) {
    return nullptr;
  }
  const std::int32_t id = model->NextPartId();
  TopoEntity* made = nullptr;
  model->CreatePart(topoFace, &made, id, parent);
  if (made == nullptr) {
    return nullptr;
  }
  auto* part = static_cast<TopoFace*>(made);
  FaceMesh* mesh = nullptr;
  part->GetMesh(&mesh);
  if (mesh != nullptr) {
    FillMesh(part, mesh, elements);
  }
  parent->RegisterChildPart(id, 1, 0);
  ListAppend(&LoadPartList, static_cast<MeshPart*>(part));
  if (mesh != nullptr) {
    mesh->Rebuild();
  }
  part->UpdateBounds();
  part->SetVisible(0);
  part->Finish();
  return part;
}

/// The part list of an entity that can lie on faces; null for others.
PooledList* PartsOf(Entity* entity) {
  PooledList* parts = nullptr;
  switch (entity->GetEntityType()) {
    case entityPressure:
    case entityFlux:
    case entityConvection:
    case entityPartLoad:
      entity->GetParts(&parts);
      break;
    case entityForce:
    case entityAppliedFirst:
    case entityAppliedSecond:
      if (entity->GetApplyKind() != 1) {
        entity->GetAppliedParts(&parts);
      }
      break;
    case entityContact:
      entity->GetContactParts(&parts);
      break;
    case entitySurface:
      entity->GetSurfaceParts(&parts);
      break;
    default:
      break;
  }
  return parts;
}

/// The part that holds exactly these elements of `face`: the face itself, or a new part. Null when it could not be made.
TopoFace* PartFor(TopoFace* face, const Elements& elements, BoundaryStore* boundary) {
  FaceMesh* mesh = nullptr;
  face->GetMesh(&mesh);
  PooledList* meshElements = nullptr;
  if (mesh != nullptr) {
    mesh->GetElements(&meshElements);
  }
  if (meshElements == nullptr) {
    return nullptr;
  }
  if (AreAllMarked(meshElements, elements.size())) {
    ListAppend(&LoadPartList, static_cast<MeshPart*>(face));
    return face;
  }
  if (RemoveMarked(meshElements, elements.size()) == 0) {
    return nullptr;
  }
  mesh->Rebuild();
  TopoFace* part = SplitOffPart(face, elements);
  if (part != nullptr) {
    ReplaceOrAddPartInLoads(face, part, false, boundary);
  }
  return part;
}

}  // namespace

void CollectLoadParts(PooledList* elements, PooledList* parts, BoundaryStore* boundary) {
  if (elements == nullptr || parts == nullptr) {
    return;
  }
  // The faces are met in the order in which the list names them first.
  IndexedList byFace;
  IndexedListInit(&byFace);
  GroupByFace(elements, &byFace);
  IndexedList sorted;
  IndexedListInit(&sorted);
  SortByTable(byFace, elements->size, &sorted);
  WalkIndexedList<MeshElement>(&byFace, [&](const MeshElement* element) {
    TopoFace* face = element->owner;
    const IndexedCell* first = IndexedListFind(&byFace, IdOf(face));
    if (first == nullptr || first->record != element) {
      return;
    }
    const IndexedCell* chain = IndexedListFind(&sorted, IdOf(face));
    Elements ofFace(LengthOf(chain));
    CopyChain(chain, &ofFace);
    TopoFace* part = ofFace.size() == 0 ? nullptr : PartFor(face, ofFace, boundary);
    if (part != nullptr) {
      ListAppend(parts, static_cast<MeshPart*>(part));
    }
  });
  WalkIndexedList<MeshElement>(&byFace, [](MeshElement* element) { element->mark = markStays; });
  IndexedListClear(&sorted);
  IndexedListClear(&byFace);
}

void ReplaceOrAddPartInLoads(MeshPart* oldPart, MeshPart* newPart, bool removeOld, BoundaryStore* boundary) {
  PooledList* entities = nullptr;
  boundary->GetEntities(&entities);
  WalkList<Entity>(entities, [&](Entity* entity) {
    PooledList* parts = PartsOf(entity);
    if (parts == nullptr) {
      return;
    }
    ListRewind(parts);
    for (void* value = ListNext(parts); value != nullptr; value = ListNext(parts)) {
      if (value != oldPart) {
        continue;
      }
      if (removeOld) {
        ListRemoveCurrent(parts, value);
      }
      // The walk goes on behind the part that is put in.
      ListAppend(parts, newPart);
    }
  });
}

}  // namespace btz
