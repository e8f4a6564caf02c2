// Pressures in the plainest way, as a model for random tests: tables with all their buckets, every element of a list marked for each part, every
// element searched in its mesh.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/host_interfaces.h"
#include "loads/element_faces.h"
#include "mesh/element_topology.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz::test {

/// A card as it is kept.
struct PlainPressureCard {
  MeshElement* element;
  MeshNode* first;
  MeshNode* second;
  double values[4];
};

struct PlainPressureSet {
  std::int32_t setId;
  double pressure;
  bool mixed;
  bool isShell;
  std::vector<PlainPressureCard> cards;
};

class PlainPressures {
 public:
  PlainPressures(MeshModel* usedModel, BoundaryStore* usedBoundary, CurveStore* usedCurves)
      : model(usedModel), boundary(usedBoundary), curves(usedCurves) {
    ListCellPoolInit(&pool);
  }
  ~PlainPressures() { ListCellPoolReset(&pool); }
  PlainPressures(const PlainPressures&) = delete;
  PlainPressures& operator=(const PlainPressures&) = delete;

  /// Enters a card with these values and node ids.
  void Add(std::int32_t setId, std::int32_t elementId, const double* p, std::int32_t g1, std::int32_t g3) {
    PlainPressureSet* set = nullptr;
    for (PlainPressureSet& other : sets) {
      if (other.setId == setId) {
        set = &other;
      }
    }
    if (set == nullptr) {
      sets.push_back({setId, p[0], p[1] != 0.0 && (p[0] != p[1] || p[0] != p[2] || p[1] != p[2]), false, {}});
      set = &sets.back();
    } else if (!set->mixed && p[0] != set->pressure) {
      set->mixed = true;
    }
    PlainPressureCard card = {nullptr, nullptr, nullptr, {p[0], p[1], p[2], p[3]}};
    model->GetNode(g1, &card.first);
    model->GetNode(g3, &card.second);
    set->isShell = g1 == 0 && g3 == 0;
    if (set->isShell) {
      model->GetElement(elementId, &card.element);
    } else {
      model->GetSolidElement(elementId, &card.element, 1);
    }
    set->cards.push_back(card);
  }

  void CreateLoads() {
    for (std::int32_t bucket = 0; bucket < 1001; ++bucket) {
      for (PlainPressureSet& set : sets) {
        if (set.setId >= 0 && set.setId % 1001 == bucket) {
          CreateLoad(set);
        }
      }
    }
  }

  /// Which pressures are filed for a set, by their number.
  std::map<std::int32_t, std::vector<std::int32_t>> loads;

 private:
  static bool AllEqual(const double* p) { return p[0] == p[1] && p[1] == p[2] && p[2] == p[3]; }

  static std::int32_t Corners(const MeshElement* element) { return ElementCornerCount[static_cast<std::size_t>(element->typeIndex)]; }
  static std::int32_t Nodes(const MeshElement* element) { return ElementNodeCount[static_cast<std::size_t>(element->typeIndex)]; }

  void AddRow(double x, double y, double z, double value) { rows.push_back({x, y, z, value}); }

  void AddCentre(const MeshElement* element, double value) {
    double sum[3] = {};
    for (std::int32_t i = 0; i < Corners(element); ++i) {
      for (int j = 0; j < 3; ++j) {
        sum[j] += element->nodes[i]->position[j];
      }
    }
    AddRow(sum[0] / Corners(element), sum[1] / Corners(element), sum[2] / Corners(element), value);
  }

  void AddCorners(const MeshElement* element, std::int32_t position, const double* values) {
    const std::int32_t n = Corners(element);
    for (std::int32_t i = 0; i < n && i < 4; ++i) {
      const MeshNode* node = element->nodes[(position + i) % n];
      if (node->mark != 1) {
        AddRow(node->position[0], node->position[1], node->position[2], values[i]);
      }
    }
  }

  static void Mark(const MeshElement* element, std::int32_t count, std::int32_t mark) {
    for (std::int32_t i = 0; i < count; ++i) {
      if (element->nodes[i] != nullptr) {
        element->nodes[i]->mark = mark;
      }
    }
  }

  void CreateLoad(PlainPressureSet& set) {
    std::size_t length = 0;
    while (length < set.cards.size() && set.cards[length].element != nullptr) {
      ++length;
    }
    set.cards.resize(length);
    rows.clear();
    std::vector<MeshElement*> loaded;
    if (set.isShell) {
      TakeShells(set, &loaded);
    } else {
      TakeFaces(set, &loaded);
    }
    if (set.mixed) {
      set.pressure = 1.0;
    }
    Field* field = nullptr;
    if (!rows.empty()) {
      curves->CreateField(&field);
      if (field == nullptr) {
        return;
      }
      Describe(field);
    }
    PooledList parts;
    ListInit(&parts, &pool);
    Collect(loaded, &parts);
    Pressure* pressure = nullptr;
    if (parts.size != 0 && boundary->CreatePressure(&pressure) == 0) {
      pressure->SetPressure(set.pressure);
      pressure->SetParts(&parts);
      pressure->SetField(field, 0);
      const std::string name = "Pressure" + std::to_string(++made);
      pressure->SetName(std::wstring(name.begin(), name.end()).c_str());
      loads[set.setId].push_back(made);
    }
  }

  void Describe(Field* field) {
    PooledList list;
    ListInit(&list, &pool);
    for (std::vector<double>& row : rows) {
      ListAppend(&list, row.data());
    }
    field->SetQuantity(L"XYZ");
    field->SetColumnCount(4);
    field->SetRowCount(static_cast<std::int32_t>(rows.size()));
    field->SetRows(&list);
    ListClear(&list);
  }

  void TakeShells(const PlainPressureSet& set, std::vector<MeshElement*>* loaded) {
    for (const PlainPressureCard& card : set.cards) {
      loaded->push_back(card.element);
      if (set.mixed) {
        Mark(card.element, Corners(card.element), 0);
      }
    }
    for (const PlainPressureCard& card : set.cards) {
      if (set.mixed && AllEqual(card.values)) {
        AddCentre(card.element, card.values[0]);
      } else if (set.mixed) {
        AddCorners(card.element, 0, card.values);
        Mark(card.element, Corners(card.element), 1);
      }
    }
  }

  void TakeFaces(const PlainPressureSet& set, std::vector<MeshElement*>* loaded) {
    for (const PlainPressureCard& card : set.cards) {
      std::int32_t index = 0;
      if (card.first == nullptr) {
        continue;
      }
      FindElementFace(card.element, card.first->id, card.second == nullptr ? 0 : card.second->id, &index);
      MeshElement* face = card.element->faces == nullptr ? nullptr : card.element->faces[index];
      if (face != nullptr && face->owner->GetTopoKind() == 2) {
        loaded->push_back(face);
      }
    }
    if (!set.mixed) {
      return;
    }
    for (const MeshElement* face : *loaded) {
      Mark(face, Corners(face), 0);
    }
    for (std::size_t i = 0; i < loaded->size(); ++i) {
      const MeshElement* face = (*loaded)[i];
      const PlainPressureCard& card = set.cards[i];
      if (card.first == nullptr) {
        continue;
      }
      if (AllEqual(card.values)) {
        AddCentre(face, card.values[0]);
      } else {
        std::int32_t position = 0;
        while (position < Corners(face) && face->nodes[position]->id != card.first->id) {
          ++position;
        }
        AddCorners(face, position, card.values);
      }
      Mark(face, Nodes(face), 1);
    }
  }

  void Collect(std::vector<MeshElement*> list, PooledList* parts) {
    const auto size = static_cast<std::int32_t>(list.size());
    std::vector<TopoFace*> owners;
    for (std::size_t i = 0; i < list.size();) {
      TopoFace* owner = list[i]->owner;
      if (owner == nullptr || owner->GetTopoKind() != 2) {
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
        continue;
      }
      bool isNew = true;
      for (const TopoFace* known : owners) {
        isNew = isNew && known != owner;
      }
      if (isNew) {
        owners.push_back(owner);
      }
      ++i;
    }
    for (TopoFace* owner : owners) {
      CollectOf(owner, size, &list, parts);
    }
  }

  void CollectOf(TopoFace* owner, std::int32_t size, std::vector<MeshElement*>* list, PooledList* parts) {
    for (MeshElement* element : *list) {
      element->mark = 1;
      Mark(element, Nodes(element), 1);
    }
    FaceMesh* mesh = nullptr;
    owner->GetMesh(&mesh);
    if (mesh == nullptr) {
      return;
    }
    PooledList* elements = nullptr;
    mesh->GetElements(&elements);
    WalkList<MeshElement>(elements, [](MeshElement* element) { element->mark = 0; });
    HashTable table;
    HashInit(&table);
    HashCreate(&table, size, HashPositiveId, ComparePointer, nullptr, 0);
    std::vector<MeshElement*> others;
    for (MeshElement* element : *list) {
      if (element->mark == 0) {
        HashInsert(&table, element);
      } else {
        others.push_back(element);
      }
    }
    *list = others;
    if (HashCount(&table) == elements->size) {
      ListAppend(parts, static_cast<MeshPart*>(owner));
    } else if (HashCount(&table) != 0) {
      Split(owner, mesh, elements, &table, parts);
    }
    HashRelease(&table);
  }

  void Split(TopoFace* owner, FaceMesh* mesh, PooledList* elements, HashTable* table, PooledList* parts) {
    HashIterateStart(table);
    while (void* leaving = HashIterateNext(table)) {
      ListRewind(elements);
      while (void* element = ListNext(elements)) {
        if (element == leaving) {
          ListRemoveCurrent(elements, element);
        }
      }
    }
    mesh->Rebuild();
    MeshPart* parent = nullptr;
    owner->GetParent(&parent);
    TopoEntity* entity = nullptr;
    const std::int32_t id = model->NextPartId();
    model->CreatePart(2, &entity, id, parent);
    if (entity == nullptr) {
      return;
    }
    auto* part = static_cast<TopoFace*>(entity);
    FaceMesh* newMesh = nullptr;
    part->GetMesh(&newMesh);
    PooledList* newElements = nullptr;
    PooledList* newNodes = nullptr;
    newMesh->GetElements(&newElements);
    newMesh->GetNodes(&newNodes);
    HashIterateStart(table);
    while (auto* element = static_cast<MeshElement*>(HashIterateNext(table))) {
      element->owner = part;
      ListAppend(newElements, element);
      for (std::int32_t i = 0; i < Nodes(element); ++i) {
        if (element->nodes[i] != nullptr) {
          ListAppend(newNodes, element->nodes[i]);
        }
      }
    }
    parent->RegisterChildPart(id, 1, 0);
    newMesh->Rebuild();
    part->UpdateBounds();
    part->SetVisible(0);
    part->Finish();
    ListAppend(parts, static_cast<MeshPart*>(part));
    AddBehind(owner, part);
  }

  void AddBehind(MeshPart* owner, MeshPart* part) {
    PooledList* entities = nullptr;
    boundary->GetEntities(&entities);
    ListRewind(entities);
    while (auto* entity = static_cast<Entity*>(ListNext(entities))) {
      PooledList* covered = nullptr;
      entity->GetParts(&covered);
      ListRewind(covered);
      while (void* value = ListNext(covered)) {
        if (value == owner) {
          ListAppend(covered, part);
        }
      }
    }
  }

  MeshModel* model;
  BoundaryStore* boundary;
  CurveStore* curves;
  ListCellPool pool;
  std::vector<PlainPressureSet> sets;
  std::vector<std::vector<double>> rows;
  std::int32_t made = 0;
};

}  // namespace btz::test
