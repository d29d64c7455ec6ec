#pragma once
// The stretches of a simulated region between recombination breakpoints, each with its own
// genealogy (Hudson 1983). `BreakpointList` entries count from 1 and are linked in site order
// (a next of 0 ends the list); a split copies the tree of the stretch it divides, so that a
// segment spanning both halves keeps the same node in each. Tables grow by doubling and keep
// their storage from one replicate to the next.
//
// Tree nodes: 0 .. n-1 the sampled sequences, n .. 2(n-1) internal nodes in the order in which
// they coalesce, so node 2(n-1) is the root once `NodesUsed` reaches it.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ovelt {

class RecombinationStretches {
 public:
  RecombinationStretches(int32_t n, int32_t sites);

  // One stretch over the whole region, with n leaves at time 0 and `NodesUsed` n - 1.
  void Start();

  // Makes site p + 1 the first site of a stretch, splitting the stretch that holds it and
  // copying that stretch's tree, unless a stretch already begins there.
  void AddBreakpoint(int32_t p);

  [[nodiscard]] int32_t StretchCount() const { return stretch_count_; }
  [[nodiscard]] int32_t SampleSize() const { return n_; }
  [[nodiscard]] int32_t LastNode() const { return 2 * (n_ - 1); }

  // The stretches in site order, by position 0 .. StretchCount - 1.
  [[nodiscard]] int32_t EntryAt(int32_t position) const {
    return order_[static_cast<std::size_t>(position)];
  }
  [[nodiscard]] int32_t FirstSite(int32_t position) const {
    return order_start_[static_cast<std::size_t>(position)];
  }
  [[nodiscard]] int32_t LastSite(int32_t position) const {
    const auto next = static_cast<std::size_t>(position) + 1;
    return next < order_start_.size() ? order_start_[next] - 1 : sites_ - 1;
  }
  [[nodiscard]] int32_t Length(int32_t position) const {
    return LastSite(position) - FirstSite(position) + 1;
  }
  // Position of the stretch that begins at `site`, searching from `from` on; site must begin one.
  [[nodiscard]] int32_t PositionOfStart(int32_t site, int32_t from) const;

  // The linked list itself, by entry.
  [[nodiscard]] int32_t ListFirstSite(int32_t entry) const {
    return first_site_[static_cast<std::size_t>(entry)];
  }
  [[nodiscard]] int32_t ListNext(int32_t entry) const {
    return next_[static_cast<std::size_t>(entry)];
  }

  // The tree of an entry: `SegmentTreeLinks` rows 0 parent, 1 child one, 2 child two.
  [[nodiscard]] int16_t& NodesUsed(int32_t entry) {
    return nodes_used_[static_cast<std::size_t>(entry)];
  }
  [[nodiscard]] int32_t NodesUsed(int32_t entry) const {
    return nodes_used_[static_cast<std::size_t>(entry)];
  }
  [[nodiscard]] int16_t* Links(int32_t entry, int32_t row) {
    return links_.data() +
           (static_cast<std::size_t>(entry) * 3 + static_cast<std::size_t>(row)) * nodes_;
  }
  [[nodiscard]] const int16_t* Links(int32_t entry, int32_t row) const {
    return links_.data() +
           (static_cast<std::size_t>(entry) * 3 + static_cast<std::size_t>(row)) * nodes_;
  }
  [[nodiscard]] double* Times(int32_t entry) {
    return times_.data() + static_cast<std::size_t>(entry) * nodes_;
  }
  [[nodiscard]] const double* Times(int32_t entry) const {
    return times_.data() + static_cast<std::size_t>(entry) * nodes_;
  }

  // Joins `first` and `second` under the entry's next node at `time`; returns that node.
  int32_t JoinNodes(int32_t entry, int32_t first, int32_t second, double time);

  // Total branch length of a finished tree: twice the root's time plus the times of the other
  // internal nodes.
  [[nodiscard]] double TreeLength(int32_t entry) const;

  // The branch (named by the node below it) at which the running sum of branch lengths, over
  // nodes 0 upward, first reaches x.
  [[nodiscard]] int32_t BranchAt(int32_t entry, double x) const;

 private:
  void Reserve(int32_t entries);

  int32_t n_;
  int32_t sites_;
  std::size_t nodes_;  // 2n - 1 nodes per tree
  int32_t stretch_count_ = 0;
  int32_t capacity_ = 0;  // entries 1 .. capacity_ fit in the tables
  std::vector<int16_t> first_site_;
  std::vector<int16_t> next_;
  std::vector<int16_t> nodes_used_;
  std::vector<int16_t> links_;
  std::vector<double> times_;
  // The list in site order, kept beside it so that a site's stretch is found by bisection.
  std::vector<int32_t> order_;
  std::vector<int32_t> order_start_;
};

}  // namespace ovelt
