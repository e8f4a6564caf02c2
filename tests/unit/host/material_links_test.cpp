// Materials by the id of their card: the first link counts, and a default material is made where the host has none.
#include "host/material_links.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>
#include <vector>

#include "memory_host/memory_host.h"

namespace btz::test {
namespace {

class MaterialLinksTest : public testing::Test {
 protected:
  MaterialLinksTest() { IndexedListInit(&materials); }
  ~MaterialLinksTest() override { IndexedListClear(&materials); }

  void AddLink(MaterialLink* link) { IndexedListAppend(&materials, link->materialId, link); }

  /// What becomes of an id; -1 in front when it has no link.
  std::vector<std::int32_t> Resolve(std::int32_t id) {
    if (ResolveMaterialNumber(&materials, &id)) {
      return {id};
    }
    return {-1, id};
  }

  IndexedList materials;
};

TEST_F(MaterialLinksTest, AnIdBecomesTheNumberOfTheHost) {
  MaterialLink steel{5, 105, nullptr};
  MaterialLink rubber{6, 7, nullptr};
  AddLink(&steel);
  AddLink(&rubber);
  EXPECT_EQ(Resolve(5), std::vector<std::int32_t>{105});
  EXPECT_EQ(Resolve(6), std::vector<std::int32_t>{7});
}

TEST_F(MaterialLinksTest, AnIdWithoutALinkStays) {
  MaterialLink steel{5, 105, nullptr};
  EXPECT_EQ(Resolve(5), (std::vector<std::int32_t>{-1, 5}));
  AddLink(&steel);
  EXPECT_EQ(Resolve(105), (std::vector<std::int32_t>{-1, 105}));
  EXPECT_EQ(Resolve(0), (std::vector<std::int32_t>{-1, 0}));
}

TEST_F(MaterialLinksTest, TheFirstLinkOfAnIdCounts) {
  MaterialLink first{5, 1, nullptr};
  MaterialLink second{5, 2, nullptr};
  AddLink(&first);
  AddLink(&second);
  EXPECT_EQ(Resolve(5), std::vector<std::int32_t>{1});
}

TEST_F(MaterialLinksTest, AnyIntegerCanBeAnId) {
  MaterialLink zero{0, 3, nullptr};
  MaterialLink lowest{-2147483647 - 1, 4, nullptr};
  AddLink(&zero);
  AddLink(&lowest);
  EXPECT_EQ(Resolve(0), std::vector<std::int32_t>{3});
  EXPECT_EQ(Resolve(-2147483647 - 1), std::vector<std::int32_t>{4});
}

TEST_F(MaterialLinksTest, TheIndexFindsWhatAWalkFromTheStartWouldFind) {
  std::mt19937 random(7);
  std::uniform_int_distribution<std::int32_t> anyId(-200, 2000);
  std::deque<MaterialLink> links;
  for (std::int32_t number = 1; number <= 2000; ++number) {
    AddLink(&links.emplace_back(MaterialLink{anyId(random), number, nullptr}));
    const std::int32_t asked = anyId(random);
    std::vector<std::int32_t> expected{-1, asked};
    for (const MaterialLink& link : links) {
      if (link.materialId == asked) {
        expected = {link.number};
        break;
      }
    }
    ASSERT_EQ(Resolve(asked), expected) << "id " << asked << " among " << number << " links";
  }
}

// Look-ups in a host; the default material is a bare one, its calls are counted.

std::int32_t made = 0;

void MakeBareMaterial(MaterialStore* store, IndexedList* /*materials*/, std::int32_t materialId) {
  ++made;
  Material* material = nullptr;
  store->CreateMaterial(&material, materialId);
}

class HostMaterialTest : public MaterialLinksTest {
 protected:
  explicit HostMaterialTest(const HostOptions& options = HostOptions()) : host(options) { made = 0; }

  Material* GetOrMake(std::int32_t id, bool* wasKnown) { return GetOrMakeMaterial({store, &materials, MakeBareMaterial}, id, wasKnown); }

  MemoryHost host;
  MaterialStore* store = host.GetMaterialStore();
};

TEST_F(HostMaterialTest, AKnownMaterialIsTaken) {
  Material* material = nullptr;
  store->CreateMaterial(&material, 5);
  bool wasKnown = false;
  EXPECT_EQ(GetOrMake(5, &wasKnown), material);
  EXPECT_TRUE(wasKnown);
  EXPECT_EQ(made, 0);
}

TEST_F(HostMaterialTest, AnUnknownMaterialIsMadeOnceAndLookedUpAgain) {
  bool wasKnown = true;
  Material* material = GetOrMake(5, &wasKnown);
  EXPECT_NE(material, nullptr);
  EXPECT_EQ(material, GetHostMaterial(store, 5));
  EXPECT_FALSE(wasKnown);
  EXPECT_EQ(made, 1);
}

TEST_F(HostMaterialTest, AMaterialThatCannotBeMadeIsNull) {
  host.Refusals().RefuseFrom("MaterialStore.CreateMaterial", 1);
  bool wasKnown = true;
  EXPECT_EQ(GetOrMake(5, &wasKnown), nullptr);
  EXPECT_FALSE(wasKnown);
  EXPECT_EQ(made, 1);
}

TEST_F(HostMaterialTest, ARefusedLookUpIsNull) {
  Material* material = nullptr;
  store->CreateMaterial(&material, 5);
  host.Refusals().RefuseCall("MaterialStore.GetMaterial", 1);
  EXPECT_EQ(GetHostMaterial(store, 5), nullptr);
  EXPECT_EQ(GetHostMaterial(store, 5), material);
}

}  // namespace
}  // namespace btz::test
