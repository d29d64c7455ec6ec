#pragma once
// Natural logarithms of factorials, ln(i!) for i = 0 .. n, kept in a table so that exact tests
// and discrete distributions add logarithms instead of multiplying factorials, which would
// overflow long before the counts of a real sample.
//
// Each caller owns its table and builds it for the largest total it needs; nothing is shared.

#include <cstdint>
#include <vector>

namespace ovelt {

class LogFactorialTable {
 public:
  // The largest size a table may have: the count is a 16-bit integer.
  static constexpr int32_t kMaxSize = 32767;

  // A table of entries 0 .. n.
  explicit LogFactorialTable(int32_t n = 1) { BuildLogFactorial(n); }

  // Rebuilds the table for 0 .. n: entries 0 and 1 are 0, entry i is entry i-1 plus ln(i).
  // A smaller n releases the memory of a larger table. Throws StatsError for n below 0
  // ("Subscript out of range") or above kMaxSize ("Overflow").
  void BuildLogFactorial(int32_t n);

  // Highest index of the table.
  [[nodiscard]] int32_t Size() const { return static_cast<int32_t>(entries_.size()) - 1; }

  // ln(i!). Throws StatsError ("Subscript out of range") outside 0 .. Size().
  [[nodiscard]] double operator()(int64_t i) const;

 private:
  std::vector<double> entries_;
};

}  // namespace ovelt
