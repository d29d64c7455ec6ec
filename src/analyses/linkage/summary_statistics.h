#pragma once
// The summaries of a run over its analysed sites S, gathered as the pairs are scanned:
//   ZnS = mean R^2 over all pairs (Kelly 1997);
//   Za = mean R^2 over the adjacent pairs, ZZ = Za - ZnS (Rozas et al. 2001);
//   B = B' / (S - 1), Q = (B' + A') / S (Wall 1999), where B' counts the congruent adjacent
//   pairs (the sequences show exactly two two-site haplotypes) and A' the runs of consecutive
//   congruent pairs.

#include <cstdint>

#include "stats/linkage_summary.h"

namespace ovelt {

// Distinct two-site haplotypes of a pair as the scan counts them: 1, 2, or 3 for three or more.
[[nodiscard]] int DistinctHaplotypes(const HaplotypePairCounts& h);

struct LinkageSummaries {
  double ZnS = 0.0;
  double Za = 0.0;
  double ZZ = 0.0;
  double WallB = 0.0;
  double WallQ = 0.0;
};

class SummaryGatherer {
 public:
  void AddPair(double r2) { all_r2_ += r2; }
  // The pair of an analysed site and the next one.
  void AddAdjacent(double r2, const HaplotypePairCounts& h);
  // Closes an open run and divides; `sites` is S, at least 2.
  [[nodiscard]] LinkageSummaries Finish(int32_t sites);

 private:
  double all_r2_ = 0.0;
  double adjacent_r2_ = 0.0;
  int32_t congruent_ = 0;   // B'
  int32_t partitions_ = 0;  // A'
  bool run_open_ = false;
};

}  // namespace ovelt
