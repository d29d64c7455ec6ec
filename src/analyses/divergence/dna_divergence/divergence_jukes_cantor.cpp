#include "analyses/divergence/dna_divergence/divergence_jukes_cantor.h"

#include <cmath>

namespace ovelt {
namespace {

using Rows = std::vector<std::vector<char>>;

int32_t Differences(const std::vector<char>& a, const std::vector<char>& b) {
  int32_t d = 0;
  for (size_t s = 0; s < a.size(); ++s) d += a[s] != b[s] ? 1 : 0;
  return d;
}

// The pair's distance, or none when x = 4d / (3L) is 1 or more.
std::optional<double> PairDistance(int32_t differences, int32_t net_sites) {
  const double x = 4.0 * differences / (3.0 * net_sites);
  if (x >= 1.0) return std::nullopt;
  return -0.75 * std::log(1.0 - x);
}

struct MeanOf {
  double Sum = 0.0;
  int64_t Count = 0;
  void Add(double value) {
    Sum += value;
    ++Count;
  }
  [[nodiscard]] std::optional<float> Mean() const {
    if (Count == 0) return std::nullopt;
    return static_cast<float>(Sum / static_cast<double>(Count));
  }
};

// Pairs i < j of one population, both cells of `matrix` filled.
std::optional<float> WithinPopulation(const Rows& rows, int32_t seqs, int32_t net_sites,
                                      PairMatrix& matrix, const Progress& progress, int from,
                                      int to) {
  MeanOf mean;
  for (int32_t i = 1; i < seqs; ++i) {
    for (int32_t j = i + 1; j <= seqs; ++j) {
      const auto jc = PairDistance(Differences(rows[static_cast<size_t>(i)],
                                               rows[static_cast<size_t>(j)]),
                                   net_sites);
      if (!jc) continue;
      mean.Add(*jc);
      matrix.At(i, j) = matrix.At(j, i) = static_cast<float>(*jc);
    }
    progress.Raise(from + (to - from) * i / seqs);
  }
  return mean.Mean();
}

}  // namespace

std::vector<std::vector<char>> CompressedSequences(const SeqMatrix& matrix, int32_t seqs,
                                                   const std::vector<double>& site_dxy,
                                                   int32_t from, int32_t to) {
  Rows rows(static_cast<size_t>(seqs) + 1);
  for (int32_t s = 1; s <= seqs; ++s) {
    auto& row = rows[static_cast<size_t>(s)];
    for (int32_t site = from; site <= to; ++site)
      if (site_dxy[static_cast<size_t>(site)] > 0.0) row.push_back(matrix.at(site, s));
  }
  return rows;
}

DivergenceJukesCantor ComputeDivergenceJukesCantor(const Selection& sel,
                                                   const std::vector<double>& site_dxy,
                                                   int32_t from, int32_t to, int32_t net_sites,
                                                   const Progress& progress) {
  const int32_t n1 = sel.SelCount1;
  const int32_t n2 = sel.SelCount2;
  DivergenceJukesCantor r;
  r.PairJC1 = PairMatrix(n1, n1);
  r.PairJC2 = PairMatrix(n2, n2);
  r.PairJCxy = PairMatrix(n1, n2);
  if (net_sites < 1) return r;
  const Rows rows1 = CompressedSequences(sel.SelMatrix1, n1, site_dxy, from, to);
  const Rows rows2 = CompressedSequences(sel.SelMatrix2, n2, site_dxy, from, to);

  progress.Say("Computing Pi, Dxy, Da (Jukes and Cantor)... ");
  r.Pi1JC = WithinPopulation(rows1, n1, net_sites, r.PairJC1, progress, 0, 25);
  r.Pi2JC = WithinPopulation(rows2, n2, net_sites, r.PairJC2, progress, 25, 50);
  MeanOf between;
  for (int32_t i = 1; i <= n1; ++i) {
    for (int32_t j = 1; j <= n2; ++j) {
      const auto jc = PairDistance(Differences(rows1[static_cast<size_t>(i)],
                                               rows2[static_cast<size_t>(j)]),
                                   net_sites);
      if (!jc) continue;
      between.Add(*jc);
      r.PairJCxy.At(i, j) = static_cast<float>(*jc);
    }
    progress.Raise(50 + 50 * i / n1);
  }
  r.DxyJC = between.Mean();

  // A population of one sequence has no pair and no diversity within.
  const auto within = [](const std::optional<float>& pi, int32_t seqs) -> std::optional<float> {
    if (seqs < 2) return 0.0F;
    return pi;
  };
  const auto w1 = within(r.Pi1JC, n1);
  const auto w2 = within(r.Pi2JC, n2);
  if (r.DxyJC && w1 && w2) r.DaJC = *r.DxyJC - (*w1 + *w2) / 2.0F;
  return r;
}

}  // namespace ovelt
