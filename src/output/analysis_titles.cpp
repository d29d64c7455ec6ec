#include "output/analysis_titles.h"

#include <map>

namespace ovelt {
namespace {

int TitleIndex(int code) { return code % 1000; }

}  // namespace

std::string AnalysisTitle(int code) {
  static const std::map<int, std::string> kTitles = {
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
  const auto it = kTitles.find(TitleIndex(code));
  return it == kTitles.end() ? "" : it->second;
}

std::string TextWindowCaption(int code, const std::string& file_short_name) {
  std::string caption = "Output";
  switch (TitleIndex(code)) {
    case 3: caption = "Output: DNA Div. Between Populations"; break;
    case 6: caption = "Output: Gene Conversion"; break;
    case 9:
    case 10: caption = "Output: HKA Test"; break;
    case 11:
    case 12: caption = "Output: Fu and Li's Tests"; break;
    case 13:
    case 28: caption = "Output: Gene Flow"; break;
    case 18: caption = "Output: Trelmo"; break;
    case 16: caption = "Output: Polymorphism and Divergence"; break;
    case 17: caption = "Output: Pol. and Divergence in Functional Regions"; break;
    case 29: caption = "Output: Analysis of Preferred and Unpreferred Substitutions"; break;
    default: break;  // 1, 2, 4, 5, 7 and the rest: the plain caption
  }
  return caption + " - " + file_short_name;
}

std::string GridWindowCaption(int code) {
  const int index = TitleIndex(code);
  switch (index) {
    case 1:
    case 2:
    case 4:
    case 5:
    case 7:
    case 8:
    case 11:
    case 23: return std::string("Output. Table of: ") + AnalysisTitle(index);
    case 3:
    case 6:
    case 12: return "Output: Table";
    case 9:
    case 10: return "Output: Table of HKA Test";
    case 17: return "Output: Nuc. Polymorphism and Divergence";
    case 18: return "Polym. and Fixed Differences";
    case 29: return "Pref/Unpref. Synonymous Changes";
    default: return "Output. Grid";
  }
}

std::string SecondGridWindowCaption(int code) {
  switch (TitleIndex(code)) {
    case 23: return "Codon Usage of:";
    case 29: return "Pref/Unpref. Changes";
    default: return "Output: No. of Mutations and Sites (Intraspecific Data)";
  }
}

}  // namespace ovelt
