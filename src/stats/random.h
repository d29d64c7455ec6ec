#pragma once
// The uniform generator ran1 of the first edition of Numerical Recipes (Press et al. 1986):
// three linear congruential generators, two of which make a high- and low-order part of each
// number, the third choosing where in a shuffle table of 97 numbers the next one comes from.
//
// The state lives in a RandomState owned by the caller, so that two simulations never share
// one stream. A call with a negative seed, or the first call on a fresh state, initialises the
// state from the seed and sets the seed to 1; equal seeds give equal streams.

#include <array>
#include <cstdint>

namespace ovelt {

struct RandomState {
  int16_t Initialised = 0;
  int32_t Ix1 = 0;
  int32_t Ix2 = 0;
  int32_t Ix3 = 0;
  std::array<double, 98> Table{};  // shuffle table, 1..97; index 0 is not used
};

// Uniform deviate in [0, 1). An initialising seed above 54773 would start the generators from
// a negative value, outside their cycle, and throws StatsError
// ("Invalid procedure call or argument").
[[nodiscard]] double Ran(int32_t& seed, RandomState& state);

}  // namespace ovelt
