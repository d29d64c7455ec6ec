#include "coalescent/free_recombination.h"

#include <vector>

#include "stats/harmonic.h"

namespace ovelt {
namespace {

// The smallest k in 1 .. n-1 whose partial harmonic sum reaches x. The sum is formed in the
// same order as a1 itself, so every x below a1 finds its k.
int32_t MutantFrequency(int32_t n, double x) {
  double sum = 0.0;
  for (int32_t k = 1; k < n; ++k) {
    sum += 1.0 / k;
    if (sum >= x) return k;
  }
  return n - 1;
}

// Sets `count` distinct rows, drawn without replacement, to `value`.
void MarkRandomRows(int32_t n, int32_t count, int16_t value, int16_t* column,
                    std::vector<int32_t>& pool, int32_t& seed, RandomState& random) {
  for (int32_t i = 0; i < n; ++i) pool[static_cast<std::size_t>(i)] = i;
  int32_t remaining = n;
  for (int32_t drawn = 0; drawn < count; ++drawn) {
    const auto j = static_cast<int32_t>(remaining * Ran(seed, random));
    column[pool[static_cast<std::size_t>(j)]] = value;
    pool[static_cast<std::size_t>(j)] = pool[static_cast<std::size_t>(remaining - 1)];
    --remaining;
  }
}

}  // namespace

void FreeRecombinationReplicate(int32_t n, double theta, int32_t segsites, int32_t& seed,
                                RandomState& random, PoissonState& poisson, HaplotypeMatrix& out) {
  const double a1 = HarmonicA1Double(n);
  const int32_t columns =
      segsites >= 0 ? segsites
                    : static_cast<int32_t>(PoissonDeviate(theta * a1, seed, random, poisson));
  out.Reset(n, columns);
  if (n < 2) return;
  std::vector<int32_t> pool(static_cast<std::size_t>(n));
  for (int32_t c = 0; c < columns; ++c) {
    const int32_t k = MutantFrequency(n, Ran(seed, random) * a1);
    int16_t* column = out.Column(c);
    // The rarer state is the one drawn, which halves the draws for common mutants.
    if (2 * k <= n) {
      MarkRandomRows(n, k, 1, column, pool, seed, random);
    } else {
      for (int32_t row = 0; row < n; ++row) column[row] = 1;
      MarkRandomRows(n, n - k, 0, column, pool, seed, random);
    }
  }
}

}  // namespace ovelt
