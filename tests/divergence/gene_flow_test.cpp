// Gene flow and genetic differentiation on samples worked by hand. The formulas these checks
// follow, where other programs compute the same quantity:
// - Snn as Hudson (2000): each sequence's nearest neighbours are all those at the least number
//   of differences, tied ones weighted alike, and Snn the mean share found in the same population.
// - Fst as Hudson, Slatkin and Maddison (1992), 1 - Hw/Hb with Hw the mean within-population
//   pair distance (populations weighted alike) and Hb the mean between: written here as
//   B/(B + W), which is the same number, and which can fall below 0.
// - Gst as Nei (1973): (HT - HS)/HT of the haplotype frequencies, HS the mean of the
//   populations' 1 - sum f^2 and HT that of the mean frequencies, populations weighted alike
//   and no correction for sample size (Nei and Chesser's 1983 estimator would correct both).
#include <gtest/gtest.h>

#include <cmath>
#include <variant>
#include <vector>

#include "analyses/divergence/gene_flow/flow_permutation.h"
#include "analyses/divergence/gene_flow/flow_statistics.h"
#include "analyses/divergence/gene_flow/gene_flow_compute.h"
#include "analyses/divergence/gene_flow/gene_flow_sample.h"
#include "core/alignment_fixture.h"

namespace ovelt {
namespace {

// Population A: s1 AAAA, s2 AAAT; population B: s3 CAAA, s4 CAAT, s5 CAAT. Sites 1 and 4 vary;
// the haplotypes AA, AT, CA, CT (s4 and s5) differ as
//   d(s1,s2) 1  d(s1,s3) 1  d(s1,s4) 2  d(s2,s3) 2  d(s2,s4) 1  d(s3,s4) 1  d(s4,s5) 0.
ActiveData TwoPopulationData() {
  ActiveData ad = test::MakeAlignment({"AAAA", "AAAT", "CAAA", "CAAT", "CAAT"});
  test::AddSet(ad, "A", {1, 2});
  test::AddSet(ad, "B", {3, 4, 5});
  return ad;
}

GeneFlowSample SampleOf(const ActiveData& ad, int16_t gap_mode = 1) {
  auto built = BuildGeneFlowSample(ad, ChooseFlowPopulations(ad), 1, ad.NumSites, gap_mode);
  EXPECT_TRUE(std::holds_alternative<GeneFlowSample>(built));
  return std::get<GeneFlowSample>(built);
}

GeneFlowResult RunFlow(const ActiveData& ad, int32_t replicates = 0, int32_t seed = 1) {
  return ComputeGeneFlow(SampleOf(ad), ad.FilePath, 1, ad.NumSites, replicates, seed, 4.0);
}

TEST(GeneFlowSample, VaryingSitesAndTheirTables) {
  const ActiveData ad = TwoPopulationData();
  const GeneFlowSample sample = SampleOf(ad);
  EXPECT_EQ(sample.Sites, 4);
  EXPECT_EQ(sample.VaryingSites(), 2);
  EXPECT_EQ(sample.Sequences, (std::vector<std::string>{"AA", "AT", "CA", "CT", "CT"}));
  const FlowTables t = BuildFlowTables(sample);
  EXPECT_EQ(t.Haplotypes, 4);
  EXPECT_EQ(t.D(t.HaplotypeOf[0], t.HaplotypeOf[3]), 2);
  EXPECT_EQ(t.HaplotypeOf[3], t.HaplotypeOf[4]);
}

TEST(GeneFlowStatistics, TwoPopulationsByHand) {
  const GeneFlowResult r = RunFlow(TwoPopulationData());
  const Differentiation& s = r.Overall.Stats;
  // Within: H(A) = 1, H(B) = (1 - 1/9 - 4/9) 3/2 = 2/3; K(A) = 1, K(B) = 2/3; w = 2/5, 3/5.
  EXPECT_DOUBLE_EQ(s.Hs, 0.8);
  EXPECT_DOUBLE_EQ(s.Ks, 0.8);
  // All five: H = (1 - 7/25) 5/4 = 0.9; the ten distances sum to 12.
  EXPECT_DOUBLE_EQ(s.Total.H, 0.9);
  EXPECT_DOUBLE_EQ(s.Total.K, 1.2);
  EXPECT_NEAR(*s.Hst, 1.0 - 0.8 / 0.9, 1e-12);
  EXPECT_NEAR(*s.Kst, 1.0 - 0.8 / 1.2, 1e-12);
  EXPECT_DOUBLE_EQ(s.KsLog, 0.8 * std::log(2.0));
  EXPECT_NEAR(*s.KstLog, 1.0 - 0.8 * std::log(2.0) / ((6 * std::log(2.0) + 3 * std::log(3.0)) / 10),
              1e-12);
  // Ranks: d = 0 once (rank 1), d = 1 six times (ranks 2-7: 4.5), d = 2 three times (9).
  EXPECT_DOUBLE_EQ(s.Zs, 0.4 * 4.5 + 0.6 * (4.5 + 4.5 + 1.0) / 3.0);
  EXPECT_DOUBLE_EQ(s.Total.Z, 5.5);
  // Nearest neighbours in the own population: s1 1 of 2, s2 1 of 3, s3 2 of 3, s4 and s5 1 of 1.
  EXPECT_DOUBLE_EQ(s.Snn, (0.5 + 1.0 / 3.0 + 2.0 / 3.0 + 1.0 + 1.0) / 5.0);
  // The 2 x 4 table of haplotypes: chi-square 3 + 2 with 3 degrees of freedom.
  EXPECT_NEAR(s.ChiSquare, 5.0, 1e-12);
  EXPECT_EQ(s.Df, 3);
  // Nei 1973: HS = (1/2 + 4/9) / 2, HT = 1 - (1/16 + 1/16 + 1/36 + 1/9).
  const double hs = (0.5 + 4.0 / 9.0) / 2.0;
  const double ht = 1.0 - (1.0 / 16 + 1.0 / 16 + 1.0 / 36 + 1.0 / 9);
  EXPECT_DOUBLE_EQ(*s.Gst, (ht - hs) / ht);
  // Between: the six pairs differ by 9 in all: Kxy = 1.5, Dxy = 1.5/4, Da = Dxy - (1/4 + 1/6)/2.
  EXPECT_DOUBLE_EQ(s.Kxy, 1.5);
  EXPECT_DOUBLE_EQ(s.Dxy, 0.375);
  EXPECT_DOUBLE_EQ(s.Da, 0.375 - (0.25 + 1.0 / 6.0) / 2.0);
  // Fst: W = (1 + 2/3)/2, B = 1.5 - W: 4/9.
  EXPECT_DOUBLE_EQ(s.Fst, 4.0 / 9.0);
  // Nst on Jukes and Cantor distances over L = 4 sites.
  const double jc1 = -0.75 * std::log(1.0 - 4.0 / 12.0), jc2 = -0.75 * std::log(1.0 - 8.0 / 12.0);
  const double w = (jc1 + 2.0 * jc1 / 3.0) / 2.0;
  const double b = (3.0 * jc1 + 3.0 * jc2) / 6.0 - w;
  EXPECT_NEAR(s.Nst, b / (b + w), 1e-12);
  // Nei 1982: Pi(s) = 2/5 x 1/4 x 1/2 + 3/5 x 1/6 x 2/3; Pi(t) corrected = 4 x 1.2 / (4 x 5).
  const double pis = 0.4 * 0.25 * 0.5 + 0.6 / 6.0 * 2.0 / 3.0;
  EXPECT_NEAR(s.PiS, pis, 1e-15);
  EXPECT_NEAR(s.PiTCorrected, 0.24, 1e-15);
  EXPECT_NEAR(s.DeltaSt, 0.24 - pis, 1e-15);
  // GammaSt as this program defines it: Pi(s) over Pi(t) corrected.
  EXPECT_NEAR(*s.GammaSt, pis / 0.24, 1e-15);
  // Nm = (1/X - 1)/4 for a diploid autosome.
  EXPECT_DOUBLE_EQ(*r.Nm(s.Fst), (9.0 / 4.0 - 1.0) / 4.0);
  ASSERT_EQ(r.Populations.size(), 2U);
  EXPECT_EQ(r.Populations[0].SegregatingSites, 1);
  EXPECT_EQ(r.Total.SegregatingSites, 2);
  EXPECT_EQ(r.Total.Haplotypes, 4);
  ASSERT_EQ(r.Pairs.size(), 1U);
  EXPECT_DOUBLE_EQ(r.Pairs[0].Estimates.Stats.Fst, s.Fst);
}

TEST(GeneFlowPermutation, ManyReplicatesApproachTheExactP) {
  const ActiveData ad = TwoPopulationData();
  const GeneFlowSample sample = SampleOf(ad);
  const FlowTables t = BuildFlowTables(sample);
  const std::vector<HaplotypeCounts> observed = {CountHaplotypes(t, {0, 1}),
                                                 CountHaplotypes(t, {2, 3, 4})};
  const FlowUniverse u = MakeUniverse(t, observed, sample.Sites);
  const TestedValues value = TestedStatistics(u, observed);
  // Every way of giving two of the five sequences to A is equally likely: ten of them.
  TestedValues exact{};
  for (int32_t a = 0; a < 5; ++a)
    for (int32_t b = a + 1; b < 5; ++b) {
      std::vector<int32_t> rest;
      for (int32_t s = 0; s < 5; ++s)
        if (s != a && s != b) rest.push_back(s);
      const TestedValues v =
          TestedStatistics(u, {CountHaplotypes(t, {a, b}), CountHaplotypes(t, rest)});
      for (size_t i = 0; i < 5; ++i) exact[i] += v[i] <= value[i] ? 0.1 : 0.0;
      exact[5] += v[5] >= value[5] ? 0.1 : 0.0;
    }
  FlowRandom random(7);
  const TestedValues p = PermutationTest(u, {0, 1, 2, 3, 4}, {2, 3}, value, 20000, random);
  for (size_t i = 0; i < p.size(); ++i) EXPECT_NEAR(p[i], exact[i], 0.015) << i;
}

TEST(GeneFlowPermutation, SeedZeroRunsAs111295AndASeedRepeats) {
  const ActiveData ad = TwoPopulationData();
  const GeneFlowResult zero = RunFlow(ad, 200, 0);
  const GeneFlowResult fixed = RunFlow(ad, 200, 111295);
  const GeneFlowResult again = RunFlow(ad, 200, 111295);
  const GeneFlowResult other = RunFlow(ad, 200, 5);
  EXPECT_EQ(zero.Seed, 111295);
  EXPECT_EQ(*zero.Overall.P, *fixed.Overall.P);
  EXPECT_EQ(*fixed.Overall.P, *again.Overall.P);
  EXPECT_EQ(*fixed.Pairs[0].Estimates.P, *again.Pairs[0].Estimates.P);
  // The test of the pair draws first; the overall test of two populations then goes on with
  // the stream, so its P values need not repeat the pair's.
  EXPECT_TRUE(other.Overall.P.has_value());
}

TEST(GeneFlowStatistics, OneHaplotypeInBothPopulationsOfAPair) {
  // A and B hold one and the same haplotype; C differs. In the pair A-B, Ht = 0: Hst is not
  // determined, DeltaSt is 0 and Fst 0, with no Nm.
  ActiveData ad = test::MakeAlignment({"AAAA", "AAAA", "AAAA", "AAAA", "CAAT", "CAAA"});
  test::AddSet(ad, "A", {1, 2});
  test::AddSet(ad, "B", {3, 4});
  test::AddSet(ad, "C", {5, 6});
  const GeneFlowResult r = RunFlow(ad);
  ASSERT_EQ(r.Pairs.size(), 3U);
  const Differentiation& ab = r.Pairs[0].Estimates.Stats;
  EXPECT_EQ(ab.Total.H, 0.0);
  EXPECT_FALSE(ab.Hst.has_value());
  EXPECT_FALSE(ab.Kst.has_value());
  EXPECT_EQ(ab.DeltaSt, 0.0);
  EXPECT_FALSE(ab.GammaSt.has_value());
  EXPECT_EQ(ab.Fst, 0.0);
  EXPECT_FALSE(r.Nm(ab.Fst).has_value());
  EXPECT_FALSE(r.Nm(ab.Gst).has_value());
}

TEST(GeneFlowStatistics, IdenticalPopulationsHaveNoDeltaSt) {
  // Both populations hold AA and AT once: Pi(s) and Pi(t) corrected are equal, and a difference
  // of rounding below 1e-7 is 0.
  ActiveData ad = test::MakeAlignment({"AAAAAAA", "AAAAAAT", "AAAAAAA", "AAAAAAT"});
  test::AddSet(ad, "A", {1, 2});
  test::AddSet(ad, "B", {3, 4});
  const Differentiation s = RunFlow(ad).Overall.Stats;
  EXPECT_EQ(s.DeltaSt, 0.0);
  EXPECT_LT(*s.Kst, 1e-12);
}

TEST(GeneFlowSample, PopulationsTakenInAndTheirRefusals) {
  ActiveData ad = test::MakeAlignment({"AAAA", "AAAT", "CAAA", "CAAT"});
  EXPECT_EQ(*ChooseFlowPopulations(ad).Refusal,
            "There are 0 defined populations. Can't compute the Gene Flow between/among "
            "populations.");
  test::AddSet(ad, "A", {1, 2});
  EXPECT_EQ(*ChooseFlowPopulations(ad).Refusal,
            "There is only one defined population. Can't compute the Gene Flow between/among "
            "populations.");
  test::AddSet(ad, "B", {3});
  EXPECT_EQ(*ChooseFlowPopulations(ad).Refusal,
            "There is only one population with more than one sequence. Can't compute the Gene "
            "Flow between/among populations.");
  ad.SeqIncluded[3] = false;
  EXPECT_EQ(*ChooseFlowPopulations(ad).Refusal,
            "There is only 1 active populations with included sequences. Can't compute the Gene "
            "Flow between/among populations.");
}

TEST(GeneFlowSample, GapModes) {
  // Site 2 has a gap in s3. Mode 1 drops it; mode 2 keeps it and skips it in pairs with s3;
  // mode 3 counts the gap as a state.
  ActiveData ad = test::MakeAlignment({"AAAA", "AAAT", "C-AA", "CAAT"});
  test::AddSet(ad, "A", {1, 2});
  test::AddSet(ad, "B", {3, 4});
  EXPECT_EQ(SampleOf(ad, 1).Sites, 3);
  EXPECT_EQ(SampleOf(ad, 2).Sites, 4);
  const GeneFlowSample two = SampleOf(ad, 2);
  EXPECT_EQ(SequenceDifferences(two.Sequences[0], two.Sequences[2], 2), 1);
  EXPECT_EQ(SequenceDifferences(two.Sequences[0], two.Sequences[2], 3), 2);
  ActiveData same = test::MakeAlignment({"AAAA", "AAAA", "AAAA", "AAAA"});
  test::AddSet(same, "A", {1, 2});
  test::AddSet(same, "B", {3, 4});
  const auto none = BuildGeneFlowSample(same, ChooseFlowPopulations(same), 1, 4, 1);
  EXPECT_EQ(std::get<std::string>(none),
            "No polymorphic sites in the selected region. Can't compute the Gene Flow "
            "between/among populations.");
}

}  // namespace
}  // namespace ovelt

#include "analyses/divergence/gene_flow/distance_matrix.h"

namespace ovelt {
namespace {

TEST(GeneFlowStatistics, ThreePopulationsByHand) {
  // A: AA, AT; B: CA, CT, CT; C: AA, AT (sites 1 and 4). N = 7, w = 2/7, 3/7, 2/7.
  ActiveData ad = test::MakeAlignment({"AAAA", "AAAT", "CAAA", "CAAT", "CAAT", "AAAA", "AAAT"});
  test::AddSet(ad, "A", {1, 2});
  test::AddSet(ad, "B", {3, 4, 5});
  test::AddSet(ad, "C", {6, 7});
  const Differentiation s = RunFlow(ad).Overall.Stats;
  // Within: H and K are 1, 2/3, 1: Hs = Ks = 6/7. All seven: H = (1 - 13/49) 7/6 = 6/7, so
  // Hst = 0; the 21 distances sum to 24: Kt = 8/7 and Kst = 1/4.
  EXPECT_NEAR(s.Hs, 6.0 / 7.0, 1e-15);
  EXPECT_NEAR(s.Ks, 6.0 / 7.0, 1e-15);
  EXPECT_NEAR(*s.Hst, 0.0, 1e-15);
  EXPECT_NEAR(s.Total.K, 8.0 / 7.0, 1e-15);
  EXPECT_NEAR(*s.Kst, 0.25, 1e-15);
  // The 3 x 4 table of haplotypes AA, AT, CA, CT: 1.5 + 4 + 1.5 with 6 degrees of freedom.
  EXPECT_NEAR(s.ChiSquare, 7.0, 1e-12);
  EXPECT_EQ(s.Df, 6);
  // Nei 1973 with the populations weighted alike: HS = 13/27, HT = 58/81.
  EXPECT_NEAR(*s.Gst, 19.0 / 58.0, 1e-15);
  // Hudson 2000: s1, s2, s6, s7 find their twins in the other population; s3's four nearest
  // neighbours hold two of B; s4 and s5 find each other: Snn = 2.5/7.
  EXPECT_NEAR(s.Snn, 2.5 / 7.0, 1e-15);
}

TEST(GeneFlowMatrix, PhylipAndMegaLowerTriangles) {
  // A, B as above and C a copy of A: Fst(A, B) = Fst(B, C) = 4/9. A and C: within 1 each,
  // between (0 + 1 + 1 + 0)/4 = 1/2, so B = 1/2 - 1 and Fst = B/(B + W) = -1 (Hudson's
  // 1 - Hw/Hb = 1 - 2); Kxy(A, C) = 1/2.
  ActiveData ad = test::MakeAlignment({"AAAA", "AAAT", "CAAA", "CAAT", "CAAT", "AAAA", "AAAT"});
  test::AddSet(ad, "A", {1, 2});
  test::AddSet(ad, "B", {3, 4, 5});
  test::AddSet(ad, "Pop C", {6, 7});
  const GeneFlowResult r = ComputeGeneFlow(SampleOf(ad), ad.FilePath, 1, 4, 0, 1, 4.0);
  EXPECT_EQ(DistanceMatrixText(r, "Fst", MatrixFormat::kPhylip, "x.phy"),
            "    3\r\n"
            "A         \r\n"
            "B           0.44444\r\n"
            "Pop_C       -1.00000  0.44444\r\n");
  EXPECT_EQ(DistanceMatrixText(r, "Kxy", MatrixFormat::kMega, "x.meg"),
            "#mega\r\n"
            "!Title: Kxy values exported by Ovelt Workbench (Ovelt); x.meg;\r\n"
            "#A\r\n#B\r\n#Pop_C\r\n\r\n"
            "1.50000\r\n"
            "0.50000 1.50000\r\n");
  EXPECT_EQ(MatrixFormatOf("a.PHY"), MatrixFormat::kPhylip);
  EXPECT_EQ(MatrixFormatOf("a.mega"), MatrixFormat::kMega);
  EXPECT_FALSE(MatrixFormatOf("a.txt").has_value());
}

}  // namespace
}  // namespace ovelt
