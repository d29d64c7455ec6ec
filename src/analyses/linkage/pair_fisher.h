#pragma once
// Fisher's exact test of the many 2 x 2 tables of one run, all with the same total n: the
// two-tailed rule of stats/fisher_exact.h (the first tail from the observed table to its
// extreme; the second filled from the far extreme inward while its sum does not exceed the
// first), on one table of ln(i!) built for n before the scan.
//
// With n fixed, the P of a table depends only on its margins (a + b, a + c) and on a, and the
// pairs of a scan share few margins (the allele counts of their sites). So once a margin pair
// has been seen often enough, the P of every table with those margins is worked out at once:
// the hypergeometric terms of all of them, their running sums from either extreme, and for each
// a its first tail from one sum and its second where the other stops fitting within the first.
// The P values are kept as floats up to a memory bound; beyond it, for margins seen rarely, and
// for totals other than n, each table is worked out on its own (the direct way).
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

  // Two-tailed P of the table a b / c d (no cell below 0, total at most n): from the P values
  // kept for its margins, once they have been seen often enough to be worth working out.
  [[nodiscard]] float TwoTailed(int32_t a, int32_t b, int32_t c, int32_t d);

  // The same P worked out for this table alone.
  [[nodiscard]] float TwoTailedDirect(int32_t a, int32_t b, int32_t c, int32_t d) const;

  // Margin pairs whose P values are kept.
  [[nodiscard]] int64_t CachedMargins() const { return cached_margins_; }

  // A margin pair is kept at the sight whose number times this reaches its number of tables:
  // one table on its own costs a few tens of exp(), keeping them all about one exp() each, so
  // margins seen rarely (large n, few sites) are not worked out in full for nothing.
  static constexpr int64_t kTablesPerSight = 32;

 private:
  // P values per block of the store (4 MB); a margin pair has at most 32,768 tables.
  static constexpr std::size_t kBlockFloats = std::size_t{1} << 20;

  [[nodiscard]] double Lf(int64_t i) const { return lf_[static_cast<std::size_t>(i)]; }
  // Counts a sight of the margins r1, c1 of total n; returns the place of their P values plus
  // one, or 0 while they are to be worked out table by table.
  int64_t Sight(int32_t r1, int32_t c1);
  // Works out the P of every table with margins r1, c1 into the store; returns their place, or
  // -1 when the memory bound is reached.
  int64_t Keep(int32_t r1, int32_t c1);
  // Place in the store for `count` P values, or -1.
  int64_t Reserve(std::size_t count);
  [[nodiscard]] const float* Kept(int64_t place) const {
    const auto p = static_cast<std::size_t>(place);
    return blocks_[p / kBlockFloats].get() + p % kBlockFloats;
  }

  int32_t n_;
  std::vector<double> lf_;

  // rows_[r1][c1]: 0 before the margins r1, c1 are seen; minus the number of sights while their
  // tables are worked out one by one; 1 + the place of their P values (indexed by a minus the
  // smallest a of the margins) once kept. Rows are made at the first sight of their r1.
  std::vector<std::vector<int32_t>> rows_;
  // The P values, in blocks that never move.
  std::vector<std::unique_ptr<float[]>> blocks_;
  std::size_t block_size_ = 0, block_used_ = 0;
  std::size_t bytes_left_;
  int64_t cached_margins_ = 0;
  // Scratch of Keep: the terms and their running sums from either end.
  std::vector<double> terms_, from_low_, from_high_;
};

}  // namespace ovelt
