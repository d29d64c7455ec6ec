#include "analyses/polymorphism/neutrality/critical_tables.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "analyses/polymorphism/neutrality/critical_row.h"

namespace ovelt {
namespace {

// lower/upper at 10 %, 5 %, 1 %, 0.1 %, in the order low, high, low, high, ...
void ExpectTajimaRow(int index, int n, const std::array<float, 8>& bounds) {
  const TajimaCriticalRow& row = TajimaCriticalRows()[static_cast<size_t>(index)];
  EXPECT_EQ(row.n, n);
  for (size_t level = 0; level < 4; ++level) {
    EXPECT_EQ(row.lower[level], bounds[2 * level]) << "n " << n << " level " << level;
    EXPECT_EQ(row.upper[level], bounds[2 * level + 1]) << "n " << n << " level " << level;
  }
}

TEST(TajimaCritical, QuotedRowsOfTajima1989) {
  ExpectTajimaRow(4, 4, {-0.876f, 2.081f, -0.876f, 2.232f, -0.876f, 2.324f, -0.876f, 2.336f});
  ExpectTajimaRow(10, 10, {-1.559f, 1.719f, -1.733f, 1.975f, -1.967f, 2.362f, -2.105f, 2.64f});
  ExpectTajimaRow(50, 50, {-1.57f, 1.723f, -1.8f, 2.044f, -2.178f, 2.627f, -2.505f, 3.212f});
  ExpectTajimaRow(60, 100, {-1.555f, 1.735f, -1.781f, 2.073f, -2.16f, 2.704f, -2.495f, 3.366f});
  ExpectTajimaRow(76, 1000, {-1.505f, 1.772f, -1.715f, 2.15f, -2.062f, 2.887f, -2.369f, 3.722f});
}

TEST(TajimaCritical, RowsHoldTheirSampleSizes) {
  std::vector<int> sizes;
  for (int n = 4; n <= 50; ++n) sizes.push_back(n);
  for (int n = 55; n <= 100; n += 5) sizes.push_back(n);
  for (const int n : {110, 120, 130, 140, 150, 175, 200}) sizes.push_back(n);
  for (int n = 250; n <= 500; n += 50) sizes.push_back(n);
  for (const int n : {600, 800, 1000}) sizes.push_back(n);
  ASSERT_EQ(sizes.size(), 73U);
  const auto& rows = TajimaCriticalRows();
  for (size_t i = 0; i < 4; ++i) EXPECT_EQ(rows[i].n, 0);
  for (size_t i = 0; i < sizes.size(); ++i) EXPECT_EQ(rows[i + 4].n, sizes[i]) << i + 4;
  // Bounds widen with the level: the 0.1 % pair holds the 1 % pair, and so on.
  for (size_t i = 4; i < rows.size(); ++i) {
    for (size_t level = 1; level < 4; ++level) {
      EXPECT_LE(rows[i].lower[level], rows[i].lower[level - 1]) << i;
      EXPECT_GE(rows[i].upper[level], rows[i].upper[level - 1]) << i;
    }
  }
}

void ExpectFuLiRow(FuLiTable table, int index, int n, const std::array<float, 6>& bounds) {
  const FuLiCriticalRow& row = FuLiCriticalRows(table)[static_cast<size_t>(index)];
  EXPECT_EQ(row.n, n);
  EXPECT_TRUE(row.published);
  for (size_t level = 0; level < 3; ++level) {
    EXPECT_EQ(row.lower[level], bounds[2 * level]) << "n " << n << " level " << level;
    EXPECT_EQ(row.upper[level], bounds[2 * level + 1]) << "n " << n << " level " << level;
  }
}

TEST(FuLiCritical, QuotedRowsOfFuAndLi1993) {
  ExpectFuLiRow(FuLiTable::kD, 3, 3, {-1.69f, 1.58f, -1.88f, 1.86f, -2.04f, 2.23f});
  ExpectFuLiRow(FuLiTable::kD, 50, 100, {-1.95f, 1.41f, -2.36f, 1.61f, -2.91f, 1.81f});
  ExpectFuLiRow(FuLiTable::kF, 3, 3, {-1.72f, 1.58f, -1.87f, 1.83f, -2.02f, 2.18f});
  ExpectFuLiRow(FuLiTable::kF, 50, 100, {-1.89f, 1.51f, -2.28f, 1.81f, -2.77f, 2.15f});
  ExpectFuLiRow(FuLiTable::kDStar, 4, 4, {-0.87f, 1.89f, -0.87f, 2.08f, -0.87f, 2.19f});
  ExpectFuLiRow(FuLiTable::kDStar, 50, 100, {-1.9f, 1.37f, -2.33f, 1.53f, -3.27f, 1.71f});
  ExpectFuLiRow(FuLiTable::kFStar, 4, 4, {-0.94f, 2.07f, -0.94f, 2.26f, -0.95f, 2.38f});
  ExpectFuLiRow(FuLiTable::kFStar, 50, 100, {-1.88f, 1.47f, -2.3f, 1.73f, -2.97f, 2.04f});
}

TEST(FuLiCritical, RowsHoldTheirSampleSizes) {
  for (const FuLiTable table :
       {FuLiTable::kD, FuLiTable::kF, FuLiTable::kDStar, FuLiTable::kFStar}) {
    const auto& rows = FuLiCriticalRows(table);
    const int first = FuLiFirstRow(table);
    for (int i = 0; i < first; ++i) EXPECT_EQ(rows[static_cast<size_t>(i)].n, 0);
    for (int i = first; i <= 30; ++i) EXPECT_EQ(rows[static_cast<size_t>(i)].n, i);
    for (int i = 31; i <= 40; ++i) EXPECT_EQ(rows[static_cast<size_t>(i)].n, 32 + 2 * (i - 31));
    for (int i = 41; i <= 50; ++i) EXPECT_EQ(rows[static_cast<size_t>(i)].n, 55 + 5 * (i - 41));
    // Only the quoted rows are printed values; the rest were simulated.
    for (int i = first; i <= 50; ++i) {
      EXPECT_EQ(rows[static_cast<size_t>(i)].published, i == first || i == 50) << i;
    }
  }
  EXPECT_EQ(FuLiFirstRow(FuLiTable::kD), 3);
  EXPECT_EQ(FuLiFirstRow(FuLiTable::kF), 3);
  EXPECT_EQ(FuLiFirstRow(FuLiTable::kDStar), 4);
  EXPECT_EQ(FuLiFirstRow(FuLiTable::kFStar), 4);
}

TEST(TajimaCriticalRowFor, OneByOneUpToFifty) {
  EXPECT_FALSE(TajimaCriticalRowFor(2).has_value());
  EXPECT_FALSE(TajimaCriticalRowFor(3).has_value());
  EXPECT_EQ(TajimaCriticalRowFor(4), 4);
  EXPECT_EQ(TajimaCriticalRowFor(37), 37);
  EXPECT_EQ(TajimaCriticalRowFor(50), 50);
}

TEST(TajimaCriticalRowFor, NearerRowBeyondFifty) {
  // Between 50 and 55 the midpoint is Int((55 + 1 - 50) / 2) = 3: 51..53 take the row of 50,
  // 54 and 55 the row of 55.
  EXPECT_EQ(TajimaCriticalRowFor(51), 50);
  EXPECT_EQ(TajimaCriticalRowFor(53), 50);
  EXPECT_EQ(TajimaCriticalRowFor(54), 51);
  EXPECT_EQ(TajimaCriticalRowFor(55), 51);
  // 200 .. 250: midpoint Int(51 / 2) = 25: 225 takes 200, 226 takes 250.
  EXPECT_EQ(TajimaCriticalRowFor(225), 67);
  EXPECT_EQ(TajimaCriticalRowFor(226), 68);
  // 800 .. 1000: midpoint 100: 900 takes 800, 901 takes 1000.
  EXPECT_EQ(TajimaCriticalRowFor(900), 75);
  EXPECT_EQ(TajimaCriticalRowFor(901), 76);
  EXPECT_EQ(TajimaCriticalRowFor(1000), 76);
}

TEST(TajimaCriticalRowFor, BeyondTheTable) {
  EXPECT_EQ(TajimaCriticalRowFor(1100), 76);  // the row of 1000
  EXPECT_EQ(TajimaCriticalRowFor(1200), 76);
  EXPECT_FALSE(TajimaCriticalRowFor(1201).has_value());
  EXPECT_FALSE(TajimaCriticalRowFor(1300).has_value());
}

TEST(FuLiCriticalRowFor, FromTheFirstRowToFiveHundred) {
  EXPECT_FALSE(FuLiCriticalRowFor(2, 3).has_value());
  EXPECT_EQ(FuLiCriticalRowFor(3, 3), 3);
  EXPECT_FALSE(FuLiCriticalRowFor(3, 4).has_value());
  EXPECT_EQ(FuLiCriticalRowFor(4, 4), 4);
  EXPECT_EQ(FuLiCriticalRowFor(30, 4), 30);
  // 30 .. 32: midpoint Int(3 / 2) = 1: 31 takes the row of 30.
  EXPECT_EQ(FuLiCriticalRowFor(31, 4), 30);
  EXPECT_EQ(FuLiCriticalRowFor(32, 4), 31);
  EXPECT_EQ(FuLiCriticalRowFor(33, 4), 31);  // 32 .. 34: 32 + 1 >= 33
  EXPECT_EQ(FuLiCriticalRowFor(53, 4), 40);  // 50 .. 55: midpoint 3
  EXPECT_EQ(FuLiCriticalRowFor(54, 4), 41);
  EXPECT_EQ(FuLiCriticalRowFor(100, 4), 50);
  EXPECT_EQ(FuLiCriticalRowFor(101, 3), 50);
  EXPECT_EQ(FuLiCriticalRowFor(500, 4), 50);  // the row of 100
  EXPECT_FALSE(FuLiCriticalRowFor(501, 4).has_value());
}

}  // namespace
}  // namespace ovelt
