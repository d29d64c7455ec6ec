#include "analyses/polymorphism/size_changes/size_change_frequencies.h"

#include <gtest/gtest.h>

#include "analyses/polymorphism/size_changes/size_change_segregating.h"
#include "polymorphism/size_change_fixture.h"

namespace ovelt {
namespace {

TEST(ObservedFoldedSpectrum, FiveSequencesByHand) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  // Singletons at sites 1, 2 and 5; the 2 : 3 site 4 counts at i = 2.
  EXPECT_EQ(ObservedFoldedSpectrum(ad, 1, 8), (std::vector<double>{0, 3, 1}));
}

TEST(ObservedFoldedSpectrum, EachMinorNucleotideCounts) {
  // Site 1: A A A C G T -> C, G, T once each; site 2: A A C C C C -> i = 2.
  const auto ad = test::SelectedAlignment({"AA", "AA", "AC", "CC", "GC", "TC"});
  EXPECT_EQ(ObservedFoldedSpectrum(ad, 1, 2), (std::vector<double>{0, 3, 1, 0}));
}

TEST(ExpectedSpectrum, ConstantSizeIsThetaOverI) {
  const std::vector<double> xi = ExpectedSpectrum(6, 3.0, 3.0, 1.0);
  for (int i = 1; i < 6; ++i) EXPECT_NEAR(xi[static_cast<size_t>(i)], 3.0 / i, 1e-12);
}

TEST(ExpectedSpectrum, SwappedThetasAddUpToTheConstantSpectrum) {
  // W(k) is linear in the two thetas, and the weights of theta0 and theta1 add up to those of a
  // constant population: xi(a, b) + xi(b, a) = (a + b) / i. This checks the probabilities
  // C(n - i - 1, k - 2) / C(n - 1, k - 1) of the branch-length route against Fu's theta / i.
  for (const double t : {0.02, 0.3, 1.5}) {
    const std::vector<double> ab = ExpectedSpectrum(9, 2.0, 7.0, t);
    const std::vector<double> ba = ExpectedSpectrum(9, 7.0, 2.0, t);
    for (int i = 1; i < 9; ++i)
      EXPECT_NEAR(ab[static_cast<size_t>(i)] + ba[static_cast<size_t>(i)], 9.0 / i, 1e-10);
  }
}

TEST(ExpectedSpectrum, SumsToSnOfTheSameChange) {
  for (const int n : {4, 15, 60}) {
    for (const double t : {0.05, 0.5, 2.0}) {
      const std::vector<double> xi = ExpectedSpectrum(n, 1.0, 30.0, t);
      double total = 0.0;
      for (int i = 1; i < n; ++i) total += xi[static_cast<size_t>(i)];
      EXPECT_NEAR(total, ExpectedSegregatingSites(n, 1.0, 30.0, t), 1e-8 * total)
          << "n " << n << " t " << t;
    }
  }
}

TEST(ExpectedSpectrum, GrowthExcessOfRareVariants) {
  // After an expansion the singletons are in excess over theta / i scaled to the same total.
  const int n = 10;
  const std::vector<double> xi = ExpectedSpectrum(n, 1.0, 50.0, 0.1);
  EXPECT_GT(xi[1] / xi[2], 2.0);
}

TEST(FoldSpectrum, TajimasFoldedForm) {
  // theta (1 / i + 1 / (n - i)), the middle class taken once.
  const int n = 6;
  const std::vector<double> folded = FoldSpectrum(ExpectedSpectrum(n, 1.0, 1.0, 0.0), n);
  ASSERT_EQ(folded.size(), 4u);
  EXPECT_NEAR(folded[1], 1.0 + 1.0 / 5, 1e-12);
  EXPECT_NEAR(folded[2], 0.5 + 0.25, 1e-12);
  EXPECT_NEAR(folded[3], 1.0 / 3, 1e-12);
}

TEST(SpectrumShares, DivideByTheTotal) {
  EXPECT_EQ(SpectrumShares({0, 3, 1}), (std::vector<double>{0, 0.75, 0.25}));
  EXPECT_EQ(SpectrumShares({0, 0, 0}), (std::vector<double>{0, 0, 0}));
}

}  // namespace
}  // namespace ovelt
