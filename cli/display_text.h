// Names on their way from the host to a report. The library widens the deck's bytes one by one, whatever their encoding.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace btz::cli {

/// A host's text as UTF-8. Widened bytes that make up UTF-8 are taken for it, others for Latin-1; control characters become "?".
std::string DisplayText(std::wstring_view text);

/// Columns that a UTF-8 text takes on a terminal: two for each wide character of the East Asian scripts, none for a combining mark.
std::size_t DisplayWidth(std::string_view text);

}  // namespace btz::cli
