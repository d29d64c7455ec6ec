#include <gtest/gtest.h>

#include <set>

#include "shell/command_registry.h"
#include "shell/menu_model.h"

namespace ovelt {
namespace {

const CommandFacts& Facts(int number) {
  const CommandEntry* entry = FindEntry(number);
  EXPECT_NE(entry, nullptr) << number;
  return entry->Facts;
}

TEST(CommandRegistry, HoldsEveryNumberedCommandOnce) {
  const std::vector<int> expected = {1,  2,  1003, 4,  5,  1006, 7,  8,  1009, 10, 11, 1012,
                                     1014, 15, 1016, 1017, 1018, 19, 20, 21, 22, 23, 24, 25,
                                     26, 1026, 27, 28, 1029, 30, 1031, 32, 33, 41, 42};
  std::vector<int> numbers;
  for (const CommandEntry& entry : Registry()) numbers.push_back(entry.Facts.Number());
  EXPECT_EQ(numbers, expected);
  std::set<std::string> names;
  for (const CommandEntry& entry : Registry()) names.insert(entry.Facts.CliName);
  EXPECT_EQ(names.size(), expected.size());
}

TEST(CommandRegistry, TheOneMinusThousand) {
  EXPECT_EQ(TitleCode(CommandId::kFuLiOutgroup), 12);
  EXPECT_EQ(TitleCode(CommandId::kTajima), 5);
  EXPECT_EQ(TitleCode(1026), 26);
}

TEST(CommandRegistry, TheReportTitleIsTheCommandsTitle) {
  // The title table of the output windows, by the number without its 1000.
  const std::pair<int, const char*> kTable[] = {
      {1, "Polymorphic Sites"},
      {2, "DNA Polymorphism"},
      {3, "DNA Divergence Between Populations"},
      {4, "Linkage Disequilibrium"},
      {5, "Tajima's Test"},
      {6, "Gene Conversion"},
      {7, "Recombination"},
      {8, "Synonymous and NonSyn. Substitutions"},
      {9, "HKA Test"},
      {10, "HKA Test. Direct Mode"},
      {11, "Fu and Li's Tests"},
      {12, "Fu and Li's Tests with an Outgroup"},
      {14, "McDonald and Kreitman Test"},
      {15, "Population Size Changes"},
      {16, "Polymorphism and Divergence"},
      {17, "Pol. and Divergence in Functional Regions"},
      {18, "Shuttle to: Trelmo"},
      {19, "Coalescent Simulations"},
      {20, "Shuttle to: HBK test"},
      {21, "Polymorphic Sites File"},
      {22, "Reverse Complement Data File"},
      {23, "Codon Usage"},
      {24, "DNA Polymorphism Analysis"},
      {25, "Translate to Protein Data File"},
      {26, "Filter/Remove Positions"},
      {27, "EMBL/GenBank Submission File"},
      {28, "Gene Flow and Genetic Differentiation"},
      {29, "Preferred and Unpreferred Synonymous Substitutions"},
      {30, "Haplotype Data File"},
      {31, "Mutational Process. Provisional"},
      {32, "Concatenate Data Files. Provisional"},
      {33, "Multiblock Analysis. Provisional"},
      {41, "Tests of Independence"},
      {42, "Discrete Distributions"},
  };
  for (const auto& [code, title] : kTable) {
    EXPECT_EQ(Facts(code).Labels.Title, title) << code;
    EXPECT_EQ(Facts(code).Title, title) << code;
  }
  EXPECT_EQ(CommandTitle(1014), "McDonald and Kreitman Test");
  EXPECT_EQ(CommandTitle(1018), "Shuttle to: Trelmo");
  EXPECT_EQ(CommandTitle(34), "");
}

TEST(CommandRegistry, TextWindowCaptions) {
  EXPECT_EQ(Facts(2).Labels.TextCaption, "Output");
  EXPECT_EQ(Facts(7).Labels.TextCaption, "Output");
  EXPECT_EQ(Facts(3).Labels.TextCaption, "Output: DNA Div. Between Populations");
  EXPECT_EQ(Facts(6).Labels.TextCaption, "Output: Gene Conversion");
  EXPECT_EQ(Facts(10).Labels.TextCaption, "Output: HKA Test");
  EXPECT_EQ(Facts(1009).Labels.TextCaption, "Output: HKA Test");
  EXPECT_EQ(Facts(12).Labels.TextCaption, "Output: Fu and Li's Tests");
  EXPECT_EQ(Facts(11).Labels.TextCaption, "Output: Fu and Li's Tests");
  EXPECT_EQ(Facts(28).Labels.TextCaption, "Output: Gene Flow");
  EXPECT_EQ(Facts(1018).Labels.TextCaption, "Output: Trelmo");
  EXPECT_EQ(Facts(16).Labels.TextCaption, "Output: Polymorphism and Divergence");
  EXPECT_EQ(Facts(17).Labels.TextCaption, "Output: Pol. and Divergence in Functional Regions");
  EXPECT_EQ(Facts(29).Labels.TextCaption,
            "Output: Analysis of Preferred and Unpreferred Substitutions");
  EXPECT_EQ(Facts(41).Labels.TextCaption, "Output");
}

TEST(CommandRegistry, GridWindowCaptions) {
  EXPECT_EQ(Facts(4).Labels.GridCaption, "Output. Table of: Linkage Disequilibrium");
  EXPECT_EQ(Facts(23).Labels.GridCaption, "Output. Table of: Codon Usage");
  EXPECT_EQ(Facts(8).Labels.GridCaption, "Output. Table of: Synonymous and NonSyn. Substitutions");
  EXPECT_EQ(Facts(12).Labels.GridCaption, "Output: Table");
  EXPECT_EQ(Facts(9).Labels.GridCaption, "Output: Table of HKA Test");
  EXPECT_EQ(Facts(10).Labels.GridCaption, "Output: Table of HKA Test");
  EXPECT_EQ(Facts(17).Labels.GridCaption, "Output: Nuc. Polymorphism and Divergence");
  EXPECT_EQ(Facts(18).Labels.GridCaption, "Polym. and Fixed Differences");
  EXPECT_EQ(Facts(29).Labels.GridCaption, "Pref/Unpref. Synonymous Changes");
  EXPECT_EQ(Facts(15).Labels.GridCaption, "");  // the window's own "Output. Grid"
  EXPECT_EQ(Facts(1017).Labels.SecondGridCaption,
            "Output: No. of Mutations and Sites (Intraspecific Data)");
  EXPECT_EQ(Facts(23).Labels.SecondGridCaption, "Codon Usage of:");
  EXPECT_EQ(Facts(29).Labels.SecondGridCaption, "Pref/Unpref. Changes");
}

TEST(CommandRegistry, GridTextHeadsRulesAndSeparators) {
  EXPECT_EQ(Facts(2).Labels.GridTextHead, "     Window  Midpoint  Pi     Theta      S");
  EXPECT_EQ(Facts(4).Labels.GridTextHead, "Site1  Site2   Dist     D       D'      R");
  EXPECT_EQ(Facts(6).Labels.GridTextHead, "     Window Midpoint  Psi");
  EXPECT_EQ(Facts(10).Labels.GridTextHead,
            "                                   Locus 1       Locus 2\r\n"
            "                                   -------       -------");
  EXPECT_EQ(Facts(15).Labels.GridTextHead, "Differences  Freq. Obs.  Freq. Exp.");
  EXPECT_EQ(Facts(17).Labels.GridTextHead,
            "                  Region  SitesT Pi(Tot) Pi(Sil) ThetaT  Theta(Sil) ");
  EXPECT_EQ(Facts(16).Labels.GridTextHead, "");
  EXPECT_EQ(Facts(7).Labels.GridTextHead, "");
  EXPECT_EQ(Facts(2).Labels.GridRuleLength, 74u);
  EXPECT_EQ(Facts(23).Labels.GridRuleLength, 82u);
  EXPECT_EQ(Facts(17).Labels.GridCellSeparator, " ");
  EXPECT_EQ(Facts(8).Labels.GridCellSeparator, "  ");
}

TEST(CommandRegistry, MinimumSequencesOfEachCommand) {
  for (const int command : {2, 4, 7, 8, 15, 21, 24, 30}) EXPECT_EQ(Facts(command).MinimumSequences, 2);
  for (const int command : {5, 11}) EXPECT_EQ(Facts(command).MinimumSequences, 4);
  for (const int command : {22, 23, 25, 26, 1026, 27}) EXPECT_EQ(Facts(command).MinimumSequences, 1);
  for (const int command : {1, 1003, 1012, 19, 28, 33, 41})
    EXPECT_EQ(Facts(command).MinimumSequences, 0);
}

TEST(CommandRegistry, RowsCarryTheirMenuChecksAndDialog) {
  const CommandFacts& mk = Facts(1014);
  EXPECT_EQ(mk.Title, "McDonald and Kreitman Test");
  EXPECT_EQ(mk.Handler, "MenuMcDonadlKreitman2_Click");
  EXPECT_EQ(mk.MenuText, "&McDonald and Kreitman Test...");
  EXPECT_EQ(mk.Checks, (std::vector<Check>{Check::kCodingRegion, Check::kTwoSets}));
  EXPECT_EQ(mk.Dialog, "Form11b");
  EXPECT_NE(mk.TwoSetsQuestion.find("Each Set must include information of each species."),
            std::string::npos);

  const CommandFacts& pref = Facts(1029);
  EXPECT_EQ(pref.Checks, (std::vector<Check>{Check::kCodingRegion, Check::kPrefTable,
                                             Check::kTwoSets, Check::kSetsWithSeqs}));
  EXPECT_EQ(pref.Dialog, "UnPrefPrefOptions");

  EXPECT_EQ(Facts(10).MenuText, "&HKA Test  (Direct Mode)...");
  EXPECT_EQ(Facts(1009).MenuText, "H&KA, Hudson, Kreitman and Aguadé, Test...");
  EXPECT_EQ(Facts(19).Dialog, "frmArbolDLL");
  EXPECT_EQ(Facts(28).Dialog, "Form9c");
  EXPECT_EQ(Facts(1026).MenuText, "&Filtered Positions Data File...");
  EXPECT_EQ(Facts(26).MenuText, "&Remove Positions...");
  EXPECT_EQ(Facts(21).OneSequenceWords, "Can't create a file with the polymorphic sites");
  EXPECT_EQ(Facts(24).OneSequenceWords, "Can't analyze the Ovelt Workbench.");
}

TEST(CommandRegistry, FindsByNumberModuloThousandNameAndTitle) {
  EXPECT_EQ(FindEntry(3)->Facts.Number(), 1003);
  EXPECT_EQ(FindEntry(std::string("tajima"))->Facts.Number(), 5);
  EXPECT_EQ(FindEntry(std::string("Tajima's Test"))->Facts.Number(), 5);
  EXPECT_EQ(FindEntry(std::string("1014"))->Facts.Number(), 1014);
  EXPECT_EQ(FindEntry(std::string("14"))->Facts.Number(), 1014);
  EXPECT_EQ(FindEntry(std::string("no such thing")), nullptr);
  EXPECT_EQ(FindEntry(999), nullptr);
  EXPECT_EQ(CommandTitle(1016), "Polymorphism and Divergence");
}

TEST(CommandRegistry, TheBuiltAnalysesHaveTheirBindingAndDescription) {
  for (const int command : {2, 5, 7, 11, 1012, 15, 24, 33, 8, 1003, 1006, 28}) {
    const CommandEntry* entry = FindEntry(command);
    ASSERT_NE(entry, nullptr);
    EXPECT_TRUE(entry->Built()) << command;
    EXPECT_FALSE(entry->Facts.Description.empty()) << command;
    EXPECT_NE(entry->Binding->NewOptions(), nullptr);
  }
  EXPECT_FALSE(FindEntry(1009)->Built());
}

TEST(MenuModel, EveryCommandHasItsMenuEntry) {
  MenuModel menus;
  for (const CommandEntry& command : Registry()) {
    const MenuEntry* entry = menus.FindCommand(command.Facts.Number());
    ASSERT_NE(entry, nullptr) << command.Facts.Number();
    EXPECT_EQ(entry->text, command.Facts.MenuText);
    EXPECT_EQ(entry->handler, command.Facts.Handler);
  }
}

TEST(MenuModel, UpdateNexusIsOnOnlyWithANexusFile) {
  MenuModel menus;
  menus.ActivarMenu(11, 4);
  EXPECT_FALSE(menus.Enabled("MenuUpdateNEXUS_Click"));
  menus.ActivarMenu(11, 2);
  EXPECT_TRUE(menus.Enabled("MenuUpdateNEXUS_Click"));
  menus.ActivarMenu(12, 2);
  EXPECT_FALSE(menus.Enabled("MenuUpdateNEXUS_Click"));
}

}  // namespace
}  // namespace ovelt
