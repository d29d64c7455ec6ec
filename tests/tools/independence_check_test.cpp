#include "tools/independence_check.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

std::optional<ToolMessage> Check(const std::string& a, const std::string& b, const std::string& c,
                                 const std::string& d) {
  TwoByTwoTable table;
  return F12Filtros({a, b, c, d}, table);
}

std::string Words(const std::optional<ToolMessage>& message) {
  return message ? message->Text : "";
}

TEST(IndependenceCheck, ReadsAGoodTable) {
  TwoByTwoTable table;
  EXPECT_FALSE(F12Filtros({"3", " 1", "1,0", "3"}, table));
  EXPECT_EQ(table, (TwoByTwoTable{3, 1, 1, 3}));
}

TEST(IndependenceCheck, TheDefaultTableIsAccepted) {
  TwoByTwoTable table;
  EXPECT_FALSE(F12Filtros(F12DefectValues(), table));
  EXPECT_EQ(table, (TwoByTwoTable{12, 5, 3, 10}));
}

TEST(IndependenceCheck, EachRefusalHasItsWordsAndTheInvalidSelectionTitle) {
  const auto missing = Check("3", "", "1", "3");
  ASSERT_TRUE(missing);
  EXPECT_EQ(missing->Text, "Missing data");
  EXPECT_EQ(missing->Title, " Invalid Selection ");

  EXPECT_EQ(Words(Check("3", "x", "1", "3")), "Invalid number");
  EXPECT_EQ(Words(Check("3", "1.5", "1", "3")), "Invalid number");  // counts are whole
  EXPECT_EQ(Words(Check("3", "-1", "1", "3")),
            "The minimum number of polymorphic sites or differences is 0");
  EXPECT_EQ(Words(Check("0", "0", "0", "0")), "The total number of sites must be higher than 0");
  EXPECT_EQ(Words(Check("1", "0", "0", "0")), "The minimum number of sequences is two");
  EXPECT_EQ(Words(Check("0", "5", "0", "5")), "This table can not be computed");  // column 1
  EXPECT_EQ(Words(Check("5", "5", "0", "0")), "This table can not be computed");  // row 2
  EXPECT_EQ(Words(Check("8192", "8192", "8192", "8191")), "The total must be lower than 32767");
  EXPECT_EQ(Words(Check("1e30", "1", "1", "1")), "The total must be lower than 32767");
}

TEST(IndependenceCheck, TheLargestTotalIs32766) {
  TwoByTwoTable table;
  EXPECT_FALSE(F12Filtros({"8192", "8192", "8191", "8191"}, table));
  EXPECT_EQ(table.Total(), 32766);
}

TEST(IndependenceCheck, TheFirstBoxThatFailsIsTold) {
  // Cells are read in order: a missing b is told before a bad c.
  EXPECT_EQ(Words(Check("3", "", "x", "3")), "Missing data");
  EXPECT_EQ(Words(Check("3", "x", "", "3")), "Invalid number");
  // Every cell is read before any range is checked.
  EXPECT_EQ(Words(Check("-3", "1", "1", "")), "Missing data");
}

TEST(IndependenceCheck, ARefusedTableLeavesTheTableAlone) {
  TwoByTwoTable table{1, 2, 3, 4};
  EXPECT_TRUE(F12Filtros({"0", "5", "0", "5"}, table));
  EXPECT_EQ(table, (TwoByTwoTable{1, 2, 3, 4}));
}

}  // namespace
}  // namespace ovelt
