#pragma once
// A value for each pair of sequences i < j (1..n), as a 32-bit float, stored as the upper
// triangle row by row: pair (1, 2), (1, 3), ..., (1, n), (2, 3), ...

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ovelt {

class PairTable {
 public:
  explicit PairTable(int32_t seqs = 0)
      : seqs_(seqs), values_(seqs > 1 ? static_cast<size_t>(seqs) * (seqs - 1) / 2 : 0, 0.0F) {}

  [[nodiscard]] int32_t Seqs() const { return seqs_; }
  [[nodiscard]] size_t Pairs() const { return values_.size(); }
  // Position of pair i < j in the row order above.
  [[nodiscard]] size_t Index(int32_t i, int32_t j) const {
    const auto row = static_cast<size_t>(i - 1);
    return row * (2 * static_cast<size_t>(seqs_) - row - 1) / 2 + static_cast<size_t>(j - i - 1);
  }
  [[nodiscard]] float At(int32_t i, int32_t j) const { return values_[Index(i, j)]; }
  float& At(int32_t i, int32_t j) { return values_[Index(i, j)]; }
  [[nodiscard]] const std::vector<float>& Values() const { return values_; }
  std::vector<float>& Values() { return values_; }

 private:
  int32_t seqs_;
  std::vector<float> values_;
};

// Adds `value` to a 32-bit cell the one way every kernel does, so that a fast kernel and its
// plain twin give the same bits.
inline void AddToCell(float& cell, double value) {
  cell = static_cast<float>(static_cast<double>(cell) + value);
}

}  // namespace ovelt
