#pragma once
// Small 0/1 haplotype matrices for the tests, written one sequence per string, and random ones.

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "stats/binary_columns.h"

namespace ovelt::test {

class BinaryMatrix {
 public:
  BinaryMatrix(int32_t rows, int32_t columns)
      : rows_(rows), columns_(columns),
        cells_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), 0) {}

  // One string per sequence, one character ('0' or '1') per column.
  static BinaryMatrix FromRows(const std::vector<std::string>& rows) {
    const auto columns = rows.empty() ? 0 : static_cast<int32_t>(rows[0].size());
    BinaryMatrix m(static_cast<int32_t>(rows.size()), columns);
    for (int32_t r = 0; r < m.rows_; ++r)
      for (int32_t c = 0; c < columns; ++c)
        m.Set(r, c, static_cast<int16_t>(rows[static_cast<std::size_t>(r)]
                                             [static_cast<std::size_t>(c)] == '1'));
    return m;
  }

  static BinaryMatrix Random(int32_t rows, int32_t columns, double ones, std::mt19937& rng) {
    BinaryMatrix m(rows, columns);
    std::bernoulli_distribution draw(ones);
    for (int32_t c = 0; c < columns; ++c)
      for (int32_t r = 0; r < rows; ++r) m.Set(r, c, static_cast<int16_t>(draw(rng)));
    return m;
  }

  void Set(int32_t row, int32_t column, int16_t value) {
    cells_[static_cast<std::size_t>(column) * static_cast<std::size_t>(rows_) +
           static_cast<std::size_t>(row)] = value;
  }
  [[nodiscard]] int16_t Get(int32_t row, int32_t column) const { return View().at(row, column); }
  [[nodiscard]] int32_t Rows() const { return rows_; }
  [[nodiscard]] int32_t Columns() const { return columns_; }

  [[nodiscard]] BinaryColumnsView View() const { return {cells_.data(), rows_, columns_}; }

  // 1 where the mutant is carried by more than half of the sequences.
  [[nodiscard]] std::vector<int16_t> MajorFlip() const {
    std::vector<int16_t> flip(static_cast<std::size_t>(columns_), 0);
    for (int32_t c = 0; c < columns_; ++c) {
      int32_t ones = 0;
      for (int32_t r = 0; r < rows_; ++r) ones += Get(r, c);
      flip[static_cast<std::size_t>(c)] = static_cast<int16_t>(2 * ones > rows_);
    }
    return flip;
  }

 private:
  int32_t rows_;
  int32_t columns_;
  std::vector<int16_t> cells_;
};

}  // namespace ovelt::test
