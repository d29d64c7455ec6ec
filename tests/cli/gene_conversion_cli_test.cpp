// Gene conversion from the command line, on the alignment worked by hand in the divergence tests.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "support/json_reader.h"
#include "support/temp_dir.h"
#include "support/tsv_reader.h"

namespace ovelt::testing {
namespace {

// Names stand in the report in their field of 20 characters, as in every per-sequence line.
// Population P: p1-p3, fixed for C but for p1's G at site 6; population Q: q1-q6, fixed for A
// but for q1, which carries C at sites 2, 4, 5, 7, 9, 11, 12 and a gap at site 3. Tracts of q1:
// 2-7 (five sites without the gap) and 11-12.
const char* const kTracts =
    ">p1\nCCCCCGCCCCCC\n>p2\nCCCCCCCCCCCC\n>p3\nCCCCCCCCCCCC\n"
    ">q1\nAC-CCGCACACC\n>q2\nAAAAAGAAAAAA\n>q3\nAAAAAGAAAAAA\n"
    ">q4\nAAAAAGAAAAAA\n>q5\nAAAAAGAAAAAA\n>q6\nAAAAAGAAAAAA\n";

std::vector<std::string> Args(const std::string& file, std::vector<std::string> more) {
  std::vector<std::string> args = {"gene-conversion", file,        "--set-def",
                                   "P=1-3",           "--set-def", "Q=4-9"};
  args.insert(args.end(), more.begin(), more.end());
  return args;
}

TEST(GeneConversionCli, ReportOfTheHandWorkedTracts) {
  TempDir dir;
  const std::string file = dir.Write("tracts.fas", kTracts);
  const std::string grid = dir.File("sites.tsv");
  const auto r = RunOvelt(Args(file, {"--grid", grid}), dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  // Psi: nine sites of 1/2 and site 6 of 1/3 over eleven net sites = 0.43939...
  const std::string expected =
      "\n Input Data File: " + file +
      "\n Selected region: 1-12\n     Number of sites: 12\n"
      " Total sites (excluding alignment gaps): 11\n"
      " Population 1: P\n   Number of sequences: 3\n"
      " Population 2: Q\n   Number of sequences: 6\n"
      " Average number of informative nucleotide sites per site, Psi: 0.43939\n"
      " Number of sites with information: 10\n"
      " Number of Gene Conversion tracts identified:  2\n"
      "     Line: q1                   (population 2). Tract located between sites: 2-7\n"
      "           Nucleotide distance (excluding gaps): 5\n"
      "     Line: q1                   (population 2). Tract located between sites: 11-12\n"
      "           Nucleotide distance (excluding gaps): 2\n";
  EXPECT_EQ(r.out, expected);
  const TsvTable t = TsvTable::Parse(ReadBytes(grid));
  EXPECT_EQ(t.Keys, (std::vector<std::string>{"site", "psi"}));
  ASSERT_EQ(t.Rows.size(), 10U);
  EXPECT_EQ(t.Cell(5, "site"), "7");
  EXPECT_DOUBLE_EQ(t.Number(4, "psi"), 1.0 / 3.0);  // site 6
}

TEST(GeneConversionCli, ThreeAndFiveSequencesAreEnoughThreeAndFourAreNot) {
  TempDir dir;
  const std::string file = dir.Write("tracts.fas", kTracts);
  const auto enough = RunOvelt(
      {"gene-conversion", file, "--set-def", "P=1-3", "--set-def", "Q=4-8"}, dir.Path().string());
  EXPECT_EQ(enough.status, 0) << enough.err;
  const auto few = RunOvelt({"gene-conversion", file, "--set-def", "P=1-3", "--set-def", "Q=4-7"},
                            dir.Path().string());
  EXPECT_EQ(few.status, 1);
  EXPECT_NE(few.err.find("At least three sequences must be included from one population, and "
                         "five from the other, to identify gene conversion tracts and to "
                         "estimate the parameter Psi."),
            std::string::npos)
      << few.err;
  EXPECT_TRUE(few.out.empty());
}

TEST(GeneConversionCli, PsiAlongASlidingWindowAndItsJson) {
  TempDir dir;
  const std::string file = dir.Write("tracts.fas", kTracts);
  const std::string grid = dir.File("w.tsv");
  const std::string json = dir.File("r.json");
  const auto r = RunOvelt(Args(file, {"--sliding-window", "--window", "6", "--step", "6", "--grid",
                                      grid, "--json", json}),
                          dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Sliding Window Option\n"), std::string::npos) << r.out;
  const TsvTable t = TsvTable::Parse(ReadBytes(grid));
  EXPECT_EQ(t.Keys, (std::vector<std::string>{"start", "end", "net_sites", "midpoint", "psi"}));
  ASSERT_EQ(t.Rows.size(), 2U);
  // Six net sites a window, the gap site 3 not counted: 1-7 holds 1, 2, 4, 5 (1/2), 6 (1/3) and
  // 7 (1/2); 8-12 holds 8, 10, 11, 12 (1/2) and 9 (0).
  EXPECT_EQ(t.Cell(0, "end"), "7");
  EXPECT_DOUBLE_EQ(t.Number(0, "psi"), (5 * 0.5 + 1.0 / 3.0) / 6);
  EXPECT_DOUBLE_EQ(t.Number(1, "psi"), 4 * 0.5 / 5);
  const JsonValue v = JsonValue::Parse(ReadBytes(json));
  EXPECT_EQ(v["analysis"].Text(), "Gene Conversion");
  EXPECT_DOUBLE_EQ(v["psi"].Number(), (9 * 0.5 + 1.0 / 3.0) / 11);
  ASSERT_EQ(v["tracts"].size(), 2U);
  EXPECT_EQ(v["tracts"][0]["name"].Text(), "q1");
  EXPECT_EQ(v["tracts"][0]["net_length"].Integer(), 5);
  EXPECT_EQ(v["sliding_window"]["windows"].size(), 2U);
  EXPECT_FALSE(v.Has("informative_sites"));
}

}  // namespace
}  // namespace ovelt::testing
