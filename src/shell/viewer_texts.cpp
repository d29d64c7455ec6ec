#include "shell/viewer_texts.h"

namespace ovelt {

namespace {

const std::array<std::string, kViewerHighlightCount> kHighlightTexts = {
    "Invariable (monomorphic) sites",
    "Variable (polymorphic) sites",
    "Variable (polymorphic) sites 2 nuc",
    "Variable (polymorphic) sites 3,4 nuc",
    "Parsimony Informative sites",
    "Sites with gaps/Missing data",
    "Codons",
    "Synonymous changes",
    "Nonsynonymous changes",
    "Codons with gaps/Missing data",
    "Complex (ambiguous) codons",
};

const std::string kTwoVariants = "Variable (polymorphic), 2 variants";

}  // namespace

const std::string& ViewerHighlightText(ViewerHighlight choice) {
  static const std::string none;
  const int index = static_cast<int>(choice);
  return index >= 0 && index < kViewerHighlightCount
             ? kHighlightTexts[static_cast<size_t>(index)]
             : none;
}

std::string ViewerSiteClassText(int16_t site_class) {
  switch (site_class) {
    case 0: return "Invariable (monomorphic)";
    case 1: return kTwoVariants + " NonParsimony Informative Site";
    case 2: return kTwoVariants + " Parsimony Informative Site";
    case 3: return "Polymorphic (3 variants)";
    case 4: return "Polymorphic (4 variants)";
    case 5: return "Alignment gaps/missing data";
    default: return "";
  }
}

std::string ViewerCodonPositionText(int16_t coding_assigned, int16_t position) {
  if (coding_assigned < 1) return "Not assigned";
  switch (position) {
    case 0: return "non coding";
    case 1: return "First position";
    case 2: return "Second position";
    case 3: return "Third position";
    default: return "";
  }
}

}  // namespace ovelt
