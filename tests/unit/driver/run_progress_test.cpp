// Progress of whole runs: every word and all console output.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/unit/driver/run_fixture.h"

namespace btz::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t chunkLimit = 2097145;

class RunProgressTest : public RunTest {
 protected:
  TracedHost traced;
};

/// Appends comment lines until the text has just `size` bytes; the last line is `tail`.
std::string PadTo(std::string text, std::size_t size, std::string_view tail) {
  constexpr std::size_t lineLength = 100;
  const std::string filler = "$" + std::string(lineLength - 2, '.') + "\n";
  while (text.size() + lineLength + 2 <= size - tail.size()) {
    text += filler;
  }
  text += "$";
  text.resize(size - tail.size() - 1, '.');
  text += "\n";
  return text.append(tail);
}

TEST_F(RunProgressTest, ADeckOfOneChunk) {
  Translate(quadDeck, traced);
  EXPECT_THAT(platform.progressNames, ElementsAre("KRT_PROGRESS"));
  // Opened, head, first chunk; then the end of each pass and the rewind behind it; the end of the last pass and the last word.
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 50, 100, 100, 200, 200, 300, 300, 400, 100));
  EXPECT_EQ(platform.console,
            "\tCompleted .....  0%\b\b\b\b  0%\b\b\b\b 50%\b\b\b\b100%\b\b\b\b150%\b\b\b\b200%\b\b\b\b250%\b\b\b\b300%\b\b\b\b350%"
            "\b\b\b\b100%\n\n");
}

TEST_F(RunProgressTest, WithoutASharedWordTheConsoleIsTheSame) {
  platform.hasProgressWord = false;
  EXPECT_EQ(Translate(quadDeck, traced), 0);
  EXPECT_THAT(platform.progress, IsEmpty());
  EXPECT_TRUE(platform.console.ends_with("\b\b\b\b350%\b\b\b\b100%\n\n"));
}

TEST_F(RunProgressTest, ADeckOfExactlyOneChunkCountsTwoAndLosesItsLastCard) {
  const std::string text = PadTo(std::string(quadDeck), chunkLimit, "CTRIA3  9       7       1       2       3\n");
  ASSERT_EQ(text.size(), chunkLimit);
  EXPECT_EQ(Translate(text, traced), 0);
  EXPECT_EQ(traced.host.Elements().Size(), 1u);
  // Each pass asks for two more chunks: the text that was cut, and the one that is not there.
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 25, 50, 75, 75, 125, 150, 150, 200, 225, 225, 275, 300, 100));
}

TEST_F(RunProgressTest, ADeckOneByteShorterKeepsItsLastCard) {
  const std::string text = PadTo(std::string(quadDeck), chunkLimit - 1, "CTRIA3  9       7       1       2       3\n");
  EXPECT_EQ(Translate(text, traced), 0);
  EXPECT_EQ(traced.host.Elements().Size(), 2u);
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 50, 100, 100, 200, 200, 300, 300, 400, 100));
}

TEST_F(RunProgressTest, ADeckOneByteLongerHasASecondChunkWithItsLastCard) {
  const std::string text = PadTo(std::string(quadDeck), chunkLimit + 1, "CTRIA3  9       7       1       2       3\n");
  EXPECT_EQ(Translate(text, traced), 0);
  EXPECT_EQ(traced.host.Elements().Size(), 2u);
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 25, 50, 75, 75, 125, 150, 150, 200, 225, 225, 275, 300, 100));
}

TEST_F(RunProgressTest, AnIncludeFileAddsAStepInEveryPass) {
  folder.Write("part.bdf", "PSHELL  7\n");
  Translate(std::string(quadDeck) + "include 'part.bdf'\n", traced);
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 50, 100, 150, 150, 250, 300, 300, 400, 450, 450, 550, 600, 100));
}

TEST_F(RunProgressTest, AMissingIncludeFileAddsNothing) {
  Translate(std::string(quadDeck) + "include 'none.bdf'\n", traced);
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 50, 100, 100, 200, 200, 300, 300, 400, 100));
}

TEST_F(RunProgressTest, AnIndentedIncludeLineAddsItsStepInTheFirstAndFourthPassOnly) {
  folder.Write("part.bdf", "PSHELL  7\n");
  Translate(std::string(quadDeck) + "  include 'part.bdf'\n", traced);
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 50, 100, 150, 150, 250, 250, 350, 350, 450, 500, 100));
}

TEST_F(RunProgressTest, ARunWithoutNodesEndsBehindTheFirstPass) {
  Translate("CQUAD4  1\n", traced);
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 50, 100));
  EXPECT_EQ(platform.console, "\tCompleted .....  0%\b\b\b\b  0%\b\b\b\b 50%");
}

TEST_F(RunProgressTest, ARunWithoutElementsEndsBehindTheThirdPass) {
  Translate("GRID    1       0       0.0     0.0     0.0\n", traced);
  EXPECT_THAT(platform.progress, ElementsAre(0, 0, 50, 100, 100, 200, 200, 300));
}

TEST_F(RunProgressTest, ADeckOfMoreThanFiftyChunksStaysAtZeroUntilItsEnd) {
  std::string text(quadDeck);
  const std::string filler = "$" + std::string(16382, '.') + "\n";
  while (text.size() <= 50 * chunkLimit) {
    text += filler;
  }
  EXPECT_EQ(Translate(text, traced), 0);
  ASSERT_FALSE(platform.progress.empty());
  EXPECT_EQ(platform.progress.back(), 100);
  platform.progress.pop_back();
  EXPECT_GE(platform.progress.size(), 4u * 50u);
  EXPECT_THAT(platform.progress, Each(0));
}

}  // namespace
}  // namespace btz::test
