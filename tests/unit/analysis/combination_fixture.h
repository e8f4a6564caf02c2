// Combination cards read for subcases that ask for them, and the order of their ids as a plain table gives it.
#pragma once

#include <deque>

#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "tests/unit/analysis/case_fixture.h"

namespace btz::test {

/// The order of a table of 101 buckets that is rebuilt before each insertion when it holds more than 100 ids.
inline std::vector<std::int32_t> TableOrder(const std::vector<std::int32_t>& inserted) {
  std::deque<std::int32_t> records(inserted.begin(), inserted.end());
  HashTable table;
  HashInit(&table);
  HashCreate(&table, 100, HashFirstInt, nullptr, nullptr, 0);
  for (std::int32_t& record : records) {
    if (HashCount(&table) > 100) {
      HashRehash(&table);
    }
    HashInsert(&table, &record);
  }
  std::vector<std::int32_t> order;
  WalkTable<std::int32_t>(&table, [&](const std::int32_t* id) { order.push_back(*id); });
  HashRelease(&table);
  return order;
}

class CombinationTest : public CaseTest {
 protected:
  /// Reads a combination card; `rest` has what the reader left.
  void ReadCard(std::string_view text, SubcaseId kind) {
    CardText card(text);
    if (kind == SubcaseId::Load || kind == SubcaseId::Dload) {
      ReadLoadCombinationCard(&card.cursor, subcases, &run.subcaseIndex, kind);
    } else {
      ReadConstraintCombinationCard(&card.cursor, subcases, &run.subcaseIndex, kind);
    }
    rest = card.Rest();
  }

  /// Ids that a card gives to a new run's one subcase with these lines.
  std::vector<std::int32_t> IdsOfCard(std::string_view text, SubcaseId kind) {
    FreeSubcases();
    ReadCases("SUBCASE 1\nLOAD = 10\nDLOAD = 10\nSPC = 10\nMPC = 10\nBEGIN\n");
    ReadCard(text, kind);
    switch (kind) {
      case SubcaseId::Load:
        return IdsOf(Subcase(0).loadIds);
      case SubcaseId::Dload:
        return IdsOf(Subcase(0).dloadIds);
      case SubcaseId::Spc:
        return IdsOf(Subcase(0).spcIds);
      default:
        return IdsOf(Subcase(0).mpcIds);
    }
  }

  void FreeSubcases() {
    SubcaseIndexClear(&run.subcaseIndex);
    WalkList<SubcaseRecord>(subcases, FreeSubcaseRecord);
    ListClear(subcases);
  }
};

}  // namespace btz::test
