#include "analyses/polymorphism/neutrality/neutrality_significance.h"

#include <cmath>
#include <optional>

#include "analyses/polymorphism/neutrality/critical_row.h"

namespace ovelt {
namespace {

constexpr const char* kNotDetermined = "n.d.";

// The deepest level (0 = 10 %) whose bounds `value` reaches, or -1.
template <class Row>
int DeepestLevel(const Row& row, double value) {
  const auto v = static_cast<float>(value);
  int deepest = -1;
  for (size_t level = 0; level < row.lower.size(); ++level) {
    if (v <= row.lower[level] || v >= row.upper[level]) deepest = static_cast<int>(level);
  }
  return deepest;
}

}  // namespace

std::string SignificanceTajima(double d, int n) {
  const std::optional<int> row = TajimaCriticalRowFor(n);
  if (!row || std::isnan(d)) return kNotDetermined;
  static const char* const kMarks[] = {"#", "*", "**", "***"};
  const int level = DeepestLevel(TajimaCriticalRows()[static_cast<size_t>(*row)], d);
  return level < 0 ? "" : kMarks[level];
}

std::string SignificanceFuLi(double value, FuLiTable table, int n) {
  const std::optional<int> row = FuLiCriticalRowFor(n, FuLiFirstRow(table));
  if (!row || std::isnan(value)) return kNotDetermined;
  static const char* const kMarks[] = {"#   ", "*   ", "**  "};
  const int level = DeepestLevel(FuLiCriticalRows(table)[static_cast<size_t>(*row)], value);
  return level < 0 ? "    " : kMarks[level];
}

std::string MarkText(const std::string& mark) {
  const size_t last = mark.find_last_not_of(' ');
  return last == std::string::npos ? "" : mark.substr(0, last + 1);
}

}  // namespace ovelt
