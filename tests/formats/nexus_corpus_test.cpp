// NEXUS files of the reader corpus, checked beyond their counts: cells read off the files by
// eye, and what their CODONS and SETS blocks define.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/read_file.h"
#include "support/corpus_manifest.h"
#include "support/scripted_platform.h"
#include "test_helpers.h"

namespace ovelt {
namespace {

using testing::kCorpusDir;
using testing::Row;

LoadedFile Load(const std::string& name) {
  testing::ScriptedPlatform platform;
  return ReadDataFile(kCorpusDir + "nexus/" + name, platform);
}

TEST(NexusCorpus, MacCladeCodonPositions) {
  const LoadedFile f = Load("biopython_codonposset.nex");
  EXPECT_EQ(Row(f, 1), "AAAAAGGCATTGTGGTGGGAAT");
  EXPECT_EQ(Row(f, 2), std::string(9, '?') + "TTGTGGTGGGAAT");
  // N: 1-10, then 1, 2, 3 from site 11 on.
  std::vector<int16_t> expected(23, 0);
  for (int site = 11; site <= 22; ++site) expected[static_cast<size_t>(site)] = static_cast<int16_t>((site - 11) % 3 + 1);
  EXPECT_EQ(f.Nexus->CodonPosition, expected);
  EXPECT_EQ(f.Nexus->Format.GeneticCodeIndex, 1);
  EXPECT_EQ(f.Nexus->Format.CodingAssigned, 1);
}

TEST(NexusCorpus, PrimateMitochondriaUseTheMammalianCode) {
  const LoadedFile f = Load("bioperl_Primate_mtDNA.nex");
  const std::vector<int16_t>& positions = f.Nexus->CodonPosition;
  ASSERT_EQ(positions.size(), 899u);
  EXPECT_EQ(positions[1], 0);
  EXPECT_EQ(positions[2], 1);
  EXPECT_EQ(positions[4], 3);
  EXPECT_EQ(positions[457], 3);
  EXPECT_EQ(positions[458], 0);
  EXPECT_EQ(positions[660], 1);
  EXPECT_EQ(positions[896], 3);
  EXPECT_EQ(positions[898], 0);
  EXPECT_EQ(f.Nexus->Format.GeneticCodeIndex, 2);
}

TEST(NexusCorpus, SeaViewRowsRunOverManyLines) {
  const LoadedFile f = Load("seaview_example.nxs");
  ASSERT_EQ(f.NumSeqs(), 54);
  EXPECT_EQ(f.Names[1], "D82069.PE1          ");
  EXPECT_EQ(f.Names[2], "AB019540.AIF-1      ");
  EXPECT_EQ(Row(f, 1).substr(0, 20), "---------ATGAAGCCTGA");
  // The last of the row's lines holds its last 36 cells.
  EXPECT_EQ(Row(f, 1).substr(420), "CCCCCAGCCAAGAAAGCTATTTCTGAGTTGCCCTAA");
}

TEST(NexusCorpus, PhymlBlocksWithoutNames) {
  const LoadedFile f = Load("phyml_example.nex");
  ASSERT_EQ(f.NumSeqs(), 7);
  EXPECT_EQ(f.Names[3], "ENSDARG00000004594  ");
  EXPECT_EQ(Row(f, 3).substr(0, 100),
            "GTCCTTAATTTCCTTAGTTTGATGCACACGTTGTGGGGGTCAGATGTAAA"
            "TCACCAATCTGGCGACAACATCGGGTGCCACATTTTGGTGGTCTCAAACA");
  EXPECT_EQ(f.Interleaved, 1);
}

TEST(NexusCorpus, TreeBaseGapAndMissingSymbols) {
  const LoadedFile f = Load("bioperl_Treebase-chlamy-dna.nex");
  // MISSING = - and GAP = #: the "-" of this file are missing data.
  EXPECT_EQ(f.Nexus->Format.MissingSymbol, '-');
  EXPECT_EQ(f.Nexus->Format.GapSymbol, '#');
  EXPECT_EQ(Row(f, 1).substr(40, 20), "TCCGTCTGTG?TAAAAGCA?");
  EXPECT_EQ(f.Names[1], "Chlamydomonas_reinha");  // quoted: the underscores stay
  EXPECT_EQ(f.Nexus->CodonPosition, std::vector<int16_t>(630, 0));
}

TEST(NexusCorpus, MesquiteReadsTheFirstDnaCharacters) {
  const LoadedFile f = Load("dendropy_multitaxa_mesquite.nex");
  ASSERT_EQ(f.NumSeqs(), 4);
  EXPECT_EQ(f.Names[1], "x2.1                ");
  int read = 0;
  for (const NexusBlock& block : f.Nexus->Document.Blocks) read += block.Read ? 1 : 0;
  EXPECT_EQ(read, 2);  // TAXA X2 and CHARACTERS x2.chars1
  EXPECT_EQ(f.Nexus->Document.Blocks.size(), 13u);
}

TEST(NexusCorpus, TortureFileSetsByNameAndBySet) {
  const LoadedFile f = Load("biopython_test_Nexus_input.nex");
  ASSERT_EQ(f.NumSeqs(), 9);
  EXPECT_EQ(f.Names[3], "isn'that [a] strange");
  EXPECT_EQ(Row(f, 1), "A-C-G-TC-GTGTGTGCTCT-T-T------AC-GTGTGTGCTCT-T-T");
  EXPECT_EQ(Row(f, 2), "A-C-GCTC-GTG-----TCT-T-T----ACAC-GTG-----TCT-T-T");
  const auto& domains = f.Nexus->Domains;
  auto domain = [&](const std::string& name) {
    for (const DomainSet& d : domains)
      if (d.Name == name) return d.Sites;
    ADD_FAILURE() << name;
    return std::vector<int32_t>{};
  };
  // byname = 1 f-'1,2,3 can''t decide for a name?!': site 1 and 5 to 30.
  std::vector<int32_t> byname = {1};
  for (int32_t s = 5; s <= 30; ++s) byname.push_back(s);
  EXPECT_EQ(domain("byname"), byname);
  // pos2 = b-final\3: 2, 5, ..., 47; mix = pos2 1.
  std::vector<int32_t> mix = {1};
  for (int32_t s = 2; s <= 48; s += 3) mix.push_back(s);
  EXPECT_EQ(domain("mix"), mix);
  const auto& sets = f.Nexus->SequenceSets;
  auto set = [&](const std::string& name) {
    for (const PoblacionSecuencias& s : sets)
      if (s.nombre() == name) return s.members();
    ADD_FAILURE() << name;
    return std::vector<double>{};
  };
  EXPECT_EQ(set("normal"), (std::vector<double>{1, 3, 4, 5, 6, 8}));
  EXPECT_EQ(set("tbyname1"), (std::vector<double>{3, 1, 2, 4, 5, 6}));
  EXPECT_EQ(set("tbyname2"), (std::vector<double>{2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(set("reference"), (std::vector<double>{1, 2, 3, 4, 5, 6}));
}

TEST(NexusCorpus, RefusalsOutsideDnaData) {
  testing::ScriptedPlatform platform;
  auto text_of = [&](const std::string& name) {
    try {
      (void)ReadDataFile(kCorpusDir + "nexus/" + name, platform);
    } catch (const ReadError& error) {
      const std::string text = error.what();
      return text.substr(text.rfind("\n\n") + 2);
    }
    return std::string("loaded");
  };
  EXPECT_EQ(text_of("mrbayes_avian_ovomucoids.nex"),
            "Ovelt can not read NEXUS files with PROTEIN sequence data");
  EXPECT_EQ(text_of("phangorn_mites.nex"), "Invalid character detected in sequence: 1\nCharacter: 2");
  EXPECT_EQ(text_of("garli_zakonEtAl2006.11tax.nex"),
            "Invalid character detected in sequence: 10\nCharacter: Y");
}

}  // namespace
}  // namespace ovelt
