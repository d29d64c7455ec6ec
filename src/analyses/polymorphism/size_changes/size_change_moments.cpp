#include "analyses/polymorphism/size_changes/size_change_moments.h"

#include <cmath>

namespace ovelt {

MomentEstimates EstimateByMoments(double k, double var_k) {
  MomentEstimates e;
  e.Tau = var_k - k > 0.0 ? std::sqrt(var_k - k) : 0.0;
  e.ThetaInitial = k - e.Tau;
  if (e.ThetaInitial < 0.0) e.ThetaInitial = 0.0;
  return e;
}

}  // namespace ovelt
