#include "analyses/divergence/gene_conversion/site_psi.h"

namespace ovelt {

namespace {

// The b of one direction: the frequency at home of a nucleotide that would be rare abroad.
double Counted(int32_t home, int32_t n_home, int32_t abroad, int32_t n_abroad) {
  const double a = (static_cast<double>(abroad) / n_abroad * (n_abroad - 1) + 1) / n_abroad;
  const double b = static_cast<double>(home) / n_home;
  return a <= 0.2 && b >= 3 * a ? b : 0.0;
}

// A population's column with the tract lines as "*", their count added to its commonest
// nucleotide.
NucleotideCounts CountsWithTractLines(const SeqMatrix& matrix, int32_t seqs, int32_t site,
                                      const std::vector<int32_t>& tract_lines) {
  std::vector<uint8_t> starred(static_cast<size_t>(seqs) + 1, 0);
  for (const int32_t line : tract_lines) starred[static_cast<size_t>(line)] = 1;
  NucleotideCounts counts{};
  int32_t stars = 0;
  for (int32_t s = 1; s <= seqs; ++s) {
    if (starred[static_cast<size_t>(s)] != 0) {
      ++stars;
      continue;
    }
    const int j = NucleotideIndex(matrix.at(site, s));
    if (j >= 0) ++counts[static_cast<size_t>(j)];
  }
  size_t common = 0;
  for (size_t j = 1; j < counts.size(); ++j)
    if (counts[j] > counts[common]) common = j;
  counts[common] += stars;
  return counts;
}

}  // namespace

double PsiFromCounts(const NucleotideCounts& c1, int32_t n1, const NucleotideCounts& c2,
                     int32_t n2) {
  double s = 0.0;
  for (size_t j = 0; j < c1.size(); ++j) {
    s += Counted(c1[j], n1, c2[j], n2);
    s += Counted(c2[j], n2, c1[j], n1);
  }
  return 0.5 * s;
}

void FirstPsiPass(const Selection& sel, int32_t from, int32_t to, std::vector<double>& psi) {
  const int32_t n1 = sel.SelCount1;
  const int32_t n2 = sel.SelCount2;
  for (int32_t site = from; site <= to; ++site) {
    const auto at = static_cast<size_t>(site);
    if (psi[at] < 0.0) continue;
    const int16_t class1 = sel.SelSiteClass1[at];
    const int16_t class2 = sel.SelSiteClass2[at];
    if (class1 == kGapOrMissing || class2 == kGapOrMissing) continue;
    if (class1 == kMonomorphic && class2 == kMonomorphic) {
      if (sel.SelMatrix1.at(site, 1) == sel.SelMatrix2.at(site, 1)) continue;
      const int large = (n1 >= 5 ? 1 : 0) + (n2 >= 5 ? 1 : 0);
      if (large == 2) psi[at] = 1.0;
      if (large == 1) psi[at] = 0.5;
      continue;
    }
    psi[at] = PsiFromCounts(CountNucleotides(sel.SelMatrix1, n1, site), n1,
                            CountNucleotides(sel.SelMatrix2, n2, site), n2);
  }
}

void TractPsiPass(const Selection& sel, const std::vector<TractSite>& sites,
                  std::vector<double>& psi) {
  size_t i = 0;
  while (i < sites.size()) {
    const int32_t site = sites[i].Site;
    std::vector<int32_t> lines1, lines2;
    for (; i < sites.size() && sites[i].Site == site; ++i)
      (sites[i].Population == 1 ? lines1 : lines2).push_back(sites[i].Line);
    psi[static_cast<size_t>(site)] = PsiFromCounts(
        CountsWithTractLines(sel.SelMatrix1, sel.SelCount1, site, lines1), sel.SelCount1,
        CountsWithTractLines(sel.SelMatrix2, sel.SelCount2, site, lines2), sel.SelCount2);
  }
}

}  // namespace ovelt
