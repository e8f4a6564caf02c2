#include "memory_host/memory_host.h"

#include <algorithm>
#include <cmath>

namespace btz::memory {

namespace {

bool IsMoved(const MemoryNode& node) {
  for (int i = 0; i < 3; ++i) {
    const double now = node.position[i];
    const double then = node.created[i];
    if (now != then && !(std::isnan(now) && std::isnan(then))) {
      return true;
    }
  }
  return false;
}

bool HasNormal(const MeshElement& element) { return element.normal[0] != 0.0 || element.normal[1] != 0.0 || element.normal[2] != 0.0; }

/// Pointers to the records that `isWanted`, by id; records of one id stay in order of creation.
template <typename Record, typename Wanted>
std::vector<const Record*> SortedById(const Arena<Record>& records, Wanted isWanted) {
  std::vector<const Record*> chosen;
  for (std::size_t i = 0; i < records.Size(); ++i) {
    if (isWanted(records[i])) {
      chosen.push_back(&records[i]);
    }
  }
  std::stable_sort(chosen.begin(), chosen.end(), [](const Record* a, const Record* b) { return a->id < b->id; });
  return chosen;
}

}  // namespace

void MemoryHost::BeginRun() {
  context_.handedOver = false;
  project_.attached = false;
}

void MemoryHost::FinishTrace(std::int32_t result) {
  TraceSink* sink = context_.trace;
  if (sink == nullptr) {
    return;
  }
  std::string line;
  ValueWriter writer(context_, line);
  const auto nodes = SortedById(context_.mesh.nodes, [](const MemoryNode& node) { return IsMoved(node) || node.coordinateSystemId != 0; });
  for (const MemoryNode* node : nodes) {
    line = "= ";
    writer.Write(static_cast<const MeshNode*>(node));
    if (IsMoved(*node)) {
      line += " xyz ";
      writer.Write(Point{node->position});
    }
    if (node->coordinateSystemId != 0) {
      line += " cs ";
      writer.Write(node->coordinateSystemId);
    }
    sink->WriteLine(line);
  }
  const auto elements =
      SortedById(context_.mesh.elements, [](const MemoryElement& element) { return element.rigidKind != 0 || HasNormal(element); });
  for (const MemoryElement* element : elements) {
    line = "= ";
    writer.Write(static_cast<const MeshElement*>(element));
    if (element->rigidKind != 0) {
      line += " rigidKind ";
      writer.Write(element->rigidKind);
    }
    if (HasNormal(*element)) {
      line += " normal ";
      writer.Write(Point{element->normal});
    }
    sink->WriteLine(line);
  }
  for (MemoryMaterial& material : materials_.materials) {
    if (material.nameAsSet != material.descriptor.name) {
      line = "= " + material.object.Name() + " name ";
      writer.Write(static_cast<const wchar_t*>(material.descriptor.name));
      sink->WriteLine(line);
    }
  }
  line = "= result ";
  writer.Write(result);
  sink->WriteLine(line);
}

}  // namespace btz::memory
