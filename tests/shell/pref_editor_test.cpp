#include "shell/pref_editor.h"

#include <gtest/gtest.h>

#include "core/genetic_code.h"

namespace ovelt {
namespace {

// Codon indices in T, C, A, G order: (a-1)*16 + (b-1)*4 + c.
constexpr int kTTT = 1;   // Phe, two codons
constexpr int kTTC = 2;   // Phe
constexpr int kTAA = 11;  // stop in the universal code
constexpr int kTGA = 15;  // stop (universal), Trp in vertebrate mitochondria
constexpr int kTGG = 16;  // Trp, the only codon of its amino acid (universal)
constexpr int kATG = 36;  // Met, single codon (universal)

TEST(PrefTableName, BuiltInNamesAndUnknownAreReservedInAnyCase) {
  EXPECT_EQ(ValidatePrefTableName("Drosophila_melanogaster"), kReservedTableName);
  EXPECT_EQ(ValidatePrefTableName("escherichia_COLI"), kReservedTableName);
  EXPECT_EQ(ValidatePrefTableName("UnKnown"), kReservedTableName);
  EXPECT_EQ(ValidatePrefTableName("unknown"), kReservedTableName);
  EXPECT_EQ(kReservedTableName,
            "Invalid Name! This name is already used by Ovelt. Please enter another name");
}

TEST(PrefTableName, NexusWordsAreRefusedWithTheirOwnMessage) {
  for (const char* word : {"charset", "standard", "vector", "stateset", "changeset", "taxset",
                           "treeset", "charpartition", "tokens", "taxpartition", "treepartition",
                           "begin", "END"})
    EXPECT_EQ(ValidatePrefTableName(word), kNexusWordTableName) << word;
  EXPECT_EQ(kNexusWordTableName, "Invalid Name, please enter another name");
}

TEST(PrefTableName, OtherNamesPassAndEmptyIsRefusedSilently) {
  EXPECT_EQ(ValidatePrefTableName("Homo_sapiens"), std::nullopt);
  EXPECT_EQ(ValidatePrefTableName("None2"), std::nullopt);
  EXPECT_EQ(ValidatePrefTableName(""), std::string());
  EXPECT_EQ(ValidatePrefTableName("   "), std::string());
}

TEST(PrefEditorCells, CodonsFollowTheTcagOrder) {
  EXPECT_EQ(CodonOfIndex(1), "TTT");
  EXPECT_EQ(CodonOfIndex(2), "TTC");
  EXPECT_EQ(CodonOfIndex(kTAA), "TAA");
  EXPECT_EQ(CodonOfIndex(kATG), "ATG");
  EXPECT_EQ(CodonOfIndex(64), "GGG");
  for (int i = 1; i <= 64; ++i) {
    const std::string c = CodonOfIndex(i);
    EXPECT_EQ(CodonIndex(c[0], c[1], c[2]), i);
  }
}

TEST(PrefEditorCells, CellShowsCodonAminoAcidAndStatus) {
  GCPrefUnPref store;
  const CodPrefUnPref& mel = *store.CodPrefUnPref("Drosophila_melanogaster");
  // The melanogaster string has "4" at codon 2 (TTC), "." at 1 (TTT keeps unknown).
  EXPECT_EQ(CodonCellText(mel, kTTC), "TTC  F P");
  EXPECT_EQ(CodonCellText(mel, kTTT), "TTT  F ?");
  EXPECT_EQ(CodonCellText(mel, kTAA), "TAA  * *");
  EXPECT_EQ(CodonCellText(mel, kTGG), "TGG  W -");
}

class PrefEditorTest : public ::testing::Test {
 protected:
  GCPrefUnPref store;
};

TEST_F(PrefEditorTest, StartsOnTheAssignedTableOfTheDataCode) {
  PrefTableEditor editor(store, 1, "escherichia_coli");
  EXPECT_EQ(editor.SelectedName(), "Escherichia_coli");
  EXPECT_EQ(editor.TableHeading(), "Pref-UnPref Table for: Escherichia_coli");
  EXPECT_EQ(editor.CodeHeading(), "Genetic Code used: " + GeneticCodeText(1));
  const std::vector<std::string> names = editor.TableNames();
  ASSERT_EQ(names.size(), 9u);  // "None" and the eight organisms
  EXPECT_EQ(names[0], "None");
  EXPECT_EQ(names[1], "Drosophila_melanogaster");
  EXPECT_EQ(editor.EditButtonCaption(), "Edit a New Table");
  EXPECT_EQ(editor.Legend(), kPreferenceLegend);
  EXPECT_EQ(editor.NoBuiltInNotice(), std::nullopt);
}

TEST_F(PrefEditorTest, ACodeWithoutTablesListsOnlyNoneAndGivesTheNotice) {
  PrefTableEditor editor(store, 1, "None");
  ASSERT_TRUE(editor.SelectGeneticCode(2));
  EXPECT_EQ(editor.TableNames(), std::vector<std::string>{"None"});
  EXPECT_EQ(editor.SelectedName(), "None");
  EXPECT_EQ(editor.NoBuiltInNotice(), NoPredefinedTableText(2));
}

TEST_F(PrefEditorTest, NewTableStartsUnpreferredExceptStopsAndSingleCodons) {
  PrefTableEditor editor(store, 1, "None");
  ASSERT_EQ(editor.BeginNewTable("Homo_sapiens"), std::nullopt);
  EXPECT_TRUE(editor.Editing());
  EXPECT_EQ(editor.EditButtonCaption(), "Close Edition Mode");
  EXPECT_EQ(editor.Legend().back(), "Click a codon, to change its Preference Status:");
  // Universal code: 3 stops (TAA, TAG, TGA), 2 single codons (ATG, TGG), 59 others.
  int counts[7] = {};
  for (int i = 1; i <= 64; ++i) ++counts[editor.Shown().prefUnPref(i)];
  EXPECT_EQ(counts[kStopStatus], 3);
  EXPECT_EQ(counts[kSingleCodon], 2);
  EXPECT_EQ(counts[kUnpreferred], 59);
  EXPECT_EQ(editor.Shown().prefUnPref(kTGA), kStopStatus);
}

TEST_F(PrefEditorTest, StopsAndSingleCodonsAreNotEditable) {
  PrefTableEditor editor(store, 1, "None");
  ASSERT_EQ(editor.BeginNewTable("Homo_sapiens"), std::nullopt);
  EXPECT_FALSE(editor.SetCodon(kTAA, CodonChoice::kPreferred));
  EXPECT_FALSE(editor.SetCodon(kTGG, CodonChoice::kPreferred));
  EXPECT_FALSE(editor.SetCodon(kATG, CodonChoice::kUnknown));
  EXPECT_EQ(editor.Shown().prefUnPref(kATG), kSingleCodon);
  EXPECT_FALSE(editor.SetCodon(kTTC, CodonChoice::kCancel));
  EXPECT_EQ(editor.Shown().prefUnPref(kTTC), kUnpreferred);
}

TEST_F(PrefEditorTest, TheVertebrateMitochondrialCodeFreesTga) {
  // TGA reads Trp in code 2, which then has two codons: both become editable.
  PrefTableEditor editor(store, 2, "None");
  ASSERT_EQ(editor.BeginNewTable("Mus_mt"), std::nullopt);
  EXPECT_TRUE(editor.SetCodon(kTGA, CodonChoice::kPreferred));
  EXPECT_TRUE(editor.SetCodon(kTGG, CodonChoice::kUnknown));
  EXPECT_EQ(editor.Shown().prefUnPref(kTGA), kPreferred1);
}

TEST_F(PrefEditorTest, ClosingStoresTheEditedTableAndSelectsIt) {
  PrefTableEditor editor(store, 1, "None");
  ASSERT_EQ(editor.BeginNewTable("Homo_sapiens"), std::nullopt);
  EXPECT_TRUE(editor.SetCodon(kTTC, CodonChoice::kPreferred));
  EXPECT_TRUE(editor.SetCodon(kTTT, CodonChoice::kUnknown));
  EXPECT_FALSE(editor.SelectTable("Escherichia_coli"));  // not while editing
  EXPECT_FALSE(editor.SelectGeneticCode(2));
  EXPECT_EQ(editor.CloseEdition(), std::nullopt);
  EXPECT_FALSE(editor.Editing());
  EXPECT_EQ(editor.SelectedName(), "Homo_sapiens");
  EXPECT_EQ(editor.Assigned(), "Homo_sapiens");
  const CodPrefUnPref* stored = editor.Store().CodPrefUnPref("Homo_sapiens");
  ASSERT_NE(stored, nullptr);
  EXPECT_EQ(stored->prefUnPref(kTTC), kPreferred1);
  EXPECT_EQ(stored->prefUnPref(kTTT), kUnknownPreference);
  EXPECT_EQ(stored->File(), 1);
  EXPECT_EQ(editor.TableNames().back(), "Homo_sapiens");
  EXPECT_EQ(store.CodPrefUnPref("Homo_sapiens"), nullptr);  // the original store is untouched
}

TEST_F(PrefEditorTest, ATableWithoutPreferredCodonsIsNotStored) {
  PrefTableEditor editor(store, 1, "None");
  ASSERT_EQ(editor.BeginNewTable("Empty_one"), std::nullopt);
  EXPECT_TRUE(editor.SetCodon(kTTC, CodonChoice::kUnknown));
  EXPECT_EQ(editor.CloseEdition(),
            "There is no information in Empty_one table. Ovelt did not save it");
  EXPECT_EQ(editor.Store().CodPrefUnPref("Empty_one"), nullptr);
  EXPECT_EQ(editor.SelectedName(), "None");
}

TEST_F(PrefEditorTest, NewTableRefusesReservedAndNexusNames) {
  PrefTableEditor editor(store, 1, "None");
  EXPECT_EQ(editor.BeginNewTable("Bacillus_subtilis"), kReservedTableName);
  EXPECT_EQ(editor.BeginNewTable("taxset"), kNexusWordTableName);
  EXPECT_EQ(editor.BeginNewTable(""), std::string());
  EXPECT_FALSE(editor.Editing());
}

TEST_F(PrefEditorTest, ATableOfTheSameNameReplacesTheOlderOne) {
  PrefTableEditor editor(store, 1, "None");
  ASSERT_EQ(editor.BeginNewTable("Mine"), std::nullopt);
  editor.SetCodon(kTTC, CodonChoice::kPreferred);
  ASSERT_EQ(editor.CloseEdition(), std::nullopt);
  ASSERT_EQ(editor.BeginNewTable("MINE"), std::nullopt);
  editor.SetCodon(kTTT, CodonChoice::kPreferred);
  ASSERT_EQ(editor.CloseEdition(), std::nullopt);
  EXPECT_EQ(editor.Store().numGC(1), 9);  // eight organisms and one user table
  const CodPrefUnPref& mine = *editor.Store().CodPrefUnPref("mine");
  EXPECT_EQ(mine.prefUnPref(kTTT), kPreferred1);
  EXPECT_EQ(mine.prefUnPref(kTTC), kUnpreferred);
}

TEST_F(PrefEditorTest, BuiltInTablesCanBeNeitherEditedNorDeleted) {
  PrefTableEditor editor(store, 1, "Drosophila_simulans");
  EXPECT_FALSE(editor.CanEditSelected());
  EXPECT_FALSE(editor.BeginEditSelected());
  EXPECT_FALSE(editor.CanDeleteSelected());
  EXPECT_FALSE(editor.DeleteSelected());
  EXPECT_EQ(editor.Store().numGC(1), 8);
}

TEST_F(PrefEditorTest, AUserTableIsEditedInPlaceAndDeleted) {
  PrefTableEditor editor(store, 1, "None");
  ASSERT_EQ(editor.BeginNewTable("Mine"), std::nullopt);
  editor.SetCodon(kTTC, CodonChoice::kPreferred);
  ASSERT_EQ(editor.CloseEdition(), std::nullopt);
  ASSERT_EQ(editor.BeginNewTable("Other"), std::nullopt);
  editor.SetCodon(kTTT, CodonChoice::kPreferred);
  ASSERT_EQ(editor.CloseEdition(), std::nullopt);

  ASSERT_TRUE(editor.SelectTable("Mine"));
  ASSERT_TRUE(editor.BeginEditSelected());
  EXPECT_EQ(editor.Shown().prefUnPref(kTTC), kPreferred1);
  editor.SetCodon(kTTC, CodonChoice::kUnpreferred);
  editor.SetCodon(kTTT, CodonChoice::kPreferred);
  ASSERT_EQ(editor.CloseEdition(), std::nullopt);
  const std::vector<std::string> before = editor.TableNames();
  EXPECT_EQ(before[before.size() - 2], "Mine");  // kept its place
  EXPECT_EQ(editor.Store().CodPrefUnPref("Mine")->prefUnPref(kTTT), kPreferred1);

  ASSERT_TRUE(editor.CanDeleteSelected());
  ASSERT_TRUE(editor.DeleteSelected());
  EXPECT_EQ(editor.Store().CodPrefUnPref("Mine"), nullptr);
  ASSERT_NE(editor.Store().CodPrefUnPref("Other"), nullptr);
  EXPECT_EQ(editor.Store().numGC(1), 9);
  EXPECT_EQ(editor.Store().tables().front().name(), "None");
  EXPECT_EQ(editor.SelectedName(), "Drosophila_melanogaster");
}

TEST_F(PrefEditorTest, SavingNeedsInformation) {
  PrefTableEditor editor(store, 1, "None");
  EXPECT_EQ(editor.SaveRefusal(), NoInformationText("None"));
  ASSERT_TRUE(editor.SelectTable("Bacillus_subtilis"));
  EXPECT_EQ(editor.SaveRefusal(), std::nullopt);
}

}  // namespace
}  // namespace ovelt
