// The field walk on random text, compared with its tests taken one after the other without any short cut: fields of random bytes for the
// quick look at plain numbers, and whole cards with lines, marks, stars and keywords for the walk.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "deck/card_boundaries.h"
#include "deck/deck_text.h"
#include "deck/plain_fields.h"
#include "deck/random_lines.h"

namespace btz {
namespace {

using test::DeckText;
using test::PlainDecimal;
using test::PlainField;
using test::PlainInteger;
using test::PlainMark;
using test::PlainSkip;
using test::PlainText;

bool PlainZero(const std::string& text, NumericTest test) {
  if (test == NumericTest::Integer) {
    return static_cast<std::uint32_t>(std::strtoll(text.c_str(), nullptr, 10)) == 0;
  }
  return PlainDecimal(text) == 0.0;
}

FieldKind PlainKind(const std::string& content, std::size_t place, const FieldWalk& walk) {
  const std::string text = PlainField(content, place, static_cast<std::size_t>(walk.width));
  if (PlainMark(text)) {
    return FieldKind::ContinuationMark;
  }
  if (text.empty()) {
    return FieldKind::Blank;
  }
  const bool zero = PlainZero(text, walk.numeric);
  if (text.find('*') != std::string::npos && zero) {
    return IsCardKeyword(text.c_str()) ? FieldKind::CardEnd : FieldKind::StarMarker;
  }
  if (PlainText(text) && zero && (walk.stop == StopTest::AnyText || IsCardKeyword(text.c_str()))) {
    return FieldKind::CardEnd;
  }
  return FieldKind::Value;
}

constexpr FieldWalk walks[] = {{8, StopTest::AnyText, NumericTest::Integer},  {8, StopTest::Keyword, NumericTest::Integer},
                               {8, StopTest::AnyText, NumericTest::Decimal},  {8, StopTest::Keyword, NumericTest::Decimal},
                               {16, StopTest::AnyText, NumericTest::Integer}, {16, StopTest::Keyword, NumericTest::Integer},
                               {16, StopTest::AnyText, NumericTest::Decimal}, {16, StopTest::Keyword, NumericTest::Decimal}};

void ExpectTheSameKind(const std::string& content) {
  DeckText text(content);
  for (const FieldWalk& walk : walks) {
    ASSERT_EQ(ClassifyField(text.cursor, walk), PlainKind(content, 0, walk)) << "\"" << content << "\" width " << walk.width;
  }
}

TEST(FieldKindRandom, FieldsOfNumbersSignsAndBlanks) {
  std::mt19937 random(61);
  const std::string alphabet = "0123456789.-        ";
  const std::string odd = "+*Ee$\n\r\tDG";
  for (int i = 0; i < 100000; ++i) {
    std::string content;
    for (int length = 0; length < 20; ++length) {
      content += random() % 20 == 0 ? odd[random() % odd.size()] : alphabet[random() % alphabet.size()];
    }
    ExpectTheSameKind(content);
  }
}

TEST(FieldKindRandom, FieldsOfAnyBytes) {
  std::mt19937 random(62);
  for (int i = 0; i < 100000; ++i) {
    std::string content;
    for (std::uint32_t length = random() % 20; length > 0; --length) {
      content += static_cast<char>(random() % 256);
    }
    ExpectTheSameKind(content.substr(0, content.find('\0')));
  }
}

TEST(FieldKindRandom, FieldsWithKeywordsBlanksAndStars) {
  std::mt19937 random(63);
  const char* const words[] = {"GRID", "SPC1", "FORCE", "CBAR", "LOAD", "E+3", "1.5", "0", "THRU", "MAT1", "A", "0.5E5", "$"};
  for (int i = 0; i < 100000; ++i) {
    std::string content;
    while (content.size() < 17) {
      content += words[random() % std::size(words)];
      content.append(random() % 6, ' ');
      content += random() % 5 == 0 ? "*" : "";
      content += random() % 5 == 0 ? "\n" : "";
    }
    ExpectTheSameKind(content);
  }
}

/// The walk's steps as they are told, on a place in a text.
class PlainWalk {
 public:
  PlainWalk(const std::string& deck, std::size_t start) : content(deck), place(start) {}

  std::int32_t Walk(std::vector<std::int32_t>* values, const FieldWalk& walk) {
    std::size_t slot = 0;
    while (slot < values->size()) {
      switch (PlainKind(content, place, walk)) {
        case FieldKind::ContinuationMark:
          Skip(walk.width);
          break;
        case FieldKind::Blank:
          if (Skip(walk.width) == 1) {
            return static_cast<std::int32_t>(slot);
          }
          break;
        case FieldKind::StarMarker:
          Skip(8);
          break;
        case FieldKind::CardEnd:
          return static_cast<std::int32_t>(slot);
        case FieldKind::Value:
          ReadInteger(walk.width, &(*values)[slot++]);
      }
    }
    return static_cast<std::int32_t>(slot);
  }

  std::size_t Place() const { return place; }

 private:
  int Skip(std::int32_t width) { return PlainSkip(content, &place, width); }

  void ReadInteger(std::int32_t width, std::int32_t* value) { *value = PlainInteger(content, &place, width); }

  const std::string& content;
  std::size_t place;
};

/// A few lines: a card in columns with continuation lines, cut short here and there, and what stands behind it.
std::string RandomLines(std::mt19937& random) {
  const char* const heads[] = {"+       ", "+A1     ", "        ", "*       ", "*B2     ", "GRID    ",
                               "FORCE   ", "CHEXA   ", "GRID*   ", "$ note  ", "FORCE*  ", "1       "};
  const char* const fields[] = {"       1", "12      ", "        ", "     0.5",         "   1.5+3", "  1.E+04", "    THRU",
                                "+A1     ", "-4      ", "       0", "1234567812345678", "  $    *", "  a b c "};
  return test::JoinRandomLines(random, heads, fields);
}

TEST(FieldWalkRandom, FillsTheSameSlotsAndStopsAtTheSamePlace) {
  std::mt19937 random(64);
  for (int i = 0; i < 60000; ++i) {
    const std::string content = RandomLines(random);
    const std::size_t start = content.empty() || random() % 4 != 0 ? 0 : random() % content.size();
    const FieldWalk& walk = walks[random() % std::size(walks)];
    const std::size_t slots = 1 + random() % 20;

    std::vector<std::int32_t> expected(slots, -9);
    PlainWalk plain(content, start);
    const std::int32_t filled = plain.Walk(&expected, walk);

    std::vector<std::int32_t> values(slots, -9);
    DeckText text(content, start);
    const std::int32_t result = WalkFields(&text.cursor, static_cast<std::int32_t>(slots), walk, [&](std::int32_t slot) {
      ReadIntField(walk.width, &text.cursor, &values[static_cast<std::size_t>(slot)]);
    });
    ASSERT_EQ(result, filled) << content;
    ASSERT_EQ(values, expected) << content;
    ASSERT_EQ(text.Place(), plain.Place()) << content;
    ASSERT_EQ(text.Bytes(), content);
  }
}

}  // namespace
}  // namespace btz
