// DNA divergence between populations from the command line, on alignments worked by hand.

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "support/json_reader.h"
#include "support/temp_dir.h"
#include "support/tsv_reader.h"

namespace ovelt::testing {
namespace {

// Population A = s1, s2; B = s3, s4. Site 1: A A | T T, a fixed difference. Site 4: T A | A A,
// polymorphic in A only; of the four pairs between populations two differ there (SiteDxy 1/2).
// L = 4, k1 = 1, k2 = 0, K = 1.5: Pi(1) = 0.25, Pi(2) = 0, Dxy = 0.375, Da = 0.375 - 0.125.
// The four sequences as one sample differ by 1, 2, 2, 1, 1, 0 over their six pairs: k(t) = 7/6.
const char* const kTwoPops = ">s1\nACGT\n>s2\nACGA\n>s3\nTCGA\n>s4\nTCGA\n";

std::vector<std::string> Sets(std::vector<std::string> args) {
  args.insert(args.end(), {"--set-def", "A=1-2", "--set-def", "B=3-4"});
  return args;
}

TEST(DnaDivergenceCli, ReportOfAHandWorkedPair) {
  TempDir dir;
  const std::string file = dir.Write("two.fas", kTwoPops);
  const auto r = RunOvelt(Sets({"dna-divergence", file}), dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string expected =
      "\n Input Data File: " + file +
      "\n Selected region: 1-4\n     Number of sites: 4\n"
      " Total sites (excluding alignment gaps): 4\n"
      " Population 1: A\n   Number of sequences: 2\n   Number of polymorphic sites: 1\n"
      "      Total number of mutations: 1\n"
      "   Average number of nucleotide differences, k: 1.000\n"
      "   Nucleotide diversity, Pi(1): 0.25000\n"
      " Population 2: B\n   Number of sequences: 2\n   Number of polymorphic sites: 0\n"
      "      Total number of mutations: 0\n"
      "   Average number of nucleotide differences, k: 0.000\n"
      "   Nucleotide diversity, Pi(2): 0.00000\n"
      " Total data:  \n   Number of sequences: 4\n   Number of polymorphic sites: 2\n"
      "      Total number of mutations: 2\n"
      "   Average number of nucleotide differences, k: 1.167\n"
      "   Nucleotide diversity, Pi(t): 0.29167\n"
      " Between populations:  \n   Number of fixed differences: 1\n"
      "   Mutations polymorphic in population 1, but monomorphic in population 2: 1\n"
      "   Mutations polymorphic in population 2, but monomorphic in population 1: 0\n"
      "   Shared Mutations: 0\n"
      "   Average number of nucleotide differences between populations: 1.500\n"
      "   Average number of nuc. subs. per site between populations, Dxy: 0.37500\n"
      "   Number of net nuc. subs. per site between populations, Da: 0.25000\n";
  EXPECT_EQ(r.out, expected);
}

TEST(DnaDivergenceCli, JukesCantorValuesAndTheirJson) {
  TempDir dir;
  const std::string file = dir.Write("two.fas", kTwoPops);
  const std::string json_file = dir.File("r.json");
  const auto r = RunOvelt(Sets({"dna-divergence", file, "--variances", "--json", json_file}),
                          dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  // Within A: one difference in four sites, -3/4 ln(1 - 4/12). Between: two pairs at 2 of 4
  // (-3/4 ln(1/3)) and two at 1 of 4. B's one pair has distance 0: no Pi(2)JC to print.
  const double pi1_jc = 0.75 * std::log(1.5);
  const double dxy_jc = (2 * 0.75 * std::log(3.0) + 2 * pi1_jc) / 4;
  const double da_jc = dxy_jc - pi1_jc / 2;
  // Var(Pi1) with n1 = 2: 2 [(6 - 8) (K1 / 4)^2 + d^2 / 4].
  const double var_pi1 = 2 * (-2 * std::pow(pi1_jc / 4, 2) + pi1_jc * pi1_jc / 4);
  EXPECT_NE(r.out.find("   Nucleotide diversity with Jukes and Cantor, Pi(1)JC: 0.30410\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find("      Standard deviation of Pi(1)JC: 0.15205\n"), std::string::npos);
  EXPECT_NEAR(std::sqrt(var_pi1), 0.15205, 5e-6);
  EXPECT_NE(r.out.find("   Nucleotide diversity with Jukes and Cantor, Pi(2)JC: not determined\n"),
            std::string::npos);
  EXPECT_NE(r.out.find("   Dxy with Jukes and Cantor, Dxy(JC): 0.56403\n"), std::string::npos);
  EXPECT_NE(r.out.find("   Da with Jukes and Cantor, Da(JC): 0.41198\n"), std::string::npos);
  const JsonValue v = JsonValue::Parse(ReadBytes(json_file));
  EXPECT_EQ(v["analysis"].Text(), "DNA Divergence Between Populations");
  EXPECT_EQ(v["net_sites"].Integer(), 4);
  EXPECT_DOUBLE_EQ(v["population1"]["pi"].Number(), 0.25);
  EXPECT_EQ(v["population1"]["name"].Text(), "A");
  EXPECT_NEAR(v["population1"]["pi_jc"].Number(), pi1_jc, 1e-6);  // a float mean
  EXPECT_NEAR(v["population1"]["var_pi_jc"].Number(), var_pi1, 1e-6);
  EXPECT_DOUBLE_EQ(v["population2"]["pi_jc"].Number(), 0.0);
  EXPECT_DOUBLE_EQ(v["dxy"].Number(), 0.375);
  EXPECT_DOUBLE_EQ(v["da"].Number(), 0.25);
  EXPECT_NEAR(v["dxy_jc"].Number(), dxy_jc, 1e-6);
  EXPECT_NEAR(v["da_jc"].Number(), da_jc, 1e-6);
  EXPECT_DOUBLE_EQ(v["total"]["k"].Number(), 7.0 / 6.0);
  EXPECT_EQ(v["total"]["mutations"].Integer(),
            v["fixed_differences"].Integer() + v["private_mutations1"].Integer() +
                v["private_mutations2"].Integer() + v["shared_mutations"].Integer());
  EXPECT_FALSE(v.Has("sliding_window"));
}

TEST(DnaDivergenceCli, NoNetSiteGivesZerosAndNoJukesCantor) {
  TempDir dir;
  // Every site has a gap in one population or the other: L = 0.
  const std::string file = dir.Write("gaps.fas", ">s1\nA-\n>s2\nA-\n>s3\n-C\n>s4\n-C\n");
  const auto r = RunOvelt(Sets({"dna-divergence", file, "--variances"}), dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find(" Total sites (excluding alignment gaps): 0\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("   Nucleotide diversity, Pi(1): 0.00000\n"), std::string::npos);
  EXPECT_NE(r.out.find("Dxy: 0.00000\n"), std::string::npos);
  EXPECT_NE(r.out.find("Da: 0.00000\n"), std::string::npos);
  EXPECT_EQ(r.out.find("Pi(t)"), std::string::npos);
  EXPECT_NE(r.out.find("   Dxy with Jukes and Cantor, Dxy(JC): not determined\n"),
            std::string::npos);
}

TEST(DnaDivergenceCli, EveryDistanceUndefinedSaysNotDetermined) {
  TempDir dir;
  // The two sequences of A differ at all four sites: 4d / 3L = 4/3, beyond Jukes and Cantor.
  const std::string file = dir.Write("far.fas", ">s1\nACGT\n>s2\nCATG\n>s3\nACGT\n>s4\nACGT\n");
  const auto r = RunOvelt(Sets({"dna-divergence", file, "--variances"}), dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("   Nucleotide diversity with Jukes and Cantor, Pi(1)JC: not determined\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find("   Da with Jukes and Cantor, Da(JC): not determined\n"), std::string::npos);
}

TEST(DnaDivergenceCli, OneSequenceInAPopulation) {
  TempDir dir;
  const std::string file = dir.Write("one.fas", kTwoPops);
  const std::string json_file = dir.File("r.json");
  const auto r = RunOvelt({"dna-divergence", file, "--set-def", "A=1", "--set-def", "B=2-4",
                           "--variances", "--json", json_file},
                          dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("   Nucleotide diversity, Pi(1): 0.00000\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("   Nucleotide diversity with Jukes and Cantor, Pi(1)JC: not determined\n"),
            std::string::npos);
  const JsonValue v = JsonValue::Parse(ReadBytes(json_file));
  EXPECT_TRUE(v["population1"]["pi_jc"].IsNull());
  EXPECT_EQ(v["population1"]["sequences"].Integer(), 1);
}

TEST(DnaDivergenceCli, EmptyPopulationsAreRefusedWithTheirWords) {
  TempDir dir;
  const std::string file =
      dir.Write("six.fas", ">s1\nACGT\n>s2\nACGA\n>s3\nTCGA\n>s4\nTCGA\n>s5\nTCGA\n");
  const auto none =
      RunOvelt(Sets({"dna-divergence", file, "--exclude", "1-4"}), dir.Path().string());
  EXPECT_EQ(none.status, 1);
  EXPECT_NE(none.err.find("There are 0 included sequences. Can't compute the DNA Divegence "
                          "between populations."),
            std::string::npos)
      << none.err;
  const auto one =
      RunOvelt(Sets({"dna-divergence", file, "--exclude", "3-4"}), dir.Path().string());
  EXPECT_EQ(one.status, 1);
  EXPECT_NE(one.err.find("There is only one population with included sequences. Can't compute "
                         "the DNA Divegence between populations."),
            std::string::npos)
      << one.err;
  EXPECT_TRUE(one.out.empty());
}

TEST(DnaDivergenceCli, SlidingWindowGridAndNoJukesCantorStep) {
  TempDir dir;
  const std::string file = dir.Write("two.fas", kTwoPops);
  const std::string grid = dir.File("w.tsv");
  const auto r = RunOvelt(Sets({"dna-divergence", file, "--sliding-window", "--window", "2",
                                "--step", "2", "--variances", "--grid", grid}),
                          dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("   Dxy with Jukes and Cantor, Dxy(JC): not determined\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find(" Sliding Window Option\n"), std::string::npos);
  const TsvTable t = TsvTable::Parse(ReadBytes(grid));
  ASSERT_EQ(t.Rows.size(), 2u);
  // Sites 1-2: the fixed difference, Dxy = 1/2, Da = 1/2. Sites 3-4: SiteDxy 1/2 at site 4 and
  // A's one difference: Pi(1) = 1/2, Dxy = 1/4, Da = 1/4 - 1/4 = 0.
  EXPECT_DOUBLE_EQ(t.Number(0, "dxy"), 0.5);
  EXPECT_DOUBLE_EQ(t.Number(0, "da"), 0.5);
  EXPECT_DOUBLE_EQ(t.Number(1, "pi1"), 0.5);
  EXPECT_DOUBLE_EQ(t.Number(1, "dxy"), 0.25);
  EXPECT_DOUBLE_EQ(t.Number(1, "da"), 0.0);
  EXPECT_EQ(t.Cell(1, "start"), "3");
}

TEST(DnaDivergenceCli, TheSecondSetIsSet2EverywhereAndOutgroupStays) {
  TempDir dir;
  const std::string file = dir.Write("two.fas", kTwoPops);
  const auto swapped =
      RunOvelt(Sets({"dna-divergence", file, "--set", "B", "--set2", "A"}), dir.Path().string());
  ASSERT_EQ(swapped.status, 0) << swapped.err;
  EXPECT_NE(swapped.out.find(" Population 1: B\n"), std::string::npos);
  EXPECT_NE(swapped.out.find("   Nucleotide diversity, Pi(2): 0.25000\n"), std::string::npos);
  const std::string five =
      dir.Write("five.fas", ">a\nACGTA\n>b\nACGTT\n>c\nACGAA\n>d\nTCGAA\n>o\nTCGAA\n");
  const std::vector<std::string> base = {"fu-li-outgroup", five,    "--set-def", "In=1-4",
                                         "--set-def",      "Out=5", "--set",     "In"};
  auto with = [&base](const std::string& flag) {
    std::vector<std::string> args = base;
    args.insert(args.end(), {flag, "Out"});
    return args;
  };
  const auto by_outgroup = RunOvelt(with("--outgroup"), dir.Path().string());
  const auto by_set2 = RunOvelt(with("--set2"), dir.Path().string());
  ASSERT_EQ(by_outgroup.status, 0) << by_outgroup.err;
  EXPECT_EQ(by_outgroup.out, by_set2.out);
}

}  // namespace
}  // namespace ovelt::testing
