#include "tools/independence_margins.h"

#include <gtest/gtest.h>

namespace ovelt {
namespace {

TEST(TableMargins, SumsRowsColumnsAndTotal) {
  const IndependenceMargins m = TableMargins({"12", "5", "3", "10"});
  EXPECT_EQ(m, (IndependenceMargins{"17", "13", "15", "15", "30"}));
}

TEST(TableMargins, ReadsADecimalCommaAndBlanks) {
  const IndependenceMargins m = TableMargins({" 2 ", "3,0", "4", "5"});
  EXPECT_EQ(m, (IndependenceMargins{"5", "9", "6", "8", "14"}));
}

// A total whose cells are not both whole numbers stays empty; the others still show.
TEST(TableMargins, LeavesTotalsOfUnreadableCellsEmpty) {
  const IndependenceMargins m = TableMargins({"", "3", "2.5", "4"});
  EXPECT_EQ(m.Row1, "");
  EXPECT_EQ(m.Row2, "");
  EXPECT_EQ(m.Column1, "");
  EXPECT_EQ(m.Column2, "7");
  EXPECT_EQ(m.Total, "");
}

}  // namespace
}  // namespace ovelt
