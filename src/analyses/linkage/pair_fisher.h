#pragma once
// Fisher's exact test of the many 2 x 2 tables of one run, all with the same total n: the
// two-tailed rule of stats/fisher_exact.h (the first tail from the observed table to its
// extreme; the second filled from the far extreme inward while its sum does not exceed the
// first), on one table of ln(i!) built for n before the scan, with two short cuts:
//
// - the first tail stops once a term is below half the last place of the sum: the terms fall
//   from the observed table outward, so none of the rest could change the sum;
// - the second tail starts at the first table whose term reaches 2^-60 of the first tail (found
//   by bisection on the logarithms, which rise from the far extreme to the mode); the terms left
//   out sum to less than n 2^-60 of the first tail, below the precision of the result.
//
// The result is the same 32-bit P as FisherExact's, but for a change of the last bit where the
// double sum lies within 1e-16 of a rounding boundary of the float.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ovelt {

class PairFisher {
 public:
  // For tables of total up to `n`. Throws StatsError as LogFactorialTable does for a bad n.
  explicit PairFisher(int32_t n);

  // Two-tailed P of the table a b / c d (no cell below 0, total at most n).
  [[nodiscard]] float TwoTailed(int32_t a, int32_t b, int32_t c, int32_t d) const;

 private:
  [[nodiscard]] double Lf(int64_t i) const { return lf_[static_cast<std::size_t>(i)]; }
  std::vector<double> lf_;
};

}  // namespace ovelt
