// Linkage disequilibrium of a 4-site, 6-sequence alignment worked by hand.
//
//        site 1  2  3  4
//   s1        A  A  C  G
//   s2        A  A  C  A
//   s3        A  G  T  A
//   s4        G  G  T  A
//   s5        G  A  C  G
//   s6        G  G  T  A
//
// Position 1 of each site (the more frequent nucleotide, sequence 1's at a tie): site 1 A
// (3:3, tie), site 2 A (3:3), site 3 C (3:3), site 4 A (4:2, sequence 1 carries the rarer G).
// Carriers of position 1 (s1..s6):
//   site 1: 1 1 1 0 0 0    site 2: 1 1 0 0 1 0    site 3: 1 1 0 0 1 0    site 4: 0 1 1 1 0 1
//
// Counts (h11, h12, h21, h22) and, with n = 6, D = (h11 h22 - h12 h21) / 36,
// pA = (h11 + h12) / 6, pB = (h11 + h21) / 6:
//   (1,2): (2,1,1,2)  D = 3/36 = 1/12   pA = pB = 1/2   Dmax = min(qB pA, qA pB) = 1/4
//          D' = 1/3   R^2 = (1/144) / (1/16) = 1/9
//   (1,3): the same as (1,2): D = 1/12, D' = 1/3, R^2 = 1/9
//   (1,4): (2,1,2,1)  D = (2 - 2)/36 = 0: D' = 0, R^2 = 0
//   (2,3): (3,0,0,3)  D = 9/36 = 1/4   Dmax = 1/4   D' = 1   R^2 = (1/16)/(1/16) = 1
//   (2,4): (1,2,3,0)  D = -6/36 = -1/6   pA = 1/2, pB = 2/3; D < 0: Dmax = min(pA pB, qA qB)
//          = min(1/3, 1/6) = 1/6   D' = -1   R^2 = (1/36) / (1/2 1/2 2/3 1/3) = 1/2, R < 0
//   (3,4): the same as (2,4): D = -1/6, D' = -1, R^2 = 1/2
// ZnS = (1/9 + 1/9 + 0 + 1 + 1/2 + 1/2) / 6 = (20/9) / 6 = 10/27
// Za = (R^2(1,2) + R^2(2,3) + R^2(3,4)) / 3 = (1/9 + 1 + 1/2) / 3 = 29/54; ZZ = Za - ZnS = 1/6
// Wall: (1,2) shows 4 haplotypes, (2,3) 2 (congruent: B' = 1, a run opens), (3,4) 3 (the run
// closes: A' = 1). B = 1/3, Q = (1 + 1)/4 = 1/2.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "analyses/linkage/linkage_compute.h"
#include "analyses/linkage/linkage_report.h"
#include "core/alignment_fixture.h"

namespace ovelt {
namespace {

const std::vector<std::string> kRows = {"AACG", "AACA", "AGTA", "GGTA", "GACG", "GGTA"};

LinkageResult RunHand(const LinkageOptions& options = {}) {
  const test::OwnedSelection sel = test::SelectedFrom(test::MakeAlignment(kRows));
  return ComputeLinkage(sel, options);
}

struct Expected {
  int site1, site2, dist;
  double d, d_prime, r2;
  int r_sign;
};

TEST(LinkageByHand, PairsCarryTheHandWorkedMeasures) {
  const LinkageResult r = RunHand();
  ASSERT_EQ(r.SitesAnalysed, 4);
  ASSERT_EQ(r.PairCount, 6);
  const std::vector<Expected> expected = {
      {1, 2, 1, 1.0 / 12, 1.0 / 3, 1.0 / 9, 1},  {1, 3, 2, 1.0 / 12, 1.0 / 3, 1.0 / 9, 1},
      {1, 4, 3, 0.0, 0.0, 0.0, 0},               {2, 3, 1, 0.25, 1.0, 1.0, 1},
      {2, 4, 2, -1.0 / 6, -1.0, 0.5, -1},        {3, 4, 1, -1.0 / 6, -1.0, 0.5, -1}};
  ASSERT_EQ(r.Pairs().size(), expected.size());
  for (size_t i = 0; i < expected.size(); ++i) {
    const LinkagePairRow& p = r.Pairs()[i];
    const Expected& e = expected[i];
    SCOPED_TRACE(i);
    EXPECT_EQ(p.Site1, e.site1);
    EXPECT_EQ(p.Site2, e.site2);
    EXPECT_EQ(p.Dist, e.dist);
    EXPECT_NEAR(p.D, e.d, 1e-15);
    EXPECT_NEAR(p.DPrime, e.d_prime, 1e-14);
    EXPECT_NEAR(p.R2, e.r2, 1e-14);
    EXPECT_NEAR(p.R, e.r_sign * std::sqrt(e.r2), 1e-14);
  }
}

TEST(LinkageByHand, SummariesAreTheHandWorkedFractions) {
  const LinkageSummaries z = RunHand().Summaries;
  EXPECT_NEAR(z.ZnS, 10.0 / 27, 1e-15);
  EXPECT_NEAR(z.Za, 29.0 / 54, 1e-15);
  EXPECT_NEAR(z.ZZ, 1.0 / 6, 1e-15);
  EXPECT_NEAR(z.WallB, 1.0 / 3, 1e-15);
  EXPECT_NEAR(z.WallQ, 0.5, 1e-15);
}

// Least squares of y on x by the normal equations, written out for the test.
void Fit(const std::vector<double>& x, const std::vector<double>& y, double& a, double& b) {
  const double m = static_cast<double>(x.size());
  double sx = 0, sy = 0, sxx = 0, sxy = 0;
  for (size_t i = 0; i < x.size(); ++i) {
    sx += x[i];
    sy += y[i];
    sxx += x[i] * x[i];
    sxy += x[i] * y[i];
  }
  b = (m * sxy - sx * sy) / (m * sxx - sx * sx);
  a = (sy - b * sx) / m;
}

TEST(LinkageByHand, RegressionsOnTheDistanceInKilobases) {
  const LinkageResult r = RunHand();
  // X = 1, 2, 3, 1, 2, 1 bp in kb.
  const std::vector<double> x = {0.001, 0.002, 0.003, 0.001, 0.002, 0.001};
  const std::vector<double> abs_d = {1.0 / 12, 1.0 / 12, 0.0, 0.25, 1.0 / 6, 1.0 / 6};
  const std::vector<double> abs_dp = {1.0 / 3, 1.0 / 3, 0.0, 1.0, 1.0, 1.0};
  const std::vector<double> r2 = {1.0 / 9, 1.0 / 9, 0.0, 1.0, 0.5, 0.5};
  // |D'|*: the pairs whose |D'| is not 1, (1,2), (1,3), (1,4).
  const std::vector<double> star_x = {0.001, 0.002, 0.003};
  const std::vector<double> star_y = {1.0 / 3, 1.0 / 3, 0.0};
  const std::vector<std::pair<std::vector<double>, std::vector<double>>> sets = {
      {x, abs_d}, {x, abs_dp}, {star_x, star_y}, {x, r2}};
  ASSERT_EQ(r.Regressions.size(), 4u);
  for (size_t i = 0; i < sets.size(); ++i) {
    SCOPED_TRACE(i);
    double a = 0, b = 0;
    Fit(sets[i].first, sets[i].second, a, b);
    EXPECT_EQ(r.Regressions[i].Points, static_cast<int32_t>(sets[i].first.size()));
    ASSERT_TRUE(r.Regressions[i].Intercept.has_value());
    EXPECT_NEAR(*r.Regressions[i].Intercept, a, 1e-9);
    EXPECT_NEAR(*r.Regressions[i].Slope, b, 1e-6);
  }
  // |D'|* by hand: x in bp 1, 2, 3 against 1/3, 1/3, 0: b = -1/6 per bp = -166.67 per kb,
  // a = 2/9 + 2 / 6 = 5/9.
  EXPECT_NEAR(*r.Regressions[2].Slope, -1000.0 / 6, 1e-9);
  EXPECT_NEAR(*r.Regressions[2].Intercept, 5.0 / 9, 1e-12);
}

TEST(LinkageByHand, ReportLinesInTheirOrder) {
  LinkageOptions options;
  options.Fisher = true;
  options.ChiSquare = true;
  const std::string body = LinkageReportBody(RunHand(options));
  const std::vector<std::string> lines = {
      " Number of polymorphic sites analyzed: 4\r\n",
      " Only Parsimony Informative Polymorphic sites were considered\r\n",
      " Number of pairwise comparisons: 6\r\n",
      " Number of significant pairwise comparisons by Fisher's exact test: ",
      "    Number of significant comparisons using the Bonferroni procedure: ",
      " Number of significant pairwise comparisons by chi-square test: ",
      " Value of ZnS (Kelly 1997): 0.3704\r\n",
      " Value of Za (Valdor et al. 2001): 0.5370\r\n",
      " Value of ZZ (Valdor et al. 2001): 0.1667\r\n",
      " Value of Wall's B: 0.3333\r\n",
      " Value of Wall's Q: 0.5000\r\n",
      " Table.   * 0.01<P<0.05;  ** 0.001<P<0.01;  *** P<0.001\r\n",
      "     B, significant by the Bonferroni procedure\r\n",
      " ===== Regression Equation:  Y = a + bX  (X measured in kb) =====\r\n",
      "  |D| values:  Y = ",
      "  |D'| values:  Y = ",
      "  |D'|* values:  Y = 0.5556 - 166.6667X   (3 points)\r\n",
      "  r^2 values:  Y = "};
  size_t at = 0;
  for (const std::string& line : lines) {
    const size_t found = body.find(line, at);
    ASSERT_NE(found, std::string::npos) << "missing or out of order: " << line << "\n" << body;
    at = found + line.size();
  }
}

TEST(LinkageByHand, ChiSquareOfEachPairIsThePearsonValue) {
  LinkageOptions options;
  options.ChiSquare = true;
  const LinkageResult r = RunHand(options);
  // n (ad - bc)^2 / margins: (1,2) 6 9 / 81 = 2/3; (1,4) 0; (2,3) 6 81 / 81 = 6;
  // (2,4) 6 36 / (3 3 4 2) = 3.
  EXPECT_NEAR(r.Pairs()[0].ChiSquare, 2.0 / 3, 1e-12);
  EXPECT_NEAR(r.Pairs()[2].ChiSquare, 0.0, 1e-12);
  EXPECT_NEAR(r.Pairs()[3].ChiSquare, 6.0, 1e-12);
  EXPECT_NEAR(r.Pairs()[4].ChiSquare, 3.0, 1e-12);
  // Only (2,3) is above 3.84145; alpha' for 6 pairs is 1 - 0.95^(1/6) = 0.008512, between 0.005
  // and 0.01: bracket 6.635 .. 7.879, and 6 is below it.
  EXPECT_EQ(r.ChiSquareSignificant, 1);
  EXPECT_EQ(r.ChiSquareBonferroni, 0);
  EXPECT_EQ(r.Pairs()[3].ChiSquareStars, 1);
  EXPECT_NEAR(r.BonferroniAlpha, 1 - std::pow(0.95, 1.0 / 6), 1e-15);
}

TEST(LinkageByHand, FisherOfThePerfectPair) {
  LinkageOptions options;
  options.Fisher = true;
  const LinkageResult r = RunHand(options);
  // (2,3) = (3,0,0,3): the observed table is the most extreme of its margins, P1 = 1/C(6,3) =
  // 1/20; the other extreme (0,3,3,0) has the same 1/20, which does not exceed P1: P = 1/10.
  EXPECT_NEAR(r.Pairs()[3].FisherP, 0.1, 1e-7);
  EXPECT_EQ(r.Pairs()[3].FisherStars, 0);
  EXPECT_EQ(r.FisherSignificant, 0);
}

}  // namespace
}  // namespace ovelt
