#include "analyses/polymorphism/neutrality/neutrality_sites.h"

#include <algorithm>
#include <functional>

namespace ovelt {
namespace {

constexpr char kNucleotides[4] = {'A', 'C', 'G', 'T'};

// 0..3 for A, C, G, T; -1 for a gap or missing data.
int NucleotideIndex(char cell) {
  switch (cell) {
    case 'A':
      return 0;
    case 'C':
      return 1;
    case 'G':
      return 2;
    case 'T':
      return 3;
    default:
      return -1;
  }
}

using BaseCounts = std::array<int32_t, 4>;

BaseCounts CountColumn(const SeqMatrix& matrix, int32_t site, int32_t seqs) {
  BaseCounts counts{};
  for (int32_t seq = 1; seq <= seqs; ++seq) {
    const int index = NucleotideIndex(matrix.at(site, seq));
    if (index >= 0) ++counts[static_cast<size_t>(index)];
  }
  return counts;
}

int32_t Present(const BaseCounts& counts) {
  return static_cast<int32_t>(
      std::count_if(counts.begin(), counts.end(), [](int32_t c) { return c > 0; }));
}

int32_t Once(const BaseCounts& counts, int skip = -1) {
  int32_t once = 0;
  for (int i = 0; i < 4; ++i) {
    if (i != skip && counts[static_cast<size_t>(i)] == 1) ++once;
  }
  return once;
}

struct OutgroupColumn {
  bool gap = false;  // a gap or missing datum in some outgroup sequence
  int state = -1;    // index of the one nucleotide of all outgroup sequences, or -1
};

OutgroupColumn ReadOutgroup(const SeqMatrix& outgroup, int32_t site, int32_t seqs) {
  OutgroupColumn column;
  for (int32_t seq = 1; seq <= seqs; ++seq) {
    const int index = NucleotideIndex(outgroup.at(site, seq));
    if (index < 0) {
      column.gap = true;
      column.state = -1;
      return column;
    }
    if (seq == 1) {
      column.state = index;
    } else if (index != column.state) {
      column.state = -1;  // disagreement: keep looking for a gap, which outranks it
      for (int32_t rest = seq + 1; rest <= seqs; ++rest) {
        if (NucleotideIndex(outgroup.at(site, rest)) < 0) column.gap = true;
      }
      return column;
    }
  }
  return column;
}

// Nucleotide counts of the polymorphic sites of from..to, walking each sequence along its
// contiguous cells rather than each site down the columns.
std::vector<BaseCounts> CountPolymorphicSites(const Selection& sel,
                                              const std::vector<int32_t>& sites) {
  std::vector<BaseCounts> counts(sites.size(), BaseCounts{});
  const int32_t seqs = std::min(sel.SelOutCount, sel.SelMatrix1.seqs());
  for (int32_t seq = 1; seq <= seqs; ++seq) {
    const char* row = sel.SelMatrix1.sequence(seq);
    for (size_t i = 0; i < sites.size(); ++i) {
      const int index = NucleotideIndex(row[sites[i] - 1]);
      if (index >= 0) ++counts[i][static_cast<size_t>(index)];
    }
  }
  return counts;
}

bool IsPolymorphicClass(int16_t site_class) {
  return site_class >= kSingletonSite && site_class <= kFourVariants;
}

// The common walk: classes, diversities and ingroup counts; `outgroup_step` (when given) then
// settles each site against the outgroup.
SiteTallies Tally(
    const Selection& sel, int32_t from, int32_t to,
    const std::function<void(SiteTallies&, int32_t site, const BaseCounts*)>& outgroup_step) {
  SiteTallies tallies;
  tallies.From = from;
  tallies.To = to;
  tallies.Sites.assign(static_cast<size_t>(to) + 1, SiteTally{});
  tallies.Classes = sel.SelSiteClass1;
  if (tallies.Classes.size() < static_cast<size_t>(to) + 1)
    tallies.Classes.resize(static_cast<size_t>(to) + 1, kGapOrMissing);

  std::vector<int32_t> polymorphic;
  for (int32_t site = from; site <= to; ++site) {
    if (IsPolymorphicClass(tallies.Classes[static_cast<size_t>(site)])) polymorphic.push_back(site);
  }
  const std::vector<BaseCounts> counts = CountPolymorphicSites(sel, polymorphic);

  size_t next_polymorphic = 0;
  for (int32_t site = from; site <= to; ++site) {
    const auto s = static_cast<size_t>(site);
    const int16_t site_class = tallies.Classes[s];
    const BaseCounts* site_counts = nullptr;
    if (next_polymorphic < polymorphic.size() && polymorphic[next_polymorphic] == site)
      site_counts = &counts[next_polymorphic++];
    if (site_class == kGapOrMissing) continue;
    SiteTally& t = tallies.Sites[s];
    t.Used = true;
    t.Diversity = sel.SelSiteDiversity1[s];
    if (site_counts != nullptr) {
      t.Variants = static_cast<int16_t>(Present(*site_counts));
      t.Singletons = static_cast<int16_t>(Once(*site_counts));
    } else {
      t.Variants = 1;
    }
    if (outgroup_step) outgroup_step(tallies, site, site_counts);
  }
  return tallies;
}

}  // namespace

int32_t SingletonCount(const SeqMatrix& matrix, int32_t site, int32_t seqs) {
  return Once(CountColumn(matrix, site, seqs));
}

char OutgroupState(const SeqMatrix& outgroup, int32_t site, int32_t seqs) {
  const OutgroupColumn column = ReadOutgroup(outgroup, site, seqs);
  return column.state < 0 ? 0 : kNucleotides[column.state];
}

int32_t ExternalCount(const SeqMatrix& matrix, int32_t site, int32_t seqs, char outgroup_state) {
  return Once(CountColumn(matrix, site, seqs), NucleotideIndex(outgroup_state));
}

bool OutgroupUsable(const SeqMatrix& ingroup, int32_t seqs, const SeqMatrix& outgroup,
                    int32_t outgroup_seqs, int32_t site) {
  const OutgroupColumn column = ReadOutgroup(outgroup, site, outgroup_seqs);
  if (column.state < 0) return false;
  const BaseCounts counts = CountColumn(ingroup, site, seqs);
  return Present(counts) < 2 || counts[static_cast<size_t>(column.state)] > 0;
}

SiteTallies TallySites(const Selection& sel, int32_t from, int32_t to) {
  return Tally(sel, from, to, nullptr);
}

SiteTallies TallySitesWithOutgroup(const Selection& sel, int32_t from, int32_t to) {
  const int32_t outgroup_seqs = std::min(sel.SelCount2, sel.SelMatrix2.seqs());
  return Tally(sel, from, to, [&](SiteTallies& tallies, int32_t site, const BaseCounts* counts) {
    const auto s = static_cast<size_t>(site);
    SiteTally& t = tallies.Sites[s];
    const OutgroupColumn column = ReadOutgroup(sel.SelMatrix2, site, outgroup_seqs);
    if (column.gap || outgroup_seqs < 1) {
      // Not a net site of this analysis: the windows skip it like any gap.
      tallies.Classes[s] = kGapOrMissing;
      t = SiteTally{};
      return;
    }
    if (counts == nullptr) {
      if (column.state < 0) t = SiteTally{};  // nothing to learn, but a net site all the same
      return;
    }
    if (column.state < 0 || (*counts)[static_cast<size_t>(column.state)] == 0) {
      tallies.AmbiguousSites.push_back(site);
      t = SiteTally{};
      return;
    }
    t.External = static_cast<int16_t>(Once(*counts, column.state));
    int derived = 0;
    for (int i = 0; i < 4; ++i) {
      if (i != column.state && (*counts)[static_cast<size_t>(i)] > 0)
        t.Derived[static_cast<size_t>(derived++)] = (*counts)[static_cast<size_t>(i)];
    }
    std::sort(t.Derived.begin(), t.Derived.end(), std::greater<>());
  });
}

}  // namespace ovelt
