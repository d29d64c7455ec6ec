#pragma once
// The 0/1 haplotype matrix of one simulated replicate: n sequences by S segregating columns,
// stored column after column. Its storage is kept between replicates and only grows, so that a
// run of many replicates allocates once.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "stats/binary_columns.h"

namespace ovelt {

class HaplotypeMatrix {
 public:
  // Makes the matrix `rows` x `columns`, every cell 0; keeps the storage already held.
  void Reset(int32_t rows, int32_t columns) {
    rows_ = rows;
    columns_ = columns;
    const std::size_t size = static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
    if (cells_.size() < size) cells_.resize(size);
    std::fill(cells_.begin(), cells_.begin() + static_cast<std::ptrdiff_t>(size), int16_t{0});
  }

  [[nodiscard]] int32_t Rows() const { return rows_; }
  [[nodiscard]] int32_t Columns() const { return columns_; }

  // Column and row count from 0.
  [[nodiscard]] int16_t* Column(int32_t column) {
    return cells_.data() + static_cast<std::size_t>(column) * static_cast<std::size_t>(rows_);
  }
  [[nodiscard]] const int16_t* Column(int32_t column) const {
    return cells_.data() + static_cast<std::size_t>(column) * static_cast<std::size_t>(rows_);
  }
  [[nodiscard]] int16_t& at(int32_t row, int32_t column) { return Column(column)[row]; }
  [[nodiscard]] int16_t at(int32_t row, int32_t column) const { return Column(column)[row]; }

  [[nodiscard]] BinaryColumnsView View() const { return {cells_.data(), rows_, columns_}; }

 private:
  int32_t rows_ = 0;
  int32_t columns_ = 0;
  std::vector<int16_t> cells_;
};

}  // namespace ovelt
