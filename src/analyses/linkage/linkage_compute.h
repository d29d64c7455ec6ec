#pragma once
// Linkage disequilibrium between every pair of analysed sites of the region: D, D', R, R^2, the
// distance, the optional tests with their marks, and the summaries and regressions of the run.
// Numbers only; the report and the tables are made from this result.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "analyses/linkage/distance_regression.h"
#include "analyses/linkage/linkage_options.h"
#include "analyses/linkage/summary_statistics.h"
#include "command/progress.h"
#include "core/selection.h"

namespace ovelt {

inline constexpr const char* kLinkageBusyFirst = "Computing Linkage Disequilibrium... (1/2)";
inline constexpr const char* kLinkageBusySecond = "Computing Linkage Disequilibrium... (2/2)";
inline constexpr const char* kNoPairwiseComparisons = " No pairwise comparisons";

// One pair of analysed sites, in scan order.
struct LinkagePairRow {
  int32_t Site1 = 0;
  int32_t Site2 = 0;
  int32_t Dist = 0;  // sites apart, less the share of gaps and missing data between them
  double D = 0.0, DPrime = 0.0, R = 0.0, R2 = 0.0;
  double ChiSquare = 0.0;
  float FisherP = 1.0f;
  bool HasFisher = false, HasChiSquare = false;
  int8_t FisherStars = 0, ChiSquareStars = 0;
  bool FisherBonferroni = false, ChiSquareBonferroni = false;
  bool Significant = false;  // P < 0.05 by a test asked for (the chart marks it)

  template <class V>
  void Visit(V& v) const {
    v.Integer("site1", Site1);
    v.Integer("site2", Site2);
    v.Integer("distance", Dist);
    v.Number("d", D);
    v.Number("d_prime", DPrime);
    v.Number("r", R);
    v.Number("r2", R2);
    if (HasFisher) {
      v.Number("fisher_p", FisherP);
      v.Text("fisher_mark", std::string(static_cast<std::size_t>(FisherStars), '*'));
      v.Bool("fisher_bonferroni", FisherBonferroni);
    }
    if (HasChiSquare) {
      v.Number("chi_square", ChiSquare);
      v.Text("chi_square_mark", std::string(static_cast<std::size_t>(ChiSquareStars), '*'));
      v.Bool("chi_square_bonferroni", ChiSquareBonferroni);
    }
  }
};

struct LinkageResult {
  int32_t RegionFrom = 0, RegionTo = 0;
  int32_t Sequences = 0;
  int32_t NetSites = 0;
  bool AllSites = false;
  bool ThreeOrFourVariants = false;
  int32_t SitesAnalysed = 0;
  int64_t PairCount = 0;
  bool Fisher = false, ChiSquare = false;
  double BonferroniAlpha = 0.0;  // alpha', when a test was asked for
  int64_t FisherSignificant = 0, FisherBonferroni = 0;
  int64_t ChiSquareSignificant = 0, ChiSquareBonferroni = 0;
  LinkageSummaries Summaries;
  // |D|, |D'|, |D'|* (the pairs whose |D'| is not 1) and r^2 on the distance in kb.
  std::vector<DistanceRegression> Regressions;
  // The pairs in scan order, shared by the copies of the result (the file of a long table is
  // written from them after the run).
  std::shared_ptr<const std::vector<LinkagePairRow>> PairRows =
      std::make_shared<const std::vector<LinkagePairRow>>();

  [[nodiscard]] const std::vector<LinkagePairRow>& Pairs() const { return *PairRows; }
  [[nodiscard]] int Tests() const { return TestCode(Fisher, ChiSquare); }

  template <class V>
  void Visit(V& v) const {
    v.Integer("region_from", RegionFrom);
    v.Integer("region_to", RegionTo);
    v.Integer("sequences", Sequences);
    v.Integer("net_sites", NetSites);
    v.Bool("all_sites", AllSites);
    v.Bool("three_or_four_variants", ThreeOrFourVariants);
    v.Integer("sites_analyzed", SitesAnalysed);
    v.Integer("pairwise_comparisons", PairCount);
    if (Fisher || ChiSquare) v.Number("bonferroni_alpha", BonferroniAlpha);
    if (Fisher) {
      v.Integer("fisher_significant", FisherSignificant);
      v.Integer("fisher_bonferroni_significant", FisherBonferroni);
    }
    if (ChiSquare) {
      v.Integer("chi_square_significant", ChiSquareSignificant);
      v.Integer("chi_square_bonferroni_significant", ChiSquareBonferroni);
    }
    v.Number("zns", Summaries.ZnS);
    v.Number("za", Summaries.Za);
    v.Number("zz", Summaries.ZZ);
    v.Number("wall_b", Summaries.WallB);
    v.Number("wall_q", Summaries.WallQ);
    v.Array("regressions", Regressions);
    v.Array("site_pairs", Pairs());
  }
};

// Over the region of `sel` (its first selection). Fewer than two analysed sites throw a
// CommandFailure with the words of the run ("No pairwise comparisons" after the file's name);
// so does a test or regression that cannot be computed.
[[nodiscard]] LinkageResult ComputeLinkage(const Selection& sel, const LinkageOptions& options,
                                           const Progress& progress = {});

}  // namespace ovelt
