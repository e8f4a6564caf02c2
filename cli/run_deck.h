// One run of the library on an in-memory host, with everything around it: the log's folder, the progress bar, the quiet console.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "cli/options.h"

namespace btz::memory {
class MemoryHost;
}

namespace btz::cli {

class ResultStream;

struct RunOutcome {
  std::int32_t result = 0;  ///< What the library returned.
  double seconds = 0.0;     ///< Wall time of the call.
  std::uint64_t deckBytes = 0;
  std::optional<std::string> log;  ///< Text of the library's log, if it wrote one.
};

/// Translates the deck into `host`. Should the library call the host in a way that no host allows, the program says so, writes out what
/// `results` holds back and ends.
RunOutcome RunDeck(const Options& options, memory::MemoryHost& host, ResultStream& results);

}  // namespace btz::cli
