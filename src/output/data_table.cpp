#include "output/data_table.h"

#include <charconv>
#include <cmath>

namespace ovelt {

std::string ShortestNumberText(double value) {
  char buffer[32];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return error == std::errc() ? std::string(buffer, end) : std::string("NA");
}

namespace {

std::string NumberCell(double value) {
  if (!std::isfinite(value)) return "NA";
  return ShortestNumberText(value);
}

std::string TextCell(const std::string& text) {
  std::string cell = text;
  for (char& c : cell)
    if (c == '\t' || c == '\r' || c == '\n') c = ' ';
  return cell;
}

struct CellVisitor {
  std::string operator()(std::monostate) const { return "NA"; }
  std::string operator()(int64_t value) const { return std::to_string(value); }
  std::string operator()(double value) const { return NumberCell(value); }
  std::string operator()(const std::string& text) const { return TextCell(text); }
};

}  // namespace

std::string CellText(const DataCell& cell) {
  return std::visit(CellVisitor{}, cell);
}

std::string DataTableTsv(const DataTable& table) {
  std::string text;
  for (size_t i = 0; i < table.Keys.size(); ++i) text += (i ? "\t" : "") + TextCell(table.Keys[i]);
  text += "\n";
  for (const std::vector<DataCell>& row : table.Rows) {
    for (size_t i = 0; i < row.size(); ++i) {
      if (i) text += '\t';
      text += CellText(row[i]);
    }
    text += "\n";
  }
  return text;
}

}  // namespace ovelt
