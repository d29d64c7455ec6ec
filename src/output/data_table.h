#pragma once
// A table for scripts: the rows a grid window shows, one column per quantity under the key the
// JSON output gives it, values as computed (numbers not rounded to the window's masks).

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace ovelt {

// Empty: a value that could not be determined (null in the JSON).
using DataCell = std::variant<std::monostate, int64_t, double, std::string>;

struct DataTable {
  std::vector<std::string> Keys;
  std::vector<std::vector<DataCell>> Rows;

  [[nodiscard]] bool Empty() const { return Keys.empty(); }
  void Clear() {
    Keys.clear();
    Rows.clear();
  }
};

// Tab-separated values: a header row of the keys, then one line per row. Numbers in their
// shortest exact form (a script reads back the very double); an undetermined value is "NA";
// tabs and line ends inside a text become blanks.
[[nodiscard]] std::string DataTableTsv(const DataTable& table);

// The shortest text that reads back as the very same double (0.1, not 0.10000000000000001).
[[nodiscard]] std::string ShortestNumberText(double value);

// One cell as the TSV writes it.
[[nodiscard]] std::string CellText(const DataCell& cell);

}  // namespace ovelt
