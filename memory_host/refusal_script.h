// Tells the in-memory host when to say no. A test writes down which calls fail; the host asks before it makes or hands out anything.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace btz::memory {

/// How a refused call answers.
enum class Refusal {
  None,         ///< Not refused.
  Code,         ///< The operation's failure result and no object.
  EmptySuccess  ///< The result 0, but no object: what a caller has to take for a failure too.
};

class RefusalScript {
 public:
  /// Refuses the `n`-th call, counted from 1, of an operation such as "MeshModel.CreateElement".
  void RefuseCall(std::string_view operation, std::int32_t n, Refusal how = Refusal::Code);

  /// Refuses every call of the operation from the `n`-th on.
  void RefuseFrom(std::string_view operation, std::int32_t n, Refusal how = Refusal::Code);

  /// Refuses every create from the `n`-th on, counted over all operations whose name begins with "Create".
  void RefuseCreatesFrom(std::int32_t n, Refusal how = Refusal::Code);

  /// Forgets rules and counts.
  void Clear();

  /// True when there is any rule. Calls are only counted while there is.
  bool IsActive() const { return active_; }

  /// Counts a call of `operation` of an object of the type `type` and says what becomes of it.
  Refusal Ask(std::string_view type, std::string_view operation);

 private:
  struct Rule {
    std::int32_t first;
    std::int32_t last;
    Refusal how;
  };
  struct Counted {
    std::int32_t calls = 0;
    std::vector<Rule> rules;
  };

  void Add(Counted& counted, const Rule& rule);
  static Refusal Count(Counted& counted);

  bool active_ = false;
  Counted creates_;
  std::map<std::string, Counted, std::less<>> operations_;
};

}  // namespace btz::memory
