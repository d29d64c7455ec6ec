#pragma once
// Nucleotide diversity corrected for multiple hits (Jukes and Cantor 1969): the mean over pairs
// of sequences of -(3/4) ln(1 - x), x = 4 d / (3 L), d the differences of the pair at sites of
// class 1 to 4 and L the net sites. A saturated pair (x of 1 or more) is left out of both the
// sum and the count of pairs; with no usable pair Pi(JC) is not determined (none; the report
// prints 0).

#include <cstdint>
#include <optional>

#include "analyses/polymorphism/common/pairwise_counts.h"
#include "analyses/polymorphism/common/poly_gauge.h"

namespace ovelt {

inline const char* const kJukesCantorFailure =
    "Error computing Nucleotide Diversity with Jukes and Cantor correction";

// From the differences of every pair (PairwiseDifferences).
[[nodiscard]] std::optional<double> PiJukesCantor(const PairCounts& d, int32_t net_sites,
                                                  const PolyGauge& gauge = {});
// Over from..to of the first selection, with L = `net_sites` (above 0).
[[nodiscard]] std::optional<double> PiJukesCantor(const Selection& sel, int32_t from, int32_t to,
                                                  int32_t net_sites, const PolyGauge& gauge = {});

}  // namespace ovelt
