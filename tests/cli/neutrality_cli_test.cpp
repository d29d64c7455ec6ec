#include <gtest/gtest.h>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"
#include "support/tsv_reader.h"

namespace ovelt {
namespace {

using testing::ReadBytes;
using testing::RunOvelt;
using testing::TempDir;
using testing::TsvTable;

// Five sequences worked by hand in the neutrality tests (S = 6, Eta = 7, k = 2.9), and an
// outgroup as a sixth sequence (L = 9 with it, site 9 ambiguous).
const char* const kFive =
    ">s1\nAACGTTACGA\n>s2\nAACGTAACAA\n>s3\nATCGTAACGC\n>s4\nGACGTAACAA\n>s5\nAACCTAACGT\n";
const char* const kSix =
    ">s1\nAACGTTACGA\n>s2\nAACGTAACAA\n>s3\nATCGTAACGC\n>s4\nGACGTAACAA\n>s5\nAACCTAACGT\n"
    ">out\nATCGGA-CCA\n";

TEST(NeutralityCli, TajimaPrintsTheReport) {
  TempDir dir;
  const std::string file = dir.Write("five.fas", kFive);
  const auto r = RunOvelt({"tajima", file}, dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Tajima's D: 0.04773\n"
                       "     Statistical significance: Not significant, P > 0.10\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find(" Calculation using the total number of segregating sites\n"),
            std::string::npos);
}

TEST(NeutralityCli, TajimaCountingMutations) {
  TempDir dir;
  const std::string file = dir.Write("five.fas", kFive);
  const auto r = RunOvelt({"tajima", file, "--use-mutations"}, dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Tajima's D: -0.95427\n"), std::string::npos) << r.out;
}

TEST(NeutralityCli, TajimaAlongAWindowWritesTheGrid) {
  TempDir dir;
  const std::string file = dir.Write("five.fas", kFive);
  const std::string grid = dir.File("windows.tsv");
  const auto r =
      RunOvelt({"tajima", file, "--sliding-window", "--window", "5", "--step", "5", "--grid", grid},
               dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  // D = -0.24 / 0.2289 and 0.26 / 0.2289 in the two halves (see neutrality_windows_test).
  const std::string tsv = ReadBytes(grid);
  const TsvTable table = TsvTable::Parse(tsv);
  ASSERT_EQ(table.Rows.size(), 2u);
  EXPECT_EQ(table.Cell(0, "start"), "1");
  EXPECT_EQ(table.Cell(0, "end"), "5");
  EXPECT_NEAR(table.Number(0, "tajima_d"), -0.24 / 0.2289, 5e-4) << tsv;
  EXPECT_NEAR(table.Number(1, "tajima_d"), 0.26 / 0.2289, 5e-4) << tsv;
  EXPECT_EQ(table.Cell(0, "significance"), "");
  EXPECT_NE(r.out.find(" n.d., not determined;  # P<0.10;  * P<0.05;  ** P<0.01;  *** P<0.001\n"),
            std::string::npos);
}

TEST(NeutralityCli, FuLiWithFsAndJson) {
  TempDir dir;
  const std::string file = dir.Write("five.fas", kFive);
  const std::string json = dir.File("result.json");
  const auto r = RunOvelt({"fu-li", file, "--use-mutations", "--json", json}, dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Fu and Li's D* test statistic: -0.74682\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find(" Fu's Fs statistic: -2.303\n"), std::string::npos);
  const std::string text = ReadBytes(json);
  EXPECT_NE(text.find("\"analysis\""), std::string::npos) << text;
  EXPECT_NE(text.find("\"d_star\""), std::string::npos) << text;
  EXPECT_NE(text.find("\"fs\""), std::string::npos) << text;
  EXPECT_NE(text.find("\"haplotypes\":5"), std::string::npos) << text;
}

TEST(NeutralityCli, FuLiWithAnOutgroup) {
  TempDir dir;
  const std::string file = dir.Write("six.fas", kSix);
  const auto r = RunOvelt({"fu-li-outgroup", file, "--set-def", "In=1-5", "--set-def", "Out=6",
                           "--set", "In", "--outgroup", "Out", "--use-mutations"},
                          dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Intraspecific Data: In\n    Number of sequences: 5\n"), std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find("   Site Positions: 9\n"), std::string::npos);
  EXPECT_NE(r.out.find(" Fu and Li's D test statistic, FL-D: -1.29049\n"), std::string::npos);
  EXPECT_NE(r.out.find(" Fay and Wu's H test statistic, FW-H: 0.30000\n"), std::string::npos);
}

TEST(NeutralityCli, OutgroupNeedsTwoSets) {
  TempDir dir;
  const std::string file = dir.Write("six.fas", kSix);
  const auto r = RunOvelt({"fu-li-outgroup", file}, dir.Path().string());
  EXPECT_EQ(r.status, 1);
  EXPECT_FALSE(r.err.empty());
}

TEST(NeutralityCli, TooFewSequencesForTajima) {
  TempDir dir;
  const std::string file = dir.Write("three.fas", ">a\nACGT\n>b\nACGA\n>c\nACGG\n");
  const auto r = RunOvelt({"tajima", file}, dir.Path().string());
  EXPECT_EQ(r.status, 1);
}

}  // namespace
}  // namespace ovelt
