// The text of a deck, a chunk at a time. A deck can be far larger than what the translator is willing to hold, so a file in a pass has one
// DeckBuffer: a main block with the current chunk, on which the card readers work in place, and a carry block with the tail that was cut off
// so that no card is split between two chunks. Also here: taking a whole line or one delimited token off the text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace btz {

/// Position of the next unread character, inside the main block.
using CardCursor = char*;

inline constexpr std::size_t deckBlockSize = 2097152;   ///< Size of each of the two blocks in bytes.
inline constexpr std::size_t deckChunkLimit = 2097145;  ///< Most text that a chunk holds, carried and new text together.
inline constexpr std::size_t deckLineCapacity = 256;    ///< Size of the buffers that hold one line.

/// One file in one pass. A chunk's text ends at its NUL: nothing reads, writes or moves behind it, and all bytes behind it are zero. Zeroed
/// guard bytes stand before and behind the main block. The blocks are reused from file to file and pass to pass.
struct DeckBuffer {
  std::FILE* stream = nullptr;
  char* memory = nullptr;        ///< The allocation that holds both blocks and the guards.
  char* block = nullptr;         ///< Main block.
  char* carry = nullptr;         ///< Text cut from the end of the last chunk, NUL-terminated; empty when nothing was cut.
  CardCursor cursor = nullptr;   ///< Next unread character.
  std::size_t filled = 0;        ///< Bytes of the main block that may differ from zero.
  std::uint64_t generation = 0;  ///< Raised by every ReadDeckChunk, so that a reader that fetched text can be told from one that did not.
};

/// Allocates the blocks, zero-filled; false when memory ran out. Nothing happens when the buffer has them already.
bool AllocateDeckBuffer(DeckBuffer* buffer);

/// Frees the blocks. The stream is not touched.
void FreeDeckBuffer(DeckBuffer* buffer);

/// Puts the buffer on a newly opened `stream`: empty text, empty carry.
void AttachDeckStream(DeckBuffer* buffer, std::FILE* stream);

/// Puts the stream back to its start and drops the carried text; the next chunk is the file's first.
void RewindDeck(DeckBuffer* buffer);

/// Fills the main block with the next chunk: 0 when there is text to read, 1 when the file is exhausted.
///
/// Required: a file that is exhausted by a full read does not report its end on that read. The usual cut is made, the next call finds no new
/// bytes, puts the carried text in the main block and returns 0 with the cursor unmoved, on the NUL of the previous chunk; so the carried
/// cards are lost.
std::int32_t ReadDeckChunk(DeckBuffer* buffer);

/// Copies the line at the cursor to `dest`, without its line feed, cut to `capacity - 1` bytes. A line feed moves the cursor past it: 0. A
/// NUL leaves the cursor where it was: -1. Nothing happens when the text or `dest` is null: 0.
std::int32_t ReadDeckLine(CardCursor* cursor, char* dest, std::size_t capacity);

/// Next token of `text`, split as strtok does: delimiters in a row count as one. `text` moves behind the token, which is terminated in
/// place; null when no token is left.
char* NextToken(char** text, const char* delimiters);

/// Token number `index`, counted from 0, of a line split at commas, equals signs, tabs, bells, backspaces, line feeds and, with
/// `splitAtBlank`, blanks; empty when the line has fewer. Delimiters in a row count as one, so an empty field between two commas is not
/// seen. A carriage return is no delimiter. `dest` holds at least 8 bytes. Nothing happens when `line` or `dest` is null.
void GetFreeToken(const char* line, std::int32_t index, char* dest, std::size_t capacity, bool splitAtBlank);

/// The same token as an integer; a token that is absent counts 0.
std::int32_t GetFreeInteger(const char* line, std::int32_t index);

}  // namespace btz
