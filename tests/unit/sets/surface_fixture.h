// Solids, SURF cards read from a file, and the sets of parts that the in-memory host was given.
#pragma once

#include <gmock/gmock.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "loads/load_parts.h"
#include "loads/load_sets.h"
#include "mesh/element_topology.h"
#include "sets/surfaces.h"
#include "tests/unit/deck/columns.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {

/// Solids of the part 7 and cards that name them. The next part that is made gets the number 8.
class SurfaceCardTest : public MeshTest {
 protected:
  explicit SurfaceCardTest(const HostOptions& options = HostOptions()) : MeshTest(options) {
    MakeNodes(30);
    EnsurePart(model, 7, partOfSolids);
    Calls();
  }

  ~SurfaceCardTest() override {
    CloseFile();
    FreeDeckBuffer(&file);
  }

  /// Makes a solid of nodes `first`, `first` + 1 and so on.
  void MakeSolid(std::int32_t id, ElementType type, std::int32_t first = 1, std::int32_t partId = 7) {
    const auto count = static_cast<std::size_t>(TopologyOf(ElementNodeCount, type));
    std::vector<std::int32_t> nodes;
    for (std::size_t i = 0; i < count; ++i) {
      nodes.push_back(first + static_cast<std::int32_t>(i));
    }
    ASSERT_EQ(model->CreateElement(id, type, nodes.data(), partId, 0, 1, 0, 0), 0);
    Calls();
  }

  /// Gives every solid its faces: all sides but the shared ones, in the skin of the part.
  void FinishSolids() {
    model->UpdateTopology(0);
    Calls();
  }

  /// Two bricks of nodes 1 to 12, the second on top of the first. Side 5 of element 1 is side 0 of element 2, so neither has a face there.
  void MakeTwoBricks() {
    MakeSolid(1, elementHexa8, 1);
    MakeSolid(2, elementHexa8, 5);
    FinishSolids();
  }

  MeshElement* SolidElement(std::int32_t id) {
    MeshElement* element = nullptr;
    model->GetSolidElement(id, &element, 1);
    return element;
  }

  /// Puts the deck on a file with this text, its first chunk read.
  void Open(std::string_view text) {
    CloseFile();
    ASSERT_TRUE(AllocateDeckBuffer(&file));
    AttachDeckStream(&file, OpenFileUtf8(folder.Write("surfaces.bdf", text).c_str(), "rb"));
    ASSERT_EQ(ReadDeckChunk(&file), 0);
  }

  /// Reads the card at the start of a file with this text; what stands at the cursor afterwards.
  std::string Read(std::string_view text, const char* name = "Name") {
    Open(text);
    ReadSurfCard(&file, model, boundary, name);
    return file.cursor;
  }

  /// Reads a card of surface 5 with these lines, "element|first node|second node", and another card behind it.
  void ReadLines(const std::vector<std::string>& lines) {
    std::string text = "SURF    5       \n";
    for (const std::string& line : lines) {
      text += Small("+|" + line + "|");
    }
    EXPECT_EQ(Read(text + "ENDDATA\n"), "ENDDATA\n");
  }

  /// The one call of CreateFaces since the last question, without its answer: "[e1], [3]"; "none" when there is none.
  std::string FacesAskedFor() {
    std::string asked = "none";
    for (const std::string& call : Calls()) {
      const std::size_t at = call.find(".CreateFaces(");
      if (at != std::string::npos) {
        EXPECT_EQ(asked, "none") << "more than one call";
        const std::size_t from = at + std::string_view(".CreateFaces(").size();
        asked = call.substr(from, call.find(')') - from);
      }
    }
    return asked;
  }

  /// Takes the face away from a side of a solid, as if the host had made none there.
  void DropFace(std::int32_t elementId, std::int32_t side) { SolidElement(elementId)->faces[side] = nullptr; }

  /// The faces that a set lists, each with the elements that its mesh held at the end: "8: 1:0" is face 8 with side 0 of solid 1. A shell is given by its id.
  static std::string TextOf(const memory::MemoryFace& face) {
    std::string text = std::to_string(face.id) + ":";
    for (const MeshElement* element : face.mesh.elements.As<MeshElement>()) {
      const auto* made = static_cast<const memory::MemoryElement*>(element);
      text += " " + std::to_string(made->id) + (made->solid == nullptr ? "" : ":" + std::to_string(made->side));
    }
    return text;
  }

  /// The parts of the n-th set that the host has made, from 1, in words.
  std::vector<std::string> PartsOfSet(std::size_t number) {
    std::vector<std::string> texts;
    if (number > host.Boundary().sets.size()) {
      return {"no set"};
    }
    for (MeshPart* part : host.Boundary().sets[number - 1].info.parts.As<MeshPart>()) {
      texts.push_back(TextOf(*static_cast<memory::MemoryFace*>(static_cast<TopoFace*>(part))));
    }
    return texts;
  }

  std::size_t SetCount() const { return host.Boundary().sets.size(); }

  /// Numbers of the sets filed under an id, by order of creation from 1.
  std::vector<std::size_t> Filed(std::int32_t setId) const {
    std::vector<std::size_t> numbers;
    LoadSetRecord* record = FindLoadSet(setId, namedSet);
    if (record == nullptr) {
      return numbers;
    }
    WalkList<Entity>(&record->items, [&](const Entity* item) {
      for (std::size_t i = 0; i < SetCount(); ++i) {
        if (static_cast<const Entity*>(&host.Boundary().sets[i]) == item) {
          numbers.push_back(i + 1);
        }
      }
    });
    return numbers;
  }

  DeckBuffer file;
  BoundaryStore* boundary = host.GetBoundaryStore();

 private:
  void CloseFile() {
    if (file.stream != nullptr) {
      std::fclose(file.stream);
      file.stream = nullptr;
    }
  }
};

}  // namespace btz::test
