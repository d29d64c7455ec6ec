// The classification of codon columns into `SiteChangeCode`, case by case, on alignments of one
// codon column worked by hand. Each expectation gives the codes of the three sites.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "analyses/divergence/common/site_change_code.h"
#include "codon_fixture.h"

namespace ovelt {
namespace {

using Codes = std::array<int16_t, 3>;

struct Classified {
  Codes Sites{};
  SiteChangeCodes All;
};

Classified Classify(const std::vector<std::string>& rows, ClassificationRules rules,
                    int16_t code = 1) {
  const auto sel = test::CodingSelection(rows, code);
  Classified c;
  c.All = ClassifyCodonColumns(FirstColumns(sel), sel.data().CodonPosition, sel.data().GeneticCode,
                               1, sel.data().NumSites, rules);
  for (size_t p = 0; p < 3; ++p) c.Sites[p] = c.All.Code[p + 1];
  return c;
}

ClassificationRules Random(TieBreaker& ties) {
  ClassificationRules rules;
  rules.Ties = &ties;
  return rules;
}

ClassificationRules Paired() {
  ClassificationRules rules;
  rules.PairedSpecies = true;
  return rules;
}

Codes Drawn(const std::vector<std::string>& rows, int16_t code = 1) {
  TieBreaker ties(7);
  return Classify(rows, Random(ties), code).Sites;
}

TEST(SiteChangeCode, GapsAndInvariantCodons) {
  Classified c = Classify({"ATGCTT", "ATG-TT"}, Paired());
  EXPECT_EQ(c.All.Code, (std::vector<int16_t>{0, 9, 9, 9, -5, -5, -5}));
  EXPECT_EQ(c.All.CodonsWithGaps, 1);
  EXPECT_EQ(c.All.Codons, 1);
  EXPECT_FALSE(c.All.StopFound);
  // An invariant stop codon of the first sequence raises the stop flag.
  c = Classify({"TAA", "TAA"}, Paired());
  EXPECT_EQ(c.Sites, (Codes{9, 9, 9}));
  EXPECT_TRUE(c.All.StopFound);
}

TEST(SiteChangeCode, TwoCodonsOneDifference) {
  EXPECT_EQ(Drawn({"CTT", "CTC"}), (Codes{9, 9, 2}));  // Leu, Leu
  EXPECT_EQ(Drawn({"TTT", "TTA"}), (Codes{9, 9, 1}));  // Phe, Leu
  // TAA and TAG: both "*", the ends of a pair are not tested; the stop flag rises.
  const Classified c = Classify({"TAA", "TAG"}, Paired());
  EXPECT_EQ(c.Sites, (Codes{9, 9, 2}));
  EXPECT_TRUE(c.All.StopFound);
}

TEST(SiteChangeCode, TwoCodonsTwoDifferences) {
  // AGA -> TGG: through TGA (stop) the pathway scores 1 + 1; AGA AGG (syn) TGG (nonsyn) scores
  // 1 + 2 and stands: first position 1, third 2. No end is a stop.
  Classified c = Classify({"AGA", "TGG"}, Paired());
  EXPECT_EQ(Drawn({"AGA", "TGG"}), (Codes{1, 9, 2}));
  // Under the rules of the McDonald and Kreitman test two differences count 1 each unwalked.
  EXPECT_EQ(c.Sites, (Codes{1, 9, 1}));
  EXPECT_FALSE(c.All.StopFound);
  // TCT and AGT are both Ser, every pathway nonsynonymous (TCT ACT AGT, TCT TGT AGT): the rule of
  // the same amino acid gives each differing position 2, under either rules.
  EXPECT_EQ(Drawn({"TCT", "AGT"}), (Codes{2, 2, 9}));
  EXPECT_EQ(Classify({"TCT", "AGT"}, Paired()).Sites, (Codes{2, 2, 9}));
}

TEST(SiteChangeCode, TwoCodonsThreeDifferences) {
  // TTT -> CCC: all six pathways give nonsynonymous first and second positions and a synonymous
  // third (the one step inside a box of four).
  EXPECT_EQ(Drawn({"TTT", "CCC"}), (Codes{1, 1, 2}));
}

TEST(SiteChangeCode, TiedPathwaysAreDrawnByTheCallersGenerator) {
  // TTT and CTA (ascending): TTT CTT (Phe Leu) CTA (Leu Leu) gives (1, 2); TTT TTA (Phe Leu) CTA
  // (Leu Leu) gives (2, 1): a tie of two patterns, drawn as Int(2 U + 1).
  bool seen_first = false, seen_second = false;
  for (int seed = 1; seed <= 40; ++seed) {
    TieBreaker ties(seed), twin(seed);
    const Codes codes = Classify({"CTA", "TTT"}, Random(ties)).Sites;
    const Codes expected = twin.Pick(2) == 1 ? Codes{1, 9, 2} : Codes{2, 9, 1};
    EXPECT_EQ(codes, expected) << "seed " << seed;
    seen_first = seen_first || codes == Codes{2, 9, 1};
    seen_second = seen_second || codes == Codes{1, 9, 2};
  }
  EXPECT_TRUE(seen_first && seen_second);
  // The McDonald and Kreitman rules count each of two differences as 1 without walking.
  EXPECT_EQ(Classify({"CTA", "TTT"}, Paired()).Sites, (Codes{1, 9, 1}));
  // Their tie rule, with a choice of its own, is asked with the two codons and the tied patterns.
  ClassificationRules chooser = Paired();
  std::vector<std::array<int8_t, 3>> asked;
  chooser.TiedPathways = [&asked](int, int, const std::vector<std::array<int8_t, 3>>& tied) {
    asked = tied;
    return size_t{1};
  };
  // TTT, TTC, CTA: the pair TTT CTA ties (1, 2) and (2, 1) (see the networks below).
  EXPECT_EQ(Classify({"TTT", "TTC", "CTA"}, chooser).Sites, (Codes{2, 9, 12}));
  ASSERT_EQ(asked.size(), 2u);
  EXPECT_EQ(asked[0], (std::array<int8_t, 3>{1, 0, 2}));
}

TEST(SiteChangeCode, ThreeCodonsOneVaryingPosition) {
  EXPECT_EQ(Drawn({"TTT", "CTT", "ATT"}), (Codes{11, 9, 9}));  // Phe Leu Ile: 1 + 1 + 1
  EXPECT_EQ(Drawn({"TTT", "TTC", "TTA"}), (Codes{9, 9, 12}));  // Phe Phe Leu: 2 + 1 + 1
  EXPECT_EQ(Drawn({"CTT", "CTC", "CTA"}), (Codes{9, 9, 22}));  // Leu Leu Leu: 2 + 2 + 2
}

TEST(SiteChangeCode, ThreeCodonsTwoPositionsOnePairDiffersAtBoth) {
  // TTT, TTC, CTT (ascending): TTC CTT differs at both and is left out; TTT TTC (Phe Phe) gives
  // the third position 2, TTT CTT (Phe Leu) the first 1.
  EXPECT_EQ(Drawn({"CTT", "TTT", "TTC"}), (Codes{1, 9, 2}));
}

TEST(SiteChangeCode, ThreeCodonsTwoNetworks) {
  // TTA, CTA, AGA: TTA CTA differs at the first position only (Leu Leu: 2). TTA AGA: both
  // pathways score 2, (1, 1) (TTA ATA AGA; TTA TGA AGA through a stop). CTA AGA: CTA CGA (Leu
  // Arg) AGA (Arg Arg) gives (2, 1). Network 1 (with TTA AGA): first position 12, second 1, sum
  // 13; network 2 (with CTA AGA): 22 and 1, sum 23, the greater: it stands.
  Classified c = Classify({"TTA", "CTA", "AGA"}, Paired());
  EXPECT_EQ(c.Sites, (Codes{22, 1, 9}));
  EXPECT_FALSE(c.All.StopFound);
  EXPECT_EQ(Drawn({"AGA", "CTA", "TTA"}), (Codes{22, 1, 9}));
}

TEST(SiteChangeCode, ThreeCodonsTiedNetworks) {
  // TTT, CTC, CTA: CTC CTA differs at the third position only (Leu Leu: 2). TTT CTC gives (1, 2)
  // on both pathways. TTT CTA ties (1, 2) (TTT CTT CTA) and (2, 1) (TTT TTA CTA). With (1, 2) the
  // networks are (1, 22) and (1, 22), equal; with (2, 1) they are (1, 22), sum 23, and (2, 12),
  // sum 14: 9 apart, the same changes placed differently, a tie too.
  // The repeatable rules take the first tied pathway and then the second network.
  EXPECT_EQ(Classify({"TTT", "CTC", "CTA"}, Paired()).Sites, (Codes{1, 9, 22}));
  // The random rules draw the pathway, then the network.
  for (int seed = 1; seed <= 40; ++seed) {
    TieBreaker ties(seed), twin(seed);
    const Codes codes = Classify({"TTT", "CTC", "CTA"}, Random(ties)).Sites;
    const int pathway = twin.Pick(2);
    const int network = twin.Pick(2);
    const Codes expected = pathway == 1 || network == 1 ? Codes{1, 9, 22} : Codes{2, 9, 12};
    EXPECT_EQ(codes, expected) << "seed " << seed;
    EXPECT_EQ(ties.Draws(), 2);
  }
}

TEST(SiteChangeCode, ThreeCodonsComplex) {
  // Two positions with three variants each (m = 0): complex, minus the variants at each.
  Classified c = Classify({"TTT", "CTC", "ATA"}, Paired());
  EXPECT_EQ(c.Sites, (Codes{-3, -9, -3}));
  EXPECT_EQ(c.All.ComplexCodons, 1);
  // Three varying positions.
  EXPECT_EQ(Drawn({"TTT", "CCC", "AAA"}), (Codes{-3, -3, -3}));
  // Two variants at a position read -2.
  EXPECT_EQ(Drawn({"TTT", "CCT", "TCC"}), (Codes{-2, -2, -2}));
}

TEST(SiteChangeCode, FourCodonsOneVaryingPosition) {
  EXPECT_EQ(Drawn({"TTT", "CTT", "ATT", "GTT"}), (Codes{111, 9, 9}));  // Phe Leu Ile Val: 6
  // Cys Cys stop Trp: one synonymous pair, 7; the stop raises the flag.
  const Classified c = Classify({"TGT", "TGC", "TGA", "TGG"}, Paired());
  EXPECT_EQ(c.Sites, (Codes{9, 9, 112}));
  EXPECT_TRUE(c.All.StopFound);
  EXPECT_EQ(Drawn({"TTT", "TTC", "TTA", "TTG"}), (Codes{9, 9, 122}));  // Phe Phe Leu Leu: 8
  EXPECT_EQ(Drawn({"ATT", "ATC", "ATA", "ATG"}), (Codes{9, 9, 122}));  // Ile x 3, Met: 9
  EXPECT_EQ(Drawn({"CTT", "CTC", "CTA", "CTG"}), (Codes{9, 9, 222}));  // Leu x 4: 12
}

TEST(SiteChangeCode, FourCodonsSquare) {
  // CTT CTA TTT TTA: around the square CTT CTA (Leu Leu) 2, TTT TTA (Phe Leu) 1 at the third
  // position, CTT TTT (Leu Phe) 1, CTA TTA (Leu Leu) 2 at the first. Both take 2, but not all
  // four steps are synonymous: the first position gets 1.
  EXPECT_EQ(Drawn({"CTT", "CTA", "TTT", "TTA"}), (Codes{1, 9, 2}));
  // CTA CTG TTA TTG: all four Leu, all four steps synonymous.
  EXPECT_EQ(Drawn({"CTA", "CTG", "TTA", "TTG"}), (Codes{2, 9, 2}));
  // The same square under a mitochondrial code is complex.
  EXPECT_EQ(Drawn({"CTT", "CTA", "TTT", "TTA"}, 2), (Codes{-2, -9, -2}));
  // The nuclear Candida code keeps it.
  EXPECT_EQ(Drawn({"CTT", "CTA", "TTT", "TTA"}, 9), (Codes{1, 9, 2}));
}

TEST(SiteChangeCode, FourCodonsNotASquare) {
  // CTT CTA TTT ATT: the first position differs in five pairs, the third in three: complex.
  EXPECT_EQ(Drawn({"CTT", "CTA", "TTT", "ATT"}), (Codes{-3, -9, -2}));
  // Three varying positions.
  EXPECT_EQ(Drawn({"TTT", "CTT", "CCT", "CCC"}), (Codes{-2, -2, -2}));
}

TEST(SiteChangeCode, FiveCodonsAreComplex) {
  // Five codons: the closing pass resolves the varying positions by their variants.
  ClassificationRules second = Paired();
  Classified c = Classify({"TTT", "TTC", "CTT", "CTC", "ATT"}, second);
  EXPECT_EQ(c.Sites, (Codes{-3, -9, -2}));
  EXPECT_EQ(c.All.InternalFaults, 0);
  // In a second selection an unresolved position at the closing pass is an internal fault.
  second.SecondSelection = true;
  c = Classify({"TTT", "TTC", "CTT", "CTC", "ATT"}, second);
  EXPECT_EQ(c.Sites, (Codes{-3, -9, -2}));
  EXPECT_EQ(c.All.InternalFaults, 2);
}

TEST(SiteChangeCode, ClosingPass) {
  EXPECT_EQ(ClosingCode(0, 0), 9);
  EXPECT_EQ(ClosingCode(-8, 0), -9);
  EXPECT_EQ(ClosingCode(-8, 1), -2);
  EXPECT_EQ(ClosingCode(-8, 2), -2);
  EXPECT_EQ(ClosingCode(-8, 3), -3);
  EXPECT_EQ(ClosingCode(-8, 4), -4);
  EXPECT_EQ(ClosingCode(12, 2), 12);
}

TEST(SiteChangeCode, CodonsAcrossAnIntronAndOutsideTheRegion) {
  // Sites 1-3 a codon (CTT, CTC); the second codon has its first position at site 4 and, after
  // an intron at sites 5 and 6, its second and third at sites 7 and 8: ATC and GTA, which differ
  // at the first (Ile Val) and third (both pathways synonymous there) positions.
  ActiveData ad = test::CodingAlignment({"CTTAACTC", "CTCGACTA"});
  ad.CodonPosition = {0, 1, 2, 3, 1, 0, 0, 2, 3};
  const auto sel = test::SelectedFrom(ad);
  TieBreaker ties(1);
  ClassificationRules rules = Random(ties);
  const SiteChangeCodes all = ClassifyCodonColumns(
      FirstColumns(sel), sel.data().CodonPosition, sel.data().GeneticCode, 1, 8, rules);
  EXPECT_EQ(all.Code, (std::vector<int16_t>{0, 9, 9, 2, 1, 0, 0, 9, 2}));
  // A region that cuts the second codon classifies only the first.
  const SiteChangeCodes cut = ClassifyCodonColumns(
      FirstColumns(sel), sel.data().CodonPosition, sel.data().GeneticCode, 1, 7, rules);
  EXPECT_EQ(cut.Code, (std::vector<int16_t>{0, 9, 9, 2, 0, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace ovelt
