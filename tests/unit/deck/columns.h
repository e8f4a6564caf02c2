// Card lines in columns for a test, so that a field's place is never counted by hand.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace btz::test {

/// One line of fields, written with `|` between them: the first 8 columns wide, the others `width`, each padded with blanks. `end` ends it.
inline std::string Columns(std::string_view fields, std::size_t width, std::string_view end) {
  std::string line;
  std::size_t place = 8;
  for (std::size_t from = 0; from <= fields.size(); place += width) {
    const std::size_t bar = std::min(fields.find('|', from), fields.size());
    line += fields.substr(from, bar - from);
    line.resize(place, ' ');
    from = bar + 1;
  }
  line += end;
  return line;
}

/// A line of small fields, 8 columns each: `Small("PSOLID|1|2|")`. A `|` at the end stands for a blank field.
inline std::string Small(std::string_view fields, std::string_view end = "\n") { return Columns(fields, 8, end); }

/// A line of large fields, 16 columns each behind the first one.
inline std::string Large(std::string_view fields, std::string_view end = "\n") { return Columns(fields, 16, end); }

}  // namespace btz::test
