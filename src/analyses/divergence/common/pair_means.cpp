#include "analyses/divergence/common/pair_means.h"

#include <cmath>

namespace ovelt {

std::optional<double> JukesCantorOf(double p) {
  const double x = 4.0 / 3.0 * p;
  if (!(x < 1.0)) return std::nullopt;
  if (x <= 0.0) return 0.0;  // no difference: a distance of 0, not -0
  return -0.75 * std::log(1.0 - x);
}

PairMean MeanOverPairs(const PairTable& differences,
                       const std::function<float(int32_t, int32_t)>& sites) {
  PairMean mean;
  float sum = 0.0F;
  float sum_jc = 0.0F;
  for (int32_t i = 1; i < differences.Seqs(); ++i) {
    for (int32_t j = i + 1; j <= differences.Seqs(); ++j) {
      const float s = sites(i, j);
      if (!(s > 0.0F)) continue;
      const float p = differences.At(i, j) / s;
      sum += p;
      ++mean.Pairs;
      if (const auto jc = JukesCantorOf(p)) {
        sum_jc = static_cast<float>(static_cast<double>(sum_jc) + *jc);
        ++mean.JukesCantorPairs;
      }
    }
  }
  if (mean.Pairs > 0) mean.Mean = sum / static_cast<float>(mean.Pairs);
  if (mean.JukesCantorPairs > 0)
    mean.JukesCantor = sum_jc / static_cast<float>(mean.JukesCantorPairs);
  return mean;
}

}  // namespace ovelt
