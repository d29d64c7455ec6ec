// A run of DNA divergence over a region: the parts in order, and the Jukes and Cantor step only
// when asked for and the region has a net site.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "analyses/divergence/dna_divergence/dna_divergence_compute.h"
#include "two_populations_fixture.h"

namespace ovelt {
namespace {

TEST(DnaDivergenceCompute, RegionOfTheSelection) {
  //                                    site 12345678
  auto sel = test::TwoPopulations({"AAAACAA-",   //
                                   "AACACCGA",   //
                                   "ACCACGTA"},  //
                                  {"AAAGATAA",   //
                                   "AACGATAA"});
  // Sites 4..6: three fixed differences, two of them at monomorphic sites; site 6 has A, C, G
  // against T (two private mutations of population 1, H1 = 1). L = 3, k1 = 1, K = 3.
  sel.Region = {4, 6};
  const DnaDivergenceResult r = ComputeDnaDivergence(sel, false);
  EXPECT_EQ(r.N1, 3);
  EXPECT_EQ(r.N2, 2);
  EXPECT_EQ(r.Sums.L, 3);
  EXPECT_DOUBLE_EQ(r.Sums.Pi1, 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(r.Sums.Dxy, 1.0);
  EXPECT_DOUBLE_EQ(r.Sums.Da, 1.0 - 1.0 / 6.0);
  EXPECT_EQ(r.Kinds, (MutationKinds{3, 2, 0, 0}));
  EXPECT_FALSE(r.JukesCantor.has_value());
  EXPECT_FALSE(r.Variances.has_value());

  // With the variances: x = 4 x 3 / 9 for every pair between (all differ at the three sites)
  // is above 1, so Dxy(JC) is not determined; within population 1 each pair differs at site 6
  // only: x = 4/9, distance -(3/4) ln(5/9).
  const DnaDivergenceResult v = ComputeDnaDivergence(sel, true);
  ASSERT_TRUE(v.JukesCantor.has_value());
  ASSERT_TRUE(v.Variances.has_value());
  EXPECT_FALSE(v.JukesCantor->DxyJC.has_value());
  ASSERT_TRUE(v.JukesCantor->Pi1JC.has_value());
  EXPECT_FLOAT_EQ(*v.JukesCantor->Pi1JC, static_cast<float>(-0.75 * std::log(5.0 / 9.0)));
}

TEST(DnaDivergenceCompute, NoNetSiteSkipsTheJukesCantorStep) {
  auto sel = test::TwoPopulations({"A-", "AC"}, {"?C", "AC"});
  const DnaDivergenceResult r = ComputeDnaDivergence(sel, true);
  EXPECT_EQ(r.Sums.L, 0);
  EXPECT_EQ(r.Sums.Dxy, 0.0);
  EXPECT_FALSE(r.JukesCantor.has_value());
  EXPECT_FALSE(r.Variances.has_value());
}

}  // namespace
}  // namespace ovelt
