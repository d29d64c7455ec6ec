#pragma once
// The words of the data viewer: what the class row says of a site, what the codon row says of
// its codon position, the choices of the highlight combo and the two display flags.

#include <array>
#include <cstdint>
#include <string>

namespace ovelt {

inline constexpr const char* kViewerTitlePrefix = "Display Data of: ";
inline constexpr const char* kViewerOptionsTitle = "Display Data Options";
inline constexpr const char* kLowerCaseOptionText = " Show polymorphic sites in LowerCase";
inline constexpr const char* kDotOptionText =
    "Use the dot symbol to show a site with the same nucleotide variant to that of the first "
    "sequence";

// What is highlighted, in the order of the combo.
enum class ViewerHighlight : int {
  kInvariable = 0,
  kVariable,
  kVariableTwo,
  kVariableThreeFour,
  kParsimonyInformative,
  kGapsMissing,
  kCodons,
  kSynonymous,
  kNonsynonymous,
  kCodonsWithGaps,
  kComplexCodons,
};
inline constexpr int kViewerHighlightCount = 11;

// The combo text of a choice.
[[nodiscard]] const std::string& ViewerHighlightText(ViewerHighlight choice);

// The class row's words for a site class 0..5. A two-variant site reads "Variable
// (polymorphic), 2 variants" followed by whether it is parsimony informative (class 2) or not
// (class 1). "" for a code outside 0..5.
[[nodiscard]] std::string ViewerSiteClassText(int16_t site_class);

// The codon row's words: "Not assigned" while no coding region is assigned, else by the codon
// position 0..3 ("non coding", "First position", ...). "" for a position outside 0..3.
[[nodiscard]] std::string ViewerCodonPositionText(int16_t coding_assigned, int16_t position);

}  // namespace ovelt
