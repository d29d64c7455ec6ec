#pragma once
// Psi, the number of informative nucleotide sites per site (Betrán et al. 1997), site by site.
//
// From the nucleotide counts c1, c2 of a site (n1 and n2 sequences), for each of A, T, C, G:
//   a = (c2/n2 (n2 - 1) + 1) / n2,  b = c1/n1:  b counts when a <= 0.2 and b >= 3a;
//   a = (c1/n1 (n1 - 1) + 1) / n1,  b = c2/n2:  b counts likewise;
// and Psi = half the sum of the b that count. a is the share of the nucleotide in the other
// population once one of its lines is replaced by the nucleotide: the chance that a conversion
// from this population could be seen there.

#include <cstdint>
#include <vector>

#include "analyses/divergence/gene_conversion/conversion_tracts.h"
#include "analyses/divergence/gene_conversion/nucleotide_counts.h"
#include "core/selection.h"

namespace ovelt {

[[nodiscard]] double PsiFromCounts(const NucleotideCounts& c1, int32_t n1,
                                   const NucleotideCounts& c2, int32_t n2);

// The first pass over from..to, at every site whose value is not -1: a site monomorphic in
// both populations for different nucleotides gives 1 with five sequences or more in each, 1/2
// with five or more in only one; a site with a gap in either population, or monomorphic for the
// same nucleotide, gives 0; any other site `PsiFromCounts`.
void FirstPsiPass(const Selection& sel, int32_t from, int32_t to, std::vector<double>& psi);

// The second pass, at the sites of the tracts: the lines of a tract at a site count as carrying
// their population's most common nucleotide there (A first, then a strictly greater T, C, G).
void TractPsiPass(const Selection& sel, const std::vector<TractSite>& sites,
                  std::vector<double>& psi);

}  // namespace ovelt
