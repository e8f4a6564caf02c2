#include "support/decimal_text.h"

#include <charconv>

namespace btz {

std::size_t FormatDecimals(char* dest, double value, std::int32_t decimals) {
  // The C library's formatting would do it too, but writes infinities differently from system to system.
  const std::to_chars_result result = std::to_chars(dest, dest + decimalTextCapacity - 1, value, std::chars_format::fixed, decimals);
  *result.ptr = 0;
  return static_cast<std::size_t>(result.ptr - dest);
}

}  // namespace btz
