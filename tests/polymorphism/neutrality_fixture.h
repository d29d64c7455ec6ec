#pragma once
// Small alignments for the tests of the neutrality statistics, worked by hand.

#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/alignment_fixture.h"
#include "core/site_scan.h"

namespace ovelt::test {

// Five sequences of ten sites:
//   site 1  AAAGA  one singleton (G)              diversity (1 - 17/25) 5/4 = 0.4
//   site 2  AATAA  one singleton (T)              0.4
//   site 3  CCCCC  monomorphic
//   site 4  GGGGC  one singleton (C)              0.4
//   site 5  TTTTT  monomorphic
//   site 6  TAAAA  one singleton (T)              0.4
//   site 7  AAAAA  monomorphic
//   site 8  CCCCC  monomorphic
//   site 9  GAGAG  3 : 2                          (1 - 13/25) 5/4 = 0.6
//   site 10 AACAT  three variants, two singletons (1 - 11/25) 5/4 = 0.7
// L = 10, S = 6, Eta = 7, k = 2.9, Pi = 0.29; singletons: 6 mutations on 5 sites.
// All five sequences differ: h = 5.
inline std::vector<std::string> NeutralityRows() {
  return {"AACGTTACGA", "AACGTAACAA", "ATCGTAACGC", "GACGTAACAA", "AACCTAACGT"};
}

// The outgroup of the five: ancestral A (site 1), T (2), C (3), G (4), G (5, a fixed difference),
// A (6), a gap (7), C (8), C (9: absent from the polymorphic ingroup, ambiguous), A (10).
// Used sites: all but 7 (gap) and 9 (ambiguous); L = 9.
//   site 1 derived G x1, external singleton     site 2 derived A x4, its singleton T is ancestral
//   site 4 derived C x1, external singleton     site 6 derived T x1, external singleton
//   site 10 derived C x1 and T x1, two external singletons
// S = 5, Eta = 6, Eta(e) = 5 mutations on 4 sites, Eta(s) = 6 mutations on 5 sites, k = 2.3.
inline std::string OutgroupRow() {
  return "ATCGGA-CCA";
}

// All included sequences selected over all sites.
inline OwnedSelection SelectedAlignment(const std::vector<std::string>& rows) {
  return SelectedFrom(MakeAlignment(rows));
}

// The five as set 1 and the outgroup as set 2, both selected, the first classified.
inline OwnedSelection WithOutgroup(const std::vector<std::string>& rows, const std::string& outgroup,
                               int16_t gaps_in_sets = 1) {
  std::vector<std::string> all = rows;
  all.push_back(outgroup);
  ActiveData ad = MakeAlignment(all);
  // The included layer holds all six sequences, so its classes already mark the outgroup's gap.
  ad.GapsInSets = gaps_in_sets;
  std::vector<int> ingroup;
  for (int i = 1; i <= static_cast<int>(rows.size()); ++i) ingroup.push_back(i);
  AddSet(ad, "Ingroup", ingroup);
  AddSet(ad, "Outgroup", {static_cast<int>(all.size())});
  auto owner = std::make_shared<const ActiveData>(std::move(ad));
  OwnedSelection selected;
  static_cast<Selection&>(selected) = SelectTwoSets(*owner, 1, 2, {1, owner->NumSites});
  ClassifyFirst(selected);
  selected.Owner = owner;
  return selected;
}

}  // namespace ovelt::test
