#include "analyses/polymorphism/size_changes/raggedness_statistic.h"

#include "stats/raggedness.h"

namespace ovelt {

double Raggedness(const MismatchDistribution& m) {
  return RaggednessFromHistogram(m.Mismatch, m.Pairs);
}

}  // namespace ovelt
