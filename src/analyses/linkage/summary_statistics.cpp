#include "analyses/linkage/summary_statistics.h"

namespace ovelt {

int DistinctHaplotypes(const HaplotypePairCounts& h) {
  int found = 0;
  for (const int32_t count : {h.h11, h.h12, h.h21, h.h22}) {
    if (count > 0 && ++found == 3) break;
  }
  return found;
}

void SummaryGatherer::AddAdjacent(double r2, const HaplotypePairCounts& h) {
  adjacent_r2_ += r2;
  if (DistinctHaplotypes(h) == 2) {
    ++congruent_;
    run_open_ = true;
  } else if (run_open_) {
    ++partitions_;
    run_open_ = false;
  }
}

LinkageSummaries SummaryGatherer::Finish(int32_t sites) {
  if (run_open_) {
    ++partitions_;
    run_open_ = false;
  }
  const double s = sites;
  const double pairs = s * (s - 1.0) / 2.0;
  LinkageSummaries out;
  out.ZnS = all_r2_ / pairs;
  out.Za = adjacent_r2_ / (s - 1.0);
  out.ZZ = out.Za - out.ZnS;
  out.WallB = congruent_ / (s - 1.0);
  out.WallQ = (congruent_ + partitions_) / s;
  return out;
}

}  // namespace ovelt
