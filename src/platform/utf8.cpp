#include "platform/utf8.h"

namespace btz {

namespace {

/// Bytes of the character that begins with `lead`, or 0 when no character can.
int CharacterLength(unsigned char lead) {
  if (lead < 0x80) {
    return 1;
  }
  if (lead >= 0xC2 && lead < 0xE0) {
    return 2;
  }
  if (lead >= 0xE0 && lead < 0xF0) {
    return 3;
  }
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// Whether the second byte excludes overlong forms, surrogates and characters above U+10FFFF.
bool IsSecondByteAllowed(unsigned char lead, unsigned char second) {
  switch (lead) {
    case 0xE0:
      return second >= 0xA0;
    case 0xED:
      return second < 0xA0;
    case 0xF0:
      return second >= 0x90;
    case 0xF4:
      return second < 0x90;
    default:
      return true;
  }
}

}  // namespace

std::int32_t CountUtf16Units(const char* text) {
  std::int32_t units = 0;
  const auto* bytes = reinterpret_cast<const unsigned char*>(text);
  while (*bytes != 0) {
    const int length = CharacterLength(*bytes);
    if (length == 0) {
      return -1;
    }
    for (int i = 1; i < length; ++i) {
      if ((bytes[i] & 0xC0) != 0x80 || (i == 1 && !IsSecondByteAllowed(bytes[0], bytes[1]))) {
        return -1;
      }
    }
    units += length == 4 ? 2 : 1;
    bytes += length;
  }
  return units;
}

}  // namespace btz
