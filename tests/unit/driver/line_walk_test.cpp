// The walk over a file: what is skipped, where keywords are tested, counters and default parts, and that no text keeps it from its end.
#include "driver/line_walk.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "mesh/parts.h"
#include "tests/unit/driver/walk_fixture.h"

namespace btz::test {
namespace {

using namespace std::string_literals;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t chunkLimit = 2097145;

/// What the readers of this file were handed.
std::vector<std::string> taken;
std::int32_t readerResult = 0;
std::int32_t defaultPartSeen = 0;

std::int32_t TakeLine(CardContext& context) {
  taken.push_back(LineAt(context.file.cursor));
  PassLine(context.file);
  return readerResult;
}

/// Takes the keyword only and leaves the cursor right behind its four characters.
std::int32_t TakeFour(CardContext& context) {
  taken.push_back(std::string(context.file.cursor, 4));
  context.file.cursor += 4;
  return 0;
}

std::int32_t TakeNothing(CardContext& context) {
  taken.push_back(LineAt(context.file.cursor));
  return 0;
}

/// Asks for the next chunk and leaves the cursor where that puts it.
std::int32_t FetchChunk(CardContext& context) {
  taken.push_back(LineAt(context.file.cursor));
  ReadDeckChunk(&context.file);
  return 0;
}

std::int32_t SeeDefaultPart(CardContext& context) {
  defaultPartSeen = DefaultPartId;
  return TakeLine(context);
}

class LineWalkTest : public WalkTest {
 protected:
  LineWalkTest() {
    taken.clear();
    readerResult = 0;
    defaultPartSeen = 0;
  }

  /// Walks a deck with a table of these rows.
  void WalkRows(std::string_view text, const std::vector<CardRow>& rows, bool skipsBlanks = false) {
    Walk(text, MakePassTable(skipsBlanks, rows));
  }
};

TEST_F(LineWalkTest, UnknownTextIsSkippedWithoutATrace) {
  WalkRows("CEND\n$ comment\nENDDATA\nword\n\n   \n", {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, IsEmpty());
  EXPECT_THAT(run.counters, Each(0));
}

TEST_F(LineWalkTest, CardsAreTakenInOrderOfTheText) {
  WalkRows("CARD 1\nother\nCARD 2\nCARD 3\n", {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2", "CARD 3"));
}

TEST_F(LineWalkTest, TheFirstRowThatFitsWins) {
  WalkRows("CARDS\nCARDX\n", {Row("CARDS", TakeLine), Row("CARD", TakeFour)});
  EXPECT_THAT(taken, ElementsAre("CARDS", "CARD"));
}

TEST_F(LineWalkTest, AnEarlierShorterKeywordHidesALongerOne) {
  WalkRows("CARDS\n", {Row("CARD", TakeFour), Row("CARDS", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD"));
}

TEST_F(LineWalkTest, AnIndentedKeywordIsUnknownText) {
  WalkRows(" CARD 1\n\tCARD 2\nCARD 3\n", {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD 3"));
}

TEST_F(LineWalkTest, WhereBlanksAreSkippedAKeywordMayBeIndented) {
  WalkRows(" CARD 1\n\t \v\f CARD 2\nCARD 3\n", {Row("CARD", TakeLine)}, true);
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2", "CARD 3"));
}

TEST_F(LineWalkTest, SkippedBlanksIncludeEmptyLinesOfEitherLineEnd) {
  WalkRows("\r\n\n   \r\n  CARD 1\n", {Row("CARD", TakeLine)}, true);
  EXPECT_THAT(taken, ElementsAre("CARD 1"));
}

TEST_F(LineWalkTest, AKeywordInMidLineIsNotSeen) {
  WalkRows("other CARD 1\n$CARD 2\n", {Row("CARD", TakeLine)}, true);
  EXPECT_THAT(taken, IsEmpty());
}

TEST_F(LineWalkTest, KeywordsAreTestedWhereverAReaderLeftTheCursor) {
  WalkRows("CARDCARD rest\nCARD\n", {Row("CARD", TakeFour)});
  EXPECT_THAT(taken, ElementsAre("CARD", "CARD", "CARD"));
}

TEST_F(LineWalkTest, AReaderThatDoesNotMoveLosesItsLine) {
  WalkRows("STAY 1\nCARD 2\nSTAY 3", {Row("STAY", TakeNothing), Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("STAY 1", "CARD 2", "STAY 3"));
}

TEST_F(LineWalkTest, AReaderThatDoesNotMoveStillCounts) {
  WalkRows("STAY 1\nSTAY 2\n", {CountedRow("STAY", familyBush, TakeNothing)});
  EXPECT_EQ(run.counters[familyBush], 2);
}

TEST_F(LineWalkTest, AReaderThatFetchedTextHasMovedEvenWhereTheCursorStays) {
  WalkRows("MORE 1\nCARD 2\n", {Row("MORE", FetchChunk), Row("CARD", TakeLine)});
  // The file had no more text, so the fetch emptied the chunk, and with it the line behind the card.
  EXPECT_THAT(taken, ElementsAre("MORE 1"));
}

TEST_F(LineWalkTest, ARowWithoutAReaderSkipsItsLineAndCountsNothing) {
  WalkRows("LEFT 1\nCARD 2\n  LEFT 3\n", {CountedRow("LEFT", familyMass, NotBuilt), Row("CARD", TakeLine)}, true);
  EXPECT_THAT(taken, ElementsAre("CARD 2"));
  EXPECT_EQ(run.counters[familyMass], 0);
}

TEST_F(LineWalkTest, ALineWithoutItsLineFeedIsStillACard) {
  WalkRows("CARD 1\nCARD 2", {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2"));
}

TEST_F(LineWalkTest, APartOfAKeywordAtTheEndIsUnknownText) {
  for (const char* text : {"C", "CA", "CAR", "x\nC", "x\nCAR", "CAR\n"}) {
    taken.clear();
    WalkRows(text, {Row("CARD", TakeLine)});
    EXPECT_THAT(taken, IsEmpty()) << text;
  }
}

TEST_F(LineWalkTest, AKeywordAloneAtTheEndIsACard) {
  WalkRows("CARD", {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD"));
}

TEST_F(LineWalkTest, AGuardOnTheNextCharacterSeesTheEndOfTheText) {
  WalkRows("CARD", {RowIfNext("CARD", " ,", TakeFour), RowUnlessNext("CARD", "1", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD"));
}

TEST_F(LineWalkTest, ANulEndsTheTextOfItsChunk) {
  WalkRows("CARD 1\nother\0CARD 2\nCARD 3\n"s, {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD 1"));
}

TEST_F(LineWalkTest, ANulInACardEndsTheTextOfItsChunk) {
  WalkRows("CARD 1\nCARD\0 2\nCARD 3\n"s, {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD"));
}

TEST_F(LineWalkTest, ANulAtALineStartEndsTheTextOfItsChunk) {
  WalkRows("CARD 1\n\0\nCARD 2\n"s, {Row("CARD", TakeLine)}, true);
  EXPECT_THAT(taken, ElementsAre("CARD 1"));
}

TEST_F(LineWalkTest, BehindANulTheNextChunkIsRead) {
  std::string text = "CARD 1\n\0lost\n"s;
  while (text.size() < chunkLimit + 100) {
    text += "$ filler\n";
  }
  WalkRows(text + "CARD 2\n", {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2"));
}

TEST_F(LineWalkTest, NoCardIsSplitOrLostBetweenChunks) {
  // Lines of 9 bytes: a chunk ends in the middle of one.
  std::string text;
  std::int32_t cards = 0;
  while (text.size() < 2 * chunkLimit + 1000) {
    text += "CARD" + std::to_string(1000 + cards++ % 9000) + "\n";
  }
  WalkRows(text, {Row("CARD", TakeLine)});
  ASSERT_EQ(taken.size(), static_cast<std::size_t>(cards));
  for (std::int32_t card = 0; card < cards; ++card) {
    ASSERT_EQ(taken[static_cast<std::size_t>(card)], "CARD" + std::to_string(1000 + card % 9000));
  }
}

TEST_F(LineWalkTest, ADeckThatFitsTheChunkToTheByteLosesItsLastCard) {
  std::string text(chunkLimit - 21, '$');
  text += "\nCARD 00001\nCARD 0002";
  ASSERT_EQ(text.size(), chunkLimit);
  WalkRows(text, {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD 00001"));
}

TEST_F(LineWalkTest, ADeckOneByteShorterThanTheChunkKeepsItsLastCard) {
  std::string text(chunkLimit - 22, '$');
  text += "\nCARD 00001\nCARD 0002";
  ASSERT_EQ(text.size(), chunkLimit - 1);
  WalkRows(text, {Row("CARD", TakeLine)});
  EXPECT_THAT(taken, ElementsAre("CARD 00001", "CARD 0002"));
}

TEST_F(LineWalkTest, ACounterIsRaisedForEachCard) {
  WalkRows("CARD 1\nCARD 2\nOTHER\n", {CountedRow("CARD", familyTet, TakeLine), Row("OTHER", TakeLine)});
  EXPECT_EQ(run.counters[familyTet], 2);
  EXPECT_EQ(run.counters[familyHex], 0);
}

TEST_F(LineWalkTest, ARefusalUndoesTheRaiseWhereTheRowSaysSo) {
  readerResult = 1;
  WalkRows("UNDO 1\nKEEP 2\n", {CountedRow("UNDO", familyTet, TakeLine, Refusal::Undoes), CountedRow("KEEP", familyHex, TakeLine)});
  EXPECT_EQ(run.counters[familyTet], 0);
  EXPECT_EQ(run.counters[familyHex], 1);
}

TEST_F(LineWalkTest, OnlyTheResultOneIsARefusal) {
  for (const std::int32_t result : {0, -1, 2}) {
    readerResult = result;
    run.counters[familyTet] = 0;
    WalkRows("UNDO 1\n", {CountedRow("UNDO", familyTet, TakeLine, Refusal::Undoes)});
    EXPECT_EQ(run.counters[familyTet], 1) << result;
  }
}

TEST_F(LineWalkTest, TheFirstElementOfAFamilyStartsANewDefaultPart) {
  for (const Family family :
       {familyTri3, familyTri6, familyQuad4, familyQuad8, familyTet, familyHex, familyWedge, familyBar, familyPyramid, familyGasket}) {
    DefaultPartId = 77;
    defaultPartSeen = -1;
    WalkRows("CARD 1\n", {CountedRow("CARD", family, SeeDefaultPart)});
    EXPECT_EQ(defaultPartSeen, 0) << family;  // Reset before the reader runs.
    EXPECT_EQ(DefaultPartId, 0) << family;
  }
}

TEST_F(LineWalkTest, OtherFamiliesLeaveTheDefaultPartAlone) {
  for (const Family family : {familyRbe2, familyRbe3, familyNode, familyBush, familyForce, familyMoment, familyPressure, familyMass}) {
    DefaultPartId = 77;
    WalkRows("CARD 1\n", {CountedRow("CARD", family, TakeLine)});
    EXPECT_EQ(DefaultPartId, 77) << family;
  }
}

TEST_F(LineWalkTest, LaterElementsOfAFamilyKeepTheDefaultPart) {
  run.counters[familyTet] = 1;  // As a former pass left it: counters run through all passes.
  DefaultPartId = 77;
  WalkRows("CARD 1\nCARD 2\n", {CountedRow("CARD", familyTet, TakeLine)});
  EXPECT_EQ(DefaultPartId, 77);
}

TEST_F(LineWalkTest, BehindAnUndoneFirstElementTheNextStartsANewDefaultPartToo) {
  readerResult = 1;
  const auto reader = [](CardContext& context) {
    const std::int32_t result = SeeDefaultPart(context);
    DefaultPartId = 77;
    return result;
  };
  WalkRows("CARD 1\nCARD 2\n", {CountedRow("CARD", familyTet, reader, Refusal::Undoes)});
  EXPECT_EQ(taken.size(), 2u);
  EXPECT_EQ(defaultPartSeen, 0);
  EXPECT_EQ(run.counters[familyTet], 0);
}

TEST_F(LineWalkTest, EveryChunkAskedForIsProgressTheLastOneToo) {
  std::string text;
  while (text.size() < chunkLimit + 100) {
    text += "$ filler\n";
  }
  OpenProgress();
  platform.progress.clear();
  run.progress = {25, 25};
  WalkRows(text, {Row("CARD", TakeLine)});
  // The second chunk, and the one that is not there.
  EXPECT_THAT(platform.progress, ElementsAre(50, 75));
  EXPECT_EQ(platform.console, "\b\b\b\b 25%\b\b\b\b 50%");
}

TEST_F(LineWalkTest, ADeckThatFitsTheChunkToTheByteIsAskedForTwoMoreChunks) {
  std::string text(chunkLimit - 5, '$');
  text += "\n$ab\n";
  OpenProgress();
  platform.progress.clear();
  run.progress = {25, 25};
  WalkRows(text, {Row("CARD", TakeLine)});
  EXPECT_THAT(platform.progress, ElementsAre(50, 75));
}

TEST_F(LineWalkTest, ChunksThatReadersFetchAreNoProgress) {
  OpenProgress();
  platform.progress.clear();
  run.progress = {50, 50};
  WalkRows("MORE 1\n", {Row("MORE", FetchChunk)});
  EXPECT_THAT(platform.progress, ElementsAre(100));
}

TEST_F(LineWalkTest, AnEmptyTextEndsAtOnce) {
  WalkRows("", {Row("CARD", TakeLine)}, true);
  EXPECT_EQ(firstChunkResult, 1);
  EXPECT_THAT(taken, IsEmpty());
}

}  // namespace
}  // namespace btz::test
