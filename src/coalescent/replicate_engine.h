#pragma once
// Draws the replicates of one coalescent run and gives the statistic of each. The tables are
// sized once, when the engine is made, and reused by every replicate.
//
// Without recombination a replicate is: the topology, the times, the mutations (Poisson with
// theta, or the given S), the pair differences, and, for the statistics on the haplotype
// matrix, the matrix (with its columns put in site order for the statistics that depend on the
// order of sites). With free or intermediate recombination the matrix comes from the
// recombination generators and the pair differences from the matrix.

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "coalescent/coalescent_random.h"
#include "coalescent/genealogy.h"
#include "coalescent/haplotype_from_tree.h"
#include "coalescent/haplotype_matrix.h"
#include "coalescent/intermediate_recombination.h"
#include "coalescent/leaf_order.h"
#include "coalescent/pair_differences.h"
#include "coalescent/replicate_statistic.h"

namespace ovelt {

inline constexpr int16_t kNoRecombination = 0;
inline constexpr int16_t kFreeRecombination = 1;
inline constexpr int16_t kIntermediateRecombination = 2;
// The region of the statistics that depend on site order when no length is given.
inline constexpr int32_t kDefaultRegionSites = 1000;

struct ReplicateSettings {
  int32_t n = 10;
  bool GivenSegSites = false;
  double Theta = 12.0;
  int32_t SegSites = 0;
  int code = 0;  // without the 1000
  int16_t Recombination = kNoRecombination;
  double R = 0.0;
  int32_t Sites = 0;  // 0: kDefaultRegionSites
};

class ReplicateEngine {
 public:
  explicit ReplicateEngine(const ReplicateSettings& settings);
  ~ReplicateEngine();
  ReplicateEngine(const ReplicateEngine&) = delete;
  ReplicateEngine& operator=(const ReplicateEngine&) = delete;

  // Draws one replicate; the statistic, or nullopt when the replicate failed.
  std::optional<double> Next(CoalescentRandom& random);

  // What the last replicate left.
  [[nodiscard]] int32_t SegSites() const { return segSites_; }
  [[nodiscard]] double PairwiseAverage() const { return pairs_.PairwiseAverage; }
  [[nodiscard]] const Genealogy& Tree() const { return tree_; }
  [[nodiscard]] const LeafOrder& Leaves() const { return leaves_; }
  [[nodiscard]] const PairDifferenceTable& Pairs() const { return pairs_; }
  [[nodiscard]] const HaplotypeMatrix& Matrix() const { return matrix_; }
  [[nodiscard]] const StatisticConstants& Constants() const { return constants_; }

 private:
  void GenerateTree(CoalescentRandom& random);
  void GenerateWithRecombination(CoalescentRandom& random);

  ReplicateSettings settings_;
  int32_t regionSites_;
  bool needsMatrix_;
  bool needsPairTable_;
  StatisticConstants constants_;
  Genealogy tree_;
  LeafOrder leaves_;
  PairDifferenceTable pairs_;
  HaplotypeMatrix matrix_;
  std::vector<int16_t> flips_;
  ColumnOrderScratch columnScratch_;
  StatisticScratch statisticScratch_;
  std::unique_ptr<IntermediateRecombination> intermediate_;
  int32_t segSites_ = 0;
};

}  // namespace ovelt
