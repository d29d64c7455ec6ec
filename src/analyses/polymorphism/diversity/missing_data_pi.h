#pragma once
// Nucleotide diversity with gaps and missing data removed only where they stand ("pairwise
// deletion", Nei 1987 section 10.3): in each pair of sequences the sites at which either carries
// "-" or "?" are dropped, and Pi is the mean over pairs of differences / compared sites; at each
// site the sequences without a nucleotide are dropped, Pi(site) = m / (m - 1) (1 - sum p^2) over
// the m remaining, and Watterson's theta adds 1 / a1(m) per polymorphic site.
// A site with fewer than two nucleotides is not analyzed. With no usable pair the averages over
// pairs are not determined, nor Pi and Theta per site with no analyzed site (none).

#include <cstdint>
#include <optional>

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
  std::optional<double> AverageSites;  // none when C is 0
  std::optional<double> AverageDifferences;
  std::optional<double> PiPairwise;
  // At individual sites.
  int32_t SitesAnalyzed = 0;
  int32_t SegSites = 0;
  double K = 0.0;  // sum of Pi(site)
  std::optional<double> Pi;  // none without an analyzed site
  double ThetaWSequence = 0.0;
  std::optional<double> ThetaWSite;

  template <class V>
  void Visit(V& v) const {
    v.Integer("excluded_gap_sites", ExcludedGapSites);
    v.Integer("pairs_compared", Comparisons);
    v.Optional("average_sites_per_pair", AverageSites);
    v.Optional("k_pairwise", AverageDifferences);
    v.Optional("pi_pairwise", PiPairwise);
    v.Integer("sites_analyzed", SitesAnalyzed);
    v.Integer("segregating_sites", SegSites);
    v.Number("k", K);
    v.Optional("pi", Pi);
    v.Number("theta_sequence", ThetaWSequence);
    v.Optional("theta_site", ThetaWSite);
  }
};

// Over from..to of the first selection. The gauge rises to 80 over the pairs, then to 100.
[[nodiscard]] PairwiseDeletion ComputePairwiseDeletion(const Selection& sel, int32_t from,
                                                       int32_t to, const PolyGauge& gauge = {});

}  // namespace ovelt
