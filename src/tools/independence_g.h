#pragma once
// The G test of a typed 2 x 2 table (Sokal and Rohlf 1995), plain, with Williams' correction
// (Williams 1976) and with Yates' continuity correction.
//
// An empty cell adds nothing to G: x ln x tends to 0 with x, the guard that the G primitive
// leaves to its caller. Tables with an empty row or column have no G; F12Filtros refuses them.

#include "tools/two_by_two_table.h"

namespace ovelt {

// G as a 32-bit float; `williams` receives G / q of Williams.
[[nodiscard]] float TableGTest(const TwoByTwoTable& table, double& williams);

// The cells moved by 0.5 towards independence, as 32-bit floats: when ad - bc is negative a and
// d rise by 0.5 and b and c fall by 0.5; otherwise the reverse.
struct MovedCells {
  float a = 0;
  float b = 0;
  float c = 0;
  float d = 0;
};
[[nodiscard]] MovedCells YatesMovedCells(const TwoByTwoTable& table);

// G of the moved cells (the G of Yates' correction); never below 0.
[[nodiscard]] float YatesGTest(const TwoByTwoTable& table);

}  // namespace ovelt
