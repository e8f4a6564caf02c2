// Random decks of SPC, SPCD and SPC1 cards, compared with the slow way: where each card leaves the cursor and what it writes into the text, the
// values that nodes keep, every call to the host, the load sets, and the displacement systems that were used.
#include <random>

#include "tests/unit/loads/loads_fixture.h"
#include "tests/unit/loads/plain_constraints.h"

namespace btz::test {
namespace {

constexpr std::int32_t nodeCount = 12;

class RandomDeck {
 public:
  explicit RandomDeck(std::uint32_t seed) : random_(seed) {}

  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_() % limit); }

  std::string Text(std::uint32_t cardCount) {
    std::string deck;
    for (std::uint32_t i = 0; i < cardCount; ++i) {
      deck += Card();
    }
    return deck;
  }

 private:
  template <std::size_t count>
  std::string OneOf(const char* const (&choices)[count]) {
    return choices[Below(count)];
  }

  std::string Set() { return OneOf({"1", "1", "2", "2", "3", "-4", "1001"}); }
  std::string Node() { return Below(12) == 0 ? OneOf({"0", "-3", "77", ""}) : std::to_string(1 + Below(nodeCount + 2)); }
  std::string Components() {
    return OneOf({"1", "2", "12", "21", "123", "3", "456", "6", "102", "10", "17", "89", "0", "", "-2", "123456"});
  }
  std::string Value() { return OneOf({"0.0", "0.0", "", "0.0", "0.5", "0.5", "-1.5", "2.", "-0.", "1.+1"}); }
  std::string End() { return OneOf({"\n", "\n", "\n", "\n", "\r\n", "   \n", "$ a note\n", "$ a = b\n", "+A\n", "+\n"}); }

  std::string Group() { return "|" + Node() + "|" + Components() + "|" + Value(); }

  std::string SmallSpc() {
    const std::string keyword = OneOf({"SPC|", "SPC|", "SPC|", "SPCD|"});
    const std::string group = Group();
    return Small(keyword + Set() + group + (Below(2) == 0 ? Group() : ""), End());
  }

  std::string ContinuedSpc() {
    const std::string mark = OneOf({"+\n", "*A\n", "\n"});
    switch (Below(3)) {
      case 0:
        return Small("SPC|" + Set(), mark) + Small("+" + Group(), End());
      case 1:
        return Small("SPC|" + Set() + "|" + Node(), mark) + Small("+|" + Components() + "|" + Value() + Group(), End());
      default:
        return Small("SPC|" + Set() + Group() + "|" + Node(), mark) + Small("+|" + Components(), mark) + Small("+|" + Value(), End());
    }
  }

  std::string LargeSpc() {
    const std::string keyword = OneOf({"SPC*|", "SPC*|", "SPCD*|", "SPC**|"});
    const std::string first = Large(keyword + Set() + Group(), OneOf({"*\n", "*\n", "*\n", "+A\n", "\n", "\r\n"}));
    return first + Large(OneOf({"*", "*", "+", "*A"}) + Group(), OneOf({"\n", "\r\n", "*\n"}));
  }

  std::string Spc1() {
    std::string fields = Set() + "|" + Components() + "|" + Node();
    switch (Below(4)) {
      case 0:
        return Small("SPC1|" + fields + "|THRU|" + Node(), End());
      case 1:
        return Large("SPC1*|" + fields + "|THRU", "*SPC0001\n") + Large("*SPC0001|   " + Node());
      case 2:
        return Large("SPC1*|" + fields);
      default:
        return Small("SPC1|" + fields + OneOf({"", "|7|8", "| THRU |9", "|THRUX|9"}), End());
    }
  }

  std::string Card() {
    switch (Below(16)) {
      case 0:
        return OneOf({"SPC,1,5,123,0.5\n", "SPC = 1\n", "SPCADD  1       2\n", "GRID    1\n", "SPC\n", "SPC1,1,2,3\n",
                      "SPC     1       5       1\n"});
      case 1:
      case 2:
        return ContinuedSpc();
      case 3:
      case 4:
        return LargeSpc();
      case 5:
      case 6:
      case 7:
        return Spc1();
      default:
        return SmallSpc();
    }
  }

  std::mt19937 random_;
};

/// A second host beside the fixture's, for the slow way.
class ConstraintsRandomTest : public LoadsTest {
 protected:
  /// Reads all cards of the text as a pass does; where each left the cursor.
  std::vector<std::size_t> ReadAll(DeckText* text) {
    std::vector<std::size_t> places;
    while (*text->cursor != 0) {
      if (std::strncmp(text->cursor, "SPC1", 4) == 0) {
        ReadSpc1Card(model, &text->cursor, &run.lists.spc1);
      } else if (std::strncmp(text->cursor, "SPC", 3) == 0) {
        ReadSpcCard(&text->cursor, &run.lists.spc);
      } else {
        text->cursor += std::strcspn(text->cursor, "\n");
        text->cursor += *text->cursor == '\n' ? 1 : 0;
      }
      places.push_back(text->Place());
    }
    return places;
  }

  /// Gives some nodes a system, for both ways.
  void GiveSystems(RandomDeck* random, PlainConstraints* plain) {
    for (std::int32_t id = 1; id <= nodeCount; ++id) {
      if (random->Below(5) == 0) {
        const auto systemId = static_cast<std::int32_t>(10 + random->Below(3));
        GiveSystem(id, systemId);
        plain->systems[id] = {systemId, false};
      }
    }
  }

  void RefuseSome(RandomDeck* random, MemoryHost* other) {
    if (random->Below(3) != 0) {
      return;
    }
    const auto call = static_cast<std::int32_t>(1 + random->Below(4));
    const char* operation = random->Below(2) == 0 ? "BoundaryStore.CreateConstraint" : "CurveStore.CreateField";
    host.Refusals().RefuseCall(operation, call);
    other->Refusals().RefuseCall(operation, call);
  }

  /// Load sets as text, entities by their place among the constraints of their host.
  template <typename Sets>
  static std::vector<std::string> SetTexts(const Sets& sets, const MemoryHost& owner) {
    std::vector<std::string> texts;
    for (const auto& [key, items] : sets) {
      std::string text = std::to_string(key.first) + " " + std::to_string(key.second) + ":";
      for (const Entity* item : items) {
        std::size_t place = 0;
        while (static_cast<const Entity*>(&owner.Boundary().constraints[place]) != item) {
          ++place;
        }
        text += " " + std::to_string(place);
      }
      texts.push_back(text);
    }
    return texts;
  }

  static std::map<std::pair<std::int32_t, std::int32_t>, std::vector<const Entity*>> LoadSets() {
    std::map<std::pair<std::int32_t, std::int32_t>, std::vector<const Entity*>> sets;
    WalkIndexedList<LoadSetRecord>(&LoadSetTable, [&](LoadSetRecord* record) {
      WalkList<Entity>(&record->items, [&](const Entity* item) { sets[{record->setId, record->kind}].push_back(item); });
    });
    return sets;
  }

  static std::map<std::int32_t, double> EnforcedValues() {
    std::map<std::int32_t, double> values;
    WalkIndexedList<NodeEnforcedValue>(&NodeEnforcedValueTable, [&](const NodeEnforcedValue* record) {
      EXPECT_TRUE(values.emplace(record->nodeId, record->value).second);
    });
    return values;
  }
};

class ConstraintsRandomSeedTest : public ConstraintsRandomTest, public testing::WithParamInterface<std::uint32_t> {};

TEST_P(ConstraintsRandomSeedTest, FastAndSlowWayAgree) {
  MemoryHost other;
  MeshModel* otherModel = nullptr;
  other.GetProject()->GetMeshModel(&otherModel, 1);
  for (std::int32_t id = 1; id <= nodeCount; ++id) {
    const double position[3] = {static_cast<double>(id), -0.5, 10.0 * id};
    model->CreateNode(id, position, 0);
    otherModel->CreateNode(id, position, 0);
  }
  std::string otherTrace;
  TraceSink all(&trace, TraceSink::Coverage::All);
  TraceSink otherAll(&otherTrace, TraceSink::Coverage::All);
  host.SetTrace(&all);
  other.SetTrace(&otherAll);
  trace.clear();

  RandomDeck random(GetParam());
  const std::string deck = random.Text(1 + random.Below(60));
  PlainConstraints plain(otherModel, other.GetBoundaryStore(), other.GetCurveStore());
  GiveSystems(&random, &plain);
  RefuseSome(&random, &other);
  plain.Read(deck);
  DeckText text(deck);
  EXPECT_EQ(ReadAll(&text), plain.places) << deck;
  EXPECT_EQ(text.Bytes(), plain.text);
  EXPECT_EQ(EnforcedValues(), plain.enforcedValues) << deck;

  plain.CreateConstraints();
  CreateSpcConstraints(model, boundary, &run.lists.spc, &run.gridCdTable, host.GetCurveStore());
  CreateSpc1Constraints(boundary, &run.lists.spc1, &run.gridCdTable);
  EXPECT_EQ(LinesOf(trace), LinesOf(otherTrace)) << deck;
  EXPECT_EQ(SetTexts(LoadSets(), host), SetTexts(plain.sets, other)) << deck;
  for (const auto& [nodeId, system] : plain.systems) {
    EXPECT_EQ(static_cast<const GridCdRecord*>(HashFind(&run.gridCdTable, &nodeId))->used != 0, system.second) << nodeId << "\n" << deck;
  }
}

INSTANTIATE_TEST_SUITE_P(Decks, ConstraintsRandomSeedTest, testing::Range(1u, 1501u));

}  // namespace
}  // namespace btz::test
