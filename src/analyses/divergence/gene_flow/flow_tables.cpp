#include "analyses/divergence/gene_flow/flow_tables.h"

#include <cmath>
#include <limits>
#include <map>

namespace ovelt {

int32_t SequenceDifferences(const std::string& a, const std::string& b, int16_t gap_mode) {
  int32_t d = 0;
  for (size_t s = 0; s < a.size(); ++s) {
    if (a[s] == b[s]) continue;
    if (gap_mode == 2 && (IsFlowGap(a[s]) || IsFlowGap(b[s]))) continue;
    ++d;
  }
  return d;
}

FlowTables BuildFlowTables(const GeneFlowSample& sample) {
  FlowTables t;
  std::map<std::string, int32_t> seen;
  std::vector<const std::string*> first;
  for (const std::string& seq : sample.Sequences) {
    const auto [it, fresh] = seen.emplace(seq, t.Haplotypes);
    if (fresh) {
      ++t.Haplotypes;
      first.push_back(&seq);
    }
    t.HaplotypeOf.push_back(it->second);
  }
  const auto h = static_cast<size_t>(t.Haplotypes);
  t.Dist.assign(h * h, 0);
  for (int32_t a = 0; a < t.Haplotypes; ++a) {
    for (int32_t b = a + 1; b < t.Haplotypes; ++b) {
      const int32_t d = SequenceDifferences(*first[static_cast<size_t>(a)],
                                            *first[static_cast<size_t>(b)], sample.GapMode);
      t.Dist[static_cast<size_t>(a) * h + static_cast<size_t>(b)] = d;
      t.Dist[static_cast<size_t>(b) * h + static_cast<size_t>(a)] = d;
      t.MaxDist = std::max(t.MaxDist, d);
    }
  }
  return t;
}

DistanceRanks RankDistances(const FlowTables& tables, const HaplotypeCounts& all) {
  std::vector<double> pairs(static_cast<size_t>(tables.MaxDist) + 1, 0.0);
  for (size_t i = 0; i < all.size(); ++i) {
    const auto [a, ca] = all[i];
    pairs[0] += 0.5 * ca * (ca - 1.0);
    for (size_t j = i + 1; j < all.size(); ++j) {
      const auto [b, cb] = all[j];
      pairs[static_cast<size_t>(tables.D(a, b))] += static_cast<double>(ca) * cb;
    }
  }
  DistanceRanks ranks;
  ranks.Rank.assign(pairs.size(), 0.0);
  ranks.LogRank.assign(pairs.size(), 0.0);
  double before = 0.0;  // pairs at smaller distances
  for (size_t d = 0; d < pairs.size(); ++d) {
    if (pairs[d] == 0.0) continue;
    ranks.Rank[d] = before + 1.0 + (pairs[d] - 1.0) / 2.0;
    ranks.LogRank[d] = std::log(ranks.Rank[d]);
    before += pairs[d];
  }
  return ranks;
}

NearestNeighbours FindNearestNeighbours(const FlowTables& tables, const HaplotypeCounts& all) {
  NearestNeighbours nn;
  nn.Of.assign(static_cast<size_t>(tables.Haplotypes), {});
  nn.Count.assign(static_cast<size_t>(tables.Haplotypes), 0);
  for (const auto& [h, ch] : all) {
    int32_t least = std::numeric_limits<int32_t>::max();
    for (const auto& [other, co] : all) {
      if (other == h && co < 2) continue;  // the sequence itself is no neighbour
      least = std::min(least, tables.D(h, other));
    }
    for (const auto& [other, co] : all) {
      if (other == h && co < 2) continue;
      if (tables.D(h, other) != least) continue;
      nn.Of[static_cast<size_t>(h)].push_back(other);
      nn.Count[static_cast<size_t>(h)] += other == h ? co - 1 : co;
    }
  }
  return nn;
}

}  // namespace ovelt
