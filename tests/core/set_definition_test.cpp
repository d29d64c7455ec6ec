#include "core/set_definition.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"
#include "core/set_name.h"

namespace ovelt {
namespace {

TEST(SetDefinition, RangesAndSingles) {
  const auto parsed = ParseSetDefinition("Pop1=1-5,8", 10);
  ASSERT_TRUE(parsed.ok()) << parsed.error;
  EXPECT_EQ(parsed.name, "Pop1");
  EXPECT_EQ(parsed.members, (std::vector<int32_t>{1, 2, 3, 4, 5, 8}));
}

TEST(SetDefinition, BlanksOrderAndRepeats) {
  const auto parsed = ParseSetDefinition(" South = 9, 2-3 ,3 ,10-10", 10);
  ASSERT_TRUE(parsed.ok()) << parsed.error;
  EXPECT_EQ(parsed.name, "South");
  EXPECT_EQ(parsed.members, (std::vector<int32_t>{9, 2, 3, 10}));
}

TEST(SetDefinition, NumbersOutsideTheFileAreRefused) {
  const auto high = ParseSetDefinition("Pop1=1-12", 10);
  EXPECT_FALSE(high.ok());
  EXPECT_EQ(high.error,
            "Sequence number 12 in the definition of sequence set Pop1 is out of range: the data "
            "file has 10 sequences");
  EXPECT_TRUE(high.members.empty());
  EXPECT_FALSE(ParseSetDefinition("Pop1=0", 10).ok());
  EXPECT_FALSE(ParseSetDefinition("Pop1=11", 10).ok());
}

TEST(SetDefinition, MalformedListsAreRefused) {
  EXPECT_EQ(ParseSetDefinition("Pop1=5-2", 10).error,
            "Invalid range \"5-2\" in the definition of sequence set Pop1");
  EXPECT_EQ(ParseSetDefinition("Pop1=1,x", 10).error,
            "Invalid sequence number \"x\" in the definition of sequence set Pop1");
  EXPECT_EQ(ParseSetDefinition("Pop1=", 10).error,
            "Missing sequence number in the definition of sequence set Pop1");
  EXPECT_EQ(ParseSetDefinition("Pop1=1,,2", 10).error,
            "Missing sequence number in the definition of sequence set Pop1");
  EXPECT_FALSE(ParseSetDefinition("Pop1=1-2-3", 10).ok());
  EXPECT_FALSE(ParseSetDefinition("Pop1=-3", 10).ok());
  EXPECT_EQ(ParseSetDefinition("Pop1 1-5", 10).error,
            "Invalid sequence set definition \"Pop1 1-5\": write NAME=LIST, for example "
            "Pop1=1-5,8");
}

TEST(SetDefinition, NamesAreCheckedLikeTheDialog) {
  EXPECT_EQ(ParseSetDefinition("BEGIN=1", 10).error, kInvalidSetName);
  EXPECT_EQ(ParseSetDefinition("2pop=1", 10).error, kInvalidSetName);
  EXPECT_EQ(ParseSetDefinition("=1", 10).error, kInvalidSetName);
  EXPECT_EQ(ParseSetDefinition("my pop=1", 10).error, kInvalidSetName);
  EXPECT_TRUE(ParseSetDefinition("my_pop=1", 10).ok());
}

TEST(SetDefinition, AddingToTheStoreRefusesDuplicates) {
  ActiveData ad = test::MakeAlignment({"A", "C", "G"});
  EXPECT_FALSE(AddSequenceSet(ad, "Pop1", {1, 3}).has_value());
  ASSERT_EQ(ad.SetCount(), 1);
  EXPECT_EQ(ad.SequenceSets[1].members(), (std::vector<double>{1.0, 3.0}));
  EXPECT_EQ(ad.SequenceSets[1].active(), 1);
  EXPECT_EQ(AddSequenceSet(ad, "POP1", {2}), kDuplicateSetName);
  EXPECT_EQ(ad.SetCount(), 1);
}

}  // namespace
}  // namespace ovelt
