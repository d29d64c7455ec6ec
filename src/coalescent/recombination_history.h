#pragma once
// The ancestral process of the coalescent with recombination over a linear region of sites
// (Hudson 1983): chromosomes carrying segments of ancestral material recombine at rate
// R / (sites - 1) per link and coalesce at rate k (k - 1), k being the number of chromosomes, so
// that time runs in units of 4N generations. Each coalescence writes, in every stretch that both
// chromosomes carry, a new node into that stretch's tree; a stretch whose tree reaches its root
// is no longer carried. The run ends when fewer than two chromosomes remain, by then with every
// tree complete.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "coalescent/recombination_segments.h"
#include "coalescent/recombination_stretches.h"
#include "stats/random.h"

namespace ovelt {

class RecombinationHistory {
 public:
  // `sites` >= 1; with a single site there is no link and R has no effect.
  RecombinationHistory(int32_t n, int32_t sites, double r);

  // The sample at time 0: n chromosomes each carrying the whole region.
  void Start();

  // Events until fewer than two chromosomes are left. Per event: one U for the waiting time
  // -ln(1 - U) / total rate, one U for its kind, then the U's of the recombination or
  // coalescence.
  void Run(int32_t& seed, RandomState& random);

  // One recombination at link `link`, 1 .. LinkCount, the links being counted chromosome after
  // chromosome. A cut inside a segment splits it and adds a breakpoint; a cut in a gap between
  // segments only divides the chromosome.
  void Recombine(int32_t link);

  // The coalescence of chromosomes a < b at `CurrentTime`: the result takes a's slot, b's slot
  // is filled from the end (both are, b first, when the result carries nothing).
  void Coalesce(int32_t a, int32_t b);

  [[nodiscard]] int32_t ChromosomeCount() const { return chromosome_count_; }
  [[nodiscard]] int32_t DemeCounts() const { return chromosome_count_; }  // one deme
  [[nodiscard]] const AncestralChromosome& Chromosome(int32_t i) const {
    return chromosomes_[static_cast<std::size_t>(i)];
  }
  [[nodiscard]] int32_t LinkCount() const { return link_count_; }
  [[nodiscard]] double CurrentTime() const { return current_time_; }
  void SetCurrentTime(double time) { current_time_ = time; }
  [[nodiscard]] int32_t SitesInRegion() const { return sites_; }
  [[nodiscard]] const RecombinationStretches& Stretches() const { return stretches_; }

 private:
  void Remove(int32_t i);

  int32_t n_;
  int32_t sites_;
  double rate_per_link_;
  std::vector<AncestralChromosome> chromosomes_;
  int32_t chromosome_count_ = 0;
  int32_t link_count_ = 0;
  double current_time_ = 0.0;
  RecombinationStretches stretches_;
  std::vector<Segment> result_;  // scratch for the coalescing pair, swapped into place
};

}  // namespace ovelt
