#include "shell/viewer_codons.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace ovelt {
namespace {

uint64_t Codons(std::initializer_list<const char*> codons) {
  uint64_t bits = 0;
  for (const char* c : codons) {
    const int index = CodonIndex(c[0], c[1], c[2]);
    EXPECT_GT(index, 0) << c;
    bits |= uint64_t{1} << (index - 1);
  }
  return bits;
}

const GeneticCodeTable kUniversal = BuildGeneticCode(1);

TEST(ViewerCodons, OneCodonHasNoChange) {
  const CodonChangeMarks m = MarkCodonChanges(Codons({"GCT"}), kUniversal);
  EXPECT_FALSE(m.Complex || m.Synonymous || m.Nonsynonymous);
}

TEST(ViewerCodons, OneStepPairsBySameOrOtherAminoAcid) {
  // GCT and GCC are both Ala; GCT to ACT is Ala to Thr.
  CodonChangeMarks m = MarkCodonChanges(Codons({"GCT", "GCC"}), kUniversal);
  EXPECT_TRUE(m.Synonymous);
  EXPECT_FALSE(m.Nonsynonymous);
  m = MarkCodonChanges(Codons({"GCT", "ACT"}), kUniversal);
  EXPECT_FALSE(m.Synonymous);
  EXPECT_TRUE(m.Nonsynonymous);
}

TEST(ViewerCodons, TwoStepPairTakesThePathwayWithFewestReplacements) {
  // CTT (Leu) and TTA (Leu): through CTA (Leu) both steps are synonymous; through TTT (Phe)
  // both are not. The synonymous pathway stands.
  const CodonChangeMarks m = MarkCodonChanges(Codons({"CTT", "TTA"}), kUniversal);
  EXPECT_TRUE(m.Synonymous);
  EXPECT_FALSE(m.Nonsynonymous);
  EXPECT_FALSE(m.Complex);
}

TEST(ViewerCodons, StopIntermediateIsNoSynonymousStep) {
  // TAT (Tyr) to TGA (stop) ... both pathways: TAT-TGT-TGA (Tyr-Cys-stop) or TAT-TAA-TGA
  // (through the stop TAA): every step is a replacement either way.
  const CodonChangeMarks m = MarkCodonChanges(Codons({"TAT", "TGA"}), kUniversal);
  EXPECT_FALSE(m.Synonymous);
  EXPECT_TRUE(m.Nonsynonymous);
}

TEST(ViewerCodons, ThreeCodonsAtOnePositionAreResolved) {
  const CodonChangeMarks m = MarkCodonChanges(Codons({"GCT", "GCC", "GCA"}), kUniversal);
  EXPECT_FALSE(m.Complex);
  EXPECT_TRUE(m.Synonymous);
  EXPECT_FALSE(m.Nonsynonymous);
}

TEST(ViewerCodons, ThreeCodonsChainedByOneStepPairsLeaveOutTheLongPair) {
  // GCT-GCC (Ala, synonymous) and GCC-ACC (Ala-Thr); the pair GCT-ACC differs at two
  // positions and is left out, so no further marks come from it.
  const CodonChangeMarks m = MarkCodonChanges(Codons({"GCT", "GCC", "ACC"}), kUniversal);
  EXPECT_FALSE(m.Complex);
  EXPECT_TRUE(m.Synonymous);
  EXPECT_TRUE(m.Nonsynonymous);
}

TEST(ViewerCodons, ComplexCodons) {
  // Three codons over all three positions.
  EXPECT_TRUE(MarkCodonChanges(Codons({"GCT", "ACC", "TGT"}), kUniversal).Complex);
  // Three codons at two positions, no pair one step apart.
  EXPECT_TRUE(MarkCodonChanges(Codons({"GCT", "ACC", "TCA"}), kUniversal).Complex);
  // Five codons.
  EXPECT_TRUE(
      MarkCodonChanges(Codons({"GCT", "GCC", "GCA", "GCG", "ACT"}), kUniversal).Complex);
  // Four codons at three positions.
  EXPECT_TRUE(MarkCodonChanges(Codons({"GCT", "GCC", "ACT", "GAT"}), kUniversal).Complex);
}

TEST(ViewerCodons, SquareOfFourCodonsOnlyUnderANuclearCode) {
  // G/A at the first position, T/C at the third: four one-step pairs, two synonymous (Ala-Ala,
  // Thr-Thr) and two not.
  const uint64_t square = Codons({"GCT", "GCC", "ACT", "ACC"});
  const CodonChangeMarks m = MarkCodonChanges(square, kUniversal);
  EXPECT_FALSE(m.Complex);
  EXPECT_TRUE(m.Synonymous);
  EXPECT_TRUE(m.Nonsynonymous);
  const GeneticCodeTable mito = BuildGeneticCode(2);
  ASSERT_NE(mito.NuclearCodeFlag, 1);
  EXPECT_TRUE(MarkCodonChanges(square, mito).Complex);
}

}  // namespace
}  // namespace ovelt
