#include "support/text.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>

namespace btz {

namespace {

const char* SkipSpace(const char* text) {
  while (IsSpace(*text)) {
    ++text;
  }
  return text;
}

const char* SkipDigits(const char* text) {
  while (IsDigit(*text)) {
    ++text;
  }
  return text;
}

const char* SkipSign(const char* text) { return *text == '+' || *text == '-' ? text + 1 : text; }

/// End of the exponent that starts at `text`, or `text` itself when there is none.
const char* SkipExponent(const char* text) {
  if (*text != 'E' && *text != 'e') {
    return text;
  }
  const char* digits = SkipSign(text + 1);
  const char* end = SkipDigits(digits);
  return end == digits ? text : end;
}

/// Whether the number of the correctly formed text from `first` is too large rather than too small: the exponent shifts its first digit other
/// than 0 in front of the point. Only asked when the conversion says that it is out of range.
bool IsHuge(const char* first, const char* end) {
  constexpr std::int64_t farBeyond = 1000000000000;  // Keeps the sum below in range for any text.
  const char* point = SkipDigits(first);
  const char* leading = first;
  while (*leading == '0' || *leading == '.') {
    ++leading;
  }
  const std::int64_t place = leading < point ? point - leading : point - leading + 1;  // 1 for the units, 0 for the tenths.
  const char* mark = SkipDigits(*point == '.' ? point + 1 : point);
  if (mark == end) {
    return place > 0;
  }
  const bool negative = mark[1] == '-';
  std::int64_t exponent = 0;
  for (const char* digit = SkipSign(mark + 1); digit != end && exponent < farBeyond; ++digit) {
    exponent = exponent * 10 + (*digit - '0');
  }
  return place + (negative ? -exponent : exponent) > 0;
}

wchar_t ToLower(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + (L'a' - L'A')) : c; }

template <typename Character>
void FormatNumberedInto(Character* dest, std::size_t capacity, const char* prefix, std::int32_t number) {
  char digits[12];
  const std::to_chars_result result = std::to_chars(digits, digits + sizeof(digits), number);
  std::size_t length = 0;
  const auto append = [&](const char* from, const char* to) {
    for (; from != to && length + 1 < capacity; ++from) {
      dest[length++] = static_cast<Character>(static_cast<unsigned char>(*from));
    }
  };
  append(prefix, prefix + std::strlen(prefix));
  append(digits, result.ptr);
  dest[length] = 0;
}

}  // namespace

std::int32_t ParseInteger(const char* text) { return text == nullptr ? 0 : ParseInteger(text, std::strlen(text)); }

double ParseDecimal(const char* text) {
  if (text == nullptr) {
    return 0.0;
  }
  const char* first = SkipSpace(text);
  const bool negative = *first == '-';
  first = SkipSign(first);
  const char* end = SkipDigits(first);
  bool hasDigits = end != first;
  if (*end == '.') {
    const char* fraction = end + 1;
    end = SkipDigits(fraction);
    hasDigits = hasDigits || end != fraction;
  }
  if (!hasDigits) {
    return 0.0;
  }
  end = SkipExponent(end);
  double value = 0.0;
  if (std::from_chars(first, end, value).ec == std::errc::result_out_of_range) {
    value = IsHuge(first, end) ? HUGE_VAL : 0.0;
  }
  return negative ? -value : value;
}

std::int32_t CompareNoCase(const char* a, const char* b) {
  while (*a != 0 && ToLower(*a) == ToLower(*b)) {
    ++a;
    ++b;
  }
  return static_cast<unsigned char>(ToLower(*a)) - static_cast<unsigned char>(ToLower(*b));
}

std::int32_t CompareNoCase(const wchar_t* a, const wchar_t* b) {
  a = a == nullptr ? L"" : a;
  b = b == nullptr ? L"" : b;
  while (*a != 0 && ToLower(*a) == ToLower(*b)) {
    ++a;
    ++b;
  }
  const wchar_t left = ToLower(*a);
  const wchar_t right = ToLower(*b);
  return left < right ? -1 : (left > right ? 1 : 0);
}

std::int32_t StartsWithNoCase(const char* text, const char* prefix) {
  if (text == nullptr || prefix == nullptr || *text == 0 || *prefix == 0) {
    return -1;
  }
  const std::size_t length = std::strlen(prefix);
  if (std::memchr(text, 0, length) != nullptr) {
    return -2;
  }
  for (std::size_t i = 0; i < length; ++i) {
    const int difference = static_cast<unsigned char>(ToLower(text[i])) - static_cast<unsigned char>(ToLower(prefix[i]));
    if (difference != 0) {
      return difference;
    }
  }
  return 0;
}

const char* FindSubstringNoCase(const char* text, const char* needle) {
  if (text == nullptr || needle == nullptr) {
    return nullptr;
  }
  for (;; ++text) {
    const char* a = text;
    const char* b = needle;
    while (*b != 0 && ToLower(*a) == ToLower(*b)) {
      ++a;
      ++b;
    }
    if (*b == 0) {
      return text;
    }
    if (*text == 0) {
      return nullptr;
    }
  }
}

void CopyText(char* dest, std::size_t capacity, const char* source) {
  const std::size_t length = strnlen(source, capacity - 1);
  std::memcpy(dest, source, length);
  dest[length] = 0;
}

void Widen(wchar_t* dest, std::size_t capacity, const char* source) {
  std::size_t length = 0;
  for (; source[length] != 0 && length + 1 < capacity; ++length) {
    dest[length] = static_cast<wchar_t>(static_cast<unsigned char>(source[length]));
  }
  dest[length] = 0;
}

void FormatNumbered(wchar_t* dest, std::size_t capacity, const char* prefix, std::int32_t number) {
  FormatNumberedInto(dest, capacity, prefix, number);
}

void FormatNumbered(char* dest, std::size_t capacity, const char* prefix, std::int32_t number) {
  FormatNumberedInto(dest, capacity, prefix, number);
}

void FormatSuffixed(wchar_t* dest, std::size_t capacity, const wchar_t* name, std::int32_t number) {
  std::size_t length = 0;
  for (; name != nullptr && name[length] != 0 && length + 1 < capacity; ++length) {
    dest[length] = name[length];
  }
  FormatNumbered(dest + length, capacity - length, "_", number);
}

}  // namespace btz
