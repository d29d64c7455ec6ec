#include "core/coding_map.h"

#include <gtest/gtest.h>

#include "alignment_fixture.h"

namespace ovelt {
namespace {

using test::MakeAlignment;

std::vector<int16_t> Positions(const ActiveData& ad, int32_t from, int32_t to) {
  return {ad.CodonPosition.begin() + from, ad.CodonPosition.begin() + to + 1};
}

TEST(CodingMap, ResetStateOfAFileWithoutCoding) {
  ActiveData ad = MakeAlignment({"ACGTAC"});
  EXPECT_EQ(ad.CodonPosition, std::vector<int16_t>(7, 0));
  EXPECT_EQ(ad.Format.CodingAssigned, -1);
  EXPECT_EQ(ad.Format.GeneticCodeIndex, 1);
  EXPECT_EQ(ad.LastCodingSite, 0);
  ad.Format.GeneticCodeIndex = 4;
  ad.Format.CodingAssigned = 1;
  ad.CodonPosition[3] = 2;
  ResetCodingState(ad);
  EXPECT_EQ(ad.CodonPosition, std::vector<int16_t>(7, 0));
  EXPECT_EQ(ad.Format.CodingAssigned, -1);
  EXPECT_EQ(ad.Format.GeneticCodeIndex, 1);
  EXPECT_EQ(ad.CodingFlag[6], "4n");
}

TEST(CodingMap, FirstPosition2AtSite10) {
  ActiveData ad = MakeAlignment({std::string(20, 'A')});
  EXPECT_TRUE(AssignCodingRegion(ad, 10, 20, 2));
  EXPECT_EQ(Positions(ad, 1, 9), std::vector<int16_t>(9, 0));
  EXPECT_EQ(Positions(ad, 10, 20), (std::vector<int16_t>{2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3}));
  EXPECT_EQ(ad.LastCodingSite, 20);
}

TEST(CodingMap, FirstPosition3AndTheDefault) {
  ActiveData ad = MakeAlignment({std::string(6, 'A')});
  EXPECT_TRUE(AssignCodingRegion(ad, 1, 4, 3));
  EXPECT_EQ(Positions(ad, 1, 6), (std::vector<int16_t>{3, 1, 2, 3, 0, 0}));
  EXPECT_TRUE(AssignCodingRegion(ad, 1, 6, 0));  // not 1..3: reads as 1
  EXPECT_EQ(Positions(ad, 1, 6), (std::vector<int16_t>{1, 2, 3, 1, 2, 3}));
}

TEST(CodingMap, ChangedOnlyWhenAPositionChanges) {
  ActiveData ad = MakeAlignment({std::string(9, 'A')});
  EXPECT_TRUE(AssignCodingRegion(ad, 1, 9, 1));
  EXPECT_FALSE(AssignCodingRegion(ad, 1, 9, 1));
  EXPECT_FALSE(AssignCodingRegion(ad, 4, 6, 1));  // the same frame
  EXPECT_TRUE(AssignCodingRegion(ad, 4, 6, 2));
  EXPECT_TRUE(AssignNonCodingRegion(ad, 7, 9));
  EXPECT_FALSE(AssignNonCodingRegion(ad, 7, 9));
  EXPECT_EQ(ad.LastCodingSite, 6);
}

TEST(CodingMap, NoncodingStretchInsideACodingRegionKeepsTheFrame) {
  ActiveData ad = MakeAlignment({std::string(12, 'A')});
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 12, 1));
  ASSERT_TRUE(AssignNonCodingRegion(ad, 5, 7));
  EXPECT_EQ(Positions(ad, 1, 12), (std::vector<int16_t>{1, 2, 3, 1, 0, 0, 0, 2, 3, 1, 2, 3}));
  EXPECT_EQ(ad.LastCodingSite, 12);
}

TEST(CodingMap, NoncodingAtTheEndFindsTheLastCodingSiteAgain) {
  ActiveData ad = MakeAlignment({std::string(12, 'A')});
  ASSERT_TRUE(AssignCodingRegion(ad, 2, 10, 1));
  EXPECT_EQ(BuscaUltimoCodSitio(ad), 10);
  ASSERT_TRUE(AssignNonCodingRegion(ad, 8, 12));
  EXPECT_EQ(ad.LastCodingSite, 7);
  ASSERT_TRUE(AssignNonCodingRegion(ad, 1, 12));
  EXPECT_EQ(ad.LastCodingSite, 0);
}

TEST(CodingMap, InvalidRegionIsRefusedAndChangesNothing) {
  ActiveData ad = MakeAlignment({std::string(12, 'A')});
  EXPECT_THROW(AssignCodingRegion(ad, 5, 4, 1), InvalidRegion);
  EXPECT_THROW(AssignCodingRegion(ad, 0, 4, 1), InvalidRegion);
  EXPECT_THROW(AssignCodingRegion(ad, 1, 13, 1), InvalidRegion);
  EXPECT_THROW(AssignNonCodingRegion(ad, 13, 13), InvalidRegion);
  try {
    AssignCodingRegion(ad, 9, 2, 1);
    FAIL() << "no exception";
  } catch (const InvalidRegion& error) {
    EXPECT_STREQ(error.what(), " Invalid Selection ");
  }
  EXPECT_EQ(ad.CodonPosition, std::vector<int16_t>(13, 0));
  EXPECT_EQ(ad.LastCodingSite, 0);
}

TEST(CodingMap, LeavingTheDialog) {
  ActiveData ad = MakeAlignment({"ATGGCC"});
  ad.Format.GeneticCodeIndex = 0;
  ad.Region = {2, 3};
  LeaveForm14(ad, false);
  EXPECT_EQ(ad.Format.GeneticCodeIndex, 1);
  EXPECT_EQ(ad.Region.RegionFrom, 1);
  EXPECT_EQ(ad.Region.RegionTo, 6);
  EXPECT_EQ(ad.Format.CodingAssigned, -1);

  ASSERT_TRUE(AssignCodingRegion(ad, 1, 6, 1));
  EXPECT_EQ(ad.CodingFlag[1], "4n");  // not rebuilt before leaving
  LeaveForm14(ad, true);
  EXPECT_EQ(ad.Format.CodingAssigned, 1);
  EXPECT_EQ(ad.CodingFlag[1], "1M");
  EXPECT_EQ(ad.CodingFlag[4], "2A");  // GCC Ala
}

}  // namespace
}  // namespace ovelt
