#pragma once
// Means over the pairs of sequences of a proportion of differing sites, and of its Jukes and
// Cantor (1969) distance. For each pair with sites above 0, p = differences / sites enters the
// mean of p; with x = 4p/3 below 1 the pair also enters the mean of -(3/4) ln(1 - x), which a
// pair of x of 1 or above leaves. Each mean divides by its own count of pairs, and is not
// determined when that count is 0. Sums are kept in 32-bit floats.

#include <cstdint>
#include <functional>
#include <optional>

#include "analyses/divergence/common/pair_table.h"

namespace ovelt {

struct PairMean {
  std::optional<float> Mean;
  std::optional<float> JukesCantor;
  int32_t Pairs = 0;              // pairs in the mean
  int32_t JukesCantorPairs = 0;   // pairs in the Jukes and Cantor mean
};

// `sites(i, j)`: the sites of pair i < j.
[[nodiscard]] PairMean MeanOverPairs(const PairTable& differences,
                                     const std::function<float(int32_t, int32_t)>& sites);

// The Jukes and Cantor distance of a proportion p: -(3/4) ln(1 - 4p/3), none when 4p/3 is 1 or
// more.
[[nodiscard]] std::optional<double> JukesCantorOf(double p);

}  // namespace ovelt
