#include "cli/log_digest.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace btz::cli {

namespace {

constexpr std::string_view arrow = " -> ";

bool StartsWith(std::string_view text, std::string_view head) { return text.substr(0, head.size()) == head; }

bool EndsWith(std::string_view text, std::string_view tail) {
  return text.size() >= tail.size() && text.substr(text.size() - tail.size()) == tail;
}

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// A line "<head><what> -> <number>".
struct CountedLine {
  std::string_view what;
  std::int32_t number;
};

std::optional<CountedLine> TakeCounted(std::string_view line, std::string_view head) {
  const std::size_t at = line.rfind(arrow);
  if (!StartsWith(line, head) || at == std::string_view::npos || at < head.size()) {
    return std::nullopt;
  }
  const std::string_view digits = Trim(line.substr(at + arrow.size()));
  std::int32_t number = 0;
  const std::from_chars_result end = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (end.ec != std::errc() || end.ptr != digits.data() + digits.size()) {
    return std::nullopt;
  }
  return CountedLine{Trim(line.substr(head.size(), at - head.size())), number};
}

void CountRefusal(LogDigest& digest, const CountedLine& line) {
  auto refusals =
      std::find_if(digest.refusals.begin(), digest.refusals.end(), [&](const Refusals& held) { return held.what == line.what; });
  if (refusals == digest.refusals.end()) {
    refusals = digest.refusals.insert(refusals, Refusals{std::string(line.what), 0, {}});
  }
  ++refusals->count;
  if (refusals->firstIds.size() < Refusals::mostIds) {
    refusals->firstIds.push_back(line.number);
  }
}

/// The library's marks of time and progress, which say nothing about the deck.
bool IsFramework(std::string_view line) {
  constexpr std::string_view heads[] = {"File Reading Started : ", "File Reading Ended : ",   "Node Reading Started",
                                        "Node Reading Ended",      "Element Reading Started", "Element Reading Ended"};
  return std::any_of(std::begin(heads), std::end(heads), [&](std::string_view head) { return StartsWith(line, head); });
}

void DigestLine(LogDigest& digest, std::string_view line) {
  constexpr std::string_view missingHead = "Include FileName \"";
  constexpr std::string_view missingTail = "\" does not exists.";
  constexpr std::string_view stepTail = "....";
  constexpr std::string_view lastLine = "...........Log File Ended..........";

  if (line.empty() || IsFramework(line)) {
    return;
  }
  if (line == lastLine) {
    digest.isComplete = true;
    return;
  }
  if (const auto refused = TakeCounted(line, "*** Failed ")) {
    CountRefusal(digest, *refused);
    return;
  }
  if (const auto nodes = TakeCounted(line, "Total Nodes Readed")) {
    digest.nodesRead = nodes->number;
    return;
  }
  if (const auto elements = TakeCounted(line, "No.of ")) {
    if (elements->number != 0) {
      digest.elementsRead.push_back({std::string(elements->what.substr(0, elements->what.find(' '))), elements->number});
    }
    return;
  }
  if (StartsWith(line, missingHead) && EndsWith(line, missingTail) && line.size() >= missingHead.size() + missingTail.size()) {
    digest.missingIncludes.emplace_back(line.substr(missingHead.size(), line.size() - missingHead.size() - missingTail.size()));
    return;
  }
  if (EndsWith(line, stepTail)) {
    digest.steps.emplace_back(line.substr(0, line.size() - stepTail.size()));
    return;
  }
  digest.otherLines.emplace_back(line);
}

}  // namespace

LogDigest DigestLog(std::string_view text) {
  LogDigest digest;
  digest.isPresent = true;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    DigestLine(digest, Trim(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return digest;
}

}  // namespace btz::cli
