#pragma once
// The per-pair table of "Synonymous and NonSyn. Substitutions": for each pair of sequences i < j
// the names (first ten characters), the synonymous (or, with the silent option, silent)
// differences and sites with Ks, and the nonsynonymous ones with Ka. Ks and Ka are the Jukes and
// Cantor distances of differences over sites, "  n.a." where they do not apply.

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "analyses/divergence/synonymous/synonymous_compute.h"

namespace ovelt {

[[nodiscard]] std::vector<std::string> SynonymousPairTitles(bool silent);

// The head of the table in saved output.
[[nodiscard]] std::string SynonymousPairTextHead(bool silent);

// The pair (i, j) of row `row` (0-based) among the n(n - 1)/2 rows (1, 2), (1, 3), ... (2, 3) ...
[[nodiscard]] std::pair<int32_t, int32_t> PairOfRow(int32_t n, int64_t row);

[[nodiscard]] std::vector<std::string> SynonymousPairCells(const SynonymousResult& result,
                                                           int32_t i, int32_t j);

}  // namespace ovelt
