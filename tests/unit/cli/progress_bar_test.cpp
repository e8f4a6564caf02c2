#include "cli/progress_bar.h"

#include <gtest/gtest.h>

namespace btz::cli {
namespace {

TEST(ProgressBar, TheWordOfAOneChunkDeckRunsToFourHundred) {
  EXPECT_EQ(HighestWord(1), 400);
  EXPECT_EQ(HighestWord(2097144), 400);
}

TEST(ProgressBar, LongerDecksReachLess) {
  // Two chunks: steps of 25, three in each of four walks.
  EXPECT_EQ(HighestWord(2097145), 300);
  // 50 chunks: steps of 1, 51 in each walk.
  EXPECT_EQ(HighestWord(49u * 2097145u), 204);
  // From 51 chunks on the step is 0.
  EXPECT_EQ(HighestWord(50u * 2097145u), 0);
}

TEST(ProgressBar, AQuarterOfTheWordIsDoneInAOneChunkDeck) {
  EXPECT_EQ(PercentDone(0, 400), 0);
  EXPECT_EQ(PercentDone(50, 400), 12);
  EXPECT_EQ(PercentDone(100, 400), 25);
  EXPECT_EQ(PercentDone(300, 400), 75);
}

TEST(ProgressBar, TheStagesBehindTheWalksLeaveRoomForTheLastPercent) {
  EXPECT_EQ(PercentDone(400, 400), 99);
  // Include files take steps of their own.
  EXPECT_EQ(PercentDone(5000, 400), 99);
}

TEST(ProgressBar, AWordThatDoesNotMoveIsNoProgress) {
  EXPECT_EQ(PercentDone(100, 0), 0);
  EXPECT_EQ(PercentDone(-3, 400), 0);
}

TEST(ProgressBar, TheBarFillsFromTheLeft) {
  EXPECT_EQ(BarText(0), "[                                        ]   0%");
  EXPECT_EQ(BarText(25), "[##########                              ]  25%");
  EXPECT_EQ(BarText(100), "[########################################] 100%");
}

}  // namespace
}  // namespace btz::cli
