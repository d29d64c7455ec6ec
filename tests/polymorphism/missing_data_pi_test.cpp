#include "analyses/polymorphism/diversity/missing_data_pi.h"

#include <gtest/gtest.h>

#include "poly_fixture.h"

namespace ovelt {
namespace {

// Four sequences, six sites:
//   site 1 AAAG  site 2 CCTT  site 3 G-GG  site 4 TT?T  site 5 A--?  site 6 CC-?
std::vector<std::string> GappyRows() { return {"ACGTAC", "AC-T-C", "ATG?--", "GTGT??"}; }

TEST(PairwiseDeletion, HandWorkedAlignment) {
  const auto ad = test::Selected(GappyRows());
  const PairwiseDeletion r = ComputePairwiseDeletion(ad, 1, 6);
  // Pairs: compared sites V and differences:
  //   (1,2) V 4 (sites 3, 5 dropped), 0   (1,3) V 3, 1   (1,4) V 4, 2
  //   (2,3) V 2, 1                       (2,4) V 3, 2   (3,4) V 3, 1
  EXPECT_EQ(r.ExcludedGapSites, 0);
  EXPECT_EQ(r.Comparisons, 6);
  EXPECT_NEAR(r.AverageSites.value(), 19.0 / 6, 1e-12);
  EXPECT_NEAR(r.AverageDifferences.value(), 7.0 / 6, 1e-12);
  EXPECT_NEAR(r.PiPairwise.value(), (0 + 1.0 / 3 + 0.5 + 0.5 + 2.0 / 3 + 1.0 / 3) / 6,
              1e-12);
  // Sites: 1 (m 4, A3 G1) Pi 4/3 * 6/16 = 0.5; 2 (C2 T2) Pi 2/3; 3 and 4 monomorphic with
  // m = 3; 5 has one nucleotide and is not analyzed; 6 has two equal nucleotides (m = 2).
  EXPECT_EQ(r.SitesAnalyzed, 5);
  EXPECT_EQ(r.SegSites, 2);
  EXPECT_NEAR(r.K, 0.5 + 2.0 / 3, 1e-12);
  EXPECT_NEAR(r.Pi.value(), (0.5 + 2.0 / 3) / 5, 1e-12);
  // theta(site) = 1 / a1(4) = 6/11 at each polymorphic site.
  EXPECT_NEAR(r.ThetaWSequence, 12.0 / 11, 1e-12);
  EXPECT_NEAR(r.ThetaWSite.value(), 12.0 / 11 / 5, 1e-12);
}

TEST(PairwiseDeletion, OneKnownNucleotideIsNotAnalyzedTwoEqualOnesAre) {
  // Site 1 has one nucleotide among three sequences, site 2 two equal ones.
  const auto one = test::Selected({"AC", "-C", "?-"});
  const PairwiseDeletion r = ComputePairwiseDeletion(one, 1, 2);
  EXPECT_EQ(r.SitesAnalyzed, 1);  // 2 sites - site 1
  EXPECT_EQ(r.SegSites, 0);
  EXPECT_EQ(r.Pi.value(), 0.0);
}

TEST(PairwiseDeletion, GapsOutsideTheSetAreExcludedWithGapsInSets2) {
  // Sequence 4 (not in the set) has a gap at site 2; the set {1, 2, 3} is clean there.
  ActiveData ad = test::MakeAlignment({"ACGT", "ACTT", "GCGT", "A-GT"});
  test::AddSet(ad, "pop", {1, 2, 3});
  ad.GapsInSets = 2;
  ReclassifyIncluded(ad);
  ComputeSiteDiversity(ad);
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  const PairwiseDeletion r = ComputePairwiseDeletion(sel, 1, 4);
  EXPECT_EQ(r.ExcludedGapSites, 1);
  // Sites 1 (A A G) and 3 (G T G) are used; pairs compare 4 - 1 = 3 sites:
  //   (1,2) d 1, (1,3) d 1, (2,3) d 2.
  EXPECT_EQ(r.Comparisons, 3);
  EXPECT_NEAR(r.AverageSites.value(), 3.0, 1e-12);
  EXPECT_NEAR(r.PiPairwise.value(), (1.0 / 3 + 1.0 / 3 + 2.0 / 3) / 3, 1e-12);
  EXPECT_EQ(r.SitesAnalyzed, 3);
  // With GapsInSets 1 the same site is an ordinary monomorphic site of the set.
  ActiveData plain = test::MakeAlignment({"ACGT", "ACTT", "GCGT", "A-GT"});
  test::AddSet(plain, "pop", {1, 2, 3});
  sel = SelectOneSet(plain, 1, plain.Region);
  const PairwiseDeletion p = ComputePairwiseDeletion(sel, 1, 4);
  EXPECT_EQ(p.ExcludedGapSites, 0);
  EXPECT_NEAR(p.AverageSites.value(), 4.0, 1e-12);
  EXPECT_EQ(p.SitesAnalyzed, 4);
}

TEST(PairwiseDeletion, AllPairsEmptyAreNotDetermined) {
  // Two sequences, every site has a gap in one of them: each pair compares 0 sites, and no
  // site has two nucleotides.
  const auto ad = test::Selected({"A-", "-C"});
  const PairwiseDeletion r = ComputePairwiseDeletion(ad, 1, 2);
  EXPECT_EQ(r.Comparisons, 0);
  EXPECT_FALSE(r.PiPairwise.has_value());
  EXPECT_FALSE(r.AverageSites.has_value());
  EXPECT_FALSE(r.AverageDifferences.has_value());
  EXPECT_EQ(r.SitesAnalyzed, 0);
  EXPECT_FALSE(r.Pi.has_value());
  EXPECT_FALSE(r.ThetaWSite.has_value());
  EXPECT_EQ(r.ThetaWSequence, 0.0);
}

}  // namespace
}  // namespace ovelt
