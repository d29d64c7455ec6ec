// Diversity within and divergence between two populations over a region.
#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

#include "analyses/divergence/common/mutation_kinds.h"
#include "analyses/divergence/common/site_dxy.h"
#include "analyses/divergence/dna_divergence/divergence_sums.h"
#include "two_populations_fixture.h"

namespace ovelt {
namespace {

using test::TwoPopulations;

TEST(DivergenceSums, HandWorkedAlignment) {
  //                         site 12345678
  const auto sel = TwoPopulations({"AAAACAA-",   //
                                   "AACACCGA",   //
                                   "ACCACGTA"},  //
                                  {"AAAGATAA",   //
                                   "AACGATAA"});
  const DivergenceSums r = SumDivergence(sel, BuildSiteDxy(sel), 1, 8);
  // Site 8 has a gap in population 1: L = 8 - 1.
  EXPECT_EQ(r.L, 7);
  // Gene diversities of population 1: sites 2 (AAC) and 3 (ACC) (1 - 4/9 - 1/9) x 3/2 = 2/3,
  // sites 6 (ACG) and 7 (AGT) (1 - 3/9) x 3/2 = 1. k1 = 10/3, also the mean of the pairwise
  // differences 3, 4 and 3 of its three pairs.
  EXPECT_EQ(r.S1, 4);
  EXPECT_DOUBLE_EQ(r.K1, 10.0 / 3.0);
  // Population 2 varies at site 3 only (A, C): (1 - 1/4 - 1/4) x 2 = 1.
  EXPECT_EQ(r.S2, 1);
  EXPECT_DOUBLE_EQ(r.K2, 1.0);
  // SiteDxy of sites 2..7: 1/3, 1/2, 1, 1, 1, 2/3; K = 4.5, the mean of the between-population
  // pairwise differences 3, 4, 5, 4, 6, 5 (27 over 6 pairs).
  EXPECT_EQ(r.S, 6);
  EXPECT_DOUBLE_EQ(r.K, 4.5);
  EXPECT_DOUBLE_EQ(r.Pi1, 10.0 / 21.0);
  EXPECT_DOUBLE_EQ(r.Pi2, 1.0 / 7.0);
  EXPECT_DOUBLE_EQ(r.Dxy, 9.0 / 14.0);
  // Da = 9/14 - (10/21 + 3/21) / 2 = 27/42 - 13/42 = 1/3.
  EXPECT_DOUBLE_EQ(r.Da, 1.0 / 3.0);
  // Total data: 10 + 1 + 27 differences over the 3 + 1 + 6 = 10 pairs of the five sequences.
  EXPECT_DOUBLE_EQ(r.KTotal, 3.8);
  ASSERT_TRUE(r.PiTotal.has_value());
  EXPECT_DOUBLE_EQ(*r.PiTotal, 3.8 / 7.0);
  // Mutations: population 1 has classes 1, 1, 3, 3 at sites 2, 3, 6, 7 (1 + 1 + 2 + 2);
  // population 2 class 1 at site 3.
  EXPECT_EQ(r.Mutations1, 6);
  EXPECT_EQ(r.Mutations2, 1);
  // Kinds: site 2 private 1; site 3 shared (A/C in both); sites 4 and 5 fixed; site 6 fixed
  // with population 1's A, C, G (class 3: two private); site 7 A, G, T against A (two
  // private). Nine in all, as the variants of the five sequences give: 1+1+1+1+3+2.
  const MutationKinds kinds = CountMutationKinds(sel, BuildSiteDxy(sel), 1, 8);
  EXPECT_EQ(kinds, (MutationKinds{3, 5, 0, 1}));
  EXPECT_EQ(kinds.Total(), 9);
}

TEST(DivergenceSums, NoUsableSiteGivesZeros) {
  const auto sel = TwoPopulations({"A-", "AC"}, {"?C", "AC"});
  const DivergenceSums r = SumDivergence(sel, BuildSiteDxy(sel), 1, 2);
  EXPECT_EQ(r.L, 0);
  EXPECT_EQ(r.Pi1, 0.0);
  EXPECT_EQ(r.Pi2, 0.0);
  EXPECT_EQ(r.Dxy, 0.0);
  EXPECT_EQ(r.Da, 0.0);
  EXPECT_EQ(r.KTotal, 0.0);
  EXPECT_FALSE(r.PiTotal.has_value());
}

TEST(DivergenceSums, FixedSiteOfDifferentNucleotides) {
  // One site, A in population 1 and G in population 2: SiteDxy 1, one fixed difference, no
  // diversity within: Dxy = Da = 1, k(t) = 2 x 6 / 20 = 0.6 (six of the ten pairs differ).
  const auto sel = TwoPopulations({"A", "A", "A"}, {"G", "G"});
  const std::vector<double> dxy = BuildSiteDxy(sel);
  EXPECT_EQ(dxy[1], 1.0);
  const DivergenceSums r = SumDivergence(sel, dxy, 1, 1);
  EXPECT_EQ(r.L, 1);
  EXPECT_EQ(r.S, 1);
  EXPECT_EQ(r.S1 + r.S2, 0);
  EXPECT_DOUBLE_EQ(r.Dxy, 1.0);
  EXPECT_DOUBLE_EQ(r.Da, 1.0);
  EXPECT_DOUBLE_EQ(r.KTotal, 0.6);
  EXPECT_EQ(CountMutationKinds(sel, dxy, 1, 1), (MutationKinds{1, 0, 0, 0}));
}

// Plain twin of the sums: L, the differences of every pair over the usable sites, and the
// variants of each site, counted straight from the rows.
struct Brute {
  int usable = 0;
  double within1 = 0, within2 = 0, between = 0, all = 0;  // mean pairwise differences
  int fixed = 0, mutations1 = 0, mutations2 = 0, total = 0;
};

Brute BruteForce(const std::vector<std::string>& pop1, const std::vector<std::string>& pop2) {
  const size_t sites = pop1[0].size();
  std::vector<size_t> usable;
  for (size_t s = 0; s < sites; ++s) {
    bool clean = true;
    for (const auto* pop : {&pop1, &pop2})
      for (const auto& row : *pop) clean = clean && row[s] != '-' && row[s] != '?';
    if (clean) usable.push_back(s);
  }
  Brute b;
  b.usable = static_cast<int>(usable.size());
  const auto differences = [&](const std::string& x, const std::string& y) {
    int d = 0;
    for (const size_t s : usable) d += x[s] != y[s] ? 1 : 0;
    return static_cast<double>(d);
  };
  const auto mean_within = [&](const std::vector<std::string>& pop) {
    double sum = 0;
    int pairs = 0;
    for (size_t i = 0; i < pop.size(); ++i)
      for (size_t j = i + 1; j < pop.size(); ++j, ++pairs) sum += differences(pop[i], pop[j]);
    return pairs > 0 ? sum / pairs : 0.0;
  };
  b.within1 = mean_within(pop1);
  b.within2 = mean_within(pop2);
  for (const auto& x : pop1)
    for (const auto& y : pop2) b.between += differences(x, y);
  b.between /= static_cast<double>(pop1.size() * pop2.size());
  std::vector<std::string> both = pop1;
  both.insert(both.end(), pop2.begin(), pop2.end());
  b.all = mean_within(both);
  for (const size_t s : usable) {
    std::set<char> v1, v2, v;
    for (const auto& row : pop1) v1.insert(row[s]);
    for (const auto& row : pop2) v2.insert(row[s]);
    v = v1;
    v.insert(v2.begin(), v2.end());
    b.mutations1 += static_cast<int>(v1.size()) - 1;
    b.mutations2 += static_cast<int>(v2.size()) - 1;
    b.total += static_cast<int>(v.size()) - 1;
    if (v.size() == v1.size() + v2.size()) ++b.fixed;
  }
  return b;
}

TEST(DivergenceSums, EqualTheBruteForcePairwiseCountsOnRandomAlignments) {
  std::mt19937 rng(11250617);
  const std::string symbols = "ACGT-?";
  for (int round = 0; round < 60; ++round) {
    const size_t sites = 25;
    const auto n1 = static_cast<size_t>(1 + round % 7);
    const auto n2 = static_cast<size_t>(1 + (round / 7) % 5);
    std::vector<std::string> pop1(n1, std::string(sites, 'A')), pop2(n2, std::string(sites, 'A'));
    std::vector<std::string> others(2, std::string(sites, '-'));  // gaps outside both sets
    for (size_t s = 0; s < sites; ++s) {
      const auto spread = 1 + rng() % 4;
      const auto offset = rng() % 4;  // so that the populations may differ in their variants
      for (auto* pop : {&pop1, &pop2}) {
        const auto shift = pop == &pop2 ? offset : 0;
        for (auto& row : *pop)
          row[s] = rng() % 50 == 0 ? symbols[4 + rng() % 2] : symbols[(shift + rng() % spread) % 4];
      }
    }
    const auto sel = TwoPopulations(pop1, pop2, others);
    const std::vector<double> dxy = BuildSiteDxy(sel);
    const DivergenceSums r = SumDivergence(sel, dxy, 1, static_cast<int32_t>(sites));
    const MutationKinds kinds = CountMutationKinds(sel, dxy, 1, static_cast<int32_t>(sites));
    const Brute b = BruteForce(pop1, pop2);
    SCOPED_TRACE("round " + std::to_string(round));
    ASSERT_EQ(r.L, b.usable);
    const double l = b.usable;
    const double none = 0.0;
    EXPECT_NEAR(r.Pi1, l > 0 ? b.within1 / l : none, 1e-12);
    EXPECT_NEAR(r.Pi2, l > 0 ? b.within2 / l : none, 1e-12);
    EXPECT_NEAR(r.Dxy, l > 0 ? b.between / l : none, 1e-12);
    EXPECT_NEAR(r.Da, l > 0 ? (b.between - (b.within1 + b.within2) / 2) / l : none, 1e-12);
    EXPECT_NEAR(r.KTotal, b.all, 1e-12);
    EXPECT_EQ(r.Mutations1, b.mutations1);
    EXPECT_EQ(r.Mutations2, b.mutations2);
    // Each site's mutations (variants less one) are split without loss: the fixed differences
    // are the sites where the populations share no nucleotide, and a population's own
    // mutations are its private and shared ones.
    EXPECT_EQ(kinds.Total(), b.total);
    EXPECT_EQ(kinds.Fixed, b.fixed);
    EXPECT_EQ(kinds.Private1 + kinds.Shared, b.mutations1);
    EXPECT_EQ(kinds.Private2 + kinds.Shared, b.mutations2);
  }
}

}  // namespace
}  // namespace ovelt
