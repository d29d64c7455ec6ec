// The collection of preferred/unpreferred codon tables and its built-in tables.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/genetic_code.h"
#include "core/genetic_code_choice.h"
#include "core/pref_tables.h"

namespace ovelt {
namespace {

int Codon(const std::string& text) { return CodonIndex(text[0], text[1], text[2]); }

std::vector<std::string> AllCodons() {
  const std::string letters = "TCAG";
  std::vector<std::string> codons;
  for (char a : letters)
    for (char b : letters)
      for (char c : letters) codons.push_back({a, b, c});
  return codons;
}

TEST(PrefTables, NoneAndEightOrganismsComeBuiltIn) {
  GCPrefUnPref store;
  std::vector<std::string> names;
  for (const CodPrefUnPref& table : store.tables()) names.push_back(table.name());
  EXPECT_EQ(names, (std::vector<std::string>{
                       "None", "Drosophila_melanogaster", "Drosophila_simulans",
                       "Drosophila_pseudoobscura", "Arabidopsis_thaliana",
                       "Caenorhabditis_elegans", "Saccharomyces_cerevisiae", "Escherichia_coli",
                       "Bacillus_subtilis"}));
  for (const std::string& name : names) EXPECT_TRUE(store.reservedTable(name)) << name;
  EXPECT_TRUE(store.reservedTable("escherichia_COLI"));
  EXPECT_FALSE(store.reservedTable("UnKnown"));
  EXPECT_FALSE(store.reservedTable("My_table"));
}

// The codons that end in C or G in the usage of Drosophila melanogaster (Akashi 1994; Duret
// and Mouchiroud 1999), one or two per amino acid.
TEST(PrefTables, MelanogasterPrefersTheKnownCodons) {
  GCPrefUnPref store;
  const CodPrefUnPref* mel = store.CodPrefUnPref("Drosophila_melanogaster");
  ASSERT_NE(mel, nullptr);
  const std::set<std::string> preferred = {
      "TTC", "CTC", "CTG", "ATC", "GTC", "GTG", "TCC", "TCG", "AGC", "CCC", "ACC",
      "GCC", "TAC", "CAC", "CAG", "AAC", "AAG", "GAC", "GAG", "TGC", "CGC", "GGC"};
  const std::set<std::string> unpreferred = {"CCG", "CGT", "ACG"};
  for (const std::string& codon : AllCodons()) {
    const int status = mel->prefUnPref(Codon(codon));
    if (preferred.count(codon)) {
      EXPECT_EQ(status, kPreferred1) << codon;
    } else if (unpreferred.count(codon)) {
      EXPECT_EQ(status, kUnpreferred) << codon;
    } else if (codon == "TAA" || codon == "TAG" || codon == "TGA") {
      EXPECT_EQ(status, kStopStatus) << codon;
    } else if (codon == "ATG" || codon == "TGG") {
      EXPECT_EQ(status, kSingleCodon) << codon;
    } else {
      EXPECT_EQ(status, kUnknownPreference) << codon;
    }
  }
}

// The three Drosophila tables name some codons only; every other degenerate codon is unknown.
TEST(PrefTables, DrosophilaTablesKeepUnknownWhereTheyNameNothing) {
  GCPrefUnPref store;
  for (const char* name :
       {"Drosophila_melanogaster", "Drosophila_simulans", "Drosophila_pseudoobscura"}) {
    const CodPrefUnPref* table = store.CodPrefUnPref(name);
    ASSERT_NE(table, nullptr);
    // TTT, TTA, TCT and GGG are named by none of them.
    for (const char* codon : {"TTT", "TTA", "TCT", "GGG"})
      EXPECT_EQ(table->prefUnPref(Codon(codon)), kUnknownPreference) << name << " " << codon;
    EXPECT_EQ(table->prefUnPref(Codon("TTC")), kPreferred1) << name;
  }
}

// The tables written in full set every codon, stops and single codons included.
TEST(PrefTables, FullTablesOverrideTheGeneticCode) {
  GCPrefUnPref store;
  const CodPrefUnPref* coli = store.CodPrefUnPref("Escherichia_coli");
  ASSERT_NE(coli, nullptr);
  // "0400440004110411...": TTT 0, TTC 4, TAA 1 (not 3), TGG 1 (not 2).
  EXPECT_EQ(coli->prefUnPref(Codon("TTT")), kUnpreferred);
  EXPECT_EQ(coli->prefUnPref(Codon("TTC")), kPreferred1);
  EXPECT_EQ(coli->prefUnPref(Codon("TAA")), kUnknownPreference);
  EXPECT_EQ(coli->prefUnPref(Codon("TGG")), kUnknownPreference);
  EXPECT_EQ(coli->GC(), 1);
  EXPECT_EQ(coli->File(), 0);
}

TEST(PrefTables, DefaultIsTheFirstBuiltInOfTheCode) {
  GCPrefUnPref store;
  EXPECT_EQ(store.defaultTable(1), "Drosophila_melanogaster");
  for (int16_t gc = 2; gc <= 10; ++gc) EXPECT_EQ(store.defaultTable(gc), "None") << gc;
  EXPECT_EQ(DefaultPrefTableName(1), "Drosophila_melanogaster");
  EXPECT_EQ(DefaultPrefTableName(4), "None");
  EXPECT_EQ(NoPredefinedTableText(8),
            "There is no any predefined Preferred/Unpreferred Codons Table associated with the "
            "Nuclear Ciliate Genetic Code!");
}

TEST(PrefTables, TablesOfOneCode) {
  GCPrefUnPref store;
  EXPECT_EQ(store.numGC(1), 8);
  EXPECT_EQ(store.numGC(2), 0);
  EXPECT_EQ(store.GiveMeTables(1).front(), "Drosophila_melanogaster");
  EXPECT_EQ(store.firstTable(2), "None");
  CodPrefUnPref mine;
  mine.creat(2, kUnpreferred);
  mine.sName("Mito");
  store.creatModifyGC(mine);
  EXPECT_EQ(store.numGC(2), 1);
  EXPECT_EQ(store.firstTable(2), "Mito");
  EXPECT_EQ(store.defaultTable(2), "None");  // a user's table is no default
}

TEST(PrefTables, ATableOfTheSameNameReplacesTheOlderOne) {
  GCPrefUnPref store;
  CodPrefUnPref first;
  first.creat(1, kUnpreferred);
  first.sName("Mine");
  first.sPrefUnPref(Codon("TTC"), kPreferred1);
  store.creatModifyGC(first);
  const size_t count = store.tables().size();
  CodPrefUnPref second;
  second.creat(1, kUnpreferred);
  second.sName("MINE");
  second.sPrefUnPref(Codon("TTC"), kPreferred2);
  store.creatModifyGC(second);
  EXPECT_EQ(store.tables().size(), count);
  ASSERT_NE(store.CodPrefUnPref("mine"), nullptr);
  EXPECT_EQ(store.CodPrefUnPref("mine")->prefUnPref(Codon("TTC")), kPreferred2);
  EXPECT_EQ(store.tables().back().name(), "MINE");
}

TEST(PrefTables, AWalkVisitsEveryTableOnce) {
  GCPrefUnPref store;
  int seen = 0;
  for (const CodPrefUnPref* t = store.firstObject(); t != nullptr; t = store.nextObject()) ++seen;
  EXPECT_EQ(seen, 9);
}

TEST(PrefTables, FileFlagAndBadCodes) {
  GCPrefUnPref store;
  EXPECT_TRUE(store.changeFile("Bacillus_subtilis", 1));
  EXPECT_EQ(store.CodPrefUnPref("Bacillus_subtilis")->File(), 1);
  EXPECT_FALSE(store.changeFile("Nothing", 1));
  CodPrefUnPref bad;
  bad.sName("Bad");
  bad.sGC(0);
  try {
    store.creatModifyGC(bad);
    FAIL() << "stored";
  } catch (const PrefTableError& error) {
    EXPECT_NE(std::string(error.what()).find("GCPrefUnPref:creatModifyGC"), std::string::npos);
  }
}

TEST(PrefTables, ChangingTheGeneticCodeReturnsToItsDefaultTable) {
  ActiveData ad;
  EXPECT_EQ(ad.PrefTableName, "None");
  ad.PrefTableName = "Escherichia_coli";
  ASSERT_TRUE(ChangeGeneticCode(ad, 3));
  EXPECT_EQ(ad.PrefTableName, "None");
  ASSERT_TRUE(ChangeGeneticCode(ad, 1));
  EXPECT_EQ(ad.PrefTableName, "Drosophila_melanogaster");
}

}  // namespace
}  // namespace ovelt
