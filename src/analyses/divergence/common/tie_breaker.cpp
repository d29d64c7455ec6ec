#include "analyses/divergence/common/tie_breaker.h"

namespace ovelt {

namespace {

// A negative seed initialises ran1; it is kept small enough for the generator's first step.
int32_t InitialisingSeed(int64_t seed) {
  const auto folded = static_cast<uint64_t>(seed) % 1000000000ULL;
  return -static_cast<int32_t>(folded) - 1;
}

}  // namespace

TieBreaker::TieBreaker(int64_t seed) : seed_(InitialisingSeed(seed)) {}

int TieBreaker::Pick(int k) {
  if (k <= 1) return 1;
  ++draws_;
  const double u = Ran(seed_, state_);
  const int pick = static_cast<int>(static_cast<double>(k) * u + 1.0);
  return pick > k ? k : pick;
}

}  // namespace ovelt
