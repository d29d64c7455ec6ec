#include "core/gap_settings.h"

#include "core/gap_update.h"

namespace ovelt {

Form17Face Form17FaceFor(int16_t analysis) {
  switch (analysis) {
    case kGapsInWindowCommand:
      return {"Sliding Window Options", "Gaps in Sliding Window",
              "* Sites with alignment gaps are considered.",
              "Sites with alignment gaps are not considered in the length of the windows "
              "(i.e., all windows have the same net number of nucleotides)."};
    case kSegSitesMutationsCommand:
      return {"Segregating Sites / Number of Mutations", "Nucleotide Substitutions Considered",
              "Use the total number of segregating sites", "Use the total number of mutations"};
    case kGapsInSetsCommand:
      return {"Gaps in Sequence Sets", "Gaps/Missing Info. in Sequence Sets",
              "Sites with alignment gaps are excluded if they are present in the active subset",
              "Sites with alignment gaps in the complete data file are excluded in all subsets"};
    default:
      return {};
  }
}

int Form17CurrentChoice(const ActiveData& ad, int16_t analysis) {
  switch (analysis) {
    case kGapsInWindowCommand: return ad.GapsInWindow ? 1 : 2;
    case kSegSitesMutationsCommand: return ad.UseMutations ? 2 : 1;
    case kGapsInSetsCommand: return ad.GapsInSets == 2 ? 2 : 1;
    default: return 0;
  }
}

void ApplyForm17(ActiveData& ad, int16_t analysis, int choice) {
  if (choice != 1 && choice != 2) return;
  switch (analysis) {
    case kGapsInWindowCommand:
      ad.GapsInWindow = choice == 1;
      break;
    case kSegSitesMutationsCommand:
      ad.UseMutations = choice == 2;
      break;
    case kGapsInSetsCommand: {
      const auto gaps_in_sets = static_cast<int16_t>(choice);
      if (gaps_in_sets == ad.GapsInSets) return;
      ad.GapsInSets = gaps_in_sets;
      // With every sequence included the file's classes are the included ones either way.
      if (ad.NumSeqs < ad.TotalSeqs) ActualizaCambiosGaps(ad);
      break;
    }
    default:
      break;
  }
}

}  // namespace ovelt
