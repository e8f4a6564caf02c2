// The scan in front of the passes: which lines count, and under which property.
#include "driver/pre_scan.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "driver/tables.h"
#include "mesh/parts.h"
#include "support/hash_table.h"
#include "tests/unit/testing/fake_platform.h"
#include "tests/unit/testing/temporary_folder.h"

namespace btz::test {
namespace {

using namespace std::string_literals;

class PreScanTest : public testing::Test {
 protected:
  PreScanTest() { ResetProcessState(); }
  ~PreScanTest() override { ResetProcessState(); }

  void Scan(std::string_view text) {
    const std::string path = folder.Write("deck.bdf", text);
    PreScanDeck(path.c_str(), &nodes, &elements, &includes);
  }

  /// Elements counted under the property, 0 when it has no record.
  static std::int32_t CountOf(std::int32_t propertyId) {
    const auto* record = static_cast<const PropertyElementCountRecord*>(HashFind(&SolidPartCounts, &propertyId));
    return record == nullptr ? 0 : record->elementCount;
  }

  TemporaryFolder folder;
  std::int32_t nodes = -1;
  std::int32_t elements = -1;
  std::int32_t includes = -1;
};

bool Counts(std::string_view line) { return CountElementCard(line.data(), line.size()); }

TEST_F(PreScanTest, CountsNodesElementsAndIncludes) {
  Scan("SOL 101\nBEGIN BULK\nGRID    1\nGRID    2\nGRID    3\nCQUAD4  1\nCHEXA   2       7\ninclude 'a'\nENDDATA\n");
  EXPECT_EQ(nodes, 3);
  EXPECT_EQ(elements, 2);
  EXPECT_EQ(includes, 1);
}

TEST_F(PreScanTest, AnEmptyFileHasNothing) {
  Scan("");
  EXPECT_EQ(nodes, 0);
  EXPECT_EQ(elements, 0);
  EXPECT_EQ(includes, 0);
}

TEST_F(PreScanTest, AFileThatCannotBeOpenedLeavesTheCountsAlone) {
  PreScanDeck(folder.Path("none.bdf").c_str(), &nodes, &elements, &includes);
  EXPECT_EQ(nodes, -1);
  EXPECT_EQ(elements, -1);
  EXPECT_EQ(includes, -1);
}

TEST_F(PreScanTest, NodesAreUpperCaseAndStandAtTheLineStart) {
  Scan("GRID*   1\nGRID,2\nGRIDX\ngrid    3\n GRID    4\n$GRID    5\nGRI\nGRID");
  EXPECT_EQ(nodes, 4);
}

TEST_F(PreScanTest, ContinuationsAndCommentsCountAsNothing) {
  Scan("$ CQUAD4\n+       CHEXA\n*       GRID\n        CHEXA\n,CHEXA\n");
  EXPECT_EQ(nodes + elements + includes, 0);
}

TEST_F(PreScanTest, EveryElementKeywordIsAPrefix) {
  for (const char* line : {"CTRIA3  1\n", "CTRIA6  1\n", "CTRIAR  1\n", "CTRIAX6 1\n", "CTETRA  1\n", "CPENTA  1\n", "CHEXA   1\n",
                           "CHEXA20 1\n", "CBAR    1\n", "CBARAO  1\n", "CQUAD4  1\n", "CQUAD8  1\n", "CQUADR  1\n", "CQUAD   1\n",
                           "CBEAM   1\n", "CPYRAM  1\n", "CPYRA   1\n", "CGASK6  1\n", "CGASK12 1\n"}) {
    EXPECT_TRUE(Counts(line)) << line;
  }
}

TEST_F(PreScanTest, OtherCardsAreNoElements) {
  for (const char* line : {"CTRI    1\n", "CTETR   1\n", "CELAS1  1\n", "CBUSH   1\n", "CROD    1\n", "PLOTEL3 1\n", "RBE2    1\n",
                           "ctria3  1\n", " CTRIA3 1\n", "CPYR    1\n", "CONM2   1\n", "C", "", "\n"}) {
    EXPECT_FALSE(Counts(line)) << line;
  }
}

TEST_F(PreScanTest, PropertiesOfShellsAndBarsAreNotCounted) {
  Scan("GRID    1\nCTRIA3  1       5\nCQUAD4  2       5\nCBAR    3       5\nCBEAM   4       5\n");
  EXPECT_EQ(nodes, 1);
  EXPECT_EQ(elements, 4);
  EXPECT_EQ(HashCount(&SolidPartCounts), 0);
}

TEST_F(PreScanTest, PropertiesOfSolidsAndGasketsAreCounted) {
  Scan(
      "CTETRA  1       50      \nCPENTA  2       50      \nCHEXA   3       51      \nCPYRAM  4       52      \nCPYRA   5       52      \n"
      "CGASK6  6       53      \nCGASK16 7       53      \n");
  EXPECT_EQ(elements, 7);
  EXPECT_EQ(CountOf(50), 2);
  EXPECT_EQ(CountOf(51), 1);
  EXPECT_EQ(CountOf(52), 2);
  EXPECT_EQ(CountOf(53), 2);
  EXPECT_EQ(HashCount(&SolidPartCounts), 4);
}

TEST_F(PreScanTest, APyramidOfEitherSpellingCountsOnce) {
  Scan("CPYRAM  1       9       1       2       3       4       5\n");
  EXPECT_EQ(elements, 1);
  EXPECT_EQ(CountOf(9), 1);
}

TEST_F(PreScanTest, AStarAnywhereMakesTheFieldsSixteenWide) {
  Counts("CHEXA*                 1              12\n");
  EXPECT_EQ(CountOf(12), 1);
  // The star of the comment counts as well: the property field is columns 25 to 40.
  Counts("CHEXA   1       77      13              $*\n");
  EXPECT_EQ(CountOf(77), 0);
  EXPECT_EQ(CountOf(13), 1);
}

TEST_F(PreScanTest, TheFirstFieldBeginsAtColumnNineWhateverTheWidth) {
  Counts("CHEXA*  1234567890123456111             x\n");
  EXPECT_EQ(CountOf(111), 1);
}

TEST_F(PreScanTest, ABlankPropertyFieldCountsUnderZero) {
  Counts("CHEXA   1               1       2       3\n");
  EXPECT_EQ(CountOf(0), 1);
}

TEST_F(PreScanTest, AShortLineCountsUnderZero) {
  for (const char* line : {"CHEXA\n", "CHEXA", "CHEXA   \n", "CHEXA   12\n", "CHEXA   1\n", "CHEXA   1", "CHEXA   12      \n"}) {
    EXPECT_TRUE(Counts(line)) << line;
  }
  EXPECT_EQ(CountOf(0), 7);
  EXPECT_EQ(HashCount(&SolidPartCounts), 1);
}

TEST_F(PreScanTest, ALoneCharacterInFrontOfTheLineFeedIsNoProperty) {
  Counts("CHEXA   1       7\n");
  EXPECT_EQ(CountOf(7), 0);
  EXPECT_EQ(CountOf(0), 1);
}

TEST_F(PreScanTest, ALoneDigitInFrontOfACarriageReturnIsAProperty) {
  Counts("CHEXA   1       7\r\n");
  EXPECT_EQ(CountOf(7), 1);
}

TEST_F(PreScanTest, ALoneDigitAtTheEndOfTheFileIsAProperty) {
  Scan("CHEXA   1       7");
  EXPECT_EQ(CountOf(7), 1);
}

TEST_F(PreScanTest, TwoDigitsInFrontOfTheLineFeedAreAProperty) {
  Counts("CHEXA   1       17\n");
  EXPECT_EQ(CountOf(17), 1);
}

TEST_F(PreScanTest, ALineWithCommasIsReadByTheSameColumns) {
  // Columns 17 to 24 hold ",25,1,2,": no digits at the start.
  Counts("CHEXA,1234567890,25,1,2,3\n");
  EXPECT_EQ(CountOf(0), 1);
  // Columns 17 to 24 hold "25,1,2,3".
  Counts("CHEXA,123456789,25,1,2,3\n");
  EXPECT_EQ(CountOf(25), 1);
}

TEST_F(PreScanTest, ANegativePropertyIsCountedAsAnElementOnly) {
  Scan("CHEXA   1       -5      \nCHEXA   2       6       \n");
  EXPECT_EQ(elements, 2);
  EXPECT_EQ(CountOf(6), 1);
  EXPECT_EQ(HashCount(&SolidPartCounts), 1);
}

TEST_F(PreScanTest, ManyPropertiesKeepTheirCounts) {
  std::string text;
  for (int round = 0; round < 2; ++round) {
    for (int id = 1; id <= 5000; ++id) {
      std::string field = std::to_string(id);
      field.resize(8, ' ');
      text += "CHEXA   1       " + field + "\n";
    }
  }
  Scan(text + "CHEXA   1       5000    \n");
  EXPECT_EQ(elements, 10001);
  EXPECT_EQ(HashCount(&SolidPartCounts), 5000);
  EXPECT_EQ(CountOf(1), 2);
  EXPECT_EQ(CountOf(1001), 2);
  EXPECT_EQ(CountOf(4999), 2);
  EXPECT_EQ(CountOf(5000), 3);
}

TEST_F(PreScanTest, CountsOfTwoScansAddUp) {
  Scan("CHEXA   1       50      \n");
  Scan("CHEXA   1       50      \n");
  EXPECT_EQ(CountOf(50), 2);
  EXPECT_EQ(elements, 1);
}

TEST_F(PreScanTest, IncludeLinesCountInAnyCaseMixWithABlankBehindTheWord) {
  Scan("include 'a'\nINCLUDE 'b'\nInClUdE c\ninclude 'd'\n");
  EXPECT_EQ(includes, 4);
}

TEST_F(PreScanTest, IncludeLinesWithoutTheBlankDoNotCount) {
  Scan("include'a'\ninclude\nINCLUDE\tb\n include c\nincludes d\ninclude");
  EXPECT_EQ(includes, 0);
}

TEST_F(PreScanTest, IncludeFilesAreNotOpened) {
  folder.Write("part.bdf", "GRID    1\n");
  Scan("include part.bdf\n");
  EXPECT_EQ(includes, 1);
  EXPECT_EQ(nodes, 0);
}

TEST_F(PreScanTest, TheRestOfALineBehind255CharactersIsTestedAsALine) {
  std::string line = "CHEXA   1       60      ";
  line.resize(255, ' ');
  Scan(line + "GRID    7\n" + line + "\n" + line + "CHEXA   1       61      \n");
  EXPECT_EQ(nodes, 1);
  EXPECT_EQ(elements, 4);
  EXPECT_EQ(CountOf(60), 3);
  EXPECT_EQ(CountOf(61), 1);
}

TEST_F(PreScanTest, ALineOf254CharactersAndItsLineFeedIsOneLine) {
  std::string line = "$";
  line.resize(254, ' ');
  Scan(line + "\nGRID    1\n");
  EXPECT_EQ(nodes, 1);
  line.resize(250, ' ');
  Scan(line + "GRID    1\n");  // At character 251: no line start.
  EXPECT_EQ(nodes, 0);
}

TEST_F(PreScanTest, LinesAreFoundAcrossAllBlocksOfALongFile) {
  std::string text;
  std::int32_t written = 0;
  for (; text.size() < 300000; ++written) {
    text += "GRID    " + std::to_string(written) + std::string(static_cast<std::size_t>(written % 90), ' ') + "\n";
  }
  Scan(text + "GRID");
  EXPECT_EQ(nodes, written + 1);
}

TEST_F(PreScanTest, ALineOfALongFileWithoutALineFeedIsCutEvery255Characters) {
  // 300000 / 255 is 1176.47: 1177 pieces, each beginning with "GRID".
  std::string piece = "GRID";
  piece.resize(255, '.');
  std::string text;
  while (text.size() < 300000) {
    text += piece;
  }
  text.resize(300000);
  Scan(text);
  EXPECT_EQ(nodes, 1177);
}

TEST_F(PreScanTest, ANulEndsTheTextOfItsLineOnly) {
  Scan("CHEXA\0\nGRID    1\n\0GRID    2\nGR\0ID    3\nCHEXA   1       5\0     0\n"s);
  EXPECT_EQ(nodes, 1);
  EXPECT_EQ(elements, 2);
  EXPECT_EQ(CountOf(5), 1);
  EXPECT_EQ(CountOf(0), 1);
}

TEST_F(PreScanTest, LinesMayEndInCarriageReturnAndLineFeed) {
  Scan("GRID    1\r\nCHEXA   1       7\r\ninclude 'a'\r\n");
  EXPECT_EQ(nodes, 1);
  EXPECT_EQ(elements, 1);
  EXPECT_EQ(includes, 1);
  EXPECT_EQ(CountOf(7), 1);
}

TEST_F(PreScanTest, TheFileIsOpenedInBinaryMode) {
  FakePlatform platform;
  const ScopedPlatform scope(platform);
  Scan("GRID\n");
  ASSERT_EQ(platform.openings.size(), 1u);
  EXPECT_EQ(platform.openings[0].mode, "rb");
}

}  // namespace
}  // namespace btz::test
