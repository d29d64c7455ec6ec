#include "stats/log_factorial.h"

#include <cmath>

#include "stats/stats_error.h"

namespace ovelt {

void LogFactorialTable::BuildLogFactorial(int32_t n) {
  if (n < 0) throw StatsError(kSubscriptOutOfRangeText);
  if (n > kMaxSize) throw StatsError(kOverflowText);
  entries_.assign(static_cast<size_t>(n) + 1, 0.0);
  entries_.shrink_to_fit();
  for (int32_t i = 2; i <= n; ++i) entries_[i] = entries_[i - 1] + std::log(static_cast<double>(i));
}

double LogFactorialTable::operator()(int64_t i) const {
  if (i < 0 || i > Size()) throw StatsError(kSubscriptOutOfRangeText);
  return entries_[static_cast<size_t>(i)];
}

}  // namespace ovelt
