#pragma once
// The Y axis of a chart: from the range of the values to the step of the 1, 2, 5 series, the
// ticks and which of them carry a label. The neutrality charts use fixed labels instead.

#include <string>
#include <string_view>
#include <vector>

namespace ovelt {

struct AxisTick {
  double Value = 0.0;
  std::string Label;  // empty for a tick without a label
};

struct YAxis {
  double Bottom = 0.0;
  double Top = 1.0;
  double Step = 1.0;
  std::vector<AxisTick> Ticks;  // from the bottom up
};

// A tick's label: the value through `mask`, without the point a whole number is left with
// ("0." reads "0").
[[nodiscard]] std::string AxisLabel(double value, std::string_view mask);

// Ticks every step from the multiple of the step at or below `low` to the one at or above
// `high`, labelled with `mask` on every first, second or third tick (LabelEvery of the integer
// part of (high - low) / step).
[[nodiscard]] YAxis MakeYAxis(double low, double high, std::string_view mask);

// The neutrality charts, for values (and critical bounds) within [-1, 1]: the axis from -1 to 1
// labelled " 1.0", " 0.5", " 0.0", "-0.5", "-1.0"; within [0, 0.25]: from 0 to 0.25 labelled
// "0.25", "0.20", "0.15", "0.10", "0.05", "0.0 ". Otherwise the axis of MakeYAxis, symmetric
// about 0 so that the sign of a statistic reads at a glance.
[[nodiscard]] YAxis NeutralityAxis(double low, double high);

}  // namespace ovelt
