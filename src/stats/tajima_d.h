#pragma once
// Tajima's D (Tajima 1989): the difference between two estimators of theta, the average number
// of pairwise differences k and Watterson's S / a1, scaled by the square root of its variance
// under neutrality, D = (k - S / a1) / (e1 S + e2 S (S - 1))^(1/2). With S of 0 the variance is 0
// and D is not defined: the caller reports it as not computed.

#include <cstdint>

namespace ovelt {

// The constants of D for a sample of n sequences (n >= 2), summed in 64 bits.
struct TajimaCoefficients {
  double a1 = 0.0;  // sum of 1/i, i = 1..n-1
  double a2 = 0.0;  // sum of 1/i^2
  double b1 = 0.0;  // (n + 1) / (3 (n - 1))
  double b2 = 0.0;  // 2 (n^2 + n + 3) / (9 n (n - 1))
  double c1 = 0.0;  // b1 - 1 / a1
  double c2 = 0.0;  // b2 - (n + 2) / (n a1) + a2 / a1^2
  double e1 = 0.0;  // c1 / a1
  double e2 = 0.0;  // c2 / (a1^2 + a2)
};

[[nodiscard]] TajimaCoefficients TajimaCoefficientsFor(int32_t n);

// `TajimaD(k, S, a1, e1, e2)`; NaN when S is 0 (no variance).
[[nodiscard]] double TajimaD(double k, double s, double a1, double e1, double e2);

// D of a sample of n sequences from its counts alone, as the simulations take it: NaN when S is 0.
[[nodiscard]] double TajimaDFromCounts(int32_t n, double k, double s);

// Harmonic sum of squares a2 = sum of 1/i^2 for i = 1..n-1 (Tajima 1989), 64 bits; 0 for n < 2.
[[nodiscard]] double HarmonicA2Double(int32_t n);

}  // namespace ovelt
