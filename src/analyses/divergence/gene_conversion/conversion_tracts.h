#pragma once
// Step two of the detection of gene conversion tracts (Betrán et al. 1997): each line of each
// population is walked along the region, and a run of informative sites at which the line
// carries a nucleotide rare in its own population (share x <= 0.2, the line included) and at
// least three times as common in the other (y >= 3x) is a tract once it holds two sites or
// more. A site where the line's nucleotide is common at home (x > 0.2) and absent from the other
// population (y = 0) ends the run; any other site leaves it as it is; the end of the region ends
// it.

#include <cstdint>
#include <vector>

#include "core/selection.h"

namespace ovelt {

// One line at one site of a tract.
struct TractSite {
  int16_t Population = 0;  // 1 or 2
  int32_t Line = 0;        // in its population
  int32_t Site = 0;

  bool operator==(const TractSite&) const = default;
};

struct ConversionTract {
  int16_t Population = 0;
  int32_t Line = 0;
  int32_t First = 0, Last = 0;
  int32_t NetLength = 0;  // Last - First + 1 less the line's "-" in the stretch

  bool operator==(const ConversionTract&) const = default;
};

struct TractScan {
  std::vector<TractSite> Sites;         // sorted by site; equal sites keep their order of discovery
  std::vector<ConversionTract> Tracts;  // in order of discovery
};

// Over from..to; `informative` from `MarkInformativeSites`. `psi_by_site` (one value per site of
// the file) gets -1 at every site of a tract, held for the second pass of Psi.
[[nodiscard]] TractScan FindConversionTracts(const Selection& sel,
                                             const std::vector<uint8_t>& informative, int32_t from,
                                             int32_t to, std::vector<double>& psi_by_site);

}  // namespace ovelt
