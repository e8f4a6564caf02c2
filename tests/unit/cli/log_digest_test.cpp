#include "cli/log_digest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace btz::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LogDigest, ACompleteRunLeavesCountsAndSteps) {
  const LogDigest digest = DigestLog(
      "\nFile Reading Started : 9:5:7\n"
      "Node Reading Started\n\n"
      "\nNode Reading Ended\n\nTotal Nodes Readed -> 12\n\nElement Reading Started\n\n"
      "\nElement Reading Ended\n"
      "\n No.of Tet   Elements -> 0\n No.of Quad4 Elements -> 3\n No.of Pyramid  Elements -> 1\n\n"
      "Creating Properties....\n"
      "Updating Topology....\n"
      "Clean Up process....\n"
      "\nFile Reading Ended : 9:5:8\n"
      "\n...........Log File Ended..........");

  EXPECT_TRUE(digest.isPresent);
  EXPECT_TRUE(digest.isComplete);
  EXPECT_EQ(digest.nodesRead, 12);
  ASSERT_EQ(digest.elementsRead.size(), 2u);
  EXPECT_EQ(digest.elementsRead[0].what, "Quad4");
  EXPECT_EQ(digest.elementsRead[0].count, 3);
  EXPECT_EQ(digest.elementsRead[1].what, "Pyramid");
  EXPECT_EQ(digest.elementsRead[1].count, 1);
  EXPECT_THAT(digest.steps, ElementsAre("Creating Properties", "Updating Topology", "Clean Up process"));
  EXPECT_THAT(digest.refusals, IsEmpty());
  EXPECT_THAT(digest.otherLines, IsEmpty());
}

TEST(LogDigest, RefusalsAreCountedByKindAndKeepTheirFirstIds) {
  std::string log = "*** Failed Node -> 4 \n";
  for (int id = 11; id <= 17; ++id) {
    log += "*** Failed Quad4 Element -> " + std::to_string(id) + " \n";
  }
  log += "*** Failed Node -> -5 \n";

  const LogDigest digest = DigestLog(log);

  ASSERT_EQ(digest.refusals.size(), 2u);
  EXPECT_EQ(digest.refusals[0].what, "Node");
  EXPECT_EQ(digest.refusals[0].count, 2u);
  EXPECT_THAT(digest.refusals[0].firstIds, ElementsAre(4, -5));
  EXPECT_EQ(digest.refusals[1].what, "Quad4 Element");
  EXPECT_EQ(digest.refusals[1].count, 7u);
  EXPECT_THAT(digest.refusals[1].firstIds, ElementsAre(11, 12, 13, 14, 15));
  EXPECT_FALSE(digest.isComplete);
}

TEST(LogDigest, MissingIncludesAreNamed) {
  const LogDigest digest = DigestLog("\nInclude FileName \"../fem/a b.bdf\" does not exists.\n\nInclude FileName \"\" does not exists.\n");

  EXPECT_THAT(digest.missingIncludes, ElementsAre("../fem/a b.bdf", ""));
}

TEST(LogDigest, LinesOfAnotherKindAreKept) {
  const LogDigest digest = DigestLog("*** Failed Quad4 Element -> many\nSomething else\n");

  EXPECT_THAT(digest.otherLines, ElementsAre("*** Failed Quad4 Element -> many", "Something else"));
  EXPECT_THAT(digest.refusals, IsEmpty());
}

TEST(LogDigest, AnEmptyLogIsPresentButNotComplete) {
  const LogDigest digest = DigestLog("");

  EXPECT_TRUE(digest.isPresent);
  EXPECT_FALSE(digest.isComplete);
}

}  // namespace
}  // namespace btz::cli
