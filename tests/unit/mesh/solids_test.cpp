// Solid cards: the type by the number of node values, tetrahedra that wait for the transition stage, and pyramids in free format.
#include "mesh/solids.h"

#include <gmock/gmock.h>

#include <cstdio>

#include "support/block_pool.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using SolidReader = std::int32_t (*)(MeshModel* model, CardCursor* cursor, const char* logPath);

/// A card of the keyword with the element id 101, the property 7 and the nodes 1 to `nodeCount`, with as many continuation lines as that takes.
std::string SolidCard(const std::string& keyword, std::int32_t nodeCount) {
  std::vector<std::string> fields = {keyword, "101", "7"};
  std::string card;
  for (std::int32_t node = 1; node <= nodeCount; ++node) {
    if (fields.size() == 9) {
      fields.push_back("+");
      card += Card8(fields) + "\n";
      fields = {"+"};
    }
    fields.push_back(std::to_string(node));
  }
  return card + Card8(fields) + "\n";
}

class SolidCardTest : public MeshTest {
 protected:
  SolidCardTest() {
    MakeNodes(30);
    EnsurePart(model, 7, partOfSolids);
    Calls();
  }

  std::int32_t Read(SolidReader reader, std::string_view text) {
    CardText card(text);
    const std::int32_t result = reader(model, &card.cursor, logPath);
    rest = card.Rest();
    return result;
  }

  static std::vector<TransitionTetRecord> Transitions() {
    std::vector<TransitionTetRecord> records;
    WalkList<TransitionTetRecord>(&TransitionElementList, [&](const TransitionTetRecord* record) { records.push_back(*record); });
    return records;
  }

  std::string rest;
};

TEST_F(SolidCardTest, TetraOfFourNodes) {
  EXPECT_EQ(Read(ReadTetraCard, Card8({"CTETRA", "101", "7", "1", "2", "3", "4"}) + "\nNEXT\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 7, [1, 2, 3, 4], 7, 0, 1, 0, 0) -> 0"));
  EXPECT_THAT(Transitions(), IsEmpty());
  EXPECT_EQ(rest, "\nNEXT\n");
}

TEST_F(SolidCardTest, TetraOfTenNodes) {
  EXPECT_EQ(Read(ReadTetraCard, SolidCard("CTETRA", 10) + "NEXT\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 8, [1, 2, 3, 4, 5, 6, 7, 8, 9, 10], 7, 0, 1, 0, 0) -> 0"));
  EXPECT_THAT(Transitions(), IsEmpty());
}

TEST_F(SolidCardTest, ATetraOfFiveToNineNodesWaitsForTheTransitionStage) {
  for (std::int32_t count = 5; count <= 9; ++count) {
    EXPECT_EQ(Read(ReadTetraCard, SolidCard("CTETRA", count) + "NEXT\n"), 0);
    EXPECT_THAT(Calls(), IsEmpty()) << count;
    ASSERT_EQ(Transitions().size(), 1u);
    const TransitionTetRecord record = Transitions()[0];
    EXPECT_EQ(record.elementId, 101);
    EXPECT_EQ(record.partId, 7);
    for (std::int32_t position = 0; position < 10; ++position) {
      EXPECT_EQ(record.nodes[position], position < count ? position + 1 : 0) << count;
    }
    WalkList<TransitionTetRecord>(&TransitionElementList, ReleaseMemory);
    ListClear(&TransitionElementList);
  }
}

TEST_F(SolidCardTest, ATetraOfFewerThanFourNodesWaitsToo) {
  EXPECT_EQ(Read(ReadTetraCard, Card8({"CTETRA", "101", "7", "1", "2", "3"}) + "\nNEXT\n"), 0);
  EXPECT_THAT(Calls(), IsEmpty());
  ASSERT_EQ(Transitions().size(), 1u);
  EXPECT_THAT(Transitions()[0].nodes, ElementsAre(1, 2, 3, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(SolidCardTest, ABlankMidSideFieldKeepsItsPlaceInTheRecord) {
  EXPECT_EQ(Read(ReadTetraCard,
                 Card8({"CTETRA", "101", "7", "1", "2", "3", "4", "", "6", "+"}) + "\n" + Card8({"+", "7", "8", "9", "10"}) + "\nNEXT\n"),
            0);
  EXPECT_THAT(Calls(), IsEmpty());
  ASSERT_EQ(Transitions().size(), 1u);
  EXPECT_THAT(Transitions()[0].nodes, ElementsAre(1, 2, 3, 4, 0, 6, 7, 8, 9, 10));
}

TEST_F(SolidCardTest, ALineCutShortLosesItsPositions) {
  Read(ReadTetraCard, Card8({"CTETRA", "101", "7", "1", "2", "3", "4", ""}) + "\n" + Card8({"+", "7", "8"}) + "\nNEXT\n");
  ASSERT_EQ(Transitions().size(), 1u);
  EXPECT_THAT(Transitions()[0].nodes, ElementsAre(1, 2, 3, 4, 7, 8, 0, 0, 0, 0));
}

TEST_F(SolidCardTest, AValueWhoseColumnsReachIntoAMarkedLineIsTakenForTheMark) {
  // The eight columns of the last node are "4\n+     ": a plus sign in front of any letter.
  Read(ReadTetraCard, Card8({"CTETRA", "101", "7", "1", "2", "3", "4"}) + "\n" + Card8({"+", "7", "8"}) + "\nNEXT\n");
  ASSERT_EQ(Transitions().size(), 1u);
  EXPECT_THAT(Transitions()[0].nodes, ElementsAre(1, 2, 3, 7, 8, 0, 0, 0, 0, 0));
}

TEST_F(SolidCardTest, PositionsBehindTheTenthAreIgnored) {
  // Eight blank fields behind four corners: the last two nodes stand at the positions 10 and 11.
  Read(ReadTetraCard, Card8({"CTETRA", "101", "7", "1", "2", "3", "4", "", "", "+"}) + "\n" +
                          Card8({"+", "", "", "", "", "11", "12", "", "", "+"}) + "\nNEXT\n");
  ASSERT_EQ(Transitions().size(), 1u);
  EXPECT_THAT(Transitions()[0].nodes, ElementsAre(1, 2, 3, 4, 0, 0, 0, 0, 0, 0));
}

TEST_F(SolidCardTest, ABlankTenthNodeLeavesNineValues) {
  Read(ReadTetraCard,
       Card8({"CTETRA", "101", "7", "1", "2", "3", "4", "5", "6", "+"}) + "\n" + Card8({"+", "7", "8", "9", ""}) + "\nNEXT\n");
  ASSERT_EQ(Transitions().size(), 1u);
  EXPECT_THAT(Transitions()[0].nodes, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 0));
}

TEST_F(SolidCardTest, ATetraThatWaitsHasItsPart) {
  Read(ReadTetraCard, Card8({"CTETRA", "101", "9", "1", "2", "3"}) + "\nNEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 9, 0, 1, 1) -> MeshPart#2", "MeshModel.ReservePartId(9)"));
  EXPECT_EQ(Transitions()[0].partId, 9);
}

TEST_F(SolidCardTest, TetraWithABlankPropertyTakesTheDefaultPart) {
  Read(ReadTetraCard, Card8({"CTETRA", "101", "", "1", "2", "3", "4"}) + "\n");
  EXPECT_EQ(DefaultPartId, 8);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.ReservePartId(8)", "MeshModel.CreateBody(1, 8, 0, 1, 1) -> MeshPart#2",
                                   "MeshModel.CreateElement(101, 7, [1, 2, 3, 4], 8, 0, 1, 0, 0) -> 0"));
}

TEST_F(SolidCardTest, PentaHasTheShortTypeUpToSixNodes) {
  Read(ReadPentaCard, SolidCard("CPENTA", 6) + "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 13, [1, 2, 3, 4, 5, 6], 7, 0, 0, 0, 0) -> 0"));
}

TEST_F(SolidCardTest, PentaHasTheLongTypeFromSevenNodesOn) {
  Read(ReadPentaCard, SolidCard("CPENTA", 7) + "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 16, [1, 2, 3, 4, 5, 6, 7, 0, 0, 0, 0, 0, 0, 0, 0], 7, 0, 0, 0, 0) -> 0"));
}

TEST_F(SolidCardTest, PentaOfFifteenNodes) {
  Read(ReadPentaCard, SolidCard("CPENTA", 15) + "NEXT\n");
  EXPECT_THAT(Calls(),
              ElementsAre("MeshModel.CreateElement(101, 16, [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15], 7, 0, 0, 0, 0) -> 0"));
}

TEST_F(SolidCardTest, HexaHasTheShortTypeUpToEightNodes) {
  Read(ReadHexaCard, SolidCard("CHEXA", 8) + "NEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 12, [1, 2, 3, 4, 5, 6, 7, 8], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(SolidCardTest, HexaHasTheLongTypeFromNineNodesOn) {
  Read(ReadHexaCard, SolidCard("CHEXA", 9) + "NEXT\n");
  Read(ReadHexaCard, SolidCard("CHEXA", 12) + "NEXT\n");
  EXPECT_THAT(
      Calls(),
      ElementsAre("MeshModel.CreateElement(101, 15, [1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0], 7, 0, 1, 0, 0) -> 0",
                  "MeshModel.CreateElement(101, 15, [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0, 0, 0, 0, 0, 0, 0, 0], 7, 0, 1, 0, 0) "
                  "-> -1"));
}

TEST_F(SolidCardTest, HexaOfTwentyNodes) {
  Read(ReadHexaCard, SolidCard("CHEXA", 20) + "NEXT\n");
  EXPECT_THAT(Calls(),
              ElementsAre("MeshModel.CreateElement(101, 15, [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20], 7, "
                          "0, 1, 0, 0) -> 0"));
}

TEST_F(SolidCardTest, BlankFieldsCloseUpInPentaAndHexa) {
  Read(ReadPentaCard, Card8({"CPENTA", "101", "7", "1", "2", "3", "4", "", "6"}) + "\nNEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 13, [1, 2, 3, 4, 6, 0], 7, 0, 0, 0, 0) -> -1"));
}

TEST_F(SolidCardTest, ADegenerateHexaIsHandedOverAsItStands) {
  Read(ReadHexaCard, Card8({"CHEXA", "101", "7", "1", "2", "3", "3", "5", "6", "+"}) + "\n" + Card8({"+", "7", "7"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 12, [1, 2, 3, 3, 5, 6, 7, 7], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(SolidCardTest, HexaLeavesTheCursorBehindTrailingMarksAndBlanks) {
  const std::string hexa = Card8({"CHEXA", "101", "7", "1", "2", "3", "4", "5", "6", "+"}) + "\n" + Card8({"+", "7", "8", ""});
  Read(ReadHexaCard, hexa + "\n$\n");
  EXPECT_EQ(rest, "$\n");
  const std::string long20 = Card8({"CHEXA", "102", "7", "1", "2", "3", "4", "5", "6", "+"}) + "\n" +
                             Card8({"+", "7", "8", "9", "10", "11", "12", "13", "14", "+"}) + "\n" +
                             Card8({"+", "15", "16", "17", "18", "19", "20", ""});
  Read(ReadHexaCard, long20 + "\n+\n   \n  GRID    1\n");
  EXPECT_EQ(rest, "GRID    1\n");
}

TEST_F(SolidCardTest, PentaLeavesTheCursorBehindItsLastNode) {
  const std::string penta = Card8({"CPENTA", "101", "7", "1", "2", "3", "4", "5", "6", "+"}) + "\n" +
                            Card8({"+", "7", "8", "9", "10", "11", "12", "13", "14", "+"}) + "\n" + Card8({"+", "15", ""});
  Read(ReadPentaCard, penta + "\n+\n   \n  GRID    1\n");
  EXPECT_EQ(rest, "\n+\n   \n  GRID    1\n");
}

TEST_F(SolidCardTest, LargeFieldsHaveSixteenColumns) {
  Read(ReadTetraCard, Card16({"CTETRA*", "101", "7", "1", "2", "*A"}) + "\n" + Card16({"*A", "3", "4"}) + "\nNEXT\n");
  Read(ReadPentaCard, Card16({"CPENTA*", "102", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4", "5", "6"}) + "\nNEXT\n");
  Read(ReadHexaCard,
       Card16({"CHEXA*", "103", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4", "5", "6"}) + "\n" + Card16({"*", "7", "8"}) + "\nNEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 7, [1, 2, 3, 4], 7, 0, 1, 0, 0) -> 0",
                                   "MeshModel.CreateElement(102, 13, [1, 2, 3, 4, 5, 6], 7, 0, 0, 0, 0) -> 0",
                                   "MeshModel.CreateElement(103, 12, [1, 2, 3, 4, 5, 6, 7, 8], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(SolidCardTest, ABlankLargeFieldOfATetraKeepsItsPlace) {
  Read(ReadTetraCard, Card16({"CTETRA*", "101", "7", "1", "2", "*A"}) + "\n" + Card16({"*A", "3", "4", "", "6", "*B"}) + "\n" +
                          Card16({"*B", "7", "8", "9", "10"}) + "\nNEXT\n");
  ASSERT_EQ(Transitions().size(), 1u);
  EXPECT_THAT(Transitions()[0].nodes, ElementsAre(1, 2, 3, 4, 0, 6, 7, 8, 9, 10));
}

TEST_F(SolidCardTest, ARefusedElementIsLoggedWithItsWordAndGivesOne) {
  EXPECT_EQ(Read(ReadTetraCard, Card8({"CTETRA", "101", "7", "1", "2", "3", "99"}) + "\n"), 1);
  EXPECT_EQ(Read(ReadPentaCard, Card8({"CPENTA", "102", "7", "1"}) + "\n$\n"), 1);
  EXPECT_EQ(Read(ReadHexaCard, Card8({"CHEXA", "103", "7", "1"}) + "\n$\n"), 1);
  EXPECT_EQ(Log(), "*** Failed Tet Element -> 101 \n*** Failed Wedge Element -> 102 \n*** Failed Hex Element -> 103 \n");
}

TEST_F(SolidCardTest, EveryCutOfACardStaysInItsText) {
  for (const std::string& card :
       {SolidCard("CTETRA", 10), Card16({"CTETRA*", "101", "7", "1", "2", "*A"}) + "\n" + Card16({"*A", "3", "4"})}) {
    for (std::size_t length = 6; length <= card.size(); ++length) {
      Read(ReadTetraCard, card.substr(0, length));
      EXPECT_LE(rest.size(), 1u) << length;
    }
  }
  const std::string hexa = SolidCard("CHEXA", 20);
  for (std::size_t length = 5; length <= hexa.size(); ++length) {
    Read(ReadHexaCard, hexa.substr(0, length));
    EXPECT_EQ(rest, "") << length;
  }
}

class PyramidCardTest : public SolidCardTest {
 protected:
  ~PyramidCardTest() override {
    if (file.stream != nullptr) {
      std::fclose(file.stream);
    }
    FreeDeckBuffer(&file);
  }

  /// Reads the pyramid at the start of a file with this text.
  std::int32_t ReadFrom(std::string_view text) {
    if (file.stream != nullptr) {
      std::fclose(file.stream);
    }
    AllocateDeckBuffer(&file);
    AttachDeckStream(&file, OpenFileUtf8(folder.Write("pyramids.bdf", text).c_str(), "rb"));
    ReadDeckChunk(&file);
    const std::int32_t result = ReadPyramidCard(model, &file, logPath);
    rest = file.cursor;
    return result;
  }

  DeckBuffer file;
};

TEST_F(PyramidCardTest, FixedFieldsOfEitherSpelling) {
  EXPECT_EQ(ReadFrom(Card8({"CPYRA", "101", "7", "1", "2", "3", "4", "5"}) + "\nNEXT\n"), 0);
  EXPECT_EQ(rest, "\nNEXT\n");
  EXPECT_EQ(ReadFrom(Card8({"CPYRAM", "102", "7", "1", "2", "3", "4", "5"}) + "\nNEXT\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0",
                                   "MeshModel.CreateElement(102, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, LargeFieldsOfEitherSpelling) {
  ReadFrom(Card16({"CPYRA*", "101", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4", "5"}) + "\nNEXT\n");
  ReadFrom(Card16({"CPYRAM*", "102", "7", "1", "2"}) + "\n" + Card16({"*", "3", "4", "5"}) + "\nNEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0",
                                   "MeshModel.CreateElement(102, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, OfThirteenNodesFiveAreRead) {
  EXPECT_EQ(ReadFrom(SolidCard("CPYRAM", 13)), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, ABlankPropertyOfFixedFieldsTakesTheDefaultPart) {
  DefaultPartId = 7;
  ReadFrom(Card8({"CPYRA", "101", "", "1", "2", "3", "4", "5"}) + "\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, CommasOfEitherSpelling) {
  EXPECT_EQ(ReadFrom("CPYRA,101,7,1,2,3,4,5\nNEXT\n"), 0);
  EXPECT_EQ(rest, "NEXT\n");
  EXPECT_EQ(ReadFrom("CPYRAM,102,7,1,2,3,4,5\nNEXT\n"), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0",
                                   "MeshModel.CreateElement(102, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, NodesBehindTheFirstCommaNodeAreRealsCutToIntegers) {
  ReadFrom("CPYRA,101,7,1.9,2.9,3.0E0,.4E1,5\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, EmptyCommaFieldsAreNotSeen) {
  ReadFrom("CPYRA,101,,7,1,2,3,4,5\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, APropertyOfZeroWithCommasIsAPartOfItsOwn) {
  ReadFrom("CPYRA,101,0,1,2,3,4,5\n");
  EXPECT_EQ(DefaultPartId, 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateBody(1, 0, 0, 1, 1) -> MeshPart#2",
                                   "MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 0, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, ARefusedPyramidIsLoggedAndGivesOne) {
  EXPECT_EQ(ReadFrom("CPYRA,101,7,1,2,3,4,99\n"), 1);
  EXPECT_EQ(ReadFrom(Card8({"CPYRAM", "102", "7", "1"}) + "\n$\n"), 1);
  EXPECT_EQ(Log(), "*** Failed Pyramid Element -> 101 \n*** Failed Pyramid Element -> 102 \n");
}

TEST_F(PyramidCardTest, ALineWithCommasThatTheDecksEndCutsMakesNothing) {
  EXPECT_EQ(ReadFrom("CPYRA,101,7,1,2,3,4,5"), 1);
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(rest, "");
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(PyramidCardTest, FixedFieldsThatTheDecksEndCutsAreRead) {
  EXPECT_EQ(ReadFrom(Card8({"CPYRA", "101", "7", "1", "2", "3", "4", "5"})), 0);
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateElement(101, 14, [1, 2, 3, 4, 5], 7, 0, 1, 0, 0) -> 0"));
}

TEST_F(PyramidCardTest, ALineWithCommasThatAChunksEndCutsIsTakenFromTheNextChunk) {
  // A NUL ends the first chunk's text in mid card.
  std::string text = "CPYRA,101,7,1,2";
  text += '\0';
  while (text.size() < 2097145 + 100) {
    text += "\n$ filler";
  }
  text += "\n";
  EXPECT_EQ(ReadFrom(text), 1);  // What the next chunk begins with is taken for the card; it names no nodes.
  EXPECT_THAT(Calls(), ElementsAreArray({"MeshModel.CreateBody(1, 0, 0, 1, 1) -> MeshPart#2",
                                         "MeshModel.CreateElement(0, 14, [0, 0, 0, 0, 0], 0, 0, 1, 0, 0) -> -1"}));
}

}  // namespace
}  // namespace btz::test
