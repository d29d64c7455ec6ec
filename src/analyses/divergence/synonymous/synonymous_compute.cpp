#include "analyses/divergence/synonymous/synonymous_compute.h"

#include "analyses/divergence/common/codon_columns.h"
#include "analyses/divergence/common/codon_fold_table.h"
#include "analyses/divergence/common/pair_means.h"
#include "analyses/divergence/common/pairwise_substitutions.h"
#include "analyses/divergence/common/site_change_code.h"
#include "analyses/divergence/common/site_changes_count.h"
#include "analyses/divergence/common/synonymous_sites.h"
#include "core/genetic_code.h"
#include "core/net_sites.h"
#include "stats/harmonic.h"

namespace ovelt {

namespace {

std::vector<CodingRun> RunsOf(const std::vector<int16_t>& codon_position, int32_t from,
                              int32_t to) {
  std::vector<CodingRun> runs;
  for (int32_t site = from; site <= to; ++site) {
    const bool coding = static_cast<size_t>(site) < codon_position.size() &&
                        codon_position[static_cast<size_t>(site)] > 0;
    if (runs.empty() || runs.back().Coding != coding) {
      runs.push_back({coding, site, site});
    } else {
      runs.back().To = site;
    }
  }
  return runs;
}

bool AnyCodingSite(const std::vector<int16_t>& codon_position) {
  for (size_t site = 1; site < codon_position.size(); ++site)
    if (codon_position[site] > 0) return true;
  return false;
}

std::optional<double> Theta(int32_t mutations, float a1, double sites) {
  if (!(sites > 0.0)) return std::nullopt;
  return static_cast<double>(mutations) / (static_cast<double>(a1) * sites);
}

// The sites of each pair i < j: the mean of the two sequences' synonymous sites plus `extra`,
// and the coding sites analyzed minus that mean.
void FillPairSites(const std::vector<float>& syn_sites, int32_t coding_sites, int32_t extra,
                   SynonymousPairs& pairs) {
  const int32_t n = pairs.SynDif.Seqs();
  for (int32_t i = 1; i < n; ++i) {
    for (int32_t j = i + 1; j <= n; ++j) {
      const float s =
          (syn_sites[static_cast<size_t>(i)] + syn_sites[static_cast<size_t>(j)]) / 2.0F;
      pairs.SynPos.At(i, j) = s + static_cast<float>(extra);
      pairs.NSynPos.At(i, j) = static_cast<float>(coding_sites) - s;
    }
  }
}

}  // namespace

std::vector<SynonymousPairRow> SynonymousResult::PairRows() const {
  std::vector<SynonymousPairRow> rows;
  if (!Pairs) return rows;
  const int32_t n = Pairs->SynDif.Seqs();
  rows.reserve(Pairs->SynDif.Pairs());
  for (int32_t i = 1; i < n; ++i) {
    for (int32_t j = i + 1; j <= n; ++j) {
      SynonymousPairRow row;
      row.Seq1 = i;
      row.Seq2 = j;
      row.Silent = Silent.has_value();
      row.SynDif = Pairs->SynDif.At(i, j);
      row.SynPos = Pairs->SynPos.At(i, j);
      row.NSynDif = Pairs->NSynDif.At(i, j);
      row.NSynPos = Pairs->NSynPos.At(i, j);
      if (row.SynPos > 0.0F) row.Ks = JukesCantorOf(row.SynDif / row.SynPos);
      if (row.NSynPos > 0.0F) row.Ka = JukesCantorOf(row.NSynDif / row.NSynPos);
      rows.push_back(row);
    }
  }
  return rows;
}

SynonymousResult ComputeSynonymous(const Selection& sel, const SynonymousOptions& options,
                                   TieBreaker& ties, const Progress& progress) {
  const ActiveData& ad = sel.data();
  const int32_t from = sel.Region.RegionFrom;
  const int32_t to = sel.Region.RegionTo;
  const int32_t n = sel.SelCount1;
  const CodonColumns columns = FirstColumns(sel);

  SynonymousResult r;
  r.RegionFrom = from;
  r.RegionTo = to;
  r.Sequences = n;
  r.NetSites = NetSites(sel, from, to);
  r.CodingRegions = AnyCodingSite(ad.CodonPosition);
  r.GeneticCode = GeneticCodeText(ad.Format.GeneticCodeIndex == 0 ? int16_t{1}
                                                                  : ad.Format.GeneticCodeIndex);
  r.Runs = RunsOf(ad.CodonPosition, from, to);
  r.PairNames = sel.SelNames1;
  const float a1 = HarmonicA1(n);

  auto pairs = std::make_shared<SynonymousPairs>(
      SynonymousPairs{PairTable(n), PairTable(n), PairTable(n), PairTable(n)});
  std::vector<float> syn_sites(static_cast<size_t>(n) + 1, 0.0F);

  if (r.CodingRegions) {
    const std::vector<CodonSites> codons = CompleteCodons(ad.CodonPosition, from, to);
    const SynonymousSiteCount sites = CountSynonymousSites(
        columns, codons, ad.GeneticCode, BuildCodonFoldTable(ad.GeneticCode));
    progress.Raise(20);
    syn_sites = sites.SynSites;
    r.Codons = sites.Codons;
    r.CodingSitesAnalyzed = sites.CodingSitesAnalyzed;
    r.CodonsWithGaps = sites.CodonsWithGaps;
    r.StopFound = sites.StopFound;
    float sum = 0.0F;
    for (int32_t seq = 1; seq <= n; ++seq) sum += syn_sites[static_cast<size_t>(seq)];
    r.SynSites = n > 0 ? sum / static_cast<float>(n) : 0.0F;
    r.NonsynSites = static_cast<float>(r.CodingSitesAnalyzed) - r.SynSites;
    for (int32_t seq = 1; seq <= n; ++seq) {
      const float s = syn_sites[static_cast<size_t>(seq)];
      r.PerSequence.push_back({sel.SelNames1[static_cast<size_t>(seq)], s,
                               static_cast<float>(r.CodingSitesAnalyzed) - s});
    }

    Progress pairwise;
    pairwise.Gauge = [&progress](int percent) { progress.Raise(20 + percent * 60 / 100); };
    PairwiseSubstitutions differences = CountPairwiseSubstitutions(
        columns, codons, NeiGojoboriTable(ad.GeneticCode), pairwise);
    pairs->SynDif = std::move(differences.Synonymous);
    pairs->NSynDif = std::move(differences.Nonsynonymous);
    FillPairSites(syn_sites, r.CodingSitesAnalyzed, 0, *pairs);
    const PairMean pi_s =
        MeanOverPairs(pairs->SynDif, [&](int32_t i, int32_t j) { return pairs->SynPos.At(i, j); });
    const PairMean pi_a = MeanOverPairs(
        pairs->NSynDif, [&](int32_t i, int32_t j) { return pairs->NSynPos.At(i, j); });
    r.PiS = pi_s.Mean;
    r.PiSJC = pi_s.JukesCantor;
    r.PiA = pi_a.Mean;
    r.PiAJC = pi_a.JukesCantor;

    ClassificationRules rules;
    rules.Ties = &ties;
    const SiteChangeCodes codes =
        ClassifyCodonColumns(columns, ad.CodonPosition, ad.GeneticCode, from, to, rules);
    r.StopFound = r.StopFound || codes.StopFound;
    const SiteChangeCount changes = CountSiteChanges(codes.Code, from, to);
    r.SynMutations = changes.Synonymous;
    r.NonsynMutations = changes.Nonsynonymous;
    r.ComplexCodons = changes.Complex;
    r.ThetaGate = ThetaGatePasses(codes.Code, from, to);
    if (r.ThetaGate) {
      r.ThetaS = Theta(r.SynMutations, a1, r.SynSites);
      r.ThetaA = Theta(r.NonsynMutations, a1, r.NonsynSites);
    }
    progress.Raise(85);
  } else {
    r.ThetaGate = true;
  }

  if (options.Silent) {
    const NoncodingDifferences noncoding =
        CountNoncodingDifferences(columns, ad.CodonPosition, from, to);
    SilentSites silent;
    silent.NoncodingPositions = noncoding.Positions;
    // The coding means are made; the table now holds the silent differences and sites.
    for (size_t k = 0; k < pairs->SynDif.Pairs(); ++k)
      AddToCell(pairs->SynDif.Values()[k], noncoding.Differences.Values()[k]);
    FillPairSites(syn_sites, r.CodingSitesAnalyzed, noncoding.Positions, *pairs);
    const PairMean pi =
        MeanOverPairs(pairs->SynDif, [&](int32_t i, int32_t j) { return pairs->SynPos.At(i, j); });
    silent.Pi = pi.Mean;
    silent.PiJC = pi.JukesCantor;
    silent.Sites = r.SynSites + static_cast<float>(noncoding.Positions);
    silent.Mutations = r.SynMutations + CountNoncodingMutations(sel.SelSiteClass1, ad.CodonPosition,
                                                                from, to);
    if (r.ThetaGate) silent.Theta = Theta(silent.Mutations, a1, silent.Sites);
    r.Silent = silent;
  }
  progress.Raise(95);

  if (options.PairTable || r.CodingSitesAnalyzed > 0) r.Pairs = std::move(pairs);
  return r;
}

}  // namespace ovelt
