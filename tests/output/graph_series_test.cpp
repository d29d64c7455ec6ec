#include "output/graph_series.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "output/graph_layout.h"

namespace ovelt {
namespace {

GraphData Chart(int16_t kind, int32_t columns, int16_t sub = 0) {
  GraphData g;
  g.GraphKind = kind;
  g.GraphSubKind = sub;
  g.Table = WindowTable(3, columns);
  for (int32_t r = 1; r <= 3; ++r) {
    g.Table.at(r, 1) = static_cast<float>(10 * r);
    for (int32_t c = 2; c < columns; ++c) g.Table.at(r, c) = 0.1f * static_cast<float>(r + c);
  }
  g.Table.RowsUsed = g.GraphRows = 3;
  return g;
}

std::vector<std::string> Names(const GraphData& g) {
  std::vector<std::string> names;
  for (const GraphSeries& s : SeriesOffered(g)) names.push_back(s.Name);
  return names;
}

TEST(GraphSeriesTest, KindsOutsideTheFamiliesOfferNothingAndDrawNothing) {
  for (int16_t kind : {0, 17, -1}) {
    const GraphData g = Chart(kind, 5);
    EXPECT_TRUE(SeriesOffered(g).empty()) << kind;
    const GraphPicture p = LayoutGraph(g, {});
    EXPECT_FALSE(p.HasChart) << kind;
    EXPECT_TRUE(p.Lines.empty() && p.Texts.empty() && p.Marks.empty() && p.Polylines.empty());
    EXPECT_TRUE(p.Message.empty()) << kind;
  }
}

TEST(GraphSeriesTest, PolymorphismWindows) {
  EXPECT_EQ(Names(Chart(1, 5)), (std::vector<std::string>{"Pi", "Theta", "S"}));
  // As far as the table holds them.
  EXPECT_EQ(Names(Chart(1, 3)), (std::vector<std::string>{"Pi"}));
}

TEST(GraphSeriesTest, NamedColumnsComeFirst) {
  GraphData g = Chart(1, 6);
  g.SeriesNames = {"G+C", "A+T", "G", "C"};
  EXPECT_EQ(Names(g), g.SeriesNames);
}

TEST(GraphSeriesTest, DivergenceWithItsCombinations) {
  EXPECT_EQ(Names(Chart(2, 6)),
            (std::vector<std::string>{"Pi[1]", "Pi[2]", "Dxy", "Da", "Pi[1] & Pi[2]",
                                      "Dxy & Da", "Pi[1] & Pi[2] & Dxy",
                                      "Pi[1] & Pi[2] & Da"}));
  const std::vector<GraphSeries> s = SeriesOffered(Chart(2, 6));
  EXPECT_EQ(s[7].Columns, (std::vector<int32_t>{2, 3, 5}));
}

TEST(GraphSeriesTest, LinkageNeutralityRatiosAndOthers) {
  EXPECT_EQ(Names(Chart(3, 9)),
            (std::vector<std::string>{"D", "|D|", "D'", "|D'|", "R", "R^2"}));
  EXPECT_EQ(Names(Chart(4, 3)), (std::vector<std::string>{"Psi"}));
  EXPECT_EQ(Names(Chart(5, 5)), (std::vector<std::string>{"D"}));
  EXPECT_EQ(Names(Chart(6, 5)), (std::vector<std::string>{"D*", "F*"}));
  EXPECT_EQ(Names(Chart(7, 5)), (std::vector<std::string>{"FL-D", "FL-F", "FW-H"}));
  EXPECT_EQ(Names(Chart(16, 4)),
            (std::vector<std::string>{"K(a)/K(s)", "Pi(a)/Pi(s)", "Pi & K"}));
  EXPECT_EQ(SeriesOffered(Chart(16, 4))[2].Columns, (std::vector<int32_t>{3, 2}));
  EXPECT_EQ(Names(Chart(9, 6)), (std::vector<std::string>{"Pi", "Theta", "S", "Psi"}));
}

TEST(GraphSeriesTest, MismatchChartsBySubKind) {
  EXPECT_EQ(Names(Chart(15, 4, 11)), (std::vector<std::string>{"Pairwise Differences"}));
  EXPECT_EQ(Names(Chart(15, 4, 12)), (std::vector<std::string>{"Pairwise Differences"}));
  EXPECT_EQ(Names(Chart(15, 4, 21)), (std::vector<std::string>{"Segregating Sites"}));
  EXPECT_EQ(SeriesOffered(Chart(15, 4, 11))[0].Columns, (std::vector<int32_t>{2, 3}));
}

TEST(GraphSeriesTest, AxisTitles) {
  EXPECT_EQ(XAxisTitle(Chart(1, 5)), "Nucleotide Position");
  EXPECT_EQ(XAxisTitle(Chart(6, 5)), "Nucleotide Position");
  EXPECT_EQ(XAxisTitle(Chart(3, 9)), "Nucleotide distance");
  EXPECT_EQ(XAxisTitle(Chart(15, 4, 11)), "Pairwise Differences");
  EXPECT_EQ(XAxisTitle(Chart(15, 4, 12)), "Pairwise Differences");
  EXPECT_EQ(XAxisTitle(Chart(15, 4, 21)), "Allelic Frequency");
  EXPECT_EQ(XAxisTitle(Chart(15, 4, 22)), "Time in generations");
}

}  // namespace
}  // namespace ovelt
