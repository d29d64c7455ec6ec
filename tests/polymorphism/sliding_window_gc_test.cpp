#include <gtest/gtest.h>

#include "analyses/polymorphism/windows/sliding_window_gc.h"
#include "poly_fixture.h"

namespace ovelt {
namespace {

TEST(GcWindows, CountsTheBasesOfEachWindow) {
  // Two sequences of six sites, windows of 3 sites stepping by 3.
  auto ad = test::Selected({"AGGCAT", "AGGCTT"});
  const GcWindows gc = ComputeGcWindows(ad, 1, 6, {3, 3, false});
  ASSERT_EQ(gc.Rows.size(), 2u);
  // Window 1-3: A A G G G G: G+C = 4/6, A+T = 2/6, G = 4, C = 0.
  EXPECT_EQ(gc.Rows[0].Window.Start, 1);
  EXPECT_EQ(gc.Rows[0].Window.End, 3);
  EXPECT_DOUBLE_EQ(gc.Rows[0].GC.value(), 4.0 / 6.0);
  EXPECT_DOUBLE_EQ(gc.Rows[0].AT.value(), 2.0 / 6.0);
  EXPECT_EQ(gc.Rows[0].G, 4);
  EXPECT_EQ(gc.Rows[0].C, 0);
  // Window 4-6: C A T and C T T: G+C = 2/6, G = 0, C = 2.
  EXPECT_DOUBLE_EQ(gc.Rows[1].GC.value(), 2.0 / 6.0);
  EXPECT_EQ(gc.Rows[1].C, 2);
  EXPECT_EQ(GcGridRow(gc.Rows[0]),
            (std::vector<std::string>{"        1-3", "    2", "0.66667", "0.33333", "   4",
                                      "   0"}));
  EXPECT_EQ(GcGridTitles(),
            (std::vector<std::string>{"Window", "Midpoint", "G+C", "A+T", "G", "C"}));
  const GraphData graph = GcGraph(gc);
  EXPECT_EQ(graph.GraphRows, 2);
  EXPECT_FLOAT_EQ(graph.Table.at(2, 2), 2.0f / 6.0f);
}

TEST(GcWindows, GapsAndMissingDataAreNotBases) {
  // Window 1-4 with gaps counted: A - ? C over one sequence and A C C C: bases A A C C C C.
  auto ad = test::Selected({"A-?C", "ACCC"});
  const GcWindows gc = ComputeGcWindows(ad, 1, 4, {4, 4, true});
  ASSERT_EQ(gc.Rows.size(), 1u);
  EXPECT_DOUBLE_EQ(gc.Rows[0].GC.value(), 4.0 / 6.0);
  EXPECT_EQ(gc.Rows[0].C, 4);
}

TEST(GcWindows, AWindowWithoutANucleotideHasNoShares) {
  // Gaps counted: window 3-4 holds only gaps and missing data.
  auto ad = test::Selected({"AC-?GG", "AT?-GC"});
  const GcWindows gc = ComputeGcWindows(ad, 1, 6, {2, 2, true});
  ASSERT_EQ(gc.Rows.size(), 3u);
  EXPECT_FALSE(gc.Rows[1].GC.has_value());
  EXPECT_FALSE(gc.Rows[1].AT.has_value());
  EXPECT_EQ(gc.Rows[1].G + gc.Rows[1].C, 0);
  // The grid and the graph show 0 there, as before.
  EXPECT_EQ(GcGridRow(gc.Rows[1])[2], "0.00000");
  EXPECT_FLOAT_EQ(GcGraph(gc).Table.at(2, 2), 0.0f);
  // Window 5-6: G G G C: G+C = 1.
  EXPECT_DOUBLE_EQ(gc.Rows[2].GC.value(), 1.0);
}

}  // namespace
}  // namespace ovelt
