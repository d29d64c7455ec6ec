#pragma once
// Site classes (`SiteInfo`): how many nucleotide variants a site carries among the sequences in
// use, or 5 when one of them has a gap or missing data there. Computed once per change of the
// sequences in use and then read by every statistic.

#include <cstdint>
#include <vector>

#include "core/active_data.h"
#include "core/site_counts.h"

namespace ovelt {

// Class of one site over all `seqs` sequences of `matrix`, from scratch: the first cell decides
// a gap at once, a site whose cells all equal the first is monomorphic, otherwise its
// cells are counted and any gap or missing cell makes it class 5.
[[nodiscard]] int16_t ClassifyColumn(const SeqMatrix& matrix, int32_t site, int32_t seqs);

// Class of one site over the sequences of a subset, given its class over a larger set
// (`wider_class`): monomorphic there means monomorphic here, and with `gaps_in_sets` 2 a gap
// there means a gap here. Otherwise the four nucleotides of the subset are counted.
[[nodiscard]] int16_t ClassifySubsetColumn(const SeqMatrix& matrix, int32_t site, int32_t seqs,
                                           int16_t wider_class, int16_t gaps_in_sets);

// Class of a site from its counts over `seqs` sequences: 5 when any of them is not a nucleotide
// there, as ClassifyColumn.
[[nodiscard]] int16_t ClassFromCounts(const SiteCounts& counts, int32_t seqs);

// Load step 1: `SiteClass` over the first `NumSeqs` sequences of `RawMatrix`.
void ClassifyAllSites(ActiveData& ad);

// `SiteClass` of the included sequences (`IncMatrix`), from `RawSiteClass` under `GapsInSets`.
void ReclassifyIncluded(ActiveData& ad);

// Classes of a subset of the included sequences (`seqs` sequences of `matrix`), from `SiteClass`.
[[nodiscard]] std::vector<int16_t> SubsetClasses(const ActiveData& ad, const SeqMatrix& matrix,
                                                 int32_t seqs);

}  // namespace ovelt
