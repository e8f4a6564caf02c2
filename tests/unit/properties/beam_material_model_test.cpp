// The choice of materials against a model of it that searches plain lists, on random records, materials, visits and refusals.
#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <set>

#include "properties/beam_property.h"
#include "tests/unit/properties/beam_fixture.h"

namespace btz::test {
namespace {

/// One deck with its host.
struct Scene {
  struct Link {
    std::int32_t materialId;
    std::int32_t number;
  };
  struct Record {
    std::int32_t propertyId;
    std::int32_t materialId;
  };

  std::int32_t offset = 0;            ///< Number of a material less its id.
  std::vector<std::int32_t> numbers;  ///< The host's materials in order of creation.
  std::vector<Link> links;
  std::vector<Record> records;
  std::vector<std::int32_t> visits;  ///< Part ids.
  std::int32_t refusedGet = 0;       ///< Which call is refused, counted from 1; 0 for none.
  std::int32_t refusedMaterial = 0;
  std::int32_t refusedProperty = 0;
};

/// The calls that the visits of a scene must make, step by step.
class ListModel {
 public:
  explicit ListModel(const Scene& start) : scene(start) {}

  std::vector<std::string> Run() {
    for (const std::int32_t partId : scene.visits) {
      Visit(partId);
    }
    return calls;
  }

  Scene scene;
  std::vector<std::string> calls;
  std::set<std::string> ways;  ///< What came up.

 private:
  void Visit(std::int32_t partId) {
    bool materialFetched = false;
    std::int32_t material = 0;  // Order of creation, 0 for none.
    for (Scene::Record& record : scene.records) {
      const auto link = std::find_if(scene.links.begin(), scene.links.end(),
                                     [&](const Scene::Link& candidate) { return candidate.materialId == record.materialId; });
      if (link != scene.links.end()) {
        record.materialId = link->number;
        ways.insert(materialFetched ? "stayed" : "linked");
        if (!materialFetched) {
          material = Get(record.materialId);
        }
      } else if (record.materialId < 1) {
        ways.insert("without material");
        continue;
      } else {
        materialFetched = false;
        material = Get(record.materialId);
        if (material != 0) {
          ways.insert("known");
          materialFetched = true;
        } else {
          Create(record.materialId);
          material = Get(record.materialId);
          ways.insert(material != 0 ? "default found" : "default not found");
        }
      }
      if (record.propertyId != partId) {
        continue;
      }
      if (!CreateProperty(partId, material)) {
        ways.insert("ended");
        return;
      }
    }
  }

  std::int32_t Get(std::int32_t number) {
    const bool refused = ++gets == scene.refusedGet;
    const auto found = std::find(scene.numbers.begin(), scene.numbers.end(), number);
    const std::string call = "MaterialStore.GetMaterial(" + std::to_string(number) + ") -> ";
    if (refused || found == scene.numbers.end()) {
      calls.push_back(call + "null null");
      return 0;
    }
    const auto order = static_cast<std::int32_t>(found - scene.numbers.begin()) + 1;
    calls.push_back(call + "Material#" + std::to_string(order) + " " + std::to_string(order));
    return order;
  }

  void Create(std::int32_t id) {
    const bool refused = ++creates == scene.refusedMaterial;
    const std::int32_t number = id + scene.offset;
    const std::string call = "MaterialStore.CreateMaterial(" + std::to_string(id) + ") -> ";
    if (refused || std::count(scene.numbers.begin(), scene.numbers.end(), number) != 0) {
      calls.push_back(call + "1");
      return;
    }
    scene.numbers.push_back(number);
    scene.links.push_back({id, number});
    calls.push_back(call + "0 Material#" + std::to_string(scene.numbers.size()));
  }

  bool CreateProperty(std::int32_t partId, std::int32_t material) {
    const std::string call = "MaterialStore.CreateProperty(" + std::to_string(partId) + ") -> ";
    if (++propertyCalls == scene.refusedProperty) {
      calls.push_back(call + "1");
      return false;
    }
    const std::string property = "Property#" + std::to_string(++properties);
    calls.push_back(call + "0 " + property);
    calls.push_back(property + ".SetDescriptor(<1, " + (material == 0 ? "null" : "Material#" + std::to_string(material)) +
                    ", \"Bar\", \"Bar\">)");
    return true;
  }

  std::int32_t gets = 0;
  std::int32_t creates = 0;
  std::int32_t propertyCalls = 0;
  std::int32_t properties = 0;
};

/// The same scene in the in-memory host with the real transfer.
class RealRun {
 public:
  RealRun(const Scene& start, bool nullOnFailure) : scene(start), host(Options(start, nullOnFailure)) {
    IndexedListInit(&links);
    IndexedListInit(&records);
    FillHost();
    FillLists();
    Refuse("MaterialStore.GetMaterial", scene.refusedGet);
    Refuse("MaterialStore.CreateMaterial", scene.refusedMaterial);
    Refuse("MaterialStore.CreateProperty", scene.refusedProperty);
  }
  RealRun(const RealRun&) = delete;
  RealRun& operator=(const RealRun&) = delete;

  ~RealRun() {
    for (IndexedList* list : {&links, &records}) {
      WalkIndexedList<void>(list, ReleaseMemory);
      IndexedListClear(list);
    }
  }

  std::vector<std::string> Run() {
    MeshModel* model = nullptr;
    MeshPart* part = nullptr;
    host.GetProject()->GetMeshModel(&model, 1);
    model->CreateBody(1, &part, 5, 0, 1, 1);
    host.SetTrace(&sink);
    const MaterialSource source{host.GetMaterialStore(), &links, CreateDefaultMaterial};
    for (const std::int32_t partId : scene.visits) {
      CreateBeamProperty(part, source, &records, partId, host.GetBoundaryStore(), FindNoSystem);
    }
    std::vector<std::string> calls;
    for (const std::string& line : LinesOf(trace)) {
      if (line.starts_with("MaterialStore.") || line.find(".SetDescriptor(<1, ") != std::string::npos) {
        calls.push_back(line);
      }
    }
    return calls;
  }

  /// Material ids of the records now.
  std::vector<std::int32_t> MaterialIds() const {
    std::vector<std::int32_t> ids;
    WalkIndexedList<BeamPropertyRecord>(&records, [&](const BeamPropertyRecord* record) { ids.push_back(record->materialId); });
    return ids;
  }

 private:
  static HostOptions Options(const Scene& scene, bool nullOnFailure) {
    HostOptions options;
    options.materialNumberOffset = scene.offset;
    options.nullOnFailure = nullOnFailure;
    return options;
  }

  void FillHost() {
    for (const std::int32_t number : scene.numbers) {
      Material* material = nullptr;
      host.GetMaterialStore()->CreateMaterial(&material, number - scene.offset);
    }
  }

  void FillLists() {
    for (const Scene::Link& given : scene.links) {
      auto* link = static_cast<MaterialLink*>(AllocateZeroed(sizeof(MaterialLink)));
      *link = {given.materialId, given.number, nullptr};
      IndexedListAppend(&links, given.materialId, link);
    }
    for (const Scene::Record& given : scene.records) {
      auto* record = static_cast<BeamPropertyRecord*>(AllocateZeroed(sizeof(BeamPropertyRecord)));
      record->propertyId = given.propertyId;
      record->materialId = given.materialId;
      IndexedListAppend(&records, given.propertyId, record);
    }
  }

  void Refuse(const char* operation, std::int32_t call) {
    if (call > 0) {
      host.Refusals().RefuseCall(operation, call);
    }
  }

  Scene scene;
  MemoryHost host;
  IndexedList links;
  IndexedList records;
  std::string trace;
  TraceSink sink{&trace, TraceSink::Coverage::All};
};

class BeamMaterialModelTest : public MeshTest {
 protected:
  std::int32_t Random(std::int32_t least, std::int32_t most) { return std::uniform_int_distribution<std::int32_t>(least, most)(engine); }

  Scene RandomScene() {
    Scene scene;
    scene.offset = Random(-2, 4);
    for (std::int32_t count = Random(0, 7); count > 0; --count) {
      const std::int32_t id = Random(1, 9);
      const std::int32_t number = id + scene.offset;
      if (std::count(scene.numbers.begin(), scene.numbers.end(), number) != 0) {
        continue;
      }
      scene.numbers.push_back(number);
      if (Random(0, 2) != 0) {
        scene.links.push_back({Random(0, 9) == 0 ? 0 : id, number});
      }
    }
    for (std::int32_t count = Random(0, 8); count > 0; --count) {
      scene.records.push_back({Random(5, 8), Random(-1, 10)});
    }
    for (std::int32_t count = Random(1, 6); count > 0; --count) {
      scene.visits.push_back(Random(5, 9));
    }
    scene.refusedGet = std::max(0, Random(-20, 12));
    scene.refusedMaterial = std::max(0, Random(-3, 3));
    scene.refusedProperty = std::max(0, Random(-6, 6));
    return scene;
  }

  std::mt19937 engine{20240607};
};

TEST_F(BeamMaterialModelTest, RandomScenesMakeTheCallsOfTheModel) {
  std::set<std::string> ways;
  for (std::int32_t trial = 0; trial < 3000; ++trial) {
    const Scene scene = RandomScene();
    ListModel listed(scene);
    RealRun real(scene, trial % 2 == 0);
    ASSERT_EQ(real.Run(), listed.Run()) << "trial " << trial;
    std::vector<std::int32_t> ids;
    for (const Scene::Record& record : listed.scene.records) {
      ids.push_back(record.materialId);
    }
    ASSERT_EQ(real.MaterialIds(), ids) << "trial " << trial;
    ways.insert(listed.ways.begin(), listed.ways.end());
  }
  EXPECT_THAT(ways, testing::ElementsAre("default found", "default not found", "ended", "known", "linked", "stayed", "without material"));
}

}  // namespace
}  // namespace btz::test
