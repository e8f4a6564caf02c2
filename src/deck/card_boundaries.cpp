#include "deck/card_boundaries.h"

namespace btz {

namespace {

bool BeginsWith(const char* text, const char* keyword) { return std::strncmp(text, keyword, std::strlen(keyword)) == 0; }

template <std::size_t count>
bool BeginsWithAny(const char* text, const char* const (&keywords)[count]) {
  for (const char* keyword : keywords) {
    if (BeginsWith(text, keyword)) {
      return true;
    }
  }
  return false;
}

// The keywords that end a card, by first letter. Longer ones that begin with another of the list (SPC1, FREQ1, PBUSHT, PLOTEL3, the star
// forms) are covered by it.
constexpr const char* keywordsB[] = {"BEGIN"};
constexpr const char* keywordsC[] = {"CTETRA", "CTRIA3", "CTRIA6", "CHEXA",   "CQUAD4",  "CQUAD8", "CPENTA", "CBAR",
                                     "CORD2R", "CORD2C", "CBEAM",  "CGAP",    "CBUSH",   "CELAS",  "CQUADR", "CPYRA",
                                     "CORD1C", "CGASK6", "CGASK8", "CGASK12", "CGASK16", "CORD1R"};
constexpr const char* keywordsD[] = {"DLOAD", "DAREA"};
constexpr const char* keywordsE[] = {"ELIST", "EIGRL"};
constexpr const char* keywordsF[] = {"FREQ"};
constexpr const char* keywordsG[] = {"GRID"};
constexpr const char* keywordsL[] = {"LOAD"};
constexpr const char* keywordsM[] = {"MPC", "MGASK", "MAT1", "MAT4", "MFLUID"};
constexpr const char* keywordsP[] = {"PBAR", "PBEAM", "PGAP", "PBUSH", "PSOLID", "PSHELL", "PELAS", "PLOTEL", "PGASK"};
constexpr const char* keywordsR[] = {"RBE2", "RBE3", "RLOAD1", "RLOAD2"};
constexpr const char* keywordsS[] = {"SPC", "SET", "SURF"};
constexpr const char* keywordsT[] = {"TABDMP1", "TABLED1", "TABLES1"};

bool IsZero(const char* text, NumericTest test) {
  return test == NumericTest::Integer ? ParseInteger(text) == 0 : ParseDecimal(text) == 0.0;
}

}  // namespace

std::int32_t SkipField(CardCursor* cursor, std::int32_t width) {
  char* at = *cursor;
  if (*at == 0) {
    return 1;
  }
  for (std::int32_t i = 0; i < width && *at != 0; ++i) {
    if (*at++ == '\n') {
      break;
    }
  }
  if (*at == '\n') {
    ++at;
  }
  *cursor = at;
  return 0;
}

bool LooksLikeText(const char* text) {
  if (text == nullptr) {
    return false;
  }
  for (; *text != 0; ++text) {
    const bool exponent = (*text == 'E' || *text == 'e') && (text[1] == '+' || text[1] == '-');
    if (!exponent && (IsAlpha(*text) || *text == '$')) {
      return true;
    }
  }
  return false;
}

bool IsContinuationMark(const char* text) {
  if (text == nullptr) {
    return false;
  }
  for (; *text != 0 && !IsAlpha(*text); ++text) {
    if (*text == '+') {
      return true;
    }
  }
  return false;
}

bool HasStar(const char* text) { return text != nullptr && std::strchr(text, '*') != nullptr; }

bool IsCardKeyword(const char* text) {
  if (text == nullptr) {
    return false;
  }
  switch (*text) {
    case 'B':
      return BeginsWithAny(text, keywordsB);
    case 'C':
      return BeginsWithAny(text, keywordsC);
    case 'D':
      return BeginsWithAny(text, keywordsD);
    case 'E':
      return BeginsWithAny(text, keywordsE);
    case 'F':
      return BeginsWithAny(text, keywordsF);
    case 'G':
      return BeginsWithAny(text, keywordsG);
    case 'L':
      return BeginsWithAny(text, keywordsL);
    case 'M':
      return BeginsWithAny(text, keywordsM);
    case 'P':
      return BeginsWithAny(text, keywordsP);
    case 'R':
      return BeginsWithAny(text, keywordsR);
    case 'S':
      return BeginsWithAny(text, keywordsS);
    case 'T':
      return BeginsWithAny(text, keywordsT);
    default:
      return false;
  }
}

FieldKind ClassifyOddField(const char* cursor, const FieldWalk& walk) {
  FieldText field;
  PeekField(walk.width, cursor, field);
  const char* text = CompactField(field);
  if (text == nullptr) {
    return FieldKind::Blank;
  }
  if (IsContinuationMark(text)) {
    return FieldKind::ContinuationMark;
  }
  const bool star = HasStar(text);
  if (!star && !LooksLikeText(text)) {
    return FieldKind::Value;
  }
  const bool zero = IsZero(text, walk.numeric);
  if (star && zero) {
    return IsCardKeyword(text) ? FieldKind::CardEnd : FieldKind::StarMarker;
  }
  if (!zero || !LooksLikeText(text)) {
    return FieldKind::Value;
  }
  return walk.stop == StopTest::AnyText || IsCardKeyword(text) ? FieldKind::CardEnd : FieldKind::Value;
}

}  // namespace btz
