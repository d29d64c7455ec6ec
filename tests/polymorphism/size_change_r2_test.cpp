#include "analyses/polymorphism/size_changes/size_change_r2.h"

#include <gtest/gtest.h>

#include <cmath>

#include "polymorphism/size_change_fixture.h"

namespace ovelt {
namespace {

TEST(SizeChangeR2, FiveSequencesByHand) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  // Singletons: T of seq 4 at site 1, A of seq 1 at site 2, C of seq 5 at site 5; site 4
  // (2 : 3) has none, site 7 (gap) is skipped.
  const std::vector<double> u = SingletonsPerSequence(ad, 1, 8);
  EXPECT_EQ(u, (std::vector<double>{0, 1, 0, 0, 1, 1}));
  // k / 2 = 0.9: deviations 0.1, -0.9, -0.9, 0.1, 0.1; squares sum to 1.65; / 5 = 0.33.
  EXPECT_NEAR(R2Statistic(u, 1.8, 4), std::sqrt(0.33) / 4.0, 1e-12);
}

TEST(SizeChangeR2, TwoSequencesShareEachDifference) {
  const auto ad = test::SelectedAlignment({"ACGTAC", "ACTTGA"});
  const std::vector<double> u = SingletonsPerSequence(ad, 1, 6);
  EXPECT_EQ(u, (std::vector<double>{0, 1.5, 1.5}));
  EXPECT_EQ(R2Statistic(u, 3.0, 3), 0.0);
}

TEST(SizeChangeR2, ThreeSequencesShareTwoToOneSplitsInThirds) {
  // Sites 1 and 2 split 2 : 1 (a third to each sequence), site 3 has three singletons.
  const auto ad = test::SelectedAlignment({"AAA", "AGC", "GGT"});
  const std::vector<double> u = SingletonsPerSequence(ad, 1, 3);
  for (int s = 1; s <= 3; ++s) EXPECT_NEAR(u[static_cast<size_t>(s)], 5.0 / 3.0, 1e-12);
  // k = 2/3 + 2/3 + 1 = 7/3; U - k/2 = 1/2 for all three: Sqr(1/4) / S = 0.5 / 3.
  EXPECT_NEAR(R2Statistic(u, 7.0 / 3.0, 3), 0.5 / 3.0, 1e-12);
}

TEST(SizeChangeR2, FourSequencesShareTwoToTwoSplitsInQuarters) {
  // Site 1 splits 2 : 2 (a quarter each), site 2 has the singleton T of sequence 4.
  const auto ad = test::SelectedAlignment({"AA", "AA", "GA", "GT"});
  const std::vector<double> u = SingletonsPerSequence(ad, 1, 2);
  EXPECT_EQ(u, (std::vector<double>{0, 0.25, 0.25, 0.25, 1.25}));
  // k = 2/3 + 1/2 = 7/6: deviations -1/3 (three times) and 2/3; mean square 7/36.
  EXPECT_NEAR(R2Statistic(u, 7.0 / 6.0, 2), std::sqrt(7.0 / 36.0) / 2.0, 1e-12);
}

TEST(SizeChangeR2, NoSegregatingSiteGivesZero) {
  EXPECT_EQ(R2Statistic({0, 0, 0}, 0.0, 0), 0.0);
}

}  // namespace
}  // namespace ovelt
