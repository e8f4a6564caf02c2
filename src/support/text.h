// Text routines with one defined result on every platform and in every locale: the character classes of the C library's default locale, the
// integer conversion, comparison without regard to case, and formatting into buffers of wide characters. The C library's own differ between
// systems for overflow, for bytes above 127 and for truncation.
#pragma once

#include <cstddef>
#include <cstdint>

namespace btz {

/// Tab, line feed, vertical tab, form feed, carriage return and blank.
inline bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

inline bool IsDigit(char c) { return c >= '0' && c <= '9'; }

inline bool IsAlpha(char c) { return static_cast<unsigned char>((static_cast<unsigned char>(c) | 0x20) - 'a') < 26; }

inline char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

/// Integer at the start of `text`, behind white space and one sign, up to the first other character; 0 without digits or for null. A number
/// beyond 32 bits wraps modulo 2^32.
std::int32_t ParseInteger(const char* text);

/// The same over the `length` bytes from `text`; a NUL among them ends the number too.
inline std::int32_t ParseInteger(const char* text, std::size_t length) {
  const char* const end = text + length;
  while (text != end && IsSpace(*text)) {
    ++text;
  }
  const bool negative = text != end && *text == '-';
  if (text != end && (*text == '-' || *text == '+')) {
    ++text;
  }
  std::uint32_t value = 0;
  for (; text != end && IsDigit(*text); ++text) {
    value = value * 10u + static_cast<std::uint32_t>(*text - '0');
  }
  return static_cast<std::int32_t>(negative ? 0u - value : value);
}

/// Decimal number at the start of `text` with optional fraction and exponent (`E` or `e`), correctly rounded; 0.0 without digits. Never
/// depends on the locale and knows no infinities, hexadecimal or other exponent letters. For tests on a field, not for values to be stored.
double ParseDecimal(const char* text);

/// Three-way comparison of two texts without regard to the case of ASCII letters.
std::int32_t CompareNoCase(const char* a, const char* b);

/// The same for texts of wide characters; null counts as empty.
std::int32_t CompareNoCase(const wchar_t* a, const wchar_t* b);

/// 0 if `text` begins with `prefix` in any case mix; -1 if either is null or empty; -2 if `text` is shorter; otherwise the three-way
/// comparison of the heads without regard to case.
std::int32_t StartsWithNoCase(const char* text, const char* prefix);

/// First occurrence of `needle` in `text` in any case mix, or null; null for a null argument.
const char* FindSubstringNoCase(const char* text, const char* needle);

/// Copies at most `capacity - 1` bytes of `source` and terminates `dest`.
void CopyText(char* dest, std::size_t capacity, const char* source);

/// Widens `source` byte by byte into `dest`: at most `capacity - 1` characters and the terminator.
void Widen(wchar_t* dest, std::size_t capacity, const char* source);

/// Writes `prefix` and the decimal number, at most `capacity - 1` characters and the terminator: "Body 7".
void FormatNumbered(wchar_t* dest, std::size_t capacity, const char* prefix, std::int32_t number);

/// The same in narrow characters: "Set7".
void FormatNumbered(char* dest, std::size_t capacity, const char* prefix, std::int32_t number);

/// Writes `name`, "_" and the decimal number, at most `capacity - 1` characters and the terminator: "Door_1". Null counts as empty.
void FormatSuffixed(wchar_t* dest, std::size_t capacity, const wchar_t* name, std::int32_t number);

}  // namespace btz
