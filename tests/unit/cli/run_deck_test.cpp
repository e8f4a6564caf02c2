#include "cli/run_deck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "cli/exit_codes.h"
#include "cli/standard_streams.h"
#include "memory_host/memory_host.h"
#include "testing/temporary_folder.h"

namespace btz::cli {
namespace {

using testing::HasSubstr;

constexpr const char* smallDeck =
    "GRID    1               0.0     0.0     0.0\n"
    "GRID    2               1.0     0.0     0.0\n"
    "GRID    3               0.0     1.0     0.0\n"
    "CTRIA3  11      7       1       2       3\n";

TEST(RunDeck, TellsResultSizeAndLog) {
  const test::TemporaryFolder folder;
  Options options;
  options.deckPath = folder.Write("deck.bdf", smallDeck);
  memory::MemoryHost host;
  ResultStream results;

  const RunOutcome outcome = RunDeck(options, host, results);

  EXPECT_EQ(outcome.result, 0);
  EXPECT_EQ(outcome.deckBytes, std::string(smallDeck).size());
  EXPECT_GE(outcome.seconds, 0.0);
  ASSERT_TRUE(outcome.log.has_value());
  EXPECT_THAT(*outcome.log, HasSubstr("\nTotal Nodes Readed -> 3\n"));
  EXPECT_EQ(host.Nodes().Size(), 3u);
  EXPECT_TRUE(host.IsAttached());
}

TEST(RunDeck, PutsTheLogWhereItIsWanted) {
  const test::TemporaryFolder folder;
  Options options;
  options.deckPath = folder.Write("deck.bdf", smallDeck);
  options.logFolder = folder.Path();
  memory::MemoryHost host;
  ResultStream results;

  RunDeck(options, host, results);

  EXPECT_THAT(folder.ReadText("Bdf_Reader_Log.txt"), HasSubstr("\nTotal Nodes Readed -> 3\n"));
}

#ifndef _WIN32

TEST(RunDeck, LeavesTheEnvironmentAsItWas) {
  const test::TemporaryFolder folder;
  Options options;
  options.deckPath = folder.Write("deck.bdf", smallDeck);
  ResultStream results;

  setenv("QX_SCRATCH_DIR", "/somewhere", 1);
  memory::MemoryHost host;
  RunDeck(options, host, results);
  EXPECT_STREQ(getenv("QX_SCRATCH_DIR"), "/somewhere");

  unsetenv("QX_SCRATCH_DIR");
  memory::MemoryHost other;
  RunDeck(options, other, results);
  EXPECT_EQ(getenv("QX_SCRATCH_DIR"), nullptr);
}

TEST(RunDeckDeathTest, AWrongCallOfTheHostEndsTheProgramWithItsName) {
  const test::TemporaryFolder folder;
  Options options;
  options.deckPath = folder.Write("deck.bdf", smallDeck);
  memory::MemoryHost host;
  ResultStream results;
  RunDeck(options, host, results);

  // A host that has its model takes no second run.
  EXPECT_EXIT(RunDeck(options, host, results), testing::ExitedWithCode(exitHostMisused), "btz: memory host: .* on ");
}

#endif

}  // namespace
}  // namespace btz::cli
