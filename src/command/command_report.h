#pragma once
// What a command leaves for the output channel once it has computed: the report text, the grids,
// the chart, and in which windows the result stands. Plain data; the runner hands it over.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "output/graph_data.h"
#include "output/output_channel.h"
#include "output/output_grid.h"
#include "platform/platform.h"

namespace ovelt {

struct CommandReport {
  // The report head (kept apart for the printer and the saved file) and the text after it.
  std::string Head;
  std::string Body;
  OutputGrid Grid1;
  // The result's array (its JSON keys joined by '.', e.g. "sliding_window.windows") whose rows
  // Grid1 shows: the binding makes Grid1.Data from it, for the --grid file.
  std::string GridArray;
  OutputGrid Grid2;
  // The table of every pair of populations of a gene-flow run, for the saved output.
  std::optional<GeneFlowTable> GeneFlow;
  // The head of the grid in saved output when the result words it its own way.
  std::optional<std::string> GridTextHead;
  std::optional<GraphData> Graph;
  // The `ShowResult` kinds, in their order: text, text and grid, graph added, ...
  std::vector<int> ShowKinds{kResultTextOnly};
  // Boxes shown once the result stands (a test that could not be computed).
  struct Notice {
    std::string Text;
    MsgIcon Icon = MsgIcon::kInformation;
  };
  std::vector<Notice> Notices;
  // The status line once the result stands, for a result that names itself there; otherwise
  // the idle words come back.
  std::optional<std::string> Status;
  // A table of pairwise comparisons too long for the grid window (output/too_big_prompt.h):
  // the runner asks whether to save it on a file and streams its rows there, row by row, so
  // that the rows are never all held as text.
  struct LongTable {
    int64_t Rows = 0;
    // The cells of row `r` (0 .. Rows - 1).
    std::function<std::vector<std::string>(int64_t r)> Row;
    // A file of the command's own: its head (given the time of writing) in place of the
    // rule and column head of a saved grid, and each row's cells written as they stand.
    std::function<std::string(const Platform::DateTime& when)> FileHead;
    // Whether answering No (or cancelling the file) ends the run with no result standing,
    // rather than leaving the result without the table.
    bool DeclineEndsRun = false;
  };
  std::optional<LongTable> LongGrid;
};

}  // namespace ovelt
