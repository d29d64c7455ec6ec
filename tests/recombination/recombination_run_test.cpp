// The Recombination command through the one runner, on alignments worked by hand.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analyses/recombination/recombination_options.h"
#include "polymorphism/run_fixture.h"
#include "recombination/rm_example.h"

namespace ovelt {
namespace {

using test::RunBench;

std::size_t Count(const std::string& text, const std::string& what) {
  std::size_t count = 0;
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
    ++count;
  return count;
}

// Sequence 3 differs from the other three at sites 1, 2, 3 and 5. Each of those sites has
// h = (1 - 9/16 - 1/16) 4/3 = 1/2, so k = 2 and k' = 3/4 k = 1.5. Three pairs differ by 4 and
// three by 0: T = 3 (2.5)^2 + 3 (1.5)^2 = 25.5 and Sk^2 = (2 T + 4 k'^2) / 16 = 3.75.
// h(s) = 3/8: H1 = 1.5, H2 = 0.5625, Theta = 2, G = (3.75 - 1.5 + 0.5625) / 4 = 0.703125,
// above g(0.001, 4) = 0.65616: C stops at the first grid point. d = 5 - 1 = 4, and C / d =
// 0.00025 prints as 0.0003. No pair of sites shows four gametes.
TEST(RecombinationRun, FirstGridPoint) {
  RunBench b({"AAAAA", "AAAAA", "GGGAG", "AAAAA"});
  ASSERT_TRUE(b.Run(CommandId::kRecombination, RecombinationOptions{}));
  EXPECT_TRUE(b.platform.Boxes.empty());
  EXPECT_EQ(b.Body(),
            " Number of polymorphic (segregating) sites, S: 4\r\n"
            "\r\n"
            " Estimate of the recombination parameter, R (or C) (Hudson 1987)\r\n"
            "    Variance of the sample distribution of Kij, Sk^2: 3.750\r\n"
            "    Estimate of Theta, per gene: 2.000\r\n"
            "    Value of the function g(C,n): 0.7031\r\n"
            "    Estimate of R, per gene: 0.001\r\n"
            "    Estimate of R, between adjacent sites: 0.0003   \r\n"
            "    Average nucleotide distance between the most distant sites: 4.00\r\n"
            "\r\n"
            " Minimum number of recombination events (Hudson and Kaplan 1985)\r\n"
            "    Number of pairwise comparisons analyzed: 6\r\n"
            "    Number of pairs of sites with four gametic types: 0\r\n"
            "    Minimum number of recombination events, Rm: 0\r\n");
  EXPECT_EQ(b.Body().find("Recombination has been detected"), std::string::npos);
  EXPECT_NE(b.channel.HeaderBlock.find(
                " Total number of sites (excluding sites with gaps / missing data): 5"),
            std::string::npos);
}

// Six sequences, six sites. By hand: k = 41/15 = 2.7333 and k' = 41/18 = 2.27778 (kept in
// single precision); the 15 pairs differ by 3 2 4 2 0 5 5 5 3 2 0 2 2 4 2, so
// Sk^2 = (2 T + 6 k'^2) / 36 = 3.08951; H1 = 2.27778, H2 = 0.92901, Theta = 2.73333,
// G = 0.232996. g(C, 6) first falls below G at the grid point 48.899 (g(48.799) = 0.233119,
// g(48.899) = 0.232989), printed 48.9; C / 5 = 9.7798. Sites 2 and 3, and 2 and 4, show four
// gametes; (2,4) contains (2,3): Rm = 1.
TEST(RecombinationRun, ModerateC) {
  RunBench b({"AAGAAA", "GGGAAG", "AAAGAA", "AGAGGA", "AAAGAA", "AAGAAA"});
  ASSERT_TRUE(b.Run(CommandId::kRecombination, RecombinationOptions{}));
  EXPECT_EQ(b.Body(),
            " Number of polymorphic (segregating) sites, S: 6\r\n"
            "\r\n"
            " Estimate of the recombination parameter, R (or C) (Hudson 1987)\r\n"
            "    Variance of the sample distribution of Kij, Sk^2: 3.090\r\n"
            "    Estimate of Theta, per gene: 2.733\r\n"
            "    Value of the function g(C,n): 0.2330\r\n"
            "    Estimate of R, per gene: 48.9\r\n"
            "    Estimate of R, between adjacent sites: 9.7798   \r\n"
            "    Average nucleotide distance between the most distant sites: 5.00\r\n"
            "\r\n"
            " Minimum number of recombination events (Hudson and Kaplan 1985)\r\n"
            "    Number of pairwise comparisons analyzed: 15\r\n"
            "    Number of pairs of sites with four gametic types: 2\r\n"
            "          (2,3)  (2,4)  \r\n"
            "    Minimum number of recombination events, Rm: 1\r\n"
            "    Recombination has been detected between sites: \r\n"
            "          (2,3)  \r\n");
}

TEST(RecombinationRun, AllSequencesIdentical) {
  RunBench b({"ACGT", "ACGT", "ACGT"});
  EXPECT_FALSE(b.Run(CommandId::kRecombination, RecombinationOptions{}));
  ASSERT_EQ(b.platform.Boxes.size(), 1U);
  EXPECT_EQ(b.platform.Boxes[0].Text,
            "Can't estimate 4Nc and Rm parameters\nNo polymorphisms in the data.\n\n"
            "Input data file: /data/sample.fas");
  EXPECT_EQ(b.platform.Boxes[0].Title, "Ovelt");
  EXPECT_EQ(b.channel.TextBuffer.find("Minimum number of recombination events"),
            std::string::npos);
}

// The worked example of rm_example.h: G = 0.0478 lies below g(C, 7) at every grid point, so
// R is "Greater than 10000" and the line for adjacent sites is left out; Rm = 2.
TEST(RecombinationRun, GreaterThanTenThousandAndTheWorkedRm) {
  RunBench b(test::RmExampleRows());
  ASSERT_TRUE(b.Run(CommandId::kRecombination, RecombinationOptions{}, true));
  const std::string body = b.Body();
  EXPECT_NE(body.find("    Value of the function g(C,n): 0.0478\r\n"
                      "    Estimate of R, per gene:   Greater than 10000\r\n"
                      "    Average nucleotide distance between the most distant sites: 8.00\r\n"),
            std::string::npos)
      << body;
  EXPECT_EQ(body.find("between adjacent sites"), std::string::npos);
  EXPECT_NE(body.find("    Number of pairwise comparisons analyzed: 15\r\n"
                      "    Number of pairs of sites with four gametic types: 6\r\n"
                      "          (1,6)  (1,9)  (3,5)  (3,7)  (5,7)  \r\n"
                      "          (6,9)  \r\n"
                      "    Minimum number of recombination events, Rm: 2\r\n"
                      "    Recombination has been detected between sites: \r\n"
                      "          (3,5)  (5,7)  \r\n"),
            std::string::npos)
      << body;
  const std::string& json = b.outcome.Json;
  for (const char* member :
       {"\"analysis\":\"Recombination\"", "\"region_from\":1", "\"region_to\":9",
        "\"sequences\":7", "\"net_sites\":9", "\"segregating_sites\":6", "\"r_gene\":null",
        "\"r_adjacent\":null", "\"net_distance\":8", "\"rm_sites\":6", "\"rm_excluded_sites\":[]",
        "\"rm_pairwise_comparisons\":15", "\"four_gamete_pair_count\":6",
        "\"four_gamete_pairs\":[{\"site1\":1,\"site2\":6},{\"site1\":1,\"site2\":9},",
        "\"rm\":2", "\"rm_intervals\":[{\"site1\":3,\"site2\":5},{\"site1\":5,\"site2\":7}]",
        "\"sk2\":", "\"theta_gene\":", "\"g_target\":", "\"k\":"})
    EXPECT_NE(json.find(member), std::string::npos) << member << " in " << json;
}

// Sites 2 to 7 hold the pairs (3,5) (3,7) (5,7); (3,5) removes (3,7), which contains it, and
// touches (5,7): Rm = 2.
TEST(RecombinationRun, RegionOfTheWorkedExample) {
  RunBench b(test::RmExampleRows());
  RecombinationOptions options;
  options.RegionFrom = 2;
  options.RegionTo = 7;
  ASSERT_TRUE(b.Run(CommandId::kRecombination, options, true));
  EXPECT_NE(b.Body().find("    Number of pairwise comparisons analyzed: 6\r\n"
                          "    Number of pairs of sites with four gametic types: 3\r\n"
                          "          (3,5)  (3,7)  (5,7)  \r\n"
                          "    Minimum number of recombination events, Rm: 2\r\n"
                          "    Recombination has been detected between sites: \r\n"
                          "          (3,5)  (5,7)  \r\n"),
            std::string::npos)
      << b.Body();
  EXPECT_NE(b.outcome.Json.find("\"region_from\":2,\"region_to\":7"), std::string::npos);
}

TEST(RecombinationRun, InvalidRegionIsRefused) {
  RunBench b(test::RmExampleRows());
  RecombinationOptions options;
  options.RegionFrom = 5;
  options.RegionTo = 3;
  EXPECT_FALSE(b.Run(CommandId::kRecombination, options));
  ASSERT_EQ(b.platform.Boxes.size(), 1U);
  EXPECT_EQ(b.platform.Boxes[0].Text, " Invalid Selection ");
}

// Sites of two nucleotides over four sequences, by the pattern of sequences 2-4 that carry the
// second allele: 110, 101 and 011 conflict pairwise, so `p`, `q` and `r` sites of each make
// p q + p r + q r pairs with four gametes.
std::vector<std::string> PatternRows(const std::vector<int>& patterns) {
  std::vector<std::string> rows(4);
  for (const int pattern : patterns) {
    rows[0] += 'A';
    rows[1] += (pattern & 4) != 0 ? 'G' : 'A';
    rows[2] += (pattern & 2) != 0 ? 'G' : 'A';
    rows[3] += (pattern & 1) != 0 ? 'G' : 'A';
  }
  return rows;
}

std::vector<int> Repeat(int pattern, int times) { return std::vector<int>(static_cast<std::size_t>(times), pattern); }

std::vector<int> Join(std::vector<int> a, const std::vector<int>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

TEST(RecombinationRun, FiveHundredPairsCarryTheNote) {
  // 20 x 25 = 500 pairs.
  RunBench b(PatternRows(Join(Repeat(5, 20), Repeat(3, 25))));
  ASSERT_TRUE(b.Run(CommandId::kRecombination, RecombinationOptions{}));
  const std::string body = b.Body();
  EXPECT_NE(body.find("    Number of pairs of sites with four gametic types: 500\r\n"
                      "       (Only the first 500 have been displayed)\r\n"),
            std::string::npos)
      << body;
  // Every pair is shown, one of each site of the first 20 with each of the last 25.
  EXPECT_NE(body.find("(1,21)  (1,22)"), std::string::npos);
  EXPECT_NE(body.find("(20,45)  \r\n"), std::string::npos);
}

TEST(RecombinationRun, FourHundredNinetyNinePairsHaveNoNote) {
  // 1 x 19 + 1 x 24 + 19 x 24 = 499 pairs.
  RunBench b(PatternRows(Join(Join(Repeat(6, 1), Repeat(5, 19)), Repeat(3, 24))));
  ASSERT_TRUE(b.Run(CommandId::kRecombination, RecombinationOptions{}));
  const std::string body = b.Body();
  EXPECT_NE(body.find("    Number of pairs of sites with four gametic types: 499\r\n          (1,2)"),
            std::string::npos)
      << body;
  EXPECT_EQ(body.find("Only the first 500"), std::string::npos);
}

TEST(RecombinationRun, FiveHundredIntervalsCarryTheNoteToo) {
  // 501 sites alternating 110 and 101: every neighbour pair conflicts, the intervals (s, s+1)
  // are the innermost and only touch: Rm = 500. The 251 x 250 pairs are cut to 500.
  std::vector<int> patterns;
  for (int s = 0; s < 501; ++s) patterns.push_back(s % 2 == 0 ? 6 : 5);
  RunBench b(PatternRows(patterns));
  ASSERT_TRUE(b.Run(CommandId::kRecombination, RecombinationOptions{}));
  const std::string body = b.Body();
  EXPECT_NE(body.find("    Number of pairs of sites with four gametic types: 62750\r\n"
                      "       (Only the first 500 have been displayed)\r\n"),
            std::string::npos);
  EXPECT_NE(body.find("    Minimum number of recombination events, Rm: 500\r\n"
                      "    Recombination has been detected between sites: \r\n"
                      "       (Only the first 500 have been displayed)\r\n"
                      "          (1,2)  (2,3)  (3,4)  (4,5)  (5,6)  \r\n"),
            std::string::npos);
  EXPECT_NE(body.find("(500,501)  \r\n"), std::string::npos);
  EXPECT_EQ(Count(body, ")  "), 500U + 500U);  // the pairs and the intervals shown
}

// Site 2 has three nucleotides: it counts in S (and in the pairs of Sk^2) but not among the
// sites of Rm, and the report names it.
TEST(RecombinationRun, ThreeVariantsCountInSButNotInRm) {
  RunBench b({"AAAC", "GCAC", "GTGC", "ACGC"});
  ASSERT_TRUE(b.Run(CommandId::kRecombination, RecombinationOptions{}, true));
  const std::string body = b.Body();
  EXPECT_NE(body.find(" Number of polymorphic (segregating) sites, S: 3\r\n"), std::string::npos);
  EXPECT_NE(body.find("    Sites segregating for three or four nucleotides were not considered\r\n"
                      "          Site position: 2\r\n"
                      "    Number of pairwise comparisons analyzed: 1\r\n"),
            std::string::npos)
      << body;
  EXPECT_NE(b.outcome.Json.find("\"rm_sites\":2,\"rm_excluded_sites\":[2]"), std::string::npos)
      << b.outcome.Json;
}

// Gaps shorten the distance: site 6 has "-" in two of four sequences, d = 5 - 2 / 4 = 4.5.
TEST(RecombinationRun, GapsShortenTheDistance) {
  RunBench b({"AAAAAA", "AAAAA-", "GGGAG-", "AAAAAA"});
  ASSERT_TRUE(b.Run(CommandId::kRecombination, RecombinationOptions{}, true));
  EXPECT_NE(b.Body().find("between the most distant sites: 4.50\r\n"), std::string::npos)
      << b.Body();
  EXPECT_NE(b.outcome.Json.find("\"net_distance\":4.5"), std::string::npos) << b.outcome.Json;
}

}  // namespace
}  // namespace ovelt
