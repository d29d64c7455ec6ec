#include "core/site_diversity.h"

#include <algorithm>
#include <array>

namespace ovelt {

double SiteDiversityValue(const SeqMatrix& matrix, int32_t site, int32_t seqs, int16_t site_class) {
  if (site_class == kMonomorphic) return 0.0;
  if (site_class == kGapOrMissing) {
    int32_t gaps = 0;
    for (int32_t seq = 1; seq <= seqs; ++seq) {
      if (matrix.at(site, seq) == '-') ++gaps;
    }
    return static_cast<double>(gaps);
  }
  std::array<int32_t, 4> count{};
  for (int32_t seq = 1; seq <= seqs; ++seq) {
    switch (matrix.at(site, seq)) {
      case 'A':
        ++count[0];
        break;
      case 'C':
        ++count[1];
        break;
      case 'G':
        ++count[2];
        break;
      case 'T':
        ++count[3];
        break;
      default:
        break;
    }
  }
  const double n = static_cast<double>(seqs);
  if (seqs < 2) return 0.0;
  double sum_squares = 0.0;
  for (const int32_t c : count) {
    const double share = static_cast<double>(c) / n;
    sum_squares += share * share;
  }
  return (1.0 - sum_squares) * n / (n - 1.0);
}

namespace {

void DiversityOf(const ActiveData& ad, const SeqMatrix& matrix, int32_t seqs,
                 const std::vector<int16_t>& classes, std::vector<double>& out) {
  seqs = std::min(seqs, matrix.seqs());
  const int32_t sites =
      std::min({ad.NumSites, matrix.sites(), static_cast<int32_t>(classes.size()) - 1});
  out.assign(static_cast<size_t>(ad.NumSites) + 1, 0.0);
  for (int32_t site = 1; site <= sites; ++site) {
    out[static_cast<size_t>(site)] =
        SiteDiversityValue(matrix, site, seqs, classes[static_cast<size_t>(site)]);
  }
}

}  // namespace

void ComputeSiteDiversity(ActiveData& ad) {
  DiversityOf(ad, ad.IncMatrix, ad.NumSeqs, ad.SiteClass, ad.SiteDiversity);
}

std::vector<double> SubsetDiversities(const ActiveData& ad, const SeqMatrix& matrix, int32_t seqs,
                                      const std::vector<int16_t>& classes) {
  std::vector<double> diversities;
  DiversityOf(ad, matrix, seqs, classes, diversities);
  return diversities;
}

}  // namespace ovelt
