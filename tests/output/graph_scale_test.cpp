#include "output/graph_scale.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

// The step is the decimal its text reads as, so exact comparisons with decimal literals hold.

TEST(GraphScaleTest, FifthOfRangeExactlyTheSmallestStepKeepsIt) {
  // 0.00005 / 5 = 0.00001, the bottom of the series.
  EXPECT_EQ(RawYStep(0.00005), 0.00001f);
  EXPECT_EQ(YStepForRange(0.00005), 0.00001);
  // Below it, the step stays at the bottom.
  EXPECT_EQ(YStep(0.000003f), 0.00001);
  EXPECT_EQ(YStepForRange(0.0), 0.00001);
}

TEST(GraphScaleTest, LeadingDigitAboveTwoBecomesFive) {
  EXPECT_EQ(YStep(0.03f), 0.05);
  EXPECT_EQ(YStep(7000.0f), 5000.0);
  // Nine is above two as well: the step falls to five, below the raw step.
  EXPECT_EQ(YStep(0.9f), 0.5);
}

TEST(GraphScaleTest, LeadingOneAndTwoStay) {
  EXPECT_EQ(YStep(0.02f), 0.02);
  EXPECT_EQ(YStep(0.0123f), 0.01);
  EXPECT_EQ(YStep(0.00029f), 0.0002);
  EXPECT_EQ(YStep(1.5f), 1.0);
  EXPECT_EQ(YStep(25.0f), 20.0);
}

TEST(GraphScaleTest, RangeGivesItsFifthAsRawStep) {
  // Range 0.1: raw 0.02 -> 0.02. Range 0.15: raw 0.03 -> 0.05. Range 35000: raw 7000 -> 5000.
  EXPECT_EQ(YStepForRange(0.1), 0.02);
  EXPECT_EQ(YStepForRange(0.15), 0.05);
  EXPECT_EQ(YStepForRange(35000.0), 5000.0);
}

TEST(GraphScaleTest, DecadeStopsAtTenThousand) {
  // 12000 / 10000 = 1.2 -> 10000; 60000 / 10000 = 6 -> 5 x 10000.
  EXPECT_EQ(YStep(12000.0f), 10000.0);
  EXPECT_EQ(YStep(60000.0f), 50000.0);
}

TEST(GraphScaleTest, LabelSpacingByTickCount) {
  EXPECT_EQ(LabelEvery(5), 1);
  EXPECT_EQ(LabelEvery(6), 2);
  EXPECT_EQ(LabelEvery(10), 2);
  EXPECT_EQ(LabelEvery(11), 3);
}

TEST(GraphScaleTest, NinetyNineSitesRoundToTensAndHundredToHundreds) {
  // 1234..1332 holds 99 sites: the last digit goes; 1234..1333 holds 100: the last two go.
  EXPECT_EQ(FirstXTick(1234, 1332), 1230);
  EXPECT_EQ(FirstXTick(1234, 1333), 1200);
}

TEST(GraphScaleTest, TwentyFourNinetyNineAndTwentyFiveHundredSites) {
  EXPECT_EQ(FirstXTick(1234, 1234 + 2498), 1200);
  EXPECT_EQ(FirstXTick(1234, 1234 + 2499), 1000);
}

TEST(GraphScaleTest, ShortTextGivesZero) {
  // "45" has fewer than the three digits a wide axis wipes out.
  EXPECT_EQ(FirstXTick(45, 45 + 2499), 0);
  EXPECT_EQ(FirstXTick(7, 106), 0);
  EXPECT_EQ(FirstXTick(7, 50), 0);
  EXPECT_EQ(FirstXTick(999, 3498), 0);
  EXPECT_EQ(FirstXTick(12345, 20000), 12000);
}

TEST(GraphScaleTest, XTickStepFollowsTheSeries) {
  // 0..6: raw 1.2 -> 1. 1..1001: raw 200 -> 200. 50..775: raw 145 -> 100.
  EXPECT_EQ(XTickStep(0, 6), 1);
  EXPECT_EQ(XTickStep(1, 1001), 200);
  EXPECT_EQ(XTickStep(50, 775), 100);
  EXPECT_EQ(XTickStep(3, 4), 1);
}

}  // namespace
}  // namespace ovelt
