#pragma once
// One replicate of the coalescent with intermediate recombination (Hudson 1983): n sequences
// of `sites` sites with recombination parameter R = 4Nr per gene. The ancestral process gives
// one genealogy per stretch between breakpoints; mutations are then placed stretch by stretch
// (Poisson with theta, or a given S spread by tree length x sites) and each becomes one
// 0/1 column, columns in site order of their stretches.
//
// The run's driver calls Replicate once per replicate on one object, so the tables are
// allocated once, and sets its seed variable to 1 after each call. R = 0 (or a region of 0
// sites) takes the region as 1000 sites; with R = 0 there is a single genealogy. S = 0 leaves
// the matrix without columns; a region of one site has no link, so R has no effect there.

#include <cstdint>
#include <vector>

#include "coalescent/haplotype_matrix.h"
#include "coalescent/recombination_history.h"
#include "stats/poisson.h"
#include "stats/random.h"

namespace ovelt {

class IntermediateRecombination {
 public:
  IntermediateRecombination(int32_t n, int32_t sites, double r);

  // Fills `out` with n rows and S columns; S is `segsites` when that is 0 or more, else drawn
  // with theta. Draws: the ancestral process, then the Poisson counts of the stretches (theta)
  // or one U per mutation for its stretch (S), then one U per mutation for its branch.
  void Replicate(double theta, int32_t segsites, int32_t& seed, RandomState& random,
                 PoissonState& poisson, HaplotypeMatrix& out);

  // The state left by the last replicate.
  [[nodiscard]] const RecombinationHistory& History() const { return history_; }
  // Mutations per stretch, in site order.
  [[nodiscard]] const std::vector<int32_t>& StretchMutations() const { return mutations_; }

 private:
  int32_t n_;
  int32_t sites_;
  RecombinationHistory history_;
  std::vector<int32_t> mutations_;
  std::vector<double> tree_lengths_;  // per stretch, in site order
  std::vector<double> weights_;
  std::vector<double> cumulative_;
  std::vector<int32_t> stack_;
};

}  // namespace ovelt
