// The walk of load cards without any short cut, its tests in their order: a model for tests that compare readers with it on random text.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "deck/card_boundaries.h"
#include "deck/plain_fields.h"

namespace btz::test {

/// The text of a field, up to its line's end; from a line feed on, up to the end of the next line that holds anything.
inline std::string PlainLineField(const std::string& content, std::size_t place, std::int32_t width) {
  const bool beginsAtLineEnd = PlainAt(content, place) == '\n';
  bool holdsText = false;
  std::string field;
  for (std::int32_t i = 0; i < width; ++i) {
    const char c = PlainAt(content, place + static_cast<std::size_t>(i));
    if (c == 0 || (c == '\n' && (holdsText || !beginsAtLineEnd))) {
      break;
    }
    field += c;
    holdsText = holdsText || !IsPlainSpace(c);
  }
  return field;
}

inline std::int32_t PlainIntegerOf(const std::string& text) { return static_cast<std::int32_t>(std::strtoll(text.c_str(), nullptr, 10)); }

/// The reals that a walk for `count` of them reads; moves the place as the walk does.
inline std::vector<double> PlainLineReals(const std::string& content, std::size_t* place, std::int32_t width, std::size_t count) {
  std::vector<double> values;
  while (values.size() < count) {
    const std::string text = PlainField(PlainLineField(content, *place, width), 0, static_cast<std::size_t>(width));
    if (PlainMark(text) && PlainDecimal(text) == 0.0) {
      PlainSkip(content, place, width);
    } else if (text.empty()) {
      if (PlainSkip(content, place, width) == 1) {
        break;
      }
    } else if (text.find('*') != std::string::npos && PlainIntegerOf(text) == 0) {
      if (IsCardKeyword(text.c_str())) {
        break;
      }
      PlainSkip(content, place, 8);
    } else if (PlainText(text) && PlainIntegerOf(text) == 0) {
      break;
    } else {
      values.push_back(PlainReal(content, place, width));
    }
  }
  return values;
}

}  // namespace btz::test
