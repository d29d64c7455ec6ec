#pragma once
// The four-gamete test of Hudson and Kaplan (1985) over the biallelic sites of a region: two
// sites whose sequences carry all four two-site gametes cannot both fit one tree without a
// recombination between them (or a repeated mutation).
//
// Only sites with two nucleotides and no gap (classes 1 and 2) enter. The alleles of a site are
// the nucleotide of sequence 1 and the last nucleotide among sequences 2..n that differs from
// it. The gamete of sequence 1 is always present; sequences 2..n raise a flag for each of the
// three others they carry, and the pair has 1 + (flags raised) gametes.

#include <cstdint>
#include <functional>
#include <vector>

#include "core/selection.h"
#include "stats/minimum_recombination.h"

namespace ovelt {

struct FourGameteTable {
  std::vector<int32_t> Sites;          // sites of class 1 or 2 in the region, ascending (L)
  std::vector<int32_t> OtherVariants;  // sites of class 3 or 4 in the region, left out
  int64_t PairsCompared = 0;           // L (L - 1) / 2
  // Every pair with four gametes, as (site lo, site hi), in scan order: lo ascending, then hi.
  std::vector<SiteInterval> Pairs;
};

// The two alleles of biallelic site `site` of the first selection, by the rule above.
struct SiteAlleles {
  char First = 0;
  char Second = 0;
};
[[nodiscard]] SiteAlleles RmAlleles(const Selection& sel, int32_t site);

// The table over `from`..`to` of the first selection. `gauge` rises from 10 by up to 30 over the
// outer loop of the pairs.
[[nodiscard]] FourGameteTable FourGametePairs(const Selection& sel, int32_t from, int32_t to,
                                              const std::function<void(int)>& gauge = {});

}  // namespace ovelt
