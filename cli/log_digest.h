// What the library's log said, cut down to what a reader of the report wants to know. A deck that does not fit its host can leave hundreds of
// thousands of lines of one kind: these are counted, with their first ids kept.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace btz::cli {

/// Lines "*** Failed Quad4 Element -> 12": the host refused what a card asked for.
struct Refusals {
  std::string what;                    ///< "Quad4 Element", "Node".
  std::size_t count = 0;               ///< Number of lines.
  std::vector<std::int32_t> firstIds;  ///< Ids of the first lines, at most `mostIds` of them.

  static constexpr std::size_t mostIds = 5;
};

/// Cards that a line of the log counts.
struct CardCount {
  std::string what;  ///< "Quad4", "Tet".
  std::int32_t count = 0;
};

struct LogDigest {
  bool isPresent = false;   ///< A log was written.
  bool isComplete = false;  ///< It holds its last line.
  std::int32_t nodesRead = 0;
  std::vector<CardCount> elementsRead;  ///< Families that the deck has, in the log's order.
  std::vector<std::string> steps;       ///< Work that the log announces, in order: "Creating Properties".
  std::vector<Refusals> refusals;       ///< In the order of their first lines.
  std::vector<std::string> missingIncludes;
  std::vector<std::string> otherLines;  ///< Whatever is none of the above.
};

/// Digests a log with LF line ends.
LogDigest DigestLog(std::string_view text);

}  // namespace btz::cli
