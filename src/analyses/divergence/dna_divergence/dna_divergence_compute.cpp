#include "analyses/divergence/dna_divergence/dna_divergence_compute.h"

#include "analyses/divergence/common/site_dxy.h"

namespace ovelt {

DnaDivergenceResult ComputeDnaDivergence(const Selection& sel, bool compute_variances,
                                         const Progress& progress) {
  DnaDivergenceResult r;
  const ActiveData& ad = sel.data();
  r.FilePath = ad.FilePath;
  r.GapsExcludedInFile = ad.GapsInSets == 2;
  const auto set_name = [&ad](int16_t set) {
    return set > 0 && set <= ad.SetCount() ? ad.SequenceSets[static_cast<size_t>(set)].nombre()
                                           : std::string();
  };
  r.Name1 = set_name(sel.SelSet1);
  r.Name2 = set_name(sel.SelSet2);
  r.ComputeVariances = compute_variances;
  r.RegionFrom = sel.Region.RegionFrom;
  r.RegionTo = sel.Region.RegionTo;
  r.N1 = sel.SelCount1;
  r.N2 = sel.SelCount2;
  r.SiteDxy = BuildSiteDxy(sel);
  r.Sums = SumDivergence(sel, r.SiteDxy, r.RegionFrom, r.RegionTo);
  r.Kinds = CountMutationKinds(sel, r.SiteDxy, r.RegionFrom, r.RegionTo);
  if (compute_variances && r.Sums.L >= 1) {
    r.JukesCantor = ComputeDivergenceJukesCantor(sel, r.SiteDxy, r.RegionFrom, r.RegionTo,
                                                 r.Sums.L, progress);
    r.Variances = ComputeDivergenceVariances(*r.JukesCantor, progress);
  }
  return r;
}

}  // namespace ovelt
