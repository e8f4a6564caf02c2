#include "cli/display_text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace btz::cli {

namespace {

constexpr std::uint32_t replacementCharacter = 0xFFFD;

/// The low 16 bits of a unit: enough for the deck's bytes, and the same on systems with wider units.
std::uint32_t UnitOf(wchar_t unit) { return static_cast<std::uint32_t>(unit) & 0xFFFF; }

void AppendUtf8(std::string& text, std::uint32_t character) {
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | (character >> 6));
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (character >> 12));
    text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  }
}

/// Length of the UTF-8 character that begins with `lead`; 0 when none does.
std::size_t CharacterLength(unsigned char lead) {
  if (lead < 0x80) {
    return 1;
  }
  if (lead >= 0xC2 && lead < 0xE0) {
    return 2;
  }
  if (lead >= 0xE0 && lead < 0xF0) {
    return 3;
  }
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

bool IsUtf8(const std::string& bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    const std::size_t length = CharacterLength(static_cast<unsigned char>(bytes[i]));
    if (length == 0 || i + length > bytes.size()) {
      return false;
    }
    for (std::size_t k = 1; k < length; ++k) {
      if ((static_cast<unsigned char>(bytes[i + k]) & 0xC0) != 0x80) {
        return false;
      }
    }
    i += length;
  }
  return true;
}

char WithoutControl(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte < 0x20 || byte == 0x7F ? '?' : character;
}

/// The character that begins at `text[i]`, of `length` bytes. Their continuation bytes carry six bits each.
std::uint32_t CharacterAt(std::string_view text, std::size_t i, std::size_t length) {
  const auto lead = static_cast<unsigned char>(text[i]);
  std::uint32_t character = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t k = 1; k < length; ++k) {
    character = (character << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
  }
  return character;
}

struct CharacterRange {
  std::uint32_t first;
  std::uint32_t last;
};

constexpr CharacterRange wideCharacters[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
                                             {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};

std::size_t ColumnsOf(std::uint32_t character) {
  if (character >= 0x300 && character <= 0x36F) {
    return 0;
  }
  const bool wide = std::any_of(std::begin(wideCharacters), std::end(wideCharacters),
                                [character](const CharacterRange& range) { return character >= range.first && character <= range.last; });
  return wide ? 2 : 1;
}

}  // namespace

std::string DisplayText(std::wstring_view text) {
  std::string shown;
  if (std::all_of(text.begin(), text.end(), [](wchar_t unit) { return UnitOf(unit) <= 0xFF; })) {
    for (const wchar_t unit : text) {
      shown += static_cast<char>(UnitOf(unit));
    }
    if (!IsUtf8(shown)) {
      shown.clear();
    }
  }
  if (shown.empty()) {
    for (const wchar_t unit : text) {
      const std::uint32_t character = UnitOf(unit);
      const bool isSurrogate = character >= 0xD800 && character < 0xE000;
      AppendUtf8(shown, isSurrogate ? replacementCharacter : character);
    }
  }
  std::transform(shown.begin(), shown.end(), shown.begin(), WithoutControl);
  return shown;
}

std::size_t DisplayWidth(std::string_view text) {
  std::size_t width = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = std::max<std::size_t>(CharacterLength(static_cast<unsigned char>(text[i])), 1);
    width += i + length > text.size() ? 1 : ColumnsOf(CharacterAt(text, i, length));
    i += length;
  }
  return width;
}

}  // namespace btz::cli
