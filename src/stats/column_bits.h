#pragma once
// Packs the columns of a 0/1 haplotype matrix into 64-bit words, one run of words per column, so
// that the joint counts of two columns are a few AND and popcount steps instead of a loop over
// the sequences. The buffer is the caller's, kept between calls so that a replicate loop does
// not allocate.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "stats/binary_columns.h"

namespace ovelt {

class ColumnBits {
 public:
  // A cell becomes a set bit when it differs from the cell of row 0 (`relative_to_first`) or
  // when it is not 0 (otherwise). The bits beyond the last row stay 0.
  void Pack(const BinaryColumnsView& m, bool relative_to_first);

  [[nodiscard]] const uint64_t* Column(int32_t column) const {
    return words_.data() + static_cast<std::size_t>(column) * words_per_column_;
  }
  [[nodiscard]] std::size_t WordsPerColumn() const { return words_per_column_; }

  // Number of rows set in both columns.
  [[nodiscard]] int32_t CountBoth(int32_t a, int32_t b) const;
  // Number of rows set in the column.
  [[nodiscard]] int32_t Count(int32_t column) const;

 private:
  std::vector<uint64_t> words_;
  std::size_t words_per_column_ = 0;
};

}  // namespace ovelt
