#include <gtest/gtest.h>

#include <set>

#include "shell/command_table.h"
#include "shell/menu_model.h"
#include "output/analysis_titles.h"

namespace ovelt {
namespace {

TEST(CommandTable, HoldsEveryNumberedCommandOnce) {
  const std::vector<int> expected = {1,  2,  1003, 4,  5,  1006, 7,  8,  1009, 10, 11, 1012,
                                     1014, 15, 1016, 1017, 1018, 19, 20, 21, 22, 23, 24, 25,
                                     26, 1026, 27, 28, 1029, 30, 1031, 32, 33, 41, 42};
  std::vector<int> numbers;
  for (const CommandRow& row : CommandTable()) numbers.push_back(row.number);
  EXPECT_EQ(numbers, expected);
  std::set<std::string> names;
  for (const CommandRow& row : CommandTable()) names.insert(row.cli_name);
  EXPECT_EQ(names.size(), expected.size());
}

TEST(CommandTable, TitlesAgreeWithTheOutputTitleTable) {
  // The output channel keeps its own title table, indexed by the number modulo 1000; the
  // analyses of both tables must carry the same words. The two tools are numbered 41 and 42
  // in the command table but 40 and 41 in the title table.
  for (const CommandRow& row : CommandTable()) {
    const int code = row.number % 1000;
    const int title_code = code >= 41 ? code - 1 : code;
    EXPECT_EQ(row.title, AnalysisTitle(title_code)) << row.number;
  }
}

TEST(CommandTable, RowsCarryTheirMenuChecksAndDialog) {
  const CommandRow* mk = FindCommand(1014);
  ASSERT_NE(mk, nullptr);
  EXPECT_EQ(mk->title, "McDonald and Kreitman Test");
  EXPECT_EQ(mk->handler, "MenuMcDonadlKreitman2_Click");
  EXPECT_EQ(mk->menu_text, "&McDonald and Kreitman Test...");
  EXPECT_EQ(mk->checks, (std::vector<Check>{Check::kCodingRegion, Check::kTwoSets}));
  EXPECT_EQ(mk->dialog, "Form11b");

  const CommandRow* pref = FindCommand(1029);
  ASSERT_NE(pref, nullptr);
  EXPECT_EQ(pref->checks, (std::vector<Check>{Check::kCodingRegion, Check::kPrefTable,
                                              Check::kTwoSets, Check::kSetsWithSeqs}));
  EXPECT_EQ(pref->dialog, "UnPrefPrefOptions");

  EXPECT_EQ(FindCommand(10)->menu_text, "&HKA Test  (Direct Mode)...");
  EXPECT_EQ(FindCommand(1009)->menu_text, "H&KA, Hudson, Kreitman and Aguadé, Test...");
  EXPECT_EQ(FindCommand(19)->dialog, "frmArbolDLL");
  EXPECT_EQ(FindCommand(28)->dialog, "Form9c");
  EXPECT_EQ(FindCommand(1026)->menu_text, "&Filtered Positions Data File...");
  EXPECT_EQ(FindCommand(26)->menu_text, "&Remove Positions...");
}

TEST(CommandTable, FindsByNumberModuloThousandNameAndTitle) {
  EXPECT_EQ(FindCommand(3)->number, 1003);
  EXPECT_EQ(FindCommand(std::string("tajima"))->number, 5);
  EXPECT_EQ(FindCommand(std::string("Tajima's Test"))->number, 5);
  EXPECT_EQ(FindCommand(std::string("1014"))->number, 1014);
  EXPECT_EQ(FindCommand(std::string("14"))->number, 1014);
  EXPECT_EQ(FindCommand(std::string("no such thing")), nullptr);
  EXPECT_EQ(FindCommand(999), nullptr);
  EXPECT_EQ(CommandTitle(1016), "Polymorphism and Divergence");
}

TEST(MenuModel, EveryCommandHasItsMenuEntry) {
  MenuModel menus;
  for (const CommandRow& row : CommandTable()) {
    const MenuEntry* entry = menus.FindCommand(row.number);
    ASSERT_NE(entry, nullptr) << row.number;
    EXPECT_EQ(entry->text, row.menu_text);
    EXPECT_EQ(entry->handler, row.handler);
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
