// The tests and moves on a field without any short cut, each as it is told, on a string and a place in it: models for tests that compare a walk
// with them on random text.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "deck/fields.h"

namespace btz::test {

inline bool IsPlainSpace(char c) { return std::strchr(" \t\n\v\f\r", c) != nullptr && c != 0; }

inline bool IsPlainLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

/// The character at `where`; NUL behind the text.
inline char PlainAt(const std::string& content, std::size_t where) { return where < content.size() ? content[where] : '\0'; }

/// The next `width` bytes, compacted: trimmed, then the characters that are no space moved down over the text, which keeps its length.
inline std::string PlainField(const std::string& content, std::size_t place, std::size_t width) {
  std::string text = content.substr(place, width);
  text = text.substr(0, text.find('\0'));
  while (!text.empty() && IsPlainSpace(text.back())) {
    text.pop_back();
  }
  while (!text.empty() && IsPlainSpace(text.front())) {
    text.erase(text.begin());
  }
  const std::string trimmed = text;
  std::size_t to = 0;
  for (const char c : trimmed) {
    if (!IsPlainSpace(c)) {
      text[to++] = c;
    }
  }
  return text;
}

inline bool PlainMark(const std::string& text) {
  for (const char c : text) {
    if (IsPlainLetter(c)) {
      return false;
    }
    if (c == '+') {
      return true;
    }
  }
  return false;
}

inline bool PlainText(const std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    if ((text[i] == 'E' || text[i] == 'e') && (next == '+' || next == '-')) {
      continue;
    }
    if (IsPlainLetter(text[i]) || text[i] == '$') {
      return true;
    }
  }
  return false;
}

/// The decimal number at the text's start.
inline double PlainDecimal(const std::string& text) {
  // Only the characters of a decimal number: the system's conversion may know infinities, hexadecimal digits and other exponent letters.
  return std::strtod(text.substr(0, text.find_first_not_of("0123456789.+-Ee")).c_str(), nullptr);
}

/// Moves over a field or the rest of its line; 1 with no move at the text's end.
inline int PlainSkip(const std::string& content, std::size_t* place, std::int32_t width) {
  if (PlainAt(content, *place) == 0) {
    return 1;
  }
  for (std::int32_t i = 0; i < width && PlainAt(content, *place) != 0; ++i) {
    if (PlainAt(content, *place) == '\n') {
      ++*place;
      break;
    }
    ++*place;
  }
  *place += PlainAt(content, *place) == '\n' ? 1 : 0;
  return 0;
}

/// The bytes up to the line's end, at most `width`; moves behind them.
inline std::string PlainTake(const std::string& content, std::size_t* place, std::int32_t width) {
  std::string field;
  while (static_cast<std::int32_t>(field.size()) < width && PlainAt(content, *place) != '\n' && PlainAt(content, *place) != 0) {
    field += PlainAt(content, (*place)++);
  }
  return field;
}

/// An integer field.
inline std::int32_t PlainInteger(const std::string& content, std::size_t* place, std::int32_t width) {
  return static_cast<std::int32_t>(std::strtoll(PlainTake(content, place, width).c_str(), nullptr, 10));
}

/// A real field, behind one line feed if the place is on it.
inline double PlainReal(const std::string& content, std::size_t* place, std::int32_t width) {
  *place += PlainAt(content, *place) == '\n' ? 1 : 0;
  return ParseReal(PlainTake(content, place, width).c_str());
}

}  // namespace btz::test
