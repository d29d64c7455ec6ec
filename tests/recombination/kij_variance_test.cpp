#include "analyses/recombination/kij_variance.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/alignment_fixture.h"

namespace ovelt {
namespace {

// The variance of all n x n entries of the matrix of differences (Kii = 0 included), by brute
// force over the rows as written.
double BruteForceVariance(const std::vector<std::string>& rows) {
  const std::size_t n = rows.size();
  std::vector<double> all;
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = 0; j < n; ++j) {
      int d = 0;
      for (std::size_t s = 0; s < rows[i].size(); ++s) d += rows[i][s] != rows[j][s] ? 1 : 0;
      all.push_back(d);
    }
  double mean = 0.0;
  for (const double v : all) mean += v;
  mean /= static_cast<double>(all.size());
  double var = 0.0;
  for (const double v : all) var += (v - mean) * (v - mean);
  return var / static_cast<double>(all.size());
}

TEST(KijVariance, BruteForceOnATinyAlignment) {
  // Monomorphic sites 2 and 5 differ nowhere, so counting all sites equals counting the
  // polymorphic ones; site 6 has three variants and counts.
  const std::vector<std::string> rows = {"ACGTAA", "GCGAAC", "GCTTAG", "ACTAAA", "ACGTAC"};
  ActiveData ad = test::MakeAlignment(rows);
  const Selection sel = SelectOneSet(ad, 0, {1, 6});
  const std::vector<int32_t> sites = PolymorphicSites(sel, 1, 6);
  EXPECT_EQ(sites, (std::vector<int32_t>{1, 3, 4, 6}));
  // k' is the mean of the n x n entries: (n - 1) k / n; here the 10 pairs differ by
  // 3 3 2 1 3 3 2 3 3 3 = 26 in all, so k = 2.6 and k' = 52 / 25 = 2.08.
  const float k_prime = 2.08F;
  const double expected = BruteForceVariance(rows);
  EXPECT_NEAR(KijVariance(sel, sites, k_prime), expected, 1e-6);
  // By hand: sum of Kij^2 over ordered pairs = 2 (9+9+4+1+9+9+4+9+9+9) = 144, over 25 entries
  // 5.76, less k'^2 = 4.3264: 1.4336.
  EXPECT_NEAR(expected, 1.4336, 1e-12);
}

TEST(KijVariance, GaugeRisesToThirty) {
  const std::vector<std::string> rows = {"AC", "GC", "GT", "AT"};
  ActiveData ad = test::MakeAlignment(rows);
  const Selection sel = SelectOneSet(ad, 0, {1, 2});
  std::vector<int> seen;
  (void)KijVariance(sel, PolymorphicSites(sel, 1, 2), 1.0F, [&seen](int p) { seen.push_back(p); });
  EXPECT_EQ(seen, (std::vector<int>{7, 15, 22, 30}));
}

}  // namespace
}  // namespace ovelt
