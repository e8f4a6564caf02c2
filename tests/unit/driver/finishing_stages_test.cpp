// The finishing stages: their order and conditions, names and numbers of parts, topology, repair and the splitting of faces.
#include "driver/finishing_stages.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "deck/name_comments.h"
#include "driver/clean_up.h"
#include "loads/load_parts.h"
#include "loads/pressures.h"
#include "mesh/gaps.h"
#include "mesh/parts.h"
#include "mesh/rigid_elements.h"
#include "mesh/springs.h"
#include "properties/connector_properties.h"
#include "sets/analysis_node_set.h"
#include "sets/pretension.h"
#include "support/block_pool.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"
#include "tests/unit/driver/run_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Order and conditions.

std::vector<std::string> NamesOf(std::span<const FinishingStage> stages) {
  std::vector<std::string> names;
  for (const FinishingStage& stage : stages) {
    names.push_back(stage.name);
  }
  return names;
}

class StageTest : public testing::Test {
 protected:
  StageTest() {
    ResetProcessState();
    SetUpTables(&run);
    run.options.earlyTopology = 2;
    run.options.targetSolver = 1;
  }
  ~StageTest() override {
    ReleaseRun(&run);
    ResetProcessState();
  }

  static void Insert(HashTable* table) { HashInsert(table, AllocateZeroed(256)); }

  /// Names of the stages that are due in this state of the run, in order, but for those that always are.
  std::vector<std::string> Due() const {
    const std::vector<std::string> always = {"transition elements",
                                             "coordinates of nodes in local systems",
                                             "log of the properties",
                                             "properties, numbers and names by part",
                                             "solid parts",
                                             "solids",
                                             "unique part names",
                                             "materials and properties committed",
                                             "shells of solids",
                                             "single-point constraints",
                                             "single-point constraints of node lists",
                                             "multi-point constraints",
                                             "temperatures",
                                             "excitations",
                                             "load cases and global damping",
                                             "bolts released",
                                             "model handed over",
                                             "log of the topology",
                                             "clean-up"};
    std::vector<std::string> due;
    std::size_t alwaysDue = 0;
    for (const std::span<const FinishingStage> block : {TransitionStages(), StagesBehindElements(), StagesBehindLoads()}) {
      for (const FinishingStage& stage : block) {
        const bool isAlways = std::find(always.begin(), always.end(), stage.name) != always.end();
        if (stage.isDue(run) && !isAlways) {
          due.push_back(stage.name);
        }
        alwaysDue += stage.isDue(run) && isAlways ? 1 : 0;
      }
    }
    EXPECT_EQ(alwaysDue, always.size());
    return due;
  }

  RunState run;
};

TEST_F(StageTest, BlocksHaveTheirOrder) {
  EXPECT_THAT(NamesOf(TransitionStages()), ElementsAre("transition elements"));
  EXPECT_THAT(NamesOf(StagesBehindElements()),
              ElementsAre("coordinates of nodes in local systems", "part names", "early topology", "log of the properties",
                          "material names", "properties, numbers and names by part", "rigid bodies", "solid parts", "solids",
                          "unique part names", "materials and properties committed", "shells of solids"));
  EXPECT_THAT(
      NamesOf(StagesBehindLoads()),
      ElementsAre("pressures", "forces and moments", "masses", "bushes", "springs", "gaps", "single-point constraints",
                  "single-point constraints of node lists", "multi-point constraints", "convection", "flux", "temperatures", "rigid bars",
                  "analysis node sets", "displacement systems", "excitations", "pretension", "load cases and global damping",
                  "bolts released", "model handed over", "log of the topology", "late topology", "mesh repair", "split faces", "clean-up"));
}

// What is still to be built. A stage that lands takes its name out of this list.
TEST_F(StageTest, StagesLeftToBuild) {
  std::vector<std::string> left;
  for (const std::span<const FinishingStage> block : {TransitionStages(), StagesBehindElements(), StagesBehindLoads()}) {
    for (const FinishingStage& stage : block) {
      if (stage.action == StageNotBuilt) {
        left.push_back(stage.name);
      }
    }
  }
  EXPECT_THAT(left, ElementsAre("transition elements", "rigid bodies", "masses", "bushes", "springs", "gaps", "multi-point constraints",
                                "convection", "flux", "temperatures", "rigid bars", "analysis node sets", "excitations", "pretension",
                                "bolts released"));
}

TEST_F(StageTest, MaterialsAreRenamedWhenACommentNamesOne) {
  EXPECT_THAT(Due(), Not(testing::Contains("material names")));
  RegisterCommentName("MAT", 1, "Steel");
  EXPECT_THAT(Due(), testing::Contains("material names"));
}

TEST_F(StageTest, LogLinesInFrontOfStages) {
  std::vector<std::string> lines;
  for (const std::span<const FinishingStage> block : {TransitionStages(), StagesBehindElements(), StagesBehindLoads()}) {
    for (const FinishingStage& stage : block) {
      if (stage.logLine != nullptr) {
        lines.push_back(std::string(stage.name) + ": " + stage.logLine);
      }
    }
  }
  EXPECT_THAT(lines, ElementsAre("log of the properties: Creating Properties....\n", "pressures: Creating Pressure....\n",
                                 "forces and moments: Creating Force/Moment....\n", "analysis node sets: Creating Nastarn Aset....\n",
                                 "log of the topology: Updating Topology....\n", "split faces: Processing Split Faces....\n",
                                 "clean-up: Clean Up process....\n"));
}

TEST_F(StageTest, WithNothingReadOnlyTheUnconditionalStagesAreDue) { EXPECT_THAT(Due(), IsEmpty()); }

TEST_F(StageTest, PartNamesAreDueWhereAnyIsKnown) {
  RegisterPropertyName(7, "Door", true);
  EXPECT_THAT(Due(), ElementsAre("part names"));
}

TEST_F(StageTest, TopologyIsBuiltEarlyForOneAndLateForZero) {
  run.options.earlyTopology = 1;
  EXPECT_THAT(Due(), ElementsAre("early topology"));
  run.options.earlyTopology = 0;
  EXPECT_THAT(Due(), ElementsAre("late topology"));
  run.options.earlyTopology = -1;
  EXPECT_THAT(Due(), IsEmpty());
}

TEST_F(StageTest, RigidBodiesAreDueForEitherKind) {
  run.counters[familyRbe2] = 1;
  EXPECT_THAT(Due(), ElementsAre("rigid bodies"));
  run.counters[familyRbe2] = 0;
  run.counters[familyRbe3] = 1;
  EXPECT_THAT(Due(), ElementsAre("rigid bodies"));
}

TEST_F(StageTest, PressuresNeedCardsAndRecords) {
  run.counters[familyPressure] = 1;
  EXPECT_THAT(Due(), IsEmpty());
  IndexedListAppend(&PressureSetTable, 7, AllocateZeroed(sizeof(PressureSetRecord)));
  EXPECT_THAT(Due(), ElementsAre("pressures"));
  run.counters[familyPressure] = 0;
  EXPECT_THAT(Due(), IsEmpty());
}

TEST_F(StageTest, ForcesAreDueForForcesOrMoments) {
  run.counters[familyForce] = 1;
  EXPECT_THAT(Due(), ElementsAre("forces and moments"));
  run.counters[familyForce] = 0;
  run.counters[familyMoment] = 1;
  EXPECT_THAT(Due(), ElementsAre("forces and moments"));
}

TEST_F(StageTest, MassesAreDueForMasses) {
  run.counters[familyMass] = 1;
  EXPECT_THAT(Due(), ElementsAre("masses"));
}

TEST_F(StageTest, BushesAreDueForBushesOrTheirProperties) {
  run.counters[familyBush] = 1;
  EXPECT_THAT(Due(), ElementsAre("bushes"));
  run.counters[familyBush] = 0;
  Insert(&BushPropertyTable);
  EXPECT_THAT(Due(), ElementsAre("bushes"));
}

TEST_F(StageTest, SpringsAreDueForAnyOfTheirTables) {
  for (HashTable* table : {&SpringPropertyTable, &SpringPairTable, &BushInstanceTable}) {
    Insert(table);
    EXPECT_THAT(Due(), ElementsAre("springs"));
    WalkTable<void>(table, ReleaseMemory);
    HashClear(table);
  }
  Insert(&SpringPropertyValueTable);
  EXPECT_THAT(Due(), IsEmpty());
}

TEST_F(StageTest, GapsAreDueForGroupsReadNotForThoseOfTheHost) {
  std::int32_t id = 3;
  HashInsert(&GapGroupTable, &id);
  EXPECT_THAT(Due(), IsEmpty());
  Insert(&GapElementTable);
  EXPECT_THAT(Due(), ElementsAre("gaps"));
}

TEST_F(StageTest, ConvectionAndFluxAreDueForOneTargetOnly) {
  run.options.targetSolver = 0;
  EXPECT_THAT(Due(), ElementsAre("convection", "flux"));
  run.options.targetSolver = 2;
  EXPECT_THAT(Due(), IsEmpty());
}

TEST_F(StageTest, RigidBarsAreDueWhereAnyWereRead) {
  Insert(&RbarTable);
  EXPECT_THAT(Due(), ElementsAre("rigid bars"));
}

TEST_F(StageTest, AnalysisNodeSetsAreDueWhereAnyWereRead) {
  ListAppend(&AsetList, AllocateZeroed(64));
  EXPECT_THAT(Due(), ElementsAre("analysis node sets"));
}

TEST_F(StageTest, DisplacementSystemsAreDueWhereAnyNodeHasOne) {
  Insert(&run.gridCdTable);
  EXPECT_THAT(Due(), ElementsAre("displacement systems"));
}

TEST_F(StageTest, PretensionIsDueForBoltsWhateverTheTarget) {
  Insert(&PretensionTable);
  EXPECT_THAT(Due(), ElementsAre("pretension"));
}

TEST_F(StageTest, RepairIsDueForExactlyOne) {
  run.options.repairMesh = 1;
  EXPECT_THAT(Due(), ElementsAre("mesh repair"));
  run.options.repairMesh = 2;
  EXPECT_THAT(Due(), IsEmpty());
}

TEST_F(StageTest, FacesAreSplitForAValueAboveZero) {
  run.options.splitFaceRepair = 1;
  for (const double value : {0.0, -0.0, -1.0}) {
    run.options.splitFaceValue = value;
    EXPECT_THAT(Due(), IsEmpty()) << value;
  }
  run.options.splitFaceValue = 1e-300;
  EXPECT_THAT(Due(), ElementsAre("split faces"));
}

// What the stages tell the host.

/// Four nodes more, and a tetrahedron of the property 8 beside the quadrilateral.
const std::string mixedDeck = std::string(quadDeck) +
                              "GRID    5       0       0.0     0.0     1.0\n"
                              "CTETRA  11      8       1       2       3       5\n";

class FinishingTest : public RunTest {
 protected:
  /// The calls behind the last element, that is, those of the stages.
  static std::vector<std::string> StageCalls(const TracedHost& host) {
    std::vector<std::string> calls = host.Calls();
    std::size_t first = 0;
    for (std::size_t i = 0; i < calls.size(); ++i) {
      first = calls[i].find("CreateElement") == std::string::npos ? first : i + 1;
    }
    calls.erase(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(first));
    return calls;
  }

  TracedHost traced;
};

TEST_F(FinishingTest, LateTopologyNumbersThePartsAnew) {
  EXPECT_EQ(Translate(mixedDeck, traced), 0);
  // Ids 7 and 8 are taken, so the numbers begin with 9.
  EXPECT_THAT(StageCalls(traced),
              ElementsAre("MeshPart#1.SetNumber(9)", "MeshPart#1.SetName(\"Body 7\")", "FaceMesh#1.Rebuild()", "MeshPart#2.SetNumber(10)",
                          "MeshPart#2.SetName(\"Body 8\")", "MeshModel.ReservePartId(11)", "MeshModel.FinishSolidPart(MeshPart#2, 0, 0, 0)",
                          "Solid#1.Finish()", "MeshPart#1.SetNamed(0)", "MeshPart#2.SetNamed(0)", "MeshPart#1.SetNamed(1)",
                          "MeshPart#2.SetNamed(1)", "MaterialStore.Commit()", "Solid#1.AttachShell(Shell#1, 0)", "MeshModel.Finish()",
                          "HostProject.AttachModel(MeshModel, 1)", "MeshModel.UpdateTopology(0)"));
}

TEST_F(FinishingTest, EarlyTopologyComesBeforeThePropertiesAndKeepsTheNumbers) {
  EXPECT_EQ(Translate(mixedDeck, traced, {.earlyTopology = 1}), 0);
  EXPECT_THAT(
      StageCalls(traced),
      ElementsAre("MeshModel.UpdateTopology(0)", "MeshPart#1.SetName(\"Body 7\")", "FaceMesh#1.Rebuild()", "MeshPart#2.SetName(\"Body 8\")",
                  "MeshModel.FinishSolidPart(MeshPart#2, 0, 0, 0)", "Solid#1.Finish()", "MeshPart#1.SetNamed(0)", "MeshPart#2.SetNamed(0)",
                  "MeshPart#1.SetNamed(1)", "MeshPart#2.SetNamed(1)", "MaterialStore.Commit()", "Solid#1.AttachShell(Shell#1, 0)",
                  "MeshModel.Finish()", "HostProject.AttachModel(MeshModel, 1)"));
}

TEST_F(FinishingTest, AnyOtherTopologyIsNone) {
  EXPECT_EQ(Translate(mixedDeck, traced, {.earlyTopology = 2}), 0);
  EXPECT_THAT(traced.CallsWith("UpdateTopology"), IsEmpty());
  EXPECT_THAT(traced.CallsWith("SetNumber"), IsEmpty());
  EXPECT_THAT(traced.CallsWith("ReservePartId"), ElementsAre("MeshModel.ReservePartId(7)", "MeshModel.ReservePartId(8)"));
  // The log tells of it all the same.
  EXPECT_THAT(Log(), HasSubstr("\nCreating Properties....\nUpdating Topology....\nClean Up process....\n"));
}

TEST_F(FinishingTest, TheTargetSolverChangesNothingForAMesh) {
  TracedHost other;
  Translate(mixedDeck, traced);
  Translate(mixedDeck, other, {.targetSolver = 1});
  EXPECT_EQ(traced.trace, other.trace);
}

TEST_F(FinishingTest, AGroupStoreIsNotNeeded) {
  EXPECT_EQ(Translate(mixedDeck, traced, {.hasGroupStore = false}), 0);
  EXPECT_TRUE(traced.host.IsAttached());
}

TEST_F(FinishingTest, EveryFaceOfASurfacePartIsRebuilt) {
  EXPECT_EQ(Translate(std::string(quadDeck) + "CTRIA3  2       9       1       2       3\n", traced), 0);
  EXPECT_THAT(traced.CallsWith("Rebuild"), ElementsAre("FaceMesh#1.Rebuild()", "FaceMesh#2.Rebuild()"));
}

TEST_F(FinishingTest, APartWhoseElementsWereAllRefusedIsNoSolid) {
  EXPECT_EQ(Translate(std::string(quadDeck) + "CTETRA  11      8       1       2       3       99\n", traced), 0);
  EXPECT_THAT(traced.CallsWith("FinishSolidPart"), IsEmpty());
  EXPECT_THAT(traced.CallsWith("AttachShell"), IsEmpty());
  EXPECT_THAT(traced.CallsWith("SetName("), ElementsAre("MeshPart#1.SetName(\"Body 7\")", "MeshPart#2.SetName(\"Body 8\")"));
}

// Names.

TEST_F(FinishingTest, APartNamedByACommentKeepsItsName) {
  EXPECT_EQ(Translate(mixedDeck + "$HMNAME COMP                  7\"Door\"\n", traced), 0);
  EXPECT_THAT(traced.CallsWith(".SetName"),
              ElementsAre("MeshPart#1.SetNamed(0)", "MeshPart#2.SetNamed(0)", "MeshPart#1.SetName(\"Door\")", "MeshPart#1.SetNamed(1)",
                          "MeshPart#2.SetName(\"Body 8\")", "MeshPart#1.SetNamed(0)", "MeshPart#2.SetNamed(0)", "MeshPart#1.SetNamed(1)",
                          "MeshPart#2.SetNamed(1)"));
}

TEST_F(FinishingTest, NamesComeInOrderOfThePartsAndBeforeTheEarlyTopology) {
  EXPECT_EQ(Translate(mixedDeck + "$ANSA_NAME;8;PSOLID;\n$Block\n$ANSA_NAME;7;PSHELL;\n$Door\n", traced, {.earlyTopology = 1}), 0);
  const std::vector<std::string> calls = StageCalls(traced);
  ASSERT_GE(calls.size(), 7u);
  EXPECT_EQ(calls[2], "MeshPart#1.SetName(\"Door\")");
  EXPECT_EQ(calls[3], "MeshPart#1.SetNamed(1)");
  EXPECT_EQ(calls[4], "MeshPart#2.SetName(\"Block\")");
  EXPECT_EQ(calls[5], "MeshPart#2.SetNamed(1)");
  EXPECT_EQ(calls[6], "MeshModel.UpdateTopology(0)");
}

TEST_F(FinishingTest, ANameOfAPartThatDoesNotExistIsIgnored) {
  EXPECT_EQ(Translate(std::string(quadDeck) + "$HMNAME COMP                 99\"Door\"\n", traced), 0);
  EXPECT_THAT(traced.CallsWith("SetName("), ElementsAre("MeshPart#1.SetName(\"Body 7\")"));
}

TEST_F(FinishingTest, PartsOfOneNameAreToldApart) {
  EXPECT_EQ(Translate(mixedDeck + "$HMNAME COMP                  7\"Door\"\n$HMNAME COMP                  8\"DOOR\"\n", traced), 0);
  EXPECT_THAT(traced.CallsWith("SetName("),
              ElementsAre("MeshPart#1.SetName(\"Door\")", "MeshPart#2.SetName(\"DOOR\")", "MeshPart#2.SetName(\"Door_1\")"));
}

TEST_F(FinishingTest, BytesOfANameBecomeCharactersOneByOne) {
  EXPECT_EQ(Translate(std::string(quadDeck) + "$HMNAME COMP                  7\"T\xFC\x72\"\n", traced), 0);
  EXPECT_THAT(traced.CallsWith("SetName("), ElementsAre("MeshPart#1.SetName(\"T\\u{00FC}r\")"));
}

// Repair.

TEST_F(FinishingTest, DefectsAreCountedAndRepairedOnlyWhereAsked) {
  TracedHost all(HostOptions(), TraceSink::Coverage::All);
  all.host.ScriptDefects({3});
  Translate(quadDeck, all, {.repairMesh = 1});
  const std::vector<std::string> calls = all.Calls();
  ASSERT_GE(calls.size(), 3u);
  EXPECT_EQ(calls[calls.size() - 3], "MeshModel.UpdateTopology(0)");
  EXPECT_EQ(calls[calls.size() - 2], "MeshModel.CountDefects(3) -> 3");
  EXPECT_EQ(calls[calls.size() - 1], "MeshModel.RepairDefects()");
}

TEST_F(FinishingTest, AnyCountButZeroIsRepaired) {
  traced.host.ScriptDefects({-1});
  Translate(quadDeck, traced, {.repairMesh = 1});
  EXPECT_EQ(traced.CallsWith("RepairDefects").size(), 1u);
}

TEST_F(FinishingTest, WithoutDefectsNothingIsRepaired) {
  Translate(quadDeck, traced, {.repairMesh = 1});
  EXPECT_THAT(traced.CallsWith("RepairDefects"), IsEmpty());
}

TEST_F(FinishingTest, ARepairThatIsNotAskedForIsNotMade) {
  for (const std::uint8_t value : {std::uint8_t{0}, std::uint8_t{2}, std::uint8_t{255}}) {
    TracedHost host(HostOptions(), TraceSink::Coverage::All);
    host.host.ScriptDefects({3});
    Translate(quadDeck, host, {.repairMesh = value});
    EXPECT_THAT(host.CallsWith("Defects"), IsEmpty());
  }
}

// Splitting.

TEST_F(FinishingTest, FacesOfEveryPartAreSplit) {
  EXPECT_EQ(Translate(mixedDeck, traced, {.splitFaceValue = 0.5}), 0);
  // The second face is the skin of the solid, made when its part was finished.
  EXPECT_THAT(traced.CallsWith("SplitFaces"),
              ElementsAre("MeshPart#1.SplitFaces([TopoFace#1], 0.5, 0)", "MeshPart#2.SplitFaces([TopoFace#2], 0.5, 0)"));
  EXPECT_THAT(Log(), HasSubstr("Updating Topology....\nProcessing Split Faces....\nClean Up process....\n"));
}

TEST_F(FinishingTest, WithoutAValueNothingIsSplitOrMerged) {
  traced.host.ScriptMerges({1, 1, 0});
  EXPECT_EQ(Translate(mixedDeck, traced, {.splitFaceRepair = 1}), 0);
  EXPECT_THAT(traced.CallsWith("SplitFaces"), IsEmpty());
  EXPECT_THAT(traced.CallsWith("MergeSplitPart"), IsEmpty());
  EXPECT_THAT(Log(), Not(HasSubstr("Processing Split Faces")));
}

TEST_F(FinishingTest, FacesThatLoadsUseAreNotSplit) {
  traced.host.SetHook([&](const char* /*type*/, const char* operation) {
    if (std::string_view(operation) == "AttachModel") {
      PooledList* faces = nullptr;
      static_cast<MeshPart*>(btz::PartList.next->value)->GetFaceList(&faces);
      ListAppend(&LoadPartList, faces->next->value);
    }
  });
  EXPECT_EQ(Translate(mixedDeck, traced, {.splitFaceValue = 0.5}), 0);
  EXPECT_THAT(traced.CallsWith("SplitFaces"), ElementsAre("MeshPart#2.SplitFaces([TopoFace#2], 0.5, 0)"));
  EXPECT_EQ(LoadPartList.size, 1);  // Kept for the next run, which only compares it.
}

TEST_F(FinishingTest, APartWithoutAMeshIsNotSplit) {
  EXPECT_EQ(Translate(std::string(quadDeck) + "CTRIA3  2       9       1       2       99\n", traced, {.splitFaceValue = 0.5}), 0);
  EXPECT_THAT(traced.CallsWith("SplitFaces"), ElementsAre("MeshPart#1.SplitFaces([TopoFace#1], 0.5, 0)"));
}

TEST_F(FinishingTest, SplitPartsAreMergedAsLongAsThereIsSomethingToMerge) {
  traced.host.ScriptMerges({2, 1, 0, -1});
  EXPECT_EQ(Translate(mixedDeck, traced, {.splitFaceValue = 0.5, .splitFaceRepair = 1}), 0);
  EXPECT_THAT(traced.CallsWith("MergeSplitPart"),
              ElementsAre("MeshModel.MergeSplitPart(MeshPart#1) -> 2", "MeshModel.MergeSplitPart(MeshPart#1) -> 1",
                          "MeshModel.MergeSplitPart(MeshPart#1) -> 0", "MeshModel.MergeSplitPart(MeshPart#2) -> -1"));
}

TEST_F(FinishingTest, OnlyTheValueOneMergesSplitParts) {
  traced.host.ScriptMerges({1});
  EXPECT_EQ(Translate(mixedDeck, traced, {.splitFaceValue = 0.5, .splitFaceRepair = 2}), 0);
  EXPECT_THAT(traced.CallsWith("MergeSplitPart"), IsEmpty());
}

TEST_F(FinishingTest, APartWithoutAMeshIsNotMerged) {
  EXPECT_EQ(Translate(std::string(quadDeck) + "CTRIA3  2       9       1       2       99\n", traced,
                      {.splitFaceValue = 0.5, .splitFaceRepair = 1}),
            0);
  EXPECT_THAT(traced.CallsWith("MergeSplitPart"), ElementsAre("MeshModel.MergeSplitPart(MeshPart#1) -> 0"));
}

// Hosts that refuse.

TEST_F(FinishingTest, ARunGoesOnToItsEndWhicheverCreateIsTheFirstToFail) {
  for (const bool nullOnFailure : {false, true}) {
    for (std::int32_t n = 1; n <= 12; ++n) {
      for (const Refusal how : {Refusal::Code, Refusal::EmptySuccess}) {
        TracedHost host({.nullOnFailure = nullOnFailure});
        host.host.Refusals().RefuseCreatesFrom(n, how);
        const std::int32_t result = Translate(mixedDeck, host, {.splitFaceValue = 0.5, .repairMesh = 1, .splitFaceRepair = 1});
        EXPECT_TRUE(result == 0 || result == 2) << n;
        EXPECT_EQ(host.host.IsAttached(), result == 0) << n;
      }
    }
  }
}

}  // namespace
}  // namespace btz::test
