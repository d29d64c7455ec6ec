#include "core/coding_flag.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

std::vector<std::string> Flags(const ActiveData& ad) {
  return {ad.CodingFlag.begin() + 1, ad.CodingFlag.end()};
}

TEST(CodingFlag, CodonsAlternateTheirShadingDigit) {
  // GCT Ala, GGA Gly, then a noncoding site.
  ActiveData ad = MakeAlignment({"GCTGGAC", "GCTGGAT"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 6, 1));
  RebuildCodingTables(ad);
  EXPECT_EQ(Flags(ad), (std::vector<std::string>{"1A", "1l", "1a", "2G", "2l", "2y", "4n"}));
  EXPECT_EQ(ad.LastCodingSite, 6);
}

TEST(CodingFlag, CodonRunsAcrossANoncodingStretch) {
  // Sites 1-3 ATG (Met); site 4 opens a codon that sites 8 and 9 complete: G, T, T = GTT Val;
  // sites 10-12 GGA (Gly).
  ActiveData ad = MakeAlignment({"ATGGCCTTTGGA"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 12, 1));
  ASSERT_TRUE(AssignNonCodingRegion(ad, 5, 7));
  RebuildCodingTables(ad);
  EXPECT_EQ(Flags(ad), (std::vector<std::string>{"1M", "1e", "1t", "2V", "4n", "4n", "4n", "2a",
                                                 "2l", "1G", "1l", "1y"}));
}

TEST(CodingFlag, GapOrMissingCellGivesQuestionMarks) {
  ActiveData ad = MakeAlignment({"A-GTT?", "ACGTTA"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 6, 1));
  RebuildCodingTables(ad);
  EXPECT_EQ(Flags(ad), (std::vector<std::string>{"1?", "1?", "1?", "2?", "2?", "2?"}));
}

TEST(CodingFlag, PositionsThatCompleteNoCodon) {
  // First position 2 at site 1: sites 1 and 2 (2, 3) complete nothing; sites 3-5 TGG Trp;
  // site 6 opens a codon that the end of the region leaves open.
  ActiveData ad = MakeAlignment({"AATGGCA"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 6, 2));
  RebuildCodingTables(ad);
  EXPECT_EQ(Flags(ad), (std::vector<std::string>{"3#", "3#", "1T", "1r", "1p", "3#", "4n"}));
}

TEST(CodingFlag, OutOfOrderPositionsBreakTheCodon) {
  // Positions 1, 2, 1, 2, 3: the first codon is abandoned when a new first position comes.
  ActiveData ad = MakeAlignment({"CCATG"});
  ad.CodonPosition = {0, 1, 2, 1, 2, 3};
  RebuildCodingTables(ad);
  EXPECT_EQ(Flags(ad), (std::vector<std::string>{"3#", "3#", "1M", "1e", "1t"}));
}

TEST(CodingFlag, StopCodonReadsStop) {
  ActiveData ad = MakeAlignment({"TAA"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 3, 1));
  RebuildCodingTables(ad);
  EXPECT_EQ(Flags(ad), (std::vector<std::string>{"1S", "1t", "1o"}));
}

TEST(CodingFlag, GeneticCodeChangeRebuildsTheFlags) {
  ActiveData ad = MakeAlignment({"AGA"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 3, 1));
  LeaveForm14(ad, true);
  EXPECT_EQ(Flags(ad), (std::vector<std::string>{"1A", "1r", "1g"}));  // Arg
  ad.PrefTableName = "Drosophila_melanogaster";
  EXPECT_TRUE(ChangeGeneticCode(ad, 2));  // vertebrate mitochondria: AGA is a stop
  EXPECT_EQ(ad.Format.GeneticCodeIndex, 2);
  EXPECT_EQ(ad.PrefTableName, "None");  // no built-in table for this code
  EXPECT_EQ(ad.GeneticCode.NuclearCodeFlag, 0);
  EXPECT_EQ(Flags(ad), (std::vector<std::string>{"1S", "1t", "1o"}));
  EXPECT_FALSE(ChangeGeneticCode(ad, 2));
  EXPECT_TRUE(ChangeGeneticCode(ad, 1));
  EXPECT_EQ(ad.PrefTableName, "Drosophila_melanogaster");
  EXPECT_TRUE(ChangeGeneticCode(ad, 2));
  EXPECT_FALSE(ChangeGeneticCode(ad, 11));
  EXPECT_FALSE(ChangeGeneticCode(ad, 0));
  EXPECT_EQ(ad.Format.GeneticCodeIndex, 2);
}

TEST(CodingFlag, CodonPositionIsSizedToTheSites) {
  ActiveData ad = MakeAlignment({"ACGT"});
  ad.CodonPosition = {0};
  RebuildCodingTables(ad);
  EXPECT_EQ(ad.CodonPosition, std::vector<int16_t>(5, 0));
  EXPECT_EQ(Flags(ad), std::vector<std::string>(4, "4n"));
}

}  // namespace
}  // namespace ovelt
