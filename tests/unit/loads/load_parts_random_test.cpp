// Random lists of elements cut out of random parts, beside the plain way.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "driver/tables.h"
#include "loads/load_parts.h"
#include "loads/plain_load_parts.h"
#include "memory_host/memory_host.h"
#include "support/pooled_list.h"

namespace btz {
namespace {

using memory::MemoryFace;

class RandomLoadParts : public testing::Test {
 protected:
  /// A host with shells in some parts and tetrahedra in one, whose sides have faces, and loads on some of the parts.
  struct Case {
    explicit Case(std::uint32_t seed) : random(seed) {
      ResetProcessState();
      ListCellPoolInit(&pool);
      host.GetProject()->GetMeshModel(&model, 1);
      MakeMesh();
      for (const MemoryFace& face : host.Model().faces) {
        placeOf[&face] = placeOf.size();
        test::PlainPart& part = plain.parts.emplace_back();
        part.isFace = face.kind == topoFace;
        part.elements = face.mesh.elements.As<MeshElement>();
        part.nodes = const_cast<MemoryFace&>(face).mesh.Nodes().As<MeshNode>();
      }
      for (MeshElement* element : elements) {
        plain.owners[element] = PlaceOf(element->owner);
      }
      const std::uint32_t loads = Below(5);
      for (std::uint32_t i = 0; i < loads; ++i) {
        MakeLoad();
      }
    }
    ~Case() {
      ListCellPoolReset(&pool);
      ResetProcessState();
    }
    Case(const Case&) = delete;
    Case& operator=(const Case&) = delete;

    std::uint32_t Below(std::uint32_t limit) { return random() % limit; }

    /// The place of a part in order of creation.
    std::size_t PlaceOf(const MeshPart* part) {
      for (std::size_t i = placeOf.size(); i < host.Model().faces.size(); ++i) {
        placeOf[&host.Model().faces[i]] = i;
      }
      return placeOf.at(static_cast<const MemoryFace*>(static_cast<const TopoFace*>(part)));
    }

    void MakeMesh() {
      const std::uint32_t nodes = 4 + Below(20);
      for (std::uint32_t id = 1; id <= nodes; ++id) {
        const double position[3] = {0.0, 0.0, 0.0};
        model->CreateNode(static_cast<std::int32_t>(id), position, 0);
      }
      const std::uint32_t parts = 1 + Below(4);
      std::vector<MeshPart*> bodies;
      for (std::uint32_t id = 1; id <= parts + 1; ++id) {
        bodies.emplace_back();
        model->CreateBody(1, &bodies.back(), static_cast<std::int32_t>(id), 0, 1, 1);
      }
      static constexpr std::int32_t shellTypes[] = {elementTria3, elementQuad4, elementTria6, elementLine2};
      const std::uint32_t shells = 1 + Below(40);
      for (std::uint32_t i = 0; i < shells; ++i) {
        MakeElement(shellTypes[Below(4)], 1 + Below(parts), nodes);
      }
      const std::uint32_t solids = Below(8);
      for (std::uint32_t i = 0; i < solids; ++i) {
        MakeElement(elementTetra4, parts + 1, nodes);
      }
      model->FinishSolidPart(bodies.back(), 0, 0, 0);
      for (const auto* arena : {&host.Elements(), &host.FaceRecords()}) {
        for (std::size_t i = 0; i < arena->Size(); ++i) {
          elements.push_back(const_cast<memory::MemoryElement*>(&(*arena)[i]));
        }
      }
    }

    /// An element with an id that shares buckets with others; a second one of an id is refused.
    void MakeElement(std::int32_t type, std::uint32_t partId, std::uint32_t nodes) {
      std::int32_t ids[6];
      const std::uint32_t first = Below(nodes);
      for (std::uint32_t i = 0; i < 6; ++i) {
        const bool isMid = i >= 3 && type == elementTria6;
        ids[i] = isMid && Below(2) == 0 ? 0 : static_cast<std::int32_t>((first + i) % nodes + 1);
      }
      model->CreateElement(static_cast<std::int32_t>(1 + Below(30) * (1 + Below(9))), type, ids, static_cast<std::int32_t>(partId), 0, 0, 1,
                           0);
    }

    /// A list of some elements, of others several times, in any order.
    std::vector<MeshElement*> Choose() {
      std::vector<MeshElement*> chosen;
      const std::uint32_t start = Below(static_cast<std::uint32_t>(elements.size()));
      const std::uint32_t count = 1 + Below(static_cast<std::uint32_t>(elements.size()) * (Below(6) == 0 ? 3 : 1));
      const bool isRun = Below(3) == 0;
      for (std::uint32_t i = 0; i < count; ++i) {
        const auto size = static_cast<std::uint32_t>(elements.size());
        chosen.push_back(elements[isRun ? (start + i) % size : Below(size)]);
      }
      return chosen;
    }

    /// A load on any faces, now and then on one twice.
    void MakeLoad() {
      std::vector<std::size_t> faces;
      for (std::size_t i = 0; i < plain.parts.size(); ++i) {
        if (plain.parts[i].isFace && Below(2) == 0) {
          faces.insert(faces.end(), 1 + (Below(8) == 0), i);
        }
      }
      switch (Below(5)) {
        case 0:
          return Give<Pressure>(faces, true, [&](Pressure** made) { host.GetBoundaryStore()->CreatePressure(made); });
        case 1:
          return Give<Flux>(faces, true, [&](Flux** made) { host.GetBoundaryStore()->CreateFlux(made); });
        case 2:
          return Give<Convection>(faces, true, [&](Convection** made) { host.GetBoundaryStore()->CreateConvection(made); });
        case 3:
          // Required: a set keeps the parts that it was given.
          return Give<EntitySet>(faces, false, [&](EntitySet** made) { host.GetBoundaryStore()->CreateSet(made); });
        default:
          return MakeSurface();
      }
    }

    /// A surface of an element, which the host takes for one of its face.
    void MakeSurface() {
      Surface* surface = nullptr;
      host.GetBoundaryStore()->CreateSurface(&surface);
      MeshElement* element = elements[Below(static_cast<std::uint32_t>(elements.size()))];
      PooledList list;
      ListInit(&list, &pool);
      ListAppend(&list, element);
      surface->SetElements(&list);
      ListClear(&list);
      plain.loads.push_back({plain.owners.at(element)});
      followers.push_back(&host.Boundary().surfaces.back().info);
    }

    template <typename Load, typename Create>
    void Give(const std::vector<std::size_t>& faces, bool follows, Create create) {
      Load* load = nullptr;
      create(&load);
      PooledList list;
      ListInit(&list, &pool);
      for (const std::size_t face : faces) {
        MeshPart* part = const_cast<MemoryFace*>(&host.Model().faces[face]);
        ListAppend(&list, part);
      }
      load->SetParts(&list);
      ListClear(&list);
      const memory::EntityInfo* info = host.Boundary().entities.back();
      if (follows) {
        plain.loads.push_back(faces);
        followers.push_back(info);
      } else {
        fixed.emplace_back(info, faces);
      }
    }

    std::vector<std::size_t> PlacesOf(const std::vector<MeshPart*>& parts) {
      std::vector<std::size_t> places;
      for (const MeshPart* part : parts) {
        places.push_back(PlaceOf(part));
      }
      return places;
    }

    std::vector<std::size_t> Collect(const std::vector<MeshElement*>& chosen) {
      PooledList list;
      PooledList made;
      ListInit(&list, &pool);
      ListInit(&made, &pool);
      for (MeshElement* element : chosen) {
        ListAppend(&list, element);
      }
      CollectLoadParts(&list, &made, host.GetBoundaryStore());
      std::vector<MeshPart*> parts;
      WalkList<MeshPart>(&made, [&](MeshPart* part) { parts.push_back(part); });
      ListClear(&list);
      ListClear(&made);
      return PlacesOf(parts);
    }

    /// Leaves the cursors of some meshes anywhere, as a host may that uses its lists.
    void MoveCursors() {
      for (const MemoryFace& face : host.Model().faces) {
        PooledList* list = const_cast<MemoryFace&>(face).mesh.elements.Get();
        if (Below(3) == 0) {
          ListRewind(list);
          for (std::uint32_t steps = Below(6); steps > 0; --steps) {
            ListNext(list);
          }
        }
      }
    }

    void Compare() {
      ASSERT_EQ(host.Model().faces.size(), plain.parts.size());
      for (const memory::MemoryBody& body : host.Model().bodies) {
        for (TopoFace* listed : body.faces.As<TopoFace>()) {
          auto* face = static_cast<MemoryFace*>(listed);
          const test::PlainPart& part = plain.parts[PlaceOf(face)];
          ASSERT_EQ(face->mesh.elements.As<MeshElement>(), part.elements);
          ASSERT_EQ(face->mesh.Nodes().As<MeshNode>(), part.nodes);
        }
      }
      for (MeshElement* element : elements) {
        ASSERT_EQ(PlaceOf(element->owner), plain.owners.at(element)) << "element " << element->id;
      }
      for (std::size_t i = 0; i < host.Nodes().Size(); ++i) {
        auto* node = const_cast<memory::MemoryNode*>(&host.Nodes()[i]);
        ASSERT_EQ(node->mark == 1, plain.markedNodes.count(node) != 0) << "node " << node->id;
      }
      for (std::size_t i = 0; i < followers.size(); ++i) {
        ASSERT_EQ(PlacesOf(followers[i]->parts.As<MeshPart>()), plain.loads[i]) << "entity " << followers[i]->id;
      }
      for (const auto& [info, faces] : fixed) {
        ASSERT_EQ(PlacesOf(info->parts.As<MeshPart>()), faces) << "entity " << info->id;
      }
      std::vector<MeshPart*> used;
      for (const ListCell* cell = LoadPartList.next; cell->value != nullptr; cell = cell->next) {
        used.push_back(static_cast<MeshPart*>(cell->value));
      }
      ASSERT_EQ(PlacesOf(used), plain.usedParts);
    }

    std::mt19937 random;
    ListCellPool pool;
    MemoryHost host;
    MeshModel* model = nullptr;
    test::PlainLoadParts plain;
    std::vector<MeshElement*> elements;  ///< Of all kinds, with the faces of solids.
    std::map<const MemoryFace*, std::size_t> placeOf;
    std::vector<const memory::EntityInfo*> followers;                                   ///< Loads that go on covering what they did.
    std::vector<std::pair<const memory::EntityInfo*, std::vector<std::size_t>>> fixed;  ///< Entities that keep their parts.
  };

  void CheckCase(std::uint32_t seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Case random(seed);
    const std::size_t before = random.plain.parts.size();
    if (seed % 3 == 0) {
      random.plain.refusals = static_cast<int>(1 + random.Below(3));
      random.host.Refusals().RefuseCall("MeshModel.CreatePart", random.plain.refusals);
    }
    const std::uint32_t lists = 1 + random.Below(12);
    for (std::uint32_t i = 0; i < lists; ++i) {
      const std::vector<MeshElement*> chosen = random.Choose();
      random.MoveCursors();
      ASSERT_EQ(random.Collect(chosen), random.plain.Collect(chosen));
      ASSERT_NO_FATAL_FAILURE(random.Compare());
      if (random.Below(3) == 0) {
        random.MakeLoad();
      }
    }
    cuts += random.plain.parts.size() - before;
  }

  std::size_t cuts = 0;
};

TEST_F(RandomLoadParts, AreThoseOfThePlainWay) {
  for (std::uint32_t seed = 1; seed <= 1500 && !HasFatalFailure(); ++seed) {
    CheckCase(seed);
  }
  EXPECT_GT(cuts, 5000U) << "the lists cut parts";
}

}  // namespace
}  // namespace btz
