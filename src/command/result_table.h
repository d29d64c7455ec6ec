#pragma once
// The table for scripts of a result (output/data_table.h), made from the same `Visit` that makes
// its JSON (result_json.h): the array found at a dotted path of JSON keys
// ("sliding_window.windows") becomes the rows, its elements' keys the columns, so that a column of
// the --grid file and a key of the --json file are the same name for the same number.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "output/data_table.h"

namespace ovelt {

namespace result_table_detail {

// The cells of one row, in the order its Visit names them; a nested object's keys are written
// "object.key".
class RowCells {
 public:
  RowCells(std::vector<std::string>* keys, std::vector<DataCell>& cells, std::string prefix = {})
      : keys_(keys), cells_(cells), prefix_(std::move(prefix)) {}

  void Integer(std::string_view key, int64_t value) { Add(key, value); }
  void Number(std::string_view key, double value) { Add(key, value); }
  void Bool(std::string_view key, bool value) { Add(key, std::string(value ? "true" : "false")); }
  void Text(std::string_view key, std::string_view value) { Add(key, std::string(value)); }
  void Optional(std::string_view key, const std::optional<double>& value) {
    Add(key, value ? DataCell(*value) : DataCell());
  }
  void OptionalInteger(std::string_view key, const std::optional<int64_t>& value) {
    Add(key, value ? DataCell(*value) : DataCell());
  }
  // A list inside a row: its values in one cell, blank-separated.
  void Numbers(std::string_view key, const std::vector<double>& values) {
    std::string cell;
    for (const double value : values) cell += (cell.empty() ? "" : " ") + CellText(value);
    Add(key, cell);
  }
  template <class Int>
  void Integers(std::string_view key, const std::vector<Int>& values) {
    std::string cell;
    for (const Int value : values) cell += (cell.empty() ? "" : " ") + std::to_string(value);
    Add(key, cell);
  }
  template <class T>
  void Object(std::string_view key, const T& value) {
    RowCells inner(keys_, cells_, prefix_ + std::string(key) + ".");
    value.Visit(inner);
  }
  template <class T>
  void Object(std::string_view key, const std::optional<T>& value) {
    if (value) Object(key, *value);
  }
  // A table inside a row is not a column: it has a --grid of its own.
  template <class T>
  void Array(std::string_view, const std::vector<T>&) {}
  template <class T>
  void Fields(const std::optional<T>& part) {
    if (part) {
      part->Visit(*this);
      return;
    }
    // The part's keys with no value, as the JSON writes them null.
    std::vector<DataCell> ignored;
    RowCells names(keys_, ignored, prefix_);
    T{}.Visit(names);
    cells_.resize(cells_.size() + ignored.size());
  }

 private:
  void Add(std::string_view key, DataCell cell) {
    if (keys_ != nullptr) keys_->push_back(prefix_ + std::string(key));
    cells_.push_back(std::move(cell));
  }

  std::vector<std::string>* keys_;  // filled by the first row only
  std::vector<DataCell>& cells_;
  std::string prefix_;
};

template <class Row>
DataTable RowsTable(const std::vector<Row>& rows) {
  DataTable table;
  if (rows.empty()) {
    std::vector<DataCell> ignored;
    RowCells names(&table.Keys, ignored);
    Row{}.Visit(names);
    return table;
  }
  table.Rows.reserve(rows.size());
  for (size_t i = 0; i < rows.size(); ++i) {
    table.Rows.emplace_back();
    RowCells cells(i == 0 ? &table.Keys : nullptr, table.Rows.back());
    rows[i].Visit(cells);
  }
  return table;
}

// Walks a result's Visit down the dotted path and keeps the array found at its end.
class ArrayFinder {
 public:
  explicit ArrayFinder(std::string_view path) : path_(path) {}

  void Integer(std::string_view, int64_t) {}
  void Number(std::string_view, double) {}
  void Bool(std::string_view, bool) {}
  void Text(std::string_view, std::string_view) {}
  template <class Values>
  void Numbers(std::string_view, const Values&) {}
  template <class Values>
  void Integers(std::string_view, const Values&) {}
  template <class Value>
  void Optional(std::string_view, const Value&) {}
  template <class Value>
  void OptionalInteger(std::string_view, const Value&) {}
  template <class T>
  void Object(std::string_view key, const T& value) {
    if (found_ || path_.size() <= key.size() || path_.substr(0, key.size()) != key ||
        path_[key.size()] != '.')
      return;
    ArrayFinder inner(path_.substr(key.size() + 1));
    value.Visit(inner);
    if (inner.found_) {
      found_ = true;
      table_ = std::move(inner.table_);
    }
  }
  template <class T>
  void Object(std::string_view key, const std::optional<T>& value) {
    if (value) Object(key, *value);
  }
  template <class T>
  void Array(std::string_view key, const std::vector<T>& rows) {
    if (found_ || key != path_) return;
    found_ = true;
    table_ = RowsTable(rows);
  }
  template <class T>
  void Fields(const std::optional<T>& part) {
    if (part) part->Visit(*this);
  }

  [[nodiscard]] bool Found() const { return found_; }
  DataTable Take() { return std::move(table_); }

 private:
  std::string_view path_;
  bool found_ = false;
  DataTable table_;
};

}  // namespace result_table_detail

// The array of `result` at `path` (JSON keys joined by '.') as a table; empty when the result
// has no such array this run.
template <class Result>
[[nodiscard]] DataTable ResultArrayTable(const Result& result, std::string_view path) {
  result_table_detail::ArrayFinder finder(path);
  result.Visit(finder);
  return finder.Take();
}

}  // namespace ovelt
