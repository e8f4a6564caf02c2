// The split face stage in runs whose loads and surfaces cut parts: what they use stays whole, everything else is split.
#include "driver/split_faces.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "loads/load_parts.h"
#include "support/pooled_list.h"
#include "tests/unit/driver/run_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Two bricks of the property 20, one on top of the other.
constexpr std::string_view bricks =
    "GRID    1       0       0.0     0.0     0.0     \n"
    "GRID    2       0       1.0     0.0     0.0     \n"
    "GRID    3       0       1.0     1.0     0.0     \n"
    "GRID    4       0       0.0     1.0     0.0     \n"
    "GRID    5       0       0.0     0.0     1.0     \n"
    "GRID    6       0       1.0     0.0     1.0     \n"
    "GRID    7       0       1.0     1.0     1.0     \n"
    "GRID    8       0       0.0     1.0     1.0     \n"
    "GRID    9       0       0.0     0.0     2.0     \n"
    "GRID    10      0       1.0     0.0     2.0     \n"
    "GRID    11      0       1.0     1.0     2.0     \n"
    "GRID    12      0       0.0     1.0     2.0     \n"
    "CHEXA   1       20      1       2       3       4       5       6       +\n"
    "+       7       8       \n"
    "CHEXA   2       20      5       6       7       8       9       10      +\n"
    "+       11      12      \n";

/// Two quadrilaterals of the property 30 on the bricks' left side.
constexpr std::string_view plates =
    "CQUAD4  11      30      1       2       6       5       \n"
    "CQUAD4  12      30      5       6       10      9       \n";

class SplitFacesTest : public RunTest {
 protected:
  /// Runs the bricks with these cards; the calls of SplitFaces.
  std::vector<std::string> Split(std::string_view cards, std::uint8_t repair = 0) {
    const std::string deck = std::string(bricks) + std::string(cards) + "ENDDATA\n";
    EXPECT_EQ(Translate(deck, traced, {.splitFaceValue = 0.5, .splitFaceRepair = repair}), 0);
    return traced.CallsWith("SplitFaces");
  }

  TracedHost traced;
};

// The skin is handed out, and numbered, in the stage itself; the face of the plates when it is made.
TEST_F(SplitFacesTest, WithoutLoadsEveryFaceIsSplit) {
  EXPECT_THAT(Split(plates), ElementsAre("MeshPart#1.SplitFaces([TopoFace#2], 0.5, 0)", "MeshPart#2.SplitFaces([TopoFace#1], 0.5, 0)"));
}

TEST_F(SplitFacesTest, APartSplitOffForASurfaceStaysWholeAndItsRestIsSplit) {
  EXPECT_THAT(Split("SURF    5       \n+       1       1       3       \n"), ElementsAre("MeshPart#1.SplitFaces([TopoFace#1], 0.5, 0)"));
  EXPECT_THAT(traced.CallsWith("SetParts"), ElementsAre("EntitySet#1.SetParts([TopoFace#2])"));
}

TEST_F(SplitFacesTest, FacesMadeForASurfaceStayWhole) {
  // The volume of the bricks is asked for the face and bears the number 1.
  EXPECT_THAT(Split("SURF    5       \n+       1       5       7       \n"), ElementsAre("MeshPart#1.SplitFaces([TopoFace#3], 0.5, 0)"));
  EXPECT_THAT(traced.CallsWith("SetParts"), ElementsAre("EntitySet#1.SetParts([TopoFace#2])"));
}

TEST_F(SplitFacesTest, APartThatASurfaceUsesWholeIsNotSplit) {
  EXPECT_THAT(Split(std::string(plates) + "SURF    5       \n+       1       1       6       \n+       2       5       10      \n"),
              ElementsAre("MeshPart#1.SplitFaces([TopoFace#2], 0.5, 0)"));
  EXPECT_THAT(traced.CallsWith("SetParts"), ElementsAre("EntitySet#1.SetParts([TopoFace#1])")) << "the plates, which cover both sides";
}

TEST_F(SplitFacesTest, WhatPressuresUseStaysWhole) {
  EXPECT_THAT(Split(std::string(plates) + "PLOAD4  7       11      2.0     \n"),
              ElementsAre("MeshPart#1.SplitFaces([TopoFace#3], 0.5, 0)", "MeshPart#2.SplitFaces([TopoFace#1], 0.5, 0)"));
  EXPECT_THAT(traced.CallsWith("SetParts"), ElementsAre("Pressure#1.SetParts([TopoFace#2])"));
}

// Each of two surfaces takes a half, so the rest of the plates is nothing but the halves.
TEST_F(SplitFacesTest, APartOfUsedFacesOnlyIsLeftAlone) {
  EXPECT_THAT(Split(std::string(plates) +
                    "SURF    5       \n+       1       1       6       \nSURF    6       \n+       2       5       10      \n"),
              ElementsAre("MeshPart#1.SplitFaces([TopoFace#3], 0.5, 0)"));
  EXPECT_THAT(traced.CallsWith("SetParts"), ElementsAre("EntitySet#1.SetParts([TopoFace#2])", "EntitySet#2.SetParts([TopoFace#1])"));
}

TEST_F(SplitFacesTest, AFaceUsedSeveralTimesStaysWhole) {
  EXPECT_THAT(Split("SURF    5       \n+       1       1       3       \nSURF    6       \n+       1       1       3       \n"),
              ElementsAre("MeshPart#1.SplitFaces([TopoFace#1], 0.5, 0)"));
  EXPECT_EQ(LoadPartList.size, 2);
}

// Nodes that name no side give a face without elements.
TEST_F(SplitFacesTest, AFaceWithoutElementsIsLeftOut) {
  EXPECT_THAT(Split("SURF    5       \n+       1       1       2       \n"), ElementsAre("MeshPart#1.SplitFaces([TopoFace#3], 0.5, 0)"));
  EXPECT_THAT(traced.CallsWith("CreateFaces"), ElementsAre("TopoFace#1.CreateFaces([e1], [0]) -> [] TopoFace#2"));
  EXPECT_EQ(LoadPartList.size, 0);
}

TEST_F(SplitFacesTest, APartWithoutAMeshIsNotAskedForItsFaces) {
  TracedHost all(HostOptions(), TraceSink::Coverage::All);
  const std::string deck = std::string(bricks) + "CTRIA3  13      40      1       2       99      \nENDDATA\n";
  EXPECT_EQ(Translate(deck, all, {.splitFaceValue = 0.5}), 0);
  const std::string stage = all.trace.substr(all.trace.find("AttachModel"));
  EXPECT_THAT(stage, testing::HasSubstr("MeshPart#1.GetFaceList()"));
  EXPECT_THAT(stage, testing::HasSubstr("MeshPart#2.HasMesh() -> 0\n"));
  EXPECT_THAT(stage, testing::Not(testing::HasSubstr("MeshPart#2.GetFaceList()")));
}

TEST_F(SplitFacesTest, AllFacesOfAPartAreSplitInOneCall) {
  traced.host.SetHook([](const char* /*type*/, const char* operation) {
    if (std::string_view(operation) == "AttachModel") {
      ListClear(&LoadPartList);
    }
  });
  EXPECT_THAT(Split(std::string(plates) + "PLOAD4  7       11      2.0     \n"),
              ElementsAre("MeshPart#1.SplitFaces([TopoFace#3], 0.5, 0)", "MeshPart#2.SplitFaces([TopoFace#1, TopoFace#2], 0.5, 0)"));
}

// Faces of a model that may be long gone: nobody may look into them.
TEST_F(SplitFacesTest, FacesOfAnEarlierRunAreOnlyCompared) {
  void* const gone = reinterpret_cast<void*>(std::uintptr_t{16});
  ListAppend(&LoadPartList, gone);
  EXPECT_THAT(Split("SURF    5       \n+       1       1       3       \n"), ElementsAre("MeshPart#1.SplitFaces([TopoFace#1], 0.5, 0)"));
  EXPECT_EQ(LoadPartList.size, 2);
  ListRewind(&LoadPartList);
  EXPECT_EQ(ListNext(&LoadPartList), gone);
}

TEST_F(SplitFacesTest, PartsAreMergedWhenAllAreSplit) {
  traced.host.ScriptMerges({1, 0, 0});
  Split(std::string(plates) + "SURF    5       \n+       1       1       3       \n", 1);
  const std::vector<std::string> calls = traced.Calls();
  ASSERT_GE(calls.size(), 6u);
  EXPECT_THAT(std::vector<std::string>(calls.end() - 6, calls.end()),
              ElementsAre("MeshModel.UpdateTopology(0)", "MeshPart#1.SplitFaces([TopoFace#2], 0.5, 0)",
                          "MeshPart#2.SplitFaces([TopoFace#1], 0.5, 0)", "MeshModel.MergeSplitPart(MeshPart#1) -> 1",
                          "MeshModel.MergeSplitPart(MeshPart#1) -> 0", "MeshModel.MergeSplitPart(MeshPart#2) -> 0"));
}

// A host may take a part out of its list while it merges.
TEST_F(SplitFacesTest, TheHostMayEditItsListOfPartsWhileItMerges) {
  MeshModel* model = nullptr;
  traced.host.GetProject()->GetMeshModel(&model, 1);
  bool isFirst = true;
  traced.host.SetHook([&](const char* /*type*/, const char* operation) {
    if (std::string_view(operation) == "MergeSplitPart" && isFirst) {
      isFirst = false;
      PooledList* parts = nullptr;
      model->GetParts(&parts);
      ListRemoveCurrent(parts, parts->cursor->value);
    }
  });
  Split(plates, 1);
  EXPECT_THAT(traced.CallsWith("MergeSplitPart"),
              ElementsAre("MeshModel.MergeSplitPart(MeshPart#1) -> 0", "MeshModel.MergeSplitPart(MeshPart#2) -> 0"));
}

TEST_F(SplitFacesTest, AHostThatGivesNoListsHasNothingSplitOrMerged) {
  for (const char* operation : {"MeshPart.GetFaceList", "TopoFace.GetMesh", "FaceMesh.GetElements", "MeshModel.GetParts"}) {
    for (const bool nullOnFailure : {false, true}) {
      TracedHost host({.nullOnFailure = nullOnFailure});
      host.host.Refusals().RefuseFrom(operation, 1);
      const std::string deck = std::string(bricks) + std::string(plates) + "ENDDATA\n";
      EXPECT_EQ(Translate(deck, host, {.splitFaceValue = 0.5, .splitFaceRepair = 1}), 0);
      const bool isOfParts = std::string_view(operation) == "MeshModel.GetParts";
      EXPECT_EQ(host.CallsWith("SplitFaces").size(), isOfParts ? 2u : 0u) << operation;
      EXPECT_EQ(host.CallsWith("MergeSplitPart").size(), isOfParts ? 0u : 2u) << operation;
    }
  }
}

}  // namespace
}  // namespace btz::test
