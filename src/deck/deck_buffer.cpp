#include "deck/deck_buffer.h"

#include <cstring>

#include "support/block_pool.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr std::size_t guardSize = 4096;

/// Ends the text at `length`, with nothing but zeros behind it.
void EndText(DeckBuffer* buffer, std::size_t length) {
  if (buffer->filled > length) {
    std::memset(buffer->block + length, 0, buffer->filled - length);
  }
  buffer->filled = length;
}

bool IsContinuation(char first) { return first == '+' || first == '*' || first == ' ' || first == 0; }

/// Bytes behind the last line feed that is followed by a new card; -1 when no line feed behind the block's first byte is.
std::ptrdiff_t FindCardCut(const char* block, std::ptrdiff_t length) {
  for (std::ptrdiff_t at = length - 1; at > 0; --at) {
    if (block[at] == '\n' && !IsContinuation(block[at + 1])) {
      return length - 1 - at;
    }
  }
  return -1;
}

/// Bytes behind the last line feed or NUL, whatever follows it. The guard's NUL in front of the block ends the search.
std::ptrdiff_t FindLineCut(const char* block, std::ptrdiff_t length) {
  std::ptrdiff_t at = length - 1;
  while (at >= 0 && block[at] != '\n' && block[at] != 0) {
    --at;
  }
  return length - 1 - at;
}

const char* FreeDelimiters(bool splitAtBlank) { return splitAtBlank ? ",=\t\v\a\b\n " : ",=\t\v\a\b\n"; }

bool IsDelimiter(char c, const char* delimiters) { return c != 0 && std::strchr(delimiters, c) != nullptr; }

}  // namespace

bool AllocateDeckBuffer(DeckBuffer* buffer) {
  if (buffer->memory != nullptr) {
    return true;
  }
  buffer->memory = static_cast<char*>(AllocateZeroed(guardSize + deckBlockSize + guardSize + deckBlockSize));
  if (buffer->memory == nullptr) {
    return false;
  }
  buffer->block = buffer->memory + guardSize;
  buffer->carry = buffer->block + deckBlockSize + guardSize;
  buffer->cursor = buffer->block;
  return true;
}

void FreeDeckBuffer(DeckBuffer* buffer) {
  ReleaseMemory(buffer->memory);
  *buffer = DeckBuffer{};
}

void AttachDeckStream(DeckBuffer* buffer, std::FILE* stream) {
  buffer->stream = stream;
  EndText(buffer, 0);
  buffer->carry[0] = 0;
  buffer->cursor = buffer->block;
}

void RewindDeck(DeckBuffer* buffer) {
  std::rewind(buffer->stream);
  buffer->carry[0] = 0;
}

std::int32_t ReadDeckChunk(DeckBuffer* buffer) {
  ++buffer->generation;
  const std::size_t kept = strnlen(buffer->carry, deckChunkLimit);
  std::memcpy(buffer->block, buffer->carry, kept);
  buffer->carry[0] = 0;
  const std::size_t asked = deckChunkLimit - kept;
  const std::size_t read = std::fread(buffer->block + kept, 1, asked, buffer->stream);
  if (kept + read > buffer->filled) {
    buffer->filled = kept + read;
  }
  if (std::ferror(buffer->stream) != 0 || read == 0) {
    EndText(buffer, kept);
    return kept == 0 ? 1 : 0;
  }
  EndText(buffer, kept + read);
  if (read < asked) {
    buffer->cursor = buffer->block;
    return 0;
  }
  const auto length = static_cast<std::ptrdiff_t>(kept + read);
  std::ptrdiff_t cut = FindCardCut(buffer->block, length);
  if (cut < 0) {
    cut = FindLineCut(buffer->block, length);
  }
  const auto stays = static_cast<std::size_t>(length - cut);
  std::memcpy(buffer->carry, buffer->block + stays, static_cast<std::size_t>(cut));
  buffer->carry[cut] = 0;
  EndText(buffer, stays);
  // What counts is the new text alone: with carried text in front, a cut of just the new bytes ends the file.
  if (static_cast<std::ptrdiff_t>(read) == cut) {
    return 1;
  }
  buffer->cursor = buffer->block;
  return 0;
}

std::int32_t ReadDeckLine(CardCursor* cursor, char* dest, std::size_t capacity) {
  if (*cursor == nullptr || dest == nullptr) {
    return 0;
  }
  char* const line = *cursor;
  const std::size_t length = std::strcspn(line, "\n");
  const std::size_t copied = length < capacity ? length : capacity - 1;
  std::memcpy(dest, line, copied);
  dest[copied] = 0;
  if (line[length] == 0) {
    return -1;
  }
  *cursor = line + length + 1;
  return 0;
}

char* NextToken(char** text, const char* delimiters) {
  char* token = *text;
  while (IsDelimiter(*token, delimiters)) {
    ++token;
  }
  char* end = token;
  while (*end != 0 && !IsDelimiter(*end, delimiters)) {
    ++end;
  }
  *text = *end == 0 ? end : end + 1;
  *end = 0;
  return end == token ? nullptr : token;
}

void GetFreeToken(const char* line, std::int32_t index, char* dest, std::size_t capacity, bool splitAtBlank) {
  if (line == nullptr || dest == nullptr) {
    return;
  }
  std::memset(dest, 0, 8);
  const char* delimiters = FreeDelimiters(splitAtBlank);
  for (std::int32_t number = 0;; ++number) {
    line += std::strspn(line, delimiters);
    const std::size_t length = std::strcspn(line, delimiters);
    if (length == 0) {
      return;
    }
    if (number == index) {
      const std::size_t copied = length < capacity ? length : capacity - 1;
      std::memcpy(dest, line, copied);
      dest[copied] = 0;
      return;
    }
    line += length;
  }
}

std::int32_t GetFreeInteger(const char* line, std::int32_t index) {
  char token[deckLineCapacity];
  GetFreeToken(line, index, token, sizeof(token), true);
  return ParseInteger(token);
}

}  // namespace btz
