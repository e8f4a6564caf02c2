// Taking whole lines and single delimited tokens off the text.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "deck/deck_buffer.h"
#include "deck/deck_text.h"

namespace btz {
namespace {

using test::DeckText;

TEST(ReadDeckLine, CopiesALineWithoutItsLineFeedAndStepsBehindIt) {
  DeckText text("GRID,1\nGRID,2\n");
  char line[deckLineCapacity];
  EXPECT_EQ(ReadDeckLine(&text.cursor, line, sizeof(line)), 0);
  EXPECT_STREQ(line, "GRID,1");
  EXPECT_EQ(text.Place(), 7u);
  EXPECT_EQ(ReadDeckLine(&text.cursor, line, sizeof(line)), 0);
  EXPECT_STREQ(line, "GRID,2");
  EXPECT_EQ(text.Place(), 14u);
}

TEST(ReadDeckLine, LeavesTheCursorOnALineThatEndsAtTheNul) {
  DeckText text("ENDDATA");
  char line[deckLineCapacity];
  EXPECT_EQ(ReadDeckLine(&text.cursor, line, sizeof(line)), -1);
  EXPECT_STREQ(line, "ENDDATA");
  EXPECT_EQ(text.Place(), 0u);
}

TEST(ReadDeckLine, GivesAnEmptyLineAtTheNul) {
  DeckText text("");
  char line[deckLineCapacity] = "old";
  EXPECT_EQ(ReadDeckLine(&text.cursor, line, sizeof(line)), -1);
  EXPECT_STREQ(line, "");
  EXPECT_EQ(text.Place(), 0u);
}

TEST(ReadDeckLine, CopiesAnEmptyLine) {
  DeckText text("\nA");
  char line[deckLineCapacity] = "old";
  EXPECT_EQ(ReadDeckLine(&text.cursor, line, sizeof(line)), 0);
  EXPECT_STREQ(line, "");
  EXPECT_EQ(text.Place(), 1u);
}

TEST(ReadDeckLine, KeepsCarriageReturns) {
  DeckText text("A\rB\r\nC");
  char line[deckLineCapacity];
  EXPECT_EQ(ReadDeckLine(&text.cursor, line, sizeof(line)), 0);
  EXPECT_STREQ(line, "A\rB\r");
}

TEST(ReadDeckLine, DoesNothingForNull) {
  char line[deckLineCapacity] = "old";
  CardCursor nothing = nullptr;
  EXPECT_EQ(ReadDeckLine(&nothing, line, sizeof(line)), 0);
  EXPECT_STREQ(line, "old");
  DeckText text("A\nB");
  EXPECT_EQ(ReadDeckLine(&text.cursor, nullptr, 0), 0);
  EXPECT_EQ(text.Place(), 0u);
}

TEST(ReadDeckLine, CutsALongLineAndStillStepsBehindIt) {
  const std::string longLine = std::string(1000, 'x') + "\n";
  DeckText text(longLine + "GRID");
  char line[8 + 1] = "########";
  EXPECT_EQ(ReadDeckLine(&text.cursor, line, 8), 0);
  EXPECT_STREQ(line, "xxxxxxx");
  EXPECT_EQ(text.Place(), 1001u);
  char whole[256];
  DeckText other(std::string(255, 'y') + "\n");
  EXPECT_EQ(ReadDeckLine(&other.cursor, whole, sizeof(whole)), 0);
  EXPECT_EQ(std::strlen(whole), 255u);
}

TEST(ReadDeckLine, CutsALongLineAtTheNulWithoutMoving) {
  DeckText text(std::string(1000, 'x'));
  char line[16];
  EXPECT_EQ(ReadDeckLine(&text.cursor, line, sizeof(line)), -1);
  EXPECT_EQ(std::strlen(line), 15u);
  EXPECT_EQ(text.Place(), 0u);
}

std::string Token(const std::string& line, std::int32_t index, bool splitAtBlank = true) {
  char token[deckLineCapacity];
  std::memset(token, '#', sizeof(token));
  GetFreeToken(line.c_str(), index, token, sizeof(token), splitAtBlank);
  return token;
}

TEST(GetFreeToken, CountsFromZero) {
  EXPECT_EQ(Token("GRID,1,2", 0), "GRID");
  EXPECT_EQ(Token("GRID,1,2", 1), "1");
  EXPECT_EQ(Token("GRID,1,2", 2), "2");
}

TEST(GetFreeToken, DoesNotSeeAnEmptyField) {
  EXPECT_EQ(Token("A,,B", 1), "B");
  EXPECT_EQ(Token("A,,B", 2), "");
  EXPECT_EQ(Token(",,,A", 0), "A");
  EXPECT_EQ(Token("A, , ,B", 1), "B");
}

TEST(GetFreeToken, GivesAnEmptyTextBehindTheLastToken) {
  EXPECT_EQ(Token("A,B", 2), "");
  EXPECT_EQ(Token("A,B", 99), "");
  EXPECT_EQ(Token("", 0), "");
  EXPECT_EQ(Token(", ,", 0), "");
  EXPECT_EQ(Token("A", -1), "");
}

TEST(GetFreeToken, SplitsAtEachOfItsDelimiters) {
  for (const char delimiter : {',', '=', '\t', '\v', '\a', '\b', '\n', ' '}) {
    const std::string line = std::string("ab") + delimiter + "cd" + delimiter + delimiter + "ef";
    EXPECT_EQ(Token(line, 0), "ab") << static_cast<int>(delimiter);
    EXPECT_EQ(Token(line, 1), "cd") << static_cast<int>(delimiter);
    EXPECT_EQ(Token(line, 2), "ef") << static_cast<int>(delimiter);
  }
}

TEST(GetFreeToken, SplitsAtNothingElse) {
  const std::string delimiters = ",=\t\v\a\b\n ";
  for (int code = 1; code < 256; ++code) {
    const char c = static_cast<char>(code);
    if (delimiters.find(c) != std::string::npos) {
      continue;
    }
    const std::string line = std::string("ab") + c + "cd,e";
    EXPECT_EQ(Token(line, 0), std::string("ab") + c + "cd") << code;
    EXPECT_EQ(Token(line, 1), "e") << code;
  }
}

TEST(GetFreeToken, KeepsBlanksInATokenWhenToldSo) {
  EXPECT_EQ(Token("SET 1 = 5, 6", 0, false), "SET 1 ");
  EXPECT_EQ(Token("SET 1 = 5, 6", 1, false), " 5");
  EXPECT_EQ(Token("SET 1 = 5, 6", 2, false), " 6");
}

TEST(GetFreeToken, LastTokenOfACrlfLineCarriesTheCarriageReturn) {
  EXPECT_EQ(Token("GRID,1,2\r\n", 2), "2\r");
  EXPECT_EQ(Token("GRID,1,\r\n", 2), "\r");
}

TEST(GetFreeToken, ZeroesTheFirstEightBytesOfTheDestination) {
  char token[16];
  std::memset(token, '#', sizeof(token));
  GetFreeToken("A,BC", 5, token, sizeof(token), true);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(token[i], 0);
  }
  EXPECT_EQ(token[8], '#');
  std::memset(token, '#', sizeof(token));
  GetFreeToken("A,BC", 1, token, sizeof(token), true);
  EXPECT_EQ(std::string(token, 8), std::string("BC\0\0\0\0\0\0", 8));
  EXPECT_EQ(token[8], '#');
}

TEST(GetFreeToken, DoesNothingForNull) {
  char token[16] = "old";
  GetFreeToken(nullptr, 0, token, sizeof(token), true);
  EXPECT_STREQ(token, "old");
  GetFreeToken("A", 0, nullptr, 0, true);
}

TEST(GetFreeToken, LeavesTheLineAlone) {
  const char line[] = "A,B=C D";
  char token[16];
  GetFreeToken(line, 3, token, sizeof(token), true);
  EXPECT_STREQ(token, "D");
  EXPECT_STREQ(line, "A,B=C D");
}

TEST(GetFreeToken, CutsATokenThatIsLongerThanTheDestination) {
  char token[8 + 1];
  std::memset(token, '#', sizeof(token));
  GetFreeToken("KEY,0123456789", 1, token, 8, true);
  EXPECT_EQ(std::string(token, 7), "0123456");
  EXPECT_EQ(token[7], 0);
  EXPECT_EQ(token[8], '#');
}

TEST(GetFreeToken, ReadsLinesOfAnyLength) {
  const std::string line = std::string(5000, 'x') + ",last";
  EXPECT_EQ(Token(line, 1), "last");
}

TEST(GetFreeInteger, ConvertsTheTokenAndCountsAnAbsentOneAsZero) {
  EXPECT_EQ(GetFreeInteger("MFLUID,7,-3", 1), 7);
  EXPECT_EQ(GetFreeInteger("MFLUID,7,-3", 2), -3);
  EXPECT_EQ(GetFreeInteger("MFLUID,7,-3\r\n", 2), -3);
  EXPECT_EQ(GetFreeInteger("MFLUID,7", 2), 0);
  EXPECT_EQ(GetFreeInteger("MFLUID,ALL", 1), 0);
}

std::vector<std::string> Tokens(std::string line, const char* delimiters) {
  std::vector<std::string> tokens;
  char* rest = line.data();
  for (const char* token = NextToken(&rest, delimiters); token != nullptr; token = NextToken(&rest, delimiters)) {
    tokens.push_back(token);
  }
  EXPECT_EQ(NextToken(&rest, delimiters), nullptr) << "a walk that has ended stays ended";
  return tokens;
}

TEST(NextToken, SkipsRunsOfDelimiters) {
  using Row = std::vector<std::string>;
  EXPECT_EQ(Tokens("$ANSA_NAME;5;PSHELL;", ";\n"), (Row{"$ANSA_NAME", "5", "PSHELL"}));
  EXPECT_EQ(Tokens(";;a;;b;;", ";"), (Row{"a", "b"}));
  EXPECT_EQ(Tokens("", ";"), Row{});
  EXPECT_EQ(Tokens(";;;", ";"), Row{});
  EXPECT_EQ(Tokens("whole", ";"), Row{"whole"});
}

TEST(NextToken, TheDelimitersMayChangeFromTokenToToken) {
  std::string line = "a b\"c d\" e";
  char* rest = line.data();
  EXPECT_STREQ(NextToken(&rest, " "), "a");
  EXPECT_STREQ(NextToken(&rest, "\""), "b");
  EXPECT_STREQ(NextToken(&rest, "\""), "c d");
  EXPECT_STREQ(NextToken(&rest, "\""), " e");
  EXPECT_EQ(NextToken(&rest, "\""), nullptr);
}

TEST(NextToken, SplitsAsTheSystemDoes) {
  std::mt19937 random(3);
  const std::string alphabet = "ab;; \"\t";
  for (int i = 0; i < 5000; ++i) {
    std::string line;
    for (std::uint32_t length = random() % 20; length > 0; --length) {
      line += alphabet[random() % alphabet.size()];
    }
    std::string copy = line;
    std::vector<std::string> expected;
    for (const char* token = std::strtok(copy.data(), "; \""); token != nullptr; token = std::strtok(nullptr, "; \"")) {
      expected.push_back(token);
    }
    ASSERT_EQ(Tokens(line, "; \""), expected) << line;
    for (std::size_t index = 0; index <= expected.size(); ++index) {
      std::string commas = line;
      for (char& c : commas) {
        c = c == ';' || c == '"' ? ',' : (c == '\t' ? 't' : c);
      }
      std::string token = index < expected.size() ? expected[index] : "";
      for (char& c : token) {
        c = c == '\t' ? 't' : c;
      }
      ASSERT_EQ(Token(commas, static_cast<std::int32_t>(index)), token) << commas;
    }
  }
}

}  // namespace
}  // namespace btz
