#pragma once
// The two reductions that turn the pairs of sites with four gametes into the intervals counted
// by Rm (Hudson and Kaplan 1985). Stated pairwise over the list, each entry p in order against
// each later entry q, both not yet removed:
//
//   1. containment: p within q removes q (and p goes on); q within p removes p (and p stops);
//   2. overlap: q starting strictly inside p (p.lo < q.lo < p.hi) removes q; p starting strictly
//      inside q removes p. Intervals that only touch (p.hi = q.lo) both stay.
//
// Over a list in scan order (lo ascending, then hi ascending) these come to linear walks:
//   1. of the entries that share a lo only the first (the shortest) can stay, and it stays when
//      no entry with a larger lo ends at or before its hi;
//   2. what is left ascends in lo and in hi alike, so the first stays and then each next entry
//      that starts at or after the hi of the last one kept.
// The functions below take those walks; the tests hold them against the pairwise procedure.

#include <vector>

#include "stats/minimum_recombination.h"

namespace ovelt {

// Reduction 1 over `pairs` in scan order; the survivors in order. Throws std::invalid_argument
// when the list is not in scan order.
[[nodiscard]] std::vector<SiteInterval> DropContainingIntervals(
    const std::vector<SiteInterval>& pairs);

// Reduction 2 over the survivors of reduction 1, in their order; the survivors in order.
// Throws std::invalid_argument when lo does not ascend.
[[nodiscard]] std::vector<SiteInterval> DropOverlappingIntervals(
    const std::vector<SiteInterval>& intervals);

}  // namespace ovelt
