#include "core/site_diversity.h"

#include <gtest/gtest.h>

#include <random>

#include "alignment_fixture.h"
#include "random_alignment.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

// Mean number of differences over all pairs of the given rows (Tajima 1983, k).
double MeanPairwiseDifferences(const std::vector<std::string>& rows) {
  double total = 0.0;
  int pairs = 0;
  for (size_t i = 0; i < rows.size(); ++i) {
    for (size_t j = i + 1; j < rows.size(); ++j) {
      for (size_t s = 0; s < rows[i].size(); ++s) total += rows[i][s] != rows[j][s] ? 1 : 0;
      ++pairs;
    }
  }
  return total / pairs;
}

TEST(SiteDiversity, HandWorkedValues) {
  // Site 1 AAAT: (1 - (9/16 + 1/16)) * 4/3 = 6/16 * 4/3 = 0.5.
  // Site 2 AACC: (1 - 1/2) * 4/3 = 2/3. Site 3 ACGT: (1 - 1/4) * 4/3 = 1.
  // Site 4 AAAA: 0. Site 5 A-?-: class 5, two "-" cells ("?" does not count).
  const ActiveData ad = MakeAlignment({"AAAAA", "AACA-", "ACGA?", "TCTA-"});
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[1], 0.5);
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[2], 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[3], 1.0);
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[4], 0.0);
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[5], 2.0);
}

TEST(SiteDiversity, OneAOneTHasDiversityOne) {
  // Two sequences that differ: one difference in one pair.
  const ActiveData ad = MakeAlignment({"A", "T"});
  EXPECT_DOUBLE_EQ(ad.SiteDiversity[1], 1.0);
}

TEST(SiteDiversity, SumOverSitesEqualsMeanPairwiseDifferences) {
  std::mt19937 rng(4242);
  for (int round = 0; round < 30; ++round) {
    const int seqs = 2 + static_cast<int>(rng() % 15);
    const auto rows = test::RandomRows(rng, seqs, 80, "ACGT");
    const ActiveData ad = MakeAlignment(rows);
    double sum = 0.0;
    for (int site = 1; site <= ad.NumSites; ++site)
      sum += ad.SiteDiversity[static_cast<size_t>(site)];
    EXPECT_NEAR(sum, MeanPairwiseDifferences(rows), 1e-9) << "round " << round;
  }
}

TEST(SiteDiversity, SelectionDiversityEqualsMeanPairwiseDifferencesOfTheSet) {
  std::mt19937 rng(99);
  for (int round = 0; round < 20; ++round) {
    const auto rows = test::RandomRows(rng, 10, 70, "ACGT");
    ActiveData ad = MakeAlignment(rows);
    std::vector<int> members{2, 3, 5, 7, 10};
    test::AddSet(ad, "Five", members);
    Selection sel = SelectOneSet(ad, 1, ad.Region);
    std::vector<std::string> set_rows;
    for (const int seq : members) set_rows.push_back(rows[static_cast<size_t>(seq - 1)]);
    double sum = 0.0;
    for (int site = 1; site <= ad.NumSites; ++site)
      sum += sel.SelSiteDiversity1[static_cast<size_t>(site)];
    EXPECT_NEAR(sum, MeanPairwiseDifferences(set_rows), 1e-9) << "round " << round;
  }
}

TEST(SiteDiversity, SecondSelection) {
  ActiveData ad = MakeAlignment({"AG", "AG", "TG", "TC"});
  test::AddSet(ad, "First", {1, 2});
  test::AddSet(ad, "Second", {3, 4});
  Selection sel = SelectTwoSets(ad, 1, 2, ad.Region);
  ClassifySecond(sel);
  // Second selection: site 1 TT monomorphic, site 2 GC: (1 - 1/2) * 2 = 1.
  EXPECT_DOUBLE_EQ(sel.SelSiteDiversity2[1], 0.0);
  EXPECT_DOUBLE_EQ(sel.SelSiteDiversity2[2], 1.0);
}

}  // namespace
}  // namespace ovelt
