#pragma once
// A read-only view of a 0/1 haplotype matrix: `rows` sequences by `columns` segregating sites,
// stored column after column so that the sequences of one site are adjacent. A cell is 1 when
// the sequence carries the mutant (derived) state at that site, else 0. Columns count from 0.

#include <cstddef>
#include <cstdint>

namespace ovelt {

struct BinaryColumnsView {
  const int16_t* cells = nullptr;
  int32_t rows = 0;
  int32_t columns = 0;

  [[nodiscard]] const int16_t* Column(int32_t column) const {
    return cells + static_cast<std::size_t>(column) * static_cast<std::size_t>(rows);
  }
  [[nodiscard]] int16_t at(int32_t row, int32_t column) const { return Column(column)[row]; }
};

}  // namespace ovelt
