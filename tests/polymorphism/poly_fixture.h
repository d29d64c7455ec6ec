#pragma once
// Small alignments for the polymorphism tests, with the first selection made, and plain
// reference computations that walk every pair of sequences cell by cell.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/alignment_fixture.h"
#include "core/site_scan.h"

namespace ovelt::test {

// The alignment with all sequences selected over all sites.
inline OwnedSelection Selected(const std::vector<std::string>& rows) {
  return SelectedFrom(MakeAlignment(rows));
}

// The five sequences worked by hand in the tests (sites 1..9):
//   site 1 AAAGA (class 1, diversity 0.4)   site 2 CCCCC (0)
//   site 3 GGTTT (class 2, 0.6)             site 4 TTTTT (0)
//   site 5 AAAAC (class 1, 0.4)             site 6 CCCCC (0)
//   site 7 GGG-G (class 5: a gap)           site 8 TAAAA (class 1, 0.4)
//   site 9 ACGAA (class 3, 0.7)
// L = 8, S = 5, Eta = 6, k = 2.5, Pi = 0.3125. Pairwise differences over sites 1, 3, 5, 8, 9:
//   d12 2, d13 3, d14 3, d15 3, d23 2, d24 3, d25 3, d34 2, d35 2, d45 2 (sum 25, mean 2.5).
inline std::vector<std::string> HandRows() {
  return {"ACGTACGTA", "ACGTACGAC", "ACTTACGAG", "GCTTAC-AA", "ACTTCCGAA"};
}

// Differences between sequences i and j at the sites of class 1 to 4 of from..to, cell by cell.
inline int32_t PlainDifferences(const Selection& ad, int32_t i, int32_t j, int32_t from,
                                int32_t to) {
  int32_t d = 0;
  for (int32_t site = from; site <= to; ++site) {
    const int16_t c = ad.SelSiteClass1[static_cast<size_t>(site)];
    if (c == kMonomorphic || c == kGapOrMissing) continue;
    if (ad.SelMatrix1.at(site, i) != ad.SelMatrix1.at(site, j)) ++d;
  }
  return d;
}

}  // namespace ovelt::test
