// Synonymous sites of each sequence, pairwise synonymous and nonsynonymous differences and their
// means, on small alignments worked by hand; the grouped, memoised kernel against its plain twin
// on random alignments.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "analyses/divergence/common/pair_means.h"
#include "analyses/divergence/common/pairwise_substitutions.h"
#include "analyses/divergence/common/synonymous_sites.h"
#include "codon_fixture.h"

namespace ovelt {
namespace {

struct Counts {
  SynonymousSiteCount Sites;
  PairwiseSubstitutions Pairs;
};

Counts CountAll(const Selection& sel) {
  const ActiveData& ad = sel.data();
  const auto codons = CompleteCodons(ad.CodonPosition, 1, ad.NumSites);
  return {CountSynonymousSites(FirstColumns(sel), codons, ad.GeneticCode,
                               BuildCodonFoldTable(ad.GeneticCode)),
          CountPairwiseSubstitutions(FirstColumns(sel), codons, NeiGojoboriTable(ad.GeneticCode))};
}

TEST(SynonymousSites, TwoSequencesByHand) {
  // ATG CTT TTA and ATG CTC CTG.
  // Sequence 1: ATG first 0 (TTG CTG Leu, GTG Val), third 0 (ATT ATC ATA Ile); CTT 0 and 4;
  //   TTA 2 and 2; three second positions 0. c0 = 6, c2 = 2, c4 = 1: 2/3 + 1 = 5/3.
  // Sequence 2: ATG 0 0; CTC 0 (TTC ATC GTC) and 4; CTG 2 (TTG) and 4. c0 = 6, c2 = 1, c4 = 2:
  //   1/3 + 2 = 7/3.
  const auto sel = test::CodingSelection({"ATGCTTTTA", "ATGCTCCTG"});
  const Counts c = CountAll(sel);
  EXPECT_FLOAT_EQ(c.Sites.SynSites[1], 5.0F / 3.0F);
  EXPECT_FLOAT_EQ(c.Sites.SynSites[2], 7.0F / 3.0F);
  EXPECT_EQ(c.Sites.CodingSitesAnalyzed, 9);
  EXPECT_EQ(c.Sites.Codons, 3);
  EXPECT_FALSE(c.Sites.StopFound);
  // CTT CTC: 1 synonymous; TTA CTG: 2 synonymous over both pathways. SynDif 3, NSynDif 0.
  EXPECT_FLOAT_EQ(c.Pairs.Synonymous.At(1, 2), 3.0F);
  EXPECT_FLOAT_EQ(c.Pairs.Nonsynonymous.At(1, 2), 0.0F);
}

TEST(SynonymousSites, GapsStopsAndSecondPositions) {
  // Codon 2 holds a gap in sequence 2: left out of every count. TAA and TAG are stops: their
  // digits are all 0 (no synonym at either end), so they add no synonymous site; the pair
  // counts one synonymous difference (both "*").
  const auto sel = test::CodingSelection({"TAACTTGGG", "TAGC-TGGA"});
  const Counts c = CountAll(sel);
  EXPECT_EQ(c.Sites.CodonsWithGaps, 1);
  EXPECT_EQ(c.Sites.Codons, 2);
  EXPECT_EQ(c.Sites.CodingSitesAnalyzed, 6);
  EXPECT_TRUE(c.Sites.StopFound);
  // GGG and GGA: third positions 4, first positions 0 (TGG CGG AGG are not Gly).
  EXPECT_FLOAT_EQ(c.Sites.SynSites[1], 1.0F);
  EXPECT_FLOAT_EQ(c.Sites.SynSites[2], 1.0F);
  EXPECT_FLOAT_EQ(c.Pairs.Synonymous.At(1, 2), 2.0F);
  EXPECT_FLOAT_EQ(c.Pairs.Nonsynonymous.At(1, 2), 0.0F);
}

TEST(PairMeans, PiSAndPiAByHand) {
  // Three sequences over two codons. Codon 1: CTT, CTC, CTC; codon 2: AAA, AAA, GAA (Lys, Glu).
  // SynSites: CTT and CTC 0 + 1 at the first and third positions; AAA third 2 (AAG), first 0;
  //   GAA third 2 (GAG), first 0 (AAA Lys, CAA Gln, TAA stop: 1 stop, no synonym). All 4/3.
  // S per pair 4/3, N = 6 - 4/3 = 14/3.
  // Pairs: (1,2) Syn 1, NSyn 0; (1,3) Syn 1, NSyn 1; (2,3) Syn 0, NSyn 1.
  // Pi(s) = mean of 3/4, 3/4, 0 = 1/2; Pi(a) = mean of 0, 3/14, 3/14 = 1/7.
  // JC: p = 3/4 gives x = 1: the pair leaves the mean; Pi(s, JC) = 0 over one pair (2,3).
  const auto sel = test::CodingSelection({"CTTAAA", "CTCAAA", "CTCGAA"});
  const Counts c = CountAll(sel);
  for (int s = 1; s <= 3; ++s) EXPECT_FLOAT_EQ(c.Sites.SynSites[static_cast<size_t>(s)], 4.0F / 3.0F);
  auto syn_sites = [&c](int32_t i, int32_t j) {
    return (c.Sites.SynSites[static_cast<size_t>(i)] + c.Sites.SynSites[static_cast<size_t>(j)]) /
           2.0F;
  };
  auto nonsyn_sites = [&](int32_t i, int32_t j) {
    return static_cast<float>(c.Sites.CodingSitesAnalyzed) - syn_sites(i, j);
  };
  const PairMean pi_s = MeanOverPairs(c.Pairs.Synonymous, syn_sites);
  ASSERT_TRUE(pi_s.Mean.has_value());
  EXPECT_NEAR(*pi_s.Mean, 0.5, 1e-6);
  EXPECT_EQ(pi_s.Pairs, 3);
  EXPECT_EQ(pi_s.JukesCantorPairs, 1);
  EXPECT_NEAR(*pi_s.JukesCantor, 0.0, 1e-7);
  const PairMean pi_a = MeanOverPairs(c.Pairs.Nonsynonymous, nonsyn_sites);
  EXPECT_NEAR(*pi_a.Mean, 1.0 / 7.0, 1e-6);
  // JC of 3/14: -(3/4) ln(1 - 4/14), over the two pairs with a difference and the one without.
  EXPECT_NEAR(*pi_a.JukesCantor, 2.0 / 3.0 * -0.75 * std::log(1.0 - 4.0 / 14.0), 1e-6);
}

TEST(PairMeans, APairWithoutSynonymousSitesLeavesOnlyPiS) {
  // ATG (Met) and TGG (Trp) have no synonymous site, so the pair of the first two sequences has
  // S = 0; the third sequence holds ATA (Ile).
  const auto sel = test::CodingSelection({"ATGTGG", "ATGTGG", "ATATGG"});
  const Counts c = CountAll(sel);
  // ATA: third 2 of 3 (ATT ATC Ile): 2/3 for sequence 3 only.
  EXPECT_FLOAT_EQ(c.Sites.SynSites[1], 0.0F);
  EXPECT_FLOAT_EQ(c.Sites.SynSites[3], 2.0F / 3.0F);
  auto syn_sites = [&c](int32_t i, int32_t j) {
    return (c.Sites.SynSites[static_cast<size_t>(i)] + c.Sites.SynSites[static_cast<size_t>(j)]) /
           2.0F;
  };
  auto nonsyn_sites = [&](int32_t i, int32_t j) { return 6.0F - syn_sites(i, j); };
  const PairMean pi_s = MeanOverPairs(c.Pairs.Synonymous, syn_sites);
  EXPECT_EQ(pi_s.Pairs, 2);  // (1, 2) has S = 0
  const PairMean pi_a = MeanOverPairs(c.Pairs.Nonsynonymous, nonsyn_sites);
  EXPECT_EQ(pi_a.Pairs, 3);
  // ATG ATA: Met Ile, nonsynonymous 1 over N = 6 - 1/3 for (1,3) and (2,3).
  EXPECT_NEAR(*pi_a.Mean, 2.0 / 3.0 / (6.0 - 1.0 / 3.0), 1e-6);
}

TEST(PairMeans, JukesCantorOf) {
  EXPECT_FALSE(JukesCantorOf(0.75).has_value());
  EXPECT_FALSE(JukesCantorOf(0.8).has_value());
  EXPECT_NEAR(*JukesCantorOf(0.3), -0.75 * std::log(0.6), 1e-12);
  EXPECT_FALSE(std::signbit(*JukesCantorOf(0.0)));
}

// Random coding alignments with few distinct codons per column, some gaps and stops.
std::vector<std::string> RandomCodingRows(std::mt19937& rng, int seqs, int codons) {
  const std::string bases = "TCAG";
  std::vector<std::string> rows(static_cast<size_t>(seqs), std::string(3 * codons, 'A'));
  for (int c = 0; c < codons; ++c) {
    std::vector<std::string> variants;
    const int k = 1 + static_cast<int>(rng() % 4);
    for (int v = 0; v < k; ++v) {
      std::string codon;
      for (int p = 0; p < 3; ++p) codon += bases[rng() % 4];
      variants.push_back(codon);
    }
    for (auto& row : rows) {
      std::string codon = variants[rng() % variants.size()];
      if (rng() % 200 == 0) codon[rng() % 3] = '-';
      row.replace(static_cast<size_t>(3 * c), 3, codon);
    }
  }
  return rows;
}

TEST(PairwiseSubstitutions, GroupedKernelEqualsItsPlainTwin) {
  std::mt19937 rng(20260125);
  for (int trial = 0; trial < 12; ++trial) {
    const int seqs = 2 + static_cast<int>(rng() % 30);
    const auto sel = test::CodingSelection(RandomCodingRows(rng, seqs, 40),
                                           static_cast<int16_t>(1 + trial % 10));
    const ActiveData& ad = sel.data();
    const auto codons = CompleteCodons(ad.CodonPosition, 1, ad.NumSites);
    const PairwiseSubstitutions fast =
        CountPairwiseSubstitutions(FirstColumns(sel), codons, NeiGojoboriTable(ad.GeneticCode));
    const PairwiseSubstitutions plain =
        CountPairwiseSubstitutionsPlain(FirstColumns(sel), codons, ad.GeneticCode);
    EXPECT_EQ(fast.Synonymous.Values(), plain.Synonymous.Values()) << "trial " << trial;
    EXPECT_EQ(fast.Nonsynonymous.Values(), plain.Nonsynonymous.Values()) << "trial " << trial;
  }
}

TEST(NoncodingDifferences, AgainstAPlainCountOfEveryPair) {
  std::mt19937 rng(7);
  const auto rows = RandomCodingRows(rng, 9, 20);
  // Sites 1..30 code; 31..60 do not.
  const auto sel = test::CodingSelection(rows, 1, 30);
  const NoncodingDifferences d =
      CountNoncodingDifferences(FirstColumns(sel), sel.data().CodonPosition, 1, 60);
  int32_t positions = 0;
  for (int32_t site = 31; site <= 60; ++site)
    if (sel.SelSiteClass1[static_cast<size_t>(site)] != kGapOrMissing) ++positions;
  EXPECT_EQ(d.Positions, positions);
  for (int32_t i = 1; i < 9; ++i)
    for (int32_t j = i + 1; j <= 9; ++j) {
      int differences = 0;
      for (int32_t site = 31; site <= 60; ++site) {
        if (sel.SelSiteClass1[static_cast<size_t>(site)] == kGapOrMissing) continue;
        if (sel.SelMatrix1.at(site, i) != sel.SelMatrix1.at(site, j)) ++differences;
      }
      EXPECT_FLOAT_EQ(d.Differences.At(i, j), static_cast<float>(differences));
    }
}

TEST(PairTable, RowOrder) {
  PairTable t(4);
  EXPECT_EQ(t.Pairs(), 6u);
  EXPECT_EQ(t.Index(1, 2), 0u);
  EXPECT_EQ(t.Index(1, 4), 2u);
  EXPECT_EQ(t.Index(2, 3), 3u);
  EXPECT_EQ(t.Index(3, 4), 5u);
}

}  // namespace
}  // namespace ovelt
