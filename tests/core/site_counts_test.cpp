// The block counter of site cells against the plain count of each site, on random matrices whose
// shapes reach every path: widths below and across the 16-site lanes, more sites than one
// 4096-site block, and more sequences than the 255 that one round of 8-bit counters holds.

#include "core/site_counts.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "core/site_class.h"
#include "core/site_diversity.h"

namespace ovelt {
namespace {

SeqMatrix RandomMatrix(std::mt19937& rng, int32_t seqs, int32_t sites, const std::string& cells) {
  SeqMatrix matrix;
  matrix.set_sites(sites);
  std::uniform_int_distribution<size_t> pick(0, cells.size() - 1);
  std::string row(static_cast<size_t>(sites), 'A');
  for (int32_t q = 0; q < seqs; ++q) {
    for (char& c : row) c = cells[pick(rng)];
    matrix.append_sequence(row.data());
  }
  return matrix;
}

TEST(SiteCounts, BlocksEqualThePlainCountOfEverySite) {
  std::mt19937 rng(11);
  struct Shape {
    int32_t seqs, sites;
  };
  for (const Shape shape :
       {Shape{1, 1}, Shape{3, 15}, Shape{2, 16}, Shape{7, 17}, Shape{5, 47}, Shape{254, 33},
        Shape{255, 40}, Shape{256, 31}, Shape{600, 70}, Shape{20, 4096 + 37}, Shape{3, 9000}}) {
    const SeqMatrix matrix = RandomMatrix(rng, shape.seqs, shape.sites, "ACGT-?AAAT");
    for (const int32_t seqs : {shape.seqs, shape.seqs / 2}) {
      std::vector<SiteCounts> counts;
      ForEachSiteCounts(matrix, seqs, shape.sites, [&](int32_t site, const SiteCounts& c) {
        EXPECT_EQ(site, static_cast<int32_t>(counts.size()) + 1);
        counts.push_back(c);
      });
      ASSERT_EQ(counts.size(), static_cast<size_t>(shape.sites));
      for (int32_t site = 1; site <= shape.sites; ++site) {
        ASSERT_EQ(counts[static_cast<size_t>(site - 1)], CountSitePlain(matrix, seqs, site))
            << shape.seqs << " x " << shape.sites << ", site " << site;
      }
    }
  }
}

TEST(SiteCounts, AllOneLetterReachesTheTotalWithoutOverflow) {
  // 1,000 sequences of "A": each 8-bit round stops at 255, the totals add up to 1,000.
  SeqMatrix matrix;
  matrix.set_sites(40);
  const std::string row(40, 'A');
  for (int q = 0; q < 1000; ++q) matrix.append_sequence(row.data());
  std::vector<SiteCounts> counts(40);
  CountSites(matrix, 1000, 1, counts);
  for (const SiteCounts& c : counts) {
    EXPECT_EQ(c.nucleotide[0], 1000);
    EXPECT_EQ(c.nucleotides(), 1000);
    EXPECT_EQ(c.gap, 0);
  }
}

TEST(SiteCounts, AWindowInsideTheMatrixCountsOnlyItsSites) {
  std::mt19937 rng(5);
  const SeqMatrix matrix = RandomMatrix(rng, 30, 100, "ACGT-?");
  std::vector<SiteCounts> counts(50);
  CountSites(matrix, 30, 21, counts);
  for (int32_t k = 0; k < 50; ++k) {
    EXPECT_EQ(counts[static_cast<size_t>(k)], CountSitePlain(matrix, 30, 21 + k));
  }
}

TEST(SiteCounts, ClassAndDiversityFromCountsEqualTheColumnScans) {
  std::mt19937 rng(8);
  // Narrow alphabets so that every class occurs.
  for (const std::string cells : {"AC", "ACG", "ACGT", "AAAAAAAC", "ACGT-", "AC?"}) {
    const SeqMatrix matrix = RandomMatrix(rng, 9, 300, cells);
    for (int32_t site = 1; site <= 300; ++site) {
      const SiteCounts counts = CountSitePlain(matrix, 9, site);
      const int16_t cls = ClassifyColumn(matrix, site, 9);
      EXPECT_EQ(ClassFromCounts(counts, 9), cls);
      // The diversity of a polymorphic site is the share of the pairs of sequences that differ
      // there (Nei 1987); a class-5 site keeps the number of "-" cells.
      double expected = 0.0;
      if (cls == kGapOrMissing) {
        for (int32_t q = 1; q <= 9; ++q) expected += matrix.at(site, q) == '-' ? 1 : 0;
      } else {
        int differing = 0;
        for (int32_t i = 1; i <= 9; ++i)
          for (int32_t j = i + 1; j <= 9; ++j)
            differing += matrix.at(site, i) != matrix.at(site, j);
        expected = differing / 36.0;
      }
      EXPECT_NEAR(DiversityFromCounts(counts, 9, cls), expected, 1e-12);
      EXPECT_EQ(SiteDiversityValue(matrix, site, 9, cls), DiversityFromCounts(counts, 9, cls));
    }
  }
}

TEST(SiteCounts, OnePassAtLoadEqualsTheTwoScans) {
  std::mt19937 rng(13);
  ActiveData one;
  one.RawMatrix = RandomMatrix(rng, 300, 5000, "ACGTTTTT-?");
  one.NumSeqs = 300;
  one.NumSites = 5000;
  one.IncMatrix = one.RawMatrix;
  ActiveData two = one;
  ClassifyAndMeasureAllSites(one);
  ClassifyAllSites(two);
  ComputeSiteDiversity(two);
  EXPECT_EQ(one.SiteClass, two.SiteClass);
  EXPECT_EQ(one.SiteDiversity, two.SiteDiversity);
  for (int32_t site = 1; site <= 5000; ++site) {
    EXPECT_EQ(one.SiteClass[static_cast<size_t>(site)], ClassifyColumn(one.RawMatrix, site, 300));
  }
}

}  // namespace
}  // namespace ovelt
