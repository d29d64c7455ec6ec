#pragma once
// What the classical tabs of "Discrete Distributions" give for a value k of a variable X.

namespace ovelt {

struct DiscreteProbabilities {
  double PEqual = 0;    // P[X = k]
  double PLess = 0;     // P[X < k]
  double Mean = 0;      // E[X]
  double Variance = 0;  // var[X]; the report adds its square root
};

}  // namespace ovelt
