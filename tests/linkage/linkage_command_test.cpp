// The command through the registry and the one runner: grid or file by the number of pairs,
// the file's head after the question, a declined question, the chart and the JSON.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "analyses/linkage/linkage_options.h"
#include "command/result_json.h"
#include "output/graph_data.h"
#include "output/graph_layout.h"
#include "polymorphism/run_fixture.h"
#include "support/temp_dir.h"

namespace ovelt {
namespace {

// `sites` parsimony-informative sites over four sequences, all splitting them 2:2 the same way.
std::vector<std::string> InformativeSites(int sites) {
  const auto l = static_cast<size_t>(sites);
  return {std::string(l, 'A'), std::string(l, 'A'), std::string(l, 'G'), std::string(l, 'G')};
}

std::string Slurp(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

TEST(LinkageCommand, At16290PairsTheGridIsUsed) {
  test::RunBench bench(InformativeSites(181));
  ASSERT_TRUE(bench.Run(CommandId::kLinkageDisequilibrium, LinkageOptions{}));
  EXPECT_EQ(bench.channel.Grid1.Rows.size(), 16290u);
  EXPECT_TRUE(bench.platform.Boxes.empty());
  EXPECT_EQ(bench.channel.Grid1.ColumnTitles,
            (std::vector<std::string>{"Site1", "Site2", "Dist", "D", "D'", "R"}));
  // Sites 1 and 2: (2,0,0,2), D = 4/16 = 0.25, D' = 1, R = 1.
  EXPECT_EQ(bench.channel.Grid1.Rows[0],
            (std::vector<std::string>{"1", "2", "1", " 0.250", " 1.000", " 1.000"}));
}

TEST(LinkageCommand, Above16290PairsTheQuestionComesAndTheFileHasItsHead) {
  testing::TempDir dir;
  test::RunBench bench(InformativeSites(182));  // 182 x 181 / 2 = 16471 pairs
  bench.platform.Answers.push_back(MsgAnswer::kYes);
  bench.platform.SaveNames.push_back(dir.File("pairs.out"));
  LinkageOptions options;
  options.Fisher = true;
  ASSERT_TRUE(bench.Run(CommandId::kLinkageDisequilibrium, options));
  ASSERT_FALSE(bench.platform.Boxes.empty());
  const std::string& question = bench.platform.Boxes.front().Text;
  EXPECT_NE(question.find("There are 16471 rows !!!"), std::string::npos);
  EXPECT_NE(question.find("You will need about 1070 kb. of disk space"), std::string::npos);
  EXPECT_TRUE(bench.channel.Grid1.Rows.empty());
  const std::string file = Slurp(dir.File("pairs.out"));
  const std::string banner = " Ovelt  Ver. 4.00.5" + std::string(24, ' ') +
                             "05 - March - 2004  14:05:09\r\n";
  ASSERT_EQ(file.substr(0, banner.size()), banner);
  const std::string rest =
      " Linkage Disequilibrium\r\n"
      " ----------------------\r\n"
      " Selected region: 1-182   Number of sites: 182\r\n"
      " Total number of sites (excluding sites with gaps / missing data): 182\r\n"
      " Only Informative Polymorphic sites were considered\r\n"
      " Number of polymorphic sites analyzed: 182\r\n"
      " Number of pairwise comparisons: 16471\r\n"
      "\r\n"
      "Site1  Site2   Dist     D       D'      R    Fisher\r\n"
      "\r\n"
      // (2,0,0,2): Fisher's P = 2/6 (the two extreme tables of margins 2, 2 of 4).
      "    1      2      1   0.250   1.000   1.000  0.333    \r\n";
  EXPECT_NE(file.find(rest), std::string::npos) << file.substr(0, 800);
  // The header, then one line per pair.
  size_t lines = 0;
  for (const char c : file) lines += c == '\n' ? 1 : 0;
  EXPECT_EQ(lines, 16471u + 4u + 10u);
}

TEST(LinkageCommand, ANoToTheQuestionEndsTheRunWithoutAReport) {
  test::RunBench bench(InformativeSites(182));
  EXPECT_FALSE(bench.Run(CommandId::kLinkageDisequilibrium, LinkageOptions{}));
  EXPECT_TRUE(bench.channel.TextBuffer.empty());
}

TEST(LinkageCommand, OneAnalysedSiteSaysSo) {
  test::RunBench bench({"AAC", "AAC", "AGT", "AGT"});
  LinkageOptions options;
  options.RegionTo = 2;
  EXPECT_FALSE(bench.Run(CommandId::kLinkageDisequilibrium, options));
  EXPECT_EQ(bench.platform.LastBox(), "Input data file:  sample.fas\n\n No pairwise comparisons");
}

TEST(LinkageCommand, TheChartMarksTheSignificantPairs) {
  // Eight sequences: sites 1 and 2 split them 4:4 the same way (Fisher P = 2/70 < 0.05); site
  // 3 splits them independently of both.
  test::RunBench bench({"AAA", "AAC", "AAA", "AAC", "GGA", "GGC", "GGA", "GGC"});
  LinkageOptions options;
  options.Fisher = true;
  ASSERT_TRUE(bench.Run(CommandId::kLinkageDisequilibrium, options));
  const GraphData& graph = bench.channel.Graph();
  EXPECT_EQ(graph.GraphKind, kGraphLinkage);
  ASSERT_EQ(graph.GraphRows, 3);
  EXPECT_EQ(graph.Table.at(1, kLinkageSignificantColumn), 1.0f);
  EXPECT_EQ(graph.Table.at(2, kLinkageSignificantColumn), 0.0f);
  EXPECT_EQ(graph.Table.at(1, 1), 1.0f);  // distance
  EXPECT_EQ(graph.Table.at(1, 7), 1.0f);  // R^2
}

TEST(LinkageCommand, JsonAndGridRowsCarryThePairs) {
  test::RunBench bench({"AACG", "AACA", "AGTA", "GGTA", "GACG", "GGTA"});
  LinkageOptions options;
  options.ChiSquare = true;
  ASSERT_TRUE(bench.Run(CommandId::kLinkageDisequilibrium, options, true));
  const std::string& json = bench.outcome.Json;
  for (const char* key : {"\"analysis\":\"Linkage Disequilibrium\"", "\"sites_analyzed\":4",
                          "\"pairwise_comparisons\":6", "\"chi_square_significant\":1",
                          "\"zns\":", "\"wall_q\":0.5", "\"regressions\":[", "\"site_pairs\":[",
                          "\"d_prime\":", "\"chi_square_mark\":\"*\""})
    EXPECT_NE(json.find(key), std::string::npos) << key << "\n" << json.substr(0, 600);
  EXPECT_EQ(json.find("fisher_p"), std::string::npos);
  EXPECT_EQ(bench.channel.Grid1.Data.Rows.size(), 6u);
  EXPECT_EQ(bench.channel.Grid1.Data.Keys.front(), "site1");
}

}  // namespace
}  // namespace ovelt
