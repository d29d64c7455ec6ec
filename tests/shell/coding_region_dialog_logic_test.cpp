#include "shell/coding_region_dialog_logic.h"

#include <gtest/gtest.h>

#include "core/alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

TEST(ParseSiteField, TakesDigitsWithBlanksOnly) {
  EXPECT_EQ(ParseSiteField(" 12 "), 12);
  EXPECT_EQ(ParseSiteField("0"), 0);
  EXPECT_FALSE(ParseSiteField("").has_value());
  EXPECT_FALSE(ParseSiteField("   ").has_value());
  EXPECT_FALSE(ParseSiteField("1a").has_value());
  EXPECT_FALSE(ParseSiteField("-3").has_value());
  EXPECT_FALSE(ParseSiteField("99999999999").has_value());
}

TEST(CodingRegionSession, InvalidRegionsAreRefusedWithTheSelectionMessage) {
  ActiveData ad = MakeAlignment({"ATGAAATTTGGGTAA", "ATGAAATTTGGGTAA"});
  EXPECT_EQ(LastSiteCaption(ad), "Last nt. = 15");
  CodingRegionSession session(ad);
  for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
           {"", "15"}, {"1", ""}, {"x", "3"}, {"0", "3"}, {"5", "4"}, {"1", "16"}}) {
    EXPECT_EQ(session.Assign(from, to, true, 1), std::string(" Invalid Selection ")) << from;
  }
  EXPECT_FALSE(session.Changed());
}

TEST(CodingRegionSession, FirstPositionTwoAtSiteTenContinuesTheCycle) {
  ActiveData ad = MakeAlignment({std::string(20, 'A')});
  CodingRegionSession session(ad);
  ASSERT_FALSE(session.Assign("10", "20", true, 2).has_value());
  for (int site = 1; site <= 20; ++site) {
    const int expected = site < 10 ? 0 : (site - 10 + 1) % 3 + 1;  // 2, 3, 1, 2, ...
    EXPECT_EQ(session.CodonPositions()[static_cast<size_t>(site)], expected) << site;
  }
  EXPECT_EQ(session.LastCodingSite(), 20);
  EXPECT_TRUE(session.Changed());
}

TEST(CodingRegionSession, NothingReachesTheDataBeforeCommit) {
  ActiveData ad = MakeAlignment({std::string(12, 'A')});
  CodingRegionSession session(ad);
  ASSERT_FALSE(session.Assign("1", "12", true, 1).has_value());
  EXPECT_EQ(ad.CodonPosition, std::vector<int16_t>(13, 0));
  EXPECT_EQ(ad.Format.CodingAssigned, -1);
  ad.Region = {3, 5};
  session.Commit(ad);
  EXPECT_EQ(ad.CodonPosition[4], 1);
  EXPECT_EQ(ad.CodonPosition[12], 3);
  EXPECT_EQ(ad.Format.CodingAssigned, 1);
  EXPECT_EQ(ad.LastCodingSite, 12);
  EXPECT_EQ(ad.Region.RegionFrom, 1);
  EXPECT_EQ(ad.Region.RegionTo, 12);
  EXPECT_EQ(ad.CodingFlag[1], "1L");  // AAA: Lys
}

TEST(CodingRegionSession, ANoncodingGapKeepsTheFrameAndTheCodonRunsAcrossIt) {
  // Sites:  1   4   7   10  13  16  19
  ActiveData ad = MakeAlignment({"ATGAAACCCGGGTTTAAACC"});
  CodingRegionSession session(ad);
  ASSERT_FALSE(session.Assign("1", "20", true, 1).has_value());
  ASSERT_FALSE(session.Assign("5", "7", false, 1).has_value());
  const std::vector<int16_t> expected{0, 1, 2, 3, 1, 0, 0, 0, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2};
  EXPECT_EQ(session.CodonPositions(), expected);
  session.Commit(ad);
  // ATG (1-3), then A, C, C at sites 4, 8, 9: ACC, Thr, across the noncoding sites 5-7.
  EXPECT_EQ(ad.CodingFlag[3], "1t");  // ATG: Met
  EXPECT_EQ(ad.CodingFlag[4], "2T");
  EXPECT_EQ(ad.CodingFlag[5], "4n");
  EXPECT_EQ(ad.CodingFlag[8], "2h");
  EXPECT_EQ(ad.CodingFlag[9], "2r");
  EXPECT_EQ(ad.CodingFlag[10], "1G");  // GGG: Gly
}

TEST(CodingRegionSession, AClosingStopCodonCanBeMadeNoncoding) {
  ActiveData ad = MakeAlignment({"ATGAAATTTGGGTAA", "ATGAAATTTGGGTAA"});
  CodingRegionSession session(ad);
  ASSERT_FALSE(session.Assign("1", "15", true, 1).has_value());
  const std::optional<StopCodonQuestion> question = session.StopQuestion();
  ASSERT_TRUE(question.has_value());
  EXPECT_EQ(question->text,
            "The last codon (sites: 13, 14, 15) is an stop codon. Stop codons should be assigned "
            "as a noncoding positions.\nDo you want that Ovelt assign this stop codon as a "
            "noncoding position ?");
  session.AcceptStopQuestion(*question);
  EXPECT_FALSE(session.StopQuestion().has_value());
  session.Commit(ad);
  EXPECT_EQ(ad.CodonPosition[13], 0);
  EXPECT_EQ(ad.CodonPosition[15], 0);
  EXPECT_EQ(ad.CodonPosition[12], 3);
  EXPECT_EQ(ad.LastCodingSite, 12);
}

TEST(CodingRegionSession, TgaClosesTheRegionOnlyWhereItIsAStop) {
  ActiveData tga = MakeAlignment({"ATGAAATTTGGGTGA"});
  tga.Format.GeneticCodeIndex = 2;  // mtDNA Mammals: TGA is W
  CodingRegionSession mammal(tga);
  ASSERT_FALSE(mammal.Assign("1", "15", true, 1).has_value());
  EXPECT_FALSE(mammal.StopQuestion().has_value());
  tga.Format.GeneticCodeIndex = 1;
  CodingRegionSession universal(tga);
  ASSERT_FALSE(universal.Assign("1", "15", true, 1).has_value());
  EXPECT_TRUE(universal.StopQuestion().has_value());

  ActiveData aga = MakeAlignment({"ATGAAATTTGGGAGA"});
  aga.Format.GeneticCodeIndex = 2;  // AGA is a stop in mammal mitochondria
  CodingRegionSession session(aga);
  ASSERT_FALSE(session.Assign("1", "15", true, 1).has_value());
  EXPECT_TRUE(session.StopQuestion().has_value());
}

TEST(CodingRegionSession, CommitWithoutChangesOnlyResetsRegionAndCode) {
  ActiveData ad = MakeAlignment({"ATGAAA"});
  ad.Format.GeneticCodeIndex = 0;
  ad.Region = {2, 3};
  CodingRegionSession session(ad);
  ASSERT_FALSE(session.Assign("1", "6", false, 1).has_value());  // already noncoding
  EXPECT_FALSE(session.Changed());
  session.Commit(ad);
  EXPECT_EQ(ad.Format.CodingAssigned, -1);
  EXPECT_EQ(ad.Format.GeneticCodeIndex, 1);
  EXPECT_EQ(ad.Region.RegionFrom, 1);
  EXPECT_EQ(ad.Region.RegionTo, 6);
}

}  // namespace
}  // namespace ovelt
