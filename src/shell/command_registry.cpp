#include "shell/command_registry.h"

#include <algorithm>
#include <cctype>

#include "analyses/divergence/dna_divergence/dna_divergence_command.h"
#include "analyses/divergence/gene_conversion/gene_conversion_command.h"
#include "analyses/divergence/gene_flow/gene_flow_command.h"
#include "analyses/divergence/synonymous/synonymous_command.h"
#include "analyses/linkage/linkage_command.h"
#include "analyses/polymorphism/diversity/dna_polymorphism_command.h"
#include "analyses/polymorphism/neutrality/fu_li_command.h"
#include "analyses/polymorphism/neutrality/fu_li_outgroup_command.h"
#include "analyses/polymorphism/neutrality/tajima_command.h"
#include "analyses/polymorphism/overview/overview_command.h"
#include "analyses/polymorphism/size_changes/size_change_command.h"
#include "analyses/recombination/recombination_command.h"
#include "coalescent/coalescent_command.h"
#include "tools/independence_command.h"

// Each entry names only the facts that differ from the defaults of CommandFacts.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

namespace ovelt {

namespace {

std::vector<CommandEntry> BuildRegistry() {
  std::vector<CommandEntry> entries;
  auto add = [&entries](CommandFacts facts, std::shared_ptr<const CommandBinding> binding = {}) {
    entries.push_back({std::move(facts), std::move(binding)});
  };
  // In the order of the command table. Command 26 has two menu entries (1026 is the
  // filtered-positions face).
  add({
      .Id = CommandId::kPolymorphicSites,
      .Title = "Polymorphic Sites",
      .Handler = "MenuPolisite_Click",
      .MenuText = "Polymorphic &Sites...",
      .Checks = {},
      .ChecksText = "none",
      .Dialog = "Form9",
      .Menu = "Analysis",
      .CliName = "polymorphic-sites",
      .Labels = {.Title = "Polymorphic Sites",
                 .GridCaption = "Output. Table of: Polymorphic Sites",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  // DnaPolymorphism
  add(
      {
          .Id = CommandId::kDnaPolymorphism,
          .Title = "DNA Polymorphism",
          .Handler = "MenuDnaPol_Click",
          .MenuText = "&DNA Polymorphism...",
          .Checks = {Check::kOneSequence},
          .ChecksText = "one sequence",
          .Dialog = "Form9",
          .Menu = "Analysis",
          .CliName = "dna-polymorphism",
          .Description = "Segregating sites, haplotypes, nucleotide diversity, theta and their "
                         "variances; Pi with missing data; Pi, Theta and S along a sliding window "
                         "(--grid gives the windows)",
          .MinimumSequences = 2,
          .Labels = {.Title = "DNA Polymorphism",
                     .GridCaption = "Output. Table of: DNA Polymorphism",
                     .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "     Window  Midpoint  Pi     Theta      S"},
      },
      DnaPolymorphismBinding());
  // DnaDivergence
  add(
      {
          .Id = CommandId::kDnaDivergence,
          .Title = "DNA Divergence Between Populations",
          .Handler = "MenuDnaDiverg2_Click",
          .MenuText = "DNA Divergence &Between Populations...",
          .Checks = {Check::kTwoSets},
          .ChecksText = "two sets",
          .Dialog = "Form11b",
          .Menu = "Analysis",
          .CliName = "dna-divergence",
          .Description = "Pi within two populations, Dxy and Da between them, fixed, private and "
                         "shared mutations; Jukes and Cantor values with their standard "
                         "deviations; Pi(1), Pi(2), Dxy and Da along a sliding window",
          .Labels = {.Title = "DNA Divergence Between Populations",
                     .TextCaption = "Output: DNA Div. Between Populations",
                     .GridCaption = "Output: Table",
                     .SecondGridCaption =
                         "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "     Window Midpoint Pi(1)    Pi(2)     Dxy       Da"},
      },
      DnaDivergenceBinding());
  add(
      {
          .Id = CommandId::kLinkageDisequilibrium,
          .Title = "Linkage Disequilibrium",
          .Handler = "MenuDLigamiento_Click",
          .MenuText = "&Linkage Disequilibrium...",
          .Checks = {Check::kOneSequence},
          .ChecksText = "one sequence",
          .Dialog = "Form9",
          .Menu = "Analysis",
          .CliName = "linkage-disequilibrium",
          .Description = "D, D', R and R^2 of every pair of biallelic sites with Fisher's exact "
                         "and chi-square tests, ZnS, Za, ZZ, Wall's B and Q and the regressions "
                         "on distance (--grid gives the pairs)",
          .MinimumSequences = 2,
          .Labels = {.Title = "Linkage Disequilibrium",
                     .GridCaption = "Output. Table of: Linkage Disequilibrium",
                     .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "Site1  Site2   Dist     D       D'      R"},
      },
      LinkageBinding());
  // Tajima
  add(
      {
          .Id = CommandId::kTajima,
          .Title = "Tajima's Test",
          .Handler = "MenuTajimaTest_Click",
          .MenuText = "&Tajima's Test...",
          .Checks = {Check::kFourSequences},
          .ChecksText = "four sequences",
          .Dialog = "Form9",
          .Menu = "Analysis",
          .CliName = "tajima",
          .Description = "Tajima's D with its significance; D along a sliding window (--grid gives "
                         "the windows)",
          .MinimumSequences = 4,
          .Labels = {.Title = "Tajima's Test",
                     .GridCaption = "Output. Table of: Tajima's Test",
                     .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "     Window Midpoint  D     Sign"},
      },
      TajimaBinding());
  // GeneConversion
  add(
      {
          .Id = CommandId::kGeneConversion,
          .Title = "Gene Conversion",
          .Handler = "MenuGeneConversionNew_Click",
          .MenuText = "Gene &Conversion...",
          .Checks = {Check::kTwoSets},
          .ChecksText = "two sets",
          .Dialog = "Form11b",
          .Menu = "Analysis",
          .CliName = "gene-conversion",
          .Description = "Gene conversion tracts between two populations and Psi, the informative "
                         "sites per site (Betran et al. 1997); Psi along a sliding window",
          .Labels = {.Title = "Gene Conversion",
                     .TextCaption = "Output: Gene Conversion",
                     .GridCaption = "Output: Table",
                     .SecondGridCaption =
                         "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "     Window Midpoint  Psi"},
      },
      GeneConversionBinding());
  add({
      .Id = CommandId::kRecombination,
      .Title = "Recombination",
      .Handler = "MenuRecombination_Click",
      .MenuText = "&Recombination...",
      .Checks = {Check::kOneSequence},
      .ChecksText = "one sequence",
      .Dialog = "Form9",
      .Menu = "Analysis",
      .CliName = "recombination",
      .Description = "Hudson's estimate of R = 4Nc from the variance of the pairwise "
                     "differences, and the minimum number of recombination events Rm",
      .MinimumSequences = 2,
      .Labels = {.Title = "Recombination",
                 .GridCaption = "Output. Table of: Recombination",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  },
      RecombinationBinding());
  // Synonymous
  add(
      {
          .Id = CommandId::kSynonymous,
          .Title = "Synonymous and NonSyn. Substitutions",
          .Handler = "MenuSynonymous_Click",
          .MenuText = "Synonymous and &NonSynonymous Substitutions...",
          .Checks = {Check::kOneSequence, Check::kCodingNotice},
          .ChecksText = "one sequence, coding notice",
          .Dialog = "Form9",
          .Menu = "Analysis",
          .CliName = "synonymous",
          .Description = "Synonymous sites, Pi(s) and Pi(a) with their Jukes and Cantor values, "
                         "Theta(s) and Theta(a), silent sites (--silent), and the per-pair table "
                         "(--grid; a file above 16,290 pairs)",
          .MinimumSequences = 2,
          .Labels = {.Title = "Synonymous and NonSyn. Substitutions",
                     .GridCaption = "Output. Table of: Synonymous and NonSyn. Substitutions",
                     .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "Seq 1       Seq 2        SynDif   SynPos    Ks    NSynDif  "
                                     "NSynPos    Ka"},
      },
      SynonymousBinding());
  add({
      .Id = CommandId::kHka,
      .Title = "HKA Test",
      .Handler = "MenuHKANew_Click",
      .MenuText = "H&KA, Hudson, Kreitman and Aguadé, Test...",
      .Checks = {Check::kTwoSets},
      .ChecksText = "two sets",
      .Dialog = "Form11b",
      .Menu = "Analysis",
      .CliName = "hka",
      .Labels = {.Title = "HKA Test",
                 .TextCaption = "Output: HKA Test",
                 .GridCaption = "Output: Table of HKA Test",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                 .GridTextHead = "                                   Locus 1       Locus 2\r\n     "
                                 "                              -------       -------"},
  });
  add({
      .Id = CommandId::kHkaDirect,
      .Title = "HKA Test. Direct Mode",
      .Handler = "MenuHKADirecto_Click",
      .MenuText = "&HKA Test  (Direct Mode)...",
      .Checks = {},
      .ChecksText = "none",
      .Dialog = "Form13",
      .Menu = "Analysis",
      .CliName = "hka-direct",
      .Labels = {.Title = "HKA Test. Direct Mode",
                 .TextCaption = "Output: HKA Test",
                 .GridCaption = "Output: Table of HKA Test",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                 .GridTextHead = "                                   Locus 1       Locus 2\r\n     "
                                 "                              -------       -------"},
  });
  // FuLi
  add(
      {
          .Id = CommandId::kFuLi,
          .Title = "Fu and Li's Tests",
          .Handler = "MenuFuLi_Click",
          .MenuText = "&Fu and Li's (and other) Tests...",
          .Checks = {Check::kFourSequences},
          .ChecksText = "four sequences",
          .Dialog = "Form9",
          .Menu = "Analysis",
          .CliName = "fu-li",
          .Description =
              "Fu and Li's D* and F*, Fu's Fs and Strobeck's S; D* and F* along a sliding window",
          .MinimumSequences = 4,
          .Labels = {.Title = "Fu and Li's Tests",
                     .TextCaption = "Output: Fu and Li's Tests",
                     .GridCaption = "Output. Table of: Fu and Li's Tests",
                     .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "     Window Midpoint   D*    Sign     F*    Sign"},
      },
      FuLiBinding());
  // FuLiOutgroup
  add(
      {
          .Id = CommandId::kFuLiOutgroup,
          .Title = "Fu and Li's Tests with an Outgroup",
          .Handler = "MenuFuLiOutgroupNew_Click",
          .MenuText = "Fu and Li's (and other) Tests with an &Outgroup...",
          .Checks = {Check::kTwoSets},
          .ChecksText = "two sets",
          .Dialog = "Form11b",
          .Menu = "Analysis",
          .CliName = "fu-li-outgroup",
          .Description = "Fu and Li's D and F with an outgroup (--outgroup SET) and Fay and Wu's "
                         "H; along a sliding window",
          .Labels = {.Title = "Fu and Li's Tests with an Outgroup",
                     .TextCaption = "Output: Fu and Li's Tests",
                     .GridCaption = "Output: Table",
                     .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "     Window Midpoint   FL-D  Sign     FL-F  Sign     FW-H"},
      },
      FuLiOutgroupBinding());
  add({
      .Id = CommandId::kMcDonaldKreitman,
      .Title = "McDonald and Kreitman Test",
      .Handler = "MenuMcDonadlKreitman2_Click",
      .MenuText = "&McDonald and Kreitman Test...",
      .Checks = {Check::kCodingRegion, Check::kTwoSets},
      .ChecksText = "coding region, two sets",
      .Dialog = "Form11b",
      .Menu = "Analysis",
      .CliName = "mcdonald-kreitman",
      .TwoSetsQuestion =
          "The present analysis requires the definition of 2 Sets of Sequences. Each "
          "Set must include information of each species.\nDo you want to define the "
          "Sequences Sets now ?",
      .Labels = {.Title = "McDonald and Kreitman Test",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  // SizeChanges
  add(
      {
          .Id = CommandId::kSizeChanges,
          .Title = "Population Size Changes",
          .Handler = "MenuPairwise_Click",
          .MenuText = "Population Si&ze Changes...",
          .Checks = {Check::kOneSequence},
          .ChecksText = "one sequence",
          .Dialog = "Form9",
          .Menu = "Analysis",
          .CliName = "population-size-changes",
          .Description = "Mismatch distribution, raggedness, MAE, R2, frequency spectrum or Sn(t), "
                         "with the values expected under constant size or a growth-decline",
          .MinimumSequences = 2,
          .Labels = {.Title = "Population Size Changes",
                     .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                     .GridTextHead = "Differences  Freq. Obs.  Freq. Exp."},
      },
      SizeChangeBinding());
  add({
      .Id = CommandId::kPolymorphismDivergence,
      .Title = "Polymorphism and Divergence",
      .Handler = "MenuPolDivergenceNew_Click",
      .MenuText = "&Polymorphism and Divergence...",
      .Checks = {Check::kOneSet, Check::kCodingNotice},
      .ChecksText = "one set, coding notice",
      .Dialog = "Form11b",
      .Menu = "Analysis",
      .CliName = "polymorphism-divergence",
      .Labels = {.Title = "Polymorphism and Divergence",
                 .TextCaption = "Output: Polymorphism and Divergence",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kFunctionalRegions,
      .Title = "Pol. and Divergence in Functional Regions",
      .Handler = "MenuDnaFRegionesNew_Click",
      .MenuText = "Pol&ymorphism and Divergence in Functional Regions...",
      .Checks = {Check::kOneSet, Check::kCodingNotice},
      .ChecksText = "one set, coding notice",
      .Dialog = "Form11b",
      .Menu = "Analysis",
      .CliName = "functional-regions",
      .Labels = {.Title = "Pol. and Divergence in Functional Regions",
                 .TextCaption = "Output: Pol. and Divergence in Functional Regions",
                 .GridCaption = "Output: Nuc. Polymorphism and Divergence",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)",
                 .GridTextHead =
                     "                  Region  SitesT Pi(Tot) Pi(Sil) ThetaT  Theta(Sil) ",
                 .GridCellSeparator = " "},
  });
  add({
      .Id = CommandId::kTrelmo,
      .Title = "Shuttle to: Trelmo",
      .Handler = "MenuDNASlider_Click",
      .MenuText = "&Shuttle to: Trelmo...",
      .Checks = {Check::kTwoSets, Check::kCodingNotice},
      .ChecksText = "two sets, coding notice",
      .Dialog = "Form11b",
      .Menu = "Generate",
      .CliName = "trelmo",
      .Labels = {.Title = "Shuttle to: Trelmo",
                 .TextCaption = "Output: Trelmo",
                 .GridCaption = "Polym. and Fixed Differences",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kCoalescent,
      .Title = "Coalescent Simulations",
      .Handler = "MenuGeneCoal_Click",
      .MenuText = "&Coalescent Simulations...",
      .Checks = {},
      .ChecksText = "none",
      .Dialog = "frmArbolDLL",
      .Menu = "Analysis",
      .CliName = "coalescent",
      .Description =
          "Coalescent simulations: confidence limits and the probability of a value not above "
          "the observed one for a statistic under the neutral coalescent. Needs no data file",
      .Labels = {.Title = "Coalescent Simulations",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  }, CoalescentBinding());
  add({
      .Id = CommandId::kHbk,
      .Title = "Shuttle to: HBK test",
      .Handler = "MenuHBKtest_Click",
      .MenuText = "Sh&uttle to: HBK Test...",
      .Checks = {Check::kOneSequence},
      .ChecksText = "one sequence",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "hbk",
      .Labels = {.Title = "Shuttle to: HBK test",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kPolymorphicSitesFile,
      .Title = "Polymorphic Sites File",
      .Handler = "MenuPolimorphicSitesFile_Click",
      .MenuText = "&Polymorphic Sites Data File...",
      .Checks = {Check::kOneSequence},
      .ChecksText = "one sequence",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "polymorphic-sites-file",
      .MinimumSequences = 2,
      .OneSequenceWords = "Can't create a file with the polymorphic sites",
      .Labels = {.Title = "Polymorphic Sites File",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kReverseComplement,
      .Title = "Reverse Complement Data File",
      .Handler = "MenuReverseComplement_Click",
      .MenuText = "&Reverse Complement Data File...",
      .Checks = {},
      .ChecksText = "none",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "reverse-complement",
      .MinimumSequences = 1,
      .Labels = {.Title = "Reverse Complement Data File",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kCodonUsage,
      .Title = "Codon Usage",
      .Handler = "MenuCodonUsage_Click",
      .MenuText = "Codon &Usage Bias...",
      .Checks = {Check::kCodingRegion},
      .ChecksText = "coding region",
      .Dialog = "Form9",
      .Menu = "Analysis",
      .CliName = "codon-usage",
      .MinimumSequences = 1,
      .Labels =
          {.Title = "Codon Usage",
           .GridCaption = "Output. Table of: Codon Usage",
           .SecondGridCaption = "Codon Usage of:",
           .GridTextHead =
               "Sequence_Name         ENC     CBI    SChi2   G+Cn    G+C2    G+C3s   G+Cc    G+Cc",
           .GridRuleLength = 82},
  });
  // Intraspecific
  add(
      {
          .Id = CommandId::kIntraspecific,
          .Title = "DNA Polymorphism Analysis",
          .Handler = "MenuIntraData_Click",
          .MenuText = "&Intraspecific Data...",
          .Checks = {Check::kOneSequence},
          .ChecksText = "one sequence",
          .Dialog = "Form9",
          .Menu = "Overview",
          .CliName = "intraspecific",
          .Description =
              "All main polymorphism statistics and neutrality tests of a selection at a glance",
          .MinimumSequences = 2,
          .OneSequenceWords = "Can't analyze the Ovelt Workbench.",
          .Labels = {.Title = "DNA Polymorphism Analysis",
                     .SecondGridCaption =
                         "Output: No. of Mutations and Sites (Intraspecific Data)"},
      },
      IntraspecificBinding());
  add({
      .Id = CommandId::kTranslate,
      .Title = "Translate to Protein Data File",
      .Handler = "MenuTranslateProteinDataFile_Click",
      .MenuText = "&Translate to Protein Data File...",
      .Checks = {Check::kCodingRegion},
      .ChecksText = "coding region",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "translate",
      .MinimumSequences = 1,
      .Labels = {.Title = "Translate to Protein Data File",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kRemovePositions,
      .Title = "Filter/Remove Positions",
      .Handler = "MenuModificaDataFile_Click",
      .MenuText = "&Remove Positions...",
      .Checks = {Check::kCodingRegion},
      .ChecksText = "coding region",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "remove-positions",
      .MinimumSequences = 1,
      .Labels = {.Title = "Filter/Remove Positions",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kFilteredPositions,
      .Title = "Filter/Remove Positions",
      .Handler = "MenuModificaDataFile2_Click",
      .MenuText = "&Filtered Positions Data File...",
      .Checks = {Check::kCodingRegion},
      .ChecksText = "coding region",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "filtered-positions",
      .MinimumSequences = 1,
      .Labels = {.Title = "Filter/Remove Positions",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kGenBank,
      .Title = "EMBL/GenBank Submission File",
      .Handler = "MenuGenBank_Click",
      .MenuText = "Prepare Submission for EMBL / &GenBank Database...",
      .Checks = {},
      .ChecksText = "none",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "genbank",
      .MinimumSequences = 1,
      .Labels = {.Title = "EMBL/GenBank Submission File",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  // GeneFlow
  add(
      {
          .Id = CommandId::kGeneFlow,
          .Title = "Gene Flow and Genetic Differentiation",
          .Handler = "MenuGeneFlowNew_Click",
          .MenuText = "&Gene Flow and Genetic Differentiation...",
          .Checks = {Check::kTwoSets, Check::kActiveSets},
          .ChecksText = "two sets, active sets",
          .Dialog = "Form9c",
          .Menu = "Analysis",
          .CliName = "gene-flow",
          .Description = "Differentiation among the active sequence sets and between every two: "
                         "Hst, Kst, Kst*, Z, Z*, Snn with their permutation test, Gst, DeltaSt, "
                         "GammaSt, Nst, Fst, Dxy, Da and Nm",
          .Labels = {.Title = "Gene Flow and Genetic Differentiation",
                     .TextCaption = "Output: Gene Flow",
                     .SecondGridCaption =
                         "Output: No. of Mutations and Sites (Intraspecific Data)"},
      },
      GeneFlowBinding());
  add({
      .Id = CommandId::kPreferredCodons,
      .Title = "Preferred and Unpreferred Synonymous Substitutions",
      .Handler = "MenuPrefUnprefCodons_Click",
      .MenuText = "Pr&eferred and Unpreferred Synonymous Substitutions...",
      .Checks = {Check::kCodingRegion, Check::kPrefTable, Check::kTwoSets, Check::kSetsWithSeqs},
      .ChecksText = "coding region, table, two sets, sets with sequences",
      .Dialog = "UnPrefPrefOptions",
      .Menu = "Analysis",
      .CliName = "preferred-codons",
      .Labels =
          {.Title = "Preferred and Unpreferred Synonymous Substitutions",
           .TextCaption = "Output: Analysis of Preferred and Unpreferred Substitutions",
           .GridCaption = "Pref/Unpref. Synonymous Changes",
           .SecondGridCaption = "Pref/Unpref. Changes",
           .GridTextHead =
               "         Position            Ancestral -> Derived    Freq.   Status       Change"},
  });
  add({
      .Id = CommandId::kHaplotypeFile,
      .Title = "Haplotype Data File",
      .Handler = "MenuHaplotypeDataFile_Click",
      .MenuText = "&Haplotype Data File...",
      .Checks = {Check::kOneSequence},
      .ChecksText = "one sequence",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "haplotype-file",
      .MinimumSequences = 2,
      .Labels = {.Title = "Haplotype Data File",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kMutationalInput,
      .Title = "Mutational Process. Provisional",
      .Handler = "MenuMutationalInput_Click",
      .MenuText = "Mutational Input...",
      .Checks = {Check::kOneSet, Check::kSetsWithSeqs},
      .ChecksText = "one set, sets with sequences",
      .Dialog = "UnPrefPrefOptions",
      .Menu = "Analysis",
      .CliName = "mutational-input",
      .Labels = {.Title = "Mutational Process. Provisional",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  add({
      .Id = CommandId::kConcatenate,
      .Title = "Concatenate Data Files. Provisional",
      .Handler = "MenuConcatenateDataFiles_Click",
      .MenuText = "Concatenate Data Files",
      .Checks = {Check::kNoOpenFile},
      .ChecksText = "none; needs no open file",
      .Dialog = "Form9b",
      .Menu = "Generate",
      .CliName = "concatenate",
      .Labels = {.Title = "Concatenate Data Files. Provisional",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
  });
  // MultiDomain
  add(
      {
          .Id = CommandId::kMultiDomain,
          .Title = "Multiblock Analysis. Provisional",
          .Handler = "MenuMultiBlock_Click",
          .MenuText = "&MultiDomain Analysis...",
          .Checks = {Check::kOneSequence},
          .ChecksText = "one sequence",
          .Dialog = "Form9",
          .Menu = "Overview",
          .CliName = "multidomain",
          .Description =
              "The overview statistics for every domain and every sequence set, as a table",
          .Labels = {.Title = "Multiblock Analysis. Provisional",
                     .SecondGridCaption =
                         "Output: No. of Mutations and Sites (Intraspecific Data)"},
      },
      MultiDomainBinding());
  add({
      .Id = CommandId::kIndependence,
      .Title = "Tests of Independence",
      .Handler = "MenuIndependence_Click",
      .MenuText = "Tests of &Independence: 2 x 2 table...",
      .Checks = {},
      .ChecksText = "none",
      .Dialog = "Form12",
      .Menu = "Tools",
      .CliName = "independence",
      .Description = "Fisher's exact test, chi-square and G tests of a 2 x 2 table a b / c d",
      .Labels = {.Title = "Tests of Independence",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
      .ResultCodeOverride = 40,
  }, IndependenceBinding());
  add({
      .Id = CommandId::kDistributions,
      .Title = "Discrete Distributions",
      .Handler = "MenuDDistributions_Click",
      .MenuText = "&Discrete Distributions...",
      .Checks = {},
      .ChecksText = "none",
      .Dialog = "Form20",
      .Menu = "Tools",
      .CliName = "distributions",
      .Labels = {.Title = "Discrete Distributions",
                 .SecondGridCaption = "Output: No. of Mutations and Sites (Intraspecific Data)"},
      .ResultCodeOverride = 41,
  });
  return entries;
}

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

}  // namespace

const std::vector<CommandEntry>& Registry() {
  static const std::vector<CommandEntry> registry = BuildRegistry();
  return registry;
}

const CommandEntry* FindEntry(int number) {
  for (const auto& entry : Registry())
    if (entry.Facts.Number() == number) return &entry;
  for (const auto& entry : Registry())
    if (TitleCode(entry.Facts.Id) == TitleCode(number)) return &entry;
  return nullptr;
}

const CommandEntry* FindEntry(CommandId id) {
  return FindEntry(Number(id));
}

const CommandEntry* FindEntry(const std::string& key) {
  const std::string wanted = Lower(key);
  for (const auto& entry : Registry())
    if (entry.Facts.CliName == wanted || Lower(entry.Facts.Title) == wanted ||
        std::to_string(entry.Facts.Number()) == wanted)
      return &entry;
  if (!wanted.empty() && wanted.size() < 6 &&
      std::all_of(wanted.begin(), wanted.end(), [](unsigned char c) { return std::isdigit(c); }))
    return FindEntry(std::stoi(wanted));
  return nullptr;
}

std::string CommandTitle(int number) {
  const CommandEntry* entry = FindEntry(TitleCode(number));
  return entry != nullptr ? entry->Facts.Title : std::string();
}

}  // namespace ovelt
