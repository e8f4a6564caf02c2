#include "cli/text_table.h"

#include <gtest/gtest.h>

namespace btz::cli {
namespace {

TEST(TextTable, ColumnsAreAsWideAsTheirWidestCellOrHead) {
  TextTable table({{"Id", Align::Right, 4}, {"Name"}, {"Size", Align::Right}, {"Note"}});
  table.Add({"7", "Wing skin", "1", "left"});
  table.Add({"12345", "Rib", "100.25", ""});

  EXPECT_EQ(table.Text(),
            "     Id  Name         Size  Note\n"
            "      7  Wing skin       1  left\n"
            "  12345  Rib        100.25\n");
}

TEST(TextTable, CharactersCountByTheColumnsTheyTake) {
  TextTable table({{"Name"}, {"Id"}});
  table.Add({"Fl\xC3\xBCgel", "1"});  // Six characters, seven bytes.
  table.Add({"\xE7\xBF\xBC", "2"});   // One character of two columns.
  table.Add({"Bloc", "3"});

  EXPECT_EQ(table.Text(),
            "  Name    Id\n"
            "  Fl\xC3\xBCgel  1\n"
            "  \xE7\xBF\xBC      2\n"
            "  Bloc    3\n");
}

TEST(TextTable, AVeryLongCellMovesItsOwnRowOnly) {
  TextTable table({{"Name"}, {"Id"}});
  table.Add({std::string(50, 'a'), "1"});
  table.Add({"b", "2"});

  EXPECT_EQ(table.Text(),
            "  Name" + std::string(36, ' ') + "  Id\n  " + std::string(50, 'a') + "  1\n  b" + std::string(39, ' ') + "  2\n");
}

TEST(TextTable, WithoutRowsOnlyTheHeadIsThere) {
  EXPECT_EQ(TextTable({{"Name", Align::Left, 6}, {"Id", Align::Right, 4}}).Text(), "  Name      Id\n");
}

}  // namespace
}  // namespace btz::cli
