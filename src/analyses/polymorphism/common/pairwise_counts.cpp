#include "analyses/polymorphism/common/pairwise_counts.h"

#include <stdexcept>
#include <utility>

#include "analyses/polymorphism/common/polymorphic_sites.h"

namespace ovelt {

namespace {

constexpr size_t kBatchCarriers = size_t{1} << 15;

}  // namespace

uint8_t CellCode(char cell) {
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
      return kCodeMissing;
  }
}

const PairRule& DiffersRule() {
  static const PairRule rule = [] {
    PairRule r{};
    for (int a = 0; a < 4; ++a)
      for (int b = 0; b < 4; ++b) r[a][b] = a != b ? 1 : 0;
    return r;
  }();
  return rule;
}

const PairRule& EitherMissingRule() {
  static const PairRule rule = [] {
    PairRule r{};
    for (int a = 0; a < 5; ++a)
      for (int b = 0; b < 5; ++b) r[a][b] = (a == kCodeMissing || b == kCodeMissing) ? 1 : 0;
    return r;
  }();
  return rule;
}

PairCounts::PairCounts(int32_t n)
    : n_(n),
      own_(static_cast<size_t>(n > 0 ? n : 0), 0),
      pair_(n > 1 ? static_cast<size_t>(n) * static_cast<size_t>(n - 1) / 2 : 0, 0) {}

size_t PairCounts::Index(int32_t a, int32_t b) const {
  const auto an = static_cast<size_t>(a);
  return an * (2 * static_cast<size_t>(n_) - an - 1) / 2 + static_cast<size_t>(b - a - 1);
}

int64_t PairCounts::at(int32_t i, int32_t j) const {
  if (!columns_.empty()) throw std::logic_error("PairCounts read before Finish");
  int32_t a = i - 1, b = j - 1;
  if (a > b) std::swap(a, b);
  return shared_ + own_[static_cast<size_t>(a)] + own_[static_cast<size_t>(b)] + pair_[Index(a, b)];
}

void PairCounts::AddColumn(const uint8_t* codes, const PairRule& rule) {
  // Four partial tallies, so that equal codes in a row do not wait on one another.
  std::array<std::array<int32_t, 8>, 4> tally{};
  int32_t s = 0;
  for (; s + 4 <= n_; s += 4) {
    ++tally[0][codes[s]];
    ++tally[1][codes[s + 1]];
    ++tally[2][codes[s + 2]];
    ++tally[3][codes[s + 3]];
  }
  for (; s < n_; ++s) ++tally[0][codes[s]];
  std::array<int32_t, 5> counts{};
  for (size_t c = 0; c < counts.size(); ++c)
    counts[c] = tally[0][c] + tally[1][c] + tally[2][c] + tally[3][c];
  uint8_t common = 0;
  for (uint8_t c = 1; c < 5; ++c)
    if (counts[c] > counts[common]) common = c;
  // value(i, j) = shared + own(i) + own(j) + pair(i, j), with the corrections of two
  // carriers of other states making up for the terms each got against the common state.
  const int32_t base = rule[common][common];
  shared_ += base;
  const size_t first = carriers_.size();
  for (int32_t q = 0; q < n_; ++q) {
    if (codes[q] == common) continue;
    own_[static_cast<size_t>(q)] += rule[codes[q]][common] - base;
    carriers_.push_back({q, codes[q]});
  }
  const auto count = static_cast<uint32_t>(carriers_.size() - first);
  if (count >= 2) {
    columns_.push_back({first, count, common, &rule});
  } else {
    carriers_.resize(first);
  }
  // A batch small enough for its carriers to stay in the cache while the rows are summed.
  if (carriers_.size() >= kBatchCarriers) Finish();
}

void PairCounts::Finish() {
  // For each sequence, the places where it carries another state: (column, position in the
  // column's list), in column order.
  std::vector<size_t> start(static_cast<size_t>(n_) + 1, 0);
  for (const Carrier& c : carriers_) ++start[static_cast<size_t>(c.seq) + 1];
  for (size_t s = 1; s < start.size(); ++s) start[s] += start[s - 1];
  struct Place {
    uint32_t column;
    uint32_t position;
  };
  std::vector<Place> places(carriers_.size());
  std::vector<size_t> next(start.begin(), start.end() - 1);
  for (size_t col = 0; col < columns_.size(); ++col) {
    const Column& c = columns_[col];
    for (uint32_t p = 0; p < c.count; ++p) {
      const auto seq = static_cast<size_t>(carriers_[c.first + p].seq);
      places[next[seq]++] = {static_cast<uint32_t>(col), p};
    }
  }
  // Row by row: every later carrier of each column that `a` shares.
  for (int32_t a = 0; a + 1 < n_; ++a) {
    const size_t row = Index(a, a + 1);
    for (size_t k = start[static_cast<size_t>(a)]; k < start[static_cast<size_t>(a) + 1]; ++k) {
      const Column& c = columns_[places[k].column];
      const PairRule& rule = *c.rule;
      const uint8_t ca = carriers_[c.first + places[k].position].code;
      const int32_t against_a = rule[ca][c.common] - rule[c.common][c.common];
      for (uint32_t p = places[k].position + 1; p < c.count; ++p) {
        const Carrier& b = carriers_[c.first + p];
        pair_[row + static_cast<size_t>(b.seq - a - 1)] +=
            rule[ca][b.code] - against_a - rule[b.code][c.common];
      }
    }
  }
  columns_.clear();
  carriers_.clear();
}

PairCounts PairwiseDifferences(const Selection& sel, int32_t from, int32_t to,
                               const PolyGauge& gauge) {
  const std::vector<int32_t> sites = PolymorphicSites(sel, from, to);
  PairCounts counts(sel.SelOutCount);
  size_t done = 0;
  int last_percent = 0;
  ForEachColumn(sel, sites, [&](int32_t, const uint8_t* codes) {
    counts.AddColumn(codes, DiffersRule());
    ++done;
    const int percent = static_cast<int>(done * 100 / sites.size());
    if (percent > last_percent) {
      last_percent = percent;
      RaiseTo(gauge, percent);
    }
  });
  counts.Finish();
  return counts;
}

}  // namespace ovelt
