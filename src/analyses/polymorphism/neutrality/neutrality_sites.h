#pragma once
// What the neutrality tests read of each site of the first selection, tallied once per run so
// that the whole region and every sliding window sum the same records: the nucleotides present,
// the singletons (`SingletonCount`), and, against an outgroup taken as the ancestral state, the
// singletons on external branches (`ExternalCount`) and the frequencies of the derived nucleotides.
//
// A site is used when no sequence in use has a gap or missing data there. With an outgroup it must
// also carry one nucleotide in every outgroup sequence (`OutgroupUsable`); a site polymorphic in
// the ingroup is ambiguous, and left out, when that nucleotide is absent from the ingroup or the
// outgroup sequences disagree.

#include <array>
#include <cstdint>
#include <vector>

#include "analyses/polymorphism/windows/sliding_window.h"
#include "core/selection.h"

namespace ovelt {

struct SiteTally {
  bool Used = false;       // counts in the statistics
  int16_t Variants = 0;    // nucleotides present in the ingroup (0 at an unused site)
  int16_t Singletons = 0;  // nucleotides present exactly once
  int16_t External = 0;    // singletons absent from the outgroup (outgroup tallies only)
  double Diversity = 0.0;  // gene diversity of the site (its share of k)
  // Sequences carrying each nucleotide other than the outgroup's, largest first (outgroup
  // tallies only; 0 where fewer nucleotides are derived).
  std::array<int32_t, 3> Derived{};
};

struct SiteTallies {
  int32_t From = 0, To = 0;
  std::vector<SiteTally> Sites;  // by site number, index 0 unused; From..To filled
  // Site classes for the window geometry: the selection's classes, with 5 also where an
  // outgroup sequence has a gap or missing data.
  SiteClasses Classes;
  std::vector<int32_t> AmbiguousSites;  // polymorphic sites with no usable outgroup state
};

// `SingletonCount`: nucleotides (A, C, G, T) present exactly once among the first `seqs`
// sequences of `matrix` at `site`.
[[nodiscard]] int32_t SingletonCount(const SeqMatrix& matrix, int32_t site, int32_t seqs);

// The one nucleotide that all `seqs` sequences of `outgroup` carry at `site`, or 0 when one of
// them has a gap or missing data there, or they differ.
[[nodiscard]] char OutgroupState(const SeqMatrix& outgroup, int32_t site, int32_t seqs);

// `ExternalCount`: nucleotides present exactly once among the first `seqs` sequences of
// `matrix` at `site` and other than the outgroup's nucleotide `outgroup_state`.
[[nodiscard]] int32_t ExternalCount(const SeqMatrix& matrix, int32_t site, int32_t seqs,
                                    char outgroup_state);

// `OutgroupUsable`: the outgroup carries one nucleotide at `site` (`OutgroupState` not 0) and,
// when the ingroup (the first `seqs` sequences of `ingroup`) is polymorphic there, that
// nucleotide is among the ingroup's.
[[nodiscard]] bool OutgroupUsable(const SeqMatrix& ingroup, int32_t seqs, const SeqMatrix& outgroup,
                                  int32_t outgroup_seqs, int32_t site);

// Over from..to of the first selection (classes and diversities filled).
[[nodiscard]] SiteTallies TallySites(const Selection& sel, int32_t from, int32_t to);

// Over from..to of the first selection (classes and diversities filled) against the second
// selection as the outgroup.
[[nodiscard]] SiteTallies TallySitesWithOutgroup(const Selection& sel, int32_t from, int32_t to);

}  // namespace ovelt
