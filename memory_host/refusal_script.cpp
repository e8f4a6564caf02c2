#include "memory_host/refusal_script.h"

#include <limits>

namespace btz::memory {

namespace {

constexpr std::int32_t forEver = std::numeric_limits<std::int32_t>::max();

}  // namespace

void RefusalScript::Add(Counted& counted, const Rule& rule) {
  counted.rules.push_back(rule);
  active_ = true;
}

void RefusalScript::RefuseCall(std::string_view operation, std::int32_t n, Refusal how) {
  Add(operations_[std::string(operation)], {n, n, how});
}

void RefusalScript::RefuseFrom(std::string_view operation, std::int32_t n, Refusal how) {
  Add(operations_[std::string(operation)], {n, forEver, how});
}

void RefusalScript::RefuseCreatesFrom(std::int32_t n, Refusal how) { Add(creates_, {n, forEver, how}); }

void RefusalScript::Clear() { *this = RefusalScript(); }

Refusal RefusalScript::Count(Counted& counted) {
  ++counted.calls;
  for (const Rule& rule : counted.rules) {
    if (counted.calls >= rule.first && counted.calls <= rule.last) {
      return rule.how;
    }
  }
  return Refusal::None;
}

Refusal RefusalScript::Ask(std::string_view type, std::string_view operation) {
  Refusal byKind = Refusal::None;
  if (operation.substr(0, 6) == "Create") {
    byKind = Count(creates_);
  }
  std::string name(type);
  name += '.';
  name += operation;
  const auto found = operations_.find(name);
  const Refusal byName = found == operations_.end() ? Refusal::None : Count(found->second);
  return byName != Refusal::None ? byName : byKind;
}

}  // namespace btz::memory
