#include "analyses/divergence/gene_flow/flow_permutation.h"

#include <utility>

namespace ovelt {

TestedValues PermutationTest(const FlowUniverse& u, std::vector<int32_t> sequences,
                             const std::vector<int32_t>& sizes, const TestedValues& observed,
                             int32_t replicates, FlowRandom& random) {
  TestedValues counts{};
  std::vector<HaplotypeCounts> groups(sizes.size());
  std::vector<int32_t> members;
  for (int32_t r = 0; r < replicates; ++r) {
    for (auto i = static_cast<int32_t>(sequences.size()); i >= 2; --i) {
      const auto j = static_cast<int32_t>(i * random.Next()) + 1;
      std::swap(sequences[static_cast<size_t>(i - 1)], sequences[static_cast<size_t>(j - 1)]);
    }
    size_t next = 0;
    for (size_t g = 0; g < sizes.size(); ++g) {
      members.assign(
          sequences.begin() + static_cast<std::ptrdiff_t>(next),
          sequences.begin() + static_cast<std::ptrdiff_t>(next + static_cast<size_t>(sizes[g])));
      next += static_cast<size_t>(sizes[g]);
      groups[g] = CountHaplotypes(*u.Tables, members);
    }
    const TestedValues value = TestedStatistics(u, groups);
    for (size_t s = 0; s < 5; ++s) counts[s] += value[s] <= observed[s] ? 1.0 : 0.0;
    counts[5] += value[5] >= observed[5] ? 1.0 : 0.0;
  }
  TestedValues p{};
  for (size_t s = 0; s < p.size(); ++s) p[s] = replicates > 0 ? counts[s] / replicates : 0.0;
  return p;
}

}  // namespace ovelt
