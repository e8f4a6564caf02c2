// Field primitives: readers take a card apart through these, straight in the chunk's text, with no allocation and no copy of the card. A
// field is `width` columns (8 or 16) from the cursor; the text ends at its NUL, and no primitive moves or writes behind it. Carriage returns
// are part of the text. None of them reports a bad number: an integer without digits is 0, and ParseReal makes a number of any text.
#pragma once

#include <cstdint>
#include <cstring>

#include "deck/deck_buffer.h"
#include "support/text.h"

namespace btz {

/// Room for a peeked field of 16 columns and its NUL.
using FieldText = char[24];

/// Bytes before the first line feed or NUL, at most `width`.
inline std::int32_t FieldLength(const char* text, std::int32_t width) {
  std::int32_t length = 0;
  while (length < width && text[length] != '\n' && text[length] != 0) {
    ++length;
  }
  return length;
}

/// Copies the next `width` bytes, stopping early only at a NUL: text of the following line can come into `dest`, and this is how a reader
/// sees the next line's marker or keyword before it moves. The cursor does not move.
inline void PeekField(std::int32_t width, const char* cursor, char* dest) {
  std::int32_t length = 0;
  for (; length < width && cursor[length] != 0; ++length) {
    dest[length] = cursor[length];
  }
  dest[length] = 0;
}

/// Moves the cursor ahead by `count` bytes, but not behind the text's NUL.
inline void Advance(CardCursor* cursor, std::size_t count) { *cursor += strnlen(*cursor, count); }

/// Removes leading white space by moving the rest down. Null is passed through.
char* TrimLeft(char* text);

/// Overwrites trailing white space with NUL. Null is passed through.
char* TrimRight(char* text);

/// TrimLeft, then TrimRight.
char* TrimField(char* text);

/// Trims, then copies every other character down over the text; null when nothing is left (the text is empty then). No terminator is written
/// at the new end, so a text with blanks inside keeps characters at its end twice: `1 2` becomes `122`.
/// Required: the tests on a field work on what this leaves.
char* CompactField(char* text);

/// Whether the text at the cursor begins with `keyword`.
inline bool BeginsWithKeyword(const char* cursor, const char* keyword) { return std::strncmp(cursor, keyword, std::strlen(keyword)) == 0; }

/// Columns of a field: 16 when the text at the cursor begins with `largeKeyword` ("CHEXA*"), else 8.
inline std::int32_t FieldWidthFor(const char* cursor, const char* largeKeyword) { return BeginsWithKeyword(cursor, largeKeyword) ? 16 : 8; }

/// Takes the keyword field: its compacted text goes to `keyword`, the cursor moves over its 8 columns.
inline void TakeKeyword(CardCursor* cursor, FieldText& keyword) {
  PeekField(8, *cursor, keyword);
  CompactField(keyword);
  Advance(cursor, 8);
}

/// Reads an integer from the field and moves to its end, or to the line feed of a short line.
inline void ReadIntField(std::int32_t width, CardCursor* cursor, std::int32_t* out) {
  const std::int32_t length = FieldLength(*cursor, width);
  *out = ParseInteger(*cursor, static_cast<std::size_t>(length));
  *cursor += length;
}

/// Reads an identifier at the head of a card: true when `out` was written.
///
/// Required: a field whose second byte is the line feed counts as empty (a lone carriage return of a CRLF line end, but also a genuine digit):
/// its first byte is overwritten, the cursor stays and `out` is not written. Without `skipBlanks`, a line feed inside the field is replaced
/// for good by the byte that stood `width` columns behind the field's start, so the line end is gone from the text.
bool ReadIdField(std::int32_t width, CardCursor* cursor, std::int32_t* out, bool skipBlanks);

/// A real in any of the deck's forms (`1.5`, `1.5E+3`, `1.5+3`, `-.5-2`) from `length` bytes; a NUL among them ends it. No validity checks:
/// any other character counts as a digit of value (code - 48). Rounding is that of one division or multiplication by ten per step.
double ParseReal(const char* text, std::size_t length);

/// The same up to the NUL.
double ParseReal(const char* text);

/// Reads a real from the field, behind one line feed if the cursor stands on it, and moves to the field's end or the line's.
void ReadRealField(std::int32_t width, CardCursor* cursor, double* out);

/// Reads a real without a step over a line feed. With `skipBlanks` it is the token behind the blanks, up to the next blank or line feed, and
/// the cursor ends behind the token instead of the field.
void ReadRealToken(std::int32_t width, CardCursor* cursor, double* out, bool skipBlanks);

/// Advances over plus signs and white space, line feeds included.
void SkipPlusAndBlanks(CardCursor* cursor);

/// Reads one free-format field that may stand on a continuation line: 0 when a comma ended it, 1 when a line feed did (which then stays at
/// the end of `dest`), -1 when the text ended: the cursor has not moved then, and `dest` has what there was. Longer fields are cut.
/// Required: a field that begins with a plus sign keeps the plus and loses its first real character.
std::int32_t ReadCommaField(CardCursor* cursor, char* dest, std::size_t capacity);

/// Occurrence of `pattern` in `text` in any case mix, or null.
inline const char* FindNoCase(const char* text, const char* pattern) { return FindSubstringNoCase(text, pattern); }

}  // namespace btz
