// Parts cut to fit loads in the plainest way, as a model for random tests: for each part all marks are set and cleared again, every list is walked
// whole, and what leaves a part goes through a real table. It keeps parts, elements and loads of its own and asks the host for nothing.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "host/host_interfaces.h"
#include "mesh/element_topology.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz::test {

struct PlainPart {
  bool isFace = true;  ///< Otherwise the volume of a body: it owns solids.
  std::vector<MeshElement*> elements;
  std::vector<MeshNode*> nodes;
};

/// Parts are known by their place in order of creation.
class PlainLoadParts {
 public:
  std::vector<PlainPart> parts;
  std::map<MeshElement*, std::size_t> owners;
  std::set<MeshNode*> markedNodes;
  std::vector<std::vector<std::size_t>> loads;  ///< Part lists of the loads that follow a cut.
  std::vector<std::size_t> usedParts;
  int refusals = 0;  ///< How many new parts the host made before the one that it refuses; none is refused at 0.

  std::vector<std::size_t> Collect(std::vector<MeshElement*> list) {
    const auto length = static_cast<std::int32_t>(list.size());
    std::vector<std::size_t> table;
    std::vector<MeshElement*> onFaces;
    for (MeshElement* element : list) {
      const std::size_t owner = owners.at(element);
      if (!parts[owner].isFace) {
        continue;
      }
      onFaces.push_back(element);
      if (std::find(table.begin(), table.end(), owner) == table.end()) {
        table.push_back(owner);
      }
    }
    list = onFaces;
    std::vector<std::size_t> result;
    for (const std::size_t part : table) {
      for (MeshElement* element : list) {
        marks_[element] = 1;
        ForEachNode(element, [&](MeshNode* node) { markedNodes.insert(node); });
      }
      for (MeshElement* element : parts[part].elements) {
        marks_[element] = 0;
      }
      const std::vector<MeshElement*> taken = TakeUnmarked(&list, length);
      if (taken.empty()) {
        continue;
      }
      if (taken.size() == parts[part].elements.size()) {
        usedParts.push_back(part);
        result.push_back(part);
        continue;
      }
      Remove(taken, &parts[part]);
      if (refusals > 0 && --refusals == 0) {
        continue;
      }
      const std::size_t made = parts.size();
      parts.emplace_back().elements = taken;
      CollectNodes(&parts[made]);
      for (MeshElement* element : taken) {
        owners[element] = made;
      }
      usedParts.push_back(made);
      result.push_back(made);
      for (std::vector<std::size_t>& load : loads) {
        for (std::size_t i = load.size(); i-- > 0;) {
          if (load[i] == part) {
            load.insert(load.begin() + static_cast<std::ptrdiff_t>(i) + 1, made);
          }
        }
      }
    }
    return result;
  }

  static void CollectNodes(PlainPart* part) {
    part->nodes.clear();
    for (MeshElement* element : part->elements) {
      ForEachNode(element, [&](MeshNode* node) {
        if (std::find(part->nodes.begin(), part->nodes.end(), node) == part->nodes.end()) {
          part->nodes.push_back(node);
        }
      });
    }
  }

 private:
  template <typename Visit>
  static void ForEachNode(MeshElement* element, Visit visit) {
    for (std::int32_t i = 0; i < ElementNodeCount[static_cast<std::size_t>(element->typeIndex)]; ++i) {
      if (element->nodes[i] != nullptr) {
        visit(element->nodes[i]);
      }
    }
  }

  /// Moves the entries without a mark out of the list, each once, in the order of a table of the length of the whole list.
  std::vector<MeshElement*> TakeUnmarked(std::vector<MeshElement*>* list, std::int32_t length) {
    HashTable table;
    HashInit(&table);
    HashCreate(&table, length, HashPositiveId, ComparePointer, nullptr, 0);
    std::vector<MeshElement*> left;
    for (MeshElement* element : *list) {
      if (marks_[element] == 0) {
        HashInsert(&table, element);
      } else {
        left.push_back(element);
      }
    }
    *list = left;
    std::vector<MeshElement*> taken;
    WalkTable<MeshElement>(&table, [&](MeshElement* element) { taken.push_back(element); });
    HashRelease(&table);
    return taken;
  }

  static void Remove(const std::vector<MeshElement*>& taken, PlainPart* part) {
    for (MeshElement* element : taken) {
      part->elements.erase(std::find(part->elements.begin(), part->elements.end(), element));
    }
    CollectNodes(part);
  }

  std::map<MeshElement*, int> marks_;
};

}  // namespace btz::test
