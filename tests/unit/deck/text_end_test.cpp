// Nothing of the text layer reads, writes or moves behind the NUL that ends a chunk's text, whatever bytes stand before it.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "deck/card_boundaries.h"
#include "deck/deck_text.h"
#include "deck/fields.h"
#include "deck/name_tables.h"

namespace btz {
namespace {

using test::DeckText;
using Routine = std::function<void(CardCursor*)>;

/// Every routine that moves a cursor, by name.
std::vector<std::pair<const char*, Routine>> Routines() {
  std::vector<std::pair<const char*, Routine>> routines;
  for (const std::int32_t width : {8, 16}) {
    routines.emplace_back("SkipField", [=](CardCursor* cursor) { SkipField(cursor, width); });
    routines.emplace_back("Advance", [=](CardCursor* cursor) { Advance(cursor, static_cast<std::size_t>(width)); });
    routines.emplace_back("PeekField", [=](CardCursor* cursor) {
      FieldText field;
      PeekField(width, *cursor, field);
      CompactField(field);
    });
    routines.emplace_back("ReadIntField", [=](CardCursor* cursor) {
      std::int32_t value;
      ReadIntField(width, cursor, &value);
    });
    routines.emplace_back("ReadRealField", [=](CardCursor* cursor) {
      double value;
      ReadRealField(width, cursor, &value);
    });
    for (const bool skipBlanks : {false, true}) {
      routines.emplace_back("ReadIdField", [=](CardCursor* cursor) {
        std::int32_t value;
        ReadIdField(width, cursor, &value, skipBlanks);
      });
      routines.emplace_back("ReadRealToken", [=](CardCursor* cursor) {
        double value;
        ReadRealToken(width, cursor, &value, skipBlanks);
      });
    }
    for (const StopTest stop : {StopTest::AnyText, StopTest::Keyword}) {
      for (const NumericTest numeric : {NumericTest::Integer, NumericTest::Decimal}) {
        routines.emplace_back("WalkFields of integers", [=](CardCursor* cursor) {
          std::int32_t value;
          WalkFields(cursor, 6, {width, stop, numeric}, [&](std::int32_t) { ReadIntField(width, cursor, &value); });
        });
        routines.emplace_back("WalkFields of reals", [=](CardCursor* cursor) {
          double value;
          WalkFields(cursor, 6, {width, stop, numeric}, [&](std::int32_t) { ReadRealField(width, cursor, &value); });
        });
      }
    }
  }
  routines.emplace_back("SkipPlusAndBlanks", SkipPlusAndBlanks);
  routines.emplace_back("ReadCommaField", [](CardCursor* cursor) {
    char field[16];
    ReadCommaField(cursor, field, sizeof(field));
  });
  routines.emplace_back("ReadDeckLine", [](CardCursor* cursor) {
    char line[16];
    ReadDeckLine(cursor, line, sizeof(line));
  });
  routines.emplace_back("ReadAnsaNameComment", ReadAnsaNameComment);
  routines.emplace_back("ReadHmNameComment", ReadHmNameComment);
  routines.emplace_back("ReadHmSetComment", ReadHmSetComment);
  return routines;
}

class TextEnd : public test::NameTablesTest {
 protected:
  /// Runs every routine on `content` from every place, five times in a row.
  void Try(const std::string& content) {
    for (const auto& [name, routine] : routines) {
      for (std::size_t place = 0; place <= content.size(); ++place) {
        DeckText text(content, place);
        const std::size_t end = place + std::strlen(text.cursor);
        for (int i = 0; i < 5; ++i) {
          routine(&text.cursor);
          ASSERT_LE(text.Place(), end) << name << " from " << place << " in \"" << content << '"';
        }
        ASSERT_GE(text.Place(), place) << name;
        ASSERT_TRUE(text.IsUntouchedBehind()) << name << " from " << place << " in \"" << content << '"';
      }
    }
  }

 private:
  const std::vector<std::pair<const char*, Routine>> routines = Routines();
};

TEST_F(TextEnd, HoldsForShortTextsOfDeckCharacters) {
  std::mt19937 random(71);
  const std::string alphabet = "  00112+*\n\r\t,.-EGX$;\"";
  for (int i = 0; i < 1500; ++i) {
    std::string content;
    for (std::uint32_t length = random() % 20; length > 0; --length) {
      content += alphabet[random() % alphabet.size()];
    }
    Try(content);
  }
}

TEST_F(TextEnd, HoldsForAnyBytesNulsAmongThem) {
  std::mt19937 random(72);
  for (int i = 0; i < 500; ++i) {
    std::string content;
    for (std::uint32_t length = random() % 24; length > 0; --length) {
      content += random() % 8 == 0 ? '\0' : static_cast<char>(random() % 256);
    }
    Try(content);
  }
}

TEST_F(TextEnd, HoldsForPiecesOfComments) {
  for (const char* content :
       {"$ANSA_NAME;5;PSHELL;\n$a", "$HMNAME COMP 7\"a\"", "$HMSET 3 1 \"b\"", "$ANSA_NAME", "$HMNAME MAT\t", "$HMSET\n"}) {
    Try(content);
  }
}

}  // namespace
}  // namespace btz
