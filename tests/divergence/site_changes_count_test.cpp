// Mutations counted from the codes, noncoding mutations from the site classes, and the gate of
// theta.
#include <gtest/gtest.h>

#include <vector>

#include "analyses/divergence/common/site_changes_count.h"

namespace ovelt {
namespace {

TEST(CountSiteChanges, DigitsOfThePositiveCodes) {
  //                                  1  2  3   4   5    6   7   8  9  10
  const std::vector<int16_t> codes{0, 9, 2, 12, -3, 111, 22, -5, 1, 0, 222};
  // Synonymous digits: 2 (site 2), 12 (3), 22 (6): 1 + 1 + 2 = 4; nonsynonymous: 12, 111, 1:
  // 1 + 3 + 1 = 5. Site 4 (-3) is a varying complex position.
  SiteChangeCount c = CountSiteChanges(codes, 1, 9);
  EXPECT_EQ(c.Synonymous, 4);
  EXPECT_EQ(c.Nonsynonymous, 5);
  EXPECT_TRUE(c.Complex);
  // Sites 5..10: 111, 22, -5 (a gap codon raises nothing), 1, 0, 222.
  c = CountSiteChanges(codes, 5, 10);
  EXPECT_EQ(c.Synonymous, 5);
  EXPECT_EQ(c.Nonsynonymous, 4);
  EXPECT_FALSE(c.Complex);
  // -9 and -2 at the edges of the complex range.
  EXPECT_FALSE(CountSiteChanges({0, -9}, 1, 1).Complex);
  EXPECT_TRUE(CountSiteChanges({0, -2}, 1, 1).Complex);
  EXPECT_TRUE(CountSiteChanges({0, -4}, 1, 1).Complex);
}

TEST(CountSiteChanges, NoncodingMutationsFromTheClasses) {
  const std::vector<int16_t> classes{0, 1, 2, 3, 4, 5, 0, 1, 3};
  const std::vector<int16_t> positions{0, 0, 0, 0, 0, 0, 0, 1, 2};
  // Sites 1..6 noncoding: 1 + 1 + 2 + 3 + 0 (a gap) + 0; sites 7 and 8 code.
  EXPECT_EQ(CountNoncodingMutations(classes, positions, 1, 8), 7);
  EXPECT_EQ(CountNoncodingMutations(classes, positions, 3, 4), 5);
}

TEST(ThetaGate, MixedAndComplexCodesCloseIt) {
  EXPECT_TRUE(ThetaGatePasses({0, 9, 1, 2, 11, 22, 111, 222, -5, -9}, 1, 9));
  for (const int16_t closing : {12, 112, 122, -2, -3, -4}) {
    EXPECT_FALSE(ThetaGatePasses({0, 9, closing, 2}, 1, 3)) << closing;
    EXPECT_FALSE(ThetaGatePasses({0, 9, closing, 2}, 2, 2)) << closing;
    EXPECT_TRUE(ThetaGatePasses({0, 9, closing, 2}, 1, 1)) << "outside the region";
  }
  // A synonymous code at a site with nonsynonymous changes in a caller's per-site table.
  const std::vector<float> nonsynonymous{0.0F, 0.0F, 0.5F, 0.0F};
  EXPECT_FALSE(ThetaGatePasses({0, 9, 22, 2}, 1, 3, &nonsynonymous));
  EXPECT_TRUE(ThetaGatePasses({0, 9, 11, 2}, 1, 3, &nonsynonymous));
}

}  // namespace
}  // namespace ovelt
