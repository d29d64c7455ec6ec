#include "stats/linkage_summary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "binary_matrix_fixture.h"
#include "stats/stats_error.h"

namespace ovelt {
namespace {

using test::BinaryMatrix;

// r^2 = D^2 / (pA qA pB qB) from the 2 x 2 table of the raw values, D = p11 - pA pB; 0 when a
// column does not vary.
double TextbookR2(const BinaryMatrix& m, int32_t a, int32_t b) {
  double n11 = 0.0, n1x = 0.0, nx1 = 0.0;
  for (int32_t r = 0; r < m.Rows(); ++r) {
    n11 += m.Get(r, a) * m.Get(r, b);
    n1x += m.Get(r, a);
    nx1 += m.Get(r, b);
  }
  const double n = m.Rows();
  const double pa = n1x / n, pb = nx1 / n;
  const double d = n11 / n - pa * pb;
  const double spread = pa * (1 - pa) * pb * (1 - pb);
  return spread > 0.0 ? d * d / spread : 0.0;
}

LinkageSummary PlainLinkage(const BinaryMatrix& m) {
  const int32_t s = m.Columns();
  double all = 0.0, adjacent = 0.0;
  for (int32_t a = 0; a < s; ++a)
    for (int32_t b = a + 1; b < s; ++b) {
      const double r2 = TextbookR2(m, a, b);
      all += r2;
      if (b == a + 1) adjacent += r2;
    }
  const double zns = all / (s * (s - 1) / 2.0);
  const double za = adjacent / (s - 1);
  return {zns, za, za - zns};
}

// The means of R^2 from DisequilibriumFromCounts on counts taken one sequence at a time, the
// major allele first, pairs in scan order.
LinkageSummary ThroughPairCounts(const BinaryMatrix& m, const std::vector<int16_t>& flip) {
  const int32_t s = m.Columns();
  double all = 0.0, adjacent = 0.0;
  for (int32_t a = 0; a < s; ++a)
    for (int32_t b = a + 1; b < s; ++b) {
      HaplotypePairCounts h;
      for (int32_t r = 0; r < m.Rows(); ++r) {
        const bool major_a = m.Get(r, a) == flip[static_cast<std::size_t>(a)];
        const bool major_b = m.Get(r, b) == flip[static_cast<std::size_t>(b)];
        if (major_a && major_b) ++h.h11;
        if (major_a && !major_b) ++h.h12;
        if (!major_a && major_b) ++h.h21;
        if (!major_a && !major_b) ++h.h22;
      }
      const double r = DisequilibriumFromCounts(h, m.Rows()).R;
      all += r * r;
      if (b == a + 1) adjacent += r * r;
    }
  const double zns = all / (static_cast<double>(s) * (s - 1) / 2.0);
  const double za = adjacent / (s - 1);
  return {zns, za, za - zns};
}

TEST(DisequilibriumFromCounts, HandWorked) {
  // h11 3, h12 1, h21 0, h22 1 of n = 5: D = 3 / 25; pA qA pB qB = 0.8 0.2 0.6 0.4 = 0.0384.
  const PairDisequilibrium p = DisequilibriumFromCounts({3, 1, 0, 1}, 5);
  EXPECT_NEAR(p.D, 0.12, 1e-15);
  EXPECT_NEAR(p.R, 0.12 / std::sqrt(0.0384), 1e-12);
  EXPECT_NEAR(p.R * p.R, 0.375, 1e-12);
}

TEST(DisequilibriumFromCounts, OtherAlleleFirstChangesTheSignOnly) {
  // Site B read minor first: h11 <-> h12 and h21 <-> h22.
  const PairDisequilibrium p = DisequilibriumFromCounts({3, 1, 0, 1}, 5);
  const PairDisequilibrium q = DisequilibriumFromCounts({1, 3, 1, 0}, 5);
  EXPECT_NEAR(q.D, -p.D, 1e-15);
  EXPECT_NEAR(q.R, -p.R, 1e-12);
}

TEST(DisequilibriumFromCounts, MonomorphicSiteGivesZero) {
  const PairDisequilibrium p = DisequilibriumFromCounts({2, 2, 0, 0}, 4);
  EXPECT_EQ(p.D, 0.0);
  EXPECT_EQ(p.R, 0.0);
  EXPECT_EQ(DisequilibriumFromCounts({}, 0).R, 0.0);
}

TEST(LinkageFromColumns, HandWorked) {
  // Columns 1100, 1000, 0011. Pair (0, 1): p11 = 1/4, pA = 1/2, pB = 1/4, D = 1/8,
  // r^2 = (1/64) / (1/4 x 3/16) = 1/3. Pair (0, 2): complementary, r^2 = 1. Pair (1, 2):
  // p11 = 0, D = -1/8, r^2 = 1/3. ZnS = (5/3) / 3, Za = (2/3) / 2.
  const BinaryMatrix m = BinaryMatrix::FromRows({"110", "100", "001", "001"});
  for (int32_t a = 0; a < 3; ++a)
    for (int32_t b = a + 1; b < 3; ++b)
      EXPECT_NEAR(TextbookR2(m, a, b), (a == 0 && b == 2) ? 1.0 : 1.0 / 3.0, 1e-12);
  const LinkageSummary z = LinkageFromColumns(m.View(), m.MajorFlip());
  EXPECT_NEAR(z.ZnS.value(), 5.0 / 9.0, 1e-12);
  EXPECT_NEAR(z.Za.value(), 1.0 / 3.0, 1e-12);
  EXPECT_NEAR(z.ZZ.value(), 1.0 / 3.0 - 5.0 / 9.0, 1e-12);
}

TEST(LinkageFromColumns, OrientationDoesNotChangeRSquared) {
  const BinaryMatrix m = BinaryMatrix::FromRows({"1011", "1001", "0011", "0100", "1111"});
  const LinkageSummary by_major = LinkageFromColumns(m.View(), m.MajorFlip());
  const LinkageSummary all_flipped = LinkageFromColumns(m.View(), {1, 1, 1, 1});
  EXPECT_NEAR(by_major.ZnS.value(), all_flipped.ZnS.value(), 1e-12);
  EXPECT_NEAR(by_major.Za.value(), all_flipped.Za.value(), 1e-12);
}

TEST(LinkageFromColumns, MonomorphicColumnCountsWithZero) {
  // One pair, with a column that does not vary: its R^2 is 0 and it still counts.
  const BinaryMatrix m = BinaryMatrix::FromRows({"10", "10", "00", "00"});
  const LinkageSummary z = LinkageFromColumns(m.View(), m.MajorFlip());
  EXPECT_EQ(z.ZnS.value(), 0.0);
  EXPECT_EQ(z.Za.value(), 0.0);
  EXPECT_EQ(z.ZZ.value(), 0.0);
}

TEST(LinkageFromColumns, FewerThanTwoColumnsDetermineNothing) {
  const BinaryMatrix none(4, 0);
  const BinaryMatrix one = BinaryMatrix::FromRows({"1", "0", "0"});
  for (const BinaryMatrix* m : {&none, &one}) {
    const LinkageSummary z = LinkageFromColumns(m->View(), m->MajorFlip());
    EXPECT_FALSE(z.ZnS);
    EXPECT_FALSE(z.Za);
    EXPECT_FALSE(z.ZZ);
  }
}

TEST(LinkageFromColumns, FlagsMustMatchTheColumns) {
  const BinaryMatrix m = BinaryMatrix::FromRows({"10", "01", "00"});
  EXPECT_THROW((void)LinkageFromColumns(m.View(), {0}), StatsError);
}

TEST(LinkageFromColumns, RandomMatricesAgreeWithThePlainSums) {
  std::mt19937 rng(20260521);
  // Sizes on both sides of the 64-sequence words.
  for (const int32_t n : {2, 5, 63, 64, 65, 130, 500}) {
    for (const int32_t s : {2, 3, 17}) {
      for (const double ones : {0.1, 0.5, 0.8}) {
        const BinaryMatrix m = BinaryMatrix::Random(n, s, ones, rng);
        const LinkageSummary expected = PlainLinkage(m);
        const LinkageSummary z = LinkageFromColumns(m.View(), m.MajorFlip());
        EXPECT_NEAR(z.ZnS.value(), expected.ZnS.value(), 1e-12) << n << " x " << s;
        EXPECT_NEAR(z.Za.value(), expected.Za.value(), 1e-12) << n << " x " << s;
        EXPECT_NEAR(z.ZZ.value(), expected.ZZ.value(), 1e-12) << n << " x " << s;
        // The packed counts go through the very steps of DisequilibriumFromCounts.
        const LinkageSummary same = ThroughPairCounts(m, m.MajorFlip());
        EXPECT_EQ(z.ZnS.value(), same.ZnS.value()) << n << " x " << s;
        EXPECT_EQ(z.Za.value(), same.Za.value()) << n << " x " << s;
      }
    }
  }
}

}  // namespace
}  // namespace ovelt
