#include "output/graph_print_head.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ovelt {
namespace {

TEST(GraphPrintHeadTest, PolymorphismChartWithASequenceSet) {
  GraphPrintFacts facts;
  facts.FilePath = "/data/adh.fas";
  facts.Date = {2004, 3, 5, 10, 0, 0};
  facts.GraphKind = 1;
  facts.PopulationName = "Africa";
  facts.SequencesUsed = 12;
  const std::vector<std::string> lines = GraphPrintHead(facts);
  const std::vector<std::string> expected{std::string(72, '-'),
                                          " Ovelt  Ver. 4.00.5",
                                          " 05 - March - 2004",
                                          " Input Data File: /data/adh.fas",
                                          " DNA Polymorphism ",
                                          "------------------",
                                          " Population used: Africa",
                                          "    Number of sequences used: 12"};
  EXPECT_EQ(lines, expected);
}

TEST(GraphPrintHeadTest, LinkageTitleUnderlinedToItsLength) {
  GraphPrintFacts facts;
  facts.GraphKind = 3;
  facts.SequencesUsed = 4;
  const std::vector<std::string> lines = GraphPrintHead(facts);
  ASSERT_EQ(lines.size(), 7u);
  EXPECT_EQ(lines[4], " Linkage Disequilibrium ");
  EXPECT_EQ(lines[5], std::string(24, '-'));
  EXPECT_EQ(lines[6], "    Number of sequences used: 4");
}

TEST(GraphPrintHeadTest, OtherChartsHaveNoTitleLines) {
  GraphPrintFacts facts;
  facts.GraphKind = 5;
  const std::vector<std::string> lines = GraphPrintHead(facts);
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[3], " Input Data File: ");
}

TEST(GraphPrintHeadTest, OutgroupChartNamesBothSets) {
  GraphPrintFacts facts;
  facts.GraphKind = 7;
  facts.PopulationName = "melanogaster";
  facts.SequencesUsed = 11;
  facts.SecondName = "simulans";
  facts.SecondSequences = 1;
  const std::vector<std::string> lines = GraphPrintHead(facts);
  ASSERT_EQ(lines.size(), 8u);
  EXPECT_EQ(lines[4], " Intraspecific Data: melanogaster");
  EXPECT_EQ(lines[5], "     Number of sequences: 11");
  EXPECT_EQ(lines[6], " Interspecific Data (outgroup): simulans");
  EXPECT_EQ(lines[7], "     Number of sequences: 1");
}

TEST(GraphPrintHeadTest, DivergenceChartNamesBothPopulationsUnderItsTitle) {
  GraphPrintFacts facts;
  facts.GraphKind = 2;
  facts.PopulationName = "North";
  facts.SequencesUsed = 6;
  facts.SecondName = "South";
  facts.SecondSequences = 5;
  const std::vector<std::string> lines = GraphPrintHead(facts);
  ASSERT_EQ(lines.size(), 10u);
  EXPECT_EQ(lines[4], " DNA Divergence between populations");
  EXPECT_EQ(lines[5], std::string(35, '-'));
  EXPECT_EQ(lines[6], " Population 1: North");
  EXPECT_EQ(lines[7], "     Number of sequences: 6");
  EXPECT_EQ(lines[8], " Population 2: South");
  EXPECT_EQ(lines[9], "     Number of sequences: 5");
}

}  // namespace
}  // namespace ovelt
