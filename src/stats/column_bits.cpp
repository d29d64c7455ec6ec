#include "stats/column_bits.h"

#include <algorithm>
#include <bit>

// The popcount instruction is not in the x86-64 baseline the build targets: without it each
// count is a library call. The counts are compiled twice and the processor's own picked at load.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define OVELT_POPCOUNT_CLONES __attribute__((target_clones("popcnt", "default")))
#else
#define OVELT_POPCOUNT_CLONES
#endif

namespace ovelt {

void ColumnBits::Pack(const BinaryColumnsView& m, bool relative_to_first) {
  const auto rows = static_cast<std::size_t>(std::max(m.rows, 0));
  const auto columns = static_cast<std::size_t>(std::max(m.columns, 0));
  words_per_column_ = (rows + 63) / 64;
  // assign() keeps the capacity of earlier calls: no allocation once the largest size is seen.
  words_.assign(words_per_column_ * columns, 0);
  for (std::size_t c = 0; c < columns; ++c) {
    const int16_t* cells = m.Column(static_cast<int32_t>(c));
    const int16_t reference = relative_to_first && rows > 0 ? cells[0] : int16_t{0};
    uint64_t* out = words_.data() + c * words_per_column_;
    for (std::size_t r = 0; r < rows; ++r)
      if (cells[r] != reference) out[r / 64] |= uint64_t{1} << (r % 64);
  }
}

OVELT_POPCOUNT_CLONES int32_t ColumnBits::CountBoth(int32_t a, int32_t b) const {
  const uint64_t* x = Column(a);
  const uint64_t* y = Column(b);
  int32_t count = 0;
  for (std::size_t w = 0; w < words_per_column_; ++w) count += std::popcount(x[w] & y[w]);
  return count;
}

OVELT_POPCOUNT_CLONES int32_t ColumnBits::Count(int32_t column) const {
  const uint64_t* x = Column(column);
  int32_t count = 0;
  for (std::size_t w = 0; w < words_per_column_; ++w) count += std::popcount(x[w]);
  return count;
}

}  // namespace ovelt
