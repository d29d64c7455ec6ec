#pragma once
// The two estimators of the Recombination command over one region of the included sequences:
// the moment estimate of R = 4Nc (Hudson 1987) and the minimum number of recombination events
// Rm (Hudson and Kaplan 1985).

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "core/selection.h"
#include "stats/minimum_recombination.h"

namespace ovelt {

// Hudson's (1987) estimate of C from the variance of the pairwise differences.
struct HudsonEstimate {
  float KPrime = 0.0F;     // k' = (n - 1) k / n
  float Sk2 = 0.0F;        // variance of the sample distribution of Kij
  double H1 = 0.0, H2 = 0.0;  // sums of h(s) = (n - 1) x(s) / n and of h(s)^2
  double Theta = 0.0;      // per gene: H1 n / (n - 1)
  double G = 0.0;          // the target of g(C, n): (Sk^2 - H1 + H2) / Theta^2
  double C = 0.0;          // the grid point where the search stopped
  bool AboveLimit = false;  // C passed 10000
  float NetDistance = 0.0F;  // d: the sites between the ends less the gaps per sequence
  std::optional<double> RAdjacent;  // C / d, none above 10000
};

// A site pair as the JSON names it.
struct SitePair {
  int32_t Site1 = 0;
  int32_t Site2 = 0;

  template <class V>
  void Visit(V& v) const {
    v.Integer("site1", Site1);
    v.Integer("site2", Site2);
  }
};

// Hudson and Kaplan's Rm.
struct RmEstimate {
  // 0 computed; 1 or 2 out of memory (2 when there were 5000 biallelic sites or more).
  int32_t Status = 0;
  int32_t Sites = 0;                   // L, the biallelic sites without gaps
  std::vector<int32_t> OtherVariants;  // sites of three or four nucleotides, left out
  int64_t PairsCompared = 0;           // L (L - 1) / 2
  std::vector<SiteInterval> FourGametePairs;  // in scan order
  std::vector<SiteInterval> Intervals;        // after both reductions: Rm of them
  int32_t Rm = 0;
};

struct RecombinationResult {
  int32_t RegionFrom = 0;
  int32_t RegionTo = 0;
  int32_t Sequences = 0;  // n
  int32_t NetSites = 0;
  int32_t SegSites = 0;  // S: sites with a positive diversity
  double K = 0.0;        // average number of nucleotide differences
  HudsonEstimate Hudson;
  RmEstimate Rm;

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sequences", Sequences);
    v.Integer("net_sites", NetSites);
    v.Integer("segregating_sites", SegSites);
    v.Number("k", K);
    v.Number("sk2", static_cast<double>(Hudson.Sk2));
    v.Number("theta_gene", Hudson.Theta);
    v.Number("g_target", Hudson.G);
    v.Optional("r_gene", Hudson.AboveLimit ? std::nullopt : std::optional<double>(Hudson.C));
    v.Optional("r_adjacent", Hudson.RAdjacent);
    v.Number("net_distance", static_cast<double>(Hudson.NetDistance));
    v.Integer("rm_sites", Rm.Sites);
    v.Integers("rm_excluded_sites", Rm.OtherVariants);
    v.Integer("rm_pairwise_comparisons", Rm.PairsCompared);
    const bool computed = Rm.Status == 0;
    v.OptionalInteger("four_gamete_pair_count",
                      computed ? std::optional<int64_t>(static_cast<int64_t>(
                                     Rm.FourGametePairs.size()))
                               : std::nullopt);
    v.Array("four_gamete_pairs", Pairs(Rm.FourGametePairs));
    v.OptionalInteger("rm", computed ? std::optional<int64_t>(Rm.Rm) : std::nullopt);
    v.Array("rm_intervals", Pairs(Rm.Intervals));
  }

 private:
  static std::vector<SitePair> Pairs(const std::vector<SiteInterval>& intervals) {
    std::vector<SitePair> pairs;
    pairs.reserve(intervals.size());
    for (const SiteInterval& i : intervals) pairs.push_back({i.Low, i.High});
    return pairs;
  }
};

// Hudson's estimate over `from`..`to` of the first selection (n >= 2). Throws CommandFailure:
// with no polymorphism ("Can't estimate 4Nc and Rm parameters"), and on a fault of g(C, n) or
// of the estimate. `gauge` rises to 30.
[[nodiscard]] HudsonEstimate EstimateHudsonC(const Selection& sel, int32_t from, int32_t to,
                                             const std::function<void(int)>& gauge = {});

// Rm over `from`..`to`. Running out of memory is no failure: the status says it.
[[nodiscard]] RmEstimate EstimateRm(const Selection& sel, int32_t from, int32_t to,
                                    const std::function<void(int)>& gauge = {});

// The status of an Rm that ran out of memory with `sites` biallelic sites.
[[nodiscard]] constexpr int32_t RmMemoryStatus(int64_t sites) { return sites < 5000 ? 1 : 2; }

// Both estimators over the selection's region.
[[nodiscard]] RecombinationResult ComputeRecombination(const Selection& sel,
                                                       const std::function<void(int)>& gauge = {});

}  // namespace ovelt
