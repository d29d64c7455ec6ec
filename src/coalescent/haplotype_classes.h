#pragma once
// Summaries of the pair-difference table of one replicate: the haplotypes as classes of
// sequences with no difference between them, giving the number of haplotypes h and the
// haplotype diversity Hd (Nei 1987, eq. 8.5), and the mismatch distribution, the number of
// pairs at each number of differences (Rogers and Harpending 1992).

#include <cstddef>
#include <cstdint>
#include <vector>

#include "coalescent/pair_differences.h"

namespace ovelt {

struct HaplotypeClasses {
  int32_t h = 0;     // number of classes
  double Hd = 0.0;   // (1 - sum of (class size / n)^2) x n / (n - 1)
};

// Sequence s joins the first class whose first member has no difference with it, else opens a
// new class. `firstMembers` and `sizes` are working storage kept by the caller.
[[nodiscard]] HaplotypeClasses HaplotypePartition(const PairDifferenceTable& t,
                                                  std::vector<int32_t>& firstMembers,
                                                  std::vector<int32_t>& sizes);

// histogram[d] = the number of pairs with d differences, d = 0 .. the largest found.
void MismatchHistogram(const PairDifferenceTable& t, std::vector<int32_t>& histogram);

}  // namespace ovelt
