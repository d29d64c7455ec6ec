#include "shell/viewer_site_table.h"

#include <gtest/gtest.h>

#include "core/alignment_fixture.h"
#include "core/include_sequences.h"
#include "shell/viewer_cell.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

// Sites, worked by hand:
//   1 AAAAA monomorphic (0)          5 AGC-C gap (5)
//   2 AACCC A2 C3: informative (2)   6 CCCCC monomorphic (0)
//   3 ATTTT A is a singleton (1)     7 ACGTT four variants (4), only T twice
//   4 ATTGT three variants (3), T3   8 AACCG three variants (3), A2 C2: informative
ActiveData Sample() {
  return MakeAlignment({"AAAAACAA", "AATTGCCA", "ACTTCCGC", "ACTG-CTC", "ACTTCCTG"});
}

std::vector<int32_t> Highlighted(const ViewerSiteTable& table, ViewerHighlight choice) {
  std::vector<int32_t> sites;
  for (int32_t site = 1; site <= table.Sites(); ++site)
    if (ViewerHighlights(table, choice, site)) sites.push_back(site);
  return sites;
}

using Sites = std::vector<int32_t>;

TEST(ViewerSiteTable, ClassesOfTheIncludedSequences) {
  const ViewerSiteTable table = BuildViewerSiteTable(Sample());
  ASSERT_EQ(table.Sites(), 8);
  EXPECT_EQ(std::vector<int16_t>(table.SiteClass.begin() + 1, table.SiteClass.end()),
            (std::vector<int16_t>{0, 2, 1, 3, 5, 0, 4, 3}));
}

TEST(ViewerSiteTable, SiteHighlights) {
  const ViewerSiteTable t = BuildViewerSiteTable(Sample());
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kInvariable), (Sites{1, 6}));
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kVariable), (Sites{2, 3, 4, 7, 8}));
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kVariableTwo), (Sites{2, 3}));
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kVariableThreeFour), (Sites{4, 7, 8}));
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kParsimonyInformative), (Sites{2, 8}));
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kGapsMissing), (Sites{5}));
  // No coding region: no codon is marked.
  for (auto choice : {ViewerHighlight::kCodons, ViewerHighlight::kSynonymous,
                      ViewerHighlight::kNonsynonymous, ViewerHighlight::kCodonsWithGaps,
                      ViewerHighlight::kComplexCodons})
    EXPECT_TRUE(Highlighted(t, choice).empty());
  EXPECT_FALSE(ViewerHighlights(t, ViewerHighlight::kInvariable, 0));
  EXPECT_FALSE(ViewerHighlights(t, ViewerHighlight::kInvariable, 9));
}

TEST(ViewerSiteTable, ExcludingASequenceChangesTheClasses) {
  // Without sequence 4 site 5 holds no gap: A G C C, three variants.
  ActiveData ad = Sample();
  ASSERT_FALSE(IncludeSequences(ad, test::TicksWithout(ad, {4}), 1).has_value());
  const ViewerSiteTable t = BuildViewerSiteTable(ad);
  EXPECT_EQ(t.SiteClass[5], kThreeVariants);
  EXPECT_TRUE(Highlighted(t, ViewerHighlight::kGapsMissing).empty());
}

// Codons 1-3 GCT in all (no change); 4-6 GCT/GCC (Ala, synonymous); 7-9 GCT/ACT (Ala/Thr);
// 10-12 with a gap in sequence 1; site 13 noncoding.
ActiveData CodingSample() {
  ActiveData ad = MakeAlignment({"GCTGCTGCTG-TA", "GCTGCCACTGCTC", "GCTGCTGCTGCTA"});
  EXPECT_TRUE(AssignCodingRegion(ad, 1, 12, 1));
  LeaveForm14(ad, true);
  return ad;
}

TEST(ViewerSiteTable, CodonHighlights) {
  const ActiveData ad = CodingSample();
  ASSERT_GE(ad.Format.CodingAssigned, 1);
  const ViewerSiteTable t = BuildViewerSiteTable(ad);
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kCodons),
            (Sites{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kSynonymous), (Sites{4, 5, 6}));
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kNonsynonymous), (Sites{7, 8, 9}));
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kCodonsWithGaps), (Sites{10, 11, 12}));
  EXPECT_TRUE(Highlighted(t, ViewerHighlight::kComplexCodons).empty());
  EXPECT_EQ(t.CodonPosition[1], 1);
  EXPECT_EQ(t.CodonPosition[12], 3);
  EXPECT_EQ(t.CodonPosition[13], 0);
}

TEST(ViewerSiteTable, ComplexCodonIsMarkedOnItsThreeSites) {
  // GCT, ACC and TCA: two positions vary and no two codons are one step apart.
  ActiveData ad = MakeAlignment({"GCT", "ACC", "TCA"});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 3, 1));
  LeaveForm14(ad, true);
  const ViewerSiteTable t = BuildViewerSiteTable(ad);
  EXPECT_EQ(Highlighted(t, ViewerHighlight::kComplexCodons), (Sites{1, 2, 3}));
  EXPECT_TRUE(Highlighted(t, ViewerHighlight::kSynonymous).empty());
}

TEST(ViewerCell, FlagsChangeTheShownCharacter) {
  const ViewerDisplayOptions both;
  const ViewerDisplayOptions none{false, false};
  const ViewerDisplayOptions lower_only{true, false};
  const ViewerDisplayOptions dot_only{false, true};
  // Sequence 1 is never dotted; at a polymorphic site it is in lower case.
  EXPECT_EQ(ViewerCellText('A', 'A', 1, kInformativeSite, both), 'a');
  EXPECT_EQ(ViewerCellText('A', 'A', 1, kMonomorphic, both), 'A');
  // Same nucleotide as sequence 1: a dot; another one: lower case at a polymorphic site.
  EXPECT_EQ(ViewerCellText('A', 'A', 2, kInformativeSite, both), '.');
  EXPECT_EQ(ViewerCellText('C', 'A', 2, kInformativeSite, both), 'c');
  EXPECT_EQ(ViewerCellText('C', 'A', 2, kInformativeSite, dot_only), 'C');
  EXPECT_EQ(ViewerCellText('A', 'A', 2, kMonomorphic, lower_only), 'A');
  EXPECT_EQ(ViewerCellText('C', 'A', 3, kFourVariants, lower_only), 'c');
  EXPECT_EQ(ViewerCellText('A', 'A', 2, kMonomorphic, none), 'A');
  // Gaps and missing data show as they are, also where sequence 1 has the same.
  EXPECT_EQ(ViewerCellText('-', '-', 2, kGapOrMissing, both), '-');
  EXPECT_EQ(ViewerCellText('?', 'A', 2, kGapOrMissing, both), '?');
  // A nucleotide at a gap site is not polymorphic-lowered, but may be dotted.
  EXPECT_EQ(ViewerCellText('G', 'A', 2, kGapOrMissing, both), 'G');
  EXPECT_EQ(ViewerCellText('A', 'A', 2, kGapOrMissing, both), '.');
}

}  // namespace
}  // namespace ovelt
