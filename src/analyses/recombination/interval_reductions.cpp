#include "analyses/recombination/interval_reductions.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <stdexcept>

namespace ovelt {

std::vector<SiteInterval> DropContainingIntervals(const std::vector<SiteInterval>& pairs) {
  for (std::size_t i = 1; i < pairs.size(); ++i) {
    const SiteInterval& p = pairs[i - 1];
    const SiteInterval& q = pairs[i];
    if (q.Low < p.Low || (q.Low == p.Low && q.High <= p.High))
      throw std::invalid_argument("four-gamete pairs out of scan order");
  }
  std::vector<SiteInterval> kept;
  // The smallest hi among the entries to the right of the current group of equal lo.
  int32_t nearest_high = std::numeric_limits<int32_t>::max();
  std::size_t end = pairs.size();
  while (end > 0) {
    std::size_t first = end - 1;
    while (first > 0 && pairs[first - 1].Low == pairs[end - 1].Low) --first;
    const SiteInterval& shortest = pairs[first];
    if (shortest.High < nearest_high) {
      kept.push_back(shortest);
      nearest_high = shortest.High;
    }
    end = first;
  }
  std::reverse(kept.begin(), kept.end());
  return kept;
}

std::vector<SiteInterval> DropOverlappingIntervals(const std::vector<SiteInterval>& intervals) {
  for (std::size_t i = 1; i < intervals.size(); ++i)
    if (intervals[i].Low <= intervals[i - 1].Low)
      throw std::invalid_argument("intervals out of order");
  std::vector<SiteInterval> kept;
  for (const SiteInterval& q : intervals)
    if (kept.empty() || q.Low >= kept.back().High) kept.push_back(q);
  return kept;
}

}  // namespace ovelt
