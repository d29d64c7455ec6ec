#include "analyses/polymorphism/overview/overview_stats.h"

#include <cmath>

#include "analyses/polymorphism/common/haplotypes.h"
#include "analyses/polymorphism/common/pairwise_counts.h"
#include "analyses/polymorphism/common/pi_variance.h"
#include "analyses/polymorphism/common/poly_stats.h"
#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/neutrality_totals.h"
#include "stats/fs_statistic.h"
#include "stats/fu_li_statistics.h"
#include "stats/harmonic.h"
#include "stats/tajima_d.h"

namespace ovelt {

namespace {

constexpr int32_t kTestMinimum = 4;

NeutralityValue Tested(double value, std::string mark) {
  NeutralityValue v;
  if (!std::isfinite(value)) return v;
  v.Value = value;
  v.Mark = std::move(mark);
  return v;
}

void ComputeTests(OverviewStats& o, const Selection& sel, int32_t from, int32_t to) {
  const int32_t n = o.SampleSize;
  const NeutralityTotals totals =
      SumTallies(TallySites(sel, from, to), from, to, o.UseMutations, n);
  const TajimaCoefficients t = TajimaCoefficientsFor(n);
  // The test takes Eta in place of S when mutations are counted.
  const double d = TajimaD(totals.K, totals.Eta, t.a1, t.e1, t.e2);
  o.TajimaD = Tested(d, SignificanceTajima(d, n));
  const FuLiCoefficients f = FuLiStarCoefficients(n);
  const double d_star = FuLiDStarValue(totals.Eta, totals.EtaS, f.a1, f.uD, f.vD, n);
  const double f_star = FuLiFStarValue(totals.K, totals.Eta, totals.EtaS, f.uF, f.vF, n);
  o.FuLiDStar = Tested(d_star, SignificanceFuLi(d_star, FuLiTable::kDStar, n));
  o.FuLiFStar = Tested(f_star, SignificanceFuLi(f_star, FuLiTable::kFStar, n));
}

}  // namespace

OverviewStats ComputeOverview(const Selection& sel, int32_t from, int32_t to, bool use_mutations,
                              const PolyGauge& gauge) {
  OverviewStats o;
  o.UseMutations = use_mutations;
  const int32_t n = sel.SelOutCount;
  o.SampleSize = n;
  o.Sites = to - from + 1;
  const PolyStats stats = ComputePolyStats(sel, from, to);
  o.NetSites = stats.NetSites;
  o.SegSites = stats.SegSites;
  o.Mutations = static_cast<int32_t>(stats.Mutations);
  // One sequence has no pair to differ; no net site, no Pi.
  if (n >= 2) o.K = stats.AvgDiffs;
  if (n >= 2 && o.NetSites > 0) o.Pi = stats.PiValue;
  o.Gc = ComputeGcContent(sel, from, to);
  o.Changes = CountCodonChanges(sel, from, to);

  if (n >= 2 && o.Sites <= 0) {
    // No site: every sequence is the same haplotype.
    o.Haplotypes = 1;
    o.Hd = 0.0;
    o.VarHd = 0.0;
  } else if (n >= 2) {
    const HaplotypeStats h =
        ComputeHaplotypes(sel, from, to, [&gauge](int percent) { RaiseTo(gauge, percent / 4); });
    o.Haplotypes = h.Haplotypes;
    o.Hd = h.Hd;
    o.VarHd = h.VarHd;
  } else if (n == 1) {
    o.Haplotypes = 1;
  }
  if (n >= 2 && o.NetSites > 0) {
    const PairCounts d = PairwiseDifferences(
        sel, from, to, [&gauge](int percent) { RaiseTo(gauge, 25 + percent / 4); });
    o.VarPi = SamplingVarianceOfPi(d, o.NetSites).Variance;
  }
  RaiseTo(gauge, 60);

  const double a1 = HarmonicA1Double(n);
  const double counted = use_mutations ? o.Mutations : o.SegSites;
  if (a1 > 0.0) {
    o.ThetaPerSequence = counted / a1;
    if (o.NetSites > 0) o.ThetaPerSite = *o.ThetaPerSequence / o.NetSites;
  }

  o.TestsComputed = n >= kTestMinimum;
  // Without a segregating site the tests have no variance: they stay not determined.
  if (o.TestsComputed && o.SegSites > 0) ComputeTests(o, sel, from, to);
  RaiseTo(gauge, 80);

  if (o.K.value_or(0.0) > 0.0 && o.Hd) o.Fs = FsStatistic(n, o.Haplotypes, *o.K);
  RaiseTo(gauge, 100);
  return o;
}

}  // namespace ovelt
