// The arithmetic of progress: step, words and console text.
#include "driver/progress.h"

#include <gmock/gmock.h>

#include <cstdint>

#include "tests/unit/testing/fake_platform.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t chunk = 2097145;

class ProgressTest : public testing::Test {
 protected:
  std::int32_t StepFor(std::int64_t length) {
    BeginProgress(&progress, length);
    return progress.step;
  }

  FakePlatform platform;
  ScopedPlatform scope{platform};
  Progress progress;
};

TEST_F(ProgressTest, TheWordHasItsNameAndStartsAtZero) {
  OpenProgress();
  EXPECT_THAT(platform.progressNames, ElementsAre("KRT_PROGRESS"));
  EXPECT_THAT(platform.progress, ElementsAre(0));
  EXPECT_EQ(platform.console, "");
}

TEST_F(ProgressTest, ADeckShorterThanAChunkHasTheStepFifty) {
  EXPECT_EQ(StepFor(1), 50);
  EXPECT_EQ(StepFor(chunk - 1), 50);
}

TEST_F(ProgressTest, ADeckOfExactlyAChunkCountsAsTwo) { EXPECT_EQ(StepFor(chunk), 25); }

TEST_F(ProgressTest, TheStepIsTruncatedTwice) {
  EXPECT_EQ(StepFor(2 * chunk), 16);   // 100 / 3 = 33, half of it 16
  EXPECT_EQ(StepFor(3 * chunk), 12);   // 25, 12
  EXPECT_EQ(StepFor(5 * chunk), 8);    // 100 / 6 = 16, 8
  EXPECT_EQ(StepFor(6 * chunk), 7);    // 14, 7
  EXPECT_EQ(StepFor(7 * chunk), 6);    // 12, 6
  EXPECT_EQ(StepFor(32 * chunk), 1);   // 100 / 33 = 3, 1
  EXPECT_EQ(StepFor(33 * chunk), 1);   // 100 / 34 = 2, 1
  EXPECT_EQ(StepFor(49 * chunk), 1);   // 50 chunks
  EXPECT_EQ(StepFor(50 * chunk), 0);   // 51 chunks
  EXPECT_EQ(StepFor(100 * chunk), 0);  // 101 chunks
}

TEST_F(ProgressTest, LengthsBeyond32BitsAreTakenWhole) {
  EXPECT_EQ(StepFor(std::int64_t{1} << 33), 0);
  EXPECT_EQ(StepFor(std::int64_t{4294967295} * chunk), 0);
  EXPECT_EQ(StepFor(INT64_MAX), 0);
}

TEST_F(ProgressTest, TheHeadIsPrintedAndTheWordSetToZero) {
  OpenProgress();
  platform.progress.clear();
  BeginProgress(&progress, 100);
  EXPECT_EQ(platform.console, "\tCompleted .....  0%");
  EXPECT_THAT(platform.progress, ElementsAre(0));
}

TEST_F(ProgressTest, TheFirstChunkShowsZeroAndStoresTheStep) {
  OpenProgress();
  BeginProgress(&progress, 100);
  platform.progress.clear();
  platform.console.clear();
  ShowFirstChunk(&progress);
  EXPECT_EQ(platform.console, "\b\b\b\b  0%");
  EXPECT_THAT(platform.progress, ElementsAre(50));
  EXPECT_EQ(progress.value, 50);
}

TEST_F(ProgressTest, ALaterChunkShowsTheValueAndThenAddsTheStep) {
  OpenProgress();
  platform.progress.clear();
  progress = {12, 24};
  ShowNextChunk(&progress);
  EXPECT_EQ(platform.console, "\b\b\b\b 24%");
  EXPECT_THAT(platform.progress, ElementsAre(36));
  EXPECT_EQ(progress.value, 36);
}

TEST_F(ProgressTest, ARewindStoresTheValueBeforeItAddsTheStep) {
  OpenProgress();
  platform.progress.clear();
  progress = {12, 24};
  ShowRewind(&progress);
  EXPECT_EQ(platform.console, "\b\b\b\b 24%");
  EXPECT_THAT(platform.progress, ElementsAre(24));
  EXPECT_EQ(progress.value, 36);
}

TEST_F(ProgressTest, TheValueIsNotClamped) {
  OpenProgress();
  platform.progress.clear();
  progress = {50, 350};
  ShowNextChunk(&progress);
  EXPECT_EQ(platform.console, "\b\b\b\b350%");
  EXPECT_THAT(platform.progress, ElementsAre(400));
}

TEST_F(ProgressTest, TheEndStoresAndShowsAHundred) {
  OpenProgress();
  platform.progress.clear();
  EndProgress();
  EXPECT_EQ(platform.console, "\b\b\b\b100%\n\n");
  EXPECT_THAT(platform.progress, ElementsAre(100));
}

TEST_F(ProgressTest, WithoutASharedWordTheConsoleIsServedAllTheSame) {
  platform.hasProgressWord = false;
  OpenProgress();
  BeginProgress(&progress, 100);
  ShowFirstChunk(&progress);
  EndProgress();
  EXPECT_EQ(platform.console, "\tCompleted .....  0%\b\b\b\b  0%\b\b\b\b100%\n\n");
  EXPECT_THAT(platform.progress, IsEmpty());
}

}  // namespace
}  // namespace btz::test
