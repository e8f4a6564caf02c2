// Chunks of random files, compared with a reading that takes the rules one by one on a block of its own: card lines, continuation lines,
// comments, lone carriage returns, embedded NULs, lines longer than a chunk, and lengths around multiples of the limit.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "deck/deck_buffer.h"
#include "testing/temporary_folder.h"

namespace btz {
namespace {

/// The same chunks, the slow way. Offsets are relative to the start of the block; one NUL stands before it.
class PlainChunks {
 public:
  explicit PlainChunks(std::string_view content) : file(content), memory(1 + deckBlockSize, '\0') {}

  int Read() {
    // 1: the carried text comes first.
    const std::int64_t kept = static_cast<std::int64_t>(std::strlen(carry.c_str()));
    std::memcpy(&At(0), carry.data(), static_cast<std::size_t>(kept));
    carry.clear();
    // 2: new text behind it.
    const std::int64_t asked = limit - kept;
    const std::int64_t left = static_cast<std::int64_t>(file.size()) - position;
    std::int64_t got = asked < left ? asked : left;
    std::memcpy(&At(kept), file.data() + position, static_cast<std::size_t>(got));
    position += got;
    // 3: nothing new.
    if (got == 0) {
      At(kept) = 0;
      return kept == 0 ? 1 : 0;
    }
    std::int64_t cut = 0;
    // 4: only a read that got less than it asked for has met the end of the file.
    if (got == asked) {
      // Every full read ends at the same place, behind which nothing was ever written.
      At(limit) = 0;
      // 5: the last line feed behind which a new card starts.
      const std::int64_t last = kept + got - 1;
      std::int64_t at = last;
      bool found = false;
      while (!found) {
        while (at > 0 && At(at) != '\n') {
          --at;
        }
        if (at <= 0) {
          break;
        }
        const char next = At(at + 1);
        if (next != '+' && next != '*' && next != ' ' && next != '\0') {
          found = true;
        } else {
          --at;
        }
      }
      // 6: else the last line feed or NUL at all.
      if (!found) {
        at = last;
        while (At(at) != '\n' && At(at) != '\0') {
          --at;
        }
      }
      cut = last - at;
    }
    // 7: what is cut is carried.
    got -= cut;
    carry.assign(&At(kept + got), static_cast<std::size_t>(cut));
    // 8, 9.
    At(kept + got) = 0;
    if (got == 0) {
      return 1;
    }
    cursor = 0;
    return 0;
  }

  std::string_view Text() { return &At(0); }

  std::int64_t cursor = 0;
  std::string carry;

 private:
  static constexpr std::int64_t limit = 2097145;

  char& At(std::int64_t place) { return memory[static_cast<std::size_t>(place + 1)]; }

  std::string_view file;
  std::int64_t position = 0;
  std::string memory;
};

/// How the lines of a file look.
struct LineStyle {
  const char* firsts;          ///< Characters that lines begin with.
  std::uint32_t longestLine;   ///< In bytes.
  std::uint32_t oddByteEvery;  ///< One line in so many holds a NUL or a lone carriage return.
};

std::string RandomDeck(std::mt19937& random, std::size_t length, const LineStyle& style) {
  std::string text;
  text.reserve(length + style.longestLine);
  const std::size_t choices = std::strlen(style.firsts);
  while (text.size() < length) {
    const std::size_t start = text.size();
    text.append(1 + random() % style.longestLine, static_cast<char>('a' + random() % 26));
    text[start] = style.firsts[random() % choices];
    if (style.oddByteEvery != 0 && random() % style.oddByteEvery == 0) {
      text[start + random() % (text.size() - start)] = random() % 2 == 0 ? '\0' : '\r';
    }
    text += '\n';
  }
  text.resize(length);
  return text;
}

void ExpectTheSameChunks(const std::string& content, std::mt19937& random) {
  const test::TemporaryFolder folder;
  std::FILE* stream = std::fopen(folder.Write("deck.bdf", content).c_str(), "rb");
  ASSERT_NE(stream, nullptr);
  DeckBuffer deck;
  ASSERT_TRUE(AllocateDeckBuffer(&deck));
  AttachDeckStream(&deck, stream);
  PlainChunks plain(content);
  const bool holdsNul = content.find('\0') != std::string::npos;
  for (int call = 0; call < 20; ++call) {
    const int result = plain.Read();
    ASSERT_EQ(ReadDeckChunk(&deck), result) << "call " << call;
    ASSERT_EQ(deck.cursor - deck.block, plain.cursor) << "call " << call;
    ASSERT_TRUE(std::string_view(deck.block) == plain.Text()) << "call " << call;
    ASSERT_STREQ(deck.carry, plain.carry.c_str()) << "call " << call;
    for (std::size_t i = plain.Text().size(); i < deckBlockSize; i += 1 + random() % 64) {
      ASSERT_TRUE(deck.block[i] == 0 || holdsNul) << "stale byte at " << i;
    }
    if (result == 1) {
      break;
    }
    // Most readers stop at the NUL; some have not come so far.
    const std::int64_t ahead = random() % 4 == 0 ? 0 : static_cast<std::int64_t>(std::strlen(deck.cursor));
    deck.cursor += ahead;
    plain.cursor += ahead;
  }
  std::fclose(stream);
  FreeDeckBuffer(&deck);
}

class DeckChunkRandom : public ::testing::Test {
 protected:
  void Compare(std::uint32_t seed, const LineStyle& style) {
    std::mt19937 random(seed);
    const std::size_t lengths[] = {
        deckChunkLimit,         deckChunkLimit + 1,     2 * deckChunkLimit, deckChunkLimit + random() % deckChunkLimit,
        2 * deckChunkLimit + 7, random() % 6000000 + 1, random() % 400 + 1};
    for (const std::size_t length : lengths) {
      SCOPED_TRACE(length);
      ExpectTheSameChunks(RandomDeck(random, length, style), random);
    }
  }
};

TEST_F(DeckChunkRandom, CardsWithContinuationLines) { Compare(1, {"GC+++ *$\r", 90, 0}); }

TEST_F(DeckChunkRandom, NulsAndLoneCarriageReturns) { Compare(2, {"GC+ *$\n", 90, 40}); }

TEST_F(DeckChunkRandom, ContinuationLinesAlone) { Compare(3, {"+* ", 200, 0}); }

TEST_F(DeckChunkRandom, OneCardInThousandLines) {
  std::string firsts(1000, '+');
  firsts[500] = 'C';
  Compare(4, {firsts.c_str(), 60, 3000});
}

TEST_F(DeckChunkRandom, LinesOfUpToAThirdOfAChunk) { Compare(5, {"GC+* ", 700000, 0}); }

TEST_F(DeckChunkRandom, LinesOfUpToTwoChunks) { Compare(6, {"GC+* ", 4000000, 3}); }

TEST_F(DeckChunkRandom, LinesThatMayBeEmpty) { Compare(7, {"\n\n\n+G \r", 3, 50}); }

}  // namespace
}  // namespace btz
