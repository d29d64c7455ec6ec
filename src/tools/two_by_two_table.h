#pragma once
// A 2 x 2 table of counts: a b in the first row, c d in the second.

#include <cstdint>

namespace ovelt {

struct TwoByTwoTable {
  int32_t a = 0;
  int32_t b = 0;
  int32_t c = 0;
  int32_t d = 0;

  [[nodiscard]] int32_t Total() const { return a + b + c + d; }
  // A row or a column without counts: no test of independence has a value there.
  [[nodiscard]] bool HasEmptyMargin() const {
    return a + b == 0 || c + d == 0 || a + c == 0 || b + d == 0;
  }
  friend bool operator==(const TwoByTwoTable&, const TwoByTwoTable&) = default;
};

}  // namespace ovelt
