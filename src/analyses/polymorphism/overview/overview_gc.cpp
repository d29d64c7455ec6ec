#include "analyses/polymorphism/overview/overview_gc.h"

namespace ovelt {

namespace {

struct Tally {
  int64_t gc = 0;
  int64_t nucleotides = 0;
  int32_t sites = 0;
};

std::optional<GcShare> Share(const Tally& t) {
  if (t.sites <= 0 || t.nucleotides <= 0) return std::nullopt;
  return GcShare{static_cast<double>(t.gc) / static_cast<double>(t.nucleotides), t.sites};
}

}  // namespace

GcContent ComputeGcContent(const Selection& sel, int32_t from, int32_t to) {
  Tally noncoding, coding;
  const int32_t n = sel.SelOutCount;
  for (int32_t site = from; site <= to; ++site) {
    if (sel.SelSiteClass1[static_cast<size_t>(site)] == kGapOrMissing) continue;
    const bool codes = static_cast<size_t>(site) < sel.data().CodonPosition.size() &&
                       sel.data().CodonPosition[static_cast<size_t>(site)] > 0;
    Tally& t = codes ? coding : noncoding;
    ++t.sites;
    for (int32_t seq = 1; seq <= n; ++seq) {
      const char cell = sel.SelMatrix1.at(site, seq);
      ++t.nucleotides;
      if (cell == 'G' || cell == 'C') ++t.gc;
    }
  }
  const Tally total{noncoding.gc + coding.gc, noncoding.nucleotides + coding.nucleotides,
                    noncoding.sites + coding.sites};
  return {Share(noncoding), Share(coding), Share(total)};
}

}  // namespace ovelt
