// Bolts that are cut at the faces made for a surface: the bolt of the surface's number, or one that names the surface.
#include "sets/surfaces.h"

#include <gmock/gmock.h>

#include "sets/pretension.h"
#include "support/block_pool.h"
#include "support/hash_table.h"
#include "tests/unit/sets/surface_fixture.h"

namespace btz::test {
namespace {

class SurfaceBolts : public SurfaceCardTest {
 protected:
  SurfaceBolts() { MakeTwoBricks(); }

  PretensionRecord* AddBolt(std::int32_t boltId, std::int32_t targetId, std::int32_t isElement = 0) {
    auto* bolt = static_cast<PretensionRecord*>(AllocateZeroed(sizeof(PretensionRecord)));
    *bolt = {boltId, targetId, isElement, nullptr};
    EXPECT_EQ(HashInsert(&PretensionTable, bolt), 1);
    return bolt;
  }

  /// The id of the face that a bolt is cut at; 0 when it has none.
  static std::int32_t CutOf(const PretensionRecord* bolt) {
    return bolt->cutPart == nullptr ? 0 : static_cast<memory::MemoryFace*>(static_cast<TopoFace*>(bolt->cutPart))->id;
  }
};

TEST_F(SurfaceBolts, ABoltOfTheNumberIsCutAtTheFacesMade) {
  PretensionRecord* bolt = AddBolt(5, 99);
  PretensionRecord* other = AddBolt(6, 99);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 8);
  EXPECT_EQ(bolt->cutPart, host.Boundary().sets[0].info.parts.First());
  EXPECT_EQ(CutOf(other), 0);
}

TEST_F(SurfaceBolts, ABoltThatNamesTheSurfaceIsCutToo) {
  PretensionRecord* other = AddBolt(1, 6);
  PretensionRecord* bolt = AddBolt(2, 5);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 8);
  EXPECT_EQ(CutOf(other), 0);
}

TEST_F(SurfaceBolts, ABoltOfTheNumberWinsOverOneThatNamesTheSurface) {
  PretensionRecord* names = AddBolt(1, 5);
  PretensionRecord* bears = AddBolt(5, 77);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(names), 0);
  EXPECT_EQ(CutOf(bears), 8);
}

// The table has 501 buckets: bolt 600 comes behind bolt 2, though it was read first, and bolt 503 behind both in one bucket with 2.
TEST_F(SurfaceBolts, OfSeveralThatNameTheSurfaceTheFirstOfTheTableIsCut) {
  PretensionRecord* late = AddBolt(600, 5);
  PretensionRecord* first = AddBolt(2, 5);
  PretensionRecord* behind = AddBolt(503, 5);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(first), 8);
  EXPECT_EQ(CutOf(late), 0);
  EXPECT_EQ(CutOf(behind), 0);
}

TEST_F(SurfaceBolts, ABoltCutAtAnElementOfThatNumberCountsToo) {
  PretensionRecord* bolt = AddBolt(1, 5, 1);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 8);
}

TEST_F(SurfaceBolts, ANegativeNumberIsNoBolts) {
  PretensionRecord* bolt = AddBolt(1, -5);
  Read("SURF    -5      \n+       1       5       7       \nENDDATA\n");
  EXPECT_EQ(CutOf(bolt), 0);
}

TEST_F(SurfaceBolts, FacesThatExistCutNoBolt) {
  PretensionRecord* bolt = AddBolt(5, 0);
  ReadLines({"1|1|3"});
  EXPECT_EQ(SetCount(), 1u);
  EXPECT_EQ(CutOf(bolt), 0);
}

TEST_F(SurfaceBolts, TheLastSurfaceOfANumberCuts) {
  PretensionRecord* bolt = AddBolt(5, 0);
  ReadLines({"1|5|7"});
  ReadLines({"2|5|7"});
  EXPECT_EQ(CutOf(bolt), 9);
  ReadLines({"1|1|3"});
  EXPECT_EQ(CutOf(bolt), 9);
}

TEST_F(SurfaceBolts, APartWithoutAFaceCutsToo) {
  PretensionRecord* bolt = AddBolt(5, 0);
  ReadLines({"1|1|2"});
  EXPECT_EQ(SetCount(), 0u);
  EXPECT_EQ(CutOf(bolt), 8);
}

TEST_F(SurfaceBolts, FacesThatWereRefusedCutNothing) {
  PretensionRecord* bolt = AddBolt(5, 0);
  host.Refusals().RefuseFrom("TopoFace.CreateFaces", 1);
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 0);
  SolidElement(1)->owner = nullptr;
  ReadLines({"1|5|7"});
  EXPECT_EQ(CutOf(bolt), 0);
}

TEST_F(SurfaceBolts, FacesThatWereRefusedLeaveTheCutOfAnEarlierSurface) {
  PretensionRecord* bolt = AddBolt(5, 0);
  ReadLines({"1|5|7"});
  host.Refusals().RefuseFrom("TopoFace.CreateFaces", 1);
  ReadLines({"2|5|7"});
  EXPECT_EQ(CutOf(bolt), 8);
}

}  // namespace
}  // namespace btz::test
