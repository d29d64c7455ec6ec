// The --grid table of a result is found by the same Visit that writes its JSON.

#include "command/result_table.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "command/result_json.h"

namespace ovelt {
namespace {

struct Spread {
  double Low = 0;
  double High = 0;
  template <class V>
  void Visit(V& v) const {
    v.Number("low", Low);
    v.Number("high", High);
  }
};

struct Row {
  int32_t Start = 0;
  std::optional<double> D;
  std::string Mark;
  Spread Range;
  std::optional<Spread> Extra;
  template <class V>
  void Visit(V& v) const {
    v.Integer("start", Start);
    v.Optional("d", D);
    v.Text("mark", Mark);
    v.Object("range", Range);
    v.Fields(Extra);
  }
};

struct Windows {
  int32_t Length = 0;
  std::vector<Row> Rows;
  template <class V>
  void Visit(V& v) const {
    v.Integer("window_length", Length);
    v.Array("windows", Rows);
  }
};

struct Result {
  double Pi = 0;
  std::vector<Row> Other;
  std::optional<Windows> Sliding;
  template <class V>
  void Visit(V& v) const {
    v.Number("pi", Pi);
    v.Array("windows", Other);  // the same key at the top: the path tells them apart
    v.Object("sliding_window", Sliding);
  }
};

TEST(ResultTable, TheArrayAtTheEndOfThePath) {
  Result result;
  result.Other = {Row{99, 1.0, "x", {}, {}}};
  result.Sliding =
      Windows{4, {Row{1, -0.5, "*", {0.1, 0.2}, Spread{3, 4}}, Row{5, {}, "", {}, {}}}};
  const DataTable table = ResultArrayTable(result, "sliding_window.windows");
  EXPECT_EQ(table.Keys, (std::vector<std::string>{"start", "d", "mark", "range.low", "range.high",
                                                  "low", "high"}));
  ASSERT_EQ(table.Rows.size(), 2u);
  EXPECT_EQ(DataTableTsv(table),
            "start\td\tmark\trange.low\trange.high\tlow\thigh\n"
            "1\t-0.5\t*\t0.1\t0.2\t3\t4\n"
            "5\tNA\t\t0\t0\tNA\tNA\n");
  EXPECT_EQ(ResultArrayTable(result, "windows").Rows.size(), 1u);
}

TEST(ResultTable, AnEmptyArrayStillNamesItsColumns) {
  Result result;
  result.Sliding = Windows{};
  const DataTable table = ResultArrayTable(result, "sliding_window.windows");
  EXPECT_EQ(table.Keys.size(), 7u);
  EXPECT_TRUE(table.Rows.empty());
}

TEST(ResultTable, NoSuchArrayGivesNoTable) {
  Result result;  // no sliding window this run
  EXPECT_TRUE(ResultArrayTable(result, "sliding_window.windows").Empty());
  EXPECT_TRUE(ResultArrayTable(result, "pi").Empty());
  EXPECT_TRUE(ResultArrayTable(result, "sliding").Empty());
}

TEST(ResultTable, CellsMatchTheJsonNumbers) {
  Result result;
  result.Sliding = Windows{1, {Row{1, 1.0 / 3.0, "", {0.1, 4.8}, {}}}};
  const std::string json = ResultJson("X", result);
  EXPECT_NE(json.find("\"d\":0.3333333333333333,"), std::string::npos) << json;
  EXPECT_NE(DataTableTsv(ResultArrayTable(result, "sliding_window.windows"))
                .find("\t0.3333333333333333\t"),
            std::string::npos);
}

TEST(DataTableText, TabsAndLineEndsInTextsBecomeBlanks) {
  DataTable table{{"name", "n"}, {{std::string("a\tb\r\nc"), int64_t{3}}}};
  EXPECT_EQ(DataTableTsv(table), "name\tn\na b  c\t3\n");
}

}  // namespace
}  // namespace ovelt
