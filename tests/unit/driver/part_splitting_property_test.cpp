// What must hold after any deck of pressures, sets and surfaces, checked on whole runs over random meshes: each element lies in one part, and every
// load covers what its cards name, however often its parts were cut later on.
//
// The environment variable BTZ_PROPERTY_SIZE (1 without it) multiplies meshes and decks. At 10 all decks are run, above that a part of them:
//   BTZ_PROPERTY_SIZE=100 btz_unit_tests --gtest_filter='PartSplitting*'
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "tests/unit/driver/random_load_deck.h"
#include "tests/unit/driver/run_fixture.h"

namespace btz::test {
namespace {

using memory::EntityInfo;
using memory::MemoryElement;
using memory::MemoryEntitySet;
using memory::MemoryFace;

std::int32_t SizeFactor() {
  const char* factor = std::getenv("BTZ_PROPERTY_SIZE");
  return factor == nullptr ? 1 : std::max(std::atoi(factor), 1);
}

using Elements = std::vector<const MeshElement*>;

/// What lies in the parts of an entity, in their order.
Elements ElementsIn(const EntityInfo& entity) {
  Elements elements;
  for (MeshPart* part : entity.parts.As<MeshPart>()) {
    const auto* face = static_cast<const MemoryFace*>(static_cast<TopoFace*>(part));
    const Elements ofFace = face->mesh.elements.As<const MeshElement>();
    elements.insert(elements.end(), ofFace.begin(), ofFace.end());
  }
  return elements;
}

/// The elements and face records of a host by what they are in the deck.
class PieceFinder {
 public:
  explicit PieceFinder(const MemoryHost& host) {
    for (const MemoryElement* solid : host.Model().solids) {
      solids_.insert(solid);
    }
    std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t> copies;
    for (std::size_t i = 0; i < host.FaceRecords().Size(); ++i) {
      const MemoryElement& record = host.FaceRecords()[i];
      copyOf_[&record] = copies[{record.solid->id, record.side}]++;
    }
  }

  Piece Of(const MeshElement* element) const {
    const auto* known = static_cast<const MemoryElement*>(element);
    if (known->solid != nullptr) {
      return {PieceKind::Face, known->solid->id, known->side, copyOf_.at(known)};
    }
    return {solids_.count(known) != 0 ? PieceKind::Solid : PieceKind::Shell, known->id, 0, 0};
  }

  Pieces Of(const Elements& elements) const {
    Pieces pieces;
    for (const MeshElement* element : elements) {
      pieces.push_back(Of(element));
    }
    std::sort(pieces.begin(), pieces.end());
    return pieces;
  }

 private:
  std::unordered_set<const MemoryElement*> solids_;
  std::unordered_map<const MemoryElement*, std::int32_t> copyOf_;
};

class PartSplitting : public RunTest {
 protected:
  /// Runs a deck and checks all that must hold.
  void CheckDeck(std::uint32_t seed, std::int32_t size) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", size " + std::to_string(size));
    ResetProcessState();
    const RandomLoadDeck deck(seed, size);
    MemoryHost host;
    std::vector<Elements> pressuresAsMade;
    std::vector<Elements> setsAsMade;
    // An entity gets its name once it has its parts, and once only.
    host.SetHook([&](const char* type, const char* operation) {
      if (std::strcmp(operation, "SetName") != 0) {
        return;
      }
      if (std::strcmp(type, "Pressure") == 0) {
        pressuresAsMade.push_back(ElementsIn(host.Boundary().pressures.back().info));
      } else if (std::strcmp(type, "EntitySet") == 0) {
        setsAsMade.push_back(ElementsIn(host.Boundary().sets.back().info));
      }
    });
    ASSERT_EQ(TranslateDeck(folder.Write("deck.bdf", deck.text).c_str(), nullptr, host.GetBoundaryStore(), host.GetMaterialStore(),
                            host.GetProject(), host.GetCurveStore(), 0.0, 0, 0, 0, host.GetGroupStore(), 0, 0),
              runDone);
    CheckParts(host, deck);
    const PieceFinder pieces(host);
    CheckPressures(host, deck, pieces, pressuresAsMade);
    CheckSets(host, deck, pieces, setsAsMade);
    CountWork(host);
  }

  /// A face owns its elements, which are of its body, and has their nodes.
  static void CheckFace(MemoryFace& face) {
    const Elements elements = face.mesh.elements.As<const MeshElement>();
    ASSERT_EQ(elements.size(), static_cast<std::size_t>(face.mesh.elements.Size()));
    std::vector<const MeshNode*> nodes;
    std::unordered_set<const MeshNode*> met;
    for (const MeshElement* element : elements) {
      const auto* known = static_cast<const MemoryElement*>(element);
      ASSERT_EQ(element->owner, &face);
      // A face that a surface had made may have sides of solids of several bodies.
      ASSERT_TRUE(known->solid != nullptr || known->body == &face.body) << "shell " << element->id << " left its body";
      for (std::int32_t i = 0; i < known->nodeCount; ++i) {
        if (met.insert(element->nodes[i]).second) {
          nodes.push_back(element->nodes[i]);
        }
      }
    }
    ASSERT_EQ(face.mesh.Nodes().As<const MeshNode>(), nodes);
  }

  /// Each element lies in one part, and in the body that the deck says. Elements of a part that its body does not list are missed here.
  static void CheckParts(const MemoryHost& host, const RandomLoadDeck& deck) {
    ASSERT_EQ(host.Elements().Size(), deck.shells.size() + deck.solids.size());
    std::unordered_map<const MeshElement*, int> timesMet;
    for (const memory::MemoryBody& body : host.Model().bodies) {
      for (const MeshElement* element : body.solid.elements.As<const MeshElement>()) {
        ++timesMet[element];
        ASSERT_EQ(element->owner, body.volume);
        ASSERT_EQ(static_cast<const MemoryElement*>(element)->body, &body);
      }
      for (TopoFace* listed : body.faces.As<TopoFace>()) {
        auto& face = *static_cast<MemoryFace*>(listed);
        CheckFace(face);
        for (const MeshElement* element : face.mesh.elements.As<const MeshElement>()) {
          ++timesMet[element];
        }
      }
    }
    ASSERT_EQ(timesMet.size(), host.Elements().Size() + host.FaceRecords().Size());
    for (const auto& [element, times] : timesMet) {
      ASSERT_EQ(times, 1) << "element " << element->id;
    }
    for (const DeckElement& shell : deck.shells) {
      ASSERT_EQ(host.Model().FindElement(shell.id)->body->id, shell.partId);
    }
    for (const DeckElement& solid : deck.solids) {
      ASSERT_EQ(host.Model().FindSolidElement(solid.id)->body->id, solid.partId);
    }
  }

  /// Each pressure covered what its cards name when it was made, and does so at the end of the run.
  static void CheckPressures(const MemoryHost& host, const RandomLoadDeck& deck, const PieceFinder& pieces,
                             const std::vector<Elements>& asMade) {
    const auto& pressures = host.Boundary().pressures;
    ASSERT_EQ(pressures.size(), deck.pressures.size());
    ASSERT_EQ(asMade.size(), deck.pressures.size());
    for (std::size_t i = 0; i < deck.pressures.size(); ++i) {
      ASSERT_EQ(pieces.Of(asMade[i]), deck.pressures[i]) << "pressure " << i + 1 << " as it was made";
      ASSERT_EQ(pieces.Of(ElementsIn(pressures[i].info)), deck.pressures[i]) << "pressure " << i + 1 << " at the end";
    }
  }

  /// Each set has the members that its card names. Required: a surface keeps the parts that it was made of, so of what it covered then it loses what
  /// later loads and surfaces cut out of them, and nothing else.
  static void CheckSets(const MemoryHost& host, const RandomLoadDeck& deck, const PieceFinder& pieces,
                        const std::vector<Elements>& asMade) {
    const auto& sets = host.Boundary().sets;
    ASSERT_EQ(sets.size(), deck.sets.size());
    ASSERT_EQ(asMade.size(), deck.sets.size());
    Pieces namedLater;
    for (const Pieces& pressure : deck.pressures) {
      namedLater.insert(namedLater.end(), pressure.begin(), pressure.end());
    }
    for (std::size_t i = deck.sets.size(); i-- > 0;) {
      SCOPED_TRACE("set " + std::to_string(i + 1));
      const MemoryEntitySet& set = sets[i];
      const NamedSet& named = deck.sets[i];
      ASSERT_EQ(set.kind, named.kind);
      std::vector<std::int32_t> nodeIds;
      for (const MeshNode* node : set.nodes) {
        nodeIds.push_back(node->id);
      }
      ASSERT_EQ(nodeIds, named.nodeIds);
      Pieces elements;
      for (const MeshElement* element : set.elements) {
        elements.push_back(pieces.Of(element));
      }
      ASSERT_EQ(elements, named.elements);

      ASSERT_EQ(pieces.Of(asMade[i]), named.covered);
      namedLater = Distinct(namedLater);
      const Pieces left = pieces.Of(ElementsIn(set.info));
      ASSERT_TRUE(std::includes(named.covered.begin(), named.covered.end(), left.begin(), left.end())) << "it covers more than before";
      Pieces lost;
      std::set_difference(named.covered.begin(), named.covered.end(), left.begin(), left.end(), std::back_inserter(lost));
      ASSERT_TRUE(std::includes(namedLater.begin(), namedLater.end(), lost.begin(), lost.end())) << "it lost what nobody named";
      namedLater.insert(namedLater.end(), named.covered.begin(), named.covered.end());
    }
  }

  void CountWork(const MemoryHost& host) {
    pressures += host.Boundary().pressures.size();
    for (const memory::MemoryPressure& pressure : host.Boundary().pressures) {
      pressureParts += static_cast<std::size_t>(pressure.info.parts.Size());
    }
    for (const MemoryEntitySet& set : host.Boundary().sets) {
      ++setsOfKind[set.kind];
    }
  }

  std::size_t pressures = 0;
  std::size_t pressureParts = 0;
  std::map<std::int32_t, std::size_t> setsOfKind;
};

TEST_F(PartSplitting, KeepsEveryElementInOnePartAndEveryLoadOnWhatItsCardsName) {
  const std::int32_t size = SizeFactor();
  const std::uint32_t decks = size <= 10 ? 2000 : 20000u / static_cast<std::uint32_t>(size);
  for (std::uint32_t seed = 1; seed <= decks && !HasFatalFailure(); ++seed) {
    CheckDeck(seed, size);
  }
  EXPECT_GT(pressures, decks * 2);
  EXPECT_GT(pressureParts, pressures * 2) << "parts are cut again and again";
  for (const std::int32_t kind : {0, 1, 2, 3}) {
    EXPECT_GT(setsOfKind[kind], decks / 8) << "sets of kind " << kind;
  }
}

}  // namespace
}  // namespace btz::test
