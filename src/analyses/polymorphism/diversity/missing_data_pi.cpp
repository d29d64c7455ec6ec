#include "analyses/polymorphism/diversity/missing_data_pi.h"

#include <array>
#include <vector>

#include "analyses/polymorphism/common/pairwise_counts.h"
#include "stats/harmonic.h"

namespace ovelt {

namespace {

bool IsMissing(char cell) {
  return cell == '-' || cell == '?';
}

// True when a file sequence that the first selection does not hold has "-" or "?" at `site`.
bool GapOutsideSelection(const Selection& sel, const std::vector<bool>& selected, int32_t site) {
  for (int32_t seq = 1; seq <= sel.data().RawMatrix.seqs(); ++seq)
    if (!selected[static_cast<size_t>(seq)] && IsMissing(sel.data().RawMatrix.at(site, seq)))
      return true;
  return false;
}

struct UsedColumns {
  std::vector<int32_t> sites;
  int32_t excluded_gap_sites = 0;
};

UsedColumns FindUsedColumns(const Selection& sel, int32_t from, int32_t to) {
  UsedColumns used;
  std::vector<bool> selected(static_cast<size_t>(sel.data().RawMatrix.seqs()) + 1, false);
  for (size_t i = 1; i < sel.SelSeqNumbers1.size(); ++i) {
    const int32_t seq = sel.SelSeqNumbers1[i];
    if (seq >= 1 && seq <= sel.data().RawMatrix.seqs()) selected[static_cast<size_t>(seq)] = true;
  }
  for (int32_t site = from; site <= to; ++site) {
    const int16_t c = sel.SelSiteClass1[static_cast<size_t>(site)];
    if (c == kMonomorphic) continue;
    if (sel.data().GapsInSets == 2 && c == kGapOrMissing &&
        GapOutsideSelection(sel, selected, site)) {
      ++used.excluded_gap_sites;
      continue;
    }
    used.sites.push_back(site);
  }
  return used;
}

}  // namespace

PairwiseDeletion ComputePairwiseDeletion(const Selection& sel, int32_t from, int32_t to,
                                         const PolyGauge& gauge) {
  const int32_t n = sel.SelOutCount;
  const UsedColumns used = FindUsedColumns(sel, from, to);
  PairwiseDeletion r;
  r.ExcludedGapSites = used.excluded_gap_sites;

  // One pass over the used columns: per-pair dropped sites and differences, and the
  // per-site diversity and theta.
  PairCounts dropped(n), differences(n);
  int32_t not_analyzed = 0;
  ForEachColumn(sel, used.sites, [&](int32_t site, const uint8_t* codes) {
    if (sel.SelSiteClass1[static_cast<size_t>(site)] == kGapOrMissing)
      dropped.AddColumn(codes, EitherMissingRule());
    differences.AddColumn(codes, DiffersRule());
    std::array<int32_t, 5> counts{};
    for (int32_t s = 0; s < n; ++s) ++counts[codes[s]];
    const int32_t missing = counts[kCodeMissing];
    const int32_t m = n - missing;
    if (missing >= n - 1) {
      ++not_analyzed;
      return;
    }
    bool monomorphic = false;
    for (int c = 0; c < 4; ++c) monomorphic = monomorphic || counts[static_cast<size_t>(c)] == m;
    if (monomorphic) return;
    double sum_p2 = 0.0;
    for (int c = 0; c < 4; ++c) {
      const double p = static_cast<double>(counts[static_cast<size_t>(c)]) / m;
      sum_p2 += p * p;
    }
    r.K += static_cast<double>(m) / (m - 1) * (1.0 - sum_p2);
    r.ThetaWSequence += 1.0 / HarmonicA1Double(m);
    ++r.SegSites;
  });
  dropped.Finish();
  differences.Finish();

  const int64_t pairs = static_cast<int64_t>(n) * (n - 1) / 2;
  const int64_t region = static_cast<int64_t>(to) - from + 1;
  double sum_sites = 0.0, sum_differences = 0.0, sum_pi = 0.0;
  int64_t empty = 0, done = 0;
  for (int32_t i = 1; i < n; ++i) {
    for (int32_t j = i + 1; j <= n; ++j) {
      const int64_t v = region - dropped.at(i, j);
      const int64_t diffs = differences.at(i, j);
      sum_sites += static_cast<double>(v);
      sum_differences += static_cast<double>(diffs);
      const int64_t compared = v - r.ExcludedGapSites;
      if (compared != 0)
        sum_pi += static_cast<double>(diffs) / static_cast<double>(compared);
      else
        ++empty;
    }
    done += n - i;
    RaiseTo(gauge, static_cast<int>(static_cast<double>(done) / static_cast<double>(pairs) * 80));
  }
  r.Comparisons = pairs - empty;
  if (r.Comparisons != 0) {
    const auto c = static_cast<double>(r.Comparisons);
    r.PiPairwise = sum_pi / c;
    r.AverageSites = sum_sites / c - r.ExcludedGapSites;
    r.AverageDifferences = sum_differences / c;
  }

  r.SitesAnalyzed = static_cast<int32_t>(region) - not_analyzed - r.ExcludedGapSites;
  if (r.SitesAnalyzed > 0) {
    r.Pi = r.K / r.SitesAnalyzed;
    r.ThetaWSite = r.ThetaWSequence / r.SitesAnalyzed;
  }
  RaiseTo(gauge, 100);
  return r;
}

}  // namespace ovelt
