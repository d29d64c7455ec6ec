#include <gtest/gtest.h>

#include <string>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

using testing::RunOvelt;
using testing::TempDir;

const std::string kExample = std::string(OVELT_EXAMPLES) + "/example.fas";

// Four sequences, one of them a gap at site 5: pairwise differences 1 (1-2), 2 (1-3), 3 (1-4),
// 1 (2-3), 2 (2-4), 1 (3-4) over sites 1-4; k = 10 / 6.
const char* const kFourSequences =
    ">a\nAAAAA\n>b\nAAAGA\n>c\nAACGA\n>d\nATCG-\n";

TEST(SizeChangeCli, MismatchReportOfAHandWorkedFile) {
  TempDir dir;
  const std::string file = dir.Write("four.fas", kFourSequences);
  const auto r = RunOvelt({"population-size-changes", file}, dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Number of polymorphic (segregating) sites, S: 3\n"), std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find("    Average Number of Pairwise Differences, k: 1.667\n"),
            std::string::npos);
  // Shares 0, 3/6, 2/6, 1/6 and 0 beyond: r = 0.25 + 1/36 + 1/36 + 1/36 = 1/3.
  EXPECT_NE(r.out.find("    Raggedness statistic r: 0.3333\n"), std::string::npos);
}

TEST(SizeChangeCli, JsonAndGrid) {
  TempDir dir;
  const std::string file = dir.Write("four.fas", kFourSequences);
  const std::string grid = dir.File("grid.tsv");
  const auto r = RunOvelt({"population-size-changes", file, "--json", "-", "--grid", grid,
                           "--model", "2", "--theta-initial", "1", "--theta-final", "20",
                           "--tau", "3"},
                          dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("\"mismatch_distribution\":[0,3,2,1]"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("\"pairs\":6"), std::string::npos);
  EXPECT_EQ(r.out.find(" Observed values:"), std::string::npos);
  const std::string tsv = testing::ReadBytes(grid);
  EXPECT_EQ(tsv.substr(0, tsv.find('\n') + 1),
            "differences\tobserved_frequency\texpected_frequency\n");
  // Mismatches 0, 3, 2, 1 over 6 pairs: 1 difference in 3 of them.
  EXPECT_NE(tsv.find("\n1\t0.5\t"), std::string::npos) << tsv;
}

TEST(SizeChangeCli, RefusesABadThetaFinal) {
  TempDir dir;
  const std::string file = dir.Write("four.fas", kFourSequences);
  const auto r = RunOvelt({"population-size-changes", file, "--model", "2", "--theta-final",
                           "0"},
                          dir.Path().string());
  EXPECT_NE(r.status, 0);
  EXPECT_NE(r.err.find("The value of Theta final must be higher than 0"), std::string::npos)
      << r.err;
}

TEST(SizeChangeCli, IntraspecificOverviewOfTheExample) {
  TempDir dir;
  const auto r = RunOvelt({"intraspecific", kExample}, dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" ================== Neutrality Tests ================== \n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find(" Calculation using the total number of segregating sites\n"),
            std::string::npos);
}

TEST(SizeChangeCli, MultidomainWithDomainsOnTheCommandLine) {
  TempDir dir;
  const std::string file = dir.Write("four.fas", kFourSequences);
  const auto r = RunOvelt({"multidomain", file, "--domain", "Left=1-2;Right=3-5", "--json", "-"},
                          dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("\"domain\":\"Left\""), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("\"domain\":\"Right\""), std::string::npos);
  EXPECT_NE(r.out.find("\"sequence_set\":\"All_Seqs\""), std::string::npos);

  const auto bad = RunOvelt({"multidomain", file, "--domain", "Left=1-20"}, dir.Path().string());
  EXPECT_NE(bad.status, 0);
  EXPECT_NE(bad.err.find("Invalid Selection"), std::string::npos) << bad.err;
}

}  // namespace
}  // namespace ovelt
