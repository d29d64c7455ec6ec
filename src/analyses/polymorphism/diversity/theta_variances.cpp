#include "analyses/polymorphism/diversity/theta_variances.h"

#include "stats/stats_error.h"

namespace ovelt {

namespace {

double Divide(double numerator, double denominator) {
  if (denominator == 0.0) throw StatsError(kDivisionByZeroText);
  return numerator / denominator;
}

}  // namespace

ThetaVariances ComputeThetaVariances(int32_t n, const PolyStats& stats) {
  double a1 = 0.0, a2 = 0.0;
  for (int32_t i = 1; i < n; ++i) {
    a1 += 1.0 / i;
    a2 += 1.0 / (static_cast<double>(i) * i);
  }
  const double nd = n;
  const double s = stats.SegSites;
  const double eta = stats.Mutations;
  const double l = stats.NetSites;
  const auto l2_single = static_cast<double>(static_cast<float>(l * l));
  const double x = (a1 * a1 - a2) / 2.0;
  const double fs = 4.0 * a1 / 3.0 - 5.0 * x / (3.0 * a1);
  const double feta = 4.0 * a1 / 3.0 - 7.0 * x / (3.0 * a1);

  ThetaVariances v;
  v.K = l * stats.PiValue;
  v.ThetaWSequence = s / a1;
  v.ThetaW = s / a1 / l;
  v.ThetaEta = s < 1.0 ? 0.0 : eta * v.ThetaW / s;
  v.VnSequence = (s * a1 * a1 + a2 * s * s) / (a1 * a1 * (a1 * a1 + a2));
  v.VfSequence = s / (a1 * a1);
  v.VarThetaNoRec = v.VnSequence / l2_single;
  v.VarThetaFreeRec = v.VfSequence / l2_single;

  const double k = stats.AvgDiffs;
  const double kk = v.K;
  const double denominator = 11.0 * nd * nd - 7.0 * nd + 6.0;
  v.StochasticNoRec = ((3.0 * nd * nd - 3.0 * nd + 2.0) * k + 2.0 * nd * (nd - 1.0) * kk * kk) /
                      denominator;
  v.SamplingNoRec = (2.0 * (3.0 * nd - 1.0) * kk + 2.0 * (2.0 * nd + 3.0) * kk * kk) / denominator;
  v.TotalNoRec = (3.0 * nd * (nd + 1.0) * kk + 2.0 * (nd * nd + nd + 3.0) * kk * kk) / denominator;
  v.StochasticFreeRec = kk / 3.0;
  v.SamplingFreeRec = 2.0 * kk / (3.0 * (nd - 1.0));
  v.TotalFreeRec = (nd + 1.0) * kk / (3.0 * (nd - 1.0));

  v.FiniteFromPi = Divide(stats.PiValue, 1.0 - 4.0 * stats.PiValue / 3.0);
  v.FiniteFromS = Divide(s / l, a1 - s * fs / l);
  v.FiniteFromEta = Divide(eta / l, a1 - eta * feta / l);
  return v;
}

}  // namespace ovelt
