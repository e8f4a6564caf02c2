// One run from call to return: its result, the order of what the host is told, its log, and what a run leaves to the next one.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "analysis/case_control.h"
#include "mesh/gaps.h"
#include "mesh/parts.h"
#include "support/hash_table.h"
#include "tests/unit/driver/run_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::size_t chunkLimit = 2097145;

constexpr std::string_view twoNodes =
    "GRID    1       0       0.0     0.0     0.0\n"
    "GRID    2       0       1.0     0.0     0.0\n";

class RunSequenceTest : public RunTest {
 protected:
  TracedHost traced;
};

// Results.

TEST_F(RunSequenceTest, WithoutAPathNothingIsTouched) {
  EXPECT_EQ(TranslateFile(nullptr, traced), 1);
  EXPECT_THAT(platform.openings, IsEmpty());
  EXPECT_THAT(platform.progressNames, IsEmpty());
  EXPECT_EQ(platform.console, "");
  EXPECT_FALSE(HasLog());
  EXPECT_THAT(traced.Calls(), IsEmpty());
}

TEST_F(RunSequenceTest, AFileThatCannotBeOpenedIsNoDeck) {
  EXPECT_EQ(TranslateFile(folder.Path("none.bdf").c_str(), traced), -5);
  EXPECT_FALSE(HasLog());
  EXPECT_THAT(traced.Calls(), IsEmpty());
}

TEST_F(RunSequenceTest, AFolderIsNoDeck) { EXPECT_EQ(TranslateFile(folder.Path().c_str(), traced), -5); }

TEST_F(RunSequenceTest, AnEmptyFileIsNoDeckAndMakesNoLog) {
  EXPECT_EQ(Translate("", traced), -5);
  EXPECT_FALSE(HasLog());
  EXPECT_EQ(platform.console, "");
  EXPECT_THAT(traced.Calls(), IsEmpty());
}

TEST_F(RunSequenceTest, AFileWithoutNodesElementsAndIncludesIsNoDeck) {
  EXPECT_EQ(Translate("SOL 101\nPSHELL  1\ngrid    1\nENDDATA\n", traced), -5);
  EXPECT_EQ(Log(), "\nFile Reading Started : 12:34:56\n");
  EXPECT_THAT(platform.progressNames, IsEmpty());
  EXPECT_EQ(platform.console, "");
  EXPECT_THAT(traced.Calls(), IsEmpty());
}

TEST_F(RunSequenceTest, OnlyIncludeLinesWithoutNodesGiveOne) {
  folder.Write("part.bdf", "PSHELL  1\n");
  EXPECT_EQ(Translate("include 'part.bdf'\n", traced), 1);
  EXPECT_THAT(traced.Calls(), ElementsAre("HostProject.GetMeshModel(1) -> MeshModel", "MeshModel.SetSourcePath(\"deck.bdf\")"));
  EXPECT_EQ(Log(), "\nFile Reading Started : 12:34:56\nNode Reading Started\n\n");
}

TEST_F(RunSequenceTest, OnlyElementsGiveOne) {
  EXPECT_EQ(Translate("CQUAD4  1       7       1       2       3       4\n", traced), 1);
  EXPECT_THAT(traced.Calls(), ElementsAre("HostProject.GetMeshModel(1) -> MeshModel", "MeshModel.SetSourcePath(\"deck.bdf\")"));
}

TEST_F(RunSequenceTest, NodesWithoutElementsGiveTwoAndStayInTheModel) {
  EXPECT_EQ(Translate(twoNodes, traced), 2);
  EXPECT_EQ(traced.host.Nodes().Size(), 2u);
  EXPECT_FALSE(traced.host.IsAttached());
  EXPECT_THAT(traced.Calls(), ElementsAre("HostProject.GetMeshModel(1) -> MeshModel", "MeshModel.SetSourcePath(\"deck.bdf\")",
                                          "MeshModel.CreateNode(1, (0.0, 0.0, 0.0), 0) -> 0",
                                          "MeshModel.CreateNode(2, (1.0, 0.0, 0.0), 0) -> 0", "MeshModel.Reserve(2, 2)"));
  EXPECT_EQ(Log(),
            "\nFile Reading Started : 12:34:56\n"
            "Node Reading Started\n\n"
            "\nNode Reading Ended\n\nTotal Nodes Readed -> 2\n\nElement Reading Started\n\n"
            "\nElement Reading Ended\n"
            "\n No.of Tet   Elements -> 0\n No.of Tri3  Elements -> 0\n No.of Tri6  Elements -> 0\n No.of Quad4 Elements -> 0"
            "\n No.of Quad8 Elements -> 0\n No.of Hex   Elements -> 0\n No.of Wedge Elements -> 0\n No.of Bar   Elements -> 0"
            "\n No.of Rbe2  Elements -> 0\n No.of Rbe3  Elements -> 0\n No.of Mass  Elements -> 0\n No.of Pyramid  Elements -> 0"
            "\n No.of Gasket  Elements -> 0\n\n");
}

TEST_F(RunSequenceTest, OnlyRefusedElementsGiveTwo) {
  EXPECT_EQ(Translate(std::string(twoNodes) + "CTRIA3  1       7       1       2       99\n", traced), 2);
  EXPECT_THAT(Log(), HasSubstr("*** Failed Tri3 Element -> 1 \n"));
  EXPECT_THAT(Log(), HasSubstr("\n No.of Tri3  Elements -> 0"));
}

TEST_F(RunSequenceTest, ARefusedHexahedronOfTheDeckStaysCounted) {
  EXPECT_EQ(Translate(std::string(twoNodes) + "CHEXA   1       7       1       2       99\n", traced), 0);
  EXPECT_THAT(Log(), HasSubstr("\n No.of Hex   Elements -> 1"));
}

TEST_F(RunSequenceTest, ARefusedElementOfAnIncludeFileStaysCountedButForPyramids) {
  folder.Write("part.bdf", "CTRIA3  1       7       1       2       99\nCPYRA   2       7       1       2       99\n");
  EXPECT_EQ(Translate(std::string(twoNodes) + "include 'part.bdf'\n", traced), 0);
  EXPECT_THAT(Log(), HasSubstr("\n No.of Tri3  Elements -> 1"));
  EXPECT_THAT(Log(), HasSubstr("\n No.of Pyramid  Elements -> 0"));
}

TEST_F(RunSequenceTest, ATetraThatWaitsCountsAsAnElement) {
  EXPECT_EQ(Translate(std::string(twoNodes) + "CTETRA  1       7       1       2\n", traced), 0);
}

TEST_F(RunSequenceTest, RefusedNodesAreNodesReadAllTheSame) {
  traced.host.Refusals().RefuseFrom("MeshModel.CreateNode", 1);
  EXPECT_EQ(Translate(twoNodes, traced), 2);
  EXPECT_THAT(Log(), HasSubstr("*** Failed Node -> 1 \n*** Failed Node -> 2 \n\nNode Reading Ended\n\nTotal Nodes Readed -> 2\n"));
}

TEST_F(RunSequenceTest, NodesAndElementsMayStandInIncludeFilesOnly) {
  folder.Write("part.bdf", quadDeck);
  EXPECT_EQ(Translate("include 'part.bdf'\n", traced), 0);
  EXPECT_EQ(traced.host.Nodes().Size(), 4u);
  EXPECT_EQ(traced.host.Elements().Size(), 1u);
}

TEST_F(RunSequenceTest, ADeckWithoutALineFeedInItsFirstChunkEndsBeforeTheModelIsAskedFor) {
  std::string text(chunkLimit + 10, 'x');
  text.replace(0, 4, "GRID");
  EXPECT_EQ(Translate(text, traced), 0);
  EXPECT_THAT(traced.Calls(), IsEmpty());
  EXPECT_EQ(Log(), "\nFile Reading Started : 12:34:56\n\nFile Reading Ended : 12:34:56\n\n...........Log File Ended..........");
}

// Order.

TEST_F(RunSequenceTest, TheHostIsToldOfASmallDeckInThisOrder) {
  EXPECT_EQ(Translate(quadDeck, traced), 0);
  EXPECT_THAT(traced.Calls(),
              ElementsAre("HostProject.GetMeshModel(1) -> MeshModel", "MeshModel.SetSourcePath(\"deck.bdf\")", "MeshModel.Reserve(4, 1)",
                          "MeshModel.CreateNode(1, (0.0, 0.0, 0.0), 0) -> 0", "MeshModel.CreateNode(2, (1.0, 0.0, 0.0), 0) -> 0",
                          "MeshModel.CreateNode(3, (1.0, 1.0, 0.0), 0) -> 0", "MeshModel.CreateNode(4, (0.0, 1.0, 0.0), 0) -> 0",
                          "MeshModel.Reserve(4, 4)", "MeshModel.CreateBody(1, 7, 0, 1, 1) -> MeshPart#1",
                          "MeshModel.CreateTopoEntity(2, 7, MeshPart#1, 1) -> TopoFace#1", "MeshPart#1.AddFace(TopoFace#1, 1)",
                          "MeshModel.ReservePartId(7)", "MeshModel.CreateElement(1, 5, [1, 2, 3, 4], 7, 0, 0, 1, 0) -> 0",
                          "MeshPart#1.SetNumber(8)", "MeshPart#1.SetName(\"Body 7\")", "FaceMesh#1.Rebuild()", "MeshModel.ReservePartId(9)",
                          "MeshPart#1.SetNamed(0)", "MeshPart#1.SetNamed(1)", "MaterialStore.Commit()", "MeshModel.Finish()",
                          "HostProject.AttachModel(MeshModel, 1)", "MeshModel.UpdateTopology(0)"));
}

TEST_F(RunSequenceTest, ElementsOfIncludeFilesComeBeforeThoseOfTheDeck) {
  folder.Write("part.bdf", "CTRIA3  2       8       1       2       3\n");
  Translate(std::string(quadDeck) + "include 'part.bdf'\n", traced);
  EXPECT_THAT(traced.CallsWith("CreateElement"), ElementsAre("MeshModel.CreateElement(2, 3, [1, 2, 3], 8, 0, 0, 1, 0) -> 0",
                                                             "MeshModel.CreateElement(1, 5, [1, 2, 3, 4], 7, 0, 0, 1, 0) -> 0"));
}

TEST_F(RunSequenceTest, NodesAreReadWhereTheyStandIndentedOnesToo) {
  folder.Write("part.bdf", "  GRID    5       0       5.0     0.0     0.0\n");
  Translate("GRID    6       0       6.0     0.0     0.0\ninclude 'part.bdf'\n\tGRID    4       0       4.0     0.0     0.0\n", traced);
  // Behind the tab the columns of a card begin with its keyword.
  EXPECT_THAT(traced.CallsWith("CreateNode"),
              ElementsAre("MeshModel.CreateNode(6, (6.0, 0.0, 0.0), 0) -> 0", "MeshModel.CreateNode(5, (5.0, 0.0, 0.0), 0) -> 0",
                          "MeshModel.CreateNode(4, (4.0, 0.0, 0.0), 0) -> 0"));
}

TEST_F(RunSequenceTest, AnIndentedElementIsNotRead) {
  Translate(std::string(quadDeck) + " CTRIA3 9       7       1       2       3\n", traced);
  EXPECT_EQ(traced.host.Elements().Size(), 1u);
}

TEST_F(RunSequenceTest, AnIndentedElementBehindAHexahedronIsRead) {
  Translate(std::string(quadDeck) + "CHEXA   9       8       1       2       99\n  CTRIA3  10      7       1       2       3\n", traced);
  EXPECT_EQ(traced.host.Elements().Size(), 2u);
}

TEST_F(RunSequenceTest, EveryFamilyWithoutAPropertyHasADefaultPartOfItsOwn) {
  Translate(std::string(quadDeck) +
                "CQUAD4  2               1       2       3       4\nCTRIA3  3               1       2       3\n"
                "CQUAD4  4               1       2       3       4\nCTRIA3  5               1       2       3\n",
            traced);
  // The property 7 was the first; the quadrilaterals' first element had it, so the default part is chosen at the second. Triangles, whose first
  // element comes then, start a new one, which all later blank properties share.
  EXPECT_THAT(traced.CallsWith("CreateElement"), ElementsAre("MeshModel.CreateElement(1, 5, [1, 2, 3, 4], 7, 0, 0, 1, 0) -> 0",
                                                             "MeshModel.CreateElement(2, 5, [1, 2, 3, 4], 8, 0, 0, 1, 0) -> 0",
                                                             "MeshModel.CreateElement(3, 3, [1, 2, 3], 9, 0, 0, 1, 0) -> 0",
                                                             "MeshModel.CreateElement(4, 5, [1, 2, 3, 4], 9, 0, 0, 1, 0) -> 0",
                                                             "MeshModel.CreateElement(5, 3, [1, 2, 3], 9, 0, 0, 1, 0) -> 0"));
}

TEST_F(RunSequenceTest, TheStoresAreAskedForGapsBeforeTheLoads) {
  TracedHost all(HostOptions(), TraceSink::Coverage::All);
  Translate(quadDeck, all);
  EXPECT_EQ(all.CallsWith("GetEntitiesOfType(47)").size(), 1u);
}

TEST_F(RunSequenceTest, GroupNumbersOfTheHostsGapsAreKnownToTheRun) {
  for (const std::int32_t groupId : {5, 0, -3, 8}) {
    GapEntity* gap = nullptr;
    traced.host.GetBoundaryStore()->CreateGap(&gap);
    gap->SetGroupId(groupId);
  }
  std::vector<std::int32_t> known;
  traced.host.SetHook([&](const char* /*type*/, const char* operation) {
    if (std::string_view(operation) == "AttachModel") {
      WalkTable<std::int32_t>(&GapGroupTable, [&](const std::int32_t* id) { known.push_back(*id); });
    }
  });
  Translate(quadDeck, traced);
  EXPECT_THAT(known, ElementsAre(5, 8));
  EXPECT_EQ(HashCount(&GapGroupTable), 0);  // Records of the run, gone with it.
}

// Room.

TEST_F(RunSequenceTest, RoomIsReservedWithTheScannedCounts) {
  Translate("GRID    1\nGRID    2\nCTRIA3  1\nCTRIA3  2\nCTRIA3  3\n", traced);
  EXPECT_THAT(traced.CallsWith("Reserve("), ElementsAre("MeshModel.Reserve(2, 3)"));
}

TEST_F(RunSequenceTest, NoMoreRoomIsReservedForAsManyNodesAsElements) {
  Translate(std::string(twoNodes) + "CTRIA3  1\nCTRIA3  2\n", traced);
  EXPECT_THAT(traced.CallsWith("Reserve("), ElementsAre("MeshModel.Reserve(2, 2)"));
}

TEST_F(RunSequenceTest, MoreNodesThanScannedReserveRoomAgain) {
  Translate(std::string(twoNodes) + " GRID   3       0       0.0     0.0     0.0\nCTRIA3  1\nCTRIA3  2\nCTRIA3  3\nCTRIA3  4\n", traced);
  EXPECT_THAT(traced.CallsWith("Reserve("), ElementsAre("MeshModel.Reserve(2, 4)", "MeshModel.Reserve(3, 3)"));
}

TEST_F(RunSequenceTest, WithoutScannedNodesRoomIsReservedBehindTheReading) {
  folder.Write("part.bdf", twoNodes);
  Translate("include 'part.bdf'\nCTRIA3  1\nCTRIA3  2\nCTRIA3  3\n", traced);
  EXPECT_THAT(traced.CallsWith("Reserve("), ElementsAre("MeshModel.Reserve(2, 2)"));
}

/// Refuses the second opening of the deck, which is the scan's.
class OneOpeningPlatform final : public Platform {
 public:
  explicit OneOpeningPlatform(Platform& platform) : inner(platform) {}

  std::FILE* OpenFile(const char* path, const char* mode) override {
    const bool isDeck = std::string_view(path).ends_with("deck.bdf");
    return isDeck && ++deckOpenings == 2 ? nullptr : inner.OpenFile(path, mode);
  }
  void OpenProgressWord(const char* name) override { inner.OpenProgressWord(name); }
  void StoreProgress(std::int32_t percent) override { inner.StoreProgress(percent); }
  void PrintConsole(const char* text) override { inner.PrintConsole(text); }
  LocalTime Now() override { return inner.Now(); }
  bool ReadEnvironment(const char* name, char* dest, std::size_t capacity) override { return inner.ReadEnvironment(name, dest, capacity); }

  int deckOpenings = 0;

 private:
  Platform& inner;
};

TEST_F(RunSequenceTest, AScanThatCannotOpenTheDeckLeavesTheDefaultCounts) {
  OneOpeningPlatform once(platform);
  const ScopedPlatform inForce(once);
  EXPECT_EQ(Translate(quadDeck, traced), 0);
  EXPECT_THAT(traced.CallsWith("Reserve("), ElementsAre("MeshModel.Reserve(800000, 1200000)"));
}

// Case control.

TEST_F(RunSequenceTest, NumbersOfCaseControlStartAtZero) {
  SolNumber = 1;
  GlobalSdampingId = 2;
  GlobalMfluidId = 3;
  GlobalMethodId = 4;
  SubcaseNeedsCases = 5;
  Translate(quadDeck, traced);
  EXPECT_EQ(SolNumber, 0);
  EXPECT_EQ(GlobalSdampingId, 0);
  EXPECT_EQ(GlobalMfluidId, 0);
  EXPECT_EQ(GlobalMethodId, 0);
  EXPECT_EQ(SubcaseNeedsCases, 0);
}

TEST_F(RunSequenceTest, NumbersOfCaseControlAreTakenFromTheirLines) {
  Translate("SOL 103\n  SDAMPING = 21\nMFLUID = 31\nMETHOD(STRUCTURE) = 41\n" + std::string(quadDeck), traced);
  EXPECT_EQ(SolNumber, 103);
  EXPECT_EQ(GlobalSdampingId, 21);
  EXPECT_EQ(GlobalMfluidId, 31);
  EXPECT_EQ(GlobalMethodId, 41);
}

TEST_F(RunSequenceTest, LinesWithoutAnEqualsSignSetNoMethodAndNoFluid) {
  Translate("SOL SESTATIC\nSDAMPING 21\nMFLUID 31\nMETHOD 41\n" + std::string(quadDeck), traced);
  EXPECT_EQ(SolNumber, 0);
  EXPECT_EQ(GlobalSdampingId, 21);  // Asks for no sign.
  EXPECT_EQ(GlobalMfluidId, 0);
  EXPECT_EQ(GlobalMethodId, 0);
}

TEST_F(RunSequenceTest, ALineOfCaseControlMayBeTheLastOneWithoutALineFeed) {
  Translate(std::string(quadDeck) + "METHOD=41", traced);
  EXPECT_EQ(GlobalMethodId, 41);
}

// Log.

TEST_F(RunSequenceTest, TheLogOfASmallDeck) {
  Translate(std::string(quadDeck) + "include 'none.bdf'\n", traced);
  EXPECT_EQ(Log(),
            "\nFile Reading Started : 12:34:56\n"
            "Node Reading Started\n\n"
            "\nInclude FileName \"none.bdf\" does not exists.\n"
            "\nNode Reading Ended\n\nTotal Nodes Readed -> 4\n\nElement Reading Started\n\n"
            "\nElement Reading Ended\n"
            "\n No.of Tet   Elements -> 0\n No.of Tri3  Elements -> 0\n No.of Tri6  Elements -> 0\n No.of Quad4 Elements -> 1"
            "\n No.of Quad8 Elements -> 0\n No.of Hex   Elements -> 0\n No.of Wedge Elements -> 0\n No.of Bar   Elements -> 0"
            "\n No.of Rbe2  Elements -> 0\n No.of Rbe3  Elements -> 0\n No.of Mass  Elements -> 0\n No.of Pyramid  Elements -> 0"
            "\n No.of Gasket  Elements -> 0\n\n"
            "Creating Properties....\n"
            "Updating Topology....\n"
            "Clean Up process....\n"
            "\nFile Reading Ended : 12:34:56\n"
            "\n...........Log File Ended..........");
}

TEST_F(RunSequenceTest, EveryMessageHasAnOpeningOfItsOwnAndOnlyTheFirstTruncates) {
  Translate(quadDeck, traced);
  const std::string log = folder.Path() + "/Bdf_Reader_Log.txt";
  EXPECT_EQ(platform.CountOpenings(log, "w"), 1);
  EXPECT_EQ(platform.CountOpenings(log, "a+"), 7);
}

TEST_F(RunSequenceTest, TheNextRunStartsTheLogAnew) {
  Translate(quadDeck, traced);
  TracedHost second;
  EXPECT_EQ(Translate("SOL 101\n", second), -5);
  EXPECT_EQ(Log(), "\nFile Reading Started : 12:34:56\n");
}

TEST_F(RunSequenceTest, WithoutAFolderForTheLogARunSucceedsAndMakesNone) {
  platform.environment.clear();
  EXPECT_EQ(Translate(quadDeck, traced), 0);
  EXPECT_FALSE(HasLog());
}

TEST_F(RunSequenceTest, AFolderThatDoesNotExistCostsTheLogOnly) {
  platform.environment = {{"QX_SCRATCH_DIR", folder.Path("none")}};
  EXPECT_EQ(Translate(quadDeck, traced), 0);
  EXPECT_TRUE(traced.host.IsAttached());
}

// Run after run.

TEST_F(RunSequenceTest, TwoRunsTellTheirHostsTheSame) {
  TracedHost second;
  Translate(quadDeck, traced);
  Translate(quadDeck, second);
  EXPECT_EQ(traced.trace, second.trace);
}

TEST_F(RunSequenceTest, ARunBehindAnAbandonedOneCallsNothingOfItsModel) {
  {
    TracedHost abandoned;
    // The part 7 is made for an element that is refused then.
    EXPECT_EQ(Translate(std::string(twoNodes) + "CTRIA3  1       7       1       2       99\n", abandoned), 2);
    EXPECT_EQ(abandoned.CallsWith("CreateBody").size(), 1u);
  }
  TracedHost fresh;
  Translate(quadDeck, fresh);
  ResetProcessState();
  Translate(quadDeck, traced);
  EXPECT_EQ(fresh.trace, traced.trace);
}

TEST_F(RunSequenceTest, NamesOfAnAbandonedRunAreForgotten) {
  TracedHost abandoned;
  EXPECT_EQ(Translate(std::string(twoNodes) + "$HMNAME COMP                  7\"Door\"\n", abandoned), 2);
  Translate(quadDeck, traced);
  EXPECT_THAT(traced.CallsWith("SetName("), ElementsAre("MeshPart#1.SetName(\"Body 7\")"));
}

TEST_F(RunSequenceTest, SolidsCountedByAnAbandonedRunAddToTheNextOnes) {
  const std::string solid = std::string(quadDeck) + "CTETRA  5       8       1       2       3       4\n";
  TracedHost abandoned;
  EXPECT_EQ(Translate(std::string(twoNodes) + "CTETRA  1       8       1       2       3       99\n", abandoned), 2);
  Translate(solid, traced);
  EXPECT_THAT(traced.CallsWith("ReservePartElements"), ElementsAre("MeshModel.ReservePartElements(8, 12)"));
  TracedHost third;
  Translate(solid, third);
  EXPECT_THAT(third.CallsWith("ReservePartElements"), ElementsAre("MeshModel.ReservePartElements(8, 11)"));
}

TEST_F(RunSequenceTest, ARunBehindOneWithoutNodesIsLikeTheFirst) {
  TracedHost abandoned;
  EXPECT_EQ(Translate("CQUAD4  1       7       1       2       3       4\n", abandoned), 1);
  EXPECT_EQ(Translate(quadDeck, traced), 0);
  EXPECT_EQ(traced.host.Elements().Size(), 1u);
}

TEST_F(RunSequenceTest, AFullRunLeavesNoPartsAndNoRecords) {
  Translate(std::string(quadDeck) + "CTETRA  5       8       1       2       3\nCQUADR  6       9       1       2       3       4\n",
            traced);
  EXPECT_EQ(PartList.size, 0);
  EXPECT_EQ(HashCount(&PartIdTable), 0);
  EXPECT_EQ(HashCount(&SolidPartCounts), 0);
}

TEST_F(RunSequenceTest, AHostThatGivesNoModelEndsTheRun) {
  traced.host.Refusals().RefuseCall("HostProject.GetMeshModel", 1);
  EXPECT_EQ(Translate(quadDeck, traced), 0);
  EXPECT_THAT(traced.Calls(), ElementsAre("HostProject.GetMeshModel(1) -> null"));
}

}  // namespace
}  // namespace btz::test
