#include <gtest/gtest.h>

#include <string>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::RunOvelt;
using testing::TempDir;

TEST(ToolCli, IndependencePrintsTheReport) {
  TempDir home;
  const auto r = RunOvelt({"independence", "3", "1", "1", "3"}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.err, "");
  // Worked by hand: Fisher 17/70 and 34/70; chi-square 2 with P = erfc(1).
  EXPECT_EQ(r.out.substr(0, 60),
            std::string(" ====== Input Tabla ======\n      3     1\n      1     3\n ======== ")
                .substr(0, 60));
  EXPECT_NE(r.out.find("One-tailed test, P-value: 0.242857  (not significant)\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find("Two-tailed test, P-value: 0.485714  (not significant)\n"),
            std::string::npos);
  EXPECT_NE(r.out.find("Chi-square value: 2.000      P-value: 0.15730  (not significant)\n"),
            std::string::npos);
  EXPECT_EQ(r.out.find('\r'), std::string::npos);
}

TEST(ToolCli, IndependenceRefusesABadTable) {
  TempDir home;
  const auto missing = RunOvelt({"independence", "3", "", "1", "3"}, home.Path().string());
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.err, " Invalid Selection :\nMissing data\n");
  EXPECT_EQ(missing.out, "");
  const auto negative = RunOvelt({"independence", "--", "3", "-1", "1", "3"}, home.Path().string());
  EXPECT_EQ(negative.status, 1);
  EXPECT_NE(negative.err.find("The minimum number of polymorphic sites or differences is 0"),
            std::string::npos)
      << negative.err;
  const auto empty = RunOvelt({"independence", "0", "5", "0", "5"}, home.Path().string());
  EXPECT_NE(empty.err.find("This table can not be computed"), std::string::npos);
}

TEST(ToolCli, IndependenceSavesAndAppendsToTheSession) {
  TempDir dir;
  const std::string out = dir.File("table.out");
  const std::string session = dir.File("session.out");
  const auto r = RunOvelt({"independence", "0", "5", "5", "0", "--out", out, "--session", session},
                          dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string saved = ReadBytes(out);
  EXPECT_NE(saved.find("Tests of Independence \r\n ---------------------\r\n"), std::string::npos)
      << saved;
  EXPECT_NE(saved.find("G value: 13.863      P-value: 0.00020***\r\n"), std::string::npos);
  const std::string log = ReadBytes(session);
  EXPECT_NE(log.find("Two-tailed test, P-value: 0.007937**\r\n"), std::string::npos) << log;
  EXPECT_NE(log.find(" Ovelt Session Terminated on  "), std::string::npos);
}

TEST(ToolCli, IndependenceJson) {
  TempDir home;
  const auto r =
      RunOvelt({"independence", "3", "1", "1", "3", "--json", "-"}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("\"chi_square\":{\"value\":2,"), std::string::npos) << r.out;
  EXPECT_EQ(r.out.find("Input Tabla"), std::string::npos);
}

TEST(ToolCli, BinomialByDirectProducts) {
  TempDir home;
  // C(5,2) 0.3^2 0.7^3 = 0.3087; 0.7^5 + 5 0.3 0.7^4 = 0.52822.
  const auto r = RunOvelt({"distributions", "binomial", "--p", "0,3", "--n", "5", "--k", "2"},
                          home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out,
            " ====== Input Data ======\n"
            " Value of p: 0.3\n"
            " Value of n: 5\n"
            " Value of k: 2\n"
            " ======== Output ========\n"
            " P [X = 2] = 0.308700\n"
            " P [X < 2] = 0.528220\n"
            " Expected value, E[X] = 1.500\n"
            " Variance, var [X] = 1.050   (SD = 1.025)\n");
}

TEST(ToolCli, TheOtherTabsAndTheAlias) {
  TempDir home;
  // C(4,1) C(6,2) / C(10,3) = 60 / 120.
  const auto h = RunOvelt({"distribution", "hypergeometric", "--population", "10", "--successes",
                           "4", "--n", "3", "--k", "1"},
                          home.Path().string());
  ASSERT_EQ(h.status, 0) << h.err;
  EXPECT_NE(h.out.find(" P [X = 1] = 0.500000\n"), std::string::npos) << h.out;
  // e^-2.5 2.5^3 / 3! = 0.213763.
  const auto p =
      RunOvelt({"distributions", "poisson", "--lambda", "2.5", "--k", "3"}, home.Path().string());
  ASSERT_EQ(p.status, 0) << p.err;
  EXPECT_NE(p.out.find(" P [X = 3] = 0.213763\n"), std::string::npos) << p.out;
}

TEST(ToolCli, EwensOfAHandWorkedSample) {
  TempDir home;
  // n = 3, theta = 1: P(K = 1, 2, 3) = 1/3, 1/2, 1/6; h = 2: S = 5/6, Fs = ln((2/3) / (1/3)).
  const auto r =
      RunOvelt({"distributions", "ewens", "--sample-size", "3", "--nhap", "2", "--theta", "1"},
               home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out,
            " ====== Input Data ======\n"
            " Sample Size: 3\n"
            " NHap, Number of Haplotypes: 2\n"
            " Value of Theta: 1\n"
            " ======== Output ========\n"
            " P [NHap = 2] = 0.5000\n"
            " Strobeck's S statistic: 0.8333   (P [NHap <= 2])\n"
            " Expected value, E[NHap] = 1.8333\n"
            " Fu's Fs statistic: 0.6931\n");
}

TEST(ToolCli, DistributionRefusalsUnderTheOveltTitle) {
  TempDir home;
  const auto p = RunOvelt({"distributions", "binomial", "--p", "1", "--n", "5", "--k", "2"},
                          home.Path().string());
  EXPECT_EQ(p.status, 1);
  EXPECT_EQ(p.err, "Ovelt:\nThe p-value must be lower than 1\n");
  const auto sample =
      RunOvelt({"distributions", "ewens", "--sample-size", "501"}, home.Path().string());
  EXPECT_EQ(sample.err, "Ovelt:\nThe sample size must be lower than 501\n");
  const auto none = RunOvelt({"distributions"}, home.Path().string());
  EXPECT_EQ(none.status, 2);
}

TEST(ToolCli, CalculatorKeys) {
  TempDir home;
  const auto r = RunOvelt({"calc", "2", "+", "3", "X", "4", "="}, home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "20.\n");
  EXPECT_EQ(RunOvelt({"calc", "10000000X10000="}, home.Path().string()).out, "100000000000.\n");
  EXPECT_EQ(RunOvelt({"calc", "11000000X10000="}, home.Path().string()).out, "1.100000E+11\n");
  EXPECT_EQ(RunOvelt({"calc", "1", "a1"}, home.Path().string()).out, "0.\n");
  EXPECT_EQ(RunOvelt({"calc", "--decimal-comma", "2,5", "X", "3", "="}, home.Path().string()).out,
            "7,5\n");
}

TEST(ToolCli, CalculatorSteps) {
  TempDir home;
  const auto r = RunOvelt({"calc", "--steps", "--", "-", "4", "sqrt", "CE", "9", "sqrt"},
                          home.Path().string());
  // The root of -4 is refused, the display stays, and the keys go on.
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "-\t-\n4\t-4.\nsqrt\t-4.\nCE\t0.\n9\t9.\nsqrt\t3.\n");
  EXPECT_EQ(r.err, "Ovelt:\nCan't compute Negative values\n");
  const auto failed = RunOvelt({"calc", "--", "-4", "sqrt"}, home.Path().string());
  EXPECT_EQ(failed.status, 1);
  EXPECT_EQ(failed.out, "-4.\n");
  EXPECT_EQ(failed.err, "Ovelt:\nCan't compute Negative values\n");
}

TEST(ToolCli, CalculatorFailures) {
  TempDir home;
  const auto divide = RunOvelt({"calc", "8/0="}, home.Path().string());
  EXPECT_EQ(divide.status, 1);
  EXPECT_EQ(divide.err, "Calculator:\nCan't divide by zero\n");
  const auto a1 = RunOvelt({"calc", "32768", "a1"}, home.Path().string());
  EXPECT_EQ(a1.err, "Ovelt:\nCan't compute values higher than 32767\n");
  EXPECT_EQ(a1.out, "32768.\n");
  const auto jc = RunOvelt({"calc", "0.75", "JC"}, home.Path().string());
  EXPECT_EQ(jc.err,
            "Ovelt:\nCan't compute Jukes and Cantor for values equal or higher than 0.75\n");
  EXPECT_EQ(RunOvelt({"calc", "0.7499", "JC"}, home.Path().string()).status, 0);
  const auto unknown = RunOvelt({"calc", "2", "pow", "3"}, home.Path().string());
  EXPECT_EQ(unknown.status, 2);
  EXPECT_NE(unknown.err.find("pow"), std::string::npos);
}

}  // namespace
}  // namespace ovelt
