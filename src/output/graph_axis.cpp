#include "output/graph_axis.h"

#include <algorithm>
#include <cmath>

#include "output/format_mask.h"
#include "output/graph_scale.h"

namespace ovelt {

namespace {

// Multiples of the step are found with a little slack, so that a value that is a multiple up to
// rounding does not add a tick.
constexpr double kSlack = 1e-6;  // above the rounding of a 32-bit float

YAxis FixedAxis(double bottom, double top, const std::vector<std::string>& labels_top_down) {
  YAxis axis;
  axis.Bottom = bottom;
  axis.Top = top;
  const auto intervals = static_cast<double>(labels_top_down.size() - 1);
  axis.Step = (top - bottom) / intervals;
  for (size_t i = labels_top_down.size(); i-- > 0;) {
    const double value = top - static_cast<double>(i) * axis.Step;
    axis.Ticks.push_back({value, labels_top_down[i]});
  }
  return axis;
}

}  // namespace

std::string AxisLabel(double value, std::string_view mask) {
  // "0.#####" leaves the point of a whole number behind it ("0.", "5."); an axis reads "0", "5".
  std::string label = Format(value, mask);
  if (label.size() > 1 && label.back() == '.') label.pop_back();
  return label;
}

YAxis MakeYAxis(double low, double high, std::string_view mask) {
  if (high < low) std::swap(low, high);
  YAxis axis;
  const double range = high - low;
  axis.Step = YStepForRange(range);
  axis.Bottom = std::floor(low / axis.Step + kSlack) * axis.Step;
  axis.Top = std::ceil(high / axis.Step - kSlack) * axis.Step;
  if (axis.Top <= axis.Bottom) axis.Top = axis.Bottom + axis.Step;
  const auto c = static_cast<int64_t>(std::floor(range / axis.Step + kSlack));
  const int every = LabelEvery(c);
  const auto ticks = static_cast<int64_t>(std::llround((axis.Top - axis.Bottom) / axis.Step));
  for (int64_t i = 0; i <= ticks; ++i) {
    double value = axis.Bottom + static_cast<double>(i) * axis.Step;
    if (std::fabs(value) < axis.Step * kSlack) value = 0.0;
    axis.Ticks.push_back({value, i % every == 0 ? AxisLabel(value, mask) : std::string()});
  }
  return axis;
}

YAxis NeutralityAxis(double low, double high) {
  if (high < low) std::swap(low, high);
  if (low >= -1.0 && high <= 1.0 && low < 0.0)
    return FixedAxis(-1.0, 1.0, {" 1.0", " 0.5", " 0.0", "-0.5", "-1.0"});
  if (low >= 0.0 && high <= 0.25)
    return FixedAxis(0.0, 0.25, {"0.25", "0.20", "0.15", "0.10", "0.05", "0.0 "});
  if (low >= -1.0 && high <= 1.0)
    return FixedAxis(-1.0, 1.0, {" 1.0", " 0.5", " 0.0", "-0.5", "-1.0"});
  const double reach = std::max(std::fabs(low), std::fabs(high));
  return MakeYAxis(-reach, reach, "0.#####");
}

}  // namespace ovelt
