// The six name tables for a test: created empty, and emptied with their records at its end.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "deck/name_comments.h"
#include "support/block_pool.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"

namespace btz::test {

class NameTablesTest : public ::testing::Test {
 protected:
  NameTablesTest() {
    for (HashTable* table : tables) {
      HashDestroy(table);  // Another test may have left it in any state.
      HashCreate(table, 1000, HashFirstInt, nullptr, nullptr, 0);
    }
  }

  ~NameTablesTest() override {
    for (HashTable* table : tables) {
      WalkTable<NameRecord>(table, ReleaseMemory);
      HashDestroy(table);
    }
  }

  /// The name held for `id`; "(none)" when there is none.
  static std::string Name(const HashTable& table, std::int32_t id) {
    const NameRecord* record = FindName(&table, id);
    return record == nullptr ? "(none)" : record->name;
  }

  /// Names in all tables together.
  std::int32_t CountNames() const {
    std::int32_t count = 0;
    for (const HashTable* table : tables) {
      count += HashCount(table);
    }
    return count;
  }

 private:
  const std::vector<HashTable*> tables{&PropertyNameTable, &NodeSetNameTable,     &ElementSetNameTable,
                                       &SurfaceNameTable,  &MaterialCommentTable, &PropertyCommentTable};
};

}  // namespace btz::test
