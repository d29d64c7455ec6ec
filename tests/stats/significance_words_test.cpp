#include "stats/significance_words.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

TEST(SignificanceWords, TajimaFamily) {
  const auto f = MarkFamily::kTajima;
  EXPECT_EQ(SignificanceWords("", f), "Not significant, P > 0.10");
  EXPECT_EQ(SignificanceWords("    ", f), "Not significant, P > 0.10");
  EXPECT_EQ(SignificanceWords("#", f), "Not significant, 0.10 > P > 0.05");
  EXPECT_EQ(SignificanceWords("*", f), "*, P < 0.05");
  EXPECT_EQ(SignificanceWords("**", f), "**, P < 0.01");
  EXPECT_EQ(SignificanceWords("***", f), "***, P < 0.001");
  EXPECT_EQ(SignificanceWords("n.d.", f), "Not determined");
}

TEST(SignificanceWords, FuAndLiFamily) {
  const auto f = MarkFamily::kFuLi;
  EXPECT_EQ(SignificanceWords("", f), "Not significant, P > 0.10");
  EXPECT_EQ(SignificanceWords("    ", f), "Not significant, P > 0.10");
  EXPECT_EQ(SignificanceWords("#   ", f), "Not significant, 0.10 > P > 0.05");
  EXPECT_EQ(SignificanceWords("*   ", f), "*, P < 0.05");
  EXPECT_EQ(SignificanceWords("**  ", f), "**, P < 0.02");
  EXPECT_EQ(SignificanceWords("n.d.", f), "Not determined");
  // Fu and Li's tables stop at 2%.
  EXPECT_EQ(SignificanceWords("***", f), "");
}

TEST(SignificanceWords, UnknownMarkHasNoWords) {
  EXPECT_EQ(SignificanceWords("?", MarkFamily::kTajima), "");
  EXPECT_EQ(SignificanceWords("****", MarkFamily::kFuLi), "");
}

TEST(SignificanceLegend, BothFamilies) {
  EXPECT_EQ(SignificanceLegend(MarkFamily::kTajima),
            " n.d., not determined;  # P<0.10;  * P<0.05;  ** P<0.01;  *** P<0.001");
  EXPECT_EQ(SignificanceLegend(MarkFamily::kFuLi),
            " n.d., not determined;  #, P<0.10;  *, P<0.05;  **, P<0.02");
}

}  // namespace
}  // namespace ovelt
