#pragma once
// A dense rows x columns table of 32-bit floats indexed from 1: the Jukes and Cantor distance of
// every pair of sequences within a population (square, symmetric, zero diagonal) or between two.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ovelt {

class PairMatrix {
 public:
  PairMatrix() = default;
  PairMatrix(int32_t rows, int32_t columns)
      : rows_(rows),
        columns_(columns),
        cells_(static_cast<size_t>(rows) * static_cast<size_t>(columns), 0.0F) {}

  [[nodiscard]] int32_t Rows() const { return rows_; }
  [[nodiscard]] int32_t Columns() const { return columns_; }
  [[nodiscard]] float At(int32_t i, int32_t j) const { return cells_[Offset(i, j)]; }
  float& At(int32_t i, int32_t j) { return cells_[Offset(i, j)]; }

 private:
  [[nodiscard]] size_t Offset(int32_t i, int32_t j) const {
    return static_cast<size_t>(i - 1) * static_cast<size_t>(columns_) + static_cast<size_t>(j - 1);
  }
  int32_t rows_ = 0;
  int32_t columns_ = 0;
  std::vector<float> cells_;
};

}  // namespace ovelt
