#pragma once
// Expected number of segregating sites Sn(t) in a sample of n genes, t coalescent units (N
// generations of the final population) after theta changed at once from theta0 to theta1
// (Tajima 1989; Rogers and Harpending 1992). The genealogy's length within the last t units,
// R(t), carries mutations at rate theta1 / 2 and the rest, 2 a1(n) - R(t) on average, at rate
// theta0 / 2:
//   Sn(t) = theta0 a1(n) + (theta1 - theta0) R(t) / 2,
//   R(t) = 2 sum over even k = 2..n of (2 k - 1) n[k] / n(k) (1 - exp(-k (k - 1) t / 2)) / (k (k - 1) / 2),
// from Tavaré's (1984) expected number of lineages less the probability of one lineage. t = 0
// gives theta0 a1(n), a long time theta1 a1(n); n = 2 gives theta1 + (theta0 - theta1) e^-t.
// The mismatch mean after tau = 2ut mutational units is S2(tau / theta1). n below 2 gives 0.

#include <cstdint>

namespace ovelt {

// R(t): expected total branch length within the last t units; 2 a1(n) as t grows.
[[nodiscard]] double RecentTreeLength(int32_t n, double t);

[[nodiscard]] double ExpectedSegregatingSites(int32_t n, double theta0, double theta1, double t);

}  // namespace ovelt
