// Random card text for the comparison of a walk with a model of it.
#pragma once

#include <cstdint>
#include <iterator>
#include <random>
#include <string>

namespace btz::test {

/// A few lines of `fields`, each line but the first with one of `heads` in front, cut short here and there, with either line end; the last may be cut
/// too.
template <std::size_t headCount, std::size_t fieldCount>
std::string JoinRandomLines(std::mt19937& random, const char* const (&heads)[headCount], const char* const (&fields)[fieldCount]) {
  std::string text;
  for (std::uint32_t line = 0; line < 1 + random() % 5; ++line) {
    std::string whole = line == 0 ? "" : heads[random() % std::size(heads)];
    for (std::uint32_t field = random() % 9; field > 0; --field) {
      whole += fields[random() % std::size(fields)];
    }
    if (random() % 3 == 0) {
      whole.resize(random() % (whole.size() + 1));
    }
    text += whole + (random() % 4 == 0 ? "\r\n" : "\n");
  }
  if (random() % 4 == 0) {
    text.resize(random() % (text.size() + 1));
  }
  return text;
}

}  // namespace btz::test
