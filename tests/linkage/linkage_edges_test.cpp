// The edge cases of a linkage run: allele order, D = 0, the chi-square bound, the Bonferroni
// bracket, pairs of perfect association and the |D'|* regression, the distance over gaps.

#include <gtest/gtest.h>

#include <cmath>

#include "analyses/linkage/allele_pairs.h"
#include "analyses/linkage/linkage_compute.h"
#include "analyses/linkage/linkage_pair.h"
#include "analyses/linkage/linkage_report.h"
#include "analyses/linkage/pair_distance.h"
#include "analyses/linkage/pair_tests.h"
#include "analyses/linkage/summary_statistics.h"
#include "command/command_failure.h"
#include "core/alignment_fixture.h"

namespace ovelt {
namespace {

SeqMatrix Column(const std::string& cells) {
  SeqMatrix m;
  m.set_sites(1);
  for (const char c : cells) m.append_sequence(&c);
  return m;
}

TEST(AlleleOrder, SequenceOneRarerGoesSecond) {
  // G in 2 of 6: the A of the other four comes first.
  const AllelePair p = AllelePairAt(Column("GAAAGA"), 1, 6);
  EXPECT_EQ(p.First, 'A');
  EXPECT_EQ(p.Second, 'G');
}

TEST(AlleleOrder, AtATieSequenceOneGoesFirst) {
  const AllelePair p = AllelePairAt(Column("TCCTTC"), 1, 6);
  EXPECT_EQ(p.First, 'T');
  EXPECT_EQ(p.Second, 'C');
  // An odd n: 3 of 7 is below 7/2, so sequence 1's nucleotide goes second.
  const AllelePair q = AllelePairAt(Column("TCCTTCC"), 1, 7);
  EXPECT_EQ(q.First, 'C');
  EXPECT_EQ(q.Second, 'T');
}

TEST(AlleleOrder, TheOrderSetsTheSignOfDAndR) {
  // Site 2 has sequence 1 rarer; read the other way round D and R would change sign.
  const test::OwnedSelection sel = test::SelectedFrom(test::MakeAlignment(
      {"AG", "AA", "AA", "CA", "CG", "CA"}));
  const LinkageResult r = ComputeLinkage(sel, {});
  ASSERT_EQ(r.Pairs().size(), 1u);
  // Site 1: A A A C C C (tie: A first); site 2: G A A A G A (A first). Carriers 111000 and
  // 011101: h11 = 2, h12 = 1, h21 = 2, h22 = 1: D = (2 - 2) / 36 = 0.
  EXPECT_EQ(r.Pairs()[0].D, 0.0);
  EXPECT_EQ(r.Pairs()[0].DPrime, 0.0);
  const test::OwnedSelection sel4 = test::SelectedFrom(test::MakeAlignment(
      {"AG", "AA", "CA", "CA", "CG", "CA"}));
  const LinkageResult r4 = ComputeLinkage(sel4, {});
  // Site 1: A A C C C C: C first (4 of 6), carriers 001111. Site 2: G A A A G A, A first,
  // carriers 011101. h11 = 3 (s3, s4, s6), h12 = 1 (s5), h21 = 1 (s2), h22 = 1 (s1):
  // D = (3 - 1) / 36 = 1/18 > 0. With sequence 1's nucleotides first it would be -1/18.
  ASSERT_EQ(r4.Pairs().size(), 1u);
  EXPECT_NEAR(r4.Pairs()[0].D, 1.0 / 18, 1e-15);
  EXPECT_GT(r4.Pairs()[0].R, 0.0);
}

TEST(PairMeasures, DZeroTakesThePositiveBranchAndGivesDPrimeZero) {
  const PairMeasures m = MeasuresFromCounts({2, 1, 2, 1}, 6);
  EXPECT_EQ(m.D, 0.0);
  EXPECT_EQ(m.DPrime, 0.0);
  EXPECT_FALSE(std::signbit(m.DPrime));
}

TEST(PairMeasures, DmaxByTheSignOfD) {
  // (4,1,1,4), n = 10: D = 15/100; pA = pB = 1/2, Dmax = 1/4: D' = 0.6.
  EXPECT_NEAR(MeasuresFromCounts({4, 1, 1, 4}, 10).DPrime, 0.6, 1e-15);
  // (1,4,2,3), n = 10: D = (3 - 8)/100 = -0.05; pA = 0.5, pB = 0.3: Dmax = min(pA pB, qA qB) =
  // min(0.15, 0.35) = 0.15: D' = -1/3.
  EXPECT_NEAR(MeasuresFromCounts({1, 4, 2, 3}, 10).DPrime, -1.0 / 3, 1e-15);
  // (3,2,0,5), n = 10: D = 15/100; pA = 0.5, pB = 0.3: Dmax = min(qB pA, qA pB) = min(0.35,
  // 0.15) = 0.15: D' = 1.
  EXPECT_NEAR(MeasuresFromCounts({3, 2, 0, 5}, 10).DPrime, 1.0, 1e-15);
}

TEST(ChiSquareMarks, ExactlyTheBoundGetsNoStar) {
  EXPECT_EQ(ChiSquareStars(3.841), 0);
  EXPECT_EQ(StarMark(ChiSquareStars(3.841)), "   ");
  EXPECT_FALSE(ChiSquareSignificant(3.841));
  EXPECT_EQ(ChiSquareStars(3.8415), 1);
  EXPECT_EQ(StarMark(ChiSquareStars(6.635)), "** ");
  EXPECT_EQ(StarMark(ChiSquareStars(10.828)), "***");
  EXPECT_TRUE(ChiSquareSignificant(3.8415));
}

TEST(FisherMarks, ByThePValue) {
  EXPECT_EQ(StarMark(FisherStars(0.05)), "   ");
  EXPECT_EQ(StarMark(FisherStars(0.0499)), "*  ");
  EXPECT_EQ(StarMark(FisherStars(0.00999)), "** ");
  EXPECT_EQ(StarMark(FisherStars(0.000999)), "***");
}

TEST(Bonferroni, AlphaAndBracket) {
  // One pair: alpha' = 0.05, which is not below 0.05: the last row.
  EXPECT_NEAR(BonferroniAlpha(1), 0.05, 1e-15);
  EXPECT_EQ(BracketFor(0.05).Lower, 3.841);
  EXPECT_EQ(BracketFor(0.05).Upper, 3.841);
  // 2 pairs: 1 - sqrt(0.95) = 0.02532: between 0.025 and 0.05.
  EXPECT_EQ(BracketFor(BonferroniAlpha(2)).Lower, 3.841);
  EXPECT_EQ(BracketFor(BonferroniAlpha(2)).Upper, 5.024);
  EXPECT_EQ(BracketFor(0.0009).Lower, 10.828);
  EXPECT_EQ(BracketFor(1e-9).Lower, 35.0);
  EXPECT_EQ(BracketFor(1e-9).Upper, 36.0);
}

TEST(Bonferroni, ChiSquareDecisions) {
  const double alpha = 0.008;  // bracket 6.635 .. 7.879
  const ChiSquareBracket b = BracketFor(alpha);
  EXPECT_FALSE(ChiSquareBonferroni(6.6, alpha, b));  // below the lower bound
  EXPECT_TRUE(ChiSquareBonferroni(7.879, alpha, b));  // at the upper bound
  // Between: P(chi^2_1 >= 7.2) = 0.00729 <= 0.008; P(>= 6.8) = 0.00912 > 0.008.
  EXPECT_TRUE(ChiSquareBonferroni(7.2, alpha, b));
  EXPECT_FALSE(ChiSquareBonferroni(6.8, alpha, b));
  EXPECT_TRUE(ChiSquareBonferroni(35.0, 1e-12, BracketFor(1e-12)));
}

TEST(WallCounts, DistinctHaplotypesStopAtThree) {
  EXPECT_EQ(DistinctHaplotypes({3, 0, 0, 3}), 2);
  EXPECT_EQ(DistinctHaplotypes({0, 3, 3, 0}), 2);
  EXPECT_EQ(DistinctHaplotypes({2, 1, 0, 3}), 3);
  EXPECT_EQ(DistinctHaplotypes({2, 1, 1, 2}), 3);
}

TEST(PerfectPairs, LeftOutOfTheStarRegressionOnly) {
  // Sites 2..4 of the hand-worked alignment: every pair has |D'| = 1, so |D'|* has no point and
  // prints nothing, while |D|, |D'| and r^2 have three points each.
  const test::OwnedSelection sel = test::SelectedFrom(
      test::MakeAlignment({"ACG", "ACA", "GTA", "GTA", "ACG", "GTA"}));
  const LinkageResult r = ComputeLinkage(sel, {});
  ASSERT_EQ(r.Regressions.size(), 4u);
  EXPECT_EQ(r.Regressions[0].Points, 3);
  EXPECT_EQ(r.Regressions[2].Points, 0);
  EXPECT_FALSE(r.Regressions[2].Intercept.has_value());
  const std::string body = LinkageReportBody(r);
  EXPECT_NE(body.find("  |D| values:  Y = "), std::string::npos);
  EXPECT_NE(body.find("  |D'| values:  Y = "), std::string::npos);
  EXPECT_NE(body.find("  r^2 values:  Y = "), std::string::npos);
  EXPECT_EQ(body.find("|D'|*"), std::string::npos);
}

TEST(OneSite, NoPairwiseComparisons) {
  const test::OwnedSelection sel =
      test::SelectedFrom(test::MakeAlignment({"AAC", "AAC", "AGT", "AGT"}));
  // Site 2 and site 3 are informative: one pair. Sites 1..2 hold one analysed site.
  const test::OwnedSelection one = test::SelectedFrom(
      test::MakeAlignment({"AAC", "AAC", "AGT", "AGT"}), 0, {1, 2});
  try {
    (void)ComputeLinkage(one, {});
    FAIL() << "one analysed site ran";
  } catch (const CommandFailure& failure) {
    EXPECT_EQ(std::string(failure.what()),
              "Input data file:  sample.fas\n\n No pairwise comparisons");
    EXPECT_EQ(failure.Kind(), FailureKind::kFailed);
  }
  EXPECT_EQ(ComputeLinkage(sel, {}).PairCount, 1);
}

TEST(Distance, GapsBetweenTheSitesCountForTheirShare) {
  // Sites 1 and 5 analysed; site 3 has a gap in 1 of 4 sequences, site 4 in 2 of 4:
  // Dist = (5 - 1) - (1 + 2) / 4 = 3.25 -> 3.
  const ActiveData ad =
      test::MakeAlignment({"AA-AA", "AAA-A", "GAA-G", "GAAAG"});
  const test::OwnedSelection sel = test::SelectedFrom(ad);
  const PairDistance distance(sel.SelMatrix1, 4, sel.SelSiteClass1, 1, 5);
  EXPECT_EQ(distance(1, 5), 3);
  EXPECT_EQ(distance(1, 2), 1);
  // Half-way rounds to even: a gap in 2 of 4 at one site between: 2 - 0.5 = 1.5 -> 2, and
  // 3 - 0.5 = 2.5 -> 2.
  const ActiveData half = test::MakeAlignment({"A-AA", "A-AA", "GAAG", "GAAG"});
  const test::OwnedSelection hs = test::SelectedFrom(half);
  const PairDistance d2(hs.SelMatrix1, 4, hs.SelSiteClass1, 1, 4);
  EXPECT_EQ(d2(1, 3), 2);
  EXPECT_EQ(d2(1, 4), 2);
}

}  // namespace
}  // namespace ovelt
