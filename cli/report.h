// The report of `btz inspect`: what one run made of a deck, as text for people and as JSON for programs.
#pragma once

#include <cstdint>
#include <string>

#include "cli/log_digest.h"
#include "cli/model_summary.h"

namespace btz::cli {

struct RunReport {
  std::string deckName;  ///< File name without its folder.
  std::uint64_t deckBytes = 0;
  std::int32_t result = 0;  ///< What the library returned.
  double seconds = 0.0;     ///< Wall time of the library's call.
  LogDigest log;
  ModelSummary model;
};

/// The report as lines of text, UTF-8.
std::string ReportText(const RunReport& report);

/// The report as one JSON object, with all names and ids.
std::string ReportJson(const RunReport& report);

}  // namespace btz::cli
