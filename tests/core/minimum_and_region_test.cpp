#include <gtest/gtest.h>

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

}  // namespace
}  // namespace ovelt
