#include "analyses/linkage/pair_fisher.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>

#include "stats/fisher_tails.h"
#include "stats/log_factorial.h"
#include "stats/stats_error.h"

namespace ovelt {
namespace {

// Kept P values addressable by a 32-bit place: at most 1 GB of them.
constexpr std::size_t kMaxCacheBytes = std::size_t{1} << 30;

// Equal sums up to rounding still count as not exceeding the first tail.
bool WithinFirstTail(double sum, double p1) {
  return !(sum > p1 && std::fabs(sum - p1) >= 1e-13);
}

}  // namespace

PairFisher::PairFisher(int32_t n, std::size_t cache_bytes)
    : n_(n), bytes_left_(std::min(cache_bytes, kMaxCacheBytes)) {
  const LogFactorialTable table(n);
  lf_.resize(static_cast<std::size_t>(n) + 1);
  for (int32_t i = 0; i <= n; ++i) lf_[static_cast<std::size_t>(i)] = table(i);
  rows_.resize(static_cast<std::size_t>(n) + 1);
}

float PairFisher::TwoTailed(int32_t a, int32_t b, int32_t c, int32_t d) {
  if (a < 0 || b < 0 || c < 0 || d < 0) throw StatsError(kFisherExactFailureText);
  if (static_cast<int64_t>(a) + b + c + d == n_) {
    const int32_t r1 = a + b, c1 = a + c;
    const int64_t place = Sight(r1, c1);
    if (place > 0) return Kept(place - 1)[a - std::max(0, r1 + c1 - n_)];
  }
  return TwoTailedDirect(a, b, c, d);
}

int64_t PairFisher::Sight(int32_t r1, int32_t c1) {
  std::vector<int32_t>& row = rows_[static_cast<std::size_t>(r1)];
  if (row.empty()) {
    const std::size_t bytes = rows_.size() * sizeof(int32_t);
    if (bytes_left_ < bytes) return 0;
    bytes_left_ -= bytes;
    row.assign(rows_.size(), 0);
  }
  int32_t& entry = row[static_cast<std::size_t>(c1)];
  if (entry > 0) return entry;
  if (entry > std::numeric_limits<int32_t>::min() + 1) --entry;
  const int64_t tables = std::min(r1, c1) - std::max(0, r1 + c1 - n_) + 1;
  if (-static_cast<int64_t>(entry) * kTablesPerSight < tables) return 0;
  const int64_t place = Keep(r1, c1);
  if (place < 0) return 0;
  entry = static_cast<int32_t>(place + 1);
  return entry;
}

int64_t PairFisher::Reserve(std::size_t count) {
  if (blocks_.empty() || block_size_ - block_used_ < count) {
    // The last block takes what is left of the bound.
    const std::size_t size = std::min(kBlockFloats, bytes_left_ / sizeof(float));
    if (size < count) return -1;
    bytes_left_ -= size * sizeof(float);
    blocks_.push_back(std::make_unique_for_overwrite<float[]>(size));
    block_size_ = size;
    block_used_ = 0;
  }
  const std::size_t place = (blocks_.size() - 1) * kBlockFloats + block_used_;
  block_used_ += count;
  return static_cast<int64_t>(place);
}

int64_t PairFisher::Keep(int32_t r1, int32_t c1) {
  const int64_t n = n_;
  const int64_t lowest = std::max<int64_t>(0, r1 + c1 - n);
  const int64_t highest = std::min(r1, c1);
  const auto count = static_cast<std::size_t>(highest - lowest + 1);
  const int64_t place = Reserve(count);
  if (place < 0) return -1;
  float* out = blocks_.back().get() + (block_used_ - count);

  // The terms in the order of the direct way's sums: k from the margins as a + c, b + d,
  // a + b, c + d, then the cells a, b, c, d.
  const double k = Lf(c1) + Lf(n - c1) + Lf(r1) + Lf(n - r1);
  terms_.resize(count);
  from_low_.resize(count);
  from_high_.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    const int64_t a = lowest + static_cast<int64_t>(i);
    terms_[i] = std::exp(k - Lf(a) - Lf(r1 - a) - Lf(c1 - a) - Lf(n - r1 - c1 + a) - Lf(n));
  }
  // from_low_[i]: the terms 0..i added from 0 up; from_high_[i]: the terms i..count-1 added
  // from count-1 down. The second tail of FisherExact adds from its far extreme inward in just
  // these orders.
  double sum = 0.0;
  for (std::size_t i = 0; i < count; ++i) from_low_[i] = sum += terms_[i];
  sum = 0.0;
  for (std::size_t i = count; i-- > 0;) from_high_[i] = sum += terms_[i];

  // a d - b c = a n - r1 c1 grows with a: the tables of negative association come first.
  std::size_t positive = 0;
  while (positive < count) {
    const int64_t a = lowest + static_cast<int64_t>(positive);
    if (!FisherTailsOf(a, r1 - a, c1 - a, n - r1 - c1 + a).NegativeAssociation) break;
    ++positive;
  }
  // Negative: the first tail runs from a down to the lowest a and grows with a; the second
  // starts at the highest a and runs down while its sum stays within the first, so its start
  // only falls as a rises.
  std::size_t start = count;  // first index whose sum from the top is within
  for (std::size_t i = 0; i < positive; ++i) {
    const double p1 = from_low_[i];
    while (start > 0 && WithinFirstTail(from_high_[start - 1], p1)) --start;
    const double p2 = start < count ? from_high_[start] : 0.0;
    out[i] = static_cast<float>(std::min(p1 + p2, 1.0));
  }
  // Positive, from the highest a down: the first tail runs from a up to the highest a and grows
  // as a falls; the second runs up from the lowest a, its end only rising.
  std::size_t end = 0;  // first index whose sum from the bottom is beyond
  for (std::size_t i = count; i-- > positive;) {
    const double p1 = from_high_[i];
    while (end < count && WithinFirstTail(from_low_[end], p1)) ++end;
    const double p2 = end > 0 ? from_low_[end - 1] : 0.0;
    out[i] = static_cast<float>(std::min(p1 + p2, 1.0));
  }
  ++cached_margins_;
  return place;
}

float PairFisher::TwoTailedDirect(int32_t a32, int32_t b32, int32_t c32, int32_t d32) const {
  const int64_t a = a32, b = b32, c = c32, d = d32;
  const int64_t n = a + b + c + d;
  if (a < 0 || b < 0 || c < 0 || d < 0 || n >= static_cast<int64_t>(lf_.size()))
    throw StatsError(kFisherExactFailureText);
  const FisherTails tails = FisherTailsOf(a, b, c, d);
  const int64_t sign = tails.Steps > 0 ? 1 : (tails.Steps < 0 ? -1 : 0);
  const double k = Lf(a + c) + Lf(b + d) + Lf(a + b) + Lf(c + d);

  double p1 = 0.0;
  for (int64_t i = 1; i <= std::llabs(tails.Steps) + 1; ++i) {
    const int64_t m = (i - 1) * sign;
    const double term = std::exp(k - Lf(a - m) - Lf(b + m) - Lf(c + m) - Lf(d - m) - Lf(n));
    if (term < p1 * 0x1p-54) break;  // below half an ulp of p1, and the rest smaller still
    p1 += term;
  }

  const FisherTable& t = tails.Far;
  const int64_t last = tails.FarMoves;
  auto log_term = [&](int64_t s) {
    const int64_t step = s * tails.Inward;
    return k - Lf(t.a + step) - Lf(t.b - step) - Lf(t.c - step) - Lf(t.d + step) - Lf(n);
  };
  const double threshold = std::log(p1) - 60.0 * std::log(2.0);
  // First move at which the term reaches the threshold or has passed the mode.
  int64_t low = 0, high = last;
  while (low < high) {
    const int64_t mid = low + (high - low) / 2;
    const double here = log_term(mid);
    if (here >= threshold || log_term(mid + 1) < here) {
      high = mid;
    } else {
      low = mid + 1;
    }
  }

  double p2 = 0.0;
  for (int64_t s = low; s <= last; ++s) {
    const double p = std::exp(log_term(s));
    if (!WithinFirstTail(p2 + p, p1)) break;
    p2 += p;
  }
  return static_cast<float>(std::min(p1 + p2, 1.0));
}

}  // namespace ovelt
