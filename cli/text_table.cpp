#include "cli/text_table.h"

#include <algorithm>

#include "cli/display_text.h"

namespace btz::cli {

namespace {

constexpr std::size_t greatestWidth = 40;

std::string Padding(const std::string& cell, std::size_t width) {
  const std::size_t taken = DisplayWidth(cell);
  return std::string(taken < width ? width - taken : 0, ' ');
}

}  // namespace

std::string TextTable::Text() const {
  std::vector<std::string> heads;
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    heads.push_back(columns_[i].head);
    std::size_t width = std::max(columns_[i].leastWidth, DisplayWidth(columns_[i].head));
    for (const std::vector<std::string>& row : rows_) {
      width = std::max(width, std::min(DisplayWidth(row[i]), greatestWidth));
    }
    widths.push_back(width);
  }
  std::string text;
  const auto addLine = [&](const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const std::string padding = Padding(cells[i], widths[i]);
      text += "  ";
      text += columns_[i].align == Align::Right ? padding + cells[i] : cells[i] + padding;
    }
    text.erase(text.find_last_not_of(' ') + 1);
    text += '\n';
  };
  addLine(heads);
  for (const std::vector<std::string>& row : rows_) {
    addLine(row);
  }
  return text;
}

}  // namespace btz::cli
