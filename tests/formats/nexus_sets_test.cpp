// SETS and CODONS blocks of NEXUS files: sequence sets, domains, codon positions, genetic code.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nexus_test_support.h"

namespace ovelt {
namespace {

using testing::NexusFaultOf;
using testing::ReadNexusString;

// Six sequences of twelve sites.
std::string SixByTwelve(const std::string& after) {
  std::string text = "#NEXUS\nBEGIN DATA;\nDIMENSIONS NTAX=6 NCHAR=12;\n"
                     "CHARLABELS 1 first, 12 last;\nMATRIX\n";
  for (const char* name : {"s1", "s2", "'seq three'", "s4", "s5", "s6"})
    text += std::string(name) + " ACGTACGTACGT\n";
  return text + ";\nEND;\n" + after;
}

std::vector<double> Members(const PoblacionSecuencias& set) { return set.members(); }

TEST(NexusSets, TaxSetsBecomeActiveSequenceSets) {
  const LoadedFile f = ReadNexusString(SixByTwelve(
      "BEGIN SETS;\n  TaxSet pop1 = 1 3-4;\n  TAXSET pop2 = 5-.;\n  taxset all_of_them = ALL;\n"
      "  TaxSet byname = s2 'seq three' - s5;\n  TaxSet stepped = 1-6\\2;\n"
      "  TaxSet merged = pop1 6;\nEND;\n"));
  const std::vector<PoblacionSecuencias>& sets = f.Nexus->SequenceSets;
  ASSERT_EQ(sets.size(), 6u);
  EXPECT_EQ(sets[0].nombre(), "pop1");
  EXPECT_EQ(sets[0].active(), 1);
  EXPECT_EQ(Members(sets[0]), (std::vector<double>{1, 3, 4}));
  EXPECT_EQ(Members(sets[1]), (std::vector<double>{5, 6}));
  EXPECT_EQ(Members(sets[2]), (std::vector<double>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(Members(sets[3]), (std::vector<double>{2, 3, 4, 5}));
  EXPECT_EQ(Members(sets[4]), (std::vector<double>{1, 3, 5}));
  EXPECT_EQ(Members(sets[5]), (std::vector<double>{1, 3, 4, 6}));
}

TEST(NexusSets, VectorFormatIsRefused) {
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN SETS;\nTaxSet pop1 (VECTOR) = 101100;\nEND;\n")),
            "Ovelt does not accept the VECTOR format in the TAXSET or CHARSET command of SETS "
            "block");
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN SETS;\nCharSet d (vector) = 1100;\nEND;\n")),
            "Ovelt does not accept the VECTOR format in the TAXSET or CHARSET command of SETS "
            "block");
}

TEST(NexusSets, FaultsOfSetStatements) {
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN SETS;\nTaxSet pop1 1-3;\nEND;\n")),
            "Error Reading the SETS block");
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN SETS;\nTaxSet pop1 = 1-7;\nEND;\n")),
            "Error in the sequence number in TAXSET command of SETS block");
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN SETS;\nTaxSet pop1 = 0;\nEND;\n")),
            "Error in the sequence number in TAXSET command of SETS block");
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN SETS;\nTaxSet pop1 = nobody;\nEND;\n")),
            "Error in the sequence number in TAXSET command of SETS block");
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN SETS;\nCharSet d = 5-13;\nEND;\n")),
            "Error in the position number in CHARSET command of SETS block");
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN SETS;\nCharSet d = 9-4;\nEND;\n")),
            "Error in the position number in CHARSET command of SETS block");
}

TEST(NexusSets, CharSetsBecomeDomains) {
  const LoadedFile f = ReadNexusString(SixByTwelve(
      "BEGIN SETS;\nCharSet exon1 = 1-6;\nCHARSET codon3 = 3-.\\3;\n"
      "CharSet labelled = first 10 - last;\nCharSet both = exon1 codon3;\n"
      "CharPartition parts = a:exon1, b:codon3;\nEND;\n"));
  const std::vector<DomainSet>& domains = f.Nexus->Domains;
  ASSERT_EQ(domains.size(), 4u);
  EXPECT_EQ(domains[0].Name, "exon1");
  EXPECT_EQ(domains[0].Sites, (std::vector<int32_t>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(domains[1].Sites, (std::vector<int32_t>{3, 6, 9, 12}));
  EXPECT_EQ(domains[2].Sites, (std::vector<int32_t>{1, 10, 11, 12}));
  EXPECT_EQ(domains[3].Sites, (std::vector<int32_t>{1, 2, 3, 4, 5, 6, 9, 12}));
  // The partition is kept as text for the writer.
  const NexusBlock& sets = f.Nexus->Document.Blocks[1];
  EXPECT_TRUE(sets.Read);
  EXPECT_EQ(sets.KeptStatements,
            std::vector<std::string>{"CharPartition parts = a:exon1, b:codon3;"});
}

TEST(NexusCodons, CodonPositionsWithRangesStepsAndTheLastSite) {
  const LoadedFile f = ReadNexusString(SixByTwelve(
      "BEGIN CODONS;\nCODONPOSSET * UNTITLED = N: 1-3, 1: 4-.\\3, 2: 5-12\\3, 3: 6-12\\3;\n"
      "CODESET * UNTITLED = Universal: all;\nEND;\n"));
  EXPECT_EQ(f.Nexus->CodonPosition,
            (std::vector<int16_t>{0, 0, 0, 0, 1, 2, 3, 1, 2, 3, 1, 2, 3}));
  EXPECT_EQ(f.Nexus->Format.CodingAssigned, 1);
  EXPECT_EQ(f.Nexus->Format.GeneticCodeIndex, 1);
}

TEST(NexusCodons, APositionSetThatEndsEarlyLeavesTheRestNoncoding) {
  const LoadedFile f = ReadNexusString(SixByTwelve(
      "BEGIN CODONS;\nCODPOSSET * UNTITLED = 1: 1-6\\3, 2: 2-6\\3, 3: 3-6\\3;\nEND;\n"));
  EXPECT_EQ(f.Nexus->CodonPosition,
            (std::vector<int16_t>{0, 1, 2, 3, 1, 2, 3, 0, 0, 0, 0, 0, 0}));
}

// TreeBASE writes "N: 1 - 629" with blanks around the dash.
TEST(NexusCodons, BlanksAroundTheDashAndAll) {
  const LoadedFile f = ReadNexusString(
      SixByTwelve("BEGIN CODONS;\nCODONPOSSET * CodonPositions = \n N: 1 - 12 ;\nEND;\n"));
  EXPECT_EQ(f.Nexus->CodonPosition, std::vector<int16_t>(13, 0));
  EXPECT_EQ(f.Nexus->Format.CodingAssigned, 1);
  const LoadedFile g =
      ReadNexusString(SixByTwelve("BEGIN CODONS;\nCODONPOSSET * U = 2: all;\nEND;\n"));
  EXPECT_EQ(g.Nexus->CodonPosition[12], 2);
}

TEST(NexusCodons, FaultsOfTheCodonsBlock) {
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN CODONS;\nCODONPOSSET * U = 4: 1-3;\nEND;\n")),
            "Error Reading the CODONS block");
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN CODONS;\nCODONPOSSET * U = 1: 1-30;\nEND;\n")),
            "Error Reading the CODONS block");
  EXPECT_EQ(NexusFaultOf(SixByTwelve("BEGIN CODONS;\nCODONPOSSET * U 1: 1-3;\nEND;\n")),
            "Error Reading the CODONS block");
}

TEST(NexusCodons, GeneticCodeByAnyOfItsNames) {
  auto code_of = [](const std::string& statement) {
    return ReadNexusString(SixByTwelve("BEGIN CODONS;\n" + statement + "\nEND;\n"))
        .Nexus->Format.GeneticCodeIndex;
  };
  EXPECT_EQ(code_of("CODESET * UNTITLED = mtDNA.mam: all;"), 2);
  EXPECT_EQ(code_of("GENCODE mtDNA.Dros;"), 3);
  EXPECT_EQ(code_of("GENCODE \"mtDNA Yeast\";"), 4);
  EXPECT_EQ(code_of("GENCODE MTDNA.ECHINODERM.EXT;"), 6);
  EXPECT_EQ(code_of("GENCODE UNIVmtDNA;"), 2);
  EXPECT_EQ(code_of("GENCODE Nuclear.Cand;"), 9);  // a value that begins with the name
}

TEST(NexusCodons, AnUnknownCodeNameWarnsAndTakesTheUniversalCode) {
  const LoadedFile f =
      ReadNexusString(SixByTwelve("BEGIN CODONS;\nGENCODE Martian;\nEND;\n"));
  EXPECT_EQ(f.Nexus->Format.GeneticCodeIndex, 1);
  EXPECT_EQ(f.Nexus->Warnings,
            std::vector<std::string>{
                "Erroneous Genetic Code name. Ovelt will assigne the nuclear Universal."});
}

}  // namespace
}  // namespace ovelt
