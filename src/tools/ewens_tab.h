#pragma once
// The Ewens tab of "Discrete Distributions": for a sample of n sequences with h haplotypes and
// a theta typed by the user, the probability of exactly h haplotypes under the infinite-alleles
// model (Ewens 1972), Strobeck's S = P[K <= h] (Strobeck 1987), the expected number of
// haplotypes and Fu's Fs (Fu 1997).
//
// The Ewens probabilities and Fs come from the one routine that Fu's Fs of the neutrality tests
// uses (high-precision sums); the tool receives it from its caller as an EwensTailSource, so that
// the calculators depend on no analysis.

#include <cstdint>
#include <functional>
#include <optional>

#include "tools/distribution_check.h"

namespace ovelt {

// What the source gives for (n, h, theta): P[K = h], Strobeck's S = P[K <= h] and Fu's Fs,
// none when Fs is out of range (tails beyond what the logarithms tell apart). Called with
// 2 <= n <= 500, 1 <= h <= n, theta > 0.
struct EwensTail {
  double PEqual = 0;
  double StrobeckS = 0;
  std::optional<double> Fs;
};
using EwensTailSource = std::function<EwensTail(int32_t n, int32_t h, double theta)>;

struct EwensResult {
  double PEqual = 0;
  double StrobeckS = 0;
  double Expected = 0;  // E[NHap]
  std::optional<double> Fs;
};

[[nodiscard]] EwensResult ComputeEwens(const EwensInput& input, const EwensTailSource& tail);

}  // namespace ovelt
