#include "coalescent/recombination_stretches.h"

#include <algorithm>
#include <iterator>

namespace ovelt {

RecombinationStretches::RecombinationStretches(int32_t n, int32_t sites)
    : n_(n), sites_(sites), nodes_(static_cast<std::size_t>(2 * n - 1)) {
  Reserve(4);
}

void RecombinationStretches::Reserve(int32_t entries) {
  if (entries <= capacity_) return;
  int32_t capacity = std::max(capacity_, 4);
  while (capacity < entries) capacity *= 2;
  const auto rows = static_cast<std::size_t>(capacity) + 1;  // entry 0 is not used
  first_site_.resize(rows);
  next_.resize(rows);
  nodes_used_.resize(rows);
  links_.resize(rows * 3 * nodes_);
  times_.resize(rows * nodes_);
  capacity_ = capacity;
}

void RecombinationStretches::Start() {
  stretch_count_ = 1;
  first_site_[1] = 0;
  next_[1] = 0;
  nodes_used_[1] = static_cast<int16_t>(n_ - 1);
  std::fill(Times(1), Times(1) + n_, 0.0);
  order_.assign(1, 1);
  order_start_.assign(1, 0);
}

int32_t RecombinationStretches::PositionOfStart(int32_t site, int32_t from) const {
  if (order_start_[static_cast<std::size_t>(from)] == site) return from;
  const auto found = std::lower_bound(order_start_.begin() + from, order_start_.end(), site);
  return static_cast<int32_t>(std::distance(order_start_.begin(), found));
}

void RecombinationStretches::AddBreakpoint(int32_t p) {
  const int32_t start = p + 1;
  // The last stretch beginning at or before p + 1: the list walk stops at the same entry.
  const auto after = std::upper_bound(order_start_.begin(), order_start_.end(), start);
  const auto position = std::distance(order_start_.begin(), after) - 1;
  const int32_t reached = order_[static_cast<std::size_t>(position)];
  if (first_site_[static_cast<std::size_t>(reached)] == start) return;

  Reserve(stretch_count_ + 1);
  const int32_t entry = ++stretch_count_;
  const auto e = static_cast<std::size_t>(entry);
  const auto r = static_cast<std::size_t>(reached);
  first_site_[e] = static_cast<int16_t>(start);
  next_[e] = next_[r];
  next_[r] = static_cast<int16_t>(entry);
  nodes_used_[e] = nodes_used_[r];
  std::copy_n(Links(reached, 0), 3 * nodes_, Links(entry, 0));
  std::copy_n(Times(reached), nodes_, Times(entry));
  order_.insert(order_.begin() + position + 1, entry);
  order_start_.insert(order_start_.begin() + position + 1, start);
}

int32_t RecombinationStretches::JoinNodes(int32_t entry, int32_t first, int32_t second,
                                          double time) {
  const int32_t node = ++nodes_used_[static_cast<std::size_t>(entry)];
  int16_t* parent = Links(entry, 0);
  Links(entry, 1)[node] = static_cast<int16_t>(first);
  Links(entry, 2)[node] = static_cast<int16_t>(second);
  parent[first] = static_cast<int16_t>(node);
  parent[second] = static_cast<int16_t>(node);
  Times(entry)[node] = time;
  return node;
}

double RecombinationStretches::TreeLength(int32_t entry) const {
  const double* time = Times(entry);
  const int32_t root = LastNode();
  double length = 2.0 * time[root];
  for (int32_t m = n_; m < root; ++m) length += time[m];
  return length;
}

int32_t RecombinationStretches::BranchAt(int32_t entry, double x) const {
  const int16_t* parent = Links(entry, 0);
  const double* time = Times(entry);
  const int32_t root = LastNode();
  double sum = 0.0;
  for (int32_t i = 0; i < root; ++i) {
    sum += time[parent[i]] - time[i];
    if (sum >= x) return i;
  }
  return root - 1;  // rounding left the sum a hair below the tree length
}

}  // namespace ovelt
