// Reals as text with a fixed number of decimals, the same on every platform.
#pragma once

#include <cstddef>
#include <cstdint>

namespace btz {

/// Room for the largest double with six decimals, its sign and its terminator.
inline constexpr std::size_t decimalTextCapacity = 320;

/// Writes `value` with `decimals` decimals (0 to 6) and the terminator into `dest`, which holds decimalTextCapacity characters: "1.00". Returns the
/// length. Rounding goes by the exact binary value, a tie to the even digit: 0.125 with two decimals is "0.12". Not-a-number and infinities
/// are "nan", "inf" and "-inf".
std::size_t FormatDecimals(char* dest, double value, std::int32_t decimals);

}  // namespace btz
