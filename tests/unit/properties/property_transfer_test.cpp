// What a store answers when it is asked for a property or a material, down to answers that no well-meaning host gives.
#include "properties/property_transfer.h"

#include <gtest/gtest.h>

#include "materials/material_transfer.h"
#include "tests/unit/properties/transfer_fixture.h"

namespace btz::test {
namespace {

/// A store that hands an object out and gives `result` all the same.
class ContradictoryStore final : public MaterialStore {
 public:
  std::int32_t CreateMaterial(Material** out, std::int32_t /*id*/) override {
    *out = material;
    return result;
  }
  void GetMaterial(std::int32_t /*id*/, Material** /*out*/, std::int32_t* /*index*/) override {}
  std::int32_t CreateProperty(Property** out, std::int32_t /*id*/) override {
    *out = property;
    return result;
  }
  void GetSectionCalculator(SectionCalculator** /*out*/) override {}
  void Commit() override {}

  Material* material = nullptr;
  Property* property = nullptr;
  std::int32_t result = 0;
};

class ContradictoryStoreTest : public TransferTest {
 protected:
  ContradictoryStoreTest() {
    host.GetMaterialStore()->CreateMaterial(&store.material, 5);
    host.GetMaterialStore()->CreateProperty(&store.property, 7);
    trace.clear();
  }

  ContradictoryStore store;
};

TEST_F(ContradictoryStoreTest, AnyResultButZeroIsARefusedProperty) {
  EXPECT_EQ(CreateProperty(&store, 7), store.property);
  for (const std::int32_t result : {1, -1, 256}) {
    store.result = result;
    EXPECT_EQ(CreateProperty(&store, 7), nullptr) << result;
  }
}

TEST_F(ContradictoryStoreTest, AnyResultButZeroIsARefusedMaterial) {
  for (const std::int32_t result : {1, -1, 256}) {
    store.result = result;
    CreateDefaultMaterial(&store, &run.lists.materials, 5);
  }
  EXPECT_TRUE(Calls().empty());
  EXPECT_TRUE(Links().empty());
  store.result = 0;
  CreateDefaultMaterial(&store, &run.lists.materials, 5);
  EXPECT_EQ(Links().size(), 1u);
}

TEST_F(ContradictoryStoreTest, AStoreThatTakesAnIdTwiceGivesTwoLinks) {
  CreateDefaultMaterial(&store, &run.lists.materials, 5);
  CreateDefaultMaterial(&store, &run.lists.materials, 5);
  ASSERT_EQ(Links().size(), 2u);
  EXPECT_EQ(Links()[0]->materialId, 5);
  EXPECT_EQ(Links()[1]->materialId, 5);
}

}  // namespace
}  // namespace btz::test
