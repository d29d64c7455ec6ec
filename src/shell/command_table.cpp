#include "shell/command_table.h"

#include <algorithm>
#include <cctype>

namespace ovelt {

namespace {

using C = Check;

std::vector<CommandRow> BuildTable() {
  // Command 26 has two menu entries (1026 is the filtered-positions face).
  return {
      {1, "Polymorphic Sites", "MenuPolisite_Click", "Polymorphic &Sites...", {}, "none", "Form9",
       "Analysis", "polymorphic-sites"},
      {2, "DNA Polymorphism", "MenuDnaPol_Click", "&DNA Polymorphism...", {C::kOneSequence},
       "one sequence", "Form9", "Analysis", "dna-polymorphism"},
      {1003, "DNA Divergence Between Populations", "MenuDnaDiverg2_Click",
       "DNA Divergence &Between Populations...", {C::kTwoSets}, "two sets", "Form11b", "Analysis",
       "dna-divergence"},
      {4, "Linkage Disequilibrium", "MenuDLigamiento_Click", "&Linkage Disequilibrium...",
       {C::kOneSequence}, "one sequence", "Form9", "Analysis", "linkage-disequilibrium"},
      {5, "Tajima's Test", "MenuTajimaTest_Click", "&Tajima's Test...", {C::kFourSequences},
       "four sequences", "Form9", "Analysis", "tajima"},
      {1006, "Gene Conversion", "MenuGeneConversionNew_Click", "Gene &Conversion...",
       {C::kTwoSets}, "two sets", "Form11b", "Analysis", "gene-conversion"},
      {7, "Recombination", "MenuRecombination_Click", "&Recombination...", {C::kOneSequence},
       "one sequence", "Form9", "Analysis", "recombination"},
      {8, "Synonymous and NonSyn. Substitutions", "MenuSynonymous_Click",
       "Synonymous and &NonSynonymous Substitutions...", {C::kOneSequence, C::kCodingNotice},
       "one sequence, coding notice", "Form9", "Analysis", "synonymous"},
      {1009, "HKA Test", "MenuHKANew_Click", "H&KA, Hudson, Kreitman and Aguadé, Test...",
       {C::kTwoSets}, "two sets", "Form11b", "Analysis", "hka"},
      {10, "HKA Test. Direct Mode", "MenuHKADirecto_Click", "&HKA Test  (Direct Mode)...", {},
       "none", "Form13", "Analysis", "hka-direct"},
      {11, "Fu and Li's Tests", "MenuFuLi_Click", "&Fu and Li's (and other) Tests...",
       {C::kFourSequences}, "four sequences", "Form9", "Analysis", "fu-li"},
      {1012, "Fu and Li's Tests with an Outgroup", "MenuFuLiOutgroupNew_Click",
       "Fu and Li's (and other) Tests with an &Outgroup...", {C::kTwoSets}, "two sets",
       "Form11b", "Analysis", "fu-li-outgroup"},
      {1014, "McDonald and Kreitman Test", "MenuMcDonadlKreitman2_Click",
       "&McDonald and Kreitman Test...", {C::kCodingRegion, C::kTwoSets},
       "coding region, two sets", "Form11b", "Analysis", "mcdonald-kreitman"},
      {15, "Population Size Changes", "MenuPairwise_Click", "Population Si&ze Changes...",
       {C::kOneSequence}, "one sequence", "Form9", "Analysis", "population-size-changes"},
      {1016, "Polymorphism and Divergence", "MenuPolDivergenceNew_Click",
       "&Polymorphism and Divergence...", {C::kOneSet, C::kCodingNotice},
       "one set, coding notice", "Form11b", "Analysis", "polymorphism-divergence"},
      {1017, "Pol. and Divergence in Functional Regions", "MenuDnaFRegionesNew_Click",
       "Pol&ymorphism and Divergence in Functional Regions...", {C::kOneSet, C::kCodingNotice},
       "one set, coding notice", "Form11b", "Analysis", "functional-regions"},
      {1018, "Shuttle to: Trelmo", "MenuDNASlider_Click", "&Shuttle to: Trelmo...",
       {C::kTwoSets, C::kCodingNotice}, "two sets, coding notice", "Form11b", "Generate",
       "trelmo"},
      {19, "Coalescent Simulations", "MenuGeneCoal_Click", "&Coalescent Simulations...", {},
       "none", "frmArbolDLL", "Analysis", "coalescent"},
      {20, "Shuttle to: HBK test", "MenuHBKtest_Click", "Sh&uttle to: HBK Test...",
       {C::kOneSequence}, "one sequence", "Form9b", "Generate", "hbk"},
      {21, "Polymorphic Sites File", "MenuPolimorphicSitesFile_Click",
       "&Polymorphic Sites Data File...", {C::kOneSequence}, "one sequence", "Form9b",
       "Generate", "polymorphic-sites-file"},
      {22, "Reverse Complement Data File", "MenuReverseComplement_Click",
       "&Reverse Complement Data File...", {}, "none", "Form9b", "Generate",
       "reverse-complement"},
      {23, "Codon Usage", "MenuCodonUsage_Click", "Codon &Usage Bias...", {C::kCodingRegion},
       "coding region", "Form9", "Analysis", "codon-usage"},
      {24, "DNA Polymorphism Analysis", "MenuIntraData_Click", "&Intraspecific Data...",
       {C::kOneSequence}, "one sequence", "Form9", "Overview", "intraspecific"},
      {25, "Translate to Protein Data File", "MenuTranslateProteinDataFile_Click",
       "&Translate to Protein Data File...", {C::kCodingRegion}, "coding region", "Form9b",
       "Generate", "translate"},
      {26, "Filter/Remove Positions", "MenuModificaDataFile_Click", "&Remove Positions...",
       {C::kCodingRegion}, "coding region", "Form9b", "Generate", "remove-positions"},
      {1026, "Filter/Remove Positions", "MenuModificaDataFile2_Click",
       "&Filtered Positions Data File...", {C::kCodingRegion}, "coding region", "Form9b",
       "Generate", "filtered-positions"},
      {27, "EMBL/GenBank Submission File", "MenuGenBank_Click",
       "Prepare Submission for EMBL / &GenBank Database...", {}, "none", "Form9b", "Generate",
       "genbank"},
      {28, "Gene Flow and Genetic Differentiation", "MenuGeneFlowNew_Click",
       "&Gene Flow and Genetic Differentiation...", {C::kTwoSets, C::kActiveSets},
       "two sets, active sets", "Form9c", "Analysis", "gene-flow"},
      {1029, "Preferred and Unpreferred Synonymous Substitutions", "MenuPrefUnprefCodons_Click",
       "Pr&eferred and Unpreferred Synonymous Substitutions...",
       {C::kCodingRegion, C::kPrefTable, C::kTwoSets, C::kSetsWithSeqs},
       "coding region, table, two sets, sets with sequences", "UnPrefPrefOptions", "Analysis",
       "preferred-codons"},
      {30, "Haplotype Data File", "MenuHaplotypeDataFile_Click", "&Haplotype Data File...",
       {C::kOneSequence}, "one sequence", "Form9b", "Generate", "haplotype-file"},
      {1031, "Mutational Process. Provisional", "MenuMutationalInput_Click",
       "Mutational Input...", {C::kOneSet, C::kSetsWithSeqs}, "one set, sets with sequences",
       "UnPrefPrefOptions", "Analysis", "mutational-input"},
      {32, "Concatenate Data Files. Provisional", "MenuConcatenateDataFiles_Click",
       "Concatenate Data Files", {C::kNoOpenFile}, "none; needs no open file", "Form9b",
       "Generate", "concatenate"},
      {33, "Multiblock Analysis. Provisional", "MenuMultiBlock_Click", "&MultiDomain Analysis...",
       {C::kOneSequence}, "one sequence", "Form9", "Overview", "multidomain"},
      {41, "Tests of Independence", "MenuIndependence_Click",
       "Tests of &Independence: 2 x 2 table...", {}, "none", "Form12", "Tools",
       "independence"},
      {42, "Discrete Distributions", "MenuDDistributions_Click", "&Discrete Distributions...", {},
       "none", "Form20", "Tools", "distributions"},
  };
}

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

}  // namespace

const std::vector<CommandRow>& CommandTable() {
  static const std::vector<CommandRow> table = BuildTable();
  return table;
}

const CommandRow* FindCommand(int number) {
  for (const auto& row : CommandTable())
    if (row.number == number) return &row;
  for (const auto& row : CommandTable())
    if (row.number % 1000 == number % 1000) return &row;
  return nullptr;
}

const CommandRow* FindCommand(const std::string& key) {
  const std::string wanted = Lower(key);
  for (const auto& row : CommandTable())
    if (row.cli_name == wanted || Lower(row.title) == wanted ||
        std::to_string(row.number) == wanted)
      return &row;
  if (!wanted.empty() && std::all_of(wanted.begin(), wanted.end(),
                                     [](unsigned char c) { return std::isdigit(c); }) &&
      wanted.size() < 6)
    return FindCommand(std::stoi(wanted));
  return nullptr;
}

std::string CommandTitle(int number) {
  const CommandRow* row = FindCommand(number % 1000);
  return row ? row->title : std::string();
}

}  // namespace ovelt
