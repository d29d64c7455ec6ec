#include "tools/simulation_captions.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

TEST(CaptionsForStatistic, HeadingAndLabelsFollowTheSymbol) {
  EXPECT_EQ(CaptionsForStatistic(4, "Haplotype Diversity, Hd", "Hd"),
            (SimulationCaptions{"Results of Haplotype Diversity, Hd", "Hd(obs), value:",
                                "P [Hd <= Hd(obs)]:", "Average value of Hd:"}));
  EXPECT_EQ(CaptionsForStatistic(3, "Theta-W (from S)", "Theta").Heading,
            "Results of Theta-W (from S)");
  EXPECT_EQ(CaptionsForStatistic(12, "Fu and Li's D*", "D*").Probability, "P [D* <= D*(obs)]:");
}

TEST(CaptionsForStatistic, HaplotypesAndR2HaveHeadingsOfTheirOwn) {
  EXPECT_EQ(CaptionsForStatistic(10, "Number of Haplotypes, h", "h").Heading,
            "Results of the number of Haplotypes, h");
  EXPECT_EQ(CaptionsForStatistic(1016, "Corvel and Valdor's R2", "R2").Heading, "Results of R2");
  EXPECT_EQ(CaptionsForStatistic(1016, "Corvel and Valdor's R2", "R2").Average,
            "Average value of R2:");
}

TEST(ConfidenceFrameCaption, ThePercentThenTheWords) {
  EXPECT_EQ(ConfidenceFrameCaption(95.0f), "95 % Confidence Interval");
  EXPECT_EQ(ConfidenceFrameCaption(97.5f), "97.5 % Confidence Interval");
}

TEST(SegSitesTextFromTheta, IntegerPartOrTwenty) {
  EXPECT_EQ(SegSitesTextFromTheta("12"), "12");
  EXPECT_EQ(SegSitesTextFromTheta("7,9"), "7");
  EXPECT_EQ(SegSitesTextFromTheta("0.5"), "20");
  EXPECT_EQ(SegSitesTextFromTheta(""), "20");
  EXPECT_EQ(SegSitesTextFromTheta("abc"), "20");
}

}  // namespace
}  // namespace ovelt
