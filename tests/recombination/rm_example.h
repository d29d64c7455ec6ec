#pragma once
// The worked example of Rm: seven sequences, nine sites. Sequence 1 carries the first allele
// everywhere; sequences 2-4 and 5-7 form two groups whose patterns (1 for the second allele)
// are 110, 101 and 011. Two sites of different patterns of one group show all four gametes;
// sites of different groups never do (no sequence carries both second alleles).
//
//   site  1: group 2-4 110      site 5: group 5-7 101      site 9: group 2-4 011
//   site  3: group 5-7 110      site 6: group 2-4 101      sites 2, 4, 8: monomorphic
//                               site 7: group 5-7 011
//
// Four-gamete pairs in scan order: (1,6) (1,9) (3,5) (3,7) (5,7) (6,9).
// Containment: (1,6) drops (1,9), which contains it, then is dropped itself for containing
// (3,5); (3,5) drops (3,7). Left: (3,5) (5,7) (6,9).
// Overlap: (3,5) and (5,7) only touch and both stay; (5,7) drops (6,9), which starts inside
// it. Rm = 2, between sites (3,5) and (5,7).

#include <string>
#include <vector>

namespace ovelt::test {

inline std::vector<std::string> RmExampleRows() {
  return {"ACTCGCACG", "GCTCGTACG", "GCTCGCACC", "ACTCGTACC",
          "ACCCACACG", "ACCCGCTCG", "ACTCACTCG"};
}

}  // namespace ovelt::test
