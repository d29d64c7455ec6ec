#pragma once
// The running summary of a statistic over the replicates of a run: the k smallest and the k
// largest values, kept by insertion so that no replicate needs storing, the count of values not
// above the observed one, and the sum.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ovelt {

class ReplicateTails {
 public:
  explicit ReplicateTails(int32_t k);

  // Files the value of the next replicate that did not fail.
  void File(double v, double observed);

  [[nodiscard]] int32_t K() const { return k_; }
  [[nodiscard]] int32_t Filed() const { return filed_; }
  // Low(i), i = 1..k: ascending once k values were filed; before that, the values as filed.
  [[nodiscard]] double Low(int32_t i) const { return low_[static_cast<size_t>(i)]; }
  // High(i), i = 1..k: descending; 0 until k values were filed.
  [[nodiscard]] double High(int32_t i) const { return high_[static_cast<size_t>(i)]; }
  [[nodiscard]] int64_t AtMostObserved() const { return atMostObserved_; }
  [[nodiscard]] double Sum() const { return sum_; }

  // The values that hold the k smallest (all values while fewer than k were filed) and the k
  // largest, as lists to merge with those of other blocks.
  [[nodiscard]] std::vector<double> LowValues() const;
  [[nodiscard]] std::vector<double> HighValues() const;

  // The tails of several blocks taken together: the k extremes of the union of their lists,
  // with the counts and sums added in the order of the blocks.
  static ReplicateTails Merge(const std::vector<ReplicateTails>& blocks, int32_t k);

 private:
  int32_t k_;
  int32_t filed_ = 0;
  std::vector<double> low_;   // 1..k
  std::vector<double> high_;  // 1..k
  int64_t atMostObserved_ = 0;
  double sum_ = 0.0;
};

}  // namespace ovelt
