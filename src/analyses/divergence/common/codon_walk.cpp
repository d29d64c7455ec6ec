#include "analyses/divergence/common/codon_walk.h"

#include <cstddef>

namespace ovelt {

std::vector<CodonSites> CompleteCodons(const std::vector<int16_t>& codon_position, int32_t from,
                                       int32_t to) {
  std::vector<CodonSites> codons;
  auto position = [&codon_position](int32_t site) -> int16_t {
    return site >= 1 && static_cast<std::size_t>(site) < codon_position.size()
               ? codon_position[static_cast<std::size_t>(site)]
               : int16_t{0};
  };
  int32_t site = from;
  while (site <= to) {
    while (site <= to && position(site) != 1) ++site;  // the next first position
    CodonSites codon{};
    int next = 1;
    for (; site <= to && next <= 3; ++site) {
      if (position(site) != next) continue;
      codon[static_cast<std::size_t>(next - 1)] = site;
      ++next;
    }
    if (next > 3) codons.push_back(codon);
  }
  return codons;
}

}  // namespace ovelt
