#include "stats/fs_statistic.h"

#include <vector>

#include "stats/ewens_decimal.h"
#include "stats/ewens_distribution.h"

namespace ovelt {
namespace {

// 10^-power as an exact decimal.
Decimal36 TenToMinus(int power) {
  Decimal36 value = Decimal36::FromInteger(1);
  const Decimal36 ten = Decimal36::FromInteger(10);
  for (int i = 0; i < power; ++i) value = value / ten;
  return value;
}

}  // namespace

FsResult FsStatistic(int32_t n, int32_t h, double theta) {
  const std::vector<Decimal36> p = EwensProbabilities(n, h, theta);
  Decimal36 at_most_h;  // Strobeck's S
  for (int32_t j = 1; j <= h; ++j) at_most_h += p[static_cast<size_t>(j)];
  const Decimal36& equal = p[static_cast<size_t>(h)];

  const Decimal36 one = Decimal36::FromInteger(1);
  static const Decimal36 kTiny = TenToMinus(13);           // 1e-13
  static const Decimal36 kNearOne = one - TenToMinus(15);  // 0.999999999999999
  const Decimal36 fewer = at_most_h - equal;               // x = P(K < h)

  FsResult result;
  result.StrobeckS = at_most_h.ToDouble();
  result.PEqual = equal.ToDouble();
  if (fewer < kTiny) {
    // ln(1 - x) - ln(x), with x taken as it is: its digits are all there.
    if (!fewer.IsZero()) result.Fs = (one - fewer).Ln() - fewer.Ln();
  } else if (fewer >= kNearOne && equal < kTiny) {
    // P(K >= h) is lost in 1 - x; its leading term P(K = h) stands for it.
    result.Fs = equal.Ln() - fewer.Ln();
  } else if (fewer < kNearOne || equal.IsZero()) {
    // Out of range when neither tail has digits left.
    const Decimal36 at_least_h = one - fewer;  // y = P(K >= h)
    if (!at_least_h.IsZero() && !(at_least_h == one))
      result.Fs = at_least_h.Ln() - (one - at_least_h).Ln();
  }
  return result;
}

}  // namespace ovelt
