#include "shell/viewer_texts.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

TEST(ViewerTexts, ClassRowWordsFollowTheSiteClass) {
  EXPECT_EQ(ViewerSiteClassText(0), "Invariable (monomorphic)");
  EXPECT_EQ(ViewerSiteClassText(1),
            "Variable (polymorphic), 2 variants NonParsimony Informative Site");
  EXPECT_EQ(ViewerSiteClassText(2), "Variable (polymorphic), 2 variants Parsimony Informative Site");
  EXPECT_EQ(ViewerSiteClassText(3), "Polymorphic (3 variants)");
  EXPECT_EQ(ViewerSiteClassText(4), "Polymorphic (4 variants)");
  EXPECT_EQ(ViewerSiteClassText(5), "Alignment gaps/missing data");
  EXPECT_EQ(ViewerSiteClassText(6), "");
}

TEST(ViewerTexts, CodonRowSaysNotAssignedWithoutACodingRegion) {
  EXPECT_EQ(ViewerCodonPositionText(0, 1), "Not assigned");
  EXPECT_EQ(ViewerCodonPositionText(-1, 0), "Not assigned");
  EXPECT_EQ(ViewerCodonPositionText(1, 0), "non coding");
  EXPECT_EQ(ViewerCodonPositionText(1, 1), "First position");
  EXPECT_EQ(ViewerCodonPositionText(1, 2), "Second position");
  EXPECT_EQ(ViewerCodonPositionText(1, 3), "Third position");
}

TEST(ViewerTexts, ElevenHighlightChoicesInComboOrder) {
  EXPECT_EQ(ViewerHighlightText(ViewerHighlight::kInvariable), "Invariable (monomorphic) sites");
  EXPECT_EQ(ViewerHighlightText(ViewerHighlight::kVariableThreeFour),
            "Variable (polymorphic) sites 3,4 nuc");
  EXPECT_EQ(ViewerHighlightText(ViewerHighlight::kComplexCodons), "Complex (ambiguous) codons");
  EXPECT_EQ(ViewerHighlightText(static_cast<ViewerHighlight>(kViewerHighlightCount)), "");
  EXPECT_EQ(std::string(kLowerCaseOptionText), " Show polymorphic sites in LowerCase");
}

}  // namespace
}  // namespace ovelt
