#include "shell/viewer_site_table.h"

#include <algorithm>
#include <array>

#include "shell/viewer_codons.h"

namespace ovelt {

namespace {

bool IsCodonSite(const ActiveData& ad, int32_t site) {
  const auto s = static_cast<size_t>(site);
  if (s >= ad.CodingFlag.size() || ad.CodingFlag[s].empty()) return false;
  const char digit = ad.CodingFlag[s][0];
  return digit == '1' || digit == '2';
}

// Three- and four-variant sites are informative when two nucleotides reach two copies.
void MarkInformative(const ActiveData& ad, int32_t seqs, ViewerSiteTable& table) {
  const int32_t sites = table.Sites();
  std::vector<int32_t> slot(static_cast<size_t>(sites) + 1, -1);
  int32_t count = 0;
  for (int32_t site = 1; site <= sites; ++site) {
    const int16_t c = table.SiteClass[static_cast<size_t>(site)];
    if (c == kInformativeSite) table.Marks[static_cast<size_t>(site)] |= kViewerInformative;
    if (c == kThreeVariants || c == kFourVariants) slot[static_cast<size_t>(site)] = count++;
  }
  if (count == 0) return;
  std::vector<std::array<int32_t, 4>> counts(static_cast<size_t>(count), {0, 0, 0, 0});
  for (int32_t seq = 1; seq <= seqs; ++seq) {
    const char* row = ad.IncMatrix.sequence(seq);
    for (int32_t site = 1; site <= sites; ++site) {
      const int32_t k = slot[static_cast<size_t>(site)];
      if (k < 0) continue;
      const int rank = NucleotideRank(row[site - 1]);
      if (rank > 0) ++counts[static_cast<size_t>(k)][static_cast<size_t>(rank - 1)];
    }
  }
  for (int32_t site = 1; site <= sites; ++site) {
    const int32_t k = slot[static_cast<size_t>(site)];
    if (k < 0) continue;
    int reaching_two = 0;
    for (const int32_t n : counts[static_cast<size_t>(k)]) reaching_two += n >= 2 ? 1 : 0;
    if (reaching_two >= 2) table.Marks[static_cast<size_t>(site)] |= kViewerInformative;
  }
}

void MarkCodons(const ActiveData& ad, int32_t seqs, ViewerSiteTable& table) {
  const int32_t sites = table.Sites();
  // Complete codons: their sites come in threes along the coding map.
  std::vector<int32_t> codon_sites;
  for (int32_t site = 1; site <= sites; ++site)
    if (IsCodonSite(ad, site)) codon_sites.push_back(site);
  const size_t codons = codon_sites.size() / 3;
  // Codons whose sequences must be read: variable, without gaps.
  std::vector<int32_t> codon_of_site(static_cast<size_t>(sites) + 1, -1);
  std::vector<uint64_t> distinct(codons, 0);
  bool any_to_read = false;
  for (size_t c = 0; c < codons; ++c) {
    bool gap = false, variable = false;
    for (size_t k = 0; k < 3; ++k) {
      const int32_t site = codon_sites[3 * c + k];
      table.Marks[static_cast<size_t>(site)] |= kViewerCodon;
      const int16_t cls = table.SiteClass[static_cast<size_t>(site)];
      gap = gap || cls == kGapOrMissing;
      variable = variable || cls != kMonomorphic;
    }
    if (gap) {
      for (size_t k = 0; k < 3; ++k)
        table.Marks[static_cast<size_t>(codon_sites[3 * c + k])] |= kViewerCodonWithGaps;
    } else if (variable) {
      codon_of_site[static_cast<size_t>(codon_sites[3 * c])] = static_cast<int32_t>(c);
      any_to_read = true;
    }
  }
  if (!any_to_read) return;
  for (int32_t seq = 1; seq <= seqs; ++seq) {
    const char* row = ad.IncMatrix.sequence(seq);
    for (size_t c = 0; c < codons; ++c) {
      const int32_t first = codon_sites[3 * c];
      if (codon_of_site[static_cast<size_t>(first)] < 0) continue;
      const int index = CodonIndex(row[first - 1], row[codon_sites[3 * c + 1] - 1],
                                   row[codon_sites[3 * c + 2] - 1]);
      if (index > 0) distinct[c] |= uint64_t{1} << (index - 1);
    }
  }
  for (size_t c = 0; c < codons; ++c) {
    if (codon_of_site[static_cast<size_t>(codon_sites[3 * c])] < 0) continue;
    const CodonChangeMarks marks = MarkCodonChanges(distinct[c], ad.GeneticCode);
    uint8_t bits = 0;
    if (marks.Complex) bits |= kViewerComplexCodon;
    if (marks.Synonymous) bits |= kViewerSynonymous;
    if (marks.Nonsynonymous) bits |= kViewerNonsynonymous;
    for (size_t k = 0; k < 3; ++k) table.Marks[static_cast<size_t>(codon_sites[3 * c + k])] |= bits;
  }
}

}  // namespace

ViewerSiteTable BuildViewerSiteTable(const ActiveData& ad) {
  ViewerSiteTable table;
  const int32_t sites = std::min<int32_t>(ad.NumSites, ad.IncMatrix.sites());
  const int32_t seqs = std::min<int32_t>(ad.NumSeqs, ad.IncMatrix.seqs());
  table.SiteClass.assign(static_cast<size_t>(sites) + 1, kMonomorphic);
  for (int32_t site = 1; site <= sites && static_cast<size_t>(site) < ad.SiteClass.size(); ++site)
    table.SiteClass[static_cast<size_t>(site)] = ad.SiteClass[static_cast<size_t>(site)];
  table.Marks.assign(static_cast<size_t>(sites) + 1, 0);
  table.CodonPosition.assign(static_cast<size_t>(sites) + 1, 0);
  for (int32_t site = 1; site <= sites && static_cast<size_t>(site) < ad.CodonPosition.size();
       ++site)
    table.CodonPosition[static_cast<size_t>(site)] = ad.CodonPosition[static_cast<size_t>(site)];
  table.CodingAssigned = ad.Format.CodingAssigned;
  MarkInformative(ad, seqs, table);
  if (ad.Format.CodingAssigned >= 1) MarkCodons(ad, seqs, table);
  return table;
}

bool ViewerHighlights(const ViewerSiteTable& table, ViewerHighlight choice, int32_t site) {
  if (site < 1 || site > table.Sites()) return false;
  const int16_t c = table.SiteClass[static_cast<size_t>(site)];
  switch (choice) {
    case ViewerHighlight::kInvariable: return c == kMonomorphic;
    case ViewerHighlight::kVariable: return c >= kSingletonSite && c <= kFourVariants;
    case ViewerHighlight::kVariableTwo: return c == kSingletonSite || c == kInformativeSite;
    case ViewerHighlight::kVariableThreeFour: return c == kThreeVariants || c == kFourVariants;
    case ViewerHighlight::kParsimonyInformative: return table.Has(site, kViewerInformative);
    case ViewerHighlight::kGapsMissing: return c == kGapOrMissing;
    case ViewerHighlight::kCodons: return table.Has(site, kViewerCodon);
    case ViewerHighlight::kSynonymous: return table.Has(site, kViewerSynonymous);
    case ViewerHighlight::kNonsynonymous: return table.Has(site, kViewerNonsynonymous);
    case ViewerHighlight::kCodonsWithGaps: return table.Has(site, kViewerCodonWithGaps);
    case ViewerHighlight::kComplexCodons: return table.Has(site, kViewerComplexCodon);
  }
  return false;
}

}  // namespace ovelt
