#pragma once
// Reads the tab-separated --grid file of the command line: a header row of keys, then rows of
// cells, every line ended by '\n'. Throws std::runtime_error when a row's width differs from the
// header's or the last line is not ended.

#include <stdexcept>
#include <string>
#include <vector>

namespace ovelt::testing {

struct TsvTable {
  std::vector<std::string> Keys;
  std::vector<std::vector<std::string>> Rows;

  // The cell of `row` under `key`; throws when there is no such column.
  [[nodiscard]] const std::string& Cell(size_t row, const std::string& key) const {
    for (size_t c = 0; c < Keys.size(); ++c)
      if (Keys[c] == key) return Rows.at(row).at(c);
    throw std::runtime_error("no column \"" + key + "\"");
  }
  [[nodiscard]] double Number(size_t row, const std::string& key) const {
    return std::stod(Cell(row, key));
  }

  static TsvTable Parse(const std::string& text) {
    if (text.empty() || text.back() != '\n') throw std::runtime_error("unended last line");
    TsvTable table;
    size_t at = 0;
    bool header = true;
    while (at < text.size()) {
      const size_t end = text.find('\n', at);
      std::vector<std::string> cells;
      size_t from = at;
      while (true) {
        const size_t tab = text.find('\t', from);
        if (tab == std::string::npos || tab > end) {
          cells.push_back(text.substr(from, end - from));
          break;
        }
        cells.push_back(text.substr(from, tab - from));
        from = tab + 1;
      }
      if (header) {
        table.Keys = std::move(cells);
        header = false;
      } else {
        if (cells.size() != table.Keys.size())
          throw std::runtime_error("row " + std::to_string(table.Rows.size() + 1) + " has " +
                                   std::to_string(cells.size()) + " cells");
        table.Rows.push_back(std::move(cells));
      }
      at = end + 1;
    }
    return table;
  }
};

}  // namespace ovelt::testing
