// The log: where it lies, and the bytes of the driver's own messages.
#include "driver/run_log.h"

#include <gtest/gtest.h>

#include <string>

#include "driver/run_state.h"
#include "platform/log_file.h"
#include "tests/unit/testing/fake_platform.h"
#include "tests/unit/testing/temporary_folder.h"

namespace btz::test {
namespace {

class RunLogTest : public testing::Test {
 protected:
  std::string BuiltPath() {
    char built[1024] = "unset";
    BuildLogPath(built, sizeof(built));
    return built;
  }

  std::string Log() const { return folder.ReadText("log.txt"); }

  TemporaryFolder folder;
  FakePlatform platform;
  ScopedPlatform scope{platform};
  std::string path = folder.Path("log.txt");
};

TEST_F(RunLogTest, TheScratchFolderComesFirst) {
  platform.environment = {{"QX_SCRATCH_DIR", "/scratch"}, {"CAE_HOME", "/home"}};
  EXPECT_EQ(BuiltPath(), "/scratch/Bdf_Reader_Log.txt");
}

TEST_F(RunLogTest, WithoutAScratchFolderTheProgramsHomeIsTaken) {
  platform.environment = {{"CAE_HOME", "/home"}};
  EXPECT_EQ(BuiltPath(), "/home/Bdf_Reader_Log.txt");
}

TEST_F(RunLogTest, WithNeitherThereIsNoLog) {
  EXPECT_EQ(BuiltPath(), "");
  StartLog("");
  LogNodesRead("", 1);
  AppendToLog("", "text");
  EndLog("");
  EXPECT_TRUE(platform.openings.empty());
}

TEST_F(RunLogTest, AFolderThatEndsWithASeparatorGetsASecondOne) {
  platform.environment = {{"QX_SCRATCH_DIR", "/scratch/"}};
  EXPECT_EQ(BuiltPath(), "/scratch//Bdf_Reader_Log.txt");
  platform.environment = {{"QX_SCRATCH_DIR", "c:\\scratch\\"}};
  EXPECT_EQ(BuiltPath(), "c:\\scratch\\/Bdf_Reader_Log.txt");
}

TEST_F(RunLogTest, AVariableThatIsSetToNothingCountsAsSet) {
  platform.environment = {{"QX_SCRATCH_DIR", ""}, {"CAE_HOME", "/home"}};
  EXPECT_EQ(BuiltPath(), "/Bdf_Reader_Log.txt");
}

TEST_F(RunLogTest, AnOverlongFolderIsCutAndOpensNothing) {
  platform.environment = {{"QX_SCRATCH_DIR", std::string(5000, 'x')}};
  const std::string built = BuiltPath();
  EXPECT_LT(built.size(), 1024u);
  StartLog(built.c_str());
  EXPECT_EQ(platform.CountOpenings(built, "w"), 0);
}

TEST_F(RunLogTest, TheStartTruncatesAnOldLogAndTellsTheTimeUnpadded) {
  folder.Write("log.txt", "an old log, much longer than the new one, which is truncated");
  platform.now = {7, 5, 0};
  StartLog(path.c_str());
  EXPECT_EQ(Log(), "\nFile Reading Started : 7:5:0\n");
  EXPECT_EQ(platform.CountOpenings(path, "w"), 1);
}

TEST_F(RunLogTest, EveryLaterMessageIsAppendedByAnOpeningOfItsOwn) {
  StartLog(path.c_str());
  platform.openings.clear();
  AppendToLog(path.c_str(), "one\n");
  AppendToLog(path.c_str(), "two\n");
  EXPECT_EQ(Log(), "\nFile Reading Started : 12:34:56\none\ntwo\n");
  EXPECT_EQ(platform.CountOpenings(path, "a+"), 2);
  EXPECT_EQ(platform.openings.size(), 2u);
}

TEST_F(RunLogTest, TheNodesAreToldInOneOpening) {
  LogNodesRead(path.c_str(), 1234567);
  EXPECT_EQ(Log(), "\nNode Reading Ended\n\nTotal Nodes Readed -> 1234567\n\nElement Reading Started\n\n");
  EXPECT_EQ(platform.openings.size(), 1u);
}

TEST_F(RunLogTest, TheElementSummaryTellsEveryFamilyInOneOpening) {
  std::int32_t counters[familyCount] = {};
  counters[familyTet] = 1;
  counters[familyTri3] = 2;
  counters[familyTri6] = 3;
  counters[familyQuad4] = 4;
  counters[familyQuad8] = 5;
  counters[familyHex] = 6;
  counters[familyWedge] = 7;
  counters[familyBar] = 8;
  counters[familyRbe2] = 9;
  counters[familyRbe3] = 10;
  counters[familyMass] = 99;  // Told as 0 all the same.
  counters[familyPyramid] = 11;
  counters[familyGasket] = 12;
  LogElementSummary(path.c_str(), counters);
  EXPECT_EQ(Log(),
            "\nElement Reading Ended\n"
            "\n No.of Tet   Elements -> 1"
            "\n No.of Tri3  Elements -> 2"
            "\n No.of Tri6  Elements -> 3"
            "\n No.of Quad4 Elements -> 4"
            "\n No.of Quad8 Elements -> 5"
            "\n No.of Hex   Elements -> 6"
            "\n No.of Wedge Elements -> 7"
            "\n No.of Bar   Elements -> 8"
            "\n No.of Rbe2  Elements -> 9"
            "\n No.of Rbe3  Elements -> 10"
            "\n No.of Mass  Elements -> 0"
            "\n No.of Pyramid  Elements -> 11"
            "\n No.of Gasket  Elements -> 12"
            "\n\n");
  EXPECT_EQ(platform.openings.size(), 1u);
}

TEST_F(RunLogTest, TheEndIsToldInOneOpeningAndWithoutALastLineFeed) {
  platform.now = {23, 59, 1};
  EndLog(path.c_str());
  EXPECT_EQ(Log(), "\nFile Reading Ended : 23:59:1\n\n...........Log File Ended..........");
  EXPECT_EQ(platform.openings.size(), 1u);
}

TEST_F(RunLogTest, AFailureIsToldWithItsNumberAndABlankBehindIt) {
  LogFailure(path.c_str(), "Node", 17);
  LogFailure(path.c_str(), "Quad4 Element", -3);
  EXPECT_EQ(Log(), "*** Failed Node -> 17 \n*** Failed Quad4 Element -> -3 \n");
}

TEST_F(RunLogTest, ALogThatCannotBeOpenedIsLeftOut) {
  platform.refusedPaths = {path};
  StartLog(path.c_str());
  AppendToLog(path.c_str(), "text");
  LogNodesRead(path.c_str(), 1);
  EndLog(path.c_str());
  EXPECT_FALSE(folder.Exists("log.txt"));
}

}  // namespace
}  // namespace btz::test
