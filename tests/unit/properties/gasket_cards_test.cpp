// PGASK cards as they are captured.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "properties/property_cards_fixture.h"

namespace btz {
namespace {

using test::GasketCards;
using test::Large;
using test::Small;

const std::string nextCard = Small("GRID|1||0.5|1.5|2.5");

/// The four integers, and the four values with a `~` before each one that is not present.
std::string Show(const PgaskRecord& record) {
  std::ostringstream text;
  text << record.propertyId << ' ' << record.materialId << ' ' << record.membraneMaterialId << ' ' << record.reservedId << " :";
  const auto add = [&](double value, std::uint8_t present) { text << (present == 1 ? " " : present == 0 ? " ~" : " ?") << value; };
  add(record.thickness, record.thicknessPresent);
  add(record.gap, record.gapPresent);
  add(record.voidValue, record.voidPresent);
  add(record.leakagePressure, record.leakagePressurePresent);
  text << (record.stabilizationOn == 0 ? "" : " on");
  return text.str();
}

TEST_F(GasketCards, FourIntegersAndFourValues) {
  EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8|0.1|0.2|0.3|0.4") + nextCard)), "5 6 7 8 : 0.1 0.2 0.3 0.4");
  EXPECT_EQ(rest, "\n" + nextCard);
}

// Required: the walk takes four values, so the one that would switch stabilization on is never read.
TEST_F(GasketCards, AFifthValueIsNotRead) {
  EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8|0.1|0.2|0.3|0.4", "") + Small("1.0"))), "5 6 7 8 : 0.1 0.2 0.3 0.4");
  EXPECT_EQ(rest, Small("1.0"));
  EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8|0.1|0.2|0.3|0.4") + Small("+|1.0"))), "5 6 7 8 : 0.1 0.2 0.3 0.4");
  EXPECT_EQ(rest, "\n" + Small("+|1.0"));
}

TEST_F(GasketCards, LargeFieldsWithValuesOnTheSecondLine) {
  EXPECT_EQ(Show(Read(Large("PGASK*|5|6|7|8") + Large("*|0.1|0.2|0.3|0.4") + nextCard)), "5 6 7 8 : 0.1 0.2 0.3 0.4");
  EXPECT_EQ(rest, "\n" + nextCard);
}

TEST_F(GasketCards, BlankFieldsAreNotPresent) {
  EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8||||") + nextCard)), "5 6 7 8 : ~0 ~0 ~0 ~0");
  EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8||0.2||0.4") + nextCard)), "5 6 7 8 : ~0 0.2 ~0 0.4");
  EXPECT_EQ(Show(Read(Small("PGASK||||||||") + nextCard)), "0 0 0 0 : ~0 ~0 ~0 ~0");
}

TEST_F(GasketCards, ZeroIsPresent) { EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8|0.0|0|.0|-.0"))), "5 6 7 8 : 0 0 0 -0"); }

// Required: what the card does not reach counts as present.
TEST_F(GasketCards, ValuesBehindTheCardsEndArePresentAndZero) {
  for (const std::string& next : {nextCard, Small("FORCE|7|8"), std::string("$ note\n"), Small("GRID*|1")}) {
    EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8") + next)), "5 6 7 8 : 0 0 0 0") << next;
    EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8|0.1||") + next)), "5 6 7 8 : 0.1 ~0 ~0 0") << next;
    EXPECT_EQ(rest, "\n" + next);
  }
}

TEST_F(GasketCards, AShortLineEndsTheIntegers) {
  EXPECT_EQ(Show(Read("PGASK   5       6\n" + nextCard)), "5 6 0 0 : 0 0 0 0");
  EXPECT_EQ(Show(Read("PGASK   5       6\n" + Small("+|0.1|0.2") + nextCard)), "5 6 0 0 : 0.1 0.2 0 0");
}

TEST_F(GasketCards, AtTheTextsEndTheValuesLeftAreBlank) {
  const std::string card = Small("PGASK|5|6|7|8|0.1|0.2|0.3|0.4", "");
  const char* const expected[] = {"0 0 0 0 : ~0 ~0 ~0 ~0",   "5 0 0 0 : ~0 ~0 ~0 ~0",    "5 6 0 0 : ~0 ~0 ~0 ~0",
                                  "5 6 7 0 : ~0 ~0 ~0 ~0",   "5 6 7 8 : ~0 ~0 ~0 ~0",    "5 6 7 8 : 0.1 ~0 ~0 ~0",
                                  "5 6 7 8 : 0.1 0.2 ~0 ~0", "5 6 7 8 : 0.1 0.2 0.3 ~0", "5 6 7 8 : 0.1 0.2 0.3 0.4"};
  for (std::size_t fields = 0; fields < std::size(expected); ++fields) {
    EXPECT_EQ(Show(Read(card.substr(0, 8 * (fields + 1)))), expected[fields]);
    EXPECT_EQ(rest, "");
  }
  EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8"))), expected[4]) << "with its line end too";
}

TEST_F(GasketCards, CarriageReturns) {
  EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8|0.1|0.2|0.3|0.4", "\r\n"))), "5 6 7 8 : 0.1 0.2 0.3 0.4");
  EXPECT_EQ(Show(Read(Small("PGASK|5|6|7|8|0.1|0.2", "\r\n") + nextCard)), "5 6 7 8 : 0.1 0.2 0 0");
  EXPECT_EQ(Show(Read("PGASK   5       6       7       8\r\n" + nextCard)), "5 6 7 8 : 0 0 0 0");
}

TEST_F(GasketCards, NamesFromTheCommentAbove) {
  EXPECT_STREQ(Read(Small("PGASK|5|6"), "$Seal\n").name, "Seal");
  EXPECT_STREQ(Read(Small("PGASK|6|6"), "$ Property: Seal 6\n").name, "Seal 6");
  EXPECT_STREQ(Read(Small("PGASK|7|6"), "$ Seal\n").name, "");
  EXPECT_EQ(Name(PropertyNameTable, 5), "Seal");
  EXPECT_EQ(CountNames(), 1);
}

TEST_F(GasketCards, TheSecondHalfOfTheNameStaysEmpty) {
  const PgaskRecord& record = Read(Small("PGASK|5|6"), "$:" + std::string(600, 'n') + "\n");
  for (std::size_t i = nameCapacity - 1; i < sizeof(record.name); ++i) {
    ASSERT_EQ(record.name[i], 0) << i;
  }
}

}  // namespace
}  // namespace btz
