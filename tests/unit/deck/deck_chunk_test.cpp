// Reading a deck chunk by chunk: where a chunk is cut so that no card is split, and what becomes of the carried text at the end of a file.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "deck/deck_buffer.h"
#include "testing/temporary_folder.h"

namespace btz {
namespace {

/// Card lines of `length` bytes, line feed included, but for the first one, which is longer, so that all make `total` bytes.
std::string GridLines(std::size_t total, std::size_t length) {
  std::string line = "GRID" + std::string(length - 5, ' ') + "\n";
  std::string text = line;
  text.insert(4, total % length, ' ');
  while (text.size() < total) {
    text += line;
  }
  return text;
}

class DeckChunkTest : public ::testing::Test {
 protected:
  DeckChunkTest() { EXPECT_TRUE(AllocateDeckBuffer(&deck)); }

  ~DeckChunkTest() override {
    Close();
    FreeDeckBuffer(&deck);
  }

  void Open(std::string_view content) {
    Close();
    const std::string path = folder.Write("deck.bdf", content);
    std::FILE* stream = std::fopen(path.c_str(), "rb");
    ASSERT_NE(stream, nullptr);
    AttachDeckStream(&deck, stream);
  }

  void Close() {
    if (deck.stream != nullptr) {
      std::fclose(deck.stream);
      deck.stream = nullptr;
    }
  }

  std::string_view Text() const { return deck.block; }
  std::string_view Carry() const { return deck.carry; }
  std::size_t CursorPlace() const { return static_cast<std::size_t>(deck.cursor - deck.block); }

  /// Puts the cursor where readers leave it: on the NUL behind the text.
  void ReadToTheEnd() { deck.cursor = deck.block + std::strlen(deck.block); }

  /// First byte that is not zero from the text's end to the end of the block; the block's size if there is none.
  std::size_t FirstByteBehindTheText() const {
    std::size_t at = std::strlen(deck.block);
    while (at < deckBlockSize && deck.block[at] == 0) {
      ++at;
    }
    return at;
  }

  test::TemporaryFolder folder;
  DeckBuffer deck;
};

TEST_F(DeckChunkTest, ConstantsAreTheDocumentedOnes) {
  EXPECT_EQ(deckBlockSize, 2097152u);
  EXPECT_EQ(deckChunkLimit, 2097145u);
}

TEST_F(DeckChunkTest, BlocksAreZeroedWithGuardsAroundTheMainBlock) {
  for (std::ptrdiff_t i = -64; i < static_cast<std::ptrdiff_t>(deckBlockSize) + 64; ++i) {
    ASSERT_EQ(deck.block[i], 0) << i;
  }
  for (std::size_t i = 0; i < deckBlockSize; ++i) {
    ASSERT_EQ(deck.carry[i], 0) << i;
  }
}

TEST_F(DeckChunkTest, AllocatingAgainKeepsTheBlocks) {
  const char* block = deck.block;
  EXPECT_TRUE(AllocateDeckBuffer(&deck));
  EXPECT_EQ(deck.block, block);
}

TEST_F(DeckChunkTest, AShortDeckComesWholeInOneCall) {
  const std::string text = "GRID           1\n+       tail\nENDDATA";
  Open(text);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), text);
  EXPECT_EQ(deck.cursor, deck.block);
  EXPECT_EQ(Carry(), "");
  ReadToTheEnd();
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
  EXPECT_EQ(CursorPlace(), text.size()) << "left where the readers put it";
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
}

TEST_F(DeckChunkTest, AnEmptyFileIsExhaustedAtOnce) {
  Open("");
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
  EXPECT_EQ(Text(), "");
}

TEST_F(DeckChunkTest, CarriageReturnsStayInTheText) {
  Open("GRID,1\r\n\r\nENDDATA\r\n");
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), "GRID,1\r\n\r\nENDDATA\r\n");
}

TEST_F(DeckChunkTest, OneByteBelowTheLimitNeedsNoCut) {
  const std::string text = GridLines(deckChunkLimit - 1, 81);
  Open(text);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), text);
  EXPECT_EQ(Carry(), "");
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
}

TEST_F(DeckChunkTest, AFileThatFitsTheChunkToTheByteLosesItsLastCard) {
  const std::string text = GridLines(deckChunkLimit, 81);
  Open(text);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text().size(), deckChunkLimit - 81) << "behind the last line feed stands a NUL, which might continue the card";
  EXPECT_EQ(Carry(), text.substr(deckChunkLimit - 81));
  ReadToTheEnd();
  EXPECT_EQ(ReadDeckChunk(&deck), 0) << "the carried text is put in place";
  EXPECT_EQ(Text(), text.substr(deckChunkLimit - 81));
  EXPECT_EQ(Carry(), "");
  EXPECT_EQ(CursorPlace(), deckChunkLimit - 81) << "but the cursor stays where the last chunk ended";
  EXPECT_EQ(*deck.cursor, 0);
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
  EXPECT_EQ(Text(), "");
}

TEST_F(DeckChunkTest, OneByteAboveTheLimitLosesNothing) {
  const std::string text = GridLines(deckChunkLimit + 1, 81);
  Open(text);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  // The chunk lacks only the line feed of the last line, and the last line feed it has is followed by a card: this line is cut.
  EXPECT_EQ(Text(), text.substr(0, deckChunkLimit + 1 - 81));
  EXPECT_EQ(Carry().size(), 80u);
  ReadToTheEnd();
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), text.substr(deckChunkLimit + 1 - 81));
  EXPECT_EQ(deck.cursor, deck.block);
  EXPECT_EQ(Carry(), "");
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
}

TEST_F(DeckChunkTest, ACardWithContinuationLinesGoesWholeIntoTheNextChunk) {
  const std::string card = "CHEXA          7       1       1       2\n+              3       4\n*              5\n               6\n";
  const std::string front = GridLines(deckChunkLimit - card.size() + 10, 81);
  const std::string behind = "GRID           9\n";
  Open(front + card + behind);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), front);
  EXPECT_EQ(Carry(), card.substr(0, card.size() - 10));
  ReadToTheEnd();
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), card + behind);
  EXPECT_EQ(deck.cursor, deck.block);
}

TEST_F(DeckChunkTest, ACommentEndsTheWalkBackInsideACard) {
  const std::string card = "CHEXA          7\n+              1\n$ remark\n+              2\n";
  const std::string front = GridLines(deckChunkLimit - card.size(), 81);
  Open(front + card + "+              3\n");
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), front + "CHEXA          7\n+              1\n");
  EXPECT_EQ(Carry(), "$ remark\n+              2\n");
}

TEST_F(DeckChunkTest, ALineThatBeginsWithACarriageReturnEndsTheWalkBack) {
  const std::string end = "CHEXA          7\r\n+              1\r\n\r\n+              2";
  const std::string front = GridLines(deckChunkLimit - end.size(), 81);
  Open(front + end + "\r\n");
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Carry(), "\r\n+              2");
}

TEST_F(DeckChunkTest, AChunkOfContinuationLinesIsCutAtTheLastLineEnd) {
  for (const char first : {' ', '+', '*'}) {
    std::string text = GridLines(deckChunkLimit + 500, 81);
    for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1) {
      text[at] = first;
    }
    // Behind the first line, every line has 81 bytes, so the last 500 bytes take 6 of them and 14 bytes of another: 67 bytes of it come in.
    Open(text);
    EXPECT_EQ(ReadDeckChunk(&deck), 0);
    EXPECT_EQ(Text(), text.substr(0, deckChunkLimit - 67));
    EXPECT_EQ(Carry(), text.substr(deckChunkLimit - 67, 67));
    ReadToTheEnd();
    EXPECT_EQ(ReadDeckChunk(&deck), 0);
    EXPECT_EQ(Text(), text.substr(deckChunkLimit - 67));
  }
}

TEST_F(DeckChunkTest, AChunkOfContinuationLinesThatEndsAtALineEndIsNotCut) {
  std::string text = GridLines(deckChunkLimit, 81);
  for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1) {
    text[at] = '+';
  }
  Open(text + "+ more\n");
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), text);
  EXPECT_EQ(Carry(), "");
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), "+ more\n");
}

TEST_F(DeckChunkTest, OnlyACardAtTheVeryStartOfTheBlockIsNoCut) {
  // The block begins with a line feed that a keyword follows. It is not accepted, so the fallback cuts at the last line end.
  const std::string text = "\nGRID\n" + std::string(deckChunkLimit - 6 - 10, '+') + "\n+ behind it";
  Open(text);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), text.substr(0, deckChunkLimit - 9));
  EXPECT_EQ(Carry(), "+ behind ");
}

TEST_F(DeckChunkTest, ALineFeedAtTheStartIsGoodEnoughForTheFallback) {
  const std::string text = "\n" + std::string(deckChunkLimit + 100, 'x');
  Open(text);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), "\n");
  EXPECT_EQ(Carry().size(), deckChunkLimit - 1);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(deck.cursor, deck.block);
}

TEST_F(DeckChunkTest, AFirstChunkWithoutALineFeedEndsTheFile) {
  Open(std::string(deckChunkLimit + 100, 'x'));
  deck.cursor = deck.block + 3;
  EXPECT_EQ(ReadDeckChunk(&deck), 1) << "everything is cut, nothing new is left";
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(CursorPlace(), 3u);
}

TEST_F(DeckChunkTest, ALaterChunkWithoutALineFeedIsEmptyOnceAndThenPutBack) {
  const std::string front = GridLines(deckChunkLimit - 5, 81) + "CHEXA";
  const std::string more(deckChunkLimit + 1000, 'x');
  Open(front + more);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Carry(), "CHEXA");
  ReadToTheEnd();
  EXPECT_EQ(ReadDeckChunk(&deck), 0) << "more is cut than is new, and that is not nothing";
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(deck.cursor, deck.block);
  EXPECT_EQ(Carry().size(), deckChunkLimit);
  EXPECT_EQ(ReadDeckChunk(&deck), 0) << "the carried text fills the chunk, nothing new can be read";
  EXPECT_EQ(Text(), "CHEXA" + more.substr(0, deckChunkLimit - 5));
  EXPECT_EQ(deck.cursor, deck.block);
  EXPECT_EQ(Carry(), "");
  ReadToTheEnd();
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), std::string(1005, 'x'));
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
}

TEST_F(DeckChunkTest, TheFallbackCanCutInsideTheCarriedText) {
  const std::string card = "CHEXA          7\n+              1";
  const std::string front = GridLines(deckChunkLimit - card.size(), 81);
  Open(front + card + std::string(deckChunkLimit, 'x'));
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Carry(), card);
  ReadToTheEnd();
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), "CHEXA          7\n");
  EXPECT_EQ(deck.cursor, deck.block);
  EXPECT_EQ(Carry().size(), deckChunkLimit - 17);
  EXPECT_EQ(Carry().substr(0, 17), "+              1x");
}

TEST_F(DeckChunkTest, ACutOfJustTheNewTextEndsTheFile) {
  const std::string front = GridLines(deckChunkLimit, 81);
  // A card longer than a chunk that begins exactly behind the carried line.
  const std::string card = "CHEXA" + std::string(deckChunkLimit, '7') + "\nGRID lost\n";
  Open(front + card);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Carry().size(), 81u);
  ReadToTheEnd();
  const std::size_t place = CursorPlace();
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
  EXPECT_EQ(CursorPlace(), place);
  EXPECT_EQ(Text(), front.substr(front.size() - 81));
}

TEST_F(DeckChunkTest, ANulBehindALineFeedCountsAsContinuation) {
  std::string end = "CHEXA          7\n";
  end += '\0';
  end += "             1\n+  ";
  const std::string front = GridLines(deckChunkLimit - end.size(), 81);
  Open(front + end + "\n");
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), front);
  EXPECT_EQ(Carry(), "CHEXA          7\n") << "a text ends at its NUL";
  ReadToTheEnd();
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), "CHEXA          7\n\n") << "what stood behind the NUL is gone";
}

TEST_F(DeckChunkTest, TheFallbackAlsoCutsAtANul) {
  std::string text(deckChunkLimit + 1, '+');
  text[deckChunkLimit - 11] = '\0';
  Open(text);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text().size(), deckChunkLimit - 11);
  EXPECT_EQ(Carry(), "++++++++++");
}

TEST_F(DeckChunkTest, NothingButZerosStandsBehindTheText) {
  Open(GridLines(deckChunkLimit + 1000, 81));
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(FirstByteBehindTheText(), deckBlockSize);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_LT(Text().size(), 1200u);
  EXPECT_EQ(FirstByteBehindTheText(), deckBlockSize);
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
  EXPECT_EQ(FirstByteBehindTheText(), deckBlockSize);
}

TEST_F(DeckChunkTest, AnotherFileInTheSameBufferStartsWithoutTheOldText) {
  Open(GridLines(deckChunkLimit + 1000, 81));
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  ReadToTheEnd();
  Open("BEGIN BULK\n");
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(Carry(), "");
  EXPECT_EQ(deck.cursor, deck.block);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), "BEGIN BULK\n");
  EXPECT_EQ(FirstByteBehindTheText(), deckBlockSize);
}

TEST_F(DeckChunkTest, ARewindStartsFromAnEmptyCarry) {
  const std::string text = GridLines(deckChunkLimit + 1000, 81);
  Open(text);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  const std::string first(Text());
  EXPECT_NE(Carry(), "");
  RewindDeck(&deck);
  EXPECT_EQ(Carry(), "");
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), first);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
  RewindDeck(&deck);
  EXPECT_EQ(ReadDeckChunk(&deck), 0) << "the end of the file is forgotten too";
  EXPECT_EQ(Text(), first);
}

TEST_F(DeckChunkTest, EveryCallRaisesTheGeneration) {
  Open("GRID\n");
  const std::uint64_t before = deck.generation;
  ReadDeckChunk(&deck);
  EXPECT_EQ(deck.generation, before + 1);
  ReadDeckChunk(&deck);
  EXPECT_EQ(deck.generation, before + 2);
}

TEST_F(DeckChunkTest, AReadErrorCountsAsTheEndAndKeepsTheCarriedText) {
  Open(GridLines(deckChunkLimit + 1000, 81));
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  const std::string carried(Carry());
  ReadToTheEnd();
  const std::size_t place = CursorPlace();
  std::fclose(deck.stream);
  deck.stream = std::fopen(folder.Path("write_only").c_str(), "wb");
  ASSERT_NE(deck.stream, nullptr);
  EXPECT_EQ(ReadDeckChunk(&deck), 0);
  EXPECT_EQ(Text(), carried);
  EXPECT_EQ(CursorPlace(), place);
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
}

TEST_F(DeckChunkTest, AReadErrorWithNothingCarriedEndsTheFile) {
  AttachDeckStream(&deck, std::fopen(folder.Path("write_only").c_str(), "wb"));
  ASSERT_NE(deck.stream, nullptr);
  EXPECT_EQ(ReadDeckChunk(&deck), 1);
  EXPECT_EQ(Text(), "");
}

}  // namespace
}  // namespace btz
