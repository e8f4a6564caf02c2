// The log: every message opens, writes and closes the file; without a file it is left out.
#include "platform/log_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>

#include "platform/platform.h"
#include "testing/fake_platform.h"
#include "testing/temporary_folder.h"

namespace btz {
namespace {

class LogFileTest : public ::testing::Test {
 protected:
  test::TemporaryFolder folder;
  std::string path = folder.Path("Bdf_Reader_Log.txt");
  test::FakePlatform platform;
  ScopedPlatform scope{platform};
};

TEST_F(LogFileTest, EachMessageIsAppendedAndOnDiskAtOnce) {
  folder.Write("Bdf_Reader_Log.txt", "start\n");
  AppendToLog(path.c_str(), "Node Reading Started\n\n");
  EXPECT_EQ(folder.ReadText("Bdf_Reader_Log.txt"), "start\nNode Reading Started\n\n");
  AppendToLog(path.c_str(), "100%d\n");
  EXPECT_EQ(folder.ReadText("Bdf_Reader_Log.txt"), "start\nNode Reading Started\n\n100%d\n");
  EXPECT_EQ(platform.CountOpenings(path, "a+"), 2);
  EXPECT_EQ(platform.openings.size(), 2u);
}

TEST_F(LogFileTest, AMessageMakesTheFileIfNeedBe) {
  AppendToLog(path.c_str(), "first\n");
  EXPECT_EQ(folder.ReadText("Bdf_Reader_Log.txt"), "first\n");
}

TEST_F(LogFileTest, AnOpenLogTakesSeveralMessages) {
  std::FILE* log = OpenLog(path.c_str());
  ASSERT_NE(log, nullptr);
  std::fputs("one\n", log);
  std::fputs("two\n", log);
  std::fclose(log);
  EXPECT_EQ(folder.ReadText("Bdf_Reader_Log.txt"), "one\ntwo\n");
  EXPECT_EQ(platform.CountOpenings(path, "a+"), 1);
}

TEST_F(LogFileTest, AFailureNamesTheWordAndTheId) {
  LogFailure(path.c_str(), "Node", 7);
  LogFailure(path.c_str(), "Quad4 Element", -12);
  LogFailure(path.c_str(), "Tri3 Element", INT32_MIN);
  EXPECT_EQ(folder.ReadText("Bdf_Reader_Log.txt"),
            "*** Failed Node -> 7 \n*** Failed Quad4 Element -> -12 \n*** Failed Tri3 Element -> -2147483648 \n");
}

TEST_F(LogFileTest, WithoutAPathThereIsNoLog) {
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    EXPECT_EQ(OpenLog(none), nullptr);
    AppendToLog(none, "text\n");
    LogFailure(none, "Node", 1);
  }
  EXPECT_EQ(platform.CountOpenings(path, "a+"), 0);
}

TEST_F(LogFileTest, ALogThatCannotBeOpenedIsLeftOut) {
  platform.refusedPaths.insert(path);
  AppendToLog(path.c_str(), "text\n");
  LogFailure(path.c_str(), "Node", 1);
  EXPECT_EQ(platform.openings.size(), 2u);
  EXPECT_FALSE(folder.Exists("Bdf_Reader_Log.txt"));
}

}  // namespace
}  // namespace btz
