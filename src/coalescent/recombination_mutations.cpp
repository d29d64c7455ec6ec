#include "coalescent/recombination_mutations.h"

#include <algorithm>
#include <iterator>

namespace ovelt {

void SpreadFixedMutations(std::span<const double> weights, int32_t total, int32_t& seed,
                          RandomState& random, std::vector<double>& cumulative,
                          std::span<int32_t> counts) {
  std::fill(counts.begin(), counts.end(), 0);
  if (weights.empty()) return;
  // The running sums in the order of a walk along the weights, so that a bisection finds the
  // same position as the walk.
  cumulative.resize(weights.size());
  double sum = 0.0;
  for (std::size_t i = 0; i < weights.size(); ++i) cumulative[i] = sum += weights[i];
  for (int32_t m = 0; m < total; ++m) {
    const double x = Ran(seed, random) * sum;
    auto found = std::lower_bound(cumulative.begin(), cumulative.end(), x);
    if (found == cumulative.end()) --found;  // rounding only
    ++counts[static_cast<std::size_t>(std::distance(cumulative.begin(), found))];
  }
}

void MarkDescendants(const RecombinationStretches& stretches, int32_t entry, int32_t node,
                     int16_t* column, std::vector<int32_t>& stack) {
  const int32_t n = stretches.SampleSize();
  const int16_t* childOne = stretches.Links(entry, 1);
  const int16_t* childTwo = stretches.Links(entry, 2);
  // A subtree holds at most n - 1 internal nodes, so the stack never passes n entries.
  if (stack.size() < static_cast<std::size_t>(n) + 1) stack.resize(static_cast<std::size_t>(n) + 1);
  int32_t* top = stack.data();
  *top++ = node;
  while (top != stack.data()) {
    const int32_t current = *--top;
    if (current < n) {
      column[current] = 1;
    } else {
      *top++ = childOne[current];
      *top++ = childTwo[current];
    }
  }
}

}  // namespace ovelt
