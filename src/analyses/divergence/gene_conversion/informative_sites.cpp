#include "analyses/divergence/gene_conversion/informative_sites.h"

#include "analyses/divergence/gene_conversion/nucleotide_counts.h"

namespace ovelt {

namespace {

bool Tells(const NucleotideCounts& c1, int32_t n1, const NucleotideCounts& c2, int32_t n2) {
  for (size_t j = 0; j < c1.size(); ++j) {
    const double x = static_cast<double>(c1[j]) / n1;
    const double y = static_cast<double>(c2[j]) / n2;
    if ((x >= 3 * y && y <= 0.2) || (y >= 3 * x && x <= 0.2)) return true;
  }
  return false;
}

}  // namespace

std::vector<uint8_t> MarkInformativeSites(const Selection& sel, int32_t from, int32_t to) {
  std::vector<uint8_t> informative(static_cast<size_t>(sel.SelMatrix1.sites()) + 1, 0);
  const int32_t n1 = sel.SelCount1;
  const int32_t n2 = sel.SelCount2;
  for (int32_t site = from; site <= to; ++site) {
    const auto at = static_cast<size_t>(site);
    const int16_t class1 = sel.SelSiteClass1[at];
    const int16_t class2 = sel.SelSiteClass2[at];
    if (class1 == kGapOrMissing || class2 == kGapOrMissing) continue;
    if (class1 == kMonomorphic && class2 == kMonomorphic) {
      informative[at] =
          sel.SelMatrix1.at(site, 1) != sel.SelMatrix2.at(site, 1) && (n1 > 4 || n2 >= 5);
      continue;
    }
    informative[at] = Tells(CountNucleotides(sel.SelMatrix1, n1, site), n1,
                            CountNucleotides(sel.SelMatrix2, n2, site), n2);
  }
  return informative;
}

}  // namespace ovelt
