// The report of DNA divergence between populations, line by line.
#include <gtest/gtest.h>

#include <string>

#include "analyses/divergence/dna_divergence/dna_divergence_report.h"
#include "two_populations_fixture.h"

namespace ovelt {
namespace {

std::string Crlf(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

test::OwnedSelection HandWorked() {
  //                                 site 12345678
  return test::TwoPopulations({"AAAACAA-",   //
                               "AACACCGA",   //
                               "ACCACGTA"},  //
                              {"AAAGATAA",   //
                               "AACGATAA"});
}

TEST(DnaDivergenceReport, HandWorkedAlignment) {
  // The numbers of the sums test: L = 7, k1 = 10/3, Pi(1) = 10/21, k2 = 1, Pi(2) = 1/7,
  // S = 6, k(t) = 3.8, Pi(t) = 3.8/7, K = 4.5, Dxy = 9/14, Da = 1/3; kinds 3, 5, 0, 1.
  const std::string expected = Crlf(R"(
 Input Data File: /data/sample.fas
 Selected region: 1-8
     Number of sites: 8
 Total sites (excluding alignment gaps): 7
 Population 1: Pop1
   Number of sequences: 3
   Number of polymorphic sites: 4
      Total number of mutations: 6
   Average number of nucleotide differences, k: 3.333
   Nucleotide diversity, Pi(1): 0.47619
 Population 2: Pop2
   Number of sequences: 2
   Number of polymorphic sites: 1
      Total number of mutations: 1
   Average number of nucleotide differences, k: 1.000
   Nucleotide diversity, Pi(2): 0.14286
 Total data:  
   Number of sequences: 5
   Number of polymorphic sites: 6
      Total number of mutations: 9
   Average number of nucleotide differences, k: 3.800
   Nucleotide diversity, Pi(t): 0.54286
 Between populations:  
   Number of fixed differences: 3
   Mutations polymorphic in population 1, but monomorphic in population 2: 5
   Mutations polymorphic in population 2, but monomorphic in population 1: 0
   Shared Mutations: 1
   Average number of nucleotide differences between populations: 4.500
   Average number of nuc. subs. per site between populations, Dxy: 0.64286
   Number of net nuc. subs. per site between populations, Da: 0.33333
)");
  EXPECT_EQ(DnaDivergenceReport(ComputeDnaDivergence(HandWorked(), false)), expected);
}

TEST(DnaDivergenceReport, JukesCantorLines) {
  const DnaDivergenceResult r = ComputeDnaDivergence(HandWorked(), true);
  const std::string text = DnaDivergenceReport(r);
  // Pi(2)JC: one pair, one difference over 7 sites: -(3/4) ln(17/21) = 0.15848.
  EXPECT_NE(text.find("   Nucleotide diversity with Jukes and Cantor, Pi(2)JC: 0.15848\r\n"),
            std::string::npos);
  // Population 2 has one pair: its variance (n = 2) is d^2 / 4 > 0, so a deviation is printed
  // and equals d / 2.
  EXPECT_NE(text.find("      Standard deviation of Pi(2)JC: 0.07924\r\n"), std::string::npos);
  EXPECT_NE(text.find("   Dxy with Jukes and Cantor, Dxy(JC): "), std::string::npos);
  EXPECT_NE(text.find("   Da with Jukes and Cantor, Da(JC): "), std::string::npos);
  EXPECT_EQ(text.find("not determined"), std::string::npos);
}

TEST(DnaDivergenceReport, UndeterminedJukesCantorValues) {
  // Every pair differs at the single site: nothing is determined.
  const std::string text = DnaDivergenceReport(
      ComputeDnaDivergence(test::TwoPopulations({"A", "C"}, {"G", "T"}), true));
  EXPECT_NE(text.find("   Nucleotide diversity with Jukes and Cantor, Pi(1)JC: not determined\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("   Dxy with Jukes and Cantor, Dxy(JC): not determined\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("   Da with Jukes and Cantor, Da(JC): not determined\r\n"),
            std::string::npos);
  EXPECT_EQ(text.find("Standard deviation"), std::string::npos);
}

TEST(DnaDivergenceReport, NoNetSiteLeavesOutPiOfTheTotal) {
  const std::string text = DnaDivergenceReport(
      ComputeDnaDivergence(test::TwoPopulations({"A-", "A?"}, {"-C", "AC"}), false));
  EXPECT_NE(text.find(" Total sites (excluding alignment gaps): 0\r\n"), std::string::npos);
  EXPECT_NE(text.find("   Nucleotide diversity, Pi(1): 0.00000\r\n"), std::string::npos);
  EXPECT_EQ(text.find("Pi(t)"), std::string::npos);
}

}  // namespace
}  // namespace ovelt
