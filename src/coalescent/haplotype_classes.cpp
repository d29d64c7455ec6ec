#include "coalescent/haplotype_classes.h"

namespace ovelt {

HaplotypeClasses HaplotypePartition(const PairDifferenceTable& t,
                                    std::vector<int32_t>& firstMembers,
                                    std::vector<int32_t>& sizes) {
  firstMembers.clear();
  sizes.clear();
  for (int32_t s = 0; s < t.n; ++s) {
    bool joined = false;
    for (size_t c = 0; c < firstMembers.size(); ++c) {
      if (t.at(firstMembers[c], s) == 0) {
        ++sizes[c];
        joined = true;
        break;
      }
    }
    if (!joined) {
      firstMembers.push_back(s);
      sizes.push_back(1);
    }
  }
  HaplotypeClasses result;
  result.h = static_cast<int32_t>(firstMembers.size());
  const double n = t.n;
  double squares = 0.0;
  for (const int32_t size : sizes) squares += (size / n) * (size / n);
  result.Hd = (1.0 - squares) * n / (n - 1.0);
  return result;
}

void MismatchHistogram(const PairDifferenceTable& t, std::vector<int32_t>& histogram) {
  histogram.assign(1, 0);
  const auto n = static_cast<size_t>(t.n);
  for (size_t i = 0; i < n; ++i) {
    const int32_t* row = t.Cells.data() + i * n;
    for (size_t j = i + 1; j < n; ++j) {
      const auto d = static_cast<size_t>(row[j]);
      if (d >= histogram.size()) histogram.resize(d + 1, 0);
      ++histogram[d];
    }
  }
}

}  // namespace ovelt
