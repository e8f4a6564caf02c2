// A piece of deck text for a test: writable, ended by its NUL, with a cursor, and with marked bytes behind, so that a test notices when
// something is read or written there.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "deck/deck_buffer.h"

namespace btz::test {

class DeckText {
 public:
  explicit DeckText(std::string_view content, std::size_t place = 0) : size(content.size()), memory(content) {
    memory += '\0';
    memory.append(behind, '7');
    cursor = memory.data() + place;
  }

  DeckText(const DeckText&) = delete;
  DeckText& operator=(const DeckText&) = delete;

  /// Where the cursor stands, counted from the start of the text.
  std::size_t Place() const { return static_cast<std::size_t>(cursor - memory.data()); }

  /// All bytes of the text, up to where it ended at first.
  std::string_view Bytes() const { return std::string_view(memory).substr(0, size); }

  /// What stands from the cursor to the NUL.
  std::string_view Rest() const { return cursor; }

  bool IsUntouchedBehind() const { return std::string_view(memory).substr(size) == std::string(1, '\0') + std::string(behind, '7'); }

  CardCursor cursor;

 private:
  static constexpr std::size_t behind = 40;

  std::size_t size;
  std::string memory;
};

}  // namespace btz::test
