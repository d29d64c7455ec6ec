#include "stats/wall_b_q.h"

#include <cstdint>

namespace ovelt {

namespace {

// Equal in every row, or different in every row: the first row decides which, and the first
// row that disagrees ends the scan.
bool Congruent(const int16_t* x, const int16_t* y, int32_t rows) {
  if (rows <= 0) return true;
  const bool equal = x[0] == y[0];
  for (int32_t r = 1; r < rows; ++r)
    if ((x[r] == y[r]) != equal) return false;
  return true;
}

}  // namespace

WallBQ WallFromColumns(const BinaryColumnsView& m) {
  const int32_t s = m.columns;
  if (s < 2) return {};
  int32_t congruent = 0;
  int32_t runs = 0;
  bool in_run = false;
  for (int32_t a = 0; a + 1 < s; ++a) {
    if (Congruent(m.Column(a), m.Column(a + 1), m.rows)) {
      ++congruent;
      if (!in_run) ++runs;
      in_run = true;
    } else {
      in_run = false;
    }
  }
  WallBQ out;
  out.B = static_cast<double>(congruent) / (s - 1);
  out.Q = static_cast<double>(congruent + runs) / s;
  return out;
}

}  // namespace ovelt
