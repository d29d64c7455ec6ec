#include "analyses/polymorphism/overview/overview_codon_changes.h"

#include <array>

namespace ovelt {

namespace {

// T, C, A, G as 1..4; 0 for anything else.
int Base(char cell) {
  switch (cell) {
    case 'T':
      return 1;
    case 'C':
      return 2;
    case 'A':
      return 3;
    case 'G':
      return 4;
    default:
      return 0;
  }
}

int CodonIndex(const std::array<int, 3>& b) {
  return (b[0] - 1) * 16 + (b[1] - 1) * 4 + b[2];
}

void CountCodon(const Selection& sel, const std::array<int32_t, 3>& sites, CodonChanges& c) {
  int segregating = -1;
  for (int p = 0; p < 3; ++p) {
    const int16_t site_class =
        sel.SelSiteClass1[static_cast<size_t>(sites[static_cast<size_t>(p)])];
    if (site_class == kGapOrMissing) return;
    if (site_class != kMonomorphic) {
      if (segregating >= 0) return;  // two segregating positions
      segregating = p;
    }
  }
  if (segregating < 0) return;
  const int32_t n = sel.SelOutCount;
  const int32_t site = sites[static_cast<size_t>(segregating)];
  std::array<int32_t, 5> count{};
  for (int32_t seq = 1; seq <= n; ++seq)
    ++count[static_cast<size_t>(Base(sel.SelMatrix1.at(site, seq)))];
  int common = 1;
  for (int b = 2; b <= 4; ++b)
    if (count[static_cast<size_t>(b)] > count[static_cast<size_t>(common)]) common = b;
  std::array<int, 3> codon{};
  for (int p = 0; p < 3; ++p)
    codon[static_cast<size_t>(p)] = Base(sel.SelMatrix1.at(sites[static_cast<size_t>(p)], 1));
  codon[static_cast<size_t>(segregating)] = common;
  const char reference = sel.data().GeneticCode.Translate(CodonIndex(codon));
  for (int b = 1; b <= 4; ++b) {
    if (b == common || count[static_cast<size_t>(b)] == 0) continue;
    codon[static_cast<size_t>(segregating)] = b;
    if (sel.data().GeneticCode.Translate(CodonIndex(codon)) == reference)
      ++c.Synonymous;
    else
      ++c.Nonsynonymous;
  }
}

}  // namespace

std::optional<CodonChanges> CountCodonChanges(const Selection& sel, int32_t from, int32_t to) {
  CodonChanges c;
  bool coding = false;
  std::array<int32_t, 3> codon{};
  int next = 1;  // the codon position expected next
  for (int32_t site = from; site <= to; ++site) {
    const int16_t position = static_cast<size_t>(site) < sel.data().CodonPosition.size()
                                 ? sel.data().CodonPosition[static_cast<size_t>(site)]
                                 : int16_t{0};
    if (position == 0) continue;
    coding = true;
    if (position != next) {
      // A broken codon: start again at the next first position.
      next = 1;
      if (position != 1) continue;
    }
    codon[static_cast<size_t>(position - 1)] = site;
    if (position == 3) {
      CountCodon(sel, codon, c);
      next = 1;
    } else {
      next = position + 1;
    }
  }
  if (!coding) return std::nullopt;
  return c;
}

}  // namespace ovelt
