#include "analyses/recombination/hudson_g.h"

#include <cmath>

namespace ovelt {

double HudsonG(double c, int32_t n) {
  const double s = std::sqrt(97.0);
  const double nn = static_cast<double>(n);
  const double l = std::log(((13.0 + s) * (13.0 + 2.0 * c - s)) /
                            ((13.0 - s) * (13.0 + 2.0 * c + s))) /
                   s;
  const double m = std::log((c * c + 13.0 * c + 18.0) / 18.0) / 2.0 - 13.0 * l / 2.0;
  const double a1 = (c - 1.0) * m - c + (7.0 * c + 9.0) * 2.0 * l;
  const double a2 = (c * c / 2.0 + c + (2.0 - c) * m - 18.0 * l * (c + 1.0)) / nn;
  const double a3 =
      (-c * c / 2.0 + 2.0 * c - 2.0 * m * (c + 9.0) - 4.0 * l * (2.0 * c + 9.0)) / (nn * nn);
  const double a4 = (-2.0 * c + 2.0 * m * (c + 7.0) + 12.0 * l * (c + 3.0)) / (nn * nn * nn);
  return 2.0 * (a1 + a2 + a3 + a4) / (c * c);
}

}  // namespace ovelt
