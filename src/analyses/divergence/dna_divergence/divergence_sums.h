#pragma once
// Nucleotide diversity within two populations and the divergence between them over a region
// (Nei 1987, eqs. 10.5, 10.20 and 10.21; Nei and Li 1979):
//   Pi(1) = k1 / L, Pi(2) = k2 / L, Dxy = K / L, Da = Dxy - (Pi(1) + Pi(2)) / 2
// with L the sites of the region without a gap in either population, k1 and k2 the sums of the
// gene diversities within each population and K the sum of `SiteDxy`. The total data pools the
// three kinds of pair in proportion to their numbers:
//   k(t) = 2 L (Pi(1) n1 (n1 - 1) / 2 + Pi(2) n2 (n2 - 1) / 2 + Dxy n1 n2) / (N (N - 1)),
// with N = n1 + n2, and Pi(t) = k(t) / L.

#include <cstdint>
#include <optional>
#include <vector>

#include "core/selection.h"

namespace ovelt {

struct DivergenceSums {
  int32_t L = 0;               // sites of the region without a gap in either population
  int32_t S1 = 0, S2 = 0;      // polymorphic sites within population 1 and 2
  int32_t S = 0;               // sites with `SiteDxy` above 0
  double K1 = 0.0, K2 = 0.0;   // sums of the gene diversities (k1, k2)
  double K = 0.0;              // sum of `SiteDxy`
  double Pi1 = 0.0, Pi2 = 0.0, Dxy = 0.0, Da = 0.0;  // 0 when L is 0
  double KTotal = 0.0;                               // k(t)
  std::optional<double> PiTotal;                     // Pi(t); none when L is 0
  int32_t Mutations1 = 0, Mutations2 = 0;            // mutations within each population
};

// Over `from`..`to` of the two classified selections of `sel`; `site_dxy` from `BuildSiteDxy`.
// A site of class 5 in either population is left out of everything.
[[nodiscard]] DivergenceSums SumDivergence(const Selection& sel,
                                           const std::vector<double>& site_dxy, int32_t from,
                                           int32_t to);

}  // namespace ovelt
