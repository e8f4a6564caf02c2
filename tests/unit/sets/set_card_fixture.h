// SET cards read from a deck, in a model with the nodes and elements that a test asks for, and the sets that the in-memory host was given.
#pragma once

#include <gmock/gmock.h>

#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "loads/load_sets.h"
#include "mesh/element_topology.h"
#include "mesh/nodes.h"
#include "sets/entity_sets.h"
#include "tests/unit/deck/columns.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {

class SetCardTest : public MeshTest {
 protected:
  using MeshTest::MeshTest;

  ~SetCardTest() override {
    CloseFile();
    if (emptyStream != nullptr) {
      std::fclose(emptyStream);
    }
    FreeDeckBuffer(&file);
  }

  /// Makes nodes without a trace, and notes them as cards do.
  void MakeNodes(std::initializer_list<std::int32_t> ids) {
    const std::string before = trace;
    for (const std::int32_t id : ids) {
      const double position[3] = {static_cast<double>(id), 0.0, 0.0};
      model->CreateNode(id, position, 0);
      NoteNodeId(id);
    }
    trace = before;
  }

  /// Makes elements of a type without a trace. Their nodes are not among those that the tests number.
  void MakeElements(ElementType type, std::initializer_list<std::int32_t> ids) {
    MakeNodes({cornerNode});
    const std::string before = trace;
    if (!hasPart) {
      hasPart = true;
      MeshPart* part = nullptr;
      model->CreateBody(1, &part, 7, 0, 1, 1);
    }
    const std::int32_t corners[] = {cornerNode, cornerNode, cornerNode, cornerNode};
    const std::int32_t rigid[] = {2, cornerNode, cornerNode};
    for (const std::int32_t id : ids) {
      ASSERT_EQ(model->CreateElement(id, type, type == elementRigid ? rigid : corners, 7, 0, 0, 1, 0), 0);
    }
    trace = before;
  }
  void MakeShells(std::initializer_list<std::int32_t> ids) { MakeElements(elementTria3, ids); }
  void MakeSolids(std::initializer_list<std::int32_t> ids) { MakeElements(elementTetra4, ids); }
  void MakeRigids(std::initializer_list<std::int32_t> ids) { MakeElements(elementRigid, ids); }

  /// Puts the deck on this text, its first chunk read. A text of one chunk needs no file of its own: behind it stands an empty one.
  void Open(std::string_view text) {
    const bool isOneChunk = text.size() < deckChunkLimit;
    CloseFile();
    ASSERT_TRUE(AllocateDeckBuffer(&file));
    if (!isOneChunk) {
      AttachDeckStream(&file, OpenFileUtf8(folder.Write("sets.bdf", text).c_str(), "rb"));
      ASSERT_EQ(ReadDeckChunk(&file), 0);
      return;
    }
    if (emptyStream == nullptr) {
      emptyStream = OpenFileUtf8(folder.Write("empty.bdf", "").c_str(), "rb");
    }
    AttachDeckStream(&file, emptyStream);
    text.copy(file.block, text.size());
    file.filled = text.size();
  }

  /// Reads the list card at the start of a deck with this text; what stands at the cursor afterwards.
  std::string List(std::string_view text, const char* name = "Name") {
    Open(text);
    ReadSetListCard(&file, model, boundary, name);
    return file.cursor;
  }

  /// Reads the group card at the start of a deck with this text; what stands at the cursor afterwards.
  std::string Group(std::string_view text, const char* name = "Name") {
    Open(text);
    ReadSetGroupCard(&file, model, boundary, name);
    return file.cursor;
  }

  /// Puts the deck on a card in two chunks: `head` is the end of the first one, `tail` the second. The first line of `tail` has 9 characters at least
  /// and does not begin like a continuation line.
  void OpenAcrossChunks(std::string_view head, std::string_view tail) {
    const std::string filler = std::string(deckChunkLimit - 9 - head.size(), 'x') + "\n";
    Open(filler + std::string(head) + std::string(tail));
    ASSERT_EQ(std::string_view(file.block), filler + std::string(head));
    file.cursor += filler.size();
  }

  std::string ListAcrossChunks(std::string_view head, std::string_view tail) {
    OpenAcrossChunks(head, tail);
    ReadSetListCard(&file, model, boundary, "Name");
    return file.cursor;
  }

  std::string GroupAcrossChunks(std::string_view head, std::string_view tail) {
    OpenAcrossChunks(head, tail);
    ReadSetGroupCard(&file, model, boundary, "Name");
    return file.cursor;
  }

  /// The sets that the host has made since the last question, in words: `kind 0 of type 5 "Name": 1 2 3`.
  std::vector<std::string> Sets() {
    std::vector<std::string> texts;
    const auto& sets = host.Boundary().sets;
    for (; seenSets < sets.size(); ++seenSets) {
      const auto& set = sets[seenSets];
      std::string text = "kind " + std::to_string(set.kind) + " of type " + std::to_string(set.memberType) + " \"";
      text.append(set.info.name.begin(), set.info.name.end());
      text += "\":";
      for (const MeshNode* node : set.nodes) {
        text += " " + std::to_string(node->id);
      }
      for (const MeshElement* element : set.elements) {
        text += " " + std::to_string(element->id);
      }
      texts.push_back(text);
    }
    return texts;
  }

  /// The sets that are filed under an id, by the order in which the host made them, from 1.
  std::vector<std::size_t> Filed(std::int32_t setId) const {
    std::vector<std::size_t> numbers;
    const LoadSetRecord* record = FindLoadSet(setId, namedSet);
    if (record == nullptr) {
      return numbers;
    }
    const auto& sets = host.Boundary().sets;
    for (const ListCell* cell = record->items.next; cell != reinterpret_cast<const ListCell*>(&record->items); cell = cell->next) {
      for (std::size_t i = 0; i < sets.size(); ++i) {
        if (static_cast<const Entity*>(&sets[i]) == cell->value) {
          numbers.push_back(i + 1);
        }
      }
    }
    return numbers;
  }

  static constexpr std::int32_t cornerNode = 900000;

  DeckBuffer file;
  BoundaryStore* boundary = host.GetBoundaryStore();

 private:
  void CloseFile() {
    if (file.stream != nullptr && file.stream != emptyStream) {
      std::fclose(file.stream);
    }
    file.stream = nullptr;
  }

  std::FILE* emptyStream = nullptr;
  bool hasPart = false;
  std::size_t seenSets = 0;
};

}  // namespace btz::test
