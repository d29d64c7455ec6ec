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

}  // namespace
}  // namespace ovelt
