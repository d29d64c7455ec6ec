#include "core/stop_codon.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

ActiveData CodingAlignment(const std::string& first_sequence, int16_t code) {
  ActiveData ad = MakeAlignment({first_sequence, std::string(first_sequence.size(), 'A')});
  ad.Format.GeneticCodeIndex = code;
  EXPECT_TRUE(AssignCodingRegion(ad, 1, static_cast<int32_t>(first_sequence.size()), 1));
  return ad;
}

TEST(StopCodon, TgaIsNoStopInTable2) {
  EXPECT_FALSE(STOPenelFinal(CodingAlignment("ATGTGA", 2)).has_value());
}

TEST(StopCodon, AgaIsAStopInTable2) {
  const auto question = STOPenelFinal(CodingAlignment("ATGAGA", 2));
  ASSERT_TRUE(question.has_value());
  EXPECT_EQ(question->a, 4);
  EXPECT_EQ(question->b, 5);
  EXPECT_EQ(question->c, 6);
  EXPECT_EQ(question->text,
            "The last codon (sites: 4, 5, 6) is an stop codon. Stop codons should be assigned as "
            "a noncoding positions.\nDo you want that Ovelt assign this stop codon as a noncoding "
            "position ?");
}

TEST(StopCodon, TgaIsAStopInTheUniversalCode) {
  EXPECT_TRUE(STOPenelFinal(CodingAlignment("ATGTGA", 1)).has_value());
  EXPECT_FALSE(STOPenelFinal(CodingAlignment("ATGAGA", 1)).has_value());
}

TEST(StopCodon, LastPosition2LooksTwoSitesBack) {
  // Positions 1 2 3 1 2 3 1 2: the last complete codon is sites 4-6.
  const auto question = STOPenelFinal(CodingAlignment("ATGTAAAT", 1));
  ASSERT_TRUE(question.has_value());
  EXPECT_EQ(question->a, 4);
  EXPECT_EQ(question->c, 6);
}

TEST(StopCodon, LastPosition1LooksOneSiteBack) {
  // Positions 1 2 3 1 2 3 1: the last complete codon is sites 4-6.
  const auto question = STOPenelFinal(CodingAlignment("ATGTAGA", 1));
  ASSERT_TRUE(question.has_value());
  EXPECT_EQ(question->a, 4);
}

TEST(StopCodon, TooShortOrOutOfOrderAsksNothing) {
  // Positions 2 3 1 2: position 2 at site 4, which needs at least 5 sites.
  ActiveData short_one = MakeAlignment({"TAAT"});
  ASSERT_TRUE(AssignCodingRegion(short_one, 1, 4, 2));
  EXPECT_FALSE(STOPenelFinal(short_one).has_value());
  // Positions 2 3: position 3 at site 2, which needs at least 3 sites.
  ActiveData shorter = MakeAlignment({"TA"});
  ASSERT_TRUE(AssignCodingRegion(shorter, 1, 2, 2));
  EXPECT_FALSE(STOPenelFinal(shorter).has_value());
  // Positions 1 2 3 1 on TAAT: position 1 at site 4 reads sites 1-3, a stop.
  ActiveData enough = MakeAlignment({"TAAT"});
  ASSERT_TRUE(AssignCodingRegion(enough, 1, 4, 1));
  EXPECT_TRUE(STOPenelFinal(enough).has_value());
  // A codon across a noncoding site is not the adjacent run the check reads.
  ActiveData split = MakeAlignment({"TCAA"});
  split.CodonPosition = {0, 1, 0, 2, 3};
  EXPECT_FALSE(STOPenelFinal(split).has_value());
  // No coding site at all.
  EXPECT_FALSE(STOPenelFinal(MakeAlignment({"TAA"})).has_value());
}

TEST(StopCodon, ReadsTheFirstIncludedSequence) {
  ActiveData ad = MakeAlignment({"ATGGGG", "ATGTAA"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 6, 1));
  EXPECT_FALSE(STOPenelFinal(ad).has_value());
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {1}), 1).has_value());
  EXPECT_TRUE(STOPenelFinal(ad).has_value());
}

TEST(StopCodon, YesMakesTheStopNoncoding) {
  ActiveData ad = CodingAlignment("ATGTAA", 1);
  const auto question = STOPenelFinal(ad);
  ASSERT_TRUE(question.has_value());
  EXPECT_TRUE(ApplyStopAsNonCoding(ad, question->a, question->b, question->c));
  EXPECT_EQ(ad.CodonPosition, (std::vector<int16_t>{0, 1, 2, 3, 0, 0, 0}));
  EXPECT_EQ(ad.LastCodingSite, 3);
  EXPECT_FALSE(STOPenelFinal(ad).has_value());
  EXPECT_FALSE(ApplyStopAsNonCoding(ad, 4, 5, 6));
  LeaveForm14(ad, true);
  EXPECT_EQ(ad.CodingFlag[4], "4n");
}

TEST(GenomeFormat, DiploidOrganelleGenomesAskForConfirmation) {
  for (int16_t location = 0; location <= 4; ++location) {
    EXPECT_FALSE(NeedsDiploidConfirmation(location, 0)) << location;
  }
  for (int16_t location = 5; location <= 7; ++location) {
    EXPECT_TRUE(NeedsDiploidConfirmation(location, 0)) << location;
    EXPECT_FALSE(NeedsDiploidConfirmation(location, 1)) << location;
  }
  EXPECT_EQ(kDiploidQuestion, "Are you sure that the genome is Diploid ?");
}

}  // namespace
}  // namespace ovelt
