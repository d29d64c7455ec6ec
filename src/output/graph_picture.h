#pragma once
// A chart as a list of drawing primitives in logical units: the frame spans left 700, top 300,
// right 6900, bottom 4000 of a page 7300 wide and 4700 high, Y growing downwards. Colours are
// roles; the window layer maps them to the colours the user chose.

#include <string>
#include <vector>

namespace ovelt {

inline constexpr int kFrameLeft = 700;
inline constexpr int kFrameTop = 300;
inline constexpr int kFrameRight = 6900;
inline constexpr int kFrameBottom = 4000;
inline constexpr int kPageWidth = 7300;
inline constexpr int kPageHeight = 4700;

// The series colours repeat after kSeriesColours.
inline constexpr int kSeriesColours = 4;

enum class GraphRole { kAxes, kLegend, kSignificant, kSeries, kBackground };

struct GraphPen {
  GraphRole Role = GraphRole::kAxes;
  int Series = 0;  // with kSeries: which series colour
};

struct GraphPoint {
  int X = 0;
  int Y = 0;
};

struct GraphLine {
  GraphPoint From;
  GraphPoint To;
  GraphPen Pen;
  bool Dashed = false;
  bool Clip = false;  // a line across the data (regression) is cut at the frame
};

struct GraphPolyline {
  std::vector<GraphPoint> Points;
  GraphPen Pen;
};

enum class MarkShape { kDot, kSquare, kCross };

struct GraphMark {
  GraphPoint At;
  GraphPen Pen;
  MarkShape Shape = MarkShape::kDot;
};

// Anchor of a text: the point is its right end (axis labels), its centre or its left end, and
// the middle of its height.
enum class TextAnchor { kRight, kCentre, kLeft };

struct GraphText {
  GraphPoint At;
  std::string Text;
  TextAnchor Anchor = TextAnchor::kLeft;
  GraphPen Pen;
};

struct GraphPicture {
  std::vector<GraphLine> Lines;
  std::vector<GraphPolyline> Polylines;
  std::vector<GraphMark> Marks;
  std::vector<GraphText> Texts;
  // A message the window shows after drawing ("There are 0 significant values"); empty if none.
  std::string Message;
  // False when the data hold no chart: nothing is drawn and nothing is said.
  bool HasChart = false;
};

}  // namespace ovelt
