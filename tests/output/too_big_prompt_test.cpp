#include <gtest/gtest.h>

#include "output/too_big_prompt.h"

namespace ovelt {
namespace {

TEST(TooBigLimit, ExactlyTheLimitIsShown) {
  EXPECT_EQ(kMaxPairwiseGridRows, 16290);
  EXPECT_FALSE(IsGridTooBig(16290));
  EXPECT_TRUE(IsGridTooBig(16291));
  EXPECT_FALSE(IsGridTooBig(0));
}

TEST(TooBigLimit, KilobytesAreRoundedDown) {
  // 65 bytes a row: 16291 rows are 1058915 bytes, 1058 whole kilobytes; 15 rows are 975 bytes.
  EXPECT_EQ(StreamedKilobytes(16291), 1058);
  EXPECT_EQ(StreamedKilobytes(15), 0);
  EXPECT_EQ(StreamedKilobytes(16), 1);
}

TEST(TooBigQuestion, WithoutSessionFile) {
  EXPECT_EQ(TooBigQuestion(20000, ""),
            "Output too big to be displayed on the screen. There are 20000 rows !!!\n"
            "Do you want to save the output on a file ?\n"
            "You will need about 1300 kb. of disk space");
}

TEST(TooBigQuestion, WithSessionFile) {
  EXPECT_EQ(TooBigQuestion(16291, "/tmp/all.out"),
            "Output too big to be displayed on the screen. There are 16291 rows !!!\n"
            "The current output will not be saved on file: /tmp/all.out\n"
            "Do you want to save the output on another output file ?\n"
            "You will need about 1058 kb. of disk space");
}

TEST(TooBigPairsQuestion, BothVariants) {
  EXPECT_EQ(TooBigPairsQuestion(30000, ""),
            "The number of pairwise comparisons is too big to be displayed on the screen. There "
            "are 30000 rows !!!\n"
            "Do you want to save this information on a file ?  \n"
            "You will need about 1950 kb. of disk space");
  EXPECT_EQ(TooBigPairsQuestion(30000, "s.out"),
            "The number of pairwise comparisons is too big to be displayed on the screen. There "
            "are 30000 rows !!!\n"
            "The current output will not be saved on file: s.out\n"
            "Do you want to save this information on another output file ?\n"
            "You will need about 1950 kb. of disk space");
}

TEST(PrintFinalOnlyQuestion, Words) {
  EXPECT_EQ(PrintFinalOnlyQuestion(250),
            "Output too big. There are 250 rows of data !!!\n"
            "Do you want to print only the final results?");
}

}  // namespace
}  // namespace ovelt
