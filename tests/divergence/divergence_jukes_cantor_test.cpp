// Pi, Dxy and Da with the Jukes and Cantor correction, pair by pair.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "analyses/divergence/common/site_dxy.h"
#include "analyses/divergence/dna_divergence/divergence_jukes_cantor.h"
#include "analyses/divergence/dna_divergence/divergence_sums.h"
#include "two_populations_fixture.h"

namespace ovelt {
namespace {

using test::TwoPopulations;

double Jc(double d, double l) { return -0.75 * std::log(1.0 - 4.0 * d / (3.0 * l)); }

DivergenceJukesCantor JcOf(const Selection& sel) {
  const std::vector<double> dxy = BuildSiteDxy(sel);
  const int32_t to = sel.SelMatrix1.sites();
  return ComputeDivergenceJukesCantor(sel, dxy, 1, to, SumDivergence(sel, dxy, 1, to).L);
}

TEST(DivergenceJukesCantor, HandWorkedAlignment) {
  //                         site 12345678
  const auto sel = TwoPopulations({"AAAACAA-",   //
                                   "AACACCGA",   //
                                   "ACCACGTA"},  //
                                  {"AAAGATAA",   //
                                   "AACGATAA"});
  const DivergenceJukesCantor r = JcOf(sel);
  // L = 7. Pairs of population 1 differ at 3, 4 and 3 sites: x = 12/21, 16/21, 12/21.
  const double l = 7.0;
  EXPECT_FLOAT_EQ(r.PairJC1.At(1, 2), static_cast<float>(Jc(3, l)));
  EXPECT_FLOAT_EQ(r.PairJC1.At(3, 1), static_cast<float>(Jc(4, l)));
  EXPECT_EQ(r.PairJC1.At(2, 2), 0.0F);
  ASSERT_TRUE(r.Pi1JC && r.Pi2JC && r.DxyJC && r.DaJC);
  const double pi1 = (Jc(3, l) + Jc(4, l) + Jc(3, l)) / 3.0;
  EXPECT_FLOAT_EQ(*r.Pi1JC, static_cast<float>(pi1));
  // Population 2: one pair, one difference.
  EXPECT_FLOAT_EQ(*r.Pi2JC, static_cast<float>(Jc(1, l)));
  // Between: 3, 4, 5, 4, 6 and 5 differences; the pair (3, 1) with 6 has x = 24/21 and is left
  // out, its cell 0: the mean runs over the five others.
  EXPECT_EQ(r.PairJCxy.At(3, 1), 0.0F);
  EXPECT_FLOAT_EQ(r.PairJCxy.At(2, 1), static_cast<float>(Jc(5, l)));
  const double dxy = (Jc(3, l) + Jc(4, l) + Jc(5, l) + Jc(4, l) + Jc(5, l)) / 5.0;
  EXPECT_FLOAT_EQ(*r.DxyJC, static_cast<float>(dxy));
  EXPECT_NEAR(*r.DaJC, dxy - (pi1 + Jc(1, l)) / 2.0, 1e-6);
}

TEST(DivergenceJukesCantor, EveryPairSaturatedIsNotDetermined) {
  // One site, every pair different: x = 4/3 for all of them.
  const DivergenceJukesCantor r = JcOf(TwoPopulations({"A", "C"}, {"G", "T"}));
  EXPECT_FALSE(r.Pi1JC.has_value());
  EXPECT_FALSE(r.Pi2JC.has_value());
  EXPECT_FALSE(r.DxyJC.has_value());
  EXPECT_FALSE(r.DaJC.has_value());
  EXPECT_EQ(r.PairJCxy.At(2, 2), 0.0F);
}

TEST(DivergenceJukesCantor, XOfExactlyOneLeavesThePairOut) {
  // L = 4: 3 differences give x = 4 x 3 / 12 = 1. Within population 1 the only pair is out;
  // between, (1, 1) is identical (distance 0, counted) and (2, 1) is out.
  const DivergenceJukesCantor r = JcOf(TwoPopulations({"AAAA", "CCCA"}, {"AAAA"}));
  EXPECT_FALSE(r.Pi1JC.has_value());
  ASSERT_TRUE(r.DxyJC.has_value());
  EXPECT_EQ(*r.DxyJC, 0.0F);
  EXPECT_FALSE(r.DaJC.has_value());
}

TEST(DivergenceJukesCantor, SingleSequencePopulationCountsZeroWithin) {
  // Population 1 of one sequence: no pair within, Da(JC) = Dxy(JC) - Pi(2)JC / 2.
  // L = 4; between: 1 and 2 differences; within population 2: 1.
  const DivergenceJukesCantor r = JcOf(TwoPopulations({"AAAA"}, {"AAAC", "AAGC"}));
  EXPECT_FALSE(r.Pi1JC.has_value());
  ASSERT_TRUE(r.DxyJC && r.Pi2JC && r.DaJC);
  const double dxy = (Jc(1, 4) + Jc(2, 4)) / 2.0;
  EXPECT_FLOAT_EQ(*r.DxyJC, static_cast<float>(dxy));
  EXPECT_NEAR(*r.DaJC, dxy - Jc(1, 4) / 2.0, 1e-6);
}

TEST(DivergenceJukesCantor, NoNetSiteLeavesEverythingUndetermined) {
  const auto sel = TwoPopulations({"-A", "A?"}, {"AA", "A-"});
  const DivergenceJukesCantor r =
      ComputeDivergenceJukesCantor(sel, BuildSiteDxy(sel), 1, 2, 0);
  EXPECT_FALSE(r.Pi1JC || r.Pi2JC || r.DxyJC || r.DaJC);
}

TEST(DivergenceJukesCantor, CompressedSequencesKeepTheSitesWithDivergence) {
  const auto sel = TwoPopulations({"ACGTA", "ACCTA"}, {"ACGTT"});
  const std::vector<double> dxy = BuildSiteDxy(sel);
  // Sites 3 (G/C against G) and 5 (A against T) have SiteDxy above 0.
  const auto rows = CompressedSequences(sel.SelMatrix1, 2, dxy, 1, 5);
  EXPECT_EQ(std::string(rows[1].begin(), rows[1].end()), "GA");
  EXPECT_EQ(std::string(rows[2].begin(), rows[2].end()), "CA");
  EXPECT_EQ(CompressedSequences(sel.SelMatrix1, 2, dxy, 4, 5)[2].size(), 1U);
}

// Plain twin: each pair compared over the full rows at the sites with no gap in either
// population.
TEST(DivergenceJukesCantor, EqualsThePairwiseDistancesOnRandomAlignments) {
  std::mt19937 rng(6172025);
  for (int round = 0; round < 30; ++round) {
    const size_t sites = 40;
    const auto n1 = static_cast<size_t>(2 + round % 5);
    const auto n2 = static_cast<size_t>(1 + round % 4);
    std::vector<std::string> pop1(n1, std::string(sites, 'A')), pop2(n2, std::string(sites, 'A'));
    for (size_t s = 0; s < sites; ++s) {
      const auto spread = 1 + rng() % 4;
      for (auto* pop : {&pop1, &pop2})
        for (auto& row : *pop) row[s] = rng() % 60 == 0 ? '-' : "ACGT"[rng() % spread];
    }
    const auto sel = TwoPopulations(pop1, pop2);
    const DivergenceJukesCantor r = JcOf(sel);
    std::vector<size_t> usable;
    for (size_t s = 0; s < sites; ++s) {
      bool clean = true;
      for (const auto* pop : {&pop1, &pop2})
        for (const auto& row : *pop) clean = clean && row[s] != '-';
      if (clean) usable.push_back(s);
    }
    const double l = static_cast<double>(usable.size());
    const auto distance = [&](const std::string& a, const std::string& b, float& cell) {
      int d = 0;
      for (const size_t s : usable) d += a[s] != b[s] ? 1 : 0;
      if (4.0 * d / (3.0 * l) >= 1.0) return -1.0;  // left out
      cell = static_cast<float>(Jc(d, l));
      return Jc(d, l);
    };
    SCOPED_TRACE("round " + std::to_string(round));
    double sum = 0;
    int count = 0;
    for (size_t i = 0; i < n1; ++i)
      for (size_t j = 0; j < n2; ++j) {
        float cell = 0.0F;
        const double jc = distance(pop1[i], pop2[j], cell);
        EXPECT_EQ(r.PairJCxy.At(static_cast<int32_t>(i + 1), static_cast<int32_t>(j + 1)), cell);
        if (jc >= 0) {
          sum += jc;
          ++count;
        }
      }
    ASSERT_EQ(r.DxyJC.has_value(), count > 0);
    if (count > 0) {
      EXPECT_FLOAT_EQ(*r.DxyJC, static_cast<float>(sum / count));
    }
    sum = 0;
    count = 0;
    for (size_t i = 0; i < n1; ++i)
      for (size_t j = i + 1; j < n1; ++j) {
        float cell = 0.0F;
        const double jc = distance(pop1[i], pop1[j], cell);
        EXPECT_EQ(r.PairJC1.At(static_cast<int32_t>(j + 1), static_cast<int32_t>(i + 1)), cell);
        if (jc >= 0) {
          sum += jc;
          ++count;
        }
      }
    ASSERT_EQ(r.Pi1JC.has_value(), count > 0);
    if (count > 0) {
      EXPECT_FLOAT_EQ(*r.Pi1JC, static_cast<float>(sum / count));
    }
  }
}

}  // namespace
}  // namespace ovelt
