#include "coalescent/genealogy.h"

#include <algorithm>
#include <cmath>

namespace ovelt {

void Genealogy::Allocate(int32_t sampleSize) {
  n = sampleSize;
  const auto nodes = static_cast<size_t>(NodeCount());
  Parent.assign(nodes, static_cast<int16_t>(kNoParent));
  FirstChild.assign(nodes, int16_t{-1});
  SecondChild.assign(nodes, int16_t{-1});
  NodeTimes.assign(nodes, 0.0);
  BranchMutations.assign(nodes, 0);
  Lineages.assign(static_cast<size_t>(n), 0);
  LengthSums.assign(nodes, 0.0);
}

double Genealogy::TreeLength() const {
  double length = 2.0 * NodeTimes[static_cast<size_t>(Root())];
  for (int32_t m = n; m < Root(); ++m) length += NodeTimes[static_cast<size_t>(m)];
  return length;
}

void MakeTree(Genealogy& g, CoalescentRandom& random) {
  auto& list = g.Lineages;
  for (int32_t i = 0; i < g.n; ++i) list[static_cast<size_t>(i)] = static_cast<int16_t>(i);
  int32_t next = g.n;
  for (int32_t k = g.n; k >= 2; --k, ++next) {
    auto j = static_cast<size_t>(static_cast<int32_t>(k * random.U()));
    const int16_t first = list[j];
    g.FirstChild[static_cast<size_t>(next)] = first;
    g.Parent[static_cast<size_t>(first)] = static_cast<int16_t>(next);
    list[j] = list[static_cast<size_t>(k - 1)];

    j = static_cast<size_t>(static_cast<int32_t>((k - 1) * random.U()));
    const int16_t second = list[j];
    g.SecondChild[static_cast<size_t>(next)] = second;
    g.Parent[static_cast<size_t>(second)] = static_cast<int16_t>(next);
    list[j] = static_cast<int16_t>(next);
  }
  g.Parent[static_cast<size_t>(g.Root())] = static_cast<int16_t>(kNoParent);
}

void MakeTimes(Genealogy& g, CoalescentRandom& random) {
  double t = 0.0;
  int32_t m = g.n;
  for (int32_t k = g.n; k >= 2; --k, ++m) {
    t += (-2.0 * std::log(1.0 - random.U())) / (static_cast<double>(k) * (k - 1));
    g.NodeTimes[static_cast<size_t>(m)] = t;
  }
}

int32_t PoissonMutations(Genealogy& g, double theta, CoalescentRandom& random) {
  int32_t s = 0;
  for (int32_t i = 0; i < g.Root(); ++i) {
    const double mean = theta * g.BranchLength(i) / 2.0;
    const auto count = static_cast<int32_t>(random.Poisson(mean));
    g.BranchMutations[static_cast<size_t>(i)] = count;
    s += count;
  }
  return s;
}

void FixedMutations(Genealogy& g, int32_t segSites, CoalescentRandom& random) {
  const double total = g.TreeLength();
  // The running sums, added in node order as the walk from node 0 adds them, so that the binary
  // search below stops at the very node the walk would stop at.
  const int32_t branches = g.Root();
  double sum = 0.0;
  for (int32_t i = 0; i < branches; ++i) {
    sum += g.BranchLength(i);
    g.LengthSums[static_cast<size_t>(i)] = sum;
    g.BranchMutations[static_cast<size_t>(i)] = 0;
  }
  const auto first = g.LengthSums.begin();
  const auto last = first + branches;
  for (int32_t m = 0; m < segSites; ++m) {
    const double x = random.U() * total;
    auto at = std::lower_bound(first, last, x);  // first running sum >= x
    // Rounding can leave the last running sum a hair below the total: the last branch takes it.
    if (at == last) --at;
    ++g.BranchMutations[static_cast<size_t>(at - first)];
  }
}

}  // namespace ovelt
