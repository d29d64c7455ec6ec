#include "analyses/divergence/common/site_dxy.h"

#include <array>

namespace ovelt {
namespace {

// Count of each symbol at `site` over the first `seqs` sequences of `matrix`.
std::array<int64_t, 256> SymbolCounts(const SeqMatrix& matrix, int32_t seqs, int32_t site) {
  std::array<int64_t, 256> counts{};
  for (int32_t s = 1; s <= seqs; ++s) ++counts[static_cast<unsigned char>(matrix.at(site, s))];
  return counts;
}

}  // namespace

double SiteDxyValue(const SeqMatrix& pop1, int32_t n1, int16_t class1, const SeqMatrix& pop2,
                    int32_t n2, int16_t class2, int32_t site) {
  if (n1 < 1 || n2 < 1) return 0.0;
  if (class1 == kGapOrMissing || class2 == kGapOrMissing) return 0.0;
  if (class1 == 0 && class2 == 0) return pop1.at(site, 1) != pop2.at(site, 1) ? 1.0 : 0.0;
  // Pairs that agree are those of the same symbol: the sum over the symbols of c1 x c2.
  const auto counts1 = SymbolCounts(pop1, n1, site);
  const auto counts2 = SymbolCounts(pop2, n2, site);
  int64_t same = 0;
  for (size_t b = 0; b < counts1.size(); ++b) same += counts1[b] * counts2[b];
  const int64_t pairs = static_cast<int64_t>(n1) * n2;
  return static_cast<double>(pairs - same) / static_cast<double>(pairs);
}

std::vector<double> BuildSiteDxy(const Selection& sel) {
  const int32_t sites = sel.SelMatrix1.sites();
  std::vector<double> dxy(static_cast<size_t>(sites) + 1, 0.0);
  for (int32_t site = 1; site <= sites; ++site) {
    const auto at = static_cast<size_t>(site);
    dxy[at] = SiteDxyValue(sel.SelMatrix1, sel.SelCount1, sel.SelSiteClass1[at], sel.SelMatrix2,
                           sel.SelCount2, sel.SelSiteClass2[at], site);
  }
  return dxy;
}

}  // namespace ovelt
