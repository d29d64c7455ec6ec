#include "stats/jukes_cantor.h"

#include <cmath>

namespace ovelt {

double JukesCantor(double& p) {
  const double x = 4.0 * p / 3.0;
  p = x;
  if (x >= 1.0) return kJukesCantorSaturated;
  // Adding 0 turns the -0 of p = 0 into +0, which prints without a sign.
  return -(3.0 / 4.0) * std::log(1.0 - x) + 0.0;
}

}  // namespace ovelt
