#pragma once
// Per-pair sums over the columns of an alignment: for every pair of sequences i < j, the sum
// over the columns of rule(cell i, cell j), for a symmetric rule over the five cell states
// (A, C, G, T, and "-" or "?" as missing). The number of nucleotide differences between two
// sequences is one such sum.
//
// Each column is added in time proportional to the square of the number of sequences that do
// not carry its most common state, not to n^2: the pairs of two such carriers are visited one
// by one, a sequence that differs from the common state against all the others gets one
// per-sequence term, and the pairs of two common-state carriers share one constant.
// On real samples (mostly rare variants) this is far below a loop over all pairs. The pairs of
// carriers are kept and summed in batches, one row of the triangle at a time, so that the sums
// stay in the cache.

#include <array>
#include <cstdint>
#include <vector>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "core/selection.h"

namespace ovelt {

inline constexpr uint8_t kCodeMissing = 4;
// A, C, G, T as 0..3; "-", "?" and anything else as missing.
[[nodiscard]] uint8_t CellCode(char cell);

using PairRule = std::array<std::array<int8_t, 5>, 5>;
// Two nucleotides that differ.
[[nodiscard]] const PairRule& DiffersRule();
// Either cell missing.
[[nodiscard]] const PairRule& EitherMissingRule();

class PairCounts {
 public:
  PairCounts() = default;
  explicit PairCounts(int32_t n);

  // Adds one column: `codes` holds the codes of sequences 1..n at codes[0..n-1]. `rule` must
  // outlive the next Finish.
  void AddColumn(const uint8_t* codes, const PairRule& rule);
  // Sums the columns added so far; required before `at`.
  void Finish();

  [[nodiscard]] int32_t n() const { return n_; }
  // The sum for sequences i and j (1-based, i != j).
  [[nodiscard]] int64_t at(int32_t i, int32_t j) const;

 private:
  [[nodiscard]] size_t Index(int32_t a, int32_t b) const;  // 0-based, a < b
  struct Carrier {
    int32_t seq;
    uint8_t code;
  };
  struct Column {
    size_t first;  // into carriers_
    uint32_t count;
    uint8_t common;
    const PairRule* rule;
  };
  int32_t n_ = 0;
  int64_t shared_ = 0;         // added to every pair
  std::vector<int64_t> own_;   // added to every pair of a sequence
  std::vector<int32_t> pair_;  // upper triangle of corrections
  // Columns waiting for Finish, with their carriers of other states than the common one.
  std::vector<Column> columns_;
  std::vector<Carrier> carriers_;
};

// The codes of the given sites of the first selection, a block of columns at a time so that
// each sequence is read along its own cells: calls visit(site, codes) for each site in order,
// `codes` holding sequences 1..n at [0..n-1].
template <class Visit>
void ForEachColumn(const Selection& sel, const std::vector<int32_t>& sites, Visit&& visit) {
  const int32_t n = sel.SelOutCount;
  constexpr size_t kBlock = 256;
  std::vector<uint8_t> block(kBlock * static_cast<size_t>(n > 0 ? n : 1));
  for (size_t first = 0; first < sites.size(); first += kBlock) {
    const size_t count = sites.size() - first < kBlock ? sites.size() - first : kBlock;
    for (int32_t seq = 1; seq <= n; ++seq) {
      const char* row = sel.SelMatrix1.sequence(seq);
      for (size_t b = 0; b < count; ++b)
        block[b * static_cast<size_t>(n) + static_cast<size_t>(seq - 1)] =
            CellCode(row[sites[first + b] - 1]);
    }
    for (size_t b = 0; b < count; ++b) visit(sites[first + b], &block[b * static_cast<size_t>(n)]);
  }
}

// d(i, j): the sites of class 1 to 4 in from..to of the first selection at which sequences i
// and j differ (sites of class 0 and 5 are skipped). The gauge rises from 0 to 100.
[[nodiscard]] PairCounts PairwiseDifferences(const Selection& sel, int32_t from, int32_t to,
                                             const PolyGauge& gauge = {});

}  // namespace ovelt
