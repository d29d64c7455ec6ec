#include "analyses/polymorphism/neutrality/neutrality_significance.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ovelt {
namespace {

TEST(SignificanceTajima, LevelsOfTheRowOfTen) {
  // n = 10: 10 % -1.559 / 1.719, 5 % -1.733 / 1.975, 1 % -1.967 / 2.362, 0.1 % -2.105 / 2.64.
  EXPECT_EQ(SignificanceTajima(0.0, 10), "");
  EXPECT_EQ(SignificanceTajima(-1.5, 10), "");
  EXPECT_EQ(SignificanceTajima(-1.6, 10), "#");
  EXPECT_EQ(SignificanceTajima(1.8, 10), "#");
  EXPECT_EQ(SignificanceTajima(-1.8, 10), "*");
  EXPECT_EQ(SignificanceTajima(2.0, 10), "*");
  EXPECT_EQ(SignificanceTajima(-2.0, 10), "**");
  EXPECT_EQ(SignificanceTajima(2.5, 10), "**");
  EXPECT_EQ(SignificanceTajima(-2.2, 10), "***");
  EXPECT_EQ(SignificanceTajima(2.7, 10), "***");
}

TEST(SignificanceTajima, ValueOnABoundCountsAsBeyondIt) {
  // n = 50: 5 % upper bound 2.044, 10 % lower bound -1.57.
  EXPECT_EQ(SignificanceTajima(2.044, 50), "*");
  EXPECT_EQ(SignificanceTajima(2.0439, 50), "#");
  EXPECT_EQ(SignificanceTajima(-1.57, 50), "#");
  EXPECT_EQ(SignificanceTajima(-1.5699, 50), "");
  // The bound as the table holds it, a 32-bit float widened to a double.
  EXPECT_EQ(SignificanceTajima(static_cast<double>(1.723f), 50), "#");
  EXPECT_EQ(SignificanceTajima(static_cast<double>(-2.505f), 50), "***");
}

TEST(SignificanceTajima, ThreeSequencesAreNotDetermined) {
  EXPECT_EQ(SignificanceTajima(-5.0, 3), "n.d.");
  EXPECT_EQ(SignificanceTajima(0.0, 2), "n.d.");
}

TEST(SignificanceTajima, FiftyOneTakesTheRowOfFifty) {
  // Rows 50 and 55 give -1.800 and -1.797 at 5 %: -1.799 is "*" only under the row of 50.
  EXPECT_EQ(SignificanceTajima(-1.799, 51), "#");
  EXPECT_EQ(SignificanceTajima(-1.8, 51), "*");
  EXPECT_EQ(SignificanceTajima(-1.798, 54), "*");  // 54 takes the row of 55
}

TEST(SignificanceTajima, ElevenHundredUsesTheRowOfOneThousand) {
  // 1 % lower bounds: -2.062 at n = 1000, -2.072 at n = 800.
  EXPECT_EQ(SignificanceTajima(-2.065, 1100), "**");
  EXPECT_EQ(SignificanceTajima(-2.065, 1000), "**");
  EXPECT_EQ(SignificanceTajima(-2.065, 800), "*");
}

TEST(SignificanceTajima, ThirteenHundredIsNotDetermined) {
  EXPECT_EQ(SignificanceTajima(-3.0, 1300), "n.d.");
  EXPECT_EQ(SignificanceTajima(-3.0, 1200), "***");
}

TEST(SignificanceTajima, NotANumberIsNotDetermined) {
  EXPECT_EQ(SignificanceTajima(std::nan(""), 10), "n.d.");
}

TEST(SignificanceFuLi, MarksArePaddedToFourCharacters) {
  // D* at n = 100: 10 % -1.9 / 1.37, 5 % -2.33 / 1.53, 2 % -3.27 / 1.71.
  EXPECT_EQ(SignificanceFuLi(0.0, FuLiTable::kDStar, 100), "    ");
  EXPECT_EQ(SignificanceFuLi(-1.9, FuLiTable::kDStar, 100), "#   ");
  EXPECT_EQ(SignificanceFuLi(1.6, FuLiTable::kDStar, 100), "*   ");
  EXPECT_EQ(SignificanceFuLi(-3.27, FuLiTable::kDStar, 100), "**  ");
  EXPECT_EQ(SignificanceFuLi(1.71, FuLiTable::kDStar, 100), "**  ");
  EXPECT_EQ(SignificanceFuLi(9.0, FuLiTable::kDStar, 100), "**  ");
}

TEST(SignificanceFuLi, EachTableHasItsOwnBounds) {
  // n = 100, value 1.45: beyond the 10 % upper bound of D (1.41) and F* (1.47 is not reached),
  EXPECT_EQ(SignificanceFuLi(1.45, FuLiTable::kD, 100), "#   ");
  EXPECT_EQ(SignificanceFuLi(1.45, FuLiTable::kFStar, 100), "    ");
  // F at n = 3: 5 % bounds -1.87 / 1.83; D at n = 3: -1.88 / 1.86.
  EXPECT_EQ(SignificanceFuLi(1.84, FuLiTable::kF, 3), "*   ");
  EXPECT_EQ(SignificanceFuLi(1.84, FuLiTable::kD, 3), "#   ");
}

TEST(SignificanceFuLi, SmallestSamples) {
  EXPECT_EQ(SignificanceFuLi(0.5, FuLiTable::kD, 2), "n.d.");
  EXPECT_EQ(SignificanceFuLi(0.5, FuLiTable::kF, 2), "n.d.");
  EXPECT_EQ(SignificanceFuLi(0.5, FuLiTable::kDStar, 3), "n.d.");
  EXPECT_EQ(SignificanceFuLi(0.5, FuLiTable::kFStar, 3), "n.d.");
  EXPECT_EQ(SignificanceFuLi(2.2, FuLiTable::kDStar, 4), "**  ");
}

TEST(SignificanceFuLi, FiveHundredOneIsNotDetermined) {
  EXPECT_EQ(SignificanceFuLi(-4.0, FuLiTable::kDStar, 501), "n.d.");
  // 500 uses the row of 100: -3.27 at 2 %.
  EXPECT_EQ(SignificanceFuLi(-3.27, FuLiTable::kDStar, 500), "**  ");
  EXPECT_EQ(SignificanceFuLi(-3.26, FuLiTable::kDStar, 500), "*   ");
}

TEST(SignificanceFuLi, MarkTextDropsThePadding) {
  EXPECT_EQ(MarkText("**  "), "**");
  EXPECT_EQ(MarkText("#   "), "#");
  EXPECT_EQ(MarkText("    "), "");
  EXPECT_EQ(MarkText("n.d."), "n.d.");
  EXPECT_EQ(MarkText("***"), "***");
}

}  // namespace
}  // namespace ovelt
