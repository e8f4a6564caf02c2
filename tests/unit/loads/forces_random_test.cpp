// Random cards of forces and moments read and made into host forces, compared call by call with the plain way.
#include <map>
#include <random>
#include <string>
#include <vector>

#include "loads/force_fixture.h"
#include "loads/plain_forces.h"

namespace btz {
namespace {

class RandomForces : public test::ForcesTest {
 protected:
  std::uint32_t Below(std::uint32_t limit) { return random() % limit; }

  template <std::size_t count>
  std::string Pick(const char* const (&choices)[count]) {
    return choices[Below(count)];
  }

  /// Nodes of few places and of ids that share buckets, in both hosts.
  void MakeMesh(test::SecondHost& second) {
    static constexpr double places[] = {0.0, -0.0, 1.0, 2.0, 1e-170, 1e-150, 5.0};
    const std::uint32_t spread = 2 + Below(5);
    for (std::int32_t id = 1; id <= 40; ++id) {
      const std::int32_t used = id % 3 == 0 ? id + 1001 : id;
      const double position[3] = {places[Below(spread + 1)], places[Below(spread)], places[Below(2)]};
      model->CreateNode(used, position, 0);
      second.model->CreateNode(used, position, 0);
    }
  }

  std::string SetId() {
    static constexpr const char* ids[] = {"1", "1", "1", "2", "1002", "2003", "0", "-3", ""};
    return Pick(ids);
  }

  std::string NodeId() {
    const std::uint32_t id = Below(44);
    return std::to_string(id % 3 == 0 ? id + 1001 : id);
  }

  std::string System() {
    static constexpr const char* ids[] = {"0", "0", "", "3", "1004"};
    return Pick(ids);
  }

  std::string Real() {
    static constexpr const char* values[] = {"1.0", "1.0", "1.0", "0.0", "", "-1.0", "2.5", "1.5+3", "+2.", "1.E5", "-0.0", "+", "X"};
    return Pick(values);
  }

  /// One card in any form, mostly whole.
  std::string Card(const char* keyword) {
    const std::string head = SetId() + "|" + NodeId() + "|" + System() + "|" + (Below(3) == 0 ? Real() : "1.0") + "|";
    const std::string components = Real() + "|" + Real() + "|" + Real();
    const std::string end = Below(4) == 0 ? "\r\n" : "\n";
    switch (Below(5)) {
      case 0: {
        std::string card = keyword + ("," + head) + components;
        for (char& c : card) {
          c = c == '|' ? ',' : c;
        }
        return card + end;
      }
      case 1:
        return test::Large(keyword + ("*|" + head), Below(2) == 0 ? end : "*A" + end) + test::Large("*|" + components, end);
      case 2: {
        std::string card = test::Small(keyword + ("|" + head) + components, "");
        card.erase(card.find_last_not_of(' ') + 1);
        return card + end;
      }
      case 3:
        return test::Small(keyword + ("|" + head) + Real() + "||||+B", end) + test::Small("+B|" + Real() + "|" + Real(), end);
      default:
        return test::Small(keyword + ("|" + head) + components, end);
    }
  }

  /// Ids of the forces filed for each set.
  static std::map<std::int32_t, std::vector<std::int32_t>> Filed() {
    std::map<std::int32_t, std::vector<std::int32_t>> filed;
    WalkIndexedList<LoadSetRecord>(&LoadSetTable, [&](LoadSetRecord* set) {
      WalkList<Entity>(&set->items, [&](Entity* entity) { filed[set->setId].push_back(test::IdOf(entity)); });
    });
    return filed;
  }

  static constexpr const char* tails[] = {"", "GRID    7\n", "+       1.0     2.0\n", "        \n", "$ note\n", "*       3.0\n", "\n\n"};

  std::mt19937 random{1};
  std::size_t seen = 0;
};

TEST_F(RandomForces, GiveTheCallsOfThePlainWay) {
  for (std::uint32_t round = 0; round < 400; ++round) {
    random.seed(round);
    forceCards = 0;
    momentCards = 0;
    for (int i = 0; i < 3; ++i) {
      forceReference[i] = 0.0;
      momentReference[i] = 0.0;
    }
    test::SecondHost first;
    test::SecondHost second;
    model = first.model;
    MakeMesh(second);
    for (test::SecondHost* each : {&first, &second}) {
      if (round % 3 == 1) {
        each->host.Refusals().RefuseCall("BoundaryStore.CreateForce", 1 + static_cast<std::int32_t>(round % 4));
        each->host.Refusals().RefuseCall("CurveStore.CreateField", 1 + static_cast<std::int32_t>(round % 3));
      }
    }
    test::PlainForces plain(second.model, second.host.GetBoundaryStore(), second.host.GetCurveStore());

    const std::uint32_t cards = 1 + Below(60);
    const std::uint32_t kinds = Below(3);
    for (std::uint32_t i = 0; i < cards; ++i) {
      const bool isMoment = kinds == 2 ? Below(2) == 0 : kinds == 1;
      const std::string content = Card(isMoment ? "MOMENT" : "FORCE") + (Below(2) == 0 ? Card("FORCE") : Pick(tails));
      const std::string name = Below(3) == 0 ? "Name " + std::to_string(i) : "";
      const std::string rest = isMoment ? ReadMoment(content, name.c_str()) : ReadForce(content, name.c_str());
      ASSERT_EQ(rest, content.substr(plain.Read(content, isMoment, name))) << content;
    }

    std::int32_t number = 1;
    std::int32_t plainNumber = 1;
    CreateForceLoads(first.host.GetBoundaryStore(), first.host.GetCurveStore(), &number);
    plain.CreateLoads(&plainNumber);
    ASSERT_EQ(test::LinesOf(first.trace), test::LinesOf(second.trace)) << "round " << round;
    EXPECT_EQ(number, plainNumber);
    EXPECT_EQ(Filed(), plain.loads) << "round " << round;
    seen += test::LinesOf(first.trace).size();

    ReleaseRun(&run);
    ResetProcessState();
    SetUpTables(&run);
  }
  EXPECT_GT(seen, 10000U) << "the decks make something";
}

}  // namespace
}  // namespace btz
