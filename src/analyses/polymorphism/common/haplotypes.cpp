#include "analyses/polymorphism/common/haplotypes.h"

#include <unordered_map>

#include "analyses/polymorphism/common/polymorphic_sites.h"

namespace ovelt {

namespace {

// Rows are hashed over the polymorphic sites, so that only sequences of equal hash are compared
// cell by cell (and such a comparison stops at the first difference).
uint64_t RowHash(const char* row, const std::vector<int32_t>& sites) {
  uint64_t h = 1469598103934665603ull;
  for (const int32_t site : sites) {
    h ^= static_cast<unsigned char>(row[site - 1]);
    h *= 1099511628211ull;
  }
  return h;
}

bool SameRow(const char* a, const char* b, const std::vector<int32_t>& sites) {
  for (const int32_t site : sites)
    if (a[site - 1] != b[site - 1]) return false;
  return true;
}

}  // namespace

void HaplotypeDiversity(HaplotypeStats& stats, int32_t n) {
  double q2 = 0.0, q3 = 0.0;
  for (const int32_t members : stats.Members) {
    const double p = static_cast<double>(members) / n;
    q2 += p * p;
    q3 += p * p * p;
  }
  const double nd = n;
  stats.Hd = (1.0 - q2) * nd / (nd - 1.0);
  stats.VarHd = (2.0 / (nd * (nd - 1.0))) * (2.0 * (nd - 2.0) * (q3 - q2 * q2) + q2 - q2 * q2);
}

HaplotypeStats ComputeHaplotypes(const Selection& sel, int32_t from, int32_t to,
                                 const PolyGauge& gauge) {
  const int32_t n = sel.SelOutCount;
  const std::vector<int32_t> sites = PolymorphicSites(sel, from, to);
  HaplotypeStats stats;
  stats.HaplotypeOf.assign(static_cast<size_t>(n) + 1, 0);
  std::vector<int32_t> leader;          // first sequence of each haplotype
  std::vector<int32_t> next_same_hash;  // chain of haplotypes that share a hash
  std::unordered_map<uint64_t, int32_t> first_with_hash;
  first_with_hash.reserve(static_cast<size_t>(n));
  int last_percent = 0;
  for (int32_t seq = 1; seq <= n; ++seq) {
    const char* row = sel.SelMatrix1.sequence(seq);
    const uint64_t hash = RowHash(row, sites);
    auto it = first_with_hash.try_emplace(hash, -1).first;
    int32_t found = -1;
    int32_t last_in_chain = -1;
    for (int32_t h = it->second; h >= 0; h = next_same_hash[static_cast<size_t>(h)]) {
      if (SameRow(sel.SelMatrix1.sequence(leader[static_cast<size_t>(h)]), row, sites)) {
        found = h;
        break;
      }
      last_in_chain = h;
    }
    if (found < 0) {
      found = static_cast<int32_t>(leader.size());
      leader.push_back(seq);
      stats.Members.push_back(0);
      next_same_hash.push_back(-1);
      if (last_in_chain < 0)
        it->second = found;
      else
        next_same_hash[static_cast<size_t>(last_in_chain)] = found;
    }
    ++stats.Members[static_cast<size_t>(found)];
    stats.HaplotypeOf[static_cast<size_t>(seq)] = found + 1;
    const int percent = static_cast<int>(static_cast<int64_t>(seq) * 100 / n);
    if (percent > last_percent) {
      last_percent = percent;
      RaiseTo(gauge, percent);
    }
  }
  stats.Haplotypes = static_cast<int32_t>(leader.size());
  if (n >= 2) HaplotypeDiversity(stats, n);
  return stats;
}

}  // namespace ovelt
