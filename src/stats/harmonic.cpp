#include "stats/harmonic.h"

namespace ovelt {

double HarmonicA1Double(int32_t n) {
  double sum = 0.0;
  for (int32_t i = 1; i < n; ++i) sum += 1.0 / i;
  return sum;
}

float HarmonicA1(int32_t n) { return static_cast<float>(HarmonicA1Double(n)); }

}  // namespace ovelt
