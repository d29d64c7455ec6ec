// Pi(1), Pi(2), Dxy and Da along a sliding window.
#include <gtest/gtest.h>

#include <vector>

#include "analyses/divergence/common/site_dxy.h"
#include "analyses/divergence/dna_divergence/divergence_windows.h"
#include "two_populations_fixture.h"

namespace ovelt {
namespace {

TEST(DivergenceWindows, HandWorkedWindows) {
  //                                    site 12345678
  const auto sel = test::TwoPopulations({"AAAACAA-",   //
                                         "AACACCGA",   //
                                         "ACCACGTA"},  //
                                        {"AAAGATAA",   //
                                         "AACGATAA"});
  // Three net sites per window, two net sites per step, the gap site 8 not counted: windows
  // 1-3, 3-5, 5-7 and the last, 7-8, with site 7 alone as net site.
  const SlidingWindowSpec geometry{3, 2, false};
  const DivergenceWindows w = ComputeDivergenceWindows(sel, BuildSiteDxy(sel), 1, 8, geometry);
  ASSERT_EQ(w.Rows.size(), 4U);
  EXPECT_EQ(w.Rows[0].Window.Start, 1);
  EXPECT_EQ(w.Rows[0].Window.End, 3);
  EXPECT_EQ(w.Rows[2].Window.Start, 5);
  EXPECT_EQ(w.Rows[3].Window.End, 8);
  EXPECT_EQ(w.Rows[3].Window.NetSites, 1);
  // 1-3: k1 = 2/3 + 2/3, k2 = 1 (site 3), K = 1/3 + 1/2:
  // Pi(1) = 4/9, Pi(2) = 1/3, Dxy = 5/18, Da = 5/18 - 7/18.
  EXPECT_DOUBLE_EQ(w.Rows[0].Pi1, 4.0 / 9.0);
  EXPECT_DOUBLE_EQ(w.Rows[0].Pi2, 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(w.Rows[0].Dxy, 5.0 / 18.0);
  EXPECT_DOUBLE_EQ(w.Rows[0].Da, -1.0 / 9.0);
  // 5-7: k1 = 0 + 1 + 1, k2 = 0, K = 1 + 1 + 2/3: Pi(1) = 2/3, Dxy = 8/9, Da = 8/9 - 1/3.
  EXPECT_DOUBLE_EQ(w.Rows[2].Pi1, 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(w.Rows[2].Pi2, 0.0);
  EXPECT_DOUBLE_EQ(w.Rows[2].Dxy, 8.0 / 9.0);
  EXPECT_DOUBLE_EQ(w.Rows[2].Da, 5.0 / 9.0);
  // 7-8: site 7 alone (A G T against A A): Pi(1) = 1, Dxy = 2/3, Da = 2/3 - 1/2.
  EXPECT_DOUBLE_EQ(w.Rows[3].Pi1, 1.0);
  EXPECT_DOUBLE_EQ(w.Rows[3].Dxy, 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(w.Rows[3].Da, 1.0 / 6.0);
}

TEST(DivergenceWindows, AGapInThePopulationTwoIsAGapOfTheWindow) {
  // Site 2 has a gap in population 2 only. Windows of two net sites, step 2: 1-3 (sites 1 and
  // 3), then 4-5.
  const auto sel = test::TwoPopulations({"ACGTA", "ACGTC"}, {"A-GTA", "AAGTA"});
  const SiteClasses joint = JointGapClasses(sel);
  EXPECT_EQ(joint[2], kGapOrMissing);
  EXPECT_EQ(joint[5], 1);
  const DivergenceWindows w =
      ComputeDivergenceWindows(sel, BuildSiteDxy(sel), 1, 5, SlidingWindowSpec{2, 2, false});
  ASSERT_EQ(w.Rows.size(), 2U);
  EXPECT_EQ(w.Rows[0].Window.End, 3);
  EXPECT_EQ(w.Rows[0].Window.NetSites, 2);
  EXPECT_DOUBLE_EQ(w.Rows[0].Dxy, 0.0);
  // 4-5: site 5 has A, C against A, A: k1 = 1 (two sequences, one each), K = 1/2.
  EXPECT_DOUBLE_EQ(w.Rows[1].Pi1, 0.5);
  EXPECT_DOUBLE_EQ(w.Rows[1].Dxy, 0.25);
  EXPECT_DOUBLE_EQ(w.Rows[1].Da, 0.0);
}

}  // namespace
}  // namespace ovelt
