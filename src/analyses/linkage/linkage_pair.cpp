#include "analyses/linkage/linkage_pair.h"

#include <cstddef>

namespace ovelt {

PairMeasures MeasuresFromCounts(const HaplotypePairCounts& h, int32_t n) {
  const PairDisequilibrium dr = DisequilibriumFromCounts(h, n);
  PairMeasures m;
  m.D = dr.D;
  m.R = dr.R;
  m.R2 = dr.R * dr.R;
  const double nn = static_cast<double>(n);
  const double pa = (h.h11 + h.h12) / nn;
  const double qa = (h.h21 + h.h22) / nn;
  const double pb = (h.h11 + h.h21) / nn;
  const double qb = (h.h12 + h.h22) / nn;
  double x = 0.0;
  double y = 0.0;
  if (m.D < 0.0) {
    x = pb * pa;
    y = qa * qb;
  } else {
    x = qb * pa;
    y = qa * pb;
  }
  const double dmax = x < y ? x : y;
  m.DPrime = dmax != 0.0 ? m.D / dmax : 0.0;
  return m;
}

AlleleBits::AlleleBits(const SeqMatrix& matrix, int32_t n, const AnalysedSites& sites) : n_(n) {
  const auto columns = static_cast<int32_t>(sites.Sites.size());
  std::vector<int16_t> cells(static_cast<std::size_t>(columns) * static_cast<std::size_t>(n));
  for (int32_t k = 0; k < columns; ++k) {
    const int32_t site = sites.Sites[static_cast<std::size_t>(k)];
    const char first = sites.Alleles[static_cast<std::size_t>(k)].First;
    int16_t* column = cells.data() + static_cast<std::size_t>(k) * static_cast<std::size_t>(n);
    for (int32_t seq = 1; seq <= n; ++seq)
      column[seq - 1] = matrix.at(site, seq) == first ? int16_t{1} : int16_t{0};
  }
  bits_.Pack({cells.data(), n, columns}, /*relative_to_first=*/false);
  first_counts_.resize(static_cast<std::size_t>(columns));
  for (int32_t k = 0; k < columns; ++k) first_counts_[static_cast<std::size_t>(k)] = bits_.Count(k);
}

}  // namespace ovelt
