#include "coalescent/replicate_tails.h"

#include <algorithm>
#include <functional>

namespace ovelt {

ReplicateTails::ReplicateTails(int32_t k)
    : k_(k), low_(static_cast<size_t>(k) + 1, 0.0), high_(static_cast<size_t>(k) + 1, 0.0) {}

void ReplicateTails::File(double v, double observed) {
  const int32_t idx = ++filed_;
  if (idx < k_) {
    low_[static_cast<size_t>(idx)] = v;
  } else if (idx == k_) {
    low_[static_cast<size_t>(k_)] = v;
    std::sort(low_.begin() + 1, low_.end());
    for (int32_t i = 1; i <= k_; ++i)
      high_[static_cast<size_t>(i)] = low_[static_cast<size_t>(k_ + 1 - i)];
  } else {
    if (v < low_[static_cast<size_t>(k_)]) {
      int32_t i = 1;
      while (!(v < low_[static_cast<size_t>(i)])) ++i;
      for (int32_t j = k_; j > i; --j) low_[static_cast<size_t>(j)] = low_[static_cast<size_t>(j - 1)];
      low_[static_cast<size_t>(i)] = v;
    }
    if (v > high_[static_cast<size_t>(k_)]) {
      int32_t i = 1;
      while (!(v > high_[static_cast<size_t>(i)])) ++i;
      for (int32_t j = k_; j > i; --j)
        high_[static_cast<size_t>(j)] = high_[static_cast<size_t>(j - 1)];
      high_[static_cast<size_t>(i)] = v;
    }
  }
  if (v <= observed) ++atMostObserved_;
  sum_ += v;
}

std::vector<double> ReplicateTails::LowValues() const {
  const int32_t count = std::min(filed_, k_);
  return {low_.begin() + 1, low_.begin() + 1 + count};
}

std::vector<double> ReplicateTails::HighValues() const {
  if (filed_ < k_) return LowValues();
  return {high_.begin() + 1, high_.end()};
}

ReplicateTails ReplicateTails::Merge(const std::vector<ReplicateTails>& blocks, int32_t k) {
  ReplicateTails merged(k);
  std::vector<double> low, high;
  for (const ReplicateTails& b : blocks) {
    const std::vector<double> l = b.LowValues();
    const std::vector<double> h = b.HighValues();
    low.insert(low.end(), l.begin(), l.end());
    high.insert(high.end(), h.begin(), h.end());
    merged.filed_ += b.filed_;
    merged.atMostObserved_ += b.atMostObserved_;
    merged.sum_ += b.sum_;
  }
  std::sort(low.begin(), low.end());
  std::sort(high.begin(), high.end(), std::greater<>());
  if (merged.filed_ < k) {
    // Fewer values than k in all: every one of them is in `low`, ascending.
    std::copy(low.begin(), low.end(), merged.low_.begin() + 1);
  } else {
    std::copy(low.begin(), low.begin() + k, merged.low_.begin() + 1);
    std::copy(high.begin(), high.begin() + k, merged.high_.begin() + 1);
  }
  return merged;
}

}  // namespace ovelt
