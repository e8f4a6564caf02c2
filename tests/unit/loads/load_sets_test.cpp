// Load sets: one record for each set id and kind, whose items stand in order of creation.
#include "loads/load_sets.h"

#include "tests/unit/loads/loads_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class LoadSetTest : public LoadsTest {
 protected:
  Entity* Make() {
    BodyLoad* load = nullptr;
    boundary->CreateBodyLoad(&load);
    return load;
  }
};

TEST_F(LoadSetTest, ItemsStandInOrderOfCreation) {
  for (int i = 0; i < 3; ++i) {
    AddToLoadSet(7, loadSet, Make());
  }
  EXPECT_THAT(SetItems(7, loadSet), ElementsAre("BodyLoad 1", "BodyLoad 2", "BodyLoad 3"));
  EXPECT_EQ(FindLoadSet(7, loadSet)->items.size, 3);
  EXPECT_EQ(LoadSetTable.size, 1);
}

TEST_F(LoadSetTest, OneIdHasARecordOfEachKind) {
  AddToLoadSet(7, loadSet, Make());
  AddToLoadSet(7, namedSet, Make());
  AddToLoadSet(7, constraintSet, Make());
  AddToLoadSet(7, loadSet, Make());
  EXPECT_THAT(SetItems(7, loadSet), ElementsAre("BodyLoad 1", "BodyLoad 4"));
  EXPECT_THAT(SetItems(7, namedSet), ElementsAre("BodyLoad 2"));
  EXPECT_THAT(SetItems(7, constraintSet), ElementsAre("BodyLoad 3"));
  EXPECT_EQ(FindLoadSet(7, temperatureSet), nullptr);
  EXPECT_EQ(FindLoadSet(7, namedSet)->setId, 7);
  EXPECT_EQ(FindLoadSet(7, namedSet)->kind, 6);
}

TEST_F(LoadSetTest, SetsOfOneBucketAreKeptApart) {
  AddToLoadSet(7, loadSet, Make());
  AddToLoadSet(1008, loadSet, Make());
  AddToLoadSet(0, loadSet, Make());
  EXPECT_THAT(SetItems(7, loadSet), ElementsAre("BodyLoad 1"));
  EXPECT_THAT(SetItems(1008, loadSet), ElementsAre("BodyLoad 2"));
  EXPECT_THAT(SetItems(0, loadSet), ElementsAre("BodyLoad 3"));
}

TEST_F(LoadSetTest, ANegativeSetIsNotKept) {
  AddToLoadSet(-7, loadSet, Make());
  EXPECT_EQ(FindLoadSet(-7, loadSet), nullptr);
  EXPECT_EQ(LoadSetTable.size, 0);
}

}  // namespace
}  // namespace btz::test
