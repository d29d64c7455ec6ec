#include <gtest/gtest.h>

#include "output/analysis_titles.h"
#include "output/table_heads.h"

namespace ovelt {
namespace {

TEST(AnalysisTitle, EveryCodeOfTheTable) {
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
      {13, "Gene Flow"},
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
      {40, "Tests of Independence"},
      {41, "Discrete Distributions"},
  };
  for (const auto& [code, title] : kTable) EXPECT_EQ(AnalysisTitle(code), title) << code;
}

TEST(AnalysisTitle, TwoSetCommandsUseTheCodeModuloThousand) {
  EXPECT_EQ(AnalysisTitle(1014), "McDonald and Kreitman Test");
  EXPECT_EQ(AnalysisTitle(1018), "Shuttle to: Trelmo");
}

TEST(AnalysisTitle, CodesOutsideTheTableHaveNone) {
  EXPECT_EQ(AnalysisTitle(0), "");
  EXPECT_EQ(AnalysisTitle(34), "");
  EXPECT_EQ(AnalysisTitle(42), "");
  EXPECT_EQ(AnalysisTitle(-3), "");
}

TEST(WindowCaptions, TextWindowByCode) {
  EXPECT_EQ(TextWindowCaption(2, "a.fas"), "Output - a.fas");
  EXPECT_EQ(TextWindowCaption(7, "a.fas"), "Output - a.fas");
  EXPECT_EQ(TextWindowCaption(3, "a.fas"), "Output: DNA Div. Between Populations - a.fas");
  EXPECT_EQ(TextWindowCaption(6, "b.nex"), "Output: Gene Conversion - b.nex");
  EXPECT_EQ(TextWindowCaption(10, "b.nex"), "Output: HKA Test - b.nex");
  EXPECT_EQ(TextWindowCaption(12, "b.nex"), "Output: Fu and Li's Tests - b.nex");
  EXPECT_EQ(TextWindowCaption(28, "b.nex"), "Output: Gene Flow - b.nex");
  EXPECT_EQ(TextWindowCaption(1018, "b.nex"), "Output: Trelmo - b.nex");
  EXPECT_EQ(TextWindowCaption(16, "b.nex"), "Output: Polymorphism and Divergence - b.nex");
  EXPECT_EQ(TextWindowCaption(17, "b.nex"),
            "Output: Pol. and Divergence in Functional Regions - b.nex");
  EXPECT_EQ(TextWindowCaption(29, "b.nex"),
            "Output: Analysis of Preferred and Unpreferred Substitutions - b.nex");
  EXPECT_EQ(TextWindowCaption(40, "b.nex"), "Output - b.nex");
}

TEST(WindowCaptions, GridWindowByCode) {
  EXPECT_EQ(GridWindowCaption(4), "Output. Table of: Linkage Disequilibrium");
  EXPECT_EQ(GridWindowCaption(23), "Output. Table of: Codon Usage");
  EXPECT_EQ(GridWindowCaption(1008), "Output. Table of: Synonymous and NonSyn. Substitutions");
  EXPECT_EQ(GridWindowCaption(12), "Output: Table");
  EXPECT_EQ(GridWindowCaption(9), "Output: Table of HKA Test");
  EXPECT_EQ(GridWindowCaption(17), "Output: Nuc. Polymorphism and Divergence");
  EXPECT_EQ(GridWindowCaption(18), "Polym. and Fixed Differences");
  EXPECT_EQ(GridWindowCaption(29), "Pref/Unpref. Synonymous Changes");
  EXPECT_EQ(GridWindowCaption(15), "Output. Grid");
  EXPECT_EQ(SecondGridWindowCaption(1017),
            "Output: No. of Mutations and Sites (Intraspecific Data)");
  EXPECT_EQ(SecondGridWindowCaption(23), "Codon Usage of:");
  EXPECT_EQ(SecondGridWindowCaption(29), "Pref/Unpref. Changes");
}

TEST(TableHeads, FirstVariantByCode) {
  EXPECT_EQ(DefaultGridTextHead(2), "     Window  Midpoint  Pi     Theta      S");
  EXPECT_EQ(DefaultGridTextHead(4), "Site1  Site2   Dist     D       D'      R");
  EXPECT_EQ(DefaultGridTextHead(6), "     Window Midpoint  Psi");
  EXPECT_EQ(DefaultGridTextHead(10),
            "                                   Locus 1       Locus 2\r\n"
            "                                   -------       -------");
  EXPECT_EQ(DefaultGridTextHead(15), "Differences  Freq. Obs.  Freq. Exp.");
  EXPECT_EQ(DefaultGridTextHead(17),
            "                  Region  SitesT Pi(Tot) Pi(Sil) ThetaT  Theta(Sil) ");
  EXPECT_EQ(DefaultGridTextHead(16), "");
  EXPECT_EQ(DefaultGridTextHead(7), "");
}

TEST(TableHeads, RuleAndSeparator) {
  EXPECT_EQ(GridTextRule(2).size(), 74u);
  EXPECT_EQ(GridTextRule(23).size(), 82u);
  EXPECT_EQ(GridTextRule(2).find_first_not_of('-'), std::string::npos);
  EXPECT_EQ(GridCellSeparator(17), " ");
  EXPECT_EQ(GridCellSeparator(8), "  ");
}

}  // namespace
}  // namespace ovelt
