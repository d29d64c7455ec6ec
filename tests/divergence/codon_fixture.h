#pragma once
// Coding alignments for the tests of the divergence family: rows of cells, all sites coding
// from site 1 (or as the caller assigns), under a chosen genetic code, with the selection of all
// sequences made.

#include <string>
#include <vector>

#include "analyses/divergence/common/codon_columns.h"
#include "core/alignment_fixture.h"
#include "core/coding_regions.h"

namespace ovelt::test {

// `rows` with sites 1..`coding_to` (0: all) coding from codon position 1, under code `code`.
inline ActiveData CodingAlignment(const std::vector<std::string>& rows, int16_t code = 1,
                                  int32_t coding_to = 0) {
  ActiveData ad = MakeAlignment(rows);
  ad.Format.GeneticCodeIndex = code;
  if (coding_to == 0) coding_to = ad.NumSites;
  if (coding_to > 0) AssignCodingRegion(ad, 1, coding_to, 1);
  LeaveForm14(ad, true);
  return ad;
}

inline OwnedSelection CodingSelection(const std::vector<std::string>& rows, int16_t code = 1,
                                      int32_t coding_to = 0) {
  return SelectedFrom(CodingAlignment(rows, code, coding_to));
}

}  // namespace ovelt::test
