#include "analyses/divergence/dna_divergence/divergence_sums.h"

#include "analyses/divergence/common/mutation_kinds.h"

namespace ovelt {

DivergenceSums SumDivergence(const Selection& sel, const std::vector<double>& site_dxy,
                             int32_t from, int32_t to) {
  DivergenceSums r;
  r.L = to - from + 1;
  for (int32_t site = from; site <= to; ++site) {
    const auto at = static_cast<size_t>(site);
    const int16_t class1 = sel.SelSiteClass1[at];
    const int16_t class2 = sel.SelSiteClass2[at];
    if (class1 == kGapOrMissing || class2 == kGapOrMissing) {
      --r.L;
      continue;
    }
    const double h1 = sel.SelSiteDiversity1[at];
    const double h2 = sel.SelSiteDiversity2[at];
    if (h1 > 0.0) {
      ++r.S1;
      r.K1 += h1;
    }
    if (h2 > 0.0) {
      ++r.S2;
      r.K2 += h2;
    }
    if (site_dxy[at] > 0.0) {
      ++r.S;
      r.K += site_dxy[at];
    }
    r.Mutations1 += MutationsOfClass(class1);
    r.Mutations2 += MutationsOfClass(class2);
  }
  if (r.L <= 0) {
    r.L = 0;
    return r;
  }
  const double l = r.L;
  r.Pi1 = r.K1 / l;
  r.Pi2 = r.K2 / l;
  r.Dxy = r.K / l;
  r.Da = r.Dxy - (r.Pi1 + r.Pi2) / 2.0;
  const double n1 = sel.SelCount1;
  const double n2 = sel.SelCount2;
  const double n = n1 + n2;
  if (n > 1.0) {
    r.KTotal = l * 2.0 *
               (r.Pi1 * n1 * (n1 - 1.0) / 2.0 + r.Pi2 * n2 * (n2 - 1.0) / 2.0 + r.Dxy * n1 * n2) /
               (n * (n - 1.0));
  }
  r.PiTotal = r.KTotal / l;
  return r;
}

}  // namespace ovelt
