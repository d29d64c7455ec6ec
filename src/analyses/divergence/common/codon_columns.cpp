#include "analyses/divergence/common/codon_columns.h"

namespace ovelt {

bool CodonColumns::HasGap(const CodonSites& codon) const {
  for (const int32_t site : codon)
    if (ClassAt(site) == kGapOrMissing) return true;
  return false;
}

bool CodonColumns::Monomorphic(const CodonSites& codon) const {
  for (const int32_t site : codon)
    if (ClassAt(site) != kMonomorphic) return false;
  return true;
}

int CodonColumns::CodonOf(const CodonSites& codon, int32_t seq) const {
  const char* cells = Matrix->sequence(seq);
  return CodonIndex(cells[codon[0] - 1], cells[codon[1] - 1], cells[codon[2] - 1]);
}

void CodonColumns::CodonsOf(const CodonSites& codon, std::vector<uint8_t>& codons) const {
  codons.assign(static_cast<size_t>(Seqs) + 1, 0);
  for (int32_t seq = 1; seq <= Seqs; ++seq)
    codons[static_cast<size_t>(seq)] = static_cast<uint8_t>(CodonOf(codon, seq));
}

CodonColumns FileColumns(const ActiveData& ad) {
  return {&ad.RawMatrix, ad.RawMatrix.seqs(), &ad.RawSiteClass};
}

CodonColumns IncludedColumns(const ActiveData& ad) {
  return {&ad.IncMatrix, ad.NumSeqs, &ad.SiteClass};
}

CodonColumns FirstColumns(const Selection& sel) {
  return {&sel.SelMatrix1, sel.SelCount1, &sel.SelSiteClass1};
}

CodonColumns SecondColumns(const Selection& sel) {
  return {&sel.SelMatrix2, sel.SelCount2, &sel.SelSiteClass2};
}

}  // namespace ovelt
