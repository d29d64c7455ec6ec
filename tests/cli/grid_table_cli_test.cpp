// The --grid file for scripts: its columns are the keys of the JSON array whose rows the grid
// window shows, and every cell carries the same value as the JSON, to the last bit of a double.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "support/json_reader.h"
#include "support/temp_dir.h"
#include "support/tsv_reader.h"

namespace ovelt::testing {
namespace {

const std::string kExample = std::string(OVELT_EXAMPLES) + "/example.fas";

struct GridCase {
  std::string name;
  std::vector<std::string> args;
  std::vector<std::string> array_path;  // JSON keys down to the array the grid shows
};

const JsonValue& At(const JsonValue& root, const std::vector<std::string>& path) {
  const JsonValue* value = &root;
  for (const std::string& key : path) value = &(*value)[key];
  return *value;
}

void ExpectSameCell(const JsonValue& json, const std::string& cell, const std::string& where) {
  switch (json.kind()) {
    case JsonValue::Kind::kNull:
      EXPECT_EQ(cell, "NA") << where;
      break;
    case JsonValue::Kind::kBool:
      EXPECT_EQ(cell, json.Bool() ? "true" : "false") << where;
      break;
    case JsonValue::Kind::kNumber:
      // Both are written in the shortest exact form: the same double reads back from each.
      EXPECT_EQ(std::stod(cell), json.Number()) << where << " cell " << cell;
      EXPECT_EQ(cell.find_first_of(" "), std::string::npos) << where;
      break;
    case JsonValue::Kind::kString:
      EXPECT_EQ(cell, json.Text()) << where;
      break;
    default:
      ADD_FAILURE() << where << ": a nested value in a grid row";
  }
}

class GridTableCli : public ::testing::TestWithParam<GridCase> {};

TEST_P(GridTableCli, ColumnsAndCellsAreTheJsonArray) {
  const GridCase& c = GetParam();
  TempDir dir;
  std::vector<std::string> args = c.args;
  const std::string grid = dir.File("grid.tsv");
  const std::string json = dir.File("result.json");
  args.insert(args.end(), {"--grid", grid, "--json", json});
  const auto r = RunOvelt(args, dir.Path().string());
  ASSERT_EQ(r.status, 0) << r.err;
  const TsvTable tsv = TsvTable::Parse(ReadBytes(grid));
  const JsonValue root = JsonValue::Parse(ReadBytes(json));
  const JsonValue& rows = At(root, c.array_path);
  ASSERT_EQ(tsv.Rows.size(), rows.size());
  ASSERT_GT(rows.size(), 0u);
  EXPECT_EQ(tsv.Keys, rows[0].Keys());
  for (size_t i = 0; i < rows.size(); ++i)
    for (const std::string& key : rows[i].Keys())
      ExpectSameCell(rows[i][key], tsv.Cell(i, key), "row " + std::to_string(i) + " " + key);
}

INSTANTIATE_TEST_SUITE_P(
    EveryGrid, GridTableCli,
    ::testing::Values(
        GridCase{
            "PiTheta",
            {"dna-polymorphism", kExample, "--sliding-window", "--window", "100", "--step", "50"},
            {"sliding_window", "windows"}},
        GridCase{"GcContent",
                 {"dna-polymorphism", kExample, "--sliding-window", "--gc-content"},
                 {"gc_windows", "windows"}},
        GridCase{"Tajima",
                 {"tajima", kExample, "--sliding-window", "--window", "200", "--step", "100"},
                 {"sliding_window", "windows"}},
        GridCase{"FuLi",
                 {"fu-li", kExample, "--sliding-window", "--window", "300", "--step", "150"},
                 {"sliding_window", "windows"}},
        GridCase{
            "FuLiOutgroup",
            {"fu-li-outgroup", kExample, "--set-def", "In=1-10", "--set-def", "Out=11-12", "--set",
             "In", "--outgroup", "Out", "--sliding-window", "--window", "300", "--step", "100"},
            {"sliding_window", "windows"}},
        GridCase{"Mismatch", {"population-size-changes", kExample, "--kind", "12"}, {"table"}},
        GridCase{"Spectrum", {"population-size-changes", kExample, "--kind", "21"}, {"table"}},
        GridCase{
            "SegregatingTime", {"population-size-changes", kExample, "--kind", "22"}, {"table"}},
        GridCase{"MultiDomain",
                 {"multidomain", kExample, "--domain", "A=1-450;B=451-900", "--set-def", "P=1-6",
                  "--set-def", "Q=7-12"},
                 {"domains"}},
        GridCase{"DnaDivergence",
                 {"dna-divergence", kExample, "--set-def", "P=1-6", "--set-def", "Q=7-12",
                  "--sliding-window", "--window", "200", "--step", "100"},
                 {"sliding_window", "windows"}},
        GridCase{"GeneConversionSites",
                 {"gene-conversion", kExample, "--set-def", "P=1-6", "--set-def", "Q=7-12"},
                 {"informative_sites"}},
        GridCase{"GeneConversionWindows",
                 {"gene-conversion", kExample, "--set-def", "P=1-6", "--set-def", "Q=7-12",
                  "--sliding-window"},
                 {"sliding_window", "windows"}},
        GridCase{"GeneFlowPairs",
                 {"gene-flow", kExample, "--set-def", "P=1-4", "--set-def", "Q=5-8", "--set-def",
                  "R=9-12", "--permutation", "--replicates", "50"},
                 {"population_pairs"}},
        GridCase{"SynonymousPairs",
                 {"synonymous", kExample, "--coding", "1-900", "--seed", "11", "--pair-table"},
                 {"pair_table"}}),
    [](const ::testing::TestParamInfo<GridCase>& param) { return param.param.name; });

TEST(GridTableCliData, SitesNameTheirClasses) {
  TempDir dir;
  const std::string file = dir.Write("four.fas", ">a\nAAAAA\n>b\nAAAAA\n>c\nTA-AC\n>d\nTAAAA\n");
  const std::string grid = dir.File("sites.tsv");
  ASSERT_EQ(RunOvelt({"sites", file, "--grid", grid}, dir.Path().string()).status, 0);
  const TsvTable tsv = TsvTable::Parse(ReadBytes(grid));
  EXPECT_EQ(tsv.Keys, (std::vector<std::string>{"site", "site_class", "diversity", "codon_position",
                                                "coding_flag"}));
  ASSERT_EQ(tsv.Rows.size(), 5u);
  EXPECT_EQ(tsv.Cell(0, "site_class"), "parsimony informative");
  EXPECT_EQ(tsv.Cell(1, "site_class"), "monomorphic");
  EXPECT_EQ(tsv.Cell(2, "site_class"), "gap or missing data");
  EXPECT_EQ(tsv.Cell(4, "site_class"), "singleton");
  // Site 1: A A T T, 1 - (1/4 + 1/4) scaled by n/(n-1) = 4/3: 2/3. Site 5: one C in four: 1/2.
  EXPECT_DOUBLE_EQ(tsv.Number(0, "diversity"), 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(tsv.Number(4, "diversity"), 0.5);
  EXPECT_EQ(tsv.Cell(3, "site"), "4");
}

TEST(GridTableCliData, InformationRowsAreTrimmed) {
  TempDir dir;
  const std::string grid = dir.File("info.tsv");
  ASSERT_EQ(RunOvelt({"info", kExample, "--grid", grid}, dir.Path().string()).status, 0);
  const TsvTable tsv = TsvTable::Parse(ReadBytes(grid));
  EXPECT_EQ(tsv.Keys, (std::vector<std::string>{"item", "value"}));
  bool used = false;
  for (const auto& row : tsv.Rows) {
    EXPECT_NE(row[0].front(), ' ');
    if (row[0] == "Sequences Used") used = row[1] == "12";
  }
  EXPECT_TRUE(used);
}

}  // namespace
}  // namespace ovelt::testing
