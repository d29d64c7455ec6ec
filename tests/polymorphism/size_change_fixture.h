#pragma once
// Small alignments for the tests of population size changes, with their selection made.

#include <string>
#include <vector>

#include "core/alignment_fixture.h"
#include "core/selection.h"

namespace ovelt::test {

// Five sequences, eight sites. Site 7 has a gap (class 5); sites 3, 6 and 8 are invariant.
// Polymorphic: site 1 (T in seq 4 only), site 2 (A in seq 1 only), site 4 (G G | A A A) and
// site 5 (C in seq 5 only). Pairwise differences by hand, over sites 1, 2, 4, 5:
//   d12 1, d13 2, d14 3, d15 3, d23 1, d24 2, d25 2, d34 1, d35 1, d45 2,
// so 4 pairs differ at 1 site, 4 at 2 and 2 at 3; the sum is 18 over 10 pairs, k = 1.8.
inline const std::vector<std::string> kFiveSequences = {
    "AACGTACG",  //
    "AGCGTACG",  //
    "AGCATA-G",  //
    "TGCATACG",  //
    "AGCACACG",  //
};

inline OwnedSelection SelectedAlignment(const std::vector<std::string>& rows) {
  return SelectedFrom(MakeAlignment(rows));
}

}  // namespace ovelt::test
