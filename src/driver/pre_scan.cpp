#include "driver/pre_scan.h"

#include <cstring>

#include "mesh/parts.h"
#include "platform/platform.h"
#include "support/block_pool.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr std::size_t longestLine = 255;  ///< Longer lines are seen as several.
constexpr std::size_t scanBlockSize = 65536;

struct ElementKeyword {
  const char* prefix;
  std::size_t length;
  bool isPropertyCounted;
};

constexpr ElementKeyword elementKeywords[] = {
    {"CTRIA", 5, false}, {"CTETRA", 6, true}, {"CPENTA", 6, true}, {"CHEXA", 5, true}, {"CBAR", 4, false},
    {"CQUAD", 5, false}, {"CBEAM", 5, false}, {"CPYRAM", 6, true}, {"CPYRA", 5, true}, {"CGASK", 5, true},
};

/// The line's text: up to its NUL, if it holds one.
struct Line {
  const char* text;
  std::size_t length;
};

bool BeginsWith(const Line& line, const char* prefix, std::size_t length) {
  return line.length >= length && std::memcmp(line.text, prefix, length) == 0;
}

const ElementKeyword* FindElementKeyword(const Line& line) {
  if (line.length == 0 || line.text[0] != 'C') {
    return nullptr;
  }
  for (const ElementKeyword& keyword : elementKeywords) {
    if (BeginsWith(line, keyword.prefix, keyword.length)) {
      return &keyword;
    }
  }
  return nullptr;
}

/// Bytes of the field at `at`: up to a line feed, the text's end, or `width`.
std::size_t FieldEnd(const Line& line, std::size_t at, std::size_t width) {
  std::size_t end = at;
  while (end < line.length && end < at + width && line.text[end] != '\n') {
    ++end;
  }
  return end;
}

/// A lone character in front of the line feed counts as no field.
bool IsLoneCharacter(const Line& line, std::size_t at, std::size_t end) {
  return end == at + 1 && end < line.length && line.text[end] == '\n';
}

std::int32_t PropertyIdOf(const Line& line) {
  const std::size_t width = std::memchr(line.text, '*', line.length) != nullptr ? 16 : 8;
  std::size_t at = line.length < 8 ? line.length : 8;
  const std::size_t idEnd = FieldEnd(line, at, width);
  if (!IsLoneCharacter(line, at, idEnd)) {
    at = idEnd;
  }
  const std::size_t end = FieldEnd(line, at, width);
  return IsLoneCharacter(line, at, end) ? 0 : ParseInteger(line.text + at, end - at);
}

void CountProperty(std::int32_t propertyId) {
  if (SolidPartCounts.bucketCount == 0) {
    HashCreate(&SolidPartCounts, 1000, HashFirstInt, nullptr, nullptr, 0);
  }
  auto* held = static_cast<PropertyElementCountRecord*>(HashFind(&SolidPartCounts, &propertyId));
  if (held != nullptr) {
    ++held->elementCount;
    return;
  }
  // The table is only looked up, never walked in order, so it is rehashed just often enough to keep its chains short.
  if (HashCount(&SolidPartCounts) > 2 * SolidPartCounts.bucketCount) {
    HashRehash(&SolidPartCounts);
  }
  auto* record = static_cast<PropertyElementCountRecord*>(AllocateZeroed(sizeof(PropertyElementCountRecord)));
  if (record == nullptr) {
    return;
  }
  record->propertyId = propertyId;
  record->elementCount = 1;
  if (HashInsert(&SolidPartCounts, record) == 0) {
    ReleaseMemory(record);
  }
}

struct Counts {
  std::int32_t nodes = 0;
  std::int32_t elements = 0;
  std::int32_t includes = 0;
};

bool IsIncludeLine(const Line& line) {
  constexpr const char* word = "include ";
  for (std::size_t i = 0; word[i] != 0; ++i) {
    if (i >= line.length || ToLower(line.text[i]) != word[i]) {
      return false;
    }
  }
  return true;
}

void CountLine(const char* text, std::size_t length, Counts* counts) {
  switch (*text) {
    case 'C':
      counts->elements += CountElementCard(text, length) ? 1 : 0;
      return;
    case 'G':
      counts->nodes += length >= 4 && std::memcmp(text, "GRID", 4) == 0 ? 1 : 0;
      return;
    case 'I':
    case 'i':
      counts->includes += IsIncludeLine({text, length}) ? 1 : 0;
      return;
    default:
      return;
  }
}

/// Counts the whole lines of the block and returns how many bytes they take. At the file's end the rest is a line too.
std::size_t CountLines(const char* block, std::size_t length, bool isLast, Counts* counts) {
  std::size_t at = 0;
  while (at < length) {
    const std::size_t reach = length - at < longestLine ? length - at : longestLine;
    const auto* feed = static_cast<const char*>(std::memchr(block + at, '\n', reach));
    if (feed == nullptr && reach < longestLine && !isLast) {
      break;
    }
    const std::size_t line = feed == nullptr ? reach : static_cast<std::size_t>(feed - block) + 1 - at;
    CountLine(block + at, line, counts);
    at += line;
  }
  return at;
}

}  // namespace

bool CountElementCard(const char* line, std::size_t length) {
  const Line text{line, strnlen(line, length)};
  const ElementKeyword* keyword = FindElementKeyword(text);
  if (keyword == nullptr) {
    return false;
  }
  if (keyword->isPropertyCounted) {
    CountProperty(PropertyIdOf(text));
  }
  return true;
}

void PreScanDeck(const char* path, std::int32_t* nodeCount, std::int32_t* elementCount, std::int32_t* includeCount) {
  std::FILE* file = OpenFileUtf8(path, "rb");
  if (file == nullptr) {
    return;
  }
  Counts counts;
  char block[scanBlockSize];
  std::size_t kept = 0;
  for (bool isLast = false; !isLast;) {
    const std::size_t read = std::fread(block + kept, 1, sizeof(block) - kept, file);
    isLast = read == 0;
    const std::size_t held = kept + read;
    const std::size_t used = CountLines(block, held, isLast, &counts);
    kept = held - used;
    std::memmove(block, block + used, kept);
  }
  std::fclose(file);
  *nodeCount = counts.nodes;
  *elementCount = counts.elements;
  *includeCount = counts.includes;
}

}  // namespace btz
