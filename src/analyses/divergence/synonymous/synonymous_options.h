#pragma once
// The options of "Synonymous and NonSyn. Substitutions" (`Form9`, or the flags of
// `ovelt synonymous`): region, sequence set, the silent sites, the per-pair table, and the seed
// of the random choice among tied pathways.

#include <cstdint>
#include <limits>
#include <optional>

#include "core/command_options.h"

namespace ovelt {

struct SynonymousOptions {
  int32_t RegionFrom = 1, RegionTo = 0;  // RegionTo 0: the last site
  int16_t SelSet1 = 0;
  bool Silent = false;
  // The per-pair table; it is given anyway when coding sites were analyzed.
  bool PairTable = false;
  // 0: a seed from the clock, so that two runs on data with ties may differ.
  int32_t Seed = 0;

  template <class V>
  void Visit(V& v) {
    v.Region(RegionFrom, RegionTo);
    v.SetIndex(SelSet1, {"set", "Sequence Set:", "Sequence set to use (default: all included)"});
    v.Flag(Silent, {"silent", "Silent",
                    "Also count the noncoding positions with the synonymous sites (silent sites)"});
    v.Flag(PairTable, {"pair-table", "Table of pairwise comparisons",
                       "The per-pair table of differences, sites, Ks and Ka (always given when "
                       "coding sites were analyzed)"});
    v.Integer(Seed,
              {"seed", "Seed for tied pathways:",
               "Seed of the random choice among tied pathways and networks (0: from the clock)"},
              0, std::numeric_limits<int32_t>::max());
  }
};

// The dialog's check on OK: the region, first site not above the last, both within the sites.
[[nodiscard]] std::optional<SelectionRefusal> ValidateSynonymousOptions(
    const SynonymousOptions& options, int32_t num_sites);

}  // namespace ovelt
