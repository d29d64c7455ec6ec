#include "shell/viewer_codons.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

namespace ovelt {

namespace {

// The three nucleotide ranks 0..3 of a codon index 1..64.
std::array<int, 3> Ranks(int index) {
  const int i = index - 1;
  return {i / 16, (i / 4) % 4, i % 4};
}

int IndexOf(const std::array<int, 3>& ranks) {
  return ranks[0] * 16 + ranks[1] * 4 + ranks[2] + 1;
}

struct PairWalk {
  int Score = -1;  // 2 per synonymous step, 1 per nonsynonymous one
  bool Synonymous = false;
  bool Nonsynonymous = false;
};

// The pathway between two codons with the most synonymous steps; the first on ties, taking
// the positions in the order of the permutations of the differing positions.
PairWalk BestPathway(int from, int to, const GeneticCodeTable& code) {
  const std::array<int, 3> a = Ranks(from), b = Ranks(to);
  std::vector<int> positions;
  for (int p = 0; p < 3; ++p)
    if (a[static_cast<size_t>(p)] != b[static_cast<size_t>(p)]) positions.push_back(p);
  PairWalk best;
  do {
    PairWalk walk{0, false, false};
    std::array<int, 3> current = a;
    for (const int p : positions) {
      const int before = IndexOf(current);
      current[static_cast<size_t>(p)] = b[static_cast<size_t>(p)];
      const int after = IndexOf(current);
      const bool through_stop = (code.IsStop(before) && before != from) ||
                                (code.IsStop(after) && after != to);
      if (!through_stop && code.Translate(before) == code.Translate(after)) {
        walk.Score += 2;
        walk.Synonymous = true;
      } else {
        walk.Score += 1;
        walk.Nonsynonymous = true;
      }
    }
    if (walk.Score > best.Score) best = walk;
  } while (std::next_permutation(positions.begin(), positions.end()));
  return best;
}

int Differences(int x, int y) {
  const std::array<int, 3> a = Ranks(x), b = Ranks(y);
  return (a[0] != b[0]) + (a[1] != b[1]) + (a[2] != b[2]);
}

// Whether the distinct codons have no single resolvable history.
bool IsComplex(const std::vector<int>& codons, const GeneticCodeTable& code) {
  const size_t n = codons.size();
  if (n <= 2) return false;
  if (n >= 5) return true;
  // For each position, in how many pairs it differs.
  std::array<int, 3> pairs_differing{0, 0, 0};
  for (size_t i = 0; i < n; ++i)
    for (size_t j = i + 1; j < n; ++j) {
      const std::array<int, 3> a = Ranks(codons[i]), b = Ranks(codons[j]);
      for (size_t p = 0; p < 3; ++p)
        if (a[p] != b[p]) ++pairs_differing[p];
    }
  const int varying = static_cast<int>(
      std::count_if(pairs_differing.begin(), pairs_differing.end(), [](int c) { return c > 0; }));
  if (varying <= 1) return false;
  if (varying == 3) return true;
  if (n == 3) {
    // At two positions: some pair must join two codons in a single step.
    const int in_two_pairs = static_cast<int>(
        std::count(pairs_differing.begin(), pairs_differing.end(), 2));
    return in_two_pairs == 0;
  }
  // Four codons at two positions form a square when each position differs in four of the six
  // pairs; the square is resolved only under a nuclear code.
  const int in_four_pairs =
      static_cast<int>(std::count(pairs_differing.begin(), pairs_differing.end(), 4));
  return code.NuclearCodeFlag != 1 || in_four_pairs != 2;
}

int Root(std::vector<int>& parent, int i) {
  while (parent[static_cast<size_t>(i)] != i) i = parent[static_cast<size_t>(i)];
  return i;
}

}  // namespace

CodonChangeMarks MarkCodonChanges(uint64_t distinct, const GeneticCodeTable& code) {
  std::vector<int> codons;
  for (int index = 1; index <= 64; ++index)
    if ((distinct >> (index - 1)) & 1U) codons.push_back(index);
  CodonChangeMarks marks;
  if (codons.size() < 2) return marks;
  if (IsComplex(codons, code)) {
    marks.Complex = true;
    return marks;
  }
  struct Edge {
    int i, j, d;
    PairWalk walk;
  };
  std::vector<Edge> edges;
  const int n = static_cast<int>(codons.size());
  for (int i = 0; i < n; ++i)
    for (int j = i + 1; j < n; ++j)
      edges.push_back({i, j, Differences(codons[static_cast<size_t>(i)],
                                         codons[static_cast<size_t>(j)]),
                       BestPathway(codons[static_cast<size_t>(i)],
                                   codons[static_cast<size_t>(j)], code)});
  // Every one-step pair counts; longer pairs only join codons still apart, fewest steps and
  // then most synonymous steps first.
  std::stable_sort(edges.begin(), edges.end(), [](const Edge& x, const Edge& y) {
    return x.d != y.d ? x.d < y.d : x.walk.Score > y.walk.Score;
  });
  std::vector<int> parent(static_cast<size_t>(n));
  std::iota(parent.begin(), parent.end(), 0);
  for (const Edge& e : edges) {
    const int ri = Root(parent, e.i), rj = Root(parent, e.j);
    if (e.d > 1 && ri == rj) continue;
    parent[static_cast<size_t>(ri)] = rj;
    marks.Synonymous = marks.Synonymous || e.walk.Synonymous;
    marks.Nonsynonymous = marks.Nonsynonymous || e.walk.Nonsynonymous;
  }
  return marks;
}

}  // namespace ovelt
