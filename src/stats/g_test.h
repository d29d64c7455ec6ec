#pragma once
// The G (log-likelihood ratio) test of independence of a 2 x 2 table (a b / c d), one degree of
// freedom (Sokal and Rohlf 1995):
//   G = 2 (sum of cell ln cell + N ln N - sum of margin ln margin),
// with Williams' correction (Williams 1976) G / q,
//   q = 1 + (N/(a+b) + N/(c+d) - 1)(N/(a+c) + N/(b+d) - 1) / (6N).
// The logarithm of an empty cell is undefined: callers test for empty cells first, and a cell
// of 0 or below throws StatsError ("Invalid procedure call or argument").

#include <cstdint>

namespace ovelt {

// G as a 32-bit float; `adjusted` receives G / q of Williams.
[[nodiscard]] float GTest(int32_t a, int32_t b, int32_t c, int32_t d, double& adjusted);

// G of four real cells (cells moved by a continuity correction), without Williams' q;
// a value below 0 from rounding is returned as 0.
[[nodiscard]] float GTestFloat(float a, float b, float c, float d);

}  // namespace ovelt
