// "Synonymous and NonSyn. Substitutions" run through the one runner, as its dialog or flags would
// once confirmed: the report on alignments worked by hand, the per-pair table in the grid or
// streamed to a file above 16,290 rows, the stop-codon notice, the edge cases of the analysis,
// and its JSON.
#include <gtest/gtest.h>

#include <cmath>
#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "analyses/divergence/synonymous/synonymous_compute.h"
#include "analyses/divergence/synonymous/synonymous_options.h"
#include "analyses/divergence/synonymous/synonymous_pair_table.h"
#include "analyses/divergence/synonymous/synonymous_report.h"
#include "command/result_json.h"
#include "core/coding_regions.h"
#include "output/format_mask.h"
#include "polymorphism/run_fixture.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

struct SynonymousBench : test::RunBench {
  // `coding_to` 0: every site codes; -1: none does.
  explicit SynonymousBench(const std::vector<std::string>& rows, int32_t coding_to = 0)
      : RunBench(rows) {
    if (coding_to >= 0) {
      AssignCodingRegion(ad, 1, coding_to == 0 ? ad.NumSites : coding_to, 1);
      LeaveForm14(ad, true);
    }
  }
  bool Run(SynonymousOptions options = {}) {
    if (options.Seed == 0) options.Seed = 1;
    return RunBench::Run(CommandId::kSynonymous, options, true);
  }
  [[nodiscard]] bool Has(const std::string& line) const {
    return Body().find(line + "\r\n") != std::string::npos;
  }
};

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// Three sequences over two codons (CTT CTC CTC; AAA AAA GAA), worked by hand in
// synonymous_counts_test.cpp: each sequence 4/3 synonymous sites; pairs (1,2) Syn 1, (1,3) Syn 1
// and NSyn 1, (2,3) NSyn 1; Pi(s) 1/2, Pi(a) 1/7. The classification gives the third site 2 and
// the fourth 1: Ms 1, Ma 1, a1 = 3/2, Theta(s) = 1 / (3/2 x 4/3) = 1/2, Theta(a) = 1 / (3/2 x
// 14/3) = 1/7.
TEST(SynonymousRun, ReportOfThreeSequences) {
  SynonymousBench bench({"CTTAAA", "CTCAAA", "CTCGAA"});
  ASSERT_TRUE(bench.Run());
  EXPECT_TRUE(bench.Has(" Number of codons analyzed: 2   ( 6 sites )"));
  EXPECT_TRUE(bench.Has(" Genetic Code: Nuclear Universal"));
  EXPECT_TRUE(bench.Has("     Protein coding region, from site: 1  to  6"));
  EXPECT_TRUE(bench.Has("   Number of protein coding regions (exons): 1"));
  EXPECT_TRUE(bench.Has("   Number of noncoding regions (intronic and flanking regions): 0"));
  EXPECT_TRUE(bench.Has(" Nucleotide Diversity:"));
  EXPECT_TRUE(bench.Has("    Synonymous sites. Number of sites: 1.33"));
  EXPECT_TRUE(bench.Has("         Pi(s): 0.50000"));
  // Pi(s) JC is the mean over the one pair with 4p/3 below 1, whose p is 0: not above 0, no line.
  EXPECT_FALSE(Contains(bench.Body(), "Pi(s), Jukes & Cantor"));
  EXPECT_TRUE(bench.Has("         Theta(s): 0.50000"));
  EXPECT_TRUE(bench.Has("    NonSynonymous sites. Number of sites: 4.67"));
  EXPECT_TRUE(bench.Has("         Pi(a): 0.14286"));
  // (2/3) x -(3/4) ln(1 - 4/14) = 0.16824
  EXPECT_TRUE(bench.Has("    Pi(a), Jukes & Cantor: 0.16824"));
  EXPECT_TRUE(bench.Has("         Theta(a): 0.14286"));
  EXPECT_TRUE(bench.Has("    Number of mutations: 1"));
  EXPECT_TRUE(bench.Has("    seq1                SS:    1.33        NSS:    4.67"));
  EXPECT_FALSE(Contains(bench.Body(), "Stop codons"));
  // The per-pair table, forced by the coding sites: (1,2) p = 3/4 has no Ks.
  const OutputGrid& grid = bench.channel.Grid1;
  EXPECT_EQ(grid.ColumnTitles, SynonymousPairTitles(false));
  ASSERT_EQ(grid.Rows.size(), 3u);
  EXPECT_EQ(grid.Rows[0], (std::vector<std::string>{"seq1      ", "seq2      ", "   1.00", "1.33",
                                                    "  n.a.", "0.00", "4.67", "0.0000"}));
  // (2,3): Ka of 1 / (14/3) = 3/14: -(3/4) ln(1 - 4/14) = 0.25235.
  EXPECT_EQ(grid.Rows[2][7], "0.2524");
  EXPECT_EQ(bench.channel.Windows().Grid, true);
  EXPECT_EQ(bench.channel.StatusText(), "Computing and displaying output...");
}

TEST(SynonymousRun, APairWithoutSynonymousSitesLeavesPiSOnly) {
  // ATG and TGG have no synonymous site: the pair of the first two sequences has S = 0. Pi(s)
  // is the mean over the other two pairs (no synonymous difference: 0); Pi(a) over all three.
  SynonymousBench bench({"ATGTGG", "ATGTGG", "ATATGG"});
  ASSERT_TRUE(bench.Run());
  EXPECT_TRUE(bench.Has("         Pi(s): 0.00000"));
  // Pi(a): (0 + 2 / (6 - 1/3)) / 3 = 0.11765
  EXPECT_TRUE(bench.Has("         Pi(a): 0.11765"));
  EXPECT_EQ(bench.channel.Grid1.Rows[0][4], "  n.a.");  // Ks of the pair with S = 0
}

TEST(SynonymousRun, WithoutCodingRegionsOnlyTheNoncodingLines) {
  // No coding site: OK to the question, then only the silent class, its differences made by the
  // noncoding count. Pi of the silent class is then Pi over all net sites, and its theta the
  // theta from the number of mutations: sites ACGTA... over 5 sequences.
  const std::vector<std::string> rows{"ACGTACGTA", "ACGTACGAC", "ACTTACGAG", "GCTTACGAA",
                                      "ACTTCCGAA"};
  SynonymousBench bench(rows, -1);
  SynonymousOptions options;
  options.Silent = true;
  options.PairTable = true;
  ASSERT_TRUE(bench.Run(options));
  EXPECT_TRUE(bench.Has(" Number of codons analyzed: 0   ( 0 sites )"));
  EXPECT_TRUE(bench.Has(" Number non-coding positions analyzed: 9"));
  EXPECT_FALSE(Contains(bench.Body(), "    Synonymous sites. Number of sites"));
  EXPECT_FALSE(Contains(bench.Body(), "NonSynonymous"));
  EXPECT_TRUE(bench.Has("    Synonymous sites and non-coding positions. Number of sites: 9.00"));
  // Pairwise differences, cell by cell: 2 3 3 3 / 2 3 3 / 2 2 / 2, k = 25/10, Pi = 25/90.
  std::ostringstream pi;
  pi << "         Pi(s): " << Format(25.0 / 90.0, "0.00000");
  EXPECT_TRUE(bench.Has(pi.str()));
  // Mutations: sites 1, 3, 5, 8 one each, site 9 three variants two: 6. a1(5) = 25/12.
  EXPECT_TRUE(bench.Has("         Theta(s): " + Format(6.0 / (25.0 / 12.0) / 9.0, "0.00000")));
  EXPECT_TRUE(bench.Has("    Number of mutations: 6"));
  ASSERT_EQ(bench.channel.Grid1.Rows.size(), 10u);
  EXPECT_EQ(bench.channel.Grid1.ColumnTitles[2], "SilentDif");
  EXPECT_EQ(bench.channel.Grid1.Rows[0][2], "   2.00");
  EXPECT_EQ(bench.channel.Grid1.Rows[0][3], "9.00");
  // Without the silent option and without the table, nothing but the head and the region list.
  SynonymousBench plain(rows, -1);
  ASSERT_TRUE(plain.Run());
  EXPECT_FALSE(Contains(plain.Body(), "Nucleotide Diversity"));
  EXPECT_TRUE(plain.channel.Grid1.Rows.empty());
}

TEST(SynonymousRun, TheSilentClassPoolsSynonymousAndNoncodingSites) {
  // Sites 1-6 code (the three sequences above), 7-9 do not: AAC, AAC, AGC.
  SynonymousBench bench({"CTTAAAAAC", "CTCAAAAAC", "CTCGAAAGC"}, 6);
  SynonymousOptions options;
  options.Silent = true;
  ASSERT_TRUE(bench.Run(options));
  EXPECT_TRUE(bench.Has(" Number non-coding positions analyzed: 3"));
  // Silent sites per pair 4/3 + 3 = 13/3; silent differences (1,2) 1, (1,3) 2, (2,3) 1.
  // Pi = (3/13 + 6/13 + 3/13) / 3 = 4/13.
  EXPECT_TRUE(bench.Has("    Synonymous sites and non-coding positions. Number of sites: 4.33"));
  EXPECT_TRUE(bench.Has("         Pi(s): " + Format(4.0 / 13.0, "0.00000")));
  // The coding Pi(s) is made before the noncoding differences join in.
  EXPECT_TRUE(bench.Has("         Pi(s): 0.50000"));
  // Mutations 1 synonymous + 1 noncoding over a1 (3/2) and 13/3 sites.
  EXPECT_TRUE(bench.Has("         Theta(s): " + Format(2.0 / (1.5 * 13.0 / 3.0), "0.00000")));
  EXPECT_EQ(bench.channel.Grid1.ColumnTitles[3], "SilentPos");
  EXPECT_EQ(bench.channel.Grid1.Rows[1][2], "   2.00");
  EXPECT_EQ(bench.channel.Grid1.Rows[1][3], "4.33");
}

TEST(SynonymousRun, StopCodonsRaiseTheNotice) {
  SynonymousBench bench({"TAACTT", "TAGCTC"});
  ASSERT_TRUE(bench.Run());
  EXPECT_TRUE(bench.Has(" Stop codons have been found in the coding region. Ovelt has considered"));
  EXPECT_TRUE(bench.Has("  that they could code for a rare amino acid (the 21st amino acid;"));
  EXPECT_TRUE(bench.Has("  for example for Selenocysteine, Secys)"));
  ASSERT_FALSE(bench.platform.Boxes.empty());
  EXPECT_EQ(bench.platform.Boxes.back().Text, kStopCodonNotice);
}

TEST(SynonymousRun, ACodonCutByTheRegionIsNotCounted) {
  SynonymousBench bench({"CTTAAACTA", "CTCAAGCTG"});
  SynonymousOptions options;
  options.RegionTo = 8;
  ASSERT_TRUE(bench.Run(options));
  EXPECT_TRUE(bench.Has(" Number of codons analyzed: 2   ( 6 sites )"));
  // Synonymous differences: CTT CTC and AAA AAG only; CTA CTG lies across the end of the region.
  EXPECT_EQ(bench.channel.Grid1.Rows[0][2], "   2.00");
  // Its third position, a synonymous change, is not counted in Theta's mutations either.
  EXPECT_TRUE(bench.Has("    Number of mutations: 2"));
}

TEST(SynonymousRun, ARegionOutsideTheSitesIsRefused) {
  SynonymousBench bench({"CTTAAA", "CTCAAG"});
  SynonymousOptions options;
  options.RegionFrom = 5;
  options.RegionTo = 2;
  EXPECT_FALSE(bench.Run(options));
  EXPECT_EQ(bench.channel.ReopenDialog, 1);
}

TEST(SynonymousRun, TiedNetworksMayCloseTheThetaGate) {
  // TTT, CTC, CTA: the tied pathways and networks give the third site 22 (the gate stays open)
  // or 12 (a mixed code: theta is left out), by the draws of the run's seed.
  bool open = false, closed = false;
  for (int32_t seed = 1; seed <= 30; ++seed) {
    SynonymousBench bench({"TTT", "CTC", "CTA"});
    SynonymousOptions options;
    options.Seed = seed;
    ASSERT_TRUE(bench.Run(options));
    const bool theta = Contains(bench.Body(), "Theta(s)");
    open = open || theta;
    closed = closed || !theta;
    // The same seed, the same report.
    SynonymousBench again({"TTT", "CTC", "CTA"});
    ASSERT_TRUE(again.Run(options));
    EXPECT_EQ(again.Body(), bench.Body()) << "seed " << seed;
  }
  EXPECT_TRUE(open && closed);
}

TEST(SynonymousRun, ComplexCodonsCloseTheGateWithTheirLines) {
  SynonymousBench bench({"TTT", "CTC", "ATA"});
  ASSERT_TRUE(bench.Run());
  EXPECT_FALSE(Contains(bench.Body(), "Theta(s)"));
  EXPECT_TRUE(bench.Has("      Some codons with complex evolutionary paths were detected."));
  EXPECT_TRUE(bench.Has("      Information from these codons were not used in computing theta."));
  EXPECT_TRUE(bench.Has("           More information in the Polymorphic Sites module"));
}

std::vector<std::string> ManyRows(int n) {
  std::vector<std::string> rows;
  for (int i = 0; i < n; ++i) rows.push_back(i % 3 == 0 ? "CTTAAA" : i % 3 == 1 ? "CTCAAA" : "CTCGAA");
  return rows;
}

TEST(SynonymousRun, SequenceLinesStopAt601Sequences) {
  SynonymousBench below(ManyRows(600));
  ASSERT_TRUE(below.Run());
  EXPECT_TRUE(Contains(below.Body(), " SS, Synonymous sites.   NSS, NonSynonymous sites"));
  SynonymousBench at(ManyRows(601));
  ASSERT_TRUE(at.Run());
  EXPECT_FALSE(Contains(at.Body(), "SS, Synonymous sites"));
  EXPECT_TRUE(Contains(at.Body(), "         Pi(s): "));
}

TEST(SynonymousRun, ExactlyTheLimitOfRowsIsShown) {
  SynonymousBench bench(ManyRows(181));  // 181 x 180 / 2 = 16290 pairs
  ASSERT_TRUE(bench.Run());
  EXPECT_EQ(bench.channel.Grid1.Rows.size(), 16290u);
  EXPECT_EQ(bench.platform.Boxes.size(), 0u);
}

TEST(SynonymousRun, AboveTheLimitTheTableGoesToAFile) {
  testing::TempDir dir;
  SynonymousBench bench(ManyRows(182));  // 16471 pairs
  bench.platform.Answers.push_back(MsgAnswer::kYes);
  bench.platform.SaveNames.push_back(dir.File("pairs.out"));
  ASSERT_TRUE(bench.Run());
  ASSERT_EQ(bench.platform.Boxes.size(), 1u);
  EXPECT_TRUE(Contains(bench.platform.Boxes[0].Text,
                       "The number of pairwise comparisons is too big to be displayed on the "
                       "screen. There are 16471"));
  EXPECT_TRUE(bench.channel.Grid1.Rows.empty());
  EXPECT_EQ(bench.channel.TooBigSaved, 1);
  EXPECT_EQ(bench.channel.Windows().Grid, false);
  std::ifstream file(dir.File("pairs.out"), std::ios::binary);
  std::stringstream bytes;
  bytes << file.rdbuf();
  const std::string text = bytes.str();
  EXPECT_TRUE(Contains(text, SynonymousPairTextHead(false) + "\r\n"));
  // The rule, an empty line, the head, the rule, then one line per pair.
  size_t lines = 0;
  for (const char c : text) lines += c == '\n' ? 1 : 0;
  EXPECT_EQ(lines, 16471u + 5u);
  // The first pair (CTT AAA, CTC AAA) and the last (181, 182: CTT AAA and CTC AAA again).
  EXPECT_TRUE(Contains(text, "seq1        seq2           1.00  1.33    n.a.  0.00  4.67  0.0000\r\n"));
  EXPECT_TRUE(Contains(text, "seq181      seq182         1.00  1.33    n.a.  0.00  4.67  0.0000\r\n"));
  EXPECT_TRUE(std::find(bench.platform.StatusTexts.begin(), bench.platform.StatusTexts.end(),
                        "Writing output on a file...") != bench.platform.StatusTexts.end());
  // No: the report stands without its table.
  SynonymousBench declined(ManyRows(182));
  ASSERT_TRUE(declined.Run());
  EXPECT_EQ(declined.channel.TooBigCancel, 1);
  EXPECT_TRUE(Contains(declined.Body(), "         Pi(s): "));
}

TEST(PairOfRow, RowsInPairOrder) {
  int64_t row = 0;
  for (int32_t i = 1; i < 7; ++i)
    for (int32_t j = i + 1; j <= 7; ++j)
      EXPECT_EQ(PairOfRow(7, row++), std::make_pair(i, j));
}

TEST(SynonymousJson, KeysIntegersAndNulls) {
  SynonymousBench bench({"CTTAAA", "CTCAAA", "CTCGAA"});
  ASSERT_TRUE(bench.Run());
  const std::string& json = bench.outcome.Json;
  EXPECT_EQ(json.rfind("{\"analysis\":\"Synonymous and NonSyn. Substitutions\",\"region_from\":1,",
                       0),
            0u)
      << json;
  for (const char* member :
       {"\"sequences\":3,", "\"net_sites\":6,", "\"genetic_code\":\"Nuclear Universal\"",
        "\"coding_regions\":[{\"coding\":true,\"from\":1,\"to\":6}]", "\"codons\":2,",
        "\"coding_sites\":6,", "\"codons_with_gaps\":0,", "\"stop_codons\":false,",
        "\"pi_s\":0.5", "\"pi_a\":0.142857", "\"syn_mutations\":1,", "\"nonsyn_mutations\":1,",
        "\"theta_s\":0.4999999", "\"sequence_sites\":[{\"name\":\"seq1\",",
        "\"pair_table\":[{\"seq1\":1,\"seq2\":2,\"syn_dif\":1,", "\"ks\":null,"})
    EXPECT_TRUE(Contains(json, member)) << member << " in " << json;
  EXPECT_FALSE(Contains(json, "\"silent\"")) << json;
  // With no synonymous site at all, Pi(s) and Theta(s) are not determined.
  SynonymousBench none({"ATGTGG", "ATGTGG", "ATGTGG"});
  ASSERT_TRUE(none.Run());
  for (const char* member : {"\"pi_s\":null,", "\"pi_s_jc\":null,", "\"theta_s\":null,"})
    EXPECT_TRUE(Contains(none.outcome.Json, member)) << member << " in " << none.outcome.Json;
}

}  // namespace
}  // namespace ovelt
