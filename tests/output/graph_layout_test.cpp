#include "output/graph_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "output/graph_axis.h"
#include "output/graph_series.h"

namespace ovelt {
namespace {

GraphData Table(int16_t kind, const std::vector<float>& x,
                const std::vector<std::vector<float>>& columns, int16_t sub = 0) {
  GraphData g;
  g.GraphKind = kind;
  g.GraphSubKind = sub;
  const auto rows = static_cast<int32_t>(x.size());
  g.Table = WindowTable(rows, static_cast<int32_t>(columns.size()) + 2);
  for (int32_t r = 1; r <= rows; ++r) {
    const auto i = static_cast<size_t>(r - 1);
    g.Table.at(r, 1) = x[i];
    for (size_t c = 0; c < columns.size(); ++c)
      g.Table.at(r, static_cast<int32_t>(c) + 2) = columns[c][i];
  }
  g.Table.RowsUsed = g.GraphRows = rows;
  return g;
}

int Count(const GraphPicture& p, const std::string& text) {
  return static_cast<int>(std::count_if(p.Texts.begin(), p.Texts.end(),
                                         [&](const GraphText& t) { return t.Text == text; }));
}

// Texts anchored right of the frame's left edge: the Y labels, top down.
std::vector<std::string> YLabels(const GraphPicture& p) {
  std::vector<GraphText> labels;
  for (const GraphText& t : p.Texts)
    if (t.Anchor == TextAnchor::kRight) labels.push_back(t);
  std::sort(labels.begin(), labels.end(),
            [](const GraphText& a, const GraphText& b) { return a.At.Y < b.At.Y; });
  std::vector<std::string> out;
  for (const GraphText& t : labels) out.push_back(t.Text);
  return out;
}

std::vector<std::string> XLabels(const GraphPicture& p) {
  std::vector<std::string> out;
  for (const GraphText& t : p.Texts)
    if (t.Anchor == TextAnchor::kCentre && t.At.Y < kFrameBottom + 300) out.push_back(t.Text);
  return out;
}

bool InFrame(const GraphPoint& at) {
  return at.X >= kFrameLeft && at.X <= kFrameRight && at.Y >= kFrameTop && at.Y <= kFrameBottom;
}

void ExpectDataInFrame(const GraphPicture& p) {
  for (const GraphPolyline& line : p.Polylines)
    for (const GraphPoint& at : line.Points) EXPECT_TRUE(InFrame(at)) << at.X << "," << at.Y;
  for (const GraphMark& m : p.Marks) EXPECT_TRUE(InFrame(m.At)) << m.At.X << "," << m.At.Y;
}

TEST(GraphLayoutTest, PolymorphismWindowsOnTheSeriesScale) {
  // Pi from 0 to 0.0123: raw step 0.00246 -> 0.002, axis 0..0.014, c = Int(6.15) = 6, so every
  // second tick is labelled.
  const GraphData g = Table(1, {50, 75, 100, 125, 150},
                            {{0.0041f, 0.0123f, 0.0087f, 0.0f, 0.0066f},
                             {0.003f, 0.01f, 0.006f, 0.0f, 0.005f},
                             {3, 9, 6, 0, 5}});
  const GraphPicture p = LayoutGraph(g, {0, false});
  ASSERT_TRUE(p.HasChart);
  EXPECT_EQ(YLabels(p), (std::vector<std::string>{"0.012", "0.008", "0.004", "0"}));
  // 50..150 holds 101 positions: "50" loses two digits, 0; the step is 20 (raw 20).
  EXPECT_EQ(XLabels(p), (std::vector<std::string>{"  60", "  80", " 100", " 120", " 140"}));
  EXPECT_EQ(Count(p, "Nucleotide Position"), 1);
  EXPECT_EQ(Count(p, "Pi"), 1);
  ASSERT_EQ(p.Polylines.size(), 1u);
  ASSERT_EQ(p.Polylines[0].Points.size(), 5u);
  // 0.0123 of 0.014 up the 3700 units of the frame.
  EXPECT_NEAR(p.Polylines[0].Points[1].Y, 4000 - 0.0123 / 0.014 * 3700, 1.0);
  EXPECT_EQ(p.Polylines[0].Points[0].X, kFrameLeft);
  EXPECT_EQ(p.Polylines[0].Points[4].X, kFrameRight);
  ExpectDataInFrame(p);
  // The frame: four lines on the rectangle.
  ASSERT_GE(p.Lines.size(), 4u);
  EXPECT_EQ(p.Lines[0].From.X, kFrameLeft);
  EXPECT_EQ(p.Lines[0].From.Y, kFrameTop);
  EXPECT_EQ(p.Lines[1].To.X, kFrameRight);
  EXPECT_EQ(p.Lines[1].To.Y, kFrameBottom);
}

TEST(GraphLayoutTest, SegregatingSitesScale) {
  // S up to 9: raw 1.8 -> 1, axis 0..9, c = 9: every second label.
  const GraphData g = Table(1, {50, 75, 100}, {{0.1f, 0.2f, 0.3f}, {0.1f, 0.2f, 0.3f}, {3, 9, 6}});
  const GraphPicture p = LayoutGraph(g, {2, false});
  EXPECT_EQ(Count(p, "S"), 1);
  const std::vector<std::string> labels = YLabels(p);
  ASSERT_EQ(labels.size(), 5u);
  EXPECT_EQ(labels.back(), "0");
  EXPECT_EQ(labels.front(), "8");
}

// "0.#####" leaves a point behind a whole number ("0.", "8."); an axis label drops it.
TEST(GraphLayoutTest, AxisLabelsOfWholeNumbersHaveNoPoint) {
  EXPECT_EQ(AxisLabel(0.0, "0.#####"), "0");
  EXPECT_EQ(AxisLabel(8.0, "0.#####"), "8");
  EXPECT_EQ(AxisLabel(-2.0, "0.####"), "-2");
  EXPECT_EQ(AxisLabel(0.25, "0.#####"), "0.25");
  EXPECT_EQ(AxisLabel(0.00005, "0.#####"), "0.00005");
}

TEST(GraphLayoutTest, SeriesOutOfRangeOrEmptyTableDrawsNothing) {
  const GraphData g = Table(1, {50, 75}, {{0.1f, 0.2f}});
  EXPECT_FALSE(LayoutGraph(g, {1, false}).HasChart);
  EXPECT_FALSE(LayoutGraph(g, {-1, false}).HasChart);
  GraphData empty = g;
  empty.GraphRows = 0;
  EXPECT_FALSE(LayoutGraph(empty, {0, false}).HasChart);
}

TEST(GraphLayoutTest, NeutralityChartWithinOneHasFixedLabels) {
  const GraphData g = Table(5, {100, 200, 300}, {{-0.8f, 0.3f, 0.9f}});
  const GraphPicture p = LayoutGraph(g, {0, false});
  EXPECT_EQ(YLabels(p), (std::vector<std::string>{" 1.0", " 0.5", " 0.0", "-0.5", "-1.0"}));
  // The zero line, dashed.
  const auto dashed = std::count_if(p.Lines.begin(), p.Lines.end(),
                                    [](const GraphLine& l) { return l.Dashed; });
  EXPECT_EQ(dashed, 1);
  EXPECT_EQ(Count(p, "D"), 1);
  ExpectDataInFrame(p);
}

TEST(GraphLayoutTest, SmallPositiveNeutralityValuesTakeTheQuarterLabels) {
  const GraphData g = Table(6, {100, 200, 300}, {{0.05f, 0.2f, 0.1f}, {0.0f, 0.1f, 0.25f}});
  const GraphPicture p = LayoutGraph(g, {1, false});
  EXPECT_EQ(YLabels(p),
            (std::vector<std::string>{"0.25", "0.20", "0.15", "0.10", "0.05", "0.0 "}));
  EXPECT_EQ(Count(p, "F*"), 1);
}

TEST(GraphLayoutTest, CriticalBoundsOfTheChosenStatistic) {
  GraphData g = Table(6, {100, 200, 300}, {{-0.5f, 0.3f, 0.9f}, {-0.4f, 0.2f, 0.7f}});
  g.Bounds = {{2, -2.1f, 1.6f}};
  const GraphPicture d = LayoutGraph(g, {0, false});
  // Symmetric axis over 2.1: range 4.2, raw 0.84 -> 0.5, from -2.5 to 2.5; c = 8, every second.
  EXPECT_EQ(YLabels(d), (std::vector<std::string>{"2.5", "1.5", "0.5", "-0.5", "-1.5", "-2.5"}));
  std::vector<int> levels;
  for (const GraphLine& l : d.Lines)
    if (l.Pen.Role == GraphRole::kSignificant) {
      EXPECT_TRUE(l.Dashed);
      EXPECT_EQ(l.From.Y, l.To.Y);
      levels.push_back(l.From.Y);
    }
  ASSERT_EQ(levels.size(), 2u);
  EXPECT_NEAR(levels[0], 4000 - (2.5 - 2.1) / 5.0 * 3700, 1.0);
  EXPECT_NEAR(levels[1], 4000 - (2.5 + 1.6) / 5.0 * 3700, 1.0);
  // F* has no bound in the data: no critical lines and the fixed labels.
  const GraphPicture f = LayoutGraph(g, {1, false});
  EXPECT_EQ(std::count_if(f.Lines.begin(), f.Lines.end(),
                          [](const GraphLine& l) { return l.Pen.Role == GraphRole::kSignificant; }),
            0);
  EXPECT_EQ(YLabels(f).front(), " 1.0");
}

TEST(GraphLayoutTest, MismatchObservedAndExpected) {
  const GraphData g = Table(15, {0, 1, 2, 3, 4, 5, 6},
                            {{0.1f, 0.3f, 0.25f, 0.2f, 0.1f, 0.05f, 0.0f},
                             {0.2f, 0.22f, 0.2f, 0.15f, 0.12f, 0.07f, 0.04f}},
                            11);
  const GraphPicture p = LayoutGraph(g, {0, false});
  ASSERT_TRUE(p.HasChart);
  EXPECT_EQ(Count(p, "Obs"), 1);
  EXPECT_EQ(Count(p, "Exp"), 1);
  EXPECT_EQ(Count(p, "Pairwise Differences"), 2);  // chooser name above, X title below
  EXPECT_EQ(p.Polylines.size(), 2u);
  EXPECT_EQ(p.Marks.size(), 7u);  // the observed points
  EXPECT_EQ(XLabels(p), (std::vector<std::string>{"   0", "   1", "   2", "   3", "   4", "   5",
                                                  "   6"}));
  // Up to 0.3: raw 0.06 -> 0.05, c = 6, every second tick of 0..0.3.
  EXPECT_EQ(YLabels(p), (std::vector<std::string>{"0.3", "0.2", "0.1", "0"}));
  ExpectDataInFrame(p);
}

TEST(GraphLayoutTest, SnCurvesKeepTheirNamesAndAContinuousAxis) {
  GraphData g = Table(15, {0.0f, 0.5f, 1.0f, 1.5f}, {{1, 0.8f, 0.6f, 0.5f}, {2, 1.5f, 1.1f, 0.9f}},
                      22);
  g.SeriesNames = {"n = 2", "n = 10"};
  const GraphPicture p = LayoutGraph(g, {0, false});
  EXPECT_EQ(Count(p, "n = 2"), 1);
  EXPECT_EQ(Count(p, "n = 10"), 1);
  EXPECT_EQ(Count(p, "Time in generations"), 1);
  // 0..1.5: raw 0.3 -> 0.5, c = 3, every tick labelled.
  EXPECT_EQ(XLabels(p), (std::vector<std::string>{"0", "0.5", "1", "1.5"}));
}

TEST(GraphLayoutTest, CodingRatiosTogether) {
  const GraphData g = Table(16, {100, 300, 500}, {{0.2f, 0.5f, 0.3f}, {0.1f, 0.4f, 0.6f}});
  const GraphPicture p = LayoutGraph(g, {2, false});
  EXPECT_EQ(p.Polylines.size(), 2u);
  EXPECT_EQ(Count(p, "Pi & K"), 1);
  // The legend names each curve as the chooser does alone: Pi first, in the first colour.
  EXPECT_EQ(Count(p, "Pi(a)/Pi(s)"), 1);
  EXPECT_EQ(Count(p, "K(a)/K(s)"), 1);
  EXPECT_EQ(p.Polylines[0].Pen.Series, 0);
  EXPECT_EQ(p.Polylines[1].Pen.Series, 1);
  // The first curve is column 3 (Pi(a)/Pi(s)): its highest point, 0.6, is the top of the axis
  // (raw step 0.12 -> 0.1, 0..0.6).
  EXPECT_EQ(p.Polylines[0].Points[2].Y, kFrameTop);
}

// Pairs on the line y = 0.1 + 0.002 x, so both regressions are known exactly.
GraphData Linkage(const std::vector<float>& significant) {
  const std::vector<float> x{10, 20, 30, 40, 50, 60};
  std::vector<float> d;
  for (float v : x) d.push_back(0.1f + 0.002f * v);
  return Table(3, x, {d, d, d, d, d, d, significant});
}

TEST(GraphLayoutTest, LinkageRegressionAndItsEquation) {
  const GraphPicture p = LayoutGraph(Linkage({0, 0, 0, 0, 0, 0}), {0, false});
  ASSERT_TRUE(p.HasChart);
  EXPECT_EQ(Count(p, "Y = 0.1 + 0.002 X"), 1);
  EXPECT_EQ(Count(p, "Nucleotide distance"), 1);
  // 0..0.22: raw 0.044 -> 0.05, c = 4: every tick, written with "0.####".
  EXPECT_EQ(YLabels(p), (std::vector<std::string>{"0.25", "0.2", "0.15", "0.1", "0.05", "0"}));
  EXPECT_EQ(p.Marks.size(), 6u);
  EXPECT_TRUE(p.Message.empty());
  ExpectDataInFrame(p);
}

TEST(GraphLayoutTest, LinkageWithoutSignificantPairs) {
  const GraphPicture p = LayoutGraph(Linkage({0, 0, 0, 0, 0, 0}), {1, true});
  EXPECT_EQ(p.Message, "There are 0 significant values");
  EXPECT_EQ(Count(p, "|D|"), 1);
}

TEST(GraphLayoutTest, LinkageSignificantPairsMarkedWithTheirLine) {
  const GraphPicture p = LayoutGraph(Linkage({0, 1, 0, 1, 0, 1}), {0, true});
  EXPECT_TRUE(p.Message.empty());
  const auto marked = std::count_if(p.Marks.begin(), p.Marks.end(), [](const GraphMark& m) {
    return m.Pen.Role == GraphRole::kSignificant;
  });
  EXPECT_EQ(marked, 3);
  // Three significant pairs on the same line: a second, equal equation.
  EXPECT_EQ(Count(p, "Y = 0.1 + 0.002 X"), 2);
}

}  // namespace
}  // namespace ovelt
