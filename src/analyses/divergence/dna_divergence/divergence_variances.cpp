#include "analyses/divergence/dna_divergence/divergence_variances.h"

#include <vector>

namespace ovelt {
namespace {

// The triple sums of the variances fold into row and column sums, so that each takes n^2
// steps rather than n^3: with a zero diagonal, sum over i, j != i, m != i of d[i,j] d[i,m] is
// sum over i of (row sum i)^2, and likewise for the columns and the covariances.
std::vector<double> RowSums(const PairMatrix& m) {
  std::vector<double> sums(static_cast<size_t>(m.Rows()) + 1, 0.0);
  for (int32_t i = 1; i <= m.Rows(); ++i)
    for (int32_t j = 1; j <= m.Columns(); ++j) sums[static_cast<size_t>(i)] += m.At(i, j);
  return sums;
}

std::vector<double> ColumnSums(const PairMatrix& m) {
  std::vector<double> sums(static_cast<size_t>(m.Columns()) + 1, 0.0);
  for (int32_t i = 1; i <= m.Rows(); ++i)
    for (int32_t j = 1; j <= m.Columns(); ++j) sums[static_cast<size_t>(j)] += m.At(i, j);
  return sums;
}

double SumOfSquares(const std::vector<double>& values) {
  double s = 0.0;
  for (size_t i = 1; i < values.size(); ++i) s += values[i] * values[i];
  return s;
}

}  // namespace

std::optional<double> VarianceWithin(const PairMatrix& within, double k) {
  const int32_t seqs = within.Rows();
  if (seqs < 2) return std::nullopt;
  const double n = seqs;
  const double t = ((n - 1.0) * k / (2.0 * n)) * ((n - 1.0) * k / (2.0 * n));
  const double a = SumOfSquares(RowSums(within));
  double b = 0.0;
  for (int32_t i = 1; i < seqs; ++i)
    for (int32_t j = i + 1; j <= seqs; ++j)
      b += static_cast<double>(within.At(i, j)) * within.At(i, j);
  return 4.0 / ((n - 1.0) * n) * ((6.0 - 4.0 * n) * t + (n - 2.0) * a / (n * n * n) + b / (n * n));
}

std::optional<double> VarianceBetween(const PairMatrix& between, double d) {
  const int32_t seqs1 = between.Rows();
  const int32_t seqs2 = between.Columns();
  if (seqs1 < 1 || seqs2 < 1) return std::nullopt;
  const double n1 = seqs1;
  const double n2 = seqs2;
  double t0 = 0.0;
  for (int32_t i = 1; i <= seqs1; ++i)
    for (int32_t j = 1; j <= seqs2; ++j)
      t0 += static_cast<double>(between.At(i, j)) * between.At(i, j);
  const double t1 = SumOfSquares(ColumnSums(between));
  const double t2 = SumOfSquares(RowSums(between));
  const double e0 = (1.0 - n1 - n2) * d * d;
  const double e1 = (n1 - 1.0) * (t1 + t0) / (n1 * n1 * n2);
  const double e2 = (n2 - 1.0) * (t2 + t0) / (n2 * n2 * n1);
  const double e3 = t0 / (n1 * n2);
  return (e1 + e2 + e0 + e3) / (n1 * n2);
}

double CovarianceWithin(const PairMatrix& within, const PairMatrix& between, double k, double d,
                        bool second) {
  const int32_t own = within.Rows();
  const int32_t other = second ? between.Rows() : between.Columns();
  if (own < 1 || other < 1) return 0.0;
  // Sum over i, j of d_own[i,j] times the sum over m of the between cells of i.
  const std::vector<double> own_rows = RowSums(within);
  const std::vector<double> to_other = second ? ColumnSums(between) : RowSums(between);
  double c = 0.0;
  for (int32_t i = 1; i <= own; ++i)
    c += own_rows[static_cast<size_t>(i)] * to_other[static_cast<size_t>(i)];
  const double n = own;
  const double o = other;
  return (2.0 / n) * (c / (n * n * o) - ((n - 1.0) * k / n) * d);
}

DivergenceVariances ComputeDivergenceVariances(const DivergenceJukesCantor& jc,
                                               const Progress& progress) {
  const double k1 = jc.Pi1JC.value_or(0.0F);
  const double k2 = jc.Pi2JC.value_or(0.0F);
  const double d = jc.DxyJC.value_or(0.0F);
  DivergenceVariances r;
  progress.Say("Computing Variances Dx, Dy, Dxy... ");
  r.VarPi1 = VarianceWithin(jc.PairJC1, k1);
  r.VarPi2 = VarianceWithin(jc.PairJC2, k2);
  r.VarDxy = VarianceBetween(jc.PairJCxy, d);
  const double v1 = r.VarPi1.value_or(0.0);
  const double v2 = r.VarPi2.value_or(0.0);
  const double vxy = r.VarDxy.value_or(0.0);
  if (vxy > 0.0 && v1 > 0.0 && v2 > 0.0) {
    progress.Say("Computing Covariances Dxy, Dx(Dy)... ");
    r.Cov1 = CovarianceWithin(jc.PairJC1, jc.PairJCxy, k1, d, false);
    r.Cov2 = CovarianceWithin(jc.PairJC2, jc.PairJCxy, k2, d, true);
  }
  r.VarDa = vxy + (v1 + v2) / 4.0 - (r.Cov1 + r.Cov2) / 2.0;
  return r;
}

}  // namespace ovelt
