#include "analyses/divergence/gene_conversion/conversion_tracts.h"

#include <algorithm>

#include "analyses/divergence/gene_conversion/nucleotide_counts.h"

namespace ovelt {

namespace {

// Shares of each nucleotide per site would be recomputed per line; the counts of both
// populations at each informative site are taken once.
struct SiteCounts {
  NucleotideCounts Own1, Own2;
};

class LineWalk {
 public:
  LineWalk(const Selection& sel, const std::vector<uint8_t>& informative,
           const std::vector<SiteCounts>& counts, int32_t from, int32_t to,
           std::vector<double>& psi, TractScan& scan)
      : sel_(sel),
        informative_(informative),
        counts_(counts),
        from_(from),
        to_(to),
        psi_(psi),
        scan_(scan) {}

  void Walk(int16_t population, int32_t line) {
    const SeqMatrix& own = population == 1 ? sel_.SelMatrix1 : sel_.SelMatrix2;
    const double n_own = population == 1 ? sel_.SelCount1 : sel_.SelCount2;
    const double n_other = population == 1 ? sel_.SelCount2 : sel_.SelCount1;
    run_ = 0;
    for (int32_t site = from_; site <= to_; ++site) {
      const auto at = static_cast<size_t>(site);
      if (informative_[at] != 0) {
        const int j = NucleotideIndex(own.at(site, line));
        const SiteCounts& c = counts_[static_cast<size_t>(site - from_)];
        const int32_t in_own =
            j < 0 ? 0 : (population == 1 ? c.Own1 : c.Own2)[static_cast<size_t>(j)];
        const int32_t in_other =
            j < 0 ? 0 : (population == 1 ? c.Own2 : c.Own1)[static_cast<size_t>(j)];
        const double x = in_own / n_own;
        const double y = in_other / n_other;
        if (x <= 0.2 && y >= 3 * x) {
          if (run_ == 0) {
            first_ = site;
            run_ = 1;
          } else {
            last_ = site;
            ++run_;
          }
          scan_.Sites.push_back({population, line, site});
          psi_[at] = -1.0;
        } else if (run_ > 0 && x > 0.2 && in_other == 0) {
          Close(population, line, own);
        }
      }
      if (site == to_) Close(population, line, own);
    }
  }

 private:
  void Close(int16_t population, int32_t line, const SeqMatrix& own) {
    if (run_ >= 2) {
      int32_t gaps = 0;
      for (int32_t s = first_; s <= last_; ++s) gaps += own.at(s, line) == '-' ? 1 : 0;
      scan_.Tracts.push_back({population, line, first_, last_, last_ - first_ + 1 - gaps});
    } else if (run_ == 1) {
      // A single site is no tract: it goes back to the first pass of Psi.
      psi_[static_cast<size_t>(scan_.Sites.back().Site)] = 0.0;
      scan_.Sites.pop_back();
    }
    run_ = 0;
  }

  const Selection& sel_;
  const std::vector<uint8_t>& informative_;
  const std::vector<SiteCounts>& counts_;
  int32_t from_, to_;
  std::vector<double>& psi_;
  TractScan& scan_;
  int32_t run_ = 0, first_ = 0, last_ = 0;
};

}  // namespace

TractScan FindConversionTracts(const Selection& sel, const std::vector<uint8_t>& informative,
                               int32_t from, int32_t to, std::vector<double>& psi_by_site) {
  TractScan scan;
  if (to < from) return scan;
  std::vector<SiteCounts> counts(static_cast<size_t>(to - from + 1));
  for (int32_t site = from; site <= to; ++site) {
    if (informative[static_cast<size_t>(site)] == 0) continue;
    counts[static_cast<size_t>(site - from)] = {
        CountNucleotides(sel.SelMatrix1, sel.SelCount1, site),
        CountNucleotides(sel.SelMatrix2, sel.SelCount2, site)};
  }
  LineWalk walk(sel, informative, counts, from, to, psi_by_site, scan);
  for (int32_t line = 1; line <= sel.SelCount1; ++line) walk.Walk(1, line);
  for (int32_t line = 1; line <= sel.SelCount2; ++line) walk.Walk(2, line);
  std::stable_sort(scan.Sites.begin(), scan.Sites.end(),
                   [](const TractSite& a, const TractSite& b) { return a.Site < b.Site; });
  return scan;
}

}  // namespace ovelt
