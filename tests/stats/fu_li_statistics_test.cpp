#include "stats/fu_li_statistics.h"

#include <gtest/gtest.h>

#include <cmath>

#include "stats/harmonic.h"
#include "stats/tajima_d.h"

namespace ovelt {
namespace {

TEST(FuLiStarCoefficients, FourSequencesByHand) {
  // n = 4: a1 = 11/6, a2 = 49/36, a(5) = 25/12.
  // vF* = [(128 + 1760 - 1020 + 153) / 432 + 11/16 - 98/36] / (85/18) = (142/432) / (85/18)
  //     = 71/1020; uF* = [(64 + 76 + 3 - 125) / 36] / a1 - vF* = (1/2)(6/11) - 71/1020.
  // vD* = [(49/121) - (1/2)(1 + 6/11 - 11/6 + 11/24) - 1/16] / (85/18) = 2241/41140;
  // uD* = (3/4 - 6/11) / (11/6) - vD* = 2349/41140.
  const FuLiCoefficients c = FuLiStarCoefficients(4);
  EXPECT_NEAR(c.vF, 71.0 / 1020.0, 1e-15);
  EXPECT_NEAR(c.uF, 3.0 / 11.0 - 71.0 / 1020.0, 1e-15);
  EXPECT_NEAR(c.vD, 2241.0 / 41140.0, 1e-15);
  EXPECT_NEAR(c.uD, 2349.0 / 41140.0, 1e-15);
}

TEST(FuLiOutgroupCoefficients, FourSequencesByHand) {
  // n = 4: cn = 2 (4 * 11/6 - 6) / (2 * 3) = 4/9;
  // vD = 1 + (121/170)(4/9 - 5/3) = 199/1530; uD = 11/6 - 1 - vD = 538/765;
  // vF = (4/9 + 46/108 - 2/3) / (85/18) = 11/255;
  // uF = [1 + 5/9 - (20/9)(25/12 - 8/5)] / (11/6) - vF = 26/99 - 11/255.
  const FuLiCoefficients c = FuLiOutgroupCoefficients(4);
  EXPECT_NEAR(c.vD, 199.0 / 1530.0, 1e-15);
  EXPECT_NEAR(c.uD, 538.0 / 765.0, 1e-15);
  EXPECT_NEAR(c.vF, 11.0 / 255.0, 1e-15);
  EXPECT_NEAR(c.uF, 26.0 / 99.0 - 11.0 / 255.0, 1e-15);
}

// D* as Fu and Li (1993) and Simonsen, Churchill and Aquadro (1995) write it:
//   D* = (n/(n-1) Eta - a_n Eta_s) / sqrt(u Eta + v Eta^2),
//   v = [(n/(n-1))^2 b_n + a_n^2 d_n - 2 n a_n (a_n + 1) / (n-1)^2] / (a_n^2 + b_n),
//   u = n/(n-1) (a_n - n/(n-1)) - v,
//   d_n = c_n + (n-2)/(n-1)^2 + 2/(n-1) [3/2 - (2 a_{n+1} - 3)/(n-2) - 1/n],
//   c_n = 2 (n a_n - 2 (n-1)) / ((n-1)(n-2)).
double PublishedDStar(int n, double eta, double eta_s) {
  const double a = HarmonicA1Double(n), b = HarmonicA2Double(n), a_next = a + 1.0 / n;
  const double r = static_cast<double>(n) / (n - 1);
  const double cn = 2.0 * (n * a - 2.0 * (n - 1)) / ((n - 1.0) * (n - 2.0));
  const double dn = cn + (n - 2.0) / ((n - 1.0) * (n - 1.0)) +
                    2.0 / (n - 1.0) * (1.5 - (2.0 * a_next - 3.0) / (n - 2.0) - 1.0 / n);
  const double v =
      (r * r * b + a * a * dn - 2.0 * n * a * (a + 1.0) / ((n - 1.0) * (n - 1.0))) / (a * a + b);
  const double u = r * (a - r) - v;
  return (r * eta - a * eta_s) / std::sqrt(u * eta + v * eta * eta);
}

TEST(FuLiDStar, SameValueAsThePublishedForm) {
  for (const int n : {4, 5, 10, 30, 120}) {
    for (const auto& [eta, eta_s] : {std::pair{7.0, 6.0}, {20.0, 3.0}, {55.0, 30.0}}) {
      const FuLiCoefficients c = FuLiStarCoefficients(n);
      EXPECT_NEAR(FuLiDStarValue(eta, eta_s, c.a1, c.uD, c.vD, n), PublishedDStar(n, eta, eta_s),
                  1e-12)
          << "n " << n << " eta " << eta;
    }
  }
}

TEST(FuLiStar, FiveSequencesByHand) {
  // n = 5, Eta = 7, EtaS = 6, k = 2.9, with uD* = 4704/51875, vD* = 3264/51875,
  // uF* = 9664/51875, vF* = 856/10375 (from the constants above, in fractions):
  // D* = (7 * 12/25 - 6 * 4/5) / sqrt(7 uD* + 49 vD*) = -1.44 / 1.928193... = -0.7468200
  // F* = (2.9 - 4.8) / sqrt(7 uF* + 49 vF*) = -1.9 / 2.312306... = -0.8216833
  const FuLiCoefficients c = FuLiStarCoefficients(5);
  EXPECT_NEAR(c.uD, 4704.0 / 51875.0, 1e-15);
  EXPECT_NEAR(c.vD, 3264.0 / 51875.0, 1e-15);
  EXPECT_NEAR(c.uF, 9664.0 / 51875.0, 1e-15);
  EXPECT_NEAR(c.vF, 856.0 / 10375.0, 1e-15);
  const double d_star = -1.44 / std::sqrt(7.0 * 4704.0 / 51875.0 + 49.0 * 3264.0 / 51875.0);
  const double f_star = -1.9 / std::sqrt(7.0 * 9664.0 / 51875.0 + 49.0 * 856.0 / 10375.0);
  EXPECT_NEAR(FuLiDStarValue(7, 6, c.a1, c.uD, c.vD, 5), d_star, 1e-13);
  EXPECT_NEAR(FuLiFStarValue(2.9, 7, 6, c.uF, c.vF, 5), f_star, 1e-13);
  EXPECT_NEAR(d_star, -0.7468200, 1e-7);
  EXPECT_NEAR(f_star, -0.8216833, 1e-7);
  const FuLiPair pair = FuLiStarFromCounts(5, 7, 6, 2.9);
  EXPECT_NEAR(pair.D, d_star, 1e-13);
  EXPECT_NEAR(pair.F, f_star, 1e-13);
}

TEST(FuLiOutgroup, FiveSequencesByHand) {
  // n = 5: uD = 10871/11952, vD = 2077/11952, uF = 4757/20750, vF = 97/2075.
  // Eta = 6, EtaE = 5, k = 2.3:
  // D = (6 - 5 * 25/12) / sqrt(6 uD + 36 vD) = -1.2904881,
  // F = (2.3 - 5) / sqrt(6 uF + 36 vF) = -1.5438885.
  const FuLiCoefficients c = FuLiOutgroupCoefficients(5);
  EXPECT_NEAR(c.uD, 10871.0 / 11952.0, 1e-15);
  EXPECT_NEAR(c.vD, 2077.0 / 11952.0, 1e-15);
  EXPECT_NEAR(c.uF, 4757.0 / 20750.0, 1e-15);
  EXPECT_NEAR(c.vF, 97.0 / 2075.0, 1e-15);
  const double d =
      (6.0 - 5.0 * 25.0 / 12.0) / std::sqrt(6.0 * 10871.0 / 11952.0 + 36.0 * 2077.0 / 11952.0);
  const double f = (2.3 - 5.0) / std::sqrt(6.0 * 4757.0 / 20750.0 + 36.0 * 97.0 / 2075.0);
  EXPECT_NEAR(FuLiDValue(6, 5, c.a1, c.uD, c.vD), d, 1e-13);
  EXPECT_NEAR(FuLiFValue(2.3, 6, 5, c.uF, c.vF), f, 1e-13);
  EXPECT_NEAR(d, -1.2904881, 1e-7);
  EXPECT_NEAR(f, -1.5438885, 1e-7);
  const FuLiPair pair = FuLiOutgroupFromCounts(5, 6, 5, 2.3);
  EXPECT_NEAR(pair.D, d, 1e-13);
  EXPECT_NEAR(pair.F, f, 1e-13);
}

TEST(FuLiOutgroup, ThreeSequencesMakeDAndFOneStatistic) {
  // At n = 3, k - Eta(e) = (2/3)(Eta - 1.5 Eta(e)) and a1 = 1.5, so D and F take the same value
  // up to the ratio of their variance terms.
  const FuLiCoefficients c = FuLiOutgroupCoefficients(3);
  for (const auto& [eta, eta_e] : {std::pair{4.0, 1.0}, {9.0, 8.0}}) {
    // With only biallelic sites, each mutation carried by 1 or 2 of 3 sequences adds 2/3 to k.
    const double k = 2.0 / 3.0 * eta;
    const double d = FuLiDValue(eta, eta_e, c.a1, c.uD, c.vD);
    const double f = FuLiFValue(k, eta, eta_e, c.uF, c.vF);
    EXPECT_NEAR(f * std::sqrt(c.uF * eta + c.vF * eta * eta) * 1.5,
                d * std::sqrt(c.uD * eta + c.vD * eta * eta), 1e-12);
  }
}

TEST(FuLiStatistics, NoMutationIsNotDetermined) {
  const FuLiCoefficients c = FuLiStarCoefficients(8);
  EXPECT_TRUE(std::isnan(FuLiDStarValue(0, 0, c.a1, c.uD, c.vD, 8)));
  EXPECT_TRUE(std::isnan(FuLiFStarValue(0, 0, 0, c.uF, c.vF, 8)));
  EXPECT_TRUE(std::isnan(FuLiDValue(0, 0, c.a1, c.uD, c.vD)));
  EXPECT_TRUE(std::isnan(FuLiFValue(0, 0, 0, c.uF, c.vF)));
}

}  // namespace
}  // namespace ovelt
