#include <gtest/gtest.h>

#include "core/command_options.h"
#include "core/minimum_sequences.h"
#include "core/region_check.h"

namespace ovelt {
namespace {

TEST(MinimumSequences, Messages) {
  EXPECT_EQ(TooFewSequencesMessage(2),
            "At least 2 sequences are needed for the present analysis\n\nInvalid Selection !");
  EXPECT_EQ(TooFewSequencesMessage(4),
            "At least 4 sequences are needed for the present analysis\n\nInvalid Selection !");
  EXPECT_EQ(TooFewSequencesMessage(1),
            "At least 1 sequence is needed for the present analysis\n\nInvalid Selection !");
}

TEST(MinimumSequences, TotalSeqsAbove32767CannotBeHeld) {
  EXPECT_TRUE(SequenceCountFits(32767));
  EXPECT_FALSE(SequenceCountFits(32768));
  EXPECT_FALSE(SequenceCountFits(-1));
  // The count is a 16-bit field: the largest value it holds is the limit.
  EXPECT_EQ(kMaxTotalSeqs, std::numeric_limits<int16_t>::max());
}

TEST(RegionCheck, Bounds) {
  EXPECT_TRUE(RegionIsValid(1, 100, 100));
  EXPECT_TRUE(RegionIsValid(5, 5, 100));
  EXPECT_FALSE(RegionIsValid(6, 5, 100));    // to below from
  EXPECT_FALSE(RegionIsValid(0, 5, 100));    // from below 1
  EXPECT_FALSE(RegionIsValid(1, 101, 100));  // to above the sites
  EXPECT_FALSE(RegionIsValid(101, 101, 100));
  EXPECT_FALSE(RegionIsValid(-3, -1, 100));  // to below 1
  EXPECT_FALSE(RegionIsValid(1, 1, 0));      // no site at all
  EXPECT_EQ(kInvalidSelection, " Invalid Selection ");
  EXPECT_STREQ(InvalidRegion().what(), " Invalid Selection ");
}

TEST(RegionCheck, AFailedRegionSaysWhy) {
  EXPECT_EQ(RegionFaultReason(5, 1000, 900),
            "The region 5-1000 is not within the sites, which run from 1 to 900.");
  EXPECT_EQ(RegionFaultReason(0, 10, 900),
            "The region 0-10 is not within the sites, which run from 1 to 900.");
  EXPECT_EQ(RegionFaultReason(30, 20, 900),
            "The region 30-20 ends before it begins (the sites run from 1 to 900).");
}

TEST(MinimumSequences, ASetTooSmallIsNamed) {
  ActiveData ad;
  ad.SequenceSets.resize(2);
  ad.SequenceSets[1].nombrePop("Pop1");
  EXPECT_EQ(SetTooSmallReason(ad, 1, 3), "The set Pop1 holds 3 included sequences.");
  EXPECT_EQ(SetTooSmallReason(ad, 0, 1), "There is 1 included sequence.");
  EXPECT_EQ(SetTooSmallReason(ad, 0, 2), "There are 2 included sequences.");
}

struct RangedOptions {
  int32_t WindowLength = 0;
  double Theta = 2.5;
  template <class V>
  void Visit(V& v) {
    v.Integer(WindowLength, {"window", "Window Length:", "help"}, 1, 900);
    v.Real(Theta, {"theta", "Theta:", "help"}, 0.0, 1000.0);
  }
};

TEST(OptionRanges, AFieldOutOfItsLimitsSaysThem) {
  RangedOptions options;
  auto refusal = OptionRangeRefusal(options);
  ASSERT_TRUE(refusal.has_value());
  EXPECT_EQ(refusal->Text, " Invalid Selection ");
  EXPECT_EQ(refusal->Reason, "Window Length must be from 1 to 900; it is 0.");
  options.WindowLength = 10;
  options.Theta = 1500.5;
  refusal = OptionRangeRefusal(options);
  ASSERT_TRUE(refusal.has_value());
  EXPECT_EQ(refusal->Reason, "Theta must be from 0 to 1000; it is 1500.5.");
  options.Theta = 3;
  EXPECT_FALSE(OptionRangeRefusal(options).has_value());
  EXPECT_FALSE(CheckOptionRanges(options).has_value());
}

}  // namespace
}  // namespace ovelt
