// `FORCE` and `MOMENT` cards read one by one into the in-memory host, and the forces that the stage makes of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "deck/columns.h"
#include "deck/deck_text.h"
#include "loads/force_loads.h"
#include "loads/forces.h"
#include "loads/load_sets.h"
#include "mesh/mesh_fixture.h"

namespace btz::test {

using Reals = std::vector<double>;

inline Reals RealsOf(const LoadVector& vector) { return {vector[0], vector[1], vector[2]}; }

/// The calls that make one force.
struct ExpectedForce {
  std::string number;  ///< Of the host object.
  std::string force;
  std::string moment;
  std::string csId;
  std::string nodes;
  std::string field;  ///< Empty for a force of a run of coincident nodes, which is told of no field.
  std::string name;

  std::vector<std::string> Calls() const {
    const std::string object = "ForceLoad#" + number;
    std::vector<std::string> calls = {"BoundaryStore.CreateForce() -> 0 " + object,  object + ".SetNodeBased(1)",
                                      object + ".SetForce(" + force + ")",           object + ".SetMoment(" + moment + ")",
                                      object + ".SetCoordinateSystem(" + csId + ")", object + ".SetNodes([" + nodes + "])"};
    if (!field.empty()) {
      calls.push_back(object + ".SetField(" + field + ", 0)");
    }
    calls.push_back(object + ".SetName(\"" + name + "\")");
    return calls;
  }
};

/// The calls that make a field.
inline std::vector<std::string> ExpectedField(const std::string& number, const std::string& rowCount, const std::string& rows) {
  const std::string object = "Field#" + number;
  return {"CurveStore.CreateField() -> " + object, object + ".SetQuantity(\"Force\")", object + ".SetColumnCount(9)",
          object + ".SetRowCount(" + rowCount + ")", object + ".SetRows([" + rows + "])"};
}

/// What a reader left of a text, which it may not have changed nor left.
inline std::string RestOf(const DeckText& text, const std::string& content) {
  EXPECT_EQ(text.Bytes(), content);
  EXPECT_TRUE(text.IsUntouchedBehind());
  EXPECT_LE(text.Place(), content.size());
  return std::string(text.Rest());
}

/// Reads a card cut behind each byte from `first` on.
template <typename Read>
void ReadCutAnywhere(const std::string& card, std::size_t first, Read read) {
  for (std::size_t length = first; length <= card.size(); ++length) {
    read(card.substr(0, length));
  }
}

/// Reads a card with each byte from `first` on changed to what bends a walk, and to `other`.
template <typename Read>
void ReadChangedAnywhere(const std::string& card, std::size_t first, char other, Read read) {
  for (std::size_t at = first; at < card.size(); ++at) {
    for (const char changed : {'\n', '\0', '*', '+', 'E', '9', ',', other}) {
      std::string text = card;
      text[at] = changed;
      read(text);
    }
  }
}

/// The calls one after the other.
inline std::vector<std::string> Joined(const std::vector<std::vector<std::string>>& parts) {
  std::vector<std::string> all;
  for (const std::vector<std::string>& part : parts) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

/// A host with its trace beside that of the fixture.
struct SecondHost {
  SecondHost() {
    host.GetProject()->GetMeshModel(&model, 1);
    host.SetTrace(&sink);
  }

  std::string trace;
  TraceSink sink{&trace};
  MemoryHost host;
  MeshModel* model = nullptr;
};

class ForcesTest : public MeshTest {
 protected:
  void MakeNode(std::int32_t id, double x, double y = 0.0, double z = 0.0) {
    const std::string before = trace;
    const double position[3] = {x, y, z};
    model->CreateNode(id, position, 0);
    trace = before;
  }

  /// Reads a card and returns what it left.
  std::string ReadForce(const std::string& content, const char* name = "") {
    DeckText text(content);
    ReadForceCard(&text.cursor, model, forceReference, name, ++forceCards);
    return RestOf(text, content);
  }

  std::string ReadMoment(const std::string& content, const char* name = "") {
    DeckText text(content);
    ReadMomentCard(&text.cursor, model, momentReference, name, ++momentCards);
    return RestOf(text, content);
  }

  /// A card in small fields with the scale 1: `Force("7|10|0|1.0|2.0|3.0")`.
  void Force(const std::string& fields, const char* name = "") { ReadForce(CardOf("FORCE|", fields), name); }
  void Moment(const std::string& fields, const char* name = "") { ReadMoment(CardOf("MOMENT|", fields), name); }

  static const ForceSetRecord* Set(std::int32_t setId) {
    const IndexedCell* cell = IndexedListFind(&ForceSetTable, setId);
    return cell == nullptr ? nullptr : static_cast<const ForceSetRecord*>(cell->record);
  }

  static const ForceNodeRecord* Node(std::int32_t setId, std::int32_t nodeId) {
    const IndexedCell* cell = IndexedListFind(&ForceNodeTable, PairId(setId, nodeId));
    return cell == nullptr ? nullptr : static_cast<const ForceNodeRecord*>(cell->record);
  }

  /// What the stage tells the host.
  std::vector<std::string> Create() {
    CreateForceLoads(host.GetBoundaryStore(), host.GetCurveStore(), &pointForceNumber);
    return Calls();
  }

  /// How many entities a set's loads are.
  static std::int32_t LoadCount(std::int32_t setId) {
    const LoadSetRecord* record = FindLoadSet(setId, loadSet);
    return record == nullptr ? 0 : record->items.size;
  }

  LoadVector forceReference = {};
  LoadVector momentReference = {};
  std::int32_t forceCards = 0;
  std::int32_t momentCards = 0;
  std::int32_t pointForceNumber = 1;

 private:
  /// Set, node and system, the scale, and the components behind it.
  static std::string CardOf(const char* keyword, const std::string& fields) {
    std::size_t at = 0;
    for (int i = 0; i < 3; ++i) {
      at = fields.find('|', at) + 1;
    }
    return Small(keyword + fields.substr(0, at) + "1.0|" + fields.substr(at));
  }
};

}  // namespace btz::test
