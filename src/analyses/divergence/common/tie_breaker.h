#pragma once
// The random choice among tied pathways or tied networks of a codon classification: Int(k x U +
// 1), U uniform in [0, 1) from the workbench's own generator (ran1, stats/random.h). The caller
// owns it and seeds it: the tests with fixed seeds, a run of the workbench from the clock, so two
// runs on data with ties may classify a column differently, as they are meant to.

#include <cstdint>

#include "stats/random.h"

namespace ovelt {

class TieBreaker {
 public:
  // Equal seeds give equal choices; every seed is valid.
  explicit TieBreaker(int64_t seed);
  // One of 1..k (k of 1 or less gives 1 without a draw).
  int Pick(int k);
  // Draws made so far.
  [[nodiscard]] int64_t Draws() const { return draws_; }

 private:
  int32_t seed_;
  RandomState state_;
  int64_t draws_ = 0;
};

}  // namespace ovelt
