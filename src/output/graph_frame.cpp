#include "output/graph_frame.h"

#include <cmath>

#include "output/format_mask.h"
#include "output/graph_scale.h"

namespace ovelt {

namespace {

constexpr int kTickLength = 60;
constexpr int kLabelGap = 40;
constexpr int kXLabelRow = kFrameBottom + 170;
constexpr int kXTitleRow = kFrameBottom + 480;
constexpr int kYTitleRow = kFrameTop - 170;
constexpr int kLegendRow = kYTitleRow;
constexpr int kLegendStroke = 300;
constexpr int kLegendEntryWidth = 1200;  // stroke, gap and a short name

const GraphPen kAxesPen{GraphRole::kAxes, 0};
const GraphPen kLegendPen{GraphRole::kLegend, 0};

double Fraction(double value, double low, double high) {
  return high > low ? (value - low) / (high - low) : 0.5;
}

}  // namespace

XAxis MakeIntegerXAxis(double first, double last) {
  XAxis axis;
  auto a = static_cast<int64_t>(std::floor(first));
  auto b = static_cast<int64_t>(std::ceil(last));
  if (b <= a) b = a + 1;
  axis.First = static_cast<double>(a);
  axis.Last = static_cast<double>(b);
  const int64_t step = XTickStep(a, b);
  for (int64_t t = FirstXTick(a, b); t <= b; t += step)
    if (t >= a) axis.Ticks.push_back({static_cast<double>(t), Format(t, "@@@@")});
  return axis;
}

XAxis MakeContinuousXAxis(double first, double last) {
  const YAxis scale = MakeYAxis(first, last, "0.#####");
  XAxis axis;
  axis.First = scale.Bottom;
  axis.Last = scale.Top;
  axis.Ticks = scale.Ticks;
  return axis;
}

int FrameMap::X(double value) const {
  const double f = Fraction(value, x_.First, x_.Last);
  return kFrameLeft + static_cast<int>(std::lround(f * (kFrameRight - kFrameLeft)));
}

int FrameMap::Y(double value) const {
  const double f = Fraction(value, y_.Bottom, y_.Top);
  return kFrameBottom - static_cast<int>(std::lround(f * (kFrameBottom - kFrameTop)));
}

void DrawFrame(GraphPicture& picture, const FrameMap& map, const XAxis& x, const YAxis& y,
               const std::string& x_title, const std::string& y_title) {
  const GraphPoint tl{kFrameLeft, kFrameTop}, tr{kFrameRight, kFrameTop};
  const GraphPoint bl{kFrameLeft, kFrameBottom}, br{kFrameRight, kFrameBottom};
  picture.Lines.push_back({tl, tr, kAxesPen});
  picture.Lines.push_back({tr, br, kAxesPen});
  picture.Lines.push_back({br, bl, kAxesPen});
  picture.Lines.push_back({bl, tl, kAxesPen});
  for (const AxisTick& t : y.Ticks) {
    const int py = map.Y(t.Value);
    picture.Lines.push_back({{kFrameLeft - kTickLength, py}, {kFrameLeft, py}, kAxesPen});
    if (!t.Label.empty())
      picture.Texts.push_back(
          {{kFrameLeft - kTickLength - kLabelGap, py}, t.Label, TextAnchor::kRight, kLegendPen});
  }
  for (const AxisTick& t : x.Ticks) {
    const int px = map.X(t.Value);
    picture.Lines.push_back({{px, kFrameBottom}, {px, kFrameBottom + kTickLength}, kAxesPen});
    if (!t.Label.empty())
      picture.Texts.push_back({{px, kXLabelRow}, t.Label, TextAnchor::kCentre, kLegendPen});
  }
  picture.Texts.push_back(
      {{(kFrameLeft + kFrameRight) / 2, kXTitleRow}, x_title, TextAnchor::kCentre, kLegendPen});
  picture.Texts.push_back({{kFrameLeft, kYTitleRow}, y_title, TextAnchor::kLeft, kLegendPen});
}

void DrawLegend(GraphPicture& picture, const std::vector<std::string>& names) {
  // In the row above the frame, ending at its right edge, so that no data point hides it.
  const int first = kFrameRight - static_cast<int>(names.size()) * kLegendEntryWidth;
  for (size_t i = 0; i < names.size(); ++i) {
    const int left = first + static_cast<int>(i) * kLegendEntryWidth;
    const GraphPen pen{GraphRole::kSeries, static_cast<int>(i)};
    picture.Lines.push_back({{left, kLegendRow}, {left + kLegendStroke, kLegendRow}, pen});
    picture.Texts.push_back({{left + kLegendStroke + kLabelGap, kLegendRow}, names[i],
                             TextAnchor::kLeft, kLegendPen});
  }
}

}  // namespace ovelt
