// The popcount kernel of the pair scan against a plain version that walks the characters of
// every sequence, on random alignments whose sequence counts straddle the 64-bit words.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "analyses/linkage/linkage_compute.h"
#include "core/alignment_fixture.h"
#include "stats/binary_columns.h"
#include "stats/chi_square_tail.h"
#include "stats/fisher_exact.h"
#include "stats/linkage_summary.h"
#include "stats/log_factorial.h"
#include "stats/wall_b_q.h"

namespace ovelt {
namespace {

// Biallelic sites for the most part, with a few gapped and three-variant ones.
std::vector<std::string> RandomAlignment(std::mt19937& rng, int seqs, int sites) {
  std::vector<std::string> rows(static_cast<size_t>(seqs), std::string(static_cast<size_t>(sites), 'A'));
  const std::string bases = "ACGT";
  std::uniform_int_distribution<int> base(0, 3), kind(0, 9), seq(0, seqs - 1);
  std::uniform_real_distribution<double> share(0.0, 1.0);
  for (int s = 0; s < sites; ++s) {
    const char a = bases[static_cast<size_t>(base(rng))];
    char b = bases[static_cast<size_t>(base(rng))];
    if (b == a) b = a == 'A' ? 'C' : 'A';
    const double p = share(rng);
    for (auto& row : rows) row[static_cast<size_t>(s)] = share(rng) < p ? b : a;
    const int k = kind(rng);
    if (k == 0) rows[static_cast<size_t>(seq(rng))][static_cast<size_t>(s)] = '-';
    if (k == 1) rows[static_cast<size_t>(seq(rng))][static_cast<size_t>(s)] = 'G' == a || 'G' == b ? 'T' : 'G';
  }
  return rows;
}

struct PlainPair {
  int site1, site2, dist;
  int h11, h12, h21, h22;
  double d, d_prime, r, r2;
};

// Everything from the characters, one sequence at a time.
std::vector<PlainPair> PlainScan(const Selection& sel, bool all_sites) {
  const int n = sel.SelCount1;
  const SeqMatrix& m = sel.SelMatrix1;
  std::vector<int> sites;
  std::vector<std::string> pairs;  // two characters, position 1 then 2
  for (int s = sel.Region.RegionFrom; s <= sel.Region.RegionTo; ++s) {
    const int c = sel.SelSiteClass1[static_cast<size_t>(s)];
    if (!(c == 2 || (c == 1 && all_sites))) continue;
    const char first = m.at(s, 1);
    char other = first;
    int count = 0;
    for (int q = 1; q <= n; ++q) {
      if (m.at(s, q) == first) ++count;
      else other = m.at(s, q);
    }
    sites.push_back(s);
    pairs.push_back(2 * count >= n ? std::string{first, other} : std::string{other, first});
  }
  std::vector<PlainPair> out;
  for (size_t i = 0; i < sites.size(); ++i) {
    for (size_t j = i + 1; j < sites.size(); ++j) {
      PlainPair p{sites[i], sites[j], 0, 0, 0, 0, 0, 0, 0, 0, 0};
      for (int q = 1; q <= n; ++q) {
        const std::string hap{m.at(sites[i], q), m.at(sites[j], q)};
        if (hap == std::string{pairs[i][0], pairs[j][0]}) ++p.h11;
        if (hap == std::string{pairs[i][0], pairs[j][1]}) ++p.h12;
        if (hap == std::string{pairs[i][1], pairs[j][0]}) ++p.h21;
        if (hap == std::string{pairs[i][1], pairs[j][1]}) ++p.h22;
      }
      const double nn = n;
      p.d = (1.0 * p.h11 * p.h22 - 1.0 * p.h12 * p.h21) / (nn * nn);
      const double pa = (p.h11 + p.h12) / nn, qa = (p.h21 + p.h22) / nn;
      const double pb = (p.h11 + p.h21) / nn, qb = (p.h12 + p.h22) / nn;
      p.r = p.d / std::sqrt(pa * qa * pb * qb);
      p.r2 = p.r * p.r;
      const double dmax = p.d < 0 ? std::min(pa * pb, qa * qb) : std::min(pa * qb, qa * pb);
      p.d_prime = p.d / dmax;
      int gaps = 0;
      for (int s = sites[i]; s <= sites[j]; ++s) {
        if (sel.SelSiteClass1[static_cast<size_t>(s)] != 5) continue;
        for (int q = 1; q <= n; ++q)
          if (m.at(s, q) == '-' || m.at(s, q) == '?') ++gaps;
      }
      p.dist = static_cast<int>(std::nearbyint((sites[j] - sites[i]) - static_cast<double>(gaps) / n));
      out.push_back(p);
    }
  }
  return out;
}

class PlainTwin : public ::testing::TestWithParam<int> {};

TEST_P(PlainTwin, SameCountsMeasuresAndTests) {
  const int n = GetParam();
  std::mt19937 rng(1000u + static_cast<unsigned>(n));
  const test::OwnedSelection sel = test::SelectedFrom(test::MakeAlignment(RandomAlignment(rng, n, 40)));
  for (const bool all_sites : {false, true}) {
    LinkageOptions options;
    options.AllSites = all_sites;
    options.Fisher = true;
    options.ChiSquare = true;
    const std::vector<PlainPair> plain = PlainScan(sel, all_sites);
    ASSERT_GT(plain.size(), 20u);
    const LinkageResult fast = ComputeLinkage(sel, options);
    ASSERT_EQ(fast.Pairs().size(), plain.size());
    LogFactorialTable lf(n);
    double zns = 0;
    for (size_t k = 0; k < plain.size(); ++k) {
      const PlainPair& p = plain[k];
      const LinkagePairRow& f = fast.Pairs()[k];
      SCOPED_TRACE(::testing::Message() << "n " << n << " pair " << p.site1 << "-" << p.site2);
      EXPECT_EQ(f.Site1, p.site1);
      EXPECT_EQ(f.Site2, p.site2);
      EXPECT_EQ(f.Dist, p.dist);
      EXPECT_NEAR(f.D, p.d, 1e-15);
      EXPECT_NEAR(f.DPrime, p.d_prime, 1e-12);
      EXPECT_NEAR(f.R, p.r, 1e-12);
      double one = 0;
      const float reference = FisherExact(p.h11, p.h12, p.h21, p.h22, one, lf);
      // The scan's short cuts may move the float by its last bit, no more.
      EXPECT_TRUE(f.FisherP == reference || std::nextafter(f.FisherP, reference) == reference)
          << f.FisherP << " vs " << reference;
      const double cross = 1.0 * p.h11 * p.h22 - 1.0 * p.h12 * p.h21;
      const double chi = cross * cross * n /
                         (1.0 * (p.h21 + p.h22) * (p.h11 + p.h12) * (p.h11 + p.h21) * (p.h12 + p.h22));
      EXPECT_NEAR(f.ChiSquare, chi, 1e-9 * (1 + chi));
      zns += p.r2;
    }
    EXPECT_NEAR(fast.Summaries.ZnS, zns / static_cast<double>(plain.size()), 1e-12);
  }
}

INSTANTIATE_TEST_SUITE_P(AcrossWords, PlainTwin, ::testing::Values(5, 17, 63, 64, 65, 130));

// The summaries against the library's own ZnS, Za (Kelly 1997; Rozas et al. 2001) and Wall's B
// and Q over the 0/1 matrix of the analysed sites.
TEST(PlainTwinSummaries, AgreeWithTheMatrixStatistics) {
  std::mt19937 rng(77);
  for (const int n : {8, 40, 70}) {
    const test::OwnedSelection sel =
        test::SelectedFrom(test::MakeAlignment(RandomAlignment(rng, n, 60)));
    const LinkageResult r = ComputeLinkage(sel, {});
    std::vector<int16_t> cells;
    std::vector<int16_t> flips;
    int columns = 0;
    for (int s = 1; s <= sel.SelSites; ++s) {
      if (sel.SelSiteClass1[static_cast<size_t>(s)] != 2) continue;
      ++columns;
      const char first = sel.SelMatrix1.at(s, 1);
      for (int q = 1; q <= n; ++q) cells.push_back(sel.SelMatrix1.at(s, q) == first ? 0 : 1);
      flips.push_back(0);
    }
    ASSERT_EQ(columns, r.SitesAnalysed);
    const BinaryColumnsView view{cells.data(), n, columns};
    const LinkageSummary z = LinkageFromColumns(view, flips);
    const WallBQ w = WallFromColumns(view);
    EXPECT_NEAR(r.Summaries.ZnS, *z.ZnS, 1e-12);
    EXPECT_NEAR(r.Summaries.Za, *z.Za, 1e-12);
    EXPECT_NEAR(r.Summaries.ZZ, *z.ZZ, 1e-12);
    EXPECT_NEAR(r.Summaries.WallB, *w.B, 1e-15);
    EXPECT_NEAR(r.Summaries.WallQ, *w.Q, 1e-15);
  }
}

}  // namespace
}  // namespace ovelt
