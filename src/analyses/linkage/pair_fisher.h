#pragma once
// Fisher's exact test of the many 2 x 2 tables of one run, all with the same total n: the
// two-tailed rule of stats/fisher_exact.h (the first tail from the observed table to its
// extreme; the second filled from the far extreme inward while its sum does not exceed the
// first), on one table of ln(i!) built for n before the scan.
//
// With n fixed, the P of a table depends only on its margins (a + b, a + c) and on a, and the
// pairs of a scan share few margins (the allele counts of their sites). So the first table of
// each margin pair works out the P of every table with those margins at once: the hypergeometric
// terms of all of them, their running sums from either extreme, and for each a its first tail
// from one sum and its second by bisection on the other. The P values are kept as floats up to
// a memory bound; beyond it, and for totals other than n, each table is worked out on its own.
//
// The direct way has two short cuts:
// - the first tail stops once a term is below half the last place of the sum: the terms fall
//   from the observed table outward, so none of the rest could change the sum;
// - the second tail starts at the first table whose term reaches 2^-60 of the first tail (found
//   by bisection on the logarithms, which rise from the far extreme to the mode); the terms left
//   out sum to less than n 2^-60 of the first tail, below the precision of the result.
//
// Both give the same 32-bit P as FisherExact's, but for a change of the last bit where the
// double sum lies within 1e-16 of a rounding boundary of the float (the kept values add the
// first tail from its extreme inward, the direct way from the observed table outward).

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace ovelt {

class PairFisher {
 public:
  // Bytes of P values kept by default: a few tens of MB.
  static constexpr std::size_t kDefaultCacheBytes = std::size_t{48} << 20;

  // For tables of total up to `n`. Throws StatsError as LogFactorialTable does for a bad n.
  explicit PairFisher(int32_t n, std::size_t cache_bytes = kDefaultCacheBytes);

  // Two-tailed P of the table a b / c d (no cell below 0, total at most n), from the P values
  // of its margins, worked out at their first table.
  [[nodiscard]] float TwoTailed(int32_t a, int32_t b, int32_t c, int32_t d);

  // The same P worked out for this table alone.
  [[nodiscard]] float TwoTailedDirect(int32_t a, int32_t b, int32_t c, int32_t d) const;

  // Margin pairs whose P values are kept.
  [[nodiscard]] int64_t CachedMargins() const { return cached_margins_; }

 private:
  [[nodiscard]] double Lf(int64_t i) const { return lf_[static_cast<std::size_t>(i)]; }
  // Works out and keeps the P of every table of total n with margins r1 and c1; null when the
  // memory bound is reached.
  const float* CacheMargins(int32_t r1, int32_t c1);
  float* Reserve(std::size_t count);

  int32_t n_;
  std::vector<double> lf_;

  // rows_[r1][c1]: the P values of the tables with margins r1, c1, indexed by a minus the
  // smallest a of those margins; rows are made at the first use of their r1.
  std::vector<std::vector<const float*>> rows_;
  // The P values, in blocks that never move.
  std::vector<std::unique_ptr<float[]>> blocks_;
  float* next_ = nullptr;
  std::size_t block_left_ = 0;
  std::size_t bytes_left_;
  int64_t cached_margins_ = 0;
  // Scratch of CacheMargins: the terms and their running sums from either end.
  std::vector<double> terms_, from_low_, from_high_;
};

}  // namespace ovelt
