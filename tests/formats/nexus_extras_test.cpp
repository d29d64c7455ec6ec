// What a NEXUS file holds besides the matrix: the program's own block, the codon tables, the
// shape of the file kept for the writer, and its copy into the active data.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/genetic_code.h"
#include "formats/nexus_extras.h"
#include "nexus_test_support.h"

namespace ovelt {
namespace {

using testing::ReadNexusString;
using testing::TwoByFour;

int Codon(const char* text) {
  return CodonIndex(text[0], text[1], text[2]);
}

TEST(NexusOwnBlock, GenomeAndLocation) {
  const LoadedFile f = ReadNexusString(
      TwoByFour("BEGIN Ovelt;\n   Genome= haploid;\n   ChromosomalLocation= Mitochondrial;\n"
                "   Oveltversion= Ver. 4.00.5;\nEND;\n"));
  EXPECT_EQ(f.Nexus->Format.GenomeState, 1);
  EXPECT_EQ(f.Nexus->Format.ChromosomalLocation, 6);
  EXPECT_TRUE(f.Nexus->Warnings.empty());
}

TEST(NexusOwnBlock, UnknownValuesWarnAndTakeTheDefaults) {
  const LoadedFile f = ReadNexusString(
      TwoByFour("BEGIN OVELT;\nGenome= Triploid;\nChromosomalLocation= Plasmid;\nEND;\n"));
  EXPECT_EQ(f.Nexus->Format.GenomeState, 0);
  EXPECT_EQ(f.Nexus->Format.ChromosomalLocation, 0);
  EXPECT_EQ(f.Nexus->Warnings,
            (std::vector<std::string>{
                "Triploid: erroneous genome type assignation. Ovelt will assume that the genome "
                "is diploid.",
                "Plasmid: erroneous chromosomal location. Ovelt will assume that the DNA region "
                "is located in an autosome."}));
}

const char* kUsageBlock =
    "BEGIN CODONUSAGE;\n    PREFUNPREFCODONS GENETICCODE=Universal My_table = \n"
    "        PREF*:\n        TTC CTC,\n        PREF***: GAG,\n        UNKNOWN:\n        TTA;\n"
    "END;\n";

TEST(NexusCodonUsage, TheTableIsStoredAndAssigned) {
  const LoadedFile f = ReadNexusString(TwoByFour(kUsageBlock));
  ASSERT_EQ(f.Nexus->PrefTables.size(), 1u);
  EXPECT_EQ(f.Nexus->PrefTableName, "My_table");
  const CodPrefUnPref& table = f.Nexus->PrefTables[0];
  EXPECT_EQ(table.prefUnPref(Codon("TTC")), kPreferred1);
  EXPECT_EQ(table.prefUnPref(Codon("GAG")), kPreferred3);
  EXPECT_EQ(table.prefUnPref(Codon("TTA")), kUnknownPreference);
  EXPECT_EQ(table.prefUnPref(Codon("TTT")), kUnpreferred);
}

TEST(NexusCodonUsage, ATableOfAnotherCodeIsIgnored) {
  const LoadedFile f = ReadNexusString(
      TwoByFour(std::string("BEGIN CODONS;\nGENCODE mtDNA.Mam;\nEND;\n") + kUsageBlock));
  EXPECT_TRUE(f.Nexus->PrefTables.empty());
  EXPECT_EQ(f.Nexus->PrefTableName, "");
  EXPECT_EQ(f.Nexus->Warnings,
            std::vector<std::string>{
                "The Genetic Code defined does not agree with the Codon Preference Table!"});
}

TEST(NexusDocument, BlocksInOrderWithTheTextBetweenThem) {
  const std::string text =
      "#NEXUS\n[written by hand]\nBEGIN DATA;\nDIMENSIONS NTAX=2 NCHAR=4;\nMATRIX\n"
      "one ACGT\ntwo ACGA\n;\nEND;\n\n[a note]\nbegin mrbayes;\n  set autoclose=yes;\n"
      "end;\nBEGIN TREES;\nTREE t = (one,two);\nEND;\n[the end]\n";
  const LoadedFile f = ReadNexusString(text);
  const NexusDocument& document = f.Nexus->Document;
  ASSERT_EQ(document.Blocks.size(), 3u);
  EXPECT_EQ(document.Blocks[0].Kind, NexusBlockKind::kData);
  EXPECT_EQ(document.Blocks[0].Leading, "\n[written by hand]\n");
  EXPECT_TRUE(document.Blocks[0].Read);
  // An unknown block is kept whole, in its place.
  EXPECT_EQ(document.Blocks[1].Kind, NexusBlockKind::kOther);
  EXPECT_EQ(document.Blocks[1].Name, "mrbayes");
  EXPECT_EQ(document.Blocks[1].Leading, "\n\n[a note]\n");
  EXPECT_EQ(document.Blocks[1].Text, "begin mrbayes;\n  set autoclose=yes;\nend;");
  EXPECT_FALSE(document.Blocks[1].Read);
  EXPECT_EQ(document.Blocks[2].Text, "BEGIN TREES;\nTREE t = (one,two);\nEND;");
  EXPECT_EQ(document.Trailing, "\n[the end]\n");
  // The block whose matrix was read keeps no text (it is written anew from the data); put back
  // together with it, the pieces give the file.
  EXPECT_EQ(document.Blocks[0].Text, "");
  const std::string data_block =
      text.substr(text.find("BEGIN DATA"), text.find("END;") + 4 - text.find("BEGIN DATA"));
  std::string rebuilt = "#NEXUS";
  for (const NexusBlock& block : document.Blocks)
    rebuilt += block.Leading + (block.Read ? data_block : block.Text);
  EXPECT_EQ(rebuilt + document.Trailing, text);
}

TEST(NexusDocument, ALastBlockWithoutEndRunsToTheEndOfTheFile) {
  const LoadedFile f = ReadNexusString(TwoByFour("BEGIN ASSUMPTIONS;\nTYPESET x = 1-4;\n"));
  ASSERT_EQ(f.Nexus->Document.Blocks.size(), 2u);
  EXPECT_EQ(f.Nexus->Document.Blocks[1].Text, "BEGIN ASSUMPTIONS;\nTYPESET x = 1-4;\n");
}

TEST(NexusDocument, LineEndsOfTheFileBecomeLineFeeds) {
  const LoadedFile f = ReadNexusString(
      "#NEXUS\r\nBEGIN DATA;\r\nDIMENSIONS NTAX=1 NCHAR=2;\r\nMATRIX\r\na AC\r\n;\r\nEND;\r\n"
      "BEGIN X;\rY;\rEND;\r");
  EXPECT_EQ(f.Nexus->Document.Blocks[1].Text, "BEGIN X;\nY;\nEND;");
}

TEST(NexusApply, TheFileSettingsReachTheActiveData) {
  const LoadedFile f = ReadNexusString(
      TwoByFour(std::string("BEGIN SETS;\nTaxSet pop = 2;\nCharSet d = 2-3;\nEND;\n"
                            "BEGIN CODONS;\nCODONPOSSET * U = 1: 1, 2: 2, 3: 3;\nEND;\n"
                            "BEGIN OVELT;\nGenome= Haploid;\nEND;\n") +
                kUsageBlock));
  ActiveData ad;
  ad.NumSites = f.NumSites;
  ad.SequenceSets.push_back(PoblacionSecuencias{});  // an older set goes
  ApplyNexusExtras(*f.Nexus, ad);
  EXPECT_EQ(ad.Format.GenomeState, 1);
  EXPECT_EQ(ad.Format.CodingAssigned, 1);
  EXPECT_EQ(ad.Format.NexusVersion, 1);
  EXPECT_EQ(ad.CodonPosition, (std::vector<int16_t>{0, 1, 2, 3, 0}));
  ASSERT_EQ(ad.SetCount(), 1);
  EXPECT_EQ(ad.SequenceSets[1].nombre(), "pop");
  EXPECT_EQ(ad.SequenceSets[1].secuencia(1), 2.0);
  ASSERT_EQ(ad.DomainCount(), 1);
  EXPECT_EQ(ad.Domains[0].Sites, (std::vector<int32_t>{2, 3}));
  EXPECT_EQ(ad.PrefTableName, "My_table");
  ASSERT_NE(ad.PrefTables.CodPrefUnPref("My_table"), nullptr);
}

TEST(NexusApply, WithoutATableTheDefaultOfTheCodeIsAssigned) {
  ActiveData ad;
  const LoadedFile universal = ReadNexusString(TwoByFour());
  ad.NumSites = universal.NumSites;
  ApplyNexusExtras(*universal.Nexus, ad);
  EXPECT_EQ(ad.PrefTableName, "Drosophila_melanogaster");
  const LoadedFile mito = ReadNexusString(TwoByFour("BEGIN CODONS;\nGENCODE mtDNA.Mam;\nEND;\n"));
  ApplyNexusExtras(*mito.Nexus, ad);
  EXPECT_EQ(ad.PrefTableName, "None");
}

}  // namespace
}  // namespace ovelt
