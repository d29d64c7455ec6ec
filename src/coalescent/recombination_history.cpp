#include "coalescent/recombination_history.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

namespace ovelt {

RecombinationHistory::RecombinationHistory(int32_t n, int32_t sites, double r)
    : n_(n),
      sites_(sites),
      rate_per_link_(sites > 1 ? r / (sites - 1) : 0.0),
      chromosomes_(static_cast<std::size_t>(n) + 1),
      stretches_(n, sites) {}

void RecombinationHistory::Start() {
  chromosome_count_ = n_;
  link_count_ = (sites_ - 1) * n_;
  for (int32_t i = 0; i < n_; ++i) {
    auto& segments = chromosomes_[static_cast<std::size_t>(i)].Segments;
    segments.clear();
    segments.push_back({0, static_cast<int16_t>(sites_ - 1), static_cast<int16_t>(i)});
  }
  stretches_.Start();
  current_time_ = 0.0;
}

void RecombinationHistory::Run(int32_t& seed, RandomState& random) {
  while (chromosome_count_ >= 2) {
    const double recombination = rate_per_link_ * link_count_;
    const double k = chromosome_count_;
    const double coalescence = k * (k - 1.0);
    const double total = recombination + coalescence;
    current_time_ += -std::log(1.0 - Ran(seed, random)) / total;
    if (recombination / total <= Ran(seed, random)) {
      const int32_t a = static_cast<int32_t>(k * Ran(seed, random));
      int32_t b = a;
      while (b == a) b = static_cast<int32_t>(k * Ran(seed, random));
      Coalesce(std::min(a, b), std::max(a, b));
    } else {
      Recombine(static_cast<int32_t>(link_count_ * Ran(seed, random)) + 1);
    }
  }
}

void RecombinationHistory::Recombine(int32_t link) {
  int32_t c = 0;
  while (link > chromosomes_[static_cast<std::size_t>(c)].Links()) {
    link -= chromosomes_[static_cast<std::size_t>(c)].Links();
    ++c;
  }
  if (static_cast<std::size_t>(chromosome_count_) == chromosomes_.size())
    chromosomes_.emplace_back();
  auto& left = chromosomes_[static_cast<std::size_t>(c)].Segments;
  auto& right = chromosomes_[static_cast<std::size_t>(chromosome_count_)].Segments;
  const int32_t p = left.front().Begin + link - 1;  // the cut lies between p and p + 1

  const auto cut = std::upper_bound(left.begin(), left.end(), p,
                                    [](int32_t site, const Segment& s) { return site < s.End; });
  const bool inside = cut->Begin <= p;
  right.clear();
  if (inside) {
    right.push_back({static_cast<int16_t>(p + 1), cut->End, cut->Descendant});
    right.insert(right.end(), cut + 1, left.end());
    cut->End = static_cast<int16_t>(p);
    left.erase(cut + 1, left.end());
  } else {
    right.insert(right.end(), cut, left.end());
    left.erase(cut, left.end());
  }
  link_count_ = link_count_ - right.front().Begin + left.back().End;
  if (inside) stretches_.AddBreakpoint(p);
  ++chromosome_count_;
}

void RecombinationHistory::Coalesce(int32_t a, int32_t b) {
  const auto& first = chromosomes_[static_cast<std::size_t>(a)].Segments;
  const auto& second = chromosomes_[static_cast<std::size_t>(b)].Segments;
  const auto firstCount = first.size(), secondCount = second.size();
  const int32_t root = stretches_.LastNode();
  result_.clear();

  // Walk the material of both chromosomes in site order. A range that only one of them
  // carries passes to the result whole, with its node; each stretch that both carry gets a new
  // node in its tree, which the result carries on unless it is the root.
  std::size_t i = 0, j = 0;
  int32_t position = 0;  // of the stretch where the last shared range ended
  int32_t cursor = 0;    // first site not yet handled
  while (i < firstCount || j < secondCount) {
    int32_t s = INT_MAX;
    if (i < firstCount) s = std::max<int32_t>(first[i].Begin, cursor);
    if (j < secondCount) s = std::min(s, std::max<int32_t>(second[j].Begin, cursor));
    const bool inFirst = i < firstCount && first[i].Begin <= s;
    const bool inSecond = j < secondCount && second[j].Begin <= s;
    int32_t end = 0;
    if (inFirst && inSecond) {
      end = std::min(first[i].End, second[j].End);
      position = stretches_.PositionOfStart(s, position);
      for (int32_t e = s - 1; e < end; ++position) {
        const int32_t begin = e + 1;
        e = stretches_.LastSite(position);
        const int32_t node = stretches_.JoinNodes(stretches_.EntryAt(position), first[i].Descendant,
                                                  second[j].Descendant, current_time_);
        if (node < root) {
          result_.push_back(
              {static_cast<int16_t>(begin), static_cast<int16_t>(e), static_cast<int16_t>(node)});
        }
      }
    } else if (inFirst) {
      end = first[i].End;
      if (j < secondCount) end = std::min(end, second[j].Begin - 1);
      result_.push_back({static_cast<int16_t>(s), static_cast<int16_t>(end), first[i].Descendant});
    } else {
      end = second[j].End;
      if (i < firstCount) end = std::min(end, first[i].Begin - 1);
      result_.push_back({static_cast<int16_t>(s), static_cast<int16_t>(end), second[j].Descendant});
    }
    cursor = end + 1;
    if (i < firstCount && first[i].End < cursor) ++i;
    if (j < secondCount && second[j].End < cursor) ++j;
  }

  link_count_ -= chromosomes_[static_cast<std::size_t>(a)].Links() +
                 chromosomes_[static_cast<std::size_t>(b)].Links();
  if (result_.empty()) {
    Remove(b);
    Remove(a);
  } else {
    std::swap(chromosomes_[static_cast<std::size_t>(a)].Segments, result_);
    Remove(b);
    link_count_ += chromosomes_[static_cast<std::size_t>(a)].Links();
  }
}

void RecombinationHistory::Remove(int32_t i) {
  --chromosome_count_;
  if (i != chromosome_count_) {
    std::swap(chromosomes_[static_cast<std::size_t>(i)],
              chromosomes_[static_cast<std::size_t>(chromosome_count_)]);
  }
}

}  // namespace ovelt
