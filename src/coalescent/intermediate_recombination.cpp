#include "coalescent/intermediate_recombination.h"

#include "coalescent/recombination_mutations.h"

namespace ovelt {
namespace {

constexpr int32_t kSitesWithoutRecombination = 1000;

// Without recombination the region's length only scales the mutation means, and an unset
// length (0) is taken as 1000 sites as well.
int32_t RegionSites(int32_t sites, double r) {
  return r == 0.0 || sites <= 0 ? kSitesWithoutRecombination : sites;
}

}  // namespace

IntermediateRecombination::IntermediateRecombination(int32_t n, int32_t sites, double r)
    : n_(n), sites_(RegionSites(sites, r)), history_(n, RegionSites(sites, r), r) {}

void IntermediateRecombination::Replicate(double theta, int32_t segsites, int32_t& seed,
                                          RandomState& random, PoissonState& poisson,
                                          HaplotypeMatrix& out) {
  history_.Start();
  history_.Run(seed, random);

  const RecombinationStretches& stretches = history_.Stretches();
  const int32_t count = stretches.StretchCount();
  mutations_.assign(static_cast<std::size_t>(count), 0);
  tree_lengths_.resize(static_cast<std::size_t>(count));
  for (int32_t k = 0; k < count; ++k) {
    tree_lengths_[static_cast<std::size_t>(k)] = stretches.TreeLength(stretches.EntryAt(k));
  }
  int32_t total = 0;
  if (segsites < 0) {
    for (int32_t k = 0; k < count; ++k) {
      const double mean =
          theta * stretches.Length(k) / sites_ * tree_lengths_[static_cast<std::size_t>(k)];
      const auto m = static_cast<int32_t>(PoissonDeviate(mean, seed, random, poisson));
      mutations_[static_cast<std::size_t>(k)] = m;
      total += m;
    }
  } else {
    weights_.resize(static_cast<std::size_t>(count));
    for (int32_t k = 0; k < count; ++k) {
      weights_[static_cast<std::size_t>(k)] =
          tree_lengths_[static_cast<std::size_t>(k)] * stretches.Length(k);
    }
    SpreadFixedMutations(weights_, segsites, seed, random, cumulative_, mutations_);
    total = segsites;
  }

  out.Reset(n_, total);
  int32_t column = 0;
  for (int32_t k = 0; k < count; ++k) {
    const int32_t entry = stretches.EntryAt(k);
    const int32_t m = mutations_[static_cast<std::size_t>(k)];
    if (m == 0) continue;
    const double length = tree_lengths_[static_cast<std::size_t>(k)];
    for (int32_t i = 0; i < m; ++i) {
      const int32_t node = stretches.BranchAt(entry, Ran(seed, random) * length);
      MarkDescendants(stretches, entry, node, out.Column(column++), stack_);
    }
  }
}

}  // namespace ovelt
