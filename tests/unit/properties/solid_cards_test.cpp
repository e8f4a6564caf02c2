// PSOLID cards as they are captured.
#include <gtest/gtest.h>

#include <string>

#include "properties/property_cards_fixture.h"

namespace btz {
namespace {

using test::Large;
using test::Small;
using test::SolidCards;

std::string Show(const PsolidRecord& record) {
  return std::to_string(record.propertyId) + ' ' + std::to_string(record.materialId) + ' ' + std::to_string(record.coordinateSystemId);
}

TEST_F(SolidCards, ThreeIntegersAndNothingElse) {
  EXPECT_EQ(Show(Read(Small("PSOLID|11|21|31|0|GRID|1"))), "11 21 31");
  EXPECT_EQ(rest, Small("0|GRID|1")) << "IN, STRESS and ISOP are left to whoever comes next";
  EXPECT_EQ(Show(Read(Small("PSOLID|11|21|"))), "11 21 0");
}

TEST_F(SolidCards, LargeFields) {
  const std::string further = Large("*|0");
  EXPECT_EQ(Show(Read(Large("PSOLID*|11|21|31|0") + further)), "11 21 31");
  EXPECT_EQ(rest, "0               \n" + further);
}

TEST_F(SolidCards, AShortLineEndsTheIntegersAndTheCursorStaysOnItsEnd) {
  EXPECT_EQ(Show(Read("PSOLID  11      21\n" + Small("+|99"))), "11 21 0");
  EXPECT_EQ(rest, "\n" + Small("+|99"));
  EXPECT_EQ(Show(Read("PSOLID  11\n" + Small("GRID|99"))), "11 0 0");
  EXPECT_EQ(Show(Read("PSOLID  11      21\r\nGRID\r\n")), "11 21 0");
  EXPECT_EQ(rest, "\nGRID\r\n");
  EXPECT_EQ(Show(Read(Large("PSOLID*|11") + Large("*|22|33"))), "11 0 0");
}

TEST_F(SolidCards, TheTextMayEndAtAnyField) {
  const std::string card = Small("PSOLID|11|21|31", "");
  const char* const expected[] = {"0 0 0", "11 0 0", "11 21 0", "11 21 31"};
  for (std::size_t fields = 0; fields < std::size(expected); ++fields) {
    EXPECT_EQ(Show(Read(card.substr(0, 8 * (fields + 1)))), expected[fields]);
    EXPECT_EQ(rest, "");
  }
  EXPECT_EQ(Show(Read("PSOLID")), "0 0 0");
  EXPECT_EQ(Show(Read("PSOLID  1")), "1 0 0");
}

TEST_F(SolidCards, FieldsWithoutDigitsAreZero) { EXPECT_EQ(Show(Read(Small("PSOLID|7|STEEL|BASIC"))), "7 0 0"); }

TEST_F(SolidCards, NamesFromTheCommentAbove) {
  EXPECT_STREQ(Read(Small("PSOLID|7|1"), "$Block\n").name, "Block");
  EXPECT_STREQ(Read(Small("PSOLID|8|1"), "$ Property: Block 8\n").name, "Block 8");
  EXPECT_STREQ(Read(Small("PSOLID|9|1"), "$ Block\n").name, "");
  EXPECT_STREQ(Read(Small("PSOLID|7|1"), "$Other block\n").name, "Other block");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Block") << "the first bare name stays";
  EXPECT_EQ(CountNames(), 1) << "a name behind a colon names no part";
}

TEST_F(SolidCards, CardsOfOneIdAreKept) {
  Read(Small("PSOLID|7|1"));
  Read(Small("PSOLID|7|2"));
  const IndexedCell* first = IndexedListFind(&list, 7);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(Show(*static_cast<const PsolidRecord*>(first->record)), "7 1 0");
  ASSERT_NE(first->nextOfId, nullptr);
  EXPECT_EQ(Show(*static_cast<const PsolidRecord*>(first->nextOfId->record)), "7 2 0");
}

}  // namespace
}  // namespace btz
