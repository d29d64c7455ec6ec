#include "analyses/divergence/gene_flow/flow_statistics.h"

#include <cmath>
#include <map>

#include "stats/chi_square_tail.h"

namespace ovelt {

namespace {

double JukesCantor(int32_t d, int32_t sites, bool& defined) {
  const double x = 4.0 * d / (3.0 * sites);
  defined = sites > 0 && x < 1.0;
  return defined ? -0.75 * std::log(1.0 - x) : 0.0;
}

// Sum and number of the pairs within a group, or between two groups, of some function of d.
template <class F>
std::pair<double, double> WithinSum(const FlowTables& t, const HaplotypeCounts& g, F f) {
  double sum = 0.0, pairs = 0.0;
  for (size_t i = 0; i < g.size(); ++i) {
    const auto [a, ca] = g[i];
    const double same = 0.5 * ca * (ca - 1.0);
    sum += same * f(0);
    pairs += same;
    for (size_t j = i + 1; j < g.size(); ++j) {
      const auto [b, cb] = g[j];
      const double n = static_cast<double>(ca) * cb;
      sum += n * f(t.D(a, b));
      pairs += n;
    }
  }
  return {sum, pairs};
}

template <class F>
std::pair<double, double> BetweenSum(const FlowTables& t, const HaplotypeCounts& g1,
                                     const HaplotypeCounts& g2, F f) {
  double sum = 0.0, pairs = 0.0;
  for (const auto& [a, ca] : g1)
    for (const auto& [b, cb] : g2) {
      const double n = static_cast<double>(ca) * cb;
      sum += n * f(t.D(a, b));
      pairs += n;
    }
  return {sum, pairs};
}

double Mean(const std::pair<double, double>& s) {
  return s.second > 0 ? s.first / s.second : 0.0;
}

int32_t SizeOf(const HaplotypeCounts& g) {
  int32_t n = 0;
  for (const auto& [h, c] : g) n += c;
  return n;
}

double Diversity(const HaplotypeCounts& g, int32_t n) {
  if (n < 2) return 0.0;
  double squares = 0.0;
  for (const auto& [h, c] : g)
    squares += (static_cast<double>(c) / n) * (static_cast<double>(c) / n);
  return (1.0 - squares) * n / (n - 1.0);
}

std::optional<double> OneLess(double within, double total) {
  if (total == 0.0) return std::nullopt;
  return 1.0 - within / total;
}

// Snn: the share of each sequence's nearest neighbours that stand in its own population.
double Snn(const FlowUniverse& u, const std::vector<HaplotypeCounts>& groups) {
  double sum = 0.0;
  int32_t n = 0;
  std::vector<int32_t> in_group(static_cast<size_t>(u.Tables->Haplotypes), 0);
  for (const HaplotypeCounts& g : groups) {
    for (const auto& [h, c] : g) in_group[static_cast<size_t>(h)] = c;
    for (const auto& [h, c] : g) {
      const auto hs = static_cast<size_t>(h);
      int32_t same = 0;
      for (const int32_t other : u.Neighbours.Of[hs])
        same += other == h ? c - 1 : in_group[static_cast<size_t>(other)];
      sum += c * static_cast<double>(same) / u.Neighbours.Count[hs];
      n += c;
    }
    for (const auto& [h, c] : g) in_group[static_cast<size_t>(h)] = 0;
  }
  return n > 0 ? sum / n : 0.0;
}

}  // namespace

HaplotypeCounts CountHaplotypes(const FlowTables& tables, const std::vector<int32_t>& sequences) {
  std::map<int32_t, int32_t> counts;
  for (const int32_t s : sequences) ++counts[tables.HaplotypeOf[static_cast<size_t>(s)]];
  return {counts.begin(), counts.end()};
}

HaplotypeCounts Pooled(const std::vector<HaplotypeCounts>& groups) {
  std::map<int32_t, int32_t> counts;
  for (const HaplotypeCounts& g : groups)
    for (const auto& [h, c] : g) counts[h] += c;
  return {counts.begin(), counts.end()};
}

FlowUniverse MakeUniverse(const FlowTables& tables, const std::vector<HaplotypeCounts>& groups,
                          int32_t sites) {
  const HaplotypeCounts all = Pooled(groups);
  std::vector<double> log_dist(static_cast<size_t>(tables.MaxDist) + 1);
  for (size_t d = 0; d < log_dist.size(); ++d) log_dist[d] = std::log(1.0 + static_cast<double>(d));
  return {&tables, RankDistances(tables, all), std::move(log_dist),
          FindNearestNeighbours(tables, all), sites};
}

GroupMeans MeansOf(const FlowUniverse& u, const HaplotypeCounts& group, bool jukes_cantor) {
  const FlowTables& t = *u.Tables;
  GroupMeans m;
  m.N = SizeOf(group);
  m.Haplotypes = static_cast<int32_t>(group.size());
  m.H = Diversity(group, m.N);
  const auto rank = [&u](int32_t d) { return u.Ranks.Rank[static_cast<size_t>(d)]; };
  const auto log_rank = [&u](int32_t d) { return u.Ranks.LogRank[static_cast<size_t>(d)]; };
  m.K = Mean(WithinSum(t, group, [](int32_t d) { return static_cast<double>(d); }));
  m.KLog = Mean(WithinSum(t, group, [&u](int32_t d) { return u.LogDist[static_cast<size_t>(d)]; }));
  m.Z = Mean(WithinSum(t, group, rank));
  m.ZLog = Mean(WithinSum(t, group, log_rank));
  m.Pi = u.Sites > 0 ? m.K / u.Sites : 0.0;
  if (!jukes_cantor) return m;
  double jc_sum = 0.0, jc_pairs = 0.0;
  for (size_t i = 0; i < group.size(); ++i) {
    const auto [a, ca] = group[i];
    for (size_t j = i; j < group.size(); ++j) {
      const auto [b, cb] = group[j];
      const double pairs = i == j ? 0.5 * ca * (ca - 1.0) : static_cast<double>(ca) * cb;
      bool defined = false;
      const double jc = JukesCantor(t.D(a, b), u.Sites, defined);
      if (!defined || pairs == 0.0) continue;
      jc_sum += pairs * jc;
      jc_pairs += pairs;
    }
  }
  if (jc_pairs > 0) m.PiJC = jc_sum / jc_pairs;
  return m;
}

TestedValues TestedStatistics(const FlowUniverse& u, const std::vector<HaplotypeCounts>& groups) {
  TestedValues v{};
  int32_t total = 0;
  for (const HaplotypeCounts& g : groups) total += SizeOf(g);
  for (const HaplotypeCounts& g : groups) {
    const GroupMeans m = MeansOf(u, g, false);
    const double w = static_cast<double>(m.N) / total;
    v[0] += w * m.H;
    v[1] += w * m.K;
    v[2] += w * m.KLog;
    v[3] += w * m.Z;
    v[4] += w * m.ZLog;
  }
  v[5] = Snn(u, groups);
  return v;
}

Differentiation Differentiate(const FlowUniverse& u, const std::vector<HaplotypeCounts>& groups) {
  const FlowTables& t = *u.Tables;
  Differentiation r;
  const TestedValues tested = TestedStatistics(u, groups);
  r.Hs = tested[0];
  r.Ks = tested[1];
  r.KsLog = tested[2];
  r.Zs = tested[3];
  r.ZsLog = tested[4];
  r.Snn = tested[5];
  for (const HaplotypeCounts& g : groups) r.Groups.push_back(MeansOf(u, g));
  const HaplotypeCounts all = Pooled(groups);
  r.Total = MeansOf(u, all);
  r.Hst = OneLess(r.Hs, r.Total.H);
  r.Kst = OneLess(r.Ks, r.Total.K);
  r.KstLog = OneLess(r.KsLog, r.Total.KLog);
  r.Zst = OneLess(r.Zs, r.Total.Z);
  r.ZstLog = OneLess(r.ZsLog, r.Total.ZLog);

  const auto v = static_cast<double>(groups.size());
  const double n_all = r.Total.N;
  // The population by haplotype table.
  for (size_t g = 0; g < groups.size(); ++g) {
    std::map<int32_t, int32_t> row(groups[g].begin(), groups[g].end());
    for (const auto& [h, column] : all) {
      const double expected = static_cast<double>(r.Groups[g].N) * column / n_all;
      const auto found = row.find(h);
      const double observed = found == row.end() ? 0.0 : found->second;
      r.ChiSquare += (observed - expected) * (observed - expected) / expected;
    }
  }
  r.Df = static_cast<int32_t>((groups.size() - 1) * (all.size() - 1));
  r.ChiSquareP = r.Df > 0 ? ChiSquareTail(r.ChiSquare, r.Df) : 1.0;

  // Nei's Gst over the haplotype frequencies, the populations weighted alike.
  double hs = 0.0;
  std::map<int32_t, double> mean_f;
  for (size_t g = 0; g < groups.size(); ++g) {
    double squares = 0.0;
    for (const auto& [h, c] : groups[g]) {
      const double f = static_cast<double>(c) / r.Groups[g].N;
      squares += f * f;
      mean_f[h] += f / v;
    }
    hs += (1.0 - squares) / v;
  }
  double ht = 1.0;
  for (const auto& [h, f] : mean_f) ht -= f * f;
  if (ht > 0.0) r.Gst = (ht - hs) / ht;

  // Between populations: Kxy over all pairs of sequences of different populations, and the
  // mean distances of every two populations for Nst and Fst.
  double between_sum = 0.0, between_pairs = 0.0;
  double b_raw = 0.0, b_jc = 0.0, w_raw = 0.0, w_jc = 0.0;
  const auto jc = [&u](int32_t d) {
    bool defined = false;
    const double value = JukesCantor(d, u.Sites, defined);
    return std::pair<double, bool>(value, defined);
  };
  const auto jc_mean_between = [&](const HaplotypeCounts& g1, const HaplotypeCounts& g2) {
    double sum = 0.0, pairs = 0.0;
    for (const auto& [a, ca] : g1)
      for (const auto& [b, cb] : g2) {
        const auto [value, defined] = jc(t.D(a, b));
        if (!defined) continue;
        sum += static_cast<double>(ca) * cb * value;
        pairs += static_cast<double>(ca) * cb;
      }
    return pairs > 0 ? sum / pairs : 0.0;
  };
  for (size_t g = 0; g < groups.size(); ++g) {
    w_raw += r.Groups[g].K / v;
    w_jc += r.Groups[g].PiJC.value_or(0.0) / v;
    for (size_t h = g + 1; h < groups.size(); ++h) {
      const auto s = BetweenSum(t, groups[g], groups[h], [](int32_t d) { return 1.0 * d; });
      between_sum += s.first;
      between_pairs += s.second;
      b_raw += Mean(s) - (r.Groups[g].K + r.Groups[h].K) / 2.0;
      b_jc += jc_mean_between(groups[g], groups[h]) -
              (r.Groups[g].PiJC.value_or(0.0) + r.Groups[h].PiJC.value_or(0.0)) / 2.0;
    }
  }
  const double population_pairs = v * (v - 1.0) / 2.0;
  b_raw /= population_pairs;
  b_jc /= population_pairs;
  r.Fst = b_raw + w_raw > 0.0 ? b_raw / (b_raw + w_raw) : 0.0;
  r.Nst = b_jc + w_jc > 0.0 ? b_jc / (b_jc + w_jc) : 0.0;
  r.Kxy = between_pairs > 0 ? between_sum / between_pairs : 0.0;
  double pi_sum = 0.0;
  for (const GroupMeans& m : r.Groups) pi_sum += m.Pi;
  if (u.Sites > 0) {
    r.Dxy = r.Kxy / u.Sites;
    r.Da = r.Dxy - pi_sum / v;
  } else {
    r.Da = -(pi_sum / v) * (v - 1.0);
  }

  // Nei (1982): the diversity within, Pi(s), against the total corrected for sample size.
  for (const GroupMeans& m : r.Groups)
    r.PiS += (static_cast<double>(m.N) / n_all) * m.Pi * (m.N - 1.0) / m.N;
  r.PiTCorrected = u.Sites > 0 ? (n_all - 1.0) * r.Total.K / (u.Sites * n_all) : 0.0;
  r.DeltaSt = r.PiTCorrected - r.PiS;
  if (std::fabs(r.DeltaSt) < 1e-7) r.DeltaSt = 0.0;
  if (r.PiTCorrected > 0.0) r.GammaSt = r.PiS / r.PiTCorrected;
  return r;
}

}  // namespace ovelt
