#pragma once
// Upper tail P(X >= x) of the chi-square distribution with df degrees of freedom, from the
// power series of the lower tail (the incomplete gamma series):
//   lower = t1 (1 + x/(df+2) + x^2/((df+2)(df+4)) + ...),
//   t1 = (x/2)^(df/2) exp(-x/2) / Gamma(df/2 + 1),
// formed as exp(-x/2), times sqrt(2x/pi) when df is odd, times x/k for k = df, df-2, ... > 1.
// The series stops after the first term that is at most 1e-6 of the sum so far; the result is
// 1 - sum, never below 0. Its absolute error is therefore of the order of 1e-7.
//
// Degenerate input: x of 0 or below (or not a number) gives 1, as no statistic lies below 0;
// df of 0 is the distribution concentrated at 0, whose tail above any x > 0 is 0; a tail that
// is provably below the smallest double gives 0. df below 0 throws StatsError.

#include <cstdint>

namespace ovelt {

[[nodiscard]] double ChiSquareTail(double x, int32_t df);

}  // namespace ovelt
