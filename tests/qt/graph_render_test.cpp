#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "analyses/polymorphism/diversity/dna_polymorphism_options.h"
#include "analyses/polymorphism/neutrality/neutrality_options.h"
#include "analyses/polymorphism/size_changes/size_change_options.h"
#include "polymorphism/run_fixture.h"
#include "shell/workbench.h"
#include "output/graph_layout.h"
#include "support/scripted_platform.h"
#include "ui/qt/graph_painter.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;

const std::string kExample = std::string(OVELT_TEST_DATA) + "/../../examples/example.fas";

struct Opened {
  Opened() : wb(platform) { EXPECT_TRUE(wb.OpenPath(kExample)); }
  ScriptedPlatform platform;
  Workbench wb;
};

int Inked(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) != QColor(Qt::white)) ++count;
  return count;
}

int OfColour(const QImage& image, const QColor& colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == colour) ++count;
  return count;
}

QImage Render(const GraphPicture& p) {
  return RenderGraphImage(p, QSize(kGraphImageWidth, kGraphImageHeight), GraphPalette{});
}

// The picture is drawn, and more than a frame and some text: at least 1 % of the pixels.
void ExpectDrawn(const GraphPicture& p) {
  ASSERT_TRUE(p.HasChart);
  const QImage image = Render(p);
  EXPECT_GT(Inked(image), image.width() * image.height() / 100);
}

double Number(const std::string& text) { return std::strtod(text.c_str(), nullptr); }

struct Labelled {
  std::vector<double> Values;  // bottom up
  std::vector<int> Rows;       // their Y in logical units
};

Labelled YLabels(const GraphPicture& p) {
  std::vector<GraphText> texts;
  for (const GraphText& t : p.Texts)
    if (t.Anchor == TextAnchor::kRight) texts.push_back(t);
  std::sort(texts.begin(), texts.end(),
            [](const GraphText& a, const GraphText& b) { return a.At.Y > b.At.Y; });
  Labelled out;
  for (const GraphText& t : texts) {
    out.Values.push_back(Number(t.Text));
    out.Rows.push_back(t.At.Y);
  }
  return out;
}

std::vector<int> YTickRows(const GraphPicture& p) {
  std::vector<int> rows;
  for (const GraphLine& l : p.Lines)
    if (l.To.X == kFrameLeft && l.From.X < kFrameLeft && l.From.Y == l.To.Y) rows.push_back(l.From.Y);
  std::sort(rows.begin(), rows.end());
  return rows;
}

// The step a fifth of `range` takes on the 1, 2, 5 series, worked with logarithms.
double SeriesStep(double range) {
  const double raw = range / 5.0;
  if (raw <= 0.00001) return 0.00001;
  const double decade = std::pow(10.0, std::floor(std::log10(raw) + 1e-9));
  int d = static_cast<int>(std::floor(raw / decade + 1e-9));
  if (d > 2) d = 5;
  return d * decade;
}

// The Y labels stand on ticks of the series' step for the range low..high, every first,
// second or third tick by the count of steps in the range.
void ExpectYScale(const GraphPicture& p, double low, double high) {
  const Labelled labels = YLabels(p);
  const std::vector<int> ticks = YTickRows(p);
  ASSERT_GE(labels.Values.size(), 2u);
  ASSERT_GE(ticks.size(), 2u);
  const double step = SeriesStep(high - low);
  const auto c = static_cast<int>(std::floor((high - low) / step + 1e-9));
  const int every = c <= 5 ? 1 : c <= 10 ? 2 : 3;
  const int tick_gap = ticks[1] - ticks[0];
  for (size_t i = 1; i < labels.Values.size(); ++i) {
    EXPECT_NEAR(labels.Values[i] - labels.Values[i - 1], every * step, step * 1e-6);
    EXPECT_NEAR(labels.Rows[i - 1] - labels.Rows[i], every * tick_gap, 2);
  }
  for (double v : labels.Values) EXPECT_NEAR(std::remainder(v, step), 0.0, step * 1e-6);
}

template <class Column>
std::pair<double, double> Extent(const GraphData& g, Column column, bool with_zero) {
  double low = with_zero ? 0.0 : 1e300, high = with_zero ? 0.0 : -1e300;
  for (int32_t r = 1; r <= g.GraphRows; ++r) {
    low = std::min<double>(low, g.Table.at(r, column));
    high = std::max<double>(high, g.Table.at(r, column));
  }
  return {low, high};
}

std::vector<double> XLabels(const GraphPicture& p) {
  std::vector<double> out;
  for (const GraphText& t : p.Texts)
    if (t.Anchor == TextAnchor::kCentre && t.At.Y < kFrameBottom + 300) out.push_back(Number(t.Text));
  return out;
}

TEST(GraphRender, PolymorphismWindowsFromARun) {
  Opened o;
  DnaPolOptions options;
  options.SlidingOn = true;
  ASSERT_TRUE(test::RunWith(CommandId::kDnaPolymorphism, o.wb, options).Stands);
  const GraphData& g = o.wb.Output().Graph();
  ASSERT_EQ(o.wb.Output().GraphOn, 1);
  ASSERT_EQ(g.GraphKind, 1);
  ASSERT_GT(g.GraphRows, 10);
  for (int series = 0; series < 3; ++series) {
    const GraphPicture p = LayoutGraph(g, {series, false});
    ExpectDrawn(p);
    const auto [low, high] = Extent(g, series + 2, true);
    ExpectYScale(p, low, high);
  }
  // The midpoints run over more than 100 and fewer than 2500 sites: the ticks stand on
  // hundreds.
  const std::vector<double> x = XLabels(LayoutGraph(g, {0, false}));
  ASSERT_FALSE(x.empty());
  for (double v : x) EXPECT_EQ(std::fmod(v, 100.0), 0.0) << v;
}

TEST(GraphRender, TajimaWindowsWithTheirBounds) {
  Opened o;
  NeutralityOptions options;
  options.SlidingOn = true;
  ASSERT_TRUE(test::RunWith(CommandId::kTajima, o.wb, options).Stands);
  const GraphData& g = o.wb.Output().Graph();
  ASSERT_EQ(g.GraphKind, 5);
  ASSERT_EQ(g.Bounds.size(), 1u);  // twelve sequences have a row of Tajima's table
  EXPECT_LT(g.Bounds[0].Lower, 0.0f);
  EXPECT_GT(g.Bounds[0].Upper, 0.0f);
  const GraphPicture p = LayoutGraph(g, {0, false});
  ExpectDrawn(p);
  const auto critical = std::count_if(p.Lines.begin(), p.Lines.end(), [](const GraphLine& l) {
    return l.Pen.Role == GraphRole::kSignificant && l.Dashed;
  });
  EXPECT_EQ(critical, 2);
  // A symmetric axis reaching past the farthest bound.
  const Labelled labels = YLabels(p);
  EXPECT_NEAR(labels.Values.front(), -labels.Values.back(), 1e-9);
  const double reach = std::max(-g.Bounds[0].Lower, g.Bounds[0].Upper);
  ExpectYScale(p, -reach, reach);
}

TEST(GraphRender, FuLiWindowsBothStatistics) {
  Opened o;
  NeutralityOptions options;
  options.SlidingOn = true;
  ASSERT_TRUE(test::RunWith(CommandId::kFuLi, o.wb, options).Stands);
  const GraphData& g = o.wb.Output().Graph();
  ASSERT_EQ(g.GraphKind, 6);
  ASSERT_EQ(g.Bounds.size(), 2u);
  for (int series = 0; series < 2; ++series) ExpectDrawn(LayoutGraph(g, {series, false}));
}

TEST(GraphRender, MismatchObservedAndExpected) {
  Opened o;
  ASSERT_TRUE(test::RunWith(CommandId::kSizeChanges, o.wb, SizeChangeOptions{}).Stands);
  const GraphData& g = o.wb.Output().Graph();
  ASSERT_EQ(g.GraphKind, 15);
  ASSERT_EQ(g.GraphSubKind, 11);
  // The graph's rows are the grid's: differences, observed and expected shares.
  const OutputGrid& grid = o.wb.Output().Grid1;
  ASSERT_EQ(static_cast<size_t>(g.GraphRows), grid.Rows.size());
  for (int32_t r = 1; r <= g.GraphRows; ++r) {
    const auto& cells = grid.Rows[static_cast<size_t>(r - 1)];
    EXPECT_EQ(g.Table.at(r, 1), static_cast<float>(Number(cells[0])));
    EXPECT_NEAR(g.Table.at(r, 2), Number(cells[1]), 0.000005);
    EXPECT_NEAR(g.Table.at(r, 3), Number(cells[2]), 0.000005);
  }
  const GraphPicture p = LayoutGraph(g, {0, false});
  ExpectDrawn(p);
  auto has = [&p](const std::string& text) {
    return std::any_of(p.Texts.begin(), p.Texts.end(),
                       [&](const GraphText& t) { return t.Text == text; });
  };
  EXPECT_TRUE(has("Obs"));
  EXPECT_TRUE(has("Exp"));
  EXPECT_TRUE(has("Pairwise Differences"));
  double high = 0.0;
  for (int c : {2, 3}) high = std::max(high, Extent(g, c, true).second);
  ExpectYScale(p, 0.0, high);
}

GraphData HandMade(int16_t kind, int32_t columns, int32_t rows) {
  GraphData g;
  g.GraphKind = kind;
  g.Table = WindowTable(rows, columns);
  for (int32_t r = 1; r <= rows; ++r) {
    g.Table.at(r, 1) = static_cast<float>(r * 30);
    for (int32_t c = 2; c < columns; ++c)
      g.Table.at(r, c) = static_cast<float>(0.5 + 0.4 * std::sin(0.3 * r + c));
  }
  g.Table.RowsUsed = g.GraphRows = rows;
  return g;
}

TEST(GraphRender, LinkageChartMarksSignificantPairsInTheirColour) {
  GraphData g = HandMade(3, 9, 40);
  for (int32_t r = 1; r <= 40; ++r) g.Table.at(r, 8) = r % 4 == 0 ? 1.0f : 0.0f;
  const GraphPicture plain = LayoutGraph(g, {5, false});
  const GraphPicture marked = LayoutGraph(g, {5, true});
  ExpectDrawn(plain);
  ExpectDrawn(marked);
  const QColor significant = GraphPalette{}.Significant;
  EXPECT_EQ(OfColour(Render(plain), significant), 0);
  EXPECT_GT(OfColour(Render(marked), significant), 100);
  EXPECT_TRUE(marked.Message.empty());
}

TEST(GraphRender, CodingRatiosDrawBothSeries) {
  const GraphData g = HandMade(16, 4, 25);
  const GraphPicture p = LayoutGraph(g, {2, false});
  ExpectDrawn(p);
  const QImage image = Render(p);
  EXPECT_GT(OfColour(image, GraphPalette{}.Series[0]), 100);
  EXPECT_GT(OfColour(image, GraphPalette{}.Series[1]), 100);
}

// A mark on the frame (the first window at the bottom of the scale) is drawn whole: its rim
// reaches past the frame's corner.
TEST(GraphRender, AMarkOnTheFrameIsNotCut) {
  GraphPicture p;
  p.HasChart = true;
  p.Marks.push_back({{kFrameLeft, kFrameBottom}, {GraphRole::kSeries, 0}, MarkShape::kDot});
  // A quarter of the page: the mark's radius of 32 units is 8 pixels, its rim a pixel more.
  const QImage image = RenderGraphImage(p, QSize(kPageWidth / 4, kPageHeight / 4), GraphPalette{});
  const int left = kFrameLeft / 4, bottom = kFrameBottom / 4;
  EXPECT_NE(image.pixelColor(left - 9, bottom), GraphPalette{}.Background);
  EXPECT_NE(image.pixelColor(left, bottom + 8), GraphPalette{}.Background);
  EXPECT_EQ(image.pixelColor(left - 12, bottom), GraphPalette{}.Background);
}

}  // namespace
}  // namespace ovelt
