#include "deck/fields.h"

namespace btz {

namespace {

/// Where the digits of a real go.
enum class RealPart { Integer, Fraction, Exponent };

/// Whether a further step of multiplying or dividing by ten would leave the value as it is.
bool IsSettled(double value) { return value == 0.0 || value - value != 0.0; }

double ScaleByTen(double value, std::int32_t exponent, bool negative) {
  // One operation per step: the rounding of each is part of the result.
  for (; exponent > 0 && !IsSettled(value); --exponent) {
    value = negative ? value / 10.0 : value * 10.0;
  }
  return value;
}

/// Value that a character other than signs, points and marks adds as a digit.
std::int32_t DigitOf(char c) { return static_cast<signed char>(c) - 48; }

std::uint32_t AppendDigit(std::uint32_t number, char c) { return number * 10u + static_cast<std::uint32_t>(DigitOf(c)); }

}  // namespace

char* TrimLeft(char* text) {
  if (text == nullptr) {
    return nullptr;
  }
  std::size_t blanks = 0;
  while (IsSpace(text[blanks])) {
    ++blanks;
  }
  if (blanks != 0) {
    std::memmove(text, text + blanks, std::strlen(text + blanks) + 1);
  }
  return text;
}

char* TrimRight(char* text) {
  if (text == nullptr) {
    return nullptr;
  }
  for (std::size_t length = std::strlen(text); length != 0 && IsSpace(text[length - 1]); --length) {
    text[length - 1] = 0;
  }
  return text;
}

char* TrimField(char* text) { return TrimRight(TrimLeft(text)); }

char* CompactField(char* text) {
  TrimField(text);
  if (text == nullptr || *text == 0) {
    return nullptr;
  }
  char* to = text;
  for (const char* from = text; *from != 0; ++from) {
    if (!IsSpace(*from)) {
      *to++ = *from;
    }
  }
  return text;
}

bool ReadIdField(std::int32_t width, CardCursor* cursor, std::int32_t* out, bool skipBlanks) {
  char* field = *cursor;
  if (skipBlanks) {
    while (*field == ' ') {
      ++field;
    }
    *cursor = field;
  }
  const std::int32_t length = FieldLength(field, width);
  if (field[length] != '\n' || length == width) {
    // Full field, or the text's end: there is no line feed to lose.
    *out = ParseInteger(field, static_cast<std::size_t>(length));
    *cursor = field + length;
    return true;
  }
  // With skipBlanks the byte put back is the line feed itself.
  const char saved = skipBlanks ? '\n' : field[strnlen(field, static_cast<std::size_t>(width))];
  if (length == 1) {
    field[0] = saved;
    return false;
  }
  *out = ParseInteger(field, static_cast<std::size_t>(length));
  *cursor = field + length;
  field[length] = saved;
  return true;
}

double ParseReal(const char* text, std::size_t length) {
  std::uint32_t integer = 0;
  double fraction = 0.0;
  std::size_t fractionDigits = 0;
  std::uint32_t exponent = 0;
  RealPart part = RealPart::Integer;
  bool negative = false;
  bool exponentNegative = false;
  bool nothingSeenYet = true;
  for (std::size_t i = 0; i < length && text[i] != 0; ++i) {
    const char c = text[i];
    switch (c) {
      case '\n':
      case '\r':
      case ' ':
      case '*':
        break;
      case '+':
      case '-':
        if (nothingSeenYet) {
          negative = c == '-';
        } else {
          exponentNegative = c == '-';
          part = RealPart::Exponent;
        }
        break;
      case '.':
        part = RealPart::Fraction;
        break;
      case 'E':
      case 'e':
        part = RealPart::Exponent;
        exponentNegative = false;
        break;
      default:
        nothingSeenYet = false;
        if (part == RealPart::Integer) {
          integer = AppendDigit(integer, c);
        } else if (part == RealPart::Exponent) {
          exponent = AppendDigit(exponent, c);
        } else {
          fraction = fraction * 10.0 + static_cast<signed char>(c) - 48.0;
          ++fractionDigits;
        }
    }
  }
  for (; fractionDigits != 0; --fractionDigits) {
    fraction /= 10.0;
  }
  const double mantissa = fraction + static_cast<double>(static_cast<std::int32_t>(integer));
  const double value = ScaleByTen(mantissa, static_cast<std::int32_t>(exponent), exponentNegative);
  return negative ? -value : value;
}

double ParseReal(const char* text) { return ParseReal(text, std::strlen(text)); }

void ReadRealField(std::int32_t width, CardCursor* cursor, double* out) {
  if (**cursor == '\n') {
    ++*cursor;
  }
  const std::int32_t length = FieldLength(*cursor, width);
  *out = ParseReal(*cursor, static_cast<std::size_t>(length));
  *cursor += length;
}

void ReadRealToken(std::int32_t width, CardCursor* cursor, double* out, bool skipBlanks) {
  char* field = *cursor;
  std::size_t length = strnlen(field, static_cast<std::size_t>(width));
  if (skipBlanks) {
    while (*field == ' ') {
      ++field;
    }
    length = 0;
    while (length < static_cast<std::size_t>(width) && field[length] != ' ' && field[length] != '\n' && field[length] != 0) {
      ++length;
    }
  }
  *out = ParseReal(field, length);
  *cursor = field + length;
}

void SkipPlusAndBlanks(CardCursor* cursor) {
  while (**cursor == '+' || IsSpace(**cursor)) {
    ++*cursor;
  }
}

std::int32_t ReadCommaField(CardCursor* cursor, char* dest, std::size_t capacity) {
  char* at = *cursor;
  while (IsSpace(*at)) {
    ++at;
  }
  const char first = *at;
  SkipPlusAndBlanks(&at);
  std::size_t length = 0;
  const auto put = [&](char c) {
    if (length + 1 < capacity) {
      dest[length] = length == 0 ? first : c;
      ++length;
    }
  };
  while (*at != ',' && *at != '\n' && *at != 0) {
    put(*at++);
  }
  if (*at == '\n') {
    put(*at);
  }
  dest[length] = 0;
  if (*at == 0) {
    return -1;
  }
  const bool comma = *at++ == ',';
  if (comma) {
    *cursor = *at == '\n' ? at + 1 : at;
    return 0;
  }
  while (IsSpace(*at)) {
    ++at;
  }
  *cursor = at;
  return 1;
}

}  // namespace btz
