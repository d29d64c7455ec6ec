#pragma once
// Fu and Li's tests (Fu and Li 1993) compare the mutations on the external branches of the
// genealogy, or the singletons, with all mutations, each scaled by the square root of its variance
// u Eta + v Eta^2 under neutrality:
//   without an outgroup  D* = (Eta / a1 - EtaS (n - 1) / n) / (uD Eta + vD Eta^2)^(1/2)
//                        F* = (k - EtaS (n - 1) / n) / (uF Eta + vF Eta^2)^(1/2)
//   with an outgroup     D  = (Eta - a1 EtaE) / (uD Eta + vD Eta^2)^(1/2)
//                        F  = (k - EtaE) / (uF Eta + vF Eta^2)^(1/2)
// EtaS counts singletons, EtaE the mutations on external branches (derived singletons). D* here
// is the D* of Fu and Li divided by n a1 / (n - 1), with its variance constants to match; F* takes
// the corrected constants of Simonsen, Churchill and Aquadro (1995). With Eta of 0 the variance is
// 0 and the statistics are not defined (NaN).

#include <cstdint>

namespace ovelt {

struct FuLiCoefficients {
  double a1 = 0.0;
  double a2 = 0.0;
  double uD = 0.0, vD = 0.0;
  double uF = 0.0, vF = 0.0;
};

// D* and F*, no outgroup (n >= 2).
[[nodiscard]] FuLiCoefficients FuLiStarCoefficients(int32_t n);
// D and F with an outgroup (n >= 3).
[[nodiscard]] FuLiCoefficients FuLiOutgroupCoefficients(int32_t n);

// `FuLiDStarValue(Eta, EtaS, a1, u, v)` for n sequences.
[[nodiscard]] double FuLiDStarValue(double eta, double eta_s, double a1, double u, double v,
                                    int32_t n);
// `FuLiFStarValue(k, Eta, EtaS, u, v)` for n sequences.
[[nodiscard]] double FuLiFStarValue(double k, double eta, double eta_s, double u, double v,
                                    int32_t n);
// `FuLiDValue(Eta, EtaE, a1, u, v)`.
[[nodiscard]] double FuLiDValue(double eta, double eta_e, double a1, double u, double v);
// `FuLiFValue(k, Eta, EtaE, u, v)`.
[[nodiscard]] double FuLiFValue(double k, double eta, double eta_e, double u, double v);

// The two statistics of a sample of n sequences from its counts alone, as the simulations take
// them: D* and F* from Eta, EtaS and k; D and F from Eta, EtaE and k. NaN when Eta is 0.
struct FuLiPair {
  double D = 0.0;  // D* or D
  double F = 0.0;  // F* or F
};
[[nodiscard]] FuLiPair FuLiStarFromCounts(int32_t n, double eta, double eta_s, double k);
[[nodiscard]] FuLiPair FuLiOutgroupFromCounts(int32_t n, double eta, double eta_e, double k);

}  // namespace ovelt
