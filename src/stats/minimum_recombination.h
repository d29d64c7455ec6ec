#pragma once
// Hudson and Kaplan's (1985) minimum number of recombination events Rm. A pair of sites whose
// sequences show all four two-site gametes needs a recombination between them. The intervals
// of such pairs that contain another are dropped, then of the overlapping ones the first is kept
// and the later ones dropped, left to right (intervals that only touch both stay); Rm is the
// number of intervals left. Fewer than two sites, or no four-gamete pair, give 0.

#include <cstdint>
#include <span>
#include <vector>

#include "stats/binary_columns.h"

namespace ovelt {

// A pair of sites by their positions, Low < High.
struct SiteInterval {
  int32_t Low = 0;
  int32_t High = 0;

  friend bool operator==(const SiteInterval&, const SiteInterval&) = default;
};

struct MinimumRecombinationResult {
  int32_t Rm = 0;
  // Every pair with four gametes, by Low ascending, then High ascending.
  std::vector<SiteInterval> FourGametePairs;
  // The intervals that survive both reductions, left to right; Rm of them.
  std::vector<SiteInterval> Intervals;
};

// `positions`[j] is the position of column j of `columns`, strictly ascending. Each column holds
// one site with two states in any coding: a sequence's state is read as "same as the first
// sequence" or "different". Throws StatsError when the positions do not match the columns or do
// not ascend.
[[nodiscard]] MinimumRecombinationResult MinimumRecombination(std::span<const int32_t> positions,
                                                              const BinaryColumnsView& columns);

// Rm alone, sites identified by their column number. Same value as MinimumRecombination, without
// lists; meant for the replicate loop of the simulations.
[[nodiscard]] int32_t RmFromColumns(const BinaryColumnsView& columns);

}  // namespace ovelt
