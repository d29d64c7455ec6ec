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

// The five sequences worked by hand in the polymorphism tests: L = 8, S = 5, Eta = 6,
// h = 5, Pi = 0.3125, V(Pi) = 0.002025.
const char* const kHandFasta =
    ">s1\nACGTACGTA\n>s2\nACGTACGAC\n>s3\nACTTACGAG\n>s4\nGCTTAC-AA\n>s5\nACTTCCGAA\n";

TEST(DnaPolymorphismCli, PrintsTheReport) {
  TempDir dir;
  const std::string file = dir.Write("hand.fas", kHandFasta);
  const auto r = RunOvelt({"dna-polymorphism", file, "--variance", "--jc"}, dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Total number of sites (excluding sites with gaps / missing data): 8\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find(" Number of polymorphic (segregating) sites, S: 5\n"), std::string::npos);
  EXPECT_NE(r.out.find(" Nucleotide diversity, Pi: 0.31250\n"), std::string::npos);
  EXPECT_NE(r.out.find("    Sampling variance of Pi: 0.0020250\n"), std::string::npos);
  EXPECT_NE(r.out.find(" Nucleotide diversity (Jukes and Cantor), Pi(JC): 0.41198\n"),
            std::string::npos);
  EXPECT_NE(r.out.find("    Variance of theta (free recombination): 1.152\n"), std::string::npos);
}

TEST(DnaPolymorphismCli, SlidingWindowWritesTheGrid) {
  TempDir dir;
  const std::string file = dir.Write("hand.fas", kHandFasta);
  const std::string grid = dir.File("windows.tsv");
  const auto r = RunOvelt({"dna-polymorphism", file, "--sliding-window", "--window", "4",
                           "--step", "2", "--grid", grid},
                          dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  const TsvTable tsv = TsvTable::Parse(ReadBytes(grid));
  EXPECT_EQ(tsv.Keys, (std::vector<std::string>{"start", "end", "net_sites", "midpoint", "pi",
                                                "theta_site", "segregating_sites"}));
  ASSERT_EQ(tsv.Rows.size(), 3u);
  const std::vector<std::vector<double>> expected = {
      {1, 4, 4, 2, 0.25, 0.24, 2}, {3, 6, 4, 4, 0.25, 0.24, 2}, {5, 9, 4, 6, 0.375, 0.36, 3}};
  for (size_t i = 0; i < expected.size(); ++i)
    for (size_t c = 0; c < tsv.Keys.size(); ++c)
      EXPECT_NEAR(std::stod(tsv.Rows[i][c]), expected[i][c], 1e-12) << i << " " << tsv.Keys[c];
  EXPECT_NE(r.out.find("   Window length: 4     Step size: 2\n"), std::string::npos);
}

TEST(DnaPolymorphismCli, SavedOutputCarriesTheWindowTable) {
  TempDir dir;
  const std::string file = dir.Write("hand.fas", kHandFasta);
  const std::string out = dir.File("run.out");
  const auto r = RunOvelt({"dna-polymorphism", file, "--sliding-window", "--window", "4",
                           "--step", "2", "--out", out},
                          dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  const std::string saved = ReadBytes(out);
  EXPECT_NE(saved.find("DNA Polymorphism \r\n"), std::string::npos);
  EXPECT_NE(saved.find("     Window  Midpoint  Pi     Theta      S\r\n"), std::string::npos);
  EXPECT_NE(saved.find("        5-9      6  0.37500  0.36000     3\r\n"), std::string::npos)
      << saved;
}

TEST(DnaPolymorphismCli, MissingDataMode) {
  TempDir dir;
  const std::string file =
      dir.Write("gappy.fas", ">a\nACGTAC\n>b\nAC-T-C\n>c\nATG?--\n>d\nGTGT??\n");
  const auto r = RunOvelt({"dna-polymorphism", file, "--missing-data"}, dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Pairwise Deletion option:\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("   Nucleotide diversity, Pi: 0.38889\n"), std::string::npos);
  EXPECT_NE(r.out.find("   Theta-W, per site: 0.21818\n"), std::string::npos);
}

TEST(DnaPolymorphismCli, JsonOnStandardOutput) {
  TempDir dir;
  const std::string file = dir.Write("hand.fas", kHandFasta);
  const auto r = RunOvelt({"dna-polymorphism", file, "--json", "-"}, dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out.find("Nucleotide diversity"), std::string::npos);
  EXPECT_NE(r.out.find("\"segregating_sites\":5"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("\"haplotypes\":5"), std::string::npos);
}

TEST(DnaPolymorphismCli, RefusalsExitWithStatus1) {
  TempDir dir;
  const std::string file = dir.Write("hand.fas", kHandFasta);
  auto r = RunOvelt({"dna-polymorphism", file, "--from", "7", "--to", "3"}, dir.Path().string());
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find(" Invalid Selection "), std::string::npos) << r.err;
  r = RunOvelt({"dna-polymorphism", file, "--sliding-window", "--window", "9", "--step", "10"},
               dir.Path().string());
  EXPECT_EQ(r.status, 1);
  const std::string one = dir.Write("one.fas", ">only\nACGT\n");
  r = RunOvelt({"dna-polymorphism", one}, dir.Path().string());
  EXPECT_EQ(r.status, 1);
}

TEST(DnaPolymorphismCli, TheExampleRuns) {
  TempDir dir;
  const auto r = RunOvelt(
      {"dna-polymorphism", std::string(OVELT_EXAMPLES) + "/example.fas", "--variance"},
      dir.Path().string());
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Number of sequences: 12    Number of sequences used: 12\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find(" Theta (per sequence) from S, Theta-W: "), std::string::npos);
}

}  // namespace
}  // namespace ovelt
