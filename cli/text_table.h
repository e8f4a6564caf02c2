// A table of text columns, each as wide as its widest cell.
#pragma once

#include <string>
#include <vector>

namespace btz::cli {

enum class Align { Left, Right };

struct TableColumn {
  std::string head;
  Align align = Align::Left;
  std::size_t leastWidth = 0;
};

class TextTable {
 public:
  explicit TextTable(std::vector<TableColumn> columns) : columns_(std::move(columns)) {}

  /// Adds a row with a cell for each column.
  void Add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

  /// Head and rows as lines, indented by two blanks. A cell much wider than others moves only what follows in its own row.
  std::string Text() const;

 private:
  std::vector<TableColumn> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace btz::cli
