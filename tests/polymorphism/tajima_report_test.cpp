#include "analyses/polymorphism/neutrality/tajima_report.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/polymorphism/neutrality/neutrality_significance.h"
#include "analyses/polymorphism/neutrality/tajima_compute.h"
#include "neutrality_fixture.h"

namespace ovelt {
namespace {

using test::NeutralityRows;

TEST(TajimaTest, FiveSequencesCountingSites) {
  // S = 6, k = 2.9, a1 = 25/12: Theta-W = 2.88 per sequence, 0.288 per site;
  // D = (2.9 - 2.88) / sqrt(6 e1 + 30 e2) = 0.0477307 (e1 = 6/625, e2 = 2448/622500).
  const auto ad = test::SelectedAlignment(NeutralityRows());
  const TajimaTestResult r = ComputeTajimaTest(ad, 1, 10, false, std::nullopt);
  EXPECT_EQ(r.Sequences, 5);
  EXPECT_EQ(r.Segregating, 6);
  ASSERT_TRUE(r.D.has_value());
  EXPECT_EQ(r.Mark, "");
  EXPECT_NEAR(*r.D, 0.02 / std::sqrt(6.0 * 6.0 / 625.0 + 30.0 * 2448.0 / 622500.0), 1e-12);
  EXPECT_EQ(TajimaReportBody(r),
            " Number of polymorphic (segregating) sites, S: 6\r\n"
            " Total number of mutations, Eta: 7\r\n"
            " Average number of nucleotide differences, k: 2.90000\r\n"
            "    Nucleotide diversity, Pi: 0.29000\r\n"
            " Theta (per sequence) from S, Theta-W: 2.88000\r\n"
            "    Theta (per site) from S, Theta-W: 0.28800\r\n"
            "\r\n"
            " Tajima's D: 0.04773\r\n"
            "     Statistical significance: Not significant, P > 0.10\r\n"
            "\r\n"
            " Calculation using the total number of segregating sites\r\n");
}

TEST(TajimaTest, FiveSequencesCountingMutations) {
  // S := Int(Eta) = 7: Theta = 7 * 12/25 = 3.36, per site 0.336;
  // D = (2.9 - 3.36) / sqrt(7 e1 + 42 e2) = -0.46 / 0.4820436 = -0.9542700.
  const auto ad = test::SelectedAlignment(NeutralityRows());
  const TajimaTestResult r = ComputeTajimaTest(ad, 1, 10, true, std::nullopt);
  EXPECT_EQ(r.Segregating, 7);
  ASSERT_TRUE(r.D.has_value());
  EXPECT_NEAR(*r.D, -0.46 / std::sqrt(7.0 * 6.0 / 625.0 + 42.0 * 2448.0 / 622500.0), 1e-12);
  const std::string body = TajimaReportBody(r);
  EXPECT_NE(body.find(" Theta (per sequence) from Eta: 3.36000\r\n"
                      "    Theta (per site) from Eta: 0.33600\r\n"),
            std::string::npos);
  EXPECT_NE(body.find(" Tajima's D: -0.95427\r\n"), std::string::npos);
  EXPECT_NE(body.find(" Calculation using the total number of mutations\r\n"), std::string::npos);
}

TEST(TajimaTest, ThreeSequencesPrintDAndNotDetermined) {
  // n = 3, one singleton site: k = 2/3, a1 = 1.5, S / a1 = 2/3, D = 0 exactly enough to print
  // 0.00000; the table has no row for three sequences.
  const auto ad = test::SelectedAlignment({"AC", "AC", "AG"});
  const TajimaTestResult r = ComputeTajimaTest(ad, 1, 2, false, std::nullopt);
  ASSERT_TRUE(r.D.has_value());
  EXPECT_EQ(r.Mark, "n.d.");  // no row of critical values for three sequences
  const std::string body = TajimaReportBody(r);
  EXPECT_NE(body.find(" Tajima's D: "), std::string::npos);
  EXPECT_NE(body.find("     Statistical significance: Not determined\r\n"), std::string::npos);
}

// A result holding D for n sequences, marked as the computation marks it.
TajimaTestResult WithD(double d, int n) {
  TajimaTestResult r;
  r.Sequences = n;
  r.D = d;
  r.Mark = SignificanceTajima(d, n);
  return r;
}

TEST(TajimaTest, SignificantValueInWords) {
  // Beyond the 0.1 % bound of n = 10 (-2.105).
  EXPECT_NE(
      TajimaReportBody(WithD(-2.2, 10)).find("     Statistical significance: ***, P < 0.001\r\n"),
      std::string::npos);
  // Beyond the 5 % bound (1.975), short of the 1 % (2.362).
  EXPECT_NE(TajimaReportBody(WithD(2.0, 10)).find("     Statistical significance: *, P < 0.05\r\n"),
            std::string::npos);
  // 1300 sequences lie beyond the table; 1100 take the row of 1000 (0.1 %: -2.369).
  EXPECT_NE(
      TajimaReportBody(WithD(-2.4, 1300)).find("     Statistical significance: Not determined\r\n"),
      std::string::npos);
  EXPECT_NE(
      TajimaReportBody(WithD(-2.4, 1100)).find("     Statistical significance: ***, P < 0.001\r\n"),
      std::string::npos);
}

TEST(TajimaTest, NoSegregatingSitesPrintsNoD) {
  const auto ad = test::SelectedAlignment({"ACGT", "ACGT", "ACGT", "ACGT"});
  const TajimaTestResult r = ComputeTajimaTest(ad, 1, 4, false, std::nullopt);
  EXPECT_FALSE(r.D.has_value());
  EXPECT_EQ(r.Mark, "n.d.");
  const std::string body = TajimaReportBody(r);
  EXPECT_EQ(body.find("Tajima's D"), std::string::npos);
  EXPECT_EQ(body.find("Calculation"), std::string::npos);
  EXPECT_NE(body.find(" Number of polymorphic (segregating) sites, S: 0\r\n"), std::string::npos);
}

}  // namespace
}  // namespace ovelt
