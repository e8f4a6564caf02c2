// The scan in front of the passes: how many nodes, elements and include lines the deck has, and how many solid elements use each property.
#pragma once

#include <cstddef>
#include <cstdint>

namespace btz {

/// Reads the file as plain lines (a line of more than 255 characters counts as several) and stores its counts. Include files are not opened.
/// A file that can't be opened leaves the counts as they are.
void PreScanDeck(const char* path, std::int32_t* nodeCount, std::int32_t* elementCount, std::int32_t* includeCount);

/// Whether the line of `length` bytes (its line feed included, if it has one) is an element card. Cards of solids and gaskets are counted
/// under their property id in SolidPartCounts; columns decide where that stands, also in a line with commas.
bool CountElementCard(const char* line, std::size_t length);

}  // namespace btz
