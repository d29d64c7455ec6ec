#include "core/genetic_code.h"

#include <gtest/gtest.h>

#include <string>

namespace ovelt {
namespace {

// The translation tables as published by NCBI (Elzanowski and Ostell), in T, C, A, G order:
// an independent source for the codes built from the universal code and its changes.
struct PublishedCode {
  int16_t index;
  const char* amino_acids;
};

const PublishedCode kPublished[] = {
    {1, "FFLLSSSSYY**CC*WLLLLPPPPHHQQRRRRIIIMTTTTNNKKSSRRVVVVAAAADDEEGGGG"},   // NCBI 1
    {2, "FFLLSSSSYY**CCWWLLLLPPPPHHQQRRRRIIMMTTTTNNKKSS**VVVVAAAADDEEGGGG"},   // NCBI 2
    {3, "FFLLSSSSYY**CCWWLLLLPPPPHHQQRRRRIIMMTTTTNNKKSSSSVVVVAAAADDEEGGGG"},   // NCBI 5
    {4, "FFLLSSSSYY**CCWWTTTTPPPPHHQQRRRRIIMMTTTTNNKKSSRRVVVVAAAADDEEGGGG"},   // NCBI 3
    {5, "FFLLSSSSYY**CCWWLLLLPPPPHHQQRRRRIIIMTTTTNNKKSSRRVVVVAAAADDEEGGGG"},   // NCBI 4
    {6, "FFLLSSSSYY**CCWWLLLLPPPPHHQQRRRRIIIMTTTTNNNKSSSSVVVVAAAADDEEGGGG"},   // NCBI 9
    {7, "FFLLSSSSYYY*CCWWLLLLPPPPHHQQRRRRIIIMTTTTNNNKSSSSVVVVAAAADDEEGGGG"},   // NCBI 14
    {8, "FFLLSSSSYYQQCC*WLLLLPPPPHHQQRRRRIIIMTTTTNNKKSSRRVVVVAAAADDEEGGGG"},   // NCBI 6
    {9, "FFLLSSSSYY**CC*WLLLSPPPPHHQQRRRRIIIMTTTTNNKKSSRRVVVVAAAADDEEGGGG"},   // NCBI 12
    {10, "FFLLSSSSYY**CCWWLLLLPPPPHHQQRRRRIIMMTTTTNNKKSSGGVVVVAAAADDEEGGGG"},  // NCBI 13
};

TEST(GeneticCode, EveryCodeMatchesThePublishedTable) {
  for (const auto& code : kPublished) {
    const GeneticCodeTable table = BuildGeneticCode(code.index);
    std::string built;
    for (int i = 1; i <= 64; ++i) built += table.Translate(i);
    EXPECT_EQ(built, code.amino_acids) << "code " << code.index;
  }
}

TEST(GeneticCode, CodonIndexRanksTCAG) {
  EXPECT_EQ(CodonIndex('T', 'T', 'T'), 1);
  EXPECT_EQ(CodonIndex('T', 'T', 'C'), 2);
  EXPECT_EQ(CodonIndex('T', 'G', 'A'), 15);  // (1-1)*16 + (4-1)*4 + 3
  EXPECT_EQ(CodonIndex('A', 'T', 'G'), 36);  // (3-1)*16 + (1-1)*4 + 4
  EXPECT_EQ(CodonIndex('G', 'G', 'G'), 64);
  EXPECT_EQ(CodonIndex('A', '-', 'G'), 0);
  EXPECT_EQ(CodonIndex('?', 'A', 'G'), 0);
  EXPECT_EQ(CodonIndex('A', 'A', 'N'), 0);
  EXPECT_EQ(BuildGeneticCode(1).Translate(CodonIndex('A', 'T', 'G')), 'M');
  EXPECT_EQ(BuildGeneticCode(1).Translate(0), '\0');
}

TEST(GeneticCode, NuclearFlagOnlyForNuclearCodes) {
  for (int16_t index = 1; index <= kGeneticCodeCount; ++index) {
    const bool nuclear = index == 1 || index == 8 || index == 9;
    EXPECT_EQ(BuildGeneticCode(index).NuclearCodeFlag, nuclear ? 1 : 0) << index;
  }
}

TEST(GeneticCode, IndexOutsideTheTableReadsAsUniversal) {
  const GeneticCodeTable universal = BuildGeneticCode(1);
  EXPECT_EQ(BuildGeneticCode(0).AminoAcid, universal.AminoAcid);
  EXPECT_EQ(BuildGeneticCode(11).AminoAcid, universal.AminoAcid);
}

TEST(GeneticCode, NamesOfTheTenCodes) {
  EXPECT_EQ(GeneticCodeText(1), "Nuclear Universal");
  EXPECT_EQ(GeneticCodeNexusName(1), "Universal");
  EXPECT_EQ(GeneticCodeTableName(1), "UNIVERSAL.EXT");
  EXPECT_EQ(GeneticCodeText(5), "mtDNA Mold-Protozoan");
  EXPECT_EQ(GeneticCodeNexusName(5), "mtDNA.MoldProt");
  EXPECT_EQ(GeneticCodeTableName(5), "mtDNA.MoldProt.EXT");
  EXPECT_EQ(GeneticCodeText(9), "Nuclear Candida (Table 12)");
  EXPECT_EQ(GeneticCodeNexusName(10), "mtDNA.Ascidian");
  EXPECT_EQ(GeneticCodeTableName(2), "MTDNA.MAM.EXT");
  EXPECT_EQ(GeneticCodeText(0), "");
  EXPECT_EQ(GeneticCodeText(11), "");
}

TEST(GeneticCode, IndexFromAnyColumnOrAlias) {
  for (int16_t index = 1; index <= kGeneticCodeCount; ++index) {
    EXPECT_EQ(GeneticCodeIndexFromName(GeneticCodeText(index)), index);
    EXPECT_EQ(GeneticCodeIndexFromName(GeneticCodeNexusName(index)), index);
    EXPECT_EQ(GeneticCodeIndexFromName(GeneticCodeTableName(index)), index);
  }
  EXPECT_EQ(GeneticCodeIndexFromName("UNIVNUC"), 1);
  EXPECT_EQ(GeneticCodeIndexFromName("UNIVmtDNA"), 2);
  EXPECT_EQ(GeneticCodeIndexFromName("univmtdna"), 2);
  EXPECT_EQ(GeneticCodeIndexFromName("  mtdna.yeast "), 4);
  EXPECT_EQ(GeneticCodeIndexFromName("Nuclear.Candida"), 9);
  // A name is found when a column begins with it.
  EXPECT_EQ(GeneticCodeIndexFromName("mtDNA.Echino"), 6);
  EXPECT_EQ(GeneticCodeIndexFromName("Martian"), 0);
  EXPECT_EQ(GeneticCodeIndexFromName(""), 0);
}

TEST(GeneticCode, ThreeLetterNames) {
  const std::string letters = "ACDEFGHIKLMNPQRSTVWY*";
  const char* names[] = {"Ala", "Cys", "Asp", "Glu", "Phe", "Gly", "His",
                         "Ile", "Lys", "Leu", "Met", "Asn", "Pro", "Gln",
                         "Arg", "Ser", "Thr", "Val", "Trp", "Tyr", "Stop"};
  for (size_t i = 0; i < letters.size(); ++i) EXPECT_EQ(AminoAcidThreeLetter(letters[i]), names[i]);
  EXPECT_EQ(AminoAcidThreeLetter('B'), "");
}

TEST(GeneticCode, ChromosomalLocations) {
  const char* texts[] = {"Autosome",     "X chromosome", "Y chromosome",  "Z chromosome",
                         "W chromosome", "Prokaryotic",  "Mitochondrial", "Chloroplast"};
  const char* nexus[] = {"Autosome",    "Xchromosome", "Ychromosome",   "Zchromosome",
                         "Wchromosome", "Prokaryotic", "Mitochondrial", "Chloroplast"};
  for (int16_t code = 0; code < kChromosomalLocationCount; ++code) {
    EXPECT_EQ(ChromosomalLocationText(code), texts[code]);
    EXPECT_EQ(ChromosomalLocationNexusValue(code), nexus[code]);
    EXPECT_EQ(ChromosomalLocationFromNexusValue(nexus[code]), code);
  }
  EXPECT_EQ(ChromosomalLocationFromNexusValue("xCHROMOSOME"), 1);
  EXPECT_EQ(ChromosomalLocationFromNexusValue("Plasmid"), -1);
  EXPECT_EQ(ChromosomalLocationText(8), "");
}

TEST(GeneticCode, GenomeAndNucleotideTexts) {
  EXPECT_EQ(GenomeStateText(0), "Diploid");
  EXPECT_EQ(GenomeStateText(1), "Haploid");
  EXPECT_EQ(NucleotideTypeText(0), "DNA");
  EXPECT_EQ(NucleotideTypeText(1), "RNA");
  EXPECT_EQ(NucleotideTypeText(2), "");
}

}  // namespace
}  // namespace ovelt
