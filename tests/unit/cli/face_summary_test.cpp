#include "cli/face_summary.h"

#include <gtest/gtest.h>

#include "tests/unit/cli/faced_host.h"

namespace btz::cli {
namespace {

/// What the faces of a pressure on these parts are measured as.
FaceSummary Measure(FacedHost& built, std::initializer_list<MeshPart*> parts) {
  Pressure* pressure = nullptr;
  built.Store()->CreatePressure(&pressure);
  built.SetParts(pressure, parts);
  return FaceMeter(built.host).Measure(built.host.Boundary().pressures.back().info.parts);
}

TEST(FaceSummary, AreasAreThoseBetweenTheCorners) {
  FacedHost built;

  const FaceSummary plate = Measure(built, {built.plate});
  EXPECT_EQ(plate.parts, 1u);
  EXPECT_EQ(plate.faces, 2u);
  EXPECT_DOUBLE_EQ(plate.area, 6.0);

  // 2 wide, and 5 up the slope of 3 by 4.
  const FaceSummary slope = Measure(built, {built.slope});
  EXPECT_EQ(slope.faces, 1u);
  EXPECT_DOUBLE_EQ(slope.area, 10.0);
}

TEST(FaceSummary, PartsAddUpAndOneThatIsListedTwiceCountsTwice) {
  FacedHost built;

  const FaceSummary all = Measure(built, {built.plate, built.slope, built.plate});

  EXPECT_EQ(all.parts, 3u);
  EXPECT_EQ(all.faces, 5u);
  EXPECT_DOUBLE_EQ(all.area, 22.0);
}

TEST(FaceSummary, ABodyHasNoFacesOfItsOwn) {
  FacedHost built;

  const FaceSummary body = Measure(built, {built.block});

  EXPECT_EQ(body.parts, 1u);
  EXPECT_EQ(body.faces, 0u);
  EXPECT_EQ(body.area, 0.0);
}

TEST(FaceSummary, NoPartsNoFaces) {
  FacedHost built;

  const FaceSummary none = Measure(built, {});

  EXPECT_EQ(none.parts, 0u);
  EXPECT_EQ(none.faces, 0u);
}

TEST(FaceSummary, LinesAndFacesWithoutACornerHaveNoArea) {
  FacedHost built;
  const std::int32_t ends[2] = {1, 2};
  built.Model()->CreateElement(11, 1, ends, 7, 0, 0, 1, 0);
  MeshElement* square = nullptr;
  built.Model()->GetElement(2, &square);
  square->nodes[3] = nullptr;

  const FaceSummary plate = Measure(built, {built.plate});

  EXPECT_EQ(plate.faces, 3u);
  EXPECT_DOUBLE_EQ(plate.area, 2.0);
}

}  // namespace
}  // namespace btz::cli
