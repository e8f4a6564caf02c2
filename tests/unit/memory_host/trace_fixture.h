// A host that writes down its calls.
#pragma once

#include <string>

#include "memory_host/host_fixture.h"

namespace btz::memory {

class TraceTest : public MemoryHostTest {
 protected:
  TraceTest() { host.SetTrace(&changes_); }

  /// The lines since the last question.
  std::string Lines() {
    std::string lines;
    lines.swap(text_);
    return lines;
  }
  void TraceAll() { host.SetTrace(&all_); }
  ForceLoad* MakeForce() {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    boundary->CreateForce(&force, &id);
    return force;
  }

  std::string text_;
  TraceSink changes_{&text_};
  TraceSink all_{&text_, TraceSink::Coverage::All};
};

}  // namespace btz::memory
