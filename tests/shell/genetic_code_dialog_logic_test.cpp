#include "shell/genetic_code_dialog_logic.h"

#include <gtest/gtest.h>

#include <set>

#include "core/alignment_fixture.h"

namespace ovelt {
namespace {

// Cells of the whole grid of a code that end in `name`.
int CellsNamed(int16_t code, const std::string& name) {
  const GeneticCodeTable table = BuildGeneticCode(code);
  int count = 0;
  for (int a = 1; a <= 4; ++a)
    for (int b = 1; b <= 4; ++b)
      for (int c = 1; c <= 4; ++c) {
        const std::string cell = CodonGridCell(table, a, b, c);
        if (cell.substr(5) == name) ++count;
      }
  return count;
}

TEST(GeneticCodeGrid, CellsReadTheCodonWithUAndTheThreeLetterName) {
  const GeneticCodeTable universal = BuildGeneticCode(1);
  EXPECT_EQ(CodonGridCell(universal, 1, 1, 1), "UUU  Phe");
  EXPECT_EQ(CodonGridCell(universal, 4, 4, 4), "GGG  Gly");
  EXPECT_EQ(CodonGridCell(universal, 1, 4, 3), "UGA  Stop");
  EXPECT_EQ(CodonGridCell(universal, 3, 1, 4), "AUG  Met");
  EXPECT_EQ(CodonGridCell(BuildGeneticCode(2), 1, 4, 3), "UGA  Trp");
  EXPECT_EQ(CodonGridCell(BuildGeneticCode(9), 2, 1, 4), "CUG  Ser");
  EXPECT_EQ(CodonGridCell(universal, 0, 1, 1), "");
  EXPECT_EQ(CodonGridCell(universal, 1, 5, 1), "");
}

TEST(GeneticCodeGrid, StopCountsFollowTheChangesOfEachCode) {
  // Universal: UAA, UAG, UGA. Mammal mitochondria: UGA becomes Trp, AGA and AGG become stops.
  EXPECT_EQ(CellsNamed(1, "Stop"), 3);
  EXPECT_EQ(CellsNamed(2, "Stop"), 4);
  EXPECT_EQ(CellsNamed(3, "Stop"), 2);
  EXPECT_EQ(CellsNamed(7, "Stop"), 1);  // flatworm: UAA Tyr, UGA Trp
  EXPECT_EQ(CellsNamed(8, "Stop"), 1);  // ciliate: UAA, UAG Gln
  EXPECT_EQ(CellsNamed(10, "Gly"), 6);  // ascidian: AGA, AGG Gly
  EXPECT_EQ(CellsNamed(1, "Leu"), 6);
  EXPECT_EQ(CellsNamed(4, "Leu"), 2);   // yeast mitochondria: CUN Thr
}

TEST(GeneticCodeGrid, TheUniversalGridHoldsTwentyOneNames) {
  const GeneticCodeTable universal = BuildGeneticCode(1);
  std::set<std::string> names;
  for (int a = 1; a <= 4; ++a)
    for (int b = 1; b <= 4; ++b)
      for (int c = 1; c <= 4; ++c) names.insert(CodonGridCell(universal, a, b, c).substr(5));
  EXPECT_EQ(names.size(), 21u);
}

TEST(GeneticCodeDialogTexts, ChoicesAndFrameTitle) {
  const std::vector<std::string> choices = GeneticCodeChoices();
  ASSERT_EQ(choices.size(), 10u);
  EXPECT_EQ(choices.front(), "Nuclear Universal");
  EXPECT_EQ(choices[8], "Nuclear Candida (Table 12)");
  EXPECT_EQ(choices.back(), "mtDNA Ascidian");
  const ActiveData ad = test::MakeAlignment({"ACG"});
  EXPECT_EQ(GeneticCodeFrameTitle(ad), "Genetic Code for: sample.fas");
  EXPECT_EQ(CodonBaseLabels(), (std::vector<std::string>{"U", "C", "A", "G"}));
}

}  // namespace
}  // namespace ovelt
