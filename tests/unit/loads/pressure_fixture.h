// A mesh of shells and solids in the in-memory host, `PLOAD4` cards read one by one, and the pressures that the stage makes of them.
#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "deck/columns.h"
#include "deck/deck_text.h"
#include "loads/force_fixture.h"
#include "loads/load_parts.h"
#include "loads/load_sets.h"
#include "loads/pressure_loads.h"
#include "loads/pressures.h"
#include "mesh/element_topology.h"
#include "mesh/mesh_fixture.h"

namespace btz::test {

using Ids = std::vector<std::int32_t>;

/// The calls that split a new part off.
inline std::vector<std::string> ExpectedSplit(const std::string& oldMesh, const std::string& id, const std::string& body,
                                              const std::string& face, const std::string& newMesh) {
  return {oldMesh + ".Rebuild()",
          "MeshModel.CreatePart(2, " + id + ", " + body + ") -> " + face,
          body + ".RegisterChildPart(" + id + ", 1, 0)",
          newMesh + ".Rebuild()",
          face + ".UpdateBounds()",
          face + ".SetVisible(0)",
          face + ".Finish()"};
}

class PressuresTest : public MeshTest {
 protected:
  PressuresTest() { ListInit(&parts, &ListPool); }
  ~PressuresTest() override {
    ListClear(&parts);
    ListClear(&LoadPartList);
  }

  void MakeNode(std::int32_t id, double x, double y = 0.0, double z = 0.0) {
    const std::string before = trace;
    const double position[3] = {x, y, z};
    EXPECT_EQ(model->CreateNode(id, position, 0), 0);
    trace = before;
  }

  /// Makes an element in a part, which is made if it does not exist, without a trace.
  MeshElement* Make(std::int32_t id, ElementType type, const Ids& nodes, std::int32_t partId) {
    const std::string before = trace;
    const bool isSolid = type >= elementTetra4 && type != elementConnection;
    EnsurePart(model, partId, isSolid ? partOfSolids : partOfSurfaces);
    EXPECT_EQ(model->CreateElement(id, type, nodes.data(), partId, 0, isSolid ? 1 : 0, isSolid ? 0 : 1, 0), 0);
    trace = before;
    return isSolid ? Solid(id) : Shell(id);
  }

  /// Gives all solids their faces.
  void MakeFaces() {
    const std::string before = trace;
    model->UpdateTopology(0);
    trace = before;
  }

  MeshNode* Node(std::int32_t id) {
    MeshNode* node = nullptr;
    model->GetNode(id, &node);
    return node;
  }

  MeshElement* Shell(std::int32_t id) {
    MeshElement* element = nullptr;
    model->GetElement(id, &element);
    return element;
  }

  MeshElement* Solid(std::int32_t id) {
    MeshElement* element = nullptr;
    model->GetSolidElement(id, &element, 1);
    return element;
  }

  /// Reads a card and returns what it left.
  std::string Read(const std::string& content) {
    DeckText text(content);
    ReadPload4Card(&text.cursor, model, reference);
    return RestOf(text, content);
  }

  /// A card in small fields with blanks up to the last value's column: `Card("1|10|2.0")` is a uniform pressure on a shell.
  void Card(const std::string& fields) {
    std::string card = "PLOAD4|" + fields;
    while (std::count(card.begin(), card.end(), '|') < 8) {
      card += '|';
    }
    EXPECT_EQ(Read(Small(card) + "ENDDATA\n"), (card.back() == '|' ? "ENDDATA\n" : "\nENDDATA\n")) << fields;
  }

  static const PressureSetRecord* Set(std::int32_t setId) {
    const IndexedCell* cell = IndexedListFind(&PressureSetTable, setId);
    return cell == nullptr ? nullptr : static_cast<const PressureSetRecord*>(cell->record);
  }

  static std::string TextOf(const CornerValues& values) {
    char text[128];
    std::snprintf(text, sizeof(text), "(%g %g %g %g)", values[0], values[1], values[2], values[3]);
    return text;
  }

  /// The cards of a set in words: "e10 n1 n7 (1 1 1 1)", with "-" for what is missing.
  static std::vector<std::string> Cards(std::int32_t setId) {
    const PressureSetRecord* set = Set(setId);
    std::vector<std::string> cards;
    const auto name = [](const char* letter, const auto* object) { return object == nullptr ? "-" : letter + std::to_string(object->id); };
    for (const PressureCard* card = set == nullptr ? nullptr : set->first; card != nullptr; card = card->next) {
      cards.push_back(name("e", card->element) + " " + name("n", card->firstNode) + " " + name("n", card->secondNode) + " " +
                      TextOf(card->values));
    }
    return cards;
  }

  /// What the stage tells the host.
  std::vector<std::string> Create() {
    CreatePressures(boundary, host.GetCurveStore(), &nameNumber);
    return Calls();
  }

  /// The elements that a part's mesh holds, in order.
  static Ids ElementsOf(MeshPart* part) {
    FaceMesh* mesh = nullptr;
    static_cast<TopoFace*>(part)->GetMesh(&mesh);
    PooledList* list = nullptr;
    mesh->GetElements(&list);
    Ids ids;
    WalkList<MeshElement>(list, [&](const MeshElement* element) { ids.push_back(element->id); });
    return ids;
  }

  /// The parts of a list, each with the elements that it holds.
  static std::vector<Ids> PartsOf(PooledList* list) {
    std::vector<Ids> found;
    WalkList<void>(list, [&](void* part) { found.push_back(ElementsOf(static_cast<MeshPart*>(part))); });
    return found;
  }

  /// The parts that the n-th pressure covers now, counted from 1.
  std::vector<Ids> PartsOfPressure(std::size_t n) const { return PartsOf(ListOfPressure(n)); }

  /// Null when there are not so many pressures.
  PooledList* ListOfPressure(std::size_t n) const {
    PooledList* list = nullptr;
    if (n <= host.Boundary().pressures.size()) {
      EntityOf(n)->GetParts(&list);
    }
    return list;
  }

  Entity* EntityOf(std::size_t n) const { return host.Boundary().pressures[n - 1].info.entity; }

  BoundaryStore* boundary = host.GetBoundaryStore();
  PooledList parts;  ///< For CollectLoadParts.
  CornerValues reference = {};
  std::int32_t nameNumber = 1;
};

}  // namespace btz::test
