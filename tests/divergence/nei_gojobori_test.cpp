// Pathways between codons and the Nei and Gojobori counts, worked by hand, and the codon walk
// along a coding map.
#include <gtest/gtest.h>

#include <string>

#include "analyses/divergence/common/codon_pathways.h"
#include "analyses/divergence/common/codon_walk.h"
#include "analyses/divergence/common/nei_gojobori.h"
#include "core/genetic_code.h"

namespace ovelt {
namespace {

int Codon(const std::string& c) { return CodonIndex(c[0], c[1], c[2]); }

const GeneticCodeTable& Standard() {
  static const GeneticCodeTable code = BuildGeneticCode(1);
  return code;
}

TEST(CodonPathways, OrderOfThePathways) {
  const auto three = PathwaysBetween(Codon("TTT"), Codon("CCC"));
  ASSERT_EQ(three.size(), 6u);
  EXPECT_EQ(three[0].Order, (std::array<int, 3>{1, 2, 3}));
  EXPECT_EQ(three[1].Order, (std::array<int, 3>{1, 3, 2}));
  EXPECT_EQ(three[2].Order, (std::array<int, 3>{2, 1, 3}));
  EXPECT_EQ(three[5].Order, (std::array<int, 3>{3, 2, 1}));
  // (2, 3, 1): TTT, TCT, TCC, CCC.
  EXPECT_EQ(three[3].Codons, (std::array<int, 4>{Codon("TTT"), Codon("TCT"), Codon("TCC"),
                                                 Codon("CCC")}));
  EXPECT_TRUE(PathwaysBetween(Codon("ACG"), Codon("ACG")).empty());
}

TEST(NeiGojobori, OneDifference) {
  // CTT -> CTC: Leu to Leu.
  NeiGojoboriCount c = NeiGojoboriPair(Codon("CTT"), Codon("CTC"), Standard());
  EXPECT_EQ(c.Differences, 1);
  EXPECT_DOUBLE_EQ(c.Synonymous, 1.0);
  // TTT -> TTA: Phe to Leu.
  c = NeiGojoboriPair(Codon("TTT"), Codon("TTA"), Standard());
  EXPECT_DOUBLE_EQ(c.Synonymous, 0.0);
  EXPECT_DOUBLE_EQ(c.Nonsynonymous(), 1.0);
  // TAA -> TAG: the ends are not tested, and both are "*".
  c = NeiGojoboriPair(Codon("TAA"), Codon("TAG"), Standard());
  EXPECT_DOUBLE_EQ(c.Synonymous, 1.0);
}

TEST(NeiGojobori, TwoDifferences) {
  // TTA -> CTG: TTA CTA CTG and TTA TTG CTG, every step Leu to Leu: f = 2.
  NeiGojoboriCount c = NeiGojoboriPair(Codon("TTA"), Codon("CTG"), Standard());
  EXPECT_DOUBLE_EQ(c.Synonymous, 2.0);
  EXPECT_DOUBLE_EQ(c.Nonsynonymous(), 0.0);
  // TTT -> CTC: TTT CTT (F L) CTC (L L): 1; TTT TTC (F F) CTC (F L): 1. f = 1.
  c = NeiGojoboriPair(Codon("TTT"), Codon("CTC"), Standard());
  EXPECT_DOUBLE_EQ(c.Synonymous, 1.0);
  // AGA -> TGG: through TGA (a stop) the pathway is dropped; AGA AGG (R R) TGG (R W) keeps
  // one synonymous step over one pathway: f = 1, not 1/2.
  c = NeiGojoboriPair(Codon("AGA"), Codon("TGG"), Standard());
  EXPECT_DOUBLE_EQ(c.Synonymous, 1.0);
  EXPECT_DOUBLE_EQ(c.Nonsynonymous(), 1.0);
}

TEST(NeiGojobori, EveryPathwayThroughAStopGivesNothingSynonymous) {
  // TGG -> TAA: the intermediates are TAG and TGA, both stops. f = 0, and d = 2 goes to the
  // nonsynonymous count.
  const NeiGojoboriCount c = NeiGojoboriPair(Codon("TGG"), Codon("TAA"), Standard());
  EXPECT_EQ(c.Differences, 2);
  EXPECT_DOUBLE_EQ(c.Synonymous, 0.0);
  EXPECT_DOUBLE_EQ(c.Nonsynonymous(), 2.0);
}

TEST(NeiGojobori, ThreeDifferences) {
  // TTT -> CCC: each of the six pathways has exactly one synonymous step (CCT CCC, CTT CTC,
  // TCT ... TCC, TTT TTC, ...): f = 1, nonsynonymous 2.
  const NeiGojoboriCount c = NeiGojoboriPair(Codon("TTT"), Codon("CCC"), Standard());
  EXPECT_EQ(c.Differences, 3);
  EXPECT_DOUBLE_EQ(c.Synonymous, 1.0);
  EXPECT_DOUBLE_EQ(c.Nonsynonymous(), 2.0);
}

TEST(NeiGojobori, TheTableHoldsWhatThePairWalkGives) {
  const NeiGojoboriTable table(Standard());
  for (int a = 1; a <= 64; ++a)
    for (int b = 1; b <= 64; ++b) {
      const NeiGojoboriCount plain = NeiGojoboriPair(a, b, Standard());
      EXPECT_EQ(table.At(a, b).Differences, plain.Differences);
      EXPECT_DOUBLE_EQ(table.At(a, b).Synonymous, plain.Synonymous);
      EXPECT_DOUBLE_EQ(table.At(a, b).Synonymous, table.At(b, a).Synonymous) << a << " " << b;
    }
}

TEST(CodonWalk, IntronsAreSkippedAndCutCodonsDropped) {
  // Sites 1..12: 0, 1 2 3, 0 0, 1 2, 0 (an intron), 3, 1 2 (cut by the end).
  const std::vector<int16_t> positions{0, 0, 1, 2, 3, 0, 0, 1, 2, 0, 3, 1, 2};
  const auto codons = CompleteCodons(positions, 1, 12);
  ASSERT_EQ(codons.size(), 2u);
  EXPECT_EQ(codons[0], (CodonSites{2, 3, 4}));
  EXPECT_EQ(codons[1], (CodonSites{7, 8, 10}));
  // A region from site 3 starts at the next first position.
  EXPECT_EQ(CompleteCodons(positions, 3, 12), (std::vector<CodonSites>{{7, 8, 10}}));
  // A region ending at site 9 cuts the second codon.
  EXPECT_EQ(CompleteCodons(positions, 1, 9), (std::vector<CodonSites>{{2, 3, 4}}));
  // A position met out of order is passed over: 1 2 1 2 3 gives the codon 1, 2, 5.
  const std::vector<int16_t> out_of_order{0, 1, 2, 1, 2, 3};
  EXPECT_EQ(CompleteCodons(out_of_order, 1, 5), (std::vector<CodonSites>{{1, 2, 5}}));
}

}  // namespace
}  // namespace ovelt
