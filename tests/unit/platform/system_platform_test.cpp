// The operating system as the library sees it: the shared progress word, the console, the clock and the environment.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

#include "platform/platform.h"
#include "platform/shared_word.h"

namespace btz {
namespace {

class ProgressWordTest : public ::testing::Test {
 protected:
  ~ProgressWordTest() override { SystemPlatform().OpenProgressWord("BTZ_TEST_NOBODY"); }
};

TEST_F(ProgressWordTest, StoresArriveInTheWordThatTheHostShares) {
  test::SharedWord word;
  ASSERT_TRUE(word.IsShared());
  word.Set(77);
  SystemPlatform().OpenProgressWord(word.Name());
  EXPECT_EQ(word.Value(), 77) << "opening stores nothing";
  for (const std::int32_t percent : {0, 50, 100, 400, -1}) {
    SystemPlatform().StoreProgress(percent);
    EXPECT_EQ(word.Value(), percent);
  }
}

TEST_F(ProgressWordTest, WithoutAWordStoresGoNowhere) {
  SystemPlatform().OpenProgressWord("BTZ_TEST_NOBODY");
  SystemPlatform().StoreProgress(50);
}

TEST_F(ProgressWordTest, ANewWordReplacesTheOldOne) {
  test::SharedWord first;
  test::SharedWord second;
  ASSERT_TRUE(first.IsShared());
  ASSERT_TRUE(second.IsShared());
  SystemPlatform().OpenProgressWord(first.Name());
  SystemPlatform().StoreProgress(1);
  SystemPlatform().OpenProgressWord(second.Name());
  SystemPlatform().StoreProgress(2);
  EXPECT_EQ(first.Value(), 1);
  EXPECT_EQ(second.Value(), 2);
  SystemPlatform().OpenProgressWord("BTZ_TEST_NOBODY");
  SystemPlatform().StoreProgress(3);
  EXPECT_EQ(second.Value(), 2) << "a name that nobody shares lets go of the old word";
}

TEST_F(ProgressWordTest, TheWordMayLieInALargerMapping) {
  test::SharedWord word(4096);
  ASSERT_TRUE(word.IsShared());
  SystemPlatform().OpenProgressWord(word.Name());
  SystemPlatform().StoreProgress(42);
  EXPECT_EQ(word.Value(), 42);
}

TEST_F(ProgressWordTest, TheHostMayCloseItsWordFirst) {
  {
    test::SharedWord word;
    SystemPlatform().OpenProgressWord(word.Name());
  }
  SystemPlatform().StoreProgress(42);
}

#ifndef _WIN32
TEST_F(ProgressWordTest, AnObjectTooSmallForAWordIsNone) {
  for (const std::size_t size : {0, 3}) {
    test::SharedWord word(size);
    SystemPlatform().OpenProgressWord(word.Name());
    SystemPlatform().StoreProgress(42);
  }
}
#endif

TEST(SystemConsole, PrintsAtOnce) {
  ::testing::internal::CaptureStdout();
  SystemPlatform().PrintConsole("\tCompleted .....  0%");
  SystemPlatform().PrintConsole("\b\b\b\b 50%");
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "\tCompleted .....  0%\b\b\b\b 50%");
}

TEST(SystemConsole, PrintsPercentSignsAsTheyAre) {
  ::testing::internal::CaptureStdout();
  SystemPlatform().PrintConsole("100%%s %d");
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "100%%s %d");
}

std::int32_t Seconds(const LocalTime& time) { return (time.hour * 60 + time.minute) * 60 + time.second; }

TEST(SystemClock, TellsTheLocalTimeOfDay) {
  const auto local = [] {
    const std::time_t now = std::time(nullptr);
    const std::tm* parts = std::localtime(&now);
    return LocalTime{parts->tm_hour, parts->tm_min, parts->tm_sec};
  };
  const std::int32_t before = Seconds(local());
  const std::int32_t now = Seconds(SystemPlatform().Now());
  const std::int32_t after = Seconds(local());
  constexpr std::int32_t day = 24 * 60 * 60;
  EXPECT_GE(now, 0);
  EXPECT_LT(now, day);
  // Differences around midnight count forward; the two clocks may round a second apart.
  EXPECT_LE((now - before + 1 + day) % day, (after - before + day) % day + 2);
}

void SetVariable(const char* name, const char* value) {
#ifdef _WIN32
  SetEnvironmentVariableA(name, value);
#else
  if (value == nullptr) {
    unsetenv(name);
  } else {
    setenv(name, value, 1);
  }
#endif
}

class EnvironmentTest : public ::testing::Test {
 protected:
  ~EnvironmentTest() override { SetVariable(name, nullptr); }

  /// The variable through a buffer of `capacity` bytes; "(unset)" when it is not set.
  std::string Read(std::size_t capacity = 1024) {
    char dest[2048];
    std::memset(dest, '#', sizeof(dest));
    if (!SystemPlatform().ReadEnvironment(name, dest, capacity)) {
      EXPECT_EQ(dest[0], '#') << "left alone";
      return "(unset)";
    }
    EXPECT_EQ(dest[capacity], '#');
    return dest;
  }

  static constexpr const char* name = "BTZ_TEST_VARIABLE";
};

TEST_F(EnvironmentTest, AVariableThatIsNotSetIsNotThere) { EXPECT_EQ(Read(), "(unset)"); }

TEST_F(EnvironmentTest, GivesTheValueThatWasSetLast) {
  SetVariable(name, "/scratch");
  EXPECT_EQ(Read(), "/scratch");
  SetVariable(name, "D:\\scratch folder\\");
  EXPECT_EQ(Read(), "D:\\scratch folder\\");
}

TEST_F(EnvironmentTest, AnEmptyValueCountsAsSet) {
  SetVariable(name, "");
  EXPECT_EQ(Read(), "");
}

TEST_F(EnvironmentTest, ALongValueIsCut) {
  SetVariable(name, std::string(1500, 'v').c_str());
  EXPECT_EQ(Read(1024), std::string(1023, 'v'));
  EXPECT_EQ(Read(8), "vvvvvvv");
  EXPECT_EQ(Read(1501), std::string(1500, 'v'));
}

}  // namespace
}  // namespace btz
