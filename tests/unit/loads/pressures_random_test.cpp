// Random cards of pressures on random meshes read and made into host pressures, compared call by call with the plain way.
#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "loads/plain_pressures.h"
#include "loads/pressure_fixture.h"

namespace btz {
namespace {

using test::Ids;
using test::SecondHost;

class RandomPressures : public test::PressuresTest {
 protected:
  std::int32_t Below(std::uint32_t limit) { return static_cast<std::int32_t>(random() % limit); }

  /// Different nodes of the mesh.
  Ids PickNodes(std::int32_t count) {
    Ids ids;
    while (static_cast<std::int32_t>(ids.size()) < count) {
      const std::int32_t id = 1 + Below(nodeCount);
      if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
        ids.push_back(id);
      }
    }
    return ids;
  }

  /// The same elements in both hosts: shells from 100 on in parts 7 and 8, solids from 200 on in parts 9 and 10.
  void MakeMesh(SecondHost& first, SecondHost& second) {
    static constexpr ElementType shells[] = {elementTria3, elementTria6, elementQuad4, elementQuad8};
    static constexpr ElementType solids[] = {elementTetra4,   elementTetra10, elementHexa8,  elementHexa20,
                                             elementPyramid5, elementWedge6,  elementWedge15};
    std::vector<std::vector<double>> positions;
    for (std::int32_t i = 0; i < nodeCount; ++i) {
      positions.push_back({static_cast<double>(Below(4)), static_cast<double>(Below(9)), 0.1 * Below(7)});
    }
    shellCount = Below(12);
    solidCount = Below(12);
    std::vector<std::pair<ElementType, Ids>> elements;
    for (std::int32_t i = 0; i < shellCount + solidCount; ++i) {
      const ElementType type = i < shellCount ? shells[Below(4)] : solids[Below(7)];
      elements.emplace_back(type, PickNodes(ElementNodeCount[type]));
      // Some lie on the corners of the one before, so that they share sides.
      if (i > 0 && Below(3) == 0) {
        Ids& ids = elements.back().second;
        for (std::size_t corner = 0; corner < 3; ++corner) {
          const std::int32_t shared = elements[static_cast<std::size_t>(i) - 1].second[corner];
          const auto place = std::find(ids.begin(), ids.end(), shared);
          if (place != ids.end()) {
            *place = ids[corner];
          }
          ids[corner] = shared;
        }
      }
    }
    nodesOfSolid.clear();
    for (SecondHost* each : {&first, &second}) {
      model = each->model;
      for (std::int32_t i = 0; i < nodeCount; ++i) {
        model->CreateNode(i + 1, positions[static_cast<std::size_t>(i)].data(), 0);
      }
      ResetParts();
      for (std::int32_t i = 0; i < shellCount + solidCount; ++i) {
        const auto& [type, nodes] = elements[static_cast<std::size_t>(i)];
        const bool isShell = i < shellCount;
        Make(isShell ? 100 + 7 * i : 200 + i, type, nodes, (isShell ? 7 : 9) + i % 2);
        if (!isShell && each == &second) {
          nodesOfSolid[200 + i] = nodes;
        }
      }
      MakeFaces();
      each->trace.clear();
    }
    model = first.model;
  }

  /// Forgets which parts exist: the other host has none of them.
  void ResetParts() {
    HashIterateStart(&PartIdTable);
    while (void* record = HashIterateNext(&PartIdTable)) {
      ReleaseMemory(record);
    }
    HashClear(&PartIdTable);
    ListClear(&PartList);
  }

  /// Reads a random card, and gives it to the plain way as well.
  void AddCard(test::PlainPressures* plain) {
    static constexpr const char* texts[] = {"1.0", "1.0", "2.0", "0.0", "-3.5", "4.0"};
    static constexpr std::int32_t sets[] = {1, 1, 1, 2, 1002, 2003, 0, -4};
    const std::int32_t set = sets[Below(8)];
    const bool isShell = Below(2) == 0;
    // Mostly elements that exist.
    const std::int32_t shells = shellCount == 0 || Below(6) == 0 ? 12 : shellCount;
    const std::int32_t solids = solidCount == 0 || Below(6) == 0 ? 12 : solidCount;
    const std::int32_t element =
        isShell ? 100 + 7 * Below(static_cast<std::uint32_t>(shells)) : 200 + shellCount + Below(static_cast<std::uint32_t>(solids));
    std::string fields = "|" + std::to_string(set) + "|" + std::to_string(element);
    double values[4];
    const std::int32_t spread = 1 + Below(4);
    for (std::int32_t i = 0; i < 4; ++i) {
      const char* text = texts[i == 0 ? Below(6) : Below(6) % spread];
      values[i] = std::stod(text);
      fields += std::string("|") + text;
    }
    if (values[1] == values[2] && values[1] == values[3]) {
      values[1] = values[2] = values[3] = values[0];
    }
    std::int32_t nodes[2] = {};
    if (!isShell) {
      const auto solid = nodesOfSolid.find(element);
      const Ids any = {1, 2, 0};
      const Ids& from = solid == nodesOfSolid.end() ? any : solid->second;
      for (std::int32_t& node : nodes) {
        node = Below(8) == 0 ? Below(nodeCount + 3) : from[static_cast<std::size_t>(Below(static_cast<std::uint32_t>(from.size())))];
      }
      nodes[1] = Below(4) == 0 ? 0 : nodes[1];
    }
    fields += "|" + std::to_string(nodes[0]) + "|" + std::to_string(nodes[1]);
    Read(test::Small("PLOAD4" + fields));
    plain->Add(set, element, values, nodes[0], nodes[1]);
  }

  /// What a pressure covers, its faces and their mesh as they stand.
  static std::string Covered(const SecondHost& each) {
    std::string text;
    for (const memory::MemoryPressure& pressure : each.host.Boundary().pressures) {
      text += "\npressure";
      for (MeshPart* part : pressure.info.parts.As<MeshPart>()) {
        text += " part " + std::to_string(part->GetId()) + ":";
        for (const std::int32_t id : ElementsOf(part)) {
          text += " " + std::to_string(id);
        }
      }
    }
    return text;
  }

  static Ids Marks(SecondHost& each) {
    Ids marks;
    for (std::int32_t id = 1; id <= nodeCount; ++id) {
      MeshNode* node = nullptr;
      each.model->GetNode(id, &node);
      marks.push_back(node->mark);
    }
    return marks;
  }

  /// Numbers of the pressures filed for each set.
  static std::map<std::int32_t, std::vector<std::int32_t>> Filed(const SecondHost& each) {
    std::map<std::int32_t, std::vector<std::int32_t>> filed;
    WalkIndexedList<LoadSetRecord>(&LoadSetTable, [&](LoadSetRecord* set) {
      WalkList<Entity>(&set->items, [&](const Entity* entity) {
        std::int32_t number = 0;
        for (const memory::MemoryPressure& pressure : each.host.Boundary().pressures) {
          ++number;
          if (pressure.info.entity == entity) {
            filed[set->setId].push_back(number);
          }
        }
      });
    });
    return filed;
  }

  static constexpr std::int32_t nodeCount = 40;

  std::mt19937 random{1};
  std::int32_t shellCount = 0;
  std::int32_t solidCount = 0;
  std::map<std::int32_t, Ids> nodesOfSolid;
  std::size_t lines = 0;
};

TEST_F(RandomPressures, GiveTheCallsOfThePlainWay) {
  for (std::uint32_t round = 0; round < 600; ++round) {
    random.seed(round);
    SecondHost first;
    SecondHost second;
    MakeMesh(first, second);
    for (SecondHost* each : {&first, &second}) {
      if (round % 4 == 1) {
        each->host.Refusals().RefuseCall("BoundaryStore.CreatePressure", 1 + static_cast<std::int32_t>(round % 3));
        each->host.Refusals().RefuseCall("CurveStore.CreateField", 1 + static_cast<std::int32_t>(round % 5));
        each->host.Refusals().RefuseCall("MeshModel.CreatePart", 1 + static_cast<std::int32_t>(round % 7));
      }
    }
    test::PlainPressures plain(second.model, second.host.GetBoundaryStore(), second.host.GetCurveStore());
    for (std::int32_t cards = 1 + Below(25); cards > 0; --cards) {
      AddCard(&plain);
    }
    std::int32_t number = 1;
    CreatePressures(first.host.GetBoundaryStore(), first.host.GetCurveStore(), &number);
    plain.CreateLoads();
    first.host.Refusals().Clear();
    second.host.Refusals().Clear();
    ASSERT_EQ(test::LinesOf(first.trace), test::LinesOf(second.trace)) << "round " << round;
    ASSERT_EQ(Covered(first), Covered(second)) << "round " << round;
    ASSERT_EQ(Marks(first), Marks(second)) << "round " << round;
    ASSERT_EQ(Filed(first), plain.loads) << "round " << round;
    lines += test::LinesOf(first.trace).size();

    ReleaseRun(&run);
    ResetProcessState();
    SetUpTables(&run);
  }
  EXPECT_GT(lines, 10000U) << "the decks make something";
}

}  // namespace
}  // namespace btz
