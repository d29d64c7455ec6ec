#include "analyses/polymorphism/windows/sliding_window.h"

#include <gtest/gtest.h>

#include "core/active_data.h"

namespace ovelt {
namespace {

// Classes of sites 1..n (index 0 unused) with class 5 at the listed sites, 0 elsewhere.
SiteClasses WithGaps(int32_t n, const std::vector<int32_t>& gaps) {
  SiteClasses classes(static_cast<size_t>(n) + 1, kMonomorphic);
  for (const int32_t g : gaps) classes[static_cast<size_t>(g)] = kGapOrMissing;
  return classes;
}

TEST(WindowGeometry, WithoutGapsWindowsAreLengthLong) {
  const SiteClasses c = WithGaps(20, {});
  int32_t net = 0;
  EXPECT_EQ(WindowEnd(c, 1, 5, 20, false, net), 5);
  EXPECT_EQ(net, 5);
  EXPECT_EQ(NextWindowStart(c, 1, 2, 20, false), 3);
  // Midpoint: the site where the count of net sites reaches 5 / 2 = 2.5, i.e. the third.
  EXPECT_EQ(WindowMidpoint(c, 1, 5, 5), 3);
  EXPECT_EQ(WindowMidpoint(c, 1, 4, 4), 2);
}

TEST(WindowGeometry, GapsDoNotCountWhenGapsInWindowIsOff) {
  // Gaps at 3 and 4: a window of 5 net sites from 1 must reach site 7 (1, 2, 5, 6, 7).
  const SiteClasses c = WithGaps(20, {3, 4});
  int32_t net = 0;
  EXPECT_EQ(WindowEnd(c, 1, 5, 20, false, net), 7);
  EXPECT_EQ(net, 5);
  // With gaps counted it stops at 5 and holds 3 net sites.
  EXPECT_EQ(WindowEnd(c, 1, 5, 20, true, net), 5);
  EXPECT_EQ(net, 3);
  // Midpoint of 1..7: the third net site (1, 2, 5) is site 5.
  EXPECT_EQ(WindowMidpoint(c, 1, 7, 5), 5);
  // Stepping 2 net sites from 2 skips 2 and 5 (3 and 4 are gaps): the next start is 6.
  EXPECT_EQ(NextWindowStart(c, 2, 2, 20, false), 6);
  EXPECT_EQ(NextWindowStart(c, 2, 2, 20, true), 4);
}

TEST(WindowGeometry, AWindowInARunOfGapsGrowsUntilTheEndOfTheRegion) {
  // Sites 6..10 are gaps; from 5 a window of 3 net sites finds only site 5 before `to`.
  const SiteClasses c = WithGaps(10, {6, 7, 8, 9, 10});
  int32_t net = 0;
  EXPECT_EQ(WindowEnd(c, 5, 3, 10, false, net), 10);
  EXPECT_EQ(net, 1);
  // A run of gaps inside the region: the window grows past it to hold its full net length.
  const SiteClasses inside = WithGaps(30, {4, 5, 6, 7, 8, 9});
  EXPECT_EQ(WindowEnd(inside, 1, 5, 30, false, net), 11);
  EXPECT_EQ(net, 5);
}

TEST(WindowGeometry, ANextStartNeverPassesTheRegionEnd) {
  const SiteClasses c = WithGaps(10, {9});
  EXPECT_EQ(NextWindowStart(c, 8, 5, 10, false), 10);
  EXPECT_EQ(NextWindowStart(c, 7, 2, 10, false), 10);  // 8 and (9 a gap) 10
}

TEST(WindowGeometry, AWindowAsLongAsTheRegionGivesOneRow) {
  const SiteClasses c = WithGaps(50, {10});
  const auto windows = SlideWindows(c, 11, 40, {30, 5, false});
  ASSERT_EQ(windows.size(), 1u);
  EXPECT_EQ(windows[0].Start, 11);
  EXPECT_EQ(windows[0].End, 40);
  EXPECT_EQ(windows[0].NetSites, 30);
}

TEST(WindowGeometry, WindowsCoverTheRegionAndTheLastOneEndsAtItsEnd) {
  const SiteClasses c = WithGaps(100, {});
  const auto windows = SlideWindows(c, 1, 100, {30, 20, false});
  // Starts 1, 21, 41, 61, 81: the window from 81 is cut at 100.
  ASSERT_EQ(windows.size(), 5u);
  for (size_t i = 0; i < windows.size(); ++i) EXPECT_EQ(windows[i].Start, 1 + 20 * int(i));
  EXPECT_EQ(windows[3].End, 90);
  EXPECT_EQ(windows[4].End, 100);
  EXPECT_EQ(windows[4].NetSites, 20);
  EXPECT_EQ(WindowCapacity(1, 100, 20), 5);
}

TEST(WindowGeometry, WalkingOverGapsLeavesFewerRowsThanTheTableHolds) {
  // 40 sites, gaps at 11..30: R = Int(39 / 5) + 1 = 8 rows, but windows of 10 net sites
  // stepping 5 net sites need only 1-10, 6-35, 31-40 (start 6 + 5 net sites is 31).
  const SiteClasses c = WithGaps(40, [] {
    std::vector<int32_t> g;
    for (int32_t s = 11; s <= 30; ++s) g.push_back(s);
    return g;
  }());
  const auto windows = SlideWindows(c, 1, 40, {10, 5, false});
  EXPECT_EQ(WindowCapacity(1, 40, 5), 8);
  ASSERT_EQ(windows.size(), 3u);
  EXPECT_EQ(windows[0].End, 10);
  EXPECT_EQ(windows[1].Start, 6);
  EXPECT_EQ(windows[1].End, 35);
  EXPECT_EQ(windows[1].NetSites, 10);
  EXPECT_EQ(windows[2].Start, 31);
  EXPECT_EQ(windows[2].End, 40);
}

TEST(WindowGeometry, AWindowWithoutNetSitesHasItsStartAsMidpoint) {
  const SiteClasses c = WithGaps(10, {1, 2, 3, 4, 5});
  int32_t net = -1;
  EXPECT_EQ(WindowEnd(c, 1, 5, 10, true, net), 5);
  EXPECT_EQ(net, 0);
  EXPECT_EQ(WindowMidpoint(c, 1, 5, 0), 1);
}

TEST(WindowChecks, TooManyWindowsIsRefusedFrom16350On) {
  const SlidingWindowSpec step1{1, 1, false};
  EXPECT_EQ(CheckSlidingWindow(step1, 1, 16349, 16349), std::nullopt);
  const auto refused = CheckSlidingWindow(step1, 1, 16350, 16350);
  ASSERT_TRUE(refused.has_value());
  EXPECT_EQ(*refused,
            " There are too many windows to analyze. Try to increase the step size (Sliding "
            "window)\n\n Invalid Selection ");
  // The count of windows is a real quotient: 32699 / 2 = 16349.5 stays below the limit.
  EXPECT_EQ(CheckSlidingWindow({2, 2, false}, 1, 32699, 32699), std::nullopt);
}

TEST(WindowChecks, EachFieldBreachIsAnInvalidSelection) {
  const std::string invalid = " Invalid Selection ";
  EXPECT_EQ(CheckSlidingWindow({0, 1, false}, 1, 100, 100), invalid);
  EXPECT_EQ(CheckSlidingWindow({10, 0, false}, 1, 100, 100), invalid);
  EXPECT_EQ(CheckSlidingWindow({101, 10, false}, 1, 100, 100), invalid);  // beyond the file
  EXPECT_EQ(CheckSlidingWindow({5, 10, false}, 1, 100, 100), invalid);    // below the step
  EXPECT_EQ(CheckSlidingWindow({60, 10, false}, 1, 50, 100), invalid);    // beyond the region
  EXPECT_EQ(CheckSlidingWindow({50, 10, false}, 1, 50, 100), std::nullopt);
}

// The same checks give, for a user who does not see the dialog's fields, why.
TEST(WindowChecks, EachBreachSaysWhy) {
  auto reason = [](SlidingWindowSpec geometry, int32_t to, int32_t sites) {
    const auto refusal = SlidingWindowRefusal(geometry, 1, to, sites);
    return refusal ? refusal->Reason : std::string("passes");
  };
  EXPECT_EQ(reason({0, 1, false}, 100, 100),
            "The window length (0) and the step size (1) must be above 0.");
  EXPECT_EQ(reason({101, 10, false}, 100, 100),
            "The window length (101) is longer than the data (100 sites).");
  EXPECT_EQ(reason({5, 10, false}, 100, 100),
            "The window length (5) is shorter than the step size (10).");
  EXPECT_EQ(reason({60, 10, false}, 50, 100),
            "The window length (60) is longer than the region (50 sites).");
  EXPECT_EQ(reason({50, 10, false}, 50, 100), "passes");
  // Too many windows: the box says it, nothing is added.
  EXPECT_EQ(reason({1, 1, false}, 16350, 16350), "");
}

TEST(WindowDefaults, SmallFilesGetHalfAndAnEighth) {
  EXPECT_EQ(DefaultSlidingWindow(1000, false).WindowLength, 100);
  EXPECT_EQ(DefaultSlidingWindow(1000, false).StepSize, 25);
  EXPECT_EQ(DefaultSlidingWindow(100, false).WindowLength, 100);
  EXPECT_EQ(DefaultSlidingWindow(99, false).WindowLength, 50);  // Int(99 / 2) + 1
  EXPECT_EQ(DefaultSlidingWindow(99, false).StepSize, 13);      // Int(99 / 8) + 1
  EXPECT_TRUE(DefaultSlidingWindow(99, true).GapsInWindow);
}

TEST(WindowTexts, TheClosingBlockAndTheModeLabel) {
  EXPECT_EQ(SlidingBlock({100, 25, false}),
            " Sliding Window Option\r\n Sites with alignment gaps were not counted in the window "
            "length (and slide)\r\n   Window length: 100     Step size: 25\r\n");
  EXPECT_EQ(SlidingGapsSentence(true),
            " Sites with alignment gaps were counted in the window length (and slide)");
  EXPECT_EQ(SlidingModeLabel(true), " Including sites with gaps ");
  EXPECT_EQ(SlidingModeLabel(false), " Excluding sites with gaps ");
  EXPECT_EQ(WindowLoopFailureMessage("/data/a.fas"),
            "Input data file: /data/a.fas\nOutput too big.  Can't display it.\nTry to increase "
            "the step size (Sliding window)");
}

}  // namespace
}  // namespace ovelt
