#pragma once
// The number of ancestral lineages A_n(t) of a sample of n genes, t coalescent units back in a
// population of constant size (Kingman 1982; Tavaré 1984): the pure-death chain in which m
// lineages become m - 1 at rate m (m - 1) / 2.
//
// Tavaré's closed form alternates in sign and loses every digit for samples of a few dozen, so
// the distribution is found by uniformization (Jensen 1953), whose terms are all positive: over
// a step h the chain's transition matrix is sum over j of Poisson(j; L h) K^j, K = I + Q / L,
// L the largest rate of a state that still holds probability. The steps grow with t as the
// upper states empty, so the work stays near linear in n. t of 0 or less gives A = n.

#include <cstdint>
#include <vector>

namespace ovelt {

// P(A_n(t) = m) for m = 1..n (index 0 unused, 0). n below 1 gives {0}.
[[nodiscard]] std::vector<double> LineageDistribution(int32_t n, double t);

// E[A_n(t)] by Tavaré's series of positive terms:
//   sum over k = 1..n of exp(-k (k - 1) t / 2) (2 k - 1) n[k] / n(k),
// n[k] and n(k) the falling and rising factorials.
[[nodiscard]] double ExpectedLineages(int32_t n, double t);

}  // namespace ovelt
