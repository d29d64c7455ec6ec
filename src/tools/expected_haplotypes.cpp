#include "tools/expected_haplotypes.h"

namespace ovelt {

double ExpectedHaplotypes(int32_t n, double theta) {
  double expected = 0;
  for (int32_t i = 0; i < n; ++i) expected += theta / (theta + i);
  return expected;
}

}  // namespace ovelt
