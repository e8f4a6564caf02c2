// Property cards read from a text of their own, with zero bytes in front as before a deck's block and marked bytes behind.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "deck/columns.h"
#include "deck/name_tables.h"
#include "properties/property_cards.h"
#include "support/block_pool.h"

namespace btz::test {

/// The text around one card.
class PropertyCardText {
 public:
  PropertyCardText(std::string_view above, std::string_view card) {
    memory = std::string(8, '\0');
    memory += above;
    start = memory.size();
    memory += card;
    memory += '\0';
    memory.append(40, '7');
    before = memory;
    cursor = memory.data() + start;
  }

  PropertyCardText(const PropertyCardText&) = delete;
  PropertyCardText& operator=(const PropertyCardText&) = delete;

  /// Where the cursor stands, counted from the start of the card.
  std::size_t Place() const { return static_cast<std::size_t>(cursor - memory.data()) - start; }

  /// What stands from the cursor to the NUL.
  std::string_view Rest() const { return cursor; }

  /// Whether each byte is what it was, in the text and around it.
  bool IsUntouched() const { return memory == before; }

  CardCursor cursor;

 private:
  std::string memory;
  std::string before;
  std::size_t start = 0;
};

/// Reads cards with `reader` into a list.
template <typename Record, void (*reader)(CardCursor*, IndexedList*)>
class PropertyCardTest : public NameTablesTest {
 protected:
  PropertyCardTest() { IndexedListInit(&list); }

  ~PropertyCardTest() override {
    WalkIndexedList<Record>(&list, ReleaseMemory);
    IndexedListClear(&list);
  }

  /// The record of the first card of `card`, with the lines of `above` over it.
  const Record& Read(std::string_view card, std::string_view above = "") {
    PropertyCardText text(above, card);
    const std::int32_t size = list.size;
    reader(&text.cursor, &list);
    EXPECT_EQ(list.size, size + 1) << card;
    EXPECT_TRUE(text.IsUntouched()) << card;
    EXPECT_LE(text.Place(), card.size()) << card;
    rest = text.Rest();
    return *static_cast<const Record*>(list.last->record);
  }

  IndexedList list;
  std::string rest;  ///< What the last card left.
};

using ShellCards = PropertyCardTest<PshellRecord, ReadPshellCard>;
using SolidCards = PropertyCardTest<PsolidRecord, ReadPsolidCard>;
using GasketCards = PropertyCardTest<PgaskRecord, ReadPgaskCard>;
using BeamCards = PropertyCardTest<BeamPropertyRecord, ReadBeamPropertyCard>;

}  // namespace btz::test
