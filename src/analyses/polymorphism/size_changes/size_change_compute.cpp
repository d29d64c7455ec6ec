#include "analyses/polymorphism/size_changes/size_change_compute.h"

#include <algorithm>
#include <cmath>

#include "analyses/polymorphism/common/poly_stats.h"
#include "analyses/polymorphism/size_changes/mismatch_expected.h"
#include "analyses/polymorphism/size_changes/mismatch_mae.h"
#include "analyses/polymorphism/size_changes/raggedness_statistic.h"
#include "analyses/polymorphism/size_changes/size_change_frequencies.h"
#include "analyses/polymorphism/size_changes/size_change_r2.h"
#include "analyses/polymorphism/size_changes/size_change_segregating.h"
#include "output/too_big_prompt.h"
#include "stats/harmonic.h"

namespace ovelt {

namespace {

bool IsMismatch(int32_t kind) {
  return kind == kMismatchKind || kind == kMismatchKindToo;
}

double Given(double value, double from_data) {
  return value == kFromData ? from_data : value;
}

// Logarithms are taken of theta initial and tau: a 0 becomes the smallest rate.
double NotZero(double value) {
  return value == 0.0 ? kSmallestRate : value;
}

void FillMismatchTable(SizeChangeResult& r, const SizeChangeParameters& values) {
  const MismatchDistribution& m = r.Mismatch;
  r.Table.Rows = static_cast<int64_t>(m.MaxDiff) + 1;
  if (IsGridTooBig(r.Table.Rows)) return;
  for (int32_t i = 0; i <= m.MaxDiff; ++i) {
    r.Table.X.push_back(i);
    r.Table.First.push_back(static_cast<double>(m.Mismatch[static_cast<size_t>(i)]) /
                            static_cast<double>(m.Pairs));
    r.Table.Second.push_back(ExpectedMismatchShare(r.Model, values, i));
  }
}

void FillSpectrumTable(SizeChangeResult& r, const SizeChangeParameters& values) {
  const int32_t n = r.SampleSize;
  const std::vector<double> expected =
      FoldSpectrum(ExpectedSpectrum(n, values.ThetaInitial, values.ThetaFinal,
                                    r.Time.value_or(0.0)),
                   n);
  const std::vector<double> observed_shares = SpectrumShares(r.ObservedSpectrum);
  const std::vector<double> expected_shares = SpectrumShares(expected);
  r.Table.Rows = n / 2;
  if (IsGridTooBig(r.Table.Rows)) return;
  for (int32_t i = 1; i <= n / 2; ++i) {
    r.Table.X.push_back(i);
    r.Table.First.push_back(observed_shares[static_cast<size_t>(i)]);
    r.Table.Second.push_back(expected_shares[static_cast<size_t>(i)]);
  }
}

void FillSegregatingTable(SizeChangeResult& r, const SizeChangeParameters& values) {
  const int32_t n = r.SampleSize;
  const double span = std::max(kShortestTimeSpan, 2.0 * r.Time.value_or(0.0));
  const double steps = std::floor(span / kTimeStep + 1e-9);
  r.Table.Rows = steps >= 9e15 ? static_cast<int64_t>(9e15) : static_cast<int64_t>(steps) + 1;
  if (IsGridTooBig(r.Table.Rows)) return;
  const double a1 = HarmonicA1Double(n);
  for (int64_t row = 0; row < r.Table.Rows; ++row) {
    const double t = static_cast<double>(row) * kTimeStep;
    r.Table.X.push_back(t);
    r.Table.First.push_back(ExpectedSegregatingSites(2, values.ThetaInitial, values.ThetaFinal, t));
    r.Table.Second.push_back(
        ExpectedSegregatingSites(n, values.ThetaInitial, values.ThetaFinal, t) / a1);
  }
}

}  // namespace

SizeChangeResult ObserveSizeChange(const Selection& sel, int32_t from, int32_t to,
                                   const PolyGauge& gauge) {
  SizeChangeResult r;
  r.RegionFrom = from;
  r.RegionTo = to;
  const PolyStats stats = ComputePolyStats(sel, from, to);
  const int32_t n = sel.SelOutCount;
  r.SampleSize = n;
  r.NetSites = stats.NetSites;
  r.SegSites = stats.SegSites;
  r.K = stats.AvgDiffs;
  r.Pi = stats.PiValue;
  r.Mismatch =
      ComputeMismatch(sel, from, to, [&gauge](int percent) { RaiseTo(gauge, percent * 8 / 10); });
  r.VarK = MismatchVariance(r.Mismatch, r.K);
  if (r.K > 0.0 && n > 0) r.ObservedCV = (1.0 + 1.0 / (4.0 * n)) * std::sqrt(r.VarK) / r.K;
  r.Raggedness = Raggedness(r.Mismatch);
  r.MAE = MeanAbsoluteError(r.Mismatch, r.K);
  r.R2 = R2Statistic(SingletonsPerSequence(sel, from, to), r.K, r.SegSites);
  RaiseTo(gauge, 90);
  r.ObservedSpectrum = ObservedFoldedSpectrum(sel, from, to);
  r.Expected = ExpectedVariancesOfK(n, r.K);
  r.Moments = EstimateByMoments(r.K, r.VarK);
  RaiseTo(gauge, 100);
  return r;
}

SizeChangeParameters ResolveSizeChangeParameters(const SizeChangeOptions& options,
                                                 const SizeChangeResult& observed) {
  SizeChangeParameters values;
  if (options.Model == kGrowthDecline) {
    values.ThetaInitial = NotZero(Given(options.ThetaInitial, observed.Moments.ThetaInitial));
    values.ThetaFinal = Given(options.ThetaFinal, observed.Moments.ThetaFinal);
    values.Tau = NotZero(Given(options.Tau, observed.Moments.Tau));
  } else {
    // One theta before and after: the population never changed.
    values.ThetaInitial = NotZero(Given(options.ThetaInitial, observed.K));
    values.ThetaFinal = values.ThetaInitial;
    values.Tau = 0.0;
  }
  return values;
}

double ExpectedMismatchShare(int16_t model, const SizeChangeParameters& values, int32_t i) {
  if (model == kGrowthDecline)
    return SizeChangeMismatch(values.ThetaInitial, values.ThetaFinal, values.Tau, i);
  return static_cast<float>(ConstantSizeMismatch(values.ThetaInitial, i));
}

void ExpectSizeChange(SizeChangeResult& r, const SizeChangeOptions& options,
                      const SizeChangeParameters& values) {
  r.AnalysisKind = options.AnalysisKind;
  r.Model = options.Model;
  r.Parameters = values;
  r.Time.reset();
  if (options.Model == kGrowthDecline && values.ThetaFinal > 0.0)
    r.Time = values.Tau / values.ThetaFinal;
  const double t = r.Time.value_or(0.0);
  const int32_t n = r.SampleSize;
  r.SegregatingN = ExpectedSegregatingSites(n, values.ThetaInitial, values.ThetaFinal, t);
  r.Segregating2 = ExpectedSegregatingSites(2, values.ThetaInitial, values.ThetaFinal, t);
  const double a1 = HarmonicA1Double(n);
  r.SegregatingNPerA1 = a1 > 0.0 ? r.SegregatingN / a1 : 0.0;
  r.Segregating2PerA1 = r.Segregating2;  // a1(2) is 1
  r.Table = {};
  if (IsMismatch(r.AnalysisKind))
    FillMismatchTable(r, values);
  else if (r.AnalysisKind == kSpectrumKind)
    FillSpectrumTable(r, values);
  else
    FillSegregatingTable(r, values);
}

}  // namespace ovelt
