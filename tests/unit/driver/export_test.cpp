// The exported function: it hands its arguments on, the two stores in exchanged places.
#include <btz/bdf_to_zel.h>
#include <gmock/gmock.h>

// The export is part of the library only, not of the archive that tests are linked with.
#include "driver/bdf_to_zel.cpp"
#include "tests/unit/driver/run_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class ExportTest : public RunTest {
 protected:
  std::int32_t Call(const char* path, double splitFaceValue, std::int32_t earlyTopology, std::uint8_t repairMesh,
                    std::uint8_t splitFaceRepair) {
    MemoryHost& host = traced.host;
    return BdfToZel_DLL(path, &host, host.GetMaterialStore(), host.GetBoundaryStore(), host.GetProject(), host.GetCurveStore(),
                        splitFaceValue, earlyTopology, 0, 0, host.GetGroupStore(), repairMesh, splitFaceRepair);
  }

  TracedHost traced{HostOptions(), TraceSink::Coverage::All};
};

TEST_F(ExportTest, TheStoresReachTheirRoles) {
  const std::string path = folder.Write("deck.bdf", quadDeck);
  EXPECT_EQ(Call(path.c_str(), 0.0, 0, 0, 0), 0);
  EXPECT_THAT(traced.CallsWith("MaterialStore."), ElementsAre("MaterialStore.Commit()"));
  EXPECT_EQ(traced.CallsWith("BoundaryStore.GetEntitiesOfType(47)").size(), 1u);
}

TEST_F(ExportTest, TheOtherArgumentsAreHandedOn) {
  traced.host.ScriptDefects({1});
  const std::string path = folder.Write("deck.bdf", quadDeck);
  EXPECT_EQ(Call(path.c_str(), 0.25, 1, 1, 1), 0);
  EXPECT_THAT(traced.CallsWith("SplitFaces"), ElementsAre("MeshPart#1.SplitFaces([TopoFace#1], 0.25, 0)"));
  EXPECT_EQ(traced.CallsWith("UpdateTopology").size(), 1u);
  EXPECT_EQ(traced.CallsWith("SetNumber").size(), 0u);
  EXPECT_EQ(traced.CallsWith("RepairDefects").size(), 1u);
  EXPECT_EQ(traced.CallsWith("MergeSplitPart").size(), 1u);
}

TEST_F(ExportTest, WithoutAPathTheResultIsOne) { EXPECT_EQ(Call(nullptr, 0.0, 0, 0, 0), 1); }

}  // namespace
}  // namespace btz::test
