#include "stats/linkage_summary.h"

#include <cmath>
#include <cstddef>

#include "stats/column_bits.h"
#include "stats/stats_error.h"

namespace ovelt {

PairDisequilibrium DisequilibriumFromCounts(const HaplotypePairCounts& h, int32_t n) {
  if (n <= 0) return {};
  const double nn = static_cast<double>(n);
  PairDisequilibrium out;
  out.D = (static_cast<double>(h.h11) * h.h22 - static_cast<double>(h.h12) * h.h21) / (nn * nn);
  const double pa = (h.h11 + h.h12) / nn;
  const double qa = (h.h21 + h.h22) / nn;
  const double pb = (h.h11 + h.h21) / nn;
  const double qb = (h.h12 + h.h22) / nn;
  const double spread = pa * qa * pb * qb;
  out.R = spread > 0.0 ? out.D / std::sqrt(spread) : 0.0;
  return out;
}

namespace {

// The counts of the four two-site classes by the raw values 0/1, then reordered so that each
// column's major allele comes first.
HaplotypePairCounts MajorFirstCounts(int32_t n, int32_t ones_a, int32_t ones_b, int32_t both,
                                     bool flip_a, bool flip_b) {
  // raw[x][y]: sequences with value x at column a and y at column b.
  const int32_t raw[2][2] = {{n - ones_a - ones_b + both, ones_b - both},
                             {ones_a - both, both}};
  const int major_a = flip_a ? 1 : 0;
  const int major_b = flip_b ? 1 : 0;
  return {raw[major_a][major_b], raw[major_a][1 - major_b], raw[1 - major_a][major_b],
          raw[1 - major_a][1 - major_b]};
}

// The allele shares of one column, major allele first.
struct ColumnShares {
  int32_t ones = 0;
  bool flip = false;
  double major = 0.0;   // pA (or pB)
  double minor = 0.0;   // qA (or qB)
  double spread = 0.0;  // pA qA
};

}  // namespace

LinkageSummary LinkageFromColumns(const BinaryColumnsView& m,
                                  const std::vector<int16_t>& major_flip) {
  const int32_t s = m.columns;
  if (s < 2) return {};
  if (major_flip.size() != static_cast<std::size_t>(s)) throw StatsError(kSubscriptOutOfRangeText);

  // Scratch kept per thread between replicates; taken by reference once, outside the loops.
  thread_local ColumnBits kept_bits;
  thread_local std::vector<ColumnShares> kept_shares;
  ColumnBits& bits = kept_bits;
  std::vector<ColumnShares>& shares = kept_shares;
  bits.Pack(m, /*relative_to_first=*/false);
  const int32_t n = m.rows;
  const double nn = static_cast<double>(n);
  shares.resize(static_cast<std::size_t>(s));
  for (int32_t j = 0; j < s; ++j) {
    ColumnShares& c = shares[static_cast<std::size_t>(j)];
    c.ones = bits.Count(j);
    c.flip = major_flip[static_cast<std::size_t>(j)] != 0;
    const int32_t major = c.flip ? c.ones : n - c.ones;
    c.major = major / nn;
    c.minor = (n - major) / nn;
    c.spread = c.major * c.minor;
  }

  // Per pair the steps of DisequilibriumFromCounts, with the allele shares of each column taken
  // from the table above: the same operations in the same order, so the same values.
  double all_pairs = 0.0;
  double adjacent = 0.0;
  for (int32_t a = 0; a + 1 < s; ++a) {
    const ColumnShares& ca = shares[static_cast<std::size_t>(a)];
    for (int32_t b = a + 1; b < s; ++b) {
      const ColumnShares& cb = shares[static_cast<std::size_t>(b)];
      const HaplotypePairCounts h =
          MajorFirstCounts(n, ca.ones, cb.ones, bits.CountBoth(a, b), ca.flip, cb.flip);
      const double d =
          (static_cast<double>(h.h11) * h.h22 - static_cast<double>(h.h12) * h.h21) / (nn * nn);
      const double spread = ca.spread * cb.major * cb.minor;
      const double r = spread > 0.0 ? d / std::sqrt(spread) : 0.0;
      all_pairs += r * r;
      if (b == a + 1) adjacent += r * r;
    }
  }
  LinkageSummary out;
  const double pairs = static_cast<double>(s) * (s - 1) / 2.0;
  out.ZnS = all_pairs / pairs;
  out.Za = adjacent / (s - 1);
  out.ZZ = *out.Za - *out.ZnS;
  return out;
}

}  // namespace ovelt
