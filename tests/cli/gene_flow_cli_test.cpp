// Gene flow from the command line: the sample worked by hand in the divergence tests.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "support/json_reader.h"
#include "support/temp_dir.h"
#include "support/tsv_reader.h"

namespace ovelt::testing {
namespace {

// A: s1 AAAA, s2 AAAT; B: s3 CAAA, s4 CAAT, s5 CAAT (see gene_flow_test): Kst = 1 - 0.8/1.2,
// Snn = 0.7, Fst = 4/9, Kxy = 1.5.
const char* const kTwo = ">s1\nAAAA\n>s2\nAAAT\n>s3\nCAAA\n>s4\nCAAT\n>s5\nCAAT\n";

std::vector<std::string> Args(const std::string& file, std::vector<std::string> more) {
  std::vector<std::string> args = {"gene-flow", file, "--set-def", "A=1-2", "--set-def", "B=3-5"};
  args.insert(args.end(), more.begin(), more.end());
  return args;
}

TEST(GeneFlowCli, ReportGridAndJson) {
  TempDir dir;
  const std::string file = dir.Write("two.fas", kTwo);
  const std::string grid = dir.File("pairs.tsv");
  const std::string json = dir.File("flow.json");
  const auto r = RunOvelt(Args(file, {"--grid", grid, "--json", json}), dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Number of Populations Included: 2\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find(" Total sites (excluding alignment gaps): 4\n"), std::string::npos);
  EXPECT_NE(r.out.find("  HBK 1992,    Kst: 0.33333\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("  Hudson 2000, Snn: 0.70000\n"), std::string::npos);
  EXPECT_NE(r.out.find("        Fst: 0.44444    Nm: 0.31\n"), std::string::npos);
  EXPECT_EQ(r.out.find("PM test"), std::string::npos);
  const TsvTable t = TsvTable::Parse(ReadBytes(grid));
  ASSERT_EQ(t.Rows.size(), 1U);
  EXPECT_EQ(t.Cell(0, "population1"), "A");
  EXPECT_DOUBLE_EQ(t.Number(0, "kxy"), 1.5);
  const JsonValue v = JsonValue::Parse(ReadBytes(json));
  EXPECT_EQ(v["analysis"].Text(), "Gene Flow and Genetic Differentiation");
  EXPECT_DOUBLE_EQ(v["snn"].Number(), 0.7);
  EXPECT_EQ(v["chi_square_df"].Integer(), 3);
  EXPECT_TRUE(v["p_snn"].IsNull());
  EXPECT_EQ(v["populations"].size(), 2U);
  EXPECT_EQ(v["populations"][1]["haplotypes"].Integer(), 2);
  EXPECT_NEAR(v["nm_fst"].Number(), (9.0 / 4.0 - 1.0) / 4.0, 1e-12);
}

TEST(GeneFlowCli, PermutationTestRepeatsWithItsSeed) {
  TempDir dir;
  const std::string file = dir.Write("two.fas", kTwo);
  const auto one = RunOvelt(Args(file, {"--permutation", "--replicates", "300", "--seed", "0"}),
                            dir.Path().string());
  const auto two =
      RunOvelt(Args(file, {"--permutation", "--replicates", "300", "--seed", "111295"}),
               dir.Path().string());
  ASSERT_EQ(one.status, 0) << one.err;
  EXPECT_EQ(one.out, two.out);
  EXPECT_NE(one.out.find("  PM test; Probability obtained by the permutation test with 300 "
                         "replicates)\n"),
            std::string::npos)
      << one.out;
  EXPECT_NE(one.out.find("     PM test; P-value of Snn: "), std::string::npos);
}

TEST(GeneFlowCli, RefusalsOfTheDialogAndOfThePopulations) {
  TempDir dir;
  const std::string file = dir.Write("two.fas", kTwo);
  const auto many =
      RunOvelt(Args(file, {"--permutation", "--replicates", "50001"}), dir.Path().string());
  EXPECT_EQ(many.status, 1);
  EXPECT_NE(many.err.find("In the present version the maximum number of replicates is 50000"),
            std::string::npos)
      << many.err;
  const auto none =
      RunOvelt(Args(file, {"--permutation", "--replicates", "0"}), dir.Path().string());
  EXPECT_NE(none.err.find("The minimum number of simulation replicates is 1"), std::string::npos);
  const auto one_set = RunOvelt(Args(file, {"--inactive-set", "B"}), dir.Path().string());
  EXPECT_EQ(one_set.status, 1);
  EXPECT_NE(one_set.err.find("There is only 1 active populations with included sequences. "
                             "Can't compute the Gene Flow between/among populations."),
            std::string::npos)
      << one_set.err;
}

TEST(GeneFlowCli, DistanceMatricesOfTheTableOfPairs) {
  TempDir dir;
  const std::string file = dir.Write("two.fas", kTwo);
  const std::string phylip = dir.File("fst.phy");
  const std::string mega = dir.File("kxy.meg");
  const auto r = RunOvelt(
      Args(file, {"--distance-matrix", "Fst=" + phylip, "--distance-matrix", "Kxy=" + mega}),
      dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(ReadBytes(phylip), "    2\r\nA         \r\nB           0.44444\r\n");
  EXPECT_EQ(ReadBytes(mega),
            "#mega\r\n!Title: Kxy values exported by Ovelt Workbench (Ovelt); kxy.meg;\r\n"
            "#A\r\n#B\r\n\r\n1.50000\r\n");
  // A request that cannot be written is refused before the run.
  const auto bad = RunOvelt(Args(file, {"--distance-matrix", "Fst=" + dir.File("fst.txt")}),
                            dir.Path().string());
  EXPECT_EQ(bad.status, 1);
  EXPECT_TRUE(bad.out.empty());
  EXPECT_NE(bad.err.find("A distance matrix is written as PHYLIP (.phy) or MEGA (.meg)"),
            std::string::npos)
      << bad.err;
  const auto unknown =
      RunOvelt(Args(file, {"--distance-matrix", "Ht=" + phylip}), dir.Path().string());
  EXPECT_EQ(unknown.status, 1);
  EXPECT_NE(unknown.err.find("the statistic one of Hs, Ks, Kxy, Gst, DeltaSt, GammaSt, Nst, Fst, "
                             "Dxy, Da"),
            std::string::npos);
}

}  // namespace
}  // namespace ovelt::testing
