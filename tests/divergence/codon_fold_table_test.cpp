// The class digits of the codon positions: hand-worked codons, the ten rows of the digit table,
// and the whole standard code against a plain recount of synonymous fractions.
#include <gtest/gtest.h>

#include <string>

#include "analyses/divergence/common/codon_fold_table.h"
#include "analyses/divergence/common/codon_index.h"
#include "core/genetic_code.h"

namespace ovelt {
namespace {

int Codon(const std::string& c) { return CodonIndex(c[0], c[1], c[2]); }

std::string Digits(const CodonFoldTable& t, const std::string& c) {
  const int i = Codon(c);
  return {t.At(i, 1), t.At(i, 2), t.At(i, 3)};
}

TEST(CodonIndex, BasesAndReplacement) {
  EXPECT_EQ(Codon("TTT"), 1);
  EXPECT_EQ(Codon("GGG"), 64);
  const int agt = Codon("AGT");  // (3 - 1) * 16 + (4 - 1) * 4 + 1 = 45
  EXPECT_EQ(agt, 45);
  EXPECT_EQ(CodonBase(agt, 1), 3);
  EXPECT_EQ(CodonBase(agt, 2), 4);
  EXPECT_EQ(CodonBase(agt, 3), 1);
  EXPECT_EQ(WithBase(agt, 1, 1), Codon("TGT"));
  EXPECT_EQ(WithBase(agt, 3, 4), Codon("AGG"));
  const CodonDifference d = DifferenceOf(Codon("TCT"), Codon("AGT"));
  EXPECT_EQ(d.Count, 2);
  EXPECT_TRUE(d.At[0] && d.At[1] && !d.At[2]);
}

TEST(FoldDigit, TheTenRowsOfTheTable) {
  EXPECT_EQ(FoldDigit(0, 0), '0');
  EXPECT_EQ(FoldDigit(0, 1), '2');
  EXPECT_EQ(FoldDigit(0, 2), '3');
  EXPECT_EQ(FoldDigit(0, 3), '4');
  EXPECT_EQ(FoldDigit(1, 0), '0');
  EXPECT_EQ(FoldDigit(1, 1), '1');
  EXPECT_EQ(FoldDigit(1, 2), '4');
  EXPECT_EQ(FoldDigit(2, 0), '0');
  EXPECT_EQ(FoldDigit(2, 1), '4');
  EXPECT_EQ(FoldDigit(3, 0), '0');
  EXPECT_DOUBLE_EQ(SynonymousFraction('0'), 0.0);
  EXPECT_DOUBLE_EQ(SynonymousFraction('1'), 0.5);
  EXPECT_DOUBLE_EQ(SynonymousFraction('2'), 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(SynonymousFraction('3'), 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(SynonymousFraction('4'), 1.0);
}

TEST(CodonFoldTable, HandWorkedCodonsOfTheStandardCode) {
  const CodonFoldTable t = BuildCodonFoldTable(BuildGeneticCode(1));
  // CTT: first TTT F, ATT I, GTT V (0 of 3); second never; third CTC, CTA, CTG all Leu.
  EXPECT_EQ(Digits(t, "CTT"), "004");
  // TTA: first CTA Leu (1 of 3); second TCA Ser, TAA and TGA stops (2 stops, 0 syn); third
  // TTT, TTC Phe, TTG Leu (1 of 3).
  EXPECT_EQ(Digits(t, "TTA"), "202");
  // TAT: third TAC Tyr, TAA and TAG stops: 2 stops, 1 syn, the whole site synonymous.
  EXPECT_EQ(Digits(t, "TAT").substr(2), "4");
  // TGT: third TGC Cys, TGA stop, TGG Trp: 1 stop, 1 syn, half the site.
  EXPECT_EQ(Digits(t, "TGT").substr(2), "1");
  // AGA: first TGA stop, CGA Arg, GGA Gly (1 stop, 1 syn); third AGT, AGC Ser, AGG Arg.
  EXPECT_EQ(Digits(t, "AGA"), "102");
  // ATA: third ATT, ATC Ile, ATG Met (2 of 3).
  EXPECT_EQ(Digits(t, "ATA").substr(2), "3");
  // TAA, a stop: first CAA, AAA, GAA; third TAT, TAC and the stop TAG; nothing synonymous.
  EXPECT_EQ(Digits(t, "TAA"), "000");
  EXPECT_EQ(Digits(t, "TAG"), "000");
}

TEST(CodonFoldTable, OtherCodes) {
  // Mammalian mitochondria: AGG is a stop, so AGA's third position has 1 stop and no synonym.
  const CodonFoldTable mt = BuildCodonFoldTable(BuildGeneticCode(2));
  EXPECT_EQ(Digits(mt, "AGA").substr(2), "0");
  // TGA is Trp there: TGG's third position has TGA as its one synonym.
  EXPECT_EQ(Digits(mt, "TGG").substr(2), "2");
  // Ciliates: TAA and TAG are Gln, so TAA's first (CAA) and third (TAG) positions are 1/3.
  const CodonFoldTable ciliate = BuildCodonFoldTable(BuildGeneticCode(8));
  EXPECT_EQ(Digits(ciliate, "TAA"), "202");
}

// The standard code, written out here, and the synonymous fraction of every position recounted
// as syn / (3 - stops).
TEST(CodonFoldTable, StandardCodeAgainstAPlainRecount) {
  const std::string bases = "TCAG";
  const std::string code = "FFLLSSSSYY**CC*WLLLLPPPPHHQQRRRRIIIMTTTTNNKKSSRRVVVVAAAADDEEGGGG";
  auto aa = [&](const std::string& c) {
    return code[bases.find(c[0]) * 16 + bases.find(c[1]) * 4 + bases.find(c[2])];
  };
  const CodonFoldTable t = BuildCodonFoldTable(BuildGeneticCode(1));
  for (char b1 : bases)
    for (char b2 : bases)
      for (char b3 : bases) {
        const std::string c{b1, b2, b3};
        for (int p = 0; p < 3; ++p) {
          int stops = 0, syn = 0;
          for (char other : bases) {
            if (other == c[static_cast<size_t>(p)]) continue;
            std::string m = c;
            m[static_cast<size_t>(p)] = other;
            if (aa(m) == '*') {
              ++stops;
            } else if (aa(m) == aa(c)) {
              ++syn;
            }
          }
          const double expected = stops == 3 ? 0.0 : static_cast<double>(syn) / (3 - stops);
          EXPECT_DOUBLE_EQ(SynonymousFraction(t.At(Codon(c), p + 1)), expected)
              << c << " position " << p + 1;
        }
      }
}

}  // namespace
}  // namespace ovelt
