#include "coalescent/pair_differences.h"

#include <bit>

namespace ovelt {
namespace {

void SetAverage(PairDifferenceTable& t) {
  const int64_t pairs = t.PairCount();
  t.PairwiseAverage = pairs > 0 ? static_cast<double>(t.Sum) / static_cast<double>(pairs) : 0.0;
}

}  // namespace

void PairDifferenceTable::Allocate(int32_t sampleSize) {
  n = sampleSize;
  Cells.assign(static_cast<size_t>(n) * static_cast<size_t>(n), 0);
  AboveRoot.assign(static_cast<size_t>(2 * n - 1), 0);
  Sum = 0;
  PairwiseAverage = 0.0;
}

void PairDifferencesFromTree(const Genealogy& g, const LeafOrder& leaves, PairDifferenceTable& t) {
  auto& c = t.AboveRoot;
  c[static_cast<size_t>(g.Root())] = 0;
  for (int32_t v = g.Root() - 1; v >= 0; --v) {
    const auto i = static_cast<size_t>(v);
    c[i] = g.BranchMutations[i] + c[static_cast<size_t>(g.Parent[i])];
  }
  const auto n = static_cast<size_t>(g.n);
  int64_t sum = 0;
  for (int32_t v = g.n; v <= g.Root(); ++v) {
    const auto node = static_cast<size_t>(v);
    const auto first = static_cast<size_t>(g.FirstChild[node]);
    const auto second = static_cast<size_t>(g.SecondChild[node]);
    const int16_t* a = leaves.Order.data() + leaves.Start[first];
    const int16_t* b = leaves.Order.data() + leaves.Start[second];
    const int32_t sizeA = leaves.Size[first];
    const int32_t sizeB = leaves.Size[second];
    const int32_t meet = 2 * c[node];
    for (int32_t x = 0; x < sizeA; ++x) {
      const auto sa = static_cast<size_t>(a[x]);
      const int32_t ca = c[sa] - meet;
      for (int32_t y = 0; y < sizeB; ++y) {
        const auto sb = static_cast<size_t>(b[y]);
        const int32_t d = ca + c[sb];
        if (sa < sb) {
          t.Cells[sa * n + sb] = d;
        } else {
          t.Cells[sb * n + sa] = d;
        }
        sum += d;
      }
    }
  }
  t.Sum = sum;
  SetAverage(t);
}

void PairDifferenceSumFromTree(const Genealogy& g, const LeafOrder& leaves,
                               PairDifferenceTable& t) {
  int64_t sum = 0;
  for (int32_t v = 0; v < g.Root(); ++v) {
    const auto i = static_cast<size_t>(v);
    const int64_t size = leaves.Size[i];
    sum += g.BranchMutations[i] * size * (g.n - size);
  }
  t.Sum = sum;
  SetAverage(t);
}

void PairDifferencesFromMatrix(const HaplotypeMatrix& m, PairDifferenceTable& t) {
  const int32_t n = m.Rows();
  const int32_t columns = m.Columns();
  const auto words = static_cast<size_t>((columns + 63) / 64);
  t.RowBits.assign(static_cast<size_t>(n) * words, 0);
  for (int32_t col = 0; col < columns; ++col) {
    const int16_t* cells = m.Column(col);
    const size_t word = static_cast<size_t>(col) / 64;
    const uint64_t bit = uint64_t{1} << (static_cast<unsigned>(col) % 64);
    for (int32_t r = 0; r < n; ++r)
      if (cells[r] != 0) t.RowBits[static_cast<size_t>(r) * words + word] |= bit;
  }
  int64_t sum = 0;
  const auto un = static_cast<size_t>(n);
  for (size_t i = 0; i < un; ++i) {
    const uint64_t* ri = t.RowBits.data() + i * words;
    for (size_t j = i + 1; j < un; ++j) {
      const uint64_t* rj = t.RowBits.data() + j * words;
      int32_t d = 0;
      for (size_t w = 0; w < words; ++w) d += std::popcount(ri[w] ^ rj[w]);
      t.Cells[i * un + j] = d;
      sum += d;
    }
  }
  t.Sum = sum;
  SetAverage(t);
}

}  // namespace ovelt
