// Names of operations, as the host's own code spells them at each call. What a trace needs to know of a name is worked out by the compiler: a run asks
// many millions of questions that no trace shows.
#pragma once

#include <array>
#include <string_view>

namespace btz::memory {

/// Whether an operation only asks, by its name.
constexpr bool IsQuestion(std::string_view operation) {
  constexpr std::array<std::string_view, 9> heads = {"Get", "Is", "Has", "Next", "Find", "Count", "Check", "Collect", "Compute"};
  for (const std::string_view head : heads) {
    if (operation.substr(0, head.size()) == head) {
      return true;
    }
  }
  return false;
}

struct Operation {
  /// From a literal.
  consteval Operation(const char* text) : name(text), isQuestion(IsQuestion(text)) {}

  const char* name;
  bool isQuestion;
};

}  // namespace btz::memory
