#include "analyses/divergence/gene_conversion/gene_conversion_compute.h"

#include "analyses/divergence/dna_divergence/divergence_windows.h"
#include "analyses/divergence/gene_conversion/informative_sites.h"
#include "analyses/divergence/gene_conversion/site_psi.h"

namespace ovelt {

namespace {

bool GapInEither(const Selection& sel, size_t at) {
  return sel.SelSiteClass1[at] == kGapOrMissing || sel.SelSiteClass2[at] == kGapOrMissing;
}

// Mean Psi over the sites of from..to without a gap in either population, with their number.
std::pair<double, int32_t> MeanPsi(const Selection& sel, const std::vector<double>& psi,
                                   int32_t from, int32_t to) {
  double sum = 0.0;
  int32_t sites = 0;
  for (int32_t site = from; site <= to; ++site) {
    const auto at = static_cast<size_t>(site);
    if (GapInEither(sel, at)) continue;
    sum += psi[at];
    ++sites;
  }
  return {sites == 0 ? 0.0 : sum / sites, sites};
}

}  // namespace

std::vector<InformativeSite> GeneConversionResult::InformativeSites() const {
  std::vector<InformativeSite> rows;
  for (int32_t site = RegionFrom; site <= RegionTo; ++site) {
    const double psi = PsiBySite[static_cast<size_t>(site)];
    if (psi > 0.0) rows.push_back({site, psi});
  }
  return rows;
}

GeneConversionResult ComputeGeneConversion(const Selection& sel,
                                           const std::optional<SlidingWindowSpec>& window,
                                           const Progress& progress) {
  GeneConversionResult r;
  const ActiveData& ad = sel.data();
  r.FilePath = ad.FilePath;
  r.GapsExcludedInFile = ad.GapsInSets == 2;
  r.RegionFrom = sel.Region.RegionFrom;
  r.RegionTo = sel.Region.RegionTo;
  const auto set_name = [&ad](int16_t set) {
    return set > 0 && set <= ad.SetCount() ? ad.SequenceSets[static_cast<size_t>(set)].nombre()
                                           : std::string();
  };
  r.Name1 = set_name(sel.SelSet1);
  r.Name2 = set_name(sel.SelSet2);
  r.N1 = sel.SelCount1;
  r.N2 = sel.SelCount2;
  r.LineNames1 = sel.SelNames1;
  r.LineNames2 = sel.SelNames2;

  r.PsiBySite.assign(static_cast<size_t>(sel.SelMatrix1.sites()) + 1, 0.0);
  const std::vector<uint8_t> informative = MarkInformativeSites(sel, r.RegionFrom, r.RegionTo);
  const TractScan scan =
      FindConversionTracts(sel, informative, r.RegionFrom, r.RegionTo, r.PsiBySite);
  progress.Raise(30);
  FirstPsiPass(sel, r.RegionFrom, r.RegionTo, r.PsiBySite);
  TractPsiPass(sel, scan.Sites, r.PsiBySite);
  progress.Raise(60);
  r.Tracts = scan.Tracts;
  const auto [psi, net_sites] = MeanPsi(sel, r.PsiBySite, r.RegionFrom, r.RegionTo);
  r.Psi = psi;
  r.NetSites = net_sites;
  for (int32_t site = r.RegionFrom; site <= r.RegionTo; ++site)
    r.SitesWithInformation += r.PsiBySite[static_cast<size_t>(site)] > 0.0 ? 1 : 0;
  if (window)
    r.Windows =
        ComputeConversionWindows(sel, r.PsiBySite, r.RegionFrom, r.RegionTo, *window, progress);
  progress.Raise(100);
  return r;
}

ConversionWindows ComputeConversionWindows(const Selection& sel,
                                           const std::vector<double>& psi_by_site, int32_t from,
                                           int32_t to, const SlidingWindowSpec& geometry,
                                           const Progress& progress) {
  return RunWindows<ConversionWindow>(
      JointGapClasses(sel), from, to, geometry,
      [&](const WindowBounds& w) {
        return ConversionWindow{w, MeanPsi(sel, psi_by_site, w.Start, w.End).first};
      },
      [&progress](int percent) { progress.Raise(60 + percent * 4 / 10); });
}

}  // namespace ovelt
