#include "analyses/polymorphism/neutrality/neutrality_windows.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/neutrality/neutrality_window_report.h"
#include "analyses/polymorphism/windows/sliding_window_pi.h"
#include "stats/fu_li_statistics.h"
#include "neutrality_fixture.h"

namespace ovelt {
namespace {

using test::NeutralityRows;
using test::OutgroupRow;

SlidingWindowSpec Window(int32_t length, int32_t step) {
  SlidingWindowSpec geometry;
  geometry.WindowLength = length;
  geometry.StepSize = step;
  return geometry;
}

TEST(NeutralityWindows, TajimaInTwoHalves) {
  // Sites 1..5 hold three singletons (S = 3, k = 1.2), sites 6..10 the singleton, the 3 : 2 split
  // and the three-variant site (S = 3, k = 1.7). With n = 5, S / a1 = 1.44 and
  // sqrt(3 e1 + 6 e2) = sqrt(0.0288 + 6 * 2448/622500) = 0.2289000:
  // D = -0.24 / 0.2289 = -1.048493 and 0.26 / 0.2289 = 1.135867.
  const auto sel = test::SelectedAlignment(NeutralityRows());
  const TajimaWindows w = ComputeTajimaWindows(TallySites(sel, 1, 10), Window(5, 5), 5, false);
  ASSERT_EQ(w.Rows.size(), 2U);
  const double scale = std::sqrt(0.0288 + 6.0 * 2448.0 / 622500.0);
  EXPECT_EQ(w.Rows[0].Window.Start, 1);
  EXPECT_EQ(w.Rows[0].Window.End, 5);
  EXPECT_EQ(w.Rows[0].SegSites, 3);
  ASSERT_TRUE(w.Rows[0].D.has_value());
  EXPECT_NEAR(*w.Rows[0].D, -0.24 / scale, 1e-12);
  EXPECT_EQ(w.Rows[1].SegSites, 3);
  ASSERT_TRUE(w.Rows[1].D.has_value());
  EXPECT_NEAR(*w.Rows[1].D, 0.26 / scale, 1e-12);
  EXPECT_EQ(w.Sequences, 5);
  EXPECT_EQ(w.Capacity, 2);
  // The grid cells: " 0.0000" for positive values, "-0.0000" for negative ones.
  const std::vector<std::string> first = TajimaGridRow(w.Rows[0]);
  ASSERT_EQ(first.size(), 4U);
  EXPECT_EQ(first[0], WindowCell(w.Rows[0].Window));
  EXPECT_EQ(first[2], "-1.0485");
  EXPECT_EQ(first[3], "");
  EXPECT_EQ(w.Rows[0].Mark, "");  // |D| far below the 10 % point for n = 5
  EXPECT_EQ(TajimaGridRow(w.Rows[1])[2], " 1.1359");
  // Counting mutations, the second half holds Eta = 4.
  const TajimaWindows m = ComputeTajimaWindows(TallySites(sel, 1, 10), Window(5, 5), 5, true);
  EXPECT_EQ(m.Rows[1].SegSites, 4);
}

TEST(NeutralityWindows, WindowWithoutSegregatingSiteIsNotDetermined) {
  // Windows of two sites: 7..8 is monomorphic.
  const auto sel = test::SelectedAlignment(NeutralityRows());
  const TajimaWindows w = ComputeTajimaWindows(TallySites(sel, 1, 10), Window(2, 2), 5, false);
  ASSERT_EQ(w.Rows.size(), 5U);
  EXPECT_EQ(w.Rows[3].Window.Start, 7);
  EXPECT_FALSE(w.Rows[3].D.has_value());
  EXPECT_EQ(w.Rows[3].Mark, "n.d.");
  const std::vector<std::string> cells = TajimaGridRow(w.Rows[3]);
  EXPECT_EQ(cells[2], "n.d.");
  EXPECT_EQ(cells[3], "n.d.");
  const GraphData graph = TajimaGraph(w);
  EXPECT_EQ(graph.GraphKind, kGraphTajima);
  EXPECT_EQ(graph.GraphRows, 5);
  EXPECT_EQ(graph.Table.at(4, 2), 0.0f);
  EXPECT_EQ(graph.Table.at(1, 1), static_cast<float>(w.Rows[0].Window.Midpoint));
  ASSERT_TRUE(w.Rows[0].D.has_value());
  EXPECT_EQ(graph.Table.at(1, 2), static_cast<float>(*w.Rows[0].D));

  const FuLiWindows f = ComputeFuLiWindows(TallySites(sel, 1, 10), Window(2, 2), 5, true);
  EXPECT_FALSE(f.Rows[3].DStar.has_value());
  EXPECT_EQ(f.Rows[3].DStarMark, "n.d.");
  const std::vector<std::string> fu_cells = FuLiGridRow(f.Rows[3]);
  EXPECT_EQ(fu_cells, (std::vector<std::string>{WindowCell(f.Rows[3].Window), fu_cells[1], "n.d.",
                                                "n.d.", "n.d.", "n.d."}));
}

TEST(NeutralityWindows, FuLiPerWindowFromTheWindowsCounts) {
  const auto sel = test::SelectedAlignment(NeutralityRows());
  const FuLiWindows w = ComputeFuLiWindows(TallySites(sel, 1, 10), Window(5, 5), 5, true);
  ASSERT_EQ(w.Rows.size(), 2U);
  // Sites 6..10: Eta = 1 + 1 + 2 = 4, Eta(s) = 1 + 0 + 2 = 3, k = 1.7.
  EXPECT_EQ(w.Rows[1].Eta, 4);
  EXPECT_EQ(w.Rows[1].EtaS, 3);
  const FuLiPair expected = FuLiStarFromCounts(5, 4, 3, 1.7);
  ASSERT_TRUE(w.Rows[1].DStar.has_value());
  ASSERT_TRUE(w.Rows[1].FStar.has_value());
  EXPECT_NEAR(*w.Rows[1].DStar, expected.D, 1e-12);
  EXPECT_NEAR(*w.Rows[1].FStar, expected.F, 1e-12);
  const GraphData graph = FuLiGraph(w);
  EXPECT_EQ(graph.GraphKind, kGraphFuLi);
  EXPECT_EQ(graph.Table.at(2, 3), static_cast<float>(expected.F));
  EXPECT_EQ(FuLiGridTitles(),
            (std::vector<std::string>{"Window", "Midpoint", "D*", "Sign", "F*", "Sign"}));
}

TEST(NeutralityWindows, OutgroupWindowsSkipTheOutgroupsGap) {
  // Site 7 is a gap of the outgroup: with gaps not counted, the first window of five net sites
  // is 1..5 and the second 6..11 would hold six sites; the region ends at 10, so it is 6..10
  // with four net sites (6, 8, 9, 10).
  const auto sel = test::WithOutgroup(NeutralityRows(), OutgroupRow());
  const SiteTallies tallies = TallySitesWithOutgroup(sel, 1, 10);
  const FuLiOutgroupWindows w = ComputeFuLiOutgroupWindows(tallies, Window(5, 5), 5, true);
  ASSERT_EQ(w.Rows.size(), 2U);
  EXPECT_EQ(w.Rows[1].Window.Start, 6);
  EXPECT_EQ(w.Rows[1].Window.End, 10);
  EXPECT_EQ(w.Rows[1].Window.NetSites, 4);
  // Sites 1..5: derived G x1, A x4, C x1: Eta = 3, Eta(e) = 2, k = 1.2;
  // H: S(1) = 2, S(4) = 1: ThetaH = 2 (2 + 16) / 20 = 1.8, ThetaPi = 2 (8 + 4) / 20 = 1.2.
  EXPECT_EQ(w.Rows[0].Eta, 3);
  EXPECT_EQ(w.Rows[0].EtaE, 2);
  EXPECT_NEAR(w.Rows[0].FayWu.H, 1.2 - 1.8, 1e-12);
  const FuLiPair expected = FuLiOutgroupFromCounts(5, 3, 2, 1.2);
  ASSERT_TRUE(w.Rows[0].D.has_value());
  ASSERT_TRUE(w.Rows[0].F.has_value());
  EXPECT_NEAR(*w.Rows[0].D, expected.D, 1e-12);
  EXPECT_NEAR(*w.Rows[0].F, expected.F, 1e-12);
  const std::vector<std::string> cells = FuLiOutgroupGridRow(w.Rows[0]);
  ASSERT_EQ(cells.size(), 7U);
  EXPECT_EQ(cells[6], "-0.6000");
  EXPECT_EQ(cells[3], "    ");
  const GraphData graph = FuLiOutgroupGraph(w);
  EXPECT_EQ(graph.GraphKind, kGraphFuLiOutgroup);
  EXPECT_EQ(graph.Table.at(1, 4), static_cast<float>(1.2 - 1.8));
}

TEST(NeutralityWindows, LegendsUnderTheTables) {
  EXPECT_EQ(TajimaWindowLegend(),
            " n.d., not determined;  # P<0.10;  * P<0.05;  ** P<0.01;  *** P<0.001");
  EXPECT_EQ(FuLiWindowLegend(true), "   n.d., not determined;  #, P<0.10;  *, P<0.05;  **, P<0.02");
  EXPECT_EQ(FuLiWindowLegend(false), "   #, P<0.10;  *, P<0.05;  **, P<0.02");
}

TEST(NeutralityWindows, SignedCells) {
  EXPECT_EQ(SignedCell(0.12344), " 0.1234");
  EXPECT_EQ(SignedCell(-0.12346), "-0.1235");
  EXPECT_EQ(SignedCell(0.0), " 0.0000");
  EXPECT_EQ(SignedCell(12.5), " 12.5000");
  EXPECT_EQ(SignedCell(std::nan("")), "n.d.");
}

}  // namespace
}  // namespace ovelt
