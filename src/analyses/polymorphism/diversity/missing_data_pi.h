#pragma once
// Nucleotide diversity with gaps and missing data removed only where they stand ("pairwise
// deletion", Nei 1987 section 10.3): in each pair of sequences the sites at which either carries
// "-" or "?" are dropped, and Pi is the mean over pairs of differences / compared sites; at each
// site the sequences without a nucleotide are dropped, Pi(site) = m / (m - 1) (1 - sum p^2) over
// the m remaining, and Watterson's theta adds 1 / a1(m) per polymorphic site.
// A site with fewer than two nucleotides is not analyzed; with no usable pair or site the
// corresponding values stay 0.

#include <cstdint>

#include "analyses/polymorphism/common/poly_gauge.h"
#include "core/selection.h"

namespace ovelt {

inline const char* const kPairwiseDeletionFailure = "Error Computing Pi (Pairwise Deletion)";

struct PairwiseDeletion {
  // Sites of class 5 dropped because a file sequence outside the selection has a gap or missing
  // datum there (only with GapsInSets 2).
  int32_t ExcludedGapSites = 0;
  // In pairwise comparisons.
  int64_t Comparisons = 0;  // pairs with at least one compared site (C)
  double AverageSites = 0.0;
  double AverageDifferences = 0.0;
  double PiPairwise = 0.0;
  // At individual sites.
  int32_t SitesAnalyzed = 0;
  int32_t SegSites = 0;
  double K = 0.0;  // sum of Pi(site)
  double Pi = 0.0;
  double ThetaWSequence = 0.0;
  double ThetaWSite = 0.0;
};

// Over from..to of the first selection. The gauge rises to 80 over the pairs, then to 100.
[[nodiscard]] PairwiseDeletion ComputePairwiseDeletion(const Selection& sel, int32_t from,
                                                       int32_t to, const PolyGauge& gauge = {});

}  // namespace ovelt
