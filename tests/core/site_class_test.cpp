#include "core/site_class.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "alignment_fixture.h"
#include "random_alignment.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

// Class of one site straight from its definition: any cell that is not a nucleotide makes it
// class 5; otherwise the number of distinct nucleotides, with two of them split into singleton
// (the rarer one carried once) and informative sites.
int16_t BruteForceClass(const std::vector<std::string>& rows, const std::vector<int>& use,
                        size_t site) {
  std::map<char, int> counts;
  for (const int seq : use) {
    const char cell = rows[static_cast<size_t>(seq - 1)][site];
    if (std::string("ACGT").find(cell) == std::string::npos) return 5;
    ++counts[cell];
  }
  if (counts.size() <= 1) return 0;
  if (counts.size() == 2) {
    for (const auto& [cell, count] : counts) {
      if (count == 1) return 1;
    }
    return 2;
  }
  return static_cast<int16_t>(counts.size());
}

TEST(SiteClass, GapAfterTheFirstSequenceIsClass5) {
  // Sequence 1 has "A", a later one "-", all others "A".
  const ActiveData ad = MakeAlignment({"A", "A", "A", "-", "A"});
  EXPECT_EQ(ad.SiteClass[1], kGapOrMissing);
}

TEST(SiteClass, AllGapOrAllMissingIsClass5) {
  const ActiveData ad = MakeAlignment({"-?", "-?", "-?"});
  EXPECT_EQ(ad.SiteClass[1], kGapOrMissing);
  EXPECT_EQ(ad.SiteClass[2], kGapOrMissing);
}

TEST(SiteClass, OneAOneTIsASingletonSite) {
  // Both counts are 1: the rule "any count equals 1" makes it class 1.
  const ActiveData ad = MakeAlignment({"A", "T"});
  EXPECT_EQ(ad.SiteClass[1], kSingletonSite);
}

TEST(SiteClass, HandWorkedSites) {
  // Columns: 1 AAAA monomorphic, 2 AAAC singleton, 3 AAGG informative, 4 ACGG three
  // variants, 5 ACGT four variants, 6 gap in the first sequence, 7 missing data in the last.
  const ActiveData ad = MakeAlignment({
      "AAAAA-A",
      "AAACCAA",
      "AAGGGAA",
      "ACGGTA?",
  });
  const std::vector<int16_t> expected{0, kMonomorphic, kSingletonSite, kInformativeSite,
                                      kThreeVariants, kFourVariants, kGapOrMissing, kGapOrMissing};
  EXPECT_EQ(ad.SiteClass, expected);
  EXPECT_EQ(ad.RawSiteClass, expected);
}

TEST(SiteClass, OneSequenceGivesMonomorphicOrGapSites) {
  const ActiveData ad = MakeAlignment({"AC-?"});
  EXPECT_EQ(ad.SiteClass[1], kMonomorphic);
  EXPECT_EQ(ad.SiteClass[2], kMonomorphic);
  EXPECT_EQ(ad.SiteClass[3], kGapOrMissing);
  EXPECT_EQ(ad.SiteClass[4], kGapOrMissing);
}

TEST(SiteClass, FileClassesMatchABruteForceClassifier) {
  std::mt19937 rng(20240611);
  std::map<int16_t, int> seen;
  for (int round = 0; round < 40; ++round) {
    const int seqs = 1 + static_cast<int>(rng() % 12);
    const auto rows = test::RandomRows(rng, seqs, 60, "ACGTACGTACGT-?");
    const ActiveData ad = MakeAlignment(rows);
    std::vector<int> all;
    for (int seq = 1; seq <= seqs; ++seq) all.push_back(seq);
    for (int site = 1; site <= ad.NumSites; ++site) {
      ASSERT_EQ(ad.SiteClass[static_cast<size_t>(site)],
                BruteForceClass(rows, all, static_cast<size_t>(site - 1)))
          << "round " << round << " site " << site;
      ++seen[ad.SiteClass[static_cast<size_t>(site)]];
    }
  }
  // The random data reach every class, so that the comparison covers them all.
  for (int16_t site_class = 0; site_class <= 5; ++site_class)
    EXPECT_GT(seen[site_class], 0) << site_class;
}

TEST(SiteClass, SelectionClassesMatchABruteForceClassifier) {
  std::mt19937 rng(77);
  for (int round = 0; round < 40; ++round) {
    const int seqs = 2 + static_cast<int>(rng() % 10);
    const auto rows = test::RandomRows(rng, seqs, 50, "ACGTACGTACGT-?");
    for (const int16_t gaps_in_sets : {1, 2}) {
      ActiveData ad = MakeAlignment(rows);
      ad.GapsInSets = gaps_in_sets;
      std::vector<int> members;
      for (int seq = 1; seq <= seqs; ++seq) {
        if (rng() % 2 == 0) members.push_back(seq);
      }
      test::AddSet(ad, "Sub", members);
      Selection sel = SelectOneSet(ad, 1, ad.Region);
      std::vector<int> all;
      for (int seq = 1; seq <= seqs; ++seq) all.push_back(seq);
      for (int site = 1; site <= ad.NumSites; ++site) {
        const auto s = static_cast<size_t>(site - 1);
        // With GapsInSets 2 a gap anywhere in the file excludes the site from every subset.
        const int16_t expected = gaps_in_sets == 2 && BruteForceClass(rows, all, s) == 5
                                     ? int16_t{5}
                                     : BruteForceClass(rows, members, s);
        ASSERT_EQ(sel.SelSiteClass1[static_cast<size_t>(site)], expected)
            << "round " << round << " site " << site << " GapsInSets " << gaps_in_sets;
      }
    }
  }
}

TEST(SiteClass, GapOutsideTheSubsetCountsAsANormalSiteWithGapsInSets1) {
  // Site 1: the gap lies in sequence 3, outside the set {1, 2}; the set sees A and T.
  ActiveData ad = MakeAlignment({"AA", "TA", "-A"});
  test::AddSet(ad, "Pair", {1, 2});
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  EXPECT_EQ(ad.SiteClass[1], kGapOrMissing);
  EXPECT_EQ(sel.SelSiteClass1[1], kSingletonSite);
  EXPECT_EQ(sel.SelSiteClass1[2], kMonomorphic);
}

TEST(SiteClass, GapsInSets2HoldsClass5InEverySubset) {
  ActiveData ad = MakeAlignment({"AAC", "TAC", "-AC", "AA?"});
  ad.GapsInSets = 2;
  test::AddSet(ad, "Clean", {1, 2});    // no gap of its own at sites 1 and 3
  test::AddSet(ad, "Single", {2});
  for (const int16_t set : {1, 2}) {
    Selection sel = SelectOneSet(ad, set, ad.Region);
    EXPECT_EQ(sel.SelSiteClass1[1], kGapOrMissing) << "set " << set;
    EXPECT_EQ(sel.SelSiteClass1[2], kMonomorphic) << "set " << set;
    EXPECT_EQ(sel.SelSiteClass1[3], kGapOrMissing) << "set " << set;
  }
}

TEST(SiteClass, MonomorphicSubsetOfAPolymorphicSiteIsClass0) {
  ActiveData ad = MakeAlignment({"A", "A", "T"});
  test::AddSet(ad, "Same", {1, 2});
  Selection sel = SelectOneSet(ad, 1, ad.Region);
  EXPECT_EQ(ad.SiteClass[1], kSingletonSite);
  EXPECT_EQ(sel.SelSiteClass1[1], kMonomorphic);
}

TEST(SiteClass, SecondSelectionIsClassifiedFromItsOwnSequences) {
  ActiveData ad = MakeAlignment({"AG", "AG", "TG", "TC"});
  test::AddSet(ad, "First", {1, 2});
  test::AddSet(ad, "Second", {3, 4});
  Selection sel = SelectTwoSets(ad, 1, 2, ad.Region);
  ClassifyFirst(sel);
  ClassifySecond(sel);
  EXPECT_EQ(sel.SelSiteClass1, (std::vector<int16_t>{0, kMonomorphic, kMonomorphic}));
  EXPECT_EQ(sel.SelSiteClass2, (std::vector<int16_t>{0, kMonomorphic, kSingletonSite}));
}

}  // namespace
}  // namespace ovelt
