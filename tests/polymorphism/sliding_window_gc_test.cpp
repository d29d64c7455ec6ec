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
  EXPECT_DOUBLE_EQ(gc.Rows[0].GC, 4.0 / 6.0);
  EXPECT_DOUBLE_EQ(gc.Rows[0].AT, 2.0 / 6.0);
  EXPECT_EQ(gc.Rows[0].G, 4);
  EXPECT_EQ(gc.Rows[0].C, 0);
  // Window 4-6: C A T and C T T: G+C = 2/6, G = 0, C = 2.
  EXPECT_DOUBLE_EQ(gc.Rows[1].GC, 2.0 / 6.0);
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
  EXPECT_DOUBLE_EQ(gc.Rows[0].GC, 4.0 / 6.0);
  EXPECT_EQ(gc.Rows[0].C, 4);
}

}  // namespace
}  // namespace ovelt
