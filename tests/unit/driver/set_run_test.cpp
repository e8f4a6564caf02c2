// SET cards in whole runs: which reader takes a card, how the sets are named, and lists and groups that go over the end of a chunk.
#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "deck/deck_buffer.h"
#include "tests/unit/deck/columns.h"
#include "tests/unit/driver/run_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SetRunTest : public RunTest {
 protected:
  /// Names and members of the sets that a deck with these lines makes: `Set1: n2 n3`. Nodes are 1 to 4 and 11, elements 1 and 11.
  std::vector<std::string> SetsOf(std::string_view lines) {
    TracedHost traced;
    EXPECT_EQ(Translate(Deck(lines), traced), 0);
    std::vector<std::string> texts;
    for (const auto& set : traced.host.Boundary().sets) {
      std::string text(set.info.name.begin(), set.info.name.end());
      text += ":";
      for (const MeshNode* node : set.nodes) {
        text += " n" + std::to_string(node->id);
      }
      for (const MeshElement* element : set.elements) {
        text += " e" + std::to_string(element->id);
      }
      texts.push_back(text);
    }
    return texts;
  }

  static std::string Deck(std::string_view lines) {
    return std::string(quadDeck.substr(0, quadDeck.find("ENDDATA"))) + Small("GRID|11|0|2.0|0.0|0.0") + Small("CTRIA3|11|7|2|11|3") +
           std::string(lines);
  }

  /// Lines of a deck of two chunks: the first ends with `head`, the second begins with `tail`, whose first line has 9 characters or more and does
  /// not begin like a continuation line.
  static std::string AcrossChunks(std::string_view head, std::string_view tail) {
    const std::size_t taken = Deck(head).size() + 9;
    return std::string(deckChunkLimit - taken, 'x') + "\n" + std::string(head) + std::string(tail);
  }
};

TEST_F(SetRunTest, AWordOfItsFirstLineMakesItAGroup) {
  // As a list each of these has node 2, as a group nothing: the ninth column is no id, and GRID or ELEM does not stand in its field.
  for (const char* word : {"GRID", "ELEM", "LIST", "grid", "Element", "enlisted"}) {
    EXPECT_THAT(SetsOf("SET 7 = 2, 3 $ " + std::string(word) + "\n"), IsEmpty()) << word;
  }
  for (const char* word : {"GRIT", "ELE M", "LST", "PROP"}) {
    EXPECT_THAT(SetsOf("SET 7 = 2, 3 $ " + std::string(word) + "\n"), ElementsAre("Set1: n2")) << word;
  }
  EXPECT_THAT(SetsOf(Small("SET|7|GRID") + Small("+|2|THRU|4")), ElementsAre("Set1: n2 n3 n4"));
}

TEST_F(SetRunTest, OnlyTheFirstLineIsSearchedForTheWord) { EXPECT_THAT(SetsOf("SET 7 = 2,\n3, GRIDS\n"), ElementsAre("Set1: n2 n3")); }

TEST_F(SetRunTest, ABlankStandsBehindTheKeyword) {
  EXPECT_THAT(SetsOf("SET,7,GRID\n+,2\nSET=2\nSETS = 2\nSET7 = 2\nSET\t7 = 2\nset 7 = 2\nSET*    7               GRID\n*       2\n"),
              IsEmpty());
}

TEST_F(SetRunTest, TheNumberOfANameRisesThoughNothingIsMade) {
  EXPECT_THAT(SetsOf("SET 1 = 99\nSET 0 = 2\n" + Small("SET|2|LIST") + Small("SET|3|GRID") + "SURF    9\nSET 4 = 2\n"),
              ElementsAre("Set6: n2"));
}

TEST_F(SetRunTest, SetsThatFollowEachOtherAreAllRead) {
  EXPECT_THAT(SetsOf("SET 1 = 2\nSET 1 = 3, 4,\n  SET 2 = 1\n" + Small("SET|3|GRID") + Small("+|4") + Small("SET|3|ELEM") + Small("+|11") +
                     "SET 3 = 4"
                     ",\n"),
              ElementsAre("Set1: n2", "Set2: n3 n4", "Set3: n1", "Set3: e1", "Set4: n4", "Set5: e11", "Set6: n4"));
}

TEST_F(SetRunTest, AnIndentedSetIsNamedByItsOwnLine) {
  EXPECT_THAT(SetsOf("$Bolts\nSET 1 = 2\n$Bolts\n  SET 1 = 3\n$Bolts\n SET 1 = 4, x: Pins\n"),
              ElementsAre("Bolts: n2", "Set1: n3", "Pins: n4"));
}

TEST_F(SetRunTest, SetsOfIncludeFilesAreCountedWithTheOthers) {
  folder.Write("sets.inc", "SET 1 = 2\n$Bolts\nSET 2 = 3\n" + Small("SET|3|ELEM") + Small("+|11"));
  EXPECT_THAT(SetsOf("SET 4 = 4\ninclude 'sets.inc'\nSET 5 = 4\n"),
              ElementsAre("Set1: n4", "Set2: n2", "Bolts: n3", "Set3: e11", "Set4: n4"));
}

TEST_F(SetRunTest, AListGoesOverTheEndOfAChunk) {
  EXPECT_THAT(SetsOf(AcrossChunks("SET 7 = 3, 2,\n", "4, 2 THRU 3\nSET 8 = 2\nSET 9 = 3,\n4\n")),
              ElementsAre("Set1: n3 n2 n4 n2 n3", "Set2: n2", "Set3: n3 n4"));
}

TEST_F(SetRunTest, AListOfAnIncludeFileGoesOverTheEndOfItsChunk) {
  const std::string head = "SET 7 = 3, 2,\n";
  folder.Write("sets.inc", std::string(deckChunkLimit - head.size() - 9, 'x') + "\n" + head + "4, 2 THRU 3\nSET 8 = 2\n");
  EXPECT_THAT(SetsOf("include 'sets.inc'\nSET 9 = 3\n"), ElementsAre("Set1: n3 n2 n4 n2 n3", "Set2: n2", "Set3: n3"));
}

TEST_F(SetRunTest, AGroupGoesOverTheEndOfAChunk) {
  EXPECT_THAT(SetsOf(AcrossChunks(Small("SET|7|GRID") + Small("+|1|THRU"), Small("3|11") + "SET 8 = 2\n")),
              ElementsAre("Set1: n1 n2 n3 n11", "Set2: n2"));
}

TEST_F(SetRunTest, AGroupOfMarkedLinesThatIsLargerThanAChunkIsWhole) {
  std::string text = Small("SET|7|GRID") + Small("+|1|THRU");
  while (text.size() < deckChunkLimit + 1000) {
    text += Small("+|0|0|0|0|0|0|0|0");
  }
  EXPECT_THAT(SetsOf(text + Small("+|3|11") + "SET 8 = 2\n"), ElementsAre("Set1: n1 n2 n3 n11", "Set2: n2"));
}

// Required: the line above the first card of a chunk went with the chunk before.
TEST_F(SetRunTest, ANameAboveTheFirstCardOfAChunkIsNotSeen) {
  EXPECT_THAT(SetsOf(AcrossChunks("$Bolts\n", "SET 7 = 2, 3\n$Bolts\nSET 8 = 2\n")), ElementsAre("Set1: n2 n3", "Bolts: n2"));
}

// What a reader fetches is no step of the progress.
TEST_F(SetRunTest, AChunkThatASetFetchesIsNoProgress) {
  SetsOf(AcrossChunks("$ no set\n", "$ none here either\n"));
  const std::size_t steps = platform.progress.size();
  platform.progress.clear();
  SetsOf(AcrossChunks("SET 7 = 3, 2,\n", "4, 2 THRU 3\nNEXT\n"));
  EXPECT_EQ(platform.progress.size(), steps - 1);
}

}  // namespace
}  // namespace btz::test
