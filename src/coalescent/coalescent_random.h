#pragma once
// The one random stream of a coalescent run: the uniform generator ran1 with its seed variable
// and the cached values of the Poisson deviate. Every draw of a run goes through one object, so
// that a run with the same inputs and seed repeats exactly.

#include <cstdint>

#include "stats/poisson.h"
#include "stats/random.h"

namespace ovelt {

struct CoalescentRandom {
  RandomState State;
  int32_t Seed = 0;  // the seed variable: negative until the first draw initialises the stream
  PoissonState PoissonCache;

  CoalescentRandom() = default;
  // `seedVariable` is the negative value that starts the stream (minus the user's seed).
  explicit CoalescentRandom(int32_t seedVariable) : Seed(seedVariable) {}

  // Uniform in the open interval (0, 1) as ran1 gives it.
  double U() { return Ran(Seed, State); }
  // A Poisson deviate of the given mean, an integer held in a double.
  double Poisson(double mean) { return PoissonDeviate(mean, Seed, State, PoissonCache); }
};

}  // namespace ovelt
