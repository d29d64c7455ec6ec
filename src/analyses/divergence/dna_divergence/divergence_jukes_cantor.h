#pragma once
// Pi(1), Pi(2), Dxy and Da with the Jukes and Cantor (1969) correction, as means over the pairs
// of sequences of their distances. For a pair with d differences over the L sites of the region
// without a gap in either population, x = 4d / (3L); below 1 the pair's distance is
// -(3/4) ln(1 - x) and it enters the mean, at 1 or above it is left out and its cell stays 0.
// The pairs are compared on compressed sequences: only the sites where `SiteDxy` is above 0
// (every site polymorphic within a population is one of them) can hold a difference.

#include <cstdint>
#include <optional>
#include <vector>

#include "analyses/divergence/dna_divergence/pair_matrix.h"
#include "command/progress.h"
#include "core/selection.h"

namespace ovelt {

struct DivergenceJukesCantor {
  PairMatrix PairJC1, PairJC2;  // n1 x n1 and n2 x n2, symmetric
  PairMatrix PairJCxy;          // n1 x n2
  // Means over the pairs that count; none when no pair counts.
  std::optional<float> Pi1JC, Pi2JC, DxyJC;
  // DxyJC - (Pi1JC + Pi2JC) / 2; a population of one sequence counts 0 within, a within mean
  // left undetermined by its distances leaves DaJC undetermined too.
  std::optional<float> DaJC;
};

// The sequences of each population at the sites of `from`..`to` where `site_dxy` is above 0,
// as rows of cells (index 0 unused).
[[nodiscard]] std::vector<std::vector<char>> CompressedSequences(
    const SeqMatrix& matrix, int32_t seqs, const std::vector<double>& site_dxy, int32_t from,
    int32_t to);

// Over `from`..`to` of the two classified selections of `sel`, with `net_sites` (L) at least 1.
[[nodiscard]] DivergenceJukesCantor ComputeDivergenceJukesCantor(
    const Selection& sel, const std::vector<double>& site_dxy, int32_t from, int32_t to,
    int32_t net_sites, const Progress& progress = {});

}  // namespace ovelt
