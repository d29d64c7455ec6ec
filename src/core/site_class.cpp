#include "core/site_class.h"

#include <algorithm>
#include <array>

namespace ovelt {

namespace {

// The class a site's counts give: 5 when any cell is not a nucleotide, otherwise by the number
// of nucleotides present, two of them split by whether one is carried once.
int16_t ClassOf(const std::array<int32_t, 4>& count, bool gap) {
  if (gap) return kGapOrMissing;
  const auto zeros = std::count(count.begin(), count.end(), 0);
  switch (zeros) {
    case 0:
      return kFourVariants;
    case 1:
      return kThreeVariants;
    case 2: {
      const bool singleton = std::find(count.begin(), count.end(), 1) != count.end();
      return singleton ? kSingletonSite : kInformativeSite;
    }
    default:
      return kMonomorphic;  // one variant, or no sequence at all
  }
}

bool IsNucleotide(char cell) {
  return cell == 'A' || cell == 'C' || cell == 'G' || cell == 'T';
}

int32_t SitesOf(const ActiveData& ad, const SeqMatrix& matrix) {
  return std::min(ad.NumSites, matrix.sites());
}

}  // namespace

int16_t ClassifyColumn(const SeqMatrix& matrix, int32_t site, int32_t seqs) {
  if (seqs < 1) return kMonomorphic;
  const char first = matrix.at(site, 1);
  if (!IsNucleotide(first)) return kGapOrMissing;
  int32_t seq = 2;
  while (seq <= seqs && matrix.at(site, seq) == first) ++seq;
  if (seq > seqs) return kMonomorphic;
  return ClassFromCounts(CountSitePlain(matrix, seqs, site), seqs);
}

int16_t ClassifySubsetColumn(const SeqMatrix& matrix, int32_t site, int32_t seqs,
                             int16_t wider_class, int16_t gaps_in_sets) {
  if (wider_class == kMonomorphic) return kMonomorphic;
  if (wider_class == kGapOrMissing && gaps_in_sets == 2) return kGapOrMissing;
  return ClassFromCounts(CountSitePlain(matrix, seqs, site), seqs);
}

int16_t ClassFromCounts(const SiteCounts& counts, int32_t seqs) {
  return ClassOf(counts.nucleotide, counts.nucleotides() < seqs);
}

void ClassifyAllSites(ActiveData& ad) {
  const int32_t seqs = std::min(ad.NumSeqs, ad.RawMatrix.seqs());
  const int32_t sites = SitesOf(ad, ad.RawMatrix);
  ad.SiteClass.assign(static_cast<size_t>(ad.NumSites) + 1, kMonomorphic);
  if (seqs < 1) return;
  ForEachSiteCounts(ad.RawMatrix, seqs, sites, [&](int32_t site, const SiteCounts& counts) {
    ad.SiteClass[static_cast<size_t>(site)] = ClassFromCounts(counts, seqs);
  });
}

namespace {

void ClassifySubset(const ActiveData& ad, const SeqMatrix& matrix, int32_t seqs,
                    const std::vector<int16_t>& wider, std::vector<int16_t>& out) {
  seqs = std::min(seqs, matrix.seqs());
  const int32_t sites =
      std::min<int32_t>(SitesOf(ad, matrix), static_cast<int32_t>(wider.size()) - 1);
  out.assign(static_cast<size_t>(ad.NumSites) + 1, kMonomorphic);
  ForEachSiteCounts(matrix, seqs, sites, [&](int32_t site, const SiteCounts& counts) {
    const int16_t wider_class = wider[static_cast<size_t>(site)];
    int16_t& cls = out[static_cast<size_t>(site)];
    if (wider_class == kMonomorphic) {
      cls = kMonomorphic;
    } else if (wider_class == kGapOrMissing && ad.GapsInSets == 2) {
      cls = kGapOrMissing;
    } else {
      cls = ClassFromCounts(counts, seqs);
    }
  });
}

}  // namespace

void ReclassifyIncluded(ActiveData& ad) {
  ClassifySubset(ad, ad.IncMatrix, ad.NumSeqs, ad.RawSiteClass, ad.SiteClass);
}

std::vector<int16_t> SubsetClasses(const ActiveData& ad, const SeqMatrix& matrix, int32_t seqs) {
  std::vector<int16_t> classes;
  ClassifySubset(ad, matrix, seqs, ad.SiteClass, classes);
  return classes;
}

}  // namespace ovelt
