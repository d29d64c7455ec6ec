#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::RunOvelt;
using testing::TempDir;

std::vector<std::string> Args(std::vector<std::string> extra) {
  std::vector<std::string> args = {"coalescent", "--n", "10", "--replicates", "300"};
  args.insert(args.end(), extra.begin(), extra.end());
  return args;
}

TEST(CoalescentCli, NeedsNoDataFileAndPrintsTheReport) {
  TempDir home;
  const auto r = RunOvelt(Args({"--theta", "12", "--seed", "1"}), home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.err, "");
  EXPECT_EQ(r.out.rfind(" ====== Input Data ======\n   Simulations given theta\n"
                        "   Value of Theta: 12.0000\n   Sample size: 10\n   No recombination\n"
                        "   Observed value of Tajima's D : 0.0000\n"
                        "   Confidence Interval: 95.000\n   Number of Replicates: 300\n"
                        "   Pseudorandom Number Seed: 1\n ====== Output ======\n\n",
                        0),
            0u)
      << r.out;
  EXPECT_NE(r.out.find("   Effective Number of Replicates: 300\n"), std::string::npos);
}

TEST(CoalescentCli, SameSeedSameReportAndSeedZeroIs111295) {
  TempDir home;
  const auto a = RunOvelt(Args({"--seed", "0", "--statistic", "pi"}), home.Path().string());
  const auto b = RunOvelt(Args({"--statistic", "pi"}), home.Path().string());
  const auto c = RunOvelt(Args({"--seed", "111295", "--statistic", "pi"}), home.Path().string());
  ASSERT_EQ(a.status, 0) << a.err;
  EXPECT_EQ(a.out, b.out);
  EXPECT_EQ(a.out, c.out);
  EXPECT_NE(a.out.find("Pseudorandom Number Seed: 111295\n"), std::string::npos);
}

TEST(CoalescentCli, ThreadsRepeatForASeedWhateverTheirNumber) {
  TempDir home;
  const auto two = RunOvelt({"coalescent", "--replicates", "2500", "--seed", "4", "--threads", "2"},
                            home.Path().string());
  const auto three = RunOvelt(
      {"coalescent", "--replicates", "2500", "--seed", "4", "--threads", "3"},
      home.Path().string());
  ASSERT_EQ(two.status, 0) << two.err;
  EXPECT_EQ(two.out, three.out);
}

TEST(CoalescentCli, SegregatingSitesRecombinationAndCommaDecimals) {
  TempDir home;
  const auto r = RunOvelt(Args({"--segsites", "15", "--statistic", "za", "--recombination",
                                "2,5", "--sites", "500", "--observed", "0,25"}),
                          home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("   Number of Segregating Sites: 15\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("   Recombination parameter: 2.5\n   Number of sites: 500\n"),
            std::string::npos);
  EXPECT_NE(r.out.find("   P [Za <= 0.2500]: "), std::string::npos);
}

TEST(CoalescentCli, RefusalsUseTheDialogsWords) {
  TempDir home;
  const auto r = RunOvelt(Args({"--theta", "0"}), home.Path().string());
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("Theta must be higher than 0"), std::string::npos) << r.err;
  EXPECT_EQ(r.out, "");
  const auto unknown = RunOvelt(Args({"--statistic", "nope"}), home.Path().string());
  EXPECT_EQ(unknown.status, 1);
  EXPECT_NE(unknown.err.find("Unknown statistic \"nope\"; the statistics are: hd, h, pi"),
            std::string::npos)
      << unknown.err;
}

TEST(CoalescentCli, TypingSegregatingSitesRunsWithThemInsteadOfTheta) {
  TempDir home;
  const auto both = RunOvelt(Args({"--theta", "3", "--segsites", "4"}), home.Path().string());
  ASSERT_EQ(both.status, 0) << both.err;
  EXPECT_NE(both.out.find("   Number of Segregating Sites: 4\n"), std::string::npos) << both.out;
}

TEST(CoalescentCli, JsonToStandardOutput) {
  TempDir home;
  const auto r = RunOvelt(Args({"--json", "-", "--statistic", "hd"}), home.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out.rfind("{\"analysis\":\"Coalescent Simulations\",\"theta\":12,", 0), 0u) << r.out;
  EXPECT_NE(r.out.find("\"statistic\":\"hd\""), std::string::npos);
  EXPECT_NE(r.out.find("\"effective_replicates\":300"), std::string::npos);
}

TEST(CoalescentCli, HelpSaysWhatThreadsDo) {
  TempDir home;
  const auto r = RunOvelt({"coalescent", "--help"}, home.Path().string());
  EXPECT_NE(r.out.find("--threads"), std::string::npos);
  EXPECT_NE(r.out.find("whatever N"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("differ from the run"), std::string::npos);
}

}  // namespace
}  // namespace ovelt
