// Fixed, private and shared mutations of two populations, one small alignment per rule.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analyses/divergence/common/mutation_kinds.h"
#include "analyses/divergence/common/site_dxy.h"
#include "two_populations_fixture.h"

namespace ovelt {
namespace {

// The kinds of a one-site alignment whose populations carry the letters of `column1` and
// `column2`, one sequence per letter.
MutationKinds KindsOf(const std::string& column1, const std::string& column2) {
  std::vector<std::string> pop1, pop2;
  for (const char c : column1) pop1.emplace_back(1, c);
  for (const char c : column2) pop2.emplace_back(1, c);
  const auto sel = test::TwoPopulations(pop1, pop2);
  return CountMutationKinds(sel, BuildSiteDxy(sel), 1, 1);
}

MutationKinds Kinds(int32_t fixed, int32_t private1, int32_t private2, int32_t shared) {
  return {fixed, private1, private2, shared};
}

TEST(MutationKinds, MutationsOfAClass) {
  EXPECT_EQ(MutationsOfClass(0), 0);
  EXPECT_EQ(MutationsOfClass(1), 1);
  EXPECT_EQ(MutationsOfClass(2), 1);
  EXPECT_EQ(MutationsOfClass(3), 2);
  EXPECT_EQ(MutationsOfClass(4), 3);
  EXPECT_EQ(MutationsOfClass(5), 0);
}

TEST(MutationKinds, NothingWhereNeitherVaries) {
  EXPECT_EQ(KindsOf("AAA", "AA"), Kinds(0, 0, 0, 0));
}

TEST(MutationKinds, FixedDifferences) {
  // Each population fixed for its own nucleotide: every pair differs.
  EXPECT_EQ(KindsOf("AAA", "GG"), Kinds(1, 0, 0, 0));
  // Population 1 varies (class 1, a singleton) but shares nothing with population 2.
  EXPECT_EQ(KindsOf("AAC", "GG"), Kinds(1, 1, 0, 0));
  // Class 2 within population 1.
  EXPECT_EQ(KindsOf("AACC", "TT"), Kinds(1, 1, 0, 0));
  // Class 3: a third variant is one more private mutation.
  EXPECT_EQ(KindsOf("ACG", "TT"), Kinds(1, 2, 0, 0));
  EXPECT_EQ(KindsOf("TT", "ACG"), Kinds(1, 0, 2, 0));
  // Both vary, with no nucleotide in common (two and two variants, four in all): the fixed
  // difference comes first and nothing else counts it again.
  EXPECT_EQ(KindsOf("AC", "GT"), Kinds(1, 1, 1, 0));
}

TEST(MutationKinds, PolymorphicInOnePopulationOnly) {
  // The monomorphic population carries one of the other's variants, so not every pair differs.
  EXPECT_EQ(KindsOf("AAC", "AA"), Kinds(0, 1, 0, 0));    // class 1
  EXPECT_EQ(KindsOf("AACC", "CC"), Kinds(0, 1, 0, 0));   // class 2
  EXPECT_EQ(KindsOf("ACG", "AA"), Kinds(0, 2, 0, 0));    // class 3
  EXPECT_EQ(KindsOf("ACGT", "GG"), Kinds(0, 3, 0, 0));   // class 4
  EXPECT_EQ(KindsOf("TT", "ACGT"), Kinds(0, 0, 3, 0));
  EXPECT_EQ(KindsOf("GG", "GGGA"), Kinds(0, 0, 1, 0));
}

TEST(MutationKinds, EveryRowOfTheTwoAndThreeVariantTable) {
  // a1 a2 U
  EXPECT_EQ(KindsOf("AAC", "ACC"), Kinds(0, 0, 0, 1));  // 2 2 2
  EXPECT_EQ(KindsOf("AAC", "AAG"), Kinds(0, 1, 1, 0));  // 2 2 3
  EXPECT_EQ(KindsOf("ACG", "GCA"), Kinds(0, 0, 0, 2));  // 3 3 3
  EXPECT_EQ(KindsOf("ACG", "ACT"), Kinds(0, 1, 1, 1));  // 3 3 4
  EXPECT_EQ(KindsOf("ACG", "AC"), Kinds(0, 1, 0, 1));   // 3 2 3
  EXPECT_EQ(KindsOf("AC", "ACG"), Kinds(0, 0, 1, 1));   // 2 3 3
  EXPECT_EQ(KindsOf("ACG", "AT"), Kinds(0, 2, 1, 0));   // 3 2 4
  EXPECT_EQ(KindsOf("AT", "ACG"), Kinds(0, 1, 2, 0));   // 2 3 4
}

TEST(MutationKinds, FourVariants) {
  // Both with four: the three mutations are shared.
  EXPECT_EQ(KindsOf("ACGT", "TGCA"), Kinds(0, 0, 0, 3));
  // Four against a: a - 1 shared, the rest of the three private to the four-variant population.
  EXPECT_EQ(KindsOf("ACGT", "AC"), Kinds(0, 2, 0, 1));
  EXPECT_EQ(KindsOf("ACGT", "ACG"), Kinds(0, 1, 0, 2));
  EXPECT_EQ(KindsOf("AG", "ACGT"), Kinds(0, 0, 2, 1));
  EXPECT_EQ(KindsOf("ACT", "ACGT"), Kinds(0, 0, 1, 2));
}

TEST(MutationKinds, CombinationsOutsideTheTableCountNothing) {
  // Two and two variants, four in all, with some pair alike cannot come from an alignment; the
  // rule gives it nothing.
  SiteVariants site{1, 1, 1.0, 1.0, 0.75, 4};
  MutationKinds kinds;
  AddSiteMutationKinds(site, kinds);
  EXPECT_EQ(kinds, Kinds(0, 0, 0, 0));
  // A gap in either population: nothing at all, even with numbers that would count.
  site = {5, 0, 0.0, 0.0, 1.0, 2};
  AddSiteMutationKinds(site, kinds);
  EXPECT_EQ(kinds, Kinds(0, 0, 0, 0));
}

TEST(MutationKinds, SitesWithGapsAreSkippedAndTheTotalAddsTheFour) {
  // Site 1: fixed; 2: a gap in population 2; 3: shared; 4: private 2 (class 3, two mutations).
  const auto sel = test::TwoPopulations({"AAAA", "AACA"}, {"C-CA", "CAAG", "CAAT"});
  const MutationKinds kinds = CountMutationKinds(sel, BuildSiteDxy(sel), 1, 4);
  EXPECT_EQ(kinds, Kinds(1, 0, 2, 1));
  EXPECT_EQ(kinds.Total(), 4);
  // The region limits the walk.
  EXPECT_EQ(CountMutationKinds(sel, BuildSiteDxy(sel), 2, 3), Kinds(0, 0, 0, 1));
}

}  // namespace
}  // namespace ovelt
