#include "core/site_diversity.h"

#include <algorithm>

#include "core/site_class.h"

namespace ovelt {

double DiversityFromCounts(const SiteCounts& counts, int32_t seqs, int16_t site_class) {
  if (site_class == kMonomorphic) return 0.0;
  if (site_class == kGapOrMissing) return static_cast<double>(counts.gap);
  const double n = static_cast<double>(seqs);
  if (seqs < 2) return 0.0;
  double sum_squares = 0.0;
  for (const int32_t c : counts.nucleotide) {
    const double share = static_cast<double>(c) / n;
    sum_squares += share * share;
  }
  return (1.0 - sum_squares) * n / (n - 1.0);
}

double SiteDiversityValue(const SeqMatrix& matrix, int32_t site, int32_t seqs, int16_t site_class) {
  if (site_class == kMonomorphic) return 0.0;
  return DiversityFromCounts(CountSitePlain(matrix, seqs, site), seqs, site_class);
}

namespace {

void DiversityOf(const ActiveData& ad, const SeqMatrix& matrix, int32_t seqs,
                 const std::vector<int16_t>& classes, std::vector<double>& out) {
  seqs = std::min(seqs, matrix.seqs());
  const int32_t sites =
      std::min({ad.NumSites, matrix.sites(), static_cast<int32_t>(classes.size()) - 1});
  out.assign(static_cast<size_t>(ad.NumSites) + 1, 0.0);
  ForEachSiteCounts(matrix, seqs, sites, [&](int32_t site, const SiteCounts& counts) {
    out[static_cast<size_t>(site)] =
        DiversityFromCounts(counts, seqs, classes[static_cast<size_t>(site)]);
  });
}

}  // namespace

void ClassifyAndMeasureAllSites(ActiveData& ad) {
  const int32_t seqs = std::min(ad.NumSeqs, ad.RawMatrix.seqs());
  const int32_t sites = std::min(ad.NumSites, ad.RawMatrix.sites());
  ad.SiteClass.assign(static_cast<size_t>(ad.NumSites) + 1, kMonomorphic);
  ad.SiteDiversity.assign(static_cast<size_t>(ad.NumSites) + 1, 0.0);
  if (seqs < 1) return;
  ForEachSiteCounts(ad.RawMatrix, seqs, sites, [&](int32_t site, const SiteCounts& counts) {
    const int16_t cls = ClassFromCounts(counts, seqs);
    ad.SiteClass[static_cast<size_t>(site)] = cls;
    ad.SiteDiversity[static_cast<size_t>(site)] = DiversityFromCounts(counts, seqs, cls);
  });
}

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
