#include "coalescent/replicate_engine.h"

#include "coalescent/free_recombination.h"
#include "coalescent/statistic_code.h"

namespace ovelt {

ReplicateEngine::ReplicateEngine(const ReplicateSettings& settings)
    : settings_(settings),
      regionSites_(settings.Sites > 0 ? settings.Sites : kDefaultRegionSites),
      needsMatrix_(NeedsHaplotypeMatrix(settings.code)),
      needsPairTable_(NeedsPairTable(settings.code)),
      constants_(ConstantsFor(settings.code, settings.n)) {
  tree_.Allocate(settings.n);
  leaves_.Allocate(settings.n);
  pairs_.Allocate(settings.n);
  if (settings.Recombination == kIntermediateRecombination)
    intermediate_ =
        std::make_unique<IntermediateRecombination>(settings.n, settings.Sites, settings.R);
}

ReplicateEngine::~ReplicateEngine() = default;

void ReplicateEngine::GenerateTree(CoalescentRandom& random) {
  MakeTree(tree_, random);
  MakeTimes(tree_, random);
  if (settings_.GivenSegSites) {
    FixedMutations(tree_, settings_.SegSites, random);
    segSites_ = settings_.SegSites;
  } else {
    segSites_ = PoissonMutations(tree_, settings_.Theta, random);
  }
  leaves_.Build(tree_);
  if (needsPairTable_) {
    PairDifferencesFromTree(tree_, leaves_, pairs_);
  } else {
    PairDifferenceSumFromTree(tree_, leaves_, pairs_);
  }
  if (needsMatrix_) {
    HaplotypeMatrixFromTree(tree_, leaves_, matrix_);
    if (NeedsSiteOrder(settings_.code)) ColumnsInRegionOrder(matrix_, regionSites_, random, columnScratch_);
  }
}

void ReplicateEngine::GenerateWithRecombination(CoalescentRandom& random) {
  const int32_t given = settings_.GivenSegSites ? settings_.SegSites : -1;
  if (settings_.Recombination == kFreeRecombination) {
    FreeRecombinationReplicate(settings_.n, settings_.Theta, given, random.Seed, random.State,
                               random.PoissonCache, matrix_);
  } else {
    intermediate_->Replicate(settings_.Theta, given, random.Seed, random.State,
                             random.PoissonCache, matrix_);
    random.Seed = 1;
  }
  segSites_ = matrix_.Columns();
  PairDifferencesFromMatrix(matrix_, pairs_);
}

std::optional<double> ReplicateEngine::Next(CoalescentRandom& random) {
  if (settings_.Recombination == kNoRecombination) {
    GenerateTree(random);
  } else {
    GenerateWithRecombination(random);
  }
  if (needsMatrix_ && NeedsMajorFlip(settings_.code)) MajorFlip(matrix_, flips_);
  ReplicateData data;
  data.S = segSites_;
  data.Pi = pairs_.PairwiseAverage;
  data.Pairs = &pairs_;
  data.Matrix = &matrix_;
  data.Flips = &flips_;
  return ReplicateStatistic(settings_.code, constants_, data, statisticScratch_);
}

}  // namespace ovelt
