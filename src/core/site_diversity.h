#pragma once
// Per-site gene diversity (Nei 1987, unbiased form):
//   h = (1 - sum over A, C, G, T of (count / n)^2) * n / (n - 1)
// for a polymorphic site (classes 1 to 4), with n the sequences in use. Summed over a region it
// gives the average number of nucleotide differences between two sequences (Tajima 1983).
// A site of class 5 stores instead how many sequences in use carry "-" there ("?" does not
// count), which the fixed-gap count reads; a monomorphic site stores 0.

#include <cstdint>
#include <vector>

#include "core/active_data.h"
#include "core/site_counts.h"

namespace ovelt {

// Value of a site of class `site_class` from its counts over `seqs` sequences.
[[nodiscard]] double DiversityFromCounts(const SiteCounts& counts, int32_t seqs,
                                         int16_t site_class);

// Value of one site of `matrix` over its first `seqs` sequences, given the site's class.
[[nodiscard]] double SiteDiversityValue(const SeqMatrix& matrix, int32_t site, int32_t seqs,
                                        int16_t site_class);

// `SiteClass` (as ClassifyAllSites) and `SiteDiversity` of a file just read, whose included
// matrix is its file matrix: both from one pass over the cells.
void ClassifyAndMeasureAllSites(ActiveData& ad);

// `SiteDiversity` over `IncMatrix` (`NumSeqs` sequences) and `SiteClass`.
void ComputeSiteDiversity(ActiveData& ad);

// Diversities of a subset of the included sequences (`seqs` sequences of `matrix`) and its
// classes.
[[nodiscard]] std::vector<double> SubsetDiversities(const ActiveData& ad, const SeqMatrix& matrix,
                                                    int32_t seqs,
                                                    const std::vector<int16_t>& classes);

}  // namespace ovelt
