#include "analyses/polymorphism/size_changes/raggedness_statistic.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/size_changes/mismatch_mae.h"
#include "polymorphism/size_change_fixture.h"

namespace ovelt {
namespace {

MismatchDistribution Distribution(std::vector<int64_t> counts) {
  MismatchDistribution m;
  m.Pairs = 0;
  for (const int64_t c : counts) m.Pairs += c;
  m.MaxDiff = static_cast<int32_t>(counts.size()) - 1;
  m.Mismatch = std::move(counts);
  return m;
}

TEST(Raggedness, HandWorkedAlignment) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  // Shares 0, 0.4, 0.4, 0.2 and 0 beyond: 0.4^2 + 0^2 + 0.2^2 + 0.2^2 = 0.24.
  EXPECT_NEAR(Raggedness(ComputeMismatch(ad, 1, 8)), 0.24, 1e-12);
}

TEST(Raggedness, SinglePeakAtZero) {
  // All pairs identical: x(0) = 1, then 0: (0 - 1)^2 = 1.
  EXPECT_DOUBLE_EQ(Raggedness(Distribution({6})), 1.0);
  // No pair at all.
  EXPECT_EQ(Raggedness(MismatchDistribution{}), 0.0);
}

TEST(MeanAbsoluteError, HandWorkedAlignment) {
  const auto ad = test::SelectedAlignment(test::kFiveSequences);
  // theta = k = 1.8: F(i) = 1.8^i / 2.8^(i + 1).
  const double f0 = 1.0 / 2.8, f1 = 1.8 / (2.8 * 2.8), f2 = 1.8 * 1.8 / std::pow(2.8, 3);
  const double expected = f0 + std::fabs(0.4 - f1) + std::fabs(0.4 - f2) +
                          std::fabs(0.2 - (1.0 - f0 - f1 - f2));
  EXPECT_NEAR(expected, 0.845627, 1e-6);
  EXPECT_NEAR(MeanAbsoluteError(ComputeMismatch(ad, 1, 8), 1.8), expected, 1e-12);
}

TEST(MeanAbsoluteError, ExactGeometricFitLeavesOnlyTheTail) {
  // Shares 1/2, 1/4, 1/4 against theta = 1 (F = 1/2, 1/4, 1/8, ...): the first two classes fit
  // and the last one takes the tail 1 - 1/2 - 1/4 = 1/4, so the error is 0.
  EXPECT_NEAR(MeanAbsoluteError(Distribution({2, 1, 1}), 1.0), 0.0, 1e-15);
}

}  // namespace
}  // namespace ovelt
