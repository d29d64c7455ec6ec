#pragma once
// The parts every chart shares: the mapping of values into the frame, the frame itself, the
// axes with their ticks and labels, the titles and the legend.

#include <string>
#include <vector>

#include "output/graph_axis.h"
#include "output/graph_picture.h"

namespace ovelt {

// The X axis: ticks from the rounded first value (FirstXTick) at XTickStep, labelled "@@@@" for
// integer values; a continuous axis (time) takes the Y rules and the mask "0.#####".
struct XAxis {
  double First = 0.0;
  double Last = 1.0;
  std::vector<AxisTick> Ticks;
};

[[nodiscard]] XAxis MakeIntegerXAxis(double first, double last);
[[nodiscard]] XAxis MakeContinuousXAxis(double first, double last);

// Values to logical units inside the frame.
class FrameMap {
 public:
  FrameMap(const XAxis& x, const YAxis& y) : x_(x), y_(y) {}
  [[nodiscard]] int X(double value) const;
  [[nodiscard]] int Y(double value) const;
  [[nodiscard]] GraphPoint At(double x, double y) const { return {X(x), Y(y)}; }

 private:
  XAxis x_;
  YAxis y_;
};

// The frame (four lines), the ticks and labels of both axes, the X title under the frame and
// the Y title above its left corner.
void DrawFrame(GraphPicture& picture, const FrameMap& map, const XAxis& x, const YAxis& y,
               const std::string& x_title, const std::string& y_title);

// A legend above the upper right corner of the frame: a stroke of each series' colour and its
// name.
void DrawLegend(GraphPicture& picture, const std::vector<std::string>& names);

}  // namespace ovelt
