#pragma once
// One replicate under free recombination: every segregating site has its own independent
// genealogy, so each column is drawn alone from the neutral distribution of the mutant count
// of a site, P(k) = (1/k) / a1 for k = 1 .. n-1 (Watterson 1975; Fu 1995).
//
// S is the given `segsites` when that is 0 or more, else a Poisson deviate of mean theta a1,
// a1 summed in 64 bits. The matrix is reset to n rows by S columns; S = 0 leaves it without
// columns, and fewer than 2 sequences leave every cell 0.

#include <cstdint>

#include "coalescent/haplotype_matrix.h"
#include "stats/poisson.h"
#include "stats/random.h"

namespace ovelt {

// Fills `out` with n rows and S columns. Draws from the run's one stream: the Poisson deviate
// for S (theta given only), then per column one U for the frequency k and min(k, n-k) U for
// the rows that differ from the column's starting value.
void FreeRecombinationReplicate(int32_t n, double theta, int32_t segsites, int32_t& seed,
                                RandomState& random, PoissonState& poisson, HaplotypeMatrix& out);

}  // namespace ovelt
